#pragma once

#include "MvMemoryGlobal.h"

#include "MvMemoryClip.h"
#include "MvMemoryMarker.h"

#include <QList>

class MvMemoryTimeline;

// One clip as a copy keeps it: its whole value off any timeline, and where it stood.
struct MvMemoryCopiedClip
{
    MvMemoryClip::State state; // without track, follower and layers
    MVVBLMODEL::MvTrackType rowType = MVVBLMODEL::TrackType_Picture;
    int bandRow = 0; // its row among the rows of that type, 0 the first
    int follower = -1; // the copied clip that follows it by motion tracking
    int group = -1; // its group among the copied groups
    QList<MvMemoryMarker::State> markers;
    QList<MvMemoryTransition::State> transitions; // without owner
    QList<MvMemoryClip::State> layers; // of a composed text, without their item
};

// What one copy or cut took: clips in timeline order (row by row, each row by start), the
// transitions copied by themselves, and the kinds of the groups the clips were in.
struct MvMemoryCopy
{
    QList<MvMemoryCopiedClip> clips;
    QList<MvMemoryTransition::State> transitions;
    QList<int> groupKinds;

    bool isEmpty() const { return clips.isEmpty() && transitions.isEmpty(); }
};

// The application's clipboard of timeline items: one for every timeline of every project, as a
// person expects of copy and paste. It keeps values, not the items, so a copy survives edits and
// undo of what it was taken from.
class MVMEMORY_EXPORT MvMemoryClipboard
{
public:
    static MvMemoryClipboard& application();

    const MvMemoryCopy& content() const { return m_copy; }
    bool isEmpty() const { return m_copy.isEmpty(); }
    void clear() { m_copy = MvMemoryCopy(); }
    // Replaces the content with copies of those items that are on the timeline; others are left out.
    void copyFrom(const MvMemoryTimeline* timeline, const QList<IMvAbstractClip*>& items);
    // A timeline going away: copied compound clips that show it are dropped.
    void forgetTimeline(const MvMemoryTimeline* timeline);

private:
    MvMemoryCopy m_copy;
};

// Pasting a copy into a timeline; called inside the timeline's undo step.
namespace MvMemoryPaste {

// Puts the copied clips on the timeline from frame on and lists the new clips; answers the
// nesting flags of the compound clips left out (MvMemoryCompound).
MVMEMORY_EXPORT unsigned clips(MvMemoryTimeline* timeline, const MvMemoryCopy& copy, qint64 frame, int trackIndex,
    MVVBLMODEL::MvTrackType trackType, QList<IMvClip*>& pasted);
// Puts the copied transitions onto each target clip, replacing one at the same place.
MVMEMORY_EXPORT QList<IMvTransition*> transitions(
    MvMemoryTimeline* timeline, const MvMemoryCopy& copy, const QList<IMvClip*>& targets);

} // namespace MvMemoryPaste
