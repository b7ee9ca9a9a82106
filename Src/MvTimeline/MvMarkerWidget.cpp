#include "MvMarkerWidget.h"

#include <QPainter>

#include <limits>

namespace {
constexpr int kMarkerWidth = 11;
constexpr int kMarkerHeight = 14;

void drawMarker(QPainter& painter, const QImage& image, int x)
{
    if (!image.isNull())
        painter.drawImage(MvMarkerWidget::markerRect(x), image);
}
}

MvMarkerWidget::MvMarkerWidget(MvMarkerPresenter* presenter, QWidget* parent)
    : MvWidget(parent)
{
    setPresenter(presenter);
}

MvMarkerWidget::~MvMarkerWidget() = default;

void MvMarkerWidget::setPresenter(MvMarkerPresenter* presenter)
{
    m_presenter = presenter;
    if (!presenter)
        return;
    connect(presenter, &MvMarkerPresenter::signalMarkerCountChanged, this, &MvMarkerWidget::slotMarkerCountChanged);
    connect(presenter, &MvMarkerPresenter::signalClearTimelineSelectedMarker, this,
        &MvMarkerWidget::slotClearTimelineSelectedMarker);
    // A host may delete the presenter first; the strip then shows no markers.
    connect(presenter, &QObject::destroyed, this, [this, presenter]() {
        if (m_presenter != presenter)
            return;
        m_presenter = nullptr;
        m_markers.clear();
        update();
    });
    slotMarkerCountChanged();
}

MvMarkerPresenter* MvMarkerWidget::presenter() const
{
    return m_presenter;
}

QList<MvMarkerPresenter::MarkerItem> MvMarkerWidget::markers() const
{
    return m_markers;
}

QRect MvMarkerWidget::markerRect(int x)
{
    // A marker far off the strip, at an end of the int range, keeps its size instead of overflowing.
    const int left = int(qBound<qint64>(
        std::numeric_limits<int>::min(), qint64(x) - kMarkerWidth / 2, std::numeric_limits<int>::max() - kMarkerWidth));
    return QRect(left, -1, kMarkerWidth, kMarkerHeight);
}

void MvMarkerWidget::slotMarkerCountChanged()
{
    if (!m_presenter)
        return;
    m_markers = m_presenter->markerList();
    update();
}

void MvMarkerWidget::slotClearTimelineSelectedMarker()
{
    if (!m_pressVisible)
        return;
    m_pressVisible = false;
    update();
}

void MvMarkerWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    if (!m_presenter)
        return;
    QPainter painter(this);
    const int count = m_markers.size();
    const bool hoverValid = m_hoverIndex >= 0 && m_hoverIndex < count;
    if (m_floating1 || m_floating2) {
        // The hovered marker follows the pointer, over all the others.
        for (int i = 0; i < count; ++i) {
            if (i != m_hoverIndex)
                drawMarker(painter, m_presenter->normalMarkerImage(m_markers.at(i).second), m_markers.at(i).first);
        }
        if (hoverValid)
            drawMarker(painter, m_presenter->horverMarkerImage(m_markers.at(m_hoverIndex).second), m_floatingX);
    } else {
        for (int i = 0; i < count; ++i) {
            const MvMarkerPresenter::MarkerItem& marker = m_markers.at(i);
            const QImage image = i == m_hoverIndex ? m_presenter->horverMarkerImage(marker.second)
                                                   : m_presenter->normalMarkerImage(marker.second);
            drawMarker(painter, image, marker.first);
        }
    }
    if (m_pressVisible && m_pressIndex >= 0 && m_pressIndex < count)
        drawMarker(painter, m_presenter->pressMarkerImage(m_markers.at(m_pressIndex).second), m_floatingX);
}
