#include "MvSkinStyle.h"
#include "MvToast.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

namespace {
const QColor kInk(255, 0, 0);
const QColor kFill(0, 0, 255);
const QColor kFloor(0, 255, 0);
const QColor kIcon(255, 255, 0);

// A 600 x 400 main window whose central area is painted in one flat colour: a strip at the top
// that a test can use as the toast's anchor, a text field and a button underneath. Placed by
// hand: a layout would resize the shown window, which the offscreen platform warns about.
struct Window
{
    QMainWindow window;
    QWidget* central = new QWidget;
    QWidget* strip = new QWidget(central);
    QLineEdit* field = new QLineEdit(central);
    QPushButton* button = new QPushButton(QStringLiteral("Under"), central);

    Window()
    {
        QPalette palette = central->palette();
        palette.setColor(QPalette::Window, kFloor);
        central->setPalette(palette);
        central->setAutoFillBackground(true);
        strip->setGeometry(0, 0, 600, 150);
        field->setGeometry(0, 150, 600, 30);
        button->setGeometry(0, 180, 600, 220);
        window.setCentralWidget(central);
        window.setGeometry(100, 100, 600, 400);
    }
};

bool isInk(const QColor& color)
{
    return color.red() > 150 && color.green() < 100 && color.blue() < 100;
}

int countPixels(const QImage& image, const QRect& area, const std::function<bool(const QColor&)>& match)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += match(image.pixelColor(x, y)) ? 1 : 0;
    }
    return count;
}

QImage renderOf(QWidget* widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QPixmap flatPixmap(const QColor& color, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(color);
    return pixmap;
}
}

class tst_MvToast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sitsCentredAboveTheAnchorsBottom_data();
    void sitsCentredAboveTheAnchorsBottom();
    void showsTextAndIconOverTheWindow_data();
    void showsTextAndIconOverTheWindow();
    void fadesOutAndDeletesItself();
    void leavesFocusActivationAndClicksAlone();
    void goesOnTheScreenWhenNoWindowIsShown();
    void newerToastReplacesTheShownOne();
    void emptyToastShowsNothing();
};

void tst_MvToast::init()
{
    MvSkinStyle::instance()->setColor(MvSkinColor::Text_Icon_Primary(), kInk);
    MvSkinStyle::instance()->setColor(MvSkinColor::Background_Primary(), kFill);
    MvSkinStyle::instance()->setColor(MvSkinColor::Text_Icon_Secondary(), kFill);
}

void tst_MvToast::cleanup()
{
    MvSkinStyle::instance()->resetColors();
    // Nothing a test showed may outlive it.
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_MvToast::sitsCentredAboveTheAnchorsBottom_data()
{
    QTest::addColumn<QString>("anchor");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("expectedGap");
    QTest::newRow("strip of the window") << QStringLiteral("strip") << 24 << 24;
    QTest::newRow("window itself") << QStringLiteral("window") << 24 << 24;
    QTest::newRow("no parent: main window") << QString() << 24 << 24;
    QTest::newRow("anchor in a hidden window: main window") << QStringLiteral("hidden") << 10 << 10;
    QTest::newRow("zero margin") << QStringLiteral("strip") << 0 << 0;
    QTest::newRow("negative margin counts as zero") << QStringLiteral("strip") << -30 << 0;
}

void tst_MvToast::sitsCentredAboveTheAnchorsBottom()
{
    QFETCH(QString, anchor);
    QFETCH(int, margin);
    QFETCH(int, expectedGap);
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w.window));
    QWidget hiddenWindow;
    auto* hiddenChild = new QWidget(&hiddenWindow);

    QWidget* parent = nullptr;
    if (anchor == QLatin1String("strip"))
        parent = w.strip;
    else if (anchor == QLatin1String("window"))
        parent = &w.window;
    else if (anchor == QLatin1String("hidden"))
        parent = hiddenChild;
    const bool onStrip = parent == w.strip;
    const QRect area = onStrip ? QRect(w.strip->mapTo(&w.window, QPoint(0, 0)), w.strip->size()) : w.window.rect();

    QPointer<MvToast> toast = MvToast::creatToast(QStringLiteral("Clip is too short."), parent, QPixmap(), margin);
    toast->showToast();
    QVERIFY(toast->isVisible());
    QCOMPARE(toast->parentWidget(), &w.window);
    QVERIFY(!toast->isWindow());
    const QRect placed = toast->geometry();
    QVERIFY(qAbs(placed.center().x() - area.center().x()) <= 1);
    QCOMPARE(placed.top() + placed.height(), area.top() + area.height() - expectedGap);
    QVERIFY(w.window.rect().contains(placed));
    delete toast;
}

void tst_MvToast::showsTextAndIconOverTheWindow_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("withIcon");
    QTest::newRow("text") << QStringLiteral("Unable to add external compound clip.") << false;
    QTest::newRow("text and icon") << QStringLiteral("Clip is too short to add transition.") << true;
    QTest::newRow("icon only") << QString() << true;
}

// The window is rendered with the toast in it: the toast's box, its text and its icon show
// inside the toast's rectangle, and the window around it is untouched.
void tst_MvToast::showsTextAndIconOverTheWindow()
{
    QFETCH(QString, text);
    QFETCH(bool, withIcon);
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w.window));
    QPointer<MvToast> toast = MvToast::creatToast(text, w.strip, withIcon ? flatPixmap(kIcon, 16) : QPixmap(), 24);
    toast->showToast();

    const QImage image = renderOf(&w.window);
    const QRect box = toast->geometry();
    const QRect inner = box.adjusted(4, 4, -4, -4);
    auto sameAs = [](const QColor& wanted) { return [wanted](const QColor& c) { return c == wanted; }; };
    QVERIFY(countPixels(image, inner, sameAs(kFill)) > inner.width() * inner.height() / 3);
    QCOMPARE(countPixels(image, inner, isInk) > 20, !text.isEmpty());
    QCOMPARE(countPixels(image, inner, sameAs(kIcon)), withIcon ? 16 * 16 : 0);
    QCOMPARE(image.pixelColor(box.left() - 3, box.center().y()), kFloor);
    QCOMPARE(countPixels(image, image.rect(), isInk), countPixels(image, box, isInk));
    delete toast;
}

// Rendered at half-faded opacity, the toast's box is about half as opaque as at the start; then
// it goes away by itself.
void tst_MvToast::fadesOutAndDeletesItself()
{
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w.window));
    QPointer<MvToast> toast = MvToast::creatToast(QStringLiteral("Saved"), w.strip, QPixmap(), 24);
    toast->setDuration(100);
    QList<qreal> seen;
    qreal midOpacity = -1;
    int midAlpha = -1;
    connect(toast.data(), &MvToast::opacityChanged, this, [&](qreal opacity) {
        seen << opacity;
        if (midOpacity < 0 && opacity > 0.2 && opacity < 0.8) {
            midOpacity = opacity;
            midAlpha = renderOf(toast).pixelColor(toast->width() / 2, 3).alpha();
        }
    });
    toast->showToast();
    const QPoint probe(toast->width() / 2, 3);
    QCOMPARE(renderOf(toast).pixelColor(probe).alpha(), 255);
    QCOMPARE(toast->opacity(), 1.0);

    QTRY_VERIFY_WITH_TIMEOUT(toast.isNull(), 100 + MvToast::fadeDuration() + 3000);
    QVERIFY(seen.size() >= 2);
    QVERIFY(std::is_sorted(seen.rbegin(), seen.rend()));
    QCOMPARE(seen.last(), 0.0);
    QVERIFY(midOpacity > 0);
    QVERIFY(qAbs(midAlpha - qRound(255 * midOpacity)) <= 2);
}

// The toast covers the button under it, yet a click there reaches the button; the field
// keeps the keyboard and the window stays the active one.
void tst_MvToast::leavesFocusActivationAndClicksAlone()
{
    Window w;
    w.window.show();
    QApplication::setActiveWindow(&w.window);
    QVERIFY(QTest::qWaitForWindowActive(&w.window));
    w.field->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), w.field);
    QSignalSpy clicks(w.button, &QPushButton::clicked);

    QPointer<MvToast> toast = MvToast::creatToast(QStringLiteral("Notice"), w.button, QPixmap(), 24);
    toast->showToast();
    QVERIFY(toast->isVisible());
    QCOMPARE(QApplication::activeWindow(), &w.window);
    QCOMPARE(QApplication::focusWidget(), w.field);
    QVERIFY(!toast->hasFocus());

    QTest::keyClick(w.window.windowHandle(), Qt::Key_A);
    QCOMPARE(w.field->text(), QStringLiteral("a"));

    const QPoint centre = toast->geometry().center();
    QCOMPARE(w.window.childAt(centre), w.button);
    QTest::mouseClick(w.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(clicks.count(), 1);
    delete toast;
}

void tst_MvToast::goesOnTheScreenWhenNoWindowIsShown()
{
    QPointer<MvToast> toast = MvToast::creatToast(QStringLiteral("Duplicate frames"), nullptr, QPixmap(), 24);
    toast->setDuration(0);
    toast->showToast();
    QVERIFY(toast->isWindow());
    QVERIFY(toast->isVisible());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(qAbs(toast->geometry().center().x() - screen.center().x()) <= 1);
    QCOMPARE(toast->geometry().bottom() + 1, screen.bottom() + 1 - 24);
    // The offscreen platform activates every window it shows, so only the window's own refusal
    // of focus and input can be checked here; the overlay case checks activation itself.
    QVERIFY(toast->windowHandle()->flags() & Qt::WindowDoesNotAcceptFocus);
    QVERIFY(toast->windowHandle()->flags() & Qt::WindowTransparentForInput);
    QTRY_VERIFY(toast.isNull());
}

// A toast not shown yet belongs to its creator and is left alone.
void tst_MvToast::newerToastReplacesTheShownOne()
{
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w.window));
    QPointer<MvToast> first = MvToast::creatToast(QStringLiteral("first"), w.strip, QPixmap(), 24);
    QPointer<MvToast> waiting = MvToast::creatToast(QStringLiteral("waiting"), w.strip, QPixmap(), 24);
    QPointer<MvToast> second = MvToast::creatToast(QStringLiteral("second"), w.strip, QPixmap(), 24);
    first->showToast();
    second->showToast();
    QVERIFY(!first.isNull() && !first->isVisible());
    QTRY_VERIFY(first.isNull());
    QVERIFY(second->isVisible());
    QVERIFY(!waiting.isNull());
    delete waiting;
    delete second;
}

void tst_MvToast::emptyToastShowsNothing()
{
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w.window));
    QPointer<MvToast> toast = MvToast::creatToast(QString(), w.strip, QPixmap(), 24);
    toast->showToast();
    QVERIFY(!toast->isVisible());
    QTRY_VERIFY(toast.isNull());
}

QTEST_MAIN(tst_MvToast)
#include "tst_MvToast.moc"
