#include "IMvShortcutEditManager.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryRuler.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvEventFilterManager.h"
#include "MvRulerGesture_p.h"
#include "MvScreen.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 28;

// Every call the ruler widget makes that the test wants to see, in order.
using Journal = QStringList;

class HostPresenter : public MvTimelinePresenter
{
public:
    HostPresenter(IMvTimeline* timeline, Journal* journal)
        : MvTimelinePresenter(nullptr, timeline)
        , journal(journal)
    {
    }
    void updateAction() override { journal->append(QStringLiteral("menu")); }
    Journal* journal;
};

class RecordingRulerPresenter : public MvTimelineRulerPresenter
{
public:
    RecordingRulerPresenter(MvTimelinePresenter* host, Journal* journal)
        : MvTimelineRulerPresenter(host, nullptr)
        , journal(journal)
    {
    }
    void init() override { ++inits; }
    void changePlayheadPosition(int x) override
    {
        journal->append(QStringLiteral("position %1").arg(x));
        MvTimelineRulerPresenter::changePlayheadPosition(x);
    }
    Journal* journal;
    int inits = 0;
};

class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
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
    void cleanup();

    void resizeTellsThePresenterTheWidth();
    void clickMovesThePlayheadThenRefreshesTheMenu();
    void handleDragHandsClampedPositions();
    void pressOnTheHandleWithoutMovingDoesNotSeek();
    void edgeScrollingGoesThroughThePresenter();
    void dragToZoomGoesThroughThePresenter();
    void wheelZoomsAndRecentres();
    void releaseWithoutPressIsIgnored();
    void onlyFourPresenterSignalsRepaint();
    void replacedPresenterIsDisconnected();
    void onlyTheFirstShowInitialisesThePresenter();
    void withoutPresenterTheWidgetIsInert();
    void presenterDeletedFirstLeavesTheWidgetInert();

private:
    MvMemoryRuler* ruler() const { return static_cast<MvMemoryRuler*>(m_timeline->ruler()); }
    void pressRelease(const QPoint& pos);

    Journal m_journal;
    QScopedPointer<MvMemoryTimeline> m_timeline;
    QScopedPointer<HostPresenter> m_host;
    QScopedPointer<RecordingRulerPresenter> m_presenter;
    QScopedPointer<MvTimelineRulerWidget> m_widget;
    qint64 m_now = 0;
};

void tst_MvTimelineRulerWidget::init()
{
    MvScreen::setDevicePixelRatio(1.0);
    m_journal.clear();
    m_timeline.reset(new MvMemoryTimeline);
    m_timeline->addTrack(TrackType_Picture);
    m_timeline->addClip(0, ClipType_Video, 0, 1799, QStringLiteral("minute"));
    m_host.reset(new HostPresenter(m_timeline.data(), &m_journal));
    m_presenter.reset(new RecordingRulerPresenter(m_host.data(), &m_journal));
    m_widget.reset(new MvTimelineRulerWidget(m_presenter.data(), nullptr));
    m_widget->resize(kWidth, kHeight);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.data()));
    m_widget->findChild<MvRulerGesture*>()->setClock([this] { return m_now; });
}

void tst_MvTimelineRulerWidget::cleanup()
{
    m_widget.reset();
    m_presenter.reset();
    m_host.reset();
    m_timeline.reset();
    MvScreen::setDevicePixelRatio(0.0);
}

void tst_MvTimelineRulerWidget::pressRelease(const QPoint& pos)
{
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, pos);
}

void tst_MvTimelineRulerWidget::resizeTellsThePresenterTheWidth()
{
    QCOMPARE(ruler()->viewWidth(), kWidth);
    QSignalSpy width(m_presenter.data(), &MvTimelineRulerPresenter::sigViewWidthChanged);
    m_widget->resize(900, kHeight);
    QCOMPARE(width.count(), 1);
    QCOMPARE(ruler()->viewWidth(), 900);
}

void tst_MvTimelineRulerWidget::clickMovesThePlayheadThenRefreshesTheMenu()
{
    pressRelease(QPoint(300, 20));
    QCOMPARE(m_journal, (Journal { QStringLiteral("position 300"), QStringLiteral("menu") }));
    QCOMPARE(m_timeline->playhead()->currentFrame(), qint64(900));
    QCOMPARE(ruler()->currentFrame(), qint64(900));
}

void tst_MvTimelineRulerWidget::handleDragHandsClampedPositions()
{
    m_timeline->playhead()->setCurrentFrame(600); // handle at 200
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(205, 5));
    moveWithLeftButton(m_widget.data(), QPoint(-20, 5));
    moveWithLeftButton(m_widget.data(), QPoint(kWidth + 50, 5));
    moveWithLeftButton(m_widget.data(), QPoint(150, 5));
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(150, 5));
    QCOMPARE(m_journal,
        (Journal {
            QStringLiteral("position 0"), QStringLiteral("position %1").arg(kWidth), QStringLiteral("position 150") }));
    QCOMPARE(m_timeline->playhead()->currentFrame(), qint64(450));
    QCOMPARE(ruler()->currentFrame(), qint64(450));
}

void tst_MvTimelineRulerWidget::pressOnTheHandleWithoutMovingDoesNotSeek()
{
    m_timeline->playhead()->setCurrentFrame(600);
    pressRelease(QPoint(194, 5));
    QVERIFY(m_journal.isEmpty());
    QCOMPARE(m_timeline->playhead()->currentFrame(), qint64(600));
    pressRelease(QPoint(400, 5));
    QCOMPARE(m_journal.size(), 2);
}

void tst_MvTimelineRulerWidget::edgeScrollingGoesThroughThePresenter()
{
    ruler()->setVisualRange(600, 1200);
    m_timeline->playhead()->setCurrentFrame(900);
    auto* gesture = m_widget->findChild<MvRulerGesture*>();
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 5));
    QVERIFY(gesture->edgeScrollTimer()->isActive());
    moveWithLeftButton(m_widget.data(), QPoint(5, 5));
    QCOMPARE(ruler()->currentFrame(), qint64(605));
    gesture->edgeScrollStep();
    QCOMPARE(ruler()->currentFrame(), qint64(575));
    QCOMPARE(ruler()->visibleStartFrame(), qint64(575));
    moveWithLeftButton(m_widget.data(), QPoint(kWidth - 10, 5));
    const qint64 atMargin = ruler()->currentFrame();
    gesture->edgeScrollStep();
    QCOMPARE(ruler()->currentFrame(), atMargin);
    moveWithLeftButton(m_widget.data(), QPoint(kWidth - 9, 5));
    const qint64 pastMargin = ruler()->currentFrame();
    gesture->edgeScrollStep();
    QCOMPARE(ruler()->currentFrame(), pastMargin + 30);
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(kWidth - 9, 5));
    QVERIFY(!gesture->edgeScrollTimer()->isActive());
}

void tst_MvTimelineRulerWidget::dragToZoomGoesThroughThePresenter()
{
    ruler()->setVisualRange(600, 1200);
    m_timeline->playhead()->setCurrentFrame(900);
    MvMemoryRuler expected;
    expected.setViewWidth(kWidth);
    expected.setTotalFrames(1800);
    expected.setVisualRange(600, 1200);
    expected.setCurrentFrame(900);
    expected.beginZoom();
    expected.zoom(29);

    m_now = 0;
    QTest::mousePress(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(400, 5));
    QVERIFY(ruler()->isZooming());
    m_now = 250;
    moveWithLeftButton(m_widget.data(), QPoint(380, 5));
    QCOMPARE(ruler()->zoomRatio(), 1.0f);
    moveWithLeftButton(m_widget.data(), QPoint(371, 5));
    QCOMPARE(ruler()->zoomRatio(), expected.zoomRatio());
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(371, 5));
    QVERIFY(!ruler()->isZooming());
    QVERIFY(m_journal.isEmpty()); // a zoom drag is no click
}

void tst_MvTimelineRulerWidget::wheelZoomsAndRecentres()
{
    auto* shortcuts = new MvShortcutEditManager;
    shortcuts->setCurrentSchemeType(2);
    IMvShortcutEditManager::SetInstance(shortcuts);
    m_timeline->playhead()->setCurrentFrame(1000);
    const float before = ruler()->zoomRatio();
    const QPoint pos(100, 10);
    QWheelEvent ctrl(pos, m_widget->mapToGlobal(pos), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_widget.data(), &ctrl);
    QCOMPARE(ruler()->zoomRatio(), before);
    QWheelEvent alt(pos, m_widget->mapToGlobal(pos), QPoint(), QPoint(240, 0), Qt::NoButton, Qt::AltModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_widget.data(), &alt);
    QVERIFY(qAbs(ruler()->zoomRatio() - before * std::exp2(30.0 / MvMemoryRuler::kZoomUnitsPerDoubling)) < 1e-5);
    QVERIFY(qAbs(ruler()->frameToPixel(1000) - kWidth / 2) <= 1);
    IMvShortcutEditManager::SetInstance(nullptr);
    delete shortcuts;
}

void tst_MvTimelineRulerWidget::releaseWithoutPressIsIgnored()
{
    m_presenter->beginZoom();
    QTest::mouseRelease(m_widget.data(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 5));
    QVERIFY(ruler()->isZooming()); // endZoom was not called
    QVERIFY(m_journal.isEmpty());
    m_presenter->endZoom();
}

void tst_MvTimelineRulerWidget::onlyFourPresenterSignalsRepaint()
{
    PaintCounter counter;
    m_widget->installEventFilter(&counter);
    QCoreApplication::processEvents();
    counter.paints = 0;
    Q_EMIT m_presenter->minVisualChanged();
    Q_EMIT m_presenter->sigViewWidthChanged();
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, 0);
    for (auto signal : { &MvTimelineRulerPresenter::frameRateChanged, &MvTimelineRulerPresenter::zoomChanged,
             &MvTimelineRulerPresenter::visualRangeChanged, &MvTimelineRulerPresenter::totalFrameChanged }) {
        counter.paints = 0;
        Q_EMIT(m_presenter.data()->*signal)();
        QTRY_COMPARE(counter.paints, 1);
    }
    m_widget->removeEventFilter(&counter);
}

void tst_MvTimelineRulerWidget::replacedPresenterIsDisconnected()
{
    RecordingRulerPresenter other(m_host.data(), &m_journal);
    m_widget->setPresenter(&other);
    PaintCounter counter;
    m_widget->installEventFilter(&counter);
    QCoreApplication::processEvents();
    counter.paints = 0;
    Q_EMIT m_presenter->zoomChanged();
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, 0);
    Q_EMIT other.zoomChanged();
    QTRY_COMPARE(counter.paints, 1);
    pressRelease(QPoint(300, 5));
    QCOMPARE(m_journal.first(), QStringLiteral("position 300"));
    m_widget->removeEventFilter(&counter);
    m_widget->setPresenter(m_presenter.data());
}

void tst_MvTimelineRulerWidget::onlyTheFirstShowInitialisesThePresenter()
{
    QCOMPARE(m_presenter->inits, 1);
    m_widget->hide();
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.data()));
    QCOMPARE(m_presenter->inits, 1);
}

void tst_MvTimelineRulerWidget::withoutPresenterTheWidgetIsInert()
{
    MvTimelineRulerWidget bare(nullptr, nullptr);
    bare.resize(kWidth, kHeight);
    bare.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bare));
    bare.setCursor(Qt::CrossCursor);
    QTest::mousePress(&bare, Qt::LeftButton, Qt::NoModifier, QPoint(300, 5));
    moveWithLeftButton(&bare, QPoint(200, 5));
    QTest::mouseRelease(&bare, Qt::LeftButton, Qt::NoModifier, QPoint(200, 5));
    QCOMPARE(bare.cursor().shape(), Qt::CrossCursor);
    QImage image(bare.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    bare.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(image.pixel(300, 27), QColor(Qt::magenta).rgb());
    QVERIFY(bare.eventFilterMgr());
}

void tst_MvTimelineRulerWidget::presenterDeletedFirstLeavesTheWidgetInert()
{
    const int observers = ruler()->observerCount();
    m_presenter.reset();
    QCOMPARE(ruler()->observerCount(), observers - 1);
    pressRelease(QPoint(300, 5));
    m_widget->resize(700, kHeight);
    QVERIFY(m_journal.isEmpty());
}

QTEST_MAIN(tst_MvTimelineRulerWidget)
#include "tst_MvTimelineRulerWidget.moc"
