#include "Memory/MvMemoryRuler.h"

#include <QScopedPointer>
#include <QtTest>

#include <functional>

namespace {
// Keeps every notification kind in order; optionally runs a callback inside the notification.
class KindRecorder : public IMvTimelineRulerEventObserover
{
public:
    QList<int> kinds;
    std::function<void(int)> onEvent;

    void onRulerEvent(int kind) override
    {
        kinds.append(kind);
        if (onEvent)
            onEvent(kind);
    }
};

// A ruler 1000 px wide over a one-minute timeline at 30 fps, zoomed out all the way.
void setUpMinute(IMvTimelineRuler& ruler)
{
    ruler.setFrameRate(30, 1);
    ruler.setViewWidth(1000);
    ruler.setTotalFrames(1800);
}
}

class tst_MvMemoryRuler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createInstanceGivesAFreshRulerZoomedOut();
    void widthAndLengthChangesKeepAFittedRulerFitted();
    void zoomStepsDoubleAndClamp();
    void zoomKeepsTheCurrentFrameUnderItsPixel();
    void zoomGestureHoldsItsAnchor();
    void setZoomRatioClampsToItsBounds();
    void frameAndPixelMapBackExactly_data();
    void frameAndPixelMapBackExactly();
    void framesInPixelsTruncates();
    void ticksMakeRoundUnitsAndStayApart_data();
    void ticksMakeRoundUnitsAndStayApart();
    void ticksAcrossEveryZoomStayApart();
    void currentFrameScrollsTheVisibleRange();
    void currentFrameIsClampedToTheTimeline();
    void moveCurrentFrameToCenterScrolls();
    void setVisualRangeShowsThoseFrames();
    void badInputIsRefused();
    void notificationsOnlyOnRealChange();
    void notificationOrderOfALengthChange();
    void observerMayLeaveDuringACallback();
    void observersAreCountedOnce();
};

void tst_MvMemoryRuler::createInstanceGivesAFreshRulerZoomedOut()
{
    QScopedPointer<IMvTimelineRuler> ruler(IMvTimelineRuler::createInstance());
    QVERIFY(dynamic_cast<MvMemoryRuler*>(ruler.data()));
    setUpMinute(*ruler);
    QCOMPARE(ruler->visibleStartFrame(), qint64(0));
    QCOMPARE(ruler->visibleEndFrame(), qint64(1800));
    QCOMPARE(ruler->visibleFrames(), qint64(1800));
    QCOMPARE(ruler->zoomRatio(), ruler->minZoomRatio());
    QCOMPARE(ruler->frameToPixel(1800), 1000);
    QCOMPARE(ruler->frameToPixel(900), 500);
    int num = 0;
    int den = 0;
    ruler->frameRate(&num, &den);
    QCOMPARE(num, 30);
    QCOMPARE(den, 1);
    QScopedPointer<IMvTimelineRuler> other(IMvTimelineRuler::createInstance());
    QVERIFY(other.data() != ruler.data());
}

void tst_MvMemoryRuler::widthAndLengthChangesKeepAFittedRulerFitted()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setViewWidth(3840);
    QCOMPARE(ruler.visibleEndFrame(), qint64(1800));
    QCOMPARE(ruler.frameToPixel(1800), 3840);
    ruler.setTotalFrames(30 * 3600 * 10);
    QCOMPARE(ruler.visibleEndFrame(), qint64(1080000));
    QCOMPARE(ruler.frameToPixel(1080000), 3840);

    // A zoomed-in ruler keeps its ratio when the view grows.
    ruler.zoom(-200);
    const float zoomed = ruler.zoomRatio();
    QVERIFY(zoomed > ruler.minZoomRatio());
    ruler.setViewWidth(2000);
    QCOMPARE(ruler.zoomRatio(), zoomed);
    QVERIFY(ruler.visibleEndFrame() <= ruler.totalFrames());
}

void tst_MvMemoryRuler::zoomStepsDoubleAndClamp()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    const float fit = ruler.zoomRatio();
    ruler.zoom(-45);
    QVERIFY(qAbs(ruler.zoomRatio() - 2 * fit) < 1e-4f);
    QCOMPARE(ruler.visibleFrames(), qint64(900));
    ruler.zoom(45);
    QVERIFY(qAbs(ruler.zoomRatio() - fit) < 1e-4f);
    ruler.zoom(500);
    QCOMPARE(ruler.zoomRatio(), ruler.minZoomRatio());
    ruler.zoom(-5000);
    QCOMPARE(ruler.zoomRatio(), ruler.maxZoomRatio());
    QCOMPARE(ruler.zoomRatio(), MvMemoryRuler::kMaxPixelsPerFrame);
    QVERIFY(ruler.visibleFrames() >= 1);
}

void tst_MvMemoryRuler::zoomKeepsTheCurrentFrameUnderItsPixel()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setCurrentFrame(1200);
    const int before = ruler.frameToPixel(1200);
    ruler.zoom(-90);
    QVERIFY(qAbs(ruler.frameToPixel(1200) - before) <= 1);
    QVERIFY(ruler.visibleStartFrame() > 0);

    // With the current frame off screen the view zooms about its middle.
    ruler.setVisualRange(0, 300);
    ruler.setCurrentFrame(0);
    const qint64 middle = ruler.pixelToFrame(500);
    ruler.setVisualRange(600, 900);
    const qint64 middleFar = ruler.pixelToFrame(500);
    ruler.zoom(-45);
    QVERIFY(qAbs(ruler.pixelToFrame(500) - middleFar) <= 1);
    QVERIFY(middle != middleFar);
}

void tst_MvMemoryRuler::zoomGestureHoldsItsAnchor()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setCurrentFrame(700);
    const int anchorX = ruler.frameToPixel(700);
    ruler.beginZoom();
    QVERIFY(ruler.isZooming());
    for (int i = 0; i < 20; ++i)
        ruler.zoom(i % 2 ? 7 : -13);
    // Only the rounding of the last step shows, the earlier ones do not add up.
    QVERIFY(qAbs(ruler.frameToPixel(700) - anchorX) <= qCeil(ruler.zoomRatio() / 2));
    ruler.endZoom();
    QVERIFY(!ruler.isZooming());
}

void tst_MvMemoryRuler::setZoomRatioClampsToItsBounds()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setZoomRatio(2.0f);
    QCOMPARE(ruler.zoomRatio(), 2.0f);
    QCOMPARE(ruler.visibleFrames(), qint64(500));
    ruler.setZoomRatio(1000.0f);
    QCOMPARE(ruler.zoomRatio(), ruler.maxZoomRatio());
    ruler.setZoomRatio(0.0001f);
    QCOMPARE(ruler.zoomRatio(), ruler.minZoomRatio());
}

void tst_MvMemoryRuler::frameAndPixelMapBackExactly_data()
{
    QTest::addColumn<float>("ratio");
    QTest::newRow("one pixel a frame") << 1.0f;
    QTest::newRow("one and a half") << 1.5f;
    QTest::newRow("seven") << 7.0f;
    QTest::newRow("largest") << MvMemoryRuler::kMaxPixelsPerFrame;
}

void tst_MvMemoryRuler::frameAndPixelMapBackExactly()
{
    QFETCH(float, ratio);
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setZoomRatio(ratio);
    ruler.setCurrentFrame(1000);
    for (qint64 frame = ruler.visibleStartFrame(); frame <= ruler.visibleEndFrame(); ++frame)
        QCOMPARE(ruler.pixelToFrame(ruler.frameToPixel(frame)), frame);
    QCOMPARE(ruler.pixelToFrame(0), ruler.visibleStartFrame());
}

void tst_MvMemoryRuler::framesInPixelsTruncates()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setZoomRatio(4.0f);
    QCOMPARE(ruler.framesInPixels(30), 7);
    QCOMPARE(ruler.framesInPixels(3), 0);
    ruler.setZoomRatio(0.625f);
    QCOMPARE(ruler.framesInPixels(30), 48);
    QCOMPARE(ruler.framesInPixels(-30), -48);
    // Zoomed out all the way, 600 px show 1800 frames: 30 px are 90 frames despite float rounding.
    ruler.setViewWidth(600);
    ruler.setZoomRatio(ruler.minZoomRatio());
    QCOMPARE(ruler.framesInPixels(30), 90);
}

void tst_MvMemoryRuler::ticksMakeRoundUnitsAndStayApart_data()
{
    QTest::addColumn<double>("pixelsPerFrame");
    QTest::addColumn<int>("fps");
    QTest::addColumn<qint64>("framesPerTick");
    QTest::newRow("every frame when zoomed in") << 24.0 << 30 << qint64(1);
    QTest::newRow("ten frames a label step") << 4.0 << 30 << qint64(2);
    QTest::newRow("half a second at 30") << 2.5 << 30 << qint64(3);
    QTest::newRow("a second at 30") << 1.2 << 30 << qint64(6);
    QTest::newRow("a second at 25") << 1.5 << 25 << qint64(5);
    QTest::newRow("24 fps skips to five seconds") << 0.5 << 24 << qint64(24);
    QTest::newRow("five seconds") << 0.25 << 30 << qint64(30);
    QTest::newRow("a minute") << 0.02 << 30 << qint64(360);
    QTest::newRow("ten hours shown on 3840") << 3840.0 / 1080000 << 30 << qint64(3600);
    QTest::newRow("beyond ten hours") << 2e-5 << 30 << qint64(20 * 3600 * 30 / 5);
}

void tst_MvMemoryRuler::ticksMakeRoundUnitsAndStayApart()
{
    QFETCH(double, pixelsPerFrame);
    QFETCH(int, fps);
    QFETCH(qint64, framesPerTick);
    QCOMPARE(MvMemoryRuler::framesPerTickFor(pixelsPerFrame, fps), framesPerTick);
}

void tst_MvMemoryRuler::ticksAcrossEveryZoomStayApart()
{
    MvMemoryRuler ruler;
    ruler.setFrameRate(30000, 1001);
    ruler.setViewWidth(3840);
    ruler.setTotalFrames(30 * 3600 * 10);
    qint64 previous = 0;
    while (ruler.zoomRatio() < ruler.maxZoomRatio()) {
        QVERIFY(ruler.tickSpacing() >= MvMemoryRuler::kMinTickSpacing);
        QCOMPARE(ruler.tickSpacing(), ruler.framesPerTick() * double(ruler.zoomRatio()));
        const qint64 major = ruler.framesPerTick() * 5;
        const bool roundFrames = major == 5 || major == 10 || major == 15;
        QVERIFY2(roundFrames || major % 30 == 0, qPrintable(QString::number(major)));
        QVERIFY(previous == 0 || ruler.framesPerTick() <= previous);
        previous = ruler.framesPerTick();
        ruler.zoom(-10);
    }
    QCOMPARE(ruler.framesPerTick(), qint64(1));
}

void tst_MvMemoryRuler::currentFrameScrollsTheVisibleRange()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setVisualRange(0, 200);
    QCOMPARE(ruler.visibleFrames(), qint64(200));
    ruler.setCurrentFrame(150);
    QCOMPARE(ruler.visibleStartFrame(), qint64(0));
    ruler.setCurrentFrame(230);
    QCOMPARE(ruler.visibleEndFrame(), qint64(230));
    QCOMPARE(ruler.frameToPixel(230), 1000);
    ruler.setCurrentFrame(10);
    QCOMPARE(ruler.visibleStartFrame(), qint64(10));
    QCOMPARE(ruler.frameToPixel(10), 0);
    ruler.setCurrentFrame(1800);
    QCOMPARE(ruler.visibleEndFrame(), qint64(1800));
}

void tst_MvMemoryRuler::currentFrameIsClampedToTheTimeline()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setCurrentFrame(-5);
    QCOMPARE(ruler.currentFrame(), qint64(0));
    ruler.setCurrentFrame(5000);
    QCOMPARE(ruler.currentFrame(), qint64(1800));
    ruler.setTotalFrames(900);
    QCOMPARE(ruler.currentFrame(), qint64(900));
}

void tst_MvMemoryRuler::moveCurrentFrameToCenterScrolls()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setVisualRange(0, 200);
    ruler.setCurrentFrame(190);
    ruler.moveCurrentFrameToCenter();
    QCOMPARE(ruler.visibleStartFrame(), qint64(90));
    QCOMPARE(ruler.frameToPixel(190), 500);
    // Near the end the range stays inside the timeline.
    ruler.setCurrentFrame(1790);
    ruler.moveCurrentFrameToCenter();
    QCOMPARE(ruler.visibleEndFrame(), qint64(1800));
}

void tst_MvMemoryRuler::setVisualRangeShowsThoseFrames()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setVisualRange(300, 800);
    QCOMPARE(ruler.visibleStartFrame(), qint64(300));
    QCOMPARE(ruler.visibleEndFrame(), qint64(800));
    qint64 start = 0;
    qint64 end = 0;
    ruler.visualRange(&start, &end);
    QCOMPARE(start, qint64(300));
    QCOMPARE(end, qint64(800));
    // A range past the end slides back inside the timeline.
    ruler.setVisualRange(1700, 2000);
    QCOMPARE(ruler.visibleEndFrame(), qint64(1800));
    QCOMPARE(ruler.visibleFrames(), qint64(300));
}

void tst_MvMemoryRuler::badInputIsRefused()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    KindRecorder recorder;
    ruler.addObserver(&recorder);
    ruler.setFrameRate(0, 1);
    ruler.setFrameRate(30, 0);
    ruler.setVisualRange(500, 500);
    ruler.setVisualRange(500, 100);
    ruler.setZoomRatio(-1.0f);
    ruler.addObserver(nullptr);
    QVERIFY(recorder.kinds.isEmpty());
    int num = 0;
    ruler.frameRate(&num, nullptr);
    QCOMPARE(num, 30);
    ruler.removeObserver(&recorder);
}

void tst_MvMemoryRuler::notificationsOnlyOnRealChange()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    KindRecorder recorder;
    ruler.addObserver(&recorder);
    ruler.setViewWidth(1000);
    ruler.setTotalFrames(1800);
    ruler.setFrameRate(30, 1);
    ruler.setCurrentFrame(0);
    ruler.zoom(0);
    ruler.zoom(100); // already zoomed out all the way
    ruler.moveCurrentFrameToCenter();
    QVERIFY(recorder.kinds.isEmpty());

    ruler.setFrameRate(25, 1);
    QCOMPARE(recorder.kinds, QList<int>({ 4 }));
    recorder.kinds.clear();
    ruler.zoom(-45);
    QCOMPARE(recorder.kinds, QList<int>({ 0, 3 }));
    recorder.kinds.clear();
    ruler.setCurrentFrame(100);
    QCOMPARE(recorder.kinds, QList<int>({ 1 }));
    recorder.kinds.clear();
    ruler.setCurrentFrame(1500);
    QCOMPARE(recorder.kinds, QList<int>({ 3, 1 }));
    ruler.removeObserver(&recorder);
}

void tst_MvMemoryRuler::notificationOrderOfALengthChange()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    ruler.setCurrentFrame(1800);
    KindRecorder recorder;
    ruler.addObserver(&recorder);
    QList<qint64> totalsSeen;
    recorder.onEvent = [&](int) { totalsSeen.append(ruler.visibleEndFrame()); };
    ruler.setTotalFrames(900);
    QCOMPARE(recorder.kinds, QList<int>({ 2, 5, 0, 3, 1 }));
    // The state is complete before the first observer hears of it.
    for (qint64 end : qAsConst(totalsSeen))
        QCOMPARE(end, qint64(900));
    ruler.removeObserver(&recorder);
}

void tst_MvMemoryRuler::observerMayLeaveDuringACallback()
{
    MvMemoryRuler ruler;
    setUpMinute(ruler);
    KindRecorder first;
    KindRecorder second;
    KindRecorder third;
    first.onEvent = [&](int) {
        ruler.removeObserver(&first);
        ruler.removeObserver(&second);
    };
    ruler.addObserver(&first);
    ruler.addObserver(&second);
    ruler.addObserver(&third);
    QCOMPARE(ruler.observerCount(), 3);
    ruler.setCurrentFrame(10);
    QCOMPARE(first.kinds, QList<int>({ 1 }));
    QVERIFY(second.kinds.isEmpty());
    QCOMPARE(third.kinds, QList<int>({ 1 }));
    QCOMPARE(ruler.observerCount(), 1);
    ruler.removeObserver(&third);
    QCOMPARE(ruler.observerCount(), 0);
}

void tst_MvMemoryRuler::observersAreCountedOnce()
{
    MvMemoryRuler ruler;
    KindRecorder recorder;
    ruler.addObserver(&recorder);
    ruler.addObserver(&recorder);
    QCOMPARE(ruler.observerCount(), 1);
    ruler.setTotalFrames(100);
    QCOMPARE(recorder.kinds.count(2), 1);
    ruler.removeObserver(&recorder);
    QCOMPARE(ruler.observerCount(), 0);
}

QTEST_GUILESS_MAIN(tst_MvMemoryRuler)
#include "tst_MvMemoryRuler.moc"
