#include "IMvMarker.h"
#include "MvEditFixture.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString LogFile = QStringLiteral("Src/MvTimeline/MvTimelineVirtualPlayheadPresenter");
const QString SetVisibleFunction = QStringLiteral("MvTimelineVirtualPlayheadPresenterPrivate::setVisible");

// A timeline presenter with its virtual playhead, signal spies and the frames the scene was asked
// to seek to.
struct VirtualFixture : MvEditFixture<>
{
    VirtualFixture()
    {
        clip(0, 0, 299);
        setPlayhead(40);
        presenter->initVirtualPlayheadPresenter();
        virtualPlayhead = presenter->virtualPlayheadPresenter();
        visibleSpy.reset(new QSignalSpy(virtualPlayhead, &MvTimelineVirtualPlayheadPresenter::sigVisibleChanged));
        enableSpy.reset(new QSignalSpy(virtualPlayhead, &MvTimelineVirtualPlayheadPresenter::sigEnableChanged));
    }

    void setPlaying(bool playing) { scene.answerWith(MessageId::IsPlayerPlaying, playing); }

    QList<qint64> seeks() const
    {
        QList<qint64> frames;
        for (const MvRecordingScene::Entry& entry : scene.entries()) {
            if (entry.id == MessageId::Seek)
                frames.append(entry.payload.toLongLong());
        }
        return frames;
    }

    void reset()
    {
        scene.clear();
        journal.clear();
        log.clear();
        visibleSpy->clear();
        enableSpy->clear();
    }

    MvTimelineVirtualPlayheadPresenter* virtualPlayhead = nullptr;
    std::unique_ptr<QSignalSpy> visibleSpy;
    std::unique_ptr<QSignalSpy> enableSpy;
};
}

class tst_MvTimelineVirtualPlayheadPresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createdByTheTimelinePresenter();
    void observesThePlayheadWhileItLives();
    void openPausesPreparesAndHidesTheSplitButton();
    void closeSeeksToThePlayhead();
    void visibleNeedsOpenAndShown();
    void showingTwiceSignalsTwice();
    void playbackRefusesToShow_data();
    void playbackRefusesToShow();
    void playheadMoveHidesAShownMarker_data();
    void playheadMoveHidesAShownMarker();
    void playStateChanges_data();
    void playStateChanges();
    void playStateIgnoredWhileClosed();
    void playStateReopensAfterAnEdit();
    void updateEnableClosesWhereNotAllowed_data();
    void updateEnableClosesWhereNotAllowed();
    void seekHoldsTheUnsettledFrame_data();
    void seekHoldsTheUnsettledFrame();
};

void tst_MvTimelineVirtualPlayheadPresenter::createdByTheTimelinePresenter()
{
    MvEditFixture<> f;
    QCOMPARE(f.presenter->virtualPlayheadPresenter(), nullptr);
    QVERIFY(!f.presenter->isOpenVirtualPlayhead());

    f.presenter->initVirtualPlayheadPresenter();
    QPointer<MvTimelineVirtualPlayheadPresenter> first = f.presenter->virtualPlayheadPresenter();
    QVERIFY(first);
    QCOMPARE(first->parent(), f.presenter.get());
    QCOMPARE(first->timelinePresenter(), f.presenter.get());
    QVERIFY(!f.presenter->isOpenVirtualPlayhead());
    first->open();
    QVERIFY(f.presenter->isOpenVirtualPlayhead());

    // A new one replaces the stored one; the earlier one lives on as a child.
    f.presenter->initVirtualPlayheadPresenter();
    QVERIFY(f.presenter->virtualPlayheadPresenter() != first);
    QVERIFY(first);
    QVERIFY(!f.presenter->isOpenVirtualPlayhead());
}

void tst_MvTimelineVirtualPlayheadPresenter::observesThePlayheadWhileItLives()
{
    MvEditFixture<> f;
    const int observers = f.timeline.playheadImpl()->observerCount();
    f.presenter->initVirtualPlayheadPresenter();
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers + 1);
    delete f.presenter->virtualPlayheadPresenter();
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers);

    f.presenter->initVirtualPlayheadPresenter();
    f.presenter.reset();
    QCOMPARE(f.timeline.playheadImpl()->observerCount(), observers);
}

void tst_MvTimelineVirtualPlayheadPresenter::openPausesPreparesAndHidesTheSplitButton()
{
    VirtualFixture f;
    f.reset();

    f.virtualPlayhead->open();

    QVERIFY(f.virtualPlayhead->isOpen());
    QVERIFY(!f.virtualPlayhead->visible());
    QVERIFY(f.timeline.playheadImpl()->isVirtualOpen());
    QVERIFY(!f.timeline.playheadImpl()->isSplitButtonVisible());
    QCOMPARE(f.enableSpy->count(), 1);
    QCOMPARE(f.visibleSpy->count(), 0);
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("bare"));
    QVERIFY(f.at(QStringLiteral("scene:7012")) >= 0);
    QVERIFY(f.at(QStringLiteral("scene:7012")) < f.at(QStringLiteral("model:prepareVirtualPlayhead")));
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("Open Virtual Playhead"), 4,
                 QStringLiteral("MvTimelineVirtualPlayheadPresenter::open"), LogFile),
        QString());
}

void tst_MvTimelineVirtualPlayheadPresenter::closeSeeksToThePlayhead()
{
    VirtualFixture f;
    f.virtualPlayhead->open();
    f.virtualPlayhead->setVisible(true);
    f.setPlayhead(120);
    f.virtualPlayhead->setVisible(true);
    f.reset();

    f.virtualPlayhead->close();

    QVERIFY(!f.virtualPlayhead->isOpen());
    QVERIFY(!f.timeline.playheadImpl()->isVirtualOpen());
    QCOMPARE(f.seeks(), QList<qint64>({ f.playhead() }));
    QCOMPARE(f.enableSpy->count(), 1);
    QCOMPARE(f.visibleSpy->count(), 0);
    // Closing leaves the split button to whoever shows it again.
    QVERIFY(!f.timeline.playheadImpl()->isSplitButtonVisible());
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("Close Virtual Playhead"), 4,
                 QStringLiteral("MvTimelineVirtualPlayheadPresenter::close"), LogFile),
        QString());
}

void tst_MvTimelineVirtualPlayheadPresenter::visibleNeedsOpenAndShown()
{
    VirtualFixture f;
    f.virtualPlayhead->setVisible(true);
    QVERIFY(!f.virtualPlayhead->visible());
    f.virtualPlayhead->open();
    QVERIFY(f.virtualPlayhead->visible());
    f.virtualPlayhead->close();
    QVERIFY(!f.virtualPlayhead->visible());
    // Shown was kept: opening again shows it at once.
    f.virtualPlayhead->open();
    QVERIFY(f.virtualPlayhead->visible());
}

void tst_MvTimelineVirtualPlayheadPresenter::showingTwiceSignalsTwice()
{
    VirtualFixture f;
    f.virtualPlayhead->open();
    f.reset();
    f.virtualPlayhead->setVisible(true);
    f.virtualPlayhead->setVisible(true);
    QCOMPARE(f.visibleSpy->count(), 2);
    QVERIFY(f.seeks().isEmpty());
    QCOMPARE(f.log.find(QStringLiteral("Set Virtual Playhead Visible = 1")).size(), 2);
    QCOMPARE(f.log.find(QStringLiteral("Set Virtual Playhead Visible = 1")).first().function, SetVisibleFunction);

    f.virtualPlayhead->setVisible(false);
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("Set Virtual Playhead Visible = 0"), 4, SetVisibleFunction, LogFile),
        QString());
    QCOMPARE(f.seeks(), QList<qint64>({ f.playhead() }));
}

void tst_MvTimelineVirtualPlayheadPresenter::playbackRefusesToShow_data()
{
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<bool>("request");
    QTest::newRow("hidden, asked to show") << false << true;
    QTest::newRow("hidden, asked to hide") << false << false;
    QTest::newRow("shown, asked to show") << true << true;
    QTest::newRow("shown, asked to hide") << true << false;
}

void tst_MvTimelineVirtualPlayheadPresenter::playbackRefusesToShow()
{
    QFETCH(bool, shownBefore);
    QFETCH(bool, request);

    VirtualFixture f;
    f.virtualPlayhead->open();
    f.virtualPlayhead->setVisible(shownBefore);
    f.setPlaying(true);
    f.reset();

    f.virtualPlayhead->setVisible(request);

    QVERIFY(!f.virtualPlayhead->visible());
    QCOMPARE(f.visibleSpy->count(), shownBefore ? 1 : 0);
    QCOMPARE(f.seeks().size(), shownBefore ? 1 : 0);
    QCOMPARE(f.log.find(QStringLiteral("Set Virtual Playhead Visible = 0")).size(), shownBefore ? 1 : 0);
    QVERIFY(f.log.find(QStringLiteral("Set Virtual Playhead Visible = 1")).isEmpty());
}

void tst_MvTimelineVirtualPlayheadPresenter::playheadMoveHidesAShownMarker_data()
{
    QTest::addColumn<bool>("move");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("a move (kind 2) hides") << true << true;
    QTest::newRow("an enable change (kind 1) does not") << false << false;
}

void tst_MvTimelineVirtualPlayheadPresenter::playheadMoveHidesAShownMarker()
{
    QFETCH(bool, move);
    QFETCH(bool, hidden);

    VirtualFixture f;
    f.virtualPlayhead->open();
    f.virtualPlayhead->setVisible(true);
    f.reset();

    if (move)
        f.setPlayhead(77);
    else
        f.timeline.playhead()->setEnabled(false);

    QCOMPARE(f.virtualPlayhead->visible(), !hidden);
    QCOMPARE(f.visibleSpy->count(), hidden ? 1 : 0);

    // Hidden or closed, moves are ignored.
    f.virtualPlayhead->close();
    f.reset();
    f.setPlayhead(90);
    QCOMPARE(f.visibleSpy->count(), 0);
}

void tst_MvTimelineVirtualPlayheadPresenter::playStateChanges_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<bool>("shownAfter");
    QTest::addColumn<int>("seeks");

    QTest::newRow("stopped shows") << int(PlayState_Stopped) << false << true << 0;
    QTest::newRow("paused shows") << int(PlayState_Paused) << false << true << 0;
    QTest::newRow("playing changes nothing") << int(PlayState_Playing) << true << true << 0;
    QTest::newRow("playing changes nothing while hidden") << int(PlayState_Playing) << false << false << 0;
    QTest::newRow("finished hides and seeks twice") << int(PlayState_Finished) << true << false << 2;
}

void tst_MvTimelineVirtualPlayheadPresenter::playStateChanges()
{
    QFETCH(int, state);
    QFETCH(bool, shownBefore);
    QFETCH(bool, shownAfter);
    QFETCH(int, seeks);

    VirtualFixture f;
    f.virtualPlayhead->open();
    f.virtualPlayhead->setVisible(shownBefore);
    const qint64 frame = f.playhead();
    f.reset();

    f.virtualPlayhead->playStateChanged(state);

    QCOMPARE(f.virtualPlayhead->visible(), shownAfter);
    QCOMPARE(f.seeks(), QList<qint64>(QVector<qint64>(seeks, frame).toList()));
    QCOMPARE(f.playhead(), frame);
    QVERIFY(f.virtualPlayhead->isOpen());
}

void tst_MvTimelineVirtualPlayheadPresenter::playStateIgnoredWhileClosed()
{
    VirtualFixture f;
    f.reset();
    for (const int state : { PlayState_Stopped, PlayState_Playing, PlayState_Paused, PlayState_Finished })
        f.virtualPlayhead->playStateChanged(state);
    QCOMPARE(f.visibleSpy->count(), 0);
    QVERIFY(f.scene.entries().isEmpty());
    QVERIFY(f.log.records().isEmpty());
}

void tst_MvTimelineVirtualPlayheadPresenter::playStateReopensAfterAnEdit()
{
    VirtualFixture f;
    f.virtualPlayhead->open();
    // An edit while open drops the model's virtual position; the next play state restores it.
    f.timeline.timelineMarkers()->addMarker(10, Qt::red);
    MvMemoryPlayhead* playhead = f.timeline.playheadImpl();
    QVERIFY(playhead->needsVirtualReopen());
    playhead->setSplitButtonVisible(true);

    f.virtualPlayhead->playStateChanged(PlayState_Playing);

    QVERIFY(!playhead->needsVirtualReopen());
    QVERIFY(playhead->isVirtualOpen());
    QVERIFY(!playhead->isSplitButtonVisible());
}

void tst_MvTimelineVirtualPlayheadPresenter::updateEnableClosesWhereNotAllowed_data()
{
    QTest::addColumn<bool>("open");
    QTest::addColumn<bool>("allowed");
    QTest::addColumn<bool>("openAfter");
    QTest::newRow("open, not allowed: closes") << true << false << false;
    QTest::newRow("open, allowed: stays") << true << true << true;
    QTest::newRow("closed, not allowed: nothing") << false << false << false;
}

void tst_MvTimelineVirtualPlayheadPresenter::updateEnableClosesWhereNotAllowed()
{
    QFETCH(bool, open);
    QFETCH(bool, allowed);
    QFETCH(bool, openAfter);

    VirtualFixture f;
    if (open)
        f.virtualPlayhead->open();
    f.timeline.setVirtualPlayheadAllowed(allowed);
    f.reset();

    f.virtualPlayhead->updateEnable();

    QCOMPARE(f.virtualPlayhead->isOpen(), openAfter);
    QCOMPARE(f.enableSpy->count(), open == openAfter ? 0 : 1);
}

void tst_MvTimelineVirtualPlayheadPresenter::seekHoldsTheUnsettledFrame_data()
{
    QTest::addColumn<bool>("settled");
    QTest::newRow("a frame still decoding is held") << false;
    QTest::newRow("a settled frame is not") << true;
}

void tst_MvTimelineVirtualPlayheadPresenter::seekHoldsTheUnsettledFrame()
{
    QFETCH(bool, settled);

    VirtualFixture f;
    MvMemoryPlayhead* playhead = f.timeline.playheadImpl();
    playhead->settle();
    const qint64 target = settled ? playhead->settledFrame() : playhead->settledFrame() + 100;
    QCOMPARE(playhead->isFrameSettled(target), settled);
    QList<bool> holdDuringSeek;
    f.scene.answer(MessageId::Seek, [&](MvMessage*) { holdDuringSeek.append(playhead->isSeekHold()); });

    f.virtualPlayhead->seek(target);

    QCOMPARE(f.seeks(), QList<qint64>({ target }));
    QCOMPARE(holdDuringSeek, QList<bool>({ !settled }));
    QVERIFY(!playhead->isSeekHold());
}

QTEST_MAIN(tst_MvTimelineVirtualPlayheadPresenter)
#include "tst_MvTimelineVirtualPlayheadPresenter.moc"
