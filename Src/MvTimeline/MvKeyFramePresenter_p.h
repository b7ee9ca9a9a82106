#pragma once

#include "MvKeyFramePresenter.h"

#include <QList>

class MvKeyFramePresenterPrivate
{
    Q_DECLARE_PUBLIC(MvKeyFramePresenter)

public:
    MvKeyFramePresenterPrivate(MvKeyFramePresenter* q, IMvTimeline* timeline, QObject* parent);

    bool addDefaultKeyFrame(IMvClip* clip, qint64 frame, bool audio);
    bool addKeyFrame_ShortcutKey();
    bool canCopyKeyFrames() const;
    bool copySelectedKeyFrames();
    bool canPasteKeyFrames() const;
    bool canPasteKeyFrames(IMvClip* clip) const;
    bool pasteKeyFrames();
    void filterVaildPasteClip(QList<IMvClip*>& clips) const;
    bool canRemoveKeyFrame() const;
    bool removeSelectedKeyFrame();
    bool clearAllKeyFrames(bool audio);
    bool selectedAllKeyFrames(bool audio);
    void moveToKeyFrame(bool previous);

    bool isSupportCopyAndPaste(const MVVBLMODEL::MvClipType& type) const;
    MVVBLMODEL::MvPropertyType getDefalutGroupType(MVVBLMODEL::MvClipType type) const;
    IMvClip* getEnabledMainClip() const;
    QList<IMvClip*> getEnabledMainClips() const;
    void showTransformPanel(IMvClip* clip);

    MvKeyFramePresenter* q_ptr;
    IMvTimeline* timeline;
    MvPresenter* parentPresenter;
};
