// Composed texts: the media editor selects the text layers of a composed text item.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvTimelineClip.h"
#include "MvModelMessages.h"
#include "MvTimelineClipHelper.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

bool MvTimelinePresenter::canSelectAllSubTextClips()
{
    Q_D(const MvTimelinePresenter);
    return d->canSelectAllSubTextClips();
}

void MvTimelinePresenter::selectAllSubTextClips()
{
    Q_D(MvTimelinePresenter);
    d->selectAllSubTextClips();
}

bool MvTimelinePresenterPrivate::canSelectAllSubTextClips() const
{
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    if (clips.size() != 1 || !clips.first() || clips.first()->type() != ClipType_Text)
        return false;
    auto* container = dynamic_cast<IMvTimelineClip*>(clips.first());
    return container && !MvTimelineClipHelper::getAllChildClips(container, ClipType_Text).isEmpty();
}

void MvTimelinePresenterPrivate::selectAllSubTextClips()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::selectAllSubTextClips");
    const QList<IMvAbstractClip*> items = MvModelAccess::selectedItems(timeline);
    if (items.size() != 1) {
        MV_LOG(MvBaseLog::Refusal, QString::asprintf("select text clips: %d, is not 1", int(items.size())));
        return;
    }
    auto* container = dynamic_cast<IMvTimelineClip*>(items.first());
    if (!container || container->type() != ClipType_Text)
        return;
    QList<IMvClip*> primary;
    QList<IMvClip*> secondary;
    const QList<IMvClip*> children = MvTimelineClipHelper::getAllChildClips(container, ClipType_Text);
    for (IMvClip* child : children) {
        if (child)
            (child->isSecondary() ? secondary : primary).append(child);
    }
    // The main lines are what the user edits together; the supporting lines are chosen only when an
    // item has no main line. An item without text layers still gets an (empty) request.
    MvMediaEditorSelectClipMessage request;
    request.setClips(primary.isEmpty() ? secondary : primary);
    request.setReplacesSelection(true);
    q->sendMessageToScene(&request);
}
