#pragma once

#include "MvVBLModelGlobal.h"
#include "IMvKeyFrameSelector.h"
#include "MvRange.h"

#include <QList>
#include <QMetaType>

class IMvClip;
class IMvTimeline;
class IMvTrack;
class IMvMarkerList;
class IMvFreezeFrameList;
class IMvSmartKeyingNodes;
class IMvTransition;
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
    enum Placement : quint16 { AtStart = 1, AtEnd = 2 };

    virtual IMvClip* ownerClip() const = 0;
    virtual int identifier() const = 0;
    virtual quint16 placement() const = 0;
};

class MVVBLMODEL_EXPORT IMvClip : public IMvAbstractClip
{
public:
    virtual qint64 position() const = 0; // first frame on the timeline, the same as start()
    virtual qint64 frameCount() const = 0; // end() - start() + 1
    virtual bool isEnabled() const = 0;

    virtual IMvTimeline* ownerTimeline() const = 0;
    virtual IMvTrack* track() const = 0; // null once the clip is removed from the timeline
    virtual int trackIndex() const = 0;  // -1 once the clip is removed
    virtual int groupKind() const = 0;
    virtual int rotation() const = 0;    // degrees, 0, 90, 180 or 270

    virtual IMvTransitionList* transitionList() const = 0;
    virtual IMvMarkerList* clipMarkers() const = 0;
    virtual IMvFreezeFrameList* freezeFrames() const = 0;       // null for clips without a picture
    virtual IMvSmartKeyingNodes* smartKeyingNodes() const = 0;  // null when smart keying is off

    // The clip that follows this one by motion tracking, or null.
    virtual IMvClip* motionTrackFollower() const = 0;
    virtual bool isMotionTrackingEnabled() const = 0;

    // Keyframes, in clip frames (0 is the clip's first frame), ascending, per side.
    virtual QList<qint64> keyFrames(bool audio) const = 0;
    virtual bool addKeyFrame(bool audio, qint64 clipFrame, const QList<MVVBLMODEL::MvEffectPropertyBaseInfo>& properties) = 0;
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
};

Q_DECLARE_METATYPE(IMvClip*)
