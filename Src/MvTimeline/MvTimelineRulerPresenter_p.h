#pragma once

#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "MvRulerPainter_p.h"
#include "MvTimelineRulerPresenter.h"

#include <QPointer>

class MvTimelineRulerPresenterPrivate : public IMvTimelineRulerEventObserover, public IMvPlayheadEventObserver
{
    Q_DECLARE_PUBLIC(MvTimelineRulerPresenter)

public:
    MvTimelineRulerPresenterPrivate(MvTimelineRulerPresenter* q, MvTimelinePresenter* timelinePresenter);
    ~MvTimelineRulerPresenterPrivate() override;

    void onRulerEvent(int kind) override;
    void onPlayheadEvent(IMvTimelinePlayhead* source, int kind) override;

    void beginZoom();
    void endZoom();
    void zoom(int delta);
    void changeZoomRatio(float ratio);
    float zoomRatio() const;
    float minZoomRatio() const;
    qint64 totalFrames() const;
    qint64 visualFrames() const;
    void setViewWith(int width);
    int handlePosition() const;
    void changePlayheadPosition(int x);
    void moveCurrentFrameToCenter();
    void moveRulerRange(bool backward);
    void updateTimelineMenu();
    void paint(QWidget* widget);
    qint64 currentFrame() const;
    void setCurrentFrame(qint64 frame);

    // Not owned; a host may delete it first. The ruler and playhead stay reachable: the model outlives both.
    QPointer<MvTimelinePresenter> timelinePresenter;
    MvTimelineRulerPresenter* q_ptr;
    IMvTimelineRuler* ruler = nullptr;
    IMvTimelinePlayhead* playhead = nullptr;
    MvRulerPaintCache paintCache; // kept from paint to paint
};
