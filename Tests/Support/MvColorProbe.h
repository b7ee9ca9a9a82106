#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QString>
#include <QWidget>

// Renders a widget on a transparent image and names the colour found at each point with one
// letter: Red, Green, Blue, Yellow, Cyan, Magenta, grAy; '-' where nothing was painted and '?'
// for any other colour. Pixel checks of many points then read as one short string.
inline QString mvColorsAt(QWidget* widget, const QList<QPoint>& points)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    const QList<QColor> colors { Qt::red, Qt::green, Qt::blue, Qt::yellow, Qt::cyan, Qt::magenta, Qt::gray };
    QString text;
    for (const QPoint& point : points) {
        const QColor color = image.pixelColor(point);
        const int index = colors.indexOf(color);
        if (color.alpha() == 0)
            text += QLatin1Char('-');
        else
            text += index < 0 ? QLatin1Char('?') : QStringLiteral("RGBYCMA").at(index);
    }
    return text;
}
