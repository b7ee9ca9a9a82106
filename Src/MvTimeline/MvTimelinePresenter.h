#pragma once

#include "MvPresenter.h"
#include "MvTimelineGlobal.h"
#include "MvVBLModelGlobal.h"

#include <QColor>
#include <QList>
#include <QRect>
#include <QScopedPointer>
#include <QString>

#include <functional>

class IMvAbstractMediaItem;
class IMvTransitionMediaItem;
class IMvClip;
class IMvTimeline;
class QDialog;
struct MvTimelineAddMediaParam;
class IMvTrack;
class MvZoomSlider;
class MvKeyFramePresenter;
class MvTimelineVirtualPlayheadPresenter;
class MvTimelinePresenterPrivate;

// The presenter of one edited timeline and the entry point of the library. The host creates one
// per timeline, derives from it where it must supply defaults (track heights, action refresh,
// track selection) and calls its commands from menus, shortcuts and the timeline widgets.
class MVTIMELINE_EXPORT MvTimelinePresenter : public MvPresenter
{
    Q_OBJECT

public:
    // Row sizes and fixed tracks of the hosting view. Only the two fixed-track counts matter to
    // this library; the other fields are read by the host.
    struct MVTIMELINE_EXPORT MvTimelineViewConfig
    {
        quint8 fixedTrackCountFirst = 1; // picture tracks that always stay
        quint8 fixedTrackCountSecond = 1; // audio tracks that always stay
        quint8 sizeParam = 55;
        qint32 widthParam = 128;
        bool flagFirst = true;
        bool flagSecond = false;

        MvTimelineViewConfig() = default;
        MvTimelineViewConfig(const MvTimelineViewConfig&) = default;
        MvTimelineViewConfig(MvTimelineViewConfig&&) = default;
        MvTimelineViewConfig& operator=(const MvTimelineViewConfig&) = default;
        MvTimelineViewConfig& operator=(MvTimelineViewConfig&&) = default;

        int fixedTrackCount() const;
        void clearFixedTrack();
    };

    // The host gives the modes their meaning; the presenter only keeps the value.
    enum MvTimelineModeType : qint32
    {
        NormalMode = 0,
        TrimMode = 1,
        BladeMode = 2,
        HandMode = 3
    };
    Q_ENUM(MvTimelineModeType)

    MvTimelinePresenter(QObject* parent, IMvTimeline* timeline);
    ~MvTimelinePresenter() override;

    // The virtual table is part of the binary interface hosts derive from: after QObject's
    // (metaObject, qt_metacast, qt_metacall, the destructor, event, eventFilter, timerEvent,
    // childEvent, customEvent, connectNotify, disconnectNotify) and MvPresenter's (init, reset, view,
    // clearView, dispatchMessage), none overridden, come these, in this order. Append, never insert.
    virtual bool hasEmptyCap();
    virtual bool canSplitClip();
    virtual bool canTrimToPlayhead();
    // Cuts the clips the timeline picks at frame (frame < 1: the playhead position).
    virtual bool splitClips(qint64 frame, bool select, bool prepareFlag);
    // Deletes whatever is selected: the empty-clip gap, keyframes, a marker, a freeze frame or clips.
    virtual bool deleteItems(bool arg);
    virtual bool canDeleteItems();
    virtual bool canDeleteClip();
    virtual void adjustTrackHeight(int trackIndex, MVVBLMODEL::MvTrackSizePolicy policy);
    virtual void setZoomSlider(MvZoomSlider* slider);
    virtual void updateAction();

    IMvTimeline* timeline() const;
    MvTimelineViewConfig* config() const;

    MvKeyFramePresenter* keyFramePresenter();
    void initVirtualPlayheadPresenter();
    MvTimelineVirtualPlayheadPresenter* virtualPlayheadPresenter();
    bool isOpenVirtualPlayhead();

    MvTimelineModeType modeType() const;
    void setModeType(MvTimelineModeType mode);

    bool actionEnabled() const;
    void setActionEnabled(bool enabled);
    bool canUpdateAction() const;
    void setUpdateActionEnabled(bool enabled);

    void pauseMediaPlayer();
    void pauseMediaPlayerWithSync();
    bool isMediaPlayerPlaying();
    void seek(qint64 frame);

    void editMarker();
    void hidePropertyPanel();
    void checkHidePropertyPanel();
    // Asks the host to show its property panel at a page: an MvDataMessage with the id
    // MessageId::ShowPropertyPanelPage (9007) carrying the page as an int; -1 asks for the page that
    // suits the current selection.
    void showPropertyPanel(int page);

    void showEmptyClip(qint64 x, qint64 y, int width, int height);
    void hideEmptyClip();
    bool emptyClipItemVisible();
    QRect emptyClipRect();
    bool deleteEmptyClipItem(bool arg);

    // Clip editing on the selection; each returns false when it changed nothing.
    bool splitClips(qint64 frame, QList<IMvClip*> clips, bool select, bool prepareFlag);
    bool ungroupBeforeSplit(QList<IMvClip*> clips, bool& needGroupAfter);
    bool groupAfterSplit(QList<IMvClip*> sourceClips, QList<IMvClip*> newClips);
    bool trimStartToPlayhead();
    bool trimEndToPlayhead();
    bool deleteSelectedClips();
    bool rippleDeleteSelectedClips();
    bool moveClipsHorizontal(qint64 frameOffset);
    bool moveClipsVertical(int trackIndexOffset);
    IMvClip* getFirstSelectedClip();
    void checkAndMoveToSelectedClipStartPos();
    void fitTimeline();

    // Items that are not whole clips: markers, rotation, freeze frames, smart-keying nodes.
    void addMarker(const QColor& color);
    bool removeSelectedMarker() const;
    bool canRemoveMarker() const;
    void removeAllMarker();
    void rotate90CW();
    void rotate90CCW();
    bool removeSelectedFreezeFrame();
    bool removeSelectedSmartKeyingNode();

    // Raises a toast with an already translated text over the view (ShowCustomToast).
    void showToast(QString text);

    // Clipboard of timeline items. A paste goes to the playhead (clips) or onto the selected clips
    // (transitions), as the last copy or cut decides.
    void copySelectedClips();
    void cutSelectedClips();
    void pasteClips();
    void duplicateClip();
    bool canPasteClip() const;

    // Track commands, from the track headers and the track menu of the view.
    void setLock(IMvTrack* track, bool lock);
    void setMute(IMvTrack* track, bool mute);
    void setVisible(IMvTrack* track, bool visible);
    // A hidden picture row keeps its mute state; audio rows can always be muted.
    bool muteEnable(IMvTrack* track) const;
    // What the row's eye button shows: for an audio row, that it is heard.
    bool trackVisible(IMvTrack* track) const;
    // Switches the sound of the selected clips, as one step.
    void setMute(bool mute);
    // Whether every selected clip with sound is muted.
    bool mute();
    void clearEmptyTracks();
    bool canClearEmptyTracks() const;

    // Audio of the selection: the sound of picture clips onto audio rows, a clip's remix.
    void detachSelectedAudio();
    bool detachSelectedAudioEnabled();
    void clearRemix();
    // Media insertion: prepares the request's items (download, resolution, zero length), offers
    // the project-settings match, inserts them with the policy and tells the scene; returns the
    // clips created (empty on any failure). The caller's request is left as it is.
    QList<IMvClip*> addMedias(const MvTimelineAddMediaParam& param, int policy);
    // Library resources: asks the media library for resources like the one the single selected
    // item was made from (MvMediaLibraryFindSimilarMessage), after hiding the property panel.
    bool canSearchSimilarResource();
    void searchSimilarResource();

    // Composed texts: asks the media editor to select the text layers of the single selected text
    // item (MvMediaEditorSelectClipMessage), the main lines before the secondary ones.
    bool canSelectAllSubTextClips();
    void selectAllSubTextClips();

    // Requests to the host's property panel, keyframe panel and advanced editors.
    // The panel a clip's properties are shown in: PropertyType_Audio, PropertyType_Picture or
    // PropertyType_None (also for null).
    MVVBLMODEL::MvPropertyType getPropertyType(IMvClip* clip);
    void showAdvancedColor();
    // Shows the selection's property page, then the advanced editor of a text, subtitle or title.
    void showAdvancedEdit(bool arg);
    // The audio panel for the clip whose keyframes are selected, if any.
    void openAudioPropertyPanel();
    // Switches the host's property view to the clip's panel (NotifySwtichPropertView).
    void showKeyFrameCustomizePanel(IMvClip* clip);
    void addAnimation();
    // A keyframe picked in the keyframe panel: its clip becomes the selection and the playhead goes
    // to the keyframe (frame is a frame of the clip).
    void selectedKeyFrameChanged(IMvClip* clip, qint64 frame);

    // Transitions. Each runs the item through the preparation chain of addMedias first, and tells
    // the scene what it placed (an add-media response with the value 2) unless the clips refused.
    // Drops a transition over the cuts of the clips, or, when no clip is given, at the overlaps of
    // the whole timeline.
    void addTransitionMedia(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item, qint64 duration);
    // Puts a transition on one end of a clip and selects it.
    void addTransitionMedia(
        IMvClip* clip, IMvTransitionMediaItem* item, qint64 duration, MVVBLMODEL::MvTransitionType type);
    // Puts a transition over every cut of the clips, each made from an item chosen at random.
    void randomAddTransitionMedia(
        const QList<IMvClip*>& clips, const QList<IMvAbstractMediaItem*>& items, qint64 duration);

    // Effects. Applying them is one undo step, answered with an add-media response (value 1); the
    // effect clipboard copies the effects of the first selected clip and pastes or deletes them on
    // the selected clips.
    void addEffectMedia(IMvClip* clip, IMvAbstractMediaItem* item);
    void addEffectMedias(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item);
    void copyEffect();
    void pasteEffect();
    void deleteEffect();
    // Exactly one clip is selected and it has effects.
    bool hasEffect() const;
    bool canPasteEffect() const;

Q_SIGNALS:
    void sigClipSelectedChanged();
    void sigClipReplaced();
    void sigActionStatusChanged();
    void sigDeleteEmptyClipItem(bool);
    void sigEmptyClipItemStateChanged(bool isShow);
    void sigModeChanged();

protected:
    virtual int getTrackHeight(MVVBLMODEL::MvTrackSizePolicy policy);
    virtual IMvTrack* getSelectedTracked();
    virtual MVVBLMODEL::MvTrackType getSelectedTrackType();
    virtual qint64 getDefaultFreezeFrameDuration();
    virtual int calcDetachAudioTrackIndex(IMvClip* clip);

    // The two refusals of a compound clip: inserted into itself, or taken from another project.
    void showTimelineNestToast(bool compoundItself);

    // Media insertion, the steps of addMedias that hosts and the transition and effect commands
    // reuse. Each asks the scene what needs a person and goes on with what the message carries
    // back. An item list is a QList of IMvAbstractMediaItem pointers throughout.
    // True when the item is left after the preparation chain.
    bool prepareAddMedia(IMvAbstractMediaItem* item);
    // Pause with sync, download, resolution choice, zero-length filter; the items that may be
    // inserted. handled may be null.
    QList<IMvAbstractMediaItem*> prepareAddMedias(const QList<IMvAbstractMediaItem*>& items, bool* handled);
    // When any item needs a download, only the items downloaded go on.
    QList<IMvAbstractMediaItem*> downloadMediaItems(const QList<IMvAbstractMediaItem*>& items);
    // When any stock item has a resolution to choose, only the items the scene leaves go on.
    QList<IMvAbstractMediaItem*> selectMediaItems(const QList<IMvAbstractMediaItem*>& items);
    QList<IMvAbstractMediaItem*> selectVCGMediaItems(const QList<IMvAbstractMediaItem*>& items);
    // On the first item only: download its description, or choose among its resolutions. flag,
    // when given, tells whether a download was asked for.
    QList<IMvAbstractMediaItem*> downloadAndSelectVCGItems(const QList<IMvAbstractMediaItem*>& items, bool* flag);
    // Offers the scene the first item whose settings the project may adopt.
    void checkMatchProjectSettings(const QList<IMvAbstractMediaItem*>& items);
    // Runs the task on a worker thread while a wait dialog spins the GUI thread; returns when the
    // task has finished.
    void executeTaskWithLoadingIndicator(const std::function<void()>& task);
    // A new wait dialog centred over the view (the caller owns it).
    QDialog* getAddLoadingWgt();
    void notifyAddMediaSucceed(const QList<IMvAbstractMediaItem*>& items, void* context, int value, bool send);
    void notifyTimelineScrollToTrack(const QList<IMvClip*>& clips);

    // Tells the user, once per project, that a transition shows some frames twice (the clips had no
    // media left beyond the cut).
    void showRepeatFrame();

    void stopMediaPlayer();
    void seekAfterPause();
    void switchMediaPlayerToTimeline();

private:
    void pasteNormalClip();
    void pasteTransition();

    Q_DECLARE_PRIVATE(MvTimelinePresenter)
    Q_DISABLE_COPY(MvTimelinePresenter)
    QScopedPointer<MvTimelinePresenterPrivate> d_ptr;
    QString m_name;
    QRect m_emptyClipRect;
};
