#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvSampleProject.h"
#include "MvBaseLog.h"
#include "MvKeyFramePresenter.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerPresenter.h"
#include "MvMarkerWidget.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvRecordingScene.h"
#include "MvRulerModel.h"
#include "MvTimelineAddMediaParam.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QMouseEvent>
#include <QPointer>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

// Hosts tear their timeline views down in every order: a window closes with its widgets while the
// presenters live on, a timeline presenter goes first and takes its children along, a presenter
// is replaced under a widget that stays. Whatever the order, no object may reach one that is gone
// (the sanitizer build sees every such reach), and what stays behind keeps working on what is
// left; each object leaves the model's observer lists when it goes.

namespace {

// The host's marker source: two markers.
class HostMarkers : public MvMarkerPresenter
{
public:
    using MvMarkerPresenter::MvMarkerPresenter;
    QList<MarkerItem> markerList() override { return { { 20, 0 }, { 60, 1 } }; }
};

// A host's timeline presenter that hands out the wait dialog of adding media.
class HostPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::getAddLoadingWgt;
    using MvTimelinePresenter::MvTimelinePresenter;
};

// Every object a host makes around one timeline, by the short names the orders use:
// T timeline presenter, K its keyframe presenter, V its virtual playhead presenter, HV a virtual
// playhead presenter the host made over T (not a child of T), R ruler
// presenter, P playhead presenter, M marker presenter, RW ruler widget, PW playhead widget, MW
// marker widget, S render strip, PR pure ruler, D marker dialog, WD the wait dialog T made (the host
// owns it), W the window the widgets may sit in.
class Host
{
public:
    Host(bool presentersInTimeline, bool widgetsInWindow)
    {
        MvSampleProject::build(timeline);
        auto* presenter = new HostPresenter(nullptr, &timeline);
        presenter->setScene(&scene);
        presenter->initVirtualPlayheadPresenter();
        presenter->virtualPlayheadPresenter()->open();
        parts.insert(QStringLiteral("T"), presenter);
        parts.insert(QStringLiteral("K"), presenter->keyFramePresenter());
        parts.insert(QStringLiteral("V"), presenter->virtualPlayheadPresenter());
        auto* hostVirtualPlayhead = new MvTimelineVirtualPlayheadPresenter(presenter, nullptr);
        hostVirtualPlayhead->open();
        parts.insert(QStringLiteral("HV"), hostVirtualPlayhead);
        QObject* presenterParent = presentersInTimeline ? presenter : nullptr;
        auto* ruler = new MvTimelineRulerPresenter(presenter, presenterParent);
        auto* playhead = new MvTimelinePlayheadPresenter(presenter, presenterParent);
        auto* markers = new HostMarkers(presenter, presenterParent);
        parts.insert(QStringLiteral("R"), ruler);
        parts.insert(QStringLiteral("P"), playhead);
        parts.insert(QStringLiteral("M"), markers);

        auto* window = new QWidget;
        window->resize(800, 300);
        parts.insert(QStringLiteral("W"), window);
        QWidget* widgetParent = widgetsInWindow ? window : nullptr;
        addWidget(QStringLiteral("RW"), new MvTimelineRulerWidget(ruler, widgetParent), QSize(800, 30));
        addWidget(QStringLiteral("PW"), new MvTimelinePlayheadWidget(playhead, widgetParent), QSize(800, 200));
        addWidget(QStringLiteral("MW"), new MvMarkerWidget(markers, widgetParent), QSize(800, 14));
        addWidget(QStringLiteral("S"), new MvTimelineRenderWidget(presenter, widgetParent), QSize(800, 6));
        addWidget(QStringLiteral("PR"), new MvPureTimelineRulerWidget(widgetParent), QSize(800, 30));
        MvMarkerParam param;
        param.colors = MvMarkerPresenter::markerPalette();
        addWidget(QStringLiteral("D"), new MvMarkerEditDialog(param, widgetParent), QSize(480, 330));
        parts.insert(QStringLiteral("WD"), presenter->getAddLoadingWgt());
        playhead->setScene(&scene);
        splitButton = playhead->splitButtonRect().center();
    }

    ~Host()
    {
        const QStringList widgetsFirst
            = QString::fromLatin1("WD D PR S MW PW RW W M P R HV V K T").split(QLatin1Char(' '));
        for (const QString& name : widgetsFirst)
            destroy(name);
    }

    void destroy(const QString& name) { delete parts.value(name).data(); }
    bool alive(const char* name) const { return !parts.value(QLatin1String(name)).isNull(); }
    template <typename T> T* part(const char* name) const
    {
        return qobject_cast<T*>(parts.value(QLatin1String(name)).data());
    }

    // What the model's observer lists must hold: one entry per registration of a living object.
    QString observersWrong()
    {
        const int rulers = int(alive("R")) + int(alive("P")) + int(alive("S"));
        const int playheads = int(alive("R")) + int(alive("P")) + int(alive("V")) + int(alive("HV"));
        const int renders = int(alive("S"));
        const int actualRulers = timeline.rulerImpl()->observerCount();
        const int actualPlayheads = timeline.playheadImpl()->observerCount();
        const int actualRenders = timeline.renderServiceImpl()->observerCount();
        if (actualRulers == rulers && actualPlayheads == playheads && actualRenders == renders)
            return QString();
        return QStringLiteral("observers of ruler %1 (not %2), playhead %3 (not %4), render service %5 (not %6)")
            .arg(actualRulers)
            .arg(rulers)
            .arg(actualPlayheads)
            .arg(playheads)
            .arg(actualRenders)
            .arg(renders);
    }

    // Uses whatever is left the way a host and a user would: model notifications, painting, clicks,
    // the split button, and the presenters' commands. Gives what no longer worked: the ruler and
    // playhead presenters still follow the model, whoever went before them.
    QString poke()
    {
        QStringList wrong;
        QObject counting; // the connections below go with it
        int zoomed = 0;
        int playheadShown = 0;
        if (auto* ruler = part<MvTimelineRulerPresenter>("R"))
            QObject::connect(ruler, &MvTimelineRulerPresenter::zoomChanged, &counting, [&zoomed]() { ++zoomed; });
        if (auto* playhead = part<MvTimelinePlayheadPresenter>("P"))
            QObject::connect(playhead, &MvTimelinePlayheadPresenter::sigUpdateUI, &counting,
                [&playheadShown]() { ++playheadShown; });
        timeline.playhead()->setCurrentFrame(timeline.playhead()->currentFrame() == 90 ? 120 : 90);
        timeline.rulerImpl()->zoom(-40); // at least one of the two changes the zoom
        timeline.rulerImpl()->zoom(40);
        if (alive("R") && zoomed == 0)
            wrong.append(QStringLiteral("the ruler presenter missed a zoom"));
        if (alive("P") && playheadShown == 0)
            wrong.append(QStringLiteral("the playhead presenter missed a move"));
        timeline.renderServiceImpl()->markUnfinished(0, 300);
        for (const QPointer<QObject>& object : qAsConst(parts)) {
            if (auto* widget = qobject_cast<QWidget*>(object.data()))
                widget->grab();
        }
        if (auto* rulerWidget = part<MvTimelineRulerWidget>("RW")) {
            click(rulerWidget, QPoint(100, 15));
            QWheelEvent wheel(QPointF(100, 15), QPointF(rulerWidget->mapToGlobal(QPoint(100, 15))), QPoint(),
                QPoint(0, 120), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(rulerWidget, &wheel);
        }
        if (auto* playheadWidget = part<MvTimelinePlayheadWidget>("PW"))
            clickThroughFilter(playheadWidget, splitButton);
        if (auto* markers = part<MvMarkerPresenter>("M"))
            Q_EMIT markers->signalMarkerCountChanged();
        if (auto* playhead = part<MvTimelinePlayheadPresenter>("P")) {
            playhead->splitClips();
            playhead->currentPlayheadColor();
        }
        if (auto* ruler = part<MvTimelineRulerPresenter>("R"))
            ruler->updateTimelineMenu();
        for (const char* name : { "V", "HV" }) {
            if (auto* virtualPlayhead = part<MvTimelineVirtualPlayheadPresenter>(name)) {
                virtualPlayhead->setVisible(true);
                virtualPlayhead->seek(45);
                virtualPlayhead->playStateChanged(MVVBLMODEL::PlayState_Finished);
                virtualPlayhead->updateEnable();
            }
        }
        if (auto* keyFrames = part<MvKeyFramePresenter>("K"))
            keyFrames->addKeyFrame_ShortcutKey();
        if (auto* presenter = part<MvTimelinePresenter>("T")) {
            presenter->canSplitClip();
            presenter->canDeleteItems();
            presenter->splitClips(0, true, false);
            timeline.undoRedoService()->undo();
            MvTimelineAddMediaParam request;
            request.mediaItems = { &video };
            if (presenter->addMedias(request, 0).size() != 1)
                wrong.append(QStringLiteral("the timeline presenter added no media"));
            timeline.undoRedoService()->undo();
        }
        QCoreApplication::processEvents();
        return wrong.join(QLatin1String(", "));
    }

    MvMemoryTimeline timeline;
    MvRecordingScene scene;
    MvMemoryMediaItem video { QStringLiteral("video"), MVVBLMODEL::MediaType_Video, 1000 };
    QMap<QString, QPointer<QObject>> parts;
    QPoint splitButton; // in the playhead widget

private:
    void addWidget(const QString& name, QWidget* widget, const QSize& size)
    {
        widget->resize(size);
        parts.insert(name, widget);
    }

    static void click(QWidget* widget, const QPoint& pos)
    {
        QMouseEvent press(
            QEvent::MouseButtonPress, pos, widget->mapToGlobal(pos), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &press);
        QMouseEvent release(
            QEvent::MouseButtonRelease, pos, widget->mapToGlobal(pos), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &release);
    }

    // The playhead widget takes its events from the host's filter, not from Qt.
    static void clickThroughFilter(MvTimelinePlayheadWidget* widget, const QPoint& pos)
    {
        QMouseEvent press(
            QEvent::MouseButtonPress, pos, widget->mapToGlobal(pos), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        widget->onFilterEvent(&press);
        QMouseEvent release(
            QEvent::MouseButtonRelease, pos, widget->mapToGlobal(pos), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        widget->onFilterEvent(&release);
    }
};

const QStringList kAllParts { QStringLiteral("T"), QStringLiteral("K"), QStringLiteral("V"), QStringLiteral("HV"),
    QStringLiteral("R"), QStringLiteral("P"), QStringLiteral("M"), QStringLiteral("RW"), QStringLiteral("PW"),
    QStringLiteral("MW"), QStringLiteral("S"), QStringLiteral("PR"), QStringLiteral("D"), QStringLiteral("WD"),
    QStringLiteral("W") };
}

class tst_MvDestructionOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anyOrderLeavesNothingBehind_data();
    void anyOrderLeavesNothingBehind();
};

void tst_MvDestructionOrder::initTestCase()
{
    MvBaseLog::defaultLogger()->setStderrEnabled(false);
}

void tst_MvDestructionOrder::anyOrderLeavesNothingBehind_data()
{
    QTest::addColumn<QString>("order"); // short names, first destroyed first
    QTest::addColumn<bool>("presentersInTimeline"); // R, P, M are Qt children of T
    QTest::addColumn<bool>("widgetsInWindow"); // the widgets and the dialog are children of W

    QTest::newRow("widgets, then presenters, the timeline presenter last")
        << "WD D PR S MW PW RW W M P R V K T" << false << false;
    QTest::newRow("the timeline presenter first") << "T R P M RW PW MW S PR D WD W HV" << false << false;
    QTest::newRow("presenters before their widgets") << "R P M T RW PW MW S D PR W" << false << false;
    QTest::newRow("the timeline presenter's own presenters taken first")
        << "K V T R P M W RW PW MW S PR D" << false << false;
    QTest::newRow("in the order of creation") << "T K V R P M W RW PW MW S PR D" << false << false;
    QTest::newRow("the window with its widgets, then the presenters with their parent") << "W T" << true << true;
    QTest::newRow("the presenters with their parent, then the window") << "T W" << true << true;
    QTest::newRow("presenters one by one under a window that stays") << "M R K P V T W" << false << true;
    QTest::newRow("interleaved") << "PW R S WD T MW P RW M D K V PR W" << false << false;
    // And orders no one wrote down.
    QRandomGenerator random(5);
    for (int i = 0; i < 16; ++i) {
        QStringList order = kAllParts;
        std::shuffle(order.begin(), order.end(), random);
        const bool presentersInTimeline = random.bounded(2) == 1;
        const bool widgetsInWindow = random.bounded(2) == 1;
        QTest::addRow("shuffled %d", i) << order.join(QLatin1Char(' ')) << presentersInTimeline << widgetsInWindow;
    }
}

void tst_MvDestructionOrder::anyOrderLeavesNothingBehind()
{
    QFETCH(QString, order);
    QFETCH(bool, presentersInTimeline);
    QFETCH(bool, widgetsInWindow);

    QScopedPointer<Host> host(new Host(presentersInTimeline, widgetsInWindow));
    QCOMPARE(host->observersWrong(), QString());
    QCOMPARE(host->poke(), QString());
    for (const QString& name : order.split(QLatin1Char(' '))) {
        host->destroy(name);
        QVERIFY2(host->parts.value(name).isNull(), qPrintable(name));
        const QString wrong = host->observersWrong() + host->poke();
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("after ") + name + QStringLiteral(": ") + wrong));
    }
    for (const QString& name : kAllParts)
        host->destroy(name);
    QCOMPARE(host->timeline.rulerImpl()->observerCount(), 0);
    QCOMPARE(host->timeline.playheadImpl()->observerCount(), 0);
    QCOMPARE(host->timeline.renderServiceImpl()->observerCount(), 0);
    QCOMPARE(host->timeline.checkInvariants(), QString());
}

QTEST_MAIN(tst_MvDestructionOrder)
#include "tst_MvDestructionOrder.moc"
