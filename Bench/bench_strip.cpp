// The render-progress strip with many segments, against the same widget filling its background.

#include "IMvTimelineRenderService.h"
#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvBenchHarness.h"
#include "MvBenchWidgets.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"

namespace {

constexpr int kWidth = 3840;
constexpr int kStripHeight = 6;
constexpr int kSegments = 10000;
constexpr double kPaintGoal = 10.0;

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

void measureStrip(bool zoomedIn, double dpr)
{
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
    const QList<MvRenderSegment> first = manySegments(ruler->totalFrames(), kSegments);
    QList<MvRenderSegment> second = first;
    second.last().unfinished ^= 1u;
    service->setSegments(first);

    QImage image = MvBench::targetImage(strip.size(), dpr);
    MvBench::FloorWidget floor(strip.size());
    const auto paintFloor = [&] { MvBench::renderInto(&floor, &image); };
    const QString what = QStringLiteral("render strip @%1, %2 segments, %3")
                             .arg(dpr)
                             .arg(kSegments)
                             .arg(zoomedIn ? QStringLiteral("zoomed in") : QStringLiteral("zoomed out"));
    const MvBench::Figure paint = MvBench::measureAgainst([&] { MvBench::renderInto(&strip, &image); }, paintFloor);
    MvBench::report(what + QStringLiteral(", paint"), paint.milliseconds, paint.floorMilliseconds, kPaintGoal);

    bool flip = false;
    const MvBench::Figure rebuild = MvBench::measureAgainst(
        [&] {
            // Each change of the list makes the strip rebuild; then it is painted.
            flip = !flip;
            service->setSegments(flip ? second : first);
            MvBench::renderInto(&strip, &image);
        },
        paintFloor);
    MvBench::report(what + QStringLiteral(", rebuild + paint"), rebuild.milliseconds, rebuild.floorMilliseconds,
        QStringLiteral("(walks every segment)"));
}

void renderStrip()
{
    for (double dpr : { 1.0, 2.0 }) {
        for (bool zoomedIn : { false, true })
            measureStrip(zoomedIn, dpr);
    }
}

}

void registerStripBenchmarks()
{
    MvBench::registerGroup("render strip", &renderStrip);
}
