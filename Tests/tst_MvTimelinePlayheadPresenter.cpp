#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryRuler.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvRecordingScene.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePresenter.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;
using MVWIDGETS::MvWidgetStyleStatus;

Q_DECLARE_METATYPE(MVWIDGETS::MvWidgetStyleStatus)

namespace {
// A timeline presenter that records the splits asked of it.
class SplitRecordingPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    struct Call
    {
        qint64 frame;
        bool select;
        bool prepareFlag;
    };
    QList<Call> splits;

    bool splitClips(qint64 frame, bool select, bool prepareFlag) override
    {
        splits.append({ frame, select, prepareFlag });
        return true;
    }
};

// A host presenter that claims the playhead is enabled whatever the model says, and supplies a
// head image per status.
class EnabledOverridePresenter : public MvTimelinePlayheadPresenter
{
public:
    using MvTimelinePlayheadPresenter::MvTimelinePlayheadPresenter;
    bool playheadEnabled() override { return true; }

protected:
    QImage getPlayheadPixmap(MvWidgetStyleStatus status) override
    {
        QImage image(12, 12, QImage::Format_ARGB32_Premultiplied);
        image.fill(QColor(int(status) * 10, 0, 0));
        return image;
    }
};

// One 1000-frame clip in a 1000 px view: frame f is at pixel f.
struct Project
{
    MvMemoryTimeline timeline;
    MvRecordingScene scene;
    SplitRecordingPresenter timelinePresenter { nullptr, &timeline };

    Project()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 999, QStringLiteral("a"));
        timeline.ruler()->setViewWidth(1000);
        timelinePresenter.setScene(&scene);
    }
    MvMemoryRuler* ruler() const { return dynamic_cast<MvMemoryRuler*>(timeline.ruler()); }
};

QImage solid(const QColor& color)
{
    QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}
}

class tst_MvTimelinePlayheadPresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void freshPresenterHasTheDefaultGeometry();
    void splitButtonYIsClamped_data();
    void splitButtonYIsClamped();
    void minYIsAppliedOnTheNextWriteOnly();
    void sizeChangeDoesNotReclamp();
    void headGeometryFollowsThePosition();
    void splitButtonRectHalvesTheWidth();
    void captureRectIsEmptyWhileTheButtonIsHidden();
    void disabledPlayheadResolvesToTheDisabledStatus();
    void missingStatusGivesNoFallback();
    void colourAsksTheVirtualEnabledStateButImagesAskTheModel();
    void updatePositionMovesPlayheadAndButton();
    void playheadKindsRepaint_data();
    void playheadKindsRepaint();
    void everyRulerEventRepaints();
    void registersWithPlayheadAndRulerAndLeaves();
    void splitAsksTheTimelinePresenter();
    void presenterWithoutTimelineRefusesQuietly();
};

void tst_MvTimelinePlayheadPresenter::init()
{
    qRegisterMetaType<MvWidgetStyleStatus>();
}

void tst_MvTimelinePlayheadPresenter::freshPresenterHasTheDefaultGeometry()
{
    Project project;
    QCOMPARE(project.timeline.ruler()->frameToPixel(100), 100);
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    QCOMPARE(presenter.splitButtonY(), 67);
    QCOMPARE(presenter.splitButtonSize(), QSize(40, 35));
    presenter.updateViewRect(QRect(0, 0, 400, 200));
    QCOMPARE(presenter.splitButtonYRange(), MvRange<int>(0, 165));
    QCOMPARE(presenter.maxRange(), MvRange<int>(0, 400));
    const MvPlayheadData* data = presenter.playheadData();
    QCOMPARE(data->lineTop, 12);
    QCOMPARE(data->lineWidth, 2);
    QCOMPARE(data->status, MVWIDGETS::Normal);
    QVERIFY(data->colors.isEmpty());
    QVERIFY(data->splitButtonImages.isEmpty());
    QCOMPARE(presenter.timelinePresenter(), &project.timelinePresenter);
}

void tst_MvTimelinePlayheadPresenter::splitButtonYIsClamped_data()
{
    QTest::addColumn<int>("viewHeight");
    QTest::addColumn<int>("requested");
    QTest::addColumn<int>("stored");
    QTest::newRow("inside") << 200 << 100 << 100;
    QTest::newRow("below a 50 px view") << 50 << 100 << 15;
    QTest::newRow("view lower than the button") << 20 << 100 << 0;
    QTest::newRow("above the top") << 200 << -10 << 0;
    QTest::newRow("exactly at the bottom") << 200 << 165 << 165;
}

void tst_MvTimelinePlayheadPresenter::splitButtonYIsClamped()
{
    QFETCH(int, viewHeight);
    QFETCH(int, requested);
    QFETCH(int, stored);
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.updateViewRect(QRect(0, 0, 400, viewHeight));
    presenter.setSplitButtonY(requested);
    QCOMPARE(presenter.splitButtonY(), stored);
}

void tst_MvTimelinePlayheadPresenter::minYIsAppliedOnTheNextWriteOnly()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.updateViewRect(QRect(0, 0, 400, 200));
    presenter.setSplitButtonMinY(80);
    QCOMPARE(presenter.splitButtonY(), 67);
    QCOMPARE(presenter.splitButtonYRange(), MvRange<int>(80, 165));
    presenter.updatePosition(presenter.position(), 0);
    QCOMPARE(presenter.splitButtonY(), 80);
    // In a view too low for minY plus the button, minY still wins.
    presenter.updateViewRect(QRect(0, 0, 400, 90));
    presenter.setSplitButtonY(100);
    QCOMPARE(presenter.splitButtonY(), 80);
}

void tst_MvTimelinePlayheadPresenter::sizeChangeDoesNotReclamp()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.updateViewRect(QRect(0, 0, 400, 200));
    presenter.setSplitButtonY(160);
    presenter.setSplitButtonSize(QSize(40, 60));
    QCOMPARE(presenter.splitButtonY(), 160);
    QCOMPARE(presenter.splitButtonYRange(), MvRange<int>(0, 140));
    presenter.setSplitButtonY(presenter.splitButtonY());
    QCOMPARE(presenter.splitButtonY(), 140);
    // Nor does a new view rectangle.
    presenter.updateViewRect(QRect(0, 0, 400, 100));
    QCOMPARE(presenter.splitButtonY(), 140);
}

void tst_MvTimelinePlayheadPresenter::headGeometryFollowsThePosition()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    project.timeline.playhead()->setCurrentFrame(100);
    QCOMPARE(presenter.position(), 100);
    QCOMPARE(presenter.playheadRect(), QRect(94, 0, 12, 12));
    QCOMPARE(presenter.currentShape(),
        QPolygon(QVector<QPoint> { { 93, 0 }, { 107, 0 }, { 107, 8 }, { 100, 16 }, { 93, 8 } }));
    // The head image square does not follow the shape.
    presenter.playheadData()->shape = QPolygon(QVector<QPoint> { { -20, 0 }, { 20, 0 }, { 0, 30 } });
    QCOMPARE(presenter.playheadRect(), QRect(94, 0, 12, 12));
}

void tst_MvTimelinePlayheadPresenter::splitButtonRectHalvesTheWidth()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.updateViewRect(QRect(0, 0, 400, 200));
    project.timeline.playhead()->setCurrentFrame(100);
    QCOMPARE(presenter.splitButtonRect(), QRect(80, 67, 40, 35));
    presenter.setSplitButtonSize(QSize(41, 30));
    QCOMPARE(presenter.splitButtonRect(), QRect(80, 67, 41, 30));
}

void tst_MvTimelinePlayheadPresenter::captureRectIsEmptyWhileTheButtonIsHidden()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    project.timeline.playhead()->setCurrentFrame(100);
    QCOMPARE(presenter.splitButtonCaptureRect(), presenter.splitButtonRect());
    presenter.setSplitButtonVisible(false);
    QVERIFY(!project.timeline.playhead()->isSplitButtonVisible());
    QVERIFY(!presenter.splitButtonVisible());
    QVERIFY(presenter.splitButtonCaptureRect().isEmpty());
    QCOMPARE(presenter.splitButtonRect(), QRect(80, 67, 40, 35));
}

void tst_MvTimelinePlayheadPresenter::disabledPlayheadResolvesToTheDisabledStatus()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.setPlayheadColor(MVWIDGETS::Hover, Qt::green);
    presenter.setPlayheadColor(MVWIDGETS::Disabled, Qt::gray);
    presenter.addSplitButtonImage(MVWIDGETS::Hover, solid(Qt::green));
    presenter.addSplitButtonImage(MVWIDGETS::Disabled, solid(Qt::gray));
    presenter.setSplitButtonStatus(MVWIDGETS::Hover);
    QCOMPARE(presenter.splitButtonStatus(), MVWIDGETS::Hover);
    QCOMPARE(presenter.currentPlayheadColor(), QColor(Qt::green));
    QCOMPARE(presenter.currentSplitButtonImage().pixelColor(0, 0), QColor(Qt::green));

    project.timeline.playhead()->setEnabled(false);
    QCOMPARE(presenter.splitButtonStatus(), MVWIDGETS::Disabled);
    QCOMPARE(presenter.currentPlayheadColor(), QColor(Qt::gray));
    QCOMPARE(presenter.currentSplitButtonImage().pixelColor(0, 0), QColor(Qt::gray));
    // The stored status is kept for when the playhead comes back.
    QCOMPARE(presenter.playheadData()->status, MVWIDGETS::Hover);
    project.timeline.playhead()->setEnabled(true);
    QCOMPARE(presenter.splitButtonStatus(), MVWIDGETS::Hover);
}

void tst_MvTimelinePlayheadPresenter::missingStatusGivesNoFallback()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.setPlayheadColor(MVWIDGETS::Normal, Qt::red);
    presenter.addSplitButtonImage(MVWIDGETS::Normal, solid(Qt::red));
    presenter.setSplitButtonStatus(MVWIDGETS::Pressed);
    QVERIFY(!presenter.currentPlayheadColor().isValid());
    QVERIFY(presenter.currentSplitButtonImage().isNull());
    QVERIFY(presenter.currentPlayheadPixmap().isNull()); // the base class has no head image
    // Setting again replaces.
    presenter.setPlayheadColor(MVWIDGETS::Pressed, Qt::blue);
    presenter.setPlayheadColor(MVWIDGETS::Pressed, Qt::yellow);
    QCOMPARE(presenter.currentPlayheadColor(), QColor(Qt::yellow));
    QCOMPARE(presenter.playheadData()->colors.size(), 2);
}

void tst_MvTimelinePlayheadPresenter::colourAsksTheVirtualEnabledStateButImagesAskTheModel()
{
    Project project;
    EnabledOverridePresenter presenter(&project.timelinePresenter, nullptr);
    presenter.setPlayheadColor(MVWIDGETS::Normal, Qt::red);
    presenter.setPlayheadColor(MVWIDGETS::Disabled, Qt::gray);
    project.timeline.playhead()->setEnabled(false);
    QCOMPARE(presenter.currentPlayheadColor(), QColor(Qt::red));
    QCOMPARE(presenter.currentPlayheadPixmap().pixelColor(0, 0), QColor(40, 0, 0));
    QCOMPARE(presenter.splitButtonStatus(), MVWIDGETS::Disabled);
}

void tst_MvTimelinePlayheadPresenter::updatePositionMovesPlayheadAndButton()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.updateViewRect(QRect(0, 0, 400, 200));
    QSignalSpy repaint(&presenter, &MvTimelinePlayheadPresenter::sigUpdateUI);
    presenter.updatePosition(250, 30);
    QCOMPARE(project.timeline.playhead()->currentFrame(), 250);
    QCOMPARE(presenter.position(), 250);
    QCOMPARE(presenter.splitButtonY(), 97);
    // The repaint comes from the model's notifications; the presenter adds none of its own.
    QVERIFY(repaint.count() >= 1);
    const int afterMove = repaint.count();
    presenter.updatePosition(250, 500);
    QCOMPARE(presenter.splitButtonY(), 165);
    QCOMPARE(repaint.count(), afterMove);
}

void tst_MvTimelinePlayheadPresenter::playheadKindsRepaint_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("repaints");
    QTest::newRow("visible (0)") << QStringLiteral("visible") << 1;
    QTest::newRow("enabled (1)") << QStringLiteral("enabled") << 1;
    QTest::newRow("moved (2)") << QStringLiteral("moved") << 1;
    QTest::newRow("virtual state (3)") << QStringLiteral("virtual") << 0;
    QTest::newRow("split button visible (100)") << QStringLiteral("buttonVisible") << 1;
    QTest::newRow("split button enabled (101)") << QStringLiteral("buttonEnabled") << 1;
}

void tst_MvTimelinePlayheadPresenter::playheadKindsRepaint()
{
    QFETCH(QString, change);
    QFETCH(int, repaints);
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    QSignalSpy repaint(&presenter, &MvTimelinePlayheadPresenter::sigUpdateUI);
    IMvTimelinePlayhead* playhead = project.timeline.playhead();
    if (change == QLatin1String("visible"))
        playhead->setVisible(false);
    else if (change == QLatin1String("enabled"))
        playhead->setEnabled(false);
    else if (change == QLatin1String("moved"))
        playhead->setCurrentFrame(10);
    else if (change == QLatin1String("virtual"))
        playhead->virtualOpened();
    else if (change == QLatin1String("buttonVisible"))
        playhead->setSplitButtonVisible(false);
    else if (change == QLatin1String("buttonEnabled"))
        playhead->setSplitButtonEnabled(false);
    // A playhead move also moves the ruler's current frame, a ruler event of its own.
    const int rulerEvents = change == QLatin1String("moved") ? 1 : 0;
    QCOMPARE(repaint.count(), repaints + rulerEvents);
}

void tst_MvTimelinePlayheadPresenter::everyRulerEventRepaints()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    QSignalSpy repaint(&presenter, &MvTimelinePlayheadPresenter::sigUpdateUI);
    project.timeline.ruler()->setViewWidth(500);
    QVERIFY(repaint.count() >= 1);
    const int afterWidth = repaint.count();
    project.timeline.ruler()->setFrameRate(25, 1);
    QVERIFY(repaint.count() > afterWidth);
}

void tst_MvTimelinePlayheadPresenter::registersWithPlayheadAndRulerAndLeaves()
{
    Project project;
    MvMemoryPlayhead* playhead = project.timeline.playheadImpl();
    const int playheadBefore = playhead->observerCount();
    const int rulerBefore = project.ruler()->observerCount();
    {
        MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
        QCOMPARE(playhead->observerCount(), playheadBefore + 1);
        QCOMPARE(project.ruler()->observerCount(), rulerBefore + 1);
    }
    QCOMPARE(playhead->observerCount(), playheadBefore);
    QCOMPARE(project.ruler()->observerCount(), rulerBefore);
}

void tst_MvTimelinePlayheadPresenter::splitAsksTheTimelinePresenter()
{
    Project project;
    MvTimelinePlayheadPresenter presenter(&project.timelinePresenter, nullptr);
    presenter.splitClips();
    QCOMPARE(project.timelinePresenter.splits.size(), 1);
    QCOMPARE(project.timelinePresenter.splits.at(0).frame, -1);
    QVERIFY(project.timelinePresenter.splits.at(0).select);
    QVERIFY(!project.timelinePresenter.splits.at(0).prepareFlag);
}

void tst_MvTimelinePlayheadPresenter::presenterWithoutTimelineRefusesQuietly()
{
    MvTimelinePresenter noTimeline(nullptr, nullptr);
    MvTimelinePlayheadPresenter presenter(&noTimeline, nullptr);
    QCOMPARE(presenter.position(), 0);
    QVERIFY(!presenter.playheadVisible());
    QVERIFY(!presenter.playheadEnabled());
    QCOMPARE(presenter.splitButtonStatus(), MVWIDGETS::Disabled);
    presenter.updatePosition(50, 10);
    presenter.setSplitButtonVisible(true);
    QVERIFY(presenter.splitButtonCaptureRect().isEmpty());

    MvTimelinePlayheadPresenter orphan(nullptr, nullptr);
    orphan.splitClips();
    QCOMPARE(orphan.timelinePresenter(), nullptr);
    QCOMPARE(orphan.position(), 0);
}

QTEST_MAIN(tst_MvTimelinePlayheadPresenter)
#include "tst_MvTimelinePlayheadPresenter.moc"
