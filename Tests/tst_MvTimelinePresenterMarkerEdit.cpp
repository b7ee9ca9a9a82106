#include "Memory/MvMemoryMarker.h"
#include "MvEditFixture.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvMarkerPresenter.h"
#include "MvTextEdit.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <optional>

using namespace MVVBLMODEL;
using Action = std::function<void(MvMarkerEditDialog*)>;

Q_DECLARE_METATYPE(Action)

namespace {
QColor palette(int index)
{
    return MvMarkerPresenter::markerPalette().at(index);
}

void click(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

const Action clickOk = [](MvMarkerEditDialog* dialog) { click(dialog->okButton()); };
const QString EditMarker = QStringLiteral("MvTimelinePresenterPrivate::editMarker");

// A clip over frames 100..200 between two others, on the first of the fixture's tracks.
struct Project : MvEditFixture<>
{
    MvMemoryClip* first = clip(0, 0, 99);
    MvMemoryClip* middle = clip(0, 100, 200);
    MvMemoryClip* last = clip(0, 201, 999);

    // Runs editMarker; the action works the modal dialog once it is up. Gives what the dialog showed
    // when it opened, nothing when editMarker opened none.
    std::optional<MvMarkerParam> edit(const Action& action)
    {
        std::optional<MvMarkerParam> shown;
        QTimer::singleShot(0, [&shown, &action]() {
            if (auto* dialog = qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget())) {
                shown = dialog->markerParam();
                action(dialog);
            }
        });
        presenter->editMarker();
        QCoreApplication::processEvents(); // lets the timer find no dialog when none opened
        return shown;
    }
};
}

class tst_MvTimelinePresenterMarkerEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outcomeIsOneUndoStepOrNone_data();
    void outcomeIsOneUndoStepOrNone();
    void listIsChosenLikeAddMarker_data();
    void listIsChosenLikeAddMarker();
    void withoutATimelineNothingOpens();
    void editsWalkBackAndForth();
};

void tst_MvTimelinePresenterMarkerEdit::outcomeIsOneUndoStepOrNone_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("after"); // name, comment and colour of the marker at 300
    QTest::addColumn<QString>("step"); // the undo step made, if any
    QTest::newRow("OK applies every field") << palette(2) << Action([](MvMarkerEditDialog* dialog) {
        MvMarkerEditPanel* panel = dialog->panel();
        panel->nameEdit()->selectAll();
        QTest::keyClicks(panel->nameEdit(), QStringLiteral("Chorus"));
        panel->commentEdit()->selectAll();
        QTest::keyClicks(panel->commentEdit(), QStringLiteral("louder"));
        click(panel->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell3")));
        click(dialog->okButton());
    }) << QStringLiteral("Chorus louder ") + palette(3).name()
                                            << QStringLiteral("edit marker");
    QTest::newRow("DELETE removes it") << palette(2)
                                       << Action([](MvMarkerEditDialog* dialog) { click(dialog->deleteButton()); })
                                       << QString() << QStringLiteral("edit marker");
    QTest::newRow("closing drops the edits") << palette(2) << Action([](MvMarkerEditDialog* dialog) {
        QTest::keyClicks(dialog->panel()->nameEdit(), QStringLiteral(" edited"));
        click(dialog->closeButton());
    }) << QStringLiteral("Verse slow ") + palette(2).name()
                                             << QString();
    QTest::newRow("OK without changes keeps a colour off the palette")
        << QColor(1, 2, 3) << clickOk << QStringLiteral("Verse slow #010203") << QString();
}

// The dialog shows the marker under the playhead, after the player was paused.
void tst_MvTimelinePresenterMarkerEdit::outcomeIsOneUndoStepOrNone()
{
    QFETCH(QColor, color);
    QFETCH(Action, action);
    QFETCH(QString, after);
    QFETCH(QString, step);
    Project p;
    p.timeline.timelineMarkerList()
        ->addNamedMarker(300, color, QStringLiteral("Verse"))
        ->setComment(QStringLiteral("slow"));
    p.setPlayhead(300);
    const QString before = p.snapshot();
    const MvMarkerParam param = p.edit(action).value_or(MvMarkerParam());
    QCOMPARE(QStringLiteral("%1 %2 %3").arg(param.name, param.comment, param.time),
        QStringLiteral("Verse slow 00:00:10:00"));
    QCOMPARE(param.colorIndex, MvMarkerPresenter::markerPaletteIndex(color));
    QCOMPARE(p.scene.ids(), QList<int>({ 7012 }));
    IMvMarker* marker = p.timeline.timelineMarkers()->markerAt(300);
    QCOMPARE(
        marker ? QStringLiteral("%1 %2 %3").arg(marker->name(), marker->comment(), marker->color().name()) : QString(),
        after);
    QCOMPARE(p.undoOneStep(before), step);
}

void tst_MvTimelinePresenterMarkerEdit::listIsChosenLikeAddMarker_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<QString>("edited"); // name and time of the marker edited; empty when none is
    QTest::newRow("clip selected, on its last frame") << "clip" << qint64(200) << "C 00:00:06:20";
    QTest::newRow("clip selected, playhead after it") << "clip" << qint64(201) << "T 00:00:06:21";
    QTest::newRow("clip selected, timeline flag") << "timeline flag" << qint64(150) << "T 00:00:05:00";
    QTest::newRow("two clips selected") << "two" << qint64(150) << "T 00:00:05:00";
    QTest::newRow("transition selected, no list") << "transition" << qint64(150) << "";
}

// A timeline marker "T" and, on the clip, a clip marker "C" stand under the playhead. The time
// shown for a clip marker is its frame on the timeline.
void tst_MvTimelinePresenterMarkerEdit::listIsChosenLikeAddMarker()
{
    QFETCH(QString, selection);
    QFETCH(qint64, playhead);
    QFETCH(QString, edited);
    Project p;
    p.timeline.timelineMarkerList()->addNamedMarker(playhead, palette(0), QStringLiteral("T"));
    auto* clipMarkers = static_cast<MvMemoryMarkerList*>(p.middle->clipMarkers());
    if (playhead <= 200)
        clipMarkers->addNamedMarker(playhead - 100, palette(1), QStringLiteral("C"));
    IMvSelection* select = p.timeline.selection();
    if (selection == QLatin1String("transition"))
        select->selectItems({ p.timeline.addTransition(p.middle, IMvTransition::AtEnd, 10, QStringLiteral("fade")) });
    else
        select->select(
            selection == QLatin1String("two") ? QList<IMvClip*> { p.middle, p.first } : QList<IMvClip*> { p.middle });
    select->setTimelineSelected(selection == QLatin1String("timeline flag"));
    p.setPlayhead(playhead);
    const std::optional<MvMarkerParam> shown = p.edit(clickOk);
    QCOMPARE(shown ? shown->name + QLatin1Char(' ') + shown->time : QString(), edited);
    QCOMPARE(p.scene.ids().isEmpty(), !shown); // no pause either
    const QString refusal = mvCheckRecord(p.log, QStringLiteral("no marker at playhead"), 16, EditMarker);
    QCOMPARE(refusal.isEmpty(), !shown);
}

void tst_MvTimelinePresenterMarkerEdit::withoutATimelineNothingOpens()
{
    MvLogCapture log;
    MvTimelinePresenter(nullptr, nullptr).editMarker();
    QCOMPARE(mvCheckRecord(log, QStringLiteral("playhead is null"), 16, EditMarker), QString());
}

void tst_MvTimelinePresenterMarkerEdit::editsWalkBackAndForth()
{
    Project p;
    p.timeline.timelineMarkerList()->addNamedMarker(300, palette(2), QStringLiteral("Verse"));
    p.setPlayhead(300);
    p.keepState();
    const Action rename = [](MvMarkerEditDialog* dialog) {
        dialog->panel()->nameEdit()->selectAll();
        QTest::keyClicks(dialog->panel()->nameEdit(), QStringLiteral("Chorus"));
        click(dialog->okButton());
    };
    const Action remove = [](MvMarkerEditDialog* dialog) { click(dialog->deleteButton()); };
    for (const Action& action : { rename, clickOk, remove }) {
        QVERIFY(p.edit(action));
        p.keepState();
    }
    QVERIFY(!p.timeline.timelineMarkers()->markerAt(300));
    QCOMPARE(p.walkUndo(), QStringLiteral("edit marker, edit marker"));
}

QTEST_MAIN(tst_MvTimelinePresenterMarkerEdit)
#include "tst_MvTimelinePresenterMarkerEdit.moc"
