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
    void openShowHideClose();
    void requests_data();
    void requests();
    void playStateReopensAfterAnEdit();
    void seekHoldsTheUnsettledFrame();
};

void tst_MvTimelineVirtualPlayheadPresenter::createdByTheTimelinePresenter()
{
    MvEditFixture<> f;
    QCOMPARE(f.presenter->virtualPlayheadPresenter(), nullptr);
    const int observers = f.timeline.playheadImpl()->observerCount();
    f.presenter->initVirtualPlayheadPresenter();
    QPointer<MvTimelineVirtualPlayheadPresenter> first = f.presenter->virtualPlayheadPresenter();
    QCOMPARE(first->parent(), f.presenter.get());
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers + 1);
    first->open();
    QVERIFY(f.presenter->isOpenVirtualPlayhead());

    // A new one replaces the stored one; the earlier one lives on as a child until it goes.
    f.presenter->initVirtualPlayheadPresenter();
    QVERIFY(first && f.presenter->virtualPlayheadPresenter() != first);
    QVERIFY(!f.presenter->isOpenVirtualPlayhead());
    delete first;
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers + 1);
    f.presenter.reset();
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers);
}

void tst_MvTimelineVirtualPlayheadPresenter::openShowHideClose()
{
    Fixture f;
    const auto record = [&](const char* text, const char* function) {
        return mvCheckRecord(f.log, QLatin1String(text), 4, Function.arg(QLatin1String(function)), LogFile);
    };
    f.vp->open();
    QVERIFY(f.vp->isOpen() && !f.vp->visible());
    QVERIFY(f.timeline.playheadImpl()->isVirtualOpen() && !f.timeline.playheadImpl()->isSplitButtonVisible());
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("bare"));
    QCOMPARE(f.journalText(), QStringLiteral("scene:7012 model:prepareVirtualPlayhead enableChanged"));
    QCOMPARE(record("Open Virtual Playhead", "::open"), QString());

    f.vp->setVisible(true);
    // A playhead move (kind 2) hides it and seeks back; an event of another kind does not.
    f.reset();
    f.timeline.playhead()->setEnabled(false);
    f.setPlayhead(77);
    QVERIFY(!f.vp->visible());
    QCOMPARE(f.journalText(), QStringLiteral("visibleChanged seek 77"));
    QCOMPARE(record("Set Virtual Playhead Visible = 0", "Private::setVisible"), QString());
    f.reset();
    f.setPlayhead(90); // hidden: ignored
    QVERIFY(f.journal.entries().isEmpty());

    // Closed where the timeline no longer allows it: back to the real playhead; the split button
    // stays for others to show.
    f.vp->setVisible(true);
    f.vp->updateEnable();
    QVERIFY(f.vp->isOpen());
    f.timeline.setVirtualPlayheadAllowed(false);
    f.reset();
    f.vp->updateEnable();
    QVERIFY(!f.vp->isOpen() && !f.vp->visible());
    QVERIFY(!f.timeline.playheadImpl()->isVirtualOpen() && !f.timeline.playheadImpl()->isSplitButtonVisible());
    QCOMPARE(f.journalText(), QStringLiteral("seek 40 enableChanged"));
    QCOMPARE(record("Close Virtual Playhead", "::close"), QString());
    f.vp->updateEnable();
    QCOMPARE(f.journalText(), QStringLiteral("seek 40 enableChanged"));
    // It was left shown: opening again shows it at once.
    f.vp->open();
    QVERIFY(f.vp->visible());
}

void tst_MvTimelineVirtualPlayheadPresenter::requests_data()
{
    // A request to show or hide, or a play state, to the open (or closed) virtual playhead.
    QTest::addColumn<QString>("request");
    QTest::addColumn<bool>("playing");
    QTest::addColumn<bool>("open");
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<QString>("journal");
    QTest::addColumn<bool>("visibleAfter");

    // While playback runs a request to show is dropped, and a shown virtual playhead is hidden.
    QTest::newRow("playing, hidden, show") << "show" << true << true << false << "" << false;
    QTest::newRow("playing, shown, show") << "show" << true << true << true << "visibleChanged seek 40" << false;
    QTest::newRow("playing, shown, hide") << "hide" << true << true << true << "visibleChanged seek 40" << false;
    QTest::newRow("shown, show: signals again") << "show" << false << true << true << "visibleChanged" << true;
    QTest::newRow("stopped shows") << "state 0" << false << true << false << "visibleChanged" << true;
    QTest::newRow("paused shows") << "state 2" << false << true << false << "visibleChanged" << true;
    QTest::newRow("playing changes nothing") << "state 1" << false << true << true << "" << true;
    QTest::newRow("finished hides, seeks twice")
        << "state 3" << false << true << true << "visibleChanged seek 40 seek 40" << false;
    QTest::newRow("closed: ignored") << "state 0" << false << false << false << "" << false;
}

void tst_MvTimelineVirtualPlayheadPresenter::requests()
{
    QFETCH(QString, request);
    QFETCH(bool, playing);
    QFETCH(bool, open);
    QFETCH(bool, shownBefore);
    QFETCH(QString, journal);
    QFETCH(bool, visibleAfter);

    Fixture f;
    f.vp->open();
    f.vp->setVisible(shownBefore);
    if (!open)
        f.vp->close();
    f.scene.answerWith(MessageId::IsPlayerPlaying, playing);
    f.reset();

    if (request.startsWith(QLatin1String("state")))
        f.vp->playStateChanged(request.section(QLatin1Char(' '), 1).toInt());
    else
        f.vp->setVisible(request == QLatin1String("show"));

    QCOMPARE(f.vp->visible(), visibleAfter);
    QCOMPARE(f.journalText(), journal);
    QCOMPARE(f.playhead(), qint64(40));
    // Each change of the shown state is logged.
    const QString logged = QStringLiteral("Set Virtual Playhead Visible = %1").arg(int(visibleAfter));
    QCOMPARE(f.log.messages(), journal.isEmpty() ? QStringList() : QStringList({ logged }));
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

    QVERIFY(!playhead->needsVirtualReopen());
    QVERIFY(playhead->isVirtualOpen());
    QVERIFY(!playhead->isSplitButtonVisible());
}

void tst_MvTimelineVirtualPlayheadPresenter::seekHoldsTheUnsettledFrame()
{
    Fixture f;
    MvMemoryPlayhead* playhead = f.timeline.playheadImpl();
    playhead->settle();
    const qint64 settled = playhead->settledFrame();
    QVERIFY(!playhead->isFrameSettled(settled + 100));
    QList<bool> held;
    f.scene.answer(MessageId::Seek, [&](MvMessage*) { held.append(playhead->isSeekHold()); });

    f.vp->seek(settled + 100); // a frame still decoding is held during the seek
    f.vp->seek(settled);

    QCOMPARE(held, QList<bool>({ true, false }));
    QVERIFY(!playhead->isSeekHold());
    QCOMPARE(f.journalText(), QStringLiteral("seek %1 seek %2").arg(settled + 100).arg(settled));
}

QTEST_MAIN(tst_MvTimelineVirtualPlayheadPresenter)
#include "tst_MvTimelineVirtualPlayheadPresenter.moc"
