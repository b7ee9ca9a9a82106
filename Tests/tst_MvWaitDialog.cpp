#include "MvSkinStyle.h"
#include "MvWaitDialog.h"

#include <QApplication>
#include <QFutureWatcher>
#include <QSemaphore>
#include <QTimer>
#include <QtConcurrent>
#include <QtMath>
#include <QtTest>

namespace {
const QColor kInk(255, 0, 0);

QImage renderOf(QWidget* widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image);
    return image;
}

// The spoke whose middle is drawn in the strongest ink: the one the wheel shows as current.
int brightestSpoke(const QImage& image)
{
    const QPointF centre = QRectF(image.rect()).center();
    int best = -1;
    int bestRed = -1;
    for (int i = 0; i < MvWaitDialog::spokeCount(); ++i) {
        const qreal angle = 2 * M_PI * i / MvWaitDialog::spokeCount();
        const QPointF middle = centre + QPointF(qSin(angle), -qCos(angle)) * 16.5;
        const int red = image.pixelColor(middle.toPoint()).red();
        if (red > bestRed) {
            bestRed = red;
            best = i;
        }
    }
    return best;
}
}

class tst_MvWaitDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void isAModalFramelessSquareOfSeventy();
    void keepsThePlaceItsCallerGaveIt();
    void spinnerTurnsClockwiseWhileShown();
    void execEndsWhenDoneArrivesThroughTheEventLoop_data();
    void execEndsWhenDoneArrivesThroughTheEventLoop();
    void escapeAndCloseRequestsDoNotEndTheWait();
};

void tst_MvWaitDialog::init()
{
    MvSkinStyle::instance()->setColor(MvSkinColor::Text_Icon_Primary(), kInk);
    MvSkinStyle::instance()->setColor(MvSkinColor::Background_Primary(), Qt::black);
}

void tst_MvWaitDialog::cleanup()
{
    MvSkinStyle::instance()->resetColors();
}

void tst_MvWaitDialog::isAModalFramelessSquareOfSeventy()
{
    QWidget parent;
    MvWaitDialog dialog(&parent);
    QVERIFY(dialog.isModal());
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.size(), QSize(70, 70));
    QCOMPARE(dialog.minimumSize(), QSize(70, 70));
    QCOMPARE(dialog.maximumSize(), QSize(70, 70));
}

// A caller that centres the dialog over a view of its own choosing must find it there.
void tst_MvWaitDialog::keepsThePlaceItsCallerGaveIt()
{
    QWidget parent;
    parent.setGeometry(100, 100, 600, 400);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    MvWaitDialog dialog(&parent);
    dialog.move(130, 140);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.pos(), QPoint(130, 140));
}

void tst_MvWaitDialog::spinnerTurnsClockwiseWhileShown()
{
    MvWaitDialog dialog;
    dialog.show();
    const QImage first = renderOf(&dialog);
    const int firstSpoke = brightestSpoke(first);
    QCOMPARE(firstSpoke, dialog.currentSpoke());
    QCOMPARE(first.pixelColor(35, 35), QColor(Qt::black));

    QTRY_VERIFY(dialog.currentSpoke() != firstSpoke);
    const QImage next = renderOf(&dialog);
    QVERIFY(next != first);
    const int steps = (brightestSpoke(next) - firstSpoke + MvWaitDialog::spokeCount()) % MvWaitDialog::spokeCount();
    QVERIFY(steps >= 1 && steps < MvWaitDialog::spokeCount() / 2);
    dialog.done(0);
}

void tst_MvWaitDialog::execEndsWhenDoneArrivesThroughTheEventLoop_data()
{
    QTest::addColumn<QString>("closer");
    QTest::newRow("posted before exec") << QStringLiteral("posted");
    QTest::newRow("task finished before exec") << QStringLiteral("finished task");
    QTest::newRow("task finishes during exec") << QStringLiteral("running task");
}

// The way a worker's end closes the dialog: a future watcher whose notification travels
// through the event loop, even when the task was over before exec began.
void tst_MvWaitDialog::execEndsWhenDoneArrivesThroughTheEventLoop()
{
    QFETCH(QString, closer);
    MvWaitDialog dialog;
    QFutureWatcher<void> watcher;
    connect(&watcher, &QFutureWatcher<void>::finished, &dialog, [&dialog]() { dialog.done(0); });
    QSemaphore release;
    bool modalWhileWaiting = false;

    if (closer == QLatin1String("posted")) {
        QTimer::singleShot(0, &dialog, [&]() {
            modalWhileWaiting = QApplication::activeModalWidget() == &dialog;
            dialog.done(0);
        });
    } else if (closer == QLatin1String("finished task")) {
        QFuture<void> future = QtConcurrent::run([]() {});
        future.waitForFinished();
        watcher.setFuture(future);
        modalWhileWaiting = true; // nothing runs inside exec before the watcher closes it
    } else {
        watcher.setFuture(QtConcurrent::run([&release]() { release.acquire(); }));
        QTimer::singleShot(0, &dialog, [&]() {
            modalWhileWaiting = QApplication::activeModalWidget() == &dialog && dialog.isVisible();
            release.release();
        });
    }
    QCOMPARE(dialog.exec(), 0);
    QVERIFY(modalWhileWaiting);
    QVERIFY(!dialog.isVisible());
    QVERIFY(watcher.isFinished());
}

void tst_MvWaitDialog::escapeAndCloseRequestsDoNotEndTheWait()
{
    MvWaitDialog dialog;
    QStringList seen;
    QTimer::singleShot(0, &dialog, [&]() {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        seen << QStringLiteral("escape: %1").arg(dialog.isVisible());
        dialog.close();
        seen << QStringLiteral("close: %1").arg(dialog.isVisible());
        dialog.done(0);
    });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(seen, QStringList({ QStringLiteral("escape: 1"), QStringLiteral("close: 1") }));
}

QTEST_MAIN(tst_MvWaitDialog)
#include "tst_MvWaitDialog.moc"
