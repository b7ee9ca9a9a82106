#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvColorCompareService.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvKeyFramePresenter.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QMap>

#include <algorithm>
#include <new>

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
    // The keyframe presenter is a Qt child and outlives this part for a moment: it must not hand
    // out the view of a presenter that is going away.
    if (keyFramePresenter)
        keyFramePresenter->setView(nullptr);
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

bool MvTimelinePresenter::canSplitClip()
{
    Q_D(const MvTimelinePresenter);
    return d->canSplitClip();
}

bool MvTimelinePresenter::canTrimToPlayhead()
{
    Q_D(const MvTimelinePresenter);
    return d->canTrimToPlayhead();
}

bool MvTimelinePresenter::splitClips(qint64 frame, bool select, bool prepareFlag)
{
    Q_D(MvTimelinePresenter);
    return d->splitClips(frame, select, prepareFlag);
}

bool MvTimelinePresenter::deleteItems(bool arg)
{
    Q_D(MvTimelinePresenter);
    return d->deleteItems(arg);
}

bool MvTimelinePresenter::canDeleteItems()
{
    Q_D(MvTimelinePresenter);
    return d->canDeleteItems();
}

bool MvTimelinePresenter::canDeleteClip()
{
    Q_D(const MvTimelinePresenter);
    return d->canDeleteClip();
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

MvKeyFramePresenter* MvTimelinePresenter::keyFramePresenter()
{
    Q_D(MvTimelinePresenter);
    if (!d->keyFramePresenter)
        d->keyFramePresenter = new MvKeyFramePresenter(d->timeline, this);
    return d->keyFramePresenter;
}

void MvTimelinePresenter::initVirtualPlayheadPresenter()
{
    Q_D(MvTimelinePresenter);
    // An earlier presenter is a Qt child and stays alive until this presenter goes.
    d->virtualPlayheadPresenter = new (std::nothrow) MvTimelineVirtualPlayheadPresenter(this, this);
}

MvTimelineVirtualPlayheadPresenter* MvTimelinePresenter::virtualPlayheadPresenter()
{
    Q_D(MvTimelinePresenter);
    return d->virtualPlayheadPresenter;
}

bool MvTimelinePresenter::isOpenVirtualPlayhead()
{
    Q_D(MvTimelinePresenter);
    return d->virtualPlayheadPresenter && d->virtualPlayheadPresenter->isOpen();
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

bool MvTimelinePresenter::splitClips(qint64 frame, QList<IMvClip*> clips, bool select, bool prepareFlag)
{
    Q_D(MvTimelinePresenter);
    return d->splitClips(frame, clips, select, prepareFlag);
}

bool MvTimelinePresenter::ungroupBeforeSplit(QList<IMvClip*> clips, bool& needGroupAfter)
{
    Q_D(MvTimelinePresenter);
    return d->ungroupBeforeSplit(clips, needGroupAfter);
}

bool MvTimelinePresenter::groupAfterSplit(QList<IMvClip*> sourceClips, QList<IMvClip*> newClips)
{
    Q_D(MvTimelinePresenter);
    return d->groupAfterSplit(sourceClips, newClips);
}

bool MvTimelinePresenter::trimStartToPlayhead()
{
    Q_D(MvTimelinePresenter);
    pauseMediaPlayer();
    return d->trimStartToPlayhead();
}

bool MvTimelinePresenter::trimEndToPlayhead()
{
    Q_D(MvTimelinePresenter);
    pauseMediaPlayer();
    return d->trimEndToPlayhead();
}

bool MvTimelinePresenter::deleteSelectedClips()
{
    Q_D(MvTimelinePresenter);
    const bool deleted = d->deleteSelectedClips();
    if (deleted)
        checkHidePropertyPanel();
    return deleted;
}

bool MvTimelinePresenter::rippleDeleteSelectedClips()
{
    Q_D(MvTimelinePresenter);
    const bool deleted = d->rippleDeleteSelectedClips();
    if (deleted)
        checkHidePropertyPanel();
    return deleted;
}

bool MvTimelinePresenter::moveClipsHorizontal(qint64 frameOffset)
{
    Q_D(MvTimelinePresenter);
    return d->moveClipsHorizontal(frameOffset);
}

bool MvTimelinePresenter::moveClipsVertical(int trackIndexOffset)
{
    Q_D(MvTimelinePresenter);
    return d->moveClipsVertical(trackIndexOffset);
}

IMvClip* MvTimelinePresenter::getFirstSelectedClip()
{
    Q_D(const MvTimelinePresenter);
    return d->getFirstSelectedClip();
}

void MvTimelinePresenter::checkAndMoveToSelectedClipStartPos()
{
    Q_D(MvTimelinePresenter);
    d->checkAndMoveToSelectedClipStartPos();
}

void MvTimelinePresenter::fitTimeline()
{
    Q_D(MvTimelinePresenter);
    d->fitTimeline();
}

void MvTimelinePresenter::addMarker(const QColor& color)
{
    Q_D(MvTimelinePresenter);
    d->addMarker(color);
}

bool MvTimelinePresenter::removeSelectedMarker() const
{
    Q_D(const MvTimelinePresenter);
    return d->removeSelectedMarker();
}

bool MvTimelinePresenter::canRemoveMarker() const
{
    Q_D(const MvTimelinePresenter);
    return d->canRemoveMarker();
}

void MvTimelinePresenter::removeAllMarker()
{
    // Clearing every marker is the host's command (it asks the user first); the entry point stays
    // here so that hosts built against earlier versions keep linking.
}

void MvTimelinePresenter::rotate90CW()
{
    Q_D(MvTimelinePresenter);
    d->rotate90CW();
}

void MvTimelinePresenter::rotate90CCW()
{
    Q_D(MvTimelinePresenter);
    d->rotate90CCW();
}

bool MvTimelinePresenter::removeSelectedFreezeFrame()
{
    Q_D(MvTimelinePresenter);
    return d->removeSelectedFreezeFrame();
}

bool MvTimelinePresenter::removeSelectedSmartKeyingNode()
{
    Q_D(MvTimelinePresenter);
    return d->removeSelectedSmartKeyingNode();
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
