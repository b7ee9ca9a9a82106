#include <QtTest>
class tst_MvDemoNavigation : public QObject { Q_OBJECT };
QTEST_MAIN(tst_MvDemoNavigation)
#include "tst_MvDemoNavigation.moc"
