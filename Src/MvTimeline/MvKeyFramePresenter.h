#pragma once

#include "MvPresenter.h"
#include "MvTimelineGlobal.h"
#include "MvVBLModelGlobal.h"

#include <QScopedPointer>

class IMvClip;
class IMvTimeline;
class MvKeyFramePresenterPrivate;

// Keyframe commands on the selected clips of one timeline: default keyframes at the playhead,
// copy and paste, removal, clearing, select-all and jumps between keyframes. Keyframes live in
// the model's clips; every edit is one undo step.
class MVTIMELINE_EXPORT MvKeyFramePresenter : public MvPresenter
{
    Q_OBJECT

public:
    MvKeyFramePresenter(IMvTimeline* timeline, QObject* parent);
    ~MvKeyFramePresenter() override;

    // The view of the presenter that owns this one, when there is such a presenter.
    QObject* view() const override;
    IMvTimeline* timeline() const;

    bool addAudioDefaultKeyFrame(IMvClip* clip, qint64 frame);
    bool addVideoDefaultKeyFrame(IMvClip* clip, qint64 frame);
    bool addKeyFrame_ShortcutKey();

    bool canCopyKeyFrames();
    bool copySelectedKeyFrames();
    bool canPasteKeyFrames();
    bool pasteKeyFrames();

    bool canRemoveKeyFrame() const;
    bool removeSelectedKeyFrame();
    bool clearAllAudioKeyFrames();
    bool clearAllVideoKeyFrames();
    bool selectedAllAudioKeyFrames();
    bool selectedAllVideoKeyFrames();

    void moveToPrevKeyFrame();
    void moveToNextKeyFrame();

    bool isSupportAudioKeyFrame(MVVBLMODEL::MvClipType type) const;
    bool isSupportVideoKeyFrame(MVVBLMODEL::MvClipType type) const;
    bool isKeyFrameItemEnabled(IMvClip* clip);

Q_SIGNALS:
    void sigVirsualEditTransformChanged();
    void sigCopyKeyFrame();

private:
    Q_DECLARE_PRIVATE(MvKeyFramePresenter)
    Q_DISABLE_COPY(MvKeyFramePresenter)
    QScopedPointer<MvKeyFramePresenterPrivate> d_ptr;
};
