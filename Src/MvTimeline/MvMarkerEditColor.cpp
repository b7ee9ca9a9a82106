#include "MvMarkerEditColor.h"

#include "MvSkinStyle.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {
constexpr int kMaxCellSide = 16;
constexpr int kCellGap = 8;
}

MvMarkerEditColor::MvMarkerEditColor(const QList<QColor>& colors, QWidget* parent)
    : MvWidget(parent)
    , m_colors(colors)
{
    for (int i = 0; i < m_colors.size(); ++i) {
        auto* cell = new QWidget(this);
        cell->setObjectName(QStringLiteral("colorCell%1").arg(i));
        cell->setCursor(Qt::PointingHandCursor);
        m_cells.append(cell);
    }
    layoutCells();
}

MvMarkerEditColor::~MvMarkerEditColor() = default;

QList<QColor> MvMarkerEditColor::colors() const
{
    return m_colors;
}

int MvMarkerEditColor::cellCount() const
{
    return m_cells.size();
}

QRect MvMarkerEditColor::cellRect(int index) const
{
    return index >= 0 && index < m_cells.size() ? m_cells.at(index)->geometry() : QRect();
}

int MvMarkerEditColor::selectedIndex() const
{
    return m_selectedIndex;
}

void MvMarkerEditColor::setSelectedIndex(int index)
{
    const int checked = index >= 0 && index < m_cells.size() ? index : -1;
    if (checked == m_selectedIndex)
        return;
    m_selectedIndex = checked;
    update();
}

void MvMarkerEditColor::layoutCells()
{
    const int side = std::min(height(), kMaxCellSide);
    for (int i = 0; i < m_cells.size(); ++i)
        m_cells.at(i)->setGeometry(i * (side + kCellGap), 0, side, side);
}

void MvMarkerEditColor::resizeEvent(QResizeEvent* event)
{
    layoutCells();
    MvWidget::resizeEvent(event);
}

void MvMarkerEditColor::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, true);
    QPen pen = painter.pen();
    pen.setStyle(Qt::SolidLine);
    pen.setWidth(2);
    pen.setColor(MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Primary()));
    painter.setPen(pen);
    for (int i = 0; i < m_cells.size(); ++i) {
        const QRect cell = m_cells.at(i)->geometry();
        painter.fillRect(cell, m_colors.at(i));
        if (i == m_selectedIndex)
            painter.drawRect(cell.adjusted(1, 1, -1, -1));
    }
}

void MvMarkerEditColor::mousePressEvent(QMouseEvent* event)
{
    QWidget* child = childAt(event->pos());
    if (!child)
        return;
    setSelectedIndex(m_cells.indexOf(child));
    update();
}
