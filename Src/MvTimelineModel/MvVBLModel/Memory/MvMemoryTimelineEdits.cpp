// The clip edits of the in-memory timeline: delete, ripple delete, move, split, trim, rotate.
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"

#include <QHash>

#include <algorithm>

namespace {
// Keys at offset and after go to the returned map, rebased to offset; the rest stay.
template <typename Map> Map splitTail(Map& source, qint64 offset)
{
    Map tail;
    for (auto it = source.begin(); it != source.end();) {
        if (it.key() >= offset) {
            tail.insert(it.key() - offset, it.value());
            it = source.erase(it);
        } else {
            ++it;
        }
    }
    return tail;
}

// Keeps keys in first .. last and rebases them so that first becomes 0.
MvKeyFrameMap keepRange(const MvKeyFrameMap& source, qint64 first, qint64 last)
{
    MvKeyFrameMap kept;
    for (auto it = source.cbegin(); it != source.cend(); ++it) {
        if (it.key() >= first && it.key() <= last)
            kept.insert(it.key() - first, it.value());
    }
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
}

bool MvMemoryTimelinePrivate::editable(const MvMemoryClip* clip) const
{
    return clip && clip->isOnTimeline() && !clip->trackImpl()->isLocked();
}

QList<MvMemoryClip*> MvMemoryTimelinePrivate::liveClipsOf(const QList<IMvClip*>& clips, bool* allLive) const
{
    Q_Q(const MvMemoryTimeline);
    QList<MvMemoryClip*> live;
    bool all = true;
    for (IMvClip* clip : clips) {
        MvMemoryClip* own = q->memoryClip(clip);
        if (!own || !own->isOnTimeline()) {
            all = false;
            continue;
        }
        if (!live.contains(own))
            live.append(own);
    }
    if (allLive)
        *allLive = all;
    return live;
}

void MvMemoryTimelinePrivate::detach(MvMemoryClip* clip)
{
    clip->trackImpl()->take(clip);
    clip->mutableState().track = nullptr;
}

// Removed clips leave their groups; a group left with fewer than two members is dissolved.
void MvMemoryTimelinePrivate::removeFromGroups(const QList<MvMemoryClip*>& clips)
{
    QList<MvMemoryGroup> kept;
    for (MvMemoryGroup group : qAsConst(groups)) {
        for (MvMemoryClip* clip : clips)
            group.members.removeAll(clip);
        if (group.members.size() >= 2)
            kept.append(group);
    }
    groups = kept;
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
    d->removeFromGroups(live);
    return true;
}

// Each removed clip's length is taken out of its track: the clips after it move left.
bool MvMemoryTimeline::rippleDeleteClips(QList<IMvClip*> clips)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "rippleDeleteClips", QStringLiteral("ripple delete clips"));
    bool allLive = false;
    QList<MvMemoryClip*> live = d->liveClipsOf(clips, &allLive);
    if (live.isEmpty() || !allLive)
        return false;
    for (const MvMemoryClip* clip : qAsConst(live)) {
        if (!d->editable(clip))
            return false;
    }
    // Latest first, so that each shift sees the positions the later removals left.
    std::sort(
        live.begin(), live.end(), [](const MvMemoryClip* a, const MvMemoryClip* b) { return a->start() > b->start(); });
    for (MvMemoryClip* removed : qAsConst(live)) {
        MvMemoryTrack* track = removed->trackImpl();
        const qint64 length = removed->frameCount();
        const qint64 removedEnd = removed->end();
        d->detach(removed);
        const QList<MvMemoryClip*> rest = track->memoryClips();
        for (MvMemoryClip* clip : rest) {
            if (clip->start() > removedEnd) {
                clip->mutableState().start -= length;
                clip->mutableState().end -= length;
            }
        }
    }
    d->removeFromGroups(live);
    return true;
}

bool MvMemoryTimelinePrivate::moveAllowed(
    const QList<MvMemoryClip*>& clips, const QList<MvMemoryTrack*>& targets, qint64 frameOffset) const
{
    QHash<MvMemoryTrack*, QList<QPair<qint64, qint64>>> spans;
    for (int i = 0; i < clips.size(); ++i) {
        const MvMemoryClip* clip = clips.at(i);
        MvMemoryTrack* target = targets.at(i);
        if (!editable(clip) || !target || target->isLocked() || !target->accepts(clip->type()))
            return false;
        if (clip->start() + frameOffset < 0)
            return false;
        spans[target].append(qMakePair(clip->start() + frameOffset, clip->end() + frameOffset));
    }
    for (auto it = spans.begin(); it != spans.end(); ++it) {
        QList<QPair<qint64, qint64>> all = it.value();
        const QList<MvMemoryClip*> staying = it.key()->memoryClips();
        for (const MvMemoryClip* clip : staying) {
            if (!clips.contains(const_cast<MvMemoryClip*>(clip)))
                all.append(qMakePair(clip->start(), clip->end()));
        }
        std::sort(all.begin(), all.end());
        for (int i = 1; i < all.size(); ++i) {
            if (all.at(i).first <= all.at(i - 1).second)
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
    QList<MvMemoryClip*> moving;
    QList<MvMemoryTrack*> targets;
    bool anyChange = frameOffset != 0;
    for (int i = 0; i < clips.size(); ++i) {
        MvMemoryClip* clip = memoryClip(clips.at(i));
        if (!clip || !clip->isOnTimeline())
            return false;
        if (moving.contains(clip))
            continue;
        moving.append(clip);
        targets.append(memoryTrack(clip->trackIndex() + trackOffsets.at(i)));
        anyChange = anyChange || trackOffsets.at(i) != 0;
    }
    if (!anyChange || !d->moveAllowed(moving, targets, frameOffset))
        return false;
    for (MvMemoryClip* clip : qAsConst(moving))
        d->detach(clip);
    for (int i = 0; i < moving.size(); ++i) {
        MvMemoryClip::State& state = moving[i]->mutableState();
        state.start += frameOffset;
        state.end += frameOffset;
        state.track = targets.at(i);
        targets.at(i)->insertSorted(moving.at(i));
    }
    return true;
}

MvMemoryClip* MvMemoryTimelinePrivate::cutClip(MvMemoryClip* clip, qint64 frame)
{
    Q_Q(MvMemoryTimeline);
    const qint64 offset = frame - clip->start();
    MvMemoryClip::State& source = clip->mutableState();
    MvMemoryClip::State piece = source;
    piece.start = frame;
    piece.track = nullptr;
    piece.follower = nullptr;
    // Smart-keying nodes belong to the effect set up on the source; the piece starts without.
    piece.smartKeying = false;
    piece.smartKeyingNodes = 0;
    piece.markers = {};
    piece.videoKeys = splitTail(source.videoKeys, offset);
    piece.audioKeys = splitTail(source.audioKeys, offset);
    piece.freezeFrames.clear();
    for (auto it = source.freezeFrames.begin(); it != source.freezeFrames.end();) {
        if (it.value() >= offset) {
            piece.freezeFrames.insert(it.key(), it.value() - offset);
            it = source.freezeFrames.erase(it);
        } else {
            ++it;
        }
    }
    source.end = frame - 1;

    auto* created = new MvMemoryClip(q, piece);
    allClips.append(created);
    created->mutableState().track = clip->trackImpl();
    clip->trackImpl()->insertSorted(created);
    clip->markerList()->moveTailTo(created->markerList(), offset);

    for (MvMemoryTransition* transition : qAsConst(allTransitions)) {
        if (transition->owner() != clip || !transition->state().attached)
            continue;
        MvMemoryTransition::State state = transition->state();
        if (state.placement == IMvTransition::AtEnd)
            state.owner = created;
        state.length = qMin(state.length, state.owner->frameCount());
        transition->restore(state);
    }
    for (MvMemoryGroup& group : groups) {
        if (group.members.contains(clip))
            group.members.append(created);
    }
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
        MvMemoryTransition::State state = transition->state();
        state.length = qMin(state.length, clip->frameCount());
        transition->restore(state);
    }
}
}

bool MvMemoryTimelinePrivate::trimStart(MvMemoryClip* clip, qint64 frame)
{
    if (!editable(clip) || !(clip->start() < frame && frame <= clip->end()))
        return false;
    const qint64 offset = frame - clip->start();
    const qint64 last = clip->end() - clip->start();
    MvMemoryClip::State& state = clip->mutableState();
    state.videoKeys = keepRange(state.videoKeys, offset, last);
    state.audioKeys = keepRange(state.audioKeys, offset, last);
    state.freezeFrames = keepFreezeRange(state.freezeFrames, offset, last);
    state.start = frame;
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
    MvMemoryClip::State& state = clip->mutableState();
    state.videoKeys = keepRange(state.videoKeys, 0, last);
    state.audioKeys = keepRange(state.audioKeys, 0, last);
    state.freezeFrames = keepFreezeRange(state.freezeFrames, 0, last);
    state.end = frame;
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
    own->mutableState().rotation = (own->rotation() + degrees) % 360;
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
