// The marker strip paints from a layer of its markers drawn earlier. These tests paint a run of
// scenes both ways, from the layer and marker by marker as the strip always drew them, and
// compare the pixels.

#include "MvMarkerPresenter.h"
#include "MvMarkerStripPainter_p.h"
#include "MvMarkerWidget.h"

#include <QPaintEngine>
#include <QPainter>
#include <QtTest>

#include <functional>

using Method = MvMarkerStripPainter::Method;
using Change = std::function<void(MvMarkerStripScene*)>;

Q_DECLARE_METATYPE(Change)

namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 16;
const QColor kUnder(20, 40, 90); // what lies under the strip
const QColor kOwnBackground(0x1b, 0x1c, 0x20);

QImage solid(const QColor& color)
{
    QImage image(11, 14, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

// A pennant with antialiased, semi-transparent edges, as hosts draw them.
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

class Presenter : public MvMarkerPresenter
{
public:
    explicit Presenter(bool flags)
        : MvMarkerPresenter(nullptr, nullptr)
    {
        const auto image = flags ? &flag : &solid;
        addMarkerImage(0, image(Qt::red), image(Qt::green), image(Qt::blue));
        addMarkerImage(1, image(Qt::yellow), image(Qt::cyan), image(Qt::magenta));
    }
    QList<MarkerItem> markerList() override { return {}; }
};

// Markers 4 px apart in two colours, so that neighbours overlap.
MvMarkerStripScene crowdedScene()
{
    MvMarkerStripScene scene;
    for (int i = 0; i < 40; ++i)
        scene.markers.append({ 3 + i * 4 + (i % 3), i % 2 });
    return scene;
}

// The strip as it always drew itself: every marker's image, in the scene's order.
void paintReference(QPainter& painter, MvMarkerPresenter& presenter, const MvMarkerStripScene& scene)
{
    const auto draw = [&](const QImage& image, int x) {
        if (!image.isNull())
            painter.drawImage(MvMarkerWidget::markerRect(x), image);
    };
    const int count = scene.markers.size();
    const bool hoverValid = scene.hoverIndex >= 0 && scene.hoverIndex < count;
    for (int i = 0; i < count; ++i) {
        const int colour = scene.markers.at(i).second;
        if (scene.floating && i == scene.hoverIndex)
            continue;
        draw(i == scene.hoverIndex ? presenter.horverMarkerImage(colour) : presenter.normalMarkerImage(colour),
            scene.markers.at(i).first);
    }
    if (scene.floating && hoverValid)
        draw(presenter.horverMarkerImage(scene.markers.at(scene.hoverIndex).second), scene.floatingX);
    if (scene.pressVisible && scene.pressIndex >= 0 && scene.pressIndex < count)
        draw(presenter.pressMarkerImage(scene.markers.at(scene.pressIndex).second), scene.floatingX);
}

struct Target
{
    double dpr = 1.0;
    QPointF offset; // of the strip in the image, logical pixels
    QRect clip; // the exposed part of the strip; the whole strip when null
    bool ownBackground = false;

    QImage paint(const std::function<void(QPainter&)>& draw) const
    {
        QImage image(qCeil((kWidth + 20) * dpr), qCeil((kHeight + 4) * dpr), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(dpr);
        image.fill(kUnder);
        QPainter painter(&image);
        painter.translate(offset);
        // A widget is painted clipped to itself (here: a marker's top row is above the strip).
        painter.setClipRect(clip.isNull() ? QRect(0, 0, kWidth, kHeight) : clip);
        if (ownBackground) // what Qt does before the paint event of a strip that fills its background
            painter.fillRect(QRect(0, 0, kWidth, kHeight), kOwnBackground);
        draw(painter);
        return image;
    }
};

// The largest difference of any colour channel between two images of the same size.
int largestDifference(const QImage& a, const QImage& b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max({ largest, qAbs(qRed(p) - qRed(q)), qAbs(qGreen(p) - qGreen(q)),
                qAbs(qBlue(p) - qBlue(q)), qAbs(qAlpha(p) - qAlpha(q)) });
        }
    }
    return largest;
}

// A paint device that only counts the images drawn on it and where.
class CountingEngine : public QPaintEngine
{
public:
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override { }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
    void drawImage(const QRectF& rect, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
        lefts.append(int(rect.left()));
    }
    Type type() const override { return QPaintEngine::User; }
    QList<int> lefts;
};

class CountingDevice : public QPaintDevice
{
public:
    QPaintEngine* paintEngine() const override { return &engine; }
    mutable CountingEngine engine;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return kWidth;
        case PdmHeight:
            return kHeight;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(QPaintDevice::devicePixelRatioFScale());
        default:
            return 1;
        }
    }
};

}

class tst_MvMarkerStripPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layerGivesThePixelsOfEachMarker_data();
    void layerGivesThePixelsOfEachMarker();
    void newImagesRedrawTheLayer();
    void onlyMarkersMeetingThePaintedAreaAreDrawn();
};

void tst_MvMarkerStripPainting::layerGivesThePixelsOfEachMarker_data()
{
    QTest::addColumn<double>("dpr");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<QRect>("clip");
    QTest::addColumn<bool>("ownBackground");
    QTest::addColumn<bool>("flags");
    QTest::addColumn<int>("tolerance"); // of a colour channel
    QTest::addColumn<bool>("layer"); // whether the strip is copied from its layer
    for (double dpr : { 1.0, 1.5, 2.0 }) {
        const QByteArray scale = QByteArray::number(dpr);
        QTest::addRow("%s own background, flags", scale.constData())
            << dpr << QPointF(4, 2) << QRect() << true << true << 0 << true;
        QTest::addRow("%s see-through, opaque images", scale.constData())
            << dpr << QPointF(4, 2) << QRect() << false << false << 0 << true;
        // Where two semi-transparent edges overlap, blending them first may round differently.
        QTest::addRow("%s see-through, flags", scale.constData())
            << dpr << QPointF(4, 2) << QRect() << false << true << 1 << true;
        QTest::addRow("%s exposed part only", scale.constData())
            << dpr << QPointF(4, 2) << QRect(37, 0, 23, 9) << true << true << 0 << true;
        QTest::addRow("%s moved by part of a pixel", scale.constData())
            << dpr << QPointF(4.3, 2) << QRect() << false << true << 0 << false;
    }
}

// A run of scenes (hover moving, floating, pressed, markers moved) painted one after another
// from the layer, each compared with drawing every marker; the layer is redrawn only when the
// markers change and patched around the markers concerned when the state changes.
void tst_MvMarkerStripPainting::layerGivesThePixelsOfEachMarker()
{
    QFETCH(double, dpr);
    QFETCH(QPointF, offset);
    QFETCH(QRect, clip);
    QFETCH(bool, ownBackground);
    QFETCH(bool, flags);
    QFETCH(int, tolerance);
    QFETCH(bool, layer);
    Presenter presenter(flags);
    QWidget strip;
    strip.resize(kWidth, kHeight);
    if (ownBackground) {
        strip.setAutoFillBackground(true);
        QPalette palette = strip.palette();
        palette.setColor(QPalette::Window, kOwnBackground);
        strip.setPalette(palette);
    }
    const Target target { dpr, offset, clip, ownBackground };
    MvMarkerStripPainter painter;
    MvMarkerStripScene scene = crowdedScene();
    const QList<QPair<Change, Method>> steps {
        { [](MvMarkerStripScene*) {}, Method::Redrawn },
        { [](MvMarkerStripScene*) {}, Method::Copied },
        { [](MvMarkerStripScene* s) { s->hoverIndex = 7; }, Method::Patched },
        { [](MvMarkerStripScene* s) { s->hoverIndex = 30; }, Method::Patched },
        { [](MvMarkerStripScene* s) {
             s->floating = true;
             s->floatingX = 64;
         },
            Method::Patched },
        { [](MvMarkerStripScene* s) { s->floatingX = 150; }, Method::Patched },
        { [](MvMarkerStripScene* s) {
             s->pressVisible = true;
             s->pressIndex = 3;
         },
            Method::Patched },
        { [](MvMarkerStripScene* s) { s->hoverIndex = 99; }, Method::Patched }, // beyond the list
        { [](MvMarkerStripScene* s) { s->markers[5].first += 9; }, Method::Redrawn },
    };
    for (int i = 0; i < steps.size(); ++i) {
        steps.at(i).first(&scene);
        const QImage fast = target.paint([&](QPainter& p) { painter.paint(p, strip, presenter, scene); });
        const QImage reference = target.paint([&](QPainter& p) { paintReference(p, presenter, scene); });
        const QString where = QStringLiteral("step %1").arg(i);
        QVERIFY2(largestDifference(fast, reference) <= tolerance, qPrintable(where));
        QCOMPARE(painter.lastMethod(), layer ? steps.at(i).second : Method::Direct);
    }
}

// Images the host swaps in are looked up at the next paint, which draws the layer anew.
void tst_MvMarkerStripPainting::newImagesRedrawTheLayer()
{
    Presenter presenter(false);
    QWidget strip;
    strip.resize(kWidth, kHeight);
    const Target target;
    MvMarkerStripPainter painter;
    const MvMarkerStripScene scene = crowdedScene();
    target.paint([&](QPainter& p) { painter.paint(p, strip, presenter, scene); });
    presenter.clearMarkerImages();
    presenter.addMarkerImage(0, solid(Qt::gray), solid(Qt::gray), solid(Qt::gray));
    const QImage fast = target.paint([&](QPainter& p) { painter.paint(p, strip, presenter, scene); });
    QCOMPARE(painter.lastMethod(), Method::Redrawn);
    QCOMPARE(fast, target.paint([&](QPainter& p) { paintReference(p, presenter, scene); }));
    QCOMPARE(fast.pixelColor(qRound(3 * target.dpr), qRound(4 * target.dpr)), QColor(Qt::gray));
}

// On a device whose pixels cannot be copied, markers are drawn one by one: those whose
// rectangles (x - 5 .. x + 5) meet the painted area, and no others.
void tst_MvMarkerStripPainting::onlyMarkersMeetingThePaintedAreaAreDrawn()
{
    Presenter presenter(false);
    QWidget strip;
    strip.resize(kWidth, kHeight);
    MvMarkerStripScene scene;
    for (int x = 0; x < kWidth; x += 10)
        scene.markers.append({ x, 0 });
    CountingDevice device;
    MvMarkerStripPainter painter;
    {
        QPainter p(&device);
        p.setClipRect(QRect(52, 0, 20, kHeight)); // meets the markers at 50 (to 55), 60, 70 (from 65)
        painter.paint(p, strip, presenter, scene);
    }
    QCOMPARE(painter.lastMethod(), Method::Direct);
    QCOMPARE(device.engine.lefts, QList<int>({ 45, 55, 65 }));
}

QTEST_MAIN(tst_MvMarkerStripPainting)
#include "tst_MvMarkerStripPainting.moc"
