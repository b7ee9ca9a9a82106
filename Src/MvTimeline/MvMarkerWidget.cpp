#include "MvMarkerWidget.h"

#include "MvMarkerStripPainter_p.h"

#include <QPainter>

namespace {
constexpr int kMarkerWidth = 11;
constexpr int kMarkerHeight = 14;
}

MvMarkerWidget::MvMarkerWidget(MvMarkerPresenter* presenter, QWidget* parent)
    : MvWidget(parent)
    , m_stripPainter(new MvMarkerStripPainter)
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
    return QRect(x - kMarkerWidth / 2, -1, kMarkerWidth, kMarkerHeight);
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
    MvMarkerStripScene scene;
    scene.markers = m_markers;
    scene.floating = m_floating1 || m_floating2;
    scene.floatingX = m_floatingX;
    scene.hoverIndex = m_hoverIndex;
    scene.pressVisible = m_pressVisible;
    scene.pressIndex = m_pressIndex;
    m_stripPainter->paint(painter, *this, *m_presenter, scene);
}
