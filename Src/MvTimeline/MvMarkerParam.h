#pragma once

#include <QColor>
#include <QList>
#include <QString>

// The values the marker edit dialog shows and returns.
struct MvMarkerParam
{
    QList<QColor> colors; // swatches offered, in display order
    int colorIndex = -1; // index into colors of the marker's colour, -1 for none
    QString name;
    QString comment;
    QString time; // already formatted; shown, not edited
};
