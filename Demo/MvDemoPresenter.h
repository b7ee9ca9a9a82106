#pragma once

#include "MvTimelinePresenter.h"

// The host's presenter: refreshes the window's actions when the library asks for it.
class MvDemoPresenter : public MvTimelinePresenter
{
    Q_OBJECT

public:
    using MvTimelinePresenter::MvTimelinePresenter;

    void updateAction() override;

    // A VCG item made ready for adding: its description downloaded, then its resolution chosen;
    // empty when either was given up.
    QList<IMvAbstractMediaItem*> readyVCGItem(IMvAbstractMediaItem* item);

Q_SIGNALS:
    void actionsNeedRefresh();
};
