#include "MvMarkerPresenter.h"

#include "IMvMarker.h"
#include "IMvTimeline.h"
#include "MvTimelineModelAccess_p.h"
#include "MvTimelinePresenter.h"

MvMarkerPresenter::MvMarkerPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent)
    : MvPresenter(parent)
    , m_timelinePresenter(timelinePresenter)
{
}

MvMarkerPresenter::~MvMarkerPresenter()
{
    clearMarkerImages();
}

const MvMarkerPresenter::MarkerImageEntry* MvMarkerPresenter::findEntry(int colorIndex) const
{
    for (const MarkerImageEntry* entry : m_images) {
        if (entry->colorIndex == colorIndex)
            return entry;
    }
    // An unknown colour still gets a marker, drawn like the first colour.
    return m_images.isEmpty() ? nullptr : m_images.first();
}

QImage MvMarkerPresenter::normalMarkerImage(int colorIndex)
{
    const MarkerImageEntry* entry = findEntry(colorIndex);
    return entry ? entry->normal : QImage();
}

QImage MvMarkerPresenter::horverMarkerImage(int colorIndex)
{
    const MarkerImageEntry* entry = findEntry(colorIndex);
    return entry ? entry->hover : QImage();
}

QImage MvMarkerPresenter::pressMarkerImage(int colorIndex)
{
    const MarkerImageEntry* entry = findEntry(colorIndex);
    return entry ? entry->pressed : QImage();
}

namespace {
// The timeline's own marker at a list index, or null (no timeline, no marker list, out of range).
const IMvMarker* timelineMarker(const MvTimelinePresenter* timelinePresenter, int index)
{
    const IMvTimeline* timeline = timelinePresenter ? timelinePresenter->timeline() : nullptr;
    const IMvMarkerList* list = timeline ? timeline->timelineMarkers() : nullptr;
    return list && index >= 0 ? list->markers().value(index) : nullptr;
}
}

QString MvMarkerPresenter::markerName(int index)
{
    const IMvMarker* marker = timelineMarker(m_timelinePresenter, index);
    return marker ? marker->name() : QString();
}

qint64 MvMarkerPresenter::markerFrame(int index)
{
    const IMvMarker* marker = timelineMarker(m_timelinePresenter, index);
    return marker && marker->ownerList() ? marker->ownerList()->mapToTimeline(marker->frame()) : -1;
}

QString MvMarkerPresenter::markerTimecode(int index)
{
    const qint64 frame = markerFrame(index);
    if (frame < 0)
        return QString();
    return MvModelAccess::timeCode(m_timelinePresenter ? m_timelinePresenter->timeline() : nullptr, frame);
}

void MvMarkerPresenter::addMarkerImage(int colorIndex, const QImage& normal, const QImage& hover, const QImage& pressed)
{
    m_images.append(new MarkerImageEntry { colorIndex, normal, hover, pressed });
}

void MvMarkerPresenter::clearMarkerImages()
{
    qDeleteAll(m_images);
    m_images.clear();
}

int MvMarkerPresenter::markerImageCount() const
{
    return m_images.size();
}

MvTimelinePresenter* MvMarkerPresenter::timelinePresenter() const
{
    return m_timelinePresenter;
}

QList<QColor> MvMarkerPresenter::markerPalette()
{
    // Eight hues far enough apart to tell at 11 px: red, orange, yellow, green, cyan, blue,
    // purple, pink. Their order is the order of the colour indices.
    static const QList<QColor> palette {
        QColor(0xF0, 0x4A, 0x4A),
        QColor(0xF5, 0x9A, 0x23),
        QColor(0xF2, 0xD0, 0x2C),
        QColor(0x3C, 0xC8, 0x6A),
        QColor(0x2C, 0xC2, 0xD6),
        QColor(0x3B, 0x7F, 0xF2),
        QColor(0x9A, 0x5C, 0xE6),
        QColor(0xEA, 0x4F, 0x9C),
    };
    return palette;
}

int MvMarkerPresenter::markerPaletteIndex(const QColor& color)
{
    const QList<QColor> palette = markerPalette();
    for (int i = 0; i < palette.size(); ++i) {
        if (palette.at(i).rgba() == color.rgba())
            return i;
    }
    return -1;
}
