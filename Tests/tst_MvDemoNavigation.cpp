#include "MvDemoFrameMapping.h"
#include "MvDemoNavigation.h"
#include "MvRulerModel.h"

#include <QtTest>

using namespace MvDemoNavigation;

Q_DECLARE_METATYPE(MvDemoNavigation::WheelAction)

namespace {
QString describe(const ScrollBarState& s)
{
    return QStringLiteral("range %1..%2 page %3 step %4 value %5")
        .arg(s.minimum)
        .arg(s.maximum)
        .arg(s.pageStep)
        .arg(s.singleStep)
        .arg(s.value);
}
}

// How the demo's timeline answers scroll bars, the wheel, the keys and a playhead dragged
// against an edge, checked on the decisions alone.
class tst_MvDemoNavigation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void horizontalBarCountsFrames_data();
    void horizontalBarCountsFrames();
    void verticalBarCountsRowPixels_data();
    void verticalBarCountsRowPixels();
    void barValueStaysInsideTheTimeline_data();
    void barValueStaysInsideTheTimeline();
    void wheelOverTheTracks_data();
    void wheelOverTheTracks();
    void playheadPullsTheViewAtTheEdges_data();
    void playheadPullsTheViewAtTheEdges();
    void keysMoveThePlayhead_data();
    void keysMoveThePlayhead();
    void secondsCountWholeFrames_data();
    void secondsCountWholeFrames();
    void mappingLeavesAMarginBeforeFrameZero();
};

void tst_MvDemoNavigation::horizontalBarCountsFrames_data()
{
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("visible");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole timeline in view")
        << qint64(3540) << qint64(0) << qint64(3540) << QStringLiteral("range 0..0 page 3540 step 90 value 0");
    QTest::newRow("zoomed in at the start")
        << qint64(3540) << qint64(0) << qint64(1000) << QStringLiteral("range 0..2540 page 1000 step 90 value 0");
    QTest::newRow("zoomed in at the end")
        << qint64(3540) << qint64(2540) << qint64(1000) << QStringLiteral("range 0..2540 page 1000 step 90 value 2540");
    QTest::newRow("empty timeline") << qint64(0) << qint64(0) << qint64(1)
                                    << QStringLiteral("range 0..0 page 1 step 90 value 0");
    QTest::newRow("longer than an int") << qint64(5000000000) << qint64(4000000000) << qint64(100)
                                        << QStringLiteral("range 0..2147483647 page 100 step 90 value 2147483647");
}

void tst_MvDemoNavigation::horizontalBarCountsFrames()
{
    QFETCH(qint64, total);
    QFETCH(qint64, start);
    QFETCH(qint64, visible);
    QFETCH(QString, expected);
    QCOMPARE(describe(horizontalBar(total, start, visible, 90)), expected);
}

void tst_MvDemoNavigation::verticalBarCountsRowPixels_data()
{
    QTest::addColumn<int>("content");
    QTest::addColumn<int>("viewport");
    QTest::addColumn<int>("scrollY");
    QTest::addColumn<QString>("expected");
    QTest::newRow("rows fit") << 300 << 400 << 0 << QStringLiteral("range 0..0 page 400 step 40 value 0");
    QTest::newRow("large rows, at the top")
        << 820 << 400 << 0 << QStringLiteral("range 0..420 page 400 step 40 value 0");
    QTest::newRow("large rows, last row in view")
        << 820 << 400 << 420 << QStringLiteral("range 0..420 page 400 step 40 value 420");
    QTest::newRow("rows shrank under a scrolled view")
        << 300 << 400 << 420 << QStringLiteral("range 0..0 page 400 step 40 value 0");
    QTest::newRow("collapsed viewport") << 300 << 0 << 0 << QStringLiteral("range 0..300 page 1 step 40 value 0");
}

void tst_MvDemoNavigation::verticalBarCountsRowPixels()
{
    QFETCH(int, content);
    QFETCH(int, viewport);
    QFETCH(int, scrollY);
    QFETCH(QString, expected);
    QCOMPARE(describe(verticalBar(content, viewport, scrollY)), expected);
}

void tst_MvDemoNavigation::barValueStaysInsideTheTimeline_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<qint64>("visible");
    QTest::addColumn<qint64>("expected");
    QTest::newRow("inside") << 500 << qint64(1000) << qint64(500);
    QTest::newRow("past the last page") << 3000 << qint64(1000) << qint64(2540);
    QTest::newRow("negative") << -5 << qint64(1000) << qint64(0);
    QTest::newRow("view wider than the timeline") << 10 << qint64(5000) << qint64(0);
}

void tst_MvDemoNavigation::barValueStaysInsideTheTimeline()
{
    QFETCH(int, value);
    QFETCH(qint64, visible);
    QFETCH(qint64, expected);
    QCOMPARE(visibleStartFor(value, 3540, visible), expected);
}

void tst_MvDemoNavigation::wheelOverTheTracks_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<QPoint>("pixels");
    QTest::addColumn<int>("zoomModifier");
    QTest::addColumn<WheelAction>("action");
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("dy");
    const int ctrl = Qt::ControlModifier;
    const int alt = Qt::AltModifier;
    const int shift = Qt::ShiftModifier;
    const int none = Qt::NoModifier;
    QTest::newRow("wheel down scrolls the rows down")
        << none << QPoint(0, -120) << QPoint() << ctrl << WheelAction::Scroll << 0 << 40;
    QTest::newRow("wheel up scrolls the rows up")
        << none << QPoint(0, 240) << QPoint() << ctrl << WheelAction::Scroll << 0 << -80;
    QTest::newRow("shift turns it sideways")
        << shift << QPoint(0, -120) << QPoint() << ctrl << WheelAction::Scroll << 40 << 0;
    QTest::newRow("shift, turned sideways by the platform")
        << shift << QPoint(120, 0) << QPoint() << ctrl << WheelAction::Scroll << -40 << 0;
    QTest::newRow("a sideways wheel scrolls in time")
        << none << QPoint(-120, 0) << QPoint() << ctrl << WheelAction::Scroll << 40 << 0;
    QTest::newRow("a touchpad scrolls by its pixels")
        << none << QPoint(0, -30) << QPoint(3, -7) << ctrl << WheelAction::Scroll << -3 << 7;
    QTest::newRow("ctrl zooms") << ctrl << QPoint(0, 120) << QPoint() << ctrl << WheelAction::Zoom << 0 << 0;
    QTest::newRow("alt zooms in the alt scheme")
        << alt << QPoint(0, 120) << QPoint() << alt << WheelAction::Zoom << 0 << 0;
    QTest::newRow("ctrl does nothing in the alt scheme")
        << ctrl << QPoint(0, 120) << QPoint() << alt << WheelAction::None << 0 << 0;
    QTest::newRow("ctrl+shift is no gesture")
        << (ctrl | shift) << QPoint(0, 120) << QPoint() << ctrl << WheelAction::None << 0 << 0;
    QTest::newRow("keypad flag is ignored")
        << int(Qt::KeypadModifier) << QPoint(0, -120) << QPoint() << ctrl << WheelAction::Scroll << 0 << 40;
    QTest::newRow("no turn, no step") << ctrl << QPoint() << QPoint() << ctrl << WheelAction::None << 0 << 0;
}

void tst_MvDemoNavigation::wheelOverTheTracks()
{
    QFETCH(int, modifiers);
    QFETCH(QPoint, angle);
    QFETCH(QPoint, pixels);
    QFETCH(int, zoomModifier);
    QFETCH(WheelAction, action);
    QFETCH(int, dx);
    QFETCH(int, dy);
    const WheelStep step
        = wheelStep(Qt::KeyboardModifiers(modifiers), angle, pixels, Qt::KeyboardModifiers(zoomModifier));
    QCOMPARE(step.action, action);
    QCOMPARE(step.dx, dx);
    QCOMPARE(step.dy, dy);
}

void tst_MvDemoNavigation::playheadPullsTheViewAtTheEdges_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("direction");
    QTest::newRow("beyond the left edge") << -30 << -1;
    QTest::newRow("inside the left margin") << 9 << -1;
    QTest::newRow("on the left margin's end") << 10 << 0;
    QTest::newRow("middle") << 300 << 0;
    QTest::newRow("on the right margin's end") << 590 << 0;
    QTest::newRow("inside the right margin") << 591 << 1;
    QTest::newRow("beyond the right edge") << 700 << 1;
}

void tst_MvDemoNavigation::playheadPullsTheViewAtTheEdges()
{
    QFETCH(int, x);
    QFETCH(int, direction);
    QCOMPARE(edgeDirection(x, 600, 10), direction);
}

void tst_MvDemoNavigation::keysMoveThePlayhead_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<qint64>("current");
    QTest::addColumn<qint64>("target");
    const int shift = Qt::ShiftModifier;
    QTest::newRow("right steps a frame") << int(Qt::Key_Right) << 0 << qint64(100) << qint64(101);
    QTest::newRow("left steps a frame back") << int(Qt::Key_Left) << 0 << qint64(100) << qint64(99);
    QTest::newRow("shift+right steps a second") << int(Qt::Key_Right) << shift << qint64(100) << qint64(130);
    QTest::newRow("shift+left steps a second back") << int(Qt::Key_Left) << shift << qint64(100) << qint64(70);
    QTest::newRow("left stops at the start") << int(Qt::Key_Left) << 0 << qint64(0) << qint64(0);
    QTest::newRow("shift+left stops at the start") << int(Qt::Key_Left) << shift << qint64(20) << qint64(0);
    QTest::newRow("shift+right stops at the end") << int(Qt::Key_Right) << shift << qint64(3530) << qint64(3540);
    QTest::newRow("home goes to the start") << int(Qt::Key_Home) << 0 << qint64(900) << qint64(0);
    QTest::newRow("end goes to the end") << int(Qt::Key_End) << 0 << qint64(900) << qint64(3540);
    QTest::newRow("keypad arrows step too") << int(Qt::Key_Right) << int(Qt::KeypadModifier) << qint64(5) << qint64(6);
    QTest::newRow("alt+left is the clip move, not a step")
        << int(Qt::Key_Left) << int(Qt::AltModifier) << qint64(100) << qint64(-1);
    QTest::newRow("ctrl+right is not a step")
        << int(Qt::Key_Right) << int(Qt::ControlModifier) << qint64(100) << qint64(-1);
    QTest::newRow("shift+home is not a jump") << int(Qt::Key_Home) << shift << qint64(100) << qint64(-1);
    QTest::newRow("other keys are left alone") << int(Qt::Key_Space) << 0 << qint64(100) << qint64(-1);
}

void tst_MvDemoNavigation::keysMoveThePlayhead()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(qint64, current);
    QFETCH(qint64, target);
    QCOMPARE(playheadTarget(key, Qt::KeyboardModifiers(modifiers), current, 3540, 30), target);
}

void tst_MvDemoNavigation::secondsCountWholeFrames_data()
{
    QTest::addColumn<int>("numerator");
    QTest::addColumn<int>("denominator");
    QTest::addColumn<int>("frames");
    QTest::newRow("30") << 30 << 1 << 30;
    QTest::newRow("29.97") << 30000 << 1001 << 30;
    QTest::newRow("23.976") << 24000 << 1001 << 24;
    QTest::newRow("25") << 25 << 1 << 25;
}

void tst_MvDemoNavigation::secondsCountWholeFrames()
{
    QFETCH(int, numerator);
    QFETCH(int, denominator);
    QFETCH(int, frames);
    MvRulerModel ruler;
    ruler.setFrameRate(numerator, denominator);
    QCOMPARE(framesPerSecond(&ruler), frames);
    QCOMPARE(framesPerSecond(nullptr), 30);
}

void tst_MvDemoNavigation::mappingLeavesAMarginBeforeFrameZero()
{
    // 600 pixels over 1800 frames: three frames a pixel, with the ruler's 0 at x = 24.
    MvRulerModel ruler;
    ruler.setTotalFrames(1800);
    ruler.setViewWidth(600);
    const MvDemoFrameMapping mapping(&ruler, 24);
    QCOMPARE(mapping.xOf(0), 24);
    QCOMPARE(mapping.xOf(1800), 624);
    QCOMPARE(mapping.frameAt(24), qint64(0));
    QCOMPARE(mapping.frameAt(124), qint64(300));
    QCOMPARE(mapping.framesIn(30), qint64(90));
    QCOMPARE(mapping.framesIn(0), qint64(1));
    ruler.setVisualRange(900, 1200);
    QCOMPARE(mapping.xOf(900), 24);
    QCOMPARE(mapping.frameAt(mapping.xOf(1000)), qint64(1000));
}

QTEST_MAIN(tst_MvDemoNavigation)
#include "tst_MvDemoNavigation.moc"
