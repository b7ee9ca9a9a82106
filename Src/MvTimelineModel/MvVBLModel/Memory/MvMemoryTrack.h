#pragma once

#include "IMvTrack.h"

class MvMemoryTimeline;
class MvMemoryClip;

// A track row. Lock state and the clip list are undoable model state; the row height is a view
// setting and stays out of undo.
class MVVBLMODEL_EXPORT MvMemoryTrack : public IMvTrack
{
public:
    struct State
    {
        MVVBLMODEL::MvTrackType type = MVVBLMODEL::TrackType_Picture;
        bool locked = false;
        QList<MvMemoryClip*> clips; // ordered by start

        bool operator==(const State& other) const
        {
            return type == other.type && locked == other.locked && clips == other.clips;
        }
    };

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
    QList<MvMemoryClip*> memoryClips() const { return m_state.clips; }
    MvMemoryTimeline* timeline() const { return m_timeline; }

    const State& state() const { return m_state; }
    void restore(const State& state) { m_state = state; }
    // Raw list edits for the timeline's own (already recorded) edits.
    void insertSorted(MvMemoryClip* clip);
    void take(MvMemoryClip* clip);
    void resort();

private:
    Q_DISABLE_COPY(MvMemoryTrack)
    MvMemoryTimeline* m_timeline;
    State m_state;
    int m_height = 60;
};
