#include "IMvMarker.h"
#include "MvEditFixture.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QPointer>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString LogFile = QStringLiteral("Src/MvTimeline/MvTimelineVirtualPlayheadPresenter");

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
    void openAndClose();
    void setVisible();
    void playbackRefusesToShow_data();
    void playbackRefusesToShow();
    void playheadMoveHidesIt();
    void playStateChanged_data();
    void playStateChanged();
    void playStateReopensAfterAnEdit();
    void updateEnableClosesWhereNotAllowed();
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
    QCOMPARE(first->timelinePresenter(), f.presenter.get());
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers + 1);
    QVERIFY(!f.presenter->isOpenVirtualPlayhead());
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

void tst_MvTimelineVirtualPlayheadPresenter::openAndClose()
{
    Fixture f;
    f.vp->open();

    QVERIFY(f.vp->isOpen() && !f.vp->visible());
    QVERIFY(f.timeline.playheadImpl()->isVirtualOpen());
    QVERIFY(!f.timeline.playheadImpl()->isSplitButtonVisible());
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("bare"));
    QCOMPARE(f.journalText(), QStringLiteral("scene:7012 model:prepareVirtualPlayhead enableChanged"));
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("Open Virtual Playhead"), 4,
                 QStringLiteral("MvTimelineVirtualPlayheadPresenter::open"), LogFile),
        QString());

    f.vp->setVisible(true);
    f.setPlayhead(120);
    f.vp->setVisible(true);
    f.reset();
    f.vp->close();

    QVERIFY(!f.vp->isOpen() && !f.vp->visible());
    QVERIFY(!f.timeline.playheadImpl()->isVirtualOpen());
    QCOMPARE(f.journalText(), QStringLiteral("seek %1 enableChanged").arg(f.playhead()));
    // Closing leaves the split button to whoever shows it again.
    QVERIFY(!f.timeline.playheadImpl()->isSplitButtonVisible());
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("Close Virtual Playhead"), 4,
                 QStringLiteral("MvTimelineVirtualPlayheadPresenter::close"), LogFile),
        QString());
    // It was left shown: opening again shows it at once.
    f.vp->open();
    QVERIFY(f.vp->visible());
}

void tst_MvTimelineVirtualPlayheadPresenter::setVisible()
{
    Fixture f;
    f.vp->open();
    f.reset();

    // Each request signals, also when nothing changes.
    f.vp->setVisible(true);
    f.vp->setVisible(true);
    QVERIFY(f.vp->visible());
    QCOMPARE(f.journalText(), QStringLiteral("visibleChanged visibleChanged"));
    const QString function = QStringLiteral("MvTimelineVirtualPlayheadPresenterPrivate::setVisible");
    QCOMPARE(f.log.find(QStringLiteral("Set Virtual Playhead Visible = 1")).size(), 2);
    QCOMPARE(f.log.find(QStringLiteral("Set Virtual Playhead Visible = 1")).first().function, function);

    // Hiding seeks back to the playhead.
    f.reset();
    f.vp->setVisible(false);
    QVERIFY(!f.vp->visible());
    QCOMPARE(f.journalText(), QStringLiteral("visibleChanged seek 40"));
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("Set Virtual Playhead Visible = 0"), 4, function, LogFile), QString());
}

void tst_MvTimelineVirtualPlayheadPresenter::playbackRefusesToShow_data()
{
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<bool>("request");
    QTest::newRow("hidden, asked to show") << false << true;
    QTest::newRow("shown, asked to show") << true << true;
    QTest::newRow("shown, asked to hide") << true << false;
}

void tst_MvTimelineVirtualPlayheadPresenter::playbackRefusesToShow()
{
    QFETCH(bool, shownBefore);
    QFETCH(bool, request);

    Fixture f;
    f.vp->open();
    f.vp->setVisible(shownBefore);
    f.scene.answerWith(MessageId::IsPlayerPlaying, true);
    f.reset();

    f.vp->setVisible(request);

    // While playback runs, a shown virtual playhead is hidden whatever was asked.
    QVERIFY(!f.vp->visible());
    QCOMPARE(f.journalText(), shownBefore ? QStringLiteral("visibleChanged seek 40") : QString());
    const QString hidden = QStringLiteral("Set Virtual Playhead Visible = 0");
    QCOMPARE(f.log.messages(), shownBefore ? QStringList({ hidden }) : QStringList());
}

void tst_MvTimelineVirtualPlayheadPresenter::playheadMoveHidesIt()
{
    Fixture f;
    f.vp->open();
    f.vp->setVisible(true);
    f.reset();

    f.timeline.playhead()->setEnabled(false); // an event of another kind
    QVERIFY(f.vp->visible());
    f.setPlayhead(77); // a move, kind 2
    QVERIFY(!f.vp->visible());
    QCOMPARE(f.journalText(), QStringLiteral("visibleChanged seek 77"));

    // Hidden, it ignores the moves.
    f.reset();
    f.setPlayhead(90);
    QVERIFY(f.journal.entries().isEmpty());
}

void tst_MvTimelineVirtualPlayheadPresenter::playStateChanged_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("open");
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<bool>("visibleAfter");
    QTest::addColumn<QString>("journal");

    QTest::newRow("stopped shows") << int(PlayState_Stopped) << true << false << true << "visibleChanged";
    QTest::newRow("paused shows") << int(PlayState_Paused) << true << false << true << "visibleChanged";
    QTest::newRow("playing changes nothing") << int(PlayState_Playing) << true << true << true << "";
    QTest::newRow("finished hides and seeks twice")
        << int(PlayState_Finished) << true << true << false << "visibleChanged seek 40 seek 40";
    QTest::newRow("closed: ignored") << int(PlayState_Stopped) << false << false << false << "";
}

void tst_MvTimelineVirtualPlayheadPresenter::playStateChanged()
{
    QFETCH(int, state);
    QFETCH(bool, open);
    QFETCH(bool, shownBefore);
    QFETCH(bool, visibleAfter);
    QFETCH(QString, journal);

    Fixture f;
    f.vp->open();
    f.vp->setVisible(shownBefore);
    if (!open)
        f.vp->close();
    f.reset();

    f.vp->playStateChanged(state);

    QCOMPARE(f.vp->visible(), visibleAfter);
    QCOMPARE(f.journalText(), journal);
    QCOMPARE(f.playhead(), qint64(40));
    QCOMPARE(f.vp->isOpen(), open);
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

void tst_MvTimelineVirtualPlayheadPresenter::updateEnableClosesWhereNotAllowed()
{
    Fixture f;
    f.timeline.setVirtualPlayheadAllowed(false);
    f.vp->updateEnable(); // closed: nothing to do
    QVERIFY(f.journal.entries().isEmpty());
    f.timeline.setVirtualPlayheadAllowed(true);
    f.vp->open();
    f.vp->updateEnable(); // allowed: stays open
    QVERIFY(f.vp->isOpen());
    f.timeline.setVirtualPlayheadAllowed(false);
    f.reset();

    f.vp->updateEnable();

    QVERIFY(!f.vp->isOpen());
    QCOMPARE(f.journalText(), QStringLiteral("seek 40 enableChanged"));
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
