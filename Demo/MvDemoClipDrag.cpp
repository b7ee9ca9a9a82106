#include "MvDemoClipDrag.h"

#include "IMvAbstractClip.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"

#include <QPair>

#include <limits>

using namespace MVVBLMODEL;

namespace {
bool isAudioTrack(const IMvTrack* track)
{
    return track && track->type() == TrackType_Audio;
}

bool isAudioClip(const IMvClip* clip)
{
    return isAudioClipType(clip->type());
}

// The first and last row holding clips of a kind; rows of one kind are contiguous.
QPair<int, int> rowsOfKind(const IMvTimeline* timeline, bool audio)
{
    int first = std::numeric_limits<int>::max();
    int last = -1;
    for (int i = 0; i < timeline->trackCount(); ++i) {
        if (isAudioTrack(timeline->trackAt(i)) == audio) {
            first = qMin(first, i);
            last = i;
        }
    }
    return { first, last };
}

// The offset by which every clip of a kind may move and stay on the rows of that kind.
QPair<int, int> allowedOffsets(const IMvTimeline* timeline, const QList<IMvClip*>& clips, bool audio)
{
    const QPair<int, int> rows = rowsOfKind(timeline, audio);
    int low = std::numeric_limits<int>::min();
    int high = std::numeric_limits<int>::max();
    for (const IMvClip* clip : clips) {
        if (isAudioClip(clip) != audio)
            continue;
        low = qMax(low, rows.first - clip->trackIndex());
        high = qMin(high, rows.second - clip->trackIndex());
    }
    return { low, high };
}

bool overlaps(qint64 start, qint64 end, qint64 otherStart, qint64 otherEnd)
{
    return start <= otherEnd && otherStart <= end;
}
}

void MvDemoClipDrag::start(const IMvTimeline* timeline, const QList<IMvClip*>& clips, qint64 pressFrame, int pressTrack)
{
    clear();
    if (!timeline || clips.isEmpty())
        return;
    m_timeline = timeline;
    m_moving = withFollowers(clips);
    m_snapper.setTargets(MvDemoSnapper::targetsOf(timeline, m_moving));
    m_edges = MvDemoSnapper::edgesOf(m_moving);
    m_pressFrame = pressFrame;
    m_pressTrack = pressTrack;
}

void MvDemoClipDrag::clear()
{
    m_timeline = nullptr;
    m_moving.clear();
    m_edges.clear();
    m_frameOffset = 0;
    m_trackOffset = 0;
    m_guideFrame = -1;
}

void MvDemoClipDrag::moveTo(qint64 pointerFrame, int pointerTrack, qint64 snapThreshold)
{
    if (!isActive())
        return;
    qint64 earliest = std::numeric_limits<qint64>::max();
    for (const IMvClip* clip : qAsConst(m_moving))
        earliest = qMin(earliest, clip->start());
    // The presenter stops the earliest clip at frame 0; the drag stops there too.
    const qint64 raw = qMax(pointerFrame - m_pressFrame, -earliest);
    const MvDemoSnapper::Result snapped
        = snapThreshold > 0 ? m_snapper.snap(m_edges, raw, snapThreshold) : MvDemoSnapper::Result { raw, -1 };
    const bool snapUsable = snapped.guideFrame >= 0 && snapped.offset >= -earliest;
    m_frameOffset = snapUsable ? snapped.offset : raw;
    m_guideFrame = snapUsable ? snapped.guideFrame : -1;
    m_trackOffset = clampTrackOffset(pointerTrack - m_pressTrack);
}

int MvDemoClipDrag::clampTrackOffset(int offset) const
{
    const QPair<int, int> allowed = allowedOffsets(m_timeline, m_moving, isAudioClip(m_moving.first()));
    if (allowed.first > allowed.second)
        return 0;
    return qBound(allowed.first, offset, allowed.second);
}

QList<MvDemoClipDrag::Landing> MvDemoClipDrag::landings() const
{
    return isActive() ? landingsFor(m_timeline, m_moving, m_frameOffset, m_trackOffset) : QList<Landing>();
}

MvDemoClipDrag::Problem MvDemoClipDrag::problem() const
{
    return isActive() ? problemOf(m_timeline, m_moving, landings()) : Problem::NothingToMove;
}

QList<IMvClip*> MvDemoClipDrag::withFollowers(const QList<IMvClip*>& clips)
{
    QList<IMvClip*> moving = clips;
    for (const IMvClip* clip : clips) {
        IMvClip* follower = clip->motionTrackFollower();
        if (follower && !moving.contains(follower))
            moving.append(follower);
    }
    return moving;
}

QList<MvDemoClipDrag::Landing> MvDemoClipDrag::landingsFor(
    const IMvTimeline* timeline, const QList<IMvClip*>& clips, qint64 frameOffset, int trackOffset)
{
    QList<Landing> landings;
    if (!timeline || clips.isEmpty())
        return landings;
    const bool leadAudio = isAudioClip(clips.first());
    int offsetOf[2] = { 0, 0 }; // [picture, audio]
    for (bool audio : { false, true }) {
        const int wanted = audio == leadAudio ? trackOffset : -trackOffset;
        const QPair<int, int> allowed = allowedOffsets(timeline, clips, audio);
        offsetOf[audio ? 1 : 0] = wanted >= allowed.first && wanted <= allowed.second ? wanted : 0;
    }
    for (IMvClip* clip : clips) {
        const int offset = offsetOf[isAudioClip(clip) ? 1 : 0];
        landings.append({ clip, clip->trackIndex() + offset, clip->start() + frameOffset, clip->end() + frameOffset });
    }
    return landings;
}

MvDemoClipDrag::Problem MvDemoClipDrag::problemOf(
    const IMvTimeline* timeline, const QList<IMvClip*>& clips, const QList<Landing>& landings)
{
    if (!timeline || clips.isEmpty())
        return Problem::NothingToMove;
    for (const IMvClip* clip : clips) {
        if (clip->track() && clip->track()->isLocked())
            return Problem::LockedSource;
    }
    for (const Landing& landing : landings) {
        const IMvTrack* target = timeline->trackAt(landing.trackIndex);
        if (!target || isAudioTrack(target) != isAudioClip(landing.clip))
            return Problem::NoTrack;
        if (target->isLocked())
            return Problem::LockedTarget;
        if (landing.start < 0)
            return Problem::BeforeStart;
    }
    for (int i = 0; i < landings.size(); ++i) {
        const Landing& landing = landings.at(i);
        const QList<IMvClip*> staying = timeline->trackAt(landing.trackIndex)->clips();
        for (IMvClip* other : staying) {
            if (!clips.contains(other) && overlaps(landing.start, landing.end, other->start(), other->end()))
                return Problem::Overlap;
        }
        for (int j = i + 1; j < landings.size(); ++j) {
            const Landing& next = landings.at(j);
            if (next.trackIndex == landing.trackIndex && overlaps(landing.start, landing.end, next.start, next.end))
                return Problem::Overlap;
        }
    }
    return Problem::None;
}
