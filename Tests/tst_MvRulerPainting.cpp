// The ruler and the render strip fill their rectangles one by one, snapped to device pixels,
// instead of filling one QPainterPath. These tests paint both ways and compare every pixel.

#include "IMvTimelineRenderService.h"
#include "Memory/MvMemoryRuler.h"
#include "MvRulerPainter_p.h"
#include "MvScreen.h"
#include "MvSkinStyle.h"
#include "MvTimelineRulerPresenter.h"

#include <QFontMetrics>
#include <QImage>
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
    painter.save();
    const QColor ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary());
    painter.setPen(ink);
    const int w = rect.width();
    const int h = rect.height();
    qint64 start = 0;
    qint64 end = 0;
    ruler->visualRange(&start, &end);
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
    const double tickWidth = 1.0 / MvScreen::devicePixelRatio();
    double lastLabelRight = -1.0;
    QPainterPath path;
    while (x <= w) {
        const int tick = int(frame / step);
        int top = h - 5;
        if (tick % 5 == 0) {
            top = h - 10;
            if (tick % labelEvery == 0) {
                const QRectF label(x - labelW / 2, h + dy - 25, labelW, 15.0);
                if (!(lastLabelRight >= 0 && label.left() - lastLabelRight < 5.0)) {
                    painter.drawText(label, Qt::AlignLeft | Qt::AlignTop,
                        MvTimelineRulerPresenter::formatTimecode(int(frame), num, den));
                    lastLabelRight = label.right();
                }
            }
        }
        path.addRect(QRectF(int(x), top + dy, tickWidth, h + dy));
        frame += step;
        x += spacing;
    }
    painter.fillPath(path, ink);
    painter.restore();
}

QString firstDifference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return QStringLiteral("sizes differ");
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                return QStringLiteral("device pixel (%1, %2): %3 against %4")
                    .arg(x)
                    .arg(y)
                    .arg(a.pixel(x, y), 8, 16)
                    .arg(b.pixel(x, y), 8, 16);
            }
        }
    }
    return QString();
}

MvRenderSegment randomSegment(QRandomGenerator& random, qint64 total)
{
    const qint64 start = qint64(random.bounded(int(total)));
    const qint64 length = qint64(random.bounded(200)) - 5; // some reversed, some single frames
    return { start, start + length, random.bounded(3) == 0 ? quint64(1) << 32 | 1u : quint64(random.bounded(2)) };
}

}

class tst_MvRulerPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void rulerPixelsEqualThePathFill_data();
    void rulerPixelsEqualThePathFill();
    void stripPixelsEqualThePathFill_data();
    void stripPixelsEqualThePathFill();
    void snappingMatchesSingleRectanglesAnywhere();
};

void tst_MvRulerPainting::cleanup()
{
    MvScreen::setDevicePixelRatio(0.0);
}

void tst_MvRulerPainting::rulerPixelsEqualThePathFill_data()
{
    QTest::addColumn<double>("dpr");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<int>("zoomSteps");
    QTest::addColumn<qint64>("current");
    QTest::addColumn<double>("offset");

    const QList<double> ratios { 1.0, 1.25, 1.75, 2.0 };
    for (double dpr : ratios) {
        const QByteArray scale = QByteArray::number(dpr);
        QTest::newRow(QByteArray(scale + " minute zoomed out").constData())
            << dpr << qint64(1800) << 0 << qint64(0) << 0.0;
        QTest::newRow(QByteArray(scale + " minute half way").constData())
            << dpr << qint64(1800) << -60 << qint64(777) << 0.0;
        QTest::newRow(QByteArray(scale + " minute zoomed in").constData())
            << dpr << qint64(1800) << -1000 << qint64(1333) << 0.0;
        QTest::newRow(QByteArray(scale + " ten hours zoomed out").constData())
            << dpr << qint64(1080000) << 0 << qint64(0) << 0.0;
        QTest::newRow(QByteArray(scale + " ten hours mid").constData())
            << dpr << qint64(1080000) << -300 << qint64(512345) << 0.0;
        QTest::newRow(QByteArray(scale + " ten hours zoomed in").constData())
            << dpr << qint64(1080000) << -2000 << qint64(1079000) << 0.0;
        QTest::newRow(QByteArray(scale + " shifted widget").constData())
            << dpr << qint64(1800) << -120 << qint64(901) << 0.4;
    }
}

void tst_MvRulerPainting::rulerPixelsEqualThePathFill()
{
    QFETCH(double, dpr);
    QFETCH(qint64, total);
    QFETCH(int, zoomSteps);
    QFETCH(qint64, current);
    QFETCH(double, offset);
    MvScreen::setDevicePixelRatio(dpr);

    MvMemoryRuler ruler;
    ruler.setFrameRate(30000, 1001);
    ruler.setViewWidth(kWidth);
    ruler.setTotalFrames(total);
    ruler.setCurrentFrame(current);
    ruler.zoom(zoomSteps);
    ruler.moveCurrentFrameToCenter();

    const QRect rect(0, 0, kWidth, kHeight);
    QImage fast = blankImage(kWidth + 1, kHeight, dpr);
    QImage reference = fast;
    MvRulerLayout scratch;
    {
        QPainter painter(&fast);
        painter.translate(offset, 0);
        MvRulerPainter::paint(painter, rect, Qt::darkGray, &ruler, scratch);
    }
    {
        QPainter painter(&reference);
        painter.translate(offset, 0);
        paintReferenceRuler(painter, rect, &ruler);
    }
    QVERIFY(scratch.ticks.size() > 20);
    QVERIFY(!scratch.labels.isEmpty());
    const QString difference = firstDifference(fast, reference);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void tst_MvRulerPainting::stripPixelsEqualThePathFill_data()
{
    QTest::addColumn<double>("dpr");
    QTest::addColumn<int>("zoomSteps");
    for (double dpr : { 1.0, 1.25, 1.75, 2.0 }) {
        const QByteArray scale = QByteArray::number(dpr);
        QTest::newRow(QByteArray(scale + " zoomed out").constData()) << dpr << 0;
        QTest::newRow(QByteArray(scale + " zoomed in").constData()) << dpr << -150;
        QTest::newRow(QByteArray(scale + " frame by frame").constData()) << dpr << -1000;
    }
}

void tst_MvRulerPainting::stripPixelsEqualThePathFill()
{
    QFETCH(double, dpr);
    QFETCH(int, zoomSteps);
    constexpr int stripHeight = 6;
    MvMemoryRuler ruler;
    ruler.setViewWidth(kWidth);
    ruler.setTotalFrames(30 * 600);
    ruler.setCurrentFrame(9000);
    ruler.zoom(zoomSteps);

    QRandomGenerator random(42);
    QVector<MvPixelSpan> finished;
    QVector<MvPixelSpan> unfinished;
    QPainterPath finishedPath;
    QPainterPath unfinishedPath;
    finishedPath.setFillRule(Qt::WindingFill);
    unfinishedPath.setFillRule(Qt::WindingFill);
    for (int i = 0; i < 3000; ++i) {
        const MvRenderSegment segment = randomSegment(random, ruler.totalFrames());
        if (segment.end < segment.start)
            continue;
        const MvPixelSpan span { ruler.frameToPixel(segment.start), ruler.frameToPixel(segment.end) };
        const QRectF rect(span.x0, 0, span.x1 - span.x0, stripHeight);
        const bool pending = quint32(segment.unfinished) != 0;
        (pending ? unfinished : finished).append(span);
        (pending ? unfinishedPath : finishedPath).addRect(rect);
    }
    MvStripPainter::mergeSpans(&finished);
    MvStripPainter::mergeSpans(&unfinished);
    QVERIFY(!finished.isEmpty());
    QVERIFY(!unfinished.isEmpty());

    const QColor done(40, 160, 90);
    const QColor pending(200, 70, 60);
    QImage fast = blankImage(kWidth, stripHeight, dpr);
    QImage reference = fast;
    {
        QPainter painter(&fast);
        MvStripPainter::fillSpans(painter, finished, kWidth, stripHeight, done);
        MvStripPainter::fillSpans(painter, unfinished, kWidth, stripHeight, pending);
    }
    {
        QPainter painter(&reference);
        painter.setPen(Qt::NoPen);
        painter.fillPath(finishedPath, done);
        painter.fillPath(unfinishedPath, pending);
    }
    const QString difference = firstDifference(fast, reference);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void tst_MvRulerPainting::snappingMatchesSingleRectanglesAnywhere()
{
    // One rectangle at a time, at random fractional places and scales: the snapped fill covers
    // the same device pixels as the path fill.
    QRandomGenerator random(7);
    for (int i = 0; i < 400; ++i) {
        const double scale = 1.0 + random.bounded(1.5);
        const double dx = random.bounded(3.0);
        const double x = random.bounded(20.0);
        const double width = random.bounded(4.0);
        QImage fast(48, 12, QImage::Format_ARGB32_Premultiplied);
        fast.fill(Qt::black);
        QImage reference = fast;
        MvRulerLayout layout;
        MvRulerTick tick;
        tick.left = int(x);
        tick.top = 2;
        tick.major = true;
        layout.ticks.append(tick);
        {
            QPainter painter(&fast);
            painter.translate(dx, 0.3);
            painter.scale(scale, scale);
            MvRulerPainter::fillTicks(painter, layout, width, 4, 0, Qt::white);
        }
        {
            QPainter painter(&reference);
            painter.translate(dx, 0.3);
            painter.scale(scale, scale);
            QPainterPath path;
            path.addRect(QRectF(tick.left, 2, width, 4));
            painter.fillPath(path, Qt::white);
        }
        const QString difference = firstDifference(fast, reference);
        QVERIFY2(difference.isEmpty(),
            qPrintable(QStringLiteral("scale %1 dx %2 x %3 w %4: ").arg(scale).arg(dx).arg(x).arg(width) % difference));
    }
}

QTEST_MAIN(tst_MvRulerPainting)
#include "tst_MvRulerPainting.moc"
