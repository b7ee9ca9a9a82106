// The ruler, the render strip and the time codes, each against a floor from the same run.

#include "IMvTimelineRenderService.h"
#include "Memory/MvMemoryRenderService.h"
#include "MvRulerModel.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvBenchHarness.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvRulerPainter_p.h"
#include "MvScreen.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>
#include <QtMath>

namespace {

// The floor of a widget paint: the same widget size, filling its background and nothing else.
class BackgroundOnly : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().brush(QPalette::Window));
    }
};

double widgetFloor(const QSize& size, QImage& image)
{
    BackgroundOnly floor;
    floor.resize(size);
    return MvBench::measure([&] { floor.render(&image, QPoint(), QRegion(), QWidget::RenderFlags()); });
}

constexpr int kWidth = 3840;
constexpr int kHeight = 28;

QImage target(double dpr)
{
    QImage image(qCeil(kWidth * dpr), qCeil(kHeight * dpr), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::black);
    return image;
}

// What a paint costs at least: opening a painter on the strip and filling its background.
double floorFor(QImage& image)
{
    const QRect rect(0, 0, kWidth, kHeight);
    return MvBench::measure([&] {
        QPainter painter(&image);
        painter.fillRect(rect, QColor(0x1f, 0x20, 0x24));
    });
}

void rulerPaint()
{
    struct Case
    {
        const char* name;
        qint64 total;
        bool zoomedIn;
    };
    const Case cases[] = {
        { "1 minute, zoomed out", 1800, false },
        { "1 minute, zoomed in", 1800, true },
        { "10 hours, zoomed out", 30 * 3600 * 10, false },
        { "10 hours, zoomed in", 30 * 3600 * 10, true },
    };
    for (double dpr : { 1.0, 1.25 }) {
        MvScreen::setDevicePixelRatio(dpr);
        QImage image = target(dpr);
        const double floor = floorFor(image);
        const QRect rect(0, 0, kWidth, kHeight);
        for (const Case& c : cases) {
            MvRulerModel ruler;
            ruler.setFrameRate(30000, 1001);
            ruler.setViewWidth(kWidth);
            ruler.setTotalFrames(c.total);
            ruler.setCurrentFrame(c.total / 2 + 7);
            if (c.zoomedIn)
                ruler.setZoomRatio(ruler.maxZoomRatio());
            ruler.moveCurrentFrameToCenter();
            MvRulerLayout scratch;
            const double ms = MvBench::measure([&] {
                QPainter painter(&image);
                MvRulerPainter::paint(painter, rect, QColor(0x1f, 0x20, 0x24), &ruler, scratch);
            });
            MvBench::report(QStringLiteral("ruler paint %1x%2 @%3, %4 (%5 ticks)")
                                .arg(kWidth)
                                .arg(kHeight)
                                .arg(dpr)
                                .arg(QLatin1String(c.name))
                                .arg(scratch.ticks.size()),
                ms, floor, QStringLiteral("goal < 0.5 ms"));
            // For comparison: the same ticks filled as one path.
            const double pathMs = MvBench::measure([&] {
                QPainter painter(&image);
                QPainterPath path;
                const double tickWidth = 1.0 / dpr;
                for (const MvRulerTick& tick : qAsConst(scratch.ticks))
                    path.addRect(QRectF(tick.left, tick.top, tickWidth, kHeight));
                painter.fillPath(path, Qt::gray);
            });
            const double tickMs = MvBench::measure([&] {
                QPainter painter(&image);
                MvRulerPainter::fillTicks(painter, scratch, 1.0 / dpr, kHeight, 0, Qt::gray);
            });
            MvBench::report(QStringLiteral("  ticks only, snapped rectangles"), tickMs, floor, QString());
            MvBench::report(QStringLiteral("  ticks only, one path (the old way)"), pathMs, floor, QString());
        }
    }
    MvScreen::setDevicePixelRatio(0.0);

    // The whole widget, as a host shows it, against the same widget only filling its background.
    for (qint64 total : { qint64(1800), qint64(30 * 3600 * 10) }) {
        MvPureTimelineRulerWidget widget;
        widget.resize(kWidth, kHeight);
        widget.setFramerate({ 30000, 1001 });
        widget.setTotalFrames(total);
        widget.setCurrentFrame(total / 2);
        QImage image = target(1.0);
        const double floor = widgetFloor(widget.size(), image);
        const double ms = MvBench::measure([&] { widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags()); });
        MvBench::report(QStringLiteral("pure ruler widget render, %1 frames, zoomed out").arg(total), ms, floor,
            QStringLiteral("goal < 0.5 ms"));
    }
}

QList<MvRenderSegment> manySegments(qint64 total, int count)
{
    // Alternating rendered and pending stretches over the whole timeline, with overlaps.
    QList<MvRenderSegment> segments;
    segments.reserve(count);
    const qint64 length = total / count;
    for (int i = 0; i < count; ++i) {
        const qint64 start = i * length;
        segments.append({ start, start + length + (i % 3), quint64(i % 2) });
    }
    return segments;
}

void renderStrip()
{
    constexpr int kStripHeight = 6;
    for (bool zoomedIn : { false, true }) {
        MvMemoryTimeline timeline;
        timeline.addTrack(3);
        timeline.addClip(0, 2, 0, 30 * 3600 - 1, QStringLiteral("hour"));
        IMvTimelineRuler* ruler = timeline.ruler();
        ruler->setViewWidth(kWidth);
        ruler->setCurrentFrame(30 * 1800);
        if (zoomedIn)
            ruler->setZoomRatio(1.0f);
        MvTimelinePresenter presenter(nullptr, &timeline);
        MvTimelineRenderWidget strip(&presenter, nullptr);
        strip.resize(kWidth, kStripHeight);
        strip.setFinishedColor(Qt::green);
        strip.setUnFinishedColor(Qt::red);
        auto* service = static_cast<MvMemoryRenderService*>(timeline.renderService());
        const QList<MvRenderSegment> first = manySegments(ruler->totalFrames(), 10000);
        QList<MvRenderSegment> second = first;
        second.last().unfinished ^= 1u;

        QImage image(kWidth, kStripHeight, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        const double floor = widgetFloor(strip.size(), image);
        bool flip = false;
        const double ms = MvBench::measure([&] {
            // Each change of the list makes the strip rebuild; then it is painted.
            flip = !flip;
            service->setSegments(flip ? first : second);
            strip.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        });
        const QString zoom = zoomedIn ? QStringLiteral("zoomed in") : QStringLiteral("zoomed out");
        MvBench::report(QStringLiteral("render strip rebuild + paint, 10000 segments, %1").arg(zoom), ms, floor,
            QStringLiteral("goal < 1 ms"));
        const double paintMs
            = MvBench::measure([&] { strip.render(&image, QPoint(), QRegion(), QWidget::RenderFlags()); });
        MvBench::report(QStringLiteral("  paint only"), paintMs, floor, QString());

        // For comparison: the same rectangles filled as two paths.
        QPainterPath done;
        QPainterPath pending;
        for (const MvRenderSegment& segment : first) {
            if (segment.end < segment.start)
                continue;
            const int x0 = ruler->frameToPixel(segment.start);
            const int x1 = ruler->frameToPixel(segment.end);
            (segment.unfinished ? pending : done).addRect(QRectF(x0, 0, x1 - x0, kStripHeight));
        }
        const double pathMs = MvBench::measure([&] {
            QPainter painter(&image);
            painter.fillPath(done, Qt::green);
            painter.fillPath(pending, Qt::red);
        });
        MvBench::report(QStringLiteral("  paint as two paths (the old way)"), pathMs, floor, QString());
    }
}

void timecodes()
{
    int frame = 0;
    int sink = 0;
    const double floor = MvBench::measure([&] { sink += QString::number(++frame).size(); });
    frame = 0;
    const double ms
        = MvBench::measure([&] { sink += MvTimelineRulerPresenter::formatTimecode(++frame * 7, 30000, 1001).size(); });
    MvBench::report(QStringLiteral("time code per call (floor: QString::number)"), ms, floor, QString());
    if (sink == 42)
        std::puts("");
}

}

void registerRulerBenchmarks()
{
    MvBench::registerGroup("ruler paint", &rulerPaint);
    MvBench::registerGroup("render strip", &renderStrip);
    MvBench::registerGroup("time codes", &timecodes);
}
