#pragma once

#include "MvMemoryGlobal.h"

#include "IMvTimelineRenderService.h"
#include "MvVBLModelGlobal.h"

#include <QList>

// The preview render state of an in-memory timeline: a list of frame stretches (both ends
// inclusive), each rendered or still to render. A host or a test drives it; there is no renderer
// behind it, renderNext() stands in for one.
class MVMEMORY_EXPORT MvMemoryRenderService : public IMvTimelineRenderService
{
public:
    MvMemoryRenderService();
    ~MvMemoryRenderService() override;

    void addObserver(IMvTimelineRenderEventObserver* observer) override;
    void removeObserver(IMvTimelineRenderEventObserver* observer) override;
    int observerCount() const;

    void segments(QList<MvRenderSegment>& out) const override;
    QList<MvRenderSegment> segmentList() const;

    // Replaces the list as given (order, overlaps and reversed stretches included).
    void setSegments(const QList<MvRenderSegment>& segments);
    void clearSegments();
    // Marking rewrites the list as sorted stretches that do not overlap, neighbours of the same
    // state merged. A stretch whose end is before its start is refused.
    bool markFinished(qint64 start, qint64 end);
    bool markUnfinished(qint64 start, qint64 end);

    // Frames still to render.
    qint64 unfinishedFrames() const;
    // Renders up to maxFrames of the earliest unfinished stretch and returns how many it did.
    // Tells onFinished() when that left nothing to render.
    qint64 renderNext(qint64 maxFrames);

    void notifyPrepareStart();
    void notifyFinished();
    void notifyStop();
    void notifyError(int code);

private:
    bool mark(qint64 start, qint64 end, bool unfinished);
    void replace(const QList<MvRenderSegment>& segments);
    template <typename Call> void notify(Call call);

    QList<MvRenderSegment> m_segments;
    QList<IMvTimelineRenderEventObserver*> m_observers;
};
