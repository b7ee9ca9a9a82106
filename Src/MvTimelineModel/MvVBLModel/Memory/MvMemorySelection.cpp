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
    m_marks = MvMemoryMarks();
    m_items.reserve(items.size());
    for (IMvAbstractClip* item : items) {
        bool live = false;
        const MvMemoryUndoable* own = m_timeline->ownItem(item, &live);
        if (live && !m_marks.mark(own->undoSerial()))
            m_items.append(item);
    }
}

// An item that is not on this timeline leaves nothing selected, as null does.
void MvMemorySelection::selectItem(IMvAbstractClip* item)
{
    selectItems(item ? QList<IMvAbstractClip*> { item } : QList<IMvAbstractClip*>());
}

void MvMemorySelection::clear()
{
    m_items.clear();
    m_marks = MvMemoryMarks();
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

IMvAbstractClip* MvMemorySelection::itemAt(int index) const
{
    return m_items.value(index);
}

bool MvMemorySelection::prune(const QList<const IMvAbstractClip*>& candidates)
{
    MvMemoryMarks gone;
    bool any = false;
    for (const IMvAbstractClip* item : candidates) {
        bool live = false;
        const MvMemoryUndoable* own = m_timeline->ownItem(item, &live);
        if (own && !live && m_marks.isMarked(own->undoSerial())) {
            gone.mark(own->undoSerial());
            m_marks.unmark(own->undoSerial());
            any = true;
        }
    }
    if (!any)
        return false;
    m_items.erase(std::remove_if(m_items.begin(), m_items.end(),
                      [this, &gone](const IMvAbstractClip* item) {
                          const MvMemoryUndoable* own = m_timeline->ownItem(item);
                          return own && gone.isMarked(own->undoSerial());
                      }),
        m_items.end());
    return true;
}

void MvMemorySelection::setItemsUnchecked(const QList<IMvAbstractClip*>& items)
{
    m_items = items;
    m_marks = MvMemoryMarks();
    for (const IMvAbstractClip* item : items) {
        if (const MvMemoryUndoable* own = m_timeline->ownItem(item))
            m_marks.mark(own->undoSerial());
    }
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
