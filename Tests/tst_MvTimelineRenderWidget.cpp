#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvRulerModel.h"
#include "MvStripPainter_p.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"

#include <QtTest>

using Spans = QVector<MvPixelSpan>;
using Runs = QList<QList<int>>; // x0, x1 (device columns), state (1 finished, 2 to render, 3 both)
Q_DECLARE_METATYPE(Spans)

namespace {

constexpr int kWidth = 600;
constexpr int kStripHeight = 6;
const QColor kDone(40, 160, 90);
const QColor kPending(200, 70, 60);
const QRgb kNothing = QColor(Qt::magenta).rgb();

// A ruler whose notifications the test sends itself, so that one kind can come without another.
class ScriptedRuler : public MvRulerModel
{
public:
    void addObserver(IMvTimelineRulerEventObserover* observer) override { observers.append(observer); }
    void removeObserver(IMvTimelineRulerEventObserover* observer) override { observers.removeAll(observer); }
    void announce(int kind) { observers.last()->onRulerEvent(kind); }
    QList<IMvTimelineRulerEventObserover*> observers;
};

class Timeline : public MvMemoryTimeline
{
public:
    IMvTimelineRuler* ruler() const override { return &scripted; }
    mutable ScriptedRuler scripted;
};

// A one-minute timeline, three frames a pixel on a 600 px ruler, with a strip over it.
struct Fixture
{
    Fixture()
    {
        timeline.scripted.setViewWidth(kWidth);
        timeline.scripted.setTotalFrames(1800);
        strip.resize(kWidth, kStripHeight);
    }
    MvMemoryRenderService* service() { return timeline.renderServiceImpl(); }
    QImage grab()
    {
        QImage image(strip.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(kNothing);
        strip.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

    Timeline timeline;
    MvTimelinePresenter presenter { nullptr, &timeline };
    MvTimelineRenderWidget strip { &presenter, nullptr };
};

}

class tst_MvTimelineRenderWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void observersAreRegisteredAndRemovedOnDestruction();
    void segmentsArePaintedInTimelineCoordinates();
    void onlyRangeNotificationsRebuild();
    void stretchesBecomeRunsOfDevicePixels_data();
    void stretchesBecomeRunsOfDevicePixels();
    void manySegmentsPaintFewRuns();
};

void tst_MvTimelineRenderWidget::observersAreRegisteredAndRemovedOnDestruction()
{
    Fixture f;
    QVERIFY(f.strip.testAttribute(Qt::WA_TransparentForMouseEvents));
    const int rulerObservers = f.timeline.scripted.observers.size();
    {
        MvTimelineRenderWidget other(&f.presenter, nullptr);
        QCOMPARE(f.service()->observerCount(), 2);
        QCOMPARE(f.timeline.scripted.observers.size(), rulerObservers + 1);
    }
    QCOMPARE(f.service()->observerCount(), 1);
    QCOMPARE(f.timeline.scripted.observers.size(), rulerObservers);
}

void tst_MvTimelineRenderWidget::segmentsArePaintedInTimelineCoordinates()
{
    Fixture f;
    // Rendered 0..599 (x 0..200) under still to render 300..899 (x 100..300); a flag only in the
    // high bits counts as rendered; a single frame or a reversed stretch shows nothing.
    f.service()->setSegments(
        { { 0, 599, 0 }, { 300, 899, 1 }, { 1500, 1799, quint64(1) << 32 }, { 1200, 1200, 1 }, { 1400, 1300, 1 } });
    QCOMPARE(f.grab().pixel(50, 3), kNothing); // no colours yet
    f.strip.setStyleSheet(QStringLiteral(
        "MvTimelineRenderWidget { qproperty-finishedColor: #28a05a; qproperty-unFinishedColor: #c8463c; }"));
    f.strip.ensurePolished();
    const QImage image = f.grab();
    QCOMPARE(image.pixel(99, 3), kDone.rgb());
    QCOMPARE(image.pixel(100, 0), kPending.rgb());
    QCOMPARE(image.pixel(299, kStripHeight - 1), kPending.rgb());
    QCOMPARE(image.pixel(300, 3), kNothing);
    QCOMPARE(image.pixel(400, 3), kNothing);
    QCOMPARE(image.pixel(450, 3), kNothing);
    QCOMPARE(image.pixel(550, 3), kDone.rgb());
    f.timeline.scripted.setVisualRange(300, 900); // scrolling moves the stretches along
    f.timeline.scripted.announce(3);
    QCOMPARE(f.grab().pixel(10, 3), kPending.rgb());
}

void tst_MvTimelineRenderWidget::onlyRangeNotificationsRebuild()
{
    Fixture f;
    f.strip.setFinishedColor(kDone);
    f.service()->setSegments({ { 0, 599, 0 } });
    // A rebuild shows itself by filling the strip's new height; a resize alone does not rebuild.
    for (int kind = 0; kind <= 5; ++kind) {
        const int height = kStripHeight + 1 + kind;
        f.strip.resize(kWidth, height);
        f.timeline.scripted.announce(kind);
        const bool rebuilt = f.grab().pixel(50, height - 1) == kDone.rgb();
        QVERIFY2(rebuilt == (kind == 3 || kind == 5), qPrintable(QStringLiteral("kind %1").arg(kind)));
    }
}

void tst_MvTimelineRenderWidget::stretchesBecomeRunsOfDevicePixels_data()
{
    QTest::addColumn<Spans>("finished");
    QTest::addColumn<Spans>("pending");
    QTest::addColumn<double>("scale");
    QTest::addColumn<Runs>("runs");
    QTest::newRow("rendered only") << Spans { { 0, 10 } } << Spans() << 1.0 << Runs { { 0, 10, 1 } };
    QTest::newRow("to render inside rendered")
        << Spans { { 0, 10 } } << Spans { { 3, 5 } } << 1.0 << Runs { { 0, 3, 1 }, { 3, 5, 3 }, { 5, 10, 1 } };
    QTest::newRow("states side by side") << Spans { { 0, 4 } } << Spans { { 4, 8 } } << 1.0
                                         << Runs { { 0, 4, 1 }, { 4, 8, 2 } };
    QTest::newRow("overlapping and touching stretches join")
        << Spans { { 5, 9 }, { 0, 3 }, { 3, 6 } } << Spans() << 1.0 << Runs { { 0, 9, 1 } };
    QTest::newRow("a single frame covers nothing") << Spans { { 5, 5 } } << Spans { { 7, 7 } } << 1.0 << Runs();
    // Pixel centres after 1.5 and not after 4.5: pixels 2, 3 and 4.
    QTest::newRow("at 1.5") << Spans { { 1, 3 } } << Spans() << 1.5 << Runs { { 2, 5, 1 } };
    QTest::newRow("at 2, gaps kept") << Spans { { 0, 1 }, { 2, 3 } } << Spans { { 1, 2 } } << 2.0
                                     << Runs { { 0, 2, 1 }, { 2, 4, 2 }, { 4, 6, 1 } };
}

// What a paint fills is worked out when the stretches change: runs of whole device columns,
// each rendered, to render, or both (the second drawn over the first).
void tst_MvTimelineRenderWidget::stretchesBecomeRunsOfDevicePixels()
{
    QFETCH(Spans, finished);
    QFETCH(Spans, pending);
    QFETCH(double, scale);
    QFETCH(Runs, runs);
    MvStripRuns strip;
    strip.finishedSpans() = finished;
    strip.unfinishedSpans() = pending;
    strip.rebuild(scale);
    Runs actual;
    for (const MvStripRuns::Run& run : strip.runs())
        actual.append({ run.x0, run.x1, run.state });
    QCOMPARE(actual, runs);
}

// Ten thousand alternating segments, six to a pixel: every pixel holds both states, so a paint
// fills one run whatever the segment count, and it shows the colour of the segments to render.
void tst_MvTimelineRenderWidget::manySegmentsPaintFewRuns()
{
    Fixture f;
    f.strip.setFinishedColor(kDone);
    f.strip.setUnFinishedColor(kPending);
    QList<MvRenderSegment> segments;
    for (int i = 0; i < 10000; ++i)
        segments.append({ qint64(i) / 2, qint64(i) / 2 + 3, quint64(i % 2) });
    f.service()->setSegments(segments); // three frames a pixel: x 0..1667
    const QImage image = f.grab();
    for (int x : { 0, 299, kWidth - 1 })
        QCOMPARE(image.pixel(x, 3), kPending.rgb());

    MvStripRuns strip;
    for (const MvRenderSegment& segment : qAsConst(segments)) {
        const MvPixelSpan span { f.timeline.scripted.frameToPixel(segment.start),
            f.timeline.scripted.frameToPixel(segment.end) };
        (segment.unfinished ? strip.unfinishedSpans() : strip.finishedSpans()).append(span);
    }
    strip.rebuild(1.0);
    QCOMPARE(strip.runs().size(), 1);
    QCOMPARE(int(strip.runs().constFirst().state), MvStripRuns::Finished | MvStripRuns::Unfinished);
}

QTEST_MAIN(tst_MvTimelineRenderWidget)
#include "tst_MvTimelineRenderWidget.moc"
