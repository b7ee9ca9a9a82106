#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryTrack.h"
#include "MvEditFixture.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// A timeline that notes what the presenter's action flag says while the model moves clips.
class WatchedTimeline : public MvMemoryTimeline
{
public:
    using MvMemoryTimeline::MvMemoryTimeline;
    MvTimelinePresenter* presenter = nullptr;
    QList<bool> updateFlagsDuringMove;

    bool moveClips(QList<IMvClip*> clips, QList<int> offsets, qint64 frameOffset, int mode) override
    {
        if (presenter)
            updateFlagsDuringMove.append(presenter->canUpdateAction());
        return MvMemoryTimeline::moveClips(clips, offsets, frameOffset, mode);
    }
};

// A host that counts its action refreshes.
class CountingPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    int refreshes = 0;

protected:
    void updateAction() override { ++refreshes; }
};

using Fixture = MvEditFixture<>;

QList<IMvClip*> clipList(std::initializer_list<MvMemoryClip*> clips)
{
    QList<IMvClip*> list;
    for (MvMemoryClip* clip : clips)
        list.append(clip);
    return list;
}
}

// Moves by frames and rows, and where the playhead and the view go for the selection.
class tst_MvTimelinePresenterClipMove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void horizontalMove_data();
    void horizontalMove();
    void horizontalMoveHoldsTheActionRefresh();
    void horizontalMoveTakesMotionFollowersAlong();
    void verticalMove_data();
    void verticalMove();
    void verticalMoveHoldsTheActionRefresh();
    void firstSelectedClip();
    void moveToSelectedClipStart_data();
    void moveToSelectedClipStart();
    void fitTimelineShowsTheWholeTimeline();
    void commandsWithoutATimelineRefuse();
};

void tst_MvTimelinePresenterClipMove::horizontalMove_data()
{
    QTest::addColumn<qint64>("earliest");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<bool>("moved");
    QTest::addColumn<qint64>("newStart");

    QTest::newRow("right") << qint64(30) << qint64(10) << true << qint64(40);
    QTest::newRow("left within the timeline") << qint64(30) << qint64(-20) << true << qint64(10);
    QTest::newRow("left past frame 0 lands on 0") << qint64(30) << qint64(-50) << true << qint64(0);
    QTest::newRow("left at frame 0 already") << qint64(0) << qint64(-50) << false << qint64(0);
    QTest::newRow("no offset") << qint64(30) << qint64(0) << false << qint64(30);
}

void tst_MvTimelinePresenterClipMove::horizontalMove()
{
    QFETCH(qint64, earliest);
    QFETCH(qint64, offset);
    QFETCH(bool, moved);
    QFETCH(qint64, newStart);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, earliest, earliest + 49);
    MvMemoryClip* other = f.clip(1, 200, 249);
    f.select(clipList({ other, clip }));
    const auto before = f.snapshot();
    f.journal.clear();

    QCOMPARE(f.presenter->moveClipsHorizontal(offset), moved);

    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("horizontal move clips, frameOffset %1").arg(offset), 4,
                 QStringLiteral("MvTimelinePresenterPrivate::moveClipsHorizontal")),
        QString());
    QCOMPARE(clip->start(), newStart);
    if (!moved) {
        QVERIFY(f.snapshot() == before);
        QVERIFY(f.scene.entries().isEmpty());
        return;
    }
    QCOMPARE(other->start(), 200 + (newStart - earliest));
    QVERIFY(f.at(QStringLiteral("scene:7012")) >= 0);
    QVERIFY(f.at(QStringLiteral("scene:7012")) < f.at(QStringLiteral("model:moveClips")));
    QCOMPARE(f.timeline.selection()->selectedClips(), clipList({ other, clip }));
    QCOMPARE(f.undoCount(), before.undoCount + 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipMove::horizontalMoveHoldsTheActionRefresh()
{
    MvEditFixture<WatchedTimeline, CountingPresenter> f;
    f.timeline.presenter = f.presenter.get();
    MvMemoryClip* clip = f.clip(0, 30, 79);
    f.select(clipList({ clip }));
    QSignalSpy spy(f.presenter.get(), &MvTimelinePresenter::sigActionStatusChanged);

    QVERIFY(f.presenter->moveClipsHorizontal(5));

    QCOMPARE(f.timeline.updateFlagsDuringMove, QList<bool>({ false }));
    QVERIFY(f.presenter->canUpdateAction());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(f.presenter->refreshes, 1);
}

void tst_MvTimelinePresenterClipMove::horizontalMoveTakesMotionFollowersAlong()
{
    Fixture f;
    MvMemoryClip* leader = f.clip(0, 30, 79);
    MvMemoryClip* follower = f.clip(1, 10, 59);
    leader->setMotionTrackFollower(follower);
    f.select(clipList({ leader }));

    // The follower starts earlier: the clamp keeps it on the timeline too.
    QVERIFY(f.presenter->moveClipsHorizontal(-50));

    QCOMPARE(follower->start(), qint64(0));
    QCOMPARE(leader->start(), qint64(20));
    QCOMPARE(f.timeline.selection()->selectedClips(), clipList({ leader }));
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvTimelinePresenterClipMove::verticalMove_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("offset");
    QTest::addColumn<bool>("moved");
    QTest::addColumn<QList<int>>("tracks"); // picture clip's row, audio clip's row after the move

    QTest::newRow("picture down a row") << QStringLiteral("picture0") << 1 << true << QList<int>({ 1, -1 });
    QTest::newRow("picture above the first row") << QStringLiteral("picture0") << -1 << false << QList<int>({ 0, -1 });
    QTest::newRow("picture first: audio goes the other way")
        << QStringLiteral("picture0,audio3") << 1 << true << QList<int>({ 1, 2 });
    QTest::newRow("audio first: picture goes the other way")
        << QStringLiteral("audio2,picture1") << 1 << true << QList<int>({ 0, 3 });
    QTest::newRow("audio past the last row stays, picture moves")
        << QStringLiteral("audio3,picture1") << 1 << true << QList<int>({ 0, 3 });
    QTest::newRow("picture above the first row stays, audio moves")
        << QStringLiteral("picture0,audio2") << -1 << true << QList<int>({ 0, 3 });
    QTest::newRow("audio past the last row alone") << QStringLiteral("audio3") << 1 << false << QList<int>({ -1, 3 });
    QTest::newRow("locked target row") << QStringLiteral("picture0,lock1") << 1 << false << QList<int>({ 0, -1 });
    QTest::newRow("no offset") << QStringLiteral("picture0") << 0 << false << QList<int>({ 0, -1 });
}

void tst_MvTimelinePresenterClipMove::verticalMove()
{
    QFETCH(QString, setup);
    QFETCH(int, offset);
    QFETCH(bool, moved);
    QFETCH(QList<int>, tracks);

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
    f.timeline.undoService()->clear();
    const auto before = f.snapshot();
    f.journal.clear();

    QCOMPARE(f.presenter->moveClipsVertical(offset), moved);

    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("vertical move clips, trackIndexOffset %1").arg(offset), 4,
                 QStringLiteral("MvTimelinePresenterPrivate::moveClipsVertical")),
        QString());
    QCOMPARE(picture ? picture->trackIndex() : -1, tracks.at(0));
    QCOMPARE(audio ? audio->trackIndex() : -1, tracks.at(1));
    if (!moved) {
        QVERIFY(f.snapshot() == before);
        QVERIFY(f.scene.entries().isEmpty());
        return;
    }
    QVERIFY(f.at(QStringLiteral("scene:7012")) < f.at(QStringLiteral("model:moveClips")));
    QCOMPARE(f.timeline.selection()->selectedClips(), selected);
    QCOMPARE(f.undoCount(), 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipMove::firstSelectedClip()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    MvMemoryTransition* transition = f.timeline.addTransition(clip, IMvTransition::AtEnd, 10, QStringLiteral("fade"));
    QCOMPARE(f.presenter->getFirstSelectedClip(), nullptr);
    f.timeline.selection()->selectItems({ clip, transition });
    QCOMPARE(f.presenter->getFirstSelectedClip(), static_cast<IMvClip*>(clip));
    f.timeline.selection()->selectItems({ transition, clip });
    QCOMPARE(f.presenter->getFirstSelectedClip(), nullptr);
}

void tst_MvTimelinePresenterClipMove::moveToSelectedClipStart_data()
{
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<qint64>("expected");
    QTest::newRow("on the first frame") << qint64(100) << qint64(100);
    QTest::newRow("inside") << qint64(150) << qint64(150);
    QTest::newRow("on the last frame goes back") << qint64(199) << qint64(100);
    QTest::newRow("before") << qint64(20) << qint64(100);
    QTest::newRow("after") << qint64(250) << qint64(100);
}

void tst_MvTimelinePresenterClipMove::moveToSelectedClipStart()
{
    QFETCH(qint64, playhead);
    QFETCH(qint64, expected);
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199);
    f.clip(1, 0, 299);
    f.setPlayhead(playhead);
    f.presenter->checkAndMoveToSelectedClipStartPos();
    QCOMPARE(f.playhead(), playhead);
    f.select(clipList({ clip }));
    f.presenter->checkAndMoveToSelectedClipStartPos();
    QCOMPARE(f.playhead(), expected);
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
    QCOMPARE(start, qint64(0));
    QCOMPARE(end, f.timeline.duration());
}

void tst_MvTimelinePresenterClipMove::verticalMoveHoldsTheActionRefresh()
{
    MvEditFixture<WatchedTimeline, CountingPresenter> f;
    f.timeline.presenter = f.presenter.get();
    MvMemoryClip* clip = f.clip(0, 30, 79);
    f.select(clipList({ clip }));
    QSignalSpy spy(f.presenter.get(), &MvTimelinePresenter::sigActionStatusChanged);

    QVERIFY(f.presenter->moveClipsVertical(1));

    QCOMPARE(clip->trackIndex(), 1);
    QCOMPARE(f.timeline.updateFlagsDuringMove, QList<bool>({ false }));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(f.presenter->refreshes, 1);

    // A refused move neither touches the flag nor refreshes.
    QVERIFY(!f.presenter->moveClipsVertical(-5));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(f.presenter->refreshes, 1);
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
    QVERIFY(!presenter.canDeleteClip());
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
