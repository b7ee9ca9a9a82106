#include "IMvSelection.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryCompoundMediaItem.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryThreadGate.h"
#include "Memory/MvSampleProject.h"
#include "MvEditFixture.h"
#include "MvMediaHelper.h"
#include "MvTimelineAddMediaParam.h"

#include <QSemaphore>
#include <QThread>
#include <QtTest>

#include <limits>
#include <thread>

using namespace MVVBLMODEL;

namespace {
using Items = QList<IMvAbstractMediaItem*>;

// Remembers the thread of every ruler event it is told.
class RulerWatcher : public IMvTimelineRulerEventObserover
{
public:
    void onRulerEvent(int kind) override
    {
        kinds.append(kind);
        threads.append(QThread::currentThread());
    }
    QList<int> kinds;
    QList<QThread*> threads;
};

// "row 1: Video 30..59" for each clip made.
QString placed(const QList<IMvClip*>& clips)
{
    QStringList parts;
    for (const IMvClip* clip : clips)
        parts.append(QStringLiteral("row %1: %2 %3..%4")
                         .arg(clip->trackIndex())
                         .arg(clip->name())
                         .arg(clip->start())
                         .arg(clip->end()));
    return parts.join(QLatin1String("; "));
}

// A compound item over a content timeline whose reading the test lets through.
struct HeldCompound
{
    MvMemoryTimeline content;
    QSemaphore open;
    MvMemoryCompoundMediaItem item;

    explicit HeldCompound(int projectId = 0)
        : item(QStringLiteral("held"), &content, [this](MvMemoryTimeline& timeline, const std::atomic<bool>&) {
            open.acquire();
            timeline.addTrack(TrackType_Picture);
            timeline.addClip(0, ClipType_Video, 0, 59, QStringLiteral("inside"));
        })
    {
        content.setProjectId(projectId);
    }
    ~HeldCompound() { open.release(); }
};

MvTimelineAddMediaParam request(const Items& items, qint64 start = 0, int row = -1)
{
    MvTimelineAddMediaParam param;
    param.mediaItems = items;
    param.startFrame = start;
    param.trackIndex = row;
    return param;
}
}

class tst_MvMemoryMedia : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lengthInFramesFollowsTheRate_data();
    void lengthInFramesFollowsTheRate();
    void resolutionsOfStockAndVcgItems();
    void eachKindGoesOnARowOfItsType_data();
    void eachKindGoesOnARowOfItsType();
    void rowRule_data();
    void rowRule();
    void lengthsStartAndFieldsOfTheRequest();
    void aClipEndsBeforeTheLastFrame_data();
    void aClipEndsBeforeTheLastFrame();
    void insertionIsOneUndoStep();
    void compoundItemsAndTheirFlags_data();
    void compoundItemsAndTheirFlags();
    void frameRateIsUndoableAndTheRulerFollows();
    void activateClipOpensOneClipOfThisTimeline();
    void compoundContentIsReadInTheBackground();
    void helperWaitsForEveryCompoundWithinItsTime();
    void workerEditTellsObserversOnTheGuiThread();
    void sampleLibraryHasEveryKind();
};

void tst_MvMemoryMedia::lengthInFramesFollowsTheRate_data()
{
    QTest::addColumn<qint64>("durationMs");
    QTest::addColumn<qint64>("numerator");
    QTest::addColumn<qint64>("denominator");
    QTest::addColumn<qint64>("frames");

    QTest::newRow("two seconds at 30") << qint64(2000) << qint64(30) << qint64(1) << qint64(60);
    QTest::newRow("a part frame is not a frame") << qint64(1001) << qint64(30) << qint64(1) << qint64(30);
    QTest::newRow("ntsc film rate") << qint64(10010) << qint64(24000) << qint64(1001) << qint64(240);
    QTest::newRow("no rate") << qint64(2000) << qint64(0) << qint64(1) << qint64(0);
    QTest::newRow("empty file") << qint64(0) << qint64(30) << qint64(1) << qint64(0);
}

void tst_MvMemoryMedia::lengthInFramesFollowsTheRate()
{
    QFETCH(qint64, durationMs);
    QFETCH(qint64, numerator);
    QFETCH(qint64, denominator);
    QFETCH(qint64, frames);
    MvMemoryMediaItem item(QStringLiteral("clip"), MediaType_Video, durationMs);
    QCOMPARE(item.lengthInFrames(MvRational { numerator, denominator }), frames);
}

void tst_MvMemoryMedia::resolutionsOfStockAndVcgItems()
{
    MvMemoryStockMediaItem single(QStringLiteral("one"), MediaType_Video, 1000, { QStringLiteral("1080p") });
    QVERIFY(single.needDownload());
    QVERIFY(single.hasSelectedResolution()); // nothing to choose

    MvMemoryStockMediaItem three(QStringLiteral("three"), MediaType_Video, 1000,
        { QStringLiteral("720p"), QStringLiteral("1080p"), QStringLiteral("4K") });
    QVERIFY(!three.hasSelectedResolution());
    three.selectResolution(2);
    QVERIFY(three.hasSelectedResolution());
    three.setResolutionFlag(true); // asked to choose again
    QVERIFY(!three.hasSelectedResolution());
    three.setResolutionFlag(false);
    QCOMPARE(three.selectedResolution(), 2);
    QVERIFY(three.hasSelectedResolution());

    MvMemoryVCGMediaItem vcg(
        QStringLiteral("vcg"), MediaType_Video, 1000, { QStringLiteral("a"), QStringLiteral("b") });
    QCOMPARE(vcg.resolutionCount(), 0);
    vcg.setDownloaded(true);
    QVERIFY(!vcg.needDownload());
    QCOMPARE(vcg.resolutionCount(), 2);
}

void tst_MvMemoryMedia::eachKindGoesOnARowOfItsType_data()
{
    QTest::addColumn<int>("mediaType");
    QTest::addColumn<int>("clipType");
    QTest::addColumn<int>("row");

    QTest::newRow("video") << MediaType_Video << ClipType_Video << 0;
    QTest::newRow("audio") << MediaType_Audio << ClipType_Audio << 2;
    QTest::newRow("image") << MediaType_Image << ClipType_Image << 0;
    QTest::newRow("text") << MediaType_Text << ClipType_Text << 0;
    QTest::newRow("subtitle") << MediaType_Subtitle << ClipType_Subtitle << 0;
    QTest::newRow("screen recording") << MediaType_ScreenRecording << ClipType_ScreenRecording << 0;
    QTest::newRow("a kind the model does not know") << 99 << -1 << -1;
    QTest::newRow("compound type without a compound item") << MediaType_Compound << -1 << -1;
}

void tst_MvMemoryMedia::eachKindGoesOnARowOfItsType()
{
    QFETCH(int, mediaType);
    QFETCH(int, clipType);
    QFETCH(int, row);
    MvEditFixture<> f;
    MvMemoryMediaItem item(QStringLiteral("item"), mediaType, 2000);
    QList<IMvClip*> clips;

    QCOMPARE(f.timeline.addMedias(request({ &item }, 10), clips, -1), 0u);

    QCOMPARE(clips.size(), clipType < 0 ? 0 : 1);
    if (clipType >= 0) {
        QCOMPARE(clips.first()->type(), clipType);
        QCOMPARE(clips.first()->trackIndex(), row);
    }
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvMemoryMedia::rowRule_data()
{
    QTest::addColumn<int>("mediaType");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("lockRowOne");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("rows");

    // Rows 0, 1 picture, 2, 3 audio; row 0 holds a clip over 0..99 and row 2 one over 0..99.
    QTest::newRow("free spot of the top row") << MediaType_Video << qint64(200) << -1 << -1 << false << 0 << 4;
    QTest::newRow("busy top row: the next picture row") << MediaType_Video << qint64(50) << -1 << -1 << false << 1 << 4;
    QTest::newRow("the row asked for") << MediaType_Video << qint64(200) << 1 << -1 << false << 1 << 4;
    QTest::newRow("asked row of the other kind") << MediaType_Video << qint64(200) << 3 << -1 << false << 0 << 4;
    QTest::newRow("asked row busy") << MediaType_Video << qint64(50) << 0 << -1 << false << 1 << 4;
    QTest::newRow("locked row is not free") << MediaType_Video << qint64(50) << 1 << -1 << true << 2 << 5;
    QTest::newRow("audio after the busy audio row") << MediaType_Audio << qint64(0) << -1 << -1 << false << 3 << 4;
    QTest::newRow("asked row out of range") << MediaType_Audio << qint64(200) << 17 << -1 << false << 2 << 4;
    QTest::newRow("policy 1: a new row though one is free")
        << MediaType_Video << qint64(200) << 1 << 1 << false << 2 << 5;
    QTest::newRow("policy 1 for sound: a new audio row")
        << MediaType_Audio << qint64(200) << -1 << 1 << false << 4 << 5;
}

// The clip goes on the row asked for when it fits, else on the first free row of its kind from
// the top, else on a new row of its kind (picture rows stay above the audio rows).
void tst_MvMemoryMedia::rowRule()
{
    QFETCH(int, mediaType);
    QFETCH(qint64, start);
    QFETCH(int, asked);
    QFETCH(int, policy);
    QFETCH(bool, lockRowOne);
    QFETCH(int, row);
    QFETCH(int, rows);
    MvEditFixture<> f;
    f.clip(0, 0, 99);
    f.clip(2, 0, 99, ClipType_Audio);
    if (lockRowOne) {
        f.timeline.trackAt(1)->setLocked(true);
        f.clip(0, 100, 199); // no picture row is free at 50 now but the locked one
    }
    MvMemoryMediaItem item(QStringLiteral("item"), mediaType, 1000);
    QList<IMvClip*> clips;

    f.timeline.addMedias(request({ &item }, start, asked), clips, policy);

    QCOMPARE(clips.size(), 1);
    QCOMPARE(clips.first()->trackIndex(), row);
    QCOMPARE(f.timeline.trackCount(), rows);
    QCOMPARE(
        f.timeline.trackAt(row)->type(), isAudioClipType(clips.first()->type()) ? TrackType_Audio : TrackType_Picture);
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvMemoryMedia::lengthsStartAndFieldsOfTheRequest()
{
    MvEditFixture<> f;
    MvMemoryMediaItem video(QStringLiteral("video"), MediaType_Video, 2000);
    MvMemoryMediaItem recording(QStringLiteral("recording"), MediaType_ScreenRecording, 0);
    MvMemoryMediaItem title(QStringLiteral("title"), MediaType_Text, 1000);
    MvTimelineAddMediaParam param = request({ &video, &recording, &title }, -20);
    param.lengths = { 0, 0, 45 };
    param.enabled = false;
    param.textColor = QColor(Qt::yellow);
    param.backgroundColor = QColor(Qt::black);
    param.groupKind = 2;
    QList<IMvClip*> clips;

    f.timeline.addMedias(param, clips, -1);

    // A start before the timeline is its first frame; a length not known yet is a still's (5 s).
    QCOMPARE(placed(clips), QStringLiteral("row 0: video 0..59; row 1: recording 0..149; row 2: title 0..44"));
    for (const IMvClip* clip : qAsConst(clips)) {
        QVERIFY(!clip->isEnabled());
        QCOMPARE(clip->groupKind(), 2);
    }
    const QString state = f.timeline.stateText();
    QCOMPARE(state.count(QLatin1String("colours:")), 1);
    QVERIFY(state.contains(QLatin1String("colours: text #ffffff00 background #ff000000")));
}

void tst_MvMemoryMedia::aClipEndsBeforeTheLastFrame_data()
{
    constexpr qint64 last = std::numeric_limits<qint64>::max();
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("length");
    QTest::addColumn<QString>("placed");
    QTest::newRow("the longest clip from frame 0")
        << qint64(0) << last << QStringLiteral("row 0: still 0..%1").arg(last - 1);
    QTest::newRow("one frame more") << qint64(1) << last << QString();
    QTest::newRow("one frame at the last frame a clip may cover")
        << last - 1 << qint64(1) << QStringLiteral("row 0: still %1..%1").arg(last - 1);
    QTest::newRow("one frame at the last 64-bit frame") << last << qint64(1) << QString();
}

// The duration (last end + 1) stays a 64-bit count: a clip that would end on the last 64-bit
// frame, or past it, is refused and makes no step.
void tst_MvMemoryMedia::aClipEndsBeforeTheLastFrame()
{
    QFETCH(qint64, start);
    QFETCH(qint64, length);
    QFETCH(QString, placed);
    MvEditFixture<> f;
    MvMemoryMediaItem still(QStringLiteral("still"), MediaType_Image, 1000);
    MvTimelineAddMediaParam param = request({ &still }, start);
    param.lengths = { length };
    QList<IMvClip*> clips;

    f.timeline.addMedias(param, clips, -1);

    QCOMPARE(::placed(clips), placed);
    QCOMPARE(f.undoCount(), placed.isEmpty() ? 0 : 1);
    QCOMPARE(f.timeline.duration(), placed.isEmpty() ? qint64(0) : start + length);
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvMemoryMedia::insertionIsOneUndoStep()
{
    MvEditFixture<> f;
    f.clip(0, 0, 99);
    f.clip(1, 0, 99);
    MvMemoryMediaItem first(QStringLiteral("first"), MediaType_Video, 1000);
    MvMemoryMediaItem second(QStringLiteral("second"), MediaType_Image, 1000);
    QList<IMvClip*> clips;
    f.keepState();

    f.timeline.addMedias(request({ &first, &second }, 10), clips, -1);
    f.keepState();
    f.timeline.addMedias(request({}, 10), clips, -1); // nothing to add: no step
    f.keepState();

    QCOMPARE(f.timeline.trackCount(), 6);
    QCOMPARE(f.undoCount(), 1);
    QCOMPARE(f.timeline.undoRedoService()->undoName(), QStringLiteral("add media"));
    QCOMPARE(f.walkUndo(), QStringLiteral("add media"));
}

void tst_MvMemoryMedia::compoundItemsAndTheirFlags_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<uint>("flags");
    QTest::addColumn<QString>("made");

    QTest::newRow("of this project") << "own" << 0u << "row 0: own 0..59";
    QTest::newRow("of another project") << "foreign" << 4u << "";
    QTest::newRow("the timeline itself") << "itself" << 8u << "";
    QTest::newRow("not read yet") << "unread" << 0u << "";
    QTest::newRow("all together") << "foreign own itself" << 12u << "row 0: own 0..59";
}

void tst_MvMemoryMedia::compoundItemsAndTheirFlags()
{
    QFETCH(QString, items);
    QFETCH(uint, flags);
    QFETCH(QString, made);
    MvEditFixture<> f;
    const auto reader = [](MvMemoryTimeline& content, const std::atomic<bool>&) {
        content.addTrack(TrackType_Picture);
        content.addClip(0, ClipType_Video, 0, 59, QStringLiteral("inside"));
    };
    MvMemoryTimeline ownContent;
    MvMemoryTimeline foreignContent;
    foreignContent.setProjectId(7);
    MvMemoryCompoundMediaItem own(QStringLiteral("own"), &ownContent, reader);
    MvMemoryCompoundMediaItem foreign(QStringLiteral("foreign"), &foreignContent, reader);
    MvMemoryCompoundMediaItem itself(QStringLiteral("itself"), &f.timeline, nullptr);
    HeldCompound unread;
    const QHash<QString, MvMemoryCompoundMediaItem*> byName { { QStringLiteral("own"), &own },
        { QStringLiteral("foreign"), &foreign }, { QStringLiteral("itself"), &itself },
        { QStringLiteral("unread"), &unread.item } };
    Items asked;
    const QStringList names = items.split(QLatin1Char(' '));
    for (const QString& name : names) {
        MvMemoryCompoundMediaItem* item = byName.value(name);
        if (item != &unread.item)
            QVERIFY(item->waitForTimelineLoaded(10000));
        asked.append(item);
    }
    QList<IMvClip*> clips;

    QCOMPARE(f.timeline.addMedias(request(asked), clips, -1), flags);

    QCOMPARE(placed(clips), made);
    if (!clips.isEmpty())
        QCOMPARE(static_cast<MvMemoryClip*>(clips.first())->compoundContent(), &ownContent);
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvMemoryMedia::frameRateIsUndoableAndTheRulerFollows()
{
    MvEditFixture<> f;
    IMvTimelineRuler* ruler = f.timeline.ruler();
    RulerWatcher watcher;
    ruler->addObserver(&watcher);
    const auto rulerRate = [ruler]() {
        int numerator = 0;
        int denominator = 0;
        ruler->frameRate(&numerator, &denominator);
        return QStringLiteral("%1/%2").arg(numerator).arg(denominator);
    };
    f.keepState();

    f.timeline.setFrameRate(24000, 1001);
    f.keepState();
    f.timeline.setFrameRate(24000, 1001); // the same rate: no step
    f.timeline.setFrameRate(0, 1); // no rate: refused
    f.keepState();

    QCOMPARE(f.timeline.frameRate(), (MvRational { 24000, 1001 }));
    QCOMPARE(rulerRate(), QStringLiteral("24000/1001"));
    QVERIFY(f.timeline.stateText().contains(QLatin1String("frame rate 24000/1001")));
    QCOMPARE(f.walkUndo(), QStringLiteral("change frame rate"));
    QVERIFY(f.timeline.undoRedoService()->undo());
    QCOMPARE(rulerRate(), QStringLiteral("30/1"));
    QCOMPARE(watcher.kinds.count(IMvTimelineRuler::FrameRateChanged), 4); // set, walk back and forth, undo
    ruler->removeObserver(&watcher);
}

void tst_MvMemoryMedia::activateClipOpensOneClipOfThisTimeline()
{
    MvEditFixture<> f;
    MvEditFixture<> other;
    IMvClip* foreign = other.clip(0, 0, 9);
    MvMemoryMediaItem subtitles(QStringLiteral("subtitles"), MediaType_Subtitle, 1000);
    QList<IMvClip*> clips;
    f.timeline.addMedias(request({ &subtitles }, 30), clips, -1);

    f.timeline.activateClip(foreign, 3);
    QCOMPARE(f.timeline.activeClip(), nullptr);
    f.timeline.activateClip(clips.first(), -1);
    QCOMPARE(f.timeline.activeClip(), clips.first());
    QCOMPARE(f.timeline.activeIndex(), -1);
    QVERIFY(f.timeline.stateText().contains(QLatin1String("active=c0@-1")));
    QCOMPARE(f.journal.entries().count(QStringLiteral("model:activateClip")), 2);

    // Undone, the clip leaves the timeline and is no longer open.
    QVERIFY(f.timeline.undoRedoService()->undo());
    QCOMPARE(f.timeline.activeClip(), nullptr);
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvMemoryMedia::compoundContentIsReadInTheBackground()
{
    HeldCompound held;
    held.content.setFrameRate(60, 1);
    QVERIFY(!held.item.hasStartedLoading());
    QVERIFY(!held.item.waitForTimelineLoaded(0)); // starts the reading, which waits for the test
    QVERIFY(held.item.hasStartedLoading());
    QCOMPARE(held.item.lengthInFrames(MvRational { 30, 1 }), qint64(0));

    held.open.release();
    QVERIFY(held.item.waitForTimelineLoaded(10000));
    QVERIFY(held.item.isTimelineLoaded());
    // 60 frames at 60 fps are 30 at 30 fps.
    QCOMPARE(held.item.lengthInFrames(MvRational { 30, 1 }), qint64(30));
    QCOMPARE(held.content.liveClips().size(), 1);
    // Its observers hear of the reading on this thread, once this thread's event loop runs.
    QTRY_COMPARE(held.content.threadGate()->pendingCount(), 0);
    QCOMPARE(held.content.ruler()->totalFrames(), qint64(60));
    QCOMPARE(held.content.checkInvariants(), QString());
}

void tst_MvMemoryMedia::helperWaitsForEveryCompoundWithinItsTime()
{
    HeldCompound first;
    HeldCompound second;
    MvMemoryMediaItem plain(QStringLiteral("plain"), MediaType_Video, 1000);
    QVERIFY(!MvMediaHelper::hasCustomCompoundMediaItem({ &plain, nullptr }));
    QVERIFY(MvMediaHelper::hasCustomCompoundMediaItem({ &plain, &second.item }));

    QVERIFY(!MvMediaHelper::waitForFinishLoadCompoundMediaTimeline({ &first.item, &plain, &second.item }, 0));
    // Out of time on the first, the second's reading was started all the same.
    QVERIFY(second.item.hasStartedLoading());
    first.open.release();
    second.open.release();
    QVERIFY(MvMediaHelper::waitForFinishLoadCompoundMediaTimeline({ &first.item, &plain, &second.item }, 10000));
    QVERIFY(MvMediaHelper::waitForFinishLoadCompoundMediaTimeline({ &plain }, 0));
}

// An insertion made on a worker while this thread waits: the observers hear nothing on the
// worker, and hear everything here, in order, once this thread's event loop runs.
void tst_MvMemoryMedia::workerEditTellsObserversOnTheGuiThread()
{
    MvEditFixture<> f;
    RulerWatcher watcher;
    f.timeline.ruler()->addObserver(&watcher);
    QList<QThread*> listenerThreads;
    f.timeline.addChangeListener([&listenerThreads]() { listenerThreads.append(QThread::currentThread()); });
    MvMemoryMediaItem video(QStringLiteral("video"), MediaType_Video, 2000);
    QList<IMvClip*> clips;

    std::thread worker([&]() { f.timeline.addMedias(request({ &video }, 30), clips, -1); });
    worker.join();

    QCOMPARE(placed(clips), QStringLiteral("row 0: video 30..89"));
    QVERIFY(watcher.kinds.isEmpty());
    QVERIFY(listenerThreads.isEmpty());
    QCOMPARE(f.timeline.threadGate()->pendingCount(), 2);
    QTRY_COMPARE(listenerThreads.size(), 1);
    QCOMPARE(listenerThreads.first(), QThread::currentThread());
    QVERIFY(watcher.kinds.contains(IMvTimelineRuler::TotalFramesChanged));
    for (QThread* thread : qAsConst(watcher.threads))
        QCOMPARE(thread, QThread::currentThread());
    QCOMPARE(f.timeline.threadGate()->pendingCount(), 0);
    QCOMPARE(f.timeline.ruler()->totalFrames(), qint64(90));
    QCOMPARE(f.timeline.checkInvariants(), QString());
    f.timeline.ruler()->removeObserver(&watcher);
}

void tst_MvMemoryMedia::sampleLibraryHasEveryKind()
{
    MvMemoryTimeline project;
    MvSampleProject::build(project);
    MvMemoryMediaLibrary library;
    MvSampleProject::buildMediaLibrary(library, project, 0);
    const MvRational rate = project.frameRate();

    QStringList kinds;
    for (const MvMemoryMediaItem* item : library.items()) {
        QStringList traits { QString::number(item->mediaType()) };
        if (item->needDownload())
            traits.append(QStringLiteral("download"));
        if (const auto* stock = dynamic_cast<const MvMemoryStockMediaItem*>(item))
            traits.append(QStringLiteral("stock %1").arg(stock->resolutionCount()));
        if (item->isVCGItem())
            traits.append(QStringLiteral("vcg"));
        if (item->lengthInFrames(rate) == 0)
            traits.append(QStringLiteral("length 0"));
        if (const auto* info = item->memoryMediaInfo())
            traits.append(QStringLiteral("%1 fps").arg(info->frameRate().numerator));
        kinds.append(traits.join(QLatin1Char(' ')));
    }
    QCOMPARE(kinds.join(QLatin1String(" | ")),
        QStringLiteral("1 30 fps | 1 60 fps | 2 | 3 | 4 | 5 | 1 length 0 30 fps | 16 length 0 25 fps | "
                       "1 download stock 3 | 2 download stock 1 | 1 download vcg | 30 length 0 | 30 length 0 | "
                       "30 length 0"
                       // Transitions (the slide needs a download), video and audio effects.
                       " | 12 | 12 | 12 download | 12 | 10 | 10 | 10 | 11 | 11"));

    auto* beach = dynamic_cast<MvMemoryCompoundMediaItem*>(library.find(QStringLiteral("Beach sequence")));
    QVERIFY(beach && beach->waitForTimelineLoaded(10000));
    QCOMPARE(beach->lengthInFrames(rate), qint64(360));
    QCOMPARE(beach->origin(), MediaOrigin_Project);
}

QTEST_MAIN(tst_MvMemoryMedia)
#include "tst_MvMemoryMedia.moc"
