#include "MvEventFilterManager.h"

#include "IMvEventFilter.h"

IMvEventFilter::IMvEventFilter()
    : m_pressed(false)
    , m_movedSincePress(false)
{
}

IMvEventFilter::~IMvEventFilter() = default;

MvEventFilterManager::MvEventFilterManager(QObject* parent)
    : QObject(parent)
    , m_cursor(Qt::ArrowCursor)
{
}

MvEventFilterManager::~MvEventFilterManager() = default;

void MvEventFilterManager::addFilter(IMvEventFilter* filter)
{
    if (filter && !m_filters.contains(filter))
        m_filters.prepend(filter);
}

void MvEventFilterManager::removeFilter(IMvEventFilter* filter)
{
    m_filters.removeAll(filter);
}

bool MvEventFilterManager::hasFilter(IMvEventFilter* filter) const
{
    return m_filters.contains(filter);
}

int MvEventFilterManager::filterCount() const
{
    return m_filters.size();
}

bool MvEventFilterManager::dispatchEvent(QEvent* event)
{
    if (!event)
        return false;
    // A filter may unregister itself while handling; walk a copy.
    const QList<IMvEventFilter*> filters = m_filters;
    for (IMvEventFilter* filter : filters) {
        if (m_filters.contains(filter) && filter->onFilterEvent(event))
            return true;
    }
    return false;
}

QCursor MvEventFilterManager::getCursor() const
{
    return m_cursor;
}

void MvEventFilterManager::setCursor(const QCursor& cursor)
{
    m_cursor = cursor;
}
