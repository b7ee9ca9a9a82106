#pragma once

#include "MvMemoryGlobal.h"

#include "IMvTimelinePlayhead.h"

#include <QList>

class MvMemoryTimeline;

// The play cursor. Observers are told synchronously, only on a real change, and may remove
// themselves (or others) from inside the callback.
class MVMEMORY_EXPORT MvMemoryPlayhead : public IMvTimelinePlayhead
{
public:
    explicit MvMemoryPlayhead(MvMemoryTimeline* timeline);

    void addObserver(IMvPlayheadEventObserver* observer) override;
    void removeObserver(IMvPlayheadEventObserver* observer) override;
    int observerCount() const { return m_observers.size(); }

    qint64 currentFrame() const override;
    void setCurrentFrame(qint64 frame) override;
    int position() const override;
    void setPosition(int x) override;

    bool isVisible() const override;
    void setVisible(bool visible) override;
    bool isEnabled() const override;
    void setEnabled(bool enabled) override;
    bool isSplitButtonVisible() const override;
    void setSplitButtonVisible(bool visible) override;
    bool isSplitButtonEnabled() const override;
    void setSplitButtonEnabled(bool enabled) override;

    void virtualOpened() override;
    void virtualClosed() override;
    bool isVirtualOpen() const override;
    bool needsVirtualReopen() const override;
    bool isFrameSettled(qint64 frame) const override;
    void setSeekHold(bool hold) override;
    bool isSeekHold() const override;

    // The frame the real playhead keeps while the virtual one is open.
    qint64 realFrame() const { return m_realFrame; }
    qint64 settledFrame() const { return m_settledFrame; }
    // Called by the timeline after each recorded change of the model.
    void timelineEdited();
    // The player has come to rest at the current frame.
    void settle();
    // Called by the timeline when its duration shrinks below the playhead.
    void clampToDuration();

private:
    Q_DISABLE_COPY(MvMemoryPlayhead)
    void notify(int kind);
    void moveTo(qint64 frame);

    MvMemoryTimeline* m_timeline;
    QList<IMvPlayheadEventObserver*> m_observers;
    qint64 m_realFrame = 0;
    qint64 m_virtualFrame = 0;
    qint64 m_settledFrame = 0;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_splitVisible = true;
    bool m_splitEnabled = true;
    bool m_virtualOpen = false;
    bool m_needsReopen = false;
    bool m_seekHold = false;
};
