#include "MvMemoryTrack.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"

#include <limits>

MvMemoryTrack::MvMemoryTrack(MvMemoryTimeline* timeline, MVVBLMODEL::MvTrackType type)
    : MvMemoryValued<State>(timeline->undoRecorder(), State { type, false })
    , m_timeline(timeline)
{
}

int MvMemoryTrack::index() const
{
    return m_row;
}

MVVBLMODEL::MvTrackType MvMemoryTrack::type() const
{
    return state().type;
}

bool MvMemoryTrack::isLocked() const
{
    return state().locked;
}

void MvMemoryTrack::setLocked(bool locked)
{
    if (state().locked == locked)
        return;
    MvMemoryTimeline::Edit edit(
        m_timeline, "setLocked", locked ? QStringLiteral("lock track") : QStringLiteral("unlock track"));
    change()->locked = locked;
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
    clips.reserve(clipCount());
    for (const auto& entry : m_clips)
        clips.append(entry.second);
    return clips;
}

// Audio rows carry what is heard only; picture rows everything else, transitions excepted
// (they ride on their clip).
bool MvMemoryTrack::accepts(MVVBLMODEL::MvClipType clipType) const
{
    if (clipType == MVVBLMODEL::ClipType_Transition || clipType < MVVBLMODEL::ClipType_Audio
        || clipType > MVVBLMODEL::ClipType_SoundEffect)
        return false;
    return (state().type == MVVBLMODEL::TrackType_Audio) == MVVBLMODEL::isAudioClipType(clipType);
}

QList<MvMemoryClip*> MvMemoryTrack::memoryClips() const
{
    QList<MvMemoryClip*> clips;
    clips.reserve(clipCount());
    for (const auto& entry : m_clips)
        clips.append(entry.second);
    return clips;
}

// Clips on a row do not overlap, so only the clip starting last before `first` can reach into
// the span from the left.
QList<MvMemoryClip*> MvMemoryTrack::clipsMeeting(qint64 first, qint64 last) const
{
    QList<MvMemoryClip*> found;
    auto it = m_clips.lower_bound(Key(first, std::numeric_limits<int>::min()));
    if (it != m_clips.begin())
        --it;
    for (; it != m_clips.end() && it->first.first <= last; ++it) {
        if (it->second->end() >= first)
            found.append(it->second);
    }
    return found;
}

QList<MvMemoryClip*> MvMemoryTrack::clipsFrom(qint64 first) const
{
    QList<MvMemoryClip*> found;
    for (auto it = m_clips.lower_bound(Key(first, std::numeric_limits<int>::min())); it != m_clips.end(); ++it)
        found.append(it->second);
    return found;
}

bool MvMemoryTrack::holds(const MvMemoryClip* clip) const
{
    const auto it = m_clips.find(Key(clip->start(), clip->number()));
    return it != m_clips.end() && it->second == clip;
}

void MvMemoryTrack::noteClip(MvMemoryClip* clip, qint64 start, qint64 end)
{
    m_clips.emplace(Key(start, clip->number()), clip);
    m_ends.insert(end);
}

void MvMemoryTrack::forgetClip(MvMemoryClip* clip, qint64 start, qint64 end)
{
    m_clips.erase(Key(start, clip->number()));
    const auto it = m_ends.find(end);
    if (it != m_ends.end())
        m_ends.erase(it);
}

QString MvMemoryTrack::undoLabel() const
{
    return QStringLiteral("track %1").arg(m_row);
}

// A track made later than a capture is not on the timeline then, and not locked.
MvMemoryTrack::State MvMemoryTrack::detached(State value) const
{
    value.locked = false;
    return value;
}
