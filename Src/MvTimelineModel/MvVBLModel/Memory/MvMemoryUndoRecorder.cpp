#include "MvMemoryUndoRecorder.h"

#include <QHash>

namespace {
// Enough to point at the fault; a runaway loop must not fill the memory with reports.
constexpr int kMaxProblems = 20;
}

MvMemoryValue::~MvMemoryValue() = default;

MvMemoryUndoable::MvMemoryUndoable(MvMemoryUndoRecorder* recorder)
    : m_recorder(recorder)
{
    if (m_recorder)
        m_recorder->adopt(this);
}

MvMemoryUndoable::~MvMemoryUndoable() = default;

void MvMemoryUndoable::joinRecorder(MvMemoryUndoRecorder* recorder)
{
    if (m_recorder || !recorder)
        return;
    m_recorder = recorder;
    m_recorder->adopt(this);
}

void MvMemoryUndoable::aboutToChange()
{
    if (m_recorder)
        m_recorder->aboutToChange(this);
}

void MvMemoryUndoable::changeDone()
{
    valueChanged();
    if (m_recorder)
        m_recorder->changed(this);
}

QString MvMemoryUndoRecorder::Capture::differenceTo(const Capture& later) const
{
    if (later.m_objects.size() < m_objects.size())
        return QStringLiteral("objects missing");
    for (size_t i = 0; i < later.m_objects.size(); ++i) {
        const MvMemoryUndoable* object = later.m_objects.at(i);
        const MvMemoryValue& now = *later.m_values.at(i);
        const MvMemoryValuePtr then = i < m_values.size() ? m_values.at(i) : object->detachedValue(now);
        if (!object->sameValue(*then, now))
            return object->undoLabel();
    }
    return QString();
}

MvMemoryUndoRecorder::MvMemoryUndoRecorder()
{
#ifndef QT_NO_DEBUG
    m_verifying = true;
#endif
}

MvMemoryUndoRecorder::~MvMemoryUndoRecorder() = default;

void MvMemoryUndoRecorder::open()
{
    if (m_open)
        return;
    m_open = true;
    ++m_step;
    m_changes.clear();
    m_beforeCaptured = m_verifying;
    m_before = m_verifying ? capture() : Capture();
}

MvMemoryUndoRecorder::Step MvMemoryUndoRecorder::close()
{
    Step step;
    if (!m_open)
        return step;
    m_open = false;
    step.reserve(m_changes.size());
    for (Change& change : m_changes) {
        change.after = change.object->saveValue();
        if (!change.before) // created in this step
            change.before = change.object->detachedValue(*change.after);
        if (!change.object->sameValue(*change.before, *change.after))
            step.push_back(std::move(change));
    }
    m_changes.clear();
    if (m_verifying && m_beforeCaptured)
        verify(step);
    m_beforeCaptured = false;
    m_before = Capture();
    return step;
}

void MvMemoryUndoRecorder::apply(const Step& step, bool backward)
{
    if (backward) {
        for (auto it = step.rbegin(); it != step.rend(); ++it)
            it->object->loadValue(*it->before);
    } else {
        for (const Change& change : step)
            change.object->loadValue(*change.after);
    }
}

MvMemoryUndoRecorder::Building::Building(MvMemoryUndoRecorder* recorder)
    : m_recorder(recorder)
{
    ++m_recorder->m_building;
}

MvMemoryUndoRecorder::Building::~Building()
{
    --m_recorder->m_building;
}

std::vector<MvMemoryUndoable*> MvMemoryUndoRecorder::takeChanged()
{
    std::vector<MvMemoryUndoable*> changed;
    changed.swap(m_changed);
    ++m_round;
    return changed;
}

MvMemoryUndoRecorder::Capture MvMemoryUndoRecorder::capture() const
{
    Capture all;
    all.m_objects = m_objects;
    all.m_values.reserve(m_objects.size());
    for (const MvMemoryUndoable* object : m_objects)
        all.m_values.push_back(object->saveValue());
    return all;
}

void MvMemoryUndoRecorder::setVerifying(bool verifying)
{
    m_verifying = verifying;
}

void MvMemoryUndoRecorder::adopt(MvMemoryUndoable* object)
{
    object->m_serial = m_objects.size();
    m_objects.push_back(object);
    if (m_open) {
        object->m_recordedInStep = m_step;
        m_changes.push_back(Change { object, nullptr, nullptr });
    }
}

void MvMemoryUndoRecorder::aboutToChange(MvMemoryUndoable* object)
{
    if (!m_open) {
        if (m_building == 0 && m_problems.size() < kMaxProblems)
            m_problems.append(object->undoLabel() + QLatin1String(": changed outside an undo step"));
        return;
    }
    if (object->m_recordedInStep == m_step)
        return;
    object->m_recordedInStep = m_step;
    m_changes.push_back(Change { object, object->saveValue(), nullptr });
}

void MvMemoryUndoRecorder::changed(MvMemoryUndoable* object)
{
    if (object->m_changedInRound == m_round)
        return;
    object->m_changedInRound = m_round;
    m_changed.push_back(object);
}

// Every object's value before and after the step must be what the step recorded, and an object
// the step did not record must not have changed.
void MvMemoryUndoRecorder::verify(const Step& step)
{
    const Capture after = capture();
    QHash<const MvMemoryUndoable*, const Change*> recorded;
    for (const Change& change : step)
        recorded.insert(change.object, &change);
    for (size_t i = 0; i < after.m_objects.size() && m_problems.size() < kMaxProblems; ++i) {
        const MvMemoryUndoable* object = after.m_objects.at(i);
        const MvMemoryValue& now = *after.m_values.at(i);
        const MvMemoryValuePtr then
            = i < m_before.m_values.size() ? m_before.m_values.at(i) : object->detachedValue(now);
        const Change* change = recorded.value(object);
        QString fault;
        if (!change && !object->sameValue(*then, now))
            fault = QStringLiteral("changed without being recorded");
        else if (change && !object->sameValue(*change->before, *then))
            fault = QStringLiteral("recorded with a wrong value before the step");
        else if (change && !object->sameValue(*change->after, now))
            fault = QStringLiteral("recorded with a wrong value after the step");
        if (!fault.isEmpty())
            m_problems.append(QStringLiteral("undo step %1: %2 %3").arg(m_step).arg(object->undoLabel(), fault));
    }
}
