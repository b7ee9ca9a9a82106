// Requests to the host's property panel.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvTimeline.h"
#include "MvMessage.h"

using namespace MVVBLMODEL;

void MvTimelinePresenter::hidePropertyPanel()
{
    MvMessage message(MessageId::HidePropertyPanel);
    sendMessageToScene(&message);
}

void MvTimelinePresenter::showPropertyPanel(int page)
{
    MvDataMessage message(MessageId::ShowPropertyPanelPage, page);
    sendMessageToScene(&message);
}

void MvTimelinePresenter::checkHidePropertyPanel()
{
    Q_D(MvTimelinePresenter);
    // Where the virtual playhead is allowed the panel follows it, not the deleted clips.
    if (!d->timeline || d->timeline->virtualPlayheadAllowed())
        return;
    hidePropertyPanel();
}
