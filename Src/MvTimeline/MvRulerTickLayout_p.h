#pragma once

// Internal to the library: the geometry of the ruler's ticks and labels, kept apart from the
// painting so that it can be checked without a painter.

#include "MvTimelineGlobal.h"

#include <QRectF>
#include <QVector>

struct MvRulerTick
{
    double x = 0.0; // exact position
    int left = 0; // x truncated toward zero: where the tick is drawn
    int top = 0; // top edge, lift included; the tick reaches down to the bottom edge
    int frame = 0; // frame number truncated to 32 bits, as the time code shows it
    bool major = false;
};

struct MvRulerLabel
{
    QRectF rect;
    int frame = 0;
};

struct MvRulerLayoutInput
{
    int width = 0;
    int height = 0;
    int dy = 0; // -2 at the 1.25 and 1.75 screen scales
    qint64 start = 0; // first visible frame
    double spacing = 0; // pixels between ticks
    qint64 step = 0; // frames between ticks
    int labelWidth = 0; // wide enough for the longest time code in the ruler's font

    bool operator==(const MvRulerLayoutInput& other) const
    {
        return width == other.width && height == other.height && dy == other.dy && start == other.start
            && spacing == other.spacing && step == other.step && labelWidth == other.labelWidth;
    }
};

struct MvRulerLayout
{
    QVector<MvRulerTick> ticks;
    QVector<MvRulerLabel> labels;
    int labelEvery = 0;
};

namespace MvRulerTickLayout {
// More ticks than this in one view can only come from a broken ruler; nothing is laid out then.
constexpr int kMaxTicks = 1 << 20;

// Labels go on every labelEvery-th tick: a multiple of five (so only on major ticks) chosen so
// that consecutive labels are more than one label width apart.
MVTIMELINE_TEST_EXPORT int labelEvery(int labelWidth, double spacing);

// Fills `layout` (its buffers are reused between paints). Ticks sit on absolute multiples of the
// step, from the first one at or after the left edge up to and including the right edge; labels
// keep a gap of five pixels. Only the visible range is walked.
MVTIMELINE_TEST_EXPORT void layout(const MvRulerLayoutInput& input, MvRulerLayout* layout);
}
