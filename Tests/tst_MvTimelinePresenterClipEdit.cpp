#include "IMvKeyFrameSelector.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryMarker.h"
#include "MvEditFixture.h"
#include "MvRecordingTimeline.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString Function = QStringLiteral("MvTimelinePresenterPrivate::%1");

QString span(const IMvAbstractClip* clip)
{
    return QStringLiteral("%1..%2").arg(clip->start()).arg(clip->end());
}
}

class tst_MvTimelinePresenterClipEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void split_data();
    void split();
    void canSplitClip();
    void trimToPlayhead_data();
    void trimToPlayhead();
    void deleteSelection_data();
    void deleteSelection();
    void deleteKeyTakesTheMostSpecificItemFirst();
};

void tst_MvTimelinePresenterClipEdit::split_data()
{
    // "timeline": the timeline's clips at the frame; otherwise the given list, maybe grouped.
    QTest::addColumn<QString>("clips");
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<QVariant>("answer"); // to the group question: proceed, ungroup
    QTest::addColumn<bool>("split");

    const QVariant none;
    QTest::newRow("0 means the playhead") << "timeline" << qint64(0) << none << true;
    QTest::newRow("-5 means the playhead") << "timeline" << qint64(-5) << none << true;
    QTest::newRow("nothing at the frame") << "timeline" << qint64(250) << none << false;
    QTest::newRow("a list, at the frame given") << "list" << qint64(100) << none << true;
    QTest::newRow("an empty list") << "empty" << qint64(100) << none << false;
    QTest::newRow("proceed false declines")
        << "grouped" << qint64(100) << QVariant(QVariantList { false, true }) << false;
    QTest::newRow("proceed, ungroup") << "grouped" << qint64(100) << QVariant(QVariantList { true, true }) << true;
    QTest::newRow("proceed, keep: regroup")
        << "grouped" << qint64(100) << QVariant(QVariantList { true, false }) << true;
}

void tst_MvTimelinePresenterClipEdit::split()
{
    QFETCH(QString, clips);
    QFETCH(qint64, frame);
    QFETCH(QVariant, answer);
    QFETCH(bool, split);
    const bool timeline = clips == QLatin1String("timeline");
    const bool regrouped = answer == QVariant(QVariantList { true, false });
    const QString function = Function.arg(QLatin1String("splitClips"));

    MvEditFixture<> f;
    MvMemoryClip* first = f.clip(0, 0, 199);
    MvMemoryClip* second = f.clip(1, 50, 149);
    const QList<IMvClip*> list
        = clips == QLatin1String("empty") ? QList<IMvClip*>() : QList<IMvClip*> { first, second };
    if (clips == QLatin1String("grouped"))
        f.timeline.editService()->group(list, 0);
    if (answer.isValid())
        f.scene.answerWith(MessageId::GroupQuestionBeforeSplit, answer);
    f.setPlayhead(timeline ? 100 : 10);
    const QString before = f.snapshot();

    QCOMPARE(timeline ? f.presenter->splitClips(frame, true, false) : f.presenter->splitClips(frame, list, true, false),
        split);

    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("split Clips start"), 4, function).isEmpty(), timeline);
    // Two grouped clips, one question.
    QCOMPARE(f.scene.count(MessageId::GroupQuestionBeforeSplit), clips == QLatin1String("grouped") ? 1 : 0);
    QCOMPARE(f.snapshot() != before, split);
    if (!split)
        return;
    QCOMPARE(
        QStringList({ span(first), span(second) }), QStringList({ QStringLiteral("0..99"), QStringLiteral("50..99") }));
    QCOMPARE(f.timeline.selection()->selectedClips().size(), 2);
    const QStringList groups = f.timeline.stateText().split(QLatin1Char('\n')).filter(QStringLiteral("group kind="));
    QCOMPARE(groups, regrouped ? QStringList { QStringLiteral("group kind=0: c0 c1 c2 c3") } : QStringList());
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("groupAfterSplit"), 2, function).isEmpty(), regrouped);
    if (!timeline) {
        const QString selected = QStringLiteral("bug:p7_5312 selected split clips,clip count = 2");
        QCOMPARE(mvCheckRecord(f.log, selected, 2, function), QString());
        QCOMPARE(mvCheckRecord(f.log, QStringLiteral("bug:p7_5312 selected end"), 2, function), QString());
    }
    QCOMPARE(f.undoOneStep(before), QStringLiteral("split"));
}

void tst_MvTimelinePresenterClipEdit::canSplitClip()
{
    MvEditFixture<> f;
    f.clip(0, 100, 199);
    f.presenter->initVirtualPlayheadPresenter();
    f.setPlayhead(250);
    QVERIFY(!f.presenter->canSplitClip());
    f.setPlayhead(150);
    QVERIFY(f.presenter->canSplitClip());
    f.presenter->virtualPlayheadPresenter()->open();
    QVERIFY(!f.presenter->canSplitClip());
    f.presenter->virtualPlayheadPresenter()->close();
    f.timeline.trackAt(0)->setLocked(true);
    QVERIFY(!f.presenter->canSplitClip());
}

void tst_MvTimelinePresenterClipEdit::trimToPlayhead_data()
{
    // A clip 100..199 on row 0 and one on row 1, a transition at the end of the first.
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<QString>("span");
    QTest::addColumn<bool>("start");
    QTest::addColumn<bool>("canTrim");
    QTest::addColumn<QString>("step"); // empty when refused

    QTest::newRow("start") << "one" << qint64(160) << "160..199" << true << true << "trim start";
    QTest::newRow("end") << "one" << qint64(160) << "100..160" << false << true << "trim end";
    // The menu disables it on the first frame; the model would still make a one-frame clip.
    QTest::newRow("end from the first frame") << "one" << qint64(100) << "100..100" << false << false << "trim end";
    QTest::newRow("two clips selected") << "two" << qint64(160) << "100..199" << false << false << "";
    QTest::newRow("a transition selected") << "transition" << qint64(160) << "100..199" << true << false << "";
}

void tst_MvTimelinePresenterClipEdit::trimToPlayhead()
{
    QFETCH(QString, selection);
    QFETCH(qint64, playhead);
    QFETCH(QString, span);
    QFETCH(bool, start);
    QFETCH(bool, canTrim);
    QFETCH(QString, step);

    MvEditFixture<> f;
    MvMemoryClip* clip = f.clip(0, 100, 199);
    MvMemoryClip* other = f.clip(1, 100, 199);
    MvMemoryTransition* transition = f.timeline.addTransition(clip, IMvTransition::AtEnd, 20, QStringLiteral("fade"));
    if (selection == QLatin1String("transition"))
        f.timeline.selection()->selectItems({ transition });
    else
        f.select(selection == QLatin1String("one") ? QList<IMvClip*> { clip } : QList<IMvClip*> { clip, other });
    f.setPlayhead(playhead);
    const QString before = f.snapshot();
    f.journal.clear();

    QCOMPARE(f.presenter->canTrimToPlayhead(), canTrim);
    QCOMPARE(start ? f.presenter->trimStartToPlayhead() : f.presenter->trimEndToPlayhead(), !step.isEmpty());

    QCOMPARE(::span(clip), span);
    // The player is paused first, even for a refused trim.
    const QString model = start ? QStringLiteral(" model:trimStartToFrame") : QStringLiteral(" model:trimEndToFrame");
    QCOMPARE(f.journalText(), QString(QStringLiteral("scene:7012") + (step.isEmpty() ? QString() : model)));
    QCOMPARE(f.undoOneStep(before), step);
}

void tst_MvTimelinePresenterClipEdit::deleteSelection_data()
{
    // Clips "head" 0..29 and "late" 100..149 on row 0, "early" 40..59 and "tail" 300..399 on row 1;
    // a transition at the start of "late"; the playhead on 180. The ripple rows run with actions off
    // (the ripple delete does not look at them) and no virtual playhead (the property panel hides).
    QTest::addColumn<bool>("ripple");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<bool>("seekAfterDelete");
    QTest::addColumn<QString>("journal"); // with the frame asked of the playhead, which the model would clamp
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<QString>("step"); // empty when refused

    // Announced, then the player paused in sync, then the model edited.
    const QString deleted = QStringLiteral("model:beginDelete scene:7036 model:deleteClips");
    QTest::newRow("to the earliest clip")
        << false << "late,early" << true << deleted + QStringLiteral(" playhead:setCurrentFrame 40") << qint64(40)
        << "delete clips";
    QTest::newRow("to the end of a timeline now shorter than the earliest start")
        << false << "late,early,tail" << true << deleted + QStringLiteral(" playhead:setCurrentFrame 30") << qint64(30)
        << "delete clips";
    QTest::newRow("nowhere when the model says so")
        << false << "late,early" << false << deleted << qint64(180) << "delete clips";
    QTest::newRow("a lone transition, alone")
        << false << "transition" << true << "scene:7012 model:removeTransition" << qint64(180) << "remove transition";
    QTest::newRow("ripple: to the first selected clip")
        << true << "late,early" << false << "scene:7012 model:rippleDeleteClips playhead:setCurrentFrame 100 scene:9006"
        << qint64(100) << "ripple delete clips";
    QTest::newRow("ripple without clips") << true << "transition" << false << "" << qint64(180) << "";
}

void tst_MvTimelinePresenterClipEdit::deleteSelection()
{
    QFETCH(bool, ripple);
    QFETCH(QString, selection);
    QFETCH(bool, seekAfterDelete);
    QFETCH(QString, journal);
    QFETCH(qint64, playhead);
    QFETCH(QString, step);

    MvEditFixture<MvRecordingTimeline> f;
    const QMap<QString, MvMemoryClip*> clips { { QStringLiteral("head"), f.clip(0, 0, 29) },
        { QStringLiteral("late"), f.clip(0, 100, 149) }, { QStringLiteral("early"), f.clip(1, 40, 59) },
        { QStringLiteral("tail"), f.clip(1, 300, 399) } };
    MvMemoryClip* late = clips.value(QStringLiteral("late"));
    IMvAbstractClip* transition = f.timeline.addTransition(late, IMvTransition::AtStart, 20, QStringLiteral("fade"));
    QList<IMvAbstractClip*> selected;
    for (const QString& name : selection.split(QLatin1Char(',')))
        selected.append(name == QLatin1String("transition") ? transition : clips.value(name));
    f.timeline.selection()->selectItems(selected);
    f.timeline.setSeekAfterDelete(seekAfterDelete);
    f.timeline.setVirtualPlayheadAllowed(!ripple);
    f.presenter->setActionEnabled(!ripple);
    f.setPlayhead(180);
    const QString before = f.snapshot();
    f.journal.clear();

    QCOMPARE(ripple ? f.presenter->rippleDeleteSelectedClips() : f.presenter->deleteSelectedClips(), !step.isEmpty());

    QCOMPARE(f.playhead(), playhead);
    QCOMPARE(f.journalText(), journal);
    if (step.isEmpty()) {
        const QString function = Function.arg(QLatin1String("rippleDeleteSelectedClips"));
        QCOMPARE(mvCheckRecord(f.log, QStringLiteral("clip is null"), 8, function), QString());
    }
    for (MvMemoryClip* clip : clips)
        QCOMPARE(clip->isOnTimeline(), step.isEmpty() || !selected.contains(clip));
    QCOMPARE(f.undoOneStep(before), step);
}

void tst_MvTimelinePresenterClipEdit::deleteKeyTakesTheMostSpecificItemFirst()
{
    MvEditFixture<> f;
    f.clip(1, 0, 299); // keeps the timeline (and its marker) when the clip goes
    MvMemoryClip* clip = f.clip(0, 100, 199);
    clip->addKeyFrame(false, 20, { MvEffectPropertyBaseInfo { 4096, QString(), false, -1, 3 } });
    clip->addFreezeFrame(7, 30);
    f.timeline.timelineMarkers()->addMarker(50, Qt::red);
    f.select({ clip });
    f.presenter->showEmptyClip(10, 0, 40, 30);
    f.timeline.keyFrameSelector()->select({ clip, IMvKeyFrameSelector::VideoSide, { 20 } });
    f.timeline.markerModel()->setSelectedMarker(f.timeline.timelineMarkers()->markerAt(50));
    f.timeline.subItemSelection()->select(7);
    QList<bool> gapRequests;
    QObject::connect(f.presenter.get(), &MvTimelinePresenter::sigDeleteEmptyClipItem, f.presenter.get(), [&](bool arg) {
        gapRequests.append(arg);
        f.presenter->hideEmptyClip();
    });
    const auto left = [&] {
        return QList<bool> { f.presenter->emptyClipItemVisible(), !clip->keyFrames(false).isEmpty(),
            !f.timeline.timelineMarkers()->markers().isEmpty(), clip->freezeFrames()->contains(7) };
    };

    // One press removes one item: the gap, a key frame, a marker, a freeze frame, then the clips.
    f.keepState();
    f.presenter->setActionEnabled(false);
    for (int pressed = 1; pressed <= 4; ++pressed) {
        // With actions off, only the gap, a key frame or a marker make the Delete key available.
        QCOMPARE(f.presenter->canDeleteItems(), pressed <= 3);
        QVERIFY(f.presenter->deleteItems(true));
        f.keepState();
        QCOMPARE(left(), QVector<bool>(pressed, false).toList() + QVector<bool>(4 - pressed, true).toList());
    }
    QCOMPARE(gapRequests, QList<bool>({ true }));

    // With actions off the clips stay, and nothing else happens.
    const QString before = f.snapshot();
    f.scene.clear();
    QVERIFY(!f.presenter->deleteItems(true));
    QCOMPARE(f.snapshot(), before);
    QVERIFY(f.scene.entries().isEmpty());
    const QString function = Function.arg(QLatin1String("deleteSelectedClips"));
    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("cannt do action"), 16, function), QString());

    f.presenter->setActionEnabled(true);
    QVERIFY(f.presenter->deleteItems(true));
    f.keepState();
    QVERIFY(!clip->isOnTimeline());
    QCOMPARE(
        f.walkUndo(), QStringLiteral("clear selected key frames, remove marker, remove freeze frame, delete clips"));
}

QTEST_MAIN(tst_MvTimelinePresenterClipEdit)
#include "tst_MvTimelinePresenterClipEdit.moc"
