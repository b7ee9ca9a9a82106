#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

class tst_MvMemoryItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void markerPlacement_data();
    void markerPlacement();
    void timelineMarkersOutliveAShorterTimeline();
    void markerEditsAreUndoable();
    void freezeFramesBelongToPictureClips();
    void lockedRowsAndSoundRefuseItemEdits();

private:
    // Row 0 picture: v [100..200] video, i [300..309] image; row 1 audio: m [0..499] music.
    // Markers at timeline frame 50 and at frame 20 of v.
    std::unique_ptr<MvMemoryTimeline> timeline;
    MvMemoryClip* v = nullptr;
    MvMemoryClip* i = nullptr;
    MvMemoryClip* m = nullptr;
};

void tst_MvMemoryItems::init()
{
    timeline.reset(new MvMemoryTimeline);
    timeline->addTrack(TrackType_Picture);
    timeline->addTrack(TrackType_Audio);
    v = timeline->addClip(0, ClipType_Video, 100, 200, QStringLiteral("v"));
    i = timeline->addClip(0, ClipType_Image, 300, 309, QStringLiteral("i"));
    m = timeline->addClip(1, ClipType_Music, 0, 499, QStringLiteral("m"));
    timeline->timelineMarkers()->addMarker(50, Qt::red);
    v->clipMarkers()->addMarker(20, Qt::red);
}

void tst_MvMemoryItems::markerPlacement_data()
{
    QTest::addColumn<bool>("onClip");
    QTest::addColumn<qint64>("frame"); // in the list's own frames
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
    QFETCH(qint64, frame);
    QFETCH(bool, allowed);
    IMvMarkerList* list = onClip ? v->clipMarkers() : timeline->timelineMarkers();
    const QString before = timeline->stateText();
    QCOMPARE(list->canAddMarker(frame), allowed);
    list->addMarker(frame, Qt::green);
    QCOMPARE(timeline->stateText() != before, allowed);
}

void tst_MvMemoryItems::timelineMarkersOutliveAShorterTimeline()
{
    timeline->timelineMarkers()->addMarker(450, Qt::red);
    QVERIFY(timeline->deleteClips({ m }));
    QVERIFY(timeline->timelineMarkers()->markerAt(450));
    QCOMPARE(timeline->checkInvariants(), QString());
    QVERIFY(!timeline->timelineMarkers()->canAddMarker(400));
}

void tst_MvMemoryItems::markerEditsAreUndoable()
{
    MvMemoryUndoService* undo = timeline->undoService();
    undo->clear();
    IMvMarkerList* list = v->clipMarkers();
    list->addMarker(10, Qt::red);
    IMvMarker* marker = list->markerAt(10);
    marker->setName(QStringLiteral("cut here"));
    marker->setColor(Qt::blue);
    marker->setColor(Qt::blue); // no change, no step
    list->removeMarker(marker);
    list->removeMarker(marker); // already gone: nothing
    list->removeMarker(nullptr);
    QCOMPARE(undo->undoNames().join(QLatin1String(", ")),
        QStringLiteral("add marker, edit marker, edit marker, remove marker"));
    QVERIFY(undo->undo());
    QCOMPARE(list->markerAt(10), marker);
    QVERIFY(undo->undo());
    QCOMPARE(marker->color(), QColor(Qt::red));
}

void tst_MvMemoryItems::freezeFramesBelongToPictureClips()
{
    QVERIFY(!m->freezeFrames());
    QVERIFY(v->addFreezeFrame(4, 10));
    QVERIFY(v->addFreezeFrame(9, 100));
    QVERIFY(!v->addFreezeFrame(4, 20)); // the id is taken
    QVERIFY(!v->addFreezeFrame(5, 101)); // past the clip
    QVERIFY(timeline->trimEndToFrame(v, 150)); // drops the freeze frame past the new end
    QCOMPARE(v->freezeFrames()->ids(), QList<int> { 4 });
}

void tst_MvMemoryItems::lockedRowsAndSoundRefuseItemEdits()
{
    timeline->rotateClip90CCW(v);
    QCOMPARE(v->rotation(), 270);
    timeline->rotateClip90CW(v);
    QCOMPARE(v->rotation(), 0);
    QVERIFY(v->addFreezeFrame(1, 3));
    timeline->trackAt(0)->setLocked(true);
    const QString before = timeline->stateText();
    timeline->rotateClip90CW(nullptr);
    timeline->rotateClip90CCW(m); // sound has no picture to turn
    timeline->rotateClip90CW(v);
    v->clipMarkers()->addMarker(6, Qt::red);
    v->clipMarkers()->removeMarker(v->clipMarkers()->markerAt(20));
    QVERIFY(!v->freezeFrames()->remove(1));
    QCOMPARE(timeline->stateText(), before);
    QCOMPARE(timeline->undoService()->undoName(), QStringLiteral("lock track"));
}

QTEST_GUILESS_MAIN(tst_MvMemoryItems)
#include "tst_MvMemoryItems.moc"
