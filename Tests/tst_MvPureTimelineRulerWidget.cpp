#include "IMvEventFilter.h"
#include "IMvShortcutEditManager.h"
#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryRuler.h"
#include "MvCustomEvent.h"
#include "MvEventFilterManager.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvRulerGesture_p.h"
#include "MvScreen.h"
#include "MvSkinStyle.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 28;

// Counts the paints a widget receives.
class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

// Consumes presses while switched on and asks for a pointing hand.
class PressFilter : public IMvEventFilter
{
public:
    explicit PressFilter(MvEventFilterManager* manager)
        : manager(manager)
    {
    }
    bool active = true;
    int seen = 0;
    MvEventFilterManager* manager;

    bool onFilterEvent(QEvent* event) override
    {
        if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseMove)
            return false;
        ++seen;
        if (active)
            manager->setCursor(Qt::PointingHandCursor);
        return active;
    }
};

void moveWithLeftButton(QWidget* widget, const QPoint& pos)
{
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

void sendWheel(QWidget* widget, const QPoint& pixels, const QPoint& angle, Qt::KeyboardModifiers modifiers,
    bool* accepted = nullptr)
{
    const QPoint pos(kWidth / 2, kHeight / 2);
    QWheelEvent wheel(pos, widget->mapToGlobal(pos), pixels, angle, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
    if (accepted)
        *accepted = wheel.isAccepted();
}

}

class tst_MvPureTimelineRulerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithItsOwnRulerFittedToTheWidth();
    void storedLengthAndRateAreReadBack();
    void clickSeeksToTheFrameUnderThePointer();
    void pixelSettersClampAtFrameZero();
    void pressOnTheHandleWithoutMovingDoesNotSeek();
    void handleDragClampsToTheWidget();
    void edgeScrollingNeedsTheHandleNearAnEdge_data();
    void edgeScrollingNeedsTheHandleNearAnEdge();
    void edgeScrollTimerRunsWhileTheHandleIsDragged();
    void dragToZoomThresholds_data();
    void dragToZoomThresholds();
    void laterMovesZoomByTheDistanceFromTheLastStep();
    void wheelZoomsWithTheSchemeModifier_data();
    void wheelZoomsWithTheSchemeModifier();
    void propertyPanelEventZoomsWithoutConsumingIt();
    void cursorShowsWhatAPressWouldDo();
    void eventFiltersSeeEventsExceptDuringAZoomDrag();
    void rulerChangesBecomeSignals();
    void currentFrameChangeDoesNotRepaint();
    void paintedTicksAreTenAndFivePixelsTall_data();
    void paintedTicksAreTenAndFivePixelsTall();
    void destructionLeavesNoListener();

private:
    void makeRuler();
    void setClock(qint64 now) { m_now = now; }
    // The same gesture applied to a plain ruler in the same state, for comparison.
    MvMemoryRuler* referenceRuler();

    QScopedPointer<MvPureTimelineRulerWidget> m_widget;
    QScopedPointer<MvMemoryRuler> m_reference;
    qint64 m_now = 0;
};

void tst_MvPureTimelineRulerWidget::init()
{
    MvScreen::setDevicePixelRatio(1.0);
    auto* shortcuts = new MvShortcutEditManager;
    IMvShortcutEditManager::SetInstance(shortcuts);
    makeRuler();
}

void tst_MvPureTimelineRulerWidget::cleanup()
{
    m_widget.reset();
    m_reference.reset();
    IMvShortcutEditManager* shortcuts = IMvShortcutEditManager::GetInstance();
    IMvShortcutEditManager::SetInstance(nullptr);
    if (shortcuts != IMvShortcutEditManager::GetInstance())
        delete shortcuts;
    MvScreen::setDevicePixelRatio(0.0);
}

void tst_MvPureTimelineRulerWidget::makeRuler()
{
    m_widget.reset(new MvPureTimelineRulerWidget);
    m_widget->resize(kWidth, kHeight);
    m_widget->setFramerate({ 30, 1 });
    m_widget->setTotalFrames(1800);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.data()));
    auto* gesture = m_widget->findChild<MvRulerGesture*>();
    QVERIFY(gesture);
    gesture->setClock([this] { return m_now; });
}

MvMemoryRuler* tst_MvPureTimelineRulerWidget::referenceRuler()
{
    m_reference.reset(new MvMemoryRuler);
    IMvTimelineRuler* own = m_widget->ruler();
    m_reference->setViewWidth(own->viewWidth());
    m_reference->setTotalFrames(own->totalFrames());
    m_reference->setZoomRatio(own->zoomRatio());
    m_reference->setVisualRange(own->visibleStartFrame(), own->visibleEndFrame());
    m_reference->setCurrentFrame(own->currentFrame());
    return m_reference.data();
}

void tst_MvPureTimelineRulerWidget::startsWithItsOwnRulerFittedToTheWidth()
{
    QVERIFY(dynamic_cast<MvMemoryRuler*>(m_widget->ruler()));
    QCOMPARE(m_widget->ruler()->viewWidth(), kWidth);
    QCOMPARE(m_widget->visibleStartFrame(), qint64(0));
    QCOMPARE(m_widget->visibleEndFrame(), qint64(1800));
    QCOMPARE(m_widget->visibleFrames(), qint64(1800));
    QCOMPARE(m_widget->frameToPixel(900), 300.0);
    QCOMPARE(m_widget->pixelToFrame(300.9), qint64(900));
    QVERIFY(!m_widget->isDragging());
    QVERIFY(m_widget->eventFilterMgr());
}

void tst_MvPureTimelineRulerWidget::storedLengthAndRateAreReadBack()
{
    MvPureTimelineRulerWidget fresh;
    QCOMPARE(fresh.framerate().numerator, -1);
    QCOMPARE(fresh.framerate().denominator, -1);
    QCOMPARE(fresh.totalFrames(), qint64(0));
    fresh.setFramerate({ 24000, 1001 });
    fresh.setTotalFrames(-3);
    QCOMPARE(fresh.framerate(), (MVVBLMODEL::MvFrameRate { 24000, 1001 }));
    // The widget keeps what it was told; its ruler keeps what makes sense.
    QCOMPARE(fresh.totalFrames(), qint64(-3));
    QCOMPARE(fresh.ruler()->totalFrames(), qint64(0));
    int num = 0;
    int den = 0;
    fresh.ruler()->frameRate(&num, &den);
    QCOMPARE(num, 24000);
    QCOMPARE(den, 1001);
}

void tst_MvPureTimelineRulerWidget::clickSeeksToTheFrameUnderThePointer()
{
    QTest::mouseClick(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 20));
    QCOMPARE(m_widget->currentFrame(), qint64(900));
    QCOMPARE(m_widget->currentFramePixel(), 300.0);
    QVERIFY(!m_widget->isDragging());
    QCOMPARE(m_widget->visibleStartFrame(), qint64(0));
}

void tst_MvPureTimelineRulerWidget::pixelSettersClampAtFrameZero()
{
    m_widget->setCurrentFramePixel(-40.0);
    QCOMPARE(m_widget->currentFrame(), qint64(0));
    m_widget->setCurrentFramePixel(150.7);
    QCOMPARE(m_widget->currentFrame(), qint64(450));
    QCOMPARE(m_widget->pixelToFrame(-30.0), qint64(-90));
}

void tst_MvPureTimelineRulerWidget::pressOnTheHandleWithoutMovingDoesNotSeek()
{
    m_widget->setCurrentFrame(600); // handle at x = 200
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(206, 20));
    QVERIFY(m_widget->isDragging());
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(206, 20));
    QCOMPARE(m_widget->currentFrame(), qint64(600));
    QVERIFY(!m_widget->isDragging());
    // The next press away from the handle is an ordinary click again.
    QTest::mouseClick(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(400, 20));
    QCOMPARE(m_widget->currentFrame(), qint64(1200));
}

void tst_MvPureTimelineRulerWidget::handleDragClampsToTheWidget()
{
    m_widget->setCurrentFrame(600);
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(193, 3));
    moveWithLeftButton(m_widget.data(), QPoint(250, 3));
    QCOMPARE(m_widget->currentFrame(), qint64(750));
    moveWithLeftButton(m_widget.data(), QPoint(-20, 3));
    QCOMPARE(m_widget->currentFrame(), qint64(0));
    moveWithLeftButton(m_widget.data(), QPoint(kWidth + 50, 3));
    QCOMPARE(m_widget->currentFrame(), qint64(1800));
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(kWidth + 50, 3));
    QCOMPARE(m_widget->currentFrame(), qint64(1800));
    QVERIFY(!m_widget->isDragging());
}

void tst_MvPureTimelineRulerWidget::edgeScrollingNeedsTheHandleNearAnEdge_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("direction");
    QTest::newRow("left edge") << 5 << -1;
    QTest::newRow("left margin itself") << 10 << 0;
    QTest::newRow("right margin itself") << kWidth - 10 << 0;
    QTest::newRow("past the right margin") << kWidth - 9 << 1;
    QTest::newRow("right edge") << kWidth << 1;
}

void tst_MvPureTimelineRulerWidget::edgeScrollingNeedsTheHandleNearAnEdge()
{
    QFETCH(int, x);
    QFETCH(int, direction);
    m_widget->ruler()->setVisualRange(600, 1200); // one pixel is one frame
    m_widget->setCurrentFrame(900);
    auto* gesture = m_widget->findChild<MvRulerGesture*>();
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 3));
    moveWithLeftButton(m_widget.data(), QPoint(x, 3));
    const qint64 before = m_widget->currentFrame();
    gesture->edgeScrollStep();
    QCOMPARE(m_widget->currentFrame(), before + direction * 30);
    // The ruler follows, so the dragged frame stays on screen.
    QVERIFY(m_widget->currentFrame() >= m_widget->visibleStartFrame());
    QVERIFY(m_widget->currentFrame() <= m_widget->visibleEndFrame());
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(x, 3));
    // After the release the timer's ticks do nothing.
    const qint64 released = m_widget->currentFrame();
    gesture->edgeScrollStep();
    QCOMPARE(m_widget->currentFrame(), released);
}

void tst_MvPureTimelineRulerWidget::edgeScrollTimerRunsWhileTheHandleIsDragged()
{
    m_widget->ruler()->setZoomRatio(MvMemoryRuler::kMaxPixelsPerFrame); // 30 px is one frame
    m_widget->setCurrentFrame(900);
    auto* gesture = m_widget->findChild<MvRulerGesture*>();
    const int handleX = int(m_widget->currentFramePixel());
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(handleX, 3));
    QVERIFY(gesture->edgeScrollTimer()->isActive());
    QCOMPARE(gesture->edgeScrollTimer()->interval(), 40);
    moveWithLeftButton(m_widget.data(), QPoint(5, 3));
    const qint64 dragged = m_widget->currentFrame();
    QTRY_VERIFY(m_widget->currentFrame() <= dragged - 2);
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 3));
    QVERIFY(!gesture->edgeScrollTimer()->isActive());
}

void tst_MvPureTimelineRulerWidget::dragToZoomThresholds_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<int>("moveTo");
    QTest::addColumn<bool>("zooms");
    // Pressed at x = 350.
    QTest::newRow("dead time hides a long move") << qint64(200) << 250 << false;
    QTest::newRow("20 pixels at 300 ms") << qint64(300) << 330 << false;
    QTest::newRow("28 pixels at 300 ms") << qint64(300) << 322 << false;
    QTest::newRow("29 pixels left at 300 ms") << qint64(300) << 321 << true;
    QTest::newRow("29 pixels right at 300 ms") << qint64(300) << 379 << true;
    QTest::newRow("3 pixels at 400 ms") << qint64(400) << 347 << false;
    QTest::newRow("3 pixels at 401 ms") << qint64(401) << 347 << true;
}

void tst_MvPureTimelineRulerWidget::dragToZoomThresholds()
{
    QFETCH(qint64, elapsed);
    QFETCH(int, moveTo);
    QFETCH(bool, zooms);
    m_widget->ruler()->setVisualRange(600, 1200); // a frame a pixel, room to zoom both ways
    m_widget->setCurrentFrame(900);
    MvMemoryRuler* expected = referenceRuler();
    expected->beginZoom();
    expected->zoom(350 - moveTo);
    const float before = m_widget->ruler()->zoomRatio();
    QVERIFY(!zooms || expected->zoomRatio() != before);

    setClock(1000);
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(350, 20));
    setClock(1000 + elapsed);
    moveWithLeftButton(m_widget.data(), QPoint(moveTo, 20));
    QCOMPARE(m_widget->isDragging(), zooms);
    QCOMPARE(m_widget->ruler()->zoomRatio(), zooms ? expected->zoomRatio() : before);
    QCOMPARE(m_widget->visibleStartFrame(), zooms ? expected->visibleStartFrame() : qint64(600));
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(moveTo, 20));
    // A zoom drag is not a click: the current frame stays.
    QCOMPARE(m_widget->currentFrame(), zooms ? qint64(900) : m_widget->pixelToFrame(moveTo));
    QVERIFY(!m_widget->isDragging());
}

void tst_MvPureTimelineRulerWidget::laterMovesZoomByTheDistanceFromTheLastStep()
{
    m_widget->ruler()->setVisualRange(600, 1200);
    m_widget->setCurrentFrame(900);
    MvMemoryRuler* expected = referenceRuler();
    expected->beginZoom();
    expected->zoom(30);
    expected->zoom(3);
    expected->zoom(-10);
    setClock(0);
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(400, 20));
    setClock(300);
    moveWithLeftButton(m_widget.data(), QPoint(370, 20));
    setClock(450);
    moveWithLeftButton(m_widget.data(), QPoint(367, 20));
    moveWithLeftButton(m_widget.data(), QPoint(377, 20));
    QCOMPARE(m_widget->ruler()->zoomRatio(), expected->zoomRatio());
    QCOMPARE(m_widget->visibleStartFrame(), expected->visibleStartFrame());
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(377, 20));
    QCOMPARE(m_widget->currentFrame(), qint64(900));
}

void tst_MvPureTimelineRulerWidget::wheelZoomsWithTheSchemeModifier_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("pixels");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<int>("zoom"); // 0: the event is ignored
    const int ctrl = Qt::ControlModifier;
    const int alt = Qt::AltModifier;
    QTest::newRow("ctrl notch up") << 0 << ctrl << QPoint() << QPoint(0, 120) << -15;
    QTest::newRow("ctrl notch down") << 0 << ctrl << QPoint() << QPoint(0, -120) << 15;
    QTest::newRow("half degree rounds up") << 0 << ctrl << QPoint() << QPoint(0, 20) << -3;
    QTest::newRow("negative half rounds up") << 0 << ctrl << QPoint() << QPoint(0, -20) << 2;
    QTest::newRow("pixel delta wins") << 0 << ctrl << QPoint(0, 10) << QPoint(0, 120) << -10;
    QTest::newRow("plain wheel scrolls the parent") << 0 << 0 << QPoint() << QPoint(0, 120) << 0;
    QTest::newRow("alt in the default scheme") << 0 << alt << QPoint() << QPoint(120, 0) << 0;
    QTest::newRow("ctrl+shift is not ctrl") << 0 << (ctrl | int(Qt::ShiftModifier)) << QPoint() << QPoint(0, 120) << 0;
    QTest::newRow("scheme 2 ignores ctrl") << 2 << ctrl << QPoint() << QPoint(0, 120) << 0;
    QTest::newRow("scheme 2 alt is horizontal") << 2 << alt << QPoint() << QPoint(120, 0) << -15;
    QTest::newRow("scheme 2 alt ignores vertical") << 2 << alt << QPoint() << QPoint(0, 120) << 0;
}

void tst_MvPureTimelineRulerWidget::wheelZoomsWithTheSchemeModifier()
{
    QFETCH(int, scheme);
    QFETCH(int, modifiers);
    QFETCH(QPoint, pixels);
    QFETCH(QPoint, angle);
    QFETCH(int, zoom);
    static_cast<MvShortcutEditManager*>(IMvShortcutEditManager::GetInstance())->setCurrentSchemeType(scheme);
    m_widget->ruler()->setVisualRange(0, 900);
    m_widget->setCurrentFrame(800);
    MvMemoryRuler* expected = referenceRuler();
    // Zooming in starts from a ratio that can go both ways.
    expected->zoom(zoom);
    expected->moveCurrentFrameToCenter();
    const qint64 startBefore = m_widget->visibleStartFrame();
    const float ratioBefore = m_widget->ruler()->zoomRatio();

    bool accepted = true;
    sendWheel(m_widget.data(), pixels, angle, Qt::KeyboardModifiers(modifiers), &accepted);
    const bool handled = zoom != 0 || (modifiers == Qt::AltModifier && scheme == 2);
    QCOMPARE(accepted, handled);
    if (!handled) {
        QCOMPARE(m_widget->ruler()->zoomRatio(), ratioBefore);
        QCOMPARE(m_widget->visibleStartFrame(), startBefore);
        return;
    }
    QCOMPARE(m_widget->ruler()->zoomRatio(), expected->zoomRatio());
    QCOMPARE(m_widget->visibleStartFrame(), expected->visibleStartFrame());
}

void tst_MvPureTimelineRulerWidget::propertyPanelEventZoomsWithoutConsumingIt()
{
    QCOMPARE(MvCustomEventDispatcher::instance().listenerCount(QStringLiteral("NotifyAdjustPropertyTimeLine")), 1);
    MvMemoryRuler* expected = referenceRuler();
    expected->zoom(-20);
    QSignalSpy zoomed(m_widget.data(), &MvPureTimelineRulerWidget::sigZoomChanged);
    const bool consumed
        = MvCustomEventDispatcher::instance().sendEvent(QStringLiteral("NotifyAdjustPropertyTimeLine"), { 20 });
    QVERIFY(!consumed);
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(m_widget->ruler()->zoomRatio(), expected->zoomRatio());
}

void tst_MvPureTimelineRulerWidget::cursorShowsWhatAPressWouldDo()
{
    m_widget->setCurrentFrame(600);
    QMouseEvent over(QEvent::MouseMove, QPointF(207, 10), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_widget.data(), &over);
    QCOMPARE(m_widget->cursor().shape(), Qt::ArrowCursor);
    QMouseEvent away(QEvent::MouseMove, QPointF(208, 10), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_widget.data(), &away);
    QCOMPARE(m_widget->cursor().shape(), Qt::SizeHorCursor);
    // While the handle is dragged the arrow stays, wherever the pointer goes.
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 10));
    moveWithLeftButton(m_widget.data(), QPoint(450, 10));
    QCOMPARE(m_widget->cursor().shape(), Qt::ArrowCursor);
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(450, 10));
}

void tst_MvPureTimelineRulerWidget::eventFiltersSeeEventsExceptDuringAZoomDrag()
{
    PressFilter filter(m_widget->eventFilterMgr());
    m_widget->eventFilterMgr()->addFilter(&filter);
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 20));
    QCOMPARE(filter.seen, 1);
    QCOMPARE(m_widget->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 20));
    // The filter took the press, so the release is an ordinary click of the ruler.
    QCOMPARE(m_widget->currentFrame(), qint64(900));

    // Away from the handle (now at 300) a press starts a zoom drag, whose moves stay with the ruler.
    filter.active = false;
    setClock(0);
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(400, 20));
    QCOMPARE(filter.seen, 2);
    setClock(500);
    moveWithLeftButton(m_widget.data(), QPoint(450, 20));
    QCOMPARE(filter.seen, 2);
    QVERIFY(m_widget->isDragging());
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(450, 20));
    // Once released, moves reach the filters again.
    QMouseEvent hover(QEvent::MouseMove, QPointF(460, 20), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_widget.data(), &hover);
    QCOMPARE(filter.seen, 3);
    m_widget->eventFilterMgr()->removeFilter(&filter);
}

void tst_MvPureTimelineRulerWidget::rulerChangesBecomeSignals()
{
    QSignalSpy zoom(m_widget.data(), &MvPureTimelineRulerWidget::sigZoomChanged);
    QSignalSpy current(m_widget.data(), &MvPureTimelineRulerWidget::sigCurrentFrameChanged);
    QSignalSpy total(m_widget.data(), &MvPureTimelineRulerWidget::sigTotalFramesChanged);
    QSignalSpy rate(m_widget.data(), &MvPureTimelineRulerWidget::sigFramerateChanged);
    QSignalSpy minimum(m_widget.data(), &MvPureTimelineRulerWidget::sigMinVisualChanged);
    QSignalSpy range(m_widget.data(), &MvPureTimelineRulerWidget::sigVisualRangeChanged);
    QSignalSpy width(m_widget.data(), &MvPureTimelineRulerWidget::sigViewWidthChanged);

    m_widget->setFramerate({ 25, 1 });
    QCOMPARE(rate.count(), 1);
    m_widget->setCurrentFrame(100);
    QCOMPARE(current.count(), 1);
    m_widget->ruler()->zoom(-45);
    QCOMPARE(zoom.count(), 1);
    QCOMPARE(zoom.at(0).at(0).toFloat(), m_widget->ruler()->zoomRatio());
    QCOMPARE(range.count(), 1);
    m_widget->setTotalFrames(3600);
    QCOMPARE(total.count(), 1);
    QCOMPARE(minimum.count(), 1);
    m_widget->resize(800, kHeight);
    QCOMPARE(width.count(), 1);
    QCOMPARE(m_widget->ruler()->viewWidth(), 800);
    QCOMPARE(rate.count(), 1);
    QCOMPARE(current.count(), 1);
}

void tst_MvPureTimelineRulerWidget::currentFrameChangeDoesNotRepaint()
{
    PaintCounter counter;
    m_widget->installEventFilter(&counter);
    QCoreApplication::processEvents();
    counter.paints = 0;
    m_widget->setCurrentFrame(700);
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, 0);
    // The same check sees a repaint where one is due.
    m_widget->setTotalFrames(2400);
    QTRY_VERIFY(counter.paints > 0);
    m_widget->removeEventFilter(&counter);
}

void tst_MvPureTimelineRulerWidget::paintedTicksAreTenAndFivePixelsTall_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("lift");
    QTest::newRow("1.0") << 1.0 << 0;
    QTest::newRow("1.25") << 1.25 << 2;
    QTest::newRow("1.5") << 1.5 << 0;
    QTest::newRow("1.75") << 1.75 << 2;
}

void tst_MvPureTimelineRulerWidget::paintedTicksAreTenAndFivePixelsTall()
{
    QFETCH(double, scale);
    QFETCH(int, lift);
    MvScreen::setDevicePixelRatio(scale);
    // A tiny font keeps the labels well clear of the tick rows.
    QFont font = m_widget->font();
    font.setPixelSize(5);
    m_widget->setFont(font);
    QPalette palette = m_widget->palette();
    palette.setColor(QPalette::Window, Qt::black);
    m_widget->setPalette(palette);
    // 3 frames a tick, 7.5 pixels apart: majors at 0, 37.5, 75, ...
    m_widget->ruler()->setVisualRange(0, 240);
    QCOMPARE(m_widget->ruler()->framesPerTick(), qint64(3));
    QImage image(m_widget->size(), QImage::Format_ARGB32_Premultiplied);
    m_widget->render(&image);

    const QRgb ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary()).rgb();
    const QRgb black = QColor(Qt::black).rgb();
    const auto tickHeight = [&](int x) {
        int height = 0;
        for (int y = kHeight - 1 - 14; y < kHeight; ++y)
            height += image.pixel(x, y) == ink ? 1 : 0;
        return height;
    };
    QCOMPARE(tickHeight(0), 10 + lift); // the lift raises the top; the tick still reaches the bottom
    QCOMPARE(tickHeight(7), 5 + lift); // the minor at 7.5 is drawn at 7
    QCOMPARE(tickHeight(37), 10 + lift);
    QCOMPARE(tickHeight(10), 0);
    QCOMPARE(image.pixel(37, kHeight - 11 - lift), black);
    QCOMPARE(image.pixel(37, kHeight - 10 - lift), ink);
    QCOMPARE(image.pixel(7, kHeight - 6 - lift), black);
    QCOMPARE(image.pixel(7, kHeight - 5 - lift), ink);

    // Labels sit in the band above the ticks, centred on labelled majors.
    const int labelWidth = QFontMetrics(font).boundingRect(QStringLiteral("00:00:00:00")).width();
    const auto inkInLabelBand = [&](int x0, int x1) {
        for (int y = kHeight - 25 - lift; y < kHeight - 10 - lift; ++y) {
            for (int x = qMax(0, x0); x <= x1; ++x) {
                if (image.pixel(x, y) != black)
                    return true;
            }
        }
        return false;
    };
    const int labelStep = labelWidth < 37 ? 37 : 75; // every fifth or every tenth tick
    QVERIFY(inkInLabelBand(labelStep - labelWidth / 2, labelStep + labelWidth / 2));
    const int gapStart = labelWidth - labelWidth / 2 + 1;
    const int gapEnd = labelStep - labelWidth / 2 - 1;
    QVERIFY(gapEnd > gapStart);
    QVERIFY(!inkInLabelBand(gapStart, gapEnd));
}

void tst_MvPureTimelineRulerWidget::destructionLeavesNoListener()
{
    m_widget.reset();
    QCOMPARE(MvCustomEventDispatcher::instance().listenerCount(QStringLiteral("NotifyAdjustPropertyTimeLine")), 0);
}

QTEST_MAIN(tst_MvPureTimelineRulerWidget)
#include "tst_MvPureTimelineRulerWidget.moc"
