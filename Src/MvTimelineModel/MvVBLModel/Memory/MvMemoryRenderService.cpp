#include "MvMemoryRenderService.h"

#include <algorithm>

MvMemoryRenderService::MvMemoryRenderService() = default;

MvMemoryRenderService::~MvMemoryRenderService() = default;

void MvMemoryRenderService::addObserver(IMvTimelineRenderEventObserver* observer)
{
    if (observer && !m_observers.contains(observer))
        m_observers.append(observer);
}

void MvMemoryRenderService::removeObserver(IMvTimelineRenderEventObserver* observer)
{
    m_observers.removeAll(observer);
}

int MvMemoryRenderService::observerCount() const
{
    return m_observers.size();
}

void MvMemoryRenderService::segments(QList<MvRenderSegment>& out) const
{
    out = m_segments;
}

QList<MvRenderSegment> MvMemoryRenderService::segmentList() const
{
    return m_segments;
}

void MvMemoryRenderService::setSegments(const QList<MvRenderSegment>& segments)
{
    replace(segments);
}

void MvMemoryRenderService::clearSegments()
{
    replace({});
}

bool MvMemoryRenderService::markFinished(qint64 start, qint64 end)
{
    return mark(start, end, false);
}

bool MvMemoryRenderService::markUnfinished(qint64 start, qint64 end)
{
    return mark(start, end, true);
}

qint64 MvMemoryRenderService::unfinishedFrames() const
{
    qint64 frames = 0;
    for (const MvRenderSegment& segment : m_segments) {
        if (quint32(segment.unfinished) != 0 && segment.end >= segment.start)
            frames += segment.end - segment.start + 1;
    }
    return frames;
}

qint64 MvMemoryRenderService::renderNext(qint64 maxFrames)
{
    if (maxFrames <= 0)
        return 0;
    const MvRenderSegment* first = nullptr;
    for (const MvRenderSegment& segment : m_segments) {
        const bool pending = quint32(segment.unfinished) != 0 && segment.end >= segment.start;
        if (pending && (!first || segment.start < first->start))
            first = &segment;
    }
    if (!first)
        return 0;
    const qint64 start = first->start;
    const qint64 end = std::min(first->end, start + maxFrames - 1);
    mark(start, end, false);
    if (unfinishedFrames() == 0)
        notifyFinished();
    return end - start + 1;
}

void MvMemoryRenderService::notifyPrepareStart()
{
    notify([](IMvTimelineRenderEventObserver* observer) { observer->onPrepareStart(); });
}

void MvMemoryRenderService::notifyFinished()
{
    notify([](IMvTimelineRenderEventObserver* observer) { observer->onFinished(); });
}

void MvMemoryRenderService::notifyStop()
{
    notify([](IMvTimelineRenderEventObserver* observer) { observer->onStop(); });
}

void MvMemoryRenderService::notifyError(int code)
{
    notify([code](IMvTimelineRenderEventObserver* observer) { observer->onError(code); });
}

bool MvMemoryRenderService::mark(qint64 start, qint64 end, bool unfinished)
{
    if (end < start)
        return false;
    QList<MvRenderSegment> result;
    result.reserve(m_segments.size() + 2);
    for (const MvRenderSegment& segment : qAsConst(m_segments)) {
        if (segment.end < segment.start)
            continue;
        if (segment.end < start || segment.start > end) {
            result.append(segment);
            continue;
        }
        // Keep what sticks out on either side of the marked stretch.
        if (segment.start < start)
            result.append({ segment.start, start - 1, segment.unfinished });
        if (segment.end > end)
            result.append({ end + 1, segment.end, segment.unfinished });
    }
    result.append({ start, end, unfinished ? 1u : 0u });
    std::stable_sort(result.begin(), result.end(),
        [](const MvRenderSegment& a, const MvRenderSegment& b) { return a.start < b.start; });

    QList<MvRenderSegment> merged;
    merged.reserve(result.size());
    for (const MvRenderSegment& segment : qAsConst(result)) {
        const bool pending = quint32(segment.unfinished) != 0;
        if (!merged.isEmpty()) {
            MvRenderSegment& last = merged.last();
            if ((quint32(last.unfinished) != 0) == pending && segment.start <= last.end + 1) {
                last.end = std::max(last.end, segment.end);
                continue;
            }
        }
        merged.append({ segment.start, segment.end, pending ? 1u : 0u });
    }
    replace(merged);
    return true;
}

void MvMemoryRenderService::replace(const QList<MvRenderSegment>& segments)
{
    if (segments == m_segments)
        return;
    m_segments = segments;
    notify([](IMvTimelineRenderEventObserver* observer) { observer->onSegmentsChanged(); });
}

template <typename Call> void MvMemoryRenderService::notify(Call call)
{
    // Observers may unregister while being told; walk a copy.
    const QList<IMvTimelineRenderEventObserver*> observers = m_observers;
    for (IMvTimelineRenderEventObserver* observer : observers) {
        if (m_observers.contains(observer))
            call(observer);
    }
}
