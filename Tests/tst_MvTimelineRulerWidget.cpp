#include "IMvEventFilter.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvEventFilterManager.h"
#include "MvRulerGesture_p.h"
#include "MvRulerModel.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QtTest>

namespace {

constexpr int kWidth = 600;

// Notes the playhead's frame whenever the timeline's actions are recomputed.
class HostPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    void updateAction() override { menuAt.append(timeline()->playhead()->currentFrame()); }
    QList<qint64> menuAt;
};

// Counts its inits and notes every x the widget hands on for the playhead.
class CountingRulerPresenter : public MvTimelineRulerPresenter
{
public:
    using MvTimelineRulerPresenter::MvTimelineRulerPresenter;
    void init() override { ++inits; }
    void changePlayheadPosition(int x) override
    {
        positions.append(x);
        MvTimelineRulerPresenter::changePlayheadPosition(x);
    }
    int inits = 0;
    QList<int> positions;
};

class CountingRulerWidget : public MvTimelineRulerWidget
{
public:
    using MvTimelineRulerWidget::MvTimelineRulerWidget;
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        MvTimelineRulerWidget::paintEvent(event);
    }
    int paints = 0;
};

// An overlay that takes the presses it is offered, as the playhead widget does over its head.
class PressTaker : public IMvEventFilter
{
public:
    bool onFilterEvent(QEvent* event) override { return event->type() == QEvent::MouseButtonPress; }
};

// A one-minute timeline at 30 fps under a 600 px ruler (three frames a pixel), with its presenters.
struct Fixture
{
    Fixture()
    {
        timeline.addTrack(MVVBLMODEL::TrackType_Picture);
        timeline.addClip(0, MVVBLMODEL::ClipType_Video, 0, 1799, QStringLiteral("minute"));
        widget.resize(kWidth, 28);
    }
    MvMemoryTimeline timeline;
    MvRulerModel* ruler = timeline.rulerImpl();
    HostPresenter host { nullptr, &timeline };
    CountingRulerPresenter presenter { &host, nullptr };
    CountingRulerWidget widget { &presenter, nullptr };
};

void moveWithLeftButton(QWidget* widget, const QPoint& pos)
{
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

}

class tst_MvTimelineRulerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void gesturesGoThroughThePresenter();
    void theWidgetFollowsItsPresenter();
    void overlaysSeeEventsFirst();

private:
    QScopedPointer<Fixture> m_f;
    qint64 m_now = 0;
};

void tst_MvTimelineRulerWidget::init()
{
    m_f.reset(new Fixture);
    m_f->widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_f->widget));
    m_f->widget.findChild<MvRulerGesture*>()->setClock([this] { return m_now; });
}

void tst_MvTimelineRulerWidget::overlaysSeeEventsFirst()
{
    PressTaker overlay;
    MvEventFilterManager* filters = m_f->widget.eventFilterMgr();
    filters->addFilter(&overlay);
    filters->setCursor(Qt::PointingHandCursor);
    const qint64 before = m_f->timeline.playhead()->currentFrame();
    QTest::mouseClick(&m_f->widget, Qt::LeftButton, Qt::NoModifier, QPoint(300, 5));
    // The press was consumed: the release alone is no click, and the overlay's cursor shows.
    QCOMPARE(m_f->timeline.playhead()->currentFrame(), before);
    QCOMPARE(m_f->widget.cursor().shape(), Qt::PointingHandCursor);
    filters->removeFilter(&overlay);
    QTest::mouseClick(&m_f->widget, Qt::LeftButton, Qt::NoModifier, QPoint(300, 5));
    QCOMPARE(m_f->timeline.playhead()->currentFrame(), qint64(900));
}

void tst_MvTimelineRulerWidget::gesturesGoThroughThePresenter()
{
    QWidget* widget = &m_f->widget;
    // The playhead moves first, then the timeline's actions are recomputed.
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(300, 5));
    QCOMPARE(m_f->host.menuAt, QList<qint64> { 900 });
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(306, 5)); // on the handle: no seek
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, QPoint(100, 5)); // without a press: ignored
    QCOMPARE(m_f->host.menuAt.size(), 1);

    m_f->ruler->setVisualRange(600, 1200); // a frame a pixel, the handle still at 300
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, QPoint(294, 5));
    moveWithLeftButton(widget, QPoint(kWidth + 50, 5));
    moveWithLeftButton(widget, QPoint(-20, 5));
    // The handle stays on the widget: the presenter gets its edges, whatever the model would make of more.
    QCOMPARE(m_f->presenter.positions, QList<int>({ 300, kWidth, 0 }));
    QCOMPARE(m_f->timeline.playhead()->currentFrame(), qint64(600));
    widget->findChild<MvRulerGesture*>()->edgeScrollStep(); // 30 px back
    QCOMPARE(m_f->ruler->currentFrame(), qint64(570));
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, QPoint(-20, 5));

    // Zoom drags and the wheel zoom by the presenter, the wheel recentring on the current frame.
    m_f->timeline.playhead()->setCurrentFrame(1000);
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, QPoint(500, 5));
    QVERIFY(m_f->ruler->isZooming());
    m_now = 250;
    moveWithLeftButton(widget, QPoint(529, 5)); // 29 px right zooms in by 29, from a frame a pixel
    const double zoomedIn = std::exp2(29.0 / MvRulerModel::kZoomUnitsPerDoubling);
    QVERIFY(qAbs(m_f->ruler->zoomRatio() - zoomedIn) < 1e-5);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, QPoint(529, 5));
    QVERIFY(!m_f->ruler->isZooming());
    QWheelEvent wheel(QPoint(100, 10), widget->mapToGlobal(QPoint(100, 10)), QPoint(), QPoint(0, 120), Qt::NoButton,
        Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
    QVERIFY(qAbs(m_f->ruler->zoomRatio() - zoomedIn * std::exp2(15.0 / MvRulerModel::kZoomUnitsPerDoubling)) < 1e-5);
    QVERIFY(qAbs(m_f->ruler->frameToPixel(1000) - kWidth / 2) <= 1);
}

void tst_MvTimelineRulerWidget::theWidgetFollowsItsPresenter()
{
    CountingRulerWidget& widget = m_f->widget;
    const auto paintsAfter = [&widget](void (MvTimelineRulerPresenter::*signal)(), MvTimelineRulerPresenter* source) {
        QCoreApplication::processEvents();
        widget.paints = 0;
        Q_EMIT(source->*signal)();
        QCoreApplication::processEvents();
        return widget.paints;
    };
    QCOMPARE(paintsAfter(&MvTimelineRulerPresenter::minVisualChanged, &m_f->presenter), 0);
    QCOMPARE(paintsAfter(&MvTimelineRulerPresenter::sigViewWidthChanged, &m_f->presenter), 0);
    for (auto signal : { &MvTimelineRulerPresenter::frameRateChanged, &MvTimelineRulerPresenter::zoomChanged,
             &MvTimelineRulerPresenter::visualRangeChanged, &MvTimelineRulerPresenter::totalFrameChanged })
        QCOMPARE(paintsAfter(signal, &m_f->presenter), 1);
    widget.hide();
    widget.show();
    QCOMPARE(m_f->presenter.inits, 1); // the first show only
    {
        CountingRulerPresenter other(&m_f->host, nullptr);
        widget.setPresenter(&other);
        QCOMPARE(paintsAfter(&MvTimelineRulerPresenter::zoomChanged, &m_f->presenter), 0);
        QCOMPARE(paintsAfter(&MvTimelineRulerPresenter::zoomChanged, &other), 1);
    }
    // The presenter went first: the widget let go of it and does nothing.
    widget.setCursor(Qt::CrossCursor);
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(300, 5));
    moveWithLeftButton(&widget, QPoint(200, 5));
    widget.repaint();
    QCOMPARE(widget.cursor().shape(), Qt::CrossCursor);
}

QTEST_MAIN(tst_MvTimelineRulerWidget)
#include "tst_MvTimelineRulerWidget.moc"
