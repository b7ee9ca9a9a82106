// Adding media items to the timeline: the preparation chain (pause, download, resolution choice,
// zero-length filter), the project-settings match, the insertion (on a worker while a wait dialog
// spins when compound media are involved), and what the scene is told afterwards.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvAbstractMediaItem.h"
#include "IMvTimeline.h"
#include "MvCommandScope_p.h"
#include "MvCustomEvent.h"
#include "MvElapsedTimer.h"
#include "MvMediaHelper.h"
#include "MvModelMessages.h"
#include "MvTaskRunner_p.h"
#include "MvTimelineAddMediaParam.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"
#include "MvWaitDialog.h"

#include <QScopedPointer>
#include <QSharedPointer>

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

namespace {
using MediaItems = QList<IMvAbstractMediaItem*>;

// Compound media may take long to read; after this the insertion is tried all the same.
constexpr int kCompoundLoadTimeoutMs = 60000;
// Rates above this count as this when a start frame is carried over to a new project rate.
constexpr double kMaxEffectiveFps = 60.0;
constexpr int kWaitDialogSide = 70;

// Frames per second as the insertion compares rates. 24000/1001 is taken as 23.97 on purpose:
// start frames converted to and from that rate must land where the rest of the product puts them.
double framesPerSecond(const MvRational& rate)
{
    if (rate.numerator <= 0 || rate.denominator <= 0)
        return 0.0;
    if (rate.numerator == 24000 && rate.denominator == 1001)
        return 23.97;
    return double(rate.numerator) / double(rate.denominator);
}

double effectiveFps(const IMvTimeline* timeline)
{
    return qMin(framesPerSecond(timeline->frameRate()), kMaxEffectiveFps);
}

// The start frame asked for at the old rate, at the new one (the same frame when they agree). A
// rate that is not positive gives no ratio: the frame is kept.
qint64 convertedStartFrame(qint64 frame, double oldFps, double newFps)
{
    if (oldFps <= 0.0 || newFps <= 0.0)
        return frame;
    return qint64(qRound(double(frame) * newFps / oldFps));
}

// The one match the project is offered: media that carry settings a project may adopt.
bool offersProjectSettings(const IMvAbstractMediaItem* item)
{
    if (!item || item->origin() == MediaOrigin_Project)
        return false;
    if (item->mediaType() == MediaType_ScreenRecording || item->mediaType() == MediaType_Compound)
        return true;
    const IMvMediaInfo* info = item->mediaInfo();
    return info && (info->flags() & MediaInfoFlag_OwnVideoSettings);
}

// Media of these types learn their length late; they are kept even while it reads 0.
bool mayHaveNoLengthYet(MvMediaType type)
{
    return type == MediaType_ScreenRecording || type == MediaType_Compound;
}
}

QList<IMvClip*> MvTimelinePresenter::addMedias(const MvTimelineAddMediaParam& param, int policy)
{
    Q_D(MvTimelinePresenter);
    return d->addMedias(param, policy);
}

bool MvTimelinePresenter::prepareAddMedia(IMvAbstractMediaItem* item)
{
    Q_D(MvTimelinePresenter);
    return d->prepareAddMedia(item);
}

QList<IMvAbstractMediaItem*> MvTimelinePresenter::prepareAddMedias(
    const QList<IMvAbstractMediaItem*>& items, bool* handled)
{
    Q_D(MvTimelinePresenter);
    return d->prepareAddMedias(items, handled);
}

QList<IMvAbstractMediaItem*> MvTimelinePresenter::downloadMediaItems(const QList<IMvAbstractMediaItem*>& items)
{
    Q_D(MvTimelinePresenter);
    return d->downloadMediaItems(items);
}

QList<IMvAbstractMediaItem*> MvTimelinePresenter::selectMediaItems(const QList<IMvAbstractMediaItem*>& items)
{
    Q_D(MvTimelinePresenter);
    return d->selectMediaItems(items);
}

QList<IMvAbstractMediaItem*> MvTimelinePresenter::selectVCGMediaItems(const QList<IMvAbstractMediaItem*>& items)
{
    Q_D(MvTimelinePresenter);
    return d->selectVCGMediaItems(items);
}

QList<IMvAbstractMediaItem*> MvTimelinePresenter::downloadAndSelectVCGItems(
    const QList<IMvAbstractMediaItem*>& items, bool* flag)
{
    Q_D(MvTimelinePresenter);
    return d->downloadAndSelectVCGItems(items, flag);
}

void MvTimelinePresenter::checkMatchProjectSettings(const QList<IMvAbstractMediaItem*>& items)
{
    Q_D(MvTimelinePresenter);
    d->checkMatchProjectSettings(items);
}

void MvTimelinePresenter::executeTaskWithLoadingIndicator(const std::function<void()>& task)
{
    Q_D(MvTimelinePresenter);
    d->executeTaskWithLoadingIndicator(task);
}

QDialog* MvTimelinePresenter::getAddLoadingWgt()
{
    Q_D(MvTimelinePresenter);
    return d->getAddLoadingWgt();
}

void MvTimelinePresenter::notifyAddMediaSucceed(
    const QList<IMvAbstractMediaItem*>& items, void* context, int value, bool send)
{
    Q_D(MvTimelinePresenter);
    d->notifyAddMediaSucceed(items, context, value, send);
}

void MvTimelinePresenter::notifyTimelineScrollToTrack(const QList<IMvClip*>& clips)
{
    Q_D(MvTimelinePresenter);
    d->notifyTimelineScrollToTrack(clips);
}

QList<IMvClip*> MvTimelinePresenterPrivate::addMedias(const MvTimelineAddMediaParam& param, int policy)
{
    MV_FUNCTION("MvTimelinePresenter::addMedias");
    const MvElapsedTimer timer { QLatin1String(mvFunction) };
    if (!timeline) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("timeline is null"));
        return {};
    }
    // Nothing in the pipeline sets it; it stays for a preparation step that tells the scene itself.
    bool handled = false;
    const MediaItems prepared = prepareAddMedias(param.mediaItems, &handled);
    if (prepared.isEmpty())
        return {};
    if (MvMediaHelper::hasCustomCompoundMediaItem(prepared)) {
        executeTaskWithLoadingIndicator(
            [&prepared]() { MvMediaHelper::waitForFinishLoadCompoundMediaTimeline(prepared, kCompoundLoadTimeoutMs); });
    }
    const double oldFps = effectiveFps(timeline);
    checkMatchProjectSettings(prepared);
    const double newFps = effectiveFps(timeline);

    MvTimelineAddMediaParam request(param);
    request.startFrame = convertedStartFrame(param.startFrame, oldFps, newFps);
    if (prepared != param.mediaItems)
        request.mediaItems = prepared;
    QList<IMvClip*> clips = insertPrepared(request, policy);
    if (clips.isEmpty())
        return {};
    announceInsertion(prepared, clips, handled);
    IMvClip* first = clips.first();
    if (!first)
        return {};
    if (first->type() == ClipType_Subtitle) {
        Q_Q(MvTimelinePresenter);
        q->showPropertyPanel(-1);
        MvModelAccess::setPlayheadFrame(timeline, first->position());
        timeline->activateClip(first, -1);
    }
    return clips;
}

// Compound media are inserted on a worker, with the policy the model keeps for them (-1), and
// their shared assets are announced from there; the compound refusals are told afterwards, here.
QList<IMvClip*> MvTimelinePresenterPrivate::insertPrepared(const MvTimelineAddMediaParam& request, int policy)
{
    Q_Q(MvTimelinePresenter);
    QList<IMvClip*> clips;
    unsigned flags = 0;
    if (MvMediaHelper::hasCustomCompoundMediaItem(request.mediaItems)) {
        IMvTimeline* target = timeline;
        executeTaskWithLoadingIndicator([&request, &clips, &flags, target]() {
            flags = target->addMedias(request, clips, -1);
            if (clips.isEmpty())
                return;
            QSharedPointer<MvCustomEventImp> event(
                new MvCustomEventImp(QLatin1String(MvEventName::NotifyAddSharedClipsAssetsToProjectMedia),
                    { QVariant::fromValue(target), QVariant::fromValue(clips) }));
            MvCustomEventDispatcher::instance().sendEvent(event, MvCustomEventDispatcher::Filter());
        });
    } else {
        flags = timeline->addMedias(request, clips, policy);
    }
    if (flags & (AddMediaFlag_ExternalCompound | AddMediaFlag_NestsItself))
        q->showTimelineNestToast((flags & AddMediaFlag_NestsItself) != 0);
    return clips;
}

void MvTimelinePresenterPrivate::announceInsertion(const MediaItems& prepared, QList<IMvClip*>& clips, bool handled)
{
    if (!handled) {
        notifyAddMediaSucceed(prepared, &clips, 0, true);
        notifyTimelineScrollToTrack(clips);
    }
    MvModelAccess::selectClips(timeline, clips);
}

bool MvTimelinePresenterPrivate::prepareAddMedia(IMvAbstractMediaItem* item)
{
    return !prepareAddMedias({ item }, nullptr).isEmpty();
}

QList<IMvAbstractMediaItem*> MvTimelinePresenterPrivate::prepareAddMedias(const MediaItems& items, bool* handled)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::prepareAddMedias");
    if (handled)
        *handled = false;
    MvCommandScope::pause(q, MvCommandScope::PausePlayerWithSync);
    MediaItems result = selectMediaItems(downloadMediaItems(items));
    if (result.isEmpty())
        MV_LOG(MvBaseLog::Note, QStringLiteral("download media item fail"));

    const MvRational rate = timeline ? timeline->frameRate() : MvRational { 0, 0 };
    MediaItems empty;
    for (IMvAbstractMediaItem* item : qAsConst(result)) {
        if (!item)
            empty.append(item);
        else if (!mayHaveNoLengthYet(item->mediaType()) && item->lengthInFrames(rate) < 1)
            empty.append(item);
    }
    for (IMvAbstractMediaItem* item : qAsConst(empty)) {
        if (item) {
            MV_LOG(MvBaseLog::Refusal,
                QString::asprintf("remove media with 0 length: %s", item->name().toLocal8Bit().constData()));
        } else {
            MV_LOG(MvBaseLog::Warning, QStringLiteral("media item is null"));
        }
        result.removeOne(item);
    }
    return result;
}

QList<IMvAbstractMediaItem*> MvTimelinePresenterPrivate::downloadMediaItems(const MediaItems& items)
{
    Q_Q(MvTimelinePresenter);
    MvDownloadMediaItemMessage message;
    for (IMvAbstractMediaItem* item : items) {
        if (item && item->needDownload())
            message.appendMediaItem(item);
    }
    if (message.mediaItems().isEmpty())
        return items;
    q->sendMessageToScene(&message);
    // Only what was to be downloaded goes on, and only what now is.
    MediaItems downloaded;
    const MediaItems answered = message.mediaItems();
    for (IMvAbstractMediaItem* item : answered) {
        if (item && !item->needDownload())
            downloaded.append(item);
    }
    return downloaded;
}

QList<IMvAbstractMediaItem*> MvTimelinePresenterPrivate::selectMediaItems(const MediaItems& items)
{
    Q_Q(MvTimelinePresenter);
    MvSelectResolutionMediaItemMessage message;
    for (IMvAbstractMediaItem* item : items) {
        auto* stock = item && item->isStockItem() ? dynamic_cast<IMvStockMediaItem*>(item) : nullptr;
        if (!stock)
            continue;
        if (stock->resolutionCount() > 1 && !stock->hasSelectedResolution())
            message.appendMediaItem(item);
        stock->setResolutionFlag(false);
    }
    if (message.mediaItems().isEmpty())
        return items;
    q->sendMessageToScene(&message);
    return message.mediaItems();
}

QList<IMvAbstractMediaItem*> MvTimelinePresenterPrivate::selectVCGMediaItems(const MediaItems& items)
{
    Q_Q(MvTimelinePresenter);
    MvVCGSelectResolutionMediaItemMessage message;
    for (IMvAbstractMediaItem* item : items) {
        if (item && item->isVCGItem())
            message.appendMediaItem(item);
    }
    if (message.mediaItems().isEmpty())
        return items;
    q->sendMessageToScene(&message);
    return message.mediaItems();
}

QList<IMvAbstractMediaItem*> MvTimelinePresenterPrivate::downloadAndSelectVCGItems(const MediaItems& items, bool* flag)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::downloadAndSelectVCGItems");
    if (flag)
        *flag = false;
    IMvAbstractMediaItem* item = items.value(0);
    const auto* vcg = dynamic_cast<IMvVCGMediaItem*>(item);
    if (!vcg) {
        MV_LOG(MvBaseLog::Note, QStringLiteral("not vcg item"));
        return {};
    }
    const int resolutions = vcg->resolutionCount();
    if (resolutions < 1) {
        MvDownloadMediaItemMessage message;
        message.appendMediaItem(item);
        if (flag)
            *flag = true;
        q->sendMessageToScene(&message);
        return message.mediaItems();
    }
    if (resolutions > 1) {
        MvVCGSelectResolutionMediaItemMessage message;
        message.appendMediaItem(item);
        q->sendMessageToScene(&message);
        return message.mediaItems();
    }
    return items;
}

void MvTimelinePresenterPrivate::checkMatchProjectSettings(const MediaItems& items)
{
    Q_Q(MvTimelinePresenter);
    for (IMvAbstractMediaItem* item : items) {
        if (offersProjectSettings(item)) {
            MvMatchProjMediaItemMessage message(item);
            q->sendMessageToScene(&message);
            return;
        }
    }
}

void MvTimelinePresenterPrivate::executeTaskWithLoadingIndicator(const std::function<void()>& task)
{
    Q_Q(MvTimelinePresenter);
    const QScopedPointer<QDialog> dialog(q->getAddLoadingWgt());
    taskRunner->runWhileWaiting(task, dialog.data());
}

QDialog* MvTimelinePresenterPrivate::getAddLoadingWgt()
{
    Q_Q(MvTimelinePresenter);
    QWidget* parent = qobject_cast<QWidget*>(q->view());
    auto* dialog = new MvWaitDialog(parent);
    dialog->setFixedSize(kWaitDialogSide, kWaitDialogSide);
    if (parent) {
        const QRect area = parent->rect();
        const int x = area.width() / 2 - dialog->width() / 2 + area.left();
        const int y = area.top() + area.height() / 2 - dialog->height() / 2;
        dialog->move(parent->mapToGlobal(QPoint(x, y)));
    }
    return dialog;
}

void MvTimelinePresenterPrivate::notifyAddMediaSucceed(const MediaItems& items, void* context, int value, bool send)
{
    Q_Q(MvTimelinePresenter);
    if (send) {
        MvTimelineAddMediaResponseMessage message(items, context, value);
        q->sendMessageToScene(&message);
    }
    q->switchMediaPlayerToTimeline();
}

void MvTimelinePresenterPrivate::notifyTimelineScrollToTrack(const QList<IMvClip*>& clips)
{
    Q_Q(MvTimelinePresenter);
    MvTimelineScrollToTrackMessage message(clips);
    q->sendMessageToScene(&message);
}
