#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvAbstractMediaItem;

// Compound media items read their timeline in the background; inserting one must wait for it.
class MVVBLMODEL_EXPORT MvMediaHelper
{
public:
    // Whether any of the items is a compound item (IMvCompoundMediaItem).
    static bool hasCustomCompoundMediaItem(const QList<IMvAbstractMediaItem*>& items);
    // Waits until the timeline of every compound item is read, timeoutMs at most in all; true when
    // they all are. Starts the reading of those not begun. Safe from any thread.
    static bool waitForFinishLoadCompoundMediaTimeline(const QList<IMvAbstractMediaItem*>& items, int timeoutMs);
};
