// Commands on items that are not whole clips: markers, rotation, freeze frames, smart-keying nodes.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvClipItems.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "MvTimelineModelAccess_p.h"

void MvTimelinePresenter::addMarker(const QColor& color)
{
    Q_D(MvTimelinePresenter);
    d->addMarker(color);
}

bool MvTimelinePresenter::removeSelectedMarker() const
{
    Q_D(const MvTimelinePresenter);
    return d->removeSelectedMarker();
}

bool MvTimelinePresenter::canRemoveMarker() const
{
    Q_D(const MvTimelinePresenter);
    return d->canRemoveMarker();
}

void MvTimelinePresenter::removeAllMarker()
{
    // Clearing every marker is the host's command (it asks the user first); the entry point stays
    // here so that hosts built against earlier versions keep linking.
}

void MvTimelinePresenter::rotate90CW()
{
    Q_D(MvTimelinePresenter);
    d->rotate90CW();
}

void MvTimelinePresenter::rotate90CCW()
{
    Q_D(MvTimelinePresenter);
    d->rotate90CCW();
}

bool MvTimelinePresenter::removeSelectedFreezeFrame()
{
    Q_D(MvTimelinePresenter);
    return d->removeSelectedFreezeFrame();
}

bool MvTimelinePresenter::removeSelectedSmartKeyingNode()
{
    Q_D(MvTimelinePresenter);
    return d->removeSelectedSmartKeyingNode();
}

qint64 MvTimelinePresenter::getDefaultFreezeFrameDuration()
{
    return 125;
}

void MvTimelinePresenterPrivate::addMarker(const QColor& color)
{
    const qint64 frame = MvModelAccess::playheadFrame(timeline);
    // The one selected clip takes the marker when the playhead is over it, its last frame included;
    // otherwise the marker belongs to the timeline.
    IMvMarkerList* list = MvModelAccess::markerListAtPlayhead(timeline, frame);
    if (!list)
        return;
    if (list == timeline->timelineMarkers()) {
        if (list->canAddMarker(frame))
            list->addMarker(frame, color);
        return;
    }
    list->addMarker(list->mapFromTimeline(frame), color);
}

bool MvTimelinePresenterPrivate::removeSelectedMarker() const
{
    IMvMarkerModel* model = timeline ? timeline->markerModel() : nullptr;
    IMvMarker* marker = model ? model->selectedMarker() : nullptr;
    IMvMarkerList* owner = marker ? marker->ownerList() : nullptr;
    if (!owner)
        return false;
    owner->removeMarker(marker);
    return true;
}

bool MvTimelinePresenterPrivate::canRemoveMarker() const
{
    IMvMarkerModel* model = timeline ? timeline->markerModel() : nullptr;
    return model && model->selectedMarker();
}

void MvTimelinePresenterPrivate::rotate90CW()
{
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    if (!selection || selection->isEmpty())
        return;
    // The model decides what a rotation of a non-clip item means; it gets a null clip then.
    timeline->rotateClip90CW(dynamic_cast<IMvClip*>(selection->currentItem()));
}

void MvTimelinePresenterPrivate::rotate90CCW()
{
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    if (!selection || selection->isEmpty())
        return;
    timeline->rotateClip90CCW(dynamic_cast<IMvClip*>(selection->currentItem()));
}

bool MvTimelinePresenterPrivate::removeSelectedFreezeFrame()
{
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    if (clips.isEmpty())
        return false;
    IMvClip* clip = clips.first();
    IMvFreezeFrameList* freezeFrames = clip->freezeFrames();
    IMvTimeline* owner = clip->ownerTimeline();
    IMvSubItemSelection* subItems = owner ? owner->subItemSelection() : nullptr;
    if (!freezeFrames || !subItems)
        return false;
    int id = -1;
    if (!subItems->selectedId(id) || !freezeFrames->contains(id))
        return false;
    // The selection must not name a freeze frame that no longer exists, not even for a moment.
    subItems->clear();
    return freezeFrames->remove(id);
}

bool MvTimelinePresenterPrivate::removeSelectedSmartKeyingNode()
{
    if (!timeline)
        return false;
    QList<IMvClip*> clips;
    timeline->smartKeyingClips(clips);
    if (clips.isEmpty() || !clips.first())
        return false;
    IMvSmartKeyingNodes* nodes = clips.first()->smartKeyingNodes();
    if (!nodes)
        return false;
    const quint64 index = nodes->selectedIndex();
    if (index == IMvSmartKeyingNodes::NoSelection)
        return false;
    nodes->removeAt(index);
    return true;
}
