// Audio of the in-memory model: a picture clip's sound detached onto an audio row, and the remix
// of music clips.
#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"
#include "MvMemoryTrack.h"

using namespace MVVBLMODEL;

bool MvMemoryClip::isRemixed() const
{
    return state().remixed;
}

bool MvMemoryClip::removeRemix()
{
    MvMemoryTimeline::Edit edit(m_timeline, "removeRemix", QStringLiteral("clear remix"));
    if (!state().remixed || (state().track && state().track->isLocked()))
        return false;
    change()->remixed = false;
    return true;
}

// Only music and other clips of an audio kind are remixed (their length fitted to the cut).
bool MvMemoryClip::setRemixed(bool remixed)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setRemixed", QStringLiteral("remix"));
    if (!isAudioClipType(state().type))
        return false;
    if (state().remixed != remixed)
        change()->remixed = remixed;
    return true;
}

// The sound goes to the row asked for when that is a free unlocked audio row, else to the lowest
// such row, else to a new audio row at the bottom: never onto a picture row, never over a clip.
MvMemoryTrack* MvMemoryTimelinePrivate::soundRowFor(const MvMemoryClip* clip, int trackIndex)
{
    Q_Q(MvMemoryTimeline);
    const auto fits = [clip](const MvMemoryTrack* track) {
        return track && track->type() == TrackType_Audio && !track->isLocked()
            && track->clipsMeeting(clip->start(), clip->end()).isEmpty();
    };
    MvMemoryTrack* asked = q->memoryTrack(trackIndex);
    if (fits(asked))
        return asked;
    for (int row = rows().size() - 1; row >= 0; --row) {
        if (fits(rows().at(row)))
            return rows().at(row);
    }
    return insertTrack(TrackType_Audio, -1);
}

// A picture clip with sound becomes a picture clip, and its sound (audio keyframes and mute switch
// with it) a clip of its own over the same frames, linked to it.
void MvMemoryTimeline::detachAudio(IMvClip* clip, int trackIndex)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "detachAudio", QStringLiteral("detach audio"));
    MvMemoryClip* source = memoryClip(clip);
    if (!d->editable(source) || source->type() != ClipType_VideoWithAudio)
        return;
    MvMemoryTrack* row = d->soundRowFor(source, trackIndex);
    MvMemoryClip::State sound;
    sound.type = ClipType_Audio;
    sound.start = source->start();
    sound.end = source->end();
    sound.name = source->name();
    sound.enabled = source->isEnabled();
    sound.audioKeys = source->state().audioKeys;
    sound.muted = source->state().muted;
    sound.resource = source->state().resource;
    MvMemoryClip* detached = d->makeClip(sound);
    detached->change()->track = row;
    {
        auto value = source->change();
        value->type = ClipType_Video;
        value->audioKeys.clear();
        value->muted = false;
    }
    if (d->groups->groupOf(source))
        d->groups->join(source, detached);
    else
        d->groups->form({ source, detached }, 1);
}
