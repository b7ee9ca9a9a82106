#pragma once

#include "MvMemoryGlobal.h"

#include <functional>

#include "IMvTimeline.h"
#include "MvMemoryClip.h"
#include "MvMemoryGroups.h"
#include "MvMemoryTrack.h"

#include <QScopedPointer>
#include <QStringList>

class MvCallJournal;
class MvMemoryThreadGate;
class MvMemoryEditService;
class MvMemoryKeyFrameClipboard;
class MvMemoryKeyFrameSelector;
class MvMemoryMarkerModel;
class MvMemoryPlayhead;
class MvMemoryRenderService;
class MvRulerModel;
class MvMemorySelection;
class MvMemorySubItemSelection;
class MvMemoryTimelinePrivate;
class MvMemoryUndoRecorder;
class MvMemoryUndoService;

// A complete timeline held in memory: tracks, clips, transitions, groups, markers, keyframes,
// freeze frames, playhead, ruler, render service and undo. Every object it hands out lives as
// long as the timeline, so presenters may keep pointers across undo and redo.
//
// Model rules:
// - a clip covers start() .. end(), both included; the duration is the last end plus one;
// - a cut at f divides a clip when start < f <= end: the clip keeps start .. f-1 and a new clip
//   takes f .. end (joining the source's group, taking its keyframes, markers and freeze frames
//   from f on, and its end transition);
// - a locked track refuses every edit of its clips;
// - the clipboard is the application's: a copy in one timeline pastes in any other;
// - every edit is an undo step of its own unless a step is open, in which case it joins it;
// - building calls (addTrack, addClip, addTransition) made outside a step are not undoable: they
//   clear the undo history, which no longer describes the model; inside a step they join it;
// - selection, marker selection, keyframe selection, sub-item selection, playhead and row heights
//   are view state and stay out of undo;
// - an undo step records the values of the objects it changed (see MvMemoryUndoRecorder.h).
// Lookups (a row's clips by start, a clip's group, a clip's transitions) are kept up to date with
// every change, so selections, moves, inserts and the edit rules cost at most n log n.
class MVMEMORY_EXPORT MvMemoryTimeline : public IMvTimeline
{
public:
    // Wraps one model edit: records it in the journal and keeps it inside an undo step (its own
    // step unless one is open). Whatever it changed is checked (selection, duration) on close.
    class MVMEMORY_EXPORT Edit
    {
    public:
        Edit(const MvMemoryTimeline* timeline, const char* operation, const QString& stepName);
        ~Edit();

    private:
        Q_DISABLE_COPY(Edit)
        MvMemoryTimeline* m_timeline;
    };

    explicit MvMemoryTimeline(int kind = 0);
    ~MvMemoryTimeline() override;

    // IMvTimeline
    int kind() const override;
    qint64 duration() const override;
    int trackCount() const override;
    IMvTrack* trackAt(int index) const override;
    IMvTrack* firstTrackOfType(MVVBLMODEL::MvTrackType type) const override;
    IMvTrack* lastTrackOfType(MVVBLMODEL::MvTrackType type) const override;
    bool deleteClips(QList<IMvClip*> clips) override;
    bool rippleDeleteClips(QList<IMvClip*> clips) override;
    bool moveClips(QList<IMvClip*> clips, QList<int> trackOffsets, qint64 frameOffset, int mode) override;
    void splitClips(QList<IMvClip*>& newClips, QList<IMvClip*> clips, qint64 frame) override;
    bool trimStartToFrame(IMvClip* clip, qint64 frame) override;
    bool trimEndToFrame(IMvClip* clip, qint64 frame) override;
    void beginDelete() override;
    bool isSeekAfterDelete() const override;
    void rotateClip90CW(IMvClip* clip) override;
    void rotateClip90CCW(IMvClip* clip) override;
    IMvClipEditService* editService() const override;
    IMvSelection* selection() const override;
    IMvSubItemSelection* subItemSelection() const override;
    IMvMarkerModel* markerModel() const override;
    IMvMarkerList* timelineMarkers() const override;
    IMvTimelinePlayhead* playhead() const override;
    IMvTimelineRuler* ruler() const override;
    IMvUndoRedoService* undoRedoService() const override;
    IMvTimelineRenderService* renderService() const override;
    IMvKeyFrameSelector* keyFrameSelector() const override;
    IMvKeyFrameClipboard* keyFrameClipboard() const override;
    void smartKeyingClips(QList<IMvClip*>& clips) const override;
    bool virtualPlayheadAllowed() const override;
    void prepareVirtualPlayhead() override;
    // Track commands and audio detach (MvMemoryTracks.cpp, MvMemoryAudio.cpp).
    int trackCount(MVVBLMODEL::MvTrackType type) const override;
    int emptyTrackCount(MVVBLMODEL::MvTrackType type) const override;
    void trackIndexRange(MvRange<int>& range, MVVBLMODEL::MvTrackType type) const override;
    void clearEmptyTracks() override;
    void addTrack(int type, int index) override;
    void detachAudio(IMvClip* clip, int trackIndex) override;
    // Media insertion (MvMemoryTimelineMedia.cpp).
    MVVBLMODEL::MvRational frameRate() const override;
    unsigned addMedias(const MvTimelineAddMediaParam& param, QList<IMvClip*>& clips, int policy) override;
    void activateClip(IMvClip* clip, int index) override;

    // Building the project.
    MvMemoryTrack* addTrack(MVVBLMODEL::MvTrackType type);
    MvMemoryClip* addClip(int trackIndex, MVVBLMODEL::MvClipType type, qint64 start, qint64 end, const QString& name);
    MvMemoryTransition* addTransition(MvMemoryClip* owner, quint16 placement, qint64 length, const QString& name);
    // Composed texts (MvMemoryTextContainer.cpp): a layer of a text item on a track; null when the
    // item composes no layers or the kind is no layer kind.
    MvMemoryClip* addChildClip(
        MvMemoryClip* container, MVVBLMODEL::MvClipType type, const QString& name, bool secondary);
    // A change of the project's frame rate (an undo step); positions stay in frames.
    void setFrameRate(int numerator, int denominator);
    // Transitions and effects (MvMemoryTransitionItems.cpp): a transition made from a media item that
    // a clip of this timeline took; the timeline keeps it from now on.
    void adoptTransition(MvMemoryTransition* transition);

    // The project the timeline belongs to, and its name: compound clips refuse to be put into a
    // timeline of another project or into the timeline they show.
    void setProjectId(int project);
    int projectId() const;
    void setName(const QString& name);
    QString name() const;

    // Answers a test or host can force.
    void setSeekAfterDelete(bool seek);
    void setVirtualPlayheadAllowed(bool allowed);
    void setJournal(MvCallJournal* journal);
    // Told after every undo step is recorded, undone or redone: a host view repaints from it.
    void addChangeListener(std::function<void()> listener);
    MvCallJournal* journal() const;
    int beginDeleteCount() const;

    // The clip opened by activateClip and the index it was opened at; null once it left the timeline.
    MvMemoryClip* activeClip() const;
    int activeIndex() const;

    // Threads: every change holds the gate; observers are told on the thread that made the
    // timeline (see MvMemoryThreadGate.h). A host that reads the model while a worker may be
    // changing it (a timer, a paint) holds a Reading for the time it reads.
    MvMemoryThreadGate* threadGate() const;
    class MVMEMORY_EXPORT Reading
    {
    public:
        explicit Reading(const MvMemoryTimeline* timeline);
        ~Reading();

    private:
        Q_DISABLE_COPY(Reading)
        MvMemoryThreadGate* m_gate;
    };

    // Concrete objects.
    MvMemoryPlayhead* playheadImpl() const;
    MvMemoryUndoService* undoService() const;
    MvMemoryUndoRecorder* undoRecorder() const;
    MvMemorySelection* selectionImpl() const;
    MvMemorySubItemSelection* subItemSelectionImpl() const;
    MvMemoryEditService* editServiceImpl() const;
    MvMemoryMarkerModel* markerModelImpl() const;
    MvMemoryMarkerList* timelineMarkerList() const;
    MvMemoryKeyFrameSelector* keyFrameSelectorImpl() const;
    MvMemoryKeyFrameClipboard* keyFrameClipboardImpl() const;
    MvMemoryTrack* memoryTrack(int index) const;
    MvRulerModel* rulerImpl() const;
    // Null when a subclass's factory made a render service of another kind.
    MvMemoryRenderService* renderServiceImpl() const;
    // Clips on the timeline, track by track from the top, each track by start.
    QList<MvMemoryClip*> liveClips() const;
    // Every clip ever created, detached ones included, in creation order.
    QList<MvMemoryClip*> allClips() const;
    // The groups now formed, in the order they were formed.
    QList<MvMemoryGroup> groups() const;
    MvMemoryGroups* groupsImpl() const;

    // Checks and dumps for tests: empty when the model is consistent, else what is wrong.
    QString checkInvariants() const;
    QString stateText() const;

    // Used by the model's own objects.
    int indexOfTrack(const MvMemoryTrack* track) const;
    int groupKindOf(const MvMemoryClip* clip) const;
    QList<MvMemoryClip*> groupMembers(const MvMemoryClip* clip) const;
    bool isLive(const IMvAbstractClip* item) const;
    // A clip or transition of this timeline as its undoable object (null for anything else), and
    // whether it is on the timeline.
    const MvMemoryUndoable* ownItem(const IMvAbstractClip* item, bool* live = nullptr) const;
    bool isLiveMarker(const IMvMarker* marker) const;
    MvMemoryClip* memoryClip(IMvClip* clip) const; // null unless the clip is this timeline's
    int nextTransitionIdentifier();

protected:
    // Factory of the render service, so a test host can put its own in place.
    virtual IMvTimelineRenderService* createRenderService();

private:
    Q_DECLARE_PRIVATE(MvMemoryTimeline)
    Q_DISABLE_COPY(MvMemoryTimeline)
    QScopedPointer<MvMemoryTimelinePrivate> d_ptr;
};
