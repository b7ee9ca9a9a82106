#pragma once

#include "MvTimelinePlayheadPresenter.h"

#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"

#include <QPointer>

class MvTimelinePlayheadPresenterPrivate : public IMvPlayheadEventObserver, public IMvTimelineRulerEventObserover
{
    Q_DECLARE_PUBLIC(MvTimelinePlayheadPresenter)

public:
    MvTimelinePlayheadPresenterPrivate(MvTimelinePlayheadPresenter* q, MvTimelinePresenter* timelinePresenter);

    void onPlayheadEvent(IMvTimelinePlayhead* source, int kind) override;
    void onRulerEvent(int kind) override;

    void registerObservers();
    void unregisterObservers();
    IMvTimelinePlayhead* playhead() const;
    bool modelEnabled() const;
    int lowestSplitButtonY() const;
    int clampedSplitButtonY(qint64 requested) const;

    MvTimelinePlayheadPresenter* q_ptr;
    // Not owned; a host may delete it first, and then this presenter is inert.
    QPointer<MvTimelinePresenter> timelinePresenter;
    MvPlayheadData data;
    // What the constructor registered with, so that the destructor leaves the same objects.
    IMvTimelinePlayhead* observedPlayhead = nullptr;
    IMvTimelineRuler* observedRuler = nullptr;
};
