#pragma once

// Internal to the library: painting of the ruler and of the render strip.
//
// Both used to fill one QPainterPath of rectangles. Qt's scanline filler slows down sharply with
// many rectangles that share rows, so the rectangles are filled one by one instead, snapped to
// exactly the device pixels the path fill would have covered: the filler rounds coordinates to
// 1/64 of a device pixel and covers a pixel when its centre lies after the left (top) edge and
// not after the right (bottom) edge.

#include "MvRulerLabelCache_p.h"
#include "MvRulerTickLayout_p.h"
#include "MvTimelineGlobal.h"

#include <QFont>
#include <QRect>
#include <QTransform>
#include <QVector>

class IMvTimelineRuler;
class QBrush;
class QColor;
class QPainter;
class QRect;

namespace MvExactFill {
// The first device pixel whose centre lies after the device coordinate.
MVTIMELINE_EXPORT int firstCentreAfter(double device);
// True when the painter only scales and translates, the case the snapping reproduces.
MVTIMELINE_EXPORT bool canSnap(const QPainter& painter);
}

// A horizontal stretch [x0, x1] in logical pixels (a rectangle of the render strip).
struct MvPixelSpan
{
    int x0 = 0;
    int x1 = 0;
};

// What a ruler keeps from one paint to the next: the layout of the last view with its labels'
// texts, the labels already drawn, the tick rectangles' buffer, and the label width of the last
// font.
struct MvRulerPaintCache
{
    MvRulerLayout layout;
    MvRulerLayoutInput input; // what `layout` was made from
    int numerator = 0; // the rate of labelTexts
    int denominator = 0;
    bool laidOut = false;
    QVector<QString> labelTexts; // the time code of each label of `layout`
    MvRulerLabelCache labels;
    QVector<QRect> tickRects; // every tick of `layout` in device pixels under tickTransform
    QTransform tickTransform;
    double tickWidth = 0.0;
    bool ticksPlaced = false;
    QVector<QRect> shownTicks; // the ticks of tickRects that meet the painted area
    QFont labelFont;
    int labelDpi = 0;
    int labelWidth = -1; // of "00:00:00:00" in labelFont, -1 until measured
};

namespace MvRulerPainter {
// The whole ruler: background, labels and ticks of `ruler` over `rect`, and nothing without a
// ruler. Only what meets the painted area (the exposed region, the painter's clip) is drawn.
MVTIMELINE_EXPORT void paint(
    QPainter& painter, const QRect& rect, const QBrush& background, IMvTimelineRuler* ruler, MvRulerPaintCache& cache);

// The ticks of a layout as rectangles (left, top, tickWidth, height + dy), filled with `color`.
MVTIMELINE_EXPORT void fillTicks(
    QPainter& painter, const MvRulerLayout& layout, double tickWidth, int height, int dy, const QColor& color);
}

namespace MvStripPainter {
// Sorts (when needed) and merges overlapping or touching stretches in place; empty ones go.
MVTIMELINE_EXPORT void mergeSpans(QVector<MvPixelSpan>* spans);
// Fills the union of the rectangles (x0, 0, x1 - x0, height) of merged stretches; only those
// that meet [0, width] are visited.
MVTIMELINE_EXPORT void fillSpans(
    QPainter& painter, const QVector<MvPixelSpan>& merged, int width, int height, const QColor& color);
}
