// The frame of the timeline presenter: construction, configuration, mode, action flags,
// sub-presenters, player coupling and the empty-clip placeholder. Each command family lives in
// MvTimelinePresenter<Family>.cpp.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvColorCompareService.h"
#include "IMvTimeline.h"
#include "MvCommandScope_p.h"
#include "MvKeyFramePresenter.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvTaskRunner_p.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <limits>
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
    : q_ptr(q)
    , timeline(timeline)
    , config(new MvTimelinePresenter::MvTimelineViewConfig)
    , taskRunner(new MvTaskRunner(q))
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

bool MvTimelinePresenterPrivate::isVirtualPlayheadOpen() const
{
    return virtualPlayheadPresenter && virtualPlayheadPresenter->isOpen();
}

MvTimelinePresenter::MvTimelinePresenter(QObject* parent, IMvTimeline* timeline)
    : MvPresenter(parent)
    , d_ptr(new MvTimelinePresenterPrivate(this, timeline))
    , m_emptyClipRect(0, 0, 0, 0)
{
}

MvTimelinePresenter::~MvTimelinePresenter()
{
    m_name.clear();
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
    Q_D(const MvTimelinePresenter);
    return d->isVirtualPlayheadOpen();
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
    MvCommandScope::pause(this, MvCommandScope::PausePlayer);
}

void MvTimelinePresenter::pauseMediaPlayerWithSync()
{
    MvCommandScope::pause(this, MvCommandScope::PausePlayerWithSync);
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

void MvTimelinePresenter::showEmptyClip(qint64 x, qint64 y, int width, int height)
{
    // The far corner is worked out in 64 bits: sizes at the ends of the int range give the nearest
    // rectangle, not an overflow.
    const auto narrow = [](qint64 value) {
        return int(qBound<qint64>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
    };
    const QPoint topLeft(static_cast<int>(x), static_cast<int>(y));
    m_emptyClipRect
        = QRect(topLeft, QPoint(narrow(qint64(topLeft.x()) + width - 1), narrow(qint64(topLeft.y()) + height - 1)));
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
