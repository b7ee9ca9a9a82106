#pragma once

#include "MvMemoryGlobal.h"

#include "IMvUndoRedoService.h"
#include "MvMemoryUndoRecorder.h"

#include <QStringList>

#include <functional>
#include <vector>

class MvMemoryThreadGate;

// The undo stack. A step keeps the values of the objects it changed, before and after it (see
// MvMemoryUndoRecorder.h); undo and redo write those values back into the same (persistent)
// objects, so pointers stay valid.
class MVMEMORY_EXPORT MvMemoryUndoService : public IMvUndoRedoService
{
public:
    // Told after undo or redo wrote a step's values back, before Changed.
    using Restored = std::function<void()>;
    // Told after a step was recorded, undone or redone, with the changes it holds.
    using Changed = std::function<void(const MvMemoryUndoRecorder::Step& changes)>;

    MvMemoryUndoService(MvMemoryUndoRecorder* recorder, Restored restored, Changed changed);
    // The timeline's gate: held while a step is open and while undo or redo writes values back.
    void setGate(MvMemoryThreadGate* gate);

    void beginStep(const QString& name, const QString& source) override;
    void endStep() override;
    bool isStepOpen() const override;

    bool canUndo() const override;
    bool canRedo() const override;
    bool undo() override;
    bool redo() override;
    int undoCount() const override;
    int redoCount() const override;
    QString undoName() const override;
    QString redoName() const override;
    QString undoSource() const override;
    // What the steps recorded, undone or redone while paused changed is told once, as one change,
    // when the last pause ends.
    void pauseEvents() override;
    void resumeEvents() override;
    int eventPauseDepth() const { return m_paused; }

    int stepDepth() const { return m_depth; }
    QString redoSource() const;
    // Step names, oldest first.
    QStringList undoNames() const;
    // How many object values the step undo() would revert holds (0 without one).
    int undoChangeCount() const;
    void clear();

private:
    struct Step
    {
        QString name;
        QString source;
        MvMemoryUndoRecorder::Step changes;
    };

    void tell(const MvMemoryUndoRecorder::Step& changes);

    MvMemoryUndoRecorder* m_recorder;
    MvMemoryThreadGate* m_gate = nullptr;
    Restored m_restored;
    Changed m_changed;
    std::vector<Step> m_undo;
    std::vector<Step> m_redo;
    Step m_open;
    int m_depth = 0;
    int m_paused = 0;
    MvMemoryUndoRecorder::Step m_held; // told when the events resume
    bool m_holding = false;
};
