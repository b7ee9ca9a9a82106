#pragma once

#include "MvMemoryGlobal.h"

#include "IMvTrack.h"
#include "MvMemoryUndoable.h"

#include <QList>

#include "MvMemoryClipIndex.h"

class MvMemoryTimeline;
class MvMemoryClip;

struct MvMemoryTrackState
{
    MVVBLMODEL::MvTrackType type = MVVBLMODEL::TrackType_Picture;
    bool locked = false;
    // Track commands: the row's eye and mute switches; a row hidden with its sound stays silent
    // while hidden.
    bool visible = true;
    bool muted = false;
    bool silentWhileHidden = false;

    bool operator==(const MvMemoryTrackState& other) const
    {
        return type == other.type && locked == other.locked && visible == other.visible && muted == other.muted
            && silentWhileHidden == other.silentWhileHidden;
    }
};

// A track row. Its lock state is undoable model state; which clips it holds is each clip's own
// value (the clip's track), which the track follows in a lookup by start. The row height is a
// view setting and stays out of undo.
class MVMEMORY_EXPORT MvMemoryTrack : public IMvTrack, public MvMemoryValued<MvMemoryTrackState>
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
    // Track commands (MvMemoryTracks.cpp).
    bool isVisible() const override;
    void setVisible(bool visible, bool withSound) override;
    bool isMuted() const override;
    void setMuted(bool muted) override;

    // Whether a clip of this type may sit on this row.
    bool accepts(MVVBLMODEL::MvClipType clipType) const;
    MvMemoryTimeline* timeline() const { return m_timeline; }

    // The clips on this row, by start.
    QList<MvMemoryClip*> memoryClips() const;
    int clipCount() const { return m_clips.size(); }
    // Whether a clip that covers a frame of first .. last makes `test` true.
    template <typename Test> bool anyClipMeeting(qint64 first, qint64 last, Test test) const;
    QList<MvMemoryClip*> clipsMeeting(qint64 first, qint64 last) const;
    // The clips starting at or after a frame, by start.
    QList<MvMemoryClip*> clipsFrom(qint64 first) const;
    // The last frame a clip covers (clips on a row do not overlap); -1 on an empty row.
    qint64 lastEnd() const;
    // The lookup holds the clip under its present start (for the invariant checker).
    bool holds(const MvMemoryClip* clip) const;

    // Kept by the clips and by the timeline's row order.
    void noteClip(MvMemoryClip* clip, qint64 start);
    void forgetClip(const MvMemoryClip* clip, qint64 start);
    void moveClip(const MvMemoryClip* clip, qint64 from, qint64 to);
    void setRow(int row) { m_row = row; }
    QString undoLabel() const override;

protected:
    State detached(State value) const override;

private:
    Q_DISABLE_COPY(MvMemoryTrack)
    using Key = MvMemoryClipIndex::Key;
    // The first clip that may cover a frame of first .. : only the clip starting last before
    // `first` can reach into it from the left.
    MvMemoryClipIndex::Iterator firstMeeting(qint64 first) const;
    static qint64 endOf(const MvMemoryClip* clip);

    MvMemoryTimeline* m_timeline;
    MvMemoryClipIndex m_clips;
    int m_row = -1;
    int m_height = 60;
};

template <typename Test> bool MvMemoryTrack::anyClipMeeting(qint64 first, qint64 last, Test test) const
{
    for (auto it = firstMeeting(first); it != m_clips.end() && it->key.first <= last; ++it) {
        if (endOf(it->clip) >= first && test(it->clip))
            return true;
    }
    return false;
}
