#include "MvClipHelpers.h"

#include "IMvAbstractClip.h"
#include "IMvClipEditService.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"

#include <QSet>

#include <algorithm>
#include <limits>

namespace {
// frame + offset, held at the ends of the 64-bit range (a frame far off a clip stays far off).
qint64 shifted(qint64 frame, qint64 offset)
{
    constexpr qint64 last = std::numeric_limits<qint64>::max();
    constexpr qint64 first = std::numeric_limits<qint64>::min();
    if (offset > 0 && frame > last - offset)
        return last;
    if (offset < 0 && frame < first - offset)
        return first;
    return frame + offset;
}

bool cuttable(const IMvClip* clip)
{
    return clip && clip->track() && !clip->track()->isLocked();
}

bool supportsSide(MVVBLMODEL::MvClipType type, bool audio)
{
    using namespace MVVBLMODEL;
    static const QList<MvClipType> audioTypes { ClipType_VideoWithAudio, ClipType_ScreenRecording, ClipType_Music,
        ClipType_Compound, ClipType_SoundEffect, ClipType_Audio };
    static const QList<MvClipType> videoTypes { ClipType_Video, ClipType_VideoWithAudio, ClipType_ScreenRecording,
        ClipType_Compound, ClipType_Image, ClipType_Text, ClipType_Sticker, ClipType_Subtitle, ClipType_Adjustment,
        ClipType_Filter, ClipType_Effect, ClipType_Title };
    return (audio ? audioTypes : videoTypes).contains(type);
}
}

// The selection decides when it holds clips under the cut; with nothing selected, the cut goes
// through everything under it.
QList<IMvClip*> IMvClipHelper::findClips(IMvTimeline* timeline, qint64 frame)
{
    if (!timeline)
        return {};
    const QList<IMvClip*> under = MvClipFinder(timeline).findClips(frame);
    const QList<IMvClip*> selected = timeline->selection() ? timeline->selection()->selectedClips() : QList<IMvClip*>();
    if (selected.isEmpty())
        return under;
    const QSet<IMvClip*> cut(under.cbegin(), under.cend());
    QList<IMvClip*> found;
    for (IMvClip* clip : selected) {
        if (cut.contains(clip))
            found.append(clip);
    }
    return found;
}

QList<IMvClip*> IMvClipHelper::findPrepareSplitClip(QList<IMvClip*> clips, bool addPartners)
{
    QList<IMvClip*> prepared;
    QSet<const IMvClip*> taken;
    for (IMvClip* clip : qAsConst(clips)) {
        if (!cuttable(clip) || taken.contains(clip))
            continue;
        taken.insert(clip);
        prepared.append(clip);
        IMvTimeline* timeline = clip->ownerTimeline();
        if (!addPartners || clip->groupKind() != 1 || !timeline || !timeline->editService())
            continue;
        // A linked partner (picture and its sound) is cut together with its clip.
        QList<IMvClip*> partners;
        timeline->editService()->groupMembersOf(clip, partners, false);
        for (IMvClip* partner : qAsConst(partners)) {
            if (cuttable(partner) && !taken.contains(partner)) {
                taken.insert(partner);
                prepared.append(partner);
            }
        }
    }
    return prepared;
}

bool IMvClipHelper::hasAudio(IMvAbstractClip* item)
{
    using namespace MVVBLMODEL;
    if (!item || !dynamic_cast<IMvClip*>(item))
        return false;
    const MvClipType type = item->type();
    return isAudioClipType(type) || type == ClipType_VideoWithAudio || type == ClipType_ScreenRecording
        || type == ClipType_Compound;
}

bool IMvClipHelper::isAudioFeatureClip(IMvClip* clip)
{
    return hasAudio(clip) && clip->track();
}

MvClipFinder::MvClipFinder(IMvTimeline* timeline)
    : m_timeline(timeline)
{
}

QList<IMvClip*> MvClipFinder::findClips(qint64 frame) const
{
    QList<IMvClip*> found;
    if (!m_timeline)
        return found;
    for (int row = 0; row < m_timeline->trackCount(); ++row) {
        IMvTrack* track = m_timeline->trackAt(row);
        if (!track)
            continue;
        const QList<IMvClip*> clips = track->clips();
        for (IMvClip* clip : clips) {
            if (clip->start() < frame && frame <= clip->end())
                found.append(clip);
        }
    }
    return found;
}

// The row's clips are ordered by start and do not overlap: the first one ending at or after the
// range's first frame is the only one that can meet it first.
bool MvClipFinder::hasClip(int trackIndex, MvRange<qint64> range) const
{
    const IMvTrack* track = m_timeline ? m_timeline->trackAt(trackIndex) : nullptr;
    if (!track || range.last < range.first)
        return false;
    const QList<IMvClip*> clips = track->clips();
    const auto it = std::lower_bound(clips.cbegin(), clips.cend(), range.first,
        [](const IMvClip* clip, qint64 frame) { return clip->end() < frame; });
    return it != clips.cend() && (*it)->start() <= range.last;
}

bool MvAudioRemixHelper::clearRemix(IMvClip* clip)
{
    if (!clip)
        return false;
    IMvTimeline* timeline = clip->ownerTimeline();
    const MvUndoRedoCommander step(timeline ? timeline->undoRedoService() : nullptr, QStringLiteral("clear remix"),
        QStringLiteral("MvAudioRemixHelper::clearRemix"));
    return clip->removeRemix();
}

void MvMotionTrackHelper::setTimeline(IMvTimeline* timeline)
{
    m_timeline = timeline;
}

// Only clips of the bound timeline (any timeline while none is bound) are asked.
IMvClip* MvMotionTrackHelper::getFollower(IMvClip* clip) const
{
    if (!clip || (m_timeline && clip->ownerTimeline() != m_timeline))
        return nullptr;
    return clip->motionTrackFollower();
}

bool MvMotionTrackHelper::isTracingEnable(IMvClip* clip) const
{
    if (!clip || (m_timeline && clip->ownerTimeline() != m_timeline))
        return false;
    return clip->isMotionTrackingEnabled();
}

MvKeyFrameHelper2::MvKeyFrameHelper2(IMvClip* clip)
    : m_clip(clip)
{
}

bool MvKeyFrameHelper2::addKeyFrame(qint64 clipFrame, const QList<MVVBLMODEL::MvEffectPropertyBaseInfo>& properties)
{
    if (!m_clip || properties.isEmpty())
        return false;
    QList<MVVBLMODEL::MvEffectPropertyBaseInfo> audio;
    QList<MVVBLMODEL::MvEffectPropertyBaseInfo> video;
    for (const MVVBLMODEL::MvEffectPropertyBaseInfo& info : properties)
        (info.group == MVVBLMODEL::PropertyGroup_AudioVolume ? audio : video).append(info);
    IMvTimeline* timeline = m_clip->ownerTimeline();
    MvUndoRedoCommander step(timeline ? timeline->undoRedoService() : nullptr, QStringLiteral("add key frame"),
        QStringLiteral("MvKeyFrameHelper2::addKeyFrame"));
    bool added = true;
    if (!audio.isEmpty())
        added = m_clip->addKeyFrame(true, clipFrame, audio) && added;
    if (!video.isEmpty())
        added = m_clip->addKeyFrame(false, clipFrame, video) && added;
    return added;
}

void MvKeyFrameHelper2::gotoKeyFrame(qint64 clipFrame)
{
    if (!m_clip || !m_clip->ownerTimeline() || !m_clip->ownerTimeline()->playhead())
        return;
    m_clip->ownerTimeline()->playhead()->setCurrentFrame(mapToTimeline(m_clip, clipFrame));
}

bool MvKeyFrameHelper2::canAddKeyFrame(IMvClip* clip, qint64 timelineFrame, bool mustBeInside, bool audio)
{
    if (!clip || !clip->track() || !supportsSide(clip->type(), audio))
        return false;
    qint64 clipFrame = mapFromTimeline(clip, timelineFrame);
    if (clipFrame < 0 || clipFrame >= clip->frameCount()) {
        if (mustBeInside)
            return false;
        clipFrame = qBound<qint64>(0, clipFrame, clip->frameCount() - 1);
    }
    return !clip->keyFrames(audio).contains(clipFrame);
}

qint64 MvKeyFrameHelper2::mapFromTimeline(IMvClip* clip, qint64 timelineFrame)
{
    return clip ? shifted(timelineFrame, -clip->start()) : timelineFrame;
}

qint64 MvKeyFrameHelper2::mapToTimeline(IMvClip* clip, qint64 clipFrame)
{
    return clip ? shifted(clipFrame, clip->start()) : clipFrame;
}

qint64 MvKeyFrameHelper2::mapFormBelongTimeline(IMvClip* clip, qint64 frame)
{
    return mapFromTimeline(clip, frame);
}
