#include "IMvMarker.h"
#include "MvEditFixture.h"
#include "MvRecordingTimeline.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// The clip's markers, then the timeline's, as frame and colour: "50 g | 260 r".
QString markers(const IMvClip* clip, const IMvTimeline& timeline)
{
    QStringList lists;
    for (const IMvMarkerList* list : { clip->clipMarkers(), timeline.timelineMarkers() }) {
        QStringList parts;
        for (const IMvMarker* marker : list->markers())
            parts.append(QStringLiteral("%1 %2").arg(marker->frame()).arg(marker->color() == Qt::green ? 'g' : 'r'));
        lists.append(parts.join(QLatin1Char(' ')));
    }
    return lists.join(QLatin1String(" | "));
}

// A host presenter that reads the freeze-frame length its new freeze frames get.
class HostPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    qint64 defaultFreezeFrameDuration() { return getDefaultFreezeFrameDuration(); }
};
}

class tst_MvTimelinePresenterItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addMarkerPicksItsList_data();
    void addMarkerPicksItsList();
    void removeSelectedMarker();
    void rotate();
    void removeSelectedFreezeFrame();
    void removeSelectedSmartKeyingNode();
    void itemCommandsWalkBackAndForth();
};

void tst_MvTimelinePresenterItems::addMarkerPicksItsList_data()
{
    // A clip 100..200 on row 0, another 0..300 on row 1, a transition at the end of the first and a
    // red timeline marker at 260.
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<QString>("markers");

    QTest::newRow("one clip, on its last frame") << "clip" << qint64(200) << "100 g | 260 r";
    QTest::newRow("one clip, just past it") << "clip" << qint64(201) << " | 201 g 260 r";
    QTest::newRow("one clip, timeline flag") << "clip,timeline" << qint64(150) << " | 150 g 260 r";
    QTest::newRow("two clips") << "clip,other" << qint64(150) << " | 150 g 260 r";
    QTest::newRow("one transition: nothing") << "transition" << qint64(150) << " | 260 r";
    QTest::newRow("a marker stands there: nothing") << "" << qint64(260) << " | 260 r";
}

void tst_MvTimelinePresenterItems::addMarkerPicksItsList()
{
    QFETCH(QString, selection);
    QFETCH(qint64, playhead);
    QFETCH(QString, markers);

    MvEditFixture<> f;
    MvMemoryClip* clip = f.clip(0, 100, 200);
    MvMemoryClip* other = f.clip(1, 0, 300);
    IMvAbstractClip* transition = f.timeline.addTransition(clip, IMvTransition::AtEnd, 20, QStringLiteral("fade"));
    f.timeline.timelineMarkers()->addMarker(260, Qt::red);
    QList<IMvAbstractClip*> items;
    for (const QString& name : selection.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (name != QLatin1String("timeline"))
            items.append(name == QLatin1String("clip") ? clip : name == QLatin1String("other") ? other : transition);
    }
    f.timeline.selection()->selectItems(items);
    f.timeline.selection()->setTimelineSelected(selection.contains(QLatin1String("timeline")));
    f.setPlayhead(playhead);
    const QString before = f.snapshot();

    f.presenter->addMarker(Qt::green);

    QCOMPARE(::markers(clip, f.timeline), markers);
    QVERIFY(other->clipMarkers()->markers().isEmpty());
    if (markers.contains(QLatin1Char('g')))
        QCOMPARE(f.undoOneStep(before), QStringLiteral("add marker"));
    else
        QCOMPARE(f.snapshot(), before);
}

void tst_MvTimelinePresenterItems::removeSelectedMarker()
{
    MvEditFixture<> f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    clip->clipMarkers()->addMarker(10, Qt::red);
    f.timeline.timelineMarkers()->addMarker(10, Qt::red);
    const QString before = f.snapshot();

    QVERIFY(!f.presenter->canRemoveMarker());
    QVERIFY(!f.presenter->removeSelectedMarker());
    QCOMPARE(f.snapshot(), before);

    // A clip's marker goes from the clip's own list; the timeline's marker stays.
    f.timeline.markerModel()->setSelectedMarker(clip->clipMarkers()->markerAt(10));
    QVERIFY(f.presenter->canRemoveMarker());
    QVERIFY(f.presenter->removeSelectedMarker());
    QCOMPARE(markers(clip, f.timeline), QStringLiteral(" | 10 r"));
    QCOMPARE(f.undoOneStep(before), QStringLiteral("remove marker"));
}

void tst_MvTimelinePresenterItems::rotate()
{
    MvEditFixture<> f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    MvMemoryClip* other = f.clip(1, 0, 99);
    IMvAbstractClip* transition = f.timeline.addTransition(clip, IMvTransition::AtStart, 10, QStringLiteral("fade"));
    f.journal.clear();

    f.presenter->rotate90CW(); // nothing selected: the model is not asked
    QVERIFY(f.journal.entries().isEmpty());
    // A transition as the current item: the model is asked, but gets no clip.
    f.timeline.selection()->selectItems({ transition, clip });
    const QString untouched = f.snapshot();
    f.presenter->rotate90CCW();
    QCOMPARE(f.journal.entries(), QStringList({ QStringLiteral("model:rotateClip90CCW") }));
    QCOMPARE(f.snapshot(), untouched);

    // The current item only.
    f.select({ clip, other });
    const QString before = f.snapshot();
    f.presenter->rotate90CCW();
    QCOMPARE(QList<int>({ clip->rotation(), other->rotation() }), QList<int>({ 270, 0 }));
    QCOMPARE(f.undoOneStep(before), QStringLiteral("rotate clip"));
}

void tst_MvTimelinePresenterItems::removeSelectedFreezeFrame()
{
    MvEditFixture<MvRecordingTimeline, HostPresenter> f;
    // What a host inserts when it makes a freeze frame, unless it says otherwise.
    QCOMPARE(f.presenter->defaultFreezeFrameDuration(), qint64(125));
    MvMemoryClip* clip = f.clip(0, 0, 99);
    MvMemoryClip* other = f.clip(1, 0, 99);
    clip->addFreezeFrame(7, 10);
    other->addFreezeFrame(8, 10);
    const QString before = f.snapshot();

    // Refused: no clip selected, no sub-item selected, a freeze frame of another clip.
    f.timeline.subItemSelection()->select(7);
    QVERIFY(!f.presenter->removeSelectedFreezeFrame());
    f.select({ clip });
    f.timeline.subItemSelection()->clear();
    QVERIFY(!f.presenter->removeSelectedFreezeFrame());
    f.timeline.subItemSelection()->select(8);
    QVERIFY(!f.presenter->removeSelectedFreezeFrame());
    QCOMPARE(f.withoutView(f.snapshot()), f.withoutView(before));

    f.timeline.subItemSelection()->select(7);
    f.journal.clear();
    QVERIFY(f.presenter->removeSelectedFreezeFrame());
    // The selection never names a freeze frame that is gone, not even while it goes.
    QCOMPARE(f.journalText(), QStringLiteral("subItems:clear model:removeFreezeFrame"));
    QVERIFY(!clip->freezeFrames()->contains(7));
    QVERIFY(other->freezeFrames()->contains(8));
    QCOMPARE(f.undoOneStep(before), QStringLiteral("remove freeze frame"));
}

void tst_MvTimelinePresenterItems::removeSelectedSmartKeyingNode()
{
    MvEditFixture<> f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    f.select({ clip });
    QString before = f.snapshot();
    QVERIFY(!f.presenter->removeSelectedSmartKeyingNode()); // no clip shows nodes
    QCOMPARE(f.snapshot(), before);

    clip->setSmartKeyingNodeCount(3);
    before = f.snapshot();
    QVERIFY(!f.presenter->removeSelectedSmartKeyingNode()); // no node selected
    QCOMPARE(f.snapshot(), before);

    clip->smartKeyingNodes()->setSelectedIndex(1);
    QVERIFY(f.presenter->removeSelectedSmartKeyingNode());
    QCOMPARE(clip->smartKeyingNodes()->count(), 2);
    QCOMPARE(f.undoOneStep(before), QStringLiteral("remove smart keying node"));
}

void tst_MvTimelinePresenterItems::itemCommandsWalkBackAndForth()
{
    MvEditFixture<> f;
    MvMemoryClip* clip = f.clip(0, 100, 199);
    clip->addFreezeFrame(7, 10);
    clip->setSmartKeyingNodeCount(2);
    f.select({ clip });
    f.setPlayhead(150);
    f.keepState();
    f.presenter->addMarker(Qt::green); // onto the clip
    f.keepState();
    f.presenter->rotate90CW();
    f.keepState();
    f.presenter->rotate90CW();
    f.keepState();
    f.timeline.markerModel()->setSelectedMarker(clip->clipMarkers()->markerAt(50));
    QVERIFY(f.presenter->removeSelectedMarker());
    f.keepState();
    f.timeline.subItemSelection()->select(7);
    QVERIFY(f.presenter->removeSelectedFreezeFrame());
    f.keepState();
    clip->smartKeyingNodes()->setSelectedIndex(0);
    QVERIFY(f.presenter->removeSelectedSmartKeyingNode());
    f.keepState();
    QCOMPARE(clip->rotation(), 180);
    QCOMPARE(f.walkUndo(),
        QStringLiteral("add marker, rotate clip, rotate clip, remove marker, remove freeze frame, "
                       "remove smart keying node"));
}

QTEST_MAIN(tst_MvTimelinePresenterItems)
#include "tst_MvTimelinePresenterItems.moc"
