#pragma once

#include "MvMemoryGlobal.h"

#include "IMvAbstractMediaItem.h"

#include <QScopedPointer>
#include <QSize>
#include <QStringList>

// The streams of a media file as the in-memory library describes them. A host's project-settings
// question reads the rate and the size.
class MVMEMORY_EXPORT MvMemoryMediaInfo : public IMvMediaInfo
{
public:
    MvMemoryMediaInfo(quint32 flags, const MVVBLMODEL::MvRational& frameRate, const QSize& size);

    quint32 flags() const override;
    MVVBLMODEL::MvRational frameRate() const { return m_frameRate; }
    QSize size() const { return m_size; }

private:
    quint32 m_flags;
    MVVBLMODEL::MvRational m_frameRate;
    QSize m_size;
};

// An entry of the in-memory media library. Its length is a time (milliseconds), so that it gives
// whole frames at any project rate; an item stored elsewhere needs a download until the host has
// fetched it. Library state is the host's (GUI thread); the timeline only reads it.
class MVMEMORY_EXPORT MvMemoryMediaItem : public IMvAbstractMediaItem
{
public:
    MvMemoryMediaItem(const QString& name, MVVBLMODEL::MvMediaType type, qint64 durationMs);
    ~MvMemoryMediaItem() override;

    bool needDownload() const override;
    bool isStockItem() const override;
    bool isVCGItem() const override;
    MVVBLMODEL::MvMediaType mediaType() const override;
    MVVBLMODEL::MvMediaOrigin origin() const override;
    // The whole frames that fit in the item's time (0 for a rate that is not positive).
    qint64 lengthInFrames(const MVVBLMODEL::MvRational& rate) const override;
    QString name() const override;
    IMvMediaInfo* mediaInfo() const override;

    qint64 durationMs() const { return m_durationMs; }
    void setOrigin(MVVBLMODEL::MvMediaOrigin origin);
    // Streams of its own, with the settings a project may adopt.
    void setMediaInfo(quint32 flags, const MVVBLMODEL::MvRational& frameRate, const QSize& size);
    MvMemoryMediaInfo* memoryMediaInfo() const { return m_info.data(); }
    // Stored elsewhere: needs a download until setDownloaded(true).
    void setRemote(bool remote);
    bool isRemote() const { return m_remote; }
    void setDownloaded(bool downloaded);
    bool isDownloaded() const { return m_downloaded; }

private:
    Q_DISABLE_COPY(MvMemoryMediaItem)
    QString m_name;
    MVVBLMODEL::MvMediaType m_type;
    qint64 m_durationMs;
    MVVBLMODEL::MvMediaOrigin m_origin = MVVBLMODEL::MediaOrigin_Local;
    QScopedPointer<MvMemoryMediaInfo> m_info;
    bool m_remote = false;
    bool m_downloaded = false;
};

// A stock item: stored online (it needs a download) and offered in one or more resolutions.
class MVMEMORY_EXPORT MvMemoryStockMediaItem : public MvMemoryMediaItem, public IMvStockMediaItem
{
public:
    MvMemoryStockMediaItem(
        const QString& name, MVVBLMODEL::MvMediaType type, qint64 durationMs, const QStringList& resolutions);

    bool isStockItem() const override;
    int resolutionCount() const override;
    bool hasSelectedResolution() const override;
    void setResolutionFlag(bool chooseAgain) override;

    QStringList resolutions() const { return m_resolutions; }
    // -1 while none is chosen; a lone resolution counts as chosen.
    int selectedResolution() const;
    void selectResolution(int index);
    bool resolutionFlag() const { return m_chooseAgain; }

private:
    QStringList m_resolutions;
    int m_selected = -1;
    bool m_chooseAgain = false;
};

// An item of the VCG catalogue: online, and its resolutions are known only from its description,
// which comes with the download.
class MVMEMORY_EXPORT MvMemoryVCGMediaItem : public MvMemoryMediaItem, public IMvVCGMediaItem
{
public:
    MvMemoryVCGMediaItem(
        const QString& name, MVVBLMODEL::MvMediaType type, qint64 durationMs, const QStringList& resolutions);

    bool isVCGItem() const override;
    int resolutionCount() const override;

    // Known once downloaded.
    QStringList resolutions() const;
    int selectedResolution() const { return m_selected; }
    void selectResolution(int index);

private:
    QStringList m_resolutions;
    int m_selected = -1;
};
