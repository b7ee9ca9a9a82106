#include "MvClipTransitionHelper.h"

#include "IMvAbstractClip.h"
#include "IMvAbstractMediaItem.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "IMvTransitionMediaItem.h"
#include "IMvUndoRedoService.h"

#include <QHash>
#include <QRandomGenerator>

#include <algorithm>

using namespace MVVBLMODEL;

namespace {
// An audio transition blends sound, the others pictures: both clips must have what it blends.
bool fitsKind(const IMvClip* clip, bool audio)
{
    return audio ? clipHasSound(clip->type()) : clipHasPicture(clip->type());
}

bool onUnlockedRow(const IMvClip* clip)
{
    const IMvTrack* track = clip ? clip->track() : nullptr;
    return track && !track->isLocked();
}

bool validType(MvTransitionType type)
{
    return type == TransitionType_Start || type == TransitionType_End;
}

// The clip of the row (its clips by start) that touches `clip` on that side, or null.
IMvClip* touching(const QList<IMvClip*>& row, const IMvClip* clip, MvTransitionType side)
{
    const auto at = std::lower_bound(row.cbegin(), row.cend(), clip->start(),
        [](const IMvClip* other, qint64 start) { return other->start() < start; });
    if (at == row.cend() || *at != clip)
        return nullptr;
    if (side == TransitionType_Start) {
        IMvClip* before = at == row.cbegin() ? nullptr : *(at - 1);
        return before && before->end() + 1 == clip->start() ? before : nullptr;
    }
    IMvClip* after = at + 1 == row.cend() ? nullptr : *(at + 1);
    return after && clip->end() + 1 == after->start() ? after : nullptr;
}

// The length of the transition now at that end of the clip, 0 when there is none.
qint64 placedLength(IMvClip* clip, MvTransitionType type)
{
    const IMvTransitionList* list = clip->transitionList();
    const QList<IMvTransition*> transitions = list ? list->transitions() : QList<IMvTransition*>();
    for (const IMvTransition* transition : transitions) {
        if (transition->placement() == type)
            return transition->end() - transition->start() + 1;
    }
    return 0;
}

QList<IMvClip*> rowOf(QHash<IMvTrack*, QList<IMvClip*>>& rows, IMvTrack* track)
{
    auto found = rows.find(track);
    if (found == rows.end())
        found = rows.insert(track, track->clips());
    return found.value();
}
}

MvClipTransitionHelper::MvClipTransitionHelper()
    : m_seed(QRandomGenerator::global()->generate())
{
}

void MvClipTransitionHelper::setFrameRate(const MvRational& rate)
{
    m_frameRate = rate;
}

void MvClipTransitionHelper::setClipList(const QList<IMvClip*>& clips)
{
    m_clips = clips;
}

void MvClipTransitionHelper::setIsAudioTransition(bool audio)
{
    m_audio = audio;
}

void MvClipTransitionHelper::setRandomSeed(quint32 seed)
{
    m_seed = seed;
}

// A cut counts when either of its clips is in the list; each cut once, row by row, by frame.
QList<MvClipTransitionHelper::Cut> MvClipTransitionHelper::cuts(bool audio) const
{
    QHash<IMvTrack*, QList<IMvClip*>> rows;
    QHash<const IMvClip*, bool> seen; // by the later clip of the cut
    QList<Cut> found;
    for (IMvClip* clip : m_clips) {
        if (!onUnlockedRow(clip))
            continue;
        const QList<IMvClip*> row = rowOf(rows, clip->track());
        IMvClip* before = touching(row, clip, TransitionType_Start);
        IMvClip* after = touching(row, clip, TransitionType_End);
        for (const Cut& cut : { Cut { before, clip }, Cut { clip, after } }) {
            if (!cut.before || !cut.after || seen.contains(cut.after))
                continue;
            if (!fitsKind(cut.before, audio) || !fitsKind(cut.after, audio))
                continue;
            seen.insert(cut.after, true);
            found.append(cut);
        }
    }
    std::sort(found.begin(), found.end(), [](const Cut& a, const Cut& b) {
        return a.after->trackIndex() != b.after->trackIndex() ? a.after->trackIndex() < b.after->trackIndex()
                                                              : a.after->start() < b.after->start();
    });
    return found;
}

// A clip starts over another when a clip of another row of the same type plays on its first
// frame and began before it; the overlap lasts until either ends.
QList<MvClipTransitionHelper::Overlap> MvClipTransitionHelper::overlaps(IMvTimeline* timeline, bool audio)
{
    QList<Overlap> found;
    if (!timeline)
        return found;
    QList<QList<IMvClip*>> rows;
    for (int index = 0; index < timeline->trackCount(); ++index)
        rows.append(timeline->trackAt(index) ? timeline->trackAt(index)->clips() : QList<IMvClip*>());
    for (int index = 0; index < rows.size(); ++index) {
        const IMvTrack* track = timeline->trackAt(index);
        if (!track || track->isLocked())
            continue;
        for (IMvClip* clip : rows.at(index)) {
            if (!fitsKind(clip, audio))
                continue;
            qint64 longest = 0;
            for (int other = 0; other < rows.size(); ++other) {
                if (other == index || timeline->trackAt(other)->type() != track->type())
                    continue;
                const QList<IMvClip*>& under = rows.at(other);
                auto at = std::upper_bound(under.cbegin(), under.cend(), clip->start(),
                    [](qint64 start, const IMvClip* c) { return start <= c->start(); });
                if (at == under.cbegin())
                    continue;
                const IMvClip* below = *(at - 1);
                if (below->end() >= clip->start() && fitsKind(below, audio))
                    longest = qMax(longest, qMin(below->end(), clip->end()) - clip->start() + 1);
            }
            if (longest >= MinimumLength)
                found.append({ clip, longest });
        }
    }
    return found;
}

bool MvClipTransitionHelper::addTransitionEnabled() const
{
    return !cuts(m_audio).isEmpty();
}

bool MvClipTransitionHelper::addTransitionEnabled(IMvTimeline* timeline) const
{
    return !overlaps(timeline, m_audio).isEmpty();
}

IMvTransition* MvClipTransitionHelper::place(
    IMvClip* clip, IMvTransitionMediaItem* item, qint64 duration, qint64 limit) const
{
    if (!canAddTransition(clip, TransitionType_Start, item->isAudioTransition()))
        return nullptr;
    IMvTransition* transition = item->createTransition();
    if (!transition)
        return nullptr;
    transition->setFrameRate(m_frameRate);
    // None asked: the item's own length, within half the clip as an asked one would be.
    qint64 length = getDefaultDuration(clip, duration, TransitionType_Start);
    if (length <= 0)
        length = qMin(transition->end() - transition->start() + 1, clip->frameCount() / 2);
    if (limit > 0)
        length = qMin(length, limit);
    transition->setEnd(transition->start() + length, true);
    IMvClipTransitions* ends = clip->transitions();
    const bool placed = ends && ends->setTransition(transition, TransitionType_Start);
    transition->release();
    return placed ? transition : nullptr;
}

MvTransitionPlacement MvClipTransitionHelper::addTransition(IMvTransitionMediaItem* item, qint64 duration)
{
    MvTransitionPlacement placed;
    const QList<Cut> found = item ? cuts(item->isAudioTransition()) : QList<Cut>();
    if (found.isEmpty())
        return placed;
    MvUndoRedoCommander step(found.first().after->undoRedoService(), QStringLiteral("add transition"),
        QStringLiteral("MvClipTransitionHelper::addTransition"));
    for (const Cut& cut : found) {
        if (IMvTransition* transition = place(cut.after, item, duration, 0))
            placed.insert(transition, item);
    }
    return placed;
}

MvTransitionPlacement MvClipTransitionHelper::addOverlapTransition(
    IMvTimeline* timeline, IMvTransitionMediaItem* item, qint64 duration)
{
    MvTransitionPlacement placed;
    const QList<Overlap> found = item ? overlaps(timeline, item->isAudioTransition()) : QList<Overlap>();
    if (found.isEmpty())
        return placed;
    MvUndoRedoCommander step(timeline->undoRedoService(), QStringLiteral("add transition"),
        QStringLiteral("MvClipTransitionHelper::addOverlapTransition"));
    for (const Overlap& overlap : found) {
        if (IMvTransition* transition = place(overlap.clip, item, duration, overlap.length))
            placed.insert(transition, item);
    }
    return placed;
}

MvTransitionPlacement MvClipTransitionHelper::randomAddTransition(
    const QList<IMvAbstractMediaItem*>& items, qint64 duration)
{
    MvTransitionPlacement placed;
    QList<IMvTransitionMediaItem*> byKind[2]; // pictures, sound
    for (IMvAbstractMediaItem* item : items) {
        if (auto* transitionItem = dynamic_cast<IMvTransitionMediaItem*>(item))
            byKind[transitionItem->isAudioTransition() ? 1 : 0].append(transitionItem);
    }
    // A cut of clips with both picture and sound takes one transition, of either kind.
    QList<Cut> found;
    QHash<const IMvClip*, bool> seen;
    for (bool audio : { false, true }) {
        if (byKind[audio ? 1 : 0].isEmpty())
            continue;
        const QList<Cut> kindCuts = cuts(audio);
        for (const Cut& cut : kindCuts) {
            if (!seen.contains(cut.after)) {
                seen.insert(cut.after, true);
                found.append(cut);
            }
        }
    }
    if (found.isEmpty())
        return placed;
    QRandomGenerator generator(m_seed);
    MvUndoRedoCommander step(found.first().after->undoRedoService(), QStringLiteral("random transitions"),
        QStringLiteral("MvClipTransitionHelper::randomAddTransition"));
    for (const Cut& cut : qAsConst(found)) {
        QList<IMvTransitionMediaItem*> candidates;
        for (bool audio : { false, true }) {
            if (fitsKind(cut.before, audio) && fitsKind(cut.after, audio))
                candidates += byKind[audio ? 1 : 0];
        }
        IMvTransitionMediaItem* item = candidates.at(int(generator.bounded(quint32(candidates.size()))));
        if (IMvTransition* transition = place(cut.after, item, duration, 0))
            placed.insert(transition, item);
    }
    return placed;
}

bool MvClipTransitionHelper::canAddTransition(IMvClip* clip, MvTransitionType type, bool isAudio)
{
    return onUnlockedRow(clip) && validType(type) && fitsKind(clip, isAudio) && clip->frameCount() / 2 >= MinimumLength;
}

qint64 MvClipTransitionHelper::getDefaultDuration(IMvClip* clip, qint64 duration, MvTransitionType type)
{
    if (!clip || !validType(type) || duration <= 0)
        return 0;
    return qMin(duration, clip->frameCount() / 2);
}

bool MvClipTransitionHelper::isRepeatFrame(const MvTransitionPlacement& transitions, qint64 duration)
{
    for (auto it = transitions.cbegin(); it != transitions.cend(); ++it) {
        IMvClip* owner = it.key() ? it.key()->ownerClip() : nullptr;
        if (owner && isRepeatFrame(owner, it.key()->placement(), duration))
            return true;
    }
    return false;
}

bool MvClipTransitionHelper::isRepeatFrame(IMvClip* clip, MvTransitionType type, qint64 duration)
{
    if (!clip || !clip->track() || !validType(type))
        return false;
    const IMvClip* neighbour = touching(clip->track()->clips(), clip, type);
    if (!neighbour)
        return false;
    const qint64 placed = placedLength(clip, type);
    const qint64 length = placed > 0 ? placed : duration;
    const qint64 handle = type == TransitionType_Start ? neighbour->handleAfter() : neighbour->handleBefore();
    return length > 0 && handle < length;
}
