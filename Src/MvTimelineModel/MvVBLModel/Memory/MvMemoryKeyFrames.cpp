#include "MvMemoryKeyFrames.h"
#include "IMvTimelinePlayhead.h"

#include "MvMemoryTimeline.h"
#include "MvMemoryTrack.h"

#include <algorithm>

namespace {
// Keeps only frames that carry a keyframe of the selection's side, ascending and each once.
IMvKeyFrameSelector::MvSelectData cleaned(const IMvKeyFrameSelector::MvSelectData& selection, const MvMemoryClip* clip)
{
    IMvKeyFrameSelector::MvSelectData result = selection;
    result.frames.clear();
    const MvKeyFrameMap& keys = selection.isAudio() ? clip->state().audioKeys : clip->state().videoKeys;
    for (qint64 frame : selection.frames) {
        if (keys.contains(frame))
            result.frames.append(frame);
    }
    std::sort(result.frames.begin(), result.frames.end());
    result.frames.erase(std::unique(result.frames.begin(), result.frames.end()), result.frames.end());
    return result;
}
}

MvMemoryKeyFrameSelector::MvMemoryKeyFrameSelector(MvMemoryTimeline* timeline)
    : m_timeline(timeline)
{
}

IMvKeyFrameSelector::MvSelectData MvMemoryKeyFrameSelector::currentSelection() const
{
    return m_selection;
}

// A selection of a clip that is not on this timeline, or of no side, selects nothing.
void MvMemoryKeyFrameSelector::select(const MvSelectData& selection)
{
    MvMemoryClip* clip = m_timeline->memoryClip(selection.clip);
    if (!clip || !clip->isOnTimeline() || (selection.side != VideoSide && selection.side != AudioSide)) {
        clear();
        return;
    }
    m_selection = cleaned(selection, clip);
}

void MvMemoryKeyFrameSelector::clear()
{
    m_selection = MvSelectData();
}

void MvMemoryKeyFrameSelector::prune()
{
    if (!m_selection.clip)
        return;
    MvMemoryClip* clip = m_timeline->memoryClip(m_selection.clip);
    if (!clip || !clip->isOnTimeline()) {
        clear();
        return;
    }
    m_selection = cleaned(m_selection, clip);
}

MvMemoryKeyFrameClipboard::MvMemoryKeyFrameClipboard(MvMemoryTimeline* timeline)
    : m_timeline(timeline)
{
}

bool MvMemoryKeyFrameClipboard::copy(IMvClip* clip, bool audio, const IMvKeyFrameSelector::MvSelectData& selection)
{
    MvMemoryClip* own = m_timeline->memoryClip(clip);
    if (!own || selection.clip != clip || !own->canCopyKeyFrames(selection, audio))
        return false;
    QList<qint64> frames = selection.frames;
    std::sort(frames.begin(), frames.end());
    const qint64 first = frames.first();
    m_keys.clear();
    for (qint64 frame : qAsConst(frames))
        m_keys.insert(frame - first, own->keyFrameProperties(audio, frame));
    m_audio = audio;
    return true;
}

bool MvMemoryKeyFrameClipboard::isEmpty() const
{
    return m_keys.isEmpty();
}

bool MvMemoryKeyFrameClipboard::canPaste(const QList<IMvClip*>& clips) const
{
    return !m_keys.isEmpty() && !clips.isEmpty();
}

// The span is the same for every target: the copied keyframes keep their distances.
qint64 MvMemoryKeyFrameClipboard::minimumLength(const QList<IMvClip*>& clips) const
{
    Q_UNUSED(clips)
    return m_keys.isEmpty() ? 0 : m_keys.lastKey() - m_keys.firstKey() + 1;
}

// The first copied keyframe lands on the playhead's frame of each clip, pulled inwards where the
// span would stick out; clips shorter than the span, of the wrong kind or locked are skipped.
bool MvMemoryKeyFrameClipboard::paste(const QList<IMvClip*>& clips)
{
    MvMemoryTimeline::Edit edit(m_timeline, "pasteKeyFrames", QStringLiteral("paste key frames"));
    if (!canPaste(clips))
        return false;
    const qint64 span = minimumLength(clips);
    const qint64 playheadFrame = m_timeline->playhead()->currentFrame();
    bool pasted = false;
    for (IMvClip* clip : clips) {
        MvMemoryClip* own = m_timeline->memoryClip(clip);
        if (!own || !own->isOnTimeline() || own->trackImpl()->isLocked() || own->frameCount() < span)
            continue;
        const bool sideOk = m_audio ? MvMemoryClip::supportsAudioKeyFrames(own->type())
                                    : MvMemoryClip::supportsVideoKeyFrames(own->type());
        if (!sideOk)
            continue;
        const qint64 base = qBound<qint64>(0, playheadFrame - own->start(), own->frameCount() - span);
        auto value = own->change();
        MvKeyFrameMap& keys = m_audio ? value->audioKeys : value->videoKeys;
        for (auto it = m_keys.cbegin(); it != m_keys.cend(); ++it)
            keys.insert(base + it.key(), it.value());
        pasted = true;
    }
    return pasted;
}
