#include "IMvColorCompareService.h"
#include "IMvSelection.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryTrack.h"
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
    using MvTimelinePresenter::seekAfterPause;
    using MvTimelinePresenter::stopMediaPlayer;
    int refreshes = 0;
    int normalHeight = 70;

    int detachRow(IMvClip* clip) { return calcDetachAudioTrackIndex(clip); }
    void switchPlayer() { switchMediaPlayerToTimeline(); }
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
    void clearFixedTrackKeepsTheOtherFields();
    void modeChangeSignalsOnlyOnDifference();
    void actionEnabledSignalsOnlyOnDifference();
    void updateActionEnabledSignalsOnlyWhenSwitchedOn();
    void trackHeightByPolicy_data();
    void trackHeightByPolicy();
    void playerCouplingSendsItsMessages();
    void playingQueryReadsTheSceneAnswer();
    void placeholderIsDeletedByItsReceiver_data();
    void placeholderIsDeletedByItsReceiver();
    void adjustTrackHeightUsesTheOverride();
    void adjustTrackHeightIgnoresAMissingTrack();
    void emptyCapNeedsAGapBetweenSelectedClipsOfOneTrack_data();
    void emptyCapNeedsAGapBetweenSelectedClipsOfOneTrack();
    void detachedAudioGoesToTheLowestFreeUnlockedRow();
    void playerIsSwitchedOnlyToTheMainTimeline_data();
    void playerIsSwitchedOnlyToTheMainTimeline();
    void propertyPanelHidesOnlyWhereNoVirtualPlayheadIsAllowed();
    void seekIsRelativeToTheColourCompareClip();
};

namespace {
// Two picture rows and two audio rows; the second picture row holds clips at 0-99, 100-149 and 200-299.
struct Fixture
{
    MvMemoryTimeline timeline;
    MvMemoryClip* a;
    MvMemoryClip* b;
    MvMemoryClip* c;
    MvMemoryClip* other;

    Fixture()
    {
        timeline.addTrack(MVVBLMODEL::TrackType_Picture);
        timeline.addTrack(MVVBLMODEL::TrackType_Picture);
        timeline.addTrack(MVVBLMODEL::TrackType_Audio);
        timeline.addTrack(MVVBLMODEL::TrackType_Audio);
        a = timeline.addClip(1, MVVBLMODEL::ClipType_Video, 0, 99, QStringLiteral("a"));
        b = timeline.addClip(1, MVVBLMODEL::ClipType_Video, 100, 149, QStringLiteral("b"));
        c = timeline.addClip(1, MVVBLMODEL::ClipType_Video, 200, 299, QStringLiteral("c"));
        other = timeline.addClip(0, MVVBLMODEL::ClipType_Image, 160, 180, QStringLiteral("other"));
    }
};
}

void tst_MvTimelinePresenterFrame::clearFixedTrackKeepsTheOtherFields()
{
    MvTimelinePresenter presenter(nullptr, nullptr);
    auto* config = presenter.config();
    QCOMPARE(config->fixedTrackCount(), 2);
    const MvTimelinePresenter::MvTimelineViewConfig before = *config;
    config->clearFixedTrack();
    QCOMPARE(config->fixedTrackCount(), 0);
    QCOMPARE(QList<int>({ int(config->sizeParam), config->widthParam, config->flagFirst, config->flagSecond }),
        QList<int>({ int(before.sizeParam), before.widthParam, before.flagFirst, before.flagSecond }));
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
    QTest::addColumn<int>("normal"); // the host's height for policy 1
    QTest::addColumn<int>("height");
    QTest::newRow("small") << 0 << 70 << 32;
    QTest::newRow("normal") << 1 << 70 << 70;
    QTest::newRow("large") << 2 << 70 << 160;
    QTest::newRow("unknown") << 7 << 70 << 70;
    QTest::newRow("negative") << -1 << 70 << 70;
    QTest::newRow("unknown, through the host's normal") << 7 << 88 << 88;
    QTest::newRow("large, whatever the host's normal") << 2 << 88 << 160;
}

void tst_MvTimelinePresenterFrame::trackHeightByPolicy()
{
    QFETCH(int, policy);
    QFETCH(int, normal);
    QFETCH(int, height);
    HostPresenter presenter(nullptr, nullptr);
    presenter.normalHeight = normal;
    QCOMPARE(presenter.heightOf(policy), height);
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

void tst_MvTimelinePresenterFrame::placeholderIsDeletedByItsReceiver_data()
{
    QTest::addColumn<int>("width"); // of the placeholder shown; -1 when none is
    QTest::addColumn<bool>("receiverHides");
    QTest::addColumn<bool>("arg");
    QTest::addColumn<QString>("notes"); // state changes and delete requests, in order
    QTest::addColumn<bool>("deleted");
    QTest::newRow("hidden: nothing to delete") << -1 << true << true << "" << false;
    QTest::newRow("no width: nothing to delete") << 0 << true << true << "shown" << false;
    QTest::newRow("no receiver: still there") << 30 << false << false << "shown delete(0)" << false;
    QTest::newRow("the receiver takes it away") << 30 << true << true << "shown delete(1) hidden" << true;
}

void tst_MvTimelinePresenterFrame::placeholderIsDeletedByItsReceiver()
{
    QFETCH(int, width);
    QFETCH(bool, receiverHides);
    QFETCH(bool, arg);
    QFETCH(QString, notes);
    QFETCH(bool, deleted);
    MvTimelinePresenter presenter(nullptr, nullptr);
    QStringList seen;
    connect(&presenter, &MvTimelinePresenter::sigEmptyClipItemStateChanged, &presenter,
        [&seen](bool visible) { seen.append(visible ? QStringLiteral("shown") : QStringLiteral("hidden")); });
    connect(&presenter, &MvTimelinePresenter::sigDeleteEmptyClipItem, &presenter, [&](bool value) {
        seen.append(QStringLiteral("delete(%1)").arg(int(value)));
        if (receiverHides)
            presenter.hideEmptyClip();
    });
    if (width >= 0)
        presenter.showEmptyClip(10, 20, width, 40);
    QCOMPARE(presenter.emptyClipItemVisible(), width > 0);
    QCOMPARE(presenter.deleteEmptyClipItem(arg), deleted);
    QCOMPARE(seen.join(QLatin1Char(' ')), notes);
    QCOMPARE(presenter.emptyClipItemVisible(), width > 0 && !deleted);
}

void tst_MvTimelinePresenterFrame::adjustTrackHeightUsesTheOverride()
{
    Fixture f;
    HostPresenter presenter(nullptr, &f.timeline);
    presenter.normalHeight = 81;
    presenter.adjustTrackHeight(1, 1);
    presenter.adjustTrackHeight(2, 2);
    presenter.adjustTrackHeight(3, 9);
    QCOMPARE(f.timeline.trackAt(1)->height(), 81);
    QCOMPARE(f.timeline.trackAt(2)->height(), 160);
    QCOMPARE(f.timeline.trackAt(3)->height(), 81);
}

void tst_MvTimelinePresenterFrame::adjustTrackHeightIgnoresAMissingTrack()
{
    Fixture f;
    const QString before = f.timeline.stateText();
    MvTimelinePresenter presenter(nullptr, &f.timeline);
    presenter.adjustTrackHeight(4, 2);
    presenter.adjustTrackHeight(-1, 2);
    QCOMPARE(f.timeline.stateText(), before);
}

void tst_MvTimelinePresenterFrame::emptyCapNeedsAGapBetweenSelectedClipsOfOneTrack_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<bool>("gap");
    QTest::newRow("nothing") << QStringList() << false;
    QTest::newRow("one clip") << QStringList { QStringLiteral("a") } << false;
    QTest::newRow("adjacent clips") << QStringList { QStringLiteral("b"), QStringLiteral("a") } << false;
    QTest::newRow("gap between b and c") << QStringList { QStringLiteral("c"), QStringLiteral("b") } << true;
    QTest::newRow("gap only across tracks") << QStringList { QStringLiteral("b"), QStringLiteral("other") } << false;
}

void tst_MvTimelinePresenterFrame::emptyCapNeedsAGapBetweenSelectedClipsOfOneTrack()
{
    QFETCH(QStringList, selected);
    QFETCH(bool, gap);
    Fixture f;
    const QHash<QString, IMvClip*> byName { { QStringLiteral("a"), f.a }, { QStringLiteral("b"), f.b },
        { QStringLiteral("c"), f.c }, { QStringLiteral("other"), f.other } };
    QList<IMvClip*> clips;
    for (const QString& name : selected)
        clips.append(byName.value(name));
    f.timeline.selection()->select(clips);
    MvTimelinePresenter presenter(nullptr, &f.timeline);
    QCOMPARE(presenter.hasEmptyCap(), gap);
}

void tst_MvTimelinePresenterFrame::detachedAudioGoesToTheLowestFreeUnlockedRow()
{
    Fixture f;
    HostPresenter presenter(nullptr, &f.timeline);
    QCOMPARE(presenter.detachRow(f.a), 3);
    f.timeline.addClip(3, MVVBLMODEL::ClipType_Audio, 50, 60, QStringLiteral("sound"));
    QCOMPARE(presenter.detachRow(f.a), 2);
    QCOMPARE(presenter.detachRow(f.c), 3);
    f.timeline.trackAt(2)->setLocked(true);
    QCOMPARE(presenter.detachRow(f.a), -1);
    QCOMPARE(presenter.detachRow(nullptr), -1);
}

void tst_MvTimelinePresenterFrame::playerIsSwitchedOnlyToTheMainTimeline_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("messages");
    QTest::newRow("main timeline") << 0 << 1;
    QTest::newRow("nested timeline") << 1 << 0;
}

void tst_MvTimelinePresenterFrame::playerIsSwitchedOnlyToTheMainTimeline()
{
    QFETCH(int, kind);
    QFETCH(int, messages);
    MvMemoryTimeline timeline(kind);
    MvRecordingScene scene;
    HostPresenter presenter(nullptr, &timeline);
    presenter.setScene(&scene);
    presenter.switchPlayer();
    QCOMPARE(scene.count(7005), messages);
    if (messages)
        QCOMPARE(
            scene.entries().first().payload.value<void*>(), static_cast<void*>(static_cast<IMvTimeline*>(&timeline)));
}

void tst_MvTimelinePresenterFrame::propertyPanelHidesOnlyWhereNoVirtualPlayheadIsAllowed()
{
    MvMemoryTimeline timeline;
    MvRecordingScene scene;
    MvTimelinePresenter presenter(nullptr, &timeline);
    presenter.setScene(&scene);
    timeline.setVirtualPlayheadAllowed(true);
    presenter.checkHidePropertyPanel();
    QCOMPARE(scene.count(9006), 0);
    timeline.setVirtualPlayheadAllowed(false);
    presenter.checkHidePropertyPanel();
    QCOMPARE(scene.count(9006), 1);
}

void tst_MvTimelinePresenterFrame::seekIsRelativeToTheColourCompareClip()
{
    Fixture f;
    MvRecordingScene scene;
    MvTimelinePresenter presenter(nullptr, &f.timeline);
    presenter.setScene(&scene);
    getColorCompareService()->setCurrentClip(f.c);
    presenter.seek(250);
    getColorCompareService()->setCurrentClip(nullptr);
    presenter.seek(250);
    QCOMPARE(scene.entries().at(0).payload.toLongLong(), 50);
    QCOMPARE(scene.entries().at(1).payload.toLongLong(), 250);
}

QTEST_MAIN(tst_MvTimelinePresenterFrame)
#include "tst_MvTimelinePresenterFrame.moc"
