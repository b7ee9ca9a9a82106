#include "MvDemoHeaderMarks.h"

#include <QPainterPathStroker>

namespace MvDemoHeaderMarks {

namespace {
constexpr int kMarkSide = 14;
constexpr int kRightPadding = 8;
constexpr int kMarkGap = 8;

QPainterPath stroked(const QPainterPath& line, qreal width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(line);
}

// The point at fractions of a square whose side is its smaller extent, centred.
struct Grid
{
    explicit Grid(const QRectF& square)
        : side(qMin(square.width(), square.height()))
        , origin(square.center() - QPointF(side / 2, side / 2))
    {
    }
    QPointF operator()(qreal x, qreal y) const { return origin + QPointF(x * side, y * side); }
    qreal side;
    QPointF origin;
};
}

QPainterPath padlock(const QRectF& square, bool locked)
{
    const qreal s = qMin(square.width(), square.height());
    const QPointF origin = square.center() - QPointF(s / 2, s / 2);
    const auto at = [&](qreal x, qreal y) { return origin + QPointF(x * s, y * s); };

    QPainterPath body;
    body.addRoundedRect(QRectF(at(0.12, 0.45), at(0.88, 1.0)), s * 0.1, s * 0.1);
    // The keyhole is cut out of the body.
    QPainterPath keyhole;
    keyhole.addEllipse(at(0.5, 0.68), s * 0.08, s * 0.08);
    body = body.subtracted(keyhole);

    // The shackle: a bow over the body; open, it rises and its right leg leaves the body.
    const qreal lift = locked ? 0.0 : 0.16;
    const qreal radius = 0.24;
    QPainterPath shackle;
    shackle.moveTo(at(0.5 - radius, 0.5));
    shackle.lineTo(at(0.5 - radius, 0.3 - lift));
    shackle.arcTo(QRectF(at(0.5 - radius, 0.06 - lift), at(0.5 + radius, 0.54 - lift)), 180, -180);
    shackle.lineTo(at(0.5 + radius, locked ? 0.5 : 0.3 - lift));
    QPainterPathStroker stroker;
    stroker.setWidth(s * 0.13);
    stroker.setCapStyle(Qt::FlatCap);
    return body.united(stroker.createStroke(shackle)).simplified();
}

QPainterPath speaker(const QRectF& square, bool muted)
{
    const Grid at(square);
    QPainterPath body;
    body.moveTo(at(0.05, 0.36));
    body.lineTo(at(0.28, 0.36));
    body.lineTo(at(0.55, 0.1));
    body.lineTo(at(0.55, 0.9));
    body.lineTo(at(0.28, 0.64));
    body.lineTo(at(0.05, 0.64));
    body.closeSubpath();
    QPainterPath beside;
    if (muted) {
        beside.moveTo(at(0.68, 0.34));
        beside.lineTo(at(0.96, 0.66));
        beside.moveTo(at(0.96, 0.34));
        beside.lineTo(at(0.68, 0.66));
    } else {
        beside.arcMoveTo(QRectF(at(0.45, 0.3), at(0.85, 0.7)), -50);
        beside.arcTo(QRectF(at(0.45, 0.3), at(0.85, 0.7)), -50, 100);
        beside.arcMoveTo(QRectF(at(0.4, 0.12), at(1.0, 0.88)), -55);
        beside.arcTo(QRectF(at(0.4, 0.12), at(1.0, 0.88)), -55, 110);
    }
    return body.united(stroked(beside, at.side * 0.11)).simplified();
}

QPainterPath eye(const QRectF& square, bool open)
{
    const Grid at(square);
    QPainterPath lids;
    lids.moveTo(at(0.02, 0.5));
    lids.quadTo(at(0.5, 0.08), at(0.98, 0.5));
    if (open) {
        lids.quadTo(at(0.5, 0.92), at(0.02, 0.5));
        QPainterPath outline = stroked(lids, at.side * 0.1);
        QPainterPath pupil;
        pupil.addEllipse(at(0.5, 0.5), at.side * 0.16, at.side * 0.16);
        return outline.united(pupil).simplified();
    }
    // Shut: the lower lid only, the lashes below it, and a stroke through.
    QPainterPath shut;
    shut.moveTo(at(0.02, 0.45));
    shut.quadTo(at(0.5, 0.85), at(0.98, 0.45));
    shut.moveTo(at(0.3, 0.68));
    shut.lineTo(at(0.22, 0.86));
    shut.moveTo(at(0.7, 0.68));
    shut.lineTo(at(0.78, 0.86));
    shut.moveTo(at(0.12, 0.12));
    shut.lineTo(at(0.88, 0.88));
    return stroked(shut, at.side * 0.1).simplified();
}

QRect lockRect(const QRect& row)
{
    return QRect(row.right() - kRightPadding - kMarkSide + 1, row.center().y() - kMarkSide / 2, kMarkSide, kMarkSide);
}

QRect muteRect(const QRect& row)
{
    return lockRect(row).translated(-(kMarkSide + kMarkGap), 0);
}

QRect eyeRect(const QRect& row)
{
    return lockRect(row).translated(-2 * (kMarkSide + kMarkGap), 0);
}

}
