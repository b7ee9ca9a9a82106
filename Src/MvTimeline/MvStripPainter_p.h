#pragma once

// Internal to the library: painting of the render strip.
//
// The strip fills the rectangles of its finished stretches, then those of its unfinished ones over
// them. Zoomed out, thousands of them share each device pixel, so they are merged into runs of
// device columns when the stretches change; a paint then fills a few rectangles whatever the
// number of segments, with exactly the pixels the two path fills would give.

#include "MvDevicePixels_p.h"
#include "MvTimelineGlobal.h"

#include <QColor>
#include <QImage>
#include <QRect>
#include <QVector>

#include <limits>

class QPainter;

// A horizontal stretch [x0, x1] in logical pixels (a rectangle of the render strip).
struct MvPixelSpan
{
    int x0 = 0;
    int x1 = 0;
};

namespace MvStripPainter {
// Sorts (when needed) and merges overlapping or touching stretches in place; empty ones go.
MVTIMELINE_TEST_EXPORT void mergeSpans(QVector<MvPixelSpan>* spans);
// Fills the union of the rectangles (x0, 0, x1 - x0, height) of merged stretches; only those
// that meet [0, width] are visited.
MVTIMELINE_TEST_EXPORT void fillSpans(
    QPainter& painter, const QVector<MvPixelSpan>& merged, int width, int height, const QColor& color);
}

// The strip's stretches, and the same as runs of device columns.
class MVTIMELINE_TEST_EXPORT MvStripRuns
{
public:
    enum State : quint8
    {
        Finished = 1,
        Unfinished = 2
    };
    // Device columns [x0, x1), relative to the whole device pixels of the transform's offset.
    struct Run
    {
        int x0 = 0;
        int x1 = 0;
        quint8 state = 0; // Finished, Unfinished or both
    };

    // The stretches to refill before rebuild().
    QVector<MvPixelSpan>& finishedSpans() { return m_spans[0]; }
    QVector<MvPixelSpan>& unfinishedSpans() { return m_spans[1]; }
    // Merges the stretches and works out the runs of those that meet [left, right] (logical; the
    // strip's width and a pixel either side) for a device pixel ratio.
    void rebuild(
        double scale, int left = std::numeric_limits<int>::min() / 4, int right = std::numeric_limits<int>::max() / 4);

    // Fills the finished stretches over rows [0, height) with `finished`, then the unfinished
    // ones with `unfinished`; an invalid colour fills nothing. Runs for another scale or another
    // fraction of a pixel of offset are worked out first; a painter that does not only scale and
    // translate gets the stretches that meet [0, width] filled as paths.
    void paint(QPainter& painter, int width, int height, const QColor& finished, const QColor& unfinished);

    const QVector<Run>& runs() const { return m_runs; }
    double scale() const { return m_scale; }

    // How the last paint filled: rectangles per run, or, with many runs in view and opaque
    // colours, one row of device pixels repeated down the strip.
    enum Method
    {
        Nothing,
        Rectangles,
        Row
    };
    Method lastMethod() const { return m_lastMethod; }

private:
    // Beyond this many runs in view, one row of pixels costs less than a rectangle per run.
    static constexpr int kRowFromRuns = 32;
    static constexpr int kLongestRow = 1 << 16;

    // The runs a paint reaches and where they land.
    struct Range
    {
        QVector<Run>::const_iterator begin;
        QVector<Run>::const_iterator end;
        int shift = 0; // whole device pixels of the transform's offset
        int first = 0; // device columns [first, last) reached
        int last = 0;
        MvExactFill::Rows rows;
    };

    static bool isOpaqueOrUnset(const QColor& color) { return !color.isValid() || color.alpha() == 255; }
    void build(double scale, double offsetFraction);
    // Fills the runs of `state` (but those of both states when skipBoth) with rectangles.
    void fillRuns(QPainter& painter, const Range& range, quint8 state, bool skipBoth, const QColor& color);
    // Paints each column in its final colour at once: a row of pixels, repeated down the rows.
    void fillRow(QPainter& painter, const Range& range, const QColor& finished, const QColor& unfinished);

    QVector<MvPixelSpan> m_spans[2];
    QVector<Run> m_runs;
    int m_left = 0; // the stretches that meet [m_left, m_right] make the runs
    int m_right = 0;
    double m_scale = 0.0;
    double m_offsetFraction = 0.0;
    bool m_built = false;
    QVector<QRect> m_rects; // scratch of a paint
    QImage m_row; // scratch of a paint
    Method m_lastMethod = Nothing;
};
