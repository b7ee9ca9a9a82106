#include "MvMemoryPlayhead.h"

#include "IMvTimelineRuler.h"
#include "MvMemoryTimeline.h"

#include <cmath>

MvMemoryPlayhead::MvMemoryPlayhead(MvMemoryTimeline* timeline)
    : m_timeline(timeline)
{
}

void MvMemoryPlayhead::addObserver(IMvPlayheadEventObserver* observer)
{
    if (observer && !m_observers.contains(observer))
        m_observers.append(observer);
}

void MvMemoryPlayhead::removeObserver(IMvPlayheadEventObserver* observer)
{
    m_observers.removeAll(observer);
}

// Observers removed by an earlier callback of the same round are not called any more.
void MvMemoryPlayhead::notify(int kind)
{
    const QList<IMvPlayheadEventObserver*> round = m_observers;
    for (IMvPlayheadEventObserver* observer : round) {
        if (m_observers.contains(observer))
            observer->onPlayheadEvent(this, kind);
    }
}

qint64 MvMemoryPlayhead::currentFrame() const
{
    return m_virtualOpen ? m_virtualFrame : m_realFrame;
}

void MvMemoryPlayhead::setCurrentFrame(qint64 frame)
{
    moveTo(qBound<qint64>(0, frame, m_timeline->duration()));
}

void MvMemoryPlayhead::moveTo(qint64 frame)
{
    qint64& target = m_virtualOpen ? m_virtualFrame : m_realFrame;
    if (target == frame)
        return;
    target = frame;
    // A seek while held is still decoding: the player has not come to rest there yet.
    if (!m_seekHold)
        m_settledFrame = frame;
    if (IMvTimelineRuler* ruler = m_timeline->ruler())
        ruler->setCurrentFrame(frame);
    notify(Moved);
}

int MvMemoryPlayhead::position() const
{
    IMvTimelineRuler* ruler = m_timeline->ruler();
    return ruler ? ruler->frameToPixel(currentFrame()) : 0;
}

void MvMemoryPlayhead::setPosition(int x)
{
    IMvTimelineRuler* ruler = m_timeline->ruler();
    if (ruler)
        setCurrentFrame(qMax<qint64>(0, ruler->pixelToFrame(x)));
}

bool MvMemoryPlayhead::isVisible() const
{
    return m_visible;
}

void MvMemoryPlayhead::setVisible(bool visible)
{
    if (m_visible == visible)
        return;
    m_visible = visible;
    notify(VisibleChanged);
}

bool MvMemoryPlayhead::isEnabled() const
{
    return m_enabled;
}

void MvMemoryPlayhead::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    notify(EnabledChanged);
}

bool MvMemoryPlayhead::isSplitButtonVisible() const
{
    return m_splitVisible;
}

void MvMemoryPlayhead::setSplitButtonVisible(bool visible)
{
    if (m_splitVisible == visible)
        return;
    m_splitVisible = visible;
    notify(SplitButtonVisibleChanged);
}

bool MvMemoryPlayhead::isSplitButtonEnabled() const
{
    return m_splitEnabled;
}

void MvMemoryPlayhead::setSplitButtonEnabled(bool enabled)
{
    if (m_splitEnabled == enabled)
        return;
    m_splitEnabled = enabled;
    notify(SplitButtonEnabledChanged);
}

// Opening starts the virtual playhead where the real one stands; opening again while open (a
// reopen after an edit) keeps both positions and only clears the reopen request.
void MvMemoryPlayhead::virtualOpened()
{
    m_needsReopen = false;
    if (m_virtualOpen)
        return;
    m_virtualOpen = true;
    m_virtualFrame = m_realFrame;
    notify(VirtualStateChanged);
}

void MvMemoryPlayhead::virtualClosed()
{
    if (!m_virtualOpen)
        return;
    const bool moved = m_virtualFrame != m_realFrame;
    m_virtualOpen = false;
    m_needsReopen = false;
    m_realFrame = qBound<qint64>(0, m_realFrame, m_timeline->duration());
    if (!m_seekHold)
        m_settledFrame = m_realFrame;
    if (IMvTimelineRuler* ruler = m_timeline->ruler())
        ruler->setCurrentFrame(m_realFrame);
    notify(VirtualStateChanged);
    if (moved)
        notify(Moved);
}

bool MvMemoryPlayhead::isVirtualOpen() const
{
    return m_virtualOpen;
}

// An edit while the virtual playhead is open may have changed what it shows: it asks to be
// opened again.
bool MvMemoryPlayhead::needsVirtualReopen() const
{
    return m_virtualOpen && m_needsReopen;
}

void MvMemoryPlayhead::timelineEdited()
{
    if (m_virtualOpen)
        m_needsReopen = true;
}

// A frame more than one second of frames away from where the player last came to rest still
// needs decoding.
bool MvMemoryPlayhead::isFrameSettled(qint64 frame) const
{
    const MVVBLMODEL::MvRational rate = m_timeline->frameRate();
    const double fps = rate.denominator > 0 ? double(rate.numerator) / double(rate.denominator) : 0.0;
    const qint64 second = qMax<qint64>(1, qint64(std::ceil(fps)));
    // Compared from the settled frame, so that no frame of the 64-bit range overflows.
    return m_settledFrame - second <= frame && frame <= m_settledFrame + second;
}

void MvMemoryPlayhead::setSeekHold(bool hold)
{
    if (m_seekHold == hold)
        return;
    m_seekHold = hold;
    if (!hold)
        settle();
}

bool MvMemoryPlayhead::isSeekHold() const
{
    return m_seekHold;
}

void MvMemoryPlayhead::settle()
{
    m_settledFrame = currentFrame();
}

void MvMemoryPlayhead::clampToDuration()
{
    const qint64 last = m_timeline->duration();
    if (m_virtualOpen && m_realFrame > last)
        m_realFrame = last;
    if (currentFrame() > last)
        moveTo(last);
}
