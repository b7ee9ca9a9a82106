#include "MvBenchWidgets.h"

#include <QPainter>
#include <QtMath>

namespace MvBench {

QImage targetImage(const QSize& size, double dpr)
{
    QImage image(qCeil(size.width() * dpr), qCeil(size.height() * dpr), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::black);
    return image;
}

void renderInto(QWidget* widget, QImage* image)
{
    widget->render(image, QPoint(), QRegion(), QWidget::RenderFlags());
}

FloorWidget::FloorWidget(const QSize& size)
{
    resize(size);
}

void FloorWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().brush(QPalette::Window));
}

}
