#pragma once

#include "MvVBLModelGlobal.h"

// Spelled so in the whole product family; kept for compatibility.
class MVVBLMODEL_EXPORT IMvTimelineRulerEventObserover
{
public:
    virtual ~IMvTimelineRulerEventObserover();
    virtual void onRulerEvent(int kind) = 0;
};

// The time ruler's state: zoom, visible range, current frame, length and frame rate, and the
// mapping between frames and view pixels.
class MVVBLMODEL_EXPORT IMvTimelineRuler
{
public:
    enum EventKind
    {
        ZoomChanged = 0,
        CurrentFrameChanged = 1,
        TotalFramesChanged = 2,
        VisibleRangeChanged = 3,
        FrameRateChanged = 4,
        MinVisibleRangeChanged = 5,
    };

    virtual ~IMvTimelineRuler();

    // A free-standing ruler, owned by the caller.
    static IMvTimelineRuler* createInstance();

    virtual void addObserver(IMvTimelineRulerEventObserover* observer) = 0;
    virtual void removeObserver(IMvTimelineRulerEventObserover* observer) = 0;

    virtual void setViewWidth(int width) = 0;
    virtual int viewWidth() const = 0;
    virtual void setTotalFrames(qint64 frames) = 0;
    virtual qint64 totalFrames() const = 0;
    virtual void setFrameRate(int numerator, int denominator) = 0;
    virtual void frameRate(int* numerator, int* denominator) const = 0;
    virtual void setCurrentFrame(qint64 frame) = 0;
    virtual qint64 currentFrame() const = 0;

    virtual qint64 visibleStartFrame() const = 0;
    virtual qint64 visibleEndFrame() const = 0;
    virtual qint64 visibleFrames() const = 0;
    virtual void visualRange(qint64* start, qint64* end) const = 0;
    virtual void setVisualRange(qint64 start, qint64 end) = 0;

    virtual int frameToPixel(qint64 frame) const = 0;
    virtual qint64 pixelToFrame(int x) const = 0;
    virtual int framesInPixels(int pixels) const = 0;
    virtual qint64 framesPerTick() const = 0;
    virtual double tickSpacing() const = 0;

    virtual void setZoomRatio(float ratio) = 0;
    virtual float zoomRatio() const = 0;
    virtual float minZoomRatio() const = 0;
    virtual void zoom(int delta) = 0;
    virtual void beginZoom() = 0;
    virtual void endZoom() = 0;
    virtual void moveCurrentFrameToCenter() = 0;
};
