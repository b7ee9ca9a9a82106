#include "MvKeyFramePresenter.h"
#include "MvKeyFramePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvKeyFrameSelector.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvUndoRedoService.h"
#include "MvClipHelpers.h"
#include "MvCommandScope_p.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

#include <QSet>

#include <algorithm>

using namespace MVVBLMODEL;

namespace {
const QSet<MvClipType>& audioKeyFrameTypes()
{
    static const QSet<MvClipType> types { ClipType_VideoWithAudio, ClipType_ScreenRecording, ClipType_Music,
        ClipType_Compound, ClipType_SoundEffect, ClipType_Audio };
    return types;
}

const QSet<MvClipType>& videoKeyFrameTypes()
{
    static const QSet<MvClipType> types { ClipType_Video, ClipType_VideoWithAudio, ClipType_ScreenRecording,
        ClipType_Compound, ClipType_Image, ClipType_Text, ClipType_Sticker, ClipType_Subtitle, ClipType_Adjustment,
        ClipType_Filter, ClipType_Effect, ClipType_Title };
    return types;
}

// Titles, texts and subtitles keep their keyframes tied to their own layout.
const QSet<MvClipType>& noCopyPasteTypes()
{
    static const QSet<MvClipType> types { ClipType_Title, ClipType_Text, ClipType_Subtitle };
    return types;
}

// The properties a default keyframe records: the volume for audio, position and scale for video.
QList<MvEffectPropertyBaseInfo> defaultProperties(bool audio)
{
    if (audio)
        return { MvEffectPropertyBaseInfo { PropertyGroup_AudioVolume, QString(), false, -1, 22 } };
    return { MvEffectPropertyBaseInfo { PropertyGroup_Transform, QString(), false, -1, 3 },
        MvEffectPropertyBaseInfo { PropertyGroup_Transform, QString(), false, -1, 5 } };
}
}

MvKeyFramePresenterPrivate::MvKeyFramePresenterPrivate(MvKeyFramePresenter* q, IMvTimeline* timeline, QObject* parent)
    : q_ptr(q)
    , timeline(timeline)
    , parentPresenter(qobject_cast<MvPresenter*>(parent))
{
}

IMvClip* MvKeyFramePresenterPrivate::getEnabledMainClip() const
{
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    return clips.size() == 1 && clips.first()->isEnabled() ? clips.first() : nullptr;
}

QList<IMvClip*> MvKeyFramePresenterPrivate::getEnabledMainClips() const
{
    QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    clips.erase(std::remove_if(clips.begin(), clips.end(), [](const IMvClip* clip) { return !clip->isEnabled(); }),
        clips.end());
    return clips;
}

bool MvKeyFramePresenterPrivate::isSupportCopyAndPaste(const MvClipType& type) const
{
    return !noCopyPasteTypes().contains(type);
}

MvPropertyType MvKeyFramePresenterPrivate::getDefalutGroupType(MvClipType type) const
{
    switch (type) {
    case ClipType_Audio:
    case ClipType_Music:
    case ClipType_SoundEffect:
        return PropertyType_Audio;
    case ClipType_Video:
    case ClipType_VideoWithAudio:
    case ClipType_Image:
    case ClipType_Adjustment:
    case ClipType_Subtitle:
    case ClipType_Title:
    case ClipType_Compound:
    case ClipType_ScreenRecording:
        return PropertyType_Picture;
    case ClipType_Text:
        return PropertyType_Text;
    case ClipType_Sticker:
        return PropertyType_Sticker;
    default:
        return PropertyType_None;
    }
}

void MvKeyFramePresenterPrivate::showTransformPanel(IMvClip* clip)
{
    Q_Q(MvKeyFramePresenter);
    MvPropertyPanelShowMessage2 message(clip->type(), getDefalutGroupType(clip->type()));
    q->sendMessageToScene(&message);
}

bool MvKeyFramePresenterPrivate::addDefaultKeyFrame(IMvClip* clip, qint64 frame, bool audio)
{
    Q_Q(MvKeyFramePresenter);
    if (!clip || !timeline || !MvKeyFrameHelper2::canAddKeyFrame(clip, frame, true, audio))
        return false;
    const MvCommandScope command(q, MvCommandScope::PausePlayerMessage, timeline->undoRedoService(),
        audio ? QStringLiteral("add audio default key frame") : QStringLiteral("add default key frame"),
        audio ? QStringLiteral("MvKeyFramePresenter::addAudioDefaultKeyFrame")
              : QStringLiteral("MvKeyFramePresenter::addVideoDefaultKeyFrame"));
    const qint64 clipFrame = MvKeyFrameHelper2::mapFromTimeline(clip, frame);
    MvKeyFrameHelper2 helper(clip);
    const bool added = helper.addKeyFrame(clipFrame, defaultProperties(audio));
    if (added) {
        helper.gotoKeyFrame(clipFrame);
        // A new picture keyframe is edited in the transform panel right away.
        if (!audio)
            showTransformPanel(clip);
    }
    return added;
}

bool MvKeyFramePresenterPrivate::addKeyFrame_ShortcutKey()
{
    QList<IMvClip*> clips = getEnabledMainClips();
    // The shortcut adds picture keyframes; plain audio clips have none.
    for (int i = clips.size() - 1; i >= 0; --i) {
        if (clips.at(i)->type() == ClipType_Audio)
            clips.removeAt(i);
    }
    if (clips.isEmpty())
        return false;
    qint64 frame = MvModelAccess::playheadFrame(timeline);
    if (clips.size() == 1) {
        IMvClip* clip = clips.first();
        if (!MvKeyFrameHelper2::canAddKeyFrame(clip, frame, true, false)) {
            // Off the clip (or on a keyframe already): start from the clip's first frame instead.
            frame = clip->position();
            MvModelAccess::setPlayheadFrame(timeline, frame);
        }
        return addDefaultKeyFrame(clip, frame, false);
    }
    MV_FUNCTION("MvKeyFramePresenter::addKeyFrame_ShortcutKey");
    const MvCommandScope command(q_func(), MvCommandScope::NoPause, timeline->undoRedoService(),
        QStringLiteral("mult add default key frame"), MV_SOURCE);
    int failures = 0;
    for (IMvClip* clip : qAsConst(clips)) {
        if (!MvKeyFrameHelper2::canAddKeyFrame(clip, frame, true, false) || !addDefaultKeyFrame(clip, frame, false))
            ++failures;
    }
    return failures == 0;
}

bool MvKeyFramePresenterPrivate::canCopyKeyFrames() const
{
    // Keyframes are copied only in the main project timeline.
    if (!timeline || timeline->kind() != 0 || !timeline->keyFrameSelector())
        return false;
    const IMvKeyFrameSelector::MvSelectData selection = timeline->keyFrameSelector()->currentSelection();
    if (!selection.isValid())
        return false;
    if (selection.side != IMvKeyFrameSelector::VideoSide && selection.side != IMvKeyFrameSelector::AudioSide)
        return false;
    if (!isSupportCopyAndPaste(selection.clip->type()))
        return false;
    return selection.clip->canCopyKeyFrames(selection, selection.isAudio());
}

bool MvKeyFramePresenterPrivate::copySelectedKeyFrames()
{
    Q_Q(MvKeyFramePresenter);
    IMvKeyFrameSelector* selector = timeline ? timeline->keyFrameSelector() : nullptr;
    IMvKeyFrameClipboard* clipboard = timeline ? timeline->keyFrameClipboard() : nullptr;
    if (!selector || !clipboard)
        return false;
    const IMvKeyFrameSelector::MvSelectData selection = selector->currentSelection();
    if (!selection.isValid())
        return false;
    if (!clipboard->copy(selection.clip, selection.isAudio(), selection))
        return false;
    Q_EMIT q->sigCopyKeyFrame();
    return true;
}

bool MvKeyFramePresenterPrivate::canPasteKeyFrames(IMvClip* clip) const
{
    if (!clip || !isSupportCopyAndPaste(clip->type()))
        return false;
    // A tracked clip takes its motion from the tracker, not from pasted keyframes.
    MvMotionTrackHelper helper;
    helper.setTimeline(clip->ownerTimeline());
    return !helper.isTracingEnable(clip);
}

void MvKeyFramePresenterPrivate::filterVaildPasteClip(QList<IMvClip*>& clips) const
{
    clips.erase(std::remove_if(clips.begin(), clips.end(), [this](IMvClip* clip) { return !canPasteKeyFrames(clip); }),
        clips.end());
}

bool MvKeyFramePresenterPrivate::canPasteKeyFrames() const
{
    IMvKeyFrameClipboard* clipboard = timeline ? timeline->keyFrameClipboard() : nullptr;
    if (!clipboard)
        return false;
    QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    filterVaildPasteClip(clips);
    if (clips.isEmpty() || !clipboard->canPaste(clips))
        return false;
    // One target long enough for the copied span is enough to offer the paste.
    const qint64 span = clipboard->minimumLength(clips);
    return std::any_of(
        clips.cbegin(), clips.cend(), [span](const IMvClip* clip) { return clip->frameCount() >= span; });
}

bool MvKeyFramePresenterPrivate::pasteKeyFrames()
{
    if (!canPasteKeyFrames())
        return false;
    QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    filterVaildPasteClip(clips);
    return timeline->keyFrameClipboard()->paste(clips);
}

bool MvKeyFramePresenterPrivate::canRemoveKeyFrame() const
{
    IMvKeyFrameSelector* selector = timeline ? timeline->keyFrameSelector() : nullptr;
    return selector && selector->currentSelection().isValid();
}

bool MvKeyFramePresenterPrivate::removeSelectedKeyFrame()
{
    if (!canRemoveKeyFrame())
        return false;
    const IMvKeyFrameSelector::MvSelectData selection = timeline->keyFrameSelector()->currentSelection();
    const QList<IMvClip*> clips = getEnabledMainClips();
    MV_FUNCTION("MvKeyFramePresenter::removeSelectedKeyFrame");
    const MvCommandScope command(q_func(), MvCommandScope::NoPause, timeline->undoRedoService(),
        QStringLiteral("clear selected key frames"), MV_SOURCE);
    bool removed = false;
    for (IMvClip* clip : clips) {
        if (clip->removeKeyFrames(selection, selection.isAudio()))
            removed = true;
    }
    return removed;
}

bool MvKeyFramePresenterPrivate::clearAllKeyFrames(bool audio)
{
    const QList<IMvClip*> clips = getEnabledMainClips();
    if (clips.isEmpty())
        return false;
    MV_FUNCTION("MvKeyFramePresenter::clearAllKeyFrames");
    const MvCommandScope command(q_func(), MvCommandScope::NoPause, timeline->undoRedoService(),
        QStringLiteral("clear all key frames"), MV_SOURCE);
    int removals = 0;
    for (IMvClip* clip : clips) {
        if (clip->removeKeyFrames(clip->allKeyFrames(audio), audio))
            ++removals;
    }
    // The host reads true as "nothing was left to clear".
    return removals == 0;
}

bool MvKeyFramePresenterPrivate::selectedAllKeyFrames(bool audio)
{
    const QList<IMvClip*> clips = getEnabledMainClips();
    if (clips.isEmpty())
        return false;
    IMvKeyFrameSelector* selector = timeline->keyFrameSelector();
    if (!selector)
        return false;
    IMvClip* clip = clips.first();
    IMvKeyFrameSelector::MvSelectData selection;
    selection.clip = clip;
    selection.side = audio ? IMvKeyFrameSelector::AudioSide : IMvKeyFrameSelector::VideoSide;
    selection.frames = clip->keyFrames(audio);
    selector->select(selection);
    return true;
}

void MvKeyFramePresenterPrivate::moveToKeyFrame(bool previous)
{
    IMvClip* clip = getEnabledMainClip();
    if (!clip)
        return;
    const qint64 local = MvKeyFrameHelper2::mapFormBelongTimeline(clip, MvModelAccess::playheadFrame(timeline));
    // Both sides together: the user steps through every keyframe the clip shows.
    QList<qint64> positions = clip->keyFrames(false) + clip->keyFrames(true);
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    if (previous) {
        for (auto it = positions.crbegin(); it != positions.crend(); ++it) {
            if (*it < local) {
                MvKeyFrameHelper2(clip).gotoKeyFrame(*it);
                return;
            }
        }
        return;
    }
    const auto next = std::upper_bound(positions.cbegin(), positions.cend(), local);
    if (next != positions.cend())
        MvKeyFrameHelper2(clip).gotoKeyFrame(*next);
}

MvKeyFramePresenter::MvKeyFramePresenter(IMvTimeline* timeline, QObject* parent)
    : MvPresenter(parent)
    , d_ptr(new MvKeyFramePresenterPrivate(this, timeline, parent))
{
}

MvKeyFramePresenter::~MvKeyFramePresenter() = default;

QObject* MvKeyFramePresenter::view() const
{
    Q_D(const MvKeyFramePresenter);
    return d->parentPresenter ? d->parentPresenter->view() : MvPresenter::view();
}

IMvTimeline* MvKeyFramePresenter::timeline() const
{
    Q_D(const MvKeyFramePresenter);
    return d->timeline;
}

bool MvKeyFramePresenter::addAudioDefaultKeyFrame(IMvClip* clip, qint64 frame)
{
    Q_D(MvKeyFramePresenter);
    return d->addDefaultKeyFrame(clip, frame, true);
}

bool MvKeyFramePresenter::addVideoDefaultKeyFrame(IMvClip* clip, qint64 frame)
{
    Q_D(MvKeyFramePresenter);
    return d->addDefaultKeyFrame(clip, frame, false);
}

bool MvKeyFramePresenter::addKeyFrame_ShortcutKey()
{
    Q_D(MvKeyFramePresenter);
    return d->addKeyFrame_ShortcutKey();
}

bool MvKeyFramePresenter::canCopyKeyFrames()
{
    Q_D(const MvKeyFramePresenter);
    return d->canCopyKeyFrames();
}

bool MvKeyFramePresenter::copySelectedKeyFrames()
{
    Q_D(MvKeyFramePresenter);
    return d->copySelectedKeyFrames();
}

bool MvKeyFramePresenter::canPasteKeyFrames()
{
    Q_D(const MvKeyFramePresenter);
    return d->canPasteKeyFrames();
}

bool MvKeyFramePresenter::pasteKeyFrames()
{
    Q_D(MvKeyFramePresenter);
    return d->pasteKeyFrames();
}

bool MvKeyFramePresenter::canRemoveKeyFrame() const
{
    Q_D(const MvKeyFramePresenter);
    return d->canRemoveKeyFrame();
}

bool MvKeyFramePresenter::removeSelectedKeyFrame()
{
    Q_D(MvKeyFramePresenter);
    return d->removeSelectedKeyFrame();
}

bool MvKeyFramePresenter::clearAllAudioKeyFrames()
{
    Q_D(MvKeyFramePresenter);
    return d->clearAllKeyFrames(true);
}

bool MvKeyFramePresenter::clearAllVideoKeyFrames()
{
    Q_D(MvKeyFramePresenter);
    return d->clearAllKeyFrames(false);
}

bool MvKeyFramePresenter::selectedAllAudioKeyFrames()
{
    Q_D(MvKeyFramePresenter);
    return d->selectedAllKeyFrames(true);
}

bool MvKeyFramePresenter::selectedAllVideoKeyFrames()
{
    Q_D(MvKeyFramePresenter);
    return d->selectedAllKeyFrames(false);
}

void MvKeyFramePresenter::moveToPrevKeyFrame()
{
    Q_D(MvKeyFramePresenter);
    d->moveToKeyFrame(true);
}

void MvKeyFramePresenter::moveToNextKeyFrame()
{
    Q_D(MvKeyFramePresenter);
    d->moveToKeyFrame(false);
}

bool MvKeyFramePresenter::isSupportAudioKeyFrame(MvClipType type) const
{
    return audioKeyFrameTypes().contains(type);
}

bool MvKeyFramePresenter::isSupportVideoKeyFrame(MvClipType type) const
{
    return videoKeyFrameTypes().contains(type);
}

bool MvKeyFramePresenter::isKeyFrameItemEnabled(IMvClip* clip)
{
    Q_D(const MvKeyFramePresenter);
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(d->timeline);
    return clip && clips.size() == 1 && clips.first() == clip;
}
