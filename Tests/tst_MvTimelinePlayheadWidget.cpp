#include "IMvShortcutEditManager.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvColorProbe.h"
#include "MvEventFilterManager.h"
#include "MvRecordingScene.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"
#include "MvToolTipHelper.h"

#include <QContextMenuEvent>
#include <QPaintEvent>
#include <QScreen>
#include <QtTest>

using namespace MVVBLMODEL;
using Item = MvTimelinePlayheadWidget::FItemType;
using Status = MVWIDGETS::MvWidgetStyleStatus;

namespace {
// A host theme that supplies a head image.
class HeadImagePresenter : public MvTimelinePlayheadPresenter
{
public:
    using MvTimelinePlayheadPresenter::MvTimelinePlayheadPresenter;
    QImage head;

protected:
    QImage getPlayheadPixmap(Status) override { return head; }
};

// The mouse events of the track area that the tests offer to the overlay.
struct Kind
{
    QEvent::Type type;
    Qt::MouseButton button;
    Qt::MouseButtons held;
};
const Kind Press { QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton };
const Kind Move { QEvent::MouseMove, Qt::NoButton, Qt::LeftButton };
const Kind Release { QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton };
const Kind Hover { QEvent::MouseMove, Qt::NoButton, Qt::NoButton };
const Kind RightPress { QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton };
const Kind RightRelease { QEvent::MouseButtonRelease, Qt::RightButton, Qt::NoButton };
const Kind DoubleClick { QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton };

// One event, and whether the overlay is to take it (or let it pass on to the track area).
struct Step
{
    Kind kind = Hover;
    QPoint pos;
    bool consumed = true;
};
using Steps = QList<Step>;

// A 1000-frame clip at 1 px per frame under a 400 x 200 overlay that gets the track area's events
// from the filter manager. Playhead at 100: head x 93..107, y 0..16; split button (80, 67, 40, 35).
struct Fixture
{
    MvMemoryTimeline timeline;
    MvRecordingScene scene;
    MvTimelinePresenter timelinePresenter { nullptr, &timeline };
    HeadImagePresenter presenter { &timelinePresenter, &timelinePresenter };
    QWidget area;
    MvEventFilterManager manager;
    MvTimelinePlayheadWidget* overlay = new MvTimelinePlayheadWidget(&presenter, &area);

    Fixture()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 999, QStringLiteral("a"));
        timeline.ruler()->setViewWidth(1000);
        timelinePresenter.setScene(&scene);
        area.setGeometry(100, 100, 400, 200);
        overlay->setGeometry(0, 0, 400, 200);
        manager.addFilter(overlay);
        area.show();
        timeline.playhead()->setCurrentFrame(100);
        QObject::connect(&presenter, &MvTimelinePlayheadPresenter::sigStartDragPlayHead, &presenter,
            [this] { drags.append(QStringLiteral("start")); });
        QObject::connect(&presenter, &MvTimelinePlayheadPresenter::sigEndDragPlayHead, &presenter,
            [this] { drags.append(QStringLiteral("end")); });
    }
    bool send(const Step& step)
    {
        const Kind& k = step.kind;
        QMouseEvent event(
            k.type, QPointF(step.pos), QPointF(area.mapToGlobal(step.pos)), k.button, k.held, Qt::NoModifier);
        return manager.dispatchEvent(&event);
    }
    bool toolTip(const QPoint& pos)
    {
        QHelpEvent event(QEvent::ToolTip, pos, area.mapToGlobal(pos));
        return manager.dispatchEvent(&event);
    }
    int splits() const { return timeline.liveClips().size() - 1; }
    QStringList drags; // the head's drag signals, in order
};

QImage solid(const QColor& color, const QSize& size = QSize(20, 20))
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

// Remembers every region it was asked to paint, in its parent's coordinates.
template <typename Widget> class PaintRecorder : public Widget
{
public:
    using Widget::Widget;
    QList<QRegion> painted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted.append(event->region().translated(this->pos()));
        Widget::paintEvent(event);
    }
};

// The fixture's overlay over what lies under it in a timeline: the ruler and the render strip
// along the top, and a track header far right that the playhead never crosses here.
struct Stack : Fixture
{
    MvTimelineRulerPresenter rulerPresenter { &timelinePresenter, nullptr };
    PaintRecorder<MvTimelineRulerWidget>* ruler = new PaintRecorder<MvTimelineRulerWidget>(&rulerPresenter, &area);
    PaintRecorder<MvTimelineRenderWidget>* strip = new PaintRecorder<MvTimelineRenderWidget>(&timelinePresenter, &area);
    PaintRecorder<QWidget>* header = new PaintRecorder<QWidget>(&area);

    Stack()
    {
        presenter.setPlayheadColor(Status::Normal, Qt::red);
        presenter.addSplitButtonImage(Status::Normal, solid(Qt::green));
        presenter.addSplitButtonImage(Status::Hover, solid(Qt::blue));
        presenter.setSplitButtonVisible(true);
        ruler->setGeometry(0, 0, 400, 28);
        strip->setGeometry(0, 28, 400, 6);
        strip->setFinishedColor(Qt::blue);
        header->setGeometry(300, 34, 100, 166);
        header->setAutoFillBackground(true);
        overlay->raise();
        ruler->show();
        strip->show();
        header->show();
    }
    // Lets the window repaint what is pending and forgets the earlier paints.
    void settle()
    {
        QCoreApplication::sendPostedEvents(&area, QEvent::UpdateRequest);
        ruler->painted.clear();
        strip->painted.clear();
        header->painted.clear();
    }
    // What the user sees: the window's backing store, as the last repaints left it.
    QImage onScreen() const { return area.screen()->grabWindow(area.winId()).toImage(); }
};

const QPoint kButton(100, 84);
const QPoint kHead(100, 5);
const QPoint kEmpty(300, 150);

}

Q_DECLARE_METATYPE(Step)
Q_DECLARE_METATYPE(Item)
Q_DECLARE_METATYPE(Status)

class tst_MvTimelinePlayheadWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hitTest_data();
    void hitTest();
    void gesture_data();
    void gesture();
    void followModeAsksTheHostBeforeEveryMove();
    void toolTipNamesTheShortcutWhenThereIsOne();
    void paintsHeadLineAndButtonByStatus();
    void playheadStepRepaintsWhereThePlayheadWasAndIs_data();
    void playheadStepRepaintsWhereThePlayheadWasAndIs();
};

void tst_MvTimelinePlayheadWidget::hitTest_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<Item>("item");
    QTest::newRow("head tip") << QString() << QPoint(100, 15) << Item::Playhead;
    QTest::newRow("beside the tip") << QString() << QPoint(94, 15) << Item::None;
    QTest::newRow("line below the head") << QString() << QPoint(100, 40) << Item::None;
    QTest::newRow("button edge") << QString() << QPoint(119, 101) << Item::SplitButton;
    QTest::newRow("beyond the button") << QString() << QPoint(120, 84) << Item::None;
    QTest::newRow("hidden button") << QStringLiteral("hidden") << kButton << Item::None;
    QTest::newRow("disabled playhead") << QStringLiteral("disabled") << kHead << Item::None;
    QTest::newRow("head over raised button") << QStringLiteral("raised") << kHead << Item::Playhead;
    QTest::newRow("raised button beside the head") << QStringLiteral("raised") << QPoint(85, 5) << Item::SplitButton;
}

// Presses and context menus are taken over both items, tool tips shown over the button only.
void tst_MvTimelinePlayheadWidget::hitTest()
{
    QFETCH(QString, setup);
    QFETCH(QPoint, pos);
    QFETCH(Item, item);
    Fixture f;
    f.presenter.setSplitButtonVisible(setup != QLatin1String("hidden"));
    f.timeline.playhead()->setEnabled(setup != QLatin1String("disabled"));
    f.presenter.setSplitButtonY(setup == QLatin1String("raised") ? 0 : 67);
    QCOMPARE(f.overlay->captureItem(pos), item);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, pos, f.area.mapToGlobal(pos));
    QCOMPARE(f.manager.dispatchEvent(&menu), item != Item::None);
    QCOMPARE(f.toolTip(pos), item == Item::SplitButton);
    QCOMPARE(f.send({ Press, pos }), item != Item::None);
    QCOMPARE(f.send({ Release, pos }), item != Item::None);
    QCOMPARE(f.splits(), item == Item::SplitButton ? 1 : 0);
}

void tst_MvTimelinePlayheadWidget::gesture_data()
{
    const QPoint moved(103, 84);
    const QPoint away(230, 150);
    const Steps click { { Press, kButton }, { Release, kButton } };
    const Steps drag { { Press, kButton }, { Move, moved }, { Release, moved } };
    const Steps headDrag { { Press, kHead }, { Move, { 250, 60 } }, { Move, { 900, 5 } },
        { Release, { 900, 5 }, false } };
    const Steps rightClickOnTheHead { { RightPress, kHead }, { RightRelease, kHead } };
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<int>("splits");
    QTest::addColumn<QPoint>("playhead"); // x of the playhead, top of the split button
    QTest::addColumn<Status>("status");
    QTest::addColumn<QString>("drags"); // the head's drag signals
    QTest::newRow("drag over the button") << drag << 0 << QPoint(103, 67) << Status::Hover << "";
    QTest::newRow("click after a drag") << drag + click << 1 << QPoint(103, 67) << Status::Hover << "";
    QTest::newRow("head past the right edge") << headDrag << 0 << QPoint(400, 67) << Status::Normal << "start end";
    QTest::newRow("head dragged, then the button clicked")
        << headDrag + Steps { { Press, { 400, 84 } }, { Release, { 400, 84 } } } << 1 << QPoint(400, 67)
        << Status::Hover << "start end";
    QTest::newRow("head past the left edge")
        << Steps { { Press, kHead }, { Move, { -50, 5 } } } << 0 << QPoint(0, 67) << Status::Normal << "start";
    QTest::newRow("button top grabbed, below the view")
        << Steps { { Press, { 100, 67 } }, { Move, { 150, 500 } } } << 0 << QPoint(150, 165) << Status::Pressed << "";
    QTest::newRow("button middle grabbed, below the view and back")
        << Steps { { Press, { 100, 80 } }, { Move, { 150, 500 } }, { Move, { 150, 100 } } } << 0 << QPoint(150, 87)
        << Status::Pressed << "";
    QTest::newRow("left drag begun elsewhere") << Steps { { Press, kEmpty, false }, { Move, kButton, false },
        { Release, kButton, false }, { DoubleClick, kButton, false } }
                                               << 0 << QPoint(100, 67) << Status::Normal << "";
    QTest::newRow("hover over the button")
        << Steps { { Hover, kButton } } << 0 << QPoint(100, 67) << Status::Hover << "";
    QTest::newRow("right click on the button follows")
        << Steps { { RightPress, kButton }, { RightRelease, kButton }, { Hover, away } } << 1 << QPoint(230, 133)
        << Status::Pressed << "";
    // Following is a drag that has not ended.
    QTest::newRow("right click on the head follows")
        << rightClickOnTheHead + Steps { { Hover, away } } << 0 << QPoint(230, 67) << Status::Normal << "start";
    QTest::newRow("press elsewhere ends following")
        << rightClickOnTheHead + Steps { { Press, kEmpty, false }, { Move, away, false }, { Hover, away, false } } << 0
        << QPoint(100, 67) << Status::Normal << "start";
}

void tst_MvTimelinePlayheadWidget::gesture()
{
    QFETCH(Steps, steps);
    QFETCH(int, splits);
    QFETCH(QPoint, playhead);
    QFETCH(Status, status);
    QFETCH(QString, drags);
    Fixture f;
    for (int i = 0; i < steps.size(); ++i)
        QVERIFY2(f.send(steps.at(i)) == steps.at(i).consumed, qPrintable(QStringLiteral("step %1").arg(i)));
    QCOMPARE(f.splits(), splits);
    QCOMPARE(QPoint(f.presenter.position(), f.presenter.splitButtonY()), playhead);
    QCOMPARE(f.presenter.splitButtonStatus(), status);
    QCOMPARE(f.drags.join(QLatin1Char(' ')), drags);
}

void tst_MvTimelinePlayheadWidget::followModeAsksTheHostBeforeEveryMove()
{
    Fixture f;
    f.send({ Press, kHead });
    f.send({ Move, QPoint(250, 5) });
    f.send({ Release, QPoint(250, 5) });
    QCOMPARE(f.scene.count(7033), 0); // a drag with a button held is never asked about
    f.send({ RightPress, QPoint(250, 5) });
    f.send({ RightRelease, QPoint(250, 5) });
    f.scene.answerWith(7033, true); // the host follows playback: the playhead stays
    QVERIFY(!f.send({ Hover, QPoint(300, 150) }));
    QCOMPARE(f.presenter.position(), 250);
    QCOMPARE(f.scene.count(7033), 1);
    QCOMPARE(f.scene.entries().last().type, QStringLiteral("MvQueryMessage"));
}

void tst_MvTimelinePlayheadWidget::toolTipNamesTheShortcutWhenThereIsOne()
{
    auto* shortcuts = static_cast<MvShortcutEditManager*>(IMvShortcutEditManager::GetInstance());
    shortcuts->setShortcutText(2002, QStringLiteral("Ctrl+K"));
    Fixture f;
    QVERIFY(f.toolTip(kButton));
    QCOMPARE(MvToolTipHelper::lastText(), QStringLiteral("Click to split\nDrag to Move playhead"));
    shortcuts->setShortcutText(2001, QStringLiteral("Ctrl+B"));
    QVERIFY(f.toolTip(kButton));
    shortcuts->clear();
    QCOMPARE(MvToolTipHelper::lastText(), QStringLiteral("Click to split (Ctrl+B)\nDrag to Move playhead"));
    QCOMPARE(MvToolTipHelper::lastGlobalPos(), f.area.mapToGlobal(kButton));
    QCOMPARE(MvToolTipHelper::lastDisplayTime(), 3000);
}

void tst_MvTimelinePlayheadWidget::paintsHeadLineAndButtonByStatus()
{
    Fixture f;
    f.presenter.setPlayheadColor(Status::Normal, Qt::red);
    f.presenter.setPlayheadColor(Status::Disabled, Qt::gray);
    f.presenter.addSplitButtonImage(Status::Normal, solid(Qt::green));
    f.presenter.addSplitButtonImage(Status::Hover, solid(Qt::blue));
    f.presenter.head = solid(Qt::yellow, QSize(6, 6));
    // The head image fills (94, 0) .. (105, 11), the 2 px line runs from y 12 down, and the button
    // image is scaled into (80, 67) .. (119, 101) over the line.
    const QList<QPoint> points { { 95, 1 }, { 92, 5 }, { 100, 199 }, { 103, 150 }, { 81, 68 }, { 118, 100 },
        { 121, 84 } };
    QCOMPARE(mvColorsAt(f.overlay, points), QStringLiteral("Y-R-GG-"));
    f.send({ Hover, kButton });
    QCOMPARE(mvColorsAt(f.overlay, { kButton }), QStringLiteral("B"));
    f.presenter.setSplitButtonVisible(false);
    QCOMPARE(mvColorsAt(f.overlay, { { 85, 84 } }), QStringLiteral("-"));
    f.presenter.setSplitButtonVisible(true);
    f.timeline.playhead()->setVisible(false); // takes the split button with it
    QCOMPARE(mvColorsAt(f.overlay, { { 100, 150 }, { 85, 84 } }), QStringLiteral("--"));
    f.timeline.playhead()->setVisible(true);
    f.timeline.playhead()->setEnabled(false);
    QCOMPARE(mvColorsAt(f.overlay, { { 100, 150 } }), QStringLiteral("A"));
}

void tst_MvTimelinePlayheadWidget::playheadStepRepaintsWhereThePlayheadWasAndIs_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("playback step") << QStringLiteral("step");
    QTest::newRow("drag of the button") << QStringLiteral("drag");
    QTest::newRow("hover over the button") << QStringLiteral("hover");
    QTest::newRow("playhead hidden") << QStringLiteral("hide");
}

// Only the playhead's old and new area repaint: the ruler and the strip under the line repaint
// those columns and never as a whole, a widget under the overlay away from the playhead not at
// all, and the screen shows no trace of the old playhead.
void tst_MvTimelinePlayheadWidget::playheadStepRepaintsWhereThePlayheadWasAndIs()
{
    QFETCH(QString, change);
    Stack f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.area));
    f.settle();
    QRegion moved = f.overlay->playheadArea(); // every place the playhead was or is
    QVERIFY(!moved.isEmpty());
    const QPoint button = f.presenter.splitButtonRect().center(); // the ruler set the view's width
    if (change == QLatin1String("step")) {
        for (int frame : { 101, 102, 150, 200 }) { // 0.4 px a frame
            f.timeline.playhead()->setCurrentFrame(frame);
            moved |= f.overlay->playheadArea();
            QCoreApplication::sendPostedEvents(&f.area, QEvent::UpdateRequest); // a frame of playback
        }
    } else if (change == QLatin1String("drag")) {
        QVERIFY(f.send({ Press, button }));
        QVERIFY(f.send({ Move, button + QPoint(6, 20) }));
    } else if (change == QLatin1String("hover")) {
        QVERIFY(f.send({ Hover, button }));
    } else {
        f.timeline.playhead()->setVisible(false);
    }
    const QRegion after = f.overlay->playheadArea();
    QCOMPARE(after.isEmpty(), change == QLatin1String("hide"));
    moved |= after;
    QCoreApplication::sendPostedEvents(&f.area, QEvent::UpdateRequest);

    for (const QList<QRegion>& paints : { f.ruler->painted, f.strip->painted }) {
        QVERIFY(!paints.isEmpty()); // the line crosses both
        for (const QRegion& region : paints)
            QVERIFY2((region - moved).isEmpty(), qPrintable(QStringLiteral("painted outside the playhead")));
    }
    QCOMPARE(f.header->painted.size(), 0);
    QCOMPARE(f.onScreen(), f.area.grab().toImage());
}

QTEST_MAIN(tst_MvTimelinePlayheadWidget)
#include "tst_MvTimelinePlayheadWidget.moc"
