#include "MvMemoryClip.h"

#include "MvMemoryTimeline.h"
#include "MvMemoryTrack.h"

using namespace MVVBLMODEL;

bool MvMemoryClip::State::operator==(const State& other) const
{
    return type == other.type && start == other.start && end == other.end && name == other.name
        && enabled == other.enabled && track == other.track && rotation == other.rotation && follower == other.follower
        && tracking == other.tracking && smartKeying == other.smartKeying && smartKeyingNodes == other.smartKeyingNodes
        && videoKeys == other.videoKeys && audioKeys == other.audioKeys && freezeFrames == other.freezeFrames
        && markers == other.markers;
}

// ---- transitions

MvMemoryTransition::MvMemoryTransition(int identifier, const State& state)
    : m_identifier(identifier)
    , m_state(state)
{
}

MvClipType MvMemoryTransition::type() const
{
    return ClipType_Transition;
}

qint64 MvMemoryTransition::start() const
{
    if (!m_state.owner)
        return 0;
    return m_state.placement == AtStart ? m_state.owner->start() : m_state.owner->end() - m_state.length + 1;
}

qint64 MvMemoryTransition::end() const
{
    if (!m_state.owner)
        return 0;
    return m_state.placement == AtStart ? m_state.owner->start() + m_state.length - 1 : m_state.owner->end();
}

QString MvMemoryTransition::name() const
{
    return m_state.name;
}

IMvClip* MvMemoryTransition::ownerClip() const
{
    return m_state.owner;
}

int MvMemoryTransition::identifier() const
{
    return m_identifier;
}

quint16 MvMemoryTransition::placement() const
{
    return m_state.placement;
}

bool MvMemoryTransition::isLive() const
{
    return m_state.attached && m_state.owner && m_state.owner->isOnTimeline();
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
            MvMemoryTransition::State state = transition->state();
            state.attached = false;
            transition->restore(state);
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
    m_clip->mutableState().freezeFrames.remove(id);
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
    --m_clip->mutableState().smartKeyingNodes;
    if (m_selected == index)
        m_selected = NoSelection;
    else if (m_selected != NoSelection && m_selected > index)
        --m_selected;
}

// ---- the clip

MvMemoryClip::MvMemoryClip(MvMemoryTimeline* timeline, const State& state)
    : m_timeline(timeline)
    , m_state(state)
    , m_markers(new MvMemoryMarkerList(timeline, this))
    , m_transitions(new MvMemoryTransitionList(this))
    , m_freezeFrames(new MvMemoryFreezeFrameList(this))
    , m_nodes(new MvMemorySmartKeyingNodes(this))
{
    m_markers->restore(state.markers);
    m_state.markers = {};
}

MvMemoryClip::~MvMemoryClip()
{
    delete m_nodes;
    delete m_freezeFrames;
    delete m_transitions;
    delete m_markers;
}

MvClipType MvMemoryClip::type() const
{
    return m_state.type;
}

qint64 MvMemoryClip::start() const
{
    return m_state.start;
}

qint64 MvMemoryClip::end() const
{
    return m_state.end;
}

QString MvMemoryClip::name() const
{
    return m_state.name;
}

qint64 MvMemoryClip::position() const
{
    return m_state.start;
}

qint64 MvMemoryClip::frameCount() const
{
    return m_state.end - m_state.start + 1;
}

bool MvMemoryClip::isEnabled() const
{
    return m_state.enabled;
}

IMvTimeline* MvMemoryClip::ownerTimeline() const
{
    return m_timeline;
}

IMvTrack* MvMemoryClip::track() const
{
    return m_state.track;
}

int MvMemoryClip::trackIndex() const
{
    return m_state.track ? m_state.track->index() : -1;
}

int MvMemoryClip::groupKind() const
{
    return m_timeline->groupKindOf(this);
}

int MvMemoryClip::rotation() const
{
    return m_state.rotation;
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
    return hasPicture(m_state.type) ? m_freezeFrames : nullptr;
}

IMvSmartKeyingNodes* MvMemoryClip::smartKeyingNodes() const
{
    return m_state.smartKeying ? m_nodes : nullptr;
}

// A follower that left the timeline follows nothing any more.
IMvClip* MvMemoryClip::motionTrackFollower() const
{
    return m_state.follower && m_state.follower->isOnTimeline() ? m_state.follower : nullptr;
}

bool MvMemoryClip::isMotionTrackingEnabled() const
{
    return m_state.tracking;
}

QList<qint64> MvMemoryClip::keyFrames(bool audio) const
{
    return (audio ? m_state.audioKeys : m_state.videoKeys).keys();
}

bool MvMemoryClip::addKeyFrame(bool audio, qint64 clipFrame, const QList<MvEffectPropertyBaseInfo>& properties)
{
    MvMemoryTimeline::Edit edit(m_timeline, "addKeyFrame", QStringLiteral("add key frame"));
    const bool sideOk = audio ? supportsAudioKeyFrames(m_state.type) : supportsVideoKeyFrames(m_state.type);
    MvKeyFrameMap& keys = audio ? m_state.audioKeys : m_state.videoKeys;
    if (!sideOk || clipFrame < 0 || clipFrame >= frameCount() || keys.contains(clipFrame))
        return false;
    if (m_state.track && m_state.track->isLocked())
        return false;
    keys.insert(clipFrame, properties);
    return true;
}

bool MvMemoryClip::canCopyKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio) const
{
    if (!selection.isValid() || selection.clip != this || selection.isAudio() != audio)
        return false;
    const MvKeyFrameMap& keys = audio ? m_state.audioKeys : m_state.videoKeys;
    for (qint64 frame : selection.frames) {
        if (!keys.contains(frame))
            return false;
    }
    return true;
}

bool MvMemoryClip::removeKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio)
{
    MvMemoryTimeline::Edit edit(m_timeline, "removeKeyFrames", QStringLiteral("remove key frames"));
    if (selection.clip != this || (m_state.track && m_state.track->isLocked()))
        return false;
    MvKeyFrameMap& keys = audio ? m_state.audioKeys : m_state.videoKeys;
    int removed = 0;
    for (qint64 frame : selection.frames)
        removed += keys.remove(frame);
    return removed > 0;
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
    m_state.name = name;
}

void MvMemoryClip::setEnabled(bool enabled)
{
    MvMemoryTimeline::Edit edit(
        m_timeline, "setEnabled", enabled ? QStringLiteral("enable clip") : QStringLiteral("disable clip"));
    m_state.enabled = enabled;
}

void MvMemoryClip::setMotionTrackFollower(MvMemoryClip* follower)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setMotionTrackFollower", QStringLiteral("set motion tracking"));
    if (follower == this || (follower && follower->timeline() != m_timeline))
        return;
    m_state.follower = follower;
}

void MvMemoryClip::setMotionTrackingEnabled(bool enabled)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setMotionTrackingEnabled", QStringLiteral("set motion tracking"));
    m_state.tracking = enabled;
}

void MvMemoryClip::setSmartKeyingNodeCount(int count)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setSmartKeyingNodeCount", QStringLiteral("smart keying"));
    m_state.smartKeying = count > 0;
    m_state.smartKeyingNodes = qMax(0, count);
}

bool MvMemoryClip::addFreezeFrame(int id, qint64 clipFrame)
{
    MvMemoryTimeline::Edit edit(m_timeline, "addFreezeFrame", QStringLiteral("add freeze frame"));
    if (!hasPicture(m_state.type) || m_state.freezeFrames.contains(id) || clipFrame < 0 || clipFrame >= frameCount())
        return false;
    m_state.freezeFrames.insert(id, clipFrame);
    return true;
}

MvKeyFrameProperties MvMemoryClip::keyFrameProperties(bool audio, qint64 clipFrame) const
{
    return (audio ? m_state.audioKeys : m_state.videoKeys).value(clipFrame);
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

QList<MvMemoryTransition*> MvMemoryClip::liveTransitions() const
{
    return m_timeline->transitionsOf(this);
}

MvMemoryClip::State MvMemoryClip::state() const
{
    State state = m_state;
    state.markers = m_markers->state();
    return state;
}

void MvMemoryClip::restore(const State& state)
{
    m_state = state;
    m_markers->restore(state.markers);
    m_state.markers = {};
}
