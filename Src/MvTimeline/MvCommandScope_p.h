#pragma once

#include "MvTimelineGlobal.h"

#include <QString>

#include <memory>

class IMvUndoRedoService;
class MvPresenter;
class MvUndoRedoCommander;

// The one road every command of the library takes into the model: first the media player is
// paused the way the command needs (so it never renders a half-edited timeline), then the undo
// step opens; the step closes when the scope ends, on every return path.
class MVTIMELINE_TEST_EXPORT MvCommandScope
{
public:
    enum Pause
    {
        NoPause,
        PausePlayer, // the bare id 7012
        PausePlayerMessage, // an MvMessage carrying 7012
        PausePlayerWithSync, // the bare id 7036: pause and wait until the player is in sync
    };

    // Pauses only: for commands whose model call records its own undo step.
    MvCommandScope(const MvPresenter* presenter, Pause pause);
    // Pauses, then opens the step (none when the service is null, as with a model that has no undo).
    MvCommandScope(const MvPresenter* presenter, Pause pause, IMvUndoRedoService* undoService, const QString& stepName,
        const QString& source);
    ~MvCommandScope();

    static void pause(const MvPresenter* presenter, Pause pause);

private:
    Q_DISABLE_COPY(MvCommandScope)
    std::unique_ptr<MvUndoRedoCommander> m_step;
};
