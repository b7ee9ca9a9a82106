#pragma once

#include "IMvUndoRedoService.h"
#include "MvMemoryModelState.h"

#include <functional>

// The undo stack. A step keeps the whole model value before and after it; undo and redo write
// those values back into the same (persistent) objects, so pointers stay valid.
class MVVBLMODEL_EXPORT MvMemoryUndoService : public IMvUndoRedoService
{
public:
    using Capture = std::function<MvMemoryModelState()>;
    using Restore = std::function<void(const MvMemoryModelState&)>;
    // Told after a step was recorded, undone or redone, with the model values before and after.
    using Changed = std::function<void(const MvMemoryModelState& from, const MvMemoryModelState& to)>;

    MvMemoryUndoService(Capture capture, Restore restore, Changed changed);

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

    int stepDepth() const { return m_depth; }
    QString redoSource() const;
    // Step names, oldest first.
    QStringList undoNames() const;
    void clear();

private:
    struct Step
    {
        QString name;
        QString source;
        MvMemoryModelState before;
        MvMemoryModelState after;
    };

    Capture m_capture;
    Restore m_restore;
    Changed m_changed;
    QList<Step> m_undo;
    QList<Step> m_redo;
    Step m_open;
    int m_depth = 0;
};
