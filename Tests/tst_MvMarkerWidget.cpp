#include "MvColorProbe.h"
#include "MvMarkerPresenter.h"
#include "MvMarkerWidget.h"

#include <QtTest>

namespace {
QImage solid(const QColor& color)
{
    QImage image(11, 14, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

// A host presenter with a scripted marker list and two colours: 0 draws red, green and blue for
// normal, hover and pressed; 1 draws yellow, cyan and magenta. Images are looked up by the first
// entry of a colour, and the first entry stands in for an unknown colour.
class ListPresenter : public MvMarkerPresenter
{
public:
    explicit ListPresenter(const QList<MarkerItem>& list)
        : MvMarkerPresenter(nullptr, nullptr)
        , markers(list)
    {
        addMarkerImage(0, solid(Qt::red), solid(Qt::green), solid(Qt::blue));
        addMarkerImage(1, solid(Qt::yellow), solid(Qt::cyan), solid(Qt::magenta));
        addMarkerImage(1, solid(Qt::black), solid(Qt::black), solid(Qt::black));
    }
    QList<MarkerItem> markerList() override { return markers; }
    QList<MarkerItem> markers;
};

// Counts how often the strip asks for each kind of image.
class CountingPresenter : public ListPresenter
{
public:
    using ListPresenter::ListPresenter;
    QImage normalMarkerImage(int colorIndex) override
    {
        ++normal;
        return ListPresenter::normalMarkerImage(colorIndex);
    }
    QImage horverMarkerImage(int colorIndex) override
    {
        ++hover;
        return ListPresenter::horverMarkerImage(colorIndex);
    }
    QImage pressMarkerImage(int colorIndex) override
    {
        ++pressed;
        return ListPresenter::pressMarkerImage(colorIndex);
    }
    int normal = 0;
    int hover = 0;
    int pressed = 0;
};

// The host side of the widget: it owns the hover, press and floating state.
class HostMarkerWidget : public MvMarkerWidget
{
public:
    using MvMarkerWidget::m_floating1;
    using MvMarkerWidget::m_floating2;
    using MvMarkerWidget::m_floatingX;
    using MvMarkerWidget::m_hoverIndex;
    using MvMarkerWidget::m_pressIndex;
    using MvMarkerWidget::m_pressVisible;
    using MvMarkerWidget::MvMarkerWidget;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        MvMarkerWidget::paintEvent(event);
    }
};
}

class tst_MvMarkerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsByHoverPressAndFloating_data();
    void paintsByHoverPressAndFloating();
    void markerRectangleAndOverlap();
    void listFollowsThePresenter();
    void clearWithoutPressedMarkerDoesNotRepaint();
    void imagesAreLookedUpOncePerColour();
};

void tst_MvMarkerWidget::paintsByHoverPressAndFloating_data()
{
    QTest::addColumn<int>("hover");
    QTest::addColumn<int>("floating"); // 0: no, 1 or 2: which of the two flags
    QTest::addColumn<int>("press"); // -1: marker 0 pressed but its pressed look not shown
    QTest::addColumn<QString>("letters"); // at the markers' x 10, 40 and 70, and the floating x 90
    QTest::newRow("all normal, press not shown") << -1 << 0 << -1 << QStringLiteral("RYR-");
    QTest::newRow("hovered at its own x") << 1 << 0 << -1 << QStringLiteral("RCR-");
    QTest::newRow("hovered, unknown colour") << 2 << 0 << -1 << QStringLiteral("RYG-");
    QTest::newRow("hover index out of range") << 3 << 1 << -1 << QStringLiteral("RYR-");
    QTest::newRow("floating hover at the floating x") << 1 << 2 << -1 << QStringLiteral("R-RC");
    QTest::newRow("pressed at the floating x") << -1 << 0 << 0 << QStringLiteral("RYRB");
    QTest::newRow("pressed over the floating hover") << 1 << 1 << 2 << QStringLiteral("R-RB");
    QTest::newRow("press index out of range") << -1 << 0 << 3 << QStringLiteral("RYR-");
}

void tst_MvMarkerWidget::paintsByHoverPressAndFloating()
{
    QFETCH(int, hover);
    QFETCH(int, floating);
    QFETCH(int, press);
    QFETCH(QString, letters);
    ListPresenter presenter({ { 10, 0 }, { 40, 1 }, { 70, 7 } });
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(100, 20);
    widget.m_hoverIndex = hover;
    widget.m_floating1 = floating == 1;
    widget.m_floating2 = floating == 2;
    widget.m_pressIndex = qMax(press, 0);
    widget.m_pressVisible = press >= 0;
    widget.m_floatingX = 90;
    QCOMPARE(mvColorsAt(&widget, { { 10, 5 }, { 40, 5 }, { 70, 5 }, { 90, 5 } }), letters);
}

// Markers at 20 (yellow) and 24 (red) cover x 15..25 and 19..29, y -1..12; the later one wins.
void tst_MvMarkerWidget::markerRectangleAndOverlap()
{
    QCOMPARE(MvMarkerWidget::markerRect(0), QRect(-5, -1, 11, 14));
    ListPresenter presenter({ { 20, 1 }, { 24, 0 } });
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(60, 20);
    const QList<QPoint> points { { 14, 5 }, { 15, 0 }, { 18, 5 }, { 19, 5 }, { 29, 12 }, { 30, 5 }, { 20, 13 } };
    QCOMPARE(mvColorsAt(&widget, points), QStringLiteral("-YYRR--"));
}

void tst_MvMarkerWidget::listFollowsThePresenter()
{
    ListPresenter presenter({ { 10, 0 } });
    HostMarkerWidget widget(&presenter, nullptr);
    QCOMPARE(widget.markers(), presenter.markers);
    presenter.markers.append({ 30, 1 });
    Q_EMIT presenter.signalMarkerCountChanged();
    QCOMPARE(widget.markers(), presenter.markers);
    // A null presenter keeps the list and connects nothing; the old one is no longer asked.
    widget.setPresenter(nullptr);
    presenter.markers.clear();
    Q_EMIT presenter.signalMarkerCountChanged();
    QCOMPARE(widget.markers().size(), 2);
}

void tst_MvMarkerWidget::clearWithoutPressedMarkerDoesNotRepaint()
{
    ListPresenter presenter({ { 10, 0 } });
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(60, 20);
    widget.show();
    QTRY_VERIFY(widget.paints > 0);
    QCoreApplication::processEvents();
    widget.paints = 0;
    Q_EMIT presenter.signalClearTimelineSelectedMarker();
    QCoreApplication::processEvents();
    QCOMPARE(widget.paints, 0);
    widget.m_pressVisible = true;
    Q_EMIT presenter.signalClearTimelineSelectedMarker();
    QVERIFY(!widget.m_pressVisible);
    QTRY_COMPARE(widget.paints, 1);
}

// A thousand markers in two colours: each paint asks once per colour for each kind of image.
void tst_MvMarkerWidget::imagesAreLookedUpOncePerColour()
{
    QList<MvMarkerPresenter::MarkerItem> markers;
    for (int i = 0; i < 1000; ++i)
        markers.append({ i % 400, i % 2 });
    CountingPresenter presenter(markers);
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(400, 20);
    widget.m_hoverIndex = 3;
    widget.m_pressVisible = true;
    widget.m_pressIndex = 4;
    for (int paint = 1; paint <= 2; ++paint) {
        QCOMPARE(mvColorsAt(&widget, { { 200, 5 } }), QStringLiteral("Y"));
        QCOMPARE(QList<int>({ presenter.normal, presenter.hover, presenter.pressed }),
            QList<int>({ 2 * paint, 2 * paint, 2 * paint }));
    }
}

QTEST_MAIN(tst_MvMarkerWidget)
#include "tst_MvMarkerWidget.moc"
