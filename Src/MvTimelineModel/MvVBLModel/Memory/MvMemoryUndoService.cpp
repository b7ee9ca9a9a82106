#include "MvMemoryUndoService.h"

#include "MvMemoryThreadGate.h"

MvMemoryUndoService::MvMemoryUndoService(MvMemoryUndoRecorder* recorder, Restored restored, Changed changed)
    : m_recorder(recorder)
    , m_restored(std::move(restored))
    , m_changed(std::move(changed))
{
}

void MvMemoryUndoService::setGate(MvMemoryThreadGate* gate)
{
    m_gate = gate;
}

// Inner steps join the outermost one: only its name and source are kept. The timeline's gate is
// held from the opening of a step to its end, so a step is one change to any other thread.
void MvMemoryUndoService::beginStep(const QString& name, const QString& source)
{
    if (m_gate)
        m_gate->lock();
    if (m_depth++ > 0)
        return;
    m_open = Step { name, source, {} };
    m_recorder->open();
}

void MvMemoryUndoService::endStep()
{
    if (m_depth == 0)
        return;
    MvMemoryThreadGate::Locker release(m_gate);
    if (m_gate)
        m_gate->unlock(); // the hold taken by beginStep; the locker's own goes at the end of this call
    if (--m_depth > 0)
        return;
    m_open.changes = m_recorder->close();
    Step closed = std::move(m_open);
    m_open = Step();
    if (closed.changes.empty())
        return;
    m_undo.push_back(std::move(closed));
    m_redo.clear();
    tell(m_undo.back().changes);
}

bool MvMemoryUndoService::isStepOpen() const
{
    return m_depth > 0;
}

bool MvMemoryUndoService::canUndo() const
{
    return m_depth == 0 && !m_undo.empty();
}

bool MvMemoryUndoService::canRedo() const
{
    return m_depth == 0 && !m_redo.empty();
}

bool MvMemoryUndoService::undo()
{
    MvMemoryThreadGate::Locker locker(m_gate);
    if (!canUndo())
        return false;
    m_redo.push_back(std::move(m_undo.back()));
    m_undo.pop_back();
    m_recorder->apply(m_redo.back().changes, true);
    if (m_restored)
        m_restored();
    tell(m_redo.back().changes);
    return true;
}

bool MvMemoryUndoService::redo()
{
    MvMemoryThreadGate::Locker locker(m_gate);
    if (!canRedo())
        return false;
    m_undo.push_back(std::move(m_redo.back()));
    m_redo.pop_back();
    m_recorder->apply(m_undo.back().changes, false);
    if (m_restored)
        m_restored();
    tell(m_undo.back().changes);
    return true;
}

int MvMemoryUndoService::undoCount() const
{
    return int(m_undo.size());
}

int MvMemoryUndoService::redoCount() const
{
    return int(m_redo.size());
}

QString MvMemoryUndoService::undoName() const
{
    return m_undo.empty() ? QString() : m_undo.back().name;
}

QString MvMemoryUndoService::redoName() const
{
    return m_redo.empty() ? QString() : m_redo.back().name;
}

QString MvMemoryUndoService::undoSource() const
{
    return m_undo.empty() ? QString() : m_undo.back().source;
}

QString MvMemoryUndoService::redoSource() const
{
    return m_redo.empty() ? QString() : m_redo.back().source;
}

QStringList MvMemoryUndoService::undoNames() const
{
    QStringList names;
    for (const Step& step : m_undo)
        names.append(step.name);
    return names;
}

int MvMemoryUndoService::undoChangeCount() const
{
    return m_undo.empty() ? 0 : int(m_undo.back().changes.size());
}

void MvMemoryUndoService::clear()
{
    m_undo.clear();
    m_redo.clear();
}

void MvMemoryUndoService::pauseEvents()
{
    MvMemoryThreadGate::Locker locker(m_gate);
    ++m_paused;
}

void MvMemoryUndoService::resumeEvents()
{
    MvMemoryThreadGate::Locker locker(m_gate);
    if (m_paused == 0 || --m_paused > 0 || !m_holding)
        return;
    MvMemoryUndoRecorder::Step held;
    held.swap(m_held);
    m_holding = false;
    if (m_changed)
        m_changed(held);
}

void MvMemoryUndoService::tell(const MvMemoryUndoRecorder::Step& changes)
{
    if (m_paused > 0) {
        m_held.insert(m_held.end(), changes.cbegin(), changes.cend());
        m_holding = true;
        return;
    }
    if (m_changed)
        m_changed(changes);
}
