#pragma once

#include "MvMemoryGlobal.h"

#include "MvMemoryMediaItem.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

class MvMemoryTimeline;

// A compound item: a timeline of its own (the content) that is read in the background the first
// time it is needed, as a project file would be. The reader fills the content on a thread of its
// own (the content's gate keeps that safe, see MvMemoryThreadGate.h); whoever needs the content
// waits for it, with a time limit. Its length is the content's, and 0 until the content is read.
class MVMEMORY_EXPORT MvMemoryCompoundMediaItem : public MvMemoryMediaItem, public IMvCompoundMediaItem
{
public:
    // Fills the content; returns early (leaving it unread) when `cancelled` turns true.
    using Reader = std::function<void(MvMemoryTimeline& content, const std::atomic<bool>& cancelled)>;

    // The content is borrowed: it outlives the item and every clip that shows it.
    MvMemoryCompoundMediaItem(const QString& name, MvMemoryTimeline* content, Reader reader);
    // Stops a reading under way and waits for its thread.
    ~MvMemoryCompoundMediaItem() override;

    qint64 lengthInFrames(const MVVBLMODEL::MvRational& rate) const override;
    bool isTimelineLoaded() const override;
    bool waitForTimelineLoaded(int timeoutMs) override;

    MvMemoryTimeline* content() const { return m_content; }
    // The time reading takes before the reader runs, as a slow disk would (0 by default).
    void setReadTime(int ms);
    // Starts the reading unless it has begun.
    void startLoading();
    bool hasStartedLoading() const;

private:
    void read();

    MvMemoryTimeline* m_content;
    Reader m_reader;
    int m_readTimeMs = 0;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_started = false; // under m_mutex
    bool m_loaded = false; // under m_mutex
    std::atomic<bool> m_cancelled { false };
    std::thread m_thread;
};
