#include "MvRulerLabelCache_p.h"

#include <QPaintDevice>
#include <QPainter>

#include <cmath>
#include <limits>

namespace {

constexpr Qt::Alignment kLabelAlignment = Qt::AlignLeft | Qt::AlignTop;
// Room around a label's rectangle for ink beyond it; a tile whose text reaches this far is not used.
constexpr double kTileMargin = 4.0;
// How far beyond its rectangle a label drawn as text may reach, in device pixels.
constexpr int kTextOverhang = 2;

// The bounding box of the pixels that differ from `background`; empty when none does.
QRect inkBox(const QImage& image, quint32 background)
{
    int left = image.width();
    int right = -1;
    int top = image.height();
    int bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const quint32*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == background)
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = y;
        }
    }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

int dotsPerMeter(int dpi)
{
    return qRound(dpi / 0.0254);
}

}

bool MvRulerLabelCache::Look::operator==(const Look& other) const
{
    return dpiX == other.dpiX && dpiY == other.dpiY && ink == other.ink && background == other.background
        && scaleX == other.scaleX && scaleY == other.scaleY && hints == other.hints && direction == other.direction
        && format == other.format && font == other.font;
}

bool MvRulerLabelCache::tilesPossible(QPainter& painter, const QColor& background) const
{
    return background.isValid() && background.alpha() == 255 && painter.device()
        && painter.pen().brush().style() == Qt::SolidPattern && MvDevicePixels::isPlainScale(painter)
        && MvDevicePixels::rasterFormat(painter) != QImage::Format_Invalid;
}

void MvRulerLabelCache::begin(
    QPainter& painter, const QColor& background, const QRectF& filled, const MvDeviceClip& clip)
{
    ++m_paint;
    m_copies.resize(0);
    m_texts.resize(0);
    m_tilesCopied = 0;
    m_reach = std::numeric_limits<int>::min();
    m_tiles = tilesPossible(painter, background);
    if (!m_tiles)
        return;
    m_toDevice = painter.deviceTransform();
    Look look;
    look.font = painter.font();
    look.dpiX = painter.device()->logicalDpiX();
    look.dpiY = painter.device()->logicalDpiY();
    look.ink = painter.pen().color();
    look.background = background;
    look.scaleX = m_toDevice.m11();
    look.scaleY = m_toDevice.m22();
    look.hints = painter.renderHints();
    look.direction = painter.layoutDirection();
    look.format = MvDevicePixels::rasterFormat(painter);
    if (!(look == m_look)) {
        m_entries.clear();
        m_look = look;
    }
    m_background = MvDevicePixels::coveredPixels(m_toDevice, filled);
    m_clip = clip;
}

void MvRulerLabelCache::draw(QPainter& painter, const QRectF& rect, const QString& text)
{
    if (!m_tiles) {
        painter.drawText(rect, kLabelAlignment, text);
        return;
    }
    const double x = rect.left() * m_toDevice.m11() + m_toDevice.dx();
    const double y = rect.top() * m_toDevice.m22() + m_toDevice.dy();
    const QPoint firstPixel(int(std::floor(x)), int(std::floor(y)));
    Entry& entry = m_entries[Key { text, x - firstPixel.x(), y - firstPixel.y() }];
    // A label seen once may never show again (the view is scrolling); the second time it pays.
    if (!entry.made && entry.lastPaint != 0 && entry.lastPaint != m_paint)
        makeTile(painter, rect, text, firstPixel, &entry);
    entry.lastPaint = m_paint;
    if (entry.usable) {
        if (entry.tile.isNull())
            return; // the text touches no pixel here
        const QRect box(firstPixel + entry.offset, entry.tile.size());
        if (box.left() >= m_reach && canCopy(box)) {
            m_copies.append({ box.topLeft(), entry.tile });
            m_reach = box.left() + box.width();
            return;
        }
    }
    m_texts.append({ rect, text });
    const QRect reach = m_toDevice.mapRect(rect).toAlignedRect();
    m_reach = std::max(m_reach, reach.left() + reach.width() + kTextOverhang);
}

void MvRulerLabelCache::end(QPainter& painter)
{
    // Copies first: a label drawn as text after them may overlap a copy, never the other way round.
    if (!m_copies.isEmpty()) {
        const MvDeviceSpace deviceSpace(painter);
        for (const QPair<QPoint, QImage>& copy : qAsConst(m_copies))
            painter.drawImage(copy.first, copy.second);
    }
    m_tilesCopied = m_copies.size();
    for (const QPair<QRectF, QString>& label : qAsConst(m_texts))
        painter.drawText(label.first, kLabelAlignment, label.second);
    m_copies.resize(0);
    m_texts.resize(0);
    if (m_entries.size() <= kCapacity)
        return;
    for (auto it = m_entries.begin(); it != m_entries.end();) {
        if (it->lastPaint != m_paint)
            it = m_entries.erase(it);
        else
            ++it;
    }
}

void MvRulerLabelCache::makeTile(
    QPainter& painter, const QRectF& rect, const QString& text, const QPoint& firstPixel, Entry* entry)
{
    entry->made = true;
    const QRect area
        = m_toDevice.mapRect(rect.adjusted(-kTileMargin, -kTileMargin, kTileMargin, kTileMargin)).toAlignedRect();
    QImage canvas(area.size(), m_look.format);
    canvas.setDotsPerMeterX(dotsPerMeter(m_look.dpiX));
    canvas.setDotsPerMeterY(dotsPerMeter(m_look.dpiY));
    if (canvas.isNull() || canvas.logicalDpiX() != m_look.dpiX || canvas.logicalDpiY() != m_look.dpiY)
        return; // the font would not come out the same size
    {
        QPainter tilePainter(&canvas);
        tilePainter.fillRect(canvas.rect(), m_look.background);
        // The target's transform moved by whole device pixels: the text falls on the same
        // fraction of a pixel, so its pixels are the same, shifted.
        tilePainter.setTransform(QTransform(
            m_toDevice.m11(), 0.0, 0.0, m_toDevice.m22(), m_toDevice.dx() - area.left(), m_toDevice.dy() - area.top()));
        tilePainter.setRenderHints(tilePainter.renderHints(), false);
        tilePainter.setRenderHints(m_look.hints, true);
        tilePainter.setLayoutDirection(m_look.direction);
        tilePainter.setFont(painter.font());
        tilePainter.setPen(painter.pen());
        tilePainter.drawText(rect, kLabelAlignment, text);
    }
    const quint32 background = *reinterpret_cast<const quint32*>(canvas.constScanLine(0));
    const QRect box = inkBox(canvas, background);
    if (box.isEmpty()) {
        entry->usable = true;
        return;
    }
    if (box.left() == 0 || box.top() == 0 || box.right() == canvas.width() - 1 || box.bottom() == canvas.height() - 1)
        return; // the text may reach beyond the tile
    // Opaque pixels keep their values in a format without alpha, which copies fastest.
    entry->tile = canvas.copy(box).convertToFormat(QImage::Format_RGB32);
    entry->offset = area.topLeft() + box.topLeft() - firstPixel;
    entry->usable = true;
}

bool MvRulerLabelCache::canCopy(const QRect& box) const
{
    // The copy replaces every pixel of its box, so each one must hold the background now, as far
    // as this paint reaches: inside the filled background, or outside the painted area.
    if (m_background.contains(box))
        return true;
    if (!m_clip.isBounded())
        return false;
    const QRect reached = box & m_clip.bounds();
    return reached.isEmpty() || m_background.contains(reached);
}
