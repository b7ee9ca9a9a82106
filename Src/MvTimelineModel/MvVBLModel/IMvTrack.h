#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvClip;

// One track row. Picture rows come first (index 0 is the top row), audio rows after them.
class MVVBLMODEL_EXPORT IMvTrack
{
public:
    virtual ~IMvTrack();

    virtual int index() const = 0;
    virtual MVVBLMODEL::MvTrackType type() const = 0;
    virtual bool isLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    virtual int height() const = 0;
    virtual void setHeight(int height) = 0;
    // Clips ordered by start; clips on a row never overlap, so their ends are ordered too.
    virtual QList<IMvClip*> clips() const = 0;

    // Track commands. A hidden row shows nothing; withSound also silences a hidden picture row
    // while it stays hidden (isMuted() then answers true whatever its own mute switch says).
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible, bool withSound) = 0;
    virtual bool isMuted() const = 0;
    virtual void setMuted(bool muted) = 0;
};
