#include "MvEditFixture.h"

#include <QtTest>

class tst_MvTimelinePresenterPropertyPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showPropertyPanelSendsThePage_data();
    void showPropertyPanelSendsThePage();
};

void tst_MvTimelinePresenterPropertyPanel::showPropertyPanelSendsThePage_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("the selection's page") << -1;
    QTest::newRow("a given page") << 16;
}

void tst_MvTimelinePresenterPropertyPanel::showPropertyPanelSendsThePage()
{
    QFETCH(int, page);
    MvEditFixture<> f;
    const QString before = f.snapshot();

    f.presenter->showPropertyPanel(page);

    QCOMPARE(f.scene.ids(), QList<int>({ 9007 }));
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("MvDataMessage"));
    QCOMPARE(f.scene.entries().first().payload, QVariant(page));
    QCOMPARE(f.snapshot(), before);
}

QTEST_MAIN(tst_MvTimelinePresenterPropertyPanel)
#include "tst_MvTimelinePresenterPropertyPanel.moc"
