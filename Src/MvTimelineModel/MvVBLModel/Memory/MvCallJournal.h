#pragma once

#include "MvMemoryGlobal.h"

#include "MvVBLModelGlobal.h"

#include <QStringList>

#include <mutex>

// One ordered list of what happened: model edits ("model:deleteClips") and, from a test's scene,
// scene messages ("scene:7012"), so that orderings such as "the player is paused before the
// model changes" can be checked in one place.
class MVMEMORY_EXPORT MvCallJournal
{
public:
    void record(const QString& entry);
    QStringList entries() const;
    void clear();
    // Index of the first entry equal to text, or -1.
    int indexOf(const QString& text) const;

private:
    mutable std::mutex m_mutex; // a worker's edit records too
    QStringList m_entries;
};
