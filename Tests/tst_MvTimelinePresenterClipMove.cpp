#include "IMvTrack.h"
#include "Memory/MvMemoryTrack.h"
#include "MvEditFixture.h"
#include "MvRecordingTimeline.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Notes in the journal what the action switch says while the model moves clips.
class WatchedTimeline : public MvRecordingTimeline
{
public:
    using MvRecordingTimeline::MvRecordingTimeline;
    const MvTimelinePresenter* presenter = nullptr;
    bool moveClips(QList<IMvClip*> clips, QList<int> offsets, qint64 frameOffset, int mode) override
    {
        note(QStringLiteral("canUpdateAction:%1").arg(presenter->canUpdateAction()));
        return MvRecordingTimeline::moveClips(clips, offsets, frameOffset, mode);
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
    void note(const char* what) { static_cast<WatchedTimeline*>(timeline())->note(QLatin1String(what)); }
};

using Fixture = MvEditFixture<WatchedTimeline, WatchedPresenter>;

// Clips of 50 frames from "kind row@start" items: "picture0@50,follower1@30". A follower tracks every
// selected clip set up before it and is not selected itself; "lock1" locks row 1.
QList<IMvClip*> setUp(Fixture& f, const QString& setup, QList<MvMemoryClip*>* clips)
{
    QList<IMvClip*> selected;
    for (const QString& item : setup.split(QLatin1Char(','))) {
        const int row = item.section(QLatin1Char('@'), 0, 0).right(1).toInt();
        const qint64 start = item.section(QLatin1Char('@'), 1).toLongLong();
        if (item.startsWith(QLatin1String("lock"))) {
            f.timeline.trackAt(row)->setLocked(true);
            continue;
        }
        const MvClipType type = item.startsWith(QLatin1String("audio")) ? ClipType_Audio : ClipType_Video;
        clips->append(f.clip(row, start, start + 49, type));
        if (!item.startsWith(QLatin1String("follower"))) {
            selected.append(clips->last());
            continue;
        }
        for (IMvClip* leader : qAsConst(selected))
            static_cast<MvMemoryClip*>(leader)->setMotionTrackFollower(clips->last());
    }
    f.select(selected);
    return selected;
}
}

class tst_MvTimelinePresenterClipMove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void move_data();
    void move();
    void movesWalkBackAndForth();
    void firstSelectedClipAndItsStart();
    void commandsWithoutATimelineRefuse();
};

void tst_MvTimelinePresenterClipMove::move_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<char>("axis"); // 'h' to move by frames, 'v' by rows
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("asked"); // of the model's move: clips, row offsets, frames; empty when refused
    QTest::addColumn<QString>("after"); // row@start of each clip

    const QString following = QStringLiteral("picture0@50,follower1@30");
    const QString sharing = QStringLiteral("picture0@100,picture0@200,follower0@30");
    QTest::newRow("right") << following << 'h' << 10 << "c0 c1 rows 0 0 by 10"
                           << "0@60 1@40";
    QTest::newRow("left past frame 0: the earliest lands on 0") << following << 'h' << -50 << "c0 c1 rows 0 0 by -30"
                                                                << "0@20 1@0";
    QTest::newRow("left at frame 0 already") << "picture0@20,follower1@0" << 'h' << -50 << ""
                                             << "0@20 1@0";
    QTest::newRow("no offset") << following << 'h' << 0 << ""
                               << "0@50 1@30";
    QTest::newRow("a follower shared by two moves once") << sharing << 'h' << 10 << "c0 c1 c2 rows 0 0 0 by 10"
                                                         << "0@110 0@210 0@40";
    QTest::newRow("a follower shared by two moves once, by rows") << sharing << 'v' << 1 << "c0 c1 c2 rows 1 1 1 by 0"
                                                                  << "1@100 1@200 1@30";
    QTest::newRow("picture first: audio opposite") << "picture0@0,audio3@0" << 'v' << 1 << "c0 c1 rows 1 -1 by 0"
                                                   << "1@0 2@0";
    QTest::newRow("audio first: picture opposite") << "audio2@0,picture1@0" << 'v' << 1 << "c0 c1 rows 1 -1 by 0"
                                                   << "3@0 0@0";
    QTest::newRow("audio stays below the last row") << "audio3@0,picture1@0" << 'v' << 1 << "c0 c1 rows 0 -1 by 0"
                                                    << "3@0 0@0";
    QTest::newRow("picture above the first row") << "picture0@0" << 'v' << -1 << ""
                                                 << "0@0";
    QTest::newRow("locked target row") << "picture0@0,lock1" << 'v' << 1 << ""
                                       << "0@0";
}

void tst_MvTimelinePresenterClipMove::move()
{
    QFETCH(QString, setup);
    QFETCH(char, axis);
    QFETCH(int, offset);
    QFETCH(QString, asked);
    QFETCH(QString, after);

    Fixture f;
    QList<MvMemoryClip*> clips;
    const QList<IMvClip*> selected = setUp(f, setup, &clips);
    const auto positions = [&clips] {
        QStringList text;
        for (const MvMemoryClip* clip : clips)
            text.append(QStringLiteral("%1@%2").arg(clip->trackIndex()).arg(clip->start()));
        return text.join(QLatin1Char(' '));
    };
    const bool moves = !asked.isEmpty();
    const QString before = f.snapshot();
    f.journal.clear();

    const bool horizontal = axis == 'h';
    QCOMPARE(horizontal ? f.presenter->moveClipsHorizontal(offset) : f.presenter->moveClipsVertical(offset), moves);

    const QString record = horizontal ? QStringLiteral("horizontal move clips, frameOffset %1")
                                      : QStringLiteral("vertical move clips, trackIndexOffset %1");
    const QString function = QStringLiteral("MvTimelinePresenterPrivate::moveClips%1")
                                 .arg(horizontal ? QLatin1String("Horizontal") : QLatin1String("Vertical"));
    QCOMPARE(mvCheckRecord(f.log, record.arg(offset), 4, function), QString());
    // Paused, the action refresh held while the model moves each clip once, the selection given back
    // as it was (followers not added), then one refresh.
    const QString journal
        = QStringLiteral("scene:7012 canUpdateAction:0 moveClips %1 model:moveClips selection:select %2 "
                         "updateAction sigActionStatusChanged")
              .arg(asked, f.timeline.clipNames(selected));
    QCOMPARE(f.journalText(), moves ? journal : QString());
    QVERIFY(f.presenter->canUpdateAction());
    QCOMPARE(positions(), after);
    QCOMPARE(f.undoOneStep(before), moves ? QStringLiteral("move clips") : QString());
}

void tst_MvTimelinePresenterClipMove::movesWalkBackAndForth()
{
    Fixture f;
    QList<MvMemoryClip*> clips;
    setUp(f, QStringLiteral("picture0@100,audio3@100,follower0@40"), &clips);
    f.keepState();
    for (const QPair<char, int>& move :
        QList<QPair<char, int>> { { 'h', 25 }, { 'v', 1 }, { 'h', -500 }, { 'h', 0 }, { 'v', -1 } }) {
        const bool moved = move.first == 'h' ? f.presenter->moveClipsHorizontal(move.second)
                                             : f.presenter->moveClipsVertical(move.second);
        QCOMPARE(moved, move.second != 0);
        f.keepState();
    }
    QCOMPARE(clips.first()->start(), qint64(60));
    QCOMPARE(f.walkUndo(), QStringLiteral("move clips, move clips, move clips, move clips"));
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
