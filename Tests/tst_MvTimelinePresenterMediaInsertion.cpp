#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryCompoundMediaItem.h"
#include "Memory/MvMemoryThreadGate.h"
#include "MvCustomEvent.h"
#include "MvMediaTestSupport.h"
#include "MvWaitDialog.h"

#include <QApplication>
#include <QSemaphore>
#include <QThread>
#include <QTimer>
#include <QtConcurrent>
#include <QtTest>

using namespace MvMediaTest;

namespace {

// Every NotifyAddSharedClipsAssetsToProjectMedia raised while it lives.
struct SharedAssetsRecorder
{
    QObject owner;
    QList<IMvTimeline*> timelines;
    QList<QList<IMvClip*>> clipLists;
    QList<bool> onGuiThread;

    SharedAssetsRecorder()
    {
        new MvCustomEventListener(&owner, QLatin1String(MvEventName::NotifyAddSharedClipsAssetsToProjectMedia),
            [this](const MvCustomEventImp& event) {
                timelines.append(event.value(0).value<IMvTimeline*>());
                clipLists.append(event.value(1).value<QList<IMvClip*>>());
                onGuiThread.append(QThread::currentThread() == qApp->thread());
                return false;
            });
    }
};

QStringList toastsWhile(const std::function<void()>& work)
{
    QObject owner;
    QStringList toasts;
    new MvCustomEventListener(
        &owner, QLatin1String(MvEventName::ShowCustomToast), [&toasts](const MvCustomEventImp& e) {
            toasts.append(e.value(2).toString());
            return false;
        });
    work();
    return toasts;
}
}

class tst_MvTimelinePresenterMediaInsertion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
private Q_SLOTS:
    void insertsAtTheStartAndTellsTheScene();
    void messagesComeInPipelineOrder();
    void downloadLeavesOnlyWhatWasDownloaded_data();
    void downloadLeavesOnlyWhatWasDownloaded();
    void resolutionIsOfferedWhenThereIsAChoice_data();
    void resolutionIsOfferedWhenThereIsAChoice();
    void startFrameFollowsTheProjectRate_data();
    void startFrameFollowsTheProjectRate();
    void nothingIsTouchedWhenPreparationLeavesNothing();
    void requestIsLeftAsItWas();
    void compoundMediaWaitAndInsertOnTheThreadPool();
    void compoundRefusalToast_data();
    void compoundRefusalToast();
    void modelCreatingNothingAnnouncesNothing();
    void subtitleClipOpensForEditing();
    void refusesWithoutATimeline();
};

void tst_MvTimelinePresenterMediaInsertion::insertsAtTheStartAndTellsTheScene()
{
    Fixture f;
    runTasksInOrder(f);
    Library library;
    IMvAbstractMediaItem* video = library.local(QStringLiteral("video"));
    void* context = nullptr;
    QStringList contextClips;
    f.scene.answer(MessageId::AddMediaResponse, [&](MvMessage* message) {
        auto* response = static_cast<MvTimelineAddMediaResponseMessage*>(message);
        QCOMPARE(response->value(), 0);
        context = response->context();
        contextClips = namesOf(*static_cast<QList<IMvClip*>*>(context));
    });
    f.keepState();

    const QList<IMvClip*> clips = f.presenter->addMedias(request({ video }, 30), 0);
    f.keepState();

    QCOMPARE(clips.size(), 1);
    QCOMPARE(clips.first()->start(), qint64(30));
    QCOMPARE(clips.first()->end(), qint64(89));
    QCOMPARE(contextClips, QStringList({ QStringLiteral("video") }));
    QVERIFY(context != nullptr);
    QCOMPARE(f.timeline.selection()->selectedClips(), clips);
    QCOMPARE(f.scene.entries().at(1).payload.toStringList(), QStringList({ QStringLiteral("video") }));
    QCOMPARE(f.scene.entries().last().payload.toStringList(), QStringList({ QStringLiteral("video") }));
    QCOMPARE(f.walkUndo(), QStringLiteral("add media"));
}

void tst_MvTimelinePresenterMediaInsertion::messagesComeInPipelineOrder()
{
    Fixture f;
    runTasksInOrder(f);
    Library library;
    MvMemoryMediaItem* remote = library.remote(QStringLiteral("remote"));
    remote->setMediaInfo(MediaInfoFlag_OwnVideoSettings, MvRational { 30, 1 }, QSize(640, 360));
    downloadIn(f);

    f.presenter->addMedias(request({ remote }, 10), 0);

    QCOMPARE(f.journalText(),
        QStringLiteral("scene:7036 scene:3003 scene:3018 model:addMedias scene:3019 scene:7005 scene:3020 "
                       "selection:select c0"));
    QCOMPARE(f.timeline.calls.size(), 1);
    QCOMPARE(f.timeline.calls.first().policy, 0);
    QVERIFY(f.timeline.calls.first().onGuiThread);
}

void tst_MvTimelinePresenterMediaInsertion::downloadLeavesOnlyWhatWasDownloaded_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<QString>("downloads");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("inserted");

    QTest::newRow("nothing to download: no message, all go on") << "a b"
                                                                << ""
                                                                << "-"
                                                                << "a b";
    QTest::newRow("one to download: the other stays behind") << "a remote"
                                                             << "remote"
                                                             << "remote"
                                                             << "remote";
    QTest::newRow("the download of one of two fails") << "remote other"
                                                      << "remote"
                                                      << "remote other"
                                                      << "remote";
    QTest::newRow("every download fails") << "remote other a"
                                          << "none"
                                          << "remote other"
                                          << "";
}

void tst_MvTimelinePresenterMediaInsertion::downloadLeavesOnlyWhatWasDownloaded()
{
    QFETCH(QString, items);
    QFETCH(QString, downloads);
    QFETCH(QString, asked);
    QFETCH(QString, inserted);
    Fixture f;
    runTasksInOrder(f);
    Library library;
    Items request;
    for (const QString& name : items.split(QLatin1Char(' ')))
        request.append(
            name == QLatin1String("a") || name == QLatin1String("b") ? library.local(name) : library.remote(name));
    downloadIn(f, downloads.split(QLatin1Char(' ')));
    const QString before = f.snapshot();

    const QList<IMvClip*> clips = f.presenter->addMedias(::request(request), 0);

    QCOMPARE(namesOf(clips).join(QLatin1Char(' ')), inserted);
    const int downloadMessage = f.scene.ids().indexOf(MessageId::DownloadMediaItems);
    QCOMPARE(downloadMessage < 0 ? QStringLiteral("-")
                                 : f.scene.entries().at(downloadMessage).payload.toStringList().join(QLatin1Char(' ')),
        asked);
    if (inserted.isEmpty()) {
        QCOMPARE(mvCheckRecord(f.log, QStringLiteral("download media item fail"), MvBaseLog::Note, PrepareFunction),
            QString());
        QCOMPARE(f.snapshot(), before);
        QCOMPARE(f.scene.ids(), QList<int>({ MessageId::PausePlayerWithSync, MessageId::DownloadMediaItems }));
    }
}

void tst_MvTimelinePresenterMediaInsertion::resolutionIsOfferedWhenThereIsAChoice_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<bool>("sceneKeeps");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<QString>("inserted");

    QTest::newRow("one resolution: never offered") << "one" << true << "-"
                                                   << "one";
    QTest::newRow("three, none chosen: offered") << "three" << true << "three"
                                                 << "three";
    QTest::newRow("three, one chosen: not offered") << "chosen" << true << "-"
                                                    << "chosen";
    QTest::newRow("three, asked to choose again") << "again" << true << "again"
                                                  << "again";
    QTest::newRow("declined by the user") << "three" << false << "three"
                                          << "";
    QTest::newRow("a local item beside an offer stays behind") << "local three one" << true << "three"
                                                               << "three";
}

void tst_MvTimelinePresenterMediaInsertion::resolutionIsOfferedWhenThereIsAChoice()
{
    QFETCH(QString, items);
    QFETCH(bool, sceneKeeps);
    QFETCH(QString, offered);
    QFETCH(QString, inserted);
    Fixture f;
    runTasksInOrder(f);
    Library library;
    const QHash<QString, IMvAbstractMediaItem*> byName { { QStringLiteral("one"),
                                                             library.stock(QStringLiteral("one"), 1) },
        { QStringLiteral("three"), library.stock(QStringLiteral("three"), 3) },
        { QStringLiteral("chosen"), library.stock(QStringLiteral("chosen"), 3) },
        { QStringLiteral("again"), library.stock(QStringLiteral("again"), 3) },
        { QStringLiteral("local"), library.local(QStringLiteral("local")) } };
    static_cast<MvMemoryStockMediaItem*>(byName.value(QStringLiteral("chosen")))->selectResolution(1);
    auto* again = static_cast<MvMemoryStockMediaItem*>(byName.value(QStringLiteral("again")));
    again->selectResolution(1);
    again->setResolutionFlag(true);
    Items request;
    for (const QString& name : items.split(QLatin1Char(' ')))
        request.append(byName.value(name));
    f.scene.answer(MessageId::SelectStockResolution, [sceneKeeps](MvMessage* message) {
        if (!sceneKeeps)
            static_cast<MvMediaItemsMessage*>(message)->setMediaItems({});
    });

    const QList<IMvClip*> clips = f.presenter->addMedias(::request(request), 0);

    QCOMPARE(namesOf(clips).join(QLatin1Char(' ')), inserted);
    const int offer = f.scene.ids().indexOf(MessageId::SelectStockResolution);
    QCOMPARE(
        offer < 0 ? QStringLiteral("-") : f.scene.entries().at(offer).payload.toStringList().join(QLatin1Char(' ')),
        offered);
    // Whatever was asked, no stock item is left asking to choose again.
    for (MvMemoryMediaItem* item : qAsConst(library.items)) {
        if (auto* stock = dynamic_cast<MvMemoryStockMediaItem*>(item))
            QVERIFY2(!stock->resolutionFlag() || !request.contains(item), qPrintable(item->name()));
    }
}

void tst_MvTimelinePresenterMediaInsertion::startFrameFollowsTheProjectRate_data()
{
    QTest::addColumn<qint64>("fromNumerator");
    QTest::addColumn<qint64>("fromDenominator");
    QTest::addColumn<qint64>("toNumerator");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("placed");

    QTest::newRow("23.97 to 30") << qint64(24000) << qint64(1001) << qint64(30) << qint64(100) << qint64(125);
    // 1000 frames at 24000/1001 exactly would be 1251.25 at 30; at 23.97 they are 1251.56.
    QTest::newRow("23.97 is taken as it is written")
        << qint64(24000) << qint64(1001) << qint64(30) << qint64(1000) << qint64(1252);
    QTest::newRow("unchanged") << qint64(30) << qint64(1) << qint64(30) << qint64(100) << qint64(100);
    QTest::newRow("60 to 30") << qint64(60) << qint64(1) << qint64(30) << qint64(100) << qint64(50);
    QTest::newRow("30 to 120 counts as 60") << qint64(30) << qint64(1) << qint64(120) << qint64(100) << qint64(200);
    QTest::newRow("two rates above 60") << qint64(120) << qint64(1) << qint64(240) << qint64(100) << qint64(100);
    QTest::newRow("a half frame rounds up") << qint64(30) << qint64(1) << qint64(25) << qint64(3) << qint64(3);
}

// The scene answers the project-settings question by changing the project's rate; the start
// frame asked for at the old rate is carried over to the new one.
void tst_MvTimelinePresenterMediaInsertion::startFrameFollowsTheProjectRate()
{
    QFETCH(qint64, fromNumerator);
    QFETCH(qint64, fromDenominator);
    QFETCH(qint64, toNumerator);
    QFETCH(qint64, start);
    QFETCH(qint64, placed);
    Fixture f;
    runTasksInOrder(f);
    f.timeline.setFrameRate(int(fromNumerator), int(fromDenominator));
    Library library;
    MvMemoryMediaItem* video = library.local(QStringLiteral("video"));
    video->setMediaInfo(MediaInfoFlag_OwnVideoSettings, MvRational { toNumerator, 1 }, QSize(1920, 1080));
    f.scene.answer(MessageId::MatchProjectSettings,
        [&f, toNumerator](MvMessage*) { f.timeline.setFrameRate(int(toNumerator), 1); });

    const QList<IMvClip*> clips = f.presenter->addMedias(request({ video }, start), 0);

    QCOMPARE(clips.size(), 1);
    QCOMPARE(f.timeline.calls.first().start, placed);
    QCOMPARE(clips.first()->start(), placed);
    int numerator = 0;
    int denominator = 0;
    f.timeline.ruler()->frameRate(&numerator, &denominator);
    QCOMPARE(numerator, int(toNumerator));
}

void tst_MvTimelinePresenterMediaInsertion::nothingIsTouchedWhenPreparationLeavesNothing()
{
    Fixture f;
    runTasksInOrder(f);
    f.clip(0, 0, 99);
    f.select({ f.timeline.liveClips().first() });
    Library library;
    IMvAbstractMediaItem* empty = library.local(QStringLiteral("empty"), MediaType_Video, 0);
    bool handled = true;
    const QString before = f.snapshot();

    QVERIFY(f.presenter->addMedias(request({ empty }, 10), 0).isEmpty());
    QVERIFY(f.presenter->prepareAddMedias({}, &handled).isEmpty());

    QVERIFY(!handled);
    QCOMPARE(f.snapshot(), before);
    QVERIFY(f.timeline.calls.isEmpty());
    QCOMPARE(f.scene.ids(), QList<int>({ MessageId::PausePlayerWithSync, MessageId::PausePlayerWithSync }));
    QCOMPARE(f.log.find(QStringLiteral("download media item fail")).size(), 1); // the empty request
}

void tst_MvTimelinePresenterMediaInsertion::requestIsLeftAsItWas()
{
    Fixture f;
    runTasksInOrder(f);
    f.timeline.setFrameRate(60, 1);
    Library library;
    IMvAbstractMediaItem* local = library.local(QStringLiteral("local"));
    MvMemoryMediaItem* remote = library.remote(QStringLiteral("remote"));
    remote->setMediaInfo(MediaInfoFlag_OwnVideoSettings, MvRational { 30, 1 }, QSize(1, 1));
    downloadIn(f);
    f.scene.answer(MessageId::MatchProjectSettings, [&f](MvMessage*) { f.timeline.setFrameRate(30, 1); });
    MvTimelineAddMediaParam param = request({ local, remote }, 200);
    param.trackIndex = 1;
    param.lengths = { 7, 8 };
    param.groupKind = 3;
    param.textColor = Qt::red;
    const MvTimelineAddMediaParam copy = param;

    f.presenter->addMedias(param, 0);

    QCOMPARE(param.startFrame, copy.startFrame);
    QCOMPARE(param.mediaItems, copy.mediaItems);
    QCOMPARE(f.timeline.calls.first().start, qint64(100));
    QCOMPARE(f.timeline.calls.first().items, Items({ remote }));
    // The fields the presenter does not rewrite reach the model as the caller gave them.
    const QList<MvMemoryClip*> clips = f.timeline.liveClips();
    QCOMPARE(clips.size(), 1);
    QCOMPARE(clips.first()->trackIndex(), 1);
    QCOMPARE(clips.first()->frameCount(), qint64(7));
}

// The compound path on Qt's global pool: the GUI thread spins a wait dialog while one worker waits
// for the compound item's timeline and another inserts it with the policy -1 and announces its
// shared assets.
void tst_MvTimelinePresenterMediaInsertion::compoundMediaWaitAndInsertOnTheThreadPool()
{
    Fixture f;
    QWidget view;
    view.resize(400, 300);
    f.presenter->setView(&view);
    MvMemoryTimeline content;
    QSemaphore readerMayGo;
    MvMemoryCompoundMediaItem compound(
        QStringLiteral("sequence"), &content, [&readerMayGo](MvMemoryTimeline& timeline, const std::atomic<bool>&) {
            readerMayGo.acquire();
            timeline.addTrack(TrackType_Picture);
            timeline.addClip(0, ClipType_Video, 0, 89, QStringLiteral("inside"));
        });
    compound.setOrigin(MediaOrigin_Project);
    Library library;
    IMvAbstractMediaItem* video = library.local(QStringLiteral("video"));
    // Each task starts once the GUI thread shows the wait dialog; the first one also lets the
    // reading go from there, so the wait is a real one.
    QStringList seen;
    QList<bool> tasksOnWorkers;
    f.presenter->findChild<MvTaskRunner*>()->setExecutor([&](const MvTaskRunner::Task& task) {
        auto shown = std::make_shared<QSemaphore>();
        const bool first = seen.isEmpty();
        QTimer::singleShot(0, &view, [&seen, &readerMayGo, shown, first]() {
            auto* dialog = qobject_cast<MvWaitDialog*>(QApplication::activeModalWidget());
            seen.append(dialog && dialog->isVisible() ? QStringLiteral("waiting") : QStringLiteral("not waiting"));
            if (first)
                readerMayGo.release();
            shown->release();
        });
        return QtConcurrent::run(QThreadPool::globalInstance(), [task, shown, &tasksOnWorkers]() {
            shown->acquire();
            tasksOnWorkers.append(QThread::currentThread() != qApp->thread());
            task();
        });
    });
    SharedAssetsRecorder shared;

    const QList<IMvClip*> clips = f.presenter->addMedias(request({ video, &compound }, 20), 1);

    QCOMPARE(seen, QStringList({ QStringLiteral("waiting"), QStringLiteral("waiting") }));
    QCOMPARE(tasksOnWorkers, QList<bool>({ true, true }));
    QCOMPARE(f.timeline.calls.size(), 1);
    QCOMPARE(f.timeline.calls.first().policy, -1);
    QVERIFY(!f.timeline.calls.first().onGuiThread);
    QCOMPARE(namesOf(clips), QStringList({ QStringLiteral("video"), QStringLiteral("sequence") }));
    // Policy -1 let the model put both on free rows; the caller's 1 would have made new ones.
    QCOMPARE(f.timeline.trackCount(), 4);
    QCOMPARE(clips.at(1)->frameCount(), qint64(90));
    QCOMPARE(shared.timelines, QList<IMvTimeline*>({ &f.timeline }));
    QCOMPARE(shared.clipLists, QList<QList<IMvClip*>>({ clips }));
    QCOMPARE(shared.onGuiThread, QList<bool>({ false }));
    QCOMPARE(f.scene.ids(),
        QList<int>({ MessageId::PausePlayerWithSync, MessageId::AddMediaResponse, MessageId::SwitchPlayerToTimeline,
            MessageId::ScrollToTrack }));
    QCOMPARE(f.timeline.selection()->selectedClips(), clips);
    QTRY_COMPARE(f.timeline.threadGate()->pendingCount(), 0);
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvTimelinePresenterMediaInsertion::compoundRefusalToast_data()
{
    QTest::addColumn<uint>("flags");
    QTest::addColumn<QString>("toast");

    QTest::newRow("into itself") << 8u << "Unable to add compound clip itself, please try again";
    QTest::newRow("of another project") << 4u << "Unable to add external compound clip. Please try again.";
    QTest::newRow("both: itself wins") << 12u << "Unable to add compound clip itself, please try again";
    QTest::newRow("other bits: no toast") << 3u << "";
}

void tst_MvTimelinePresenterMediaInsertion::compoundRefusalToast()
{
    QFETCH(uint, flags);
    QFETCH(QString, toast);
    Fixture f;
    runTasksInOrder(f);
    QWidget view;
    f.presenter->setView(&view);
    f.timeline.extraFlags = flags;
    Library library;
    IMvAbstractMediaItem* video = library.local(QStringLiteral("video"));
    QList<IMvClip*> clips;

    const QStringList toasts = toastsWhile([&]() { clips = f.presenter->addMedias(request({ video }), 0); });

    QCOMPARE(toasts, toast.isEmpty() ? QStringList() : QStringList({ toast }));
    // What the model made all the same is returned and announced.
    QCOMPARE(clips.size(), 1);
    QCOMPARE(f.scene.count(MessageId::AddMediaResponse), 1);
}

void tst_MvTimelinePresenterMediaInsertion::modelCreatingNothingAnnouncesNothing()
{
    Fixture f;
    runTasksInOrder(f);
    QWidget view;
    f.presenter->setView(&view);
    f.timeline.extraFlags = 4;
    Library library;
    IMvAbstractMediaItem* unknown = library.local(QStringLiteral("unknown kind"), 99);
    f.clip(0, 0, 9);
    f.select({ f.timeline.liveClips().first() });
    f.journal.clear();
    const QString before = f.snapshot();

    QStringList toasts;
    toasts = toastsWhile([&]() { QVERIFY(f.presenter->addMedias(request({ unknown }), 0).isEmpty()); });

    QCOMPARE(toasts.size(), 1);
    QCOMPARE(f.snapshot(), before);
    QCOMPARE(f.scene.ids(), QList<int>({ MessageId::PausePlayerWithSync }));
    QVERIFY(!f.journalText().contains(QLatin1String("selection:")));
}

void tst_MvTimelinePresenterMediaInsertion::subtitleClipOpensForEditing()
{
    Fixture f;
    runTasksInOrder(f);
    Library library;
    IMvAbstractMediaItem* subtitles = library.local(QStringLiteral("subtitles"), MediaType_Subtitle);
    IMvAbstractMediaItem* video = library.local(QStringLiteral("video"));

    const QList<IMvClip*> clips = f.presenter->addMedias(request({ subtitles, video }, 40), 0);
    f.presenter->addMedias(request({ video, subtitles }, 400), 0);

    QCOMPARE(clips.first()->type(), ClipType_Subtitle);
    QVERIFY(f.journalText().contains(
        QLatin1String("selection:select c0 c1 scene:9007 playhead:setCurrentFrame 40 model:activateClip")));
    QCOMPARE(f.scene.count(MessageId::ShowPropertyPanelPage), 1); // only when the first clip is one
    QCOMPARE(f.scene.entries().at(f.scene.ids().indexOf(MessageId::ShowPropertyPanelPage)).payload, QVariant(-1));
    QCOMPARE(static_cast<IMvClip*>(f.timeline.activeClip()), clips.first());
    QCOMPARE(f.timeline.activeIndex(), -1);
    QCOMPARE(f.playhead(), qint64(40));
}

void tst_MvTimelinePresenterMediaInsertion::refusesWithoutATimeline()
{
    MvRecordingScene scene;
    MvLogCapture log;
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.setScene(&scene);
    MvMemoryMediaItem video(QStringLiteral("video"), MediaType_Video, 1000);

    QVERIFY(presenter.addMedias(request({ &video }), 0).isEmpty());

    QVERIFY(scene.ids().isEmpty());
    QCOMPARE(mvCheckRecord(log, QStringLiteral("timeline is null"), MvBaseLog::Refusal,
                 QStringLiteral("MvTimelinePresenter::addMedias")),
        QString());
}

QTEST_MAIN(tst_MvTimelinePresenterMediaInsertion)
#include "tst_MvTimelinePresenterMediaInsertion.moc"
