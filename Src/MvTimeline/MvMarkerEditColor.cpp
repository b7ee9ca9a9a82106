#include "MvMarkerEditColor.h"

#include "MvMarkerPresenter.h"
#include "MvSkinStyle.h"
#include "MvTimelineAccessible_p.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {
constexpr int kMaxCellSide = 16;
constexpr int kCellGap = 8;
constexpr int kFocusMarkSide = 6;

// The library's marker colours in palette order, as the user calls them.
const char* const kPaletteNames[] = {
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Red"),
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Orange"),
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Yellow"),
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Green"),
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Cyan"),
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Blue"),
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Purple"),
    QT_TRANSLATE_NOOP("MvMarkerEditColor", "Pink"),
};
constexpr int kPaletteNameCount = int(sizeof(kPaletteNames) / sizeof(kPaletteNames[0]));

void announce(QObject* object, QAccessible::Event kind)
{
    if (!object || !MvAccessibleAnnouncer::isHeard())
        return;
    QAccessibleEvent event(object, kind);
    MvAccessibleAnnouncer::send(&event);
}
}

MvMarkerEditColorCell::MvMarkerEditColorCell(MvMarkerEditColor* row)
    : QWidget(row)
{
    setCursor(Qt::PointingHandCursor);
    // The row takes the keyboard for all its cells.
    setFocusPolicy(Qt::NoFocus);
}

MvMarkerEditColor* MvMarkerEditColorCell::row() const
{
    return static_cast<MvMarkerEditColor*>(parentWidget());
}

MvMarkerEditColor::MvMarkerEditColor(const QList<QColor>& colors, QWidget* parent)
    : MvWidget(parent)
    , m_colors(colors)
{
    for (int i = 0; i < m_colors.size(); ++i) {
        auto* cell = new MvMarkerEditColorCell(this);
        cell->setObjectName(QStringLiteral("colorCell%1").arg(i));
        m_cells.append(cell);
    }
    // An empty row has nothing to choose: the tab chain passes it by.
    setFocusPolicy(m_cells.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
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

QWidget* MvMarkerEditColor::cell(int index) const
{
    return m_cells.value(index);
}

int MvMarkerEditColor::cellIndex(const QWidget* cell) const
{
    for (int i = 0; i < m_cells.size(); ++i) {
        if (m_cells.at(i) == cell)
            return i;
    }
    return -1;
}

QString MvMarkerEditColor::colorName(int index) const
{
    if (index < 0 || index >= m_colors.size())
        return QString();
    const QColor color = m_colors.at(index);
    const int paletteIndex = MvMarkerPresenter::markerPaletteIndex(color);
    if (paletteIndex >= 0 && paletteIndex < kPaletteNameCount)
        return tr(kPaletteNames[paletteIndex]);
    return tr("Color %1").arg(color.name());
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
    if (checked >= 0)
        m_currentIndex = checked;
    update();
    announce(m_cells.value(checked), QAccessible::Selection);
    MvAccessibleAnnouncer::valueChanged(this);
    Q_EMIT selectedIndexChanged(checked);
}

int MvMarkerEditColor::currentIndex() const
{
    if (m_cells.isEmpty())
        return -1;
    return m_currentIndex >= 0 ? m_currentIndex : std::max(m_selectedIndex, 0);
}

void MvMarkerEditColor::setCurrentIndex(int index)
{
    if (m_cells.isEmpty())
        return;
    const int clamped = std::clamp(index, 0, int(m_cells.size()) - 1);
    if (clamped == currentIndex() && m_currentIndex >= 0)
        return;
    m_currentIndex = clamped;
    update();
    if (hasFocus())
        announce(m_cells.at(m_currentIndex), QAccessible::Focus);
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
    if (hasFocus())
        paintFocusMark(painter);
}

void MvMarkerEditColor::paintFocusMark(QPainter& painter) const
{
    // A dot in the middle of the swatch under the keyboard, dark on light colours and light on
    // dark ones; the row is no taller than its swatches, so the mark stays inside.
    const int index = currentIndex();
    const QRect cell = cellRect(index);
    if (cell.isEmpty())
        return;
    const QColor fill = m_colors.at(index);
    const bool light = qGray(fill.rgb()) >= 128;
    painter.setPen(Qt::NoPen);
    painter.setBrush(light ? QColor(Qt::black) : QColor(Qt::white));
    const int side = std::min(kFocusMarkSide, cell.width() - 4);
    painter.drawEllipse(QRectF(cell.center().x() + 0.5 - side / 2.0, cell.center().y() + 0.5 - side / 2.0, side, side));
}

void MvMarkerEditColor::mousePressEvent(QMouseEvent* event)
{
    QWidget* child = childAt(event->pos());
    if (!child)
        return;
    setSelectedIndex(cellIndex(child));
    update();
}

void MvMarkerEditColor::keyPressEvent(QKeyEvent* event)
{
    if (m_cells.isEmpty() || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        MvWidget::keyPressEvent(event);
        return;
    }
    const int last = m_cells.size() - 1;
    int target = -1;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        target = std::max(currentIndex() - 1, 0);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        target = std::min(currentIndex() + 1, last);
        break;
    case Qt::Key_Home:
        target = 0;
        break;
    case Qt::Key_End:
        target = last;
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Picks the marked swatch; Enter does not reach the dialog's buttons from here.
        setSelectedIndex(currentIndex());
        event->accept();
        return;
    default:
        MvWidget::keyPressEvent(event);
        return;
    }
    setCurrentIndex(target);
    setSelectedIndex(target);
    event->accept();
}

void MvMarkerEditColor::focusInEvent(QFocusEvent* event)
{
    MvWidget::focusInEvent(event);
    update();
    announce(m_cells.value(currentIndex()), QAccessible::Focus);
}

void MvMarkerEditColor::focusOutEvent(QFocusEvent* event)
{
    MvWidget::focusOutEvent(event);
    update();
}
