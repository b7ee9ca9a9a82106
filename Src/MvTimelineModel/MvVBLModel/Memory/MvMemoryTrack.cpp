#include "MvMemoryTrack.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"

#include <limits>

MvMemoryTrack::MvMemoryTrack(MvMemoryTimeline* timeline, MVVBLMODEL::MvTrackType type)
    : MvMemoryValued<State>(timeline->undoRecorder(), State { type, false, true, false, false })
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
    for (const MvMemoryClipIndex::Entry& entry : m_clips)
        clips.append(entry.clip);
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
    for (const MvMemoryClipIndex::Entry& entry : m_clips)
        clips.append(entry.clip);
    return clips;
}

MvMemoryClipIndex::Iterator MvMemoryTrack::firstMeeting(qint64 first) const
{
    auto it = m_clips.lowerBound(Key(first, std::numeric_limits<int>::min()));
    if (it != m_clips.begin())
        --it;
    return it;
}

qint64 MvMemoryTrack::endOf(const MvMemoryClip* clip)
{
    return clip->end();
}

QList<MvMemoryClip*> MvMemoryTrack::clipsMeeting(qint64 first, qint64 last) const
{
    QList<MvMemoryClip*> found;
    anyClipMeeting(first, last, [&found](MvMemoryClip* clip) {
        found.append(clip);
        return false;
    });
    return found;
}

QList<MvMemoryClip*> MvMemoryTrack::clipsFrom(qint64 first) const
{
    QList<MvMemoryClip*> found;
    for (auto it = m_clips.lowerBound(Key(first, std::numeric_limits<int>::min())); it != m_clips.end(); ++it)
        found.append(it->clip);
    return found;
}

qint64 MvMemoryTrack::lastEnd() const
{
    return m_clips.isEmpty() ? -1 : m_clips.last().clip->end();
}

bool MvMemoryTrack::holds(const MvMemoryClip* clip) const
{
    return m_clips.contains(Key(clip->start(), clip->number()), clip);
}

void MvMemoryTrack::noteClip(MvMemoryClip* clip, qint64 start)
{
    m_clips.insert(Key(start, clip->number()), clip);
}

void MvMemoryTrack::forgetClip(const MvMemoryClip* clip, qint64 start)
{
    m_clips.erase(Key(start, clip->number()));
}

void MvMemoryTrack::moveClip(const MvMemoryClip* clip, qint64 from, qint64 to)
{
    m_clips.rekey(Key(from, clip->number()), Key(to, clip->number()));
}

QString MvMemoryTrack::undoLabel() const
{
    return QStringLiteral("track %1").arg(m_row);
}

// A track made later than a capture is not on the timeline then: not locked, shown and heard.
MvMemoryTrack::State MvMemoryTrack::detached(State value) const
{
    value.locked = false;
    value.visible = true;
    value.muted = false;
    value.silentWhileHidden = false;
    return value;
}
