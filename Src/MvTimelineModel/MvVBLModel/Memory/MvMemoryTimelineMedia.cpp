// Media insertion of the in-memory timeline: the project's frame rate, one clip per media item,
// and the clip opened for editing in place.
#include "MvMemoryCompound.h"
#include "MvMemoryCompoundMediaItem.h"
#include "MvMemoryEditService.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"
#include "MvTimelineAddMediaParam.h"

#include <limits>

using namespace MVVBLMODEL;

namespace {
// What a still (an image, a text) lasts when it has no length of its own, in seconds.
constexpr qint64 kStillSeconds = 5;

MvClipType clipTypeFor(MvMediaType type)
{
    switch (type) {
    case MediaType_Video:
        return ClipType_Video;
    case MediaType_Audio:
        return ClipType_Audio;
    case MediaType_Image:
        return ClipType_Image;
    case MediaType_Text:
        return ClipType_Text;
    case MediaType_Subtitle:
        return ClipType_Subtitle;
    case MediaType_ScreenRecording:
        return ClipType_ScreenRecording;
    case MediaType_Compound:
        return ClipType_Compound;
    default:
        return -1;
    }
}

bool carriesText(MvClipType type)
{
    return type == ClipType_Text || type == ClipType_Subtitle || type == ClipType_Title;
}

qint64 stillLength(const MvRational& rate)
{
    return rate.denominator > 0 ? qMax<qint64>(1, kStillSeconds * rate.numerator / rate.denominator) : 1;
}
}

MvRational MvMemoryTimeline::frameRate() const
{
    Q_D(const MvMemoryTimeline);
    return d->values->state().frameRate;
}

// Each clip goes on the row asked for when that row takes its kind and is free over the clip, else
// on the first such row from the top, else on a new row of its kind; policy 1 always makes a new row.
MvMemoryTrack* MvMemoryTimelinePrivate::rowForMedia(MvClipType type, int asked, qint64 start, qint64 end, int policy)
{
    Q_Q(MvMemoryTimeline);
    const auto fits = [&](const MvMemoryTrack* track) {
        return track && track->accepts(type) && !track->isLocked() && track->clipsMeeting(start, end).isEmpty();
    };
    if (policy != 1) {
        MvMemoryTrack* askedRow = q->memoryTrack(asked);
        if (fits(askedRow))
            return askedRow;
        for (MvMemoryTrack* track : rows()) {
            if (fits(track))
                return track;
        }
    }
    return q->addTrack(isAudioClipType(type) ? TrackType_Audio : TrackType_Picture);
}

MvMemoryClip* MvMemoryTimelinePrivate::insertMediaClip(
    const MvTimelineAddMediaParam& param, int index, int policy, unsigned* flags)
{
    Q_Q(MvMemoryTimeline);
    IMvAbstractMediaItem* item = param.mediaItems.at(index);
    const MvClipType type = item ? clipTypeFor(item->mediaType()) : -1;
    if (type < 0)
        return nullptr;
    MvMemoryTimeline* content = nullptr;
    if (type == ClipType_Compound) {
        // A compound clip shows its content: there is nothing to show before it is read.
        auto* compound = dynamic_cast<MvMemoryCompoundMediaItem*>(item);
        if (!compound || !compound->isTimelineLoaded() || !compound->content())
            return nullptr;
        content = compound->content();
        const unsigned refused = MvMemoryCompound::nestingFlags(content, q);
        if (refused != 0) {
            *flags |= refused;
            return nullptr;
        }
    }
    const MvRational rate = q->frameRate();
    qint64 length = param.lengths.value(index, 0);
    if (length < 1)
        length = item->lengthInFrames(rate);
    // A length not known yet (a recording still being written) is taken as a still's.
    if (length < 1)
        length = stillLength(rate);
    const qint64 start = qMax<qint64>(0, param.startFrame);
    // A clip must end before the last 64-bit frame, so that the duration (last end + 1) stays a
    // 64-bit count; one that would not is refused.
    if (length > std::numeric_limits<qint64>::max() - start)
        return nullptr;
    MvMemoryTrack* track = rowForMedia(type, param.trackIndex, start, start + length - 1, policy);
    if (!track)
        return nullptr;

    MvMemoryClip::State state;
    state.type = type;
    state.start = start;
    state.end = start + length - 1;
    state.name = item->name();
    state.enabled = param.enabled;
    state.content = content;
    if (carriesText(type)) {
        state.textColor = param.textColor;
        state.backgroundColor = param.backgroundColor;
    }
    MvMemoryClip* clip = makeClip(state);
    clip->change()->track = track;
    return clip;
}

unsigned MvMemoryTimeline::addMedias(const MvTimelineAddMediaParam& param, QList<IMvClip*>& clips, int policy)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "addMedias", QStringLiteral("add media"));
    clips.clear();
    unsigned flags = 0;
    for (int i = 0; i < param.mediaItems.size(); ++i) {
        if (MvMemoryClip* clip = d->insertMediaClip(param, i, policy, &flags))
            clips.append(clip);
    }
    if (param.groupKind != 0 && clips.size() > 1)
        d->editService->group(clips, param.groupKind);
    return flags;
}

// Only a clip on this timeline opens; opening another closes the one open before.
void MvMemoryTimeline::activateClip(IMvClip* clip, int index)
{
    Q_D(MvMemoryTimeline);
    MvMemoryThreadGate::Locker locker(&d->gate);
    d->record("activateClip");
    MvMemoryClip* own = memoryClip(clip);
    if (!own || !own->isOnTimeline())
        return;
    d->activeClip = own;
    d->activeIndex = index;
}

MvMemoryClip* MvMemoryTimeline::activeClip() const
{
    Q_D(const MvMemoryTimeline);
    return d->activeClip;
}

int MvMemoryTimeline::activeIndex() const
{
    Q_D(const MvMemoryTimeline);
    return d->activeIndex;
}
