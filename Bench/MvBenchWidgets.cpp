#include "MvBenchWidgets.h"

#include "MvBenchHarness.h"

#include <QPainter>
#include <QtMath>

namespace MvBench {

namespace {
class BackgroundOnly : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().brush(QPalette::Window));
    }
};
}

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

double widgetFloor(const QSize& size, QImage* image)
{
    BackgroundOnly floor;
    floor.resize(size);
    return measure([&] { renderInto(&floor, image); });
}

}
