#pragma once

#include "IMvKeyFrameSelector.h"
#include "MvRange.h"
#include "MvVBLModelGlobal.h"

#include <QImage>
#include <QList>
#include <QMetaType>

class IMvClip;
class IMvTimeline;
class IMvTrack;
class IMvMarkerList;
class IMvFreezeFrameList;
class IMvSmartKeyingNodes;
class IMvTransition;
class IMvEffectContainer;
class IMvUndoRedoService;
class IMvResourceInfo;

// Anything placed on a track: media clips and transitions. Frames are timeline frames; a clip
// covers start() .. end(), both included.
class MVVBLMODEL_EXPORT IMvAbstractClip
{
public:
    virtual ~IMvAbstractClip();

    virtual MVVBLMODEL::MvClipType type() const = 0;
    virtual qint64 start() const = 0;
    virtual qint64 end() const = 0;
    virtual QString name() const = 0;

    // Library resources: what the item was made from, null for the user's own media.
    virtual IMvResourceInfo* resourceInfo() const = 0;

    // Track commands: the frames the item covers, start() .. end().
    virtual void range(MvRange<qint64>& range) const = 0;
};

// The transitions carried by one clip.
class MVVBLMODEL_EXPORT IMvTransitionList
{
public:
    virtual ~IMvTransitionList();

    virtual QList<IMvTransition*> transitions() const = 0;
    // Removes the transition with this identifier at this placement; false when there is none.
    virtual bool remove(int identifier, quint16 placement) = 0;
};

class MVVBLMODEL_EXPORT IMvTransition : public IMvAbstractClip
{
public:
    // Where a transition sits on its owner clip.
    enum Placement : quint16
    {
        AtStart = 1,
        AtEnd = 2
    };

    virtual IMvClip* ownerClip() const = 0;
    virtual int identifier() const = 0;
    virtual quint16 placement() const = 0;

    // Transitions made from a media item (IMvTransitionMediaItem::createTransition) are counted
    // references: the maker holds one, a clip that carries the transition another.
    // A picture of the transition; null until its item is loaded.
    virtual QImage thumbnail() const = 0;
    // The rate that turns the transition's own length (a time) into frames.
    virtual void setFrameRate(const MVVBLMODEL::MvRational& rate) = 0;
    // Ends the transition at frame: exclusive, frame is the first frame after it (start() +
    // length); else its last frame. A transition on a clip stays within the clip.
    virtual void setEnd(qint64 frame, bool exclusive) = 0;
    // Gives up the caller's reference.
    virtual void release() = 0;
};

// Where a clip takes transitions made from media items.
class MVVBLMODEL_EXPORT IMvClipTransitions
{
public:
    virtual ~IMvClipTransitions();

    // Puts the transition on this end of the clip, replacing the one there, as one undo step. False
    // when the clip cannot take it (off the timeline, locked row, a kind the clip does not show or
    // play, longer than the clip, already on a clip); the caller keeps its reference either way.
    virtual bool setTransition(IMvTransition* transition, MVVBLMODEL::MvTransitionType type) = 0;
};

class MVVBLMODEL_EXPORT IMvClip : public IMvAbstractClip
{
public:
    virtual qint64 position() const = 0; // first frame on the timeline, the same as start()
    virtual qint64 frameCount() const = 0; // end() - start() + 1
    virtual bool isEnabled() const = 0;

    virtual IMvTimeline* ownerTimeline() const = 0;
    virtual IMvTrack* track() const = 0; // null once the clip is removed from the timeline
    virtual int trackIndex() const = 0; // -1 once the clip is removed
    virtual int groupKind() const = 0;
    virtual int rotation() const = 0; // degrees, 0, 90, 180 or 270

    virtual IMvTransitionList* transitionList() const = 0;
    virtual IMvMarkerList* clipMarkers() const = 0;
    virtual IMvFreezeFrameList* freezeFrames() const = 0; // null for clips without a picture
    virtual IMvSmartKeyingNodes* smartKeyingNodes() const = 0; // null when smart keying is off

    // The clip that follows this one by motion tracking, or null.
    virtual IMvClip* motionTrackFollower() const = 0;
    virtual bool isMotionTrackingEnabled() const = 0;

    // Keyframes, in clip frames (0 is the clip's first frame), ascending, per side.
    virtual QList<qint64> keyFrames(bool audio) const = 0;
    virtual bool addKeyFrame(
        bool audio, qint64 clipFrame, const QList<MVVBLMODEL::MvEffectPropertyBaseInfo>& properties)
        = 0;
    virtual bool canCopyKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio) const = 0;
    // Removes the selected keyframes of that side; false when none of them was on the clip.
    virtual bool removeKeyFrames(const IMvKeyFrameSelector::MvSelectData& selection, bool audio) = 0;
    // A selection of every keyframe of that side.
    virtual IMvKeyFrameSelector::MvSelectData allKeyFrames(bool audio) const = 0;

    // Composed texts: a secondary layer supports the main lines of its composed item (a caption
    // under a name); a clip on a track is never secondary.
    virtual bool isSecondary() const = 0;

    // Track commands and audio: the clip's own sound switch (value 0 or 1) and its music remix.
    virtual bool isMuted() const = 0;
    virtual void setMuted(quint16 muted) = 0;
    virtual bool isRemixed() const = 0;
    // Takes the remix off the clip; false when it has none or its track is locked.
    virtual bool removeRemix() = 0;
    // Transitions and effects.
    virtual IMvClipTransitions* transitions() const = 0;
    // The undo stack of the timeline that holds the clip.
    virtual IMvUndoRedoService* undoRedoService() const = 0;
    // The clip's effects; null for a clip that takes none.
    virtual IMvEffectContainer* effects() const = 0;
    // Strings a host keeps on the clip by key (MVVBLMODEL::UserDataKey_*); empty when not set.
    virtual QString userData(int key) const = 0;
    // An undoable change of one entry; a clip on a locked row keeps its data.
    virtual void setUserData(int key, const QString& value) = 0;
    // The same, for a clip that may be null.
    static void changeUserData(IMvClip* clip, int key, const QString& value);
    // Unused media before the clip's first frame and after its last, in frames: what a transition
    // over a cut can show of the clip beyond its ends. Pictures without a source length (stills,
    // texts) have no end: std::numeric_limits<qint64>::max().
    virtual qint64 handleBefore() const = 0;
    virtual qint64 handleAfter() const = 0;
};

Q_DECLARE_METATYPE(IMvClip*)
