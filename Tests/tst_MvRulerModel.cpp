#include "MvRulerModel.h"

#include <QScopedPointer>
#include <QtTest>

#include <functional>

namespace {
// Keeps every notification kind in order; optionally runs a callback inside the notification.
class KindRecorder : public IMvTimelineRulerEventObserover
{
public:
    QList<int> kinds;
    std::function<void()> onEvent;

    void onRulerEvent(int kind) override
    {
        kinds.append(kind);
        if (onEvent)
            onEvent();
    }
};
}

class tst_MvRulerModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void zoomFitsTheViewDoublesPerStepAndClamps();
    void pixelConversionsAreExact();
    void ticksAcrossEveryZoomMakeRoundUnitsAndStayApart();
    void currentFrameAndRangeStayInsideTheTimeline();
    void observersAreToldOfRealChangesOnlyAndAfterTheState();

private:
    // 1000 px wide over a one-minute timeline at 30 fps, zoomed out all the way.
    QScopedPointer<IMvTimelineRuler> m_ruler;
    MvRulerModel* memory() const { return static_cast<MvRulerModel*>(m_ruler.data()); }
};

void tst_MvRulerModel::init()
{
    m_ruler.reset(IMvTimelineRuler::createInstance());
    QVERIFY(dynamic_cast<MvRulerModel*>(m_ruler.data()));
    m_ruler->setFrameRate(30, 1);
    m_ruler->setViewWidth(1000);
    m_ruler->setTotalFrames(1800);
}

void tst_MvRulerModel::zoomFitsTheViewDoublesPerStepAndClamps()
{
    QCOMPARE(m_ruler->visibleEndFrame(), qint64(1800));
    const float fit = m_ruler->zoomRatio();
    QCOMPARE(fit, m_ruler->minZoomRatio());
    m_ruler->zoom(-45);
    QVERIFY(qAbs(m_ruler->zoomRatio() - 2 * fit) < 1e-4f);
    QCOMPARE(m_ruler->visibleFrames(), qint64(900));
    m_ruler->zoom(-5000);
    QCOMPARE(m_ruler->zoomRatio(), MvRulerModel::kMaxPixelsPerFrame);
    m_ruler->zoom(500);
    QCOMPARE(m_ruler->zoomRatio(), m_ruler->minZoomRatio());
    // A fitted ruler stays fitted to a new width and length.
    m_ruler->setViewWidth(3840);
    m_ruler->setTotalFrames(30 * 3600 * 10);
    QCOMPARE(m_ruler->visibleEndFrame(), qint64(1080000));
}

void tst_MvRulerModel::pixelConversionsAreExact()
{
    for (float ratio : { 1.0f, 1.5f, MvRulerModel::kMaxPixelsPerFrame }) {
        m_ruler->setZoomRatio(ratio);
        m_ruler->setCurrentFrame(1000);
        for (qint64 frame = m_ruler->visibleStartFrame(); frame <= m_ruler->visibleEndFrame(); ++frame)
            QCOMPARE(m_ruler->pixelToFrame(m_ruler->frameToPixel(frame)), frame);
    }
    // Zoomed out all the way, 600 px show 1800 frames: 30 px are 90 frames despite float rounding.
    m_ruler->setViewWidth(600);
    m_ruler->setZoomRatio(m_ruler->minZoomRatio());
    QCOMPARE(m_ruler->framesInPixels(30), 90);
}

void tst_MvRulerModel::ticksAcrossEveryZoomMakeRoundUnitsAndStayApart()
{
    m_ruler->setFrameRate(30000, 1001);
    m_ruler->setViewWidth(3840);
    m_ruler->setTotalFrames(30 * 3600 * 10);
    qint64 previous = m_ruler->framesPerTick();
    while (m_ruler->zoomRatio() < memory()->maxZoomRatio()) {
        QVERIFY(m_ruler->tickSpacing() >= MvRulerModel::kMinTickSpacing);
        const qint64 major = m_ruler->framesPerTick() * 5;
        QVERIFY2(major == 5 || major == 10 || major == 15 || major % 30 == 0, qPrintable(QString::number(major)));
        QVERIFY(m_ruler->framesPerTick() <= previous);
        previous = m_ruler->framesPerTick();
        m_ruler->zoom(-10);
    }
    QCOMPARE(m_ruler->framesPerTick(), qint64(1));
}

void tst_MvRulerModel::currentFrameAndRangeStayInsideTheTimeline()
{
    m_ruler->setVisualRange(0, 200);
    m_ruler->setCurrentFrame(230);
    QCOMPARE(m_ruler->visibleEndFrame(), qint64(230));
    m_ruler->setCurrentFrame(10);
    QCOMPARE(m_ruler->visibleStartFrame(), qint64(10));
    m_ruler->setCurrentFrame(-5);
    QCOMPARE(m_ruler->currentFrame(), qint64(0));
    m_ruler->setCurrentFrame(5000);
    QCOMPARE(m_ruler->currentFrame(), qint64(1800));
    m_ruler->setVisualRange(1700, 2000);
    QCOMPARE(m_ruler->visibleEndFrame(), qint64(1800));
    m_ruler->setTotalFrames(900);
    QCOMPARE(m_ruler->currentFrame(), qint64(900));
}

void tst_MvRulerModel::observersAreToldOfRealChangesOnlyAndAfterTheState()
{
    KindRecorder recorder;
    m_ruler->addObserver(&recorder);
    // Nothing changes: the same values again, a zoom beyond the limit, refused input.
    m_ruler->setTotalFrames(1800);
    m_ruler->zoom(100);
    m_ruler->setVisualRange(500, 500);
    QVERIFY(recorder.kinds.isEmpty());
    m_ruler->setFrameRate(25, 1);
    m_ruler->zoom(-45);
    m_ruler->setCurrentFrame(100);
    m_ruler->setCurrentFrame(1500);
    QCOMPARE(recorder.kinds, QList<int>({ 4, 0, 3, 1, 3, 1 }));
    // A shorter timeline: every kind it causes, each told once the whole state is new.
    m_ruler->zoom(500);
    m_ruler->setCurrentFrame(1800);
    recorder.kinds.clear();
    QList<qint64> endsSeen;
    recorder.onEvent = [&] { endsSeen.append(m_ruler->visibleEndFrame()); };
    m_ruler->setTotalFrames(900);
    QCOMPARE(recorder.kinds, QList<int>({ 2, 5, 0, 3, 1 }));
    QCOMPARE(endsSeen, QList<qint64>({ 900, 900, 900, 900, 900 }));
    m_ruler->removeObserver(&recorder);

    // Observers count once, and one may send another away while being told.
    KindRecorder second;
    recorder.kinds.clear();
    recorder.onEvent = [&] { m_ruler->removeObserver(&second); };
    m_ruler->addObserver(&recorder);
    m_ruler->addObserver(&recorder);
    m_ruler->addObserver(&second);
    m_ruler->addObserver(nullptr);
    QCOMPARE(memory()->observerCount(), 2);
    m_ruler->setCurrentFrame(10);
    QCOMPARE(recorder.kinds, QList<int>({ 1 }));
    QVERIFY(second.kinds.isEmpty());
    m_ruler->removeObserver(&recorder);
    QCOMPARE(memory()->observerCount(), 0);
}

QTEST_GUILESS_MAIN(tst_MvRulerModel)
#include "tst_MvRulerModel.moc"
