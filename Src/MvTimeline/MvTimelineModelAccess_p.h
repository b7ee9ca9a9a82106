#pragma once

#include "MvTimelineGlobal.h"

#include <QList>

class IMvAbstractClip;
class IMvClip;
class IMvClipEditService;
class IMvKeyFrameSelector;
class IMvMarkerList;
class IMvSelection;
class IMvTimeline;
class IMvTimelinePlayhead;
class IMvTimelineRuler;
class QString;
class IMvUndoRedoService;

// What every presenter reads of its timeline, in one place. A null timeline (or a model without
// the object asked for) answers null, empty or frame 0, so that a command refuses instead of crashing.
namespace MvModelAccess {

MVTIMELINE_TEST_EXPORT IMvSelection* selection(const IMvTimeline* timeline);
MVTIMELINE_TEST_EXPORT IMvTimelinePlayhead* playhead(const IMvTimeline* timeline);
MVTIMELINE_TEST_EXPORT IMvClipEditService* editService(const IMvTimeline* timeline);
MVTIMELINE_TEST_EXPORT IMvUndoRedoService* undoService(const IMvTimeline* timeline);
MVTIMELINE_TEST_EXPORT IMvKeyFrameSelector* keyFrameSelector(const IMvTimeline* timeline);

// The frame under the playhead: the position of every command at the playhead.
MVTIMELINE_TEST_EXPORT qint64 playheadFrame(const IMvTimeline* timeline);
MVTIMELINE_TEST_EXPORT bool setPlayheadFrame(const IMvTimeline* timeline, qint64 frame);

// A frame as the ruler labels it: the one time-code formatter at the ruler's rate, 30 frames a
// second without a ruler or a rate; frames before the start read as the start.
MVTIMELINE_TEST_EXPORT QString timeCode(const IMvTimelineRuler* ruler, qint64 frame);
MVTIMELINE_TEST_EXPORT QString timeCode(const IMvTimeline* timeline, qint64 frame);
// The timeline's length in frames as its ruler holds it; 0 without a ruler.
MVTIMELINE_TEST_EXPORT qint64 totalFrames(const IMvTimeline* timeline);

MVTIMELINE_TEST_EXPORT QList<IMvClip*> selectedClips(const IMvTimeline* timeline);
MVTIMELINE_TEST_EXPORT QList<IMvAbstractClip*> selectedItems(const IMvTimeline* timeline);
MVTIMELINE_TEST_EXPORT bool selectClips(const IMvTimeline* timeline, const QList<IMvClip*>& clips);

// The marker list a marker at the playhead belongs to, as adding a marker chooses it: the single
// selected clip's list when the playhead lies on that clip (both ends included), the timeline's
// list otherwise; null when the one selected item is not a clip or the clip keeps no markers.
MVTIMELINE_TEST_EXPORT IMvMarkerList* markerListAtPlayhead(const IMvTimeline* timeline, qint64 frame);

} // namespace MvModelAccess
