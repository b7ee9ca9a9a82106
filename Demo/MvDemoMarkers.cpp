#include "MvDemoMarkers.h"

#include "IMvMarker.h"
#include "IMvTimeline.h"
#include "IMvTimelineRuler.h"
#include "MvTimelinePresenter.h"

#include <QMouseEvent>
#include <QPainter>

namespace {
// An 11 x 14 flag: a pole and a pennant in the marker's colour.
QImage flagImage(const QColor& color, bool outline)
{
    QImage image(11, 14, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QPolygonF pennant({ QPointF(0.5, 1), QPointF(10.5, 1), QPointF(10.5, 9), QPointF(5.5, 13), QPointF(0.5, 9) });
    painter.setBrush(color);
    painter.setPen(outline ? QPen(Qt::white, 1.2) : Qt::NoPen);
    painter.drawPolygon(pennant);
    return image;
}
}

MvDemoMarkerPresenter::MvDemoMarkerPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent)
    : MvMarkerPresenter(timelinePresenter, parent)
    , m_timeline(timelinePresenter->timeline())
{
    const QList<QColor> palette = markerPalette();
    for (int i = 0; i < palette.size(); ++i)
        addMarkerImage(i, flagImage(palette.at(i), false), flagImage(palette.at(i).lighter(135), false),
            flagImage(palette.at(i).lighter(115), true));
}

QList<MvMarkerPresenter::MarkerItem> MvDemoMarkerPresenter::markerList()
{
    QList<MarkerItem> items;
    IMvMarkerList* list = m_timeline->timelineMarkers();
    const QList<IMvMarker*> markers = list->markers();
    for (IMvMarker* marker : markers) {
        const int x = m_originX + m_timeline->ruler()->frameToPixel(list->mapToTimeline(marker->frame()));
        items.append({ x, qMax(0, markerPaletteIndex(marker->color())) });
    }
    return items;
}

void MvDemoMarkerPresenter::setOriginX(int originX)
{
    if (originX == m_originX)
        return;
    m_originX = originX;
    Q_EMIT signalMarkerCountChanged();
}

IMvMarker* MvDemoMarkerPresenter::markerAt(int index) const
{
    return m_timeline->timelineMarkers()->markers().value(index);
}

MvDemoMarkerStrip::MvDemoMarkerStrip(MvDemoMarkerPresenter* presenter, QWidget* parent)
    : MvMarkerWidget(presenter, parent)
    , m_demoPresenter(presenter)
{
    setMouseTracking(true);
    setFixedHeight(16);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(0x1B, 0x1C, 0x20));
    setPalette(pal);
}

int MvDemoMarkerStrip::indexAt(const QPoint& pos) const
{
    // The topmost marker wins where flags overlap: later markers are drawn over earlier ones.
    for (int i = m_markers.size() - 1; i >= 0; --i) {
        if (markerRect(m_markers.at(i).first).contains(pos))
            return i;
    }
    return -1;
}

void MvDemoMarkerStrip::mouseMoveEvent(QMouseEvent* event)
{
    const int index = indexAt(event->pos());
    if (index != m_hoverIndex) {
        m_hoverIndex = index;
        update();
    }
}

void MvDemoMarkerStrip::mousePressEvent(QMouseEvent* event)
{
    const int index = indexAt(event->pos());
    m_pressIndex = index;
    m_pressVisible = index >= 0;
    if (index >= 0)
        m_floatingX = m_markers.at(index).first;
    update();
    if (IMvMarker* marker = m_demoPresenter->markerAt(index))
        Q_EMIT markerPicked(marker);
}

void MvDemoMarkerStrip::mouseReleaseEvent(QMouseEvent* event)
{
    Q_UNUSED(event)
    if (m_pressVisible) {
        m_pressVisible = false;
        update();
    }
}

void MvDemoMarkerStrip::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (indexAt(event->pos()) >= 0)
        Q_EMIT editRequested();
}

void MvDemoMarkerStrip::leaveEvent(QEvent* event)
{
    MvMarkerWidget::leaveEvent(event);
    m_hoverIndex = -1;
    update();
}
