#include "MvDemoPlayheadTheme.h"

#include "MvTimelinePlayheadPresenter.h"

#include <QPainter>

using namespace MVWIDGETS;

namespace {
// A rounded 40 x 35 button with a blade cutting a strip, tinted by status.
QImage splitButtonImage(const QColor& fill, const QColor& ink)
{
    QImage image(40, 35, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(6.5, 4.5, 27, 26), 6, 6);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(20, 9), QPointF(20, 26));
    painter.drawLine(QPointF(12, 13), QPointF(17, 17.5));
    painter.drawLine(QPointF(12, 22), QPointF(17, 17.5));
    painter.drawLine(QPointF(28, 13), QPointF(23, 17.5));
    painter.drawLine(QPointF(28, 22), QPointF(23, 17.5));
    return image;
}
}

MvDemoPlayheadPresenter::MvDemoPlayheadPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent)
    : MvTimelinePlayheadPresenter(timelinePresenter, parent)
{
    MvTimelinePlayheadPresenter* presenter = this;
    presenter->setPlayheadColor(Normal, QColor(0xFF, 0x5A, 0x4E));
    presenter->setPlayheadColor(Hover, QColor(0xFF, 0x7B, 0x70));
    presenter->setPlayheadColor(Pressed, QColor(0xFF, 0x9A, 0x90));
    presenter->setPlayheadColor(Disabled, QColor(0x80, 0x80, 0x80));
    presenter->addSplitButtonImage(Normal, splitButtonImage(QColor(0xFF, 0x5A, 0x4E), Qt::white));
    presenter->addSplitButtonImage(Hover, splitButtonImage(QColor(0xFF, 0x7B, 0x70), Qt::white));
    presenter->addSplitButtonImage(Pressed, splitButtonImage(QColor(0xC9, 0x3C, 0x32), QColor(0xFF, 0xE0, 0xDD)));
    presenter->addSplitButtonImage(Disabled, splitButtonImage(QColor(0x60, 0x60, 0x60), QColor(0xA0, 0xA0, 0xA0)));
}

QImage MvDemoPlayheadPresenter::getPlayheadPixmap(MvWidgetStyleStatus status)
{
    // The head: a small downward pentagon in the line's colour of that status.
    QImage image(12, 12, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(getPlayheadColor(status));
    painter.drawPolygon(QPolygonF({ QPointF(0, 0), QPointF(12, 0), QPointF(12, 7), QPointF(6, 12), QPointF(0, 7) }));
    return image;
}
