#include "MvRulerTickLayout_p.h"

#include <QtTest>

namespace {
MvRulerLayoutInput input(qint64 start, double spacing, qint64 step, int width = 100, int labelWidth = 40)
{
    MvRulerLayoutInput in;
    in.width = width;
    in.height = 28;
    in.start = start;
    in.spacing = spacing;
    in.step = step;
    in.labelWidth = labelWidth;
    return in;
}

QList<double> positions(const MvRulerLayout& layout)
{
    QList<double> xs;
    for (const MvRulerTick& tick : layout.ticks)
        xs.append(tick.x);
    return xs;
}
}

class tst_MvRulerTickLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstTickSitsOnAnAbsoluteMultiple_data();
    void firstTickSitsOnAnAbsoluteMultiple();
    void ticksReachTheRightEdgeItself();
    void majorsEveryFifthTickAreTaller();
    void labelInterval_data();
    void labelInterval();
    void labelsKeepAFivePixelGap();
    void labelsFallOnMajorsCentredOnTheirTick();
    void liftMovesTicksAndLabels();
    void onlyTheVisibleRangeIsWalked();
    void brokenRulerLaysOutNothing();
};

void tst_MvRulerTickLayout::firstTickSitsOnAnAbsoluteMultiple_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("firstFrame");
    QTest::addColumn<double>("firstX");
    QTest::newRow("start at zero") << qint64(0) << qint64(0) << 0.0;
    QTest::newRow("start on a multiple") << qint64(35) << qint64(35) << 0.0;
    QTest::newRow("start of 7 with 5 a tick") << qint64(7) << qint64(10) << 6.0;
    QTest::newRow("start just past a multiple") << qint64(41) << qint64(45) << 8.0;
}

void tst_MvRulerTickLayout::firstTickSitsOnAnAbsoluteMultiple()
{
    QFETCH(qint64, start);
    QFETCH(qint64, firstFrame);
    QFETCH(double, firstX);
    MvRulerLayout layout;
    MvRulerTickLayout::layout(input(start, 10.0, 5), &layout);
    QVERIFY(!layout.ticks.isEmpty());
    QCOMPARE(qint64(layout.ticks.first().frame), firstFrame);
    QCOMPARE(layout.ticks.first().x, firstX);
    for (const MvRulerTick& tick : qAsConst(layout.ticks))
        QCOMPARE(tick.frame % 5, 0);
}

void tst_MvRulerTickLayout::ticksReachTheRightEdgeItself()
{
    MvRulerLayout layout;
    MvRulerTickLayout::layout(input(0, 10.0, 1), &layout);
    QCOMPARE(positions(layout), (QList<double> { 0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100 }));
    MvRulerTickLayout::layout(input(0, 10.0, 1, 99), &layout);
    QCOMPARE(layout.ticks.size(), 10);
    // A fractional spacing is drawn at the whole pixel below.
    MvRulerTickLayout::layout(input(0, 7.5, 3), &layout);
    QCOMPARE(layout.ticks.at(1).left, 7);
    QCOMPARE(layout.ticks.at(3).left, 22);
}

void tst_MvRulerTickLayout::majorsEveryFifthTickAreTaller()
{
    MvRulerLayout layout;
    MvRulerTickLayout::layout(input(7, 10.0, 5), &layout);
    for (const MvRulerTick& tick : qAsConst(layout.ticks)) {
        const bool major = (tick.frame / 5) % 5 == 0;
        QCOMPARE(tick.major, major);
        QCOMPARE(tick.top, major ? 18 : 23);
    }
    QCOMPARE(layout.ticks.at(3).frame, 25);
    QVERIFY(layout.ticks.at(3).major);
}

void tst_MvRulerTickLayout::labelInterval_data()
{
    QTest::addColumn<int>("labelWidth");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<int>("every");
    QTest::newRow("66 wide at 10 px") << 66 << 10.0 << 10;
    QTest::newRow("40 wide at 10 px") << 40 << 10.0 << 5;
    QTest::newRow("exactly five ticks wide") << 50 << 10.0 << 10;
    QTest::newRow("dense ticks") << 66 << 7.0 << 10;
    QTest::newRow("very dense ticks") << 66 << 1.0 << 70;
}

void tst_MvRulerTickLayout::labelInterval()
{
    QFETCH(int, labelWidth);
    QFETCH(double, spacing);
    QFETCH(int, every);
    QCOMPARE(MvRulerTickLayout::labelEvery(labelWidth, spacing), every);
    QVERIFY(every * spacing > labelWidth);
}

void tst_MvRulerTickLayout::labelsKeepAFivePixelGap()
{
    MvRulerLayout layout;
    // 48 wide every 50 px leaves 2 px: every other label goes, its major tick stays.
    MvRulerTickLayout::layout(input(0, 10.0, 1, 300, 48), &layout);
    QCOMPARE(layout.labelEvery, 5);
    QList<int> labelled;
    for (const MvRulerLabel& label : qAsConst(layout.labels))
        labelled.append(label.frame);
    QCOMPARE(labelled, (QList<int> { 0, 10, 20, 30 }));
    QVERIFY(layout.ticks.at(5).major);
    QCOMPARE(layout.ticks.at(5).top, 18);

    // 45 wide leaves exactly 5 px: every label stays.
    MvRulerTickLayout::layout(input(0, 10.0, 1, 300, 45), &layout);
    QCOMPARE(layout.labels.size(), 7);
}

void tst_MvRulerTickLayout::labelsFallOnMajorsCentredOnTheirTick()
{
    MvRulerLayout layout;
    MvRulerTickLayout::layout(input(3, 10.0, 2, 400, 66), &layout);
    QCOMPARE(layout.labelEvery, 10);
    QVERIFY(!layout.labels.isEmpty());
    for (const MvRulerLabel& label : qAsConst(layout.labels)) {
        QCOMPARE((label.frame / 2) % 10, 0);
        const double tickX = (label.frame - 3) * 10.0 / 2;
        QCOMPARE(label.rect, QRectF(tickX - 33, 3, 66, 15));
    }
}

void tst_MvRulerTickLayout::liftMovesTicksAndLabels()
{
    MvRulerLayoutInput in = input(0, 10.0, 1, 100, 40);
    in.dy = -2;
    MvRulerLayout layout;
    MvRulerTickLayout::layout(in, &layout);
    QCOMPARE(layout.ticks.at(0).top, 16);
    QCOMPARE(layout.ticks.at(1).top, 21);
    QCOMPARE(layout.labels.at(0).rect.top(), 1.0);
}

void tst_MvRulerTickLayout::onlyTheVisibleRangeIsWalked()
{
    // Ten hours in, a 3840 px view holds the same few hundred ticks as at the start.
    MvRulerLayout layout;
    MvRulerTickLayout::layout(input(1080000 - 1000, 8.0, 1, 3840, 66), &layout);
    QCOMPARE(layout.ticks.size(), 481);
    QCOMPARE(layout.ticks.first().frame, 1079000);
}

void tst_MvRulerTickLayout::brokenRulerLaysOutNothing()
{
    MvRulerLayout layout;
    MvRulerTickLayout::layout(input(0, 10.0, 0), &layout);
    QVERIFY(layout.ticks.isEmpty());
    MvRulerTickLayout::layout(input(0, 0.0, 5), &layout);
    QVERIFY(layout.ticks.isEmpty());
    MvRulerTickLayout::layout(input(0, 1e-9, 5), &layout);
    QVERIFY(layout.ticks.isEmpty());
}

QTEST_GUILESS_MAIN(tst_MvRulerTickLayout)
#include "tst_MvRulerTickLayout.moc"
