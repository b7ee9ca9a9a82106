#include "MvMarkerAccessible_p.h"

#include "MvMarkerEditColor.h"
#include "MvMarkerWidget.h"

#include <algorithm>

MvMarkerStripAccessible::MvMarkerStripAccessible(MvMarkerWidget* strip)
    : MvAccessibleWidget(strip, QAccessible::List)
{
}

MvMarkerStripAccessible::~MvMarkerStripAccessible()
{
    for (QAccessible::Id id : qAsConst(m_markerIds))
        QAccessible::deleteAccessibleInterface(id);
}

MvMarkerWidget* MvMarkerStripAccessible::strip() const
{
    return static_cast<MvMarkerWidget*>(widget());
}

int MvMarkerStripAccessible::childCount() const
{
    return strip()->markers().size();
}

QAccessibleInterface* MvMarkerStripAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    while (m_markerIds.size() <= index) {
        auto* item = new MvMarkerItemAccessible(strip(), m_markerIds.size());
        m_markerIds.append(QAccessible::registerAccessibleInterface(item));
    }
    return QAccessible::accessibleInterface(m_markerIds.at(index));
}

int MvMarkerStripAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const int count = std::min(int(m_markerIds.size()), childCount());
    for (int i = 0; i < count; ++i) {
        if (child && QAccessible::accessibleInterface(m_markerIds.at(i)) == child)
            return i;
    }
    return -1;
}

QAccessibleInterface* MvMarkerStripAccessible::childAt(int x, int y) const
{
    return child(strip()->markerAt(strip()->mapFromGlobal(QPoint(x, y))));
}

QString MvMarkerStripAccessible::ownText(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return tr("Markers");
    case QAccessible::Value: {
        // "Intro, 00:00:01:00; Outro, 00:00:20:00"
        QStringList items;
        for (int i = 0; i < childCount(); ++i)
            items.append(strip()->markerDescription(i).replace(QLatin1Char('\n'), QStringLiteral(", ")));
        return items.isEmpty() ? tr("No markers") : items.join(QStringLiteral("; "));
    }
    default:
        return QString();
    }
}

MvMarkerItemAccessible::MvMarkerItemAccessible(MvMarkerWidget* strip, int index)
    : m_strip(strip)
    , m_index(index)
{
}

bool MvMarkerItemAccessible::isValid() const
{
    return m_strip && m_index < m_strip->markers().size();
}

QObject* MvMarkerItemAccessible::object() const
{
    return nullptr;
}

QAccessibleInterface* MvMarkerItemAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_strip);
}

QAccessibleInterface* MvMarkerItemAccessible::child(int index) const
{
    Q_UNUSED(index)
    return nullptr;
}

int MvMarkerItemAccessible::childCount() const
{
    return 0;
}

int MvMarkerItemAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    Q_UNUSED(child)
    return -1;
}

QAccessibleInterface* MvMarkerItemAccessible::childAt(int x, int y) const
{
    Q_UNUSED(x)
    Q_UNUSED(y)
    return nullptr;
}

QString MvMarkerItemAccessible::text(QAccessible::Text kind) const
{
    if (!isValid() || !m_strip->presenter())
        return QString();
    switch (kind) {
    case QAccessible::Name: {
        const QString name = m_strip->presenter()->markerName(m_index);
        return name.isEmpty() ? tr("Unnamed marker") : name;
    }
    case QAccessible::Value:
    case QAccessible::Description:
        return m_strip->presenter()->markerTimecode(m_index);
    default:
        return QString();
    }
}

void MvMarkerItemAccessible::setText(QAccessible::Text kind, const QString& text)
{
    Q_UNUSED(kind)
    Q_UNUSED(text)
}

QRect MvMarkerItemAccessible::rect() const
{
    if (!isValid())
        return QRect();
    const QRect local = MvMarkerWidget::markerRect(m_strip->markers().at(m_index).first);
    return QRect(m_strip->mapToGlobal(local.topLeft()), local.size());
}

QAccessible::Role MvMarkerItemAccessible::role() const
{
    return QAccessible::ListItem;
}

QAccessible::State MvMarkerItemAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.readOnly = true;
    // Beyond the strip's edges (scrolled away) a marker is not on screen.
    state.offscreen = !m_strip->rect().intersects(MvMarkerWidget::markerRect(m_strip->markers().at(m_index).first));
    return state;
}

MvColorRowAccessible::MvColorRowAccessible(MvMarkerEditColor* row)
    : MvAccessibleWidget(row, QAccessible::List)
{
}

MvMarkerEditColor* MvColorRowAccessible::row() const
{
    return static_cast<MvMarkerEditColor*>(widget());
}

QAccessibleInterface* MvColorRowAccessible::focusChild() const
{
    if (!row()->hasFocus())
        return nullptr;
    return QAccessible::queryAccessibleInterface(row()->cell(row()->currentIndex()));
}

QString MvColorRowAccessible::ownText(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return tr("Marker colors");
    case QAccessible::Value: {
        const int selected = row()->selectedIndex();
        return selected < 0 ? tr("No color") : row()->colorName(selected);
    }
    default:
        return QString();
    }
}

MvColorCellAccessible::MvColorCellAccessible(MvMarkerEditColorCell* cell)
    : MvAccessibleWidget(cell, QAccessible::ListItem)
{
}

MvMarkerEditColor* MvColorCellAccessible::row() const
{
    return static_cast<MvMarkerEditColorCell*>(widget())->row();
}

int MvColorCellAccessible::index() const
{
    return row()->cellIndex(widget());
}

QAccessible::State MvColorCellAccessible::state() const
{
    QAccessible::State state = MvAccessibleWidget::state();
    state.selectable = true;
    state.selected = index() == row()->selectedIndex();
    // The row takes the keyboard for its cells: the one under the focus mark has it.
    state.focusable = true;
    state.focused = row()->hasFocus() && index() == row()->currentIndex();
    return state;
}

QStringList MvColorCellAccessible::actionNames() const
{
    return QStringList { pressAction() } + MvAccessibleWidget::actionNames();
}

void MvColorCellAccessible::doAction(const QString& actionName)
{
    if (actionName == pressAction())
        row()->setSelectedIndex(index());
    else
        MvAccessibleWidget::doAction(actionName);
}

QString MvColorCellAccessible::ownText(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? row()->colorName(index()) : QString();
}
