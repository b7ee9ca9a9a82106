#pragma once

// Internal to the library: painting of the ruler.
//
// The ticks used to be one QPainterPath of rectangles, and Qt's scanline filler slows down
// sharply with many rectangles that share rows; they are device-pixel rectangles now, exactly
// the pixels the path fill covers (MvExactFill). The labels are copied from tiles where that
// gives the pixels of the text (MvRulerLabelCache).

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

// What a ruler keeps from one paint to the next: the layout of the last view with its labels'
// texts, the labels already drawn, the tick rectangles' buffer, and the advances of the last
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
    double digitAdvance = -1.0; // of the widest digit in labelFont, -1 until measured
    double colonAdvance = 0.0;
    double laidOutDigitAdvance = -1.0; // the advances `layout` was made with
    double laidOutColonAdvance = 0.0;
};

namespace MvRulerPainter {
// "hh:mm:ss:ff": labels are at least this many characters wide.
constexpr int kTimeCodeCharacters = 11;

// How wide a label rectangle is for time codes of `characters` characters: every digit as wide as
// the widest one, rounded up to the pixel. The text drawn in it never reaches past its right edge,
// where it would be clipped.
MVTIMELINE_TEST_EXPORT int labelWidth(double digitAdvance, double colonAdvance, int characters);

// The whole ruler: background, labels and ticks of `ruler` over `rect`, and nothing without a
// ruler. Only what meets the painted area (the exposed region, the painter's clip) is drawn.
MVTIMELINE_TEST_EXPORT void paint(
    QPainter& painter, const QRect& rect, const QBrush& background, IMvTimelineRuler* ruler, MvRulerPaintCache& cache);

}
