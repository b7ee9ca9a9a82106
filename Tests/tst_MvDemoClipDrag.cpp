#include <QtTest>
class tst_MvDemoClipDrag : public QObject { Q_OBJECT };
QTEST_MAIN(tst_MvDemoClipDrag)
#include "tst_MvDemoClipDrag.moc"
