// The ruler and the time codes, each against a floor from the same run.

#include "IMvTimelineRuler.h"
#include "MvBenchHarness.h"
#include "MvBenchWidgets.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvRulerModel.h"
#include "MvScreen.h"
#include "MvTimelineRulerPresenter.h"

#include <QtMath>

namespace {

constexpr int kWidth = 3840;
constexpr int kHeight = 28;
constexpr double kRulerGoal = 5.0;

enum class Zoom
{
    Out,
    Middle,
    In
};

const char* zoomName(Zoom zoom)
{
    switch (zoom) {
    case Zoom::Out:
        return "zoomed out";
    case Zoom::Middle:
        return "middle zoom";
    case Zoom::In:
        return "zoomed in";
    }
    return "";
}

// A ruler widget over a timeline of `total` frames at 29.97, centred on its middle.
void setUp(MvPureTimelineRulerWidget* widget, qint64 total, Zoom zoom)
{
    widget->resize(kWidth, kHeight);
    widget->setFramerate({ 30000, 1001 });
    widget->setTotalFrames(total);
    widget->setCurrentFrame(total / 2 + 7);
    auto* ruler = static_cast<MvRulerModel*>(widget->ruler());
    const double lowest = ruler->minZoomRatio();
    const double highest = ruler->maxZoomRatio();
    if (zoom == Zoom::Middle)
        ruler->setZoomRatio(float(std::sqrt(lowest * highest)));
    else if (zoom == Zoom::In)
        ruler->setZoomRatio(float(highest));
    ruler->moveCurrentFrameToCenter();
}

// Repaints of one view: what the ruler costs while the playhead or anything over it moves.
void rulerPaint()
{
    for (double dpr : { 1.0, 2.0, 1.25 }) {
        MvScreen::setDevicePixelRatio(dpr);
        QImage image = MvBench::targetImage(QSize(kWidth, kHeight), dpr);
        MvBench::FloorWidget floor(QSize(kWidth, kHeight));
        for (qint64 total : { qint64(1800), qint64(30 * 3600 * 10) }) {
            for (Zoom zoom : { Zoom::Out, Zoom::Middle, Zoom::In }) {
                MvPureTimelineRulerWidget widget;
                setUp(&widget, total, zoom);
                const MvBench::Figure figure = MvBench::measureAgainst(
                    [&] { MvBench::renderInto(&widget, &image); }, [&] { MvBench::renderInto(&floor, &image); });
                const QString name = QStringLiteral("ruler %1x%2 @%3, %4, %5")
                                         .arg(kWidth)
                                         .arg(kHeight)
                                         .arg(dpr)
                                         .arg(total == 1800 ? QStringLiteral("1 minute") : QStringLiteral("10 hours"))
                                         .arg(QLatin1String(zoomName(zoom)));
                if (dpr == 1.0 || dpr == 2.0)
                    MvBench::report(name, figure.milliseconds, figure.floorMilliseconds, kRulerGoal);
                else
                    MvBench::report(name, figure.milliseconds, figure.floorMilliseconds,
                        QStringLiteral("(fractional scale, no goal)"));
            }
        }
    }
    MvScreen::setDevicePixelRatio(0.0);
}

// Scrolling one frame per paint: labels keep moving, so little is reused from paint to paint.
void rulerScroll()
{
    QImage image = MvBench::targetImage(QSize(kWidth, kHeight), 1.0);
    MvBench::FloorWidget floor(QSize(kWidth, kHeight));
    MvPureTimelineRulerWidget widget;
    setUp(&widget, 30 * 3600 * 10, Zoom::Middle);
    IMvTimelineRuler* ruler = widget.ruler();
    const qint64 first = ruler->visibleStartFrame();
    const qint64 visible = ruler->visibleFrames();
    qint64 shift = 0;
    const MvBench::Figure figure = MvBench::measureAgainst(
        [&] {
            shift = (shift + 1) % 5000;
            ruler->setVisualRange(first + shift, first + shift + visible - 1);
            MvBench::renderInto(&widget, &image);
        },
        [&] { MvBench::renderInto(&floor, &image); });
    MvBench::report(QStringLiteral("ruler @1, 10 hours, scrolled by a frame per paint"), figure.milliseconds,
        figure.floorMilliseconds, QStringLiteral("(labels move every paint, no goal)"));
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
    MvBench::registerGroup("ruler scroll", &rulerScroll);
    MvBench::registerGroup("time codes", &timecodes);
}
