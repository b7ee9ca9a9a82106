// A playhead step during playback: the overlay moves over the ruler, the render strip and the
// track area, and the window repaints what the step exposed.

#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvBenchHarness.h"
#include "MvBenchWidgets.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QCoreApplication>
#include <QPaintEvent>

#include <cstdio>

namespace {

constexpr int kWidth = 3840;
constexpr int kRulerHeight = 28;
constexpr int kStripHeight = 6;
constexpr int kHeight = 230;
constexpr double kStepGoal = 1.0;

// Counts its paints and how many of them covered the whole widget.
template <typename Widget> class Counted : public Widget
{
public:
    using Widget::Widget;
    int paints = 0;
    int wholePaints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        if ((QRegion(this->rect()) - event->region()).isEmpty())
            ++wholePaints;
        Widget::paintEvent(event);
    }
};

QImage image(const QColor& color, const QSize& size)
{
    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    result.fill(color);
    return result;
}

void playheadStep()
{
    MvMemoryTimeline timeline;
    timeline.addTrack(3);
    timeline.addClip(0, 2, 0, 30 * 600 - 1, QStringLiteral("ten minutes"));
    MvTimelinePresenter presenter(nullptr, &timeline);
    MvTimelineRulerPresenter rulerPresenter(&presenter, nullptr);
    MvTimelinePlayheadPresenter playheadPresenter(&presenter, nullptr);
    playheadPresenter.setPlayheadColor(MVWIDGETS::Normal, QColor(0x2e, 0xc4, 0xb6));
    playheadPresenter.addSplitButtonImage(MVWIDGETS::Normal, image(QColor(0x2e, 0xc4, 0xb6), QSize(40, 35)));

    QWidget window;
    window.resize(kWidth, kHeight);
    Counted<MvTimelineRulerWidget> ruler(&rulerPresenter, &window);
    ruler.setGeometry(0, 0, kWidth, kRulerHeight);
    Counted<MvTimelineRenderWidget> strip(&presenter, &window);
    strip.setGeometry(0, kRulerHeight, kWidth, kStripHeight);
    strip.setFinishedColor(Qt::green);
    strip.setUnFinishedColor(Qt::red);
    MvTimelinePlayheadWidget overlay(&playheadPresenter, &window);
    overlay.setGeometry(0, 0, kWidth, kHeight);
    window.show();
    QCoreApplication::processEvents();

    IMvTimelineRuler* model = timeline.ruler();
    model->setZoomRatio(2.0f); // two pixels a frame
    QCoreApplication::processEvents();
    const qint64 first = model->visibleStartFrame() + 20;
    const qint64 last = model->visibleEndFrame() - 20;
    IMvTimelinePlayhead* playhead = timeline.playhead();
    playhead->setCurrentFrame(first);
    QCoreApplication::processEvents();

    QImage target = MvBench::targetImage(window.size(), 1.0);
    MvBench::FloorWidget floor(window.size());
    ruler.paints = ruler.wholePaints = strip.paints = strip.wholePaints = 0;
    qint64 frame = first;
    int steps = 0;
    const MvBench::Figure figure = MvBench::measureAgainst(
        [&] {
            frame = frame >= last ? first : frame + 1;
            playhead->setCurrentFrame(frame);
            QCoreApplication::sendPostedEvents(&window, QEvent::UpdateRequest);
            ++steps;
        },
        [&] { MvBench::renderInto(&floor, &target); });
    // A step must cost less than filling the window once: it repaints only where the playhead was and is.
    MvBench::report(
        QStringLiteral("playhead step, window %1x%2 (floor: one fill of the window)").arg(kWidth).arg(kHeight),
        figure.milliseconds, figure.floorMilliseconds, kStepGoal);
    std::printf("  in %d steps the ruler painted %d times (%d of them whole), the render strip %d times (%d whole)\n",
        steps, ruler.paints, ruler.wholePaints, strip.paints, strip.wholePaints);
}

}

void registerPlayheadBenchmarks()
{
    MvBench::registerGroup("playhead step", &playheadStep);
}
