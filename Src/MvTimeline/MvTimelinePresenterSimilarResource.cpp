// Library resources: the media library's search for resources like the one an item was made from.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvResourceInfo.h"
#include "MvModelMessages.h"
#include "MvTimelineClipHelper.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

bool MvTimelinePresenter::canSearchSimilarResource()
{
    Q_D(const MvTimelinePresenter);
    return d->canSearchSimilarResource();
}

void MvTimelinePresenter::searchSimilarResource()
{
    Q_D(MvTimelinePresenter);
    d->searchSimilarResource();
}

bool MvTimelinePresenterPrivate::canSearchSimilarResource() const
{
    const QList<IMvAbstractClip*> items = MvModelAccess::selectedItems(timeline);
    if (items.size() != 1 || !items.first())
        return false;
    const IMvResourceInfo* info = items.first()->resourceInfo();
    return info && info->canFindSimilar();
}

// The host offers the command only where canSearchSimilarResource() holds; a direct call still asks
// the library, which answers for resources it does not index itself.
void MvTimelinePresenterPrivate::searchSimilarResource()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::searchSimilarResource");
    const QList<IMvAbstractClip*> items = MvModelAccess::selectedItems(timeline);
    if (items.size() != 1) {
        MV_LOG(MvBaseLog::Refusal, QString::asprintf("select clips: %d, is not 1", int(items.size())));
        return;
    }
    IMvAbstractClip* item = items.first();
    const IMvResourceInfo* info = item ? item->resourceInfo() : nullptr;
    if (!info) {
        MV_LOG(MvBaseLog::Refusal,
            QString::asprintf("selected clip type: %d, resource info is nullptr", item ? int(item->type()) : 0));
        return;
    }
    // The library's results take the place of the property panel.
    q->hidePropertyPanel();
    const MvMediaCategoryType category = MvTimelineClipHelper::getResourceCategoryType(item);
    ResourceInfoData resource;
    resource.resourceId = info->resourceId();
    resource.providerId = info->providerId();
    resource.resourceGuid = info->resourceGuid();
    MvMediaLibraryFindSimilarMessage request(resource, info->title(), category);
    q->sendMessageToScene(&request);
}
