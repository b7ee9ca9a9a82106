#pragma once

#include "MvTimelinePresenter.h"

#include <QColor>
#include <QHash>
#include <QList>

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

    // Clip editing (MvTimelinePresenterClipEdit.cpp).
    bool splitClips(qint64 frame, bool select, bool prepareFlag);
    bool splitClips(qint64 frame, QList<IMvClip*> clips, bool select, bool prepareFlag);
    bool canSplitClip() const;
    bool ungroupBeforeSplit(QList<IMvClip*> clips, bool& needGroupAfter);
    bool groupAfterSplit(QList<IMvClip*> sourceClips, QList<IMvClip*> newClips);
    bool trimStartToPlayhead();
    bool trimEndToPlayhead();
    bool canTrimToPlayhead() const;
    bool deleteSelectedClips();
    bool rippleDeleteSelectedClips();
    bool deleteItems(bool arg);
    bool canDeleteItems();
    bool canDeleteClip() const;
    bool moveClipsHorizontal(qint64 frameOffset);
    bool moveClipsVertical(int trackIndexOffset);
    IMvClip* getFirstSelectedClip() const;
    void checkAndMoveToSelectedClipStartPos();
    void fitTimeline();

    // Items that are not whole clips (MvTimelinePresenterItems.cpp).
    void addMarker(const QColor& color);
    bool removeSelectedMarker() const;
    bool canRemoveMarker() const;
    void rotate90CW();
    void rotate90CCW();
    bool removeSelectedFreezeFrame();
    bool removeSelectedSmartKeyingNode();

    qint64 playheadFrame() const;
    QList<IMvClip*> selectedClips() const;
    IMvClip* trimTarget() const;
    // The selected clips together with the clips that follow them by motion tracking.
    QList<IMvClip*> withMotionFollowers(const QList<IMvClip*>& selected) const;
    // Runs a model move with the action refresh held back until the model has settled.
    bool moveWithActionsHeld(const QList<IMvClip*>& clips, const QList<int>& trackOffsets, qint64 frameOffset,
        const QList<IMvClip*>& selected);

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
