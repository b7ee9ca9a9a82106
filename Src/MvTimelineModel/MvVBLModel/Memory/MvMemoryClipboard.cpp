// The clipboard of the in-memory model: copies of timeline items kept as values, and their paste
// into any timeline.
#include "MvMemoryClipboard.h"

#include "MvMemoryCompound.h"
#include "MvMemoryEditService.h"
#include "MvMemoryGroups.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTrack.h"

#include <QHash>
#include <QSet>
#include <QVector>

#include <algorithm>
#include <limits>

using namespace MVVBLMODEL;

namespace {
// The rows of one type, top to bottom.
QList<MvMemoryTrack*> rowsOfType(const MvMemoryTimeline* timeline, MvTrackType type)
{
    QList<MvMemoryTrack*> rows;
    for (int row = 0; row < timeline->trackCount(); ++row) {
        if (timeline->memoryTrack(row)->type() == type)
            rows.append(timeline->memoryTrack(row));
    }
    return rows;
}

bool earlierOnTimeline(const MvMemoryClip* a, const MvMemoryClip* b)
{
    return a->trackIndex() != b->trackIndex() ? a->trackIndex() < b->trackIndex() : a->start() < b->start();
}

MvMemoryCopiedClip copyOf(const MvMemoryClip* clip, const QList<MvMemoryTrack*>& band)
{
    MvMemoryCopiedClip copy;
    copy.state = clip->state();
    copy.state.track = nullptr;
    copy.state.follower = nullptr;
    copy.state.children.clear();
    for (const MvMemoryClip* layer : clip->children()) {
        MvMemoryClip::State state = layer->state();
        state.container = nullptr;
        copy.layers.append(state);
    }
    copy.rowType = clip->trackImpl()->type();
    copy.bandRow = band.indexOf(clip->trackImpl());
    const QList<MvMemoryMarker*> markers = clip->markerList()->attachedMarkers();
    for (const MvMemoryMarker* marker : markers)
        copy.markers.append(marker->state());
    const QList<MvMemoryTransition*> transitions = clip->liveTransitions();
    for (const MvMemoryTransition* transition : transitions) {
        MvMemoryTransition::State state = transition->state();
        state.owner = nullptr;
        copy.transitions.append(state);
    }
    return copy;
}
}

MvMemoryClipboard& MvMemoryClipboard::application()
{
    static MvMemoryClipboard clipboard;
    return clipboard;
}

void MvMemoryClipboard::copyFrom(const MvMemoryTimeline* timeline, const QList<IMvAbstractClip*>& items)
{
    MvMemoryCopy copy;
    QList<MvMemoryClip*> clips;
    QSet<const MvMemoryClip*> taken;
    for (IMvAbstractClip* item : items) {
        bool live = false;
        const MvMemoryUndoable* own = timeline->ownItem(item, &live);
        if (!live)
            continue;
        if (auto* clip = dynamic_cast<MvMemoryClip*>(const_cast<MvMemoryUndoable*>(own))) {
            if (!taken.contains(clip)) {
                taken.insert(clip);
                clips.append(clip);
            }
        } else if (const auto* transition = dynamic_cast<const MvMemoryTransition*>(own)) {
            MvMemoryTransition::State state = transition->state();
            state.owner = nullptr;
            copy.transitions.append(state);
        }
    }
    std::sort(clips.begin(), clips.end(), earlierOnTimeline);
    QHash<const MvMemoryClip*, int> places;
    for (int i = 0; i < clips.size(); ++i)
        places.insert(clips.at(i), i);
    const QList<MvMemoryTrack*> bands[]
        = { rowsOfType(timeline, TrackType_Picture), rowsOfType(timeline, TrackType_Audio) };
    QHash<const MvMemoryClipGroup*, int> groups;
    for (const MvMemoryClip* clip : qAsConst(clips)) {
        const bool audio = clip->trackImpl()->type() == TrackType_Audio;
        MvMemoryCopiedClip copied = copyOf(clip, bands[audio ? 1 : 0]);
        copied.follower = places.value(clip->state().follower, -1);
        if (const MvMemoryClipGroup* group = timeline->groupsImpl()->groupOf(clip)) {
            if (!groups.contains(group)) {
                groups.insert(group, copy.groupKinds.size());
                copy.groupKinds.append(group->state().kind);
            }
            copied.group = groups.value(group);
        }
        copy.clips.append(copied);
    }
    m_copy = copy;
}

void MvMemoryClipboard::forgetTimeline(const MvMemoryTimeline* timeline)
{
    QList<MvMemoryCopiedClip>& clips = m_copy.clips;
    for (int i = clips.size() - 1; i >= 0; --i) {
        if (clips.at(i).state.content != timeline)
            continue;
        clips.removeAt(i);
        // The clips after it move up one place; those that followed it follow nothing.
        for (MvMemoryCopiedClip& other : clips)
            other.follower = other.follower == i ? -1 : (other.follower > i ? other.follower - 1 : other.follower);
    }
}

namespace MvMemoryPaste {

namespace {
struct Placement
{
    int copyIndex;
    int row; // among the rows of its type; at or past their end: a row to add
};

// The copied clips of one type go down together, row by row, to the first rows where all of them
// fit (unlocked, nothing there over their frames), keeping their rows apart as they were; rows
// missing below are added. Answers the row, among the rows of the type, of each clip.
QList<Placement> place(MvMemoryTimeline* timeline, const MvMemoryCopy& copy, const QList<int>& indices,
    MvTrackType type, qint64 offset, int anchor)
{
    QList<Placement> placements;
    int top = std::numeric_limits<int>::max();
    for (int index : indices)
        top = qMin(top, copy.clips.at(index).bandRow);
    for (int index : indices) {
        const int bandRow = copy.clips.at(index).bandRow;
        placements.append({ index, anchor >= 0 ? anchor + bandRow - top : bandRow });
    }
    QList<MvMemoryTrack*> band = rowsOfType(timeline, type);
    const auto fitsAt = [&](int shift) {
        return std::all_of(placements.cbegin(), placements.cend(), [&](const Placement& placement) {
            const int row = placement.row + shift;
            if (row >= band.size())
                return true;
            const MvMemoryClip::State& state = copy.clips.at(placement.copyIndex).state;
            return !band.at(row)->isLocked()
                && band.at(row)->clipsMeeting(state.start + offset, state.end + offset).isEmpty();
        });
    };
    int shift = 0;
    while (!fitsAt(shift))
        ++shift;
    for (Placement& placement : placements)
        placement.row += shift;
    return placements;
}

// A transition with its whole value (its resource too) onto a clip.
MvMemoryTransition* pasteTransition(
    MvMemoryTimeline* timeline, MvMemoryClip* clip, const MvMemoryTransition::State& state, qint64 length)
{
    MvMemoryTransition* made = timeline->addTransition(clip, state.placement, length, state.name);
    if (made) {
        auto value = made->change();
        *value = state;
        value->owner = clip;
        value->length = length;
        value->attached = true;
    }
    return made;
}

MvMemoryClip* pasteOne(MvMemoryTimeline* timeline, const MvMemoryCopiedClip& copied, MvMemoryTrack* row, qint64 offset)
{
    const MvMemoryClip::State& state = copied.state;
    MvMemoryClip* clip
        = timeline->addClip(row->index(), state.type, state.start + offset, state.end + offset, state.name);
    if (!clip)
        return nullptr;
    {
        auto value = clip->change();
        MvMemoryTrack* track = value->track;
        *value = state;
        value->start = state.start + offset;
        value->end = state.end + offset;
        value->track = track;
    }
    for (const MvMemoryMarker::State& marker : copied.markers) {
        if (MvMemoryMarker* made = clip->markerList()->addNamedMarker(marker.frame, marker.color, marker.name))
            made->setComment(marker.comment);
    }
    for (const MvMemoryTransition::State& transition : copied.transitions)
        pasteTransition(timeline, clip, transition, transition.length);
    for (const MvMemoryClip::State& layer : copied.layers) {
        if (MvMemoryClip* made = timeline->addChildClip(clip, layer.type, layer.name, layer.secondary)) {
            auto value = made->change();
            *value = layer;
            value->container = clip;
        }
    }
    return clip;
}

// Where the clips of a type go: the asked row when it is of that type, else the first row of the
// asked type, else (-1) each clip to its own row.
int anchorOf(const MvMemoryTimeline* timeline, MvTrackType type, int trackIndex, MvTrackType trackType)
{
    const MvMemoryTrack* asked = timeline->memoryTrack(trackIndex);
    if (asked && asked->type() == type)
        return rowsOfType(timeline, type).indexOf(const_cast<MvMemoryTrack*>(asked));
    return trackType == type ? 0 : -1;
}
}

unsigned clips(MvMemoryTimeline* timeline, const MvMemoryCopy& copy, qint64 frame, int trackIndex,
    MvTrackType trackType, QList<IMvClip*>& pasted)
{
    unsigned flags = 0;
    QList<int> kept;
    qint64 earliest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < copy.clips.size(); ++i) {
        const unsigned nesting = MvMemoryCompound::nestingFlags(copy.clips.at(i).state.content, timeline);
        flags |= nesting;
        if (nesting == 0) {
            kept.append(i);
            earliest = qMin(earliest, copy.clips.at(i).state.start);
        }
    }
    if (kept.isEmpty())
        return flags;
    const qint64 offset = qMax<qint64>(frame, 0) - earliest;
    QHash<int, MvMemoryClip*> made;
    for (MvTrackType type : { TrackType_Picture, TrackType_Audio }) {
        QList<int> ofType;
        for (int index : qAsConst(kept)) {
            if (copy.clips.at(index).rowType == type)
                ofType.append(index);
        }
        if (ofType.isEmpty())
            continue;
        const QList<Placement> placements
            = place(timeline, copy, ofType, type, offset, anchorOf(timeline, type, trackIndex, trackType));
        int lowest = 0;
        for (const Placement& placement : placements)
            lowest = qMax(lowest, placement.row);
        while (rowsOfType(timeline, type).size() <= lowest)
            timeline->addTrack(type, -1);
        const QList<MvMemoryTrack*> band = rowsOfType(timeline, type);
        for (const Placement& placement : placements) {
            const MvMemoryCopiedClip& copied = copy.clips.at(placement.copyIndex);
            if (MvMemoryClip* clip = pasteOne(timeline, copied, band.at(placement.row), offset))
                made.insert(placement.copyIndex, clip);
        }
    }
    QVector<QList<IMvClip*>> groups(copy.groupKinds.size());
    for (int index : qAsConst(kept)) {
        MvMemoryClip* clip = made.value(index);
        if (!clip)
            continue;
        pasted.append(clip);
        const MvMemoryCopiedClip& copied = copy.clips.at(index);
        if (MvMemoryClip* follower = made.value(copied.follower))
            clip->setMotionTrackFollower(follower);
        if (copied.group >= 0)
            groups[copied.group].append(clip);
    }
    for (int group = 0; group < groups.size(); ++group)
        timeline->editServiceImpl()->group(groups.at(group), copy.groupKinds.at(group));
    return flags;
}

QList<IMvTransition*> transitions(MvMemoryTimeline* timeline, const MvMemoryCopy& copy, const QList<IMvClip*>& targets)
{
    // One transition for each place on a clip: the first copied there.
    QList<MvMemoryTransition::State> picks;
    for (const MvMemoryTransition::State& transition : copy.transitions) {
        const bool taken = std::any_of(picks.cbegin(), picks.cend(),
            [&transition](const MvMemoryTransition::State& pick) { return pick.placement == transition.placement; });
        if (!taken)
            picks.append(transition);
    }
    QList<IMvTransition*> pasted;
    QSet<const MvMemoryClip*> done;
    for (IMvClip* target : targets) {
        MvMemoryClip* clip = timeline->memoryClip(target);
        if (!clip || !clip->isOnTimeline() || clip->trackImpl()->isLocked() || done.contains(clip))
            continue;
        done.insert(clip);
        for (const MvMemoryTransition::State& pick : qAsConst(picks)) {
            // A sound blend goes only onto a clip with sound, a picture blend onto one with a picture.
            if (!(pick.audio ? clipHasSound(clip->type()) : clipHasPicture(clip->type())))
                continue;
            const QList<MvMemoryTransition*> present = clip->liveTransitions();
            for (MvMemoryTransition* old : present) {
                if (old->placement() == pick.placement)
                    clip->transitionList()->remove(old->identifier(), old->placement());
            }
            if (MvMemoryTransition* made = pasteTransition(timeline, clip, pick, qMin(pick.length, clip->frameCount())))
                pasted.append(made);
        }
    }
    return pasted;
}

} // namespace MvMemoryPaste

// ---- the edit service's clipboard operations

void MvMemoryEditService::copy(QList<IMvAbstractClip*> items)
{
    MvMemoryTimeline::Edit edit(m_timeline, "copy", QStringLiteral("copy"));
    MvMemoryClipboard::application().copyFrom(m_timeline, items);
}

// What is on a locked row is copied and stays.
void MvMemoryEditService::cut(QList<IMvAbstractClip*> items)
{
    MvMemoryTimeline::Edit edit(m_timeline, "cut", QStringLiteral("cut"));
    MvMemoryClipboard::application().copyFrom(m_timeline, items);
    QList<IMvClip*> clips;
    QSet<const MvMemoryClip*> cutClips;
    QList<MvMemoryTransition*> transitions;
    for (IMvAbstractClip* item : qAsConst(items)) {
        bool live = false;
        const MvMemoryUndoable* own = m_timeline->ownItem(item, &live);
        if (!live)
            continue;
        if (auto* clip = dynamic_cast<MvMemoryClip*>(const_cast<MvMemoryUndoable*>(own))) {
            if (!clip->trackImpl()->isLocked() && !cutClips.contains(clip)) {
                cutClips.insert(clip);
                clips.append(clip);
            }
        } else if (auto* transition = dynamic_cast<MvMemoryTransition*>(const_cast<MvMemoryUndoable*>(own))) {
            transitions.append(transition);
        }
    }
    // A transition goes with its clip when that is cut too.
    for (MvMemoryTransition* transition : qAsConst(transitions)) {
        if (!cutClips.contains(transition->owner()))
            transition->owner()->transitionList()->remove(transition->identifier(), transition->placement());
    }
    if (!clips.isEmpty())
        m_timeline->deleteClips(clips);
}

bool MvMemoryEditService::canPaste() const
{
    return !MvMemoryClipboard::application().isEmpty();
}

// Mode 3, the only mode: the copy keeps its clips' frames apart and their rows apart, starting at
// frame; clips of each type go down together to the first rows where none of them overlaps
// anything. Any other mode pastes nothing.
int MvMemoryEditService::paste(
    qint64 frame, int trackIndex, QList<IMvClip*>& pastedClips, MvTrackType trackType, int mode)
{
    MvMemoryTimeline::Edit edit(m_timeline, "paste", QStringLiteral("paste"));
    pastedClips.clear();
    if (mode != 3)
        return 0;
    return int(MvMemoryPaste::clips(
        m_timeline, MvMemoryClipboard::application().content(), frame, trackIndex, trackType, pastedClips));
}

void MvMemoryEditService::pasteTransitions(QList<IMvTransition*>& pasted, QList<IMvClip*> targetClips)
{
    MvMemoryTimeline::Edit edit(m_timeline, "pasteTransitions", QStringLiteral("paste transitions"));
    pasted = MvMemoryPaste::transitions(m_timeline, MvMemoryClipboard::application().content(), targetClips);
}
