#include "MvTimelineModelAccess_p.h"

#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "MvRange.h"
#include "MvTimeCode_p.h"

#include <algorithm>

namespace MvModelAccess {

IMvSelection* selection(const IMvTimeline* timeline)
{
    return timeline ? timeline->selection() : nullptr;
}

IMvTimelinePlayhead* playhead(const IMvTimeline* timeline)
{
    return timeline ? timeline->playhead() : nullptr;
}

IMvClipEditService* editService(const IMvTimeline* timeline)
{
    return timeline ? timeline->editService() : nullptr;
}

IMvUndoRedoService* undoService(const IMvTimeline* timeline)
{
    return timeline ? timeline->undoRedoService() : nullptr;
}

IMvKeyFrameSelector* keyFrameSelector(const IMvTimeline* timeline)
{
    return timeline ? timeline->keyFrameSelector() : nullptr;
}

qint64 playheadFrame(const IMvTimeline* timeline)
{
    const IMvTimelinePlayhead* head = playhead(timeline);
    return head ? head->currentFrame() : 0;
}

bool setPlayheadFrame(const IMvTimeline* timeline, qint64 frame)
{
    IMvTimelinePlayhead* head = playhead(timeline);
    if (!head)
        return false;
    head->setCurrentFrame(frame);
    return true;
}

QString timeCode(const IMvTimelineRuler* ruler, qint64 frame)
{
    constexpr int kNominalRate = 30;
    int numerator = 0;
    int denominator = 0;
    if (ruler)
        ruler->frameRate(&numerator, &denominator);
    if (numerator <= 0 || denominator <= 0) {
        numerator = kNominalRate;
        denominator = 1;
    }
    return MvTimeCode::format(std::max<qint64>(0, frame), numerator, denominator);
}

QString timeCode(const IMvTimeline* timeline, qint64 frame)
{
    return timeCode(timeline ? timeline->ruler() : nullptr, frame);
}

qint64 totalFrames(const IMvTimeline* timeline)
{
    const IMvTimelineRuler* ruler = timeline ? timeline->ruler() : nullptr;
    return ruler ? ruler->totalFrames() : 0;
}

QList<IMvClip*> selectedClips(const IMvTimeline* timeline)
{
    const IMvSelection* current = selection(timeline);
    return current ? current->selectedClips() : QList<IMvClip*>();
}

QList<IMvAbstractClip*> selectedItems(const IMvTimeline* timeline)
{
    const IMvSelection* current = selection(timeline);
    return current ? current->selectedItems() : QList<IMvAbstractClip*>();
}

bool selectClips(const IMvTimeline* timeline, const QList<IMvClip*>& clips)
{
    IMvSelection* current = selection(timeline);
    if (!current)
        return false;
    current->select(clips);
    return true;
}

IMvMarkerList* markerListAtPlayhead(const IMvTimeline* timeline, qint64 frame)
{
    if (!timeline)
        return nullptr;
    const IMvSelection* current = timeline->selection();
    if (current && current->count() == 1 && !current->isTimelineSelected()) {
        const QList<IMvClip*> clips = current->selectedClips();
        IMvMarkerList* clipList = clips.isEmpty() || !clips.first() ? nullptr : clips.first()->clipMarkers();
        if (!clipList)
            return nullptr;
        MvRange<qint64> range;
        clipList->frameRange(range);
        if (range.contains(frame))
            return clipList;
    }
    return timeline->timelineMarkers();
}

} // namespace MvModelAccess
