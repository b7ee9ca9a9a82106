#include "MvDemoPlayer.h"

#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"

MvDemoPlayer::MvDemoPlayer(IMvTimeline* timeline, QObject* parent)
    : QObject(parent)
    , m_timeline(timeline)
{
    connect(&m_timer, &QTimer::timeout, this, &MvDemoPlayer::advance);
}

void MvDemoPlayer::play()
{
    if (isPlaying())
        return;
    int num = 30;
    int den = 1;
    m_timeline->ruler()->frameRate(&num, &den);
    m_timer.start(qMax(1, 1000 * den / qMax(1, num)));
    Q_EMIT stateChanged(true);
}

void MvDemoPlayer::pause()
{
    if (!isPlaying())
        return;
    m_timer.stop();
    Q_EMIT stateChanged(false);
}

void MvDemoPlayer::toggle()
{
    isPlaying() ? pause() : play();
}

void MvDemoPlayer::seek(qint64 frame)
{
    m_lastSeek = frame;
}

void MvDemoPlayer::advance()
{
    IMvTimelinePlayhead* playhead = m_timeline->playhead();
    const qint64 next = playhead->currentFrame() + 1;
    if (next > m_timeline->duration()) {
        pause();
        return;
    }
    playhead->setCurrentFrame(next);
}
