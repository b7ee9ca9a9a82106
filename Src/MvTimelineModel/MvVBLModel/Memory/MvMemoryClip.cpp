#include "MvMemoryClip.h"

#include "MvMemoryTimeline.h"
#include "MvMemoryTrack.h"

#include <algorithm>

using namespace MVVBLMODEL;

bool MvMemoryClipState::operator==(const MvMemoryClipState& other) const
{
#ifdef MV_PLANT_FAULT_UNDO_FORGETS_FIELD
    // PLANTED FAULT, compiled only with MV_PLANT_FAULT=undo-forgets-field: the rotation is left out
    // of the comparison, so a turn is never recorded and undo cannot give it back.
    const bool sameRotation = true;
#else
    const bool sameRotation = rotation == other.rotation;
#endif
    return type == other.type && start == other.start && end == other.end && name == other.name
        && enabled == other.enabled && track == other.track && sameRotation && follower == other.follower
        && tracking == other.tracking && smartKeying == other.smartKeying && smartKeyingNodes == other.smartKeyingNodes
        && videoKeys == other.videoKeys && audioKeys == other.audioKeys && freezeFrames == other.freezeFrames
        && content == other.content && resource == other.resource && container == other.container
        && children == other.children && secondary == other.secondary && muted == other.muted
        && remixed == other.remixed && textColor == other.textColor && backgroundColor == other.backgroundColor
        && effects == other.effects && userData == other.userData && handleBefore == other.handleBefore
        && handleAfter == other.handleAfter;
}

// ---- transitions

MvMemoryTransition::MvMemoryTransition(MvMemoryTimeline* timeline, int identifier, const State& state)
    : MvMemoryValued<State>(timeline->undoRecorder(), state)
    , m_identifier(identifier)
    , m_timeline(timeline)
    , m_resourceInfo(new MvMemoryResourceInfo(&this->state().resource))
{
    valueChanged();
}

MvClipType MvMemoryTransition::type() const
{
    return ClipType_Transition;
}

qint64 MvMemoryTransition::start() const
{
    const State& s = state();
    if (!s.owner)
        return 0;
    return s.placement == AtStart ? s.owner->start() : s.owner->end() - s.length + 1;
}

qint64 MvMemoryTransition::end() const
{
    const State& s = state();
    if (!s.owner)
        return s.length - 1;
    return s.placement == AtStart ? s.owner->start() + s.length - 1 : s.owner->end();
}

QString MvMemoryTransition::name() const
{
    return state().name;
}

IMvClip* MvMemoryTransition::ownerClip() const
{
    return state().owner;
}

int MvMemoryTransition::identifier() const
{
    return m_identifier;
}

quint16 MvMemoryTransition::placement() const
{
    return state().placement;
}

bool MvMemoryTransition::isLive() const
{
    return state().attached && state().owner && state().owner->isOnTimeline();
}

QString MvMemoryTransition::undoLabel() const
{
    return QStringLiteral("transition %1").arg(m_identifier);
}

MvMemoryTransition::State MvMemoryTransition::detached(State value) const
{
    value.attached = false;
    return value;
}

void MvMemoryTransition::valueChanged()
{
    MvMemoryClip* owner = state().attached ? state().owner : nullptr;
    if (owner == m_indexedOwner)
        return;
    if (m_indexedOwner)
        m_indexedOwner->forgetTransition(this);
    m_indexedOwner = owner;
    if (m_indexedOwner)
        m_indexedOwner->noteTransition(this);
}

QList<IMvTransition*> MvMemoryTransitionList::transitions() const
{
    QList<IMvTransition*> list;
    if (!m_clip->isOnTimeline())
        return list;
    const QList<MvMemoryTransition*> live = m_clip->liveTransitions();
    for (MvMemoryTransition* transition : live)
        list.append(transition);
    return list;
}

bool MvMemoryTransitionList::remove(int identifier, quint16 placement)
{
    MvMemoryTimeline::Edit edit(m_clip->timeline(), "removeTransition", QStringLiteral("remove transition"));
    const QList<MvMemoryTransition*> live = m_clip->liveTransitions();
    for (MvMemoryTransition* transition : live) {
        if (transition->identifier() == identifier && transition->placement() == placement) {
            if (m_clip->trackImpl()->isLocked())
                return false;
            transition->change()->attached = false;
            return true;
        }
    }
    return false;
}

// ---- freeze frames and smart-keying nodes

QList<int> MvMemoryFreezeFrameList::ids() const
{
    return m_clip->state().freezeFrames.keys();
}

bool MvMemoryFreezeFrameList::contains(int id) const
{
    return m_clip->state().freezeFrames.contains(id);
}

bool MvMemoryFreezeFrameList::remove(int id)
{
    MvMemoryTimeline::Edit edit(m_clip->timeline(), "removeFreezeFrame", QStringLiteral("remove freeze frame"));
    if (!contains(id) || (m_clip->trackImpl() && m_clip->trackImpl()->isLocked()))
        return false;
    m_clip->change()->freezeFrames.remove(id);
    return true;
}

int MvMemorySmartKeyingNodes::count() const
{
    return m_clip->state().smartKeyingNodes;
}

quint64 MvMemorySmartKeyingNodes::selectedIndex() const
{
    // Undo may have taken the selected node away.
    return m_selected < quint64(count()) ? m_selected : NoSelection;
}

void MvMemorySmartKeyingNodes::setSelectedIndex(quint64 index)
{
    m_selected = index < quint64(count()) ? index : NoSelection;
}

void MvMemorySmartKeyingNodes::removeAt(quint64 index)
{
    MvMemoryTimeline::Edit edit(
        m_clip->timeline(), "removeSmartKeyingNode", QStringLiteral("remove smart keying node"));
    if (index >= quint64(count()))
        return;
    --m_clip->change()->smartKeyingNodes;
    if (m_selected == index)
        m_selected = NoSelection;
    else if (m_selected != NoSelection && m_selected > index)
        --m_selected;
}

// ---- the clip

MvMemoryClip::MvMemoryClip(MvMemoryTimeline* timeline, int number, const State& state)
    : MvMemoryValued<State>(timeline->undoRecorder(), state)
    , m_timeline(timeline)
    , m_number(number)
    , m_markers(new MvMemoryMarkerList(timeline, this))
    , m_transitions(new MvMemoryTransitionList(this))
    , m_freezeFrames(new MvMemoryFreezeFrameList(this))
    , m_nodes(new MvMemorySmartKeyingNodes(this))
    , m_effects(new MvMemoryEffectContainer(this, false))
    , m_resourceInfo(new MvMemoryResourceInfo(&this->state().resource))
{
    valueChanged();
}

MvMemoryClip::~MvMemoryClip()
{
    delete m_effects;
    delete m_nodes;
    delete m_freezeFrames;
    delete m_transitions;
    delete m_markers;
}

MvClipType MvMemoryClip::type() const
{
    return state().type;
}

// A layer of a composed text shows for as long as its item.
qint64 MvMemoryClip::start() const
{
    return state().container ? state().container->start() : state().start;
}

qint64 MvMemoryClip::end() const
{
    return state().container ? state().container->end() : state().end;
}

QString MvMemoryClip::name() const
{
    return state().name;
}

qint64 MvMemoryClip::position() const
{
    return start();
}

qint64 MvMemoryClip::frameCount() const
{
    return end() - start() + 1;
}

bool MvMemoryClip::isEnabled() const
{
    return state().enabled;
}

IMvTimeline* MvMemoryClip::ownerTimeline() const
{
    return m_timeline;
}

IMvTrack* MvMemoryClip::track() const
{
    return state().track;
}

int MvMemoryClip::trackIndex() const
{
    return state().track ? state().track->index() : -1;
}

int MvMemoryClip::groupKind() const
{
    return m_timeline->groupKindOf(this);
}

int MvMemoryClip::rotation() const
{
    return state().rotation;
}

IMvTransitionList* MvMemoryClip::transitionList() const
{
    return m_transitions;
}

IMvMarkerList* MvMemoryClip::clipMarkers() const
{
    return m_markers;
}

IMvFreezeFrameList* MvMemoryClip::freezeFrames() const
{
    return hasPicture(state().type) ? m_freezeFrames : nullptr;
}

IMvSmartKeyingNodes* MvMemoryClip::smartKeyingNodes() const
{
    return state().smartKeying ? m_nodes : nullptr;
}

// A follower that left the timeline follows nothing any more.
IMvClip* MvMemoryClip::motionTrackFollower() const
{
    return state().follower && state().follower->isOnTimeline() ? state().follower : nullptr;
}

bool MvMemoryClip::isMotionTrackingEnabled() const
{
    return state().tracking;
}

QList<qint64> MvMemoryClip::keyFrames(bool audio) const
{
    return (audio ? state().audioKeys : state().videoKeys).keys();
}

bool MvMemoryClip::addKeyFrame(bool audio, qint64 clipFrame, const QList<MvEffectPropertyBaseInfo>& properties)
{
    MvMemoryTimeline::Edit edit(m_timeline, "addKeyFrame", QStringLiteral("add key frame"));
    const bool sideOk = audio ? supportsAudioKeyFrames(state().type) : supportsVideoKeyFrames(state().type);
    const MvKeyFrameMap& keys = audio ? state().audioKeys : state().videoKeys;
    if (!sideOk || clipFrame < 0 || clipFrame >= frameCount() || keys.contains(clipFrame))
        return false;
    if (state().track && state().track->isLocked())
        return false;
    auto value = change();
    (audio ? value->audioKeys : value->videoKeys).insert(clipFrame, properties);
    return true;
}

bool MvMemoryClip::canCopyKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio) const
{
    if (!selection.isValid() || selection.clip != this || selection.isAudio() != audio)
        return false;
    const MvKeyFrameMap& keys = audio ? state().audioKeys : state().videoKeys;
    for (qint64 frame : selection.frames) {
        if (!keys.contains(frame))
            return false;
    }
    return true;
}

bool MvMemoryClip::removeKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio)
{
    MvMemoryTimeline::Edit edit(m_timeline, "removeKeyFrames", QStringLiteral("remove key frames"));
    if (selection.clip != this || (state().track && state().track->isLocked()))
        return false;
    const MvKeyFrameMap& keys = audio ? state().audioKeys : state().videoKeys;
    const bool any = std::any_of(
        selection.frames.cbegin(), selection.frames.cend(), [&keys](qint64 frame) { return keys.contains(frame); });
    if (!any)
        return false;
    auto value = change();
    for (qint64 frame : selection.frames)
        (audio ? value->audioKeys : value->videoKeys).remove(frame);
    return true;
}

IMvKeyFrameSelector::MvSelectData MvMemoryClip::allKeyFrames(bool audio) const
{
    IMvKeyFrameSelector::MvSelectData data;
    data.clip = const_cast<MvMemoryClip*>(this);
    data.side = audio ? IMvKeyFrameSelector::AudioSide : IMvKeyFrameSelector::VideoSide;
    data.frames = keyFrames(audio);
    return data;
}

void MvMemoryClip::setName(const QString& name)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setName", QStringLiteral("rename clip"));
    change()->name = name;
}

void MvMemoryClip::setCompoundContent(MvMemoryTimeline* content)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setCompoundContent", QStringLiteral("set compound content"));
    change()->content = content;
}

void MvMemoryClip::setEnabled(bool enabled)
{
    MvMemoryTimeline::Edit edit(
        m_timeline, "setEnabled", enabled ? QStringLiteral("enable clip") : QStringLiteral("disable clip"));
    change()->enabled = enabled;
}

void MvMemoryClip::setMotionTrackFollower(MvMemoryClip* follower)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setMotionTrackFollower", QStringLiteral("set motion tracking"));
    if (follower == this || (follower && follower->timeline() != m_timeline))
        return;
    change()->follower = follower;
}

void MvMemoryClip::setMotionTrackingEnabled(bool enabled)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setMotionTrackingEnabled", QStringLiteral("set motion tracking"));
    change()->tracking = enabled;
}

void MvMemoryClip::setSmartKeyingNodeCount(int count)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setSmartKeyingNodeCount", QStringLiteral("smart keying"));
    auto value = change();
    value->smartKeying = count > 0;
    value->smartKeyingNodes = qMax(0, count);
}

bool MvMemoryClip::addFreezeFrame(int id, qint64 clipFrame)
{
    MvMemoryTimeline::Edit edit(m_timeline, "addFreezeFrame", QStringLiteral("add freeze frame"));
    if (!hasPicture(state().type) || state().freezeFrames.contains(id) || clipFrame < 0 || clipFrame >= frameCount())
        return false;
    change()->freezeFrames.insert(id, clipFrame);
    return true;
}

MvKeyFrameProperties MvMemoryClip::keyFrameProperties(bool audio, qint64 clipFrame) const
{
    return (audio ? state().audioKeys : state().videoKeys).value(clipFrame);
}

bool MvMemoryClip::supportsAudioKeyFrames(MvClipType type)
{
    switch (type) {
    case ClipType_VideoWithAudio:
    case ClipType_ScreenRecording:
    case ClipType_Music:
    case ClipType_Compound:
    case ClipType_SoundEffect:
    case ClipType_Audio:
        return true;
    default:
        return false;
    }
}

bool MvMemoryClip::supportsVideoKeyFrames(MvClipType type)
{
    switch (type) {
    case ClipType_Video:
    case ClipType_VideoWithAudio:
    case ClipType_ScreenRecording:
    case ClipType_Compound:
    case ClipType_Image:
    case ClipType_Text:
    case ClipType_Sticker:
    case ClipType_Subtitle:
    case ClipType_Adjustment:
    case ClipType_Filter:
    case ClipType_Effect:
    case ClipType_Title:
        return true;
    default:
        return false;
    }
}

bool MvMemoryClip::hasPicture(MvClipType type)
{
    return !isAudioClipType(type) && type != ClipType_Transition;
}

// Start transitions first (the latest made first), then end transitions in the order they were made.
QList<MvMemoryTransition*> MvMemoryClip::liveTransitions() const
{
    QList<MvMemoryTransition*> found;
    for (MvMemoryTransition* transition : m_attached) {
        if (transition->placement() == IMvTransition::AtStart)
            found.prepend(transition);
        else
            found.append(transition);
    }
    return found;
}

QString MvMemoryClip::undoLabel() const
{
    return QStringLiteral("clip c%1").arg(m_number);
}

void MvMemoryClip::noteTransition(MvMemoryTransition* transition)
{
    auto at = std::lower_bound(m_attached.begin(), m_attached.end(), transition,
        [](const MvMemoryTransition* a, const MvMemoryTransition* b) { return a->undoSerial() < b->undoSerial(); });
    m_attached.insert(at, transition);
}

void MvMemoryClip::forgetTransition(MvMemoryTransition* transition)
{
    m_attached.removeOne(transition);
}

MvMemoryClip::State MvMemoryClip::detached(State value) const
{
    value.track = nullptr;
    return value;
}

void MvMemoryClip::valueChanged()
{
    const State& now = state();
    if (now.track == m_indexedTrack && now.start == m_indexedStart)
        return;
    if (m_indexedTrack && now.track == m_indexedTrack) {
        m_indexedTrack->moveClip(this, m_indexedStart, now.start);
    } else {
        if (m_indexedTrack)
            m_indexedTrack->forgetClip(this, m_indexedStart);
        if (now.track)
            now.track->noteClip(this, now.start);
    }
    m_indexedTrack = now.track;
    m_indexedStart = now.start;
}
