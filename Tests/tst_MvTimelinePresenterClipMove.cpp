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
    void move_data();
    void move();
    void firstSelectedClipAndItsStart();
    void commandsWithoutATimelineRefuse();
};

void tst_MvTimelinePresenterClipMove::move_data()
{
    // Clips of 50 frames as kind, row and @start frame; a follower tracks the first clip and is not selected.
    QTest::addColumn<QString>("setup");
    QTest::addColumn<char>("axis"); // 'h' to move by frames, 'v' by rows
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("after"); // row@start of each clip; as set up when refused

    const QString following = QStringLiteral("picture0@50,follower1@30");
    QTest::newRow("right") << following << 'h' << 10 << "0@60 1@40";
    QTest::newRow("left past frame 0: the earliest lands on 0") << following << 'h' << -50 << "0@20 1@0";
    QTest::newRow("left at frame 0 already") << "picture0@20,follower1@0" << 'h' << -50 << "0@20 1@0";
    QTest::newRow("no offset") << following << 'h' << 0 << "0@50 1@30";
    QTest::newRow("picture first: audio opposite") << "picture0@0,audio3@0" << 'v' << 1 << "1@0 2@0";
    QTest::newRow("audio first: picture opposite") << "audio2@0,picture1@0" << 'v' << 1 << "3@0 0@0";
    QTest::newRow("audio stays below the last row") << "audio3@0,picture1@0" << 'v' << 1 << "3@0 0@0";
    QTest::newRow("picture above the first row") << "picture0@0" << 'v' << -1 << "0@0";
    QTest::newRow("locked target row") << "picture0@0,lock1" << 'v' << 1 << "0@0";
}

void tst_MvTimelinePresenterClipMove::move()
{
    QFETCH(QString, setup);
    QFETCH(char, axis);
    QFETCH(int, offset);
    QFETCH(QString, after);

    Fixture f;
    QList<MvMemoryClip*> clips;
    QList<IMvClip*> selected;
    for (const QString& item : setup.split(QLatin1Char(','))) {
        const int row = item.section(QLatin1Char('@'), 0, 0).right(1).toInt();
        const qint64 start = item.section(QLatin1Char('@'), 1).toLongLong();
        if (item.startsWith(QLatin1String("lock"))) {
            f.timeline.trackAt(row)->setLocked(true);
            continue;
        }
        const MvClipType type = item.startsWith(QLatin1String("audio")) ? ClipType_Audio : ClipType_Video;
        clips.append(f.clip(row, start, start + 49, type));
        if (item.startsWith(QLatin1String("follower")))
            clips.first()->setMotionTrackFollower(clips.last());
        else
            selected.append(clips.last());
    }
    const auto positions = [&clips] {
        QStringList text;
        for (const MvMemoryClip* clip : clips)
            text.append(QStringLiteral("%1@%2").arg(clip->trackIndex()).arg(clip->start()));
        return text.join(QLatin1Char(' '));
    };
    const bool moves = positions() != after;
    f.select(selected);
    const QString before = f.snapshot();
    f.journal.clear();

    const bool horizontal = axis == 'h';
    QCOMPARE(horizontal ? f.presenter->moveClipsHorizontal(offset) : f.presenter->moveClipsVertical(offset), moves);

    const QString record = horizontal ? QStringLiteral("horizontal move clips, frameOffset %1")
                                      : QStringLiteral("vertical move clips, trackIndexOffset %1");
    const QString function = QStringLiteral("MvTimelinePresenterPrivate::moveClips%1")
                                 .arg(horizontal ? QLatin1String("Horizontal") : QLatin1String("Vertical"));
    QCOMPARE(mvCheckRecord(f.log, record.arg(offset), 4, function), QString());
    QCOMPARE(f.journalText(), moves ? MoveJournal : QString());
    QVERIFY(f.presenter->canUpdateAction());
    QCOMPARE(positions(), after);
    // The selection as it was: followers are not added.
    QCOMPARE(f.timeline.selection()->selectedClips(), selected);
    QCOMPARE(f.undoOneStep(before), moves ? QStringLiteral("move clips") : QString());
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
    // A transition first: no clip to go to.
    f.timeline.selection()->selectItems({ transition, clip });
    QCOMPARE(moveFrom(20), qint64(20));

    f.timeline.selection()->selectItems({ clip, transition });
    QCOMPARE(moveFrom(150), qint64(150));
    // Half-open: the last frame, like any frame outside, goes back to the start.
    QCOMPARE(moveFrom(199), qint64(100));
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
    QVERIFY(!presenter.rippleDeleteSelectedClips());
    QVERIFY(!presenter.deleteItems(false)); // down to the plain delete
    QVERIFY(!presenter.canDeleteItems());
    QVERIFY(!presenter.moveClipsHorizontal(5));
    QVERIFY(!presenter.moveClipsVertical(1));
    presenter.checkAndMoveToSelectedClipStartPos();
    presenter.addMarker(Qt::red);
    presenter.rotate90CW();
    QVERIFY(!presenter.removeSelectedSmartKeyingNode());
    // Only the pauses of the trims reach the scene.
    QCOMPARE(scene.ids(), QList<int>({ MessageId::PausePlayer, MessageId::PausePlayer }));
}

QTEST_MAIN(tst_MvTimelinePresenterClipMove)
#include "tst_MvTimelinePresenterClipMove.moc"
