#include "MvPureTimelineRulerWidget.h"

#include "MvCustomEvent.h"
#include "MvEventFilterManager.h"
#include "MvPureTimelineRulerWidget_p.h"
#include "MvRulerPainter_p.h"
#include "MvTimelineAccessible_p.h"

#include <QPainter>

#include <algorithm>

MvPureTimelineRulerWidgetPrivate::MvPureTimelineRulerWidgetPrivate(
    MvPureTimelineRulerWidget* q, IMvTimelineRuler* ownRuler)
    : ruler(ownRuler ? ownRuler : IMvTimelineRuler::createInstance())
    , q_ptr(q)
    , target(this)
    , gesture(nullptr)
    , eventFilterMgr(new MvEventFilterManager)
{
    ruler->addObserver(this);
}

MvPureTimelineRulerWidgetPrivate::~MvPureTimelineRulerWidgetPrivate()
{
    ruler->removeObserver(this);
    delete ruler;
    // The gesture and its timer refer to this object; they go before it does. Its removal is an
    // event of the widget, which must not find it half destroyed.
    MvRulerGesture* doomed = gesture;
    gesture = nullptr;
    delete doomed;
    delete eventFilterMgr;
}

void MvPureTimelineRulerWidgetPrivate::onRulerEvent(int kind)
{
    Q_Q(MvPureTimelineRulerWidget);
    switch (kind) {
    case IMvTimelineRuler::ZoomChanged:
        q->update();
        Q_EMIT q->sigZoomChanged(ruler->zoomRatio());
        break;
    case IMvTimelineRuler::CurrentFrameChanged:
        // The handle is drawn by whoever shows the current frame; the ruler itself is unchanged.
        Q_EMIT q->sigCurrentFrameChanged();
        MvAccessibleAnnouncer::valueChanged(q);
        break;
    case IMvTimelineRuler::TotalFramesChanged:
        q->update();
        Q_EMIT q->sigTotalFramesChanged();
        break;
    case IMvTimelineRuler::VisibleRangeChanged:
        q->update();
        Q_EMIT q->sigVisualRangeChanged();
        break;
    case IMvTimelineRuler::FrameRateChanged:
        q->update();
        Q_EMIT q->sigFramerateChanged();
        break;
    case IMvTimelineRuler::MinVisibleRangeChanged:
        q->update();
        Q_EMIT q->sigMinVisualChanged();
        break;
    default:
        break;
    }
}

int MvPureTimelineRulerWidgetPrivate::GestureTarget::handleX() const
{
    return d->ruler->frameToPixel(d->ruler->currentFrame());
}

void MvPureTimelineRulerWidgetPrivate::GestureTarget::beginZoom()
{
    d->ruler->beginZoom();
}

void MvPureTimelineRulerWidgetPrivate::GestureTarget::endZoom()
{
    d->ruler->endZoom();
}

void MvPureTimelineRulerWidgetPrivate::GestureTarget::zoom(int delta)
{
    d->ruler->zoom(delta);
}

void MvPureTimelineRulerWidgetPrivate::GestureTarget::dragHandleTo(int x)
{
    d->ruler->setCurrentFrame(std::max<qint64>(d->ruler->pixelToFrame(x), 0));
}

void MvPureTimelineRulerWidgetPrivate::GestureTarget::click(int x)
{
    const qint64 frame = d->ruler->pixelToFrame(x);
    d->ruler->setCurrentFrame(frame > 0 ? frame : 0);
}

void MvPureTimelineRulerWidgetPrivate::GestureTarget::edgeScroll(bool backward)
{
    MvRulerGesture::stepCurrentFrame(d->ruler, backward);
}

void MvPureTimelineRulerWidgetPrivate::GestureTarget::moveCurrentFrameToCenter()
{
    d->ruler->moveCurrentFrameToCenter();
}

MvPureTimelineRulerWidget::MvPureTimelineRulerWidget(QWidget* parent)
    : MvPureTimelineRulerWidget(nullptr, parent)
{
}

MvPureTimelineRulerWidget::MvPureTimelineRulerWidget(IMvTimelineRuler* ruler, QWidget* parent)
    : MvWidget(parent)
    , d_ptr(new MvPureTimelineRulerWidgetPrivate(this, ruler))
{
    Q_D(MvPureTimelineRulerWidget);
    // Made once the private object exists: adding a child already sends this widget an event.
    d->gesture = new MvRulerGesture(this, &d->target);
    setAttribute(Qt::WA_MouseTracking);
    // The property panel's timeline zoom control speaks through this event.
    new MvCustomEventListener(
        this, QLatin1String(MvEventName::NotifyAdjustPropertyTimeLine), [this](const MvCustomEventImp& event) {
            Q_D(MvPureTimelineRulerWidget);
            d->ruler->zoom(-event.intValue());
            return false;
        });
}

MvPureTimelineRulerWidget::~MvPureTimelineRulerWidget() = default;

qint64 MvPureTimelineRulerWidget::currentFrame()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->ruler->currentFrame();
}

void MvPureTimelineRulerWidget::setCurrentFrame(qint64 frame)
{
    Q_D(MvPureTimelineRulerWidget);
    d->ruler->setCurrentFrame(frame);
}

double MvPureTimelineRulerWidget::currentFramePixel()
{
    Q_D(MvPureTimelineRulerWidget);
    return double(d->ruler->frameToPixel(d->ruler->currentFrame()));
}

void MvPureTimelineRulerWidget::setCurrentFramePixel(double x)
{
    Q_D(MvPureTimelineRulerWidget);
    const qint64 frame = d->ruler->pixelToFrame(int(x));
    d->ruler->setCurrentFrame(frame > 0 ? frame : 0);
}

double MvPureTimelineRulerWidget::frameToPixel(qint64 frame)
{
    Q_D(MvPureTimelineRulerWidget);
    return double(d->ruler->frameToPixel(frame));
}

qint64 MvPureTimelineRulerWidget::pixelToFrame(double x)
{
    Q_D(MvPureTimelineRulerWidget);
    return d->ruler->pixelToFrame(int(x));
}

qint64 MvPureTimelineRulerWidget::visibleStartFrame()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->ruler->visibleStartFrame();
}

qint64 MvPureTimelineRulerWidget::visibleEndFrame()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->ruler->visibleEndFrame();
}

qint64 MvPureTimelineRulerWidget::visibleFrames()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->ruler->visibleFrames();
}

qint64 MvPureTimelineRulerWidget::totalFrames()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->totalFrames;
}

void MvPureTimelineRulerWidget::setTotalFrames(qint64 frames)
{
    Q_D(MvPureTimelineRulerWidget);
    d->totalFrames = frames;
    d->ruler->setTotalFrames(frames);
}

MVVBLMODEL::MvFrameRate MvPureTimelineRulerWidget::framerate()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->framerate;
}

void MvPureTimelineRulerWidget::setFramerate(MVVBLMODEL::MvFrameRate rate)
{
    Q_D(MvPureTimelineRulerWidget);
    d->framerate = rate;
    d->ruler->setFrameRate(rate.numerator, rate.denominator);
}

bool MvPureTimelineRulerWidget::isDragging()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->gesture->isDragging();
}

IMvTimelineRuler* MvPureTimelineRulerWidget::ruler()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->ruler;
}

MvEventFilterManager* MvPureTimelineRulerWidget::eventFilterMgr()
{
    Q_D(MvPureTimelineRulerWidget);
    return d->eventFilterMgr;
}

bool MvPureTimelineRulerWidget::isHintRulerHandle(const QPoint& pos)
{
    Q_D(MvPureTimelineRulerWidget);
    return d->gesture->isOverHandle(pos);
}

bool MvPureTimelineRulerWidget::event(QEvent* event)
{
    Q_D(MvPureTimelineRulerWidget);
    if (d && d->gesture && d->gesture->routeEvent(d->eventFilterMgr, event))
        return true;
    return MvWidget::event(event);
}

void MvPureTimelineRulerWidget::mousePressEvent(QMouseEvent* event)
{
    Q_D(MvPureTimelineRulerWidget);
    d->gesture->press(event);
}

void MvPureTimelineRulerWidget::mouseMoveEvent(QMouseEvent* event)
{
    Q_D(MvPureTimelineRulerWidget);
    d->gesture->move(event);
    MvWidget::mouseMoveEvent(event);
}

void MvPureTimelineRulerWidget::mouseReleaseEvent(QMouseEvent* event)
{
    Q_D(MvPureTimelineRulerWidget);
    d->gesture->release(event);
}

void MvPureTimelineRulerWidget::wheelEvent(QWheelEvent* event)
{
    Q_D(MvPureTimelineRulerWidget);
    d->gesture->wheel(event);
}

void MvPureTimelineRulerWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    Q_D(MvPureTimelineRulerWidget);
    QPainter painter(this);
    MvRulerPainter::paint(painter, rect(), palette().brush(QPalette::Window), d->ruler, d->paintCache);
}

void MvPureTimelineRulerWidget::resizeEvent(QResizeEvent* event)
{
    Q_D(MvPureTimelineRulerWidget);
    MvWidget::resizeEvent(event);
    d->ruler->setViewWidth(width());
    Q_EMIT sigViewWidthChanged();
}

void MvPureTimelineRulerWidget::showEvent(QShowEvent* event)
{
    Q_D(MvPureTimelineRulerWidget);
    MvWidget::showEvent(event);
    d->firstShow = false;
}
