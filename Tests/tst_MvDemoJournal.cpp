#include <QtTest>
class tst_MvDemoJournal : public QObject { Q_OBJECT };
QTEST_MAIN(tst_MvDemoJournal)
#include "tst_MvDemoJournal.moc"
