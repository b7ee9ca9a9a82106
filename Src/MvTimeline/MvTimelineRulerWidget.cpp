#include "MvTimelineRulerWidget.h"

#include "MvEventFilterManager.h"
#include "MvTimelineAccessible_p.h"
#include "MvTimelineRulerWidget_p.h"

#include <QWheelEvent>

MvTimelineRulerWidgetPrivate::MvTimelineRulerWidgetPrivate(MvTimelineRulerWidget* q)
    : q_ptr(q)
    , gesture(nullptr)
    , eventFilterMgr(new MvEventFilterManager)
{
}

MvTimelineRulerWidgetPrivate::~MvTimelineRulerWidgetPrivate()
{
    // The gesture and its timer refer to this object; they go before it does. Its removal is an
    // event of the widget, which must not find it half destroyed.
    MvRulerGesture* doomed = gesture;
    gesture = nullptr;
    delete doomed;
    delete eventFilterMgr;
}

int MvTimelineRulerWidgetPrivate::handleX() const
{
    return presenter ? presenter->handlePosition() : 0;
}

void MvTimelineRulerWidgetPrivate::beginZoom()
{
    if (presenter)
        presenter->beginZoom();
}

void MvTimelineRulerWidgetPrivate::endZoom()
{
    if (presenter)
        presenter->endZoom();
}

void MvTimelineRulerWidgetPrivate::zoom(int delta)
{
    if (presenter)
        presenter->zoom(delta);
}

void MvTimelineRulerWidgetPrivate::dragHandleTo(int x)
{
    if (presenter)
        presenter->changePlayheadPosition(x);
}

void MvTimelineRulerWidgetPrivate::click(int x)
{
    if (!presenter)
        return;
    presenter->changePlayheadPosition(x);
    // The actions that depend on the playhead (split, trim) are recomputed for the new frame.
    presenter->updateTimelineMenu();
}

void MvTimelineRulerWidgetPrivate::edgeScroll(bool backward)
{
    if (presenter)
        presenter->moveRulerRange(backward);
}

void MvTimelineRulerWidgetPrivate::moveCurrentFrameToCenter()
{
    if (presenter)
        presenter->moveCurrentFrameToCenter();
}

MvTimelineRulerWidget::MvTimelineRulerWidget(MvTimelineRulerPresenter* presenter, QWidget* parent)
    : MvWidget(parent)
    , d_ptr(new MvTimelineRulerWidgetPrivate(this))
{
    Q_D(MvTimelineRulerWidget);
    // Made once the private object exists: adding a child already sends this widget an event.
    d->gesture = new MvRulerGesture(this, d);
    setMouseTracking(true);
    setPresenter(presenter);
}

MvTimelineRulerWidget::~MvTimelineRulerWidget() = default;

void MvTimelineRulerWidget::setPresenter(MvTimelineRulerPresenter* presenter)
{
    Q_D(MvTimelineRulerWidget);
    if (d->presenter)
        QObject::disconnect(d->presenter, nullptr, this, nullptr);
    d->presenter = presenter;
    if (!presenter)
        return;
    const auto repaint = QOverload<>::of(&QWidget::update);
    connect(presenter, &MvTimelineRulerPresenter::frameRateChanged, this, repaint);
    connect(presenter, &MvTimelineRulerPresenter::zoomChanged, this, repaint);
    connect(presenter, &MvTimelineRulerPresenter::visualRangeChanged, this, repaint);
    connect(presenter, &MvTimelineRulerPresenter::totalFrameChanged, this, repaint);
    connect(presenter, &MvTimelineRulerPresenter::currentFrameChanged, this,
        [this] { MvAccessibleAnnouncer::valueChanged(this); });
}

MvTimelineRulerPresenter* MvTimelineRulerWidget::presenter() const
{
    Q_D(const MvTimelineRulerWidget);
    return d->presenter;
}

MvEventFilterManager* MvTimelineRulerWidget::eventFilterMgr()
{
    Q_D(MvTimelineRulerWidget);
    return d->eventFilterMgr;
}

bool MvTimelineRulerWidget::IsHintRulerHandle(const QPoint& pos)
{
    Q_D(MvTimelineRulerWidget);
    return d->presenter && d->gesture->isOverHandle(pos);
}

bool MvTimelineRulerWidget::event(QEvent* event)
{
    Q_D(MvTimelineRulerWidget);
    if (d && d->gesture && d->gesture->routeEvent(d->eventFilterMgr, event))
        return true;
    return MvWidget::event(event);
}

void MvTimelineRulerWidget::mousePressEvent(QMouseEvent* event)
{
    Q_D(MvTimelineRulerWidget);
    if (d->presenter)
        d->gesture->press(event);
}

void MvTimelineRulerWidget::mouseMoveEvent(QMouseEvent* event)
{
    Q_D(MvTimelineRulerWidget);
    if (!d->presenter)
        return;
    d->gesture->move(event);
    MvWidget::mouseMoveEvent(event);
}

void MvTimelineRulerWidget::mouseReleaseEvent(QMouseEvent* event)
{
    Q_D(MvTimelineRulerWidget);
    // A release whose press happened elsewhere is none of this ruler's business.
    if (d->gesture->isPressed())
        d->gesture->release(event);
}

void MvTimelineRulerWidget::wheelEvent(QWheelEvent* event)
{
    Q_D(MvTimelineRulerWidget);
    if (!d->presenter) {
        event->ignore();
        return;
    }
    d->gesture->wheel(event);
}

void MvTimelineRulerWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    Q_D(MvTimelineRulerWidget);
    if (d->presenter)
        d->presenter->paint(this);
}

void MvTimelineRulerWidget::resizeEvent(QResizeEvent* event)
{
    Q_D(MvTimelineRulerWidget);
    MvWidget::resizeEvent(event);
    if (d->presenter)
        d->presenter->setViewWith(width());
}

void MvTimelineRulerWidget::showEvent(QShowEvent* event)
{
    Q_D(MvTimelineRulerWidget);
    MvWidget::showEvent(event);
    if (!d->firstShow)
        return;
    d->firstShow = false;
    if (d->presenter)
        d->presenter->init();
}
