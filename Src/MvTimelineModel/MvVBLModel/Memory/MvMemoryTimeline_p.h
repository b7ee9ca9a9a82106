#pragma once

#include "MvMemoryGlobal.h"

#include "MvMemoryThreadGate.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryUndoRecorder.h"

#include <QList>

#include <functional>

class IMvTimelineRuler;
struct MvTimelineAddMediaParam;
class MvMemoryMarks;
class IMvTimelineRenderService;

struct MvMemoryTimelineState
{
    QList<MvMemoryTrack*> rows; // the tracks on the timeline, top row first
    MVVBLMODEL::MvRational frameRate;

    bool operator==(const MvMemoryTimelineState& other) const
    {
        return rows == other.rows && frameRate == other.frameRate;
    }
};

// The timeline's own undoable values: which tracks it shows, in which order. Timeline-wide values
// that undo restores belong in its State.
class MvMemoryTimelineValues : public MvMemoryValued<MvMemoryTimelineState>
{
public:
    explicit MvMemoryTimelineValues(MvMemoryUndoRecorder* recorder);
    QString undoLabel() const override;
    // Told when the frame rate changed, by an edit, an undo or a redo.
    void setRateFollower(std::function<void(const MVVBLMODEL::MvRational&)> follower);

protected:
    void valueChanged() override;

private:
    QList<MvMemoryTrack*> m_numbered; // the rows whose tracks know their index
    MVVBLMODEL::MvRational m_followedRate;
    std::function<void(const MVVBLMODEL::MvRational&)> m_rateFollower;
};

class MvMemoryTimelinePrivate
{
public:
    explicit MvMemoryTimelinePrivate(MvMemoryTimeline* q, int kind);
    ~MvMemoryTimelinePrivate();

    const QList<MvMemoryTrack*>& rows() const { return values->state().rows; }
    MvMemoryClip* makeClip(const MvMemoryClip::State& state);
    // After each edit and each undo or redo: drop what left the timeline from the selections,
    // follow the duration. Costs what changed since the last call.
    void afterChange();
    // After a step was recorded, undone or redone: the stretch whose picture or sound changed
    // needs rendering again.
    void modelChanged(const MvMemoryUndoRecorder::Step& step);
    void markChangedFramesUnrendered(const MvMemoryUndoRecorder::Step& step);
    void record(const char* operation) const;
    // A building call: joins an open step; outside a step it is applied directly and the history,
    // which no longer describes the model, is cleared.
    void build(const char* operation, const QString& stepName, const std::function<void()>& work);

    bool editable(const MvMemoryClip* clip) const;
    QList<MvMemoryClip*> liveClipsOf(const QList<IMvClip*>& clips, bool* allLive) const;
    void detach(MvMemoryClip* clip);
    void closeGaps(MvMemoryTrack* track, QList<MvMemoryClip*> removed);
    MvMemoryClip* cutClip(MvMemoryClip* clip, qint64 frame);
    bool trimStart(MvMemoryClip* clip, qint64 frame);
    bool trimEnd(MvMemoryClip* clip, qint64 frame);
    bool moveAllowed(const QList<MvMemoryClip*>& clips, const QList<MvMemoryTrack*>& targets, qint64 frameOffset,
        const MvMemoryMarks& moving) const;
    void rotate(IMvClip* clip, int degrees, const char* operation);
    void checkTracks(QStringList& problems) const;
    void checkClips(QStringList& problems) const;
    void checkGroupsAndTransitions(QStringList& problems) const;
    void checkItems(QStringList& problems) const;
    QString clipText(const MvMemoryClip* clip) const;
    // Media insertion (MvMemoryTimelineMedia.cpp).
    MvMemoryTrack* rowForMedia(MVVBLMODEL::MvClipType type, int asked, qint64 start, qint64 end, int policy);
    MvMemoryClip* insertMediaClip(const MvTimelineAddMediaParam& param, int index, int policy, unsigned* flags);
    QString clipId(const MvMemoryClip* clip) const;
    // Track commands and audio detach (MvMemoryTracks.cpp, MvMemoryAudio.cpp).
    MvMemoryTrack* insertTrack(MVVBLMODEL::MvTrackType type, int index);
    MvMemoryTrack* soundRowFor(const MvMemoryClip* clip, int trackIndex);
    // Transitions and effects (MvMemoryTransitionItems.cpp).
    void checkTransitionsAndEffects(QStringList& problems) const;
    QString transitionsAndEffectsText(const MvMemoryClip* clip) const;
    // Composed texts (MvMemoryTextContainer.cpp): layers of their own for a copy of an item.
    void copyChildren(MvMemoryClip* copy, const QList<MvMemoryClip*>& children);
    void checkChildren(QStringList& problems) const;

    MvMemoryTimeline* q_ptr;
    Q_DECLARE_PUBLIC(MvMemoryTimeline)

    // Made first and deleted last: every change of the timeline holds it.
    MvMemoryThreadGate gate;
    int kind;
    int projectId = 0;
    QString name;
    // Made first and deleted last: every undoable object reports to it.
    MvMemoryUndoRecorder* recorder = nullptr;
    MvMemoryTimelineValues* values = nullptr;
    MvMemoryGroups* groups = nullptr;
    QList<MvMemoryTrack*> allTracks;
    QList<MvMemoryClip*> allClips;
    QList<MvMemoryTransition*> allTransitions;
    int nextTransitionId = 1;

    MvMemoryUndoService* undo = nullptr;
    MvMemoryPlayhead* playhead = nullptr;
    MvMemorySelection* selection = nullptr;
    MvMemorySubItemSelection* subItemSelection = nullptr;
    MvMemoryEditService* editService = nullptr;
    MvMemoryMarkerModel* markerModel = nullptr;
    MvMemoryMarkerList* timelineMarkers = nullptr;
    MvMemoryKeyFrameSelector* keyFrameSelector = nullptr;
    MvMemoryKeyFrameClipboard* keyFrameClipboard = nullptr;
    IMvTimelineRuler* ruler = nullptr;
    IMvTimelineRenderService* renderService = nullptr;
    MvCallJournal* journal = nullptr;
    QList<std::function<void()>> changeListeners;

    // The clip opened for editing in place, view state (activateClip).
    MvMemoryClip* activeClip = nullptr;
    int activeIndex = -1;

    qint64 knownDuration = 0;
    int beginDeleteCount = 0;
    bool seekAfterDelete = true;
    bool virtualAllowed = true;
};
