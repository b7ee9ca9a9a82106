#include "MvMemoryUndoService.h"

MvMemoryUndoService::MvMemoryUndoService(Capture capture, Restore restore, Changed changed)
    : m_capture(std::move(capture))
    , m_restore(std::move(restore))
    , m_changed(std::move(changed))
{
}

// Inner steps join the outermost one: only its name and source are kept.
void MvMemoryUndoService::beginStep(const QString& name, const QString& source)
{
    if (m_depth++ > 0)
        return;
    m_open = Step { name, source, m_capture(), {} };
}

void MvMemoryUndoService::endStep()
{
    if (m_depth == 0 || --m_depth > 0)
        return;
    m_open.after = m_capture();
    if (m_open.after == m_open.before) {
        m_open = Step();
        return;
    }
    m_undo.append(m_open);
    m_open = Step();
    m_redo.clear();
    if (m_changed)
        m_changed(m_undo.last().before, m_undo.last().after);
}

bool MvMemoryUndoService::isStepOpen() const
{
    return m_depth > 0;
}

bool MvMemoryUndoService::canUndo() const
{
    return m_depth == 0 && !m_undo.isEmpty();
}

bool MvMemoryUndoService::canRedo() const
{
    return m_depth == 0 && !m_redo.isEmpty();
}

bool MvMemoryUndoService::undo()
{
    if (!canUndo())
        return false;
    Step step = m_undo.takeLast();
    m_restore(step.before);
    m_redo.append(step);
    if (m_changed)
        m_changed(step.after, step.before);
    return true;
}

bool MvMemoryUndoService::redo()
{
    if (!canRedo())
        return false;
    Step step = m_redo.takeLast();
    m_restore(step.after);
    m_undo.append(step);
    if (m_changed)
        m_changed(step.before, step.after);
    return true;
}

int MvMemoryUndoService::undoCount() const
{
    return m_undo.size();
}

int MvMemoryUndoService::redoCount() const
{
    return m_redo.size();
}

QString MvMemoryUndoService::undoName() const
{
    return m_undo.isEmpty() ? QString() : m_undo.last().name;
}

QString MvMemoryUndoService::redoName() const
{
    return m_redo.isEmpty() ? QString() : m_redo.last().name;
}

QString MvMemoryUndoService::undoSource() const
{
    return m_undo.isEmpty() ? QString() : m_undo.last().source;
}

QString MvMemoryUndoService::redoSource() const
{
    return m_redo.isEmpty() ? QString() : m_redo.last().source;
}

QStringList MvMemoryUndoService::undoNames() const
{
    QStringList names;
    for (const Step& step : m_undo)
        names.append(step.name);
    return names;
}

void MvMemoryUndoService::clear()
{
    m_undo.clear();
    m_redo.clear();
}
