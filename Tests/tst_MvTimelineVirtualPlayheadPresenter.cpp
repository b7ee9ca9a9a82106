#include "IMvMarker.h"
#include "MvEditFixture.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QPointer>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString LogFile = QStringLiteral("Src/MvTimeline/MvTimelineVirtualPlayheadPresenter");
const QString Function = QStringLiteral("MvTimelineVirtualPlayheadPresenter%1");

// The virtual playhead of a presenter over one clip 0..299, the playhead on 40. The journal gets its
// signals, the seeks with their frame and the other scene messages but the play-state questions.
struct Fixture : MvEditFixture<>
{
    Fixture()
    {
        clip(0, 0, 299);
        setPlayhead(40);
        presenter->initVirtualPlayheadPresenter();
        vp = presenter->virtualPlayheadPresenter();
        QObject::connect(vp, &MvTimelineVirtualPlayheadPresenter::sigVisibleChanged, vp,
            [this] { journal.record(QStringLiteral("visibleChanged")); });
        QObject::connect(vp, &MvTimelineVirtualPlayheadPresenter::sigEnableChanged, vp,
            [this] { journal.record(QStringLiteral("enableChanged")); });
        scene.setObserver([this](const MvRecordingScene::Entry& entry) {
            if (entry.id == MessageId::Seek)
                journal.record(QStringLiteral("seek %1").arg(entry.payload.toLongLong()));
            else if (entry.id != MessageId::IsPlayerPlaying)
                journal.record(QStringLiteral("scene:%1").arg(entry.id));
        });
        reset();
    }

    void reset()
    {
        journal.clear();
        log.clear();
    }

    MvTimelineVirtualPlayheadPresenter* vp = nullptr;
};
}

class tst_MvTimelineVirtualPlayheadPresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createdByTheTimelinePresenter();
    void openPausesAndReopensShown();
    void requests_data();
    void requests();
    void playStateReopensAfterAnEdit();
    void seekHoldsTheUnsettledFrame();
};

void tst_MvTimelineVirtualPlayheadPresenter::createdByTheTimelinePresenter()
{
    MvEditFixture<> f;
    const int observers = f.timeline.playheadImpl()->observerCount();
    f.presenter->initVirtualPlayheadPresenter();
    QPointer<MvTimelineVirtualPlayheadPresenter> first = f.presenter->virtualPlayheadPresenter();

    // A new one replaces the stored one; the earlier one lives on as a child until it goes.
    f.presenter->initVirtualPlayheadPresenter();
    QVERIFY(first && f.presenter->virtualPlayheadPresenter() != first);
    delete first;
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers + 1);
    f.presenter.reset();
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers);
}

void tst_MvTimelineVirtualPlayheadPresenter::openPausesAndReopensShown()
{
    Fixture f;
    const auto record = [&](const char* text, const char* function) {
        return mvCheckRecord(f.log, QLatin1String(text), 4, Function.arg(QLatin1String(function)), LogFile);
    };
    f.vp->open();
    QVERIFY(f.vp->isOpen() && !f.vp->visible());
    QVERIFY(f.timeline.playheadImpl()->isVirtualOpen() && !f.timeline.playheadImpl()->isSplitButtonVisible());
    QCOMPARE(f.journalText(), QStringLiteral("scene:7012 model:prepareVirtualPlayhead enableChanged"));
    QCOMPARE(record("Open Virtual Playhead", "::open"), QString());

    // Closed while shown: hidden for now, shown again at once when opened again.
    f.vp->setVisible(true);
    f.vp->close();
    QVERIFY(!f.vp->visible() && !f.timeline.playheadImpl()->isVirtualOpen());
    QCOMPARE(record("Close Virtual Playhead", "::close"), QString());
    f.vp->open();
    QVERIFY(f.vp->visible());
}

void tst_MvTimelineVirtualPlayheadPresenter::requests_data()
{
    // A request to show or hide, a play state or a playhead change, to the open (or closed) virtual playhead.
    QTest::addColumn<QString>("request");
    QTest::addColumn<bool>("open");
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<QString>("journal");
    QTest::addColumn<bool>("visibleAfter");

    // While playback runs a request to show is dropped, and a shown virtual playhead is hidden.
    QTest::newRow("hidden, show while playing") << "show while playing" << true << false << "" << false;
    QTest::newRow("shown, show while playing")
        << "show while playing" << true << true << "visibleChanged seek 40" << false;
    QTest::newRow("shown, show: signals again") << "show" << true << true << "visibleChanged" << true;
    QTest::newRow("stopped shows") << "state 0" << true << false << "visibleChanged" << true;
    QTest::newRow("playing changes nothing") << "state 1" << true << true << "" << true;
    QTest::newRow("finished hides, seeks twice")
        << "state 3" << true << true << "visibleChanged seek 40 seek 40" << false;
    QTest::newRow("closed: ignored") << "state 0" << false << false << "" << false;
    // A playhead move (event kind 2) hides it and seeks back; other kinds do not.
    QTest::newRow("moved, shown") << "move" << true << true << "visibleChanged seek 77" << false;
    QTest::newRow("disabled, shown") << "disable" << true << true << "" << true;
    // Where the timeline no longer allows it: back to the real playhead; the split button stays hidden.
    QTest::newRow("not allowed: closes") << "disallow" << true << true << "seek 40 enableChanged" << false;
}

void tst_MvTimelineVirtualPlayheadPresenter::requests()
{
    QFETCH(QString, request);
    QFETCH(bool, open);
    QFETCH(bool, shownBefore);
    QFETCH(QString, journal);
    QFETCH(bool, visibleAfter);

    Fixture f;
    f.vp->open();
    f.vp->setVisible(shownBefore);
    if (!open)
        f.vp->close();
    f.scene.answerWith(MessageId::IsPlayerPlaying, request.endsWith(QLatin1String("while playing")));
    f.reset();

    if (request.startsWith(QLatin1String("state")))
        f.vp->playStateChanged(request.section(QLatin1Char(' '), 1).toInt());
    else if (request == QLatin1String("move"))
        f.setPlayhead(77);
    else if (request == QLatin1String("disable"))
        f.timeline.playhead()->setEnabled(false);
    else if (request == QLatin1String("disallow"))
        f.timeline.setVirtualPlayheadAllowed(false);
    else
        f.vp->setVisible(request.startsWith(QLatin1String("show")));
    f.vp->updateEnable();

    QCOMPARE(f.vp->visible(), visibleAfter);
    QCOMPARE(f.journalText(), journal);
    QVERIFY(!f.timeline.playheadImpl()->isSplitButtonVisible());
    // Each change of the shown state is logged, and nothing else about it.
    const QString logged = QStringLiteral("Set Virtual Playhead Visible = %1").arg(int(visibleAfter));
    const bool changed = journal.startsWith(QLatin1String("visibleChanged"));
    QCOMPARE(f.log.messages().filter(QStringLiteral(" Visible ")).size(), changed ? 1 : 0);
    if (changed)
        QCOMPARE(
            mvCheckRecord(f.log, logged, 4, Function.arg(QLatin1String("Private::setVisible")), LogFile), QString());
}

void tst_MvTimelineVirtualPlayheadPresenter::playStateReopensAfterAnEdit()
{
    Fixture f;
    f.vp->open();
    // An edit while open drops the model's virtual position; the next play state restores it.
    f.timeline.timelineMarkers()->addMarker(10, Qt::red);
    MvMemoryPlayhead* playhead = f.timeline.playheadImpl();
    QVERIFY(playhead->needsVirtualReopen());
    playhead->setSplitButtonVisible(true);

    f.vp->playStateChanged(PlayState_Playing);

    QVERIFY(playhead->isVirtualOpen());
    QVERIFY(!playhead->isSplitButtonVisible());
}

void tst_MvTimelineVirtualPlayheadPresenter::seekHoldsTheUnsettledFrame()
{
    Fixture f;
    MvMemoryPlayhead* playhead = f.timeline.playheadImpl();
    playhead->settle();
    const qint64 settled = playhead->settledFrame();
    QList<bool> held;
    f.scene.answer(MessageId::Seek, [&](MvMessage*) { held.append(playhead->isSeekHold()); });

    f.vp->seek(settled + 100); // a frame still decoding is held during the seek
    f.vp->seek(settled);

    QCOMPARE(held, QList<bool>({ true, false }));
    QCOMPARE(f.journalText(), QStringLiteral("seek %1 seek %2").arg(settled + 100).arg(settled));
}

QTEST_MAIN(tst_MvTimelineVirtualPlayheadPresenter)
#include "tst_MvTimelineVirtualPlayheadPresenter.moc"
