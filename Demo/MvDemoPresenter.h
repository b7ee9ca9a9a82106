#pragma once

#include "MvTimelinePresenter.h"

// The host's presenter: refreshes the window's actions when the library asks for it.
class MvDemoPresenter : public MvTimelinePresenter
{
    Q_OBJECT

public:
    using MvTimelinePresenter::MvTimelinePresenter;

    void updateAction() override;

Q_SIGNALS:
    void actionsNeedRefresh();
};
