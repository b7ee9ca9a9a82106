// Commands on whole tracks (height, lock, mute, visibility, removal of empty rows), the mute
// switch of the selected clips, and the row that receives detached sound.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "MvClipHelpers.h"
#include "MvCommandScope_p.h"
#include "MvEventBus.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

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

void MvTimelinePresenter::setLock(IMvTrack* track, bool lock)
{
    Q_D(MvTimelinePresenter);
    d->setLock(track, lock);
}

void MvTimelinePresenter::setMute(IMvTrack* track, bool mute)
{
    Q_D(MvTimelinePresenter);
    d->setMute(track, mute);
}

void MvTimelinePresenter::setVisible(IMvTrack* track, bool visible)
{
    Q_D(MvTimelinePresenter);
    d->setVisible(track, visible);
}

bool MvTimelinePresenter::muteEnable(IMvTrack* track) const
{
    Q_D(const MvTimelinePresenter);
    return d->muteEnable(track);
}

bool MvTimelinePresenter::trackVisible(IMvTrack* track) const
{
    Q_D(const MvTimelinePresenter);
    return d->trackVisible(track);
}

void MvTimelinePresenter::setMute(bool mute)
{
    Q_D(MvTimelinePresenter);
    d->setMute(mute);
}

bool MvTimelinePresenter::mute()
{
    Q_D(const MvTimelinePresenter);
    return d->mute();
}

void MvTimelinePresenter::clearEmptyTracks()
{
    Q_D(MvTimelinePresenter);
    d->clearEmptyTracks();
}

bool MvTimelinePresenter::canClearEmptyTracks() const
{
    Q_D(const MvTimelinePresenter);
    return d->canClearEmptyTracks();
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

// The lowest free audio row: the rows of the audio type from the last one upward, the first
// that is unlocked and has no clip over the clip's frames.
int MvTimelinePresenterPrivate::calcDetachAudioTrackIndex(IMvClip* clip) const
{
    if (!timeline || !clip)
        return -1;
    MvRange<int> rows;
    timeline->trackIndexRange(rows, TrackType_Audio);
    MvRange<qint64> frames;
    clip->range(frames);
    const MvClipFinder finder(timeline);
    for (int i = rows.last; i >= rows.first; --i) {
        const IMvTrack* track = timeline->trackAt(i);
        if (track && !finder.hasClip(i, frames) && !track->isLocked())
            return i;
    }
    return -1;
}

void MvTimelinePresenterPrivate::setLock(IMvTrack* track, bool lock)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::setLock");
    if (!track) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("track is null"));
        return;
    }
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    track->setLocked(lock);
}

void MvTimelinePresenterPrivate::setMute(IMvTrack* track, bool mute)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::setMute");
    if (!track) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("track is null"));
        return;
    }
    if (!muteEnable(track)) {
        MV_LOG(MvBaseLog::Note, QStringLiteral("track is unVisible can't change mute state"));
        return;
    }
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    track->setMuted(mute);
}

void MvTimelinePresenterPrivate::setVisible(IMvTrack* track, bool visible)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::setVisible");
    if (!track) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("track is null"));
        return;
    }
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    // A hidden picture row falls silent with what it shows.
    track->setVisible(visible, true);
}

bool MvTimelinePresenterPrivate::muteEnable(IMvTrack* track) const
{
    MV_FUNCTION("MvTimelinePresenter::muteEnable");
    if (!track) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("track is null"));
        return false;
    }
    return isAudioTrack(track->type()) || track->isVisible();
}

bool MvTimelinePresenterPrivate::trackVisible(IMvTrack* track) const
{
    MV_FUNCTION("MvTimelinePresenter::trackVisible");
    if (!track) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("track is null"));
        return false;
    }
    // For audio the eye button stands for the sound.
    return isAudioTrack(track->type()) ? !track->isMuted() : track->isVisible();
}

void MvTimelinePresenterPrivate::setMute(bool mute)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::setMute");
    QList<IMvClip*> sounding;
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    for (int i = 0; selection && i < selection->count(); ++i) {
        IMvAbstractClip* item = selection->itemAt(i);
        if (IMvClipHelper::hasAudio(item))
            sounding.append(dynamic_cast<IMvClip*>(item));
    }
    IMvUndoRedoService* undoService = MvModelAccess::undoService(timeline);
    const MvCommandScope command(q, MvCommandScope::NoPause, undoService, QStringLiteral("batch set mute"), MV_SOURCE);
    // The views repaint once for the whole selection.
    MvEventBus* bus = globalEventBus();
    bus->beginBatch(undoService);
    for (IMvClip* clip : qAsConst(sounding))
        clip->setMuted(mute ? 1 : 0);
    bus->endBatch();
}

bool MvTimelinePresenterPrivate::mute() const
{
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    for (IMvClip* clip : clips) {
        if (IMvClipHelper::isAudioFeatureClip(clip) && !clip->isMuted())
            return false;
    }
    return true;
}

void MvTimelinePresenterPrivate::clearEmptyTracks()
{
    Q_Q(MvTimelinePresenter);
    if (!timeline)
        return;
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    timeline->clearEmptyTracks();
}

// The fixed rows of each type always stay: only rows beyond them are offered for removal.
bool MvTimelinePresenterPrivate::canClearEmptyTracks() const
{
    if (!timeline)
        return false;
    if (timeline->emptyTrackCount(TrackType_Picture) > 0
        && timeline->trackCount(TrackType_Picture) > config->fixedTrackCountFirst)
        return true;
    return timeline->emptyTrackCount(TrackType_Audio) >= 1
        && timeline->trackCount(TrackType_Audio) > config->fixedTrackCountSecond;
}
