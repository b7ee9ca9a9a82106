#pragma once

// Internal to the library: the painting of the marker strip.
//
// With thousands of markers a strip paint drew thousands of images, even to repaint the few
// pixels the playhead left. The markers are now drawn once into a layer of the strip's device
// pixels and the layer is copied, only the painted area of it. The layer is redrawn as a whole
// when the markers, their images, the size or the scale change, and only around the markers
// concerned when the hover, press or floating state changes.
//
// A strip that fills its own opaque background (autoFillBackground with a solid opaque colour)
// gets a layer with that background in it, and the copy gives exactly the pixels of drawing the
// markers. On a see-through strip the layer holds the markers alone; the copy is the same but
// where two markers' semi-transparent edges overlap, which can differ by a rounding step. The
// markers are drawn directly, still only those that meet the painted area, where a layer cannot
// be copied pixel for pixel (another paint device, a transform that is not a whole-pixel move).

#include "MvMarkerPresenter.h"
#include "MvTimelineGlobal.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QRect>
#include <QTransform>
#include <QVector>

class QWidget;

// What the strip shows: the markers and the hover, press and floating state.
struct MvMarkerStripScene
{
    QList<MvMarkerPresenter::MarkerItem> markers;
    bool floating = false; // the hovered marker is drawn at floatingX
    int floatingX = 0;
    int hoverIndex = -1;
    bool pressVisible = false; // the pressed marker is drawn at floatingX
    int pressIndex = -1;

    bool sameState(const MvMarkerStripScene& other) const
    {
        return floating == other.floating && floatingX == other.floatingX && hoverIndex == other.hoverIndex
            && pressVisible == other.pressVisible && pressIndex == other.pressIndex;
    }
};

class MVTIMELINE_TEST_EXPORT MvMarkerStripPainter
{
public:
    enum Method
    {
        Direct, // drawn marker by marker
        Copied, // the layer as it was
        Patched, // the layer redrawn around the markers whose look changed
        Redrawn // the layer redrawn whole
    };

    // Paints `scene` on `widget` as the marker widget draws it: every marker in list order, the
    // hovered one with its hover image (at floatingX while floating, over all others), then the
    // pressed one at floatingX; each image into MvMarkerWidget::markerRect of its x.
    void paint(QPainter& painter, const QWidget& widget, MvMarkerPresenter& presenter, const MvMarkerStripScene& scene);

    Method lastMethod() const { return m_lastMethod; }

private:
    struct Looks
    {
        QImage normal;
        QImage hover;
        QImage pressed;
    };
    // What the layer was drawn for, besides the scene.
    struct LayerKey
    {
        QSize size; // device pixels
        double scale = 0.0;
        QImage::Format format = QImage::Format_Invalid;
        QColor background; // invalid: see-through
        QPainter::RenderHints hints;
        bool operator==(const LayerKey& other) const
        {
            return size == other.size && scale == other.scale && format == other.format
                && background == other.background && hints == other.hints;
        }
    };

    // Looks up the images of every colour in use, once each.
    void lookUp(MvMarkerPresenter& presenter, const QList<MvMarkerPresenter::MarkerItem>& markers);
    // The images of a colour as looked up, or (device) scaled to device pixels for copying.
    const Looks& looksOf(int colour, bool device) const;
    // At a whole scale of 2 or more, markers go faster as images already scaled to device pixels.
    void prepareDeviceLooks(int scale);
    bool imagesChanged() const;
    // Draws the markers whose pixels may meet `area` (device pixels under `toDevice`; all when
    // null), in the order of the scene; with a deviceScale, the painter is in device pixels and
    // the device looks are copied.
    void drawMarkers(QPainter& painter, const MvMarkerStripScene& scene, const QRect& area, const QTransform& toDevice,
        int deviceScale = 0) const;
    // The device rectangles whose look differs between two states of the same markers.
    QVector<QRect> changedAreas(
        const MvMarkerStripScene& before, const MvMarkerStripScene& after, const QTransform& toDevice) const;
    void redrawLayer(const LayerKey& key, const MvMarkerStripScene& scene);
    void patchLayer(const QVector<QRect>& areas, const MvMarkerStripScene& scene);
    // Fills `area` of the layer with its background (or clears it) and draws the markers there.
    void drawLayerArea(QPainter& layerPainter, const MvMarkerStripScene& scene, const QRect& area) const;

    QHash<int, Looks> m_looks; // per colour index, looked up by this paint
    QVector<Looks> m_lookTable; // the same for the small colour indices, the usual case
    QList<MvMarkerPresenter::MarkerItem> m_coloursFor; // the list m_colours was worked out for
    QVector<int> m_colours; // colour indices in use

    QImage m_layer;
    LayerKey m_layerKey;
    MvMarkerStripScene m_layerScene;
    QHash<int, Looks> m_layerLooks; // the images the layer was drawn with
    QHash<int, Looks> m_deviceLooks; // the same scaled to device pixels
    QVector<Looks> m_deviceTable;
    int m_deviceScale = 0; // of m_deviceLooks, 0 when the layer is drawn scaling
    bool m_layerValid = false;
    Method m_lastMethod = Direct;
};
