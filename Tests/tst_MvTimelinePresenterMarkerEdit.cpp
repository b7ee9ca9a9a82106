#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryMarker.h"
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
using Action = std::function<void(MvMarkerEditDialog*)>;

Q_DECLARE_METATYPE(Action)

namespace {
QColor palette(int index)
{
    return MvMarkerPresenter::markerPalette().at(index);
}

// What the dialog showed; nothing when editMarker opened none.
struct Shown
{
    bool opened = false;
    QString name;
    QString comment;
    QString time;
    int colorIndex = -2;
    QList<QColor> colors;
    QWidget* parent = nullptr;
};

void click(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

// A clip "c" over frames 100..200 between two others; the timeline runs to frame 999.
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
    MvMemoryMarker* timelineMarker(qint64 frame, const QString& name, const QColor& color = palette(2))
    {
        return timeline.timelineMarkerList()->addNamedMarker(frame, color, name);
    }
    // Runs editMarker; the action works the modal dialog once it is up.
    Shown edit(const Action& action)
    {
        Shown shown;
        QTimer::singleShot(0, [&shown, &action]() {
            auto* dialog = qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            MvMarkerEditPanel* panel = dialog->panel();
            shown = { true, panel->nameEdit()->toPlainText(), panel->commentEdit()->toPlainText(),
                panel->timeValueLabel()->text(), panel->colorRow()->selectedIndex(), panel->colorRow()->colors(),
                dialog->parentWidget() };
            action(dialog);
        });
        presenter.editMarker();
        QCoreApplication::processEvents(); // lets the timer find no dialog when none opened
        return shown;
    }
};

const Action clickOk = [](MvMarkerEditDialog* dialog) { click(dialog->okButton()); };
}

class tst_MvTimelinePresenterMarkerEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogShowsTheMarkerUnderThePlayhead_data();
    void dialogShowsTheMarkerUnderThePlayhead();
    void outcomeIsOneUndoStepOrNone_data();
    void outcomeIsOneUndoStepOrNone();
    void listIsChosenLikeAddMarker_data();
    void listIsChosenLikeAddMarker();
    void withoutAMarkerNothingOpens();
};

void tst_MvTimelinePresenterMarkerEdit::dialogShowsTheMarkerUnderThePlayhead_data()
{
    QTest::addColumn<int>("numerator");
    QTest::addColumn<int>("denominator");
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<QString>("time");
    QTest::newRow("30 fps") << 30 << 1 << qint64(300) << QStringLiteral("00:00:10:00");
    QTest::newRow("29.97 counts as 30") << 30000 << 1001 << qint64(1799) << QStringLiteral("00:00:59:29");
    QTest::newRow("24 fps, past an hour") << 24 << 1 << qint64(86400 + 24 * 61 + 5) << QStringLiteral("01:01:01:05");
}

void tst_MvTimelinePresenterMarkerEdit::dialogShowsTheMarkerUnderThePlayhead()
{
    QFETCH(int, numerator);
    QFETCH(int, denominator);
    QFETCH(qint64, frame);
    QFETCH(QString, time);
    Project p;
    p.timeline.addClip(0, ClipType_Video, 1000, 99999, QStringLiteral("long"));
    p.timeline.ruler()->setFrameRate(numerator, denominator);
    p.timelineMarker(frame, QStringLiteral("Verse"))->setComment(QStringLiteral("slow"));
    p.timeline.playhead()->setCurrentFrame(frame);
    const Shown shown = p.edit(clickOk);
    QCOMPARE(shown.name, QStringLiteral("Verse"));
    QCOMPARE(shown.comment, QStringLiteral("slow"));
    QCOMPARE(shown.colorIndex, 2);
    QCOMPARE(shown.colors, MvMarkerPresenter::markerPalette());
    QCOMPARE(shown.time, time);
    QCOMPARE(p.scene.ids(), QList<int>({ 7012 })); // the player is paused first
}

void tst_MvTimelinePresenterMarkerEdit::outcomeIsOneUndoStepOrNone_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("after"); // name, comment and colour of the marker at 300
    QTest::addColumn<int>("steps");
    const QString kept = QStringLiteral("Verse slow ") + palette(2).name();
    QTest::newRow("OK applies every field") << palette(2) << Action([](MvMarkerEditDialog* dialog) {
        MvMarkerEditPanel* panel = dialog->panel();
        panel->nameEdit()->selectAll();
        QTest::keyClicks(panel->nameEdit(), QStringLiteral("Chorus"));
        panel->commentEdit()->selectAll();
        QTest::keyClicks(panel->commentEdit(), QStringLiteral("louder"));
        click(panel->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell3")));
        click(dialog->okButton());
    }) << QStringLiteral("Chorus louder ") + palette(3).name()
                                            << 1;
    QTest::newRow("DELETE removes it") << palette(2)
                                       << Action([](MvMarkerEditDialog* dialog) { click(dialog->deleteButton()); })
                                       << QString() << 1;
    QTest::newRow("closing drops the edits") << palette(2) << Action([](MvMarkerEditDialog* dialog) {
        QTest::keyClicks(dialog->panel()->nameEdit(), QStringLiteral(" edited"));
        click(dialog->panel()->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell5")));
        click(dialog->closeButton());
    }) << kept << 0;
    QTest::newRow("OK without changes") << palette(2) << clickOk << kept << 0;
    QTest::newRow("OK keeps a colour off the palette")
        << QColor(1, 2, 3) << clickOk << QStringLiteral("Verse slow #010203") << 0;
}

void tst_MvTimelinePresenterMarkerEdit::outcomeIsOneUndoStepOrNone()
{
    QFETCH(QColor, color);
    QFETCH(Action, action);
    QFETCH(QString, after);
    QFETCH(int, steps);
    Project p;
    p.timelineMarker(300, QStringLiteral("Verse"), color)->setComment(QStringLiteral("slow"));
    p.timelineMarker(310, QStringLiteral("Other"));
    p.timeline.playhead()->setCurrentFrame(300);
    IMvUndoRedoService* undo = p.timeline.undoRedoService();
    const QString before = p.timeline.stateText();
    const int undoCount = undo->undoCount();
    QCOMPARE(p.edit(action).colorIndex, MvMarkerPresenter::markerPaletteIndex(color));
    IMvMarker* marker = p.timeline.timelineMarkers()->markerAt(300);
    QCOMPARE(
        marker ? QStringLiteral("%1 %2 %3").arg(marker->name(), marker->comment(), marker->color().name()) : QString(),
        after);
    QCOMPARE(undo->undoCount(), undoCount + steps);
    QVERIFY(!p.timeline.undoRedoService()->isStepOpen());
    QCOMPARE(p.timeline.checkInvariants(), QString());
    if (steps == 1) {
        QCOMPARE(undo->undoName(), QStringLiteral("edit marker"));
        QCOMPARE(undo->undoSource(), QStringLiteral("MvTimelinePresenterPrivate::editMarker"));
        QVERIFY(undo->undo());
    }
    QCOMPARE(p.timeline.stateText(), before);
}

void tst_MvTimelinePresenterMarkerEdit::listIsChosenLikeAddMarker_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<QString>("edited"); // name and time of the marker edited; empty when none is
    QTest::newRow("nothing selected") << QString() << qint64(150) << QStringLiteral("T 00:00:05:00");
    QTest::newRow("clip selected, playhead on it")
        << QStringLiteral("clip") << qint64(150) << QStringLiteral("C 00:00:05:00");
    QTest::newRow("clip selected, on its last frame")
        << QStringLiteral("clip") << qint64(200) << QStringLiteral("C 00:00:06:20");
    QTest::newRow("clip selected, playhead after it")
        << QStringLiteral("clip") << qint64(201) << QStringLiteral("T 00:00:06:21");
    QTest::newRow("clip selected, timeline flag")
        << QStringLiteral("clip+timeline") << qint64(150) << QStringLiteral("T 00:00:05:00");
    QTest::newRow("two clips selected") << QStringLiteral("two") << qint64(150) << QStringLiteral("T 00:00:05:00");
    QTest::newRow("transition selected") << QStringLiteral("transition") << qint64(150) << QString();
}

// A timeline marker "T" and, on the clip, a clip marker "C" stand under the playhead. The time
// shown for a clip marker is its frame on the timeline.
void tst_MvTimelinePresenterMarkerEdit::listIsChosenLikeAddMarker()
{
    QFETCH(QString, selection);
    QFETCH(qint64, playhead);
    QFETCH(QString, edited);
    QMainWindow window;
    window.show();
    Project p;
    p.timelineMarker(playhead, QStringLiteral("T"));
    auto* clipMarkers = static_cast<MvMemoryMarkerList*>(p.clip->clipMarkers());
    if (playhead <= 200)
        clipMarkers->addNamedMarker(playhead - 100, palette(1), QStringLiteral("C"));
    IMvSelection* select = p.timeline.selection();
    if (selection.startsWith(QLatin1String("clip")))
        select->select({ p.clip });
    select->setTimelineSelected(selection == QLatin1String("clip+timeline"));
    if (selection == QLatin1String("two"))
        select->select({ p.clip, p.timeline.liveClips().first() });
    if (selection == QLatin1String("transition"))
        select->selectItems({ p.timeline.addTransition(p.clip, IMvTransition::AtEnd, 10, QStringLiteral("fade")) });
    p.timeline.playhead()->setCurrentFrame(playhead);
    const Shown shown = p.edit(clickOk);
    QCOMPARE(shown.opened ? shown.name + QLatin1Char(' ') + shown.time : QString(), edited);
    QCOMPARE(shown.parent, shown.opened ? &window : nullptr);
}

void tst_MvTimelinePresenterMarkerEdit::withoutAMarkerNothingOpens()
{
    Project p;
    p.timelineMarker(300, QStringLiteral("Verse"));
    p.timeline.playhead()->setCurrentFrame(301);
    MvLogCapture log;
    QVERIFY(!p.edit(clickOk).opened);
    const QList<MvLogRecord> records = log.find(QStringLiteral("no marker at playhead"));
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().level, 16);
    QCOMPARE(records.first().function, QStringLiteral("MvTimelinePresenterPrivate::editMarker"));
    QVERIFY(p.scene.ids().isEmpty());
    MvTimelinePresenter noTimeline(nullptr, nullptr);
    noTimeline.editMarker();
    QCOMPARE(log.find(QStringLiteral("playhead is null")).size(), 1);
}

QTEST_MAIN(tst_MvTimelinePresenterMarkerEdit)
#include "tst_MvTimelinePresenterMarkerEdit.moc"
