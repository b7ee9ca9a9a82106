#pragma once

#include "MvTimelinePresenter.h"

#include <QHash>

class MvTimelineVirtualPlayheadPresenter;
class MvKeyFramePresenter;

class MvTimelinePresenterPrivate
{
    Q_DECLARE_PUBLIC(MvTimelinePresenter)

public:
    MvTimelinePresenterPrivate(MvTimelinePresenter* q, IMvTimeline* timeline);
    ~MvTimelinePresenterPrivate();

    bool hasEmptyCap() const;
    int calcDetachAudioTrackIndex(IMvClip* clip) const;
    void editMarker();

    MvTimelinePresenter* q_ptr;
    MvTimelineVirtualPlayheadPresenter* virtualPlayheadPresenter = nullptr;
    MvKeyFramePresenter* keyFramePresenter = nullptr;
    IMvTimeline* timeline;
    MvTimelinePresenter::MvTimelineViewConfig* config;
    bool actionEnabled = true;
    QHash<MVVBLMODEL::MvClipType, bool> copiedClipTypes;
    MvTimelinePresenter::MvTimelineModeType modeType = MvTimelinePresenter::NormalMode;
    bool updateActionEnabled = true;
};
