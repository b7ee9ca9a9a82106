#include "MvRulerModel.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

IMvTimelineRuler* IMvTimelineRuler::createInstance()
{
    return new MvRulerModel;
}

MvRulerModel::MvRulerModel()
{
    refit();
}

MvRulerModel::~MvRulerModel() = default;

void MvRulerModel::addObserver(IMvTimelineRulerEventObserover* observer)
{
    if (observer && !m_observers.contains(observer))
        m_observers.append(observer);
}

void MvRulerModel::removeObserver(IMvTimelineRulerEventObserover* observer)
{
    m_observers.removeAll(observer);
}

int MvRulerModel::observerCount() const
{
    return m_observers.size();
}

void MvRulerModel::setViewWidth(int width)
{
    width = std::max(width, 0);
    if (width == m_viewWidth)
        return;
    const State before = m_state;
    m_viewWidth = width;
    refit();
    notifyChanges(before);
}

int MvRulerModel::viewWidth() const
{
    return m_viewWidth;
}

void MvRulerModel::setTotalFrames(qint64 frames)
{
    frames = std::max<qint64>(frames, 0);
    if (frames == m_state.total)
        return;
    const State before = m_state;
    m_state.total = frames;
    refit();
    notifyChanges(before);
}

qint64 MvRulerModel::totalFrames() const
{
    return m_state.total;
}

void MvRulerModel::setFrameRate(int numerator, int denominator)
{
    // A rate that is not positive cannot map time to frames; keep the one we have.
    if (numerator <= 0 || denominator <= 0)
        return;
    if (numerator == m_state.numerator && denominator == m_state.denominator)
        return;
    const State before = m_state;
    m_state.numerator = numerator;
    m_state.denominator = denominator;
    notifyChanges(before);
}

void MvRulerModel::frameRate(int* numerator, int* denominator) const
{
    if (numerator)
        *numerator = m_state.numerator;
    if (denominator)
        *denominator = m_state.denominator;
}

void MvRulerModel::setCurrentFrame(qint64 frame)
{
    const State before = m_state;
    m_state.current = qBound<qint64>(0, frame, m_state.total);
    // Scroll just enough to keep the frame on screen: edge scrolling then moves smoothly.
    if (m_state.current < m_state.start)
        m_state.start = m_state.current;
    else if (m_state.current > m_state.start + m_state.visible)
        m_state.start = m_state.current - m_state.visible;
    m_state.start = clampStart(m_state.start, m_state.visible);
    notifyChanges(before);
}

qint64 MvRulerModel::currentFrame() const
{
    return m_state.current;
}

qint64 MvRulerModel::visibleStartFrame() const
{
    return m_state.start;
}

qint64 MvRulerModel::visibleEndFrame() const
{
    return m_state.start + m_state.visible;
}

qint64 MvRulerModel::visibleFrames() const
{
    return m_state.visible;
}

void MvRulerModel::visualRange(qint64* start, qint64* end) const
{
    if (start)
        *start = visibleStartFrame();
    if (end)
        *end = visibleEndFrame();
}

void MvRulerModel::setVisualRange(qint64 start, qint64 end)
{
    if (end <= start)
        return;
    const State before = m_state;
    const float ratio = float(effectiveWidth() / double(end - start));
    m_state.ratio = qBound(m_state.minRatio, ratio, maxZoomRatio());
    m_state.visible = visibleFramesFor(m_state.ratio);
    m_state.start = clampStart(start, m_state.visible);
    notifyChanges(before);
}

int MvRulerModel::frameToPixel(qint64 frame) const
{
    const double x = double(frame - m_state.start) * double(m_state.ratio);
    // Far-away frames land far outside the view, never wrap around.
    const double limit = std::floor(std::numeric_limits<int>::max() / 2.0);
    return int(std::floor(qBound(-limit, x, limit) + 0.5));
}

qint64 MvRulerModel::pixelToFrame(int x) const
{
    return m_state.start + qint64(std::floor(double(x) / double(m_state.ratio) + 0.5));
}

int MvRulerModel::framesInPixels(int pixels) const
{
    // The ratio is a float: 600 px over 1800 frames is a hair above 1/3, and 30 px must still
    // cover 90 frames, not 89.
    double frames = double(pixels) / double(m_state.ratio);
    frames += frames >= 0.0 ? 1e-4 : -1e-4;
    const double limit = double(std::numeric_limits<int>::max());
    return int(qBound(-limit, frames, limit));
}

qint64 MvRulerModel::framesPerTick() const
{
    // Whole frames per second for tick units: 29.97 counts as 30. Rates above 1000 are not video.
    const int nominalFps = qBound(1, qRound(double(m_state.numerator) / m_state.denominator), 1000);
    return framesPerTickFor(double(m_state.ratio), nominalFps);
}

double MvRulerModel::tickSpacing() const
{
    return double(framesPerTick()) * double(m_state.ratio);
}

void MvRulerModel::setZoomRatio(float ratio)
{
    if (!(ratio > 0.0f))
        return;
    qint64 frame = 0;
    int x = 0;
    anchorFor(&frame, &x);
    applyRatio(ratio, frame, x);
}

float MvRulerModel::zoomRatio() const
{
    return m_state.ratio;
}

float MvRulerModel::minZoomRatio() const
{
    return m_state.minRatio;
}

float MvRulerModel::maxZoomRatio() const
{
    return std::max(kMaxPixelsPerFrame, m_state.minRatio);
}

void MvRulerModel::zoom(int delta)
{
    if (delta == 0)
        return;
    qint64 frame = 0;
    int x = 0;
    anchorFor(&frame, &x);
    // Negative steps (wheel up, drag right) zoom in.
    const double factor = std::exp2(-double(delta) / kZoomUnitsPerDoubling);
    applyRatio(float(double(m_state.ratio) * factor), frame, x);
}

void MvRulerModel::beginZoom()
{
    // Hold the anchor for the whole gesture so that rounding cannot make the view creep.
    m_zooming = false;
    anchorFor(&m_zoomAnchorFrame, &m_zoomAnchorX);
    m_zooming = true;
}

void MvRulerModel::endZoom()
{
    m_zooming = false;
}

bool MvRulerModel::isZooming() const
{
    return m_zooming;
}

void MvRulerModel::moveCurrentFrameToCenter()
{
    const State before = m_state;
    m_state.start = clampStart(m_state.current - m_state.visible / 2, m_state.visible);
    notifyChanges(before);
}

qint64 MvRulerModel::framesPerTickFor(double pixelsPerFrame, int nominalFps)
{
    nominalFps = qBound(1, nominalFps, 1000);
    // Round units of time in frames; each is what five ticks make.
    QList<qint64> majors { 5, 10 };
    if (nominalFps % 2 == 0)
        majors.append(nominalFps / 2);
    for (qint64 seconds : { 1, 5, 10, 15, 30, 60, 300, 600, 900, 1800, 3600, 7200, 18000, 36000 })
        majors.append(seconds * nominalFps);
    qint64 previous = 0;
    for (qint64 major : qAsConst(majors)) {
        // Only units that split into five whole-frame ticks, in increasing order.
        if (major <= previous || major % 5 != 0)
            continue;
        previous = major;
        const qint64 tick = major / 5;
        if (double(tick) * pixelsPerFrame >= kMinTickSpacing)
            return tick;
    }
    // Beyond ten hours: 20, 50, 100, 200, 500 hours and so on.
    qint64 decade = 10;
    while (true) {
        for (qint64 step : { 2, 5, 10 }) {
            const qint64 tick = decade * step * 3600 * nominalFps / 5;
            if (double(tick) * pixelsPerFrame >= kMinTickSpacing || decade > (qint64(1) << 32))
                return tick;
        }
        decade *= 10;
    }
}

int MvRulerModel::effectiveWidth() const
{
    return std::max(m_viewWidth, 1);
}

float MvRulerModel::computeMinRatio() const
{
    return float(effectiveWidth() / double(std::max<qint64>(m_state.total, 1)));
}

qint64 MvRulerModel::visibleFramesFor(float ratio) const
{
    const qint64 frames = qRound64(effectiveWidth() / double(ratio));
    return qBound<qint64>(1, frames, std::max<qint64>(m_state.total, 1));
}

qint64 MvRulerModel::clampStart(qint64 start, qint64 visible) const
{
    return qBound<qint64>(0, start, std::max<qint64>(0, m_state.total - visible));
}

void MvRulerModel::applyRatio(float ratio, qint64 anchorFrame, int anchorX)
{
    ratio = qBound(m_state.minRatio, ratio, maxZoomRatio());
    if (ratio == m_state.ratio)
        return;
    const State before = m_state;
    m_state.ratio = ratio;
    m_state.visible = visibleFramesFor(ratio);
    const qint64 start = anchorFrame - qint64(std::floor(double(anchorX) / double(ratio) + 0.5));
    m_state.start = clampStart(start, m_state.visible);
    notifyChanges(before);
}

void MvRulerModel::refit()
{
    // A ruler zoomed out all the way stays so when the length or the width changes.
    const bool wasFit = m_state.ratio <= m_state.minRatio;
    m_state.minRatio = computeMinRatio();
    if (wasFit || m_state.ratio < m_state.minRatio)
        m_state.ratio = m_state.minRatio;
    m_state.ratio = std::min(m_state.ratio, maxZoomRatio());
    m_state.visible = visibleFramesFor(m_state.ratio);
    m_state.current = qBound<qint64>(0, m_state.current, m_state.total);
    m_state.start = clampStart(m_state.start, m_state.visible);
}

void MvRulerModel::anchorFor(qint64* frame, int* x) const
{
    if (m_zooming) {
        *frame = m_zoomAnchorFrame;
        *x = m_zoomAnchorX;
        return;
    }
    // Zoom around the current frame while it is on screen, else around the middle of the view.
    if (m_state.current >= m_state.start && m_state.current <= visibleEndFrame()) {
        *frame = m_state.current;
        *x = frameToPixel(m_state.current);
    } else {
        *x = effectiveWidth() / 2;
        *frame = pixelToFrame(*x);
    }
}

void MvRulerModel::notifyChanges(const State& before)
{
    const State after = m_state;
    if (before.total != after.total)
        notify(TotalFramesChanged);
    if (before.numerator != after.numerator || before.denominator != after.denominator)
        notify(FrameRateChanged);
    if (before.minRatio != after.minRatio)
        notify(MinVisibleRangeChanged);
    if (before.ratio != after.ratio)
        notify(ZoomChanged);
    if (before.start != after.start || before.visible != after.visible)
        notify(VisibleRangeChanged);
    if (before.current != after.current)
        notify(CurrentFrameChanged);
}

void MvRulerModel::notify(int kind)
{
    // Observers may unregister (themselves or others) while being told; walk a copy.
    const QList<IMvTimelineRulerEventObserover*> observers = m_observers;
    for (IMvTimelineRulerEventObserover* observer : observers) {
        if (m_observers.contains(observer))
            observer->onRulerEvent(kind);
    }
}
