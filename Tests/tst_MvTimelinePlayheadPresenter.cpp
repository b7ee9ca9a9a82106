#include "IMvSelection.h"
#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvRecordingTimeline.h"
#include "MvRulerModel.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePresenter.h"

#include <QtTest>

using namespace MVVBLMODEL;
using Status = MVWIDGETS::MvWidgetStyleStatus;

namespace {
QImage solid(const QColor& color)
{
    QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

// A host presenter that claims the playhead is enabled whatever the model says, and draws a head
// whose red channel tells the status it was asked for.
class EnabledOverridePresenter : public MvTimelinePlayheadPresenter
{
public:
    using MvTimelinePlayheadPresenter::MvTimelinePlayheadPresenter;
    bool playheadEnabled() override { return true; }

protected:
    QImage getPlayheadPixmap(Status status) override { return solid(QColor(int(status) * 10, 0, 0)); }
};

// One 1000-frame clip at 1 px per frame, the playhead at 100 and a 400 x 200 view.
struct Project
{
    MvRecordingTimeline timeline;
    MvTimelinePresenter timelinePresenter { nullptr, &timeline };
    MvTimelinePlayheadPresenter presenter { &timelinePresenter, nullptr };

    Project()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 999, QStringLiteral("a"));
        timeline.ruler()->setViewWidth(1000);
        timeline.playhead()->setCurrentFrame(100);
        presenter.updateViewRect(QRect(0, 0, 400, 200));
    }
};
}

class tst_MvTimelinePlayheadPresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void geometryAtPosition100();
    void splitButtonYIsClamped_data();
    void splitButtonYIsClamped();
    void statusResolution();
    void modelEventsRepaint_data();
    void modelEventsRepaint();
    void splitButtonSelectsThePieces();
    void registersWithPlayheadAndRulerAndLeaves();
    void presenterWithoutTimelineRefusesQuietly();
};

void tst_MvTimelinePlayheadPresenter::geometryAtPosition100()
{
    Project p;
    QCOMPARE(p.presenter.splitButtonYRange(), MvRange<int>(0, 165));
    QCOMPARE(p.presenter.playheadRect(), QRect(94, 0, 12, 12));
    QCOMPARE(p.presenter.currentShape(),
        QPolygon(QVector<QPoint> { { 93, 0 }, { 107, 0 }, { 107, 8 }, { 100, 16 }, { 93, 8 } }));
    QCOMPARE(p.presenter.splitButtonCaptureRect(), QRect(80, 67, 40, 35));
    p.presenter.setSplitButtonVisible(false);
    QVERIFY(p.presenter.splitButtonCaptureRect().isEmpty());
    QCOMPARE(p.presenter.splitButtonRect(), QRect(80, 67, 40, 35));
}

void tst_MvTimelinePlayheadPresenter::splitButtonYIsClamped_data()
{
    QTest::addColumn<int>("viewHeight");
    QTest::addColumn<int>("minY");
    QTest::addColumn<int>("requested");
    QTest::addColumn<int>("stored");
    QTest::newRow("inside") << 200 << 0 << 100 << 100;
    QTest::newRow("below a 50 px view") << 50 << 0 << 100 << 15;
    QTest::newRow("view lower than the button") << 20 << 0 << 100 << 0;
    QTest::newRow("above minY") << 200 << 80 << 70 << 80;
}

// Neither a new view nor a new minY moves the button; the next write, by either path, clamps.
void tst_MvTimelinePlayheadPresenter::splitButtonYIsClamped()
{
    QFETCH(int, viewHeight);
    QFETCH(int, minY);
    QFETCH(int, requested);
    QFETCH(int, stored);
    Project p;
    p.presenter.updateViewRect(QRect(0, 0, 400, viewHeight));
    p.presenter.setSplitButtonMinY(minY);
    QCOMPARE(p.presenter.splitButtonY(), 67);
    p.presenter.updatePosition(100, requested - 67);
    QCOMPARE(p.presenter.splitButtonY(), stored);
    p.presenter.setSplitButtonY(67);
    p.presenter.setSplitButtonY(requested);
    QCOMPARE(p.presenter.splitButtonY(), stored);
}

void tst_MvTimelinePlayheadPresenter::statusResolution()
{
    Project p;
    p.presenter.setPlayheadColor(Status::Hover, Qt::green);
    p.presenter.setPlayheadColor(Status::Disabled, Qt::gray);
    p.presenter.addSplitButtonImage(Status::Disabled, solid(Qt::gray));
    p.presenter.setSplitButtonStatus(Status::Hover);
    QCOMPARE(p.presenter.currentPlayheadColor(), QColor(Qt::green));
    p.timeline.playhead()->setEnabled(false);
    QCOMPARE(p.presenter.splitButtonStatus(), Status::Disabled);
    QCOMPARE(p.presenter.currentPlayheadColor(), QColor(Qt::gray));
    QCOMPARE(p.presenter.currentSplitButtonImage().pixelColor(0, 0), QColor(Qt::gray));

    // A host that claims the playhead enabled gets the colour of the status, but images follow the model.
    EnabledOverridePresenter host(&p.timelinePresenter, nullptr);
    host.setPlayheadColor(Status::Normal, Qt::red);
    QCOMPARE(host.currentPlayheadColor(), QColor(Qt::red));
    QCOMPARE(host.currentPlayheadPixmap().pixelColor(0, 0), QColor(int(Status::Disabled) * 10, 0, 0));

    // A status with nothing stored gets nothing: there is no fallback.
    p.timeline.playhead()->setEnabled(true);
    p.presenter.setSplitButtonStatus(Status::Pressed);
    QVERIFY(!p.presenter.currentPlayheadColor().isValid());
    QVERIFY(p.presenter.currentSplitButtonImage().isNull());
}

void tst_MvTimelinePlayheadPresenter::modelEventsRepaint_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("repaint");
    QTest::newRow("0 visible") << 0 << true;
    QTest::newRow("1 enabled") << 1 << true;
    QTest::newRow("2 moved") << 2 << true;
    QTest::newRow("3 virtual playhead") << 3 << false;
    QTest::newRow("99") << 99 << false;
    QTest::newRow("100 split button shown") << 100 << true;
    QTest::newRow("101 split button enabled") << 101 << true;
    QTest::newRow("102") << 102 << false;
}

// Five playhead kinds ask for a repaint, and so does every ruler event.
void tst_MvTimelinePlayheadPresenter::modelEventsRepaint()
{
    QFETCH(int, kind);
    QFETCH(bool, repaint);
    Project p;
    QSignalSpy repaints(&p.presenter, &MvTimelinePlayheadPresenter::sigUpdateUI);
    p.timeline.sendPlayheadEvent(kind);
    QCOMPARE(repaints.count(), repaint ? 1 : 0);
    p.timeline.ruler()->setFrameRate(25, 1);
    QCOMPARE(repaints.count(), repaint ? 2 : 1);
}

// The split button cuts at the playhead and leaves the new pieces selected.
void tst_MvTimelinePlayheadPresenter::splitButtonSelectsThePieces()
{
    Project p;
    p.timeline.selection()->select({ p.timeline.liveClips().first() });
    p.presenter.splitClips();
    const QList<MvMemoryClip*> clips = p.timeline.liveClips();
    QCOMPARE(clips.size(), 2);
    QCOMPARE(clips.last()->start(), qint64(100));
    QCOMPARE(p.timeline.selection()->selectedClips(), QList<IMvClip*>({ clips.last() }));
}

void tst_MvTimelinePlayheadPresenter::registersWithPlayheadAndRulerAndLeaves()
{
    Project p;
    const auto counts = [&p]() {
        auto* ruler = dynamic_cast<MvRulerModel*>(p.timeline.ruler());
        return qMakePair(p.timeline.playheadImpl()->observerCount(), ruler->observerCount());
    };
    const QPair<int, int> before = counts();
    {
        MvTimelinePlayheadPresenter presenter(&p.timelinePresenter, nullptr);
        QCOMPARE(counts(), qMakePair(before.first + 1, before.second + 1));
    }
    QCOMPARE(counts(), before);
}

void tst_MvTimelinePlayheadPresenter::presenterWithoutTimelineRefusesQuietly()
{
    MvTimelinePresenter noTimeline(nullptr, nullptr);
    MvTimelinePlayheadPresenter presenter(&noTimeline, nullptr);
    presenter.updatePosition(50, 10);
    presenter.splitClips();
    QCOMPARE(presenter.position(), 0);
    QVERIFY(presenter.splitButtonCaptureRect().isEmpty());
    QCOMPARE(MvTimelinePlayheadPresenter(nullptr, nullptr).position(), 0);
}

QTEST_MAIN(tst_MvTimelinePlayheadPresenter)
#include "tst_MvTimelinePlayheadPresenter.moc"
