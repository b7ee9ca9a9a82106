#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvRulerModel.h"
#include "MvSkinStyle.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {

// A one-minute timeline at 30 fps under a 600 px ruler (three frames a pixel), with its presenters.
struct Fixture
{
    Fixture()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 1799, QStringLiteral("minute"));
        ruler->setViewWidth(600);
    }
    MvMemoryTimeline timeline;
    MvRulerModel* ruler = timeline.rulerImpl();
    MvTimelinePresenter host { nullptr, &timeline };
    MvTimelineRulerPresenter presenter { &host, nullptr };
};

// A view that lets the presenter paint it, as the ruler widget does.
class PaintedByPresenter : public QWidget
{
public:
    MvTimelineRulerPresenter* presenter = nullptr;

protected:
    void paintEvent(QPaintEvent*) override { presenter->paint(this); }
};

QImage paintedBy(MvTimelineRulerPresenter* presenter)
{
    PaintedByPresenter view;
    view.presenter = presenter;
    view.resize(600, 28);
    view.setPalette(QPalette(QColor(10, 20, 30))); // the window colour follows the button colour
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    view.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

}

class tst_MvTimelineRulerPresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsThePlayheadAndLeavesTheModelOnDestruction();
    void rulerNotificationsBecomeSignals();
    void edgeScrollStepsThirtyPixelsInsideTheTimeline();
    void paintsOnlyWithARuler();
};

void tst_MvTimelineRulerPresenter::followsThePlayheadAndLeavesTheModelOnDestruction()
{
    Fixture f;
    f.timeline.playhead()->setCurrentFrame(1000);
    QCOMPARE(f.ruler->currentFrame(), qint64(1000));
    f.ruler->setCurrentFrame(1020);
    f.timeline.playhead()->setVisible(false); // playhead notifications other than a move
    f.timeline.playhead()->setEnabled(false);
    QCOMPARE(f.ruler->currentFrame(), qint64(1020));

    const int rulerObservers = f.ruler->observerCount();
    const int playheadObservers = f.timeline.playheadImpl()->observerCount();
    auto* other = new MvTimelineRulerPresenter(&f.host, nullptr);
    delete other;
    QCOMPARE(f.ruler->observerCount(), rulerObservers);
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), playheadObservers);
}

void tst_MvTimelineRulerPresenter::rulerNotificationsBecomeSignals()
{
    Fixture f;
    QStringList seen;
    const auto record = [&](void (MvTimelineRulerPresenter::*signal)(), const QString& name) {
        connect(&f.presenter, signal, this, [&seen, name] { seen.append(name); });
    };
    record(&MvTimelineRulerPresenter::zoomChanged, QStringLiteral("zoom"));
    record(&MvTimelineRulerPresenter::frameRateChanged, QStringLiteral("rate"));
    record(&MvTimelineRulerPresenter::visualRangeChanged, QStringLiteral("range"));
    record(&MvTimelineRulerPresenter::totalFrameChanged, QStringLiteral("total"));
    record(&MvTimelineRulerPresenter::minVisualChanged, QStringLiteral("minimum"));
    record(&MvTimelineRulerPresenter::sigViewWidthChanged, QStringLiteral("width"));

    f.ruler->setCurrentFrame(100); // in view already: a current-frame notification alone
    QVERIFY(seen.isEmpty());
    f.timeline.addClip(0, ClipType_Video, 1800, 2399, QStringLiteral("more"));
    f.timeline.setFrameRate(25, 1);
    f.presenter.zoom(-45);
    f.presenter.setViewWith(900);
    QCOMPARE(
        seen.join(QLatin1Char(' ')), QStringLiteral("total minimum zoom range rate zoom range minimum range width"));
}

void tst_MvTimelineRulerPresenter::edgeScrollStepsThirtyPixelsInsideTheTimeline()
{
    Fixture f;
    const auto stepFrom = [&f](qint64 frame, bool backward) {
        f.ruler->setCurrentFrame(frame);
        f.presenter.moveRulerRange(backward);
        return f.ruler->currentFrame();
    };
    QCOMPARE(stepFrom(900, true), qint64(810));
    QCOMPARE(stepFrom(0, true), qint64(0));
    QCOMPARE(stepFrom(1800, false), qint64(1800));
    QCOMPARE(stepFrom(1750, false), qint64(1800));
    f.presenter.changeZoomRatio(24.0f); // zoomed in all the way: a frame a step
    QCOMPARE(stepFrom(900, false), qint64(901));
}

void tst_MvTimelineRulerPresenter::paintsOnlyWithARuler()
{
    Fixture f;
    const QImage image = paintedBy(&f.presenter);
    QCOMPARE(image.pixel(3, 2), QColor(10, 20, 30).rgb()); // the view's window colour
    const QRgb ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary()).rgb();
    int tickColumns = 0;
    for (int x = 0; x < image.width(); ++x)
        tickColumns += image.pixel(x, 27) == ink ? 1 : 0;
    QCOMPARE(tickColumns, int(600 / f.ruler->tickSpacing()) + 1);

    // Without a timeline nothing is painted, not even the background, and requests are refused.
    MvTimelinePresenter empty(nullptr, nullptr);
    for (MvTimelinePresenter* host : { static_cast<MvTimelinePresenter*>(nullptr), &empty }) {
        MvTimelineRulerPresenter orphan(host, nullptr);
        QSignalSpy width(&orphan, &MvTimelineRulerPresenter::sigViewWidthChanged);
        orphan.setViewWith(300);
        orphan.moveRulerRange(true);
        orphan.changePlayheadPosition(20);
        QCOMPARE(width.count(), 0);
        QCOMPARE(paintedBy(&orphan).pixel(300, 20), QColor(Qt::magenta).rgb());
    }
}

QTEST_MAIN(tst_MvTimelineRulerPresenter)
#include "tst_MvTimelineRulerPresenter.moc"
