#pragma once

#include "MvTimelineVirtualPlayheadPresenter.h"

#include "IMvTimelinePlayhead.h"
#include "MvObserverConnector_p.h"

#include <QList>
#include <QPointer>

class MvTimelineVirtualPlayheadPresenterPrivate : public IMvPlayheadEventObserver
{
    Q_DECLARE_PUBLIC(MvTimelineVirtualPlayheadPresenter)

public:
    MvTimelineVirtualPlayheadPresenterPrivate(MvTimelineVirtualPlayheadPresenter* q, MvTimelinePresenter* presenter);
    ~MvTimelineVirtualPlayheadPresenterPrivate() override;

    void open();
    void close();
    void setVisible(bool visible);
    void applyVisible(bool visible);
    void seek(qint64 frame);
    void playStateChanged(MVVBLMODEL::MvPlayState state);
    void updateEnable();
    void seekToCurrentFrame();

    void onPlayheadEvent(IMvTimelinePlayhead* source, int kind) override;

    QList<IMvObserverConnector*> connectors;
    MvTimelineVirtualPlayheadPresenter* q_ptr;
    // The owner, unless a host keeps this presenter past it.
    QPointer<MvTimelinePresenter> timelinePresenter;
    IMvTimelinePlayhead* playhead = nullptr;
    bool opened = false;
    bool shown = false;
    bool allowed = true;
};
