#pragma once

#include "IMvTrack.h"
#include "MvMemoryUndoable.h"

#include <QList>

#include <map>
#include <set>
#include <utility>

class MvMemoryTimeline;
class MvMemoryClip;

struct MvMemoryTrackState
{
    MVVBLMODEL::MvTrackType type = MVVBLMODEL::TrackType_Picture;
    bool locked = false;

    bool operator==(const MvMemoryTrackState& other) const { return type == other.type && locked == other.locked; }
};

// A track row. Its lock state is undoable model state; which clips it holds is each clip's own
// value (the clip's track), which the track follows in a lookup by start. The row height is a
// view setting and stays out of undo.
class MVVBLMODEL_EXPORT MvMemoryTrack : public IMvTrack, public MvMemoryValued<MvMemoryTrackState>
{
public:
    using State = MvMemoryTrackState;

    MvMemoryTrack(MvMemoryTimeline* timeline, MVVBLMODEL::MvTrackType type);

    int index() const override;
    MVVBLMODEL::MvTrackType type() const override;
    bool isLocked() const override;
    void setLocked(bool locked) override;
    int height() const override;
    void setHeight(int height) override;
    QList<IMvClip*> clips() const override;

    // Whether a clip of this type may sit on this row.
    bool accepts(MVVBLMODEL::MvClipType clipType) const;
    MvMemoryTimeline* timeline() const { return m_timeline; }

    // The clips on this row, by start.
    QList<MvMemoryClip*> memoryClips() const;
    int clipCount() const { return int(m_clips.size()); }
    // The clips that cover a frame of first .. last, by start.
    QList<MvMemoryClip*> clipsMeeting(qint64 first, qint64 last) const;
    // The clips starting at or after a frame, by start.
    QList<MvMemoryClip*> clipsFrom(qint64 first) const;
    // The last frame a clip covers; -1 on an empty row.
    qint64 lastEnd() const { return m_ends.empty() ? -1 : *m_ends.rbegin(); }
    // The lookup holds the clip under its present start (for the invariant checker).
    bool holds(const MvMemoryClip* clip) const;

    // Kept by the clips and by the timeline's row order.
    void noteClip(MvMemoryClip* clip, qint64 start, qint64 end);
    void forgetClip(MvMemoryClip* clip, qint64 start, qint64 end);
    void setRow(int row) { m_row = row; }
    QString undoLabel() const override;

protected:
    State detached(State value) const override;

private:
    Q_DISABLE_COPY(MvMemoryTrack)
    using Key = std::pair<qint64, int>; // start, clip number

    MvMemoryTimeline* m_timeline;
    std::map<Key, MvMemoryClip*> m_clips;
    std::multiset<qint64> m_ends;
    int m_row = -1;
    int m_height = 60;
};
