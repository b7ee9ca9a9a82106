#include "MvDemoNavigation.h"

#include "IMvTimelineRuler.h"

#include <limits>

namespace MvDemoNavigation {

namespace {
int toInt(qint64 value)
{
    return int(qBound<qint64>(0, value, std::numeric_limits<int>::max()));
}

// Eighths of a degree to pixels; a touchpad's pixel delta is taken as it is.
int wheelPixels(int angle, int pixels)
{
    return pixels != 0 ? -pixels : -angle * kPixelsPerNotch / 120;
}
}

ScrollBarState horizontalBar(qint64 totalFrames, qint64 visibleStart, qint64 visibleFrames, qint64 stepFrames)
{
    ScrollBarState state;
    state.maximum = toInt(totalFrames - visibleFrames);
    state.pageStep = qMax(1, toInt(visibleFrames));
    state.singleStep = qMax(1, toInt(stepFrames));
    state.value = qBound(0, toInt(visibleStart), state.maximum);
    return state;
}

ScrollBarState verticalBar(int contentHeight, int viewportHeight, int scrollY)
{
    ScrollBarState state;
    state.maximum = qMax(0, contentHeight - viewportHeight);
    state.pageStep = qMax(1, viewportHeight);
    state.singleStep = kPixelsPerNotch;
    state.value = qBound(0, scrollY, state.maximum);
    return state;
}

qint64 visibleStartFor(int value, qint64 totalFrames, qint64 visibleFrames)
{
    return qBound<qint64>(0, value, qMax<qint64>(0, totalFrames - visibleFrames));
}

WheelStep wheelStep(Qt::KeyboardModifiers modifiers, const QPoint& angleDelta, const QPoint& pixelDelta,
    Qt::KeyboardModifiers zoomModifier)
{
    WheelStep step;
    modifiers &= ~Qt::KeypadModifier;
    if (angleDelta.isNull() && pixelDelta.isNull())
        return step;
    if (modifiers == zoomModifier) {
        step.action = WheelAction::Zoom;
        return step;
    }
    if (modifiers == Qt::ShiftModifier) {
        // Some platforms turn a shifted wheel sideways by themselves; either way it scrolls in time.
        const bool vertical = angleDelta.y() != 0 || pixelDelta.y() != 0;
        step.dx = vertical ? wheelPixels(angleDelta.y(), pixelDelta.y()) : wheelPixels(angleDelta.x(), pixelDelta.x());
        step.action = step.dx != 0 ? WheelAction::Scroll : WheelAction::None;
        return step;
    }
    if (modifiers != Qt::NoModifier)
        return step;
    step.dx = wheelPixels(angleDelta.x(), pixelDelta.x());
    step.dy = wheelPixels(angleDelta.y(), pixelDelta.y());
    step.action = step.dx != 0 || step.dy != 0 ? WheelAction::Scroll : WheelAction::None;
    return step;
}

int framesPerSecond(const IMvTimelineRuler* ruler)
{
    int numerator = 30;
    int denominator = 1;
    if (ruler)
        ruler->frameRate(&numerator, &denominator);
    return denominator > 0 ? qMax(1, qRound(double(numerator) / denominator)) : 30;
}

int edgeDirection(int x, int width, int margin)
{
    if (x < margin)
        return -1;
    if (x > width - margin)
        return 1;
    return 0;
}

qint64 playheadTarget(int key, Qt::KeyboardModifiers modifiers, qint64 current, qint64 duration, int framesPerSecond)
{
    modifiers &= ~Qt::KeypadModifier;
    const bool shift = modifiers == Qt::ShiftModifier;
    if (modifiers != Qt::NoModifier && !shift)
        return -1;
    const qint64 step = shift ? qMax(1, framesPerSecond) : 1;
    qint64 target = 0;
    if (key == Qt::Key_Left)
        target = current - step;
    else if (key == Qt::Key_Right)
        target = current + step;
    else if (key == Qt::Key_Home && !shift)
        target = 0;
    else if (key == Qt::Key_End && !shift)
        target = duration;
    else
        return -1;
    return qBound<qint64>(0, target, qMax<qint64>(0, duration));
}

}
