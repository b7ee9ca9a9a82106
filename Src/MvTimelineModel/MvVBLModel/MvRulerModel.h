#pragma once

#include "IMvTimelineRuler.h"
#include "MvVBLModelGlobal.h"

#include <QList>

// The ruler of the in-memory model. The zoom ratio is in view pixels per frame; the smallest
// ratio shows the whole timeline in the view, the largest gives a frame kMaxPixelsPerFrame pixels.
// Frame x sits at pixel (x - visibleStart) * ratio, rounded to the nearest pixel.
class MVVBLMODEL_EXPORT MvRulerModel : public IMvTimelineRuler
{
public:
    static constexpr float kMaxPixelsPerFrame = 24.0f;
    // Ticks closer than this would smear into a grey band.
    static constexpr double kMinTickSpacing = 7.0;
    // A zoom step of this many units doubles (or halves) the ratio.
    static constexpr double kZoomUnitsPerDoubling = 45.0;

    MvRulerModel();
    ~MvRulerModel() override;

    void addObserver(IMvTimelineRulerEventObserover* observer) override;
    void removeObserver(IMvTimelineRulerEventObserover* observer) override;
    int observerCount() const;

    void setViewWidth(int width) override;
    int viewWidth() const override;
    void setTotalFrames(qint64 frames) override;
    qint64 totalFrames() const override;
    void setFrameRate(int numerator, int denominator) override;
    void frameRate(int* numerator, int* denominator) const override;
    void setCurrentFrame(qint64 frame) override;
    qint64 currentFrame() const override;

    qint64 visibleStartFrame() const override;
    qint64 visibleEndFrame() const override;
    qint64 visibleFrames() const override;
    void visualRange(qint64* start, qint64* end) const override;
    void setVisualRange(qint64 start, qint64 end) override;

    int frameToPixel(qint64 frame) const override;
    qint64 pixelToFrame(int x) const override;
    int framesInPixels(int pixels) const override;
    qint64 framesPerTick() const override;
    double tickSpacing() const override;

    void setZoomRatio(float ratio) override;
    float zoomRatio() const override;
    float minZoomRatio() const override;
    float maxZoomRatio() const;
    void zoom(int delta) override;
    void beginZoom() override;
    void endZoom() override;
    bool isZooming() const;
    void moveCurrentFrameToCenter() override;

    // Frames per tick for a ratio and a nominal whole frame rate: the smallest round unit whose
    // ticks stay kMinTickSpacing apart. Five ticks always make a round unit of time.
    static qint64 framesPerTickFor(double pixelsPerFrame, int nominalFps);

private:
    struct State
    {
        float ratio = 0.0f;
        float minRatio = 0.0f;
        qint64 start = 0;
        qint64 visible = 1;
        qint64 current = 0;
        qint64 total = 0;
        int numerator = 30;
        int denominator = 1;
    };

    int effectiveWidth() const;
    float computeMinRatio() const;
    qint64 visibleFramesFor(float ratio) const;
    qint64 clampStart(qint64 start, qint64 visible) const;
    void applyRatio(float ratio, qint64 anchorFrame, int anchorX);
    void refit();
    void anchorFor(qint64* frame, int* x) const;
    void notifyChanges(const State& before);
    void notify(int kind);

    State m_state;
    int m_viewWidth = 0;
    bool m_zooming = false;
    qint64 m_zoomAnchorFrame = 0;
    int m_zoomAnchorX = 0;
    QList<IMvTimelineRulerEventObserover*> m_observers;
};
