#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "MvBadInputTable.h"
#include "MvCustomEvent.h"
#include "MvModelMessages.h"
#include "MvTimelineAddMediaParam.h"

using namespace MVVBLMODEL;

namespace {
// Adds media of the sample library (alive for the call only; an empty name is a null item) and
// gives how many clips came of it.
QVariant addMedias(MvSampleHost& p, const QStringList& names, qint64 start = 0, int trackIndex = -1,
    const QList<qint64>& lengths = {}, int policy = 0)
{
    MvMemoryMediaLibrary library;
    MvSampleProject::buildMediaLibrary(library, p.timeline, 0);
    MvTimelineAddMediaParam param;
    for (const QString& name : names)
        param.mediaItems.append(name.isEmpty() ? nullptr : library.find(name));
    param.startFrame = start;
    param.trackIndex = trackIndex;
    param.lengths = lengths;
    return QVariant(p.presenter.addMedias(param, policy).size());
}

// The preparation steps a host's own presenter reuses.
struct MediaSteps : MvTimelinePresenter
{
    using MvTimelinePresenter::checkMatchProjectSettings;
    using MvTimelinePresenter::downloadAndSelectVCGItems;
    using MvTimelinePresenter::executeTaskWithLoadingIndicator;
    using MvTimelinePresenter::MvTimelinePresenter;
    using MvTimelinePresenter::notifyAddMediaSucceed;
    using MvTimelinePresenter::notifyTimelineScrollToTrack;
    using MvTimelinePresenter::prepareAddMedia;
    using MvTimelinePresenter::prepareAddMedias;
    using MvTimelinePresenter::selectMediaItems;
};

const QString kPrepare = QStringLiteral("MvTimelinePresenter::prepareAddMedias");
}

namespace MvBadInput {
void addMediaRows()
{
    using P = MvSampleHost;
    row(
        "media: an empty request", nothing, [](P& p) { return addMedias(p, QStringList()); }, 0,
        QStringLiteral("download media item fail|4|") + kPrepare);
    row(
        "media: null items", nothing, [](P& p) { return addMedias(p, { QString() }); }, 0,
        QStringLiteral("media item is null|8|") + kPrepare);
    row(
        "media: an item of no length", nothing,
        [](P& p) { return addMedias(p, { QStringLiteral("Empty recording.mp4") }, 300, kMaxInt); }, 0,
        QStringLiteral("remove media with 0 length: Empty recording.mp4|16|") + kPrepare);
    row(
        "media: a download the host does not make", nothing,
        [](P& p) {
            return addMedias(p, { QStringLiteral("Stock: city lights"), QStringLiteral("Island map.png") }, 0, kMinInt);
        },
        0, QStringLiteral("download media item fail|4|") + kPrepare);
    row(
        "media: a clip ending on the last 64-bit frame", nothing,
        [](P& p) { return addMedias(p, { QStringLiteral("Island map.png") }, 1, kMaxInt, { kMaxFrame }, kMinInt); }, 0);
    row(
        "media: a clip ending past the last 64-bit frame", nothing,
        [](P& p) { return addMedias(p, { QStringLiteral("Island map.png") }, 1000, kMaxInt, { kMaxFrame }); }, 0);
    row(
        "media: the timeline into itself", nothing,
        [](P& p) {
            // The refusal is told in a toast; the model is as it was.
            QObject owner;
            QStringList toasts;
            new MvCustomEventListener(
                &owner, QLatin1String(MvEventName::ShowCustomToast), [&toasts](const MvCustomEventImp& e) {
                    toasts.append(e.value(2).toString());
                    return false;
                });
            const QVariant added = addMedias(p, { QStringLiteral("This timeline") }, 0, kMinInt, {}, kMaxInt);
            return QVariant(QString::number(added.toInt()) + QLatin1Char(' ') + toasts.join(QLatin1Char('|')));
        },
        QStringLiteral("0 Unable to add compound clip itself, please try again"));
    row(
        "media steps with nothing to work on", nothing,
        [](P& p) {
            MediaSteps steps(nullptr, &p.timeline);
            steps.setScene(&p.scene);
            bool handled = true;
            const bool none = steps.prepareAddMedias({}, &handled).isEmpty() && !handled
                && steps.prepareAddMedias({ nullptr }, nullptr).isEmpty() && !steps.prepareAddMedia(nullptr)
                && steps.downloadAndSelectVCGItems({}, &handled).isEmpty() && !handled
                && steps.selectMediaItems({ nullptr }) == QList<IMvAbstractMediaItem*>({ nullptr });
            steps.checkMatchProjectSettings({ nullptr });
            steps.notifyTimelineScrollToTrack({});
            steps.notifyAddMediaSucceed({}, nullptr, kMinInt, false);
            steps.executeTaskWithLoadingIndicator(std::function<void()>()); // nothing to run: it ends at once
            return done(none && p.scene.count(MessageId::MatchProjectSettings) == 0);
        },
        true, QStringLiteral("not vcg item|4|MvTimelinePresenter::downloadAndSelectVCGItems"));
}

void addTransitionAndEffectRows()
{
    using P = MvSampleHost;
    row(
        "transitions and effects with null clips and items, at the 64-bit extremes", nothing,
        [](P& p) {
            MvTimelinePresenter& t = p.presenter;
            t.addTransitionMedia(QList<IMvClip*>(), nullptr, kMaxFrame);
            t.addTransitionMedia(QList<IMvClip*>({ nullptr, p.foreign, p.removed }), nullptr, kMinFrame);
            t.addTransitionMedia(nullptr, nullptr, kMaxFrame, TransitionType_Start);
            t.addTransitionMedia(p.clip(2), nullptr, kMinFrame, kMaxInt);
            t.randomAddTransitionMedia({ nullptr }, { nullptr }, kMaxFrame);
            t.randomAddTransitionMedia({}, {}, -1);
            t.addEffectMedia(nullptr, nullptr);
            t.addEffectMedia(p.foreign, nullptr);
            t.addEffectMedias({ nullptr, p.removed }, nullptr);
            t.copyEffect();
            t.pasteEffect();
            t.deleteEffect();
            return done(t.hasEffect() || t.canPasteEffect());
        },
        false);
}

void addOrphanMediaRows()
{
    row(
        "transitions and effects without a timeline",
        [](MvOrphanHost& o) {
            MvTimelinePresenter& t = o.presenter;
            t.addTransitionMedia(QList<IMvClip*>({ nullptr }), nullptr, kMaxFrame);
            t.addTransitionMedia(nullptr, nullptr, kMinFrame, TransitionType_End);
            t.randomAddTransitionMedia({ nullptr }, { nullptr }, 30);
            t.addEffectMedias({ nullptr }, nullptr);
            t.copyEffect();
            t.pasteEffect();
            t.deleteEffect();
            return done(t.hasEffect() || t.canPasteEffect());
        },
        false);
    row(
        "media without a timeline",
        [](MvOrphanHost& o) {
            MvMemoryMediaItem video(QStringLiteral("video"), MediaType_Video, 2000);
            MvTimelineAddMediaParam param;
            param.mediaItems = { &video };
            const bool none = o.presenter.addMedias(param, 0).isEmpty();
            return done(none && o.scene.count(MessageId::AddMediaResponse) == 0);
        },
        true, QStringLiteral("timeline is null|16|MvTimelinePresenter::addMedias"));
}
}
