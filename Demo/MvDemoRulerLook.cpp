#include "MvDemoRulerLook.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

namespace MvDemoRulerLook {

namespace {
constexpr int kSmallestPixelSize = 7;

// The ink of a text drawn as the ruler draws it, but without clipping.
QRect inkOf(const QFont& font, const QString& text, int boxWidth)
{
    QImage image(boxWidth * 2 + 8, kLabelHeight * 2 + 8, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(4, 4, boxWidth, kLabelHeight), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, text);
    painter.end();
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) > 96)
                ink |= QRect(x - 4, y - 4, 1, 1);
        }
    }
    return ink;
}
}

bool labelsFit(const QFont& font)
{
    const QFontMetrics metrics(font);
    const int boxWidth = metrics.boundingRect(QStringLiteral("00:00:00:00")).width();
    const QRect box(0, 0, boxWidth, kLabelHeight);
    // Digits differ in their ink at both ends: try each one first and last.
    for (QChar digit = QLatin1Char('0'); digit <= QLatin1Char('9'); digit = QChar(digit.unicode() + 1)) {
        const QString last = QStringLiteral("00:00:00:0") + digit;
        const QString first = digit + QStringLiteral("0:00:00:00");
        if (!box.contains(inkOf(font, last, boxWidth)) || !box.contains(inkOf(font, first, boxWidth)))
            return false;
    }
    return true;
}

QFont labelFont(const QFont& base)
{
    QFont font = base;
    for (int size = QFontInfo(base).pixelSize(); size > kSmallestPixelSize; --size) {
        font.setPixelSize(size);
        if (labelsFit(font))
            return font;
    }
    font.setPixelSize(kSmallestPixelSize);
    return font;
}

}
