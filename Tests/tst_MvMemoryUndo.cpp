#include "IMvSelection.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "Memory/MvSampleProject.h"

#include <QtTest>

#include <functional>

using namespace MVVBLMODEL;

namespace {
MvMemoryClip* clipNamed(const MvMemoryTimeline& timeline, const QString& name)
{
    const QList<MvMemoryClip*> clips = timeline.liveClips();
    for (MvMemoryClip* clip : clips) {
        if (clip->name() == name)
            return clip;
    }
    return nullptr;
}

struct Command
{
    QString stepName;
    std::function<bool(MvMemoryTimeline&)> run;
};
}

class tst_MvMemoryUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walkTheStackBackAndForth();
    void emptyStepsAreDropped();
    void nestedStepsJoinTheOutermost();
    void editOutsideAStepIsAStepOfItsOwn();
    void newEditDropsTheRedoSide();
    void undoIsRefusedWhileAStepIsOpen();
    void buildingOutsideAStepClearsTheHistory();
    void pointersStayValidAcrossUndo();
};

// Every command of the model, one after the other; then undo to the start and redo to the end,
// comparing the whole state with the one recorded after each command.
void tst_MvMemoryUndo::walkTheStackBackAndForth()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    timeline.playhead()->setCurrentFrame(0);
    const QList<MvEffectPropertyBaseInfo> transform { MvEffectPropertyBaseInfo {
        PropertyGroup_Transform, QString(), false, -1, 3 } };
    const QString street = QStringLiteral("Market street");
    const QString boats = QStringLiteral("Fishing boats");
    const QList<Command> commands {
        { QStringLiteral("split"),
            [&](MvMemoryTimeline& t) {
                QList<IMvClip*> pieces;
                t.splitClips(pieces, { clipNamed(t, street) }, 30 * 30);
                return pieces.size() == 1;
            } },
        { QStringLiteral("trim start"),
            [&](MvMemoryTimeline& t) { return t.trimStartToFrame(clipNamed(t, boats), 60 * 30); } },
        { QStringLiteral("trim end"),
            [&](MvMemoryTimeline& t) { return t.trimEndToFrame(clipNamed(t, boats), 85 * 30); } },
        { QStringLiteral("delete clips"),
            [&](MvMemoryTimeline& t) { return t.deleteClips({ clipNamed(t, QStringLiteral("Seagull")) }); } },
        { QStringLiteral("ripple delete clips"),
            [&](MvMemoryTimeline& t) { return t.rippleDeleteClips({ clipNamed(t, QStringLiteral("Old map")) }); } },
        { QStringLiteral("move clips"),
            [&](MvMemoryTimeline& t) { return t.moveClips({ clipNamed(t, QStringLiteral("Logo")) }, { -1 }, 15, 2); } },
        { QStringLiteral("group"),
            [&](MvMemoryTimeline& t) {
                t.editService()->group(
                    { clipNamed(t, QStringLiteral("Lower third")), clipNamed(t, QStringLiteral("Logo")) }, 2);
                return clipNamed(t, QStringLiteral("Logo"))->groupKind() == 2;
            } },
        { QStringLiteral("add marker"),
            [&](MvMemoryTimeline& t) {
                t.timelineMarkers()->addMarker(33, Qt::yellow);
                return t.timelineMarkers()->markerAt(33) != nullptr;
            } },
        { QStringLiteral("edit marker"),
            [&](MvMemoryTimeline& t) {
                t.timelineMarkers()->markerAt(33)->setName(QStringLiteral("cue"));
                return t.timelineMarkers()->markerAt(33)->name() == QStringLiteral("cue");
            } },
        { QStringLiteral("add key frame"),
            [&](MvMemoryTimeline& t) { return clipNamed(t, street)->addKeyFrame(false, 12, transform); } },
        { QStringLiteral("rotate clip"),
            [&](MvMemoryTimeline& t) {
                t.rotateClip90CW(clipNamed(t, street));
                return clipNamed(t, street)->rotation() == 90;
            } },
        { QStringLiteral("remove marker"),
            [&](MvMemoryTimeline& t) {
                t.timelineMarkers()->removeMarker(t.timelineMarkers()->markerAt(33));
                return t.timelineMarkers()->markerAt(33) == nullptr;
            } },
    };

    IMvUndoRedoService* undo = timeline.undoRedoService();
    QStringList states { timeline.stateText() };
    for (const Command& command : commands) {
        QVERIFY2(command.run(timeline), qPrintable(command.stepName));
        QCOMPARE(timeline.checkInvariants(), QString());
        QCOMPARE(undo->undoName(), command.stepName);
        QVERIFY2(timeline.stateText() != states.last(), qPrintable(command.stepName));
        states.append(timeline.stateText());
    }
    QCOMPARE(undo->undoCount(), commands.size());
    for (int i = commands.size() - 1; i >= 0; --i) {
        QCOMPARE(undo->undoName(), commands.at(i).stepName);
        QVERIFY(undo->undo());
        QCOMPARE(timeline.stateText(), states.at(i));
        QCOMPARE(timeline.checkInvariants(), QString());
    }
    QVERIFY(!undo->canUndo());
    QVERIFY(!undo->undo());
    for (int i = 0; i < commands.size(); ++i) {
        QCOMPARE(undo->redoName(), commands.at(i).stepName);
        QVERIFY(undo->redo());
        QCOMPARE(timeline.stateText(), states.at(i + 1));
        QCOMPARE(timeline.checkInvariants(), QString());
    }
    QVERIFY(!undo->redo());
}

void tst_MvMemoryUndo::emptyStepsAreDropped()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    IMvUndoRedoService* undo = timeline.undoRedoService();
    {
        MvUndoRedoCommander step(undo, QStringLiteral("nothing"), QStringLiteral("test"));
        timeline.rotateClip90CW(nullptr);
        QVERIFY(!timeline.trimStartToFrame(clipNamed(timeline, QStringLiteral("Logo")), 0));
        timeline.selection()->select({ timeline.liveClips().at(0), timeline.liveClips().at(1) });
    }
    QCOMPARE(undo->undoCount(), 0);
    QVERIFY(!timeline.moveClips({ clipNamed(timeline, QStringLiteral("Logo")) }, { 0 }, -1000000, 2));
    timeline.trackAt(0)->setHeight(90);
    QCOMPARE(undo->undoCount(), 0);
    QCOMPARE(timeline.trackAt(0)->height(), 90);
}

void tst_MvMemoryUndo::nestedStepsJoinTheOutermost()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    IMvUndoRedoService* undo = timeline.undoRedoService();
    const QString before = timeline.stateText();
    MvMemoryClip* logo = clipNamed(timeline, QStringLiteral("Logo"));
    {
        MvUndoRedoCommander outer(undo, QStringLiteral("outer"), QStringLiteral("tst::outer"));
        {
            MvUndoRedoCommander inner(undo, QStringLiteral("inner"), QStringLiteral("tst::inner"));
            QVERIFY(timeline.trimEndToFrame(logo, logo->start() + 10));
        }
        QVERIFY(undo->isStepOpen());
        timeline.rotateClip90CCW(logo);
    }
    QVERIFY(!undo->isStepOpen());
    QCOMPARE(undo->undoCount(), 1);
    QCOMPARE(undo->undoName(), QStringLiteral("outer"));
    QCOMPARE(undo->undoSource(), QStringLiteral("tst::outer"));
    QCOMPARE(logo->rotation(), 270);
    QVERIFY(undo->undo());
    QCOMPARE(timeline.stateText(), before);
}

void tst_MvMemoryUndo::editOutsideAStepIsAStepOfItsOwn()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    MvMemoryUndoService* undo = timeline.undoService();
    MvMemoryClip* logo = clipNamed(timeline, QStringLiteral("Logo"));
    timeline.rotateClip90CW(logo);
    timeline.rotateClip90CW(logo);
    QCOMPARE(undo->undoNames(), (QStringList { QStringLiteral("rotate clip"), QStringLiteral("rotate clip") }));
    QCOMPARE(undo->undoSource(), QStringLiteral("MvMemoryTimeline::rotateClip90CW"));
    QVERIFY(undo->undo());
    QCOMPARE(logo->rotation(), 90);
    QCOMPARE(undo->redoName(), QStringLiteral("rotate clip"));
}

void tst_MvMemoryUndo::newEditDropsTheRedoSide()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    IMvUndoRedoService* undo = timeline.undoRedoService();
    MvMemoryClip* logo = clipNamed(timeline, QStringLiteral("Logo"));
    timeline.rotateClip90CW(logo);
    QVERIFY(undo->undo());
    QVERIFY(undo->canRedo());
    timeline.rotateClip90CCW(logo);
    QVERIFY(!undo->canRedo());
    QCOMPARE(undo->redoCount(), 0);
    QCOMPARE(logo->rotation(), 270);
}

void tst_MvMemoryUndo::undoIsRefusedWhileAStepIsOpen()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    IMvUndoRedoService* undo = timeline.undoRedoService();
    timeline.rotateClip90CW(clipNamed(timeline, QStringLiteral("Logo")));
    undo->beginStep(QStringLiteral("open"), QStringLiteral("test"));
    QVERIFY(!undo->canUndo());
    QVERIFY(!undo->undo());
    undo->endStep();
    undo->endStep(); // one too many: ignored
    QVERIFY(undo->undo());
    QVERIFY(!undo->isStepOpen());
}

void tst_MvMemoryUndo::buildingOutsideAStepClearsTheHistory()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    IMvUndoRedoService* undo = timeline.undoRedoService();
    timeline.rotateClip90CW(clipNamed(timeline, QStringLiteral("Logo")));
    QVERIFY(timeline.addClip(1, ClipType_Image, 0, 29, QStringLiteral("badge")));
    QCOMPARE(undo->undoCount(), 0);

    // Inside a step, building is part of it and undo takes it away again.
    const QString before = timeline.stateText();
    MvMemoryClip* added = nullptr;
    {
        MvUndoRedoCommander step(undo, QStringLiteral("paste"), QStringLiteral("test"));
        added = timeline.addClip(1, ClipType_Image, 30, 59, QStringLiteral("second badge"));
        QVERIFY(timeline.addTransition(added, IMvTransition::AtEnd, 5, QStringLiteral("wipe")));
    }
    QCOMPARE(undo->undoName(), QStringLiteral("paste"));
    QVERIFY(undo->undo());
    QVERIFY(!added->track());
    QVERIFY(added->transitionList()->transitions().isEmpty());
    QCOMPARE(timeline.stateText(), before);
    QVERIFY(undo->redo());
    QCOMPARE(added->trackIndex(), 1);
    QCOMPARE(added->transitionList()->transitions().size(), 1);
    QCOMPARE(timeline.checkInvariants(), QString());
}

void tst_MvMemoryUndo::pointersStayValidAcrossUndo()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    IMvUndoRedoService* undo = timeline.undoRedoService();
    MvMemoryClip* street = clipNamed(timeline, QStringLiteral("Market street"));
    IMvMarker* marker = street->clipMarkers()->markers().first();
    QList<IMvClip*> pieces;
    timeline.splitClips(pieces, { street }, street->start() + 100);
    IMvClip* piece = pieces.first();
    QVERIFY(timeline.deleteClips({ street, piece }));
    timeline.markerModel()->setSelectedMarker(marker);
    QVERIFY(!timeline.markerModel()->selectedMarker());
    QVERIFY(undo->undo());
    QVERIFY(undo->undo());
    QCOMPARE(street->trackIndex(), 2);
    QVERIFY(!piece->track());
    QCOMPARE(street->clipMarkers()->markers().first(), marker);
    timeline.markerModel()->setSelectedMarker(marker);
    QCOMPARE(timeline.markerModel()->selectedMarker(), marker);
    QVERIFY(undo->redo());
    QCOMPARE(piece->trackIndex(), 2);
    QCOMPARE(piece->start(), street->end() + 1);
    QCOMPARE(timeline.checkInvariants(), QString());
}

QTEST_GUILESS_MAIN(tst_MvMemoryUndo)
#include "tst_MvMemoryUndo.moc"
