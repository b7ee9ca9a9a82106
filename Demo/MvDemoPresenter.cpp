#include "MvDemoPresenter.h"

#include "IMvAbstractMediaItem.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"

void MvDemoPresenter::updateAction()
{
    Q_EMIT actionsNeedRefresh();
}

IMvTrack* MvDemoPresenter::selectedTrack() const
{
    // Tracks outlive their rows (undo brings them back): a picked row is checked against the timeline.
    const IMvTimeline* model = timeline();
    if (!model || !m_selectedTrack || model->trackAt(m_selectedTrack->index()) != m_selectedTrack)
        return nullptr;
    return m_selectedTrack;
}

void MvDemoPresenter::setSelectedTrack(IMvTrack* track)
{
    m_selectedTrack = track;
}

IMvTrack* MvDemoPresenter::getSelectedTracked()
{
    return selectedTrack();
}

MVVBLMODEL::MvTrackType MvDemoPresenter::getSelectedTrackType()
{
    const IMvTrack* track = selectedTrack();
    return track ? track->type() : 0;
}

QList<IMvAbstractMediaItem*> MvDemoPresenter::readyVCGItem(IMvAbstractMediaItem* item)
{
    bool downloadAsked = false;
    QList<IMvAbstractMediaItem*> items = downloadAndSelectVCGItems({ item }, &downloadAsked);
    // The resolutions come with the description: once it is here, they can be chosen.
    if (downloadAsked && items.contains(item) && !item->needDownload())
        items = downloadAndSelectVCGItems(items, nullptr);
    return items.contains(item) && !item->needDownload() ? items : QList<IMvAbstractMediaItem*>();
}
