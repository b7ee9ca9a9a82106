#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoClipDrag.h"
#include "MvDemoSnapper.h"

#include <QtTest>

using namespace MVVBLMODEL;
using Problem = MvDemoClipDrag::Problem;

Q_DECLARE_METATYPE(MvDemoClipDrag::Problem)

namespace {
// Picture rows 0 and 1, audio rows 2 and 3, as a real project orders them:
//   row 0: a 100..199, b 300..399      row 2: s 100..189 (sound)
//   row 1: c 0..49                     row 3: (empty)
struct Project
{
    Project()
    {
        for (MvTrackType type : { TrackType_Picture, TrackType_Picture, TrackType_Audio, TrackType_Audio })
            timeline.addTrack(type);
        a = timeline.addClip(0, ClipType_Video, 100, 199, QStringLiteral("a"));
        b = timeline.addClip(0, ClipType_Video, 300, 399, QStringLiteral("b"));
        c = timeline.addClip(1, ClipType_Image, 0, 49, QStringLiteral("c"));
        s = timeline.addClip(2, ClipType_Audio, 100, 189, QStringLiteral("s"));
    }

    MvMemoryClip* named(const QString& name) const
    {
        for (MvMemoryClip* clip : timeline.liveClips()) {
            if (clip->name() == name)
                return clip;
        }
        return nullptr;
    }

    QList<IMvClip*> clips(const QString& names) const
    {
        QList<IMvClip*> list;
        for (const QString& name : names.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            list.append(named(name));
        return list;
    }

    // "name@track:start..end" for each landing.
    static QString describe(const QList<MvDemoClipDrag::Landing>& landings)
    {
        QStringList parts;
        for (const MvDemoClipDrag::Landing& landing : landings)
            parts.append(QStringLiteral("%1@%2:%3..%4")
                             .arg(landing.clip->name())
                             .arg(landing.trackIndex)
                             .arg(landing.start)
                             .arg(landing.end));
        return parts.join(QLatin1Char(' '));
    }

    MvMemoryTimeline timeline;
    MvMemoryClip* a;
    MvMemoryClip* b;
    MvMemoryClip* c;
    MvMemoryClip* s;
};
}

// A drag of the selected clips: the snapping of its edges, the offsets it hands to the
// presenter's move commands, and where the clips would land.
class tst_MvDemoClipDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snapPullsTheNearestEdgeOntoATarget_data();
    void snapPullsTheNearestEdgeOntoATarget();
    void snapTargetsAreWhatStays();
    void dragGivesTheFrameOffset_data();
    void dragGivesTheFrameOffset();
    void dragKeepsTheLeadKindOnItsRows_data();
    void dragKeepsTheLeadKindOnItsRows();
    void followersMoveAlong();
    void problemOfALanding_data();
    void problemOfALanding();
};

void tst_MvDemoClipDrag::snapPullsTheNearestEdgeOntoATarget_data()
{
    QTest::addColumn<QVector<qint64>>("targets");
    QTest::addColumn<QVector<qint64>>("edges");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<qint64>("threshold");
    QTest::addColumn<qint64>("snapped");
    QTest::addColumn<qint64>("guide");
    const QVector<qint64> targets { 500, 100, 200, 100 };
    QTest::newRow("end edge lands short of a target")
        << targets << QVector<qint64> { 50, 80 } << qint64(17) << qint64(5) << qint64(20) << qint64(100);
    QTest::newRow("start edge overshoots a target")
        << targets << QVector<qint64> { 50, 80 } << qint64(153) << qint64(5) << qint64(150) << qint64(200);
    QTest::newRow("exactly on a target") << targets << QVector<qint64> { 50, 80 } << qint64(20) << qint64(5)
                                         << qint64(20) << qint64(100);
    QTest::newRow("out of reach") << targets << QVector<qint64> { 50, 80 } << qint64(10) << qint64(5) << qint64(10)
                                  << qint64(-1);
    QTest::newRow("on the threshold") << targets << QVector<qint64> { 50, 80 } << qint64(15) << qint64(5) << qint64(20)
                                      << qint64(100);
    QTest::newRow("the nearer of two edges wins")
        << targets << QVector<qint64> { 50, 80 } << qint64(146) << qint64(10) << qint64(150) << qint64(200);
    QTest::newRow("a tie goes to the first edge") << QVector<qint64> { 100, 206 } << QVector<qint64> { 97, 203 }
                                                  << qint64(0) << qint64(5) << qint64(3) << qint64(100);
    QTest::newRow("a tie between targets goes to the earlier")
        << QVector<qint64> { 96, 104 } << QVector<qint64> { 100 } << qint64(0) << qint64(5) << qint64(-4) << qint64(96);
    QTest::newRow("snapping off") << targets << QVector<qint64> { 50, 80 } << qint64(19) << qint64(0) << qint64(19)
                                  << qint64(-1);
    QTest::newRow("nothing to snap to") << QVector<qint64>() << QVector<qint64> { 50 } << qint64(7) << qint64(5)
                                        << qint64(7) << qint64(-1);
}

void tst_MvDemoClipDrag::snapPullsTheNearestEdgeOntoATarget()
{
    QFETCH(QVector<qint64>, targets);
    QFETCH(QVector<qint64>, edges);
    QFETCH(qint64, offset);
    QFETCH(qint64, threshold);
    QFETCH(qint64, snapped);
    QFETCH(qint64, guide);
    MvDemoSnapper snapper;
    snapper.setTargets(targets);
    const MvDemoSnapper::Result result = snapper.snap(edges, offset, threshold);
    QCOMPARE(result.offset, snapped);
    QCOMPARE(result.guideFrame, guide);
}

void tst_MvDemoClipDrag::snapTargetsAreWhatStays()
{
    Project project;
    project.timeline.playhead()->setCurrentFrame(250);
    project.timeline.timelineMarkers()->addMarker(380, Qt::red);
    project.b->clipMarkers()->addMarker(10, Qt::blue); // frame 310 of the timeline
    MvDemoSnapper snapper;
    snapper.setTargets(MvDemoSnapper::targetsOf(&project.timeline, project.clips(QStringLiteral("a s"))));
    // The playhead, the edges of b and c, both markers; never the moving clips' own edges.
    QCOMPARE(snapper.targets(), (QVector<qint64> { 0, 50, 250, 300, 310, 380, 400 }));
    snapper.setTargets(MvDemoSnapper::targetsOf(&project.timeline, project.clips(QStringLiteral("b"))));
    QCOMPARE(snapper.targets(), (QVector<qint64> { 0, 50, 100, 190, 200, 250, 380 }));
    QCOMPARE(MvDemoSnapper::edgesOf(project.clips(QStringLiteral("a c"))), (QVector<qint64> { 100, 200, 0, 50 }));
}

void tst_MvDemoClipDrag::dragGivesTheFrameOffset_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("pointerFrame");
    QTest::addColumn<qint64>("threshold");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<qint64>("guide");
    // Pressed on frame 150 of a.
    QTest::newRow("free travel") << QStringLiteral("a") << qint64(180) << qint64(0) << qint64(30) << qint64(-1);
    QTest::newRow("snaps a's end onto b's start")
        << QStringLiteral("a") << qint64(247) << qint64(5) << qint64(100) << qint64(300);
    QTest::newRow("snaps a's start onto c's end")
        << QStringLiteral("a") << qint64(98) << qint64(5) << qint64(-50) << qint64(50);
    QTest::newRow("stops the earliest clip at frame 0")
        << QStringLiteral("a") << qint64(-500) << qint64(0) << qint64(-100) << qint64(-1);
    QTest::newRow("stopped at frame 0, on c's start")
        << QStringLiteral("a") << qint64(-500) << qint64(5) << qint64(-100) << qint64(0);
    QTest::newRow("with c along it cannot move back")
        << QStringLiteral("a c") << qint64(120) << qint64(0) << qint64(0) << qint64(-1);
}

void tst_MvDemoClipDrag::dragGivesTheFrameOffset()
{
    QFETCH(QString, selection);
    QFETCH(qint64, pointerFrame);
    QFETCH(qint64, threshold);
    QFETCH(qint64, offset);
    QFETCH(qint64, guide);
    Project project;
    project.timeline.playhead()->setCurrentFrame(3000);
    MvDemoClipDrag drag;
    drag.start(&project.timeline, project.clips(selection), 150, 0);
    drag.moveTo(pointerFrame, 0, threshold);
    QCOMPARE(drag.frameOffset(), offset);
    QCOMPARE(drag.guideFrame(), guide);
    QCOMPARE(drag.trackOffset(), 0);
}

void tst_MvDemoClipDrag::dragKeepsTheLeadKindOnItsRows_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<int>("pressTrack");
    QTest::addColumn<int>("pointerTrack");
    QTest::addColumn<int>("trackOffset");
    QTest::addColumn<QString>("landings");
    QTest::newRow("picture clip one row down") << QStringLiteral("a") << 0 << 1 << 1 << QStringLiteral("a@1:100..199");
    QTest::newRow("picture clip stays off the audio rows")
        << QStringLiteral("a") << 0 << 3 << 1 << QStringLiteral("a@1:100..199");
    QTest::newRow("picture clip cannot rise above the top")
        << QStringLiteral("c") << 1 << 0 << -1 << QStringLiteral("c@0:0..49");
    QTest::newRow("audio clip one row down") << QStringLiteral("s") << 2 << 3 << 1 << QStringLiteral("s@3:100..189");
    QTest::newRow("audio clip stays off the picture rows")
        << QStringLiteral("s") << 2 << 0 << 0 << QStringLiteral("s@2:100..189");
    QTest::newRow("sound moves against its picture")
        << QStringLiteral("c s") << 1 << 0 << -1 << QStringLiteral("c@0:0..49 s@3:100..189");
    QTest::newRow("picture moves against its sound")
        << QStringLiteral("s c") << 2 << 3 << 1 << QStringLiteral("s@3:100..189 c@0:0..49");
    QTest::newRow("a kind that would leave its rows stays")
        << QStringLiteral("a s") << 0 << 1 << 1 << QStringLiteral("a@1:100..199 s@2:100..189");
}

void tst_MvDemoClipDrag::dragKeepsTheLeadKindOnItsRows()
{
    QFETCH(QString, selection);
    QFETCH(int, pressTrack);
    QFETCH(int, pointerTrack);
    QFETCH(int, trackOffset);
    QFETCH(QString, landings);
    Project project;
    MvDemoClipDrag drag;
    drag.start(&project.timeline, project.clips(selection), 150, pressTrack);
    drag.moveTo(150, pointerTrack, 0);
    QCOMPARE(drag.trackOffset(), trackOffset);
    QCOMPARE(Project::describe(drag.landings()), landings);
}

void tst_MvDemoClipDrag::followersMoveAlong()
{
    Project project;
    project.a->setMotionTrackFollower(project.c);
    MvDemoClipDrag drag;
    drag.start(&project.timeline, project.clips(QStringLiteral("a")), 150, 0);
    drag.moveTo(160, 0, 0);
    QCOMPARE(Project::describe(drag.landings()), QStringLiteral("a@0:110..209 c@1:10..59"));
    // The follower's own start bounds the move back, as the presenter's clamp does.
    drag.moveTo(0, 0, 0);
    QCOMPARE(drag.frameOffset(), qint64(0));
}

void tst_MvDemoClipDrag::problemOfALanding_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("frameOffset");
    QTest::addColumn<int>("trackOffset");
    QTest::addColumn<int>("lockedTrack");
    QTest::addColumn<Problem>("problem");
    QTest::newRow("free space") << QStringLiteral("a") << qint64(50) << 0 << -1 << Problem::None;
    QTest::newRow("onto b") << QStringLiteral("a") << qint64(101) << 0 << -1 << Problem::Overlap;
    QTest::newRow("touching b") << QStringLiteral("a") << qint64(100) << 0 << -1 << Problem::None;
    QTest::newRow("a and b past each other") << QStringLiteral("a b") << qint64(150) << 0 << -1 << Problem::None;
    QTest::newRow("onto c a row down") << QStringLiteral("a") << qint64(-80) << 1 << -1 << Problem::Overlap;
    QTest::newRow("onto a locked row") << QStringLiteral("a") << qint64(0) << 1 << 1 << Problem::LockedTarget;
    QTest::newRow("from a locked row") << QStringLiteral("a") << qint64(5) << 0 << 0 << Problem::LockedSource;
    QTest::newRow("before frame 0") << QStringLiteral("c") << qint64(-1) << 0 << -1 << Problem::BeforeStart;
    QTest::newRow("nothing selected") << QString() << qint64(5) << 0 << -1 << Problem::NothingToMove;
}

void tst_MvDemoClipDrag::problemOfALanding()
{
    QFETCH(QString, selection);
    QFETCH(qint64, frameOffset);
    QFETCH(int, trackOffset);
    QFETCH(int, lockedTrack);
    QFETCH(Problem, problem);
    Project project;
    if (IMvTrack* track = project.timeline.trackAt(lockedTrack))
        track->setLocked(true);
    const QList<IMvClip*> clips = project.clips(selection);
    const QList<MvDemoClipDrag::Landing> landings
        = MvDemoClipDrag::landingsFor(&project.timeline, clips, frameOffset, trackOffset);
    QCOMPARE(MvDemoClipDrag::problemOf(&project.timeline, clips, landings), problem);
    // Where the host sees no problem the model takes the move, and where it sees one the model refuses it.
    QList<int> offsets;
    for (const MvDemoClipDrag::Landing& landing : landings)
        offsets.append(landing.trackIndex - landing.clip->trackIndex());
    if (!clips.isEmpty())
        QCOMPARE(project.timeline.moveClips(clips, offsets, frameOffset, 2), problem == Problem::None);
}

QTEST_MAIN(tst_MvDemoClipDrag)
#include "tst_MvDemoClipDrag.moc"
