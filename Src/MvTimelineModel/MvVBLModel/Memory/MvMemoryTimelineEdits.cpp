// The clip edits of the in-memory timeline: delete, ripple delete, move, split, trim, rotate.
#include "MvMemoryMarks.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"

#include <QHash>

#include <algorithm>
#include <limits>

namespace {
// The last frame a clip may cover: the duration (last end + 1) stays a 64-bit count.
constexpr qint64 kLastFrame = std::numeric_limits<qint64>::max() - 1;

// Keys at offset and after go to the returned map, rebased to offset; the rest stay.
template <typename Map> Map splitTail(Map& source, qint64 offset)
{
    Map tail;
    for (auto it = source.lowerBound(offset); it != source.end();) {
        tail.insert(it.key() - offset, it.value());
        it = source.erase(it);
    }
    return tail;
}

// Keeps keys in first .. last and rebases them so that first becomes 0.
MvKeyFrameMap keepRange(const MvKeyFrameMap& source, qint64 first, qint64 last)
{
    MvKeyFrameMap kept;
    for (auto it = source.lowerBound(first); it != source.cend() && it.key() <= last; ++it)
        kept.insert(it.key() - first, it.value());
    return kept;
}

QMap<int, qint64> keepFreezeRange(const QMap<int, qint64>& source, qint64 first, qint64 last)
{
    QMap<int, qint64> kept;
    for (auto it = source.cbegin(); it != source.cend(); ++it) {
        if (it.value() >= first && it.value() <= last)
            kept.insert(it.key(), it.value() - first);
    }
    return kept;
}

bool endsEarlier(const MvMemoryClip* a, const MvMemoryClip* b)
{
    return a->end() < b->end();
}
}

bool MvMemoryTimelinePrivate::editable(const MvMemoryClip* clip) const
{
    return clip && clip->isOnTimeline() && !clip->trackImpl()->isLocked();
}

QList<MvMemoryClip*> MvMemoryTimelinePrivate::liveClipsOf(const QList<IMvClip*>& clips, bool* allLive) const
{
    Q_Q(const MvMemoryTimeline);
    QList<MvMemoryClip*> live;
    live.reserve(clips.size());
    MvMemoryMarks seen(size_t(allClips.size()));
    bool all = true;
    for (IMvClip* clip : clips) {
        MvMemoryClip* own = q->memoryClip(clip);
        if (!own || !own->isOnTimeline())
            all = false;
        else if (!seen.mark(size_t(own->number())))
            live.append(own);
    }
    if (allLive)
        *allLive = all;
    return live;
}

void MvMemoryTimelinePrivate::detach(MvMemoryClip* clip)
{
    clip->change()->track = nullptr;
}

bool MvMemoryTimeline::deleteClips(QList<IMvClip*> clips)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "deleteClips", QStringLiteral("delete clips"));
    bool allLive = false;
    const QList<MvMemoryClip*> live = d->liveClipsOf(clips, &allLive);
    if (live.isEmpty() || !allLive)
        return false;
    for (const MvMemoryClip* clip : live) {
        if (!d->editable(clip))
            return false;
    }
    for (MvMemoryClip* clip : live)
        d->detach(clip);
    d->groups->removeMembers(live);
    return true;
}

// Each removed clip's length is taken out of its track: a clip moves left by the lengths of the
// removed clips that ended before it started.
void MvMemoryTimelinePrivate::closeGaps(MvMemoryTrack* track, QList<MvMemoryClip*> removed)
{
    std::sort(removed.begin(), removed.end(), endsEarlier);
    qint64 firstStart = removed.first()->start();
    for (const MvMemoryClip* clip : qAsConst(removed))
        firstStart = qMin(firstStart, clip->start());
    const QList<MvMemoryClip*> following = track->clipsFrom(firstStart);
    MvMemoryMarks gone(size_t(allClips.size()));
    for (const MvMemoryClip* clip : qAsConst(removed))
        gone.mark(size_t(clip->number()));
    for (MvMemoryClip* clip : qAsConst(removed))
        detach(clip);
    int passed = 0;
    qint64 shift = 0;
    for (MvMemoryClip* clip : following) {
        if (gone.isMarked(size_t(clip->number())))
            continue;
        while (passed < removed.size() && removed.at(passed)->end() < clip->start())
            shift += removed.at(passed++)->frameCount();
        if (shift == 0)
            continue;
        auto value = clip->change();
        value->start -= shift;
        value->end -= shift;
    }
}

bool MvMemoryTimeline::rippleDeleteClips(QList<IMvClip*> clips)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "rippleDeleteClips", QStringLiteral("ripple delete clips"));
    bool allLive = false;
    const QList<MvMemoryClip*> live = d->liveClipsOf(clips, &allLive);
    if (live.isEmpty() || !allLive)
        return false;
    QHash<MvMemoryTrack*, QList<MvMemoryClip*>> byTrack;
    for (MvMemoryClip* clip : live) {
        if (!d->editable(clip))
            return false;
        byTrack[clip->trackImpl()].append(clip);
    }
    for (auto it = byTrack.cbegin(); it != byTrack.cend(); ++it)
        d->closeGaps(it.key(), it.value());
    d->groups->removeMembers(live);
    return true;
}

// The moved clips may not overlap each other where they land, nor a clip that stays.
bool MvMemoryTimelinePrivate::moveAllowed(const QList<MvMemoryClip*>& clips, const QList<MvMemoryTrack*>& targets,
    qint64 frameOffset, const MvMemoryMarks& moving) const
{
    QHash<MvMemoryTrack*, std::vector<std::pair<qint64, qint64>>> spans;
    for (int i = 0; i < clips.size(); ++i) {
        const MvMemoryClip* clip = clips.at(i);
        MvMemoryTrack* target = targets.at(i);
        if (!editable(clip) || !target || target->isLocked() || !target->accepts(clip->type()))
            return false;
        // A move before frame 0 or past the last frame is refused, never wrapped around.
        const bool fits = frameOffset > 0 ? clip->end() <= kLastFrame - frameOffset : clip->start() + frameOffset >= 0;
        if (!fits)
            return false;
        spans[target].emplace_back(clip->start() + frameOffset, clip->end() + frameOffset);
    }
    const auto staying = [&moving](const MvMemoryClip* clip) { return !moving.isMarked(size_t(clip->number())); };
    for (auto it = spans.begin(); it != spans.end(); ++it) {
        std::vector<std::pair<qint64, qint64>>& landing = it.value();
        std::sort(landing.begin(), landing.end());
        for (size_t i = 0; i < landing.size(); ++i) {
            if (i > 0 && landing[i].first <= landing[i - 1].second)
                return false;
            if (it.key()->anyClipMeeting(landing[i].first, landing[i].second, staying))
                return false;
        }
    }
    return true;
}

// Mode 2 is the only mode: every clip moves by the frame offset and its own track offset, all
// or nothing. A move that would change nothing is refused too.
bool MvMemoryTimeline::moveClips(QList<IMvClip*> clips, QList<int> trackOffsets, qint64 frameOffset, int mode)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "moveClips", QStringLiteral("move clips"));
    if (mode != 2 || clips.isEmpty() || clips.size() != trackOffsets.size())
        return false;
    // A clip given twice moves once, by the track offset given with it first.
    QList<MvMemoryClip*> moving;
    QList<MvMemoryTrack*> targets;
    MvMemoryMarks marks(size_t(d->allClips.size()));
    bool anyChange = frameOffset != 0;
    for (int i = 0; i < clips.size(); ++i) {
        MvMemoryClip* clip = memoryClip(clips.at(i));
        if (!clip || !clip->isOnTimeline())
            return false;
        if (marks.mark(size_t(clip->number())))
            continue;
        moving.append(clip);
        const qint64 row = qint64(clip->trackIndex()) + trackOffsets.at(i);
        targets.append(row >= 0 && row < trackCount() ? memoryTrack(int(row)) : nullptr);
        anyChange = anyChange || trackOffsets.at(i) != 0;
    }
    if (!anyChange || !d->moveAllowed(moving, targets, frameOffset, marks))
        return false;
    for (int i = 0; i < moving.size(); ++i) {
        auto value = moving.at(i)->change();
        value->start += frameOffset;
        value->end += frameOffset;
        value->track = targets.at(i);
    }
    return true;
}

MvMemoryClip* MvMemoryTimelinePrivate::cutClip(MvMemoryClip* clip, qint64 frame)
{
    const qint64 offset = frame - clip->start();
    MvMemoryClip::State piece = clip->state();
    piece.start = frame;
    piece.track = nullptr;
    piece.follower = nullptr;
    // Smart-keying nodes belong to the effect set up on the source; the piece starts without.
    piece.smartKeying = false;
    piece.smartKeyingNodes = 0;
    // Each piece's media goes on where the other piece takes over.
    piece.handleBefore += offset;
    {
        auto source = clip->change();
        piece.videoKeys = splitTail(source->videoKeys, offset);
        piece.audioKeys = splitTail(source->audioKeys, offset);
        piece.freezeFrames.clear();
        for (auto it = source->freezeFrames.begin(); it != source->freezeFrames.end();) {
            if (it.value() >= offset) {
                piece.freezeFrames.insert(it.key(), it.value() - offset);
                it = source->freezeFrames.erase(it);
            } else {
                ++it;
            }
        }
        source->handleAfter += source->end - frame + 1;
        source->end = frame - 1;
    }

    MvMemoryClip* created = makeClip(piece);
    created->change()->track = clip->trackImpl();
    clip->markerList()->moveTailTo(created->markerList(), offset);

    const QList<MvMemoryTransition*> transitions = clip->liveTransitions();
    for (MvMemoryTransition* transition : transitions) {
        auto value = transition->change();
        if (value->placement == IMvTransition::AtEnd)
            value->owner = created;
        value->length = qMin(value->length, value->owner->frameCount());
    }
    groups->join(clip, created);
    return created;
}

void MvMemoryTimeline::splitClips(QList<IMvClip*>& newClips, QList<IMvClip*> clips, qint64 frame)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "splitClips", QStringLiteral("split"));
    newClips.clear();
    const QList<MvMemoryClip*> live = d->liveClipsOf(clips, nullptr);
    for (MvMemoryClip* clip : live) {
        if (d->editable(clip) && clip->start() < frame && frame <= clip->end())
            newClips.append(d->cutClip(clip, frame));
    }
}

namespace {
void clampTransitions(MvMemoryClip* clip)
{
    const QList<MvMemoryTransition*> transitions = clip->liveTransitions();
    for (MvMemoryTransition* transition : transitions) {
        if (transition->length() > clip->frameCount())
            transition->change()->length = clip->frameCount();
    }
}
}

bool MvMemoryTimelinePrivate::trimStart(MvMemoryClip* clip, qint64 frame)
{
    if (!editable(clip) || !(clip->start() < frame && frame <= clip->end()))
        return false;
    const qint64 offset = frame - clip->start();
    const qint64 last = clip->end() - clip->start();
    {
        auto value = clip->change();
        value->videoKeys = keepRange(value->videoKeys, offset, last);
        value->audioKeys = keepRange(value->audioKeys, offset, last);
        value->freezeFrames = keepFreezeRange(value->freezeFrames, offset, last);
        value->handleBefore += offset;
        value->start = frame;
    }
    clip->markerList()->dropOutside(offset, last);
    clip->markerList()->shiftFrames(-offset);
    clampTransitions(clip);
    return true;
}

bool MvMemoryTimelinePrivate::trimEnd(MvMemoryClip* clip, qint64 frame)
{
    if (!editable(clip) || !(clip->start() <= frame && frame < clip->end()))
        return false;
    const qint64 last = frame - clip->start();
    {
        auto value = clip->change();
        value->videoKeys = keepRange(value->videoKeys, 0, last);
        value->audioKeys = keepRange(value->audioKeys, 0, last);
        value->freezeFrames = keepFreezeRange(value->freezeFrames, 0, last);
        value->handleAfter += value->end - frame;
        value->end = frame;
    }
    clip->markerList()->dropOutside(0, last);
    clampTransitions(clip);
    return true;
}

bool MvMemoryTimeline::trimStartToFrame(IMvClip* clip, qint64 frame)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "trimStartToFrame", QStringLiteral("trim start"));
    return d->trimStart(memoryClip(clip), frame);
}

bool MvMemoryTimeline::trimEndToFrame(IMvClip* clip, qint64 frame)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "trimEndToFrame", QStringLiteral("trim end"));
    return d->trimEnd(memoryClip(clip), frame);
}

void MvMemoryTimelinePrivate::rotate(IMvClip* clip, int degrees, const char* operation)
{
    Q_Q(MvMemoryTimeline);
    MvMemoryTimeline::Edit edit(q, operation, QStringLiteral("rotate clip"));
    MvMemoryClip* own = q->memoryClip(clip);
    // Only what has a picture turns.
    if (!editable(own) || !MvMemoryClip::hasPicture(own->type()))
        return;
    own->change()->rotation = (own->rotation() + degrees) % 360;
}

void MvMemoryTimeline::rotateClip90CW(IMvClip* clip)
{
    Q_D(MvMemoryTimeline);
    d->rotate(clip, 90, "rotateClip90CW");
}

void MvMemoryTimeline::rotateClip90CCW(IMvClip* clip)
{
    Q_D(MvMemoryTimeline);
    d->rotate(clip, 270, "rotateClip90CCW");
}
