#pragma once

// Internal to the library: painting of the ruler and of the render strip.
//
// Both used to fill one QPainterPath of rectangles. Qt's scanline filler slows down sharply with
// many rectangles that share rows, so the rectangles are filled one by one instead, snapped to
// exactly the device pixels the path fill would have covered: the filler rounds coordinates to
// 1/64 of a device pixel and covers a pixel when its centre lies after the left (top) edge and
// not after the right (bottom) edge.

#include "MvRulerTickLayout_p.h"
#include "MvTimelineGlobal.h"

#include <QVector>

class IMvTimelineRuler;
class QBrush;
class QColor;
class QPainter;
class QRect;

namespace MvExactFill {
// The first device pixel whose centre lies after the device coordinate.
MVTIMELINE_TEST_EXPORT int firstCentreAfter(double device);
// True when the painter only scales and translates, the case the snapping reproduces.
MVTIMELINE_TEST_EXPORT bool canSnap(const QPainter& painter);
}

// A horizontal stretch [x0, x1] in logical pixels (a rectangle of the render strip).
struct MvPixelSpan
{
    int x0 = 0;
    int x1 = 0;
};

namespace MvRulerPainter {
// The whole ruler: background, labels and ticks of `ruler` over `rect`. `scratch` keeps its
// buffers between paints. Nothing is drawn without a ruler.
MVTIMELINE_TEST_EXPORT void paint(
    QPainter& painter, const QRect& rect, const QBrush& background, IMvTimelineRuler* ruler, MvRulerLayout& scratch);

// The ticks of a layout as rectangles (left, top, tickWidth, height + dy), filled with `color`.
MVTIMELINE_TEST_EXPORT void fillTicks(
    QPainter& painter, const MvRulerLayout& layout, double tickWidth, int height, int dy, const QColor& color);
}

namespace MvStripPainter {
// Sorts (when needed) and merges overlapping or touching stretches in place; empty ones go.
MVTIMELINE_TEST_EXPORT void mergeSpans(QVector<MvPixelSpan>* spans);
// Fills the union of the rectangles (x0, 0, x1 - x0, height) of merged stretches; only those
// that meet [0, width] are visited.
MVTIMELINE_TEST_EXPORT void fillSpans(
    QPainter& painter, const QVector<MvPixelSpan>& merged, int width, int height, const QColor& color);
}
