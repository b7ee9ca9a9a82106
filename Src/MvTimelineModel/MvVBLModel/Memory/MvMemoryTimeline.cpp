#include "MvMemoryTimeline.h"

#include "IMvTimelineRuler.h"
#include "MvCallJournal.h"
#include "MvMemoryEditService.h"
#include "MvMemoryKeyFrames.h"
#include "MvMemoryPlayhead.h"
#include "MvMemoryRenderService.h"
#include "MvMemoryRuler.h"
#include "MvMemorySelection.h"
#include "MvMemoryTimeline_p.h"
#include "MvMemoryUndoService.h"

#include <limits>

using namespace MVVBLMODEL;

MvMemoryTimeline::Edit::Edit(const MvMemoryTimeline* timeline, const char* operation, const QString& stepName)
    : m_timeline(const_cast<MvMemoryTimeline*>(timeline))
{
    m_timeline->d_func()->record(operation);
    m_timeline->d_func()->undo->beginStep(stepName, QLatin1String("MvMemoryTimeline::") + QLatin1String(operation));
}

MvMemoryTimeline::Edit::~Edit()
{
    m_timeline->d_func()->afterChange();
    m_timeline->d_func()->undo->endStep();
}

MvMemoryTimelinePrivate::MvMemoryTimelinePrivate(MvMemoryTimeline* q, int timelineKind)
    : q_ptr(q)
    , kind(timelineKind)
{
}

MvMemoryTimelinePrivate::~MvMemoryTimelinePrivate()
{
    delete renderService;
    delete ruler;
    delete keyFrameClipboard;
    delete keyFrameSelector;
    delete timelineMarkers;
    delete markerModel;
    delete editService;
    delete subItemSelection;
    delete selection;
    delete playhead;
    delete undo;
    qDeleteAll(allTransitions);
    qDeleteAll(allClips);
    qDeleteAll(allTracks);
}

MvMemoryModelState MvMemoryTimelinePrivate::capture() const
{
    MvMemoryModelState state;
    state.trackOrder = tracks;
    state.tracks.reserve(allTracks.size());
    for (const MvMemoryTrack* track : allTracks)
        state.tracks.append(track->state());
    state.clips.reserve(allClips.size());
    for (const MvMemoryClip* clip : allClips)
        state.clips.append(clip->state());
    state.transitions.reserve(allTransitions.size());
    for (const MvMemoryTransition* transition : allTransitions)
        state.transitions.append(transition->state());
    state.groups = groups;
    state.timelineMarkers = timelineMarkers->state();
    return state;
}

void MvMemoryTimelinePrivate::restore(const MvMemoryModelState& state)
{
    // Objects created after the capture did not exist then: they go back to being detached.
    tracks = state.trackOrder;
    for (int i = 0; i < allTracks.size(); ++i) {
        if (i < state.tracks.size())
            allTracks[i]->restore(state.tracks.at(i));
        else
            allTracks[i]->restore(MvMemoryTrack::State { allTracks[i]->type(), false, {} });
    }
    for (int i = 0; i < allClips.size(); ++i) {
        if (i < state.clips.size()) {
            allClips[i]->restore(state.clips.at(i));
        } else {
            MvMemoryClip::State detached = allClips[i]->state();
            detached.track = nullptr;
            allClips[i]->restore(detached);
        }
    }
    for (int i = 0; i < allTransitions.size(); ++i) {
        if (i < state.transitions.size()) {
            allTransitions[i]->restore(state.transitions.at(i));
        } else {
            MvMemoryTransition::State detached = allTransitions[i]->state();
            detached.attached = false;
            allTransitions[i]->restore(detached);
        }
    }
    groups = state.groups;
    timelineMarkers->restore(state.timelineMarkers);
    afterChange();
}

void MvMemoryTimelinePrivate::afterChange()
{
    selection->prune();
    keyFrameSelector->prune();
    const qint64 now = q_ptr->duration();
    if (now != knownDuration) {
        knownDuration = now;
        if (ruler)
            ruler->setTotalFrames(now);
        playhead->clampToDuration();
    }
}

namespace {
// What a viewer sees or hears of a clip: everything but its markers.
bool rendersAlike(MvMemoryClip::State a, MvMemoryClip::State b)
{
    a.markers = {};
    b.markers = {};
    return a == b;
}
}

void MvMemoryTimelinePrivate::modelChanged(const MvMemoryModelState& from, const MvMemoryModelState& to)
{
    playhead->timelineEdited();
    markChangedFramesUnrendered(from, to);
    const QList<std::function<void()>> listeners = changeListeners;
    for (const std::function<void()>& listener : listeners)
        listener();
}

void MvMemoryTimelinePrivate::markChangedFramesUnrendered(const MvMemoryModelState& from, const MvMemoryModelState& to)
{
    auto* render = dynamic_cast<MvMemoryRenderService*>(renderService);
    if (!render)
        return;
    qint64 first = std::numeric_limits<qint64>::max();
    qint64 last = -1;
    auto cover = [&](const MvMemoryClip::State* state) {
        if (state && state->track) {
            first = qMin(first, state->start);
            last = qMax(last, state->end);
        }
    };
    const int clipCount = qMax(from.clips.size(), to.clips.size());
    for (int i = 0; i < clipCount; ++i) {
        const MvMemoryClip::State* before = i < from.clips.size() ? &from.clips.at(i) : nullptr;
        const MvMemoryClip::State* after = i < to.clips.size() ? &to.clips.at(i) : nullptr;
        if (!before || !after || !rendersAlike(*before, *after)) {
            cover(before);
            cover(after);
        }
    }
    const int transitionCount = qMin(from.transitions.size(), to.transitions.size());
    for (int i = 0; i < qMax(from.transitions.size(), to.transitions.size()); ++i) {
        if (i < transitionCount && from.transitions.at(i) == to.transitions.at(i))
            continue;
        for (const MvMemoryModelState* state : { &from, &to }) {
            if (i < state->transitions.size() && state->transitions.at(i).owner) {
                const int owner = allClips.indexOf(state->transitions.at(i).owner);
                cover(owner >= 0 && owner < state->clips.size() ? &state->clips.at(owner) : nullptr);
            }
        }
    }
    if (last >= first)
        render->markUnfinished(first, last);
}

void MvMemoryTimelinePrivate::record(const char* operation) const
{
    if (journal)
        journal->record(QLatin1String("model:") + QLatin1String(operation));
}

void MvMemoryTimelinePrivate::build(const char* operation, const QString& stepName, const std::function<void()>& work)
{
    record(operation);
    if (undo->isStepOpen()) {
        undo->beginStep(stepName, QLatin1String("MvMemoryTimeline::") + QLatin1String(operation));
        work();
        afterChange();
        undo->endStep();
        return;
    }
    work();
    afterChange();
    undo->clear();
}

MvMemoryTimeline::MvMemoryTimeline(int kind)
    : d_ptr(new MvMemoryTimelinePrivate(this, kind))
{
    Q_D(MvMemoryTimeline);
    d->undo = new MvMemoryUndoService([d] { return d->capture(); },
        [d](const MvMemoryModelState& state) { d->restore(state); },
        [d](const MvMemoryModelState& from, const MvMemoryModelState& to) { d->modelChanged(from, to); });
    d->playhead = new MvMemoryPlayhead(this);
    d->selection = new MvMemorySelection(this);
    d->subItemSelection = new MvMemorySubItemSelection;
    d->editService = new MvMemoryEditService(this);
    d->markerModel = new MvMemoryMarkerModel(this);
    d->timelineMarkers = new MvMemoryMarkerList(this, nullptr);
    d->keyFrameSelector = new MvMemoryKeyFrameSelector(this);
    d->keyFrameClipboard = new MvMemoryKeyFrameClipboard(this);
    d->ruler = IMvTimelineRuler::createInstance();
    d->ruler->setFrameRate(d->frameRate.numerator, d->frameRate.denominator);
    d->ruler->setTotalFrames(0);
}

MvMemoryTimeline::~MvMemoryTimeline() = default;

int MvMemoryTimeline::kind() const
{
    Q_D(const MvMemoryTimeline);
    return d->kind;
}

qint64 MvMemoryTimeline::duration() const
{
    Q_D(const MvMemoryTimeline);
    qint64 last = -1;
    for (const MvMemoryTrack* track : d->tracks) {
        const QList<MvMemoryClip*> clips = track->memoryClips();
        for (const MvMemoryClip* clip : clips)
            last = qMax(last, clip->end());
    }
    return last + 1;
}

int MvMemoryTimeline::trackCount() const
{
    Q_D(const MvMemoryTimeline);
    return d->tracks.size();
}

IMvTrack* MvMemoryTimeline::trackAt(int index) const
{
    return memoryTrack(index);
}

MvMemoryTrack* MvMemoryTimeline::memoryTrack(int index) const
{
    Q_D(const MvMemoryTimeline);
    return index >= 0 && index < d->tracks.size() ? d->tracks.at(index) : nullptr;
}

// The bounds of vertical moves: the top picture row and the bottom audio row.
IMvTrack* MvMemoryTimeline::firstTrackOfType(MvTrackType type) const
{
    Q_D(const MvMemoryTimeline);
    for (MvMemoryTrack* track : d->tracks) {
        if (track->type() == type)
            return track;
    }
    return nullptr;
}

IMvTrack* MvMemoryTimeline::lastTrackOfType(MvTrackType type) const
{
    Q_D(const MvMemoryTimeline);
    for (int i = d->tracks.size() - 1; i >= 0; --i) {
        if (d->tracks.at(i)->type() == type)
            return d->tracks.at(i);
    }
    return nullptr;
}

void MvMemoryTimeline::beginDelete()
{
    Q_D(MvMemoryTimeline);
    d->record("beginDelete");
    ++d->beginDeleteCount;
}

int MvMemoryTimeline::beginDeleteCount() const
{
    Q_D(const MvMemoryTimeline);
    return d->beginDeleteCount;
}

bool MvMemoryTimeline::isSeekAfterDelete() const
{
    Q_D(const MvMemoryTimeline);
    return d->seekAfterDelete;
}

void MvMemoryTimeline::setSeekAfterDelete(bool seek)
{
    Q_D(MvMemoryTimeline);
    d->seekAfterDelete = seek;
}

IMvClipEditService* MvMemoryTimeline::editService() const
{
    return editServiceImpl();
}

IMvSelection* MvMemoryTimeline::selection() const
{
    return selectionImpl();
}

IMvSubItemSelection* MvMemoryTimeline::subItemSelection() const
{
    return subItemSelectionImpl();
}

IMvMarkerModel* MvMemoryTimeline::markerModel() const
{
    return markerModelImpl();
}

IMvMarkerList* MvMemoryTimeline::timelineMarkers() const
{
    return timelineMarkerList();
}

IMvTimelinePlayhead* MvMemoryTimeline::playhead() const
{
    return playheadImpl();
}

IMvTimelineRuler* MvMemoryTimeline::ruler() const
{
    Q_D(const MvMemoryTimeline);
    return d->ruler;
}

IMvUndoRedoService* MvMemoryTimeline::undoRedoService() const
{
    return undoService();
}

IMvTimelineRenderService* MvMemoryTimeline::renderService() const
{
    // Made on first use so that a subclass's factory is the one called.
    MvMemoryTimelinePrivate* d = d_ptr.data();
    if (!d->renderService)
        d->renderService = const_cast<MvMemoryTimeline*>(this)->createRenderService();
    return d->renderService;
}

MvMemoryRuler* MvMemoryTimeline::rulerImpl() const
{
    Q_D(const MvMemoryTimeline);
    return dynamic_cast<MvMemoryRuler*>(d->ruler);
}

MvMemoryRenderService* MvMemoryTimeline::renderServiceImpl() const
{
    return dynamic_cast<MvMemoryRenderService*>(renderService());
}

IMvTimelineRenderService* MvMemoryTimeline::createRenderService()
{
    return new MvMemoryRenderService;
}

IMvKeyFrameSelector* MvMemoryTimeline::keyFrameSelector() const
{
    return keyFrameSelectorImpl();
}

IMvKeyFrameClipboard* MvMemoryTimeline::keyFrameClipboard() const
{
    return keyFrameClipboardImpl();
}

void MvMemoryTimeline::smartKeyingClips(QList<IMvClip*>& clips) const
{
    Q_D(const MvMemoryTimeline);
    clips.clear();
    const QList<IMvClip*> selected = d->selection->selectedClips();
    for (IMvClip* clip : selected) {
        if (clip->smartKeyingNodes() && clip->smartKeyingNodes()->count() > 0)
            clips.append(clip);
    }
}

bool MvMemoryTimeline::virtualPlayheadAllowed() const
{
    Q_D(const MvMemoryTimeline);
    return d->virtualAllowed;
}

void MvMemoryTimeline::setVirtualPlayheadAllowed(bool allowed)
{
    Q_D(MvMemoryTimeline);
    d->virtualAllowed = allowed;
}

// The player was paused just before: the playhead rests where it stands.
void MvMemoryTimeline::prepareVirtualPlayhead()
{
    Q_D(MvMemoryTimeline);
    d->record("prepareVirtualPlayhead");
    d->playhead->settle();
}

MvMemoryTrack* MvMemoryTimeline::addTrack(MvTrackType type)
{
    Q_D(MvMemoryTimeline);
    if (type != TrackType_Audio && type != TrackType_Picture)
        return nullptr;
    auto* track = new MvMemoryTrack(this, type);
    d->allTracks.append(track);
    d->build("addTrack", QStringLiteral("add track"), [d, track, type] {
        // Picture rows stay on top of the audio rows.
        int at = d->tracks.size();
        if (type == TrackType_Picture) {
            at = 0;
            while (at < d->tracks.size() && d->tracks.at(at)->type() == TrackType_Picture)
                ++at;
        }
        d->tracks.insert(at, track);
    });
    return track;
}

MvMemoryClip* MvMemoryTimeline::addClip(int trackIndex, MvClipType type, qint64 start, qint64 end, const QString& name)
{
    Q_D(MvMemoryTimeline);
    MvMemoryTrack* track = memoryTrack(trackIndex);
    if (!track || !track->accepts(type) || start < 0 || end < start)
        return nullptr;
    const QList<MvMemoryClip*> present = track->memoryClips();
    for (const MvMemoryClip* other : present) {
        if (other->start() <= end && start <= other->end())
            return nullptr;
    }
    MvMemoryClip::State state;
    state.type = type;
    state.start = start;
    state.end = end;
    state.name = name;
    auto* clip = new MvMemoryClip(this, state);
    d->allClips.append(clip);
    d->build("addClip", QStringLiteral("add clip"), [track, clip] {
        clip->mutableState().track = track;
        track->insertSorted(clip);
    });
    return clip;
}

MvMemoryTransition* MvMemoryTimeline::addTransition(
    MvMemoryClip* owner, quint16 placement, qint64 length, const QString& name)
{
    Q_D(MvMemoryTimeline);
    if (!owner || owner->timeline() != this || !owner->isOnTimeline() || length < 1 || length > owner->frameCount())
        return nullptr;
    if (placement != IMvTransition::AtStart && placement != IMvTransition::AtEnd)
        return nullptr;
    const QList<MvMemoryTransition*> present = owner->liveTransitions();
    for (const MvMemoryTransition* other : present) {
        if (other->placement() == placement)
            return nullptr;
    }
    MvMemoryTransition::State state;
    state.owner = owner;
    state.placement = placement;
    state.length = length;
    state.name = name;
    state.attached = false;
    auto* transition = new MvMemoryTransition(nextTransitionIdentifier(), state);
    d->allTransitions.append(transition);
    d->build("addTransition", QStringLiteral("add transition"), [transition] {
        MvMemoryTransition::State attached = transition->state();
        attached.attached = true;
        transition->restore(attached);
    });
    return transition;
}

int MvMemoryTimeline::nextTransitionIdentifier()
{
    Q_D(MvMemoryTimeline);
    return d->nextTransitionId++;
}

void MvMemoryTimeline::setFrameRate(int numerator, int denominator)
{
    Q_D(MvMemoryTimeline);
    if (numerator <= 0 || denominator <= 0)
        return;
    d->frameRate = MvFrameRate { numerator, denominator };
    d->ruler->setFrameRate(numerator, denominator);
}

MvFrameRate MvMemoryTimeline::frameRate() const
{
    Q_D(const MvMemoryTimeline);
    return d->frameRate;
}

void MvMemoryTimeline::addChangeListener(std::function<void()> listener)
{
    Q_D(MvMemoryTimeline);
    d->changeListeners.append(std::move(listener));
}

void MvMemoryTimeline::setJournal(MvCallJournal* journal)
{
    Q_D(MvMemoryTimeline);
    d->journal = journal;
}

MvCallJournal* MvMemoryTimeline::journal() const
{
    Q_D(const MvMemoryTimeline);
    return d->journal;
}

MvMemoryPlayhead* MvMemoryTimeline::playheadImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->playhead;
}

MvMemoryUndoService* MvMemoryTimeline::undoService() const
{
    Q_D(const MvMemoryTimeline);
    return d->undo;
}

MvMemorySelection* MvMemoryTimeline::selectionImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->selection;
}

MvMemorySubItemSelection* MvMemoryTimeline::subItemSelectionImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->subItemSelection;
}

MvMemoryEditService* MvMemoryTimeline::editServiceImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->editService;
}

MvMemoryMarkerModel* MvMemoryTimeline::markerModelImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->markerModel;
}

MvMemoryMarkerList* MvMemoryTimeline::timelineMarkerList() const
{
    Q_D(const MvMemoryTimeline);
    return d->timelineMarkers;
}

MvMemoryKeyFrameSelector* MvMemoryTimeline::keyFrameSelectorImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->keyFrameSelector;
}

MvMemoryKeyFrameClipboard* MvMemoryTimeline::keyFrameClipboardImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->keyFrameClipboard;
}

QList<MvMemoryClip*> MvMemoryTimeline::liveClips() const
{
    Q_D(const MvMemoryTimeline);
    QList<MvMemoryClip*> clips;
    for (const MvMemoryTrack* track : d->tracks)
        clips += track->memoryClips();
    return clips;
}

QList<MvMemoryClip*> MvMemoryTimeline::allClips() const
{
    Q_D(const MvMemoryTimeline);
    return d->allClips;
}

QList<MvMemoryGroup> MvMemoryTimeline::groups() const
{
    Q_D(const MvMemoryTimeline);
    return d->groups;
}

int MvMemoryTimeline::indexOfTrack(const MvMemoryTrack* track) const
{
    Q_D(const MvMemoryTimeline);
    return d->tracks.indexOf(const_cast<MvMemoryTrack*>(track));
}

int MvMemoryTimeline::groupKindOf(const MvMemoryClip* clip) const
{
    Q_D(const MvMemoryTimeline);
    for (const MvMemoryGroup& group : d->groups) {
        if (group.members.contains(const_cast<MvMemoryClip*>(clip)))
            return group.kind;
    }
    return 0;
}

QList<MvMemoryClip*> MvMemoryTimeline::groupMembers(const MvMemoryClip* clip) const
{
    Q_D(const MvMemoryTimeline);
    for (const MvMemoryGroup& group : d->groups) {
        if (group.members.contains(const_cast<MvMemoryClip*>(clip)))
            return group.members;
    }
    return {};
}

void MvMemoryTimeline::setGroups(const QList<MvMemoryGroup>& groups)
{
    Q_D(MvMemoryTimeline);
    d->groups = groups;
}

bool MvMemoryTimeline::isLive(const IMvAbstractClip* item) const
{
    if (const auto* clip = dynamic_cast<const MvMemoryClip*>(item))
        return clip->timeline() == this && clip->isOnTimeline();
    if (const auto* transition = dynamic_cast<const MvMemoryTransition*>(item))
        return transition->owner() && transition->owner()->timeline() == this && transition->isLive();
    return false;
}

bool MvMemoryTimeline::isLiveMarker(const IMvMarker* marker) const
{
    const auto* own = dynamic_cast<const MvMemoryMarker*>(marker);
    if (!own || !own->isAttached())
        return false;
    const auto* list = static_cast<const MvMemoryMarkerList*>(own->ownerList());
    return list->timeline() == this && (!list->clip() || list->clip()->isOnTimeline());
}

MvMemoryClip* MvMemoryTimeline::memoryClip(IMvClip* clip) const
{
    auto* own = dynamic_cast<MvMemoryClip*>(clip);
    return own && own->timeline() == this ? own : nullptr;
}

QList<MvMemoryTransition*> MvMemoryTimeline::transitionsOf(const MvMemoryClip* clip) const
{
    Q_D(const MvMemoryTimeline);
    QList<MvMemoryTransition*> found;
    for (MvMemoryTransition* transition : d->allTransitions) {
        if (transition->owner() == clip && transition->state().attached) {
            if (transition->placement() == IMvTransition::AtStart)
                found.prepend(transition);
            else
                found.append(transition);
        }
    }
    return found;
}
