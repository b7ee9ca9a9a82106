#pragma once

#include "MvPresenter.h"
#include "MvTimelineGlobal.h"

#include <QScopedPointer>
#include <QString>

class IMvTimelineRuler;
class MvTimelinePresenter;
class MvTimelineRulerPresenterPrivate;
class QWidget;

// The presenter of the time ruler above the timeline. The zoom, the visible range, the current
// frame, the length and the frame rate live in the timeline's ruler model; this presenter
// forwards the view's requests to it, turns its notifications into signals, keeps the ruler's
// current frame on the playhead and paints the ruler for its view.
class MVTIMELINE_EXPORT MvTimelineRulerPresenter : public MvPresenter
{
    Q_OBJECT

public:
    MvTimelineRulerPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent);
    ~MvTimelineRulerPresenter() override;

    void init() override;

    void beginZoom();
    void endZoom();
    void zoom(int delta);
    void changeZoomRatio(float ratio);
    float zoomRatio();
    float minZoomRatio();
    qint64 totalFrames();
    qint64 visualFrames();
    // Spelled so in the product family.
    void setViewWith(int width);
    int handlePosition();
    virtual void changePlayheadPosition(int x);
    void moveCurrentFrameToCenter();
    // One edge-scroll step of 30 pixels' worth of frames (at least one) backward or forward.
    void moveRulerRange(bool backward);
    void updateTimelineMenu();
    void paint(QWidget* widget);

    // The frame the ruler marks as current (the playhead's), and its time code at the ruler's rate.
    qint64 currentFrame();
    QString currentTimecode();
    // Moves the playhead to a frame; the model keeps it within the timeline.
    void setCurrentFrame(qint64 frame);

    // "hh:mm:ss:ff" of a frame at a rational rate, without drop-frame counting.
    static QString formatTimecode(int frame, int numerator, int denominator);
    static QString formatTimecode(int frame, float fps);

Q_SIGNALS:
    void zoomChanged();
    void frameRateChanged();
    void visualRangeChanged();
    void totalFrameChanged();
    void minVisualChanged();
    void sigViewWidthChanged();
    void currentFrameChanged();

protected:
    IMvTimelineRuler* ruler() const;

private:
    Q_DECLARE_PRIVATE(MvTimelineRulerPresenter)
    Q_DISABLE_COPY(MvTimelineRulerPresenter)
    QScopedPointer<MvTimelineRulerPresenterPrivate> d_ptr;
};
