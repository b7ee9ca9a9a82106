#pragma once

// What the widget benchmarks share: target images at a device pixel ratio and the floor of a
// widget paint, a widget of the same size that only fills its background.

#include <QImage>
#include <QSize>
#include <QWidget>

namespace MvBench {

// A premultiplied image of `size` logical pixels at `dpr`, filled black.
QImage targetImage(const QSize& size, double dpr);

// Renders the widget into the image, as a host's window would have it painted.
void renderInto(QWidget* widget, QImage* image);

// What any paint of a widget of this size costs at least: it fills its background and nothing else.
class FloorWidget : public QWidget
{
public:
    explicit FloorWidget(const QSize& size);

protected:
    void paintEvent(QPaintEvent* event) override;
};
}
