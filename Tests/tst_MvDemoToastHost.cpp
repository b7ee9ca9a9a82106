#include "MvCustomEvent.h"
#include "MvDemoToastHost.h"
#include "MvToast.h"

#include <QMainWindow>
#include <QtTest>

namespace {
// The visible toasts over a window, in creation order.
QList<MvToast*> toastsOver(QWidget* window)
{
    QList<MvToast*> shown;
    const QList<MvToast*> toasts = window->findChildren<MvToast*>(QString(), Qt::FindDirectChildrenOnly);
    for (MvToast* toast : toasts) {
        if (toast->isVisible())
            shown.append(toast);
    }
    return shown;
}

bool sendToastEvent(const QVariantList& values)
{
    auto event = QSharedPointer<MvCustomEventImp>::create(QStringLiteral("ShowCustomToast"), values);
    return MvCustomEventDispatcher::instance().sendEvent(event, {});
}
}

class tst_MvDemoToastHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsEachEventOverItsAnchor_data();
    void showsEachEventOverItsAnchor();
    void noticeAppearsOverTheWindow();
    void laterEventReplacesTheEarlierToast();
    void hostGoesWithItsWindow();
};

void tst_MvDemoToastHost::showsEachEventOverItsAnchor_data()
{
    QTest::addColumn<QString>("anchor");
    QTest::addColumn<int>("valueCount");
    QTest::addColumn<bool>("consumed");
    QTest::addColumn<QString>("shownText");
    QTest::newRow("anchor widget") << QStringLiteral("panel") << 3 << true << QStringLiteral("Clip is too short.");
    QTest::newRow("no anchor: the window") << QString() << 3 << true << QStringLiteral("Clip is too short.");
    QTest::newRow("payload cut short") << QStringLiteral("panel") << 2 << false << QString();
}

void tst_MvDemoToastHost::showsEachEventOverItsAnchor()
{
    QFETCH(QString, anchor);
    QFETCH(int, valueCount);
    QFETCH(bool, consumed);
    QFETCH(QString, shownText);
    QMainWindow window;
    auto* central = new QWidget(&window);
    auto* panel = new QWidget(central);
    panel->setGeometry(20, 30, 300, 120);
    window.setCentralWidget(central);
    window.setGeometry(50, 50, 500, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    new MvDemoToastHost(&window);

    QWidget* sentAnchor = anchor.isEmpty() ? nullptr : panel;
    const QVariantList values { QVariant::fromValue(sentAnchor), false, QStringLiteral("Clip is too short.") };
    QCOMPARE(sendToastEvent(values.mid(0, valueCount)), consumed);

    const QList<MvToast*> toasts = toastsOver(&window);
    QCOMPARE(toasts.size(), shownText.isEmpty() ? 0 : 1);
    if (toasts.isEmpty())
        return;
    QCOMPARE(toasts.first()->text(), shownText);
    const QRect over = anchor.isEmpty() ? window.rect() : QRect(panel->mapTo(&window, QPoint()), panel->size());
    QCOMPARE(toasts.first()->geometry().bottom() + 1, over.bottom() + 1 - toasts.first()->bottomMargin());
    QVERIFY(qAbs(toasts.first()->geometry().center().x() - over.center().x()) <= 1);
    QVERIFY(toasts.first()->bottomMargin() > 0);
}

void tst_MvDemoToastHost::noticeAppearsOverTheWindow()
{
    QMainWindow window;
    window.setGeometry(50, 50, 500, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* host = new MvDemoToastHost(&window);
    host->showNotice(QString());
    QVERIFY(toastsOver(&window).isEmpty());
    host->showNotice(QStringLiteral("Nothing to split under the playhead"));
    const QList<MvToast*> toasts = toastsOver(&window);
    QCOMPARE(toasts.size(), 1);
    QCOMPARE(toasts.first()->text(), QStringLiteral("Nothing to split under the playhead"));
}

void tst_MvDemoToastHost::laterEventReplacesTheEarlierToast()
{
    QMainWindow window;
    window.setGeometry(50, 50, 500, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    new MvDemoToastHost(&window);
    for (const QString& text : { QStringLiteral("first"), QStringLiteral("second") })
        sendToastEvent({ QVariant::fromValue<QWidget*>(nullptr), false, text });
    const QList<MvToast*> toasts = toastsOver(&window);
    QCOMPARE(toasts.size(), 1);
    QCOMPARE(toasts.first()->text(), QStringLiteral("second"));
}

void tst_MvDemoToastHost::hostGoesWithItsWindow()
{
    const QString name = QStringLiteral("ShowCustomToast");
    const int before = MvCustomEventDispatcher::instance().listenerCount(name);
    {
        QWidget window;
        new MvDemoToastHost(&window);
        QCOMPARE(MvCustomEventDispatcher::instance().listenerCount(name), before + 1);
    }
    QCOMPARE(MvCustomEventDispatcher::instance().listenerCount(name), before);
}

QTEST_MAIN(tst_MvDemoToastHost)
#include "tst_MvDemoToastHost.moc"
