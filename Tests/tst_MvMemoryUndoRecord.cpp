#include "IMvClipEditService.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryKeyFrames.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemorySelection.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoRecorder.h"
#include "Memory/MvMemoryUndoService.h"
#include "Memory/MvSampleProject.h"
#include "MvClipHelpers.h"

#include <QtTest>

#include <functional>
#include <memory>

using namespace MVVBLMODEL;

namespace {
const QList<MvEffectPropertyBaseInfo> kTransform { { PropertyGroup_Transform, QStringLiteral("x"), true, 2, 3 } };

// The demo's sample project: rows 0 to 2 picture, 3 and 4 audio; "Harbour at dawn" is linked to
// its sound, "Market street" has a start transition and a marker, "Old map" a freeze frame,
// "Route planner" smart-keying nodes.
struct Sample
{
    std::unique_ptr<MvMemoryTimeline> timeline { new MvMemoryTimeline };
    MvMemoryTimeline& t = *timeline;

    Sample() { MvSampleProject::build(t); }
    MvMemoryClip* clip(const char* name) const
    {
        const QList<MvMemoryClip*> clips = t.liveClips();
        for (MvMemoryClip* clip : clips) {
            if (clip->name() == QLatin1String(name))
                return clip;
        }
        return nullptr;
    }
    MvMemoryUndoRecorder::Capture capture() const { return t.undoRecorder()->capture(); }
    IMvUndoRedoService* undo() const { return t.undoRedoService(); }
};

// One command of each kind the model knows, with the undo steps it makes. Run one after the
// other they still work on what the earlier ones left.
struct Command
{
    int steps;
    std::function<void(Sample&)> run;
};

QMap<QString, Command> clipEdits()
{
    return {
        { QStringLiteral("split linked clips, keys, a start transition and a marker"),
            { 2,
                [](Sample& s) {
                    QList<IMvClip*> pieces;
                    s.t.splitClips(
                        pieces, { s.clip("Harbour at dawn"), s.clip("Harbour at dawn (sound)"), s.clip("Theme") }, 300);
                    s.t.splitClips(pieces, { s.clip("Market street") }, 700);
                } } },
        { QStringLiteral("split moves an end transition made in the step"),
            { 1,
                [](Sample& s) {
                    MvUndoRedoCommander step(s.undo(), QStringLiteral("end transition"), QStringLiteral("test"));
                    MvMemoryClip* screen = s.clip("Route planner");
                    s.t.addTransition(screen, IMvTransition::AtEnd, 90, QStringLiteral("fade"));
                    QList<IMvClip*> pieces;
                    s.t.splitClips(pieces, { screen }, screen->end() - 39);
                } } },
        { QStringLiteral("trim start drops and shifts markers, keys and freeze frames"),
            { 3,
                [](Sample& s) {
                    s.t.trimStartToFrame(s.clip("Market street"), 700);
                    s.t.trimStartToFrame(s.clip("Old map"), 1400);
                    s.t.trimStartToFrame(s.clip("Harbour at dawn"), 60);
                } } },
        { QStringLiteral("trim end shortens a transition"),
            { 1, [](Sample& s) { s.t.trimEndToFrame(s.clip("Market street"), 610); } } },
        { QStringLiteral("delete dissolves a group"),
            { 1, [](Sample& s) { s.t.deleteClips({ s.clip("Harbour at dawn") }); } } },
        { QStringLiteral("ripple delete"), { 1, [](Sample& s) { s.t.rippleDeleteClips({ s.clip("Old map") }); } } },
        { QStringLiteral("move across rows"),
            { 1, [](Sample& s) { s.t.moveClips({ s.clip("Logo") }, { -1 }, 30, 2); } } },
    };
}

QMap<QString, Command> itemEdits()
{
    return {
        { QStringLiteral("group and ungroup"),
            { 2,
                [](Sample& s) {
                    s.t.editService()->group({ s.clip("Logo"), s.clip("Seagull") }, 2);
                    s.t.editService()->ungroup({ s.clip("Harbour at dawn") });
                } } },
        { QStringLiteral("timeline and clip markers"),
            { 4,
                [](Sample& s) {
                    s.t.timelineMarkers()->addMarker(33, QColor(10, 20, 30, 40));
                    IMvMarker* marker = s.t.timelineMarkers()->markerAt(300);
                    marker->setName(QStringLiteral("dawn"));
                    marker->setComment(QStringLiteral("the light"));
                    IMvMarkerList* clipMarkers = s.clip("Market street")->clipMarkers();
                    if (!clipMarkers->markers().isEmpty())
                        clipMarkers->removeMarker(clipMarkers->markers().first());
                } } },
        { QStringLiteral("key frames added, removed and pasted"),
            { 3,
                [](Sample& s) {
                    MvMemoryClip* street = s.clip("Market street");
                    street->addKeyFrame(false, 12, kTransform);
                    s.clip("Theme")->removeKeyFrames(s.clip("Theme")->allKeyFrames(true), true);
                    s.t.keyFrameClipboard()->copy(street, false, street->allKeyFrames(false));
                    s.t.playhead()->setCurrentFrame(2000);
                    s.t.keyFrameClipboard()->paste({ s.clip("Fishing boats") });
                } } },
        { QStringLiteral("freeze frames"),
            { 2,
                [](Sample& s) {
                    s.clip("Old map")->freezeFrames()->remove(1);
                    s.clip("Logo")->addFreezeFrame(7, 5);
                } } },
        { QStringLiteral("clip values"),
            { 6,
                [](Sample& s) {
                    MvMemoryClip* title = s.clip("A day by the sea");
                    s.t.rotateClip90CW(title);
                    title->setEnabled(false);
                    title->setMotionTrackFollower(s.clip("Lower third"));
                    title->setMotionTrackingEnabled(true);
                    s.clip("Route planner")->smartKeyingNodes()->removeAt(1);
                    title->setName(QStringLiteral("Sunrise"));
                } } },
        { QStringLiteral("lock a track"), { 1, [](Sample& s) { s.t.trackAt(1)->setLocked(true); } } },
        { QStringLiteral("remove a transition"),
            { 1,
                [](Sample& s) {
                    MvMemoryClip* street = s.clip("Market street");
                    for (IMvTransition* transition : street->liveTransitions())
                        street->transitionList()->remove(transition->identifier(), transition->placement());
                } } },
    };
}

QMap<QString, Command> stepEdits()
{
    return {
        { QStringLiteral("clip and track made in a step"),
            { 1,
                [](Sample& s) {
                    MvUndoRedoCommander step(s.undo(), QStringLiteral("build"), QStringLiteral("test"));
                    s.t.addTrack(TrackType_Picture)->setLocked(true);
                    s.t.addClip(0, ClipType_Text, 4000, 4099, QStringLiteral("Credits"))
                        ->addKeyFrame(false, 3, kTransform);
                } } },
        { QStringLiteral("nested steps join the outermost"),
            { 1,
                [](Sample& s) {
                    MvUndoRedoCommander outer(s.undo(), QStringLiteral("outer"), QStringLiteral("test"));
                    MvUndoRedoCommander inner(s.undo(), QStringLiteral("inner"), QStringLiteral("test"));
                    QList<IMvClip*> pieces;
                    s.t.splitClips(pieces, { s.clip("Theme") }, 100);
                    s.t.moveClips(pieces, { 0 }, 10, 2);
                    s.t.editService()->group({ pieces.value(0), s.clip("Seagull") }, 3);
                    s.t.deleteClips({ s.clip("Seagull") });
                } } },
        { QStringLiteral("an empty step"),
            { 0,
                [](Sample& s) {
                    MvUndoRedoCommander step(s.undo(), QStringLiteral("nothing"), QStringLiteral("test"));
                    s.t.trackAt(0)->setLocked(false);
                    s.clip("Logo")->setName(QStringLiteral("Logo"));
                    IMvMarker* marker = s.t.timelineMarkers()->markerAt(300);
                    marker->setColor(marker->color());
                } } },
    };
}

QMap<QString, Command> clipboardAndTrackEdits()
{
    return {
        { QStringLiteral("cut and paste what clips carry"),
            { 2,
                [](Sample& s) {
                    s.t.editService()->cut(
                        { s.clip("Harbour at dawn"), s.clip("Harbour at dawn (sound)"), s.clip("Market street") });
                    QList<IMvClip*> pasted;
                    s.t.editService()->paste(3000, -1, pasted, 0, 3);
                } } },
        { QStringLiteral("paste transitions"),
            { 1,
                [](Sample& s) {
                    s.t.editService()->copy({ s.clip("Market street")->liveTransitions().value(0) });
                    QList<IMvTransition*> pasted;
                    s.t.editService()->pasteTransitions(pasted, { s.clip("Fishing boats"), s.clip("Logo") });
                } } },
        { QStringLiteral("track switches and clip mute"),
            { 3,
                [](Sample& s) {
                    s.t.trackAt(3)->setMuted(true);
                    s.t.trackAt(0)->setVisible(false, true);
                    s.clip("Theme")->setMuted(1);
                } } },
        { QStringLiteral("detach audio, add and clear rows, clear remix"),
            { 4,
                [](Sample& s) {
                    s.t.detachAudio(s.clip("Harbour at dawn"), 0);
                    static_cast<IMvTimeline&>(s.t).addTrack(TrackType_Picture, 0);
                    s.t.clearEmptyTracks();
                    MvAudioRemixHelper::clearRemix(s.clip("Theme"));
                } } },
    };
}

const QMap<QString, Command>& commands()
{
    static const QMap<QString, Command> all = [] {
        QMap<QString, Command> both = clipEdits();
        both.insert(itemEdits());
        both.insert(stepEdits());
        both.insert(clipboardAndTrackEdits());
        return both;
    }();
    return all;
}

// Everything but the view state: the dump without the playhead and the selections.
QString modelText(const MvMemoryTimeline& timeline)
{
    QStringList lines = timeline.stateText().section(QLatin1String("\nselection: "), 0, 0).split(QLatin1Char('\n'));
    lines[0] = lines.at(0).section(QLatin1String(" playhead "), 0, 0);
    return lines.join(QLatin1Char('\n'));
}

MvMemoryClip* makeRows(MvMemoryTimeline& timeline, int columns)
{
    for (int row = 0; row < 6; ++row)
        timeline.addTrack(row < 4 ? TrackType_Picture : TrackType_Audio);
    MvMemoryClip* first = nullptr;
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < 6; ++row) {
            MvMemoryClip* clip = timeline.addClip(
                row, row < 4 ? ClipType_Video : ClipType_Audio, column * 40, column * 40 + 29, QStringLiteral("c"));
            first = first ? first : clip;
        }
    }
    timeline.undoService()->clear();
    return first;
}
}

class tst_MvMemoryUndoRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoWritesBackTheFullCapture_data();
    void undoWritesBackTheFullCapture();
    void walkMatchesFullCapturesAtEveryStep();
    void buildingOutsideAStepClearsTheHistory();
    void aStepHoldsWhatItChangedOnly();
    void changesPastTheRecordAreReported();
    void changedFramesAreMarkedForEachDirection();
    void viewStateStaysOutOfUndo();
};

void tst_MvMemoryUndoRecord::undoWritesBackTheFullCapture_data()
{
    QTest::addColumn<QString>("command");
    const QStringList names = commands().keys();
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

// Each step, undone, gives back every value of every object (detached ones included) as a full
// capture saw it before the step; redone, as a full capture saw it after.
void tst_MvMemoryUndoRecord::undoWritesBackTheFullCapture()
{
    QFETCH(QString, command);
    Sample s;
    const MvMemoryUndoRecorder::Capture before = s.capture();
    const QString textBefore = modelText(s.t);
    commands().value(command).run(s);
    const int steps = commands().value(command).steps;
    QCOMPARE(s.undo()->undoCount(), steps);
    QCOMPARE(s.t.checkInvariants(), QString());
    if (steps == 0) {
        QCOMPARE(before.differenceTo(s.capture()), QString());
        return;
    }
    const MvMemoryUndoRecorder::Capture after = s.capture();
    const QString textAfter = modelText(s.t);
    QVERIFY(textAfter != textBefore);
    for (int i = 0; i < steps; ++i)
        QVERIFY(s.undo()->undo());
    QCOMPARE(before.differenceTo(s.capture()), QString());
    QCOMPARE(modelText(s.t), textBefore);
    QCOMPARE(s.t.checkInvariants(), QString());
    for (int i = 0; i < steps; ++i)
        QVERIFY(s.undo()->redo());
    QCOMPARE(after.differenceTo(s.capture()), QString());
    QCOMPARE(modelText(s.t), textAfter);
    QCOMPARE(s.t.checkInvariants(), QString());
}

// Every command after the other, then the whole stack undone and redone: wherever a command left
// the model, the delta undo brings back what a full capture saw there.
void tst_MvMemoryUndoRecord::walkMatchesFullCapturesAtEveryStep()
{
    Sample s;
    QMap<int, MvMemoryUndoRecorder::Capture> captures { { 0, s.capture() } };
    QMap<int, QString> texts { { 0, modelText(s.t) } };
    for (const Command& command : commands()) {
        command.run(s);
        QCOMPARE(s.t.checkInvariants(), QString());
        captures.insert(s.undo()->undoCount(), s.capture());
        texts.insert(s.undo()->undoCount(), modelText(s.t));
    }
    const int steps = s.undo()->undoCount();
    QVERIFY(steps > 20);
    for (int i = steps - 1; i >= 0; --i) {
        QVERIFY(s.undo()->undo());
        if (captures.contains(i)) {
            QCOMPARE(captures.value(i).differenceTo(s.capture()), QString());
            QCOMPARE(modelText(s.t), texts.value(i));
        }
    }
    QVERIFY(!s.undo()->undo());
    for (int i = 1; i <= steps; ++i) {
        QVERIFY(s.undo()->redo());
        if (captures.contains(i))
            QCOMPARE(captures.value(i).differenceTo(s.capture()), QString());
    }
    QCOMPARE(modelText(s.t), texts.value(steps));
    QCOMPARE(s.t.checkInvariants(), QString());
}

// Outside a step a building call is applied unrecorded, and the history no longer describes the
// model; inside one it joins the step.
void tst_MvMemoryUndoRecord::buildingOutsideAStepClearsTheHistory()
{
    Sample s;
    s.t.rotateClip90CW(s.clip("Logo"));
    QCOMPARE(s.undo()->undoCount(), 1);
    MvMemoryClip* added = s.t.addClip(1, ClipType_Image, 4000, 4009, QStringLiteral("late"));
    QVERIFY(added && added->isOnTimeline());
    QCOMPARE(s.undo()->undoCount(), 0);
    QCOMPARE(s.t.checkInvariants(), QString()); // a building call is no stray change
}

// A step keeps the objects it changed, so its size follows the edit, not the timeline.
void tst_MvMemoryUndoRecord::aStepHoldsWhatItChangedOnly()
{
    QList<int> sizes;
    for (int columns : { 10, 1000 }) {
        MvMemoryTimeline timeline;
        makeRows(timeline, columns);
        const QList<MvMemoryClip*> clips = timeline.liveClips();
        QList<IMvClip*> column;
        for (int row = 0; row < 6; ++row)
            column.append(clips.at(row * columns + columns / 2));
        QList<IMvClip*> pieces;
        timeline.splitClips(pieces, column, column.first()->start() + 10);
        QCOMPARE(pieces.size(), 6);
        // The six clips and the six pieces (whose marker lists stay as they were made).
        sizes.append(timeline.undoService()->undoChangeCount());
        timeline.undoRedoService()->undo();
        QCOMPARE(timeline.checkInvariants(), QString());
    }
    QCOMPARE(sizes, (QList<int> { 12, 12 }));
}

void tst_MvMemoryUndoRecord::changesPastTheRecordAreReported()
{
    Sample outside;
    outside.clip("Logo")->change()->rotation = 90;
    QCOMPARE(outside.t.checkInvariants(), QStringLiteral("clip c9: changed outside an undo step"));

    Sample unrecorded;
    MvMemoryClip* logo = unrecorded.clip("Logo");
    {
        MvUndoRedoCommander step(unrecorded.undo(), QStringLiteral("sneaky"), QStringLiteral("test"));
        unrecorded.t.rotateClip90CW(unrecorded.clip("Seagull"));
        MvMemoryClip::State value = logo->state();
        value.name = QStringLiteral("renamed behind the record");
        logo->setStateUnchecked(value);
    }
    const QString problems = unrecorded.t.checkInvariants();
    QVERIFY2(problems.endsWith(QLatin1String(": clip c9 changed without being recorded")), qPrintable(problems));
    QVERIFY(problems.startsWith(QLatin1String("undo step ")));
}

// What a viewer sees of an edit is marked for rendering again when it is made, undone and redone;
// a change of markers only is told but renders nothing.
void tst_MvMemoryUndoRecord::changedFramesAreMarkedForEachDirection()
{
    Sample s;
    MvMemoryRenderService* render = s.t.renderServiceImpl();
    int told = 0;
    s.t.addChangeListener([&told] { ++told; });
    const qint64 end = s.t.duration();
    MvMemoryClip* street = s.clip("Market street");
    const QList<std::function<void()>> directions { [&] { s.t.trimEndToFrame(street, 700); }, [&] { s.undo()->undo(); },
        [&] { s.undo()->redo(); } };
    for (const std::function<void()>& direction : directions) {
        render->markFinished(0, end);
        direction();
        QCOMPARE(render->segmentList(), (QList<MvRenderSegment> { { 0, 599, 0 }, { 600, 1349, 1 }, { 1350, end, 0 } }));
    }
    render->markFinished(0, end);
    street->clipMarkers()->addMarker(3, Qt::red);
    QCOMPARE(render->unfinishedFrames(), qint64(0));
    QCOMPARE(told, 4);
    // A transition renders over its clip.
    IMvTransition* transition = street->liveTransitions().first();
    street->transitionList()->remove(transition->identifier(), transition->placement());
    QCOMPARE(render->segmentList(), (QList<MvRenderSegment> { { 0, 599, 0 }, { 600, 700, 1 }, { 701, end, 0 } }));
}

void tst_MvMemoryUndoRecord::viewStateStaysOutOfUndo()
{
    Sample s;
    MvMemoryClip* logo = s.clip("Logo");
    MvMemoryClip* theme = s.clip("Theme");
    s.t.rotateClip90CW(logo);
    s.t.selection()->select({ logo });
    s.t.playhead()->setCurrentFrame(90);
    s.t.trackAt(1)->setHeight(33);
    s.t.markerModel()->setSelectedMarker(s.t.timelineMarkers()->markerAt(300));
    s.t.subItemSelection()->select(4);
    s.t.keyFrameSelector()->select(theme->allKeyFrames(true));
    const QString view = s.t.stateText().section(QLatin1String("\nselection: "), 1);
    QVERIFY(s.undo()->undo());
    QVERIFY(s.undo()->redo());
    QCOMPARE(s.t.stateText().section(QLatin1String("\nselection: "), 1), view);
    QCOMPARE(s.t.playhead()->currentFrame(), qint64(90));
    QCOMPARE(s.t.trackAt(1)->height(), 33);
    int id = 0;
    QVERIFY(s.t.subItemSelection()->selectedId(id) && id == 4);
    QCOMPARE(s.t.keyFrameSelector()->currentSelection(), theme->allKeyFrames(true));
}

QTEST_GUILESS_MAIN(tst_MvMemoryUndoRecord)
#include "tst_MvMemoryUndoRecord.moc"
