#include "MvMemorySelection.h"

#include "IMvAbstractClip.h"
#include "MvMemoryTimeline.h"

#include <algorithm>

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
    m_members.clear();
    for (IMvAbstractClip* item : items) {
        if (m_timeline->isLive(item) && !m_members.contains(item)) {
            m_members.insert(item);
            m_items.append(item);
        }
    }
}

void MvMemorySelection::clear()
{
    m_items.clear();
    m_members.clear();
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

bool MvMemorySelection::prune(const QList<const IMvAbstractClip*>& candidates)
{
    QSet<const IMvAbstractClip*> gone;
    for (const IMvAbstractClip* item : candidates) {
        if (m_members.contains(item) && !m_timeline->isLive(item))
            gone.insert(item);
    }
    if (gone.isEmpty())
        return false;
    m_items.erase(std::remove_if(m_items.begin(), m_items.end(),
                      [&gone](const IMvAbstractClip* item) { return gone.contains(item); }),
        m_items.end());
    m_members.subtract(gone);
    return true;
}

void MvMemorySelection::setItemsUnchecked(const QList<IMvAbstractClip*>& items)
{
    m_items = items;
    m_members = QSet<const IMvAbstractClip*>(items.cbegin(), items.cend());
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
