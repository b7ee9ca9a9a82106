#pragma once

#include "MvTimelineGlobal.h"
#include "MvVBLModelGlobal.h"
#include "MvWidget.h"

#include <QScopedPointer>

class IMvTimelineRuler;
class MvEventFilterManager;
class MvPureTimelineRulerWidgetPrivate;

// A time ruler that needs no timeline: it owns a ruler model of its own, maps frames to pixels,
// drags its handle (scrolling at the edges), zooms by drag and wheel and reports every change
// of its ruler by a signal.
class MVTIMELINE_EXPORT MvPureTimelineRulerWidget : public MvWidget
{
    Q_OBJECT

public:
    explicit MvPureTimelineRulerWidget(QWidget* parent = nullptr);
    ~MvPureTimelineRulerWidget() override;

    qint64 currentFrame();
    void setCurrentFrame(qint64 frame);
    double currentFramePixel();
    void setCurrentFramePixel(double x);
    double frameToPixel(qint64 frame);
    qint64 pixelToFrame(double x);
    qint64 visibleStartFrame();
    qint64 visibleEndFrame();
    qint64 visibleFrames();
    qint64 totalFrames();
    void setTotalFrames(qint64 frames);
    MVVBLMODEL::MvFrameRate framerate();
    void setFramerate(MVVBLMODEL::MvFrameRate rate);
    bool isDragging();
    IMvTimelineRuler* ruler();
    MvEventFilterManager* eventFilterMgr();

Q_SIGNALS:
    void sigZoomChanged(float ratio);
    void sigCurrentFrameChanged();
    void sigTotalFramesChanged();
    void sigFramerateChanged();
    void sigMinVisualChanged();
    void sigVisualRangeChanged();
    void sigViewWidthChanged();

protected:
    // Over a ruler model the host supplies (for instance one of its own kind); the widget takes
    // ownership of it.
    MvPureTimelineRulerWidget(IMvTimelineRuler* ruler, QWidget* parent);

    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool isHintRulerHandle(const QPoint& pos);

    Q_DECLARE_PRIVATE(MvPureTimelineRulerWidget)
    Q_DISABLE_COPY(MvPureTimelineRulerWidget)
    QScopedPointer<MvPureTimelineRulerWidgetPrivate> d_ptr;
};
