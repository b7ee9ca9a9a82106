// The ruler and the render strip are painted from prepared pixels (label tiles, rows of tick
// pixels, device-pixel runs) instead of drawing every text and filling one QPainterPath. These
// tests paint both ways and compare every pixel.

#include "MvRulerModel.h"
#include "MvRulerPainter_p.h"
#include "MvScreen.h"
#include "MvSkinStyle.h"
#include "MvStripPainter_p.h"
#include "MvTimelineRulerPresenter.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QtTest>

namespace {

constexpr int kWidth = 960;
constexpr int kHeight = 28;
// The images are wider than the ruler, so that what is drawn beyond its edges shows.
constexpr int kImageWidth = kWidth + 80;

QImage blankImage(int width, int height, double dpr)
{
    QImage image(qCeil(width * dpr), qCeil(height * dpr), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::black);
    return image;
}

// How wide the labels of a ruler in this font must be for time codes of `characters`
// characters: the digits at the widest digit's advance, the three colons at theirs.
int wholeLabelWidth(const QPainter& painter, int characters)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    double digit = 0.0;
    for (const QChar c : QStringLiteral("0123456789"))
        digit = std::max(digit, metrics.horizontalAdvance(c));
    return qCeil((characters - 3) * digit + 3 * metrics.horizontalAdvance(QLatin1Char(':')));
}

// The ruler drawn as it always was: the ticks gathered in one path, written out straight from
// the ruler's numbers rather than through the library's layout. Each label is drawn whole: cut
// only to its band of rows, never at its right edge, so that a rectangle too narrow for its
// text shows as a difference.
void paintReferenceRuler(QPainter& painter, const QRect& rect, const QBrush& background, IMvTimelineRuler* ruler)
{
    const int dy = MvScreen::isPixelRatio25_75() ? -2 : 0;
    painter.fillRect(rect, background);
    const QColor ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary());
    painter.setPen(ink);
    const int h = rect.height();
    const qint64 start = ruler->visibleStartFrame();
    const double spacing = ruler->tickSpacing();
    const qint64 step = ruler->framesPerTick();
    int num = 0;
    int den = 0;
    ruler->frameRate(&num, &den);
    QVector<QPair<QRectF, QString>> labels;
    QPainterPath path;
    const auto layOut = [&](int characters) {
        labels.clear();
        path = QPainterPath();
        const int labelW = wholeLabelWidth(painter, characters);
        const int labelEvery = (1 - int(labelW / (spacing * -5.0))) * 5;
        qint64 frame = start;
        double x = 0.0;
        if (start % step != 0) {
            frame = (qint64(int(start / step)) + 1) * step;
            x = double(frame - start) * spacing / double(step);
        }
        double lastLabelRight = -1.0;
        int longest = 0;
        for (; x <= rect.width(); x += spacing, frame += step) {
            const int tick = int(frame / step);
            const QRectF label(x - labelW / 2, h + dy - 25, labelW, 15.0);
            if (tick % 5 == 0 && tick % labelEvery == 0
                && !(lastLabelRight >= 0 && label.left() - lastLabelRight < 5.0)) {
                labels.append({ label, MvTimelineRulerPresenter::formatTimecode(int(frame), num, den) });
                longest = std::max(longest, int(labels.constLast().second.size()));
                lastLabelRight = label.right();
            }
            path.addRect(
                QRectF(int(x), (tick % 5 == 0 ? h - 10 : h - 5) + dy, 1.0 / MvScreen::devicePixelRatio(), h + dy));
        }
        return longest;
    };
    // Past a hundred hours the time codes grow a digit, and every label with them.
    for (int characters = 11, longest = layOut(characters); longest > characters; longest = layOut(characters))
        characters = longest;
    for (const QPair<QRectF, QString>& label : qAsConst(labels)) {
        painter.save();
        painter.setClipRect(QRectF(-1.0e5, label.first.top(), 2.0e5, label.first.height()), Qt::IntersectClip);
        painter.drawText(label.first, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, label.second);
        painter.restore();
    }
    painter.fillPath(path, ink);
}

// A ruler of `total` frames at 29.97, zoomed by `zoomSteps` around `current`.
void setUpRuler(MvRulerModel* ruler, qint64 total, int zoomSteps, qint64 current)
{
    ruler->setFrameRate(30000, 1001);
    ruler->setViewWidth(kWidth);
    ruler->setTotalFrames(total);
    ruler->setCurrentFrame(current);
    ruler->zoom(zoomSteps);
    ruler->moveCurrentFrameToCenter();
}

// How a painter is set up before the ruler paints: moved by a fraction of a pixel, clipped.
struct PainterSetup
{
    double offset = 0.0;
    QRect clip; // none when null
    bool antialiased = false;
    int fontPixels = 0; // the label font's pixel size; 0 keeps the default font
    void apply(QPainter* painter) const
    {
        if (fontPixels > 0) {
            QFont font = painter->font();
            font.setPixelSize(fontPixels);
            painter->setFont(font);
        }
        painter->translate(offset, 0);
        if (!clip.isNull())
            painter->setClipRect(clip);
        painter->setRenderHint(QPainter::Antialiasing, antialiased);
    }
};

QImage referenceRuler(double dpr, const PainterSetup& setup, const QBrush& background, IMvTimelineRuler* ruler)
{
    QImage image = blankImage(kImageWidth, kHeight, dpr);
    QPainter painter(&image);
    setup.apply(&painter);
    paintReferenceRuler(painter, QRect(0, 0, kWidth, kHeight), background, ruler);
    return image;
}

QImage fastRuler(
    double dpr, const PainterSetup& setup, const QBrush& background, IMvTimelineRuler* ruler, MvRulerPaintCache* cache)
{
    QImage image = blankImage(kImageWidth, kHeight, dpr);
    QPainter painter(&image);
    setup.apply(&painter);
    MvRulerPainter::paint(painter, QRect(0, 0, kWidth, kHeight), background, ruler, *cache);
    return image;
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
    void stripPaintEqualsThePathFill_data();
    void stripPaintEqualsThePathFill();
    void stripWithManyRunsPaintsOneRowOfPixels_data();
    void stripWithManyRunsPaintsOneRowOfPixels();
    void labelsAreCopiedOnlyWhereTheyComeOutTheSame_data();
    void labelsAreCopiedOnlyWhereTheyComeOutTheSame();
    void labelCacheStaysBoundedWhileScrolling();
};

void tst_MvRulerPainting::fastPaintEqualsThePathFill_data()
{
    QTest::addColumn<double>("dpr");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<int>("zoomSteps");
    QTest::addColumn<qint64>("current");
    QTest::addColumn<double>("offset"); // of the widget in its window, in logical pixels
    QTest::addColumn<int>("fontPixels"); // 0: the default font
    for (double dpr : { 1.0, 1.25, 1.75, 2.0 }) {
        const QByteArray scale = QByteArray::number(dpr);
        QTest::addRow("%s minute zoomed out", scale.constData()) << dpr << qint64(1800) << 0 << qint64(0) << 0.0 << 0;
        QTest::addRow("%s frame by frame", scale.constData())
            << dpr << qint64(1800) << -1000 << qint64(1333) << 0.0 << 0;
        QTest::addRow("%s ten hours", scale.constData()) << dpr << qint64(1080000) << 0 << qint64(0) << 0.0 << 0;
        QTest::addRow("%s ten hours mid", scale.constData())
            << dpr << qint64(1080000) << -300 << qint64(512345) << 0.0 << 0;
        QTest::addRow("%s shifted widget", scale.constData()) << dpr << qint64(1800) << -120 << qint64(901) << 0.4 << 0;
        QTest::addRow("%s labels over both edges", scale.constData())
            << dpr << qint64(1800) << 0 << qint64(0) << 40.4 << 0;
        // Fonts whose digits draw wider than the ink box of "00:00:00:00" measures: a label as
        // wide as that box loses the end of its last digit.
        QTest::addRow("%s 10 px labels", scale.constData()) << dpr << qint64(1800) << -120 << qint64(901) << 0.0 << 10;
        QTest::addRow("%s 13 px labels", scale.constData()) << dpr << qint64(1800) << -120 << qint64(901) << 0.3 << 13;
        // 99:59:59:29 and 100:00:00:00 at 29.97 fps side by side: all labels take the longer width.
        QTest::addRow("%s across a hundred hours", scale.constData())
            << dpr << qint64(11000000) << -300 << qint64(10789200) << 0.0 << 11;
    }
}

void tst_MvRulerPainting::fastPaintEqualsThePathFill()
{
    QFETCH(double, dpr);
    QFETCH(qint64, total);
    QFETCH(int, zoomSteps);
    QFETCH(qint64, current);
    QFETCH(double, offset);
    QFETCH(int, fontPixels);
    MvScreen::setDevicePixelRatio(dpr);
    MvRulerModel ruler;
    setUpRuler(&ruler, total, zoomSteps, current);

    // The ruler, three times with one cache: labels are drawn as text the first time they show
    // and copied from tiles from the second time on.
    PainterSetup setup;
    setup.offset = offset;
    setup.fontPixels = fontPixels;
    const QImage reference = referenceRuler(dpr, setup, Qt::darkGray, &ruler);
    MvRulerPaintCache cache;
    for (int paint = 0; paint < 3; ++paint)
        compareEveryPixel(fastRuler(dpr, setup, Qt::darkGray, &ruler, &cache), reference);
    QVERIFY(cache.layout.ticks.size() > 20);
    QVERIFY(!cache.layout.labels.isEmpty());
    QVERIFY(cache.labels.tilesCopied() > 0);
}

void tst_MvRulerPainting::stripPaintEqualsThePathFill_data()
{
    fastPaintEqualsThePathFill_data();
}

void tst_MvRulerPainting::stripPaintEqualsThePathFill()
{
    QFETCH(double, dpr);
    QFETCH(qint64, total);
    QFETCH(int, zoomSteps);
    QFETCH(qint64, current);
    QFETCH(double, offset);
    MvScreen::setDevicePixelRatio(dpr);
    MvRulerModel ruler;
    setUpRuler(&ruler, total, zoomSteps, current);

    // The render strip over random stretches, some of them reversed, many sharing device pixels.
    constexpr int stripHeight = 6;
    QRandomGenerator random(42);
    MvStripRuns strip;
    QPainterPath paths[2];
    for (int i = 0; i < 3000; ++i) {
        const qint64 start = qint64(random.bounded(int(total)));
        const qint64 end = start + random.bounded(200) - 5;
        const int kind = random.bounded(2); // 1: still to render
        if (end < start)
            continue;
        const MvPixelSpan span { ruler.frameToPixel(start), ruler.frameToPixel(end) };
        (kind == 0 ? strip.finishedSpans() : strip.unfinishedSpans()).append(span);
        paths[kind].addRect(QRectF(span.x0, 0, span.x1 - span.x0, stripHeight));
        paths[kind].setFillRule(Qt::WindingFill);
    }
    strip.rebuild(1.0); // the paint works the runs out again for the image's scale and offset
    // Opaque colours, and colours one sees through (the finished one shows under the unfinished one).
    for (int alpha : { 255, 150 }) {
        const QColor colors[2] = { QColor(40, 160, 90, alpha), QColor(200, 70, 60, alpha) };
        QImage fast = blankImage(kWidth + 1, stripHeight, dpr);
        QImage reference = fast;
        QPainter fastPainter(&fast);
        QPainter referencePainter(&reference);
        fastPainter.translate(offset, 0);
        referencePainter.translate(offset, 0);
        strip.paint(fastPainter, kWidth, stripHeight, colors[0], colors[1]);
        referencePainter.setPen(Qt::NoPen);
        referencePainter.fillPath(paths[0], colors[0]); // unfinished over finished
        referencePainter.fillPath(paths[1], colors[1]);
        fastPainter.end();
        referencePainter.end();
        compareEveryPixel(fast, reference);
    }
    QVERIFY(!strip.runs().isEmpty());
}

void tst_MvRulerPainting::stripWithManyRunsPaintsOneRowOfPixels_data()
{
    QTest::addColumn<double>("dpr");
    QTest::addColumn<int>("alpha");
    for (double dpr : { 1.0, 1.25, 2.0 }) {
        QTest::addRow("%s opaque", QByteArray::number(dpr).constData()) << dpr << 255;
        QTest::addRow("%s see-through", QByteArray::number(dpr).constData()) << dpr << 150;
    }
}

// Pixels that change state every column: with opaque colours the strip paints each column's
// final colour in one row of pixels; colours one sees through take a rectangle per run. Both
// give the pixels of the two path fills.
void tst_MvRulerPainting::stripWithManyRunsPaintsOneRowOfPixels()
{
    QFETCH(double, dpr);
    QFETCH(int, alpha);
    constexpr int stripHeight = 6;
    MvStripRuns strip;
    QPainterPath paths[2];
    for (int x = 0; x < 300; ++x) {
        if (x % 10 == 9)
            continue; // a gap
        for (int kind : { 0, 1 }) {
            if (x % 3 == kind || x % 3 == 2) { // finished, to render, both
                (kind == 0 ? strip.finishedSpans() : strip.unfinishedSpans()).append({ x, x + 1 });
                paths[kind].addRect(QRectF(x, 0, 1, stripHeight));
            }
        }
    }
    strip.rebuild(1.0);
    QVERIFY(strip.runs().size() > 100);
    const QColor colors[2] = { QColor(40, 160, 90, alpha), QColor(200, 70, 60, alpha) };
    QImage fast = blankImage(320, stripHeight, dpr);
    QImage reference = fast;
    QPainter fastPainter(&fast);
    QPainter referencePainter(&reference);
    fastPainter.translate(3.4, 0);
    referencePainter.translate(3.4, 0);
    strip.paint(fastPainter, 310, stripHeight, colors[0], colors[1]);
    referencePainter.setPen(Qt::NoPen);
    referencePainter.fillPath(paths[0], colors[0]);
    referencePainter.fillPath(paths[1], colors[1]);
    fastPainter.end();
    referencePainter.end();
    compareEveryPixel(fast, reference);
    QCOMPARE(strip.lastMethod(), alpha == 255 ? MvStripRuns::Row : MvStripRuns::Rectangles);
}

void tst_MvRulerPainting::labelsAreCopiedOnlyWhereTheyComeOutTheSame_data()
{
    QTest::addColumn<double>("dpr");
    QTest::addColumn<QBrush>("background");
    QTest::addColumn<QRect>("clip");
    QTest::addColumn<bool>("antialiased");
    QTest::addColumn<bool>("copies"); // whether any label is to be copied
    QLinearGradient gradient(0, 0, kWidth, 0);
    gradient.setColorAt(0, Qt::darkGray);
    gradient.setColorAt(1, Qt::darkBlue);
    for (double dpr : { 1.0, 1.5, 2.0 }) {
        const QByteArray scale = QByteArray::number(dpr);
        QTest::addRow("%s clipped to a few columns", scale.constData())
            << dpr << QBrush(Qt::darkGray) << QRect(300, 0, 180, kHeight) << false << true;
        QTest::addRow("%s clipped across labels", scale.constData())
            << dpr << QBrush(Qt::darkGray) << QRect(331, 3, 97, 11) << false << true;
        QTest::addRow("%s see-through background", scale.constData())
            << dpr << QBrush(QColor(0, 0, 0, 128)) << QRect() << false << false;
        QTest::addRow("%s gradient background", scale.constData())
            << dpr << QBrush(gradient) << QRect() << false << false;
        QTest::addRow("%s antialiased painter", scale.constData())
            << dpr << QBrush(Qt::darkGray) << QRect() << true << false;
    }
}

// Copies need a background of one opaque colour under them and a plain raster target; a clip
// only limits what is drawn. Whatever is copied or drawn, the pixels are those of the text.
void tst_MvRulerPainting::labelsAreCopiedOnlyWhereTheyComeOutTheSame()
{
    QFETCH(double, dpr);
    QFETCH(QBrush, background);
    QFETCH(QRect, clip);
    QFETCH(bool, antialiased);
    QFETCH(bool, copies);
    MvScreen::setDevicePixelRatio(dpr);
    MvRulerModel ruler;
    setUpRuler(&ruler, 1080000, -300, 512345);
    PainterSetup setup;
    setup.clip = clip;
    setup.antialiased = antialiased;
    const QImage reference = referenceRuler(dpr, setup, background, &ruler);
    MvRulerPaintCache cache;
    int copied = 0;
    for (int paint = 0; paint < 3; ++paint) {
        compareEveryPixel(fastRuler(dpr, setup, background, &ruler, &cache), reference);
        copied += cache.labels.tilesCopied();
    }
    QCOMPARE(copied > 0, copies);
}

// Scrolling shows every label at new places; the cache forgets all but the labels of the last
// paint once it holds too many, and the ruler still looks as drawn from scratch.
void tst_MvRulerPainting::labelCacheStaysBoundedWhileScrolling()
{
    MvRulerModel ruler;
    setUpRuler(&ruler, 1080000, -300, 512345);
    const qint64 first = ruler.visibleStartFrame();
    const qint64 visible = ruler.visibleFrames();
    MvRulerPaintCache cache;
    int most = 0;
    for (int shift = 0; shift < 400; shift += 3) {
        ruler.setVisualRange(first + shift, first + shift + visible - 1);
        fastRuler(1.0, PainterSetup(), Qt::darkGray, &ruler, &cache);
        most = std::max(most, cache.labels.size());
    }
    QVERIFY(most > cache.layout.labels.size());
    QVERIFY(most <= MvRulerLabelCache::kCapacity + cache.layout.labels.size());
    compareEveryPixel(fastRuler(1.0, PainterSetup(), Qt::darkGray, &ruler, &cache),
        referenceRuler(1.0, PainterSetup(), Qt::darkGray, &ruler));
}

QTEST_MAIN(tst_MvRulerPainting)
#include "tst_MvRulerPainting.moc"
