#include "IMvSelection.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
// Row 0 picture: v [100..200] video, i [300..309] image; row 1 audio: m [0..499] music.
struct Project
{
    std::unique_ptr<MvMemoryTimeline> timeline { new MvMemoryTimeline };
    MvMemoryClip* v = nullptr;
    MvMemoryClip* i = nullptr;
    MvMemoryClip* m = nullptr;

    Project()
    {
        timeline->addTrack(TrackType_Picture);
        timeline->addTrack(TrackType_Audio);
        v = timeline->addClip(0, ClipType_Video, 100, 200, QStringLiteral("v"));
        i = timeline->addClip(0, ClipType_Image, 300, 309, QStringLiteral("i"));
        m = timeline->addClip(1, ClipType_Music, 0, 499, QStringLiteral("m"));
    }
};
}

class tst_MvMemoryItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void markerPlacement_data();
    void markerPlacement();
    void markerEditsAreUndoable();
    void timelineMarkersOutliveAShorterTimeline();
    void selectedMarkerFollowsTheModel();
    void freezeFramesBelongToPictureClips();
    void subItemSelectionKeepsOneId();
    void smartKeyingNodes();
    void rotationTurnsInQuarters_data();
    void rotationTurnsInQuarters();
    void lockedTrackRefusesItemEdits();
};

void tst_MvMemoryItems::markerPlacement_data()
{
    QTest::addColumn<bool>("onClip");
    QTest::addColumn<qint64>("ownFrame");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("timeline start") << false << qint64(0) << true;
    QTest::newRow("timeline end") << false << qint64(500) << true;
    QTest::newRow("past the timeline") << false << qint64(501) << false;
    QTest::newRow("before the timeline") << false << qint64(-1) << false;
    QTest::newRow("timeline frame taken") << false << qint64(50) << false;
    QTest::newRow("clip first frame") << true << qint64(0) << true;
    QTest::newRow("clip last frame") << true << qint64(100) << true;
    QTest::newRow("past the clip") << true << qint64(101) << false;
    QTest::newRow("before the clip") << true << qint64(-1) << false;
    QTest::newRow("clip frame taken") << true << qint64(20) << false;
}

void tst_MvMemoryItems::markerPlacement()
{
    QFETCH(bool, onClip);
    QFETCH(qint64, ownFrame);
    QFETCH(bool, allowed);
    Project p;
    p.timeline->timelineMarkers()->addMarker(50, Qt::red);
    p.v->clipMarkers()->addMarker(20, Qt::red);
    IMvMarkerList* list = onClip ? p.v->clipMarkers() : p.timeline->timelineMarkers();
    const int before = list->markers().size();
    QCOMPARE(list->canAddMarker(ownFrame), allowed);
    list->addMarker(ownFrame, Qt::green);
    QCOMPARE(list->markers().size(), before + (allowed ? 1 : 0));
    if (allowed)
        QCOMPARE(list->markerAt(ownFrame)->color(), QColor(Qt::green));
    MvRange<qint64> range;
    list->frameRange(range);
    QCOMPARE(range, onClip ? MvRange<qint64>(100, 200) : MvRange<qint64>(0, 500));
    QCOMPARE(list->mapFromTimeline(150), onClip ? qint64(50) : qint64(150));
    QCOMPARE(list->mapToTimeline(50), onClip ? qint64(150) : qint64(50));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryItems::timelineMarkersOutliveAShorterTimeline()
{
    Project p;
    p.timeline->timelineMarkers()->addMarker(450, Qt::red);
    QVERIFY(p.timeline->deleteClips({ p.m }));
    QCOMPARE(p.timeline->duration(), qint64(310));
    QCOMPARE(p.timeline->timelineMarkers()->markers().size(), 1);
    QCOMPARE(p.timeline->checkInvariants(), QString());
    QVERIFY(!p.timeline->timelineMarkers()->canAddMarker(450));
}

void tst_MvMemoryItems::markerEditsAreUndoable()
{
    Project p;
    p.timeline->undoService()->clear();
    IMvMarkerList* list = p.v->clipMarkers();
    list->addMarker(10, Qt::red);
    IMvMarker* marker = list->markerAt(10);
    QCOMPARE(marker->ownerList(), list);
    marker->setName(QStringLiteral("cut here"));
    marker->setComment(QStringLiteral("after the wave"));
    marker->setColor(Qt::blue);
    marker->setColor(Qt::blue); // no change, no step
    QCOMPARE(p.timeline->undoService()->undoNames(),
        (QStringList { QStringLiteral("add marker"), QStringLiteral("edit marker"), QStringLiteral("edit marker"),
            QStringLiteral("edit marker") }));
    list->removeMarker(marker);
    QVERIFY(list->markers().isEmpty());
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("remove marker"));
    list->removeMarker(marker); // already gone: nothing
    list->removeMarker(nullptr);
    QCOMPARE(p.timeline->undoService()->undoCount(), 5);

    QVERIFY(p.timeline->undoService()->undo());
    QCOMPARE(list->markerAt(10), marker);
    QVERIFY(p.timeline->undoService()->undo());
    QCOMPARE(marker->color(), QColor(Qt::red));
    QCOMPARE(marker->comment(), QStringLiteral("after the wave"));
    QVERIFY(p.timeline->undoService()->undo());
    QVERIFY(p.timeline->undoService()->undo());
    QCOMPARE(marker->name(), QString());
    QVERIFY(p.timeline->undoService()->undo());
    QVERIFY(list->markers().isEmpty());
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryItems::selectedMarkerFollowsTheModel()
{
    Project p;
    IMvMarkerModel* model = p.timeline->markerModel();
    p.v->clipMarkers()->addMarker(5, Qt::red);
    IMvMarker* marker = p.v->clipMarkers()->markerAt(5);
    model->setSelectedMarker(marker);
    QCOMPARE(model->selectedMarker(), marker);
    // The clip leaves the timeline: its marker can no longer be the selected one.
    QVERIFY(p.timeline->deleteClips({ p.v }));
    QVERIFY(!model->selectedMarker());
    QVERIFY(p.timeline->undoService()->undo());
    model->setSelectedMarker(marker);
    QCOMPARE(model->selectedMarker(), marker);
    model->setSelectedMarker(nullptr);
    QVERIFY(!model->selectedMarker());
}

void tst_MvMemoryItems::freezeFramesBelongToPictureClips()
{
    Project p;
    QVERIFY(!p.m->freezeFrames());
    QVERIFY(!p.m->addFreezeFrame(1, 10));
    QVERIFY(p.v->addFreezeFrame(4, 10));
    QVERIFY(p.v->addFreezeFrame(9, 100));
    QVERIFY(!p.v->addFreezeFrame(4, 20));
    QVERIFY(!p.v->addFreezeFrame(5, 101));
    QCOMPARE(p.v->freezeFrames()->ids(), (QList<int> { 4, 9 }));
    QVERIFY(p.v->freezeFrames()->remove(4));
    QVERIFY(!p.v->freezeFrames()->remove(4));
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("remove freeze frame"));
    QVERIFY(p.timeline->undoService()->undo());
    QVERIFY(p.v->freezeFrames()->contains(4));
    // Trimming the end past a freeze frame drops it.
    QVERIFY(p.timeline->trimEndToFrame(p.v, 150));
    QCOMPARE(p.v->freezeFrames()->ids(), QList<int> { 4 });
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryItems::subItemSelectionKeepsOneId()
{
    Project p;
    IMvSubItemSelection* selection = p.timeline->subItemSelection();
    int id = 77;
    QVERIFY(!selection->selectedId(id));
    QCOMPARE(id, 77);
    selection->select(3);
    selection->select(0);
    QVERIFY(selection->selectedId(id));
    QCOMPARE(id, 0);
    selection->clear();
    QVERIFY(!selection->selectedId(id));
}

void tst_MvMemoryItems::smartKeyingNodes()
{
    Project p;
    QVERIFY(!p.v->smartKeyingNodes());
    p.v->setSmartKeyingNodeCount(3);
    p.i->setSmartKeyingNodeCount(2);
    IMvSmartKeyingNodes* nodes = p.v->smartKeyingNodes();
    QVERIFY(nodes);
    QCOMPARE(nodes->selectedIndex(), IMvSmartKeyingNodes::NoSelection);
    nodes->setSelectedIndex(5);
    QCOMPARE(nodes->selectedIndex(), IMvSmartKeyingNodes::NoSelection);
    nodes->setSelectedIndex(2);
    QCOMPARE(nodes->selectedIndex(), quint64(2));

    QList<IMvClip*> clips { p.m };
    p.timeline->smartKeyingClips(clips);
    QVERIFY(clips.isEmpty());
    p.timeline->selection()->select({ p.m, p.i, p.v });
    p.timeline->smartKeyingClips(clips);
    QCOMPARE(clips, (QList<IMvClip*> { p.i, p.v }));

    nodes->removeAt(0);
    QCOMPARE(nodes->count(), 2);
    QCOMPARE(nodes->selectedIndex(), quint64(1)); // the same node, one place up
    nodes->removeAt(1);
    QCOMPARE(nodes->selectedIndex(), IMvSmartKeyingNodes::NoSelection);
    nodes->removeAt(IMvSmartKeyingNodes::NoSelection);
    QCOMPARE(nodes->count(), 1);
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("remove smart keying node"));
    QVERIFY(p.timeline->undoService()->undo());
    QCOMPARE(nodes->count(), 2);
}

void tst_MvMemoryItems::rotationTurnsInQuarters_data()
{
    QTest::addColumn<QString>("turns"); // R clockwise, L counter-clockwise
    QTest::addColumn<int>("rotation");
    QTest::newRow("one right") << QStringLiteral("R") << 90;
    QTest::newRow("one left") << QStringLiteral("L") << 270;
    QTest::newRow("full circle") << QStringLiteral("RRRR") << 0;
    QTest::newRow("right and back") << QStringLiteral("RL") << 0;
    QTest::newRow("two left") << QStringLiteral("LL") << 180;
}

void tst_MvMemoryItems::rotationTurnsInQuarters()
{
    QFETCH(QString, turns);
    QFETCH(int, rotation);
    Project p;
    p.timeline->undoService()->clear();
    for (QChar turn : qAsConst(turns)) {
        if (turn == QLatin1Char('R'))
            p.timeline->rotateClip90CW(p.v);
        else
            p.timeline->rotateClip90CCW(p.v);
    }
    QCOMPARE(p.v->rotation(), rotation);
    QCOMPARE(p.timeline->undoService()->undoCount(), turns.size());
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("rotate clip"));
    const QString before = p.timeline->stateText();
    p.timeline->rotateClip90CW(nullptr);
    p.timeline->rotateClip90CCW(p.m); // sound has no picture to turn
    QCOMPARE(p.timeline->stateText(), before);
    QCOMPARE(p.timeline->undoService()->undoCount(), turns.size());
}

void tst_MvMemoryItems::lockedTrackRefusesItemEdits()
{
    Project p;
    p.v->clipMarkers()->addMarker(5, Qt::red);
    QVERIFY(p.v->addFreezeFrame(1, 3));
    p.timeline->trackAt(0)->setLocked(true);
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("lock track"));
    const QString before = p.timeline->stateText();
    p.timeline->rotateClip90CW(p.v);
    p.v->clipMarkers()->addMarker(6, Qt::red);
    p.v->clipMarkers()->removeMarker(p.v->clipMarkers()->markerAt(5));
    QVERIFY(!p.v->freezeFrames()->remove(1));
    QVERIFY(!p.timeline->trimStartToFrame(p.v, 150));
    QCOMPARE(p.timeline->stateText(), before);
    p.timeline->trackAt(0)->setLocked(false);
    QVERIFY(p.timeline->trimStartToFrame(p.v, 150));
}

QTEST_GUILESS_MAIN(tst_MvMemoryItems)
#include "tst_MvMemoryItems.moc"
