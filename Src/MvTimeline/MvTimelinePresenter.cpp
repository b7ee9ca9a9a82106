#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvColorCompareService.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvMessage.h"
#include "MvModelMessages.h"

#include <QMap>

#include <algorithm>

using namespace MVVBLMODEL;

int MvTimelinePresenter::MvTimelineViewConfig::fixedTrackCount() const
{
    return int(fixedTrackCountFirst) + int(fixedTrackCountSecond);
}

void MvTimelinePresenter::MvTimelineViewConfig::clearFixedTrack()
{
    fixedTrackCountFirst = 0;
    fixedTrackCountSecond = 0;
}

MvTimelinePresenterPrivate::MvTimelinePresenterPrivate(MvTimelinePresenter* q, IMvTimeline* timeline)
    : q_ptr(q), timeline(timeline), config(new MvTimelinePresenter::MvTimelineViewConfig)
{
}

MvTimelinePresenterPrivate::~MvTimelinePresenterPrivate()
{
    copiedClipTypes.clear();
    delete config;
}

bool MvTimelinePresenterPrivate::hasEmptyCap() const
{
    IMvSelection* selection = timeline ? timeline->selection() : nullptr;
    if (!selection)
        return false;
    const QList<IMvClip*> clips = selection->selectedClips();
    if (clips.size() < 2)
        return false;
    QMap<int, QList<IMvClip*>> byTrack;
    for (IMvClip* clip : clips)
        byTrack[clip->trackIndex()].append(clip);
    for (QList<IMvClip*>& trackClips : byTrack) {
        std::sort(trackClips.begin(), trackClips.end(),
            [](const IMvClip* a, const IMvClip* b) { return a->start() < b->start(); });
        for (int i = 1; i < trackClips.size(); ++i) {
            if (trackClips.at(i)->start() - trackClips.at(i - 1)->end() > 1)
                return true;
        }
    }
    return false;
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

MvTimelinePresenter::MvTimelinePresenter(QObject* parent, IMvTimeline* timeline)
    : MvPresenter(parent), d_ptr(new MvTimelinePresenterPrivate(this, timeline)), m_emptyClipRect(0, 0, 0, 0)
{
}

MvTimelinePresenter::~MvTimelinePresenter()
{
    m_name.clear();
}

bool MvTimelinePresenter::hasEmptyCap()
{
    Q_D(const MvTimelinePresenter);
    return d->hasEmptyCap();
}

void MvTimelinePresenter::adjustTrackHeight(int trackIndex, MvTrackSizePolicy policy)
{
    Q_D(MvTimelinePresenter);
    IMvTrack* track = d->timeline ? d->timeline->trackAt(trackIndex) : nullptr;
    if (!track)
        return;
    track->setHeight(getTrackHeight(policy));
}

void MvTimelinePresenter::setZoomSlider(MvZoomSlider* slider)
{
    // The zoom slider belongs to the host's view; a host that has one overrides this.
    Q_UNUSED(slider)
}

void MvTimelinePresenter::updateAction()
{
    // Action states live in the host's menus; a host refreshes them in its override.
}

IMvTimeline* MvTimelinePresenter::timeline() const
{
    Q_D(const MvTimelinePresenter);
    return d->timeline;
}

MvTimelinePresenter::MvTimelineViewConfig* MvTimelinePresenter::config() const
{
    Q_D(const MvTimelinePresenter);
    return d->config;
}

MvTimelinePresenter::MvTimelineModeType MvTimelinePresenter::modeType() const
{
    Q_D(const MvTimelinePresenter);
    return d->modeType;
}

void MvTimelinePresenter::setModeType(MvTimelineModeType mode)
{
    Q_D(MvTimelinePresenter);
    if (d->modeType == mode)
        return;
    d->modeType = mode;
    Q_EMIT sigModeChanged();
}

bool MvTimelinePresenter::actionEnabled() const
{
    Q_D(const MvTimelinePresenter);
    return d->actionEnabled;
}

void MvTimelinePresenter::setActionEnabled(bool enabled)
{
    Q_D(MvTimelinePresenter);
    if (d->actionEnabled == enabled)
        return;
    d->actionEnabled = enabled;
    Q_EMIT sigActionStatusChanged();
}

bool MvTimelinePresenter::canUpdateAction() const
{
    Q_D(const MvTimelinePresenter);
    return d->updateActionEnabled;
}

void MvTimelinePresenter::setUpdateActionEnabled(bool enabled)
{
    Q_D(MvTimelinePresenter);
    d->updateActionEnabled = enabled;
    if (!enabled)
        return;
    updateAction();
    Q_EMIT sigActionStatusChanged();
}

void MvTimelinePresenter::pauseMediaPlayer()
{
    sendMessageToScene(MessageId::PausePlayer);
}

void MvTimelinePresenter::pauseMediaPlayerWithSync()
{
    sendMessageToScene(MessageId::PausePlayerWithSync);
}

bool MvTimelinePresenter::isMediaPlayerPlaying()
{
    MvQueryMessage query(MessageId::IsPlayerPlaying);
    sendMessageToScene(&query);
    return query.asBool();
}

void MvTimelinePresenter::seek(qint64 frame)
{
    qint64 target = frame;
    // The colour-compare view plays its own clip: frames are relative to that clip there.
    if (IMvColorCompareService* compare = getColorCompareService()) {
        if (IMvClip* clip = compare->currentClip())
            target = frame - clip->start();
    }
    MvSeekMessage message(target, false);
    sendMessageToScene(&message);
}

void MvTimelinePresenter::stopMediaPlayer()
{
    MvMessage message(MessageId::StopPlayer);
    sendMessageToScene(&message);
}

void MvTimelinePresenter::seekAfterPause()
{
    MvSeekAfterPauseMessage message;
    sendMessageToScene(&message);
}

void MvTimelinePresenter::switchMediaPlayerToTimeline()
{
    Q_D(MvTimelinePresenter);
    if (!d->timeline || d->timeline->kind() != 0)
        return;
    MvDataMessage message(MessageId::SwitchPlayerToTimeline, QVariant::fromValue<void*>(d->timeline));
    sendMessageToScene(&message);
}

void MvTimelinePresenter::hidePropertyPanel()
{
    MvMessage message(MessageId::HidePropertyPanel);
    sendMessageToScene(&message);
}

void MvTimelinePresenter::checkHidePropertyPanel()
{
    Q_D(MvTimelinePresenter);
    if (!d->timeline || d->timeline->virtualPlayheadAllowed())
        return;
    hidePropertyPanel();
}

void MvTimelinePresenter::showEmptyClip(qint64 x, qint64 y, int width, int height)
{
    m_emptyClipRect = QRect(int(x), int(y), width, height);
    Q_EMIT sigEmptyClipItemStateChanged(true);
}

void MvTimelinePresenter::hideEmptyClip()
{
    m_emptyClipRect = QRect(0, 0, 0, 0);
    Q_EMIT sigEmptyClipItemStateChanged(false);
}

bool MvTimelinePresenter::emptyClipItemVisible()
{
    return m_emptyClipRect.isValid();
}

QRect MvTimelinePresenter::emptyClipRect()
{
    return m_emptyClipRect;
}

bool MvTimelinePresenter::deleteEmptyClipItem(bool arg)
{
    if (!emptyClipItemVisible())
        return false;
    // A receiver deletes the gap and hides the placeholder; without one it stays visible.
    Q_EMIT sigDeleteEmptyClipItem(arg);
    return !emptyClipItemVisible();
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

qint64 MvTimelinePresenter::getDefaultFreezeFrameDuration()
{
    return 125;
}

int MvTimelinePresenter::calcDetachAudioTrackIndex(IMvClip* clip)
{
    Q_D(const MvTimelinePresenter);
    return d->calcDetachAudioTrackIndex(clip);
}
