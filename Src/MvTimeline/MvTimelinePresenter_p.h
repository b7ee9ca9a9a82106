#pragma once

#include "MvTimelinePresenter.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QPointer>

class IMvAbstractClip;
#include <functional>
#include <memory>

class IMvTrack;
class MvTaskRunner;
class MvTimelineVirtualPlayheadPresenter;
class MvKeyFramePresenter;

// The state of one timeline presenter, then its commands grouped by the file that implements them
// (MvTimelinePresenter<Family>.cpp). Helpers used by one family stay local to that family's file;
// model access shared by every presenter is in MvTimelineModelAccess_p.h.
class MvTimelinePresenterPrivate
{
    Q_DECLARE_PUBLIC(MvTimelinePresenter)

public:
    MvTimelinePresenterPrivate(MvTimelinePresenter* q, IMvTimeline* timeline);
    ~MvTimelinePresenterPrivate();

    MvTimelinePresenter* q_ptr;
    // Qt children of the presenter, which a host may still delete first: then they read as null.
    QPointer<MvTimelineVirtualPlayheadPresenter> virtualPlayheadPresenter;
    QPointer<MvKeyFramePresenter> keyFramePresenter;
    IMvTimeline* timeline;
    MvTimelinePresenter::MvTimelineViewConfig* config;
    bool actionEnabled = true;
    QHash<MVVBLMODEL::MvClipType, bool> copiedClipTypes;
    MvTimelinePresenter::MvTimelineModeType modeType = MvTimelinePresenter::NormalMode;
    bool updateActionEnabled = true;
    // Runs the long parts of a media insertion on a worker (MvTaskRunner_p.h); a Qt child of the
    // presenter as well, where tests find it.
    std::unique_ptr<MvTaskRunner> taskRunner;
    // The effect data (user data 13003) of the clip whose effects were copied last.
    QString copiedEffectData;

    // Frame (MvTimelinePresenter.cpp).
    bool isVirtualPlayheadOpen() const;

    // Clip editing (MvTimelinePresenterClipEdit.cpp).
    bool hasEmptyCap() const;
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
    IMvClip* getFirstSelectedClip() const;
    void checkAndMoveToSelectedClipStartPos();
    void fitTimeline();

    // Moves (MvTimelinePresenterClipMove.cpp).
    bool moveClipsHorizontal(qint64 frameOffset);
    bool moveClipsVertical(int trackIndexOffset);
    bool moveWithActionsHeld(const QList<IMvClip*>& clips, const QList<int>& trackOffsets, qint64 frameOffset,
        const QList<IMvClip*>& selected);

    // Items that are not whole clips (MvTimelinePresenterItems.cpp).
    void addMarker(const QColor& color);
    bool removeSelectedMarker() const;
    bool canRemoveMarker() const;
    void rotate90CW();
    void rotate90CCW();
    bool removeSelectedFreezeFrame();
    bool removeSelectedSmartKeyingNode();

    // Marker editing (MvTimelinePresenterMarkerEdit.cpp).
    void editMarker();

    // Toasts (MvTimelinePresenterToasts.cpp).
    void showToast(const QString& text);

    // Media insertion (MvTimelinePresenterMediaInsertion.cpp).
    QList<IMvClip*> addMedias(const MvTimelineAddMediaParam& param, int policy);
    QList<IMvClip*> insertPrepared(const MvTimelineAddMediaParam& request, int policy);
    void announceInsertion(const QList<IMvAbstractMediaItem*>& prepared, QList<IMvClip*>& clips, bool handled);
    bool prepareAddMedia(IMvAbstractMediaItem* item);
    QList<IMvAbstractMediaItem*> prepareAddMedias(const QList<IMvAbstractMediaItem*>& items, bool* handled);
    QList<IMvAbstractMediaItem*> downloadMediaItems(const QList<IMvAbstractMediaItem*>& items);
    QList<IMvAbstractMediaItem*> selectMediaItems(const QList<IMvAbstractMediaItem*>& items);
    QList<IMvAbstractMediaItem*> selectVCGMediaItems(const QList<IMvAbstractMediaItem*>& items);
    QList<IMvAbstractMediaItem*> downloadAndSelectVCGItems(const QList<IMvAbstractMediaItem*>& items, bool* flag);
    void checkMatchProjectSettings(const QList<IMvAbstractMediaItem*>& items);
    void executeTaskWithLoadingIndicator(const std::function<void()>& task);
    QDialog* getAddLoadingWgt();
    void notifyAddMediaSucceed(const QList<IMvAbstractMediaItem*>& items, void* context, int value, bool send);
    void notifyTimelineScrollToTrack(const QList<IMvClip*>& clips);

    // Transitions (MvTimelinePresenterTransitions.cpp).
    void addTransitionMedia(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item, qint64 duration);
    void addTransitionMedia(
        IMvClip* clip, IMvTransitionMediaItem* item, qint64 duration, MVVBLMODEL::MvTransitionType type);
    void randomAddTransitionMedia(
        const QList<IMvClip*>& clips, const QList<IMvAbstractMediaItem*>& items, qint64 duration);
    void showRepeatFrame();

    // Effects (MvTimelinePresenterEffects.cpp).
    void addEffectMedia(IMvClip* clip, IMvAbstractMediaItem* item);
    void addEffectMedias(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item);
    void copyEffect();
    void pasteEffect();
    void deleteEffect();
    bool hasEffect() const;
    bool canPasteEffect() const;

    // Tracks (MvTimelinePresenterTracks.cpp).
    void adjustTrackHeight(int trackIndex, MVVBLMODEL::MvTrackSizePolicy policy);
    int calcDetachAudioTrackIndex(IMvClip* clip) const;
    void setLock(IMvTrack* track, bool lock);
    void setMute(IMvTrack* track, bool mute);
    void setVisible(IMvTrack* track, bool visible);
    bool muteEnable(IMvTrack* track) const;
    bool trackVisible(IMvTrack* track) const;
    void setMute(bool mute);
    bool mute() const;
    void clearEmptyTracks();
    bool canClearEmptyTracks() const;

    // Clipboard (MvTimelinePresenterClipboard.cpp).
    void rebuildCopiedClipTypes(const QList<IMvAbstractClip*>& items);
    void copySelectedClips();
    void cutSelectedClips();
    void pasteClips();
    bool canPasteClip() const;
    void pasteNormalClip();
    void pasteTransition();

    // Audio (MvTimelinePresenterAudio.cpp).
    void detachSelectedAudio();
    bool detachSelectedAudioEnabled() const;
    void clearRemix();

    // Library resources (MvTimelinePresenterSimilarResource.cpp).
    bool canSearchSimilarResource() const;
    void searchSimilarResource();

    // Composed texts (MvTimelinePresenterSubText.cpp).
    bool canSelectAllSubTextClips() const;
    void selectAllSubTextClips();

    // Property panel requests (MvTimelinePresenterPropertyPanel.cpp).
    static MVVBLMODEL::MvPropertyType getPropertyType(const IMvClip* clip);
    void showAdvancedColor();
    void showAdvancedEdit(bool arg);
    void openAudioPropertyPanel();
    void showKeyFrameCustomizePanel(IMvClip* clip);
    void addAnimation();
    void selectedKeyFrameChanged(IMvClip* clip, qint64 frame);
};
