#pragma once

#include "MvTimelinePlayheadPresenter.h"

// The host's playhead: line colours and split-button images for every style status, and a head
// image, all drawn at run time (the library ships none).
class MvDemoPlayheadPresenter : public MvTimelinePlayheadPresenter
{
    Q_OBJECT

public:
    MvDemoPlayheadPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent);

protected:
    QImage getPlayheadPixmap(MVWIDGETS::MvWidgetStyleStatus status) override;
};
