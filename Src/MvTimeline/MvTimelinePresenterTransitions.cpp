// Transitions: one dropped on clips (or on the overlaps of the timeline), one put on a clip end,
// random ones for every cut, and the once-per-project notice that a transition repeats frames.
// Where transitions go is the model's (MvClipTransitionHelper); here are the order of the steps,
// what the user is told and what the scene hears afterwards.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvAbstractMediaItem.h"
#include "IMvProjectManager.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTransitionMediaItem.h"
#include "MvClipTransitionHelper.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"
#include "MvToast.h"

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

namespace {
// The add-media response's value for transitions (media 0, effects 1).
constexpr int kTransitionResponse = 2;
// The duplicate-frames notice sits this far above the bottom of the window.
constexpr int kRepeatFrameToastMargin = 24;

QString tooShortText()
{
    return MvTimelinePresenter::tr("Clip is too short to add transition.");
}

// A transition of an item never loaded has no picture for the timeline to show: the item is loaded
// and the transition made again.
IMvTransition* transitionWithPicture(IMvTransitionMediaItem* item)
{
    IMvTransition* transition = item->createTransition();
    if (!transition || !transition->thumbnail().isNull())
        return transition;
    item->load(MvTransitionLoadParam { 0, 1, QString(), -1, 2 });
    IMvTransition* loaded = item->createTransition();
    if (!loaded)
        return transition;
    if (loaded != transition)
        transition->release();
    return loaded;
}
}

void MvTimelinePresenter::addTransitionMedia(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item, qint64 duration)
{
    Q_D(MvTimelinePresenter);
    d->addTransitionMedia(clips, item, duration);
}

void MvTimelinePresenter::addTransitionMedia(
    IMvClip* clip, IMvTransitionMediaItem* item, qint64 duration, MvTransitionType type)
{
    Q_D(MvTimelinePresenter);
    d->addTransitionMedia(clip, item, duration, type);
}

void MvTimelinePresenter::randomAddTransitionMedia(
    const QList<IMvClip*>& clips, const QList<IMvAbstractMediaItem*>& items, qint64 duration)
{
    Q_D(MvTimelinePresenter);
    d->randomAddTransitionMedia(clips, items, duration);
}

void MvTimelinePresenter::showRepeatFrame()
{
    Q_D(MvTimelinePresenter);
    d->showRepeatFrame();
}

void MvTimelinePresenterPrivate::addTransitionMedia(
    const QList<IMvClip*>& clips, IMvAbstractMediaItem* item, qint64 duration)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::addTransitionMedia");
    if (!timeline) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("timeline is null"));
        return;
    }
    if (!prepareAddMedia(item))
        return;
    auto* transitionItem = dynamic_cast<IMvTransitionMediaItem*>(item);
    if (!transitionItem) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("not a transition item"));
        return;
    }
    MvClipTransitionHelper helper;
    helper.setFrameRate(timeline->frameRate());
    helper.setClipList(clips);
    const bool audio = transitionItem->isAudioTransition();
    helper.setIsAudioTransition(audio);

    MvTransitionPlacement placed;
    if (helper.addTransitionEnabled()) {
        placed = helper.addTransition(transitionItem, duration);
    } else if (clips.isEmpty() && helper.addTransitionEnabled(timeline)) {
        placed = helper.addOverlapTransition(timeline, transitionItem, duration);
    } else if (audio) {
        q->showToast(MvTimelinePresenter::tr("Please select the clip with audio in the timeline."));
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("cannot add audio transition"));
        return;
    } else {
        q->showToast(MvTimelinePresenter::tr("Please select the video clip in the timeline."));
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("cannot add transition"));
        return;
    }

    if (placed.isEmpty()) {
        q->showToast(tooShortText());
        MV_LOG(MvBaseLog::Warning, QStringLiteral("Clip is too short to add transition."));
    } else if (MvClipTransitionHelper::isRepeatFrame(placed, duration)) {
        showRepeatFrame();
    }
    // The scene hears of every attempt that got this far, an empty one included.
    notifyAddMediaSucceed({ item }, &placed, kTransitionResponse, true);
}

void MvTimelinePresenterPrivate::addTransitionMedia(
    IMvClip* clip, IMvTransitionMediaItem* item, qint64 duration, MvTransitionType type)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::addTransitionMedia");
    if (!timeline) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("timeline is null"));
        return;
    }
    auto* media = dynamic_cast<IMvAbstractMediaItem*>(item);
    if (!prepareAddMedia(media))
        return;
    if (!MvClipTransitionHelper::canAddTransition(clip, type, item->isAudioTransition())) {
        q->showToast(tooShortText());
        MV_LOG(MvBaseLog::Warning, QString::asprintf("Clip is too short to add transition. transitionType = %d", type));
        return;
    }
    IMvTransition* transition = transitionWithPicture(item);
    if (!transition)
        return;
    // Nothing asked: the transition keeps the length its item gave it.
    const qint64 length = MvClipTransitionHelper::getDefaultDuration(clip, duration, type);
    if (length > 0) {
        transition->setFrameRate(timeline->frameRate());
        transition->setEnd(transition->start() + length, true);
    }
    IMvClipTransitions* ends = clip->transitions();
    if (!ends || !ends->setTransition(transition, type)) {
        transition->release();
        return;
    }
    if (MvClipTransitionHelper::isRepeatFrame(clip, type, duration))
        showRepeatFrame();
    if (IMvSelection* selection = MvModelAccess::selection(timeline))
        selection->selectItem(transition);
    MvTransitionPlacement placed { { transition, item } };
    notifyAddMediaSucceed({ media }, &placed, kTransitionResponse, true);
    transition->release();
}

void MvTimelinePresenterPrivate::randomAddTransitionMedia(
    const QList<IMvClip*>& clips, const QList<IMvAbstractMediaItem*>& items, qint64 duration)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::randomAddTransitionMedia");
    if (!timeline) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("timeline is null"));
        return;
    }
    const QList<IMvAbstractMediaItem*> prepared = prepareAddMedias(items, nullptr);
    if (prepared.isEmpty())
        return;
    MvClipTransitionHelper helper;
    helper.setFrameRate(timeline->frameRate());
    helper.setClipList(clips);
    MvTransitionPlacement placed = helper.randomAddTransition(prepared, duration);
    if (placed.isEmpty())
        q->showToast(tooShortText());
    else if (MvClipTransitionHelper::isRepeatFrame(placed, duration))
        showRepeatFrame();
    notifyAddMediaSucceed(prepared, &placed, kTransitionResponse, true);
}

void MvTimelinePresenterPrivate::showRepeatFrame()
{
    const IMvProjectManager* manager = IMvProjectManager::getInstance();
    IMvProjectSettings* settings = manager ? manager->currentProjectSettings() : nullptr;
    // Without a project to remember it in, every placement that repeats frames says so.
    if (settings && settings->isRepeatFrameTipShown())
        return;
    // The toast is made only when it is shown: until showToast() it would be ours to delete.
    // clang-format off
    const QString text = MvTimelinePresenter::tr("There is no extra media where the clips connect, This transition will contain duplicate frames");
    // clang-format on
    MvToast* toast = MvToast::creatToast(text, nullptr, QPixmap(), kRepeatFrameToastMargin);
    toast->showToast();
    if (settings)
        settings->setRepeatFrameTipShown(true);
}
