#include "IMvShortcutEditManager.h"
#include "MvCustomEvent.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvRulerGesture_p.h"
#include "MvRulerModel.h"
#include "MvScreen.h"
#include "MvSkinStyle.h"

#include <QtTest>

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 28;

class CountingRuler : public MvPureTimelineRulerWidget
{
public:
    int paints = 0;
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        MvPureTimelineRulerWidget::paintEvent(event);
    }
};

// A ruler that notes every frame it is asked to show before it clamps it itself.
class RecordingRuler : public MvRulerModel
{
public:
    QList<qint64> requested;
    void setCurrentFrame(qint64 frame) override
    {
        requested.append(frame);
        MvRulerModel::setCurrentFrame(frame);
    }
};

// The widget over a recording ruler, through the constructor a host uses for its own ruler model.
class WidgetOverRecordingRuler : public MvPureTimelineRulerWidget
{
public:
    explicit WidgetOverRecordingRuler(RecordingRuler* ruler)
        : MvPureTimelineRulerWidget(ruler, nullptr)
    {
    }
};

void moveTo(QWidget* widget, int x, Qt::MouseButtons buttons = Qt::LeftButton)
{
    const QPoint pos(x, 20);
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

// The zoom ratio after zoom steps adding up to `delta`, as the ruler computes it.
float zoomedBy(float ratio, int delta)
{
    return float(ratio * std::exp2(-delta / MvRulerModel::kZoomUnitsPerDoubling));
}

}

class tst_MvPureTimelineRulerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void clicksSeekHandleDragsClampAndTheCursorTells();
    void framesLeftOfZeroAreClampedByTheWidget();
    void edgeScrolling_data();
    void edgeScrolling();
    void dragToZoomThresholds_data();
    void dragToZoomThresholds();
    void wheelZoomsWithTheSchemeModifier_data();
    void wheelZoomsWithTheSchemeModifier();
    void rulerChangesBecomeSignals();
    void paintedTicksAndLabels_data();
    void paintedTicksAndLabels();

private:
    // A one-minute ruler at 30 fps, 600 px wide: three frames a pixel.
    QScopedPointer<CountingRuler> m_widget;
    qint64 m_now = 0;
};

void tst_MvPureTimelineRulerWidget::init()
{
    MvScreen::setDevicePixelRatio(1.0);
    m_widget.reset(new CountingRuler);
    m_widget->resize(kWidth, kHeight);
    m_widget->setFramerate({ 30, 1 });
    m_widget->setTotalFrames(1800);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.data()));
    m_now = 0;
    m_widget->findChild<MvRulerGesture*>()->setClock([this] { return m_now; });
}

void tst_MvPureTimelineRulerWidget::clicksSeekHandleDragsClampAndTheCursorTells()
{
    QTest::mouseClick(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 20));
    QCOMPARE(m_widget->currentFrame(), qint64(900));
    QTest::mouseClick(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(306, 20)); // on the handle: no seek
    QCOMPARE(m_widget->currentFrame(), qint64(900));
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(294, 20));
    moveTo(m_widget.data(), -20);
    QCOMPARE(m_widget->currentFrame(), qint64(0));
    moveTo(m_widget.data(), kWidth + 50);
    QCOMPARE(m_widget->currentFrame(), qint64(1800));
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(kWidth + 50, 20));
    m_widget->setCurrentFramePixel(-40.0);
    QCOMPARE(m_widget->currentFrame(), qint64(0));
    // The cursor shows what a press would do: the handle is now at 0.
    moveTo(m_widget.data(), 7, Qt::NoButton);
    QCOMPARE(m_widget->cursor().shape(), Qt::ArrowCursor);
    moveTo(m_widget.data(), 8, Qt::NoButton);
    QCOMPARE(m_widget->cursor().shape(), Qt::SizeHorCursor);
}

void tst_MvPureTimelineRulerWidget::framesLeftOfZeroAreClampedByTheWidget()
{
    auto* ruler = new RecordingRuler;
    WidgetOverRecordingRuler widget(ruler);
    widget.resize(kWidth, kHeight);
    widget.setFramerate({ 30, 1 });
    widget.setTotalFrames(1800);
    widget.setCurrentFrame(900);
    ruler->requested.clear();

    widget.setCurrentFramePixel(-40.0);
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(widget.currentFramePixel(), 20));
    moveTo(&widget, -20);
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(-20, 20));

    // The ruler model is never asked for a frame before the start, whatever it would do with one.
    QVERIFY(!ruler->requested.isEmpty());
    QVERIFY2(std::all_of(ruler->requested.cbegin(), ruler->requested.cend(), [](qint64 f) { return f >= 0; }),
        qPrintable(QStringLiteral("asked for %1").arg(ruler->requested.first())));
}

void tst_MvPureTimelineRulerWidget::edgeScrolling_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("direction");
    QTest::newRow("left edge") << 5 << -1;
    QTest::newRow("left margin itself") << 10 << 0;
    QTest::newRow("right margin itself") << kWidth - 10 << 0;
    QTest::newRow("past the right margin") << kWidth - 9 << 1;
}

void tst_MvPureTimelineRulerWidget::edgeScrolling()
{
    QFETCH(int, x);
    QFETCH(int, direction);
    m_widget->ruler()->setVisualRange(600, 1200); // a frame a pixel
    m_widget->setCurrentFrame(900);
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 20));
    moveTo(m_widget.data(), x);
    const qint64 dragged = m_widget->currentFrame();
    m_widget->findChild<MvRulerGesture*>()->edgeScrollStep();
    QCOMPARE(m_widget->currentFrame(), dragged + direction * 30);
    if (direction != 0) // and the timer keeps stepping
        QTRY_VERIFY((m_widget->currentFrame() - dragged) * direction > 30);
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(x, 20));
}

void tst_MvPureTimelineRulerWidget::dragToZoomThresholds_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<int>("x"); // pressed at 350
    QTest::addColumn<bool>("zooms");
    QTest::newRow("dead time hides a long move") << qint64(200) << 310 << false;
    QTest::newRow("20 pixels at 300 ms") << qint64(300) << 330 << false;
    QTest::newRow("28 pixels at 300 ms") << qint64(300) << 322 << false;
    QTest::newRow("29 pixels left at 300 ms") << qint64(300) << 321 << true;
    QTest::newRow("29 pixels right at 300 ms") << qint64(300) << 379 << true;
    QTest::newRow("3 pixels at 400 ms") << qint64(400) << 347 << false;
    QTest::newRow("3 pixels at 401 ms") << qint64(401) << 347 << true;
}

void tst_MvPureTimelineRulerWidget::dragToZoomThresholds()
{
    QFETCH(qint64, elapsed);
    QFETCH(int, x);
    QFETCH(bool, zooms);
    m_widget->ruler()->setVisualRange(600, 1200); // a frame a pixel, room to zoom both ways
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(350, 20));
    m_now = elapsed;
    moveTo(m_widget.data(), x);
    QVERIFY(qAbs(m_widget->ruler()->zoomRatio() - (zooms ? zoomedBy(1.0f, 350 - x) : 1.0f)) < 1e-5f);
    m_now = 1000; // later every move zooms, by the distance from the last step
    moveTo(m_widget.data(), x - 3);
    QVERIFY(qAbs(m_widget->ruler()->zoomRatio() - zoomedBy(1.0f, 350 - x + 3)) < 1e-5f);
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(x - 3, 20));
    QCOMPARE(m_widget->currentFrame(), qint64(0)); // a zoom drag is no click
}

void tst_MvPureTimelineRulerWidget::wheelZoomsWithTheSchemeModifier_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("pixels");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<int>("zoom"); // 0: the event is ignored
    const int ctrl = Qt::ControlModifier;
    QTest::newRow("ctrl notch up") << 0 << ctrl << QPoint() << QPoint(0, 120) << -15;
    QTest::newRow("positive half rounds up") << 0 << ctrl << QPoint() << QPoint(0, 20) << -3;
    QTest::newRow("negative half rounds up") << 0 << ctrl << QPoint() << QPoint(0, -20) << 2;
    QTest::newRow("pixel delta wins") << 0 << ctrl << QPoint(0, 10) << QPoint(0, 120) << -10;
    QTest::newRow("plain wheel") << 0 << 0 << QPoint() << QPoint(0, 120) << 0;
    QTest::newRow("ctrl+shift is not ctrl") << 0 << (ctrl | int(Qt::ShiftModifier)) << QPoint() << QPoint(0, 120) << 0;
    QTest::newRow("scheme 2 ignores ctrl") << 2 << ctrl << QPoint() << QPoint(0, 120) << 0;
    QTest::newRow("scheme 2 alt is horizontal") << 2 << int(Qt::AltModifier) << QPoint() << QPoint(120, 0) << -15;
    QTest::newRow("horizontal half rounds up") << 2 << int(Qt::AltModifier) << QPoint() << QPoint(20, 0) << -3;
}

void tst_MvPureTimelineRulerWidget::wheelZoomsWithTheSchemeModifier()
{
    QFETCH(int, scheme);
    QFETCH(int, modifiers);
    QFETCH(QPoint, pixels);
    QFETCH(QPoint, angle);
    QFETCH(int, zoom);
    static_cast<MvShortcutEditManager*>(IMvShortcutEditManager::GetInstance())->setCurrentSchemeType(scheme);
    m_widget->ruler()->setVisualRange(0, 900); // two thirds of a pixel a frame
    m_widget->setCurrentFrame(800);
    QWheelEvent wheel(
        QPointF(), QPointF(), pixels, angle, Qt::NoButton, Qt::KeyboardModifiers(modifiers), Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_widget.data(), &wheel);
    QCOMPARE(wheel.isAccepted(), zoom != 0);
    QVERIFY(qAbs(m_widget->ruler()->zoomRatio() - zoomedBy(2.0f / 3, zoom)) < 1e-5f);
    QCOMPARE(qAbs(m_widget->frameToPixel(800) - kWidth / 2) <= 1, zoom != 0); // recentred
}

void tst_MvPureTimelineRulerWidget::rulerChangesBecomeSignals()
{
    QStringList seen;
    const auto record = [&](auto signal, const char* name) {
        connect(m_widget.data(), signal, this, [&seen, name] { seen.append(QLatin1String(name)); });
    };
    record(&MvPureTimelineRulerWidget::sigZoomChanged, "zoom");
    record(&MvPureTimelineRulerWidget::sigCurrentFrameChanged, "current");
    record(&MvPureTimelineRulerWidget::sigTotalFramesChanged, "total");
    record(&MvPureTimelineRulerWidget::sigFramerateChanged, "rate");
    record(&MvPureTimelineRulerWidget::sigMinVisualChanged, "minimum");
    record(&MvPureTimelineRulerWidget::sigVisualRangeChanged, "range");
    record(&MvPureTimelineRulerWidget::sigViewWidthChanged, "width");

    QCoreApplication::processEvents();
    m_widget->paints = 0;
    m_widget->setCurrentFrame(700); // in view: the ruler itself does not change
    QCoreApplication::processEvents();
    QCOMPARE(m_widget->paints, 0);
    m_widget->setFramerate({ 25, 1 });
    QTRY_VERIFY(m_widget->paints > 0);
    QVERIFY(!MvCustomEventDispatcher::instance().sendEvent(
        QStringLiteral("NotifyAdjustPropertyTimeLine"), { 45 })); // zooms in, not consumed
    m_widget->setTotalFrames(3600);
    m_widget->resize(800, kHeight);
    QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("current rate zoom range total minimum minimum range width"));
    m_widget.reset();
    QCOMPARE(MvCustomEventDispatcher::instance().listenerCount(QStringLiteral("NotifyAdjustPropertyTimeLine")), 0);
}

void tst_MvPureTimelineRulerWidget::paintedTicksAndLabels_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("lift");
    QTest::newRow("1.0") << 1.0 << 0;
    QTest::newRow("1.25") << 1.25 << 2;
    QTest::newRow("1.75") << 1.75 << 2;
}

void tst_MvPureTimelineRulerWidget::paintedTicksAndLabels()
{
    QFETCH(double, scale);
    QFETCH(int, lift);
    MvScreen::setDevicePixelRatio(scale);
    QFont font = m_widget->font();
    font.setPixelSize(5); // keeps the labels well clear of the ticks
    m_widget->setFont(font);
    m_widget->setPalette(QPalette(Qt::black));
    m_widget->ruler()->setVisualRange(0, 240); // 3 frames a tick, 7.5 px apart: majors at 0, 37.5, 75
    QImage image(m_widget->size(), QImage::Format_ARGB32_Premultiplied);
    m_widget->render(&image);

    // Majors are 10 px tall, minors 5 (the one at 7.5 drawn at 7), down to the bottom; the lift raises their tops.
    const QRgb ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary()).rgb();
    const QRgb black = QColor(Qt::black).rgb();
    QCOMPARE(image.pixel(0, kHeight - 1), ink);
    QCOMPARE(image.pixel(0, kHeight - 10 - lift), ink);
    QCOMPARE(image.pixel(0, kHeight - 11 - lift), black);
    QCOMPARE(image.pixel(7, kHeight - 5 - lift), ink);
    QCOMPARE(image.pixel(7, kHeight - 6 - lift), black);
    // Labels sit in the band above the ticks, centred on labelled majors, with gaps between them.
    // As wide as the time code draws: eight digits and three colons at their advances.
    const QFontMetricsF metrics(font, &image);
    const int labelWidth
        = qCeil(8 * metrics.horizontalAdvance(QLatin1Char('0')) + 3 * metrics.horizontalAdvance(QLatin1Char(':')));
    const int labelled = labelWidth < 37 ? 37 : 75; // every fifth or every tenth tick
    const auto inkInLabelBand = [&](int x0, int x1) {
        QImage blank(x1 - x0 + 1, 15, image.format());
        blank.fill(black);
        return image.copy(x0, kHeight - 25 - lift, x1 - x0 + 1, 15) != blank;
    };
    QVERIFY(inkInLabelBand(labelled - labelWidth / 2, labelled + labelWidth / 2));
    QVERIFY(!inkInLabelBand(labelWidth - labelWidth / 2 + 1, labelled - labelWidth / 2 - 1));
}

QTEST_MAIN(tst_MvPureTimelineRulerWidget)
#include "tst_MvPureTimelineRulerWidget.moc"
