#pragma once

#include "MvDemoSnapper.h"

#include <QList>

class IMvClip;
class IMvTimeline;

// A drag of the selected clips with the mouse. The pointer's travel becomes the frame offset
// and the track offset that the presenter's move commands take (moveClipsHorizontal,
// moveClipsVertical), snapped to what lies near; a preview tells where each clip would land
// and whether the model can take it there.
class MvDemoClipDrag
{
public:
    struct Landing
    {
        IMvClip* clip = nullptr;
        int trackIndex = -1;
        qint64 start = 0;
        qint64 end = 0;
    };

    // Why a move cannot be made, the first reason found.
    enum class Problem
    {
        None,
        NothingToMove,
        LockedSource, // a moving clip sits on a locked track
        NoTrack, // a clip would leave the rows of its kind
        LockedTarget,
        BeforeStart,
        Overlap, // another clip is in the way
    };

    // Starts over `clips` (the selection, in selection order) with the pointer on `pressFrame`
    // over row `pressTrack`. Motion-tracking followers move along, as the presenter moves them.
    void start(const IMvTimeline* timeline, const QList<IMvClip*>& clips, qint64 pressFrame, int pressTrack);
    void clear();
    bool isActive() const { return m_timeline != nullptr; }
    // Follows the pointer; a threshold of 0 turns snapping off.
    void moveTo(qint64 pointerFrame, int pointerTrack, qint64 snapThreshold);

    qint64 frameOffset() const { return m_frameOffset; }
    // The offset of the first clip's kind, which is what moveClipsVertical takes: that kind
    // follows the pointer, the other kind moves the opposite way (audio rows count the other way).
    int trackOffset() const { return m_trackOffset; }
    qint64 guideFrame() const { return m_guideFrame; }
    const QList<IMvClip*>& moving() const { return m_moving; }
    QList<Landing> landings() const;
    Problem problem() const;

    // The selection grown by its motion-tracking followers, in order.
    static QList<IMvClip*> withFollowers(const QList<IMvClip*>& clips);
    // Where the clips land for a frame offset and the first clip's track offset. A kind that
    // would leave its rows stays on its rows, as the presenter keeps it.
    static QList<Landing> landingsFor(
        const IMvTimeline* timeline, const QList<IMvClip*>& clips, qint64 frameOffset, int trackOffset);
    static Problem problemOf(const IMvTimeline* timeline, const QList<IMvClip*>& clips, const QList<Landing>& landings);

private:
    int clampTrackOffset(int offset) const;

    const IMvTimeline* m_timeline = nullptr;
    QList<IMvClip*> m_moving;
    MvDemoSnapper m_snapper;
    QVector<qint64> m_edges;
    qint64 m_pressFrame = 0;
    int m_pressTrack = 0;
    qint64 m_frameOffset = 0;
    int m_trackOffset = 0;
    qint64 m_guideFrame = -1;
};
