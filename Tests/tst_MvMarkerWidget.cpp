#include "MvMarkerPresenter.h"
#include "MvMarkerWidget.h"

#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

namespace {
const QColor kRed(255, 0, 0);
const QColor kGreen(0, 255, 0);
const QColor kBlue(0, 0, 255);
const QColor kYellow(255, 255, 0);
const QColor kCyan(0, 255, 255);
const QColor kMagenta(255, 0, 255);

QImage solid(const QColor& color, const QSize& size = QSize(11, 14))
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

// A host presenter with a scripted marker list.
class ListPresenter : public MvMarkerPresenter
{
public:
    ListPresenter()
        : MvMarkerPresenter(nullptr, nullptr)
    {
    }
    QList<MarkerItem> markerList() override
    {
        ++listCalls;
        return markers;
    }
    QList<MarkerItem> markers;
    int listCalls = 0;
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

    QImage grab()
    {
        QImage image(size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        MvMarkerWidget::paintEvent(event);
    }
};

// Two colours: 0 draws red / green / blue, 1 draws yellow / cyan / magenta.
void fillTable(MvMarkerPresenter& presenter)
{
    presenter.addMarkerImage(0, solid(kRed), solid(kGreen), solid(kBlue));
    presenter.addMarkerImage(1, solid(kYellow), solid(kCyan), solid(kMagenta));
}

QColor at(const QImage& image, int x, int y)
{
    return image.pixelColor(x, y);
}
}

class tst_MvMarkerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookupFallsBackToTheFirstEntry_data();
    void lookupFallsBackToTheFirstEntry();
    void emptyTableGivesNullImagesAndPaintsNothing();
    void markerAtZeroCoversItsRectangle();
    void normalMarkersUseTheirColour();
    void hoveredMarkerDrawsTheHoverImage();
    void hoverIndexOutOfRangeDrawsAllNormal();
    void floatingHoverIsDrawnAtTheFloatingX();
    void pressedMarkerIsDrawnLastAtTheFloatingX();
    void laterMarkersCoverEarlierOnes();
    void countSignalReloadsTheList();
    void clearWithoutPressedMarkerDoesNotRepaint();
    void nullPresenterKeepsTheList();
    void paletteIndexFindsExactColours();
};

void tst_MvMarkerWidget::lookupFallsBackToTheFirstEntry_data()
{
    QTest::addColumn<int>("colorIndex");
    QTest::addColumn<QColor>("normal");
    QTest::addColumn<QColor>("hover");
    QTest::addColumn<QColor>("pressed");
    QTest::newRow("first entry") << 0 << kRed << kGreen << kBlue;
    QTest::newRow("second entry") << 1 << kYellow << kCyan << kMagenta;
    QTest::newRow("unknown index") << 7 << kRed << kGreen << kBlue;
    QTest::newRow("negative index") << -1 << kRed << kGreen << kBlue;
}

void tst_MvMarkerWidget::lookupFallsBackToTheFirstEntry()
{
    QFETCH(int, colorIndex);
    QFETCH(QColor, normal);
    QFETCH(QColor, hover);
    QFETCH(QColor, pressed);
    ListPresenter presenter;
    fillTable(presenter);
    // A later entry with a known index does not shadow the first one.
    presenter.addMarkerImage(1, solid(Qt::black), solid(Qt::black), solid(Qt::black));
    QCOMPARE(presenter.markerImageCount(), 3);
    QCOMPARE(presenter.normalMarkerImage(colorIndex).pixelColor(0, 0), normal);
    QCOMPARE(presenter.horverMarkerImage(colorIndex).pixelColor(0, 0), hover);
    QCOMPARE(presenter.pressMarkerImage(colorIndex).pixelColor(0, 0), pressed);
}

void tst_MvMarkerWidget::emptyTableGivesNullImagesAndPaintsNothing()
{
    ListPresenter presenter;
    presenter.markers = { { 10, 0 } };
    QVERIFY(presenter.normalMarkerImage(0).isNull());
    QVERIFY(presenter.horverMarkerImage(0).isNull());
    QVERIFY(presenter.pressMarkerImage(0).isNull());
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(40, 20);
    const QImage image = widget.grab();
    QCOMPARE(at(image, 10, 5).alpha(), 0);

    fillTable(presenter);
    presenter.clearMarkerImages();
    QCOMPARE(presenter.markerImageCount(), 0);
}

void tst_MvMarkerWidget::markerAtZeroCoversItsRectangle()
{
    QCOMPARE(MvMarkerWidget::markerRect(0), QRect(-5, -1, 11, 14));
    QCOMPARE(MvMarkerWidget::markerRect(20), QRect(15, -1, 11, 14));

    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 20, 0 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(60, 20);
    const QImage image = widget.grab();
    // Columns 15..25, rows 0..12 (row -1 lies above the widget).
    QCOMPARE(at(image, 15, 0), kRed);
    QCOMPARE(at(image, 25, 12), kRed);
    QCOMPARE(at(image, 14, 5).alpha(), 0);
    QCOMPARE(at(image, 26, 5).alpha(), 0);
    QCOMPARE(at(image, 20, 13).alpha(), 0);
}

void tst_MvMarkerWidget::normalMarkersUseTheirColour()
{
    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 10, 0 }, { 40, 1 }, { 70, 5 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(100, 20);
    const QImage image = widget.grab();
    QCOMPARE(at(image, 10, 5), kRed);
    QCOMPARE(at(image, 40, 5), kYellow);
    QCOMPARE(at(image, 70, 5), kRed);
}

void tst_MvMarkerWidget::hoveredMarkerDrawsTheHoverImage()
{
    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 10, 0 }, { 40, 1 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(100, 20);
    widget.m_hoverIndex = 1;
    widget.m_floatingX = 80; // not floating: the hovered marker stays at its own x
    const QImage image = widget.grab();
    QCOMPARE(at(image, 10, 5), kRed);
    QCOMPARE(at(image, 40, 5), kCyan);
    QCOMPARE(at(image, 80, 5).alpha(), 0);
}

void tst_MvMarkerWidget::hoverIndexOutOfRangeDrawsAllNormal()
{
    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 10, 0 }, { 40, 1 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(100, 20);
    widget.m_hoverIndex = 2;
    widget.m_floating1 = true;
    widget.m_floatingX = 80;
    const QImage image = widget.grab();
    QCOMPARE(at(image, 10, 5), kRed);
    QCOMPARE(at(image, 40, 5), kYellow);
    QCOMPARE(at(image, 80, 5).alpha(), 0);
}

void tst_MvMarkerWidget::floatingHoverIsDrawnAtTheFloatingX()
{
    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 10, 0 }, { 40, 1 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(100, 20);
    widget.m_hoverIndex = 1;
    widget.m_floating2 = true;
    widget.m_floatingX = 13; // over the first marker: drawn above it
    const QImage image = widget.grab();
    QCOMPARE(at(image, 40, 5).alpha(), 0);
    QCOMPARE(at(image, 13, 5), kCyan);
    QCOMPARE(at(image, 6, 5), kRed);
}

void tst_MvMarkerWidget::pressedMarkerIsDrawnLastAtTheFloatingX()
{
    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 10, 0 }, { 40, 1 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(100, 20);
    widget.m_pressIndex = 0;
    widget.m_floatingX = 42;
    QCOMPARE(at(widget.grab(), 42, 5), kYellow); // not shown yet
    widget.m_pressVisible = true;
    const QImage image = widget.grab();
    QCOMPARE(at(image, 42, 5), kBlue);
    QCOMPARE(at(image, 10, 5), kRed); // the marker itself stays where it is
    widget.m_pressIndex = 2;
    QCOMPARE(at(widget.grab(), 42, 5), kYellow);
}

void tst_MvMarkerWidget::laterMarkersCoverEarlierOnes()
{
    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 10, 1 }, { 14, 0 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.resize(40, 20);
    const QImage image = widget.grab();
    QCOMPARE(at(image, 12, 5), kRed);
    QCOMPARE(at(image, 6, 5), kYellow);
}

void tst_MvMarkerWidget::countSignalReloadsTheList()
{
    ListPresenter presenter;
    presenter.markers = { { 10, 0 } };
    HostMarkerWidget widget(&presenter, nullptr);
    QCOMPARE(presenter.listCalls, 1);
    QCOMPARE(widget.markers(), presenter.markers);
    presenter.markers = { { 10, 0 }, { 30, 1 } };
    Q_EMIT presenter.signalMarkerCountChanged();
    QCOMPARE(widget.markers(), presenter.markers);
    QCOMPARE(presenter.listCalls, 2);
}

void tst_MvMarkerWidget::clearWithoutPressedMarkerDoesNotRepaint()
{
    ListPresenter presenter;
    fillTable(presenter);
    presenter.markers = { { 10, 0 } };
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

void tst_MvMarkerWidget::nullPresenterKeepsTheList()
{
    ListPresenter presenter;
    presenter.markers = { { 10, 0 } };
    HostMarkerWidget widget(&presenter, nullptr);
    widget.setPresenter(nullptr);
    QCOMPARE(widget.presenter(), nullptr);
    QCOMPARE(widget.markers().size(), 1);
    // No connection was made for the null presenter, and the widget no longer asks the old one.
    presenter.markers.clear();
    Q_EMIT presenter.signalMarkerCountChanged();
    QCOMPARE(widget.markers().size(), 1);

    HostMarkerWidget bare(nullptr, nullptr);
    QVERIFY(bare.markers().isEmpty());
    bare.resize(20, 20);
    QCOMPARE(at(bare.grab(), 5, 5).alpha(), 0);
}

void tst_MvMarkerWidget::paletteIndexFindsExactColours()
{
    const QList<QColor> palette = MvMarkerPresenter::markerPalette();
    QCOMPARE(palette.size(), 8);
    for (int i = 0; i < palette.size(); ++i)
        QCOMPARE(MvMarkerPresenter::markerPaletteIndex(palette.at(i)), i);
    QCOMPARE(MvMarkerPresenter::markerPaletteIndex(QColor(1, 2, 3)), -1);
    QCOMPARE(MvMarkerPresenter::markerPaletteIndex(QColor()), -1);
}

QTEST_MAIN(tst_MvMarkerWidget)
#include "tst_MvMarkerWidget.moc"
