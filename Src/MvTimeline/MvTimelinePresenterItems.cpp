// Commands on items that are not whole clips: markers, rotation, freeze frames, smart-keying nodes.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvClipItems.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "MvRange.h"

void MvTimelinePresenterPrivate::addMarker(const QColor& color)
{
    if (!timeline)
        return;
    const qint64 frame = playheadFrame();
    IMvSelection* selection = timeline->selection();
    if (selection && selection->count() == 1 && !selection->isTimelineSelected()) {
        const QList<IMvClip*> clips = selection->selectedClips();
        if (clips.isEmpty())
            return;
        IMvMarkerList* clipList = clips.first()->clipMarkers();
        if (!clipList)
            return;
        // The one selected clip takes the marker when the playhead is over it, its last frame included;
        // otherwise the marker belongs to the timeline.
        MvRange<qint64> range;
        clipList->frameRange(range);
        if (range.contains(frame)) {
            clipList->addMarker(clipList->mapFromTimeline(frame), color);
            return;
        }
    }
    IMvMarkerList* list = timeline->timelineMarkers();
    if (!list || !list->canAddMarker(frame))
        return;
    list->addMarker(frame, color);
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
    IMvSelection* selection = timeline ? timeline->selection() : nullptr;
    if (!selection || selection->isEmpty())
        return;
    // The model decides what a rotation of a non-clip item means; it gets a null clip then.
    timeline->rotateClip90CW(dynamic_cast<IMvClip*>(selection->currentItem()));
}

void MvTimelinePresenterPrivate::rotate90CCW()
{
    IMvSelection* selection = timeline ? timeline->selection() : nullptr;
    if (!selection || selection->isEmpty())
        return;
    timeline->rotateClip90CCW(dynamic_cast<IMvClip*>(selection->currentItem()));
}

bool MvTimelinePresenterPrivate::removeSelectedFreezeFrame()
{
    const QList<IMvClip*> clips = selectedClips();
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
