#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoHeaderMarks.h"
#include "MvDemoMarkerDialogStyle.h"
#include "MvDemoPlayheadOverlay.h"
#include "MvDemoRulerLook.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTrackArea.h"
#include "MvDemoTrackHeaders.h"
#include "MvDemoWindow.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvTextEdit.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelineRulerWidget.h"
#include "MvToast.h"
#include "MvToolTipHelper.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

namespace {
// The demo window over its sample project, shown offscreen.
struct Demo
{
    Demo()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    MvMemoryClip* clip(const QString& name) const
    {
        for (MvMemoryClip* clip : window.timeline()->liveClips()) {
            if (clip->name() == name)
                return clip;
        }
        return nullptr;
    }

    MvDemoTrackArea* area() const { return window.trackArea(); }
    QPoint centerOf(const QString& name) const
    {
        const IMvClip* c = clip(name);
        return area()->clipRect(c, c->trackIndex()).center();
    }
    qint64 frameAt(const QPoint& pos) const { return area()->mapping().frameAt(pos.x()); }
    int undoCount() const { return window.timeline()->undoRedoService()->undoCount(); }
    // The text of the newest notice over the window.
    QString notice() const
    {
        const QList<MvToast*> toasts = window.findChildren<MvToast*>();
        return toasts.isEmpty() ? QString() : toasts.last()->text();
    }

    void mouse(QWidget* target, QEvent::Type type, const QPoint& pos, Qt::MouseButtons buttons)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, pos, target->mapToGlobal(pos), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }

    void drag(const QPoint& from, const QPoint& to)
    {
        mouse(area(), QEvent::MouseButtonPress, from, Qt::LeftButton);
        mouse(area(), QEvent::MouseMove, (from + to) / 2, Qt::LeftButton);
        mouse(area(), QEvent::MouseMove, to, Qt::LeftButton);
        mouse(area(), QEvent::MouseButtonRelease, to, Qt::NoButton);
    }

    void wheel(const QPoint& pos, int notches, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(pos, area()->mapToGlobal(pos), QPoint(), QPoint(0, 120 * notches), Qt::NoButton, modifiers,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(area(), &event);
    }

    MvDemoWindow window { false };
};
}

// The demo window driven as a person drives it: mouse drags on the tracks, the wheel, keys and
// shortcuts, its menus and notices.
class tst_MvDemoWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dragMovesTheSelectionInOneUndoStep_data();
    void dragMovesTheSelectionInOneUndoStep();
    void dragSnapsToThePlayhead();
    void refusedDragSaysWhyAndChangesNothing();
    void bandSelectsTheClipsItTouches();
    void disabledShortcutSaysWhy();
    void splitButtonComesBackWhenTheVirtualPlayheadCloses();
    void splitButtonAtFrameZeroIsDrawnWhole();
    void wheelOverTheTracks();
    void scrollBarsFollowTheView();
    void keysStepThePlayhead();
    void contextMenusOfferTheirCommands();
    void headerLockIsDrawnAndToggled();
    void clipMarkerShowsItsNameAsToolTip();
    void markerEditorLinesUpAndCancels();
    void statusAndTitleSayWhereYouAre();
    void journalSpeaksWords();
    void rulerLabelsFitTheirBoxes();
};

void tst_MvDemoWindow::dragMovesTheSelectionInOneUndoStep_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("rows");
    // The logo on the second row; the sticker on the first, dragged down a row and later.
    QTest::newRow("sideways") << QStringLiteral("Logo") << -60 << 0;
    QTest::newRow("down a row and later") << QStringLiteral("Seagull") << 20 << 1;
}

void tst_MvDemoWindow::dragMovesTheSelectionInOneUndoStep()
{
    QFETCH(QString, name);
    QFETCH(int, dx);
    QFETCH(int, rows);
    Demo demo;
    demo.window.action(QStringLiteral("snap"))->trigger(); // snapping off: the frames are the pointer's
    MvMemoryClip* clip = demo.clip(name);
    const qint64 start = clip->start();
    const int track = clip->trackIndex();
    const QPoint from = demo.centerOf(name);
    const QPoint to = from + QPoint(dx, demo.area()->rowTop(track + rows) - demo.area()->rowTop(track));
    demo.drag(from, to);
    QCOMPARE(clip->start(), start + demo.frameAt(to) - demo.frameAt(from));
    QCOMPARE(clip->trackIndex(), track + rows);
    QCOMPARE(demo.undoCount(), 1);
    QCOMPARE(demo.window.timeline()->undoRedoService()->undoName(), QStringLiteral("move clips"));
    demo.window.timeline()->undoRedoService()->undo();
    QCOMPARE(clip->start(), start);
    QCOMPARE(clip->trackIndex(), track);
}

void tst_MvDemoWindow::dragSnapsToThePlayhead()
{
    Demo demo;
    MvMemoryClip* logo = demo.clip(QStringLiteral("Logo"));
    const qint64 playhead = logo->start() - 600;
    demo.window.timeline()->playhead()->setCurrentFrame(playhead);
    const QPoint from = demo.centerOf(QStringLiteral("Logo"));
    // Let go three pixels after the playhead: the clip's start lands on it.
    const int dx = demo.area()->mapping().xOf(playhead) + 3 - demo.area()->mapping().xOf(logo->start());
    demo.drag(from, from + QPoint(dx, 0));
    QCOMPARE(logo->start(), playhead);
}

void tst_MvDemoWindow::refusedDragSaysWhyAndChangesNothing()
{
    Demo demo;
    MvMemoryClip* map = demo.clip(QStringLiteral("Old map"));
    const qint64 start = map->start();
    const QPoint from = demo.centerOf(QStringLiteral("Old map"));
    demo.drag(from, from + QPoint(demo.area()->mapping().xOf(12 * 30) - demo.area()->mapping().xOf(0), 0));
    QCOMPARE(map->start(), start);
    QCOMPARE(demo.undoCount(), 0);
    QCOMPARE(demo.notice(), QStringLiteral("Another clip is in the way."));
    QCOMPARE(demo.window.journalLines().last(), QStringLiteral("refused: Another clip is in the way."));
}

void tst_MvDemoWindow::bandSelectsTheClipsItTouches()
{
    Demo demo;
    MvDemoTrackArea* area = demo.area();
    // From empty space on the first row, across the start of the second and third rows.
    const QPoint from(area->mapping().xOf(9 * 30), area->rowTop(0) + 10);
    const QPoint to(area->mapping().xOf(21 * 30), area->rowTop(2) + 10);
    demo.drag(from, to);
    QStringList names;
    for (IMvAbstractClip* item : demo.window.timeline()->selection()->selectedItems())
        names.append(item->name());
    names.sort();
    QCOMPARE(names,
        (QStringList {
            QStringLiteral("Harbour at dawn"), QStringLiteral("Market street"), QStringLiteral("Sequence 1") }));
    QCOMPARE(demo.undoCount(), 0);
}

void tst_MvDemoWindow::disabledShortcutSaysWhy()
{
    Demo demo;
    demo.window.timeline()->playhead()->setCurrentFrame(demo.window.timeline()->duration());
    QVERIFY(!demo.window.action(QStringLiteral("split"))->isEnabled());
    QTest::keyClick(demo.area(), Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(demo.notice(), QStringLiteral("There is no clip under the playhead to split."));
    // Enabled again, the same shortcut splits.
    demo.window.timeline()->playhead()->setCurrentFrame(45);
    QTest::keyClick(demo.area(), Qt::Key_B, Qt::ControlModifier);
    QVERIFY(demo.clip(QStringLiteral("Harbour at dawn"))->end() == 44);
}

void tst_MvDemoWindow::splitButtonComesBackWhenTheVirtualPlayheadCloses()
{
    Demo demo;
    IMvTimelinePlayhead* playhead = demo.window.timeline()->playhead();
    demo.window.action(QStringLiteral("virtual-open"))->trigger();
    QVERIFY(!playhead->isSplitButtonVisible());
    demo.window.action(QStringLiteral("virtual-close"))->trigger();
    QVERIFY(playhead->isSplitButtonVisible());
}

void tst_MvDemoWindow::splitButtonAtFrameZeroIsDrawnWhole()
{
    Demo demo;
    MvDemoPlayheadOverlay* overlay = demo.window.column()->playheadOverlay();
    const QRect button = overlay->presenter()->splitButtonRect().translated(overlay->originX(), 0);
    QVERIFY(overlay->rect().contains(button));
    // The button's left end shows its fill, not the window behind it.
    const QImage shot = demo.window.grab().toImage();
    const QPoint left = overlay->mapTo(&demo.window, QPoint(button.left() + 9, button.center().y()));
    QCOMPARE(QColor(shot.pixel(left * shot.devicePixelRatio())).name(), QStringLiteral("#ff5a4e"));
}

void tst_MvDemoWindow::wheelOverTheTracks()
{
    Demo demo;
    IMvTimelineRuler* ruler = demo.window.timeline()->ruler();
    const QPoint middle = demo.area()->rect().center();
    const float fit = ruler->zoomRatio();
    demo.wheel(middle, 3, Qt::ControlModifier);
    QVERIFY(ruler->zoomRatio() > fit);
    const qint64 start = ruler->visibleStartFrame();
    demo.wheel(middle, -2, Qt::ShiftModifier);
    QVERIFY(ruler->visibleStartFrame() > start);
    demo.window.action(QStringLiteral("rows-large"))->trigger();
    demo.wheel(middle, -50, Qt::NoModifier);
    const int last = demo.window.timeline()->trackCount() - 1;
    // Every row is reachable: the last one's bottom is in view.
    QVERIFY(demo.area()->scrollY() > 0);
    QVERIFY(demo.area()->rowTop(last) + demo.window.timeline()->trackAt(last)->height() <= demo.area()->height());
}

void tst_MvDemoWindow::scrollBarsFollowTheView()
{
    Demo demo;
    demo.window.action(QStringLiteral("zoom-in"))->trigger();
    QScrollBar* bar = demo.window.column()->horizontalBar();
    IMvTimelineRuler* ruler = demo.window.timeline()->ruler();
    QTest::keyClick(demo.area(), Qt::Key_End);
    QCOMPARE(bar->value(), bar->maximum());
    QCOMPARE(qint64(bar->pageStep()), ruler->visibleFrames());
    bar->setValue(300);
    QCOMPARE(ruler->visibleStartFrame(), qint64(300));
    demo.window.action(QStringLiteral("rows-large"))->trigger();
    QScrollBar* rows = demo.window.column()->verticalBar();
    QVERIFY(rows->maximum() > 0);
    rows->setValue(rows->maximum());
    QCOMPARE(demo.area()->scrollY(), rows->maximum());
}

void tst_MvDemoWindow::keysStepThePlayhead()
{
    Demo demo;
    IMvTimelinePlayhead* playhead = demo.window.timeline()->playhead();
    QTest::keyClick(demo.area(), Qt::Key_Right);
    QTest::keyClick(demo.area(), Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(playhead->currentFrame(), qint64(31));
    QTest::keyClick(demo.area(), Qt::Key_End);
    QCOMPARE(playhead->currentFrame(), demo.window.timeline()->duration());
    QTest::keyClick(demo.area(), Qt::Key_Home);
    QCOMPARE(playhead->currentFrame(), qint64(0));
    // Tab reaches the timeline.
    QVERIFY(demo.area()->focusPolicy() & Qt::TabFocus);
}

void tst_MvDemoWindow::contextMenusOfferTheirCommands()
{
    Demo demo;
    const auto names = [&demo](MvDemoContextMenus::Place place) {
        QScopedPointer<QMenu> menu(demo.window.contextMenu(place));
        QStringList list;
        for (QAction* action : menu->actions())
            list.append(action->isSeparator() ? QStringLiteral("|") : action->text().remove(QLatin1Char('&')));
        return list.join(QLatin1Char(','));
    };
    QCOMPARE(names(MvDemoContextMenus::Place::Track),
        QStringLiteral("Hide Track,Mute Track,Lock Track,|,Small Row,Normal Row,Large Row"));
    QCOMPARE(names(MvDemoContextMenus::Place::Ruler),
        QStringLiteral("Add Marker,Edit Marker at Playhead...,Remove Selected Marker,|,Zoom to Fit,Zoom In,Zoom Out"));
    QVERIFY(names(MvDemoContextMenus::Place::Clip)
                .startsWith(QStringLiteral("Copy,Cut,Paste,Duplicate,|,Split at Playhead")));
    // A name the window does not know is left out, and so is the separator it would leave.
    QScopedPointer<QMenu> menu(MvDemoContextMenus::build(
        MvDemoContextMenus::Place::Track,
        [&demo](const QString& name) {
            return name.startsWith(QLatin1String("track-")) && !name.contains(QLatin1String("rows"))
                ? nullptr
                : demo.window.action(name);
        },
        nullptr));
    QCOMPARE(menu->actions().size(), 3);
}

void tst_MvDemoWindow::headerLockIsDrawnAndToggled()
{
    Demo demo;
    MvDemoTrackHeaders* headers = demo.window.trackHeaders();
    const QRect mark = MvDemoHeaderMarks::lockRect(headers->rowRect(0));
    QTest::mouseClick(headers, Qt::LeftButton, Qt::NoModifier, mark.center());
    QVERIFY(demo.window.timeline()->trackAt(0)->isLocked());
    // A locked mark is drawn in its own colour, whatever the fonts.
    const QImage image = headers->grab(mark).toImage();
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += QColor(image.pixel(x, y)) == QColor(0xF2, 0xC9, 0x4C) ? 1 : 0;
    }
    QVERIFY2(ink > mark.width() * mark.height() / 4, qPrintable(QString::number(ink)));
    QTest::mouseClick(headers, Qt::LeftButton, Qt::NoModifier, mark.center());
    QVERIFY(!demo.window.timeline()->trackAt(0)->isLocked());
}

void tst_MvDemoWindow::clipMarkerShowsItsNameAsToolTip()
{
    Demo demo;
    MvMemoryClip* street = demo.clip(QStringLiteral("Market street"));
    IMvMarker* marker = street->clipMarkers()->markers().first();
    marker->setName(QStringLiteral("Fish stall"));
    const int x = demo.area()->mapping().xOf(street->clipMarkers()->mapToTimeline(marker->frame()));
    const QPoint at
        = MvDemoTrackArea::markerFlagRect(x, demo.area()->clipRect(street, street->trackIndex()).top()).center();
    QCOMPARE(demo.area()->clipMarkerAt(at), marker);
    QHelpEvent help(QEvent::ToolTip, at, demo.area()->mapToGlobal(at));
    QApplication::sendEvent(demo.area(), &help);
    QCOMPARE(MvToolTipHelper::lastText(), QStringLiteral("Fish stall\n00:00:25:00"));
}

void tst_MvDemoWindow::markerEditorLinesUpAndCancels()
{
    Demo demo;
    IMvMarker* marker = demo.window.timeline()->timelineMarkers()->markers().first();
    demo.window.timeline()->playhead()->setCurrentFrame(marker->frame());
    bool checked = false;
    QTimer::singleShot(0, [&checked] {
        auto* dialog = qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QVERIFY(MvDemoMarkerDialogStyle::fieldsLineUp(dialog));
        dialog->panel()->nameEdit()->setPlainText(QStringLiteral("never kept"));
        auto* cancel = dialog->findChild<QPushButton*>(QStringLiteral("cancelButton"));
        QVERIFY(cancel);
        checked = true;
        cancel->click();
    });
    demo.window.action(QStringLiteral("edit-marker"))->trigger();
    QVERIFY(checked);
    QCOMPARE(marker->name(), QString());
    QCOMPARE(demo.undoCount(), 0);
}

void tst_MvDemoWindow::statusAndTitleSayWhereYouAre()
{
    Demo demo;
    demo.window.timeline()->playhead()->setCurrentFrame(305);
    QVERIFY2(demo.window.statusText().startsWith(QStringLiteral("Playhead 00:00:10:05 (frame 305)")),
        qPrintable(demo.window.statusText()));
    QCOMPARE(demo.window.windowTitle(), QStringLiteral("A day by the sea[*] - MvTimeline Demo"));
    QVERIFY(!demo.window.isWindowModified());
    demo.window.timeline()->selection()->select({ demo.clip(QStringLiteral("Logo")) });
    demo.window.action(QStringLiteral("move-right"))->trigger();
    QVERIFY(demo.window.isWindowModified());
}

void tst_MvDemoWindow::journalSpeaksWords()
{
    Demo demo;
    demo.window.timeline()->selection()->select({ demo.clip(QStringLiteral("Logo")) });
    demo.window.action(QStringLiteral("move-right"))->trigger();
    const QStringList journal = demo.window.journalLines();
    QCOMPARE(journal.mid(journal.size() - 3),
        (QStringList { QStringLiteral("command: Move One Frame Right"),
            QStringLiteral(
                "library note: horizontal move clips, frameOffset 1 (MvTimelinePresenterPrivate::moveClipsHorizontal)"),
            QStringLiteral("scene: pause player") }));
}

void tst_MvDemoWindow::rulerLabelsFitTheirBoxes()
{
    Demo demo;
    QCOMPARE(demo.window.ruler()->height(), MvDemoRulerLook::kRulerHeight);
    QVERIFY(MvDemoRulerLook::labelsFit(demo.window.ruler()->font()));
    // A font too large for the boxes is brought down to a size that fits.
    QFont large = demo.window.font();
    large.setPixelSize(40);
    const QFont fitted = MvDemoRulerLook::labelFont(large);
    QVERIFY(!MvDemoRulerLook::labelsFit(large));
    QVERIFY(fitted.pixelSize() < 40);
    QVERIFY(MvDemoRulerLook::labelsFit(fitted));
}

QTEST_MAIN(tst_MvDemoWindow)
#include "tst_MvDemoWindow.moc"
