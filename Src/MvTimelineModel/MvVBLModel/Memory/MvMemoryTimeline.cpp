#include "MvMemoryTimeline.h"

#include "IMvTimelineRuler.h"
#include "MvCallJournal.h"
#include "MvEventBus.h"
#include "MvMemoryClipboard.h"
#include "MvMemoryEditService.h"
#include "MvMemoryKeyFrames.h"
#include "MvMemoryPlayhead.h"
#include "MvMemoryRenderService.h"
#include "MvMemorySelection.h"
#include "MvMemoryTimeline_p.h"
#include "MvMemoryUndoService.h"
#include "MvRulerModel.h"

#include <QHash>

#include <limits>

using namespace MVVBLMODEL;

MvMemoryTimeline::Edit::Edit(const MvMemoryTimeline* timeline, const char* operation, const QString& stepName)
    : m_timeline(const_cast<MvMemoryTimeline*>(timeline))
{
    m_timeline->d_func()->gate.lock();
    m_timeline->d_func()->record(operation);
    m_timeline->d_func()->undo->beginStep(stepName, QLatin1String("MvMemoryTimeline::") + QLatin1String(operation));
}

MvMemoryTimeline::Edit::~Edit()
{
    m_timeline->d_func()->afterChange();
    m_timeline->d_func()->undo->endStep();
    m_timeline->d_func()->gate.unlock();
}

MvMemoryTimeline::Reading::Reading(const MvMemoryTimeline* timeline)
    : m_gate(timeline ? timeline->threadGate() : nullptr)
{
    if (m_gate)
        m_gate->lock();
}

MvMemoryTimeline::Reading::~Reading()
{
    if (m_gate)
        m_gate->unlock();
}

MvMemoryTimelineValues::MvMemoryTimelineValues(MvMemoryUndoRecorder* recorder)
    : MvMemoryValued<MvMemoryTimelineState>(recorder, MvMemoryTimelineState())
{
}

QString MvMemoryTimelineValues::undoLabel() const
{
    return QStringLiteral("timeline");
}

void MvMemoryTimelineValues::setRateFollower(std::function<void(const MVVBLMODEL::MvRational&)> follower)
{
    m_rateFollower = std::move(follower);
    m_followedRate = state().frameRate;
    if (m_rateFollower)
        m_rateFollower(m_followedRate);
}

void MvMemoryTimelineValues::valueChanged()
{
    for (MvMemoryTrack* track : qAsConst(m_numbered))
        track->setRow(-1);
    m_numbered = state().rows;
    for (int row = 0; row < m_numbered.size(); ++row)
        m_numbered.at(row)->setRow(row);
    if (state().frameRate != m_followedRate) {
        m_followedRate = state().frameRate;
        if (m_rateFollower)
            m_rateFollower(m_followedRate);
    }
}

MvMemoryTimelinePrivate::MvMemoryTimelinePrivate(MvMemoryTimeline* q, int timelineKind)
    : q_ptr(q)
    , kind(timelineKind)
    , recorder(new MvMemoryUndoRecorder)
    , values(new MvMemoryTimelineValues(recorder))
    , groups(new MvMemoryGroups(recorder))
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
    delete groups;
    qDeleteAll(allTransitions);
    qDeleteAll(allClips);
    qDeleteAll(allTracks);
    delete values;
    delete recorder;
}

MvMemoryClip* MvMemoryTimelinePrivate::makeClip(const MvMemoryClip::State& state)
{
    Q_Q(MvMemoryTimeline);
    MvMemoryClip::State own = state;
    own.children.clear();
    auto* clip = new MvMemoryClip(q, allClips.size(), own);
    allClips.append(clip);
    // A copy of a composed text gets layers of its own.
    if (!state.children.isEmpty())
        copyChildren(clip, state.children);
    return clip;
}

void MvMemoryTimelinePrivate::afterChange()
{
    const std::vector<MvMemoryUndoable*> changed = recorder->takeChanged();
    if (!selection->isEmpty()) {
        // Only what changed can have left the timeline: a clip and the transitions riding on it,
        // or a transition itself.
        QList<const IMvAbstractClip*> candidates;
        for (MvMemoryUndoable* object : changed) {
            if (const auto* clip = dynamic_cast<const MvMemoryClip*>(object)) {
                candidates.append(clip);
                const QList<MvMemoryTransition*> transitions = clip->liveTransitions();
                for (const MvMemoryTransition* transition : transitions)
                    candidates.append(transition);
            } else if (const auto* transition = dynamic_cast<const MvMemoryTransition*>(object)) {
                candidates.append(transition);
            }
        }
        selection->prune(candidates);
    }
    keyFrameSelector->prune();
    if (activeClip && !activeClip->isOnTimeline()) {
        activeClip = nullptr;
        activeIndex = -1;
    }
    const qint64 now = q_ptr->duration();
    if (now != knownDuration) {
        knownDuration = now;
        // The ruler and the playhead are the view's: they follow on the home thread.
        gate.notify([this, now]() {
            if (ruler)
                ruler->setTotalFrames(now);
            playhead->clampToDuration();
        });
    }
}

void MvMemoryTimelinePrivate::modelChanged(const MvMemoryUndoRecorder::Step& step)
{
    // On the home thread; then through the event bus: a batch over this model's undo service makes
    // one repaint of many steps.
    gate.notify([this, step]() {
        playhead->timelineEdited();
        markChangedFramesUnrendered(step);
        const QList<std::function<void()>> listeners = changeListeners;
        globalEventBus()->post(undo, q_ptr, [listeners] {
            for (const std::function<void()>& listener : listeners)
                listener();
        });
    });
}

// What a viewer sees or hears changed where a clip's value changed (markers are no part of it),
// and over the clip a changed transition rides on, before and after. The step is read in both
// directions alike: undo and redo mark the same frames.
void MvMemoryTimelinePrivate::markChangedFramesUnrendered(const MvMemoryUndoRecorder::Step& step)
{
    auto* render = dynamic_cast<MvMemoryRenderService*>(renderService);
    if (!render)
        return;
    qint64 first = std::numeric_limits<qint64>::max();
    qint64 last = -1;
    auto cover = [&](const MvMemoryClip::State& state) {
        if (state.track) {
            first = qMin(first, state.start);
            last = qMax(last, state.end);
        }
    };
    std::vector<const MvMemoryUndoRecorder::Change*> transitionChanges;
    for (const MvMemoryUndoRecorder::Change& change : step) {
        if (dynamic_cast<const MvMemoryTransition*>(change.object)) {
            transitionChanges.push_back(&change);
        } else if (dynamic_cast<const MvMemoryClip*>(change.object)) {
            const MvMemoryClip::State& before = MvMemoryClip::stateOf(*change.before);
            const MvMemoryClip::State& after = MvMemoryClip::stateOf(*change.after);
            if (before != after) {
                cover(before);
                cover(after);
            }
        }
    }
    if (transitionChanges.empty()) {
        if (last >= first)
            render->markUnfinished(first, last);
        return;
    }
    // A transition covers its owner as the owner stood on the same side of the step.
    QHash<const MvMemoryUndoable*, const MvMemoryUndoRecorder::Change*> clipChanges;
    for (const MvMemoryUndoRecorder::Change& change : step)
        clipChanges.insert(change.object, &change);
    for (const MvMemoryUndoRecorder::Change* change : transitionChanges) {
        for (bool afterSide : { false, true }) {
            const MvMemoryClip* owner = MvMemoryTransition::stateOf(afterSide ? *change->after : *change->before).owner;
            const MvMemoryUndoRecorder::Change* ownerChange = clipChanges.value(owner);
            if (ownerChange)
                cover(MvMemoryClip::stateOf(afterSide ? *ownerChange->after : *ownerChange->before));
            else if (owner)
                cover(owner->state());
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
    MvMemoryThreadGate::Locker locker(&gate);
    record(operation);
    if (undo->isStepOpen()) {
        undo->beginStep(stepName, QLatin1String("MvMemoryTimeline::") + QLatin1String(operation));
        work();
        afterChange();
        undo->endStep();
        return;
    }
    {
        MvMemoryUndoRecorder::Building building(recorder);
        work();
    }
    afterChange();
    undo->clear();
}

MvMemoryTimeline::MvMemoryTimeline(int kind)
    : d_ptr(new MvMemoryTimelinePrivate(this, kind))
{
    Q_D(MvMemoryTimeline);
    d->undo = new MvMemoryUndoService(
        d->recorder, [d] { d->afterChange(); },
        [d](const MvMemoryUndoRecorder::Step& changes) { d->modelChanged(changes); });
    d->playhead = new MvMemoryPlayhead(this);
    d->selection = new MvMemorySelection(this);
    d->subItemSelection = new MvMemorySubItemSelection;
    d->editService = new MvMemoryEditService(this);
    d->markerModel = new MvMemoryMarkerModel(this);
    d->timelineMarkers = new MvMemoryMarkerList(this, nullptr);
    d->keyFrameSelector = new MvMemoryKeyFrameSelector(this);
    d->keyFrameClipboard = new MvMemoryKeyFrameClipboard(this);
    d->undo->setGate(&d->gate);
    d->ruler = IMvTimelineRuler::createInstance();
    d->ruler->setTotalFrames(0);
    // The ruler's time codes follow the project's rate, on the home thread like every observer.
    d->values->setRateFollower([d](const MvRational& rate) {
        d->gate.notify([d, rate]() { d->ruler->setFrameRate(int(rate.numerator), int(rate.denominator)); });
    });
}

MvMemoryTimeline::~MvMemoryTimeline()
{
    // Nothing may reach this timeline once it is gone: neither a held notification nor a copied
    // compound clip that shows it.
    globalEventBus()->cancel(this);
    MvMemoryClipboard::application().forgetTimeline(this);
}

void MvMemoryTimeline::setProjectId(int project)
{
    Q_D(MvMemoryTimeline);
    d->projectId = project;
}

int MvMemoryTimeline::projectId() const
{
    Q_D(const MvMemoryTimeline);
    return d->projectId;
}

void MvMemoryTimeline::setName(const QString& name)
{
    Q_D(MvMemoryTimeline);
    d->name = name;
}

QString MvMemoryTimeline::name() const
{
    Q_D(const MvMemoryTimeline);
    return d->name;
}

int MvMemoryTimeline::kind() const
{
    Q_D(const MvMemoryTimeline);
    return d->kind;
}

qint64 MvMemoryTimeline::duration() const
{
    Q_D(const MvMemoryTimeline);
    qint64 last = -1;
    for (const MvMemoryTrack* track : d->rows())
        last = qMax(last, track->lastEnd());
    return last + 1;
}

int MvMemoryTimeline::trackCount() const
{
    Q_D(const MvMemoryTimeline);
    return d->rows().size();
}

IMvTrack* MvMemoryTimeline::trackAt(int index) const
{
    return memoryTrack(index);
}

MvMemoryTrack* MvMemoryTimeline::memoryTrack(int index) const
{
    Q_D(const MvMemoryTimeline);
    return index >= 0 && index < d->rows().size() ? d->rows().at(index) : nullptr;
}

// The bounds of vertical moves: the top picture row and the bottom audio row.
IMvTrack* MvMemoryTimeline::firstTrackOfType(MvTrackType type) const
{
    Q_D(const MvMemoryTimeline);
    for (MvMemoryTrack* track : d->rows()) {
        if (track->type() == type)
            return track;
    }
    return nullptr;
}

IMvTrack* MvMemoryTimeline::lastTrackOfType(MvTrackType type) const
{
    Q_D(const MvMemoryTimeline);
    const QList<MvMemoryTrack*>& rows = d->rows();
    for (int i = rows.size() - 1; i >= 0; --i) {
        if (rows.at(i)->type() == type)
            return rows.at(i);
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

MvRulerModel* MvMemoryTimeline::rulerImpl() const
{
    Q_D(const MvMemoryTimeline);
    return dynamic_cast<MvRulerModel*>(d->ruler);
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
    MvMemoryThreadGate::Locker locker(&d->gate);
    if (type != TrackType_Audio && type != TrackType_Picture)
        return nullptr;
    MvMemoryTrack* track = nullptr;
    // Picture rows stay on top of the audio rows; a new row goes below the others of its type.
    d->build("addTrack", QStringLiteral("add track"), [d, &track, type] { track = d->insertTrack(type, -1); });
    return track;
}

MvMemoryClip* MvMemoryTimeline::addClip(int trackIndex, MvClipType type, qint64 start, qint64 end, const QString& name)
{
    Q_D(MvMemoryTimeline);
    MvMemoryThreadGate::Locker locker(&d->gate);
    MvMemoryTrack* track = memoryTrack(trackIndex);
    if (!track || !track->accepts(type) || start < 0 || end < start)
        return nullptr;
    if (!track->clipsMeeting(start, end).isEmpty())
        return nullptr;
    MvMemoryClip::State state;
    state.type = type;
    state.start = start;
    state.end = end;
    state.name = name;
    MvMemoryClip* clip = d->makeClip(state);
    d->build("addClip", QStringLiteral("add clip"), [track, clip] { clip->change()->track = track; });
    return clip;
}

MvMemoryTransition* MvMemoryTimeline::addTransition(
    MvMemoryClip* owner, quint16 placement, qint64 length, const QString& name)
{
    Q_D(MvMemoryTimeline);
    MvMemoryThreadGate::Locker locker(&d->gate);
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
    auto* transition = new MvMemoryTransition(this, nextTransitionIdentifier(), state);
    d->allTransitions.append(transition);
    d->build(
        "addTransition", QStringLiteral("add transition"), [transition] { transition->change()->attached = true; });
    return transition;
}

int MvMemoryTimeline::nextTransitionIdentifier()
{
    Q_D(MvMemoryTimeline);
    return d->nextTransitionId++;
}

// A project's frame rate is an undoable setting like any other; clips keep their frames, so
// their times change with it, and the ruler's time codes follow.
void MvMemoryTimeline::setFrameRate(int numerator, int denominator)
{
    Q_D(MvMemoryTimeline);
    const MvRational rate { numerator, denominator };
    if (numerator <= 0 || denominator <= 0 || rate == frameRate())
        return;
    Edit edit(this, "setFrameRate", QStringLiteral("change frame rate"));
    d->values->change()->frameRate = rate;
}

MvMemoryThreadGate* MvMemoryTimeline::threadGate() const
{
    Q_D(const MvMemoryTimeline);
    return const_cast<MvMemoryThreadGate*>(&d->gate);
}

void MvMemoryTimeline::addChangeListener(std::function<void()> listener)
{
    Q_D(MvMemoryTimeline);
    d->changeListeners.append(listener);
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

MvMemoryUndoRecorder* MvMemoryTimeline::undoRecorder() const
{
    Q_D(const MvMemoryTimeline);
    return d->recorder;
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
    for (const MvMemoryTrack* track : d->rows())
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
    return d->groups->liveGroups();
}

MvMemoryGroups* MvMemoryTimeline::groupsImpl() const
{
    Q_D(const MvMemoryTimeline);
    return d->groups;
}

int MvMemoryTimeline::indexOfTrack(const MvMemoryTrack* track) const
{
    return track && track->timeline() == this ? track->index() : -1;
}

int MvMemoryTimeline::groupKindOf(const MvMemoryClip* clip) const
{
    Q_D(const MvMemoryTimeline);
    const MvMemoryClipGroup* group = d->groups->groupOf(clip);
    return group ? group->state().kind : 0;
}

QList<MvMemoryClip*> MvMemoryTimeline::groupMembers(const MvMemoryClip* clip) const
{
    Q_D(const MvMemoryTimeline);
    const MvMemoryClipGroup* group = d->groups->groupOf(clip);
    return group ? group->state().members : QList<MvMemoryClip*>();
}

bool MvMemoryTimeline::isLive(const IMvAbstractClip* item) const
{
    bool live = false;
    ownItem(item, &live);
    return live;
}

const MvMemoryUndoable* MvMemoryTimeline::ownItem(const IMvAbstractClip* item, bool* live) const
{
    const MvMemoryUndoable* own = nullptr;
    bool onTimeline = false;
    if (const auto* clip = dynamic_cast<const MvMemoryClip*>(item)) {
        if (clip->timeline() == this) {
            own = clip;
            onTimeline = clip->isOnTimeline();
        }
    } else if (const auto* transition = dynamic_cast<const MvMemoryTransition*>(item)) {
        if (transition->owner() && transition->owner()->timeline() == this) {
            own = transition;
            onTimeline = transition->isLive();
        }
    }
    if (live)
        *live = onTimeline;
    return own;
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
