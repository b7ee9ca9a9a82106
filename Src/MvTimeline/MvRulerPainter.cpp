#include "MvRulerPainter_p.h"

#include "IMvTimelineRuler.h"
#include "MvDevicePixels_p.h"
#include "MvScreen.h"
#include "MvSkinStyle.h"
#include "MvTimeCode_p.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Device pixels a label drawn as text may reach beyond its rectangle.
constexpr int kLabelOverhang = 2;

// The advances that decide how wide a time code draws, measured again only for a new font or
// resolution.
void measureLabelFont(const QPainter& painter, MvRulerPaintCache* cache)
{
    const QFont font = painter.font();
    const int dpi = painter.device() ? painter.device()->logicalDpiY() : 0;
    if (cache->digitAdvance >= 0.0 && cache->labelDpi == dpi && cache->labelFont == font)
        return;
    cache->labelFont = font;
    cache->labelDpi = dpi;
    const QFontMetricsF metrics = painter.device() ? QFontMetricsF(font, painter.device()) : QFontMetricsF(font);
    double widest = 0.0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    cache->digitAdvance = widest;
    cache->colonAdvance = metrics.horizontalAdvance(QLatin1Char(':'));
}

// Lays out the ticks and labels and formats the labels' time codes, unless the view is the one
// the cache was laid out for.
void layOut(const MvRulerLayoutInput& input, int numerator, int denominator, MvRulerPaintCache* cache)
{
    if (cache->laidOut && input == cache->input && numerator == cache->numerator && denominator == cache->denominator
        && cache->laidOutDigitAdvance == cache->digitAdvance && cache->laidOutColonAdvance == cache->colonAdvance)
        return;
    // Labels are as wide as "hh:mm:ss:ff" unless a hundred hours or more need a longer time code;
    // then they are laid out again as wide as the longest one.
    MvRulerLayoutInput sized = input;
    int characters = MvRulerPainter::kTimeCodeCharacters;
    for (;;) {
        sized.labelWidth = MvRulerPainter::labelWidth(cache->digitAdvance, cache->colonAdvance, characters);
        MvRulerTickLayout::layout(sized, &cache->layout);
        const QVector<MvRulerLabel>& labels = cache->layout.labels;
        cache->labelTexts.resize(labels.size());
        int longest = 0;
        for (int i = 0; i < labels.size(); ++i) {
            cache->labelTexts[i] = MvTimeCode::format(labels.at(i).frame, numerator, denominator);
            longest = std::max(longest, int(cache->labelTexts.at(i).size()));
        }
        if (longest <= characters)
            break;
        characters = longest;
    }
    cache->input = input;
    cache->numerator = numerator;
    cache->denominator = denominator;
    cache->laidOutDigitAdvance = cache->digitAdvance;
    cache->laidOutColonAdvance = cache->colonAdvance;
    cache->laidOut = true;
    cache->ticksPlaced = false;
}

// The device pixels of every tick, worked out again only when the layout or the transform changed.
const QVector<QRect>& placeTicks(const QTransform& t, double tickWidth, int height, int dy, MvRulerPaintCache* cache)
{
    if (cache->ticksPlaced && cache->tickTransform == t && cache->tickWidth == tickWidth)
        return cache->tickRects;
    const double tickHeight = double(height + dy);
    // Ticks come in two heights; their rows are worked out once per height.
    int knownTop[2] = { std::numeric_limits<int>::min(), std::numeric_limits<int>::min() };
    MvExactFill::Rows knownRows[2];
    QVector<QRect>& rects = cache->tickRects;
    rects.resize(0);
    for (const MvRulerTick& tick : qAsConst(cache->layout.ticks)) {
        const int slot = tick.major ? 0 : 1;
        if (knownTop[slot] != tick.top) {
            knownTop[slot] = tick.top;
            knownRows[slot] = MvExactFill::rowsCovered(t, tick.top, tickHeight);
        }
        const MvExactFill::Rows rows = knownRows[slot];
        const int x0 = MvExactFill::firstCentreAfter(tick.left * t.m11() + t.dx());
        const int x1 = MvExactFill::firstCentreAfter((double(tick.left) + tickWidth) * t.m11() + t.dx());
        if (x1 > x0 && rows.last > rows.first)
            rects.append(QRect(x0, rows.first, x1 - x0, rows.last - rows.first));
    }
    cache->tickTransform = t;
    cache->tickWidth = tickWidth;
    cache->ticksPlaced = true;
    return rects;
}

// The ticks as device-pixel rectangles handed over in one call: the same pixels as filling
// them one by one, at a fraction of the cost, when the target is an image of 32-bit pixels under
// a scale-only transform. False when that does not hold and the ticks are still to be filled.
bool fillTickRects(QPainter& painter, const MvDeviceClip& clip, double tickWidth, int height, int dy, const QColor& ink,
    MvRulerPaintCache* cache)
{
    if (!MvDevicePixels::isPlainScale(painter) || MvDevicePixels::rasterFormat(painter) == QImage::Format_Invalid)
        return false;
    const QVector<QRect>& all = placeTicks(painter.deviceTransform(), tickWidth, height, dy, cache);
    const QVector<QRect>* shown = &all;
    // Ticks come in order of x; only a paint of part of the ruler needs to pick them.
    if (!all.isEmpty() && !clip.coversColumns(all.constFirst().left(), all.constLast().right() + 1)) {
        QVector<QRect>& some = cache->shownTicks;
        some.resize(0);
        for (const QRect& rect : all) {
            if (clip.meetsColumns(rect.left(), rect.left() + rect.width()))
                some.append(rect);
        }
        shown = &some;
    }
    if (shown->isEmpty())
        return true;
    const MvDeviceSpace deviceSpace(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawRects(shown->constData(), shown->size());
    return true;
}

void fillTicksWithPath(
    QPainter& painter, const MvRulerLayout& layout, double tickWidth, int height, int dy, const QColor& color)
{
    QPainterPath path;
    for (const MvRulerTick& tick : layout.ticks)
        path.addRect(QRectF(tick.left, tick.top, tickWidth, height + dy));
    painter.fillPath(path, color);
}

// The ticks one rectangle at a time, for targets that cannot take them in one call; as paths
// when the painter does more than scale and translate.
void fillTicksOneByOne(
    QPainter& painter, double tickWidth, int height, int dy, const QColor& ink, MvRulerPaintCache* cache)
{
    if (!MvExactFill::canSnap(painter)) {
        fillTicksWithPath(painter, cache->layout, tickWidth, height, dy, ink);
        return;
    }
    const QTransform t = painter.deviceTransform();
    const QTransform inverse = t.inverted();
    for (const QRect& rect : placeTicks(t, tickWidth, height, dy, cache))
        MvExactFill::fillDevice(
            painter, inverse, rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height(), ink);
}

}

namespace MvRulerPainter {

int labelWidth(double digitAdvance, double colonAdvance, int characters)
{
    // The three colons of "hh:mm:ss:ff"; every other character is a digit.
    const int digits = std::max(0, characters - 3);
    return int(std::ceil(digits * digitAdvance + 3 * colonAdvance));
}

void paint(
    QPainter& painter, const QRect& rect, const QBrush& background, IMvTimelineRuler* ruler, MvRulerPaintCache& cache)
{
    if (!ruler)
        return;
    const int dy = MvScreen::isPixelRatio25_75() ? -2 : 0;
    painter.fillRect(rect, background);

    painter.save();
    const QColor ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary());
    QPen pen = painter.pen();
    pen.setColor(ink);
    painter.setPen(pen);

    MvRulerLayoutInput input;
    input.width = rect.width();
    input.height = rect.height();
    input.dy = dy;
    qint64 end = 0;
    ruler->visualRange(&input.start, &end);
    input.spacing = ruler->tickSpacing();
    input.step = ruler->framesPerTick();
    measureLabelFont(painter, &cache);
    // The width of the shortest time codes; longer ones widen the labels in layOut.
    input.labelWidth = MvRulerPainter::labelWidth(cache.digitAdvance, cache.colonAdvance, kTimeCodeCharacters);
    int numerator = 0;
    int denominator = 0;
    ruler->frameRate(&numerator, &denominator);
    layOut(input, numerator, denominator, &cache);

    const MvDeviceClip clip(painter);
    const bool solid = background.style() == Qt::SolidPattern;
    cache.labels.begin(painter, solid ? background.color() : QColor(), rect, clip);
    const QTransform toDevice = painter.deviceTransform();
    const QVector<MvRulerLabel>& labels = cache.layout.labels;
    for (int i = 0; i < labels.size(); ++i) {
        // A label's text stays within its rectangle but for a pixel or two of overhang.
        const QRect reach = toDevice.mapRect(labels.at(i).rect).toAlignedRect();
        if (clip.meetsColumns(reach.left() - kLabelOverhang, reach.left() + reach.width() + kLabelOverhang))
            cache.labels.draw(painter, labels.at(i).rect, cache.labelTexts.at(i));
    }
    cache.labels.end(painter);

    const double tickWidth = 1.0 / MvScreen::devicePixelRatio();
    if (!fillTickRects(painter, clip, tickWidth, input.height, dy, ink, &cache))
        fillTicksOneByOne(painter, tickWidth, input.height, dy, ink, &cache);
    painter.restore();
}

}
