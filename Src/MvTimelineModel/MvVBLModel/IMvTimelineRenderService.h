#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

// A stretch of the timeline and whether its preview still has to be rendered.
struct MvRenderSegment
{
    qint64 start = 0;
    qint64 end = 0;
    quint64 unfinished = 0; // non-zero while the stretch still needs rendering

    bool operator==(const MvRenderSegment& other) const
    {
        return start == other.start && end == other.end && unfinished == other.unfinished;
    }
};

class MVVBLMODEL_EXPORT IMvTimelineRenderEventObserver
{
public:
    virtual ~IMvTimelineRenderEventObserver();

    virtual void onPrepareStart() { }
    virtual void onFinished() { }
    virtual void onStop() { }
    virtual void onError(int code) { Q_UNUSED(code) }
    virtual void onSegmentsChanged() { }
};

// Background preview rendering of a timeline.
class MVVBLMODEL_EXPORT IMvTimelineRenderService
{
public:
    virtual ~IMvTimelineRenderService();

    virtual void addObserver(IMvTimelineRenderEventObserver* observer) = 0;
    virtual void removeObserver(IMvTimelineRenderEventObserver* observer) = 0;
    virtual void segments(QList<MvRenderSegment>& out) const = 0;
};
