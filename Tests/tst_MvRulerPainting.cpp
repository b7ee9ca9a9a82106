// The ruler and the render strip fill their rectangles one by one, snapped to device pixels,
// instead of filling one QPainterPath. These tests paint both ways and compare every pixel.

#include "MvRulerModel.h"
#include "MvRulerPainter_p.h"
#include "MvScreen.h"
#include "MvSkinStyle.h"
#include "MvTimelineRulerPresenter.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QtTest>

namespace {

constexpr int kWidth = 960;
constexpr int kHeight = 28;

QImage blankImage(int width, int height, double dpr)
{
    QImage image(qCeil(width * dpr), qCeil(height * dpr), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::black);
    return image;
}

// The ruler drawn as it always was: the ticks gathered in one path, written out straight from
// the ruler's numbers rather than through the library's layout.
void paintReferenceRuler(QPainter& painter, const QRect& rect, IMvTimelineRuler* ruler)
{
    const int dy = MvScreen::isPixelRatio25_75() ? -2 : 0;
    painter.fillRect(rect, Qt::darkGray);
    const QColor ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary());
    painter.setPen(ink);
    const int h = rect.height();
    const qint64 start = ruler->visibleStartFrame();
    const double spacing = ruler->tickSpacing();
    const qint64 step = ruler->framesPerTick();
    qint64 frame = start;
    double x = 0.0;
    if (start % step != 0) {
        frame = (qint64(int(start / step)) + 1) * step;
        x = double(frame - start) * spacing / double(step);
    }
    const int labelW = QFontMetrics(painter.font()).boundingRect(QStringLiteral("00:00:00:00")).width();
    const int labelEvery = (1 - int(labelW / (spacing * -5.0))) * 5;
    int num = 0;
    int den = 0;
    ruler->frameRate(&num, &den);
    double lastLabelRight = -1.0;
    QPainterPath path;
    for (; x <= rect.width(); x += spacing, frame += step) {
        const int tick = int(frame / step);
        const QRectF label(x - labelW / 2, h + dy - 25, labelW, 15.0);
        if (tick % 5 == 0 && tick % labelEvery == 0 && !(lastLabelRight >= 0 && label.left() - lastLabelRight < 5.0)) {
            painter.drawText(
                label, Qt::AlignLeft | Qt::AlignTop, MvTimelineRulerPresenter::formatTimecode(int(frame), num, den));
            lastLabelRight = label.right();
        }
        path.addRect(QRectF(int(x), (tick % 5 == 0 ? h - 10 : h - 5) + dy, 1.0 / MvScreen::devicePixelRatio(), h + dy));
    }
    painter.fillPath(path, ink);
}

void compareEveryPixel(const QImage& fast, const QImage& reference)
{
    QCOMPARE(fast.size(), reference.size());
    for (int y = 0; y < fast.height(); ++y) {
        for (int x = 0; x < fast.width(); ++x) {
            if (fast.pixel(x, y) != reference.pixel(x, y))
                QFAIL(qPrintable(QStringLiteral("device pixel (%1, %2) differs").arg(x).arg(y)));
        }
    }
}

}

class tst_MvRulerPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MvScreen::setDevicePixelRatio(0.0); }
    void fastPaintEqualsThePathFill_data();
    void fastPaintEqualsThePathFill();
};

void tst_MvRulerPainting::fastPaintEqualsThePathFill_data()
{
    QTest::addColumn<double>("dpr");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<int>("zoomSteps");
    QTest::addColumn<qint64>("current");
    QTest::addColumn<double>("offset"); // of the widget in its window, in logical pixels
    for (double dpr : { 1.0, 1.25, 1.75, 2.0 }) {
        const QByteArray scale = QByteArray::number(dpr);
        QTest::addRow("%s minute zoomed out", scale.constData()) << dpr << qint64(1800) << 0 << qint64(0) << 0.0;
        QTest::addRow("%s frame by frame", scale.constData()) << dpr << qint64(1800) << -1000 << qint64(1333) << 0.0;
        QTest::addRow("%s ten hours", scale.constData()) << dpr << qint64(1080000) << 0 << qint64(0) << 0.0;
        QTest::addRow("%s ten hours mid", scale.constData()) << dpr << qint64(1080000) << -300 << qint64(512345) << 0.0;
        QTest::addRow("%s shifted widget", scale.constData()) << dpr << qint64(1800) << -120 << qint64(901) << 0.4;
    }
}

void tst_MvRulerPainting::fastPaintEqualsThePathFill()
{
    QFETCH(double, dpr);
    QFETCH(qint64, total);
    QFETCH(int, zoomSteps);
    QFETCH(qint64, current);
    QFETCH(double, offset);
    MvScreen::setDevicePixelRatio(dpr);
    MvRulerModel ruler;
    ruler.setFrameRate(30000, 1001);
    ruler.setViewWidth(kWidth);
    ruler.setTotalFrames(total);
    ruler.setCurrentFrame(current);
    ruler.zoom(zoomSteps);
    ruler.moveCurrentFrameToCenter();

    // The ruler.
    QImage fast = blankImage(kWidth + 1, kHeight, dpr);
    QImage reference = fast;
    MvRulerLayout scratch;
    QPainter fastPainter(&fast);
    QPainter referencePainter(&reference);
    fastPainter.translate(offset, 0);
    referencePainter.translate(offset, 0);
    MvRulerPainter::paint(fastPainter, QRect(0, 0, kWidth, kHeight), Qt::darkGray, &ruler, scratch);
    paintReferenceRuler(referencePainter, QRect(0, 0, kWidth, kHeight), &ruler);
    fastPainter.end();
    referencePainter.end();
    QVERIFY(scratch.ticks.size() > 20);
    QVERIFY(!scratch.labels.isEmpty());
    compareEveryPixel(fast, reference);

    // The render strip over random stretches, some of them reversed.
    constexpr int stripHeight = 6;
    QRandomGenerator random(42);
    QVector<MvPixelSpan> spans[2];
    QPainterPath paths[2];
    for (int i = 0; i < 3000; ++i) {
        const qint64 start = qint64(random.bounded(int(total)));
        const qint64 end = start + random.bounded(200) - 5;
        const int kind = random.bounded(2); // 1: still to render
        if (end < start)
            continue;
        const MvPixelSpan span { ruler.frameToPixel(start), ruler.frameToPixel(end) };
        spans[kind].append(span);
        paths[kind].addRect(QRectF(span.x0, 0, span.x1 - span.x0, stripHeight));
    }
    const QColor colors[2] = { QColor(40, 160, 90), QColor(200, 70, 60) };
    fast = blankImage(kWidth + 1, stripHeight, dpr);
    reference = fast;
    fastPainter.begin(&fast);
    referencePainter.begin(&reference);
    fastPainter.translate(offset, 0);
    referencePainter.translate(offset, 0);
    referencePainter.setPen(Qt::NoPen);
    for (int kind : { 0, 1 }) { // unfinished over finished
        MvStripPainter::mergeSpans(&spans[kind]);
        MvStripPainter::fillSpans(fastPainter, spans[kind], kWidth, stripHeight, colors[kind]);
        paths[kind].setFillRule(Qt::WindingFill);
        referencePainter.fillPath(paths[kind], colors[kind]);
    }
    fastPainter.end();
    referencePainter.end();
    compareEveryPixel(fast, reference);
}

QTEST_MAIN(tst_MvRulerPainting)
#include "tst_MvRulerPainting.moc"
