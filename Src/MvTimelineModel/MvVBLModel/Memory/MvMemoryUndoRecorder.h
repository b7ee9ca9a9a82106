#pragma once

#include "MvMemoryGlobal.h"

#include "MvMemoryUndoable.h"

#include <QStringList>

#include <vector>

// Records undo steps as the values that changed, not as copies of the model.
//
// Every undoable object of the in-memory model derives from MvMemoryValued<State>: its whole
// undoable value is one State struct, and the one road to changing it is `object->change()`,
// which saves the value when the object is first changed in the open step (the "before") and
// lets the object's lookups follow when the handle goes out of scope. When the step closes, the
// recorder saves each touched object's value again (the "after") and drops those that came back
// unchanged; undo and redo write the saved values back into the same objects, so pointers stay
// valid. An object created inside a step goes back to its detached value (off the timeline) on
// undo.
//
// To add a field to an existing kind (a clip's mute, a track's visibility, ...): put it in the
// kind's State struct, in that struct's operator== (a field left out there is never recorded) and
// in MvMemoryTimeline::stateText(), and change it only through change().
// To add a kind of undoable object (media items, text containers, ...): derive it from
// MvMemoryValued<ItsState>, say what "detached" means for it (detached()), name it (undoLabel())
// and, when other objects keep lookups about it, update them in valueChanged().
//
// A change that bypasses change() cannot be written without setStateUnchecked(), which exists for
// invariant tests only; while verifying (on in debug builds), each closed step is compared with a
// full capture of the model and any difference is reported by the invariant checker.
class MVMEMORY_EXPORT MvMemoryUndoRecorder
{
public:
    struct Change
    {
        MvMemoryUndoable* object = nullptr;
        MvMemoryValuePtr before;
        MvMemoryValuePtr after;
    };
    using Step = std::vector<Change>;

    // Every undoable value of a timeline, one entry per object created so far, in creation order;
    // objects created later than a capture count as detached in it.
    class MVMEMORY_EXPORT Capture
    {
    public:
        // Empty when `later` (a capture of the same timeline) holds the same values; else the first
        // object that differs.
        QString differenceTo(const Capture& later) const;

    private:
        friend class MvMemoryUndoRecorder;
        std::vector<MvMemoryUndoable*> m_objects;
        std::vector<MvMemoryValuePtr> m_values;
    };

    MvMemoryUndoRecorder();
    ~MvMemoryUndoRecorder();

    void open();
    // The changes of the step, unchanged objects left out.
    Step close();
    bool isOpen() const { return m_open; }
    // Writes the values back: the befores, last change first, or the afters.
    void apply(const Step& step, bool backward);

    // A building call outside a step changes the model without recording it (the history is
    // cleared after it).
    class MVMEMORY_EXPORT Building
    {
    public:
        explicit Building(MvMemoryUndoRecorder* recorder);
        ~Building();

    private:
        Q_DISABLE_COPY(Building)
        MvMemoryUndoRecorder* m_recorder;
    };

    // The objects changed since the last call, each once.
    std::vector<MvMemoryUndoable*> takeChanged();

    Capture capture() const;
    void setVerifying(bool verifying);
    bool isVerifying() const { return m_verifying; }
    // Changes made outside any step and steps whose record differs from a full capture.
    QStringList problems() const { return m_problems; }

private:
    friend class MvMemoryUndoable;
    void adopt(MvMemoryUndoable* object);
    void aboutToChange(MvMemoryUndoable* object);
    void changed(MvMemoryUndoable* object);
    void verify(const Step& step);

    std::vector<MvMemoryUndoable*> m_objects;
    Step m_changes; // of the open step, in the order of their first change or creation
    std::vector<MvMemoryUndoable*> m_created; // in the open step
    std::vector<MvMemoryUndoable*> m_changed;
    Capture m_before; // full capture at open, while verifying
    bool m_beforeCaptured = false;
    QStringList m_problems;
    quint64 m_step = 0;
    quint64 m_round = 1;
    int m_building = 0;
    bool m_open = false;
    bool m_verifying = false;
};
