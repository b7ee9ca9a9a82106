#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTrackArea.h"
#include "MvDemoWindow.h"

#include <QAction>
#include <QScrollBar>
#include <QtTest>

class tst_MvDemoWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void horizontalBarFollowsThePlayheadToTheEnd();
};

void tst_MvDemoWindow::horizontalBarFollowsThePlayheadToTheEnd()
{
    MvDemoWindow window(false);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.action(QStringLiteral("zoom-in"))->trigger();
    QScrollBar* bar = window.column()->horizontalBar();
    QVERIFY(bar->maximum() > 0);
    QTest::keyClick(window.trackArea(), Qt::Key_End);
    IMvTimelineRuler* ruler = window.timeline()->ruler();
    qDebug() << ruler->visibleStartFrame() << bar->value() << bar->maximum();
    QCOMPARE(bar->value(), bar->maximum());
}

QTEST_MAIN(tst_MvDemoWindow)
#include "tst_MvDemoWindow.moc"
