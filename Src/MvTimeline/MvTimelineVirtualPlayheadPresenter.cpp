#include "MvTimelineVirtualPlayheadPresenter.h"
#include "MvTimelineVirtualPlayheadPresenter_p.h"

#include "IMvTimeline.h"
#include "MvTimelineLog_p.h"
#include "MvTimelinePresenter.h"

MV_LOG_FILE("Src/MvTimeline/MvTimelineVirtualPlayheadPresenter");

using namespace MVVBLMODEL;

MvTimelineVirtualPlayheadPresenterPrivate::MvTimelineVirtualPlayheadPresenterPrivate(
    MvTimelineVirtualPlayheadPresenter* q, MvTimelinePresenter* presenter)
    : q_ptr(q)
    , timelinePresenter(presenter)
{
    IMvTimeline* timeline = timelinePresenter ? timelinePresenter->timeline() : nullptr;
    playhead = timeline ? timeline->playhead() : nullptr;
    if (playhead)
        connectors.append(
            new MvObserverConnector<IMvTimelinePlayhead, MvTimelineVirtualPlayheadPresenterPrivate>(playhead, this));
}

MvTimelineVirtualPlayheadPresenterPrivate::~MvTimelineVirtualPlayheadPresenterPrivate()
{
    qDeleteAll(connectors);
    connectors.clear();
}

void MvTimelineVirtualPlayheadPresenterPrivate::seekToCurrentFrame()
{
    if (timelinePresenter && playhead)
        timelinePresenter->seek(playhead->currentFrame());
}

void MvTimelineVirtualPlayheadPresenterPrivate::open()
{
    Q_Q(MvTimelineVirtualPlayheadPresenter);
    MV_FUNCTION("MvTimelineVirtualPlayheadPresenter::open");
    MV_LOG(MvBaseLog::Note, QStringLiteral("Open Virtual Playhead"));
    if (timelinePresenter) {
        timelinePresenter->pauseMediaPlayer();
        if (IMvTimeline* timeline = timelinePresenter->timeline())
            timeline->prepareVirtualPlayhead();
    }
    opened = true;
    if (playhead) {
        playhead->virtualOpened();
        // A cut would act on the real playhead, which the user no longer sees moving.
        playhead->setSplitButtonVisible(false);
    }
    Q_EMIT q->sigEnableChanged();
}

void MvTimelineVirtualPlayheadPresenterPrivate::close()
{
    Q_Q(MvTimelineVirtualPlayheadPresenter);
    MV_FUNCTION("MvTimelineVirtualPlayheadPresenter::close");
    MV_LOG(MvBaseLog::Note, QStringLiteral("Close Virtual Playhead"));
    opened = false;
    if (playhead)
        playhead->virtualClosed();
    seekToCurrentFrame();
    Q_EMIT q->sigEnableChanged();
}

void MvTimelineVirtualPlayheadPresenterPrivate::setVisible(bool visible)
{
    allowed = true;
    // Playback owns the picture: a request to show is dropped and a shown marker is hidden.
    if (timelinePresenter && timelinePresenter->isMediaPlayerPlaying()) {
        allowed = false;
        if (opened && shown)
            applyVisible(false);
    }
    if (allowed)
        applyVisible(visible);
}

void MvTimelineVirtualPlayheadPresenterPrivate::applyVisible(bool visible)
{
    Q_Q(MvTimelineVirtualPlayheadPresenter);
    MV_FUNCTION("MvTimelineVirtualPlayheadPresenterPrivate::setVisible");
    MV_LOG(MvBaseLog::Note, QString::asprintf("Set Virtual Playhead Visible = %d", visible ? 1 : 0));
    shown = visible;
    Q_EMIT q->sigVisibleChanged();
    if (!visible)
        seekToCurrentFrame();
}

void MvTimelineVirtualPlayheadPresenterPrivate::seek(qint64 frame)
{
    // A frame still being decoded must not be shown half-way: the player holds until it is ready.
    const bool hold = playhead && !playhead->isFrameSettled(frame);
    if (hold)
        playhead->setSeekHold(true);
    if (timelinePresenter)
        timelinePresenter->seek(frame);
    if (hold)
        playhead->setSeekHold(false);
}

void MvTimelineVirtualPlayheadPresenterPrivate::playStateChanged(MvPlayState state)
{
    if (!opened)
        return;
    if (state == PlayState_Stopped || state == PlayState_Paused) {
        setVisible(true);
    } else if (state == PlayState_Finished) {
        setVisible(false);
        seekToCurrentFrame();
    }
    // The model may have dropped its virtual position while the player ran.
    if (playhead && playhead->needsVirtualReopen()) {
        playhead->virtualOpened();
        playhead->setSplitButtonVisible(false);
    }
}

void MvTimelineVirtualPlayheadPresenterPrivate::updateEnable()
{
    IMvTimeline* timeline = timelinePresenter ? timelinePresenter->timeline() : nullptr;
    if (opened && timeline && !timeline->virtualPlayheadAllowed())
        close();
}

void MvTimelineVirtualPlayheadPresenterPrivate::onPlayheadEvent(IMvTimelinePlayhead* source, int kind)
{
    Q_UNUSED(source)
    if (opened && shown && kind == IMvTimelinePlayhead::Moved)
        setVisible(false);
}

MvTimelineVirtualPlayheadPresenter::MvTimelineVirtualPlayheadPresenter(
    MvTimelinePresenter* timelinePresenter, QObject* parent)
    : MvPresenter(parent)
    , d_ptr(new MvTimelineVirtualPlayheadPresenterPrivate(this, timelinePresenter))
{
}

MvTimelineVirtualPlayheadPresenter::~MvTimelineVirtualPlayheadPresenter() = default;

void MvTimelineVirtualPlayheadPresenter::open()
{
    Q_D(MvTimelineVirtualPlayheadPresenter);
    d->open();
}

void MvTimelineVirtualPlayheadPresenter::close()
{
    Q_D(MvTimelineVirtualPlayheadPresenter);
    d->close();
}

bool MvTimelineVirtualPlayheadPresenter::isOpen() const
{
    Q_D(const MvTimelineVirtualPlayheadPresenter);
    return d->opened;
}

bool MvTimelineVirtualPlayheadPresenter::visible() const
{
    Q_D(const MvTimelineVirtualPlayheadPresenter);
    return d->opened && d->shown;
}

void MvTimelineVirtualPlayheadPresenter::setVisible(bool visible)
{
    Q_D(MvTimelineVirtualPlayheadPresenter);
    d->setVisible(visible);
}

void MvTimelineVirtualPlayheadPresenter::seek(qint64 frame)
{
    Q_D(MvTimelineVirtualPlayheadPresenter);
    d->seek(frame);
}

void MvTimelineVirtualPlayheadPresenter::playStateChanged(MvPlayState state)
{
    Q_D(MvTimelineVirtualPlayheadPresenter);
    d->playStateChanged(state);
}

void MvTimelineVirtualPlayheadPresenter::updateEnable()
{
    Q_D(MvTimelineVirtualPlayheadPresenter);
    d->updateEnable();
}

MvTimelinePresenter* MvTimelineVirtualPlayheadPresenter::timelinePresenter() const
{
    Q_D(const MvTimelineVirtualPlayheadPresenter);
    return d->timelinePresenter;
}
