#include "MvMemoryCompoundMediaItem.h"

#include "MvMemoryTimeline.h"

#include <chrono>

using namespace MVVBLMODEL;

MvMemoryCompoundMediaItem::MvMemoryCompoundMediaItem(const QString& name, MvMemoryTimeline* content, Reader reader)
    : MvMemoryMediaItem(name, MediaType_Compound, 0)
    , m_content(content)
    , m_reader(std::move(reader))
{
}

MvMemoryCompoundMediaItem::~MvMemoryCompoundMediaItem()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_cancelled = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

// The content's frames at the content's rate, as frames of the asked rate (whole frames).
qint64 MvMemoryCompoundMediaItem::lengthInFrames(const MvRational& rate) const
{
    if (!isTimelineLoaded() || !m_content || rate.numerator <= 0 || rate.denominator <= 0)
        return 0;
    const MvRational own = m_content->frameRate();
    return m_content->duration() * rate.numerator * own.denominator / (rate.denominator * own.numerator);
}

bool MvMemoryCompoundMediaItem::isTimelineLoaded() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_loaded;
}

bool MvMemoryCompoundMediaItem::waitForTimelineLoaded(int timeoutMs)
{
    startLoading();
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::milliseconds(qMax(0, timeoutMs)), [this]() { return m_loaded; });
}

void MvMemoryCompoundMediaItem::setReadTime(int ms)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_readTimeMs = qMax(0, ms);
}

void MvMemoryCompoundMediaItem::startLoading()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_started)
        return;
    m_started = true;
    m_thread = std::thread([this]() { read(); });
}

bool MvMemoryCompoundMediaItem::hasStartedLoading() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_started;
}

void MvMemoryCompoundMediaItem::read()
{
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, std::chrono::milliseconds(m_readTimeMs), [this]() { return m_cancelled.load(); });
    }
    if (!m_cancelled && m_reader && m_content)
        m_reader(*m_content, m_cancelled);
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_cancelled)
        m_loaded = true;
    m_changed.notify_all();
}
