#include "MvTimelineRulerPresenter.h"

#include "IMvTimeline.h"
#include "MvRulerGesture_p.h"
#include "MvRulerPainter_p.h"
#include "MvTimeCode_p.h"
#include "MvTimelineModelAccess_p.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter_p.h"

#include <QPainter>
#include <QWidget>

MvTimelineRulerPresenterPrivate::MvTimelineRulerPresenterPrivate(
    MvTimelineRulerPresenter* q, MvTimelinePresenter* timelinePresenter)
    : timelinePresenter(timelinePresenter)
    , q_ptr(q)
{
    IMvTimeline* timeline = timelinePresenter ? timelinePresenter->timeline() : nullptr;
    if (!timeline)
        return;
    ruler = timeline->ruler();
    if (ruler)
        ruler->addObserver(this);
    playhead = timeline->playhead();
    if (playhead)
        playhead->addObserver(this);
}

MvTimelineRulerPresenterPrivate::~MvTimelineRulerPresenterPrivate()
{
    if (ruler)
        ruler->removeObserver(this);
    if (playhead)
        playhead->removeObserver(this);
}

void MvTimelineRulerPresenterPrivate::onRulerEvent(int kind)
{
    Q_Q(MvTimelineRulerPresenter);
    switch (kind) {
    case IMvTimelineRuler::ZoomChanged:
        Q_EMIT q->zoomChanged();
        break;
    case IMvTimelineRuler::TotalFramesChanged:
        Q_EMIT q->totalFrameChanged();
        break;
    case IMvTimelineRuler::VisibleRangeChanged:
        Q_EMIT q->visualRangeChanged();
        break;
    case IMvTimelineRuler::FrameRateChanged:
        Q_EMIT q->frameRateChanged();
        break;
    case IMvTimelineRuler::MinVisibleRangeChanged:
        Q_EMIT q->minVisualChanged();
        break;
    case IMvTimelineRuler::CurrentFrameChanged:
        // The playhead's presenter draws the move; the ruler's view only tells it (assistive tools).
        Q_EMIT q->currentFrameChanged();
        break;
    default:
        break;
    }
}

void MvTimelineRulerPresenterPrivate::onPlayheadEvent(IMvTimelinePlayhead* source, int kind)
{
    if (kind != IMvTimelinePlayhead::Moved || !source || !ruler)
        return;
    ruler->setCurrentFrame(source->currentFrame());
}

void MvTimelineRulerPresenterPrivate::beginZoom()
{
    if (ruler)
        ruler->beginZoom();
}

void MvTimelineRulerPresenterPrivate::endZoom()
{
    if (ruler)
        ruler->endZoom();
}

void MvTimelineRulerPresenterPrivate::zoom(int delta)
{
    if (ruler)
        ruler->zoom(delta);
}

void MvTimelineRulerPresenterPrivate::changeZoomRatio(float ratio)
{
    if (ruler)
        ruler->setZoomRatio(ratio);
}

float MvTimelineRulerPresenterPrivate::zoomRatio() const
{
    return ruler ? ruler->zoomRatio() : 0.0f;
}

float MvTimelineRulerPresenterPrivate::minZoomRatio() const
{
    return ruler ? ruler->minZoomRatio() : 0.0f;
}

qint64 MvTimelineRulerPresenterPrivate::totalFrames() const
{
    return ruler ? ruler->totalFrames() : 0;
}

qint64 MvTimelineRulerPresenterPrivate::visualFrames() const
{
    return ruler ? ruler->visibleFrames() : 0;
}

void MvTimelineRulerPresenterPrivate::setViewWith(int width)
{
    Q_Q(MvTimelineRulerPresenter);
    if (!ruler)
        return;
    ruler->setViewWidth(width);
    Q_EMIT q->sigViewWidthChanged();
}

int MvTimelineRulerPresenterPrivate::handlePosition() const
{
    return ruler ? ruler->frameToPixel(ruler->currentFrame()) : 0;
}

void MvTimelineRulerPresenterPrivate::changePlayheadPosition(int x)
{
    if (playhead)
        playhead->setPosition(x);
}

void MvTimelineRulerPresenterPrivate::moveCurrentFrameToCenter()
{
    if (ruler)
        ruler->moveCurrentFrameToCenter();
}

void MvTimelineRulerPresenterPrivate::moveRulerRange(bool backward)
{
    MvRulerGesture::stepCurrentFrame(ruler, backward);
}

void MvTimelineRulerPresenterPrivate::updateTimelineMenu()
{
    if (timelinePresenter)
        timelinePresenter->updateAction();
}

void MvTimelineRulerPresenterPrivate::paint(QWidget* widget)
{
    if (!widget || !ruler)
        return;
    QPainter painter(widget);
    MvRulerPainter::paint(painter, widget->rect(), widget->palette().brush(QPalette::Window), ruler, paintCache);
}

qint64 MvTimelineRulerPresenterPrivate::currentFrame() const
{
    return ruler ? ruler->currentFrame() : 0;
}

void MvTimelineRulerPresenterPrivate::setCurrentFrame(qint64 frame)
{
    if (playhead)
        playhead->setCurrentFrame(frame);
}

MvTimelineRulerPresenter::MvTimelineRulerPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent)
    : MvPresenter(parent)
    , d_ptr(new MvTimelineRulerPresenterPrivate(this, timelinePresenter))
{
}

MvTimelineRulerPresenter::~MvTimelineRulerPresenter() = default;

void MvTimelineRulerPresenter::init()
{
    // Everything is in place once constructed; the view calls this on its first show.
}

void MvTimelineRulerPresenter::beginZoom()
{
    Q_D(MvTimelineRulerPresenter);
    d->beginZoom();
}

void MvTimelineRulerPresenter::endZoom()
{
    Q_D(MvTimelineRulerPresenter);
    d->endZoom();
}

void MvTimelineRulerPresenter::zoom(int delta)
{
    Q_D(MvTimelineRulerPresenter);
    d->zoom(delta);
}

void MvTimelineRulerPresenter::changeZoomRatio(float ratio)
{
    Q_D(MvTimelineRulerPresenter);
    d->changeZoomRatio(ratio);
}

float MvTimelineRulerPresenter::zoomRatio()
{
    Q_D(MvTimelineRulerPresenter);
    return d->zoomRatio();
}

float MvTimelineRulerPresenter::minZoomRatio()
{
    Q_D(MvTimelineRulerPresenter);
    return d->minZoomRatio();
}

qint64 MvTimelineRulerPresenter::totalFrames()
{
    Q_D(MvTimelineRulerPresenter);
    return d->totalFrames();
}

qint64 MvTimelineRulerPresenter::visualFrames()
{
    Q_D(MvTimelineRulerPresenter);
    return d->visualFrames();
}

void MvTimelineRulerPresenter::setViewWith(int width)
{
    Q_D(MvTimelineRulerPresenter);
    d->setViewWith(width);
}

int MvTimelineRulerPresenter::handlePosition()
{
    Q_D(MvTimelineRulerPresenter);
    return d->handlePosition();
}

void MvTimelineRulerPresenter::changePlayheadPosition(int x)
{
    Q_D(MvTimelineRulerPresenter);
    d->changePlayheadPosition(x);
}

void MvTimelineRulerPresenter::moveCurrentFrameToCenter()
{
    Q_D(MvTimelineRulerPresenter);
    d->moveCurrentFrameToCenter();
}

void MvTimelineRulerPresenter::moveRulerRange(bool backward)
{
    Q_D(MvTimelineRulerPresenter);
    d->moveRulerRange(backward);
}

void MvTimelineRulerPresenter::updateTimelineMenu()
{
    Q_D(MvTimelineRulerPresenter);
    d->updateTimelineMenu();
}

void MvTimelineRulerPresenter::paint(QWidget* widget)
{
    Q_D(MvTimelineRulerPresenter);
    d->paint(widget);
}

qint64 MvTimelineRulerPresenter::currentFrame()
{
    Q_D(MvTimelineRulerPresenter);
    return d->currentFrame();
}

QString MvTimelineRulerPresenter::currentTimecode()
{
    Q_D(MvTimelineRulerPresenter);
    return MvModelAccess::timeCode(d->ruler, d->currentFrame());
}

void MvTimelineRulerPresenter::setCurrentFrame(qint64 frame)
{
    Q_D(MvTimelineRulerPresenter);
    d->setCurrentFrame(frame);
}

QString MvTimelineRulerPresenter::formatTimecode(int frame, int numerator, int denominator)
{
    return MvTimeCode::format(frame, numerator, denominator);
}

QString MvTimelineRulerPresenter::formatTimecode(int frame, float fps)
{
    return MvTimeCode::format(frame, fps);
}

IMvTimelineRuler* MvTimelineRulerPresenter::ruler() const
{
    Q_D(const MvTimelineRulerPresenter);
    return d->ruler;
}
