#pragma once

#include <QPoint>
#include <QtGlobal>

class IMvTimelineRuler;

// How the demo's timeline view and playhead answer navigation input: scroll bars over the
// ruler's visible range and over the rows, the wheel, the arrow keys and dragging the playhead
// against an edge. Pure decisions, so that they can be checked without a window.
namespace MvDemoNavigation {

// Where a scroll bar stands: the values of QScrollBar's range, steps and position.
struct ScrollBarState
{
    int minimum = 0;
    int maximum = 0;
    int pageStep = 1;
    int singleStep = 1;
    int value = 0;

    bool operator==(const ScrollBarState& other) const
    {
        return minimum == other.minimum && maximum == other.maximum && pageStep == other.pageStep
            && singleStep == other.singleStep && value == other.value;
    }
};

// The horizontal bar counts frames: one page is the visible range, one step the frames in
// `stepFrames`; the bar ends where the last visible frame is the end of the timeline.
ScrollBarState horizontalBar(qint64 totalFrames, qint64 visibleStart, qint64 visibleFrames, qint64 stepFrames);
// The vertical bar counts pixels of the rows below the top of the track area.
ScrollBarState verticalBar(int contentHeight, int viewportHeight, int scrollY);
// The first visible frame for a value of the horizontal bar (the bar's range already keeps it
// inside the timeline; this keeps a stale value from leaving it).
qint64 visibleStartFor(int value, qint64 totalFrames, qint64 visibleFrames);

enum class WheelAction
{
    None,
    Zoom, // handed to the ruler, which zooms as under its own wheel
    Scroll,
};

struct WheelStep
{
    WheelAction action = WheelAction::None;
    int dx = 0; // pixels toward later frames
    int dy = 0; // pixels toward lower rows
};

// Pixels one wheel notch (120 eighths of a degree) scrolls.
constexpr int kPixelsPerNotch = 40;

// The wheel over the tracks: the ruler's zoom modifier zooms, Shift turns the wheel sideways,
// otherwise the wheel scrolls the rows (and a sideways wheel or a touchpad scrolls in time).
WheelStep wheelStep(Qt::KeyboardModifiers modifiers, const QPoint& angleDelta, const QPoint& pixelDelta,
    Qt::KeyboardModifiers zoomModifier);

// Whole frames in one second of the ruler's rate (29.97 counts as 30); 30 without a ruler.
int framesPerSecond(const IMvTimelineRuler* ruler);

// -1 when x is within `margin` of the left edge or beyond it, +1 likewise at the right edge,
// else 0: the direction in which a dragged playhead pulls the view.
int edgeDirection(int x, int width, int margin);

// The frame a navigation key sends the playhead to: Left / Right one frame, with Shift one
// second, Home the start, End the end. -1 for any other key or modifier.
qint64 playheadTarget(int key, Qt::KeyboardModifiers modifiers, qint64 current, qint64 duration, int framesPerSecond);

}
