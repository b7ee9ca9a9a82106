#pragma once

#include "MvVBLModelGlobal.h"

#include <QMetaType>
#include <QString>

// What the model knows of a media file's streams. Bits in MVVBLMODEL::MediaInfoFlag_*.
class MVVBLMODEL_EXPORT IMvMediaInfo
{
public:
    virtual ~IMvMediaInfo();

    virtual quint32 flags() const = 0;
};

// One entry of the project's media library: a local file, a stock item, a compound timeline, ...
// Items that need more than this answer also implement IMvStockMediaItem, IMvVCGMediaItem or
// IMvCompoundMediaItem (reached with dynamic_cast).
class MVVBLMODEL_EXPORT IMvAbstractMediaItem
{
public:
    virtual ~IMvAbstractMediaItem();

    // The item's file is not on this machine yet.
    virtual bool needDownload() const = 0;
    virtual bool isStockItem() const = 0;
    virtual bool isVCGItem() const = 0;
    virtual MVVBLMODEL::MvMediaType mediaType() const = 0;
    virtual MVVBLMODEL::MvMediaOrigin origin() const = 0;
    // The item's length in frames of that rate; 0 while it is not known.
    virtual qint64 lengthInFrames(const MVVBLMODEL::MvRational& rate) const = 0;
    virtual QString name() const = 0;
    // Null when the item has no streams of its own (text, compound timelines).
    virtual IMvMediaInfo* mediaInfo() const = 0;
};

// A stock item offered in several resolutions.
class MVVBLMODEL_EXPORT IMvStockMediaItem
{
public:
    virtual ~IMvStockMediaItem();

    virtual int resolutionCount() const = 0;
    // A resolution was chosen and no new choice was asked for since.
    virtual bool hasSelectedResolution() const = 0;
    // Asks (true) or stops asking (false) for the resolution to be chosen again.
    virtual void setResolutionFlag(bool chooseAgain) = 0;
};

// An item of the VCG catalogue; its resolutions are known once its description is downloaded.
class MVVBLMODEL_EXPORT IMvVCGMediaItem
{
public:
    virtual ~IMvVCGMediaItem();

    // 0 while the description is not downloaded.
    virtual int resolutionCount() const = 0;
};

// A compound item: a timeline of its own, read in the background on first use.
class MVVBLMODEL_EXPORT IMvCompoundMediaItem
{
public:
    virtual ~IMvCompoundMediaItem();

    virtual bool isTimelineLoaded() const = 0;
    // Starts reading the timeline if that has not begun and waits at most timeoutMs for it; true
    // when it is read. Safe from any thread.
    virtual bool waitForTimelineLoaded(int timeoutMs) = 0;
};

Q_DECLARE_METATYPE(IMvAbstractMediaItem*)
