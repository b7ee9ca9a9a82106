#include "MvModelMessages.h"
#include "MvRecordingScene.h"
#include "MvTimelinePresenter.h"

#include <QSignalSpy>
#include <QtTest>

namespace {
// A host presenter that supplies its own normal row height and counts action refreshes.
class HostPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    using MvTimelinePresenter::stopMediaPlayer;
    using MvTimelinePresenter::seekAfterPause;
    int refreshes = 0;
    int normalHeight = 70;

    int heightOf(MVVBLMODEL::MvTrackSizePolicy policy) { return getTrackHeight(policy); }

protected:
    void updateAction() override { ++refreshes; }
    int getTrackHeight(MVVBLMODEL::MvTrackSizePolicy policy) override
    {
        return policy == 1 ? normalHeight : MvTimelinePresenter::getTrackHeight(policy);
    }
};
}

class tst_MvTimelinePresenterFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultConfigurationHasTwoFixedTracks();
    void clearFixedTrackKeepsTheOtherFields();
    void configurationCopiesEveryField();
    void modeChangeSignalsOnlyOnDifference();
    void actionEnabledSignalsOnlyOnDifference();
    void updateActionEnabledSignalsOnlyWhenSwitchedOn();
    void trackHeightByPolicy_data();
    void trackHeightByPolicy();
    void unknownPolicyFallsBackThroughTheOverride();
    void playerCouplingSendsItsMessages();
    void playingQueryReadsTheSceneAnswer();
    void hiddenPlaceholderIsNotDeleted();
    void placeholderWithoutReceiverStaysVisible();
    void placeholderDeletedByReceiver();
    void placeholderRectangleNarrowsTo32Bits();
};

void tst_MvTimelinePresenterFrame::defaultConfigurationHasTwoFixedTracks()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    const auto* config = presenter.config();
    QCOMPARE(config->fixedTrackCount(), 2);
    QCOMPARE(int(config->sizeParam), 55);
    QCOMPARE(config->widthParam, 128);
    QVERIFY(config->flagFirst);
    QVERIFY(!config->flagSecond);
}

void tst_MvTimelinePresenterFrame::clearFixedTrackKeepsTheOtherFields()
{
    MvTimelinePresenter::MvTimelineViewConfig config;
    config.sizeParam = 9;
    config.widthParam = -4;
    config.flagSecond = true;
    config.clearFixedTrack();
    QCOMPARE(config.fixedTrackCount(), 0);
    QCOMPARE(int(config.sizeParam), 9);
    QCOMPARE(config.widthParam, -4);
    QVERIFY(config.flagFirst);
    QVERIFY(config.flagSecond);
}

void tst_MvTimelinePresenterFrame::configurationCopiesEveryField()
{
    MvTimelinePresenter::MvTimelineViewConfig source;
    source.fixedTrackCountFirst = 3;
    source.fixedTrackCountSecond = 250;
    source.sizeParam = 1;
    source.widthParam = 7;
    source.flagFirst = false;
    source.flagSecond = true;
    MvTimelinePresenter::MvTimelineViewConfig copy;
    copy = source;
    MvTimelinePresenter::MvTimelineViewConfig moved;
    moved = std::move(source);
    for (const auto* c : { &copy, &moved }) {
        QCOMPARE(c->fixedTrackCount(), 253);
        QCOMPARE(int(c->sizeParam), 1);
        QCOMPARE(c->widthParam, 7);
        QVERIFY(!c->flagFirst);
        QVERIFY(c->flagSecond);
    }
}

void tst_MvTimelinePresenterFrame::modeChangeSignalsOnlyOnDifference()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    QSignalSpy spy(&presenter, &MvTimelinePresenter::sigModeChanged);
    presenter.setModeType(MvTimelinePresenter::NormalMode);
    QCOMPARE(spy.count(), 0);
    presenter.setModeType(MvTimelinePresenter::BladeMode);
    presenter.setModeType(MvTimelinePresenter::BladeMode);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(presenter.modeType(), MvTimelinePresenter::BladeMode);
}

void tst_MvTimelinePresenterFrame::actionEnabledSignalsOnlyOnDifference()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    QSignalSpy spy(&presenter, &MvTimelinePresenter::sigActionStatusChanged);
    presenter.setActionEnabled(true);
    QCOMPARE(spy.count(), 0);
    presenter.setActionEnabled(false);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!presenter.actionEnabled());
}

void tst_MvTimelinePresenterFrame::updateActionEnabledSignalsOnlyWhenSwitchedOn()
{
    HostPresenter presenter(nullptr, nullptr);
    QSignalSpy spy(&presenter, &MvTimelinePresenter::sigActionStatusChanged);
    presenter.setUpdateActionEnabled(true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(presenter.refreshes, 1);
    presenter.setUpdateActionEnabled(false);
    QVERIFY(!presenter.canUpdateAction());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(presenter.refreshes, 1);
    presenter.setUpdateActionEnabled(true);
    QCOMPARE(spy.count(), 2);
    QVERIFY(presenter.canUpdateAction());
}

void tst_MvTimelinePresenterFrame::trackHeightByPolicy_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("height");
    QTest::newRow("small") << 0 << 32;
    QTest::newRow("normal") << 1 << 70;
    QTest::newRow("large") << 2 << 160;
    QTest::newRow("unknown") << 7 << 70;
    QTest::newRow("negative") << -1 << 70;
}

void tst_MvTimelinePresenterFrame::trackHeightByPolicy()
{
    QFETCH(int, policy);
    QFETCH(int, height);
    HostPresenter presenter(nullptr, nullptr);
    QCOMPARE(presenter.heightOf(policy), height);
}

void tst_MvTimelinePresenterFrame::unknownPolicyFallsBackThroughTheOverride()
{
    HostPresenter presenter(nullptr, nullptr);
    presenter.normalHeight = 88;
    QCOMPARE(presenter.heightOf(7), 88);
    QCOMPARE(presenter.heightOf(2), 160);
}

void tst_MvTimelinePresenterFrame::playerCouplingSendsItsMessages()
{
    MvRecordingScene scene;
    HostPresenter presenter(nullptr, nullptr);
    presenter.setScene(&scene);
    presenter.pauseMediaPlayer();
    presenter.pauseMediaPlayerWithSync();
    presenter.stopMediaPlayer();
    presenter.seekAfterPause();
    presenter.hidePropertyPanel();
    presenter.checkHidePropertyPanel(); // no timeline: nothing
    presenter.seek(250);

    const QList<MvRecordingScene::Entry> entries = scene.entries();
    QCOMPARE(scene.ids(), QList<int>({ 7012, 7036, 7014, 7041, 9006, 7040 }));
    QCOMPARE(entries.at(0).type, QStringLiteral("bare"));
    QCOMPARE(entries.at(1).type, QStringLiteral("bare"));
    QCOMPARE(entries.at(2).type, QStringLiteral("MvMessage"));
    QCOMPARE(entries.at(3).type, QStringLiteral("MvSeekAfterPauseMessage"));
    QCOMPARE(entries.at(4).type, QStringLiteral("MvMessage"));
    QCOMPARE(entries.at(5).type, QStringLiteral("MvSeekMessage"));
    QCOMPARE(entries.at(5).payload.toLongLong(), 250);
}

void tst_MvTimelinePresenterFrame::playingQueryReadsTheSceneAnswer()
{
    MvRecordingScene scene;
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.setScene(&scene);
    QVERIFY(!presenter.isMediaPlayerPlaying());
    scene.answerWith(7033, true);
    QVERIFY(presenter.isMediaPlayerPlaying());
    QCOMPARE(scene.count(7033), 2);
}

void tst_MvTimelinePresenterFrame::hiddenPlaceholderIsNotDeleted()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    QSignalSpy spy(&presenter, &MvTimelinePresenter::sigDeleteEmptyClipItem);
    QVERIFY(!presenter.emptyClipItemVisible());
    QVERIFY(!presenter.deleteEmptyClipItem(true));
    QCOMPARE(spy.count(), 0);
}

void tst_MvTimelinePresenterFrame::placeholderWithoutReceiverStaysVisible()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    QSignalSpy state(&presenter, &MvTimelinePresenter::sigEmptyClipItemStateChanged);
    presenter.showEmptyClip(10, 20, 30, 40);
    QCOMPARE(state.count(), 1);
    QCOMPARE(state.first().first().toBool(), true);
    QSignalSpy spy(&presenter, &MvTimelinePresenter::sigDeleteEmptyClipItem);
    QVERIFY(!presenter.deleteEmptyClipItem(false));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toBool(), false);
    QVERIFY(presenter.emptyClipItemVisible());
}

void tst_MvTimelinePresenterFrame::placeholderDeletedByReceiver()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    connect(&presenter, &MvTimelinePresenter::sigDeleteEmptyClipItem, &presenter,
        [&presenter](bool) { presenter.hideEmptyClip(); });
    presenter.showEmptyClip(0, 0, 5, 5);
    QVERIFY(presenter.deleteEmptyClipItem(true));
    QCOMPARE(presenter.emptyClipRect(), QRect(0, 0, 0, 0));
}

void tst_MvTimelinePresenterFrame::placeholderRectangleNarrowsTo32Bits()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.showEmptyClip(Q_INT64_C(0x100000005), 7, 3, 4);
    QCOMPARE(presenter.emptyClipRect(), QRect(5, 7, 3, 4));
    presenter.showEmptyClip(1, 1, 0, 4);
    QVERIFY(!presenter.emptyClipItemVisible());
}

QTEST_MAIN(tst_MvTimelinePresenterFrame)
#include "tst_MvTimelinePresenterFrame.moc"
