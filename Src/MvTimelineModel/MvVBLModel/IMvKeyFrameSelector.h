#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvClip;
class IMvTimeline;

// The keyframes the user has picked in the timeline, all on one side of one clip.
class MVVBLMODEL_EXPORT IMvKeyFrameSelector
{
public:
    enum Side
    {
        NoSide = 0,
        VideoSide = 1,
        AudioSide = 2
    };

    struct MvSelectData
    {
        IMvClip* clip = nullptr;
        int side = NoSide;
        QList<qint64> frames; // clip frames, ascending

        bool isValid() const { return clip && side != NoSide && !frames.isEmpty(); }
        bool isAudio() const { return side == AudioSide; }
        bool operator==(const MvSelectData& other) const
        {
            return clip == other.clip && side == other.side && frames == other.frames;
        }
    };

    virtual ~IMvKeyFrameSelector();

    virtual MvSelectData currentSelection() const = 0;
    virtual void select(const MvSelectData& selection) = 0;
    virtual void clear() = 0;
};

// Copied keyframes, pasted at the playhead onto other clips.
class MVVBLMODEL_EXPORT IMvKeyFrameClipboard
{
public:
    virtual ~IMvKeyFrameClipboard();

    virtual bool copy(IMvClip* clip, bool audio, const IMvKeyFrameSelector::MvSelectData& selection) = 0;
    virtual bool isEmpty() const = 0;
    virtual bool canPaste(const QList<IMvClip*>& clips) const = 0;
    // Frames the copied keyframes span, first to last plus one: a target clip needs that many.
    virtual qint64 minimumLength(const QList<IMvClip*>& clips) const = 0;
    virtual bool paste(const QList<IMvClip*>& clips) = 0;
};
