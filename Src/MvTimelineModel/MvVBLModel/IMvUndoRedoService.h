#pragma once

#include "MvVBLModelGlobal.h"

#include <QString>

// The undo stack of a timeline. Steps nest: inner steps join the outermost one; a step that
// changed nothing is dropped when it closes; an edit made outside any step is a step of its own.
class MVVBLMODEL_EXPORT IMvUndoRedoService
{
public:
    virtual ~IMvUndoRedoService();

    virtual void beginStep(const QString& name, const QString& source) = 0;
    virtual void endStep() = 0;
    virtual bool isStepOpen() const = 0;

    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;
    virtual bool undo() = 0;
    virtual bool redo() = 0;
    virtual int undoCount() const = 0;
    virtual int redoCount() const = 0;
    virtual QString undoName() const = 0; // name of the step undo() would revert
    virtual QString redoName() const = 0;
    virtual QString undoSource() const = 0;

    // While events are paused, what the model tells its observers after a step (views repaint,
    // panels refresh) is held, and told once when the last pause ends. Pauses nest.
    virtual void pauseEvents() = 0;
    virtual void resumeEvents() = 0;
};

// Everything the model changes while this lives is one undo step.
class MVVBLMODEL_EXPORT MvUndoRedoCommander
{
public:
    MvUndoRedoCommander(IMvUndoRedoService* service, const QString& name, const QString& source);
    ~MvUndoRedoCommander();

private:
    Q_DISABLE_COPY(MvUndoRedoCommander)
    IMvUndoRedoService* m_service;
};

// The model's events are paused while this lives (IMvUndoRedoService::pauseEvents).
class MVVBLMODEL_EXPORT MvPauseEventCommander
{
public:
    explicit MvPauseEventCommander(IMvUndoRedoService* service);
    ~MvPauseEventCommander();

private:
    Q_DISABLE_COPY(MvPauseEventCommander)
    IMvUndoRedoService* m_service;
};
