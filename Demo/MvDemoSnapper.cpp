#include "MvDemoSnapper.h"

#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"

#include <algorithm>

namespace {
void appendMarkers(QVector<qint64>& frames, const IMvMarkerList* list)
{
    if (!list)
        return;
    const QList<IMvMarker*> markers = list->markers();
    for (const IMvMarker* marker : markers)
        frames.append(list->mapToTimeline(marker->frame()));
}
}

void MvDemoSnapper::setTargets(QVector<qint64> frames)
{
    std::sort(frames.begin(), frames.end());
    frames.erase(std::unique(frames.begin(), frames.end()), frames.end());
    m_targets = std::move(frames);
}

MvDemoSnapper::Result MvDemoSnapper::snap(const QVector<qint64>& movingEdges, qint64 offset, qint64 threshold) const
{
    Result result;
    result.offset = offset;
    qint64 best = threshold + 1;
    for (qint64 edge : movingEdges) {
        const qint64 landing = edge + offset;
        // The nearest targets are the ones on either side of where the edge lands.
        const int after = int(std::lower_bound(m_targets.cbegin(), m_targets.cend(), landing) - m_targets.cbegin());
        for (int index : { after - 1, after }) {
            if (index < 0 || index >= m_targets.size())
                continue;
            const qint64 shift = m_targets.at(index) - landing;
            if (qAbs(shift) < best) {
                best = qAbs(shift);
                result.offset = offset + shift;
                result.guideFrame = m_targets.at(index);
            }
        }
    }
    return result;
}

QVector<qint64> MvDemoSnapper::targetsOf(const IMvTimeline* timeline, const QList<IMvClip*>& moving)
{
    QVector<qint64> frames;
    if (!timeline)
        return frames;
    if (const IMvTimelinePlayhead* playhead = timeline->playhead())
        frames.append(playhead->currentFrame());
    appendMarkers(frames, timeline->timelineMarkers());
    for (int i = 0; i < timeline->trackCount(); ++i) {
        const QList<IMvClip*> clips = timeline->trackAt(i)->clips();
        for (IMvClip* clip : clips) {
            if (moving.contains(clip))
                continue;
            frames.append(clip->start());
            frames.append(clip->end() + 1);
            appendMarkers(frames, clip->clipMarkers());
        }
    }
    return frames;
}

QVector<qint64> MvDemoSnapper::edgesOf(const QList<IMvClip*>& moving)
{
    QVector<qint64> edges;
    edges.reserve(moving.size() * 2);
    for (const IMvClip* clip : moving) {
        edges.append(clip->start());
        edges.append(clip->end() + 1);
    }
    return edges;
}
