#include "MvMemoryTrack.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"

#include <algorithm>

MvMemoryTrack::MvMemoryTrack(MvMemoryTimeline* timeline, MVVBLMODEL::MvTrackType type)
    : m_timeline(timeline)
{
    m_state.type = type;
}

int MvMemoryTrack::index() const
{
    return m_timeline->indexOfTrack(this);
}

MVVBLMODEL::MvTrackType MvMemoryTrack::type() const
{
    return m_state.type;
}

bool MvMemoryTrack::isLocked() const
{
    return m_state.locked;
}

void MvMemoryTrack::setLocked(bool locked)
{
    if (m_state.locked == locked)
        return;
    MvMemoryTimeline::Edit edit(
        m_timeline, "setLocked", locked ? QStringLiteral("lock track") : QStringLiteral("unlock track"));
    m_state.locked = locked;
}

int MvMemoryTrack::height() const
{
    return m_height;
}

void MvMemoryTrack::setHeight(int height)
{
    m_height = qMax(0, height);
}

QList<IMvClip*> MvMemoryTrack::clips() const
{
    QList<IMvClip*> clips;
    clips.reserve(m_state.clips.size());
    for (MvMemoryClip* clip : m_state.clips)
        clips.append(clip);
    return clips;
}

// Audio rows carry what is heard only; picture rows everything else, transitions excepted
// (they ride on their clip).
bool MvMemoryTrack::accepts(MVVBLMODEL::MvClipType clipType) const
{
    if (clipType == MVVBLMODEL::ClipType_Transition || clipType < MVVBLMODEL::ClipType_Audio
        || clipType > MVVBLMODEL::ClipType_SoundEffect)
        return false;
    return (m_state.type == MVVBLMODEL::TrackType_Audio) == MVVBLMODEL::isAudioClipType(clipType);
}

void MvMemoryTrack::insertSorted(MvMemoryClip* clip)
{
    auto at = std::upper_bound(m_state.clips.begin(), m_state.clips.end(), clip,
        [](const MvMemoryClip* a, const MvMemoryClip* b) { return a->start() < b->start(); });
    m_state.clips.insert(at, clip);
}

void MvMemoryTrack::take(MvMemoryClip* clip)
{
    m_state.clips.removeAll(clip);
}

void MvMemoryTrack::resort()
{
    std::stable_sort(m_state.clips.begin(), m_state.clips.end(),
        [](const MvMemoryClip* a, const MvMemoryClip* b) { return a->start() < b->start(); });
}
