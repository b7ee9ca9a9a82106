#include "MvStripPainter_p.h"

#include "MvDevicePixels_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <limits>

namespace MvStripPainter {

void mergeSpans(QVector<MvPixelSpan>* spans)
{
    const auto byStart = [](const MvPixelSpan& a, const MvPixelSpan& b) { return a.x0 < b.x0; };
    if (!std::is_sorted(spans->cbegin(), spans->cend(), byStart))
        std::sort(spans->begin(), spans->end(), byStart);
    int out = 0;
    for (const MvPixelSpan& span : qAsConst(*spans)) {
        if (span.x1 <= span.x0)
            continue; // covers no pixel centre at any scale
        if (out > 0 && span.x0 <= (*spans)[out - 1].x1) {
            (*spans)[out - 1].x1 = std::max((*spans)[out - 1].x1, span.x1);
            continue;
        }
        (*spans)[out++] = span;
    }
    spans->resize(out);
}

void fillSpans(QPainter& painter, const QVector<MvPixelSpan>& merged, int width, int height, const QColor& color)
{
    // Stretches wholly left of 0 or right of the width only reach pixels outside the widget.
    auto it = std::lower_bound(
        merged.cbegin(), merged.cend(), 0, [](const MvPixelSpan& span, int x) { return span.x1 < x; });
    if (!MvExactFill::canSnap(painter)) {
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        for (; it != merged.cend() && it->x0 <= width; ++it)
            path.addRect(QRectF(it->x0, 0, it->x1 - it->x0, height));
        painter.fillPath(path, color);
        return;
    }
    const QTransform t = painter.deviceTransform();
    const QTransform inverse = t.inverted();
    const MvExactFill::Rows rows = MvExactFill::rowsCovered(t, 0.0, double(height));
    if (rows.last <= rows.first)
        return;
    for (; it != merged.cend() && it->x0 <= width; ++it) {
        const int x0 = MvExactFill::firstCentreAfter(it->x0 * t.m11() + t.dx());
        const int x1 = MvExactFill::firstCentreAfter(it->x1 * t.m11() + t.dx());
        if (x1 > x0)
            MvExactFill::fillDevice(painter, inverse, x0, rows.first, x1, rows.last, color);
    }
}

}

void MvStripRuns::rebuild(double scale, int left, int right)
{
    MvStripPainter::mergeSpans(&m_spans[0]);
    MvStripPainter::mergeSpans(&m_spans[1]);
    m_left = left;
    m_right = right;
    build(scale, 0.0);
}

namespace {

using Columns = QVector<QPair<int, int>>; // [first, last) device columns, in order, apart

// The columns of the merged stretches that meet [left, right].
Columns columnsOf(const QVector<MvPixelSpan>& merged, int left, int right, double scale, double offsetFraction)
{
    // Merged stretches lie apart, so their columns come in order; touching ones are joined.
    Columns columns;
    auto span
        = std::lower_bound(merged.cbegin(), merged.cend(), left, [](const MvPixelSpan& s, int x) { return s.x1 < x; });
    // At a whole scale and offset a whole pixel maps to a pixel edge: the columns are the ends scaled.
    const bool whole = offsetFraction == 0.0 && scale == std::floor(scale) && scale >= 1.0 && scale <= 16.0;
    const int factor = whole ? int(scale) : 0;
    for (; span != merged.cend() && span->x0 <= right; ++span) {
        const int x0 = whole ? span->x0 * factor : MvExactFill::firstCentreAfter(span->x0 * scale + offsetFraction);
        const int x1 = whole ? span->x1 * factor : MvExactFill::firstCentreAfter(span->x1 * scale + offsetFraction);
        if (x1 <= x0)
            continue;
        if (!columns.isEmpty() && x0 <= columns.last().second)
            columns.last().second = std::max(columns.last().second, x1);
        else
            columns.append({ x0, x1 });
    }
    return columns;
}

}

void MvStripRuns::build(double scale, double offsetFraction)
{
    const Columns finished = columnsOf(m_spans[0], m_left, m_right, scale, offsetFraction);
    const Columns unfinished = columnsOf(m_spans[1], m_left, m_right, scale, offsetFraction);
    constexpr int kNone = std::numeric_limits<int>::max();
    m_runs.resize(0);
    int f = 0;
    int u = 0;
    int x = std::min(finished.isEmpty() ? kNone : finished.constFirst().first,
        unfinished.isEmpty() ? kNone : unfinished.constFirst().first);
    while (x != kNone) {
        const bool inFinished = f < finished.size() && finished.at(f).first <= x;
        const bool inUnfinished = u < unfinished.size() && unfinished.at(u).first <= x;
        // The next column where either state starts or ends.
        const int nextFinished
            = f < finished.size() ? (inFinished ? finished.at(f).second : finished.at(f).first) : kNone;
        const int nextUnfinished
            = u < unfinished.size() ? (inUnfinished ? unfinished.at(u).second : unfinished.at(u).first) : kNone;
        const int next = std::min(nextFinished, nextUnfinished);
        const quint8 state = quint8((inFinished ? Finished : 0) | (inUnfinished ? Unfinished : 0));
        if (state != 0) {
            if (!m_runs.isEmpty() && m_runs.last().x1 == x && m_runs.last().state == state)
                m_runs.last().x1 = next;
            else
                m_runs.append({ x, next, state });
        }
        x = next;
        if (f < finished.size() && finished.at(f).second <= x)
            ++f;
        if (u < unfinished.size() && unfinished.at(u).second <= x)
            ++u;
        if (f >= finished.size() && u >= unfinished.size())
            break;
    }
    m_scale = scale;
    m_offsetFraction = offsetFraction;
    m_built = true;
}

void MvStripRuns::paint(QPainter& painter, int width, int height, const QColor& finished, const QColor& unfinished)
{
    if (!MvExactFill::canSnap(painter)) {
        if (finished.isValid())
            MvStripPainter::fillSpans(painter, m_spans[0], width, height, finished);
        if (unfinished.isValid())
            MvStripPainter::fillSpans(painter, m_spans[1], width, height, unfinished);
        return;
    }
    const QTransform t = painter.deviceTransform();
    const double whole = std::floor(t.dx());
    const double fraction = t.dx() - whole;
    if (!m_built || t.m11() != m_scale || fraction != m_offsetFraction)
        build(t.m11(), fraction);
    const MvExactFill::Rows rows = MvExactFill::rowsCovered(t, 0.0, double(height));
    // The columns this paint can reach; nothing of the strip outside them can show.
    const MvDeviceClip clip(painter);
    const int shift = int(whole);
    int first = std::numeric_limits<int>::min() / 2;
    int last = std::numeric_limits<int>::max() / 2;
    if (clip.isBounded()) {
        first = clip.bounds().left();
        last = clip.bounds().left() + clip.bounds().width();
    } else if (!m_runs.isEmpty()) {
        first = m_runs.constFirst().x0 + shift;
        last = m_runs.constLast().x1 + shift;
    }
    const auto begin = std::upper_bound(
        m_runs.cbegin(), m_runs.cend(), first - shift, [](int x, const Run& run) { return x < run.x1; });
    const auto end
        = std::lower_bound(begin, m_runs.cend(), last - shift, [](const Run& run, int x) { return run.x0 < x; });
    if (rows.last <= rows.first || last <= first || begin == end)
        return;
    const Range range { begin, end, shift, first, last, rows };
    painter.save();
    {
        const MvDeviceSpace deviceSpace(painter);
        painter.setPen(Qt::NoPen);
        if (end - begin > kRowFromRuns && last - first <= kLongestRow && isOpaqueOrUnset(finished)
            && isOpaqueOrUnset(unfinished)) {
            fillRow(painter, range, finished, unfinished);
        } else {
            // Where an opaque unfinished colour covers both, the finished one beneath never shows.
            const bool hidden = unfinished.isValid() && unfinished.alpha() == 255;
            if (finished.isValid())
                fillRuns(painter, range, Finished, hidden, finished);
            if (unfinished.isValid())
                fillRuns(painter, range, Unfinished, false, unfinished);
        }
    }
    painter.restore();
}

void MvStripRuns::fillRuns(QPainter& painter, const Range& range, quint8 state, bool skipBoth, const QColor& color)
{
    m_lastMethod = Rectangles;
    m_rects.resize(0);
    for (auto run = range.begin; run != range.end; ++run) {
        if (!(run->state & state) || (skipBoth && run->state == (Finished | Unfinished)))
            continue;
        const int x0 = run->x0 + range.shift;
        const int x1 = run->x1 + range.shift;
        if (!m_rects.isEmpty() && m_rects.last().left() + m_rects.last().width() == x0)
            m_rects.last().setRight(x1 - 1);
        else
            m_rects.append(QRect(x0, range.rows.first, x1 - x0, range.rows.last - range.rows.first));
    }
    if (m_rects.isEmpty())
        return;
    painter.setBrush(color);
    painter.drawRects(m_rects.constData(), m_rects.size());
}

void MvStripRuns::fillRow(QPainter& painter, const Range& range, const QColor& finished, const QColor& unfinished)
{
    m_lastMethod = Row;
    const int width = range.last - range.first;
    if (m_row.width() < width)
        m_row = QImage(width, 1, QImage::Format_ARGB32_Premultiplied);
    m_row.fill(Qt::transparent);
    // The colours as the solid filler writes them; opaque, so drawing one over another replaces it.
    const quint32 pixels[4] = { 0u, finished.isValid() ? finished.rgba64().toArgb32() : 0u,
        unfinished.isValid() ? unfinished.rgba64().toArgb32() : 0u,
        unfinished.isValid()     ? unfinished.rgba64().toArgb32()
            : finished.isValid() ? finished.rgba64().toArgb32()
                                 : 0u };
    auto* line = reinterpret_cast<quint32*>(m_row.scanLine(0));
    for (auto run = range.begin; run != range.end; ++run) {
        const int x0 = std::max(run->x0 + range.shift, range.first) - range.first;
        const int x1 = std::min(run->x1 + range.shift, range.last) - range.first;
        std::fill(line + x0, line + x1, pixels[run->state & 3]);
    }
    // One row, repeated down the strip's rows by the texture.
    QBrush brush(m_row);
    brush.setTransform(QTransform::fromTranslate(range.first, 0));
    painter.fillRect(QRect(range.first, range.rows.first, width, range.rows.last - range.rows.first), brush);
}
