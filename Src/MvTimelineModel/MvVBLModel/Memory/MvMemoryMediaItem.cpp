#include "MvMemoryMediaItem.h"

using namespace MVVBLMODEL;

MvMemoryMediaInfo::MvMemoryMediaInfo(quint32 flags, const MvRational& frameRate, const QSize& size)
    : m_flags(flags)
    , m_frameRate(frameRate)
    , m_size(size)
{
}

quint32 MvMemoryMediaInfo::flags() const
{
    return m_flags;
}

MvMemoryMediaItem::MvMemoryMediaItem(const QString& name, MvMediaType type, qint64 durationMs)
    : m_name(name)
    , m_type(type)
    , m_durationMs(qMax<qint64>(0, durationMs))
{
}

MvMemoryMediaItem::~MvMemoryMediaItem() = default;

bool MvMemoryMediaItem::needDownload() const
{
    return m_remote && !m_downloaded;
}

bool MvMemoryMediaItem::isStockItem() const
{
    return false;
}

bool MvMemoryMediaItem::isVCGItem() const
{
    return false;
}

MvMediaType MvMemoryMediaItem::mediaType() const
{
    return m_type;
}

MvMediaOrigin MvMemoryMediaItem::origin() const
{
    return m_origin;
}

qint64 MvMemoryMediaItem::lengthInFrames(const MvRational& rate) const
{
    if (rate.numerator <= 0 || rate.denominator <= 0)
        return 0;
    return m_durationMs * rate.numerator / (rate.denominator * 1000);
}

QString MvMemoryMediaItem::name() const
{
    return m_name;
}

IMvMediaInfo* MvMemoryMediaItem::mediaInfo() const
{
    return m_info.data();
}

void MvMemoryMediaItem::setOrigin(MvMediaOrigin origin)
{
    m_origin = origin;
}

void MvMemoryMediaItem::setMediaInfo(quint32 flags, const MvRational& frameRate, const QSize& size)
{
    m_info.reset(new MvMemoryMediaInfo(flags, frameRate, size));
}

void MvMemoryMediaItem::setRemote(bool remote)
{
    m_remote = remote;
}

void MvMemoryMediaItem::setDownloaded(bool downloaded)
{
    m_downloaded = downloaded;
}

// ---- stock

MvMemoryStockMediaItem::MvMemoryStockMediaItem(
    const QString& name, MvMediaType type, qint64 durationMs, const QStringList& resolutions)
    : MvMemoryMediaItem(name, type, durationMs)
    , m_resolutions(resolutions)
{
    setOrigin(MediaOrigin_Stock);
    setRemote(true);
}

bool MvMemoryStockMediaItem::isStockItem() const
{
    return true;
}

int MvMemoryStockMediaItem::resolutionCount() const
{
    return m_resolutions.size();
}

bool MvMemoryStockMediaItem::hasSelectedResolution() const
{
    return selectedResolution() >= 0 && !m_chooseAgain;
}

void MvMemoryStockMediaItem::setResolutionFlag(bool chooseAgain)
{
    m_chooseAgain = chooseAgain;
}

int MvMemoryStockMediaItem::selectedResolution() const
{
    if (m_selected < 0 && m_resolutions.size() == 1)
        return 0;
    return m_selected;
}

void MvMemoryStockMediaItem::selectResolution(int index)
{
    if (index < 0 || index >= m_resolutions.size())
        return;
    m_selected = index;
    m_chooseAgain = false;
}

// ---- VCG

MvMemoryVCGMediaItem::MvMemoryVCGMediaItem(
    const QString& name, MvMediaType type, qint64 durationMs, const QStringList& resolutions)
    : MvMemoryMediaItem(name, type, durationMs)
    , m_resolutions(resolutions)
{
    setOrigin(MediaOrigin_VCG);
    setRemote(true);
}

bool MvMemoryVCGMediaItem::isVCGItem() const
{
    return true;
}

int MvMemoryVCGMediaItem::resolutionCount() const
{
    return resolutions().size();
}

QStringList MvMemoryVCGMediaItem::resolutions() const
{
    return needDownload() ? QStringList() : m_resolutions;
}

void MvMemoryVCGMediaItem::selectResolution(int index)
{
    if (index >= 0 && index < resolutionCount())
        m_selected = index;
}
