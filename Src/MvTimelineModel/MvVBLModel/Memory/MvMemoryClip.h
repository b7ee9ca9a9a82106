#pragma once

#include "MvMemoryGlobal.h"

#include "IMvAbstractClip.h"
#include "IMvClipItems.h"
#include "IMvTimelineClip.h"
#include "MvMemoryEffects.h"
#include "MvMemoryMarker.h"
#include "MvMemoryResource.h"
#include "MvMemoryUndoable.h"

#include <QAtomicInt>
#include <QColor>
#include <QImage>
#include <QMap>

#include <memory>

class MvMemoryTimeline;
class MvMemoryTrack;
class MvMemoryClip;

using MvKeyFrameProperties = QList<MVVBLMODEL::MvEffectPropertyBaseInfo>;
using MvKeyFrameMap = QMap<qint64, MvKeyFrameProperties>; // clip frame -> keyed properties

struct MvMemoryTransitionState
{
    MvMemoryClip* owner = nullptr;
    quint16 placement = IMvTransition::AtStart;
    qint64 length = 1;
    QString name;
    bool attached = true;
    bool audio = false; // blends the sound of the clips, not their pictures
    MvMemoryResource resource; // library resources (MvMemoryResource.cpp)

    bool operator==(const MvMemoryTransitionState& other) const
    {
        return owner == other.owner && placement == other.placement && length == other.length && name == other.name
            && attached == other.attached && audio == other.audio && resource == other.resource;
    }
};

// A transition rides on its owner clip: it covers the owner's first (AtStart) or last (AtEnd)
// length frames, so it moves and trims with the owner. Its owner keeps the list of the
// transitions attached to it.
class MVMEMORY_EXPORT MvMemoryTransition : public IMvTransition, public MvMemoryValued<MvMemoryTransitionState>
{
public:
    using State = MvMemoryTransitionState;

    MvMemoryTransition(MvMemoryTimeline* timeline, int identifier, const State& state);
    // A transition made from a media item (MvMemoryTransitionItems.cpp): on no timeline and no clip
    // until a clip takes it (IMvClipTransitions::setTransition); its own length is a time, made
    // frames by its frame rate. The maker holds the one reference.
    MvMemoryTransition(const State& state, qint64 ownLengthMs, const QImage& thumbnail);

    MVVBLMODEL::MvClipType type() const override;
    qint64 start() const override;
    qint64 end() const override;
    QString name() const override;
    IMvClip* ownerClip() const override;
    int identifier() const override;
    quint16 placement() const override;
    void range(MvRange<qint64>& range) const override;
    // Made from media items (MvMemoryTransitionItems.cpp). A timeline keeps every transition put on
    // one of its clips for as long as it lives: release() frees only a transition on none.
    QImage thumbnail() const override;
    void setFrameRate(const MVVBLMODEL::MvRational& rate) override;
    void setEnd(qint64 frame, bool exclusive) override;
    void release() override;
    void retain();
    // The timeline whose clip took the transition first; null while it is on none.
    MvMemoryTimeline* timeline() const { return m_timeline; }
    // A clip of this timeline takes the transition for the first time.
    void joinTimeline(MvMemoryTimeline* timeline);
    bool isAudio() const { return state().audio; }
    IMvResourceInfo* resourceInfo() const override;

    // Library resources (MvMemoryResource.cpp): an undoable edit.
    void setResource(const MvMemoryResource& resource);

    qint64 length() const { return state().length; }
    MvMemoryClip* owner() const { return state().owner; }
    // On the timeline: attached to an owner that is on a track.
    bool isLive() const;
    QString undoLabel() const override;

protected:
    State detached(State value) const override;
    void valueChanged() override;

private:
    Q_DISABLE_COPY(MvMemoryTransition)
    int m_identifier;
    MvMemoryClip* m_indexedOwner = nullptr; // the owner whose list holds this transition
    MvMemoryTimeline* m_timeline = nullptr;
    QAtomicInt m_references { 1 };
    QImage m_thumbnail;
    MVVBLMODEL::MvRational m_frameRate;
    qint64 m_ownLengthMs = 0; // 0: the length is in frames already
    std::unique_ptr<MvMemoryResourceInfo> m_resourceInfo;
};

// A clip's transitions: the list the presenters read, and the ends where transitions made from
// media items go (setTransition, MvMemoryTransitionItems.cpp).
class MVMEMORY_EXPORT MvMemoryTransitionList : public IMvTransitionList, public IMvClipTransitions
{
public:
    explicit MvMemoryTransitionList(MvMemoryClip* clip)
        : m_clip(clip)
    {
    }

    QList<IMvTransition*> transitions() const override;
    bool remove(int identifier, quint16 placement) override;
    bool setTransition(IMvTransition* transition, MVVBLMODEL::MvTransitionType type) override;

private:
    MvMemoryClip* m_clip;
};

class MVMEMORY_EXPORT MvMemoryFreezeFrameList : public IMvFreezeFrameList
{
public:
    explicit MvMemoryFreezeFrameList(MvMemoryClip* clip)
        : m_clip(clip)
    {
    }

    QList<int> ids() const override;
    bool contains(int id) const override;
    bool remove(int id) override;

private:
    MvMemoryClip* m_clip;
};

// The selected node is a view choice, kept out of undo; the node count is model state.
class MVMEMORY_EXPORT MvMemorySmartKeyingNodes : public IMvSmartKeyingNodes
{
public:
    explicit MvMemorySmartKeyingNodes(MvMemoryClip* clip)
        : m_clip(clip)
    {
    }

    int count() const override;
    quint64 selectedIndex() const override;
    void setSelectedIndex(quint64 index) override;
    void removeAt(quint64 index) override;

private:
    MvMemoryClip* m_clip;
    quint64 m_selected = NoSelection;
};

struct MvMemoryClipState
{
    MVVBLMODEL::MvClipType type = MVVBLMODEL::ClipType_Video;
    qint64 start = 0;
    qint64 end = 0;
    QString name;
    bool enabled = true;
    MvMemoryTrack* track = nullptr;
    int rotation = 0;
    MvMemoryClip* follower = nullptr;
    bool tracking = false;
    bool smartKeying = false;
    int smartKeyingNodes = 0;
    MvKeyFrameMap videoKeys;
    MvKeyFrameMap audioKeys;
    QMap<int, qint64> freezeFrames; // id -> clip frame
    // What a compound clip shows: a timeline of its own, shared by every copy of the clip.
    MvMemoryTimeline* content = nullptr;
    // Track commands and audio: the clip's sound switched off; a music clip's remix.
    bool muted = false;
    bool remixed = false;
    // Colours of a text or subtitle clip given at its insertion (invalid: the defaults).
    QColor textColor;
    QColor backgroundColor;
    // Transitions and effects (MvMemoryEffects.cpp, MvMemoryTransitionItems.cpp): the effects the
    // clip carries, a host's strings by key, and the unused media before and after the clip.
    MvMemoryClipEffects effects;
    QMap<int, QString> userData;
    qint64 handleBefore = 0;
    qint64 handleAfter = 0;
    // Library resources (MvMemoryResource.cpp).
    MvMemoryResource resource;
    // Composed texts (MvMemoryTextContainer.cpp): the item a layer belongs to, an item's layers
    // bottom first, and whether a layer is secondary.
    MvMemoryClip* container = nullptr;
    QList<MvMemoryClip*> children;
    bool secondary = false;

    bool operator==(const MvMemoryClipState& other) const;
    bool operator!=(const MvMemoryClipState& other) const { return !(*this == other); }
};

// A clip of the in-memory model. Every value that undo restores sits in State (its markers in its
// marker list, an undoable object of its own); the clip object itself lives as long as its
// timeline (a removed clip is detached: its track is null). Its track keeps it in its lookup by
// start.
class MVMEMORY_EXPORT MvMemoryClip : public IMvTimelineClip, public MvMemoryValued<MvMemoryClipState>
{
public:
    using State = MvMemoryClipState;

    // The number is the clip's place in the timeline's creation order.
    MvMemoryClip(MvMemoryTimeline* timeline, int number, const State& state);
    ~MvMemoryClip() override;

    // IMvAbstractClip
    MVVBLMODEL::MvClipType type() const override;
    qint64 start() const override;
    qint64 end() const override;
    QString name() const override;
    void range(MvRange<qint64>& range) const override;

    // IMvClip
    qint64 position() const override;
    qint64 frameCount() const override;
    bool isEnabled() const override;
    IMvTimeline* ownerTimeline() const override;
    IMvTrack* track() const override;
    int trackIndex() const override;
    int groupKind() const override;
    int rotation() const override;
    IMvTransitionList* transitionList() const override;
    IMvMarkerList* clipMarkers() const override;
    IMvFreezeFrameList* freezeFrames() const override;
    IMvSmartKeyingNodes* smartKeyingNodes() const override;
    IMvClip* motionTrackFollower() const override;
    bool isMotionTrackingEnabled() const override;
    QList<qint64> keyFrames(bool audio) const override;
    bool addKeyFrame(
        bool audio, qint64 clipFrame, const QList<MVVBLMODEL::MvEffectPropertyBaseInfo>& properties) override;
    bool canCopyKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio) const override;
    bool removeKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio) override;
    IMvKeyFrameSelector::MvSelectData allKeyFrames(bool audio) const override;
    // Track commands and audio (MvMemoryTracks.cpp, MvMemoryAudio.cpp).
    bool isMuted() const override;
    void setMuted(quint16 muted) override;
    bool isRemixed() const override;
    bool removeRemix() override;
    // Transitions and effects (MvMemoryEffects.cpp, MvMemoryTransitionItems.cpp).
    IMvClipTransitions* transitions() const override;
    IMvUndoRedoService* undoRedoService() const override;
    IMvEffectContainer* effects() const override;
    QString userData(int key) const override;
    void setUserData(int key, const QString& value) override;
    qint64 handleBefore() const override;
    qint64 handleAfter() const override;
    // Which kinds of clip take video effects, audio effects, and have a source of a fixed length
    // (the others are pictures that last as long as they are shown, and never run out).
    static bool takesVideoEffects(MVVBLMODEL::MvClipType type);
    static bool takesAudioEffects(MVVBLMODEL::MvClipType type);
    static bool hasSourceLength(MVVBLMODEL::MvClipType type);
    // A set-up hook: the unused media before and after the clip, an undoable edit.
    void setHandles(qint64 before, qint64 after);
    IMvResourceInfo* resourceInfo() const override;
    bool isSecondary() const override;
    // IMvTimelineClip
    QList<IMvClip*> childClips() const override;

    // Library resources (MvMemoryResource.cpp): an undoable edit.
    void setResource(const MvMemoryResource& resource);
    // Composed texts (MvMemoryTextContainer.cpp): the item this layer belongs to (null for a clip
    // on a track) and this item's layers.
    MvMemoryClip* container() const { return state().container; }
    QList<MvMemoryClip*> children() const { return state().children; }

    // Set-up and test hooks; each is an undoable edit.
    void setName(const QString& name);
    void setEnabled(bool enabled);
    void setMotionTrackFollower(MvMemoryClip* follower);
    void setMotionTrackingEnabled(bool enabled);
    // Turns smart keying on with this many nodes (0 turns it off).
    void setSmartKeyingNodeCount(int count);
    // Adds a freeze frame at a clip frame; false for clips without a picture, a used id or a frame
    // off the clip.
    bool addFreezeFrame(int id, qint64 clipFrame);
    qint64 freezeFrameAt(int id) const { return state().freezeFrames.value(id, -1); }
    // Makes the clip a compound clip over that timeline (null: an ordinary clip again).
    void setCompoundContent(MvMemoryTimeline* content);
    MvMemoryTimeline* compoundContent() const { return state().content; }
    // Marks a music clip as remixed; false for a clip that is not of an audio kind.
    bool setRemixed(bool remixed);
    // The properties keyed at a clip frame of one side (empty when there is no keyframe).
    MvKeyFrameProperties keyFrameProperties(bool audio, qint64 clipFrame) const;

    // Which keyframe sides a clip type has.
    static bool supportsAudioKeyFrames(MVVBLMODEL::MvClipType type);
    static bool supportsVideoKeyFrames(MVVBLMODEL::MvClipType type);
    static bool hasPicture(MVVBLMODEL::MvClipType type);

    MvMemoryTimeline* timeline() const { return m_timeline; }
    int number() const { return m_number; }
    MvMemoryTrack* trackImpl() const { return state().track; }
    bool isOnTimeline() const { return state().track != nullptr; }
    MvMemoryMarkerList* markerList() const { return m_markers; }
    // Attached transitions, the start one first.
    QList<MvMemoryTransition*> liveTransitions() const;
    QString undoLabel() const override;

    // Kept by the transitions attached to this clip.
    void noteTransition(MvMemoryTransition* transition);
    void forgetTransition(MvMemoryTransition* transition);

protected:
    State detached(State value) const override;
    void valueChanged() override;

private:
    Q_DISABLE_COPY(MvMemoryClip)
    MvMemoryTimeline* m_timeline;
    int m_number;
    MvMemoryMarkerList* m_markers;
    MvMemoryTransitionList* m_transitions;
    MvMemoryFreezeFrameList* m_freezeFrames;
    MvMemorySmartKeyingNodes* m_nodes;
    MvMemoryEffectContainer* m_effects;
    // Where a track's lookup holds this clip.
    MvMemoryTrack* m_indexedTrack = nullptr;
    qint64 m_indexedStart = 0;
    QList<MvMemoryTransition*> m_attached; // attached transitions, in creation order
    std::unique_ptr<MvMemoryResourceInfo> m_resourceInfo;
};
