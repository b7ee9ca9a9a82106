#include "MvCommandScope_p.h"

#include "IMvUndoRedoService.h"
#include "MvMessage.h"
#include "MvPresenter.h"
#include "MvVBLModelGlobal.h"

using namespace MVVBLMODEL;

MvCommandScope::MvCommandScope(const MvPresenter* presenter, Pause pause)
{
    MvCommandScope::pause(presenter, pause);
}

MvCommandScope::MvCommandScope(const MvPresenter* presenter, Pause pause, IMvUndoRedoService* undoService,
    const QString& stepName, const QString& source)
{
    MvCommandScope::pause(presenter, pause);
    m_step.reset(new MvUndoRedoCommander(undoService, stepName, source));
}

MvCommandScope::~MvCommandScope() = default;

void MvCommandScope::pause(const MvPresenter* presenter, Pause pause)
{
    if (!presenter)
        return;
    switch (pause) {
    case NoPause:
        break;
    case PausePlayer:
        presenter->sendMessageToScene(MessageId::PausePlayer);
        break;
    case PausePlayerMessage: {
        MvMessage message(MessageId::PausePlayer);
        presenter->sendMessageToScene(&message);
        break;
    }
    case PausePlayerWithSync:
        presenter->sendMessageToScene(MessageId::PausePlayerWithSync);
        break;
    }
}
