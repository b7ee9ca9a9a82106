#pragma once

// Internal to the library: the ruler's time-code labels, drawn once and then copied.
//
// Drawing text is most of what a ruler paint costs, and most paints show the labels of the paint
// before (the playhead, the strip or anything else moved over the ruler). A label is drawn as
// text the first time it shows. When it shows again at the same place within a device pixel, it
// is drawn once more into a tile: the background with the text on it, in the target's pixel
// format, at the same scale and the same fraction of a pixel, cropped to the pixels the text
// touched. From then on the tile is copied, which gives the very pixels the text drawing gives.
//
// Tiles are used only where that holds: in a raster image of 32-bit pixels, under a scale-only
// transform, over an opaque solid background that this paint filled, and where no other label
// lies. Everywhere else the label is drawn as text.

#include "MvDevicePixels_p.h"
#include "MvTimelineGlobal.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QString>
#include <QVector>

class MVTIMELINE_TEST_EXPORT MvRulerLabelCache
{
public:
    // More labels than this are forgotten at the end of a paint, all but the ones it used.
    static constexpr int kCapacity = 256;

    // Starts a paint whose background `background` was filled over `filled` (logical); drops
    // every tile when the look of the labels changed (font, ink, background, scale, format).
    void begin(QPainter& painter, const QColor& background, const QRectF& filled, const MvDeviceClip& clip);
    // painter.drawText(rect, Qt::AlignLeft | Qt::AlignTop, text), copied from a tile where it can.
    // Labels come in order of x.
    void draw(QPainter& painter, const QRectF& rect, const QString& text);
    // Draws what the paint asked for and forgets labels not used lately when there are too many.
    void end(QPainter& painter);

    int size() const { return m_entries.size(); }
    // How many labels the last paint copied from tiles.
    int tilesCopied() const { return m_tilesCopied; }

private:
    struct Key
    {
        QString text;
        double fractionX; // where the label starts within a device pixel
        double fractionY;
        bool operator==(const Key& other) const
        {
            return fractionX == other.fractionX && fractionY == other.fractionY && text == other.text;
        }
    };
    friend uint qHash(const Key& key, uint seed) { return qHash(key.text, seed) ^ qHash(key.fractionX, seed); }

    struct Entry
    {
        QImage tile; // opaque, cropped to the text's pixels; null until made
        QPoint offset; // of the tile's top left from the label's first device pixel
        bool made = false; // a tile was attempted (it may still be null: nothing drawn, or unusable)
        bool usable = false;
        quint64 lastPaint = 0;
    };

    // What decides the pixels of a label besides its text and place.
    struct Look
    {
        QFont font;
        int dpiX = 0;
        int dpiY = 0;
        QColor ink;
        QColor background;
        double scaleX = 0.0;
        double scaleY = 0.0;
        QPainter::RenderHints hints;
        Qt::LayoutDirection direction = Qt::LeftToRight;
        QImage::Format format = QImage::Format_Invalid;
        bool operator==(const Look& other) const;
    };

    bool tilesPossible(QPainter& painter, const QColor& background) const;
    void makeTile(QPainter& painter, const QRectF& rect, const QString& text, const QPoint& firstPixel, Entry* entry);
    // Whether copying the tile at `box` gives the pixels that drawing the text would.
    bool canCopy(const QRect& box) const;

    QHash<Key, Entry> m_entries;
    Look m_look;
    bool m_tiles = false; // this paint may copy tiles
    quint64 m_paint = 0;
    QTransform m_toDevice;
    QRect m_background; // device pixels certainly filled with the background
    MvDeviceClip m_clip;
    int m_reach = 0; // the device column after the last one an earlier label may have touched
    QVector<QPair<QPoint, QImage>> m_copies; // tiles to copy at the end of the paint
    QVector<QPair<QRectF, QString>> m_texts; // labels to draw as text after the copies
    int m_tilesCopied = 0;
};
