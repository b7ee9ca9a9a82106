#pragma once

#include "MvRange.h"
#include "MvVBLModelGlobal.h"

#include <QList>

class IMvAbstractClip;
class IMvClip;
class IMvTimeline;

// Which clips a split acts on.
class MVVBLMODEL_EXPORT IMvClipHelper
{
public:
    // The selected clips that a cut at frame would divide; when no clip is selected, every clip
    // that a cut at frame would divide.
    static QList<IMvClip*> findClips(IMvTimeline* timeline, qint64 frame);
    // The clips really to be cut: drops clips on locked tracks and repeats; with addPartners,
    // adds the linked partners (members of a group of kind 1) of each clip.
    static QList<IMvClip*> findPrepareSplitClip(QList<IMvClip*> clips, bool addPartners);

    // Track commands: a clip of a kind that carries sound (audio kinds, picture with sound,
    // screen recordings, compound clips); transitions carry none.
    static bool hasAudio(IMvAbstractClip* item);
    // A clip on the timeline whose sound is heard: the clips a mute switch applies to.
    static bool isAudioFeatureClip(IMvClip* clip);
};

// Clips under a frame: those a cut at that frame would divide (start < frame <= end).
class MVVBLMODEL_EXPORT MvClipFinder
{
public:
    explicit MvClipFinder(IMvTimeline* timeline);
    QList<IMvClip*> findClips(qint64 frame) const;
    // Whether a clip of that row covers a frame of the range (false for a row that does not exist).
    bool hasClip(int trackIndex, MvRange<qint64> range) const;

private:
    IMvTimeline* m_timeline;
};

// The remix of a music clip (its length fitted by the model) can be taken off again.
class MVVBLMODEL_EXPORT MvAudioRemixHelper
{
public:
    // Takes the remix off the clip as one undo step of its timeline ("clear remix"); false for a
    // null clip, a clip without remix or on a locked row.
    static bool clearRemix(IMvClip* clip);
};

class MVVBLMODEL_EXPORT MvMotionTrackHelper
{
public:
    MvMotionTrackHelper() = default;
    void setTimeline(IMvTimeline* timeline);
    IMvClip* getFollower(IMvClip* clip) const;
    bool isTracingEnable(IMvClip* clip) const;

private:
    IMvTimeline* m_timeline = nullptr;
};

// Keyframe editing on one clip.
class MVVBLMODEL_EXPORT MvKeyFrameHelper2
{
public:
    explicit MvKeyFrameHelper2(IMvClip* clip);

    // Properties of the audio volume group go to the audio side, all others to the video side.
    bool addKeyFrame(qint64 clipFrame, const QList<MVVBLMODEL::MvEffectPropertyBaseInfo>& properties);
    // Moves the playhead of the clip's timeline onto that keyframe.
    void gotoKeyFrame(qint64 clipFrame);

    // The frame lies on the clip, the clip type has that side, and no keyframe of that side is
    // there yet. mustBeInside refuses frames outside the clip instead of clamping them.
    static bool canAddKeyFrame(IMvClip* clip, qint64 timelineFrame, bool mustBeInside, bool audio);
    static qint64 mapFromTimeline(IMvClip* clip, qint64 timelineFrame);
    static qint64 mapToTimeline(IMvClip* clip, qint64 clipFrame);
    // From the frames of the timeline that holds the clip (the same as mapFromTimeline here,
    // where clips are not nested).
    static qint64 mapFormBelongTimeline(IMvClip* clip, qint64 frame);

private:
    IMvClip* m_clip;
};
