#pragma once

#include "MvVBLModelGlobal.h"

class IMvTimelinePlayhead;

class MVVBLMODEL_EXPORT IMvPlayheadEventObserver
{
public:
    virtual ~IMvPlayheadEventObserver();
    virtual void onPlayheadEvent(IMvTimelinePlayhead* source, int kind) = 0;
};

// The play cursor of a timeline. Its pixel position is its frame through the timeline's ruler.
class MVVBLMODEL_EXPORT IMvTimelinePlayhead
{
public:
    // Notification kinds.
    enum EventKind
    {
        VisibleChanged = 0,
        EnabledChanged = 1,
        Moved = 2,
        VirtualStateChanged = 3,
        SplitButtonVisibleChanged = 100,
        SplitButtonEnabledChanged = 101,
    };

    virtual ~IMvTimelinePlayhead();

    virtual void addObserver(IMvPlayheadEventObserver* observer) = 0;
    virtual void removeObserver(IMvPlayheadEventObserver* observer) = 0;

    virtual qint64 currentFrame() const = 0;
    // Clamped to 0 .. the timeline's duration.
    virtual void setCurrentFrame(qint64 frame) = 0;
    virtual int position() const = 0;
    virtual void setPosition(int x) = 0;

    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    virtual bool isEnabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;
    virtual bool isSplitButtonVisible() const = 0;
    virtual void setSplitButtonVisible(bool visible) = 0;
    virtual bool isSplitButtonEnabled() const = 0;
    virtual void setSplitButtonEnabled(bool enabled) = 0;

    // The virtual playhead: a second position kept while it is open. The real playhead stays
    // where it was; moving the current frame while open moves the virtual one.
    virtual void virtualOpened() = 0;
    virtual void virtualClosed() = 0;
    virtual bool isVirtualOpen() const = 0;
    virtual bool needsVirtualReopen() const = 0;
    // False while a seek to that frame would still be decoding (the player must hold).
    virtual bool isFrameSettled(qint64 frame) const = 0;
    virtual void setSeekHold(bool hold) = 0;
    virtual bool isSeekHold() const = 0;
};
