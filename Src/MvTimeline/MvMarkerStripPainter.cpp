#include "MvMarkerStripPainter_p.h"

#include "MvDevicePixels_p.h"
#include "MvMarkerWidget.h"

#include <QPainter>
#include <QWidget>

#include <cmath>
#include <limits>

namespace {

// Colour indices below this are looked up in a table, the others in a hash.
constexpr int kTableColours = 64;

// The colour of the strip's own background when Qt fills it with one opaque colour before the
// paint event; invalid when the strip is see-through.
QColor ownBackground(const QWidget& widget)
{
    if (!widget.autoFillBackground() || widget.testAttribute(Qt::WA_NoSystemBackground)
        || widget.testAttribute(Qt::WA_OpaquePaintEvent) || widget.testAttribute(Qt::WA_StyledBackground))
        return QColor();
    const QBrush brush = widget.palette().brush(widget.backgroundRole());
    return brush.style() == Qt::SolidPattern && brush.color().alpha() == 255 ? brush.color() : QColor();
}

// A layer of device pixels can be copied one to one: a raster image under a scale that is the
// same both ways and a move by whole device pixels.
bool layerPossible(const QPainter& painter)
{
    const QTransform t = painter.deviceTransform();
    return MvDevicePixels::isPlainScale(painter) && MvDevicePixels::rasterFormat(painter) != QImage::Format_Invalid
        && t.m11() == t.m22() && t.dx() == std::floor(t.dx()) && t.dy() == std::floor(t.dy());
}

// Where a marker at x may touch, in device pixels, with a pixel to spare.
QRect footprint(const QTransform& toDevice, int x)
{
    return toDevice.mapRect(QRectF(MvMarkerWidget::markerRect(x))).toAlignedRect().adjusted(-1, -1, 1, 1);
}

bool sameImages(const QImage& a, const QImage& b)
{
    return a.cacheKey() == b.cacheKey();
}

}

void MvMarkerStripPainter::paint(
    QPainter& painter, const QWidget& widget, MvMarkerPresenter& presenter, const MvMarkerStripScene& scene)
{
    lookUp(presenter, scene.markers);
    const QTransform toWidget = painter.deviceTransform();
    const MvDeviceClip clip(painter);
    const QRect painted = clip.isBounded() ? clip.bounds() : QRect();
    if (!layerPossible(painter) || widget.size().isEmpty()) {
        m_lastMethod = Direct;
        drawMarkers(painter, scene, painted, toWidget);
        return;
    }
    const double scale = toWidget.m11();
    const QColor background = ownBackground(widget);
    LayerKey key;
    key.size = QSize(int(std::ceil(widget.width() * scale)), int(std::ceil(widget.height() * scale)));
    key.scale = scale;
    key.format = background.isValid() ? MvDevicePixels::rasterFormat(painter) : QImage::Format_ARGB32_Premultiplied;
    key.background = background;
    key.hints = painter.renderHints();
    if (!m_layerValid || !(key == m_layerKey) || !(scene.markers == m_layerScene.markers) || imagesChanged()) {
        redrawLayer(key, scene);
        m_lastMethod = Redrawn;
    } else if (!scene.sameState(m_layerScene)) {
        patchLayer(changedAreas(m_layerScene, scene, QTransform::fromScale(scale, scale)), scene);
        m_lastMethod = Patched;
    } else {
        m_lastMethod = Copied;
    }
    // Only the painted part of the layer is copied.
    const QPoint origin(int(toWidget.dx()), int(toWidget.dy()));
    QRect source = m_layer.rect();
    if (!painted.isNull())
        source &= painted.translated(-origin);
    if (source.isEmpty())
        return;
    const MvDeviceSpace deviceSpace(painter);
    painter.drawImage(origin + source.topLeft(), m_layer, source);
}

void MvMarkerStripPainter::lookUp(MvMarkerPresenter& presenter, const QList<MvMarkerPresenter::MarkerItem>& markers)
{
    if (!(markers == m_coloursFor)) {
        // Markers come in few colours: a short list found by walking the markers once.
        m_colours.resize(0);
        int last = -1;
        for (const MvMarkerPresenter::MarkerItem& marker : markers) {
            if ((marker.second == last && !m_colours.isEmpty()) || m_colours.contains(marker.second))
                continue;
            m_colours.append(marker.second);
            last = marker.second;
        }
        m_coloursFor = markers;
    }
    m_looks.clear();
    m_lookTable.resize(0);
    for (int colour : qAsConst(m_colours)) {
        const Looks looks { presenter.normalMarkerImage(colour), presenter.horverMarkerImage(colour),
            presenter.pressMarkerImage(colour) };
        m_looks.insert(colour, looks);
        if (colour >= 0 && colour < kTableColours) {
            if (m_lookTable.size() <= colour)
                m_lookTable.resize(colour + 1);
            m_lookTable[colour] = looks;
        }
    }
}

const MvMarkerStripPainter::Looks& MvMarkerStripPainter::looksOf(int colour, bool device) const
{
    const QVector<Looks>& table = device ? m_deviceTable : m_lookTable;
    if (colour >= 0 && colour < table.size())
        return table.at(colour);
    static const Looks none;
    const QHash<int, Looks>& looks = device ? m_deviceLooks : m_looks;
    const auto it = looks.constFind(colour);
    return it == looks.cend() ? none : *it;
}

void MvMarkerStripPainter::prepareDeviceLooks(int scale)
{
    // Scaled by the very drawing that would scale them on the layer, whose whole-pixel origins
    // sample them the same way.
    const QSize size = MvMarkerWidget::markerRect(0).size();
    const auto scaled = [&](const QImage& image) {
        if (image.isNull())
            return QImage();
        QImage canvas(size * scale, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        painter.setRenderHints(painter.renderHints(), false);
        painter.setRenderHints(m_layerKey.hints, true);
        painter.setTransform(QTransform::fromScale(scale, scale));
        painter.drawImage(QRect(QPoint(0, 0), size), image);
        return canvas;
    };
    m_deviceLooks.clear();
    m_deviceTable.resize(0);
    for (auto it = m_looks.cbegin(); it != m_looks.cend(); ++it) {
        const Looks looks { scaled(it->normal), scaled(it->hover), scaled(it->pressed) };
        m_deviceLooks.insert(it.key(), looks);
        if (it.key() >= 0 && it.key() < kTableColours) {
            if (m_deviceTable.size() <= it.key())
                m_deviceTable.resize(it.key() + 1);
            m_deviceTable[it.key()] = looks;
        }
    }
    m_deviceScale = scale;
}

bool MvMarkerStripPainter::imagesChanged() const
{
    for (auto it = m_looks.cbegin(); it != m_looks.cend(); ++it) {
        const auto drawn = m_layerLooks.constFind(it.key());
        if (drawn == m_layerLooks.cend() || !sameImages(it->normal, drawn->normal)
            || !sameImages(it->hover, drawn->hover) || !sameImages(it->pressed, drawn->pressed))
            return true;
    }
    return false;
}

void MvMarkerStripPainter::drawMarkers(QPainter& painter, const MvMarkerStripScene& scene, const QRect& area,
    const QTransform& toDevice, int deviceScale) const
{
    // Markers share their rows; of the columns, those of x in [lowest, highest] may meet the area.
    int lowest = std::numeric_limits<int>::min();
    int highest = std::numeric_limits<int>::max();
    if (!area.isNull()) {
        const QRect rows = footprint(toDevice, 0);
        if (area.bottom() < rows.top() || area.top() > rows.bottom())
            return; // none of the markers' rows is in the area
        const QRect logical = toDevice.inverted().mapRect(QRectF(area)).toAlignedRect();
        const QRect marker = MvMarkerWidget::markerRect(0);
        lowest = logical.left() - (marker.left() + marker.width()) - 1;
        highest = logical.left() + logical.width() - marker.left() + 1;
    }
    const bool device = deviceScale > 0;
    const auto drawAt = [&](const QImage& image, int x) {
        if (image.isNull() || x < lowest || x > highest)
            return;
        const QRect rect = MvMarkerWidget::markerRect(x);
        if (device)
            painter.drawImage(rect.topLeft() * deviceScale, image);
        else
            painter.drawImage(rect, image);
    };
    const QList<MvMarkerPresenter::MarkerItem>& markers = scene.markers;
    const int count = markers.size();
    const bool hoverValid = scene.hoverIndex >= 0 && scene.hoverIndex < count;
    for (int i = 0; i < count; ++i) {
        const MvMarkerPresenter::MarkerItem& marker = markers.at(i);
        if (i != scene.hoverIndex)
            drawAt(looksOf(marker.second, device).normal, marker.first);
        else if (!scene.floating)
            drawAt(looksOf(marker.second, device).hover, marker.first);
    }
    // While floating, the hovered marker follows the pointer, over all the others.
    if (scene.floating && hoverValid)
        drawAt(looksOf(markers.at(scene.hoverIndex).second, device).hover, scene.floatingX);
    if (scene.pressVisible && scene.pressIndex >= 0 && scene.pressIndex < count)
        drawAt(looksOf(markers.at(scene.pressIndex).second, device).pressed, scene.floatingX);
}

QVector<QRect> MvMarkerStripPainter::changedAreas(
    const MvMarkerStripScene& before, const MvMarkerStripScene& after, const QTransform& toDevice) const
{
    QVector<QRect> areas;
    for (const MvMarkerStripScene* scene : { &before, &after }) {
        const int count = scene->markers.size();
        if (scene->hoverIndex >= 0 && scene->hoverIndex < count) {
            areas.append(footprint(toDevice, scene->markers.at(scene->hoverIndex).first));
            if (scene->floating)
                areas.append(footprint(toDevice, scene->floatingX));
        }
        if (scene->pressVisible && scene->pressIndex >= 0 && scene->pressIndex < count)
            areas.append(footprint(toDevice, scene->floatingX));
    }
    // Overlapping areas are drawn once.
    for (int i = 0; i < areas.size(); ++i) {
        for (int j = i + 1; j < areas.size();) {
            if (areas.at(i).intersects(areas.at(j))) {
                areas[i] |= areas.at(j);
                areas.remove(j);
                j = i + 1;
            } else {
                ++j;
            }
        }
    }
    return areas;
}

void MvMarkerStripPainter::redrawLayer(const LayerKey& key, const MvMarkerStripScene& scene)
{
    if (m_layer.size() != key.size || m_layer.format() != key.format)
        m_layer = QImage(key.size, key.format);
    m_layerKey = key;
    m_layerScene = scene;
    m_layerLooks = m_looks;
    m_layerValid = !m_layer.isNull();
    if (!m_layerValid)
        return;
    const bool whole = key.scale >= 2.0 && key.scale <= 8.0 && key.scale == std::floor(key.scale);
    m_deviceScale = 0;
    if (whole)
        prepareDeviceLooks(int(key.scale));
    QPainter layerPainter(&m_layer);
    drawLayerArea(layerPainter, scene, m_layer.rect());
}

void MvMarkerStripPainter::patchLayer(const QVector<QRect>& areas, const MvMarkerStripScene& scene)
{
    m_layerScene = scene;
    QPainter layerPainter(&m_layer);
    for (const QRect& area : areas)
        drawLayerArea(layerPainter, scene, area & m_layer.rect());
}

void MvMarkerStripPainter::drawLayerArea(
    QPainter& layerPainter, const MvMarkerStripScene& scene, const QRect& area) const
{
    if (area.isEmpty())
        return;
    layerPainter.save();
    layerPainter.resetTransform();
    // A clip keeps the raster engine off its fastest image paths: only a patch needs one.
    if (area != m_layer.rect())
        layerPainter.setClipRect(area);
    layerPainter.setCompositionMode(QPainter::CompositionMode_Source);
    layerPainter.fillRect(area, m_layerKey.background.isValid() ? m_layerKey.background : QColor(Qt::transparent));
    layerPainter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    layerPainter.setRenderHints(layerPainter.renderHints(), false);
    layerPainter.setRenderHints(m_layerKey.hints, true);
    const QTransform toLayer = QTransform::fromScale(m_layerKey.scale, m_layerKey.scale);
    if (m_deviceScale == 0)
        layerPainter.setTransform(toLayer);
    drawMarkers(layerPainter, scene, area, toLayer, m_deviceScale);
    layerPainter.restore();
}
