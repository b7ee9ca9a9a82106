#include "MvDevicePixels_p.h"

#include <QPaintEngine>
#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace MvDevicePixels {

QImage::Format rasterFormat(const QPainter& painter)
{
    QPaintEngine* engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster)
        return QImage::Format_Invalid;
    QPaintDevice* device = engine->paintDevice();
    if (!device || device->devType() != QInternal::Image)
        return QImage::Format_Invalid;
    const QImage::Format format = static_cast<const QImage*>(device)->format();
    switch (format) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
    case QImage::Format_ARGB32_Premultiplied:
        return format;
    default:
        return QImage::Format_Invalid;
    }
}

bool isPlainScale(const QPainter& painter)
{
    const QTransform t = painter.deviceTransform();
    return t.type() <= QTransform::TxScale && t.m11() > 0.0 && t.m22() > 0.0
        && !painter.testRenderHint(QPainter::Antialiasing) && painter.opacity() == 1.0
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

QRect coveredPixels(const QTransform& toDevice, const QRectF& rect)
{
    const QRectF device = toDevice.mapRect(rect);
    const int left = int(std::ceil(device.left()));
    const int top = int(std::ceil(device.top()));
    const int right = int(std::floor(device.right())); // exclusive
    const int bottom = int(std::floor(device.bottom()));
    return right > left && bottom > top ? QRect(left, top, right - left, bottom - top) : QRect();
}

}

namespace MvExactFill {

namespace {
// std::llround (halves away from zero) without the library call, for |value| < 2^52.
qint64 roundHalfAway(double value)
{
    const qint64 whole = qint64(value); // toward zero
    const double fraction = value - double(whole); // exact
    return fraction >= 0.5 ? whole + 1 : fraction <= -0.5 ? whole - 1 : whole;
}
}

int firstCentreAfter(double device)
{
    // The filler works in 26.6 fixed point; a pixel k has its centre at 64k + 32.
    const qint64 fixed = roundHalfAway(device * 64.0);
    const qint64 shifted = fixed - 32;
    const qint64 below = shifted >= 0 ? shifted / 64 : -((-shifted + 63) / 64);
    return int(below + 1);
}

Rows rowsCovered(const QTransform& t, double top, double height)
{
    const double bottom = top + height;
    return { firstCentreAfter(top * t.m22() + t.dy()), firstCentreAfter(bottom * t.m22() + t.dy()) };
}

bool canSnap(const QPainter& painter)
{
    return painter.deviceTransform().type() <= QTransform::TxScale && !painter.testRenderHint(QPainter::Antialiasing);
}

void fillDevice(QPainter& painter, const QTransform& inverse, int x0, int y0, int x1, int y1, const QColor& color)
{
    painter.fillRect(inverse.mapRect(QRectF(x0, y0, x1 - x0, y1 - y0)), color);
}

}

MvDeviceClip::MvDeviceClip(const QPainter& painter)
{
    QRegion area;
    if (QPaintEngine* engine = painter.paintEngine()) {
        // The engine keeps the exposed region of the widget being painted, in device pixels;
        // without one, the device itself bounds the paint.
        area = engine->systemClip();
        const QPaintDevice* device = engine->paintDevice();
        if (area.isEmpty() && device)
            area = QRect(0, 0, device->width(), device->height());
        m_bounded = !area.isEmpty();
    }
    if (painter.hasClipping()) {
        const QRect own = painter.deviceTransform().mapRect(painter.clipBoundingRect()).toAlignedRect();
        area = m_bounded ? area & own : QRegion(own);
        m_bounded = true;
    }
    if (!m_bounded)
        return;
    m_bounds = area.boundingRect();
    for (const QRect& rect : area)
        m_columns.append({ rect.left(), rect.left() + rect.width() });
    std::sort(m_columns.begin(), m_columns.end());
    int out = 0;
    for (const QPair<int, int>& columns : qAsConst(m_columns)) {
        if (out > 0 && columns.first <= m_columns[out - 1].second)
            m_columns[out - 1].second = std::max(m_columns[out - 1].second, columns.second);
        else
            m_columns[out++] = columns;
    }
    m_columns.resize(out);
}

bool MvDeviceClip::meetsColumns(int x0, int x1) const
{
    if (!m_bounded)
        return true;
    // The first range that ends after x0 is the only one that can meet [x0, x1).
    const auto it = std::upper_bound(m_columns.cbegin(), m_columns.cend(), x0,
        [](int x, const QPair<int, int>& columns) { return x < columns.second; });
    return it != m_columns.cend() && it->first < x1;
}

bool MvDeviceClip::coversColumns(int x0, int x1) const
{
    if (!m_bounded)
        return true;
    const auto it = std::upper_bound(m_columns.cbegin(), m_columns.cend(), x0,
        [](int x, const QPair<int, int>& columns) { return x < columns.second; });
    return it != m_columns.cend() && it->first <= x0 && x1 <= it->second;
}

MvDeviceSpace::MvDeviceSpace(QPainter& painter)
    : m_painter(painter)
    , m_world(painter.worldTransform())
    , m_smooth(painter.testRenderHint(QPainter::SmoothPixmapTransform))
{
    // The device transform is the world transform followed by the rest (view, redirection,
    // device pixel ratio); this world transform undoes the whole of it.
    painter.setWorldTransform(painter.deviceTransform().inverted() * m_world);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

MvDeviceSpace::~MvDeviceSpace()
{
    m_painter.setWorldTransform(m_world);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform, m_smooth);
}
