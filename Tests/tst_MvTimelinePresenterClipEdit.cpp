#include "IMvKeyFrameSelector.h"
#include "IMvMarker.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryKeyFrames.h"
#include "Memory/MvMemoryMarker.h"
#include "Memory/MvMemorySelection.h"
#include "Memory/MvMemoryTrack.h"
#include "MvEditFixture.h"
#include "MvKeyFramePresenter.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString SplitFunction = QStringLiteral("MvTimelinePresenterPrivate::splitClips");

using Fixture = MvEditFixture<>;

QList<IMvClip*> clipList(std::initializer_list<MvMemoryClip*> clips)
{
    QList<IMvClip*> list;
    for (MvMemoryClip* clip : clips)
        list.append(clip);
    return list;
}

QString span(const IMvAbstractClip* clip)
{
    return QStringLiteral("%1..%2").arg(clip->start()).arg(clip->end());
}
}

class tst_MvTimelinePresenterClipEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splitAtFrameBelowOneUsesThePlayhead_data();
    void splitAtFrameBelowOneUsesThePlayhead();
    void splitWithNothingUnderTheFrameChangesNothing();
    void splitOfAnEmptyListAsksNothing();
    void splitOfGivenClipsIsOneStepNamedSplit();
    void groupQuestionDecidesTheGroups_data();
    void groupQuestionDecidesTheGroups();
    void canSplitClip_data();
    void canSplitClip();
    void trimPausesThenTrims_data();
    void trimPausesThenTrims();
    void trimRefusals_data();
    void trimRefusals();
    void canTrimToPlayhead_data();
    void canTrimToPlayhead();
    void deleteRefusedWhileActionsAreDisabled();
    void deleteOfALoneTransitionKeepsClipsAndPlayhead();
    void deleteMovesThePlayheadToTheEarliestClip_data();
    void deleteMovesThePlayheadToTheEarliestClip();
    void deleteHidesThePropertyPanelOnlyWhereNoVirtualPlayhead();
    void rippleDeleteGoesToTheFirstSelectedClip();
    void rippleDeleteWithoutClipsLogsAndRefuses();
    void deleteItemsTakesTheMostSpecificItem_data();
    void deleteItemsTakesTheMostSpecificItem();
    void deleteItemsRemovesTheEmptyClipGap();
    void canDeleteItems_data();
    void canDeleteItems();
};

void tst_MvTimelinePresenterClipEdit::splitAtFrameBelowOneUsesThePlayhead_data()
{
    QTest::addColumn<qint64>("frame");
    QTest::newRow("zero") << qint64(0);
    QTest::newRow("negative") << qint64(-5);
    QTest::newRow("minus one, as the split button asks") << qint64(-1);
}

void tst_MvTimelinePresenterClipEdit::splitAtFrameBelowOneUsesThePlayhead()
{
    QFETCH(qint64, frame);
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 199);
    f.select(clipList({ clip }));
    f.setPlayhead(80);
    const int steps = f.undoCount();
    const auto before = f.snapshot();

    QVERIFY(f.presenter->splitClips(frame, true, false));

    QCOMPARE(span(clip), QStringLiteral("0..79"));
    const QList<IMvClip*> selected = f.timeline.selection()->selectedClips();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(span(selected.first()), QStringLiteral("80..199"));
    QCOMPARE(f.undoCount(), steps + 1);
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("split Clips start"), 4, SplitFunction), QString());
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipEdit::splitWithNothingUnderTheFrameChangesNothing()
{
    Fixture f;
    f.clip(0, 0, 99);
    f.setPlayhead(100);
    const auto before = f.snapshot();
    QVERIFY(!f.presenter->splitClips(0, true, false));
    QVERIFY(!f.presenter->splitClips(150, true, true));
    QVERIFY(f.snapshot() == before);
    QCOMPARE(f.log.find(QStringLiteral("split Clips start")).size(), 2);
}

void tst_MvTimelinePresenterClipEdit::splitOfAnEmptyListAsksNothing()
{
    Fixture f;
    f.clip(0, 0, 99);
    const auto before = f.snapshot();
    QVERIFY(!f.presenter->splitClips(50, QList<IMvClip*>(), true, false));
    QVERIFY(f.snapshot() == before);
    QCOMPARE(f.scene.count(MessageId::GroupQuestionBeforeSplit), 0);
    QVERIFY(f.log.records().isEmpty());
}

void tst_MvTimelinePresenterClipEdit::splitOfGivenClipsIsOneStepNamedSplit()
{
    Fixture f;
    MvMemoryClip* first = f.clip(0, 0, 199);
    MvMemoryClip* second = f.clip(1, 50, 149);
    const int steps = f.undoCount();
    const auto before = f.snapshot();

    // The given frame is used as it is, even where the playhead stands elsewhere.
    f.setPlayhead(10);
    QVERIFY(f.presenter->splitClips(100, clipList({ first, second }), true, false));

    QCOMPARE(span(first), QStringLiteral("0..99"));
    QCOMPARE(span(second), QStringLiteral("50..99"));
    QCOMPARE(f.undoCount(), steps + 1);
    QCOMPARE(f.undoName(), QStringLiteral("split"));
    QCOMPARE(f.timeline.undoService()->undoSource(), SplitFunction);
    QCOMPARE(f.timeline.selection()->selectedClips().size(), 2);
    QCOMPARE(f.scene.count(MessageId::GroupQuestionBeforeSplit), 0);
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("bug:p7_5312 selected split clips,clip count = 2"), 2, SplitFunction),
        QString());
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("bug:p7_5312 selected end"), 2, SplitFunction), QString());
    QVERIFY(f.log.find(QStringLiteral("groupAfterSplit")).isEmpty());
    QCOMPARE(f.timeline.checkInvariants(), QString());

    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipEdit::groupQuestionDecidesTheGroups_data()
{
    QTest::addColumn<QVariant>("answer");
    QTest::addColumn<bool>("split");
    QTest::addColumn<int>("groupCount");
    QTest::addColumn<int>("groupSize");

    QTest::newRow("no answer declines") << QVariant() << false << 1 << 2;
    QTest::newRow("proceed false declines") << QVariant(QVariantList { false, true }) << false << 1 << 2;
    QTest::newRow("proceed and ungroup leaves the pieces apart")
        << QVariant(QVariantList { true, true }) << true << 0 << 0;
    QTest::newRow("proceed and keep regroups with the pieces")
        << QVariant(QVariantList { true, false }) << true << 1 << 4;
}

void tst_MvTimelinePresenterClipEdit::groupQuestionDecidesTheGroups()
{
    QFETCH(QVariant, answer);
    QFETCH(bool, split);
    QFETCH(int, groupCount);
    QFETCH(int, groupSize);

    Fixture f;
    MvMemoryClip* first = f.clip(0, 0, 199);
    MvMemoryClip* second = f.clip(1, 0, 199);
    f.timeline.editService()->group(clipList({ first, second }), 0);
    f.timeline.undoService()->clear();
    const auto before = f.snapshot();
    if (answer.isValid())
        f.scene.answerWith(MessageId::GroupQuestionBeforeSplit, answer);

    QCOMPARE(f.presenter->splitClips(100, clipList({ first, second }), false, false), split);

    // Two grouped clips, one question.
    QCOMPARE(f.scene.count(MessageId::GroupQuestionBeforeSplit), 1);
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("MvDataMessage"));
    if (!split) {
        QVERIFY(f.snapshot() == before);
        return;
    }
    QCOMPARE(f.undoCount(), 1);
    QCOMPARE(f.undoName(), QStringLiteral("split"));
    const QList<MvMemoryGroup> groups = f.timeline.groups();
    QCOMPARE(groups.size(), groupCount);
    if (groupCount > 0) {
        QCOMPARE(groups.first().members.size(), groupSize);
        QVERIFY(groups.first().members.contains(first));
        QVERIFY(groups.first().members.contains(second));
        QCOMPARE(mvCheckRecord(f.log, QStringLiteral("groupAfterSplit"), 2, SplitFunction), QString());
    } else {
        QVERIFY(f.log.find(QStringLiteral("groupAfterSplit")).isEmpty());
    }
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipEdit::canSplitClip_data()
{
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("virtualOpen");
    QTest::addColumn<bool>("expected");

    QTest::newRow("inside a clip") << qint64(50) << false << false << true;
    QTest::newRow("on the first frame, nothing to cut") << qint64(0) << false << false << false;
    QTest::newRow("on the last frame") << qint64(99) << false << false << true;
    QTest::newRow("past every clip") << qint64(300) << false << false << false;
    QTest::newRow("the clip's track is locked") << qint64(50) << true << false << false;
    QTest::newRow("virtual playhead open") << qint64(50) << false << true << false;
}

void tst_MvTimelinePresenterClipEdit::canSplitClip()
{
    QFETCH(qint64, playhead);
    QFETCH(bool, locked);
    QFETCH(bool, virtualOpen);
    QFETCH(bool, expected);

    Fixture f;
    f.clip(0, 0, 99);
    f.clip(1, 200, 250);
    f.timeline.trackAt(0)->setLocked(locked);
    f.setPlayhead(playhead);
    if (virtualOpen) {
        f.presenter->initVirtualPlayheadPresenter();
        f.presenter->virtualPlayheadPresenter()->open();
    }
    QCOMPARE(f.presenter->canSplitClip(), expected);
}

void tst_MvTimelinePresenterClipEdit::trimPausesThenTrims_data()
{
    QTest::addColumn<bool>("start");
    QTest::addColumn<QString>("span");
    QTest::addColumn<QString>("operation");
    QTest::newRow("start") << true << QStringLiteral("160..199") << QStringLiteral("model:trimStartToFrame");
    QTest::newRow("end") << false << QStringLiteral("100..160") << QStringLiteral("model:trimEndToFrame");
}

void tst_MvTimelinePresenterClipEdit::trimPausesThenTrims()
{
    QFETCH(bool, start);
    QFETCH(QString, span);
    QFETCH(QString, operation);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199);
    f.select(clipList({ clip }));
    f.setPlayhead(160);
    const int steps = f.undoCount();
    const auto before = f.snapshot();
    f.journal.clear();

    QVERIFY(start ? f.presenter->trimStartToPlayhead() : f.presenter->trimEndToPlayhead());

    QCOMPARE(::span(clip), span);
    QVERIFY(f.at(QStringLiteral("scene:7012")) >= 0);
    QVERIFY(f.at(QStringLiteral("scene:7012")) < f.at(operation));
    QCOMPARE(f.undoCount(), steps + 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipEdit::trimRefusals_data()
{
    QTest::addColumn<QString>("selection");
    QTest::newRow("nothing selected") << QStringLiteral("none");
    QTest::newRow("two clips selected") << QStringLiteral("two");
    QTest::newRow("a transition selected") << QStringLiteral("transition");
}

void tst_MvTimelinePresenterClipEdit::trimRefusals()
{
    QFETCH(QString, selection);
    Fixture f;
    MvMemoryClip* first = f.clip(0, 0, 199);
    MvMemoryClip* second = f.clip(1, 0, 199);
    MvMemoryTransition* transition = f.timeline.addTransition(first, IMvTransition::AtEnd, 20, QStringLiteral("fade"));
    if (selection == QLatin1String("two"))
        f.select(clipList({ first, second }));
    else if (selection == QLatin1String("transition"))
        f.timeline.selection()->selectItems({ transition });
    f.setPlayhead(100);
    const auto before = f.snapshot();

    QVERIFY(!f.presenter->trimStartToPlayhead());
    QVERIFY(!f.presenter->trimEndToPlayhead());
    QVERIFY(f.snapshot() == before);
}

void tst_MvTimelinePresenterClipEdit::canTrimToPlayhead_data()
{
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<int>("selectedCount");
    QTest::addColumn<bool>("expected");

    QTest::newRow("inside") << qint64(150) << 1 << true;
    QTest::newRow("on the first frame") << qint64(100) << 1 << false;
    QTest::newRow("on the last frame") << qint64(199) << 1 << false;
    QTest::newRow("before the clip") << qint64(50) << 1 << false;
    QTest::newRow("two clips selected") << qint64(150) << 2 << false;
    QTest::newRow("nothing selected") << qint64(150) << 0 << false;
}

void tst_MvTimelinePresenterClipEdit::canTrimToPlayhead()
{
    QFETCH(qint64, playhead);
    QFETCH(int, selectedCount);
    QFETCH(bool, expected);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199);
    MvMemoryClip* other = f.clip(1, 100, 199);
    f.select(clipList({ clip, other }).mid(0, selectedCount));
    f.setPlayhead(playhead);
    QCOMPARE(f.presenter->canTrimToPlayhead(), expected);
}

void tst_MvTimelinePresenterClipEdit::deleteRefusedWhileActionsAreDisabled()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    f.select(clipList({ clip }));
    f.presenter->setActionEnabled(false);
    const auto before = f.snapshot();
    QVERIFY(!f.presenter->canDeleteClip());

    QVERIFY(!f.presenter->deleteSelectedClips());

    QVERIFY(f.snapshot() == before);
    QVERIFY(f.scene.entries().isEmpty());
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("cannt do action"), 16,
                 QStringLiteral("MvTimelinePresenterPrivate::deleteSelectedClips")),
        QString());
}

void tst_MvTimelinePresenterClipEdit::deleteOfALoneTransitionKeepsClipsAndPlayhead()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 40, 199);
    MvMemoryTransition* transition = f.timeline.addTransition(clip, IMvTransition::AtStart, 20, QStringLiteral("fade"));
    f.timeline.setSeekAfterDelete(true);
    f.timeline.selection()->selectItems({ transition });
    f.setPlayhead(150);
    const auto before = f.snapshot();
    f.journal.clear();

    QVERIFY(f.presenter->deleteSelectedClips());

    QVERIFY(clip->transitionList()->transitions().isEmpty());
    QVERIFY(clip->isOnTimeline());
    QCOMPARE(span(clip), QStringLiteral("40..199"));
    QCOMPARE(f.playhead(), qint64(150));
    QCOMPARE(f.timeline.beginDeleteCount(), 0);
    QVERIFY(f.pausedBeforeTheModel());
    QCOMPARE(f.scene.count(MessageId::PausePlayerWithSync), 0);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipEdit::deleteMovesThePlayheadToTheEarliestClip_data()
{
    QTest::addColumn<bool>("seekAfterDelete");
    QTest::addColumn<bool>("keepTail");
    QTest::addColumn<qint64>("playhead");

    QTest::newRow("earliest deleted clip") << true << true << qint64(40);
    QTest::newRow("timeline now shorter than that") << true << false << qint64(30);
    QTest::newRow("the model keeps the playhead") << false << true << qint64(180);
}

void tst_MvTimelinePresenterClipEdit::deleteMovesThePlayheadToTheEarliestClip()
{
    QFETCH(bool, seekAfterDelete);
    QFETCH(bool, keepTail);
    QFETCH(qint64, playhead);

    Fixture f;
    f.clip(0, 0, 29);
    MvMemoryClip* late = f.clip(0, 100, 149);
    MvMemoryClip* early = f.clip(1, 40, 59);
    if (keepTail)
        f.clip(1, 300, 399);
    f.timeline.setSeekAfterDelete(seekAfterDelete);
    f.select(clipList({ late, early }));
    f.setPlayhead(180);
    const int steps = f.undoCount();
    const auto before = f.snapshot();
    f.journal.clear();

    QVERIFY(f.presenter->deleteSelectedClips());

    QVERIFY(!late->isOnTimeline());
    QVERIFY(!early->isOnTimeline());
    QCOMPARE(f.playhead(), playhead);
    QCOMPARE(f.timeline.beginDeleteCount(), 1);
    // Announced, then the player paused in sync, then the model edited.
    QVERIFY(f.at(QStringLiteral("model:beginDelete")) >= 0);
    QVERIFY(f.at(QStringLiteral("model:beginDelete")) < f.at(QStringLiteral("scene:7036")));
    QVERIFY(f.at(QStringLiteral("scene:7036")) < f.at(QStringLiteral("model:deleteClips")));
    QCOMPARE(f.undoCount(), steps + 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipEdit::deleteHidesThePropertyPanelOnlyWhereNoVirtualPlayhead()
{
    for (const bool allowed : { true, false }) {
        Fixture f;
        MvMemoryClip* clip = f.clip(0, 0, 99);
        f.timeline.setVirtualPlayheadAllowed(allowed);
        f.select(clipList({ clip }));
        QVERIFY(f.presenter->deleteSelectedClips());
        QCOMPARE(f.scene.count(MessageId::HidePropertyPanel), allowed ? 0 : 1);
        // A refused delete hides nothing.
        QVERIFY(!f.presenter->deleteSelectedClips());
        QCOMPARE(f.scene.count(MessageId::HidePropertyPanel), allowed ? 0 : 1);
    }
}

void tst_MvTimelinePresenterClipEdit::rippleDeleteGoesToTheFirstSelectedClip()
{
    Fixture f;
    MvMemoryClip* late = f.clip(0, 100, 149);
    MvMemoryClip* early = f.clip(0, 40, 59);
    MvMemoryClip* tail = f.clip(0, 200, 299);
    f.timeline.setVirtualPlayheadAllowed(false);
    f.select(clipList({ late, early }));
    f.setPlayhead(250);
    const int steps = f.undoCount();
    const auto before = f.snapshot();
    f.journal.clear();

    QVERIFY(f.presenter->rippleDeleteSelectedClips());

    // The first clip picked, not the earliest one.
    QCOMPARE(f.playhead(), qint64(100));
    QVERIFY(!late->isOnTimeline());
    QVERIFY(!early->isOnTimeline());
    QVERIFY(tail->start() < 200);
    QVERIFY(f.at(QStringLiteral("scene:7012")) >= 0);
    QVERIFY(f.at(QStringLiteral("scene:7012")) < f.at(QStringLiteral("model:rippleDeleteClips")));
    QCOMPARE(f.scene.count(MessageId::HidePropertyPanel), 1);
    QCOMPARE(f.undoCount(), steps + 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvTimelinePresenterClipEdit::rippleDeleteWithoutClipsLogsAndRefuses()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    f.timeline.selection()->selectItems(
        { f.timeline.addTransition(clip, IMvTransition::AtEnd, 10, QStringLiteral("fade")) });
    // Ripple delete does not look at the action switch; it refuses for the missing clips.
    f.presenter->setActionEnabled(false);
    const auto before = f.snapshot();
    f.scene.clear();

    QVERIFY(!f.presenter->rippleDeleteSelectedClips());

    QVERIFY(f.snapshot() == before);
    QVERIFY(f.scene.entries().isEmpty());
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("clip is null"), 8,
                 QStringLiteral("MvTimelinePresenterPrivate::rippleDeleteSelectedClips")),
        QString());
}

void tst_MvTimelinePresenterClipEdit::deleteItemsTakesTheMostSpecificItem_data()
{
    QTest::addColumn<bool>("keyFrame");
    QTest::addColumn<bool>("marker");
    QTest::addColumn<bool>("freezeFrame");
    QTest::addColumn<QString>("removed");

    QTest::newRow("key frame before anything else") << true << true << true << QStringLiteral("key frame");
    QTest::newRow("marker before freeze frame and clips") << false << true << true << QStringLiteral("marker");
    QTest::newRow("freeze frame before clips") << false << false << true << QStringLiteral("freeze frame");
    QTest::newRow("clips last") << false << false << false << QStringLiteral("clips");
}

void tst_MvTimelinePresenterClipEdit::deleteItemsTakesTheMostSpecificItem()
{
    QFETCH(bool, keyFrame);
    QFETCH(bool, marker);
    QFETCH(bool, freezeFrame);
    QFETCH(QString, removed);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 199);
    f.clip(1, 0, 199); // keeps the timeline (and its marker) when the clip goes
    QVERIFY(clip->addKeyFrame(false, 20, { MvEffectPropertyBaseInfo { 4096, QString(), false, -1, 3 } }));
    QVERIFY(clip->addFreezeFrame(7, 30));
    f.timeline.timelineMarkers()->addMarker(50, Qt::red);
    f.select(clipList({ clip }));
    if (keyFrame)
        f.timeline.keyFrameSelector()->select({ clip, IMvKeyFrameSelector::VideoSide, { 20 } });
    if (marker)
        f.timeline.markerModel()->setSelectedMarker(f.timeline.timelineMarkers()->markerAt(50));
    if (freezeFrame)
        f.timeline.subItemSelection()->select(7);

    QVERIFY(f.presenter->deleteItems(false));

    QCOMPARE(clip->keyFrames(false).isEmpty(), removed == QLatin1String("key frame"));
    QCOMPARE(f.timeline.timelineMarkers()->markers().isEmpty(), removed == QLatin1String("marker"));
    QCOMPARE(clip->freezeFrames()->contains(7), removed != QLatin1String("freeze frame"));
    QCOMPARE(clip->isOnTimeline(), removed != QLatin1String("clips"));
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvTimelinePresenterClipEdit::deleteItemsRemovesTheEmptyClipGap()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    f.select(clipList({ clip }));
    f.presenter->showEmptyClip(10, 0, 40, 30);
    QList<bool> args;
    QObject::connect(f.presenter.get(), &MvTimelinePresenter::sigDeleteEmptyClipItem, f.presenter.get(), [&](bool arg) {
        args.append(arg);
        f.presenter->hideEmptyClip();
    });
    const auto before = f.snapshot();

    QVERIFY(f.presenter->deleteItems(true));

    QCOMPARE(args, QList<bool>({ true }));
    QVERIFY(f.snapshot() == before);
}

void tst_MvTimelinePresenterClipEdit::canDeleteItems_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<bool>("actionEnabled");
    QTest::addColumn<bool>("expected");

    QTest::newRow("nothing") << QString() << true << false;
    QTest::newRow("a clip") << QStringLiteral("clip") << true << true;
    QTest::newRow("a clip while actions are disabled") << QStringLiteral("clip") << false << false;
    QTest::newRow("a key frame") << QStringLiteral("key frame") << false << true;
    QTest::newRow("a marker") << QStringLiteral("marker") << false << true;
    QTest::newRow("the empty-clip gap") << QStringLiteral("gap") << false << true;
}

void tst_MvTimelinePresenterClipEdit::canDeleteItems()
{
    QFETCH(QString, selected);
    QFETCH(bool, actionEnabled);
    QFETCH(bool, expected);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 199);
    QVERIFY(clip->addKeyFrame(false, 20, { MvEffectPropertyBaseInfo { 4096, QString(), false, -1, 3 } }));
    f.timeline.timelineMarkers()->addMarker(50, Qt::red);
    f.presenter->setActionEnabled(actionEnabled);
    if (selected == QLatin1String("clip"))
        f.select(clipList({ clip }));
    else if (selected == QLatin1String("key frame"))
        f.timeline.keyFrameSelector()->select({ clip, IMvKeyFrameSelector::VideoSide, { 20 } });
    else if (selected == QLatin1String("marker"))
        f.timeline.markerModel()->setSelectedMarker(f.timeline.timelineMarkers()->markerAt(50));
    else if (selected == QLatin1String("gap"))
        f.presenter->showEmptyClip(1, 1, 10, 10);
    QCOMPARE(f.presenter->canDeleteItems(), expected);
}

QTEST_MAIN(tst_MvTimelinePresenterClipEdit)
#include "tst_MvTimelinePresenterClipEdit.moc"
