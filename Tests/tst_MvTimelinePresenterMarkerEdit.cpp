#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryMarker.h"
#include "Memory/MvMemorySelection.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvBaseLog.h"
#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvMarkerPresenter.h"
#include "MvRecordingScene.h"
#include "MvTextEdit.h"
#include "MvTimelinePresenter.h"

#include <QApplication>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace MVVBLMODEL;

namespace {
// A clip "c" over frames 100..200 on the only track; the timeline runs to frame 999.
struct Project
{
    MvMemoryTimeline timeline;
    MvRecordingScene scene;
    MvTimelinePresenter presenter { nullptr, &timeline };
    MvMemoryClip* clip = nullptr;

    Project()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 99, QStringLiteral("a"));
        clip = timeline.addClip(0, ClipType_Video, 100, 200, QStringLiteral("c"));
        timeline.addClip(0, ClipType_Video, 201, 999, QStringLiteral("b"));
        presenter.setScene(&scene);
    }
    MvMemoryMarker* timelineMarker(qint64 frame, int paletteIndex, const QString& name)
    {
        return timeline.timelineMarkerList()->addNamedMarker(
            frame, MvMarkerPresenter::markerPalette().at(paletteIndex), name);
    }
    MvMemoryMarker* clipMarker(qint64 ownFrame, const QString& name)
    {
        auto* list = static_cast<MvMemoryMarkerList*>(clip->clipMarkers());
        return list->addNamedMarker(ownFrame, MvMarkerPresenter::markerPalette().at(1), name);
    }
    void playheadAt(qint64 frame) { timeline.playhead()->setCurrentFrame(frame); }
    int undoCount() const { return timeline.undoRedoService()->undoCount(); }
};

// What the test saw of the dialog, and what it did there.
struct DialogScript
{
    std::function<void(MvMarkerEditDialog*)> action;
    bool opened = false;
    QString name;
    QString comment;
    QString time;
    int colorIndex = -2;
    QList<QColor> colors;
    QWidget* parent = nullptr;
};

// Arms a one-shot timer that acts on the modal dialog once editMarker has opened it; when no
// dialog opens, the timer finds none and records that.
void arm(DialogScript& script)
{
    QTimer::singleShot(0, [&script]() {
        auto* dialog = qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        script.opened = true;
        MvMarkerEditPanel* panel = dialog->panel();
        script.name = panel->nameEdit()->toPlainText();
        script.comment = panel->commentEdit()->toPlainText();
        script.time = panel->timeValueLabel()->text();
        script.colorIndex = panel->colorRow()->selectedIndex();
        script.colors = panel->colorRow()->colors();
        script.parent = dialog->parentWidget();
        script.action(dialog);
    });
}

void clickOk(MvMarkerEditDialog* dialog)
{
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
}

void editEverything(MvMarkerEditDialog* dialog)
{
    MvMarkerEditPanel* panel = dialog->panel();
    panel->nameEdit()->selectAll();
    QTest::keyClicks(panel->nameEdit(), QStringLiteral("Chorus"));
    panel->commentEdit()->selectAll();
    QTest::keyClicks(panel->commentEdit(), QStringLiteral("louder"));
    QTest::mouseClick(panel->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell3")), Qt::LeftButton);
    clickOk(dialog);
}
}

class tst_MvTimelinePresenterMarkerEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogShowsTheMarkerUnderThePlayhead();
    void okAppliesNameColourAndCommentAsOneStep();
    void deleteRemovesTheMarkerAsOneStep();
    void closingChangesNothing();
    void okWithoutChangesLeavesNoStep();
    void listIsChosenLikeAddMarker_data();
    void listIsChosenLikeAddMarker();
    void noMarkerUnderThePlayheadOpensNothing();
    void colourOutsideThePaletteShowsNoSwatch();
    void timeCodeFollowsTheRulerRate_data();
    void timeCodeFollowsTheRulerRate();
    void dialogIsParentedToTheMainWindow();
};

void tst_MvTimelinePresenterMarkerEdit::dialogShowsTheMarkerUnderThePlayhead()
{
    Project project;
    IMvMarker* marker = project.timelineMarker(300, 2, QStringLiteral("Verse"));
    marker->setComment(QStringLiteral("slow"));
    project.playheadAt(300);
    DialogScript script;
    script.action = [](MvMarkerEditDialog* dialog) { QTest::mouseClick(dialog->closeButton(), Qt::LeftButton); };
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    QCOMPARE(script.name, QStringLiteral("Verse"));
    QCOMPARE(script.comment, QStringLiteral("slow"));
    QCOMPARE(script.colorIndex, 2);
    QCOMPARE(script.colors, MvMarkerPresenter::markerPalette());
    QCOMPARE(script.time, QStringLiteral("00:00:10:00")); // frame 300 at 30 fps
    // The player is paused before the editor opens.
    QCOMPARE(project.scene.ids(), QList<int>({ 7012 }));
}

void tst_MvTimelinePresenterMarkerEdit::okAppliesNameColourAndCommentAsOneStep()
{
    Project project;
    IMvMarker* marker = project.timelineMarker(300, 2, QStringLiteral("Verse"));
    project.playheadAt(300);
    const QString before = project.timeline.stateText();
    const int steps = project.undoCount();
    DialogScript script;
    script.action = editEverything;
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    QCOMPARE(marker->name(), QStringLiteral("Chorus"));
    QCOMPARE(marker->comment(), QStringLiteral("louder"));
    QCOMPARE(marker->color(), MvMarkerPresenter::markerPalette().at(3));
    QCOMPARE(project.undoCount(), steps + 1);
    QCOMPARE(project.timeline.undoRedoService()->undoName(), QStringLiteral("edit marker"));
    QCOMPARE(
        project.timeline.undoRedoService()->undoSource(), QStringLiteral("MvTimelinePresenterPrivate::editMarker"));
    QCOMPARE(project.timeline.checkInvariants(), QString());

    QVERIFY(project.timeline.undoRedoService()->undo());
    QCOMPARE(project.timeline.stateText(), before);
    QCOMPARE(marker->name(), QStringLiteral("Verse"));
    QCOMPARE(marker->color(), MvMarkerPresenter::markerPalette().at(2));
}

void tst_MvTimelinePresenterMarkerEdit::deleteRemovesTheMarkerAsOneStep()
{
    Project project;
    IMvMarker* marker = project.timelineMarker(300, 2, QStringLiteral("Verse"));
    project.timelineMarker(310, 0, QStringLiteral("Other"));
    project.playheadAt(300);
    const QString before = project.timeline.stateText();
    const int steps = project.undoCount();
    DialogScript script;
    script.action = [](MvMarkerEditDialog* dialog) { QTest::mouseClick(dialog->deleteButton(), Qt::LeftButton); };
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    IMvMarkerList* list = project.timeline.timelineMarkers();
    QCOMPARE(list->markerAt(300), nullptr);
    QCOMPARE(list->markers().size(), 1);
    QCOMPARE(project.undoCount(), steps + 1);
    QCOMPARE(project.timeline.undoRedoService()->undoName(), QStringLiteral("edit marker"));
    QCOMPARE(project.timeline.checkInvariants(), QString());
    QVERIFY(project.timeline.undoRedoService()->undo());
    QCOMPARE(project.timeline.stateText(), before);
    QCOMPARE(list->markerAt(300), marker);
}

void tst_MvTimelinePresenterMarkerEdit::closingChangesNothing()
{
    Project project;
    project.timelineMarker(300, 2, QStringLiteral("Verse"));
    project.playheadAt(300);
    const QString before = project.timeline.stateText();
    const int steps = project.undoCount();
    DialogScript script;
    script.action = [](MvMarkerEditDialog* dialog) {
        MvMarkerEditPanel* panel = dialog->panel();
        QTest::keyClicks(panel->nameEdit(), QStringLiteral(" edited"));
        QTest::mouseClick(panel->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell5")), Qt::LeftButton);
        QTest::mouseClick(dialog->closeButton(), Qt::LeftButton);
    };
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    QCOMPARE(project.timeline.stateText(), before);
    QCOMPARE(project.undoCount(), steps);
}

void tst_MvTimelinePresenterMarkerEdit::okWithoutChangesLeavesNoStep()
{
    Project project;
    project.timelineMarker(300, 2, QStringLiteral("Verse"));
    project.playheadAt(300);
    const QString before = project.timeline.stateText();
    const int steps = project.undoCount();
    DialogScript script;
    script.action = clickOk;
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    QCOMPARE(project.timeline.stateText(), before);
    QCOMPARE(project.undoCount(), steps);
    QVERIFY(!project.timeline.undoRedoService()->isStepOpen());
}

void tst_MvTimelinePresenterMarkerEdit::listIsChosenLikeAddMarker_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<QString>("edited");
    // A timeline marker "T" at every frame used, and a clip marker "C" at the clip's own frame
    // under the playhead.
    QTest::newRow("nothing selected") << QStringLiteral("none") << qint64(150) << QStringLiteral("T");
    QTest::newRow("clip selected, playhead on it") << QStringLiteral("clip") << qint64(150) << QStringLiteral("C");
    QTest::newRow("clip selected, on its last frame") << QStringLiteral("clip") << qint64(200) << QStringLiteral("C");
    QTest::newRow("clip selected, playhead after it") << QStringLiteral("clip") << qint64(201) << QStringLiteral("T");
    QTest::newRow("clip selected, timeline flag")
        << QStringLiteral("clip+timeline") << qint64(150) << QStringLiteral("T");
    QTest::newRow("two clips selected") << QStringLiteral("two") << qint64(150) << QStringLiteral("T");
}

void tst_MvTimelinePresenterMarkerEdit::listIsChosenLikeAddMarker()
{
    QFETCH(QString, selection);
    QFETCH(qint64, playhead);
    QFETCH(QString, edited);
    Project project;
    project.timelineMarker(playhead, 0, QStringLiteral("T"));
    if (playhead <= 200)
        project.clipMarker(playhead - 100, QStringLiteral("C"));
    IMvSelection* select = project.timeline.selection();
    if (selection == QLatin1String("clip") || selection == QLatin1String("clip+timeline"))
        select->select({ project.clip });
    if (selection == QLatin1String("clip+timeline"))
        select->setTimelineSelected(true);
    if (selection == QLatin1String("two"))
        select->select({ project.clip, project.timeline.liveClips().first() });
    project.playheadAt(playhead);

    DialogScript script;
    script.action = clickOk;
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    QCOMPARE(script.name, edited);
}

void tst_MvTimelinePresenterMarkerEdit::noMarkerUnderThePlayheadOpensNothing()
{
    Project project;
    project.timelineMarker(300, 2, QStringLiteral("Verse"));
    project.clipMarker(50, QStringLiteral("C"));
    project.playheadAt(301);
    MvLogCapture log;
    DialogScript script;
    script.action = clickOk;
    arm(script);
    project.presenter.editMarker();
    QCoreApplication::processEvents(); // the armed timer finds no dialog
    QVERIFY(!script.opened);
    const QList<MvLogRecord> records = log.find(QStringLiteral("no marker at playhead"));
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().level, 16);
    QCOMPARE(records.first().function, QStringLiteral("MvTimelinePresenterPrivate::editMarker"));
    QVERIFY(project.scene.ids().isEmpty());

    // A single selected item that is not a clip takes no marker, so none is edited either, even
    // with a timeline marker under the playhead.
    MvMemoryTransition* transition
        = project.timeline.addTransition(project.clip, IMvTransition::AtEnd, 10, QStringLiteral("fade"));
    QVERIFY(transition);
    project.timeline.selection()->selectItems({ transition });
    project.playheadAt(300);
    DialogScript second;
    second.action = clickOk;
    arm(second);
    project.presenter.editMarker();
    QCoreApplication::processEvents();
    QVERIFY(!second.opened);
    QCOMPARE(log.find(QStringLiteral("no marker at playhead")).size(), 2);

    MvTimelinePresenter noTimeline(nullptr, nullptr);
    noTimeline.editMarker();
    QCOMPARE(log.find(QStringLiteral("playhead is null")).size(), 1);
}

void tst_MvTimelinePresenterMarkerEdit::colourOutsideThePaletteShowsNoSwatch()
{
    Project project;
    IMvMarker* marker = project.timelineMarker(300, 2, QStringLiteral("Verse"));
    marker->setColor(QColor(1, 2, 3));
    project.playheadAt(300);
    const int steps = project.undoCount();
    DialogScript script;
    script.action = clickOk;
    arm(script);
    project.presenter.editMarker();
    QCOMPARE(script.colorIndex, -1);
    // OK with no swatch picked keeps the marker's own colour.
    QCOMPARE(marker->color(), QColor(1, 2, 3));
    QCOMPARE(project.undoCount(), steps);
}

void tst_MvTimelinePresenterMarkerEdit::timeCodeFollowsTheRulerRate_data()
{
    QTest::addColumn<int>("numerator");
    QTest::addColumn<int>("denominator");
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<QString>("time");
    QTest::newRow("25 fps") << 25 << 1 << qint64(3724) << QStringLiteral("00:02:28:24");
    QTest::newRow("30 fps, frame 0") << 30 << 1 << qint64(0) << QStringLiteral("00:00:00:00");
    QTest::newRow("29.97 counts as 30") << 30000 << 1001 << qint64(1799) << QStringLiteral("00:00:59:29");
    QTest::newRow("24 fps, past an hour") << 24 << 1 << qint64(86400 + 24 * 61 + 5) << QStringLiteral("01:01:01:05");
}

void tst_MvTimelinePresenterMarkerEdit::timeCodeFollowsTheRulerRate()
{
    QFETCH(int, numerator);
    QFETCH(int, denominator);
    QFETCH(qint64, frame);
    QFETCH(QString, time);
    Project project;
    project.timeline.addClip(0, ClipType_Video, 1000, 99999, QStringLiteral("long"));
    project.timeline.ruler()->setFrameRate(numerator, denominator);
    project.timelineMarker(frame, 0, QStringLiteral("M"));
    project.playheadAt(frame);
    DialogScript script;
    script.action = clickOk;
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    QCOMPARE(script.time, time);
}

void tst_MvTimelinePresenterMarkerEdit::dialogIsParentedToTheMainWindow()
{
    QMainWindow window;
    window.show();
    Project project;
    project.clipMarker(20, QStringLiteral("C"));
    project.timeline.selection()->select({ project.clip });
    project.playheadAt(120);
    DialogScript script;
    script.action = clickOk;
    arm(script);
    project.presenter.editMarker();
    QVERIFY(script.opened);
    QCOMPARE(script.parent, &window);
    QCOMPARE(script.time, QStringLiteral("00:00:04:00")); // the clip marker's timeline frame, 120
}

QTEST_MAIN(tst_MvTimelinePresenterMarkerEdit)
#include "tst_MvTimelinePresenterMarkerEdit.moc"
