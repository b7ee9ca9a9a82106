#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemoryRuler.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvScreen.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"

#include <QPaintEvent>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {

constexpr int kWidth = 600;
constexpr int kStripHeight = 6;

// A ruler whose notifications the test sends itself, so that one kind can come without another.
class ScriptedRuler : public MvMemoryRuler
{
public:
    void addObserver(IMvTimelineRulerEventObserover* observer) override { observers.append(observer); }
    void removeObserver(IMvTimelineRulerEventObserover* observer) override { observers.removeAll(observer); }
    void announce(int kind)
    {
        for (IMvTimelineRulerEventObserover* observer : qAsConst(observers))
            observer->onRulerEvent(kind);
    }
    QList<IMvTimelineRulerEventObserover*> observers;
};

class ScriptedTimeline : public MvMemoryTimeline
{
public:
    IMvTimelineRuler* ruler() const override { return scripted ? scripted : MvMemoryTimeline::ruler(); }
    ScriptedRuler* scripted = nullptr;
};

// Remembers the region of every paint it receives.
class Host : public QWidget
{
public:
    QRegion painted;

protected:
    void paintEvent(QPaintEvent* event) override { painted += event->region(); }
};

const QColor kDone(40, 160, 90);
const QColor kPending(200, 70, 60);
const QColor kNothing(Qt::magenta);

}

class tst_MvTimelineRenderWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void registersWithRenderServiceAndRulerAndLeaves();
    void letsMouseClicksThrough();
    void coloursAreStyleSheetProperties();
    void segmentsArePaintedInTimelineCoordinates();
    void zeroWidthAndReversedSegmentsPaintNothing();
    void unsetColoursPaintNothing();
    void onlyVisibleRangeChangesRebuild_data();
    void onlyVisibleRangeChangesRebuild();
    void resizeAloneKeepsTheOldHeight();
    void fractionalScalesRepaintTheParentsBand_data();
    void fractionalScalesRepaintTheParentsBand();

private:
    QImage grab(MvTimelineRenderWidget* strip) const;
    MvMemoryRenderService* service() const { return static_cast<MvMemoryRenderService*>(m_timeline->renderService()); }

    QScopedPointer<ScriptedTimeline> m_timeline;
    QScopedPointer<MvTimelinePresenter> m_presenter;
};

void tst_MvTimelineRenderWidget::init()
{
    MvScreen::setDevicePixelRatio(1.0);
    m_timeline.reset(new ScriptedTimeline);
    m_timeline->addTrack(TrackType_Picture);
    m_timeline->addClip(0, ClipType_Video, 0, 1799, QStringLiteral("minute"));
    m_timeline->ruler()->setViewWidth(kWidth); // three frames a pixel
    m_presenter.reset(new MvTimelinePresenter(nullptr, m_timeline.data()));
}

void tst_MvTimelineRenderWidget::cleanup()
{
    m_presenter.reset();
    m_timeline.reset();
    MvScreen::setDevicePixelRatio(0.0);
}

QImage tst_MvTimelineRenderWidget::grab(MvTimelineRenderWidget* strip) const
{
    QImage image(strip->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(kNothing);
    strip->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

void tst_MvTimelineRenderWidget::registersWithRenderServiceAndRulerAndLeaves()
{
    auto* ruler = static_cast<MvMemoryRuler*>(m_timeline->ruler());
    const int rulerBefore = ruler->observerCount();
    {
        MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
        QCOMPARE(service()->observerCount(), 1);
        QCOMPARE(ruler->observerCount(), rulerBefore + 1);
    }
    QCOMPARE(service()->observerCount(), 0);
    QCOMPARE(ruler->observerCount(), rulerBefore);

    // Without a timeline there is nothing to follow and nothing to paint.
    MvTimelinePresenter empty(nullptr, nullptr);
    MvTimelineRenderWidget orphan(&empty, nullptr);
    orphan.resize(50, kStripHeight);
    orphan.setFinishedColor(kDone);
    QCOMPARE(grab(&orphan).pixel(10, 2), kNothing.rgb());
}

void tst_MvTimelineRenderWidget::letsMouseClicksThrough()
{
    MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
    QVERIFY(strip.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void tst_MvTimelineRenderWidget::coloursAreStyleSheetProperties()
{
    MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
    QVERIFY(!strip.finishedColor().isValid());
    QVERIFY(!strip.unFinishedColor().isValid());
    strip.setStyleSheet(QStringLiteral(
        "MvTimelineRenderWidget { qproperty-finishedColor: #28a05a; qproperty-unFinishedColor: #c8463c; }"));
    strip.ensurePolished();
    QCOMPARE(strip.finishedColor(), kDone);
    QCOMPARE(strip.unFinishedColor(), kPending);
    QVERIFY(strip.setProperty("finishedColor", QColor(Qt::blue)));
    QCOMPARE(strip.finishedColor(), QColor(Qt::blue));
}

void tst_MvTimelineRenderWidget::segmentsArePaintedInTimelineCoordinates()
{
    MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
    strip.resize(kWidth, kStripHeight);
    strip.setFinishedColor(kDone);
    strip.setUnFinishedColor(kPending);
    // Finished 0..599 (x 0..200), still to render 300..899 (x 100..300) drawn over it.
    service()->setSegments({ { 0, 599, 0 }, { 300, 899, 1 }, { 1500, 1799, quint64(1) << 32 } });
    const QImage image = grab(&strip);
    QCOMPARE(image.pixel(50, 3), kDone.rgb());
    QCOMPARE(image.pixel(99, 3), kDone.rgb());
    QCOMPARE(image.pixel(100, 3), kPending.rgb());
    QCOMPARE(image.pixel(250, 0), kPending.rgb());
    QCOMPARE(image.pixel(299, kStripHeight - 1), kPending.rgb());
    QCOMPARE(image.pixel(300, 3), kNothing.rgb());
    // A flag set only in its high bits counts as rendered.
    QCOMPARE(image.pixel(550, 3), kDone.rgb());

    // Scrolling moves the stretches with the ruler.
    m_timeline->ruler()->setVisualRange(300, 900);
    const QImage scrolled = grab(&strip);
    QCOMPARE(scrolled.pixel(10, 3), kPending.rgb());
    QCOMPARE(scrolled.pixel(599, 3), kNothing.rgb());
}

void tst_MvTimelineRenderWidget::zeroWidthAndReversedSegmentsPaintNothing()
{
    MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
    strip.resize(kWidth, kStripHeight);
    strip.setFinishedColor(kDone);
    strip.setUnFinishedColor(kPending);
    service()->setSegments({ { 300, 300, 0 }, { 900, 600, 1 } });
    const QImage image = grab(&strip);
    for (int x = 0; x < kWidth; ++x)
        QCOMPARE(image.pixel(x, 3), kNothing.rgb());
}

void tst_MvTimelineRenderWidget::unsetColoursPaintNothing()
{
    MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
    strip.resize(kWidth, kStripHeight);
    strip.setUnFinishedColor(kPending);
    service()->setSegments({ { 0, 299, 0 }, { 600, 899, 1 } });
    const QImage image = grab(&strip);
    QCOMPARE(image.pixel(50, 3), kNothing.rgb());
    QCOMPARE(image.pixel(250, 3), kPending.rgb());
}

void tst_MvTimelineRenderWidget::onlyVisibleRangeChangesRebuild_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("rebuilds");
    QTest::newRow("zoom alone") << 0 << false;
    QTest::newRow("current frame") << 1 << false;
    QTest::newRow("total frames") << 2 << false;
    QTest::newRow("visible range") << 3 << true;
    QTest::newRow("frame rate") << 4 << false;
    QTest::newRow("minimum visible range") << 5 << true;
}

void tst_MvTimelineRenderWidget::onlyVisibleRangeChangesRebuild()
{
    QFETCH(int, kind);
    QFETCH(bool, rebuilds);
    ScriptedRuler ruler;
    ruler.setViewWidth(kWidth);
    ruler.setTotalFrames(1800);
    m_timeline->scripted = &ruler;
    {
        MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
        QCOMPARE(ruler.observers.size(), 1);
        strip.resize(kWidth, kStripHeight);
        strip.setFinishedColor(kDone);
        service()->setSegments({ { 0, 599, 0 } });
        QCOMPARE(grab(&strip).pixel(250, 3), kNothing.rgb());

        ruler.setVisualRange(0, 600); // silently: the strip hears only what is announced
        ruler.announce(kind);
        QCOMPARE(grab(&strip).pixel(250, 3), rebuilds ? kDone.rgb() : kNothing.rgb());
    }
    QVERIFY(ruler.observers.isEmpty());
    m_timeline->scripted = nullptr;
}

void tst_MvTimelineRenderWidget::resizeAloneKeepsTheOldHeight()
{
    MvTimelineRenderWidget strip(m_presenter.data(), nullptr);
    strip.resize(kWidth, kStripHeight);
    strip.setFinishedColor(kDone);
    service()->setSegments({ { 0, 599, 0 } });
    strip.resize(kWidth, kStripHeight + 4);
    QImage image = grab(&strip);
    QCOMPARE(image.pixel(50, kStripHeight - 1), kDone.rgb());
    QCOMPARE(image.pixel(50, kStripHeight + 1), kNothing.rgb());
    service()->markFinished(600, 659);
    image = grab(&strip);
    QCOMPARE(image.pixel(50, kStripHeight + 3), kDone.rgb());
}

void tst_MvTimelineRenderWidget::fractionalScalesRepaintTheParentsBand_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("band");
    QTest::newRow("1.0") << 1.0 << false;
    QTest::newRow("1.25") << 1.25 << true;
    QTest::newRow("1.5") << 1.5 << false;
    QTest::newRow("1.75") << 1.75 << true;
}

void tst_MvTimelineRenderWidget::fractionalScalesRepaintTheParentsBand()
{
    QFETCH(double, scale);
    QFETCH(bool, band);
    Host host;
    host.resize(kWidth, 40);
    auto* strip = new MvTimelineRenderWidget(m_presenter.data(), &host);
    strip->setGeometry(0, 40 - kStripHeight, kWidth, kStripHeight);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    QCoreApplication::processEvents();
    host.painted = QRegion();

    MvScreen::setDevicePixelRatio(scale);
    service()->setSegments({ { 0, 299, 1 } });
    // The strip's own area is repainted in every case; the row above it only at 1.25 and 1.75.
    QTRY_VERIFY(host.painted.contains(QPoint(10, 40 - kStripHeight)));
    QCOMPARE(host.painted.contains(QPoint(10, 40 - kStripHeight - 1)), band);
}

QTEST_MAIN(tst_MvTimelineRenderWidget)
#include "tst_MvTimelineRenderWidget.moc"
