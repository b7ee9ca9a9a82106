#pragma once

#include "MvRange.h"
#include "MvVBLModelGlobal.h"

#include <QList>
#include <QMetaType>

class IMvAbstractMediaItem;
struct MvTimelineAddMediaParam;
class IMvClip;
class IMvTrack;
class IMvSelection;
class IMvSubItemSelection;
class IMvClipEditService;
class IMvMarkerModel;
class IMvMarkerList;
class IMvTimelinePlayhead;
class IMvTimelineRuler;
class IMvUndoRedoService;
class IMvTimelineRenderService;
class IMvKeyFrameSelector;
class IMvKeyFrameClipboard;

// One edited timeline: its tracks and clips, selection, groups, markers, playhead, ruler,
// render service and undo stack. Every edit returns false (or an empty list) when refused.
class MVVBLMODEL_EXPORT IMvTimeline
{
public:
    virtual ~IMvTimeline();

    virtual int kind() const = 0; // 0: the main project timeline
    virtual qint64 duration() const = 0;

    virtual int trackCount() const = 0;
    virtual IMvTrack* trackAt(int index) const = 0;
    virtual IMvTrack* firstTrackOfType(MVVBLMODEL::MvTrackType type) const = 0;
    virtual IMvTrack* lastTrackOfType(MVVBLMODEL::MvTrackType type) const = 0;

    virtual bool deleteClips(QList<IMvClip*> clips) = 0;
    virtual bool rippleDeleteClips(QList<IMvClip*> clips) = 0;
    virtual bool moveClips(QList<IMvClip*> clips, QList<int> trackOffsets, qint64 frameOffset, int mode) = 0;
    virtual void splitClips(QList<IMvClip*>& newClips, QList<IMvClip*> clips, qint64 frame) = 0;
    virtual bool trimStartToFrame(IMvClip* clip, qint64 frame) = 0;
    virtual bool trimEndToFrame(IMvClip* clip, qint64 frame) = 0;
    virtual void beginDelete() = 0;
    virtual bool isSeekAfterDelete() const = 0;
    virtual void rotateClip90CW(IMvClip* clip) = 0;
    virtual void rotateClip90CCW(IMvClip* clip) = 0;

    virtual IMvClipEditService* editService() const = 0;
    virtual IMvSelection* selection() const = 0;
    virtual IMvSubItemSelection* subItemSelection() const = 0;
    virtual IMvMarkerModel* markerModel() const = 0;
    virtual IMvMarkerList* timelineMarkers() const = 0;
    virtual IMvTimelinePlayhead* playhead() const = 0;
    virtual IMvTimelineRuler* ruler() const = 0;
    virtual IMvUndoRedoService* undoRedoService() const = 0;
    virtual IMvTimelineRenderService* renderService() const = 0;
    virtual IMvKeyFrameSelector* keyFrameSelector() const = 0;
    virtual IMvKeyFrameClipboard* keyFrameClipboard() const = 0;

    // Clips whose smart-keying nodes are shown (the selected clips that have nodes).
    virtual void smartKeyingClips(QList<IMvClip*>& clips) const = 0;

    // The virtual playhead is offered only where the timeline allows it.
    virtual bool virtualPlayheadAllowed() const = 0;
    virtual void prepareVirtualPlayhead() = 0;

    // Track commands and audio detach.
    virtual int trackCount(MVVBLMODEL::MvTrackType type) const = 0;
    virtual int emptyTrackCount(MVVBLMODEL::MvTrackType type) const = 0;
    // The first and last row of that type; last < first when there is none.
    virtual void trackIndexRange(MvRange<int>& range, MVVBLMODEL::MvTrackType type) const = 0;
    virtual void clearEmptyTracks() = 0;
    virtual void addTrack(int type, int index) = 0;
    // Puts the clip's sound on an audio row as a clip of its own; the clip keeps its picture.
    virtual void detachAudio(IMvClip* clip, int trackIndex) = 0;
    // Media insertion.
    // The project's frame rate (frames per second: numerator over denominator).
    virtual MVVBLMODEL::MvRational frameRate() const = 0;
    // Puts one clip per media item on the timeline at the start frame, as one undo step; fills
    // clips with those created. Policy 1 gives every clip a new row; any other value lets the
    // model choose the row. Compound items that cannot go here are left out and reported in
    // the result's bits (MVVBLMODEL::AddMediaFlag_*). Safe from a worker thread while the GUI
    // thread only runs an event loop: observers are still told on the GUI thread.
    virtual unsigned addMedias(const MvTimelineAddMediaParam& param, QList<IMvClip*>& clips, int policy) = 0;
    // Opens a clip for editing in place (subtitles: their text); index -1 is the whole clip.
    virtual void activateClip(IMvClip* clip, int index) = 0;
};

Q_DECLARE_METATYPE(IMvTimeline*)
