#pragma once

#include "MvTimelinePresenter.h"

// The host's presenter: refreshes the window's actions when the library asks for it, and tells
// the library which track row the user has picked in the headers (pastes land there).
class MvDemoPresenter : public MvTimelinePresenter
{
    Q_OBJECT

public:
    using MvTimelinePresenter::MvTimelinePresenter;

    void updateAction() override;

    // The row picked in the track headers; null for none. A row that leaves the timeline is no
    // longer picked.
    IMvTrack* selectedTrack() const;
    void setSelectedTrack(IMvTrack* track);
    // A VCG item made ready for adding: its description downloaded, then its resolution chosen;
    // empty when either was given up.
    QList<IMvAbstractMediaItem*> readyVCGItem(IMvAbstractMediaItem* item);

Q_SIGNALS:
    void actionsNeedRefresh();

protected:
    IMvTrack* getSelectedTracked() override;
    MVVBLMODEL::MvTrackType getSelectedTrackType() override;

private:
    IMvTrack* m_selectedTrack = nullptr;
};
