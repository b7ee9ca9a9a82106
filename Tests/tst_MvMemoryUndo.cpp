#include "Memory/MvMemoryEditService.h"
#include "Memory/MvSampleProject.h"
#include "MvEditFixture.h"

#include <QtTest>

#include <functional>
#include <memory>

using namespace MVVBLMODEL;

class tst_MvMemoryUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void walkTheStackBackAndForth();
    void emptyStepsAreDropped();
    void nestedStepsJoinTheOutermost();
    void pointersStayValidAcrossUndo();

private:
    MvMemoryClip* clip(const char* name) const
    {
        const QList<MvMemoryClip*> clips = timeline->liveClips();
        auto it = std::find_if(clips.begin(), clips.end(), [&](auto* c) { return c->name() == QLatin1String(name); });
        return it == clips.end() ? nullptr : *it;
    }

    std::unique_ptr<MvMemoryTimeline> timeline;
    IMvUndoRedoService* undo = nullptr;
};

void tst_MvMemoryUndo::init()
{
    timeline.reset(new MvMemoryTimeline);
    MvSampleProject::build(*timeline);
    undo = timeline->undoRedoService();
    QCOMPARE(timeline->checkInvariants(), QString());
}

// Every kind of edit, then undo to the start and redo to the end, comparing the whole state each time.
void tst_MvMemoryUndo::walkTheStackBackAndForth()
{
    MvMemoryTimeline& t = *timeline;
    MvMemoryClip* street = clip("Market street");
    MvMemoryClip* logo = clip("Logo");
    const QList<MvEffectPropertyBaseInfo> transform { { PropertyGroup_Transform, QString(), false, -1, 3 } };
    QList<IMvClip*> pieces;
    const QList<QPair<QString, std::function<void()>>> commands {
        { QStringLiteral("split"), [&] { t.splitClips(pieces, { street }, 30 * 30); } },
        { QStringLiteral("trim start"), [&] { t.trimStartToFrame(clip("Fishing boats"), 60 * 30); } },
        { QStringLiteral("delete clips"), [&] { t.deleteClips({ clip("Seagull") }); } },
        { QStringLiteral("ripple delete clips"), [&] { t.rippleDeleteClips({ clip("Old map") }); } },
        { QStringLiteral("move clips"), [&] { t.moveClips({ logo }, { -1 }, 15, 2); } },
        { QStringLiteral("group"),
            [&] {
                t.editService()->group({ clip("Lower third"), logo }, 2);
            } },
        { QStringLiteral("add marker"), [&] { t.timelineMarkers()->addMarker(33, Qt::yellow); } },
        { QStringLiteral("add key frame"), [&] { street->addKeyFrame(false, 12, transform); } },
        { QStringLiteral("rotate clip"), [&] { t.rotateClip90CW(street); } },
    };
    QStringList states { t.stateText() };
    for (const auto& command : commands) {
        command.second();
        QCOMPARE(undo->undoName(), command.first);
        QVERIFY2(t.stateText() != states.last(), qPrintable(command.first));
        states.append(t.stateText());
    }
    for (int i = commands.size() - 1; i >= 0; --i) {
        QCOMPARE(undo->undoName(), commands.at(i).first);
        QVERIFY(undo->undo());
        QCOMPARE(mvStateDiff(t.stateText(), states.at(i)), QString());
        QCOMPARE(t.checkInvariants(), QString());
    }
    QVERIFY(!undo->undo());
    for (int i = 0; i < commands.size(); ++i) {
        QCOMPARE(undo->redoName(), commands.at(i).first);
        QVERIFY(undo->redo());
        QCOMPARE(mvStateDiff(t.stateText(), states.at(i + 1)), QString());
    }
    QVERIFY(!undo->redo());
}

void tst_MvMemoryUndo::emptyStepsAreDropped()
{
    MvMemoryClip* logo = clip("Logo");
    {
        MvUndoRedoCommander step(undo, QStringLiteral("nothing"), QStringLiteral("test"));
        timeline->rotateClip90CW(nullptr);
        QVERIFY(!timeline->trimStartToFrame(logo, 0));
        timeline->selection()->select({ logo }); // neither the selection nor a row's height is an edit
        timeline->trackAt(0)->setHeight(90);
    }
    QCOMPARE(undo->undoCount(), 0);
}

void tst_MvMemoryUndo::nestedStepsJoinTheOutermost()
{
    const QString before = timeline->stateText();
    MvMemoryClip* logo = clip("Logo");
    {
        MvUndoRedoCommander outer(undo, QStringLiteral("outer"), QStringLiteral("tst::outer"));
        {
            MvUndoRedoCommander inner(undo, QStringLiteral("inner"), QStringLiteral("tst::inner"));
            QVERIFY(timeline->trimEndToFrame(logo, logo->start() + 10));
        }
        QVERIFY(!undo->undo()); // refused while a step is open
        timeline->rotateClip90CCW(logo);
    }
    undo->endStep(); // one too many: ignored
    QCOMPARE(undo->undoCount(), 1);
    QCOMPARE(undo->undoSource(), QStringLiteral("tst::outer"));
    QVERIFY(undo->undo());
    QCOMPARE(timeline->stateText(), before);
    timeline->rotateClip90CW(logo); // drops the redo side
    QVERIFY(!undo->canRedo());
}

void tst_MvMemoryUndo::pointersStayValidAcrossUndo()
{
    MvMemoryClip* street = clip("Market street");
    IMvMarker* marker = street->clipMarkers()->markers().first();
    QList<IMvClip*> pieces;
    timeline->splitClips(pieces, { street }, street->start() + 100);
    QCOMPARE(pieces.size(), 1);
    timeline->markerModel()->setSelectedMarker(marker);
    // A marker whose clip left the timeline is no longer selected.
    QVERIFY(timeline->deleteClips({ street, pieces.first() }));
    QVERIFY(!timeline->markerModel()->selectedMarker());
    QVERIFY(undo->undo());
    QVERIFY(undo->undo());
    QVERIFY(!pieces.first()->track());
    timeline->markerModel()->setSelectedMarker(marker);
    QCOMPARE(timeline->markerModel()->selectedMarker(), marker);
    QVERIFY(undo->redo());
    QCOMPARE(pieces.first()->start(), street->end() + 1);
}

QTEST_GUILESS_MAIN(tst_MvMemoryUndo)
#include "tst_MvMemoryUndo.moc"
