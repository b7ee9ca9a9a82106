#include "MvMediaHelper.h"

#include "IMvAbstractMediaItem.h"

#include <QDeadlineTimer>

bool MvMediaHelper::hasCustomCompoundMediaItem(const QList<IMvAbstractMediaItem*>& items)
{
    for (IMvAbstractMediaItem* item : items) {
        if (dynamic_cast<IMvCompoundMediaItem*>(item))
            return true;
    }
    return false;
}

bool MvMediaHelper::waitForFinishLoadCompoundMediaTimeline(const QList<IMvAbstractMediaItem*>& items, int timeoutMs)
{
    const QDeadlineTimer deadline(qMax(0, timeoutMs));
    bool allLoaded = true;
    for (IMvAbstractMediaItem* item : items) {
        auto* compound = dynamic_cast<IMvCompoundMediaItem*>(item);
        // Every item gets its reading started, even after one has run out of time.
        if (compound && !compound->waitForTimelineLoaded(int(deadline.remainingTime())))
            allLoaded = false;
    }
    return allLoaded;
}
