// The marker strip with many markers, against the same widget filling its background.

#include "MvBenchHarness.h"
#include "MvBenchWidgets.h"
#include "MvMarkerPresenter.h"
#include "MvMarkerWidget.h"

#include <QPainter>
#include <QPolygonF>

namespace {

constexpr int kWidth = 3840;
constexpr int kHeight = 16;
constexpr int kMarkers = 5000;
constexpr double kPaintGoal = 10.0;

// An antialiased 11 x 14 flag, as a host would draw it.
QImage flag(const QColor& color)
{
    QImage image(11, 14, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(
        QPolygonF({ QPointF(0.5, 1), QPointF(10.5, 1), QPointF(10.5, 9), QPointF(5.5, 13), QPointF(0.5, 9) }));
    return image;
}

class ManyMarkers : public MvMarkerPresenter
{
public:
    ManyMarkers()
        : MvMarkerPresenter(nullptr, nullptr)
    {
        const QList<QColor> palette = markerPalette();
        for (int i = 0; i < palette.size(); ++i)
            addMarkerImage(i, flag(palette.at(i)), flag(palette.at(i).lighter(135)), flag(palette.at(i).darker(120)));
        spread(0);
    }
    // Markers evenly over the strip, the colours in turn, shifted by `offset` pixels.
    void spread(int offset)
    {
        markers.clear();
        for (int i = 0; i < kMarkers; ++i)
            markers.append({ offset + int(qint64(i) * kWidth / kMarkers), i % 8 });
    }
    QList<MarkerItem> markerList() override { return markers; }
    QList<MarkerItem> markers;
};

// The host's side: it moves the hover highlight.
class HoverStrip : public MvMarkerWidget
{
public:
    using MvMarkerWidget::MvMarkerWidget;
    void hover(int index) { m_hoverIndex = index; }
};

void measureStrip(double dpr, bool ownBackground)
{
    ManyMarkers presenter;
    HoverStrip strip(&presenter, nullptr);
    strip.resize(kWidth, kHeight);
    if (ownBackground) {
        strip.setAutoFillBackground(true);
        QPalette palette = strip.palette();
        palette.setColor(QPalette::Window, QColor(0x1b, 0x1c, 0x20));
        strip.setPalette(palette);
    }
    QImage image = MvBench::targetImage(strip.size(), dpr);
    MvBench::FloorWidget floor(strip.size());
    const auto paintFloor = [&] { MvBench::renderInto(&floor, &image); };
    const QString what = QStringLiteral("marker strip @%1, %2 markers, %3")
                             .arg(dpr)
                             .arg(kMarkers)
                             .arg(ownBackground ? QStringLiteral("own background") : QStringLiteral("transparent"));
    const MvBench::Figure paint = MvBench::measureAgainst([&] { MvBench::renderInto(&strip, &image); }, paintFloor);
    if (dpr == 1.0)
        MvBench::report(what + QStringLiteral(", paint"), paint.milliseconds, paint.floorMilliseconds, kPaintGoal);
    else
        MvBench::report(what + QStringLiteral(", paint"), paint.milliseconds, paint.floorMilliseconds, QString());

    int hovered = 0;
    const MvBench::Figure hover = MvBench::measureAgainst(
        [&] {
            hovered = (hovered + 37) % kMarkers;
            strip.hover(hovered);
            MvBench::renderInto(&strip, &image);
        },
        paintFloor);
    MvBench::report(
        what + QStringLiteral(", hover moved + paint"), hover.milliseconds, hover.floorMilliseconds, QString());

    int offset = 0;
    const MvBench::Figure list = MvBench::measureAgainst(
        [&] {
            offset = (offset + 1) % 7;
            presenter.spread(offset);
            Q_EMIT presenter.signalMarkerCountChanged();
            MvBench::renderInto(&strip, &image);
        },
        paintFloor);
    MvBench::report(
        what + QStringLiteral(", list changed + paint"), list.milliseconds, list.floorMilliseconds, QString());
}

void markerStrip()
{
    for (double dpr : { 1.0, 2.0 }) {
        for (bool ownBackground : { false, true })
            measureStrip(dpr, ownBackground);
    }
}

}

void registerMarkerBenchmarks()
{
    MvBench::registerGroup("marker strip", &markerStrip);
}
