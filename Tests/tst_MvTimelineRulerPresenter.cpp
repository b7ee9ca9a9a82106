#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryRuler.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvScreen.h"
#include "MvSkinStyle.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {

// A host presenter that counts action refreshes.
class HostPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    int refreshes = 0;

    void updateAction() override { ++refreshes; }
};

// A view that lets the presenter paint it, as the ruler widget does.
class PaintedByPresenter : public QWidget
{
public:
    explicit PaintedByPresenter(MvTimelineRulerPresenter* presenter)
        : presenter(presenter)
    {
    }
    MvTimelineRulerPresenter* presenter;

protected:
    void paintEvent(QPaintEvent*) override { presenter->paint(this); }
};

struct Fixture
{
    Fixture()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 1799, QStringLiteral("minute"));
        ruler()->setViewWidth(600);
    }

    MvMemoryRuler* ruler() const { return static_cast<MvMemoryRuler*>(timeline.ruler()); }

    MvMemoryTimeline timeline;
    HostPresenter host { nullptr, &timeline };
};

}

class tst_MvTimelineRulerPresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void registersWithRulerAndPlayheadAndLeavesOnDestruction();
    void withoutATimelineNothingHappens();
    void signalsAreDeclaredInTheirOrder();
    void rulerNotificationsBecomeSignals();
    void currentFrameNotificationEmitsNothing();
    void playheadMovesBringTheRulerAlong();
    void otherPlayheadNotificationsLeaveTheRuler();
    void setViewWithSetsTheWidthAndSignals();
    void forwardsZoomAndRangeQueries();
    void handleFollowsTheCurrentFrame();
    void changePlayheadPositionMovesThePlayhead();
    void edgeScrollStep_data();
    void edgeScrollStep();
    void updateTimelineMenuRefreshesTheActions();
    void paintsTheRulerOntoItsView();
};

void tst_MvTimelineRulerPresenter::init()
{
    MvScreen::setDevicePixelRatio(1.0);
}

void tst_MvTimelineRulerPresenter::cleanup()
{
    MvScreen::setDevicePixelRatio(0.0);
}

void tst_MvTimelineRulerPresenter::registersWithRulerAndPlayheadAndLeavesOnDestruction()
{
    Fixture f;
    const int rulerBefore = f.ruler()->observerCount();
    const int playheadBefore = f.timeline.playheadImpl()->observerCount();
    {
        MvTimelineRulerPresenter presenter(&f.host, nullptr);
        QCOMPARE(f.ruler()->observerCount(), rulerBefore + 1);
        QCOMPARE(f.timeline.playheadImpl()->observerCount(), playheadBefore + 1);
    }
    QCOMPARE(f.ruler()->observerCount(), rulerBefore);
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), playheadBefore);
}

void tst_MvTimelineRulerPresenter::withoutATimelineNothingHappens()
{
    MvTimelineRulerPresenter orphan(nullptr, nullptr);
    QSignalSpy width(&orphan, &MvTimelineRulerPresenter::sigViewWidthChanged);
    orphan.setViewWith(300);
    orphan.moveCurrentFrameToCenter();
    orphan.moveRulerRange(true);
    orphan.zoom(10);
    orphan.changePlayheadPosition(20);
    orphan.updateTimelineMenu();
    QCOMPARE(width.count(), 0);
    QCOMPARE(orphan.totalFrames(), qint64(0));
    QCOMPARE(orphan.handlePosition(), 0);

    // A presenter over a timeline presenter without a timeline is just as inert.
    MvTimelinePresenter empty(nullptr, nullptr);
    MvTimelineRulerPresenter overEmpty(&empty, nullptr);
    overEmpty.setViewWith(300);

    PaintedByPresenter view(&orphan);
    view.resize(200, 28);
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    view.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    for (int x = 0; x < image.width(); x += 7)
        QCOMPARE(image.pixel(x, 20), QColor(Qt::magenta).rgb());
}

void tst_MvTimelineRulerPresenter::signalsAreDeclaredInTheirOrder()
{
    const QMetaObject& meta = MvTimelineRulerPresenter::staticMetaObject;
    const QList<QByteArray> expected { "zoomChanged()", "frameRateChanged()", "visualRangeChanged()",
        "totalFrameChanged()", "minVisualChanged()", "sigViewWidthChanged()" };
    int previous = -1;
    for (const QByteArray& signature : expected) {
        const int index = meta.indexOfSignal(signature.constData());
        QVERIFY2(index > previous, signature.constData());
        previous = index;
    }
}

void tst_MvTimelineRulerPresenter::rulerNotificationsBecomeSignals()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    QSignalSpy zoom(&presenter, &MvTimelineRulerPresenter::zoomChanged);
    QSignalSpy rate(&presenter, &MvTimelineRulerPresenter::frameRateChanged);
    QSignalSpy range(&presenter, &MvTimelineRulerPresenter::visualRangeChanged);
    QSignalSpy total(&presenter, &MvTimelineRulerPresenter::totalFrameChanged);
    QSignalSpy minimum(&presenter, &MvTimelineRulerPresenter::minVisualChanged);

    presenter.zoom(-45);
    QCOMPARE(zoom.count(), 1);
    QCOMPARE(range.count(), 1);
    f.timeline.setFrameRate(25, 1);
    QCOMPARE(rate.count(), 1);
    f.timeline.addClip(0, ClipType_Video, 1800, 2399, QStringLiteral("more"));
    QCOMPARE(total.count(), 1);
    QCOMPARE(minimum.count(), 1);
    QCOMPARE(presenter.totalFrames(), qint64(2400));
}

void tst_MvTimelineRulerPresenter::currentFrameNotificationEmitsNothing()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    const QList<QSignalSpy*> spies { new QSignalSpy(&presenter, &MvTimelineRulerPresenter::zoomChanged),
        new QSignalSpy(&presenter, &MvTimelineRulerPresenter::frameRateChanged),
        new QSignalSpy(&presenter, &MvTimelineRulerPresenter::visualRangeChanged),
        new QSignalSpy(&presenter, &MvTimelineRulerPresenter::totalFrameChanged),
        new QSignalSpy(&presenter, &MvTimelineRulerPresenter::minVisualChanged),
        new QSignalSpy(&presenter, &MvTimelineRulerPresenter::sigViewWidthChanged) };
    f.ruler()->setCurrentFrame(100); // visible already: only a kind 1 notification
    QCOMPARE(f.ruler()->currentFrame(), qint64(100));
    for (QSignalSpy* spy : spies)
        QCOMPARE(spy->count(), 0);
    qDeleteAll(spies);
}

void tst_MvTimelineRulerPresenter::playheadMovesBringTheRulerAlong()
{
    Fixture f;
    f.ruler()->setVisualRange(0, 300);
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    QSignalSpy range(&presenter, &MvTimelineRulerPresenter::visualRangeChanged);
    f.timeline.playhead()->setCurrentFrame(1000);
    QCOMPARE(f.ruler()->currentFrame(), qint64(1000));
    // The ruler scrolled to keep the playhead's frame in view.
    QVERIFY(f.ruler()->visibleStartFrame() <= 1000 && f.ruler()->visibleEndFrame() >= 1000);
    QCOMPARE(range.count(), 1);
}

void tst_MvTimelineRulerPresenter::otherPlayheadNotificationsLeaveTheRuler()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    f.timeline.playhead()->setCurrentFrame(500);
    f.ruler()->setCurrentFrame(20); // the ruler strays on its own
    f.timeline.playhead()->setVisible(false);
    f.timeline.playhead()->setEnabled(false);
    QCOMPARE(f.ruler()->currentFrame(), qint64(20));
}

void tst_MvTimelineRulerPresenter::setViewWithSetsTheWidthAndSignals()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    QSignalSpy width(&presenter, &MvTimelineRulerPresenter::sigViewWidthChanged);
    presenter.setViewWith(900);
    QCOMPARE(f.ruler()->viewWidth(), 900);
    QCOMPARE(width.count(), 1);
    // The ruler is told even when nothing changes; the view asked, the signal follows.
    presenter.setViewWith(900);
    QCOMPARE(width.count(), 2);
}

void tst_MvTimelineRulerPresenter::forwardsZoomAndRangeQueries()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    QCOMPARE(presenter.zoomRatio(), f.ruler()->minZoomRatio());
    QCOMPARE(presenter.minZoomRatio(), f.ruler()->minZoomRatio());
    QCOMPARE(presenter.visualFrames(), qint64(1800));
    presenter.changeZoomRatio(2.0f);
    QCOMPARE(presenter.zoomRatio(), 2.0f);
    QCOMPARE(presenter.visualFrames(), qint64(300));
    presenter.beginZoom();
    QVERIFY(f.ruler()->isZooming());
    presenter.zoom(45);
    QCOMPARE(presenter.zoomRatio(), 1.0f);
    presenter.endZoom();
    QVERIFY(!f.ruler()->isZooming());
    f.ruler()->setCurrentFrame(1700);
    presenter.changeZoomRatio(4.0f);
    f.ruler()->setVisualRange(0, 150);
    presenter.moveCurrentFrameToCenter();
    QCOMPARE(f.ruler()->frameToPixel(1700), 300);
}

void tst_MvTimelineRulerPresenter::handleFollowsTheCurrentFrame()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    f.timeline.playhead()->setCurrentFrame(900);
    QCOMPARE(presenter.handlePosition(), 300);
    f.ruler()->setVisualRange(600, 1200);
    QCOMPARE(presenter.handlePosition(), 300);
    f.ruler()->setVisualRange(1000, 1600); // the handle may lie outside the view
    QCOMPARE(presenter.handlePosition(), -100);
}

void tst_MvTimelineRulerPresenter::changePlayheadPositionMovesThePlayhead()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    presenter.changePlayheadPosition(200);
    QCOMPARE(f.timeline.playhead()->currentFrame(), qint64(600));
    QCOMPARE(f.ruler()->currentFrame(), qint64(600));
    QCOMPARE(presenter.handlePosition(), 200);
}

void tst_MvTimelineRulerPresenter::edgeScrollStep_data()
{
    QTest::addColumn<float>("ratio");
    QTest::addColumn<qint64>("from");
    QTest::addColumn<bool>("backward");
    QTest::addColumn<qint64>("to");
    QTest::newRow("backward at frame 0 stays") << 0.0f << qint64(0) << true << qint64(0);
    QTest::newRow("forward at the last frame stays") << 0.0f << qint64(1800) << false << qint64(1800);
    QTest::newRow("zoomed out: 30 px of frames") << 0.0f << qint64(900) << true << qint64(810);
    QTest::newRow("forward stops at the total") << 0.0f << qint64(1750) << false << qint64(1800);
    QTest::newRow("zoomed in: at least one frame") << 24.0f << qint64(900) << false << qint64(901);
    QTest::newRow("a frame a pixel") << 1.0f << qint64(900) << true << qint64(870);
}

void tst_MvTimelineRulerPresenter::edgeScrollStep()
{
    QFETCH(float, ratio);
    QFETCH(qint64, from);
    QFETCH(bool, backward);
    QFETCH(qint64, to);
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    if (ratio > 0)
        presenter.changeZoomRatio(ratio);
    f.ruler()->setCurrentFrame(from);
    presenter.moveRulerRange(backward);
    QCOMPARE(f.ruler()->currentFrame(), to);
    QVERIFY(to >= f.ruler()->visibleStartFrame() && to <= f.ruler()->visibleEndFrame());
}

void tst_MvTimelineRulerPresenter::updateTimelineMenuRefreshesTheActions()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    presenter.updateTimelineMenu();
    presenter.updateTimelineMenu();
    QCOMPARE(f.host.refreshes, 2);
}

void tst_MvTimelineRulerPresenter::paintsTheRulerOntoItsView()
{
    Fixture f;
    MvTimelineRulerPresenter presenter(&f.host, nullptr);
    presenter.setViewWith(600);
    PaintedByPresenter view(&presenter);
    view.resize(600, 28);
    QPalette palette = view.palette();
    palette.setColor(QPalette::Window, QColor(10, 20, 30));
    view.setPalette(palette);
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    view.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());

    const QRgb ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary()).rgb();
    QCOMPARE(image.pixel(3, 2), QColor(10, 20, 30).rgb()); // the background is the view's window colour
    int tickColumns = 0;
    for (int x = 0; x < image.width(); ++x)
        tickColumns += image.pixel(x, 27) == ink ? 1 : 0;
    const int expected = int(600 / f.ruler()->tickSpacing()) + 1;
    QVERIFY2(qAbs(tickColumns - expected) <= 1, qPrintable(QString::number(tickColumns)));
}

QTEST_MAIN(tst_MvTimelineRulerPresenter)
#include "tst_MvTimelineRulerPresenter.moc"
