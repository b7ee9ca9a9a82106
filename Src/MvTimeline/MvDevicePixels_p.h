#pragma once

// Internal to the library: painting straight in device pixels, for the paints that reuse pixels
// prepared earlier (ruler labels, tick rows, the marker strip) and must give the very pixels that
// painting them anew would give.

#include "MvTimelineGlobal.h"

#include <QImage>
#include <QPair>
#include <QRect>
#include <QTransform>
#include <QVector>

class QColor;
class QPainter;

// Filling logical rectangles pixel for pixel as a QPainterPath fill would: the filler rounds
// coordinates to 1/64 of a device pixel and covers a pixel when its centre lies after the left
// (top) edge and not after the right (bottom) edge.
namespace MvExactFill {
// The first device pixel whose centre lies after the device coordinate.
MVTIMELINE_TEST_EXPORT int firstCentreAfter(double device);
// Device rows [first, last) that a fill from `top` over `height` (logical) covers.
struct Rows
{
    int first = 0;
    int last = 0;
};
Rows rowsCovered(const QTransform& toDevice, double top, double height);
// Fills device pixels [x0, x1) x [y0, y1). fillRect rounds the mapped rectangle to whole device
// pixels when the transform only scales, so handing it the exact preimage hits those pixels.
void fillDevice(QPainter& painter, const QTransform& inverse, int x0, int y0, int x1, int y1, const QColor& color);
// True when the painter only scales and translates, the case the snapping reproduces.
MVTIMELINE_TEST_EXPORT bool canSnap(const QPainter& painter);
}

namespace MvDevicePixels {
// The format of the image the painter draws into, when that is a raster image of 32-bit pixels
// (the backing store of a window on every desktop, or a QImage); QImage::Format_Invalid for any
// other device, whose pixels cannot be reproduced here.
QImage::Format rasterFormat(const QPainter& painter);

// True when the painter maps logical to device pixels by a positive scale and a translation only,
// composes plainly (source over, fully opaque) and does not antialias shapes.
bool isPlainScale(const QPainter& painter);

// The device pixels that a fill of `rect` (logical) certainly covers: those wholly inside it.
QRect coveredPixels(const QTransform& toDevice, const QRectF& rect);
}

// Where a paint lands, in device pixels: the exposed region of a widget (the engine's system
// clip) or else the paint device, and the painter's own clip, by their bounding columns.
// Unbounded only when none of them is known.
class MvDeviceClip
{
public:
    MvDeviceClip() = default; // unbounded
    explicit MvDeviceClip(const QPainter& painter);

    bool isBounded() const { return m_bounded; }
    // The bounding rectangle of the painted area; meaningful only when bounded.
    QRect bounds() const { return m_bounds; }
    // Whether anything in device columns [x0, x1) can be painted.
    bool meetsColumns(int x0, int x1) const;
    // Whether every one of device columns [x0, x1) can be painted (on some row).
    bool coversColumns(int x0, int x1) const;

private:
    bool m_bounded = false;
    QRect m_bounds;
    QVector<QPair<int, int>> m_columns; // [first, last) column ranges, sorted, disjoint
};

// While it lives, the painter's logical coordinates are device pixels (a QPoint is a device
// pixel's top left corner), so that prepared pixels are copied one to one.
class MvDeviceSpace
{
public:
    explicit MvDeviceSpace(QPainter& painter);
    ~MvDeviceSpace();

private:
    Q_DISABLE_COPY(MvDeviceSpace)
    QPainter& m_painter;
    QTransform m_world;
    bool m_smooth;
};
