#include "MvDemoHeaderMarks.h"

#include <QPainterPathStroker>

namespace MvDemoHeaderMarks {

namespace {
constexpr int kMarkSide = 14;
constexpr int kRightPadding = 8;
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

QRect lockRect(const QRect& row)
{
    return QRect(row.right() - kRightPadding - kMarkSide + 1, row.center().y() - kMarkSide / 2, kMarkSide, kMarkSide);
}

}
