#include "MvTimelineRenderWidget.h"

#include "IMvTimeline.h"
#include "MvScreen.h"
#include "MvTimelineAccessible_p.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget_p.h"

#include <QPainter>

#include <algorithm>

namespace {
// Frames covered by finished stretches alone, and by any stretch: a sweep over the stretches'
// ends in order. A stretch holds its first and its last frame, as the render service counts them;
// one whose end is before its start holds none.
QPair<qint64, qint64> coveredFrames(const QList<MvRenderSegment>& segments)
{
    struct Edge
    {
        qint64 frame;
        int finished; // +1 where a finished stretch starts, -1 where it ends
        int unfinished;
    };
    QVector<Edge> edges;
    edges.reserve(segments.size() * 2);
    for (const MvRenderSegment& segment : segments) {
        if (segment.end < segment.start)
            continue;
        const bool unfinished = quint32(segment.unfinished) != 0;
        edges.append({ segment.start, unfinished ? 0 : 1, unfinished ? 1 : 0 });
        edges.append({ segment.end + 1, unfinished ? 0 : -1, unfinished ? -1 : 0 });
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.frame < b.frame; });
    qint64 rendered = 0;
    qint64 listed = 0;
    int finished = 0;
    int unfinished = 0;
    for (int i = 0; i < edges.size(); ++i) {
        finished += edges.at(i).finished;
        unfinished += edges.at(i).unfinished;
        const qint64 length = i + 1 < edges.size() ? edges.at(i + 1).frame - edges.at(i).frame : 0;
        if (finished > 0 || unfinished > 0)
            listed += length;
        if (finished > 0 && unfinished == 0)
            rendered += length;
    }
    return { rendered, listed };
}
}

MvTimelineRenderWidgetPrivate::MvTimelineRenderWidgetPrivate(MvTimelineRenderWidget* q, MvTimelinePresenter* presenter)
    : q_ptr(q)
    , timelinePresenter(presenter)
{
    IMvTimeline* timeline = presenter ? presenter->timeline() : nullptr;
    if (!timeline)
        return;
    renderService = timeline->renderService();
    if (renderService)
        renderService->addObserver(this);
    ruler = timeline->ruler();
    if (ruler)
        ruler->addObserver(this);
}

MvTimelineRenderWidgetPrivate::~MvTimelineRenderWidgetPrivate()
{
    if (renderService)
        renderService->removeObserver(this);
    if (ruler)
        ruler->removeObserver(this);
}

void MvTimelineRenderWidgetPrivate::onSegmentsChanged()
{
    rebuild();
    MvAccessibleAnnouncer::valueChanged(q_func());
}

double MvTimelineRenderWidgetPrivate::renderedShare() const
{
    if (!renderService)
        return 0.0;
    QList<MvRenderSegment> current;
    renderService->segments(current);
    const QPair<qint64, qint64> frames = coveredFrames(current);
    return frames.second > 0 ? double(frames.first) / double(frames.second) : 0.0;
}

void MvTimelineRenderWidgetPrivate::onRulerEvent(int kind)
{
    // A zoom always comes with a change of the visible range; that one is enough.
    if (kind == IMvTimelineRuler::VisibleRangeChanged || kind == IMvTimelineRuler::MinVisibleRangeChanged)
        rebuild();
}

void MvTimelineRenderWidgetPrivate::rebuild()
{
    Q_Q(MvTimelineRenderWidget);
    QVector<MvPixelSpan>& finishedSpans = strip.finishedSpans();
    QVector<MvPixelSpan>& unfinishedSpans = strip.unfinishedSpans();
    finishedSpans.resize(0);
    unfinishedSpans.resize(0);
    const int h = q->height();
    spanHeight = h;
    if (renderService && ruler) {
        renderService->segments(segments);
        for (const MvRenderSegment& segment : qAsConst(segments)) {
            if (segment.end < segment.start)
                continue;
            const MvPixelSpan span { ruler->frameToPixel(segment.start), ruler->frameToPixel(segment.end) };
            // Only the low 32 bits of the flag count.
            if (quint32(segment.unfinished) != 0)
                unfinishedSpans.append(span);
            else
                finishedSpans.append(span);
        }
    }
    // Runs of device pixels now, so that a paint fills a few of them whatever the segment count.
    strip.rebuild(q->devicePixelRatioF(), -1, q->width() + 1);
    q->update();
    QWidget* parent = q->parentWidget();
    if (MvScreen::isPixelRatio25_75() && parent) {
        // At fractional scales the strip's bottom row is shared with the parent; repaint the band.
        parent->update(QRect(0, parent->height() - h - 1, q->width(), h + 1));
    }
}

void MvTimelineRenderWidgetPrivate::paint()
{
    Q_Q(MvTimelineRenderWidget);
    QPainter painter(q);
    // An unset colour paints nothing until the style sets it.
    strip.paint(painter, q->width(), spanHeight, finishedColor, unFinishedColor);
}

MvTimelineRenderWidget::MvTimelineRenderWidget(MvTimelinePresenter* presenter, QWidget* parent)
    : MvWidget(parent)
    , d_ptr(new MvTimelineRenderWidgetPrivate(this, presenter))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

MvTimelineRenderWidget::~MvTimelineRenderWidget() = default;

QColor MvTimelineRenderWidget::finishedColor() const
{
    Q_D(const MvTimelineRenderWidget);
    return d->finishedColor;
}

void MvTimelineRenderWidget::setFinishedColor(const QColor& color)
{
    Q_D(MvTimelineRenderWidget);
    d->finishedColor = color;
}

QColor MvTimelineRenderWidget::unFinishedColor() const
{
    Q_D(const MvTimelineRenderWidget);
    return d->unFinishedColor;
}

void MvTimelineRenderWidget::setUnFinishedColor(const QColor& color)
{
    Q_D(MvTimelineRenderWidget);
    d->unFinishedColor = color;
}

double MvTimelineRenderWidget::renderedShare() const
{
    Q_D(const MvTimelineRenderWidget);
    return d->renderedShare();
}

void MvTimelineRenderWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    Q_D(MvTimelineRenderWidget);
    d->paint();
}
