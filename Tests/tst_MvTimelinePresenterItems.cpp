#include "IMvClipItems.h"
#include "IMvMarker.h"
#include "Memory/MvMemoryMarker.h"
#include "MvEditFixture.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// A timeline that records which clip the presenter hands to the rotations.
class RotationTimeline : public MvMemoryTimeline
{
public:
    using MvMemoryTimeline::MvMemoryTimeline;
    QList<IMvClip*> rotated;

    void rotateClip90CW(IMvClip* clip) override
    {
        rotated.append(clip);
        MvMemoryTimeline::rotateClip90CW(clip);
    }
    void rotateClip90CCW(IMvClip* clip) override
    {
        rotated.append(clip);
        MvMemoryTimeline::rotateClip90CCW(clip);
    }
};

using Fixture = MvEditFixture<>;

QList<qint64> markerFrames(const IMvMarkerList* list)
{
    QList<qint64> frames;
    for (const IMvMarker* marker : list->markers())
        frames.append(marker->frame());
    return frames;
}
}

class tst_MvTimelinePresenterItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addMarkerPicksItsList_data();
    void addMarkerPicksItsList();
    void addMarkerWhereOneStandsAddsNothing();
    void removeSelectedMarker();
    void rotateTheCurrentClip();
    void rotateWithNothingSelectedDoesNothing();
    void rotateHandsANullClipForATransition();
    void removeSelectedFreezeFrame_data();
    void removeSelectedFreezeFrame();
    void removeSelectedSmartKeyingNode_data();
    void removeSelectedSmartKeyingNode();
};

void tst_MvTimelinePresenterItems::addMarkerPicksItsList_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<QList<qint64>>("clipMarkers");
    QTest::addColumn<QList<qint64>>("timelineMarkers");

    const QList<qint64> none;
    QTest::newRow("one clip under the playhead")
        << QStringLiteral("clip") << qint64(150) << QList<qint64>({ 50 }) << none;
    QTest::newRow("one clip, playhead on its last frame")
        << QStringLiteral("clip") << qint64(200) << QList<qint64>({ 100 }) << none;
    QTest::newRow("one clip, playhead on its first frame")
        << QStringLiteral("clip") << qint64(100) << QList<qint64>({ 0 }) << none;
    QTest::newRow("one clip, playhead just past it")
        << QStringLiteral("clip") << qint64(201) << none << QList<qint64>({ 201 });
    QTest::newRow("one clip with the timeline flag")
        << QStringLiteral("clip,timeline") << qint64(150) << none << QList<qint64>({ 150 });
    QTest::newRow("two clips") << QStringLiteral("clip,other") << qint64(150) << none << QList<qint64>({ 150 });
    QTest::newRow("nothing selected") << QString() << qint64(150) << none << QList<qint64>({ 150 });
    QTest::newRow("one transition") << QStringLiteral("transition") << qint64(150) << none << none;
}

void tst_MvTimelinePresenterItems::addMarkerPicksItsList()
{
    QFETCH(QString, selection);
    QFETCH(qint64, playhead);
    QFETCH(QList<qint64>, clipMarkers);
    QFETCH(QList<qint64>, timelineMarkers);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 200);
    MvMemoryClip* other = f.clip(1, 0, 300);
    MvMemoryTransition* transition = f.timeline.addTransition(clip, IMvTransition::AtEnd, 20, QStringLiteral("fade"));
    QList<IMvAbstractClip*> items;
    if (selection.contains(QLatin1String("clip")))
        items.append(clip);
    if (selection.contains(QLatin1String("other")))
        items.append(other);
    if (selection.contains(QLatin1String("transition")))
        items.append(transition);
    f.timeline.selection()->selectItems(items);
    f.timeline.selection()->setTimelineSelected(selection.contains(QLatin1String("timeline")));
    f.setPlayhead(playhead);
    const auto before = f.snapshot();
    const int steps = f.undoCount();

    f.presenter->addMarker(Qt::green);

    QCOMPARE(markerFrames(clip->clipMarkers()), clipMarkers);
    QCOMPARE(markerFrames(f.timeline.timelineMarkers()), timelineMarkers);
    QVERIFY(other->clipMarkers()->markers().isEmpty());
    const IMvMarkerList* target = clipMarkers.isEmpty() ? f.timeline.timelineMarkers() : clip->clipMarkers();
    if (!target->markers().isEmpty())
        QCOMPARE(target->markers().first()->color(), QColor(Qt::green));
    const bool added = !clipMarkers.isEmpty() || !timelineMarkers.isEmpty();
    QCOMPARE(f.undoCount(), steps + (added ? 1 : 0));
    QCOMPARE(f.timeline.checkInvariants(), QString());
    if (added)
        QCOMPARE(f.undoDiff(before), QString());
    else
        QVERIFY(f.snapshot() == before);
}

void tst_MvTimelinePresenterItems::addMarkerWhereOneStandsAddsNothing()
{
    Fixture f;
    f.clip(0, 0, 99);
    f.timeline.timelineMarkers()->addMarker(40, Qt::red);
    f.setPlayhead(40);
    QCOMPARE(f.playhead(), qint64(40));
    const auto before = f.snapshot();
    f.presenter->addMarker(Qt::blue);
    QVERIFY(f.snapshot() == before);
    QCOMPARE(f.timeline.timelineMarkers()->markers().first()->color(), QColor(Qt::red));
}

void tst_MvTimelinePresenterItems::removeSelectedMarker()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    clip->clipMarkers()->addMarker(10, Qt::red);
    f.timeline.timelineMarkers()->addMarker(10, Qt::red);
    const auto before = f.snapshot();

    QVERIFY(!f.presenter->canRemoveMarker());
    QVERIFY(!f.presenter->removeSelectedMarker());
    QVERIFY(f.snapshot() == before);

    // A clip's marker goes from the clip's own list; the timeline's marker stays.
    f.timeline.markerModel()->setSelectedMarker(clip->clipMarkers()->markerAt(10));
    QVERIFY(f.presenter->canRemoveMarker());
    QVERIFY(f.presenter->removeSelectedMarker());
    QVERIFY(clip->clipMarkers()->markers().isEmpty());
    QCOMPARE(f.timeline.timelineMarkers()->markers().size(), 1);
    QCOMPARE(f.undoCount(), before.undoCount + 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());

    // Clearing every marker is the host's command: this entry point leaves them alone.
    f.presenter->removeAllMarker();
    QCOMPARE(f.timeline.timelineMarkers()->markers().size(), 1);
    QCOMPARE(clip->clipMarkers()->markers().size(), 1);
}

void tst_MvTimelinePresenterItems::rotateTheCurrentClip()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    MvMemoryClip* other = f.clip(1, 0, 99);
    f.select({ clip, other });
    const auto before = f.snapshot();

    f.presenter->rotate90CW();
    QCOMPARE(clip->rotation(), 90);
    QCOMPARE(other->rotation(), 0);
    f.presenter->rotate90CCW();
    f.presenter->rotate90CCW();
    QCOMPARE(clip->rotation(), 270);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoCount(), before.undoCount + 3);
    QVERIFY(f.timeline.undoRedoService()->undo());
    QVERIFY(f.timeline.undoRedoService()->undo());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterItems::rotateWithNothingSelectedDoesNothing()
{
    MvEditFixture<RotationTimeline> f;
    f.clip(0, 0, 99);
    const auto before = f.snapshot();
    f.presenter->rotate90CW();
    f.presenter->rotate90CCW();
    QVERIFY(f.timeline.rotated.isEmpty());
    QVERIFY(f.snapshot() == before);
}

void tst_MvTimelinePresenterItems::rotateHandsANullClipForATransition()
{
    MvEditFixture<RotationTimeline> f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    f.timeline.selection()->selectItems(
        { f.timeline.addTransition(clip, IMvTransition::AtStart, 10, QStringLiteral("fade")), clip });
    const auto before = f.snapshot();
    f.presenter->rotate90CW();
    QCOMPARE(f.timeline.rotated, QList<IMvClip*>({ nullptr }));
    QCOMPARE(clip->rotation(), 0);
    QVERIFY(f.snapshot() == before);
}

void tst_MvTimelinePresenterItems::removeSelectedFreezeFrame_data()
{
    QTest::addColumn<int>("selectedId");
    QTest::addColumn<bool>("clipSelected");
    QTest::addColumn<bool>("removed");

    QTest::newRow("a freeze frame of the clip") << 7 << true << true;
    QTest::newRow("an id the clip does not have") << 8 << true << false;
    QTest::newRow("no sub-item selected") << -1 << true << false;
    QTest::newRow("no clip selected") << 7 << false << false;
}

void tst_MvTimelinePresenterItems::removeSelectedFreezeFrame()
{
    QFETCH(int, selectedId);
    QFETCH(bool, clipSelected);
    QFETCH(bool, removed);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    MvMemoryClip* other = f.clip(1, 0, 99);
    QVERIFY(clip->addFreezeFrame(7, 10));
    QVERIFY(other->addFreezeFrame(8, 10));
    if (clipSelected)
        f.select({ clip });
    if (selectedId >= 0)
        f.timeline.subItemSelection()->select(selectedId);
    const auto before = f.snapshot();

    QCOMPARE(f.presenter->removeSelectedFreezeFrame(), removed);

    QCOMPARE(clip->freezeFrames()->contains(7), !removed);
    QVERIFY(other->freezeFrames()->contains(8));
    int id = -1;
    QCOMPARE(f.timeline.subItemSelection()->selectedId(id), !removed && selectedId >= 0);
    if (!removed) {
        QVERIFY(f.snapshot() == before);
        return;
    }
    QCOMPARE(f.undoCount(), before.undoCount + 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterItems::removeSelectedSmartKeyingNode_data()
{
    QTest::addColumn<int>("nodes");
    QTest::addColumn<qint64>("selectedIndex");
    QTest::addColumn<bool>("removed");

    QTest::newRow("a selected node") << 3 << qint64(1) << true;
    QTest::newRow("no node selected") << 3 << qint64(-1) << false;
    QTest::newRow("no clip shows nodes") << 0 << qint64(-1) << false;
}

void tst_MvTimelinePresenterItems::removeSelectedSmartKeyingNode()
{
    QFETCH(int, nodes);
    QFETCH(qint64, selectedIndex);
    QFETCH(bool, removed);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    f.select({ clip });
    if (nodes > 0)
        clip->setSmartKeyingNodeCount(nodes);
    if (selectedIndex >= 0)
        clip->smartKeyingNodes()->setSelectedIndex(quint64(selectedIndex));
    const auto before = f.snapshot();

    QCOMPARE(f.presenter->removeSelectedSmartKeyingNode(), removed);

    if (!removed) {
        QVERIFY(f.snapshot() == before);
        return;
    }
    QCOMPARE(clip->smartKeyingNodes()->count(), nodes - 1);
    QCOMPARE(f.undoCount(), before.undoCount + 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

QTEST_MAIN(tst_MvTimelinePresenterItems)
#include "tst_MvTimelinePresenterItems.moc"
