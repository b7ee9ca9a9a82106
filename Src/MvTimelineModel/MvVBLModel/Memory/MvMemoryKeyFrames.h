#pragma once

#include "MvMemoryGlobal.h"

#include "IMvKeyFrameSelector.h"
#include "MvMemoryClip.h"

class MvMemoryTimeline;

// The picked keyframes. A selection is kept only while its clip is on the timeline and only with
// frames that still carry a keyframe of that side; not part of undo.
class MVMEMORY_EXPORT MvMemoryKeyFrameSelector : public IMvKeyFrameSelector
{
public:
    explicit MvMemoryKeyFrameSelector(MvMemoryTimeline* timeline);

    MvSelectData currentSelection() const override;
    void select(const MvSelectData& selection) override;
    void clear() override;

    // Drops what an edit or undo took away.
    void prune();

private:
    MvMemoryTimeline* m_timeline;
    MvSelectData m_selection;
};

// Copied keyframes keep their frames relative to the first one; a paste puts that first one at
// the playhead's frame on each target clip.
class MVMEMORY_EXPORT MvMemoryKeyFrameClipboard : public IMvKeyFrameClipboard
{
public:
    explicit MvMemoryKeyFrameClipboard(MvMemoryTimeline* timeline);

    bool copy(IMvClip* clip, bool audio, const IMvKeyFrameSelector::MvSelectData& selection) override;
    bool isEmpty() const override;
    bool canPaste(const QList<IMvClip*>& clips) const override;
    qint64 minimumLength(const QList<IMvClip*>& clips) const override;
    bool paste(const QList<IMvClip*>& clips) override;

    bool isAudio() const { return m_audio; }
    // Copied offsets (0 is the first copied keyframe) with their properties.
    MvKeyFrameMap copied() const { return m_keys; }

private:
    MvMemoryTimeline* m_timeline;
    MvKeyFrameMap m_keys;
    bool m_audio = false;
};
