#pragma once

#include <QList>
#include <QVector>

class IMvClip;
class IMvTimeline;

// Snapping of a clip drag: the dragged clips' edges are pulled onto the nearest frame the user
// is likely aiming for (the playhead, the edges of the other clips, the markers) when one lies
// within a few pixels of where they would land.
class MvDemoSnapper
{
public:
    struct Result
    {
        qint64 offset = 0;
        qint64 guideFrame = -1; // the frame snapped to, -1 when the offset was left alone
    };

    // Any order, repeats allowed.
    void setTargets(QVector<qint64> frames);
    const QVector<qint64>& targets() const { return m_targets; }

    // The offset moved so that the moving edge nearest to a target lands on it, when that edge
    // comes within `threshold` frames of it. Of equally near pairs the first edge wins, and for
    // one edge the earlier target.
    Result snap(const QVector<qint64>& movingEdges, qint64 offset, qint64 threshold) const;

    // What a drag of `moving` snaps to: the playhead, both edges (start and end + 1) of every
    // clip that stays, and the timeline's and the staying clips' markers.
    static QVector<qint64> targetsOf(const IMvTimeline* timeline, const QList<IMvClip*>& moving);
    // Both edges of each moving clip.
    static QVector<qint64> edgesOf(const QList<IMvClip*>& moving);

private:
    QVector<qint64> m_targets; // sorted, without repeats
};
