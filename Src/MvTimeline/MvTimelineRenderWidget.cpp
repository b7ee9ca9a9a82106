#include "MvTimelineRenderWidget.h"

#include "IMvTimeline.h"
#include "MvScreen.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget_p.h"

#include <QPainter>

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

void MvTimelineRenderWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    Q_D(MvTimelineRenderWidget);
    d->paint();
}
