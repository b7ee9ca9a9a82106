#pragma once

#include "MvMemoryGlobal.h"

#include "MvVBLModelGlobal.h"

#include <QString>

#include <memory>

class MvMemoryUndoRecorder;

// One saved value of an undoable object: a copy of its State, type-erased for the recorder.
class MVMEMORY_EXPORT MvMemoryValue
{
public:
    virtual ~MvMemoryValue();
};

template <typename State> class MvMemoryValueOf final : public MvMemoryValue
{
public:
    explicit MvMemoryValueOf(const State& value)
        : state(value)
    {
    }
    const State state;
};

using MvMemoryValuePtr = std::shared_ptr<const MvMemoryValue>;

// An object of the in-memory model whose value undo restores. The recorder sees it only through
// this base; MvMemoryValued<State> below implements it for one State struct. See
// MvMemoryUndoRecorder.h for how the pieces fit.
class MVMEMORY_EXPORT MvMemoryUndoable
{
public:
    explicit MvMemoryUndoable(MvMemoryUndoRecorder* recorder);
    virtual ~MvMemoryUndoable();

    // Creation order among all undoable objects of the timeline.
    quint64 undoSerial() const { return m_serial; }
    // Names the object in problem reports ("clip c3", "track", ...).
    virtual QString undoLabel() const = 0;

    virtual MvMemoryValuePtr saveValue() const = 0;
    // Writes a saved value back; derived lookups follow.
    virtual void loadValue(const MvMemoryValue& value) = 0;
    virtual bool sameValue(const MvMemoryValue& a, const MvMemoryValue& b) const = 0;
    // The value this object had before it was created: `value` taken off the timeline.
    virtual MvMemoryValuePtr detachedValue(const MvMemoryValue& value) const = 0;

protected:
    // Before the value changes: the recorder saves it when this is the first change in the open step.
    void aboutToChange();
    // After the value changed: derived lookups follow, and the timeline learns what changed.
    void changeDone();
    // Keeps the lookups that other objects hold about this one (a track's clips by start, a clip's
    // group, ...) in line with the value. Called after every change, undo and redo.
    virtual void valueChanged() { }
    MvMemoryUndoRecorder* recorder() const { return m_recorder; }
    // An object made off any timeline (a transition a media item made) is recorded from the moment
    // it joins a timeline: its value then counts as made in the open step. Once only.
    void joinRecorder(MvMemoryUndoRecorder* recorder);

private:
    Q_DISABLE_COPY(MvMemoryUndoable)
    friend class MvMemoryUndoRecorder;
    MvMemoryUndoRecorder* m_recorder;
    quint64 m_serial = 0;
    quint64 m_recordedInStep = 0; // the recorder's step number when the value was last saved
    quint64 m_changedInRound = 0; // the recorder's round when last listed as changed
};

template <typename State> class MvMemoryValued;

// A change of one object's value, made through MvMemoryValued::change(): the value is recorded
// when the handle is made and the lookups follow when it goes out of scope.
template <typename State> class MvMemoryChange
{
public:
    explicit MvMemoryChange(MvMemoryValued<State>* object)
        : m_object(object)
    {
        m_object->aboutToChange();
    }
    ~MvMemoryChange() { m_object->changeDone(); }

    State* operator->() const { return &m_object->m_state; }
    State& operator*() const { return m_object->m_state; }

private:
    Q_DISABLE_COPY(MvMemoryChange)
    MvMemoryValued<State>* m_object;
};

// An undoable object whose whole undoable value is one State struct (with an operator== over every
// field). The value is read with state() and changed only through change().
template <typename State> class MvMemoryValued : public MvMemoryUndoable
{
public:
    const State& state() const { return m_state; }
    MvMemoryChange<State> change() { return MvMemoryChange<State>(this); }
    // For invariant tests: writes a value past the undo record and the lookups.
    void setStateUnchecked(const State& state) { m_state = state; }
    // The State inside a value this kind saved.
    static const State& stateOf(const MvMemoryValue& value)
    {
        return static_cast<const MvMemoryValueOf<State>&>(value).state;
    }

    MvMemoryValuePtr saveValue() const override { return std::make_shared<MvMemoryValueOf<State>>(m_state); }
    void loadValue(const MvMemoryValue& value) override
    {
        m_state = of(value);
        changeDone();
    }
    bool sameValue(const MvMemoryValue& a, const MvMemoryValue& b) const override { return of(a) == of(b); }
    MvMemoryValuePtr detachedValue(const MvMemoryValue& value) const override
    {
        return std::make_shared<MvMemoryValueOf<State>>(detached(of(value)));
    }

protected:
    MvMemoryValued(MvMemoryUndoRecorder* recorder, const State& initial)
        : MvMemoryUndoable(recorder)
        , m_state(initial)
    {
    }
    // The value had the object not been created yet; unchanged by default (nothing refers to it).
    virtual State detached(State value) const { return value; }

private:
    friend class MvMemoryChange<State>;
    static const State& of(const MvMemoryValue& value) { return stateOf(value); }
    State m_state;
};
