#pragma once

#include "MvPresenter.h"
#include "MvTimelineGlobal.h"
#include "MvVBLModelGlobal.h"

#include <QScopedPointer>

class MvTimelinePresenter;
class MvTimelineVirtualPlayheadPresenterPrivate;

// A second, temporary position marker over the timeline. While it is open the playhead model
// keeps a separate position for it; it is shown when playback stops and hidden when playback or
// a move of the playhead takes over, and closing it brings the player back to its frame.
class MVTIMELINE_EXPORT MvTimelineVirtualPlayheadPresenter : public MvPresenter
{
    Q_OBJECT

public:
    MvTimelineVirtualPlayheadPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent);
    ~MvTimelineVirtualPlayheadPresenter() override;

    void open();
    void close();
    bool isOpen() const;
    bool visible() const;
    void setVisible(bool visible);
    void seek(qint64 frame);
    void playStateChanged(MVVBLMODEL::MvPlayState state);
    void updateEnable();
    MvTimelinePresenter* timelinePresenter() const;

Q_SIGNALS:
    void sigVisibleChanged();
    void sigEnableChanged();

private:
    Q_DECLARE_PRIVATE(MvTimelineVirtualPlayheadPresenter)
    Q_DISABLE_COPY(MvTimelineVirtualPlayheadPresenter)
    QScopedPointer<MvTimelineVirtualPlayheadPresenterPrivate> d_ptr;
};
