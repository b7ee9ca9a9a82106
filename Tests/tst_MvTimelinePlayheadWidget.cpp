#include "IMvShortcutEditManager.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvEventFilterManager.h"
#include "MvRecordingScene.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelinePresenter.h"
#include "MvToolTipHelper.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
class SplitRecordingPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    int splits = 0;
    bool splitClips(qint64 frame, bool select, bool prepareFlag) override
    {
        if (frame == -1 && select && !prepareFlag)
            ++splits;
        return true;
    }
};

// The track area under the overlay: it offers its events to the filter manager first and keeps
// what passed through.
class TrackArea : public QWidget
{
public:
    MvEventFilterManager manager;
    bool lastConsumed = false;
    int ownPresses = 0;
    int ownMoves = 0;

protected:
    bool event(QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::ContextMenu:
        case QEvent::ToolTip:
            lastConsumed = manager.dispatchEvent(event);
            if (lastConsumed)
                return true;
            break;
        default:
            break;
        }
        return QWidget::event(event);
    }
    void mousePressEvent(QMouseEvent*) override { ++ownPresses; }
    void mouseMoveEvent(QMouseEvent*) override { ++ownMoves; }
};

class CountingPlayheadWidget : public MvTimelinePlayheadWidget
{
public:
    using MvTimelinePlayheadWidget::MvTimelinePlayheadWidget;
    int playheadDraws = 0;
    int buttonDraws = 0;

protected:
    void drawPlayhead(QPainter* painter) override
    {
        ++playheadDraws;
        MvTimelinePlayheadWidget::drawPlayhead(painter);
    }
    void drawSplitButton(QPainter* painter) override
    {
        ++buttonDraws;
        MvTimelinePlayheadWidget::drawSplitButton(painter);
    }
};

// A 1000-frame clip in a 400 x 200 track area, 1 px per frame after zooming in; the playhead at
// 100, so the head spans x 93..107 and y 0..16 and the split button is (80, 67, 40, 35).
struct Fixture
{
    MvMemoryTimeline timeline;
    MvRecordingScene scene;
    SplitRecordingPresenter timelinePresenter { nullptr, &timeline };
    MvTimelinePlayheadPresenter presenter { &timelinePresenter, &timelinePresenter };
    TrackArea area;
    CountingPlayheadWidget* overlay;

    Fixture()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 999, QStringLiteral("a"));
        timeline.ruler()->setViewWidth(1000);
        timelinePresenter.setScene(&scene);
        overlay = new CountingPlayheadWidget(&presenter, &area);
        // Hover moves (no button held) reach a widget only while it tracks the mouse.
        area.setMouseTracking(true);
        area.setGeometry(100, 100, 400, 200);
        overlay->setGeometry(0, 0, 400, 200);
        area.manager.addFilter(overlay);
        area.show();
        timeline.playhead()->setCurrentFrame(100);
    }

    bool mouse(QEvent::Type type, const QPoint& pos, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, QPointF(pos), QPointF(area.mapToGlobal(pos)), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&area, &event);
        return area.lastConsumed;
    }
    bool press(const QPoint& pos, Qt::MouseButton button = Qt::LeftButton)
    {
        return mouse(QEvent::MouseButtonPress, pos, button, button);
    }
    bool move(const QPoint& pos, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        return mouse(QEvent::MouseMove, pos, Qt::NoButton, buttons);
    }
    bool release(const QPoint& pos, Qt::MouseButton button = Qt::LeftButton)
    {
        return mouse(QEvent::MouseButtonRelease, pos, button, Qt::NoButton);
    }
    bool toolTip(const QPoint& pos)
    {
        QHelpEvent event(QEvent::ToolTip, pos, area.mapToGlobal(pos));
        QApplication::sendEvent(&area, &event);
        return area.lastConsumed;
    }
    int x() { return presenter.position(); }
};

const QPoint kButton(100, 84);
const QPoint kHead(100, 5);
const QPoint kEmpty(300, 150);

QImage render(QWidget* widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QImage solid(const QColor& color, const QSize& size = QSize(20, 20))
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}
}

class tst_MvTimelinePlayheadWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hitTest_data();
    void hitTest();
    void disabledPlayheadCatchesNothing();
    void clickOnTheButtonSplitsOnce();
    void dragOverTheButtonNeverSplits();
    void clickCutsTheClipUnderThePlayheadInTheModel();
    void draggingTheHeadMovesThePlayheadWithinTheView();
    void draggingTheButtonKeepsItUnderThePointer_data();
    void draggingTheButtonKeepsItUnderThePointer();
    void leftDragFromElsewherePassesThrough();
    void hoverShowsTheButtonState();
    void rightClickOnTheButtonSplitsAndFollows();
    void followModeYieldsToPlayback();
    void pressElsewhereEndsFollowMode();
    void contextMenuIsSwallowedOverItemsOnly_data();
    void contextMenuIsSwallowedOverItemsOnly();
    void doubleClickPassesThrough();
    void toolTipNamesTheShortcut_data();
    void toolTipNamesTheShortcut();
    void toolTipOnlyOverTheButton();
    void resizeReclampsTheButton();
    void paintsTheLineInTheStatusColour();
    void paintsTheSplitButtonImageScaled();
    void paintsTheHeadImageOfASubclass();
    void hiddenPlayheadOrButtonIsNotDrawn();
};

void tst_MvTimelinePlayheadWidget::init()
{
    MvToolTipHelper::resetHistory();
    IMvShortcutEditManager::SetInstance(nullptr);
    static_cast<MvShortcutEditManager*>(IMvShortcutEditManager::GetInstance())->clear();
}

void tst_MvTimelinePlayheadWidget::hitTest_data()
{
    QTest::addColumn<int>("buttonY");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<int>("item");
    QTest::newRow("head tip") << 67 << QPoint(100, 15) << int(MvTimelinePlayheadWidget::Playhead);
    QTest::newRow("head corner") << 67 << QPoint(94, 1) << int(MvTimelinePlayheadWidget::Playhead);
    QTest::newRow("beside the tip") << 67 << QPoint(94, 15) << int(MvTimelinePlayheadWidget::None);
    QTest::newRow("line below the head") << 67 << QPoint(100, 40) << int(MvTimelinePlayheadWidget::None);
    QTest::newRow("button") << 67 << QPoint(100, 84) << int(MvTimelinePlayheadWidget::SplitButton);
    QTest::newRow("button edge") << 67 << QPoint(119, 101) << int(MvTimelinePlayheadWidget::SplitButton);
    QTest::newRow("beyond the button") << 67 << QPoint(120, 84) << int(MvTimelinePlayheadWidget::None);
    QTest::newRow("head over raised button") << 0 << QPoint(100, 5) << int(MvTimelinePlayheadWidget::Playhead);
    QTest::newRow("raised button beside the head") << 0 << QPoint(85, 5) << int(MvTimelinePlayheadWidget::SplitButton);
}

void tst_MvTimelinePlayheadWidget::hitTest()
{
    QFETCH(int, buttonY);
    QFETCH(QPoint, pos);
    QFETCH(int, item);
    Fixture f;
    f.presenter.setSplitButtonY(buttonY);
    QCOMPARE(int(f.overlay->captureItem(pos)), item);
}

void tst_MvTimelinePlayheadWidget::disabledPlayheadCatchesNothing()
{
    Fixture f;
    f.timeline.playhead()->setEnabled(false);
    QCOMPARE(f.overlay->captureItem(kHead), MvTimelinePlayheadWidget::None);
    QVERIFY(!f.press(kButton));
    QCOMPARE(f.area.ownPresses, 1);
    QVERIFY(!f.release(kButton));
    QCOMPARE(f.timelinePresenter.splits, 0);
    QVERIFY(!f.toolTip(kButton));
    QCOMPARE(MvToolTipHelper::shownCount(), 0);

    // Hovering keeps storing Normal, and keeps repainting: the presenter reports Disabled.
    f.presenter.setSplitButtonStatus(MVWIDGETS::Hover);
    QVERIFY(!f.move(kButton, Qt::NoButton));
    QCOMPARE(f.presenter.playheadData()->status, MVWIDGETS::Normal);
    QTRY_VERIFY(f.overlay->playheadDraws > 0);
    const int draws = f.overlay->playheadDraws;
    QVERIFY(!f.move(kButton + QPoint(1, 0), Qt::NoButton));
    QTRY_VERIFY(f.overlay->playheadDraws > draws);
}

void tst_MvTimelinePlayheadWidget::clickOnTheButtonSplitsOnce()
{
    Fixture f;
    QVERIFY(f.press(kButton));
    QCOMPARE(f.presenter.splitButtonStatus(), MVWIDGETS::Pressed);
    QCOMPARE(f.overlay->itemStatus(), MVWIDGETS::Pressed);
    QVERIFY(f.release(kButton));
    QCOMPARE(f.timelinePresenter.splits, 1);
    QCOMPARE(f.presenter.splitButtonStatus(), MVWIDGETS::Hover);
    QCOMPARE(f.overlay->itemStatus(), MVWIDGETS::Hover);
    QCOMPARE(f.area.ownPresses, 0);
    QCOMPARE(f.x(), 100);
}

void tst_MvTimelinePlayheadWidget::dragOverTheButtonNeverSplits()
{
    Fixture f;
    QVERIFY(f.press(kButton));
    QVERIFY(f.move(kButton + QPoint(3, 0)));
    QCOMPARE(f.x(), 103);
    QVERIFY(f.release(kButton + QPoint(3, 0)));
    QCOMPARE(f.timelinePresenter.splits, 0);
    // The next click splits again.
    QVERIFY(f.press(kButton + QPoint(3, 0)));
    QVERIFY(f.release(kButton + QPoint(3, 0)));
    QCOMPARE(f.timelinePresenter.splits, 1);
}

void tst_MvTimelinePlayheadWidget::clickCutsTheClipUnderThePlayheadInTheModel()
{
    MvMemoryTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    timeline.addClip(0, ClipType_Video, 0, 999, QStringLiteral("a"));
    timeline.ruler()->setViewWidth(1000);
    MvRecordingScene scene;
    MvTimelinePresenter timelinePresenter(nullptr, &timeline);
    timelinePresenter.setScene(&scene);
    MvTimelinePlayheadPresenter presenter(&timelinePresenter, nullptr);
    TrackArea area;
    auto* overlay = new MvTimelinePlayheadWidget(&presenter, &area);
    area.setGeometry(100, 100, 400, 200);
    overlay->setGeometry(0, 0, 400, 200);
    area.manager.addFilter(overlay);
    area.show();
    timeline.playhead()->setCurrentFrame(300);

    const QPoint button(300, 84);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(button), QPointF(area.mapToGlobal(button)), Qt::LeftButton,
        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(button), QPointF(area.mapToGlobal(button)), Qt::LeftButton,
        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&area, &release);

    const QList<MvMemoryClip*> clips = timeline.liveClips();
    QCOMPARE(clips.size(), 2);
    QCOMPARE(clips.at(0)->end(), 299);
    QCOMPARE(clips.at(1)->start(), 300);
    QCOMPARE(timeline.undoRedoService()->undoName(), QStringLiteral("split"));
    QCOMPARE(timeline.checkInvariants(), QString());
    area.manager.removeFilter(overlay);
}

void tst_MvTimelinePlayheadWidget::draggingTheHeadMovesThePlayheadWithinTheView()
{
    Fixture f;
    QSignalSpy started(&f.presenter, &MvTimelinePlayheadPresenter::sigStartDragPlayHead);
    QSignalSpy ended(&f.presenter, &MvTimelinePlayheadPresenter::sigEndDragPlayHead);
    QVERIFY(f.press(kHead));
    QCOMPARE(started.count(), 1);
    QCOMPARE(f.presenter.splitButtonStatus(), MVWIDGETS::Normal);
    QVERIFY(f.move(QPoint(250, 60)));
    QCOMPARE(f.x(), 250);
    QCOMPARE(f.presenter.splitButtonY(), 67); // the head moves the playhead only
    QVERIFY(f.move(QPoint(900, 5)));
    QCOMPARE(f.x(), 400);
    QVERIFY(f.move(QPoint(-50, 5)));
    QCOMPARE(f.x(), 0);
    QCOMPARE(ended.count(), 0);
    f.release(QPoint(-50, 5));
    QCOMPARE(ended.count(), 1);
    QCOMPARE(started.count(), 1);
    QCOMPARE(f.timelinePresenter.splits, 0);
}

void tst_MvTimelinePlayheadWidget::draggingTheButtonKeepsItUnderThePointer_data()
{
    QTest::addColumn<int>("grabY");
    QTest::newRow("grabbed at its top") << 67;
    QTest::newRow("grabbed in its middle") << 80;
}

void tst_MvTimelinePlayheadWidget::draggingTheButtonKeepsItUnderThePointer()
{
    QFETCH(int, grabY);
    Fixture f;
    const int offset = grabY - 67;
    QVERIFY(f.press(QPoint(100, grabY)));
    QVERIFY(f.move(QPoint(150, 120)));
    QCOMPARE(f.x(), 150);
    QCOMPARE(f.presenter.splitButtonY(), 120 - offset);
    // Far below the view the pointer is clamped to the lowest button top...
    QVERIFY(f.move(QPoint(150, 500)));
    QCOMPARE(f.presenter.splitButtonY(), 165 - offset);
    // ...and on the way back the button keeps its distance to the pointer.
    QVERIFY(f.move(QPoint(150, 100)));
    QCOMPARE(f.presenter.splitButtonY(), 100 - offset);
    QVERIFY(f.release(QPoint(150, 100)));
    QCOMPARE(f.timelinePresenter.splits, 0);
}

void tst_MvTimelinePlayheadWidget::leftDragFromElsewherePassesThrough()
{
    Fixture f;
    QVERIFY(!f.press(kEmpty));
    QCOMPARE(f.area.ownPresses, 1);
    QVERIFY(!f.move(kButton));
    QCOMPARE(f.area.ownMoves, 1);
    QCOMPARE(f.presenter.splitButtonStatus(), MVWIDGETS::Normal);
    QCOMPARE(f.overlay->itemStatus(), MVWIDGETS::Normal);
    QCOMPARE(f.x(), 100);
    QVERIFY(!f.release(kButton));
    QCOMPARE(f.timelinePresenter.splits, 0);
}

void tst_MvTimelinePlayheadWidget::hoverShowsTheButtonState()
{
    Fixture f;
    QVERIFY(f.move(kButton, Qt::NoButton));
    QCOMPARE(f.presenter.splitButtonStatus(), MVWIDGETS::Hover);
    QCOMPARE(f.overlay->capturedItem(), MvTimelinePlayheadWidget::SplitButton);
    QVERIFY(f.move(kHead, Qt::NoButton));
    QCOMPARE(f.presenter.splitButtonStatus(), MVWIDGETS::Normal);
    QCOMPARE(f.overlay->capturedItem(), MvTimelinePlayheadWidget::Playhead);
    QVERIFY(!f.move(kEmpty, Qt::NoButton));
    QCOMPARE(f.overlay->itemStatus(), MVWIDGETS::Hover);
    QCOMPARE(f.overlay->capturedItem(), MvTimelinePlayheadWidget::None);
    QCOMPARE(f.area.ownMoves, 1);
}

void tst_MvTimelinePlayheadWidget::rightClickOnTheButtonSplitsAndFollows()
{
    Fixture f;
    QVERIFY(f.press(kButton, Qt::RightButton));
    QVERIFY(f.release(kButton, Qt::RightButton));
    QCOMPARE(f.timelinePresenter.splits, 1);
    QVERIFY(f.overlay->isFollowing());
    QCOMPARE(f.scene.count(7033), 0);

    QVERIFY(f.move(QPoint(230, 150), Qt::NoButton));
    QCOMPARE(f.x(), 230);
    QVERIFY(f.move(QPoint(260, 10), Qt::NoButton));
    QCOMPARE(f.x(), 260);
    QCOMPARE(f.scene.count(7033), 2);
    const QList<MvRecordingScene::Entry> entries = f.scene.entries();
    QCOMPARE(entries.last().type, QStringLiteral("MvQueryMessage"));
    QCOMPARE(f.timelinePresenter.splits, 1);
}

void tst_MvTimelinePlayheadWidget::followModeYieldsToPlayback()
{
    Fixture f;
    QVERIFY(f.press(kHead, Qt::RightButton));
    QVERIFY(f.release(kHead, Qt::RightButton));
    QCOMPARE(f.timelinePresenter.splits, 0); // the head does not split
    f.scene.answerWith(7033, true);
    QVERIFY(!f.move(QPoint(230, 150), Qt::NoButton));
    QCOMPARE(f.x(), 100);
    f.scene.answerWith(7033, false);
    QVERIFY(f.move(QPoint(240, 150), Qt::NoButton));
    QCOMPARE(f.x(), 240);
    // A drag with a button held is never asked about.
    f.scene.clear();
    f.scene.answerWith(7033, true);
    QVERIFY(f.press(QPoint(240, 5)));
    QVERIFY(f.move(QPoint(200, 5)));
    QCOMPARE(f.x(), 200);
    QCOMPARE(f.scene.count(7033), 0);
}

void tst_MvTimelinePlayheadWidget::pressElsewhereEndsFollowMode()
{
    Fixture f;
    QVERIFY(f.press(kButton, Qt::RightButton));
    QVERIFY(f.release(kButton, Qt::RightButton));
    QVERIFY(!f.press(kEmpty));
    QVERIFY(!f.overlay->isFollowing());
    // The drag that starts there belongs to the track area.
    QVERIFY(!f.move(QPoint(350, 150)));
    QCOMPARE(f.x(), 100);
    QVERIFY(!f.release(QPoint(350, 150)));
    QVERIFY(!f.move(QPoint(360, 150), Qt::NoButton));
    QCOMPARE(f.x(), 100);
}

void tst_MvTimelinePlayheadWidget::contextMenuIsSwallowedOverItemsOnly_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<bool>("consumed");
    QTest::newRow("head") << kHead << true;
    QTest::newRow("button") << kButton << true;
    QTest::newRow("line") << QPoint(100, 150) << false;
    QTest::newRow("empty") << kEmpty << false;
}

void tst_MvTimelinePlayheadWidget::contextMenuIsSwallowedOverItemsOnly()
{
    QFETCH(QPoint, pos);
    QFETCH(bool, consumed);
    Fixture f;
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, f.area.mapToGlobal(pos));
    QApplication::sendEvent(&f.area, &event);
    QCOMPARE(f.area.lastConsumed, consumed);
}

void tst_MvTimelinePlayheadWidget::doubleClickPassesThrough()
{
    Fixture f;
    QVERIFY(!f.mouse(QEvent::MouseButtonDblClick, kButton, Qt::LeftButton, Qt::LeftButton));
    QCOMPARE(f.timelinePresenter.splits, 0);
}

void tst_MvTimelinePlayheadWidget::toolTipNamesTheShortcut_data()
{
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("text");
    QTest::newRow("with shortcut") << QStringLiteral("Ctrl+B")
                                   << QStringLiteral("Click to split (Ctrl+B)\nDrag to Move playhead");
    QTest::newRow("without shortcut") << QString() << QStringLiteral("Click to split\nDrag to Move playhead");
}

void tst_MvTimelinePlayheadWidget::toolTipNamesTheShortcut()
{
    QFETCH(QString, shortcut);
    QFETCH(QString, text);
    MvShortcutEditManager shortcuts;
    shortcuts.setShortcutText(2001, shortcut);
    shortcuts.setShortcutText(2002, QStringLiteral("Ctrl+K"));
    IMvShortcutEditManager::SetInstance(&shortcuts);
    Fixture f;
    QVERIFY(f.toolTip(kButton));
    IMvShortcutEditManager::SetInstance(nullptr);
    QCOMPARE(MvToolTipHelper::lastText(), text);
    QCOMPARE(MvToolTipHelper::lastGlobalPos(), f.area.mapToGlobal(kButton));
    QCOMPARE(MvToolTipHelper::lastDisplayTime(), 3000);
}

void tst_MvTimelinePlayheadWidget::toolTipOnlyOverTheButton()
{
    Fixture f;
    QVERIFY(!f.toolTip(kHead));
    QVERIFY(!f.toolTip(kEmpty));
    QCOMPARE(MvToolTipHelper::shownCount(), 0);
    f.presenter.setSplitButtonVisible(false);
    QVERIFY(!f.toolTip(kButton));
    QCOMPARE(MvToolTipHelper::shownCount(), 0);
}

void tst_MvTimelinePlayheadWidget::resizeReclampsTheButton()
{
    Fixture f;
    f.presenter.setSplitButtonY(150);
    f.overlay->setGeometry(0, 0, 400, 100);
    QCOMPARE(f.presenter.playheadData()->viewRect, QRect(0, 0, 400, 100));
    QCOMPARE(f.presenter.splitButtonY(), 65);
    QCOMPARE(f.presenter.maxRange(), MvRange<int>(0, 400));
}

void tst_MvTimelinePlayheadWidget::paintsTheLineInTheStatusColour()
{
    Fixture f;
    f.presenter.setPlayheadColor(MVWIDGETS::Normal, Qt::red);
    f.presenter.setPlayheadColor(MVWIDGETS::Disabled, Qt::gray);
    f.presenter.setSplitButtonVisible(false);
    QImage image = render(f.overlay);
    QCOMPARE(image.pixelColor(100, 150), QColor(Qt::red));
    QCOMPARE(image.pixelColor(100, 199), QColor(Qt::red));
    QCOMPARE(image.pixelColor(100, 8).alpha(), 0); // above the line's top, no head image
    QCOMPARE(image.pixelColor(103, 150).alpha(), 0);
    QCOMPARE(image.pixelColor(97, 150).alpha(), 0);

    f.timeline.playhead()->setEnabled(false);
    image = render(f.overlay);
    QCOMPARE(image.pixelColor(100, 150), QColor(Qt::gray));
}

void tst_MvTimelinePlayheadWidget::paintsTheSplitButtonImageScaled()
{
    Fixture f;
    f.presenter.setPlayheadColor(MVWIDGETS::Normal, Qt::red);
    f.presenter.addSplitButtonImage(MVWIDGETS::Normal, solid(Qt::green));
    f.presenter.addSplitButtonImage(MVWIDGETS::Hover, solid(Qt::blue));
    QImage image = render(f.overlay);
    // (80, 67) to (119, 101), drawn over the line.
    QCOMPARE(image.pixelColor(81, 68), QColor(Qt::green));
    QCOMPARE(image.pixelColor(100, 84), QColor(Qt::green));
    QCOMPARE(image.pixelColor(118, 100), QColor(Qt::green));
    QCOMPARE(image.pixelColor(78, 84).alpha(), 0);
    QCOMPARE(image.pixelColor(121, 84).alpha(), 0);
    QCOMPARE(image.pixelColor(100, 120), QColor(Qt::red));

    QVERIFY(f.move(kButton, Qt::NoButton));
    image = render(f.overlay);
    QCOMPARE(image.pixelColor(100, 84), QColor(Qt::blue));
}

void tst_MvTimelinePlayheadWidget::paintsTheHeadImageOfASubclass()
{
    class HeadPresenter : public MvTimelinePlayheadPresenter
    {
    public:
        using MvTimelinePlayheadPresenter::MvTimelinePlayheadPresenter;

    protected:
        QImage getPlayheadPixmap(MVWIDGETS::MvWidgetStyleStatus status) override
        {
            return solid(status == MVWIDGETS::Disabled ? Qt::gray : Qt::yellow, QSize(6, 6));
        }
    };
    Fixture f;
    HeadPresenter presenter(&f.timelinePresenter, nullptr);
    MvTimelinePlayheadWidget widget(&presenter, nullptr);
    widget.resize(400, 200);
    presenter.setSplitButtonVisible(false);
    const QImage image = render(&widget);
    // The 6 x 6 image fills the 12 x 12 square (94, 0) .. (105, 11).
    QCOMPARE(image.pixelColor(95, 1), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(104, 10), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(92, 5).alpha(), 0);
}

void tst_MvTimelinePlayheadWidget::hiddenPlayheadOrButtonIsNotDrawn()
{
    Fixture f;
    f.presenter.addSplitButtonImage(MVWIDGETS::Normal, solid(Qt::green));
    QCoreApplication::processEvents(); // the first on-screen paint, out of the way
    f.overlay->playheadDraws = 0;
    f.overlay->buttonDraws = 0;
    render(f.overlay);
    QCOMPARE(f.overlay->playheadDraws, 1);
    QCOMPARE(f.overlay->buttonDraws, 1);
    f.presenter.setSplitButtonVisible(false);
    QImage image = render(f.overlay);
    QCOMPARE(f.overlay->playheadDraws, 2);
    QCOMPARE(f.overlay->buttonDraws, 1);
    QCOMPARE(image.pixelColor(85, 84).alpha(), 0);
    f.timeline.playhead()->setVisible(false);
    render(f.overlay);
    QCOMPARE(f.overlay->playheadDraws, 2);
}

QTEST_MAIN(tst_MvTimelinePlayheadWidget)
#include "tst_MvTimelinePlayheadWidget.moc"
