#include "MvMemoryMediaLibrary.h"

#include "MvMemoryMediaItem.h"
#include "MvMemoryTimeline.h"

MvMemoryMediaLibrary::MvMemoryMediaLibrary() = default;

MvMemoryMediaLibrary::~MvMemoryMediaLibrary()
{
    qDeleteAll(m_items);
    qDeleteAll(m_timelines);
}

MvMemoryTimeline* MvMemoryMediaLibrary::addTimeline(const QString& name, int projectId)
{
    auto* timeline = new MvMemoryTimeline(1);
    timeline->setName(name);
    timeline->setProjectId(projectId);
    m_timelines.append(timeline);
    return timeline;
}

MvMemoryMediaItem* MvMemoryMediaLibrary::find(const QString& name) const
{
    for (MvMemoryMediaItem* item : m_items) {
        if (item->name() == name)
            return item;
    }
    return nullptr;
}

void MvMemoryMediaLibrary::adopt(MvMemoryMediaItem* item)
{
    if (item && !m_items.contains(item))
        m_items.append(item);
}
