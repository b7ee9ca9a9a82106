#include <QtTest>
class tst_MvDemoRefusals : public QObject { Q_OBJECT };
QTEST_MAIN(tst_MvDemoRefusals)
#include "tst_MvDemoRefusals.moc"
