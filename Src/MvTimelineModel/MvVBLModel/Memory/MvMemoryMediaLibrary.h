#pragma once

#include "MvMemoryGlobal.h"

#include <QList>
#include <QString>

class MvMemoryMediaItem;
class MvMemoryTimeline;

// The media of a project: the items a host offers for insertion, and the timelines that its
// compound items show. It owns both; the timelines outlive the items (a compound item's reading
// thread ends before its content goes).
class MVMEMORY_EXPORT MvMemoryMediaLibrary
{
public:
    MvMemoryMediaLibrary();
    ~MvMemoryMediaLibrary();

    // Takes the item; returns it.
    template <typename Item> Item* add(Item* item)
    {
        adopt(item);
        return item;
    }
    // A new empty timeline kept for a compound item's content.
    MvMemoryTimeline* addTimeline(const QString& name, int projectId);

    QList<MvMemoryMediaItem*> items() const { return m_items; }
    // The first item of that name, or null.
    MvMemoryMediaItem* find(const QString& name) const;

private:
    Q_DISABLE_COPY(MvMemoryMediaLibrary)
    void adopt(MvMemoryMediaItem* item);

    QList<MvMemoryMediaItem*> m_items;
    QList<MvMemoryTimeline*> m_timelines;
};
