// Commands on whole tracks: row heights and the row that receives detached sound.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"

#include <algorithm>

using namespace MVVBLMODEL;

void MvTimelinePresenter::adjustTrackHeight(int trackIndex, MvTrackSizePolicy policy)
{
    Q_D(MvTimelinePresenter);
    d->adjustTrackHeight(trackIndex, policy);
}

int MvTimelinePresenter::getTrackHeight(MvTrackSizePolicy policy)
{
    switch (policy) {
    case 0:
        return 32;
    case 1:
        return 70;
    case 2:
        return 160;
    default:
        return getTrackHeight(1);
    }
}

IMvTrack* MvTimelinePresenter::getSelectedTracked()
{
    return nullptr;
}

MvTrackType MvTimelinePresenter::getSelectedTrackType()
{
    return 0;
}

int MvTimelinePresenter::calcDetachAudioTrackIndex(IMvClip* clip)
{
    Q_D(const MvTimelinePresenter);
    return d->calcDetachAudioTrackIndex(clip);
}

void MvTimelinePresenterPrivate::adjustTrackHeight(int trackIndex, MvTrackSizePolicy policy)
{
    Q_Q(MvTimelinePresenter);
    IMvTrack* track = timeline ? timeline->trackAt(trackIndex) : nullptr;
    if (!track)
        return;
    // Through the virtual table: a host's override decides the pixels.
    track->setHeight(q->getTrackHeight(policy));
}

int MvTimelinePresenterPrivate::calcDetachAudioTrackIndex(IMvClip* clip) const
{
    if (!timeline || !clip)
        return -1;
    // The lowest free audio row: search from the last row upward.
    for (int i = timeline->trackCount() - 1; i >= 0; --i) {
        IMvTrack* track = timeline->trackAt(i);
        if (!track || track->type() != TrackType_Audio || track->isLocked())
            continue;
        const QList<IMvClip*> trackClips = track->clips();
        const bool occupied = std::any_of(trackClips.cbegin(), trackClips.cend(), [clip](const IMvClip* other) {
            return other->start() <= clip->end() && clip->start() <= other->end();
        });
        if (!occupied)
            return i;
    }
    return -1;
}
