#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryTrack.h"
#include "MvEditFixture.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Notes in the journal what the action switch says while the model moves clips.
class WatchedTimeline : public MvMemoryTimeline
{
public:
    using MvMemoryTimeline::MvMemoryTimeline;
    const MvTimelinePresenter* presenter = nullptr;
    bool moveClips(QList<IMvClip*> clips, QList<int> offsets, qint64 frameOffset, int mode) override
    {
        journal()->record(QStringLiteral("canUpdateAction:%1").arg(presenter->canUpdateAction()));
        return MvMemoryTimeline::moveClips(clips, offsets, frameOffset, mode);
    }
};

// Notes its action refreshes and status signals there too.
class WatchedPresenter : public MvTimelinePresenter
{
public:
    WatchedPresenter(QObject* parent, WatchedTimeline* timeline)
        : MvTimelinePresenter(parent, timeline)
    {
        timeline->presenter = this;
        connect(this, &MvTimelinePresenter::sigActionStatusChanged, this, [this] { note("sigActionStatusChanged"); });
    }
    void updateAction() override { note("updateAction"); }
    void note(const char* what) { static_cast<WatchedTimeline*>(timeline())->journal()->record(QLatin1String(what)); }
};

using Fixture = MvEditFixture<WatchedTimeline, WatchedPresenter>;

// A move pauses the player, holds the action refresh while the model works, then refreshes once.
const QString MoveJournal
    = QStringLiteral("scene:7012 canUpdateAction:0 model:moveClips updateAction sigActionStatusChanged");
}

class tst_MvTimelinePresenterClipMove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void horizontalMove_data();
    void horizontalMove();
    void verticalMove_data();
    void verticalMove();
    void firstSelectedClipAndItsStart();
    void fitTimelineShowsTheWholeTimeline();
    void commandsWithoutATimelineRefuse();
};

void tst_MvTimelinePresenterClipMove::horizontalMove_data()
{
    // The selected clip's motion-tracking follower starts 20 frames earlier, at `earliest`.
    QTest::addColumn<qint64>("earliest");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<qint64>("moved"); // 0 when refused
    QTest::newRow("right") << qint64(30) << qint64(10) << qint64(10);
    QTest::newRow("left past frame 0: the earliest lands on 0") << qint64(30) << qint64(-50) << qint64(-30);
    QTest::newRow("left at frame 0 already") << qint64(0) << qint64(-50) << qint64(0);
    QTest::newRow("no offset") << qint64(30) << qint64(0) << qint64(0);
}

void tst_MvTimelinePresenterClipMove::horizontalMove()
{
    QFETCH(qint64, earliest);
    QFETCH(qint64, offset);
    QFETCH(qint64, moved);

    Fixture f;
    MvMemoryClip* leader = f.clip(0, earliest + 20, earliest + 69);
    MvMemoryClip* follower = f.clip(1, earliest, earliest + 49);
    leader->setMotionTrackFollower(follower);
    f.select({ leader });
    const QString before = f.snapshot();
    f.journal.clear();

    QCOMPARE(f.presenter->moveClipsHorizontal(offset), moved != 0);

    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("horizontal move clips, frameOffset %1").arg(offset), 4,
                 QStringLiteral("MvTimelinePresenterPrivate::moveClipsHorizontal")),
        QString());
    QCOMPARE(f.journalText(), moved != 0 ? MoveJournal : QString());
    QVERIFY(f.presenter->canUpdateAction());
    QCOMPARE(QList<qint64>({ leader->start(), follower->start() }),
        QList<qint64>({ earliest + 20 + moved, earliest + moved }));
    // The selection as it was: the follower is not added.
    QCOMPARE(f.timeline.selection()->selectedClips(), QList<IMvClip*>({ leader }));
    QCOMPARE(f.undoOneStep(before), moved != 0 ? QStringLiteral("move clips") : QString());
}

void tst_MvTimelinePresenterClipMove::verticalMove_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QList<int>>("rows"); // of the picture clip and the audio clip after the move, -1: none

    QTest::newRow("picture first: audio opposite") << "picture0,audio3" << 1 << QList<int>({ 1, 2 });
    QTest::newRow("audio first: picture opposite") << "audio2,picture1" << 1 << QList<int>({ 0, 3 });
    QTest::newRow("audio stays below the last row") << "audio3,picture1" << 1 << QList<int>({ 0, 3 });
    QTest::newRow("picture above the first row") << "picture0" << -1 << QList<int>({ 0, -1 });
    QTest::newRow("locked target row") << "picture0,lock1" << 1 << QList<int>({ 0, -1 });
}

void tst_MvTimelinePresenterClipMove::verticalMove()
{
    QFETCH(QString, setup);
    QFETCH(int, offset);
    QFETCH(QList<int>, rows);

    Fixture f;
    MvMemoryClip* picture = nullptr;
    MvMemoryClip* audio = nullptr;
    QList<IMvClip*> selected;
    for (const QString& item : setup.split(QLatin1Char(','))) {
        const int row = item.right(1).toInt();
        if (item.startsWith(QLatin1String("picture")))
            selected.append(picture = f.clip(row, 0, 99));
        else if (item.startsWith(QLatin1String("audio")))
            selected.append(audio = f.clip(row, 0, 99, ClipType_Audio));
        else
            f.timeline.trackAt(row)->setLocked(true);
    }
    f.select(selected);
    const QString before = f.snapshot();
    const bool moved = picture->trackIndex() != rows.at(0) || (audio && audio->trackIndex() != rows.at(1));
    f.journal.clear();

    QCOMPARE(f.presenter->moveClipsVertical(offset), moved);

    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("vertical move clips, trackIndexOffset %1").arg(offset), 4,
                 QStringLiteral("MvTimelinePresenterPrivate::moveClipsVertical")),
        QString());
    QCOMPARE(f.journalText(), moved ? MoveJournal : QString());
    QCOMPARE(QList<int>({ picture->trackIndex(), audio ? audio->trackIndex() : -1 }), rows);
    QCOMPARE(f.timeline.selection()->selectedClips(), selected);
    QCOMPARE(f.undoOneStep(before), moved ? QStringLiteral("move clips") : QString());
}

void tst_MvTimelinePresenterClipMove::firstSelectedClipAndItsStart()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199);
    IMvAbstractClip* transition = f.timeline.addTransition(clip, IMvTransition::AtEnd, 10, QStringLiteral("fade"));
    const auto moveFrom = [&](qint64 frame) {
        f.setPlayhead(frame);
        f.presenter->checkAndMoveToSelectedClipStartPos();
        return f.playhead();
    };
    QCOMPARE(moveFrom(20), qint64(20));
    f.timeline.selection()->selectItems({ transition, clip });
    QCOMPARE(f.presenter->getFirstSelectedClip(), nullptr);
    QCOMPARE(moveFrom(20), qint64(20));

    f.timeline.selection()->selectItems({ clip, transition });
    QCOMPARE(f.presenter->getFirstSelectedClip(), static_cast<IMvClip*>(clip));
    QCOMPARE(moveFrom(150), qint64(150));
    // Half-open: the last frame, like any frame outside, goes back to the start.
    QCOMPARE(moveFrom(199), qint64(100));
    QCOMPARE(moveFrom(250), qint64(100));
}

void tst_MvTimelinePresenterClipMove::fitTimelineShowsTheWholeTimeline()
{
    Fixture f;
    f.clip(0, 0, 999);
    IMvTimelineRuler* ruler = f.timeline.ruler();
    ruler->setViewWidth(800);
    ruler->setVisualRange(100, 200);
    f.presenter->fitTimeline();
    qint64 start = -1;
    qint64 end = -1;
    ruler->visualRange(&start, &end);
    QCOMPARE(QList<qint64>({ start, end }), QList<qint64>({ 0, f.timeline.duration() }));
}

void tst_MvTimelinePresenterClipMove::commandsWithoutATimelineRefuse()
{
    MvRecordingScene scene;
    MvLogCapture log;
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.setScene(&scene);

    QVERIFY(!presenter.splitClips(0, true, false));
    QVERIFY(!presenter.canSplitClip());
    QVERIFY(!presenter.canTrimToPlayhead());
    QVERIFY(!presenter.trimStartToPlayhead());
    QVERIFY(!presenter.trimEndToPlayhead());
    QVERIFY(!presenter.deleteSelectedClips());
    QVERIFY(!presenter.rippleDeleteSelectedClips());
    QVERIFY(!presenter.deleteItems(false));
    QVERIFY(!presenter.canDeleteItems());
    QVERIFY(!presenter.moveClipsHorizontal(5));
    QVERIFY(!presenter.moveClipsVertical(1));
    QCOMPARE(presenter.getFirstSelectedClip(), nullptr);
    presenter.checkAndMoveToSelectedClipStartPos();
    presenter.fitTimeline();
    presenter.addMarker(Qt::red);
    QVERIFY(!presenter.removeSelectedMarker());
    presenter.rotate90CW();
    QVERIFY(!presenter.removeSelectedFreezeFrame());
    QVERIFY(!presenter.removeSelectedSmartKeyingNode());
    // Only the pauses of the trims reach the scene.
    QCOMPARE(scene.ids(), QList<int>({ MessageId::PausePlayer, MessageId::PausePlayer }));
}

QTEST_MAIN(tst_MvTimelinePresenterClipMove)
#include "tst_MvTimelinePresenterClipMove.moc"
