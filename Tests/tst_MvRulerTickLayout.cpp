#include "MvRulerTickLayout_p.h"

#include <QtTest>

namespace {
MvRulerLayout layOut(qint64 start, double spacing, qint64 step, int width = 100, int labelWidth = 40, int dy = 0)
{
    const MvRulerLayoutInput in { width, 28, dy, start, spacing, step, labelWidth };
    MvRulerLayout layout;
    MvRulerTickLayout::layout(in, &layout);
    return layout;
}
}

class tst_MvRulerTickLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstTickSitsOnAnAbsoluteMultiple_data();
    void firstTickSitsOnAnAbsoluteMultiple();
    void ticksReachTheRightEdgeItself();
    void majorsAreTallerAndTheLiftRaisesEverything();
    void labelsGoOnMajorsAndKeepAFivePixelGap();
    void brokenRulerLaysOutNothing();
};

void tst_MvRulerTickLayout::firstTickSitsOnAnAbsoluteMultiple_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<int>("firstFrame");
    QTest::addColumn<double>("firstX");
    QTest::newRow("start at zero") << qint64(0) << 0 << 0.0;
    QTest::newRow("start of 7 with 5 a tick") << qint64(7) << 10 << 6.0;
    QTest::newRow("ten hours in") << qint64(1079998) << 1080000 << 4.0;
}

void tst_MvRulerTickLayout::firstTickSitsOnAnAbsoluteMultiple()
{
    QFETCH(qint64, start);
    QFETCH(int, firstFrame);
    QFETCH(double, firstX);
    const MvRulerLayout layout = layOut(start, 10.0, 5);
    QCOMPARE(layout.ticks.first().frame, firstFrame);
    QCOMPARE(layout.ticks.first().x, firstX);
}

void tst_MvRulerTickLayout::ticksReachTheRightEdgeItself()
{
    QList<double> xs;
    for (const MvRulerTick& tick : layOut(0, 10.0, 1).ticks)
        xs.append(tick.x);
    QCOMPARE(xs, (QList<double> { 0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100 }));
    QCOMPARE(layOut(0, 10.0, 1, 99).ticks.size(), 10);
    // A fractional spacing is drawn at the whole pixel below.
    const MvRulerLayout fractional = layOut(0, 7.5, 3);
    QCOMPARE(fractional.ticks.at(1).left, 7);
    QCOMPARE(fractional.ticks.at(3).left, 22);
}

void tst_MvRulerTickLayout::majorsAreTallerAndTheLiftRaisesEverything()
{
    for (int dy : { 0, -2 }) {
        const MvRulerLayout layout = layOut(7, 10.0, 5, 100, 40, dy);
        for (const MvRulerTick& tick : layout.ticks) {
            const bool major = (tick.frame / 5) % 5 == 0;
            QCOMPARE(tick.major, major);
            QCOMPARE(tick.top, (major ? 18 : 23) + dy);
        }
        QCOMPARE(layout.labels.first().rect.top(), 3.0 + dy);
    }
}

void tst_MvRulerTickLayout::labelsGoOnMajorsAndKeepAFivePixelGap()
{
    QCOMPARE(MvRulerTickLayout::labelEvery(66, 10.0), 10);
    QCOMPARE(MvRulerTickLayout::labelEvery(40, 10.0), 5);
    QCOMPARE(MvRulerTickLayout::labelEvery(50, 10.0), 10);
    QCOMPARE(MvRulerTickLayout::labelEvery(66, 1.0), 70);
    // A vanishing spacing asks for labels so rarely that the count is capped instead of overflowing.
    QCOMPARE(MvRulerTickLayout::labelEvery(66, 1e-12), 500000005);
    // 48 wide every 50 px leaves 2 px: every other label goes, its major tick stays.
    const MvRulerLayout layout = layOut(0, 10.0, 1, 300, 48);
    QCOMPARE(layout.labelEvery, 5);
    QList<int> labelled;
    for (const MvRulerLabel& label : qAsConst(layout.labels)) {
        labelled.append(label.frame);
        QCOMPARE(label.rect, QRectF(label.frame * 10.0 - 24, 3, 48, 15));
    }
    QCOMPARE(labelled, (QList<int> { 0, 10, 20, 30 }));
    QCOMPARE(layout.ticks.at(5).top, 18);
    // 45 wide leaves exactly 5 px: every label stays.
    QCOMPARE(layOut(0, 10.0, 1, 300, 45).labels.size(), 7);
}

void tst_MvRulerTickLayout::brokenRulerLaysOutNothing()
{
    QVERIFY(layOut(0, 10.0, 0).ticks.isEmpty());
    QVERIFY(layOut(0, 1e-9, 5).ticks.isEmpty());
}

QTEST_GUILESS_MAIN(tst_MvRulerTickLayout)
#include "tst_MvRulerTickLayout.moc"
