#include "MvMemorySelection.h"

#include "IMvAbstractClip.h"
#include "MvMemoryTimeline.h"

MvMemorySelection::MvMemorySelection(MvMemoryTimeline* timeline)
    : m_timeline(timeline)
{
}

void MvMemorySelection::select(const QList<IMvClip*>& clips)
{
    QList<IMvAbstractClip*> items;
    items.reserve(clips.size());
    for (IMvClip* clip : clips)
        items.append(clip);
    selectItems(items);
}

// Items that are not on this timeline, and repeats, are left out.
void MvMemorySelection::selectItems(const QList<IMvAbstractClip*>& items)
{
    m_items.clear();
    for (IMvAbstractClip* item : items) {
        if (m_timeline->isLive(item) && !m_items.contains(item))
            m_items.append(item);
    }
}

void MvMemorySelection::clear()
{
    m_items.clear();
}

int MvMemorySelection::count() const
{
    return m_items.size();
}

bool MvMemorySelection::isEmpty() const
{
    return m_items.isEmpty();
}

QList<IMvAbstractClip*> MvMemorySelection::selectedItems() const
{
    return m_items;
}

QList<IMvClip*> MvMemorySelection::selectedClips() const
{
    QList<IMvClip*> clips;
    for (IMvAbstractClip* item : m_items) {
        if (auto* clip = dynamic_cast<IMvClip*>(item))
            clips.append(clip);
    }
    return clips;
}

IMvAbstractClip* MvMemorySelection::currentItem() const
{
    return m_items.isEmpty() ? nullptr : m_items.first();
}

bool MvMemorySelection::isTimelineSelected() const
{
    return m_timelineSelected;
}

void MvMemorySelection::setTimelineSelected(bool selected)
{
    m_timelineSelected = selected;
}

bool MvMemorySelection::prune()
{
    const int before = m_items.size();
    for (int i = m_items.size() - 1; i >= 0; --i) {
        if (!m_timeline->isLive(m_items.at(i)))
            m_items.removeAt(i);
    }
    return m_items.size() != before;
}

bool MvMemorySubItemSelection::selectedId(int& id) const
{
    if (!m_hasSelection)
        return false;
    id = m_id;
    return true;
}

void MvMemorySubItemSelection::select(int id)
{
    m_hasSelection = true;
    m_id = id;
}

void MvMemorySubItemSelection::clear()
{
    m_hasSelection = false;
    m_id = 0;
}
