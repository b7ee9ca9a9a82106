#include "IMvTimelineRenderService.h"
#include "IMvTimelineRuler.h"
#include "Memory/MvCallJournal.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemorySelection.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "Memory/MvSampleProject.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
// Rows: 0 and 1 picture, 2 audio. a [0..99] and b [150..249] on row 0, c [50..149] on row 1,
// s [0..99] on row 2.
struct Project
{
    std::unique_ptr<MvMemoryTimeline> timeline { new MvMemoryTimeline };
    MvMemoryClip* a = nullptr;
    MvMemoryClip* b = nullptr;
    MvMemoryClip* c = nullptr;
    MvMemoryClip* s = nullptr;

    Project()
    {
        timeline->addTrack(TrackType_Picture);
        timeline->addTrack(TrackType_Audio);
        timeline->addTrack(TrackType_Picture);
        a = timeline->addClip(0, ClipType_Video, 0, 99, QStringLiteral("a"));
        b = timeline->addClip(0, ClipType_Image, 150, 249, QStringLiteral("b"));
        c = timeline->addClip(1, ClipType_Text, 50, 149, QStringLiteral("c"));
        s = timeline->addClip(2, ClipType_Audio, 0, 99, QStringLiteral("s"));
    }
    MvMemoryClip* byName(const QString& name) const
    {
        const QList<MvMemoryClip*> clips = timeline->allClips();
        for (MvMemoryClip* clip : clips) {
            if (clip->name() == name)
                return clip;
        }
        return nullptr;
    }
    QList<IMvClip*> named(const QStringList& names) const
    {
        QList<IMvClip*> clips;
        for (const QString& name : names)
            clips.append(byName(name));
        return clips;
    }
};

QString span(const IMvClip* clip)
{
    return QString::number(clip->trackIndex()) % QLatin1Char(':') % QString::number(clip->start()) % QLatin1String("..")
        % QString::number(clip->end());
}

// A host that renders with its own service.
class OwnRenderService : public IMvTimelineRenderService
{
public:
    void addObserver(IMvTimelineRenderEventObserver*) override { }
    void removeObserver(IMvTimelineRenderEventObserver*) override { }
    void segments(QList<MvRenderSegment>& out) const override { out = { MvRenderSegment { 0, 9, 1 } }; }
};

class OwnRenderTimeline : public MvMemoryTimeline
{
protected:
    IMvTimelineRenderService* createRenderService() override { return new OwnRenderService; }
};

class RecordingObserver : public IMvPlayheadEventObserver
{
public:
    QList<int> kinds;
    std::function<void()> onEvent;
    void onPlayheadEvent(IMvTimelinePlayhead*, int kind) override
    {
        kinds.append(kind);
        if (onEvent)
            onEvent();
    }
};
}

class tst_MvMemoryTimeline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturRowsStayAboveAudioRows();
    void addClipRefusesBadPlacements_data();
    void addClipRefusesBadPlacements();
    void splitDividesOnlyWhereTheCutFalls_data();
    void splitDividesOnlyWhereTheCutFalls();
    void splitCarriesMarkersKeysTransitionsAndGroup();
    void trimRules_data();
    void trimRules();
    void moveIsAllOrNothing_data();
    void moveIsAllOrNothing();
    void deleteLeavesGapsAndRippleClosesThem();
    void deleteRefusesDeadOrEmptyInput();
    void groupRules();
    void selectionKeepsOnlyLiveItems();
    void playheadNotifiesOnlyOnChange();
    void playheadClampsAndFollowsTheDuration();
    void observerMayLeaveDuringItsCallback();
    void virtualPlayheadKeepsTheRealFrame();
    void journalRecordsEdits();
    void editsMarkTheirStretchForRendering();
    void subclassSuppliesItsOwnRenderService();
    void invariantCheckerCatchesBrokenStates();
    void sampleProjectIsConsistent();
};

void tst_MvMemoryTimeline::picturRowsStayAboveAudioRows()
{
    MvMemoryTimeline timeline;
    MvMemoryTrack* audio = timeline.addTrack(TrackType_Audio);
    MvMemoryTrack* picture1 = timeline.addTrack(TrackType_Picture);
    MvMemoryTrack* audio2 = timeline.addTrack(TrackType_Audio);
    MvMemoryTrack* picture2 = timeline.addTrack(TrackType_Picture);
    QCOMPARE(timeline.trackCount(), 4);
    QCOMPARE(picture1->index(), 0);
    QCOMPARE(picture2->index(), 1);
    QCOMPARE(audio->index(), 2);
    QCOMPARE(audio2->index(), 3);
    QCOMPARE(timeline.firstTrackOfType(TrackType_Picture), picture1);
    QCOMPARE(timeline.lastTrackOfType(TrackType_Audio), audio2);
    QVERIFY(!timeline.addTrack(7));
    QVERIFY(!timeline.trackAt(4));
    QVERIFY(!timeline.trackAt(-1));
    QCOMPARE(timeline.checkInvariants(), QString());
}

void tst_MvMemoryTimeline::addClipRefusesBadPlacements_data()
{
    QTest::addColumn<int>("track");
    QTest::addColumn<int>("type");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("end");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("into the gap") << 0 << ClipType_Video << qint64(100) << qint64(149) << true;
    QTest::newRow("touching b") << 0 << ClipType_Video << qint64(100) << qint64(150) << false;
    QTest::newRow("overlapping a") << 0 << ClipType_Video << qint64(99) << qint64(120) << false;
    QTest::newRow("missing track") << 3 << ClipType_Video << qint64(0) << qint64(10) << false;
    QTest::newRow("end before start") << 1 << ClipType_Video << qint64(200) << qint64(199) << false;
    QTest::newRow("negative start") << 1 << ClipType_Video << qint64(-1) << qint64(10) << false;
    QTest::newRow("sound on a picture row") << 1 << ClipType_Music << qint64(200) << qint64(210) << false;
    QTest::newRow("picture on an audio row") << 2 << ClipType_Image << qint64(200) << qint64(210) << false;
    QTest::newRow("music on an audio row") << 2 << ClipType_Music << qint64(200) << qint64(210) << true;
    QTest::newRow("transition as a clip") << 1 << ClipType_Transition << qint64(200) << qint64(210) << false;
}

void tst_MvMemoryTimeline::addClipRefusesBadPlacements()
{
    QFETCH(int, track);
    QFETCH(int, type);
    QFETCH(qint64, start);
    QFETCH(qint64, end);
    QFETCH(bool, accepted);
    Project p;
    const QString before = p.timeline->stateText();
    MvMemoryClip* clip = p.timeline->addClip(track, type, start, end, QStringLiteral("new"));
    QCOMPARE(clip != nullptr, accepted);
    if (!accepted)
        QCOMPARE(p.timeline->stateText(), before);
    else
        QCOMPARE(clip->trackIndex(), track);
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::splitDividesOnlyWhereTheCutFalls_data()
{
    QTest::addColumn<QStringList>("clips");
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<bool>("lockFirstRow");
    QTest::addColumn<QStringList>("expected"); // spans of the clips on the timeline afterwards
    QTest::newRow("inside") << QStringList { QStringLiteral("a") } << qint64(50) << false
                            << QStringList { QStringLiteral("0:0..49"), QStringLiteral("0:50..99"),
                                   QStringLiteral("0:150..249"), QStringLiteral("1:50..149"),
                                   QStringLiteral("2:0..99") };
    QTest::newRow("on the last frame") << QStringList { QStringLiteral("a") } << qint64(99) << false
                                       << QStringList { QStringLiteral("0:0..98"), QStringLiteral("0:99..99"),
                                              QStringLiteral("0:150..249"), QStringLiteral("1:50..149"),
                                              QStringLiteral("2:0..99") };
    QTest::newRow("on the first frame") << QStringList { QStringLiteral("a") } << qint64(0) << false
                                        << QStringList { QStringLiteral("0:0..99"), QStringLiteral("0:150..249"),
                                               QStringLiteral("1:50..149"), QStringLiteral("2:0..99") };
    QTest::newRow("after the end") << QStringList { QStringLiteral("a") } << qint64(100) << false
                                   << QStringList { QStringLiteral("0:0..99"), QStringLiteral("0:150..249"),
                                          QStringLiteral("1:50..149"), QStringLiteral("2:0..99") };
    QTest::newRow("two rows, locked one skipped")
        << QStringList { QStringLiteral("a"), QStringLiteral("c") } << qint64(60) << true
        << QStringList { QStringLiteral("0:0..99"), QStringLiteral("0:150..249"), QStringLiteral("1:50..59"),
               QStringLiteral("1:60..149"), QStringLiteral("2:0..99") };
}

void tst_MvMemoryTimeline::splitDividesOnlyWhereTheCutFalls()
{
    QFETCH(QStringList, clips);
    QFETCH(qint64, frame);
    QFETCH(bool, lockFirstRow);
    QFETCH(QStringList, expected);
    Project p;
    if (lockFirstRow)
        p.timeline->trackAt(0)->setLocked(true);
    const int steps = p.timeline->undoService()->undoCount();
    QList<IMvClip*> newClips { p.s };
    p.timeline->splitClips(newClips, p.named(clips), frame);
    QStringList spans;
    const QList<MvMemoryClip*> live = p.timeline->liveClips();
    for (const MvMemoryClip* clip : live)
        spans.append(span(clip));
    QCOMPARE(spans, expected);
    QCOMPARE(newClips.size(), expected.size() - 4);
    for (IMvClip* piece : qAsConst(newClips))
        QCOMPARE(piece->start(), frame);
    QCOMPARE(p.timeline->undoService()->undoCount(), steps + (newClips.isEmpty() ? 0 : 1));
    if (!newClips.isEmpty())
        QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("split"));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::splitCarriesMarkersKeysTransitionsAndGroup()
{
    Project p;
    p.timeline->addTransition(p.a, IMvTransition::AtStart, 10, QStringLiteral("in"));
    MvMemoryTransition* out = p.timeline->addTransition(p.a, IMvTransition::AtEnd, 30, QStringLiteral("out"));
    p.timeline->editService()->group({ p.a, p.s }, 1);
    p.a->clipMarkers()->addMarker(10, Qt::red);
    p.a->clipMarkers()->addMarker(70, Qt::blue);
    const QList<MvEffectPropertyBaseInfo> props { MvEffectPropertyBaseInfo {
        PropertyGroup_Transform, QString(), false, -1, 3 } };
    QVERIFY(p.a->addKeyFrame(false, 5, props));
    QVERIFY(p.a->addKeyFrame(false, 80, props));
    QVERIFY(p.a->addFreezeFrame(7, 90));

    QList<IMvClip*> newClips;
    p.timeline->splitClips(newClips, { p.a }, 60);
    QCOMPARE(newClips.size(), 1);
    auto* piece = static_cast<MvMemoryClip*>(newClips.first());
    QCOMPARE(p.a->keyFrames(false), QList<qint64> { 5 });
    QCOMPARE(piece->keyFrames(false), QList<qint64> { 20 });
    QCOMPARE(p.a->clipMarkers()->markers().size(), 1);
    QCOMPARE(piece->clipMarkers()->markers().size(), 1);
    QCOMPARE(piece->clipMarkers()->markers().first()->frame(), qint64(10));
    QCOMPARE(piece->clipMarkers()->markers().first()->color(), QColor(Qt::blue));
    QCOMPARE(piece->freezeFrameAt(7), qint64(30));
    QVERIFY(!p.a->freezeFrames()->contains(7));
    QCOMPARE(out->ownerClip(), piece);
    QCOMPARE(out->start(), qint64(70));
    QCOMPARE(out->end(), qint64(99));
    QCOMPARE(p.a->transitionList()->transitions().size(), 1);
    QCOMPARE(piece->groupKind(), 1);
    QList<IMvClip*> members;
    p.timeline->editService()->groupMembersOf(p.s, members, false);
    QCOMPARE(members, (QList<IMvClip*> { p.a, p.s, piece }));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::trimRules_data()
{
    QTest::addColumn<bool>("atStart");
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("span");
    QTest::newRow("start inside") << true << qint64(40) << true << QStringLiteral("0:40..99");
    QTest::newRow("start onto the last frame") << true << qint64(99) << true << QStringLiteral("0:99..99");
    QTest::newRow("start onto the first frame") << true << qint64(0) << false << QStringLiteral("0:0..99");
    QTest::newRow("start past the end") << true << qint64(100) << false << QStringLiteral("0:0..99");
    QTest::newRow("end inside") << false << qint64(40) << true << QStringLiteral("0:0..40");
    QTest::newRow("end onto the first frame") << false << qint64(0) << true << QStringLiteral("0:0..0");
    QTest::newRow("end onto the last frame") << false << qint64(99) << false << QStringLiteral("0:0..99");
    QTest::newRow("end before the start") << false << qint64(-1) << false << QStringLiteral("0:0..99");
}

void tst_MvMemoryTimeline::trimRules()
{
    QFETCH(bool, atStart);
    QFETCH(qint64, frame);
    QFETCH(bool, result);
    QFETCH(QString, span);
    Project p;
    p.a->clipMarkers()->addMarker(20, Qt::red);
    p.timeline->undoService()->clear();
    const bool done = atStart ? p.timeline->trimStartToFrame(p.a, frame) : p.timeline->trimEndToFrame(p.a, frame);
    QCOMPARE(done, result);
    QCOMPARE(::span(p.a), span);
    QCOMPARE(p.timeline->undoService()->undoCount(), result ? 1 : 0);
    if (result) {
        QCOMPARE(
            p.timeline->undoService()->undoName(), atStart ? QStringLiteral("trim start") : QStringLiteral("trim end"));
        // The marker keeps its timeline frame (20) while it is still on the clip.
        const QList<IMvMarker*> markers = p.a->clipMarkers()->markers();
        const bool stillOn = p.a->start() <= 20 && 20 <= p.a->end();
        QCOMPARE(markers.size(), stillOn ? 1 : 0);
        if (stillOn)
            QCOMPARE(p.a->clipMarkers()->mapToTimeline(markers.first()->frame()), qint64(20));
    }
    QVERIFY(!p.timeline->trimStartToFrame(nullptr, 10));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::moveIsAllOrNothing_data()
{
    QTest::addColumn<QStringList>("clips");
    QTest::addColumn<QList<int>>("offsets");
    QTest::addColumn<qint64>("frameOffset");
    QTest::addColumn<bool>("lockRowOne");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("spans"); // of the given clips afterwards
    const QStringList a { QStringLiteral("a") };
    QTest::newRow("right into the gap") << a << QList<int> { 0 } << qint64(50) << false << true
                                        << QStringList { QStringLiteral("0:50..149") };
    QTest::newRow("onto b") << a << QList<int> { 0 } << qint64(51) << false << false
                            << QStringList { QStringLiteral("0:0..99") };
    QTest::newRow("before zero") << a << QList<int> { 0 } << qint64(-1) << false << false
                                 << QStringList { QStringLiteral("0:0..99") };
    QTest::newRow("onto an audio row") << a << QList<int> { 2 } << qint64(200) << false << false
                                       << QStringList { QStringLiteral("0:0..99") };
    QTest::newRow("missing row") << a << QList<int> { -1 } << qint64(0) << false << false
                                 << QStringList { QStringLiteral("0:0..99") };
    QTest::newRow("locked row") << a << QList<int> { 1 } << qint64(200) << true << false
                                << QStringList { QStringLiteral("0:0..99") };
    QTest::newRow("nothing to do") << a << QList<int> { 0 } << qint64(0) << false << false
                                   << QStringList { QStringLiteral("0:0..99") };
    QTest::newRow("offsets do not match")
        << a << QList<int> { 0, 0 } << qint64(5) << false << false << QStringList { QStringLiteral("0:0..99") };
    QTest::newRow("rows exchanged") << QStringList { QStringLiteral("a"), QStringLiteral("c") } << QList<int> { 1, -1 }
                                    << qint64(0) << false << true
                                    << QStringList { QStringLiteral("1:0..99"), QStringLiteral("0:50..149") };
    QTest::newRow("moving clips collide")
        << QStringList { QStringLiteral("a"), QStringLiteral("c") } << QList<int> { 1, 0 } << qint64(0) << false
        << false << QStringList { QStringLiteral("0:0..99"), QStringLiteral("1:50..149") };
    QTest::newRow("a and b together") << QStringList { QStringLiteral("a"), QStringLiteral("b") } << QList<int> { 0, 0 }
                                      << qint64(10) << false << true
                                      << QStringList { QStringLiteral("0:10..109"), QStringLiteral("0:160..259") };
}

void tst_MvMemoryTimeline::moveIsAllOrNothing()
{
    QFETCH(QStringList, clips);
    QFETCH(QList<int>, offsets);
    QFETCH(qint64, frameOffset);
    QFETCH(bool, lockRowOne);
    QFETCH(bool, result);
    QFETCH(QStringList, spans);
    Project p;
    if (lockRowOne)
        p.timeline->trackAt(1)->setLocked(true);
    p.timeline->undoService()->clear();
    const QString before = p.timeline->stateText();
    QCOMPARE(p.timeline->moveClips(p.named(clips), offsets, frameOffset, 2), result);
    QStringList after;
    for (const QString& name : qAsConst(clips))
        after.append(span(p.byName(name)));
    QCOMPARE(after, spans);
    if (!result) {
        QCOMPARE(p.timeline->stateText(), before);
        QCOMPARE(p.timeline->undoService()->undoCount(), 0);
    } else {
        QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("move clips"));
    }
    QVERIFY(!p.timeline->moveClips(p.named(clips), offsets, frameOffset, 1));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::deleteLeavesGapsAndRippleClosesThem()
{
    Project p;
    p.timeline->addTransition(p.a, IMvTransition::AtEnd, 10, QStringLiteral("fade"));
    QVERIFY(p.timeline->deleteClips({ p.a }));
    QVERIFY(!p.a->track());
    QCOMPARE(p.a->trackIndex(), -1);
    QCOMPARE(span(p.b), QStringLiteral("0:150..249"));
    QVERIFY(p.a->transitionList()->transitions().isEmpty());

    Project q;
    MvMemoryClip* late = q.timeline->addClip(0, ClipType_Video, 300, 309, QStringLiteral("late"));
    QVERIFY(q.timeline->rippleDeleteClips({ q.b, q.a }));
    QCOMPARE(span(late), QStringLiteral("0:100..109"));
    QCOMPARE(span(q.c), QStringLiteral("1:50..149"));
    QCOMPARE(q.timeline->duration(), qint64(150));
    QCOMPARE(q.timeline->undoService()->undoName(), QStringLiteral("ripple delete clips"));
    QCOMPARE(q.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::deleteRefusesDeadOrEmptyInput()
{
    Project p;
    MvMemoryTimeline other;
    other.addTrack(TrackType_Picture);
    MvMemoryClip* foreign = other.addClip(0, ClipType_Video, 0, 9, QStringLiteral("foreign"));
    QVERIFY(!p.timeline->deleteClips({}));
    QVERIFY(!p.timeline->rippleDeleteClips({}));
    QVERIFY(!p.timeline->deleteClips({ foreign }));
    QVERIFY(!p.timeline->deleteClips({ p.a, nullptr }));
    QVERIFY(p.a->track());
    QVERIFY(p.timeline->deleteClips({ p.a }));
    QVERIFY(!p.timeline->deleteClips({ p.a }));
    QVERIFY(!p.timeline->rippleDeleteClips({ p.a }));
    p.timeline->trackAt(1)->setLocked(true);
    QVERIFY(!p.timeline->deleteClips({ p.c }));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::groupRules()
{
    Project p;
    IMvClipEditService* edit = p.timeline->editService();
    QList<IMvClip*> members { p.s };
    edit->groupMembersOf(p.a, members, false);
    QVERIFY(members.isEmpty());
    QCOMPARE(p.a->groupKind(), 0);
    edit->groupMembersOf(p.a, members, true);
    QCOMPARE(members, QList<IMvClip*> { p.a });

    edit->group({ p.a }, 2);
    QVERIFY(p.timeline->groups().isEmpty());
    edit->group({ p.a, p.b, p.a }, 2);
    QCOMPARE(p.a->groupKind(), 2);
    edit->group({ p.b, p.c }, 1);
    // b left its first group, which then had a single member and is gone.
    QCOMPARE(p.timeline->groups().size(), 1);
    QCOMPARE(p.a->groupKind(), 0);
    QCOMPARE(p.b->groupKind(), 1);

    edit->collectGroupMembers({ p.c, p.a, p.b }, members, false);
    QCOMPARE(members, (QList<IMvClip*> { p.b, p.c }));
    edit->collectGroupMembers({ p.c, p.a, p.b }, members, true);
    QCOMPARE(members, (QList<IMvClip*> { p.b, p.c, p.a }));

    edit->ungroup({ p.c });
    QVERIFY(p.timeline->groups().isEmpty());
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("ungroup"));

    edit->group({ p.a, p.s }, 1);
    QVERIFY(p.timeline->deleteClips({ p.s }));
    QVERIFY(p.timeline->groups().isEmpty());
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::selectionKeepsOnlyLiveItems()
{
    Project p;
    MvMemoryTransition* fade = p.timeline->addTransition(p.b, IMvTransition::AtStart, 5, QStringLiteral("fade"));
    IMvSelection* selection = p.timeline->selection();
    selection->select({ p.c, p.a, nullptr, p.c });
    QCOMPARE(selection->selectedClips(), (QList<IMvClip*> { p.c, p.a }));
    QCOMPARE(selection->currentItem(), static_cast<IMvAbstractClip*>(p.c));
    selection->selectItems({ fade, p.a });
    QCOMPARE(selection->count(), 2);
    QCOMPARE(selection->selectedClips(), QList<IMvClip*> { p.a });
    QVERIFY(p.timeline->deleteClips({ p.b }));
    QCOMPARE(selection->selectedItems(), QList<IMvAbstractClip*> { p.a });
    QVERIFY(p.timeline->undoService()->undo());
    selection->selectItems({ fade });
    QVERIFY(p.b->transitionList()->remove(fade->identifier(), fade->placement()));
    QVERIFY(selection->isEmpty());
    QVERIFY(!p.b->transitionList()->remove(fade->identifier(), fade->placement()));
    selection->setTimelineSelected(true);
    QVERIFY(selection->isTimelineSelected());
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::playheadNotifiesOnlyOnChange()
{
    Project p;
    IMvTimelinePlayhead* playhead = p.timeline->playhead();
    RecordingObserver observer;
    playhead->addObserver(&observer);
    playhead->addObserver(&observer);
    QCOMPARE(p.timeline->playheadImpl()->observerCount(), 1);

    playhead->setCurrentFrame(0);
    playhead->setVisible(true);
    playhead->setEnabled(true);
    playhead->setSplitButtonVisible(true);
    playhead->setSplitButtonEnabled(true);
    QVERIFY(observer.kinds.isEmpty());

    playhead->setCurrentFrame(40);
    playhead->setVisible(false);
    playhead->setEnabled(false);
    playhead->setSplitButtonVisible(false);
    playhead->setSplitButtonEnabled(false);
    playhead->virtualOpened();
    QCOMPARE(observer.kinds, (QList<int> { 2, 0, 1, 100, 101, 3 }));
    QVERIFY(!playhead->isVisible());
    QVERIFY(!playhead->isSplitButtonEnabled());

    playhead->removeObserver(&observer);
    QCOMPARE(p.timeline->playheadImpl()->observerCount(), 0);
    playhead->setCurrentFrame(10);
    QCOMPARE(observer.kinds.size(), 6);
}

void tst_MvMemoryTimeline::playheadClampsAndFollowsTheDuration()
{
    Project p;
    IMvTimelinePlayhead* playhead = p.timeline->playhead();
    QCOMPARE(p.timeline->duration(), qint64(250));
    QCOMPARE(p.timeline->ruler()->totalFrames(), qint64(250));
    playhead->setCurrentFrame(-5);
    QCOMPARE(playhead->currentFrame(), qint64(0));
    playhead->setCurrentFrame(1000);
    QCOMPARE(playhead->currentFrame(), qint64(250));
    QCOMPARE(p.timeline->ruler()->currentFrame(), qint64(250));
    QVERIFY(p.timeline->deleteClips({ p.b }));
    QCOMPARE(p.timeline->duration(), qint64(150));
    QCOMPARE(playhead->currentFrame(), qint64(150));
    QCOMPARE(p.timeline->ruler()->totalFrames(), qint64(150));

    playhead->setCurrentFrame(75);
    QCOMPARE(playhead->position(), p.timeline->ruler()->frameToPixel(75));
    playhead->setPosition(p.timeline->ruler()->frameToPixel(30));
    QCOMPARE(playhead->currentFrame(), p.timeline->ruler()->pixelToFrame(p.timeline->ruler()->frameToPixel(30)));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::observerMayLeaveDuringItsCallback()
{
    Project p;
    IMvTimelinePlayhead* playhead = p.timeline->playhead();
    RecordingObserver first;
    RecordingObserver second;
    playhead->addObserver(&first);
    playhead->addObserver(&second);
    first.onEvent = [&] {
        playhead->removeObserver(&first);
        playhead->removeObserver(&second);
    };
    playhead->setCurrentFrame(20);
    QCOMPARE(first.kinds, QList<int> { 2 });
    QVERIFY(second.kinds.isEmpty());
    QCOMPARE(p.timeline->playheadImpl()->observerCount(), 0);
}

void tst_MvMemoryTimeline::virtualPlayheadKeepsTheRealFrame()
{
    Project p;
    MvMemoryPlayhead* playhead = p.timeline->playheadImpl();
    playhead->setCurrentFrame(40);
    p.timeline->prepareVirtualPlayhead();
    playhead->virtualOpened();
    QVERIFY(playhead->isVirtualOpen());
    playhead->setCurrentFrame(90);
    QCOMPARE(playhead->currentFrame(), qint64(90));
    QCOMPARE(playhead->realFrame(), qint64(40));
    QVERIFY(!playhead->needsVirtualReopen());
    QVERIFY(p.timeline->trimEndToFrame(p.a, 80));
    QVERIFY(playhead->needsVirtualReopen());
    playhead->virtualOpened();
    QVERIFY(!playhead->needsVirtualReopen());
    QCOMPARE(playhead->currentFrame(), qint64(90));
    RecordingObserver observer;
    playhead->addObserver(&observer);
    playhead->virtualClosed();
    QCOMPARE(playhead->currentFrame(), qint64(40));
    QCOMPARE(observer.kinds, (QList<int> { 3, 2 }));
    playhead->removeObserver(&observer);

    // Settling: a frame within a second (30 frames) of where the player rests is settled.
    QVERIFY(playhead->isFrameSettled(70));
    QVERIFY(!playhead->isFrameSettled(71));
    playhead->setSeekHold(true);
    QVERIFY(playhead->isSeekHold());
    playhead->setCurrentFrame(200);
    QVERIFY(!playhead->isFrameSettled(200));
    playhead->setSeekHold(false);
    QVERIFY(playhead->isFrameSettled(200));
}

void tst_MvMemoryTimeline::journalRecordsEdits()
{
    Project p;
    MvCallJournal journal;
    p.timeline->setJournal(&journal);
    p.timeline->beginDelete();
    p.timeline->deleteClips({ p.a });
    p.timeline->moveClips({ p.b }, { 0 }, -10, 2);
    QCOMPARE(journal.entries(),
        (QStringList { QStringLiteral("model:beginDelete"), QStringLiteral("model:deleteClips"),
            QStringLiteral("model:moveClips") }));
    QCOMPARE(p.timeline->beginDeleteCount(), 1);
}

void tst_MvMemoryTimeline::editsMarkTheirStretchForRendering()
{
    Project p;
    MvMemoryRenderService* render = p.timeline->renderServiceImpl();
    QVERIFY(render);
    QCOMPARE(p.timeline->renderService(), render);
    render->markFinished(0, 249);
    QVERIFY(p.timeline->trimEndToFrame(p.a, 49));
    QCOMPARE(render->unfinishedFrames(), qint64(100));
    render->markFinished(0, 249);
    p.a->clipMarkers()->addMarker(5, Qt::red); // a marker changes nothing that is rendered
    QVERIFY(p.timeline->undoRedoService()->undo());
    QCOMPARE(render->unfinishedFrames(), qint64(0));
    QVERIFY(p.timeline->undoRedoService()->undo());
    QCOMPARE(render->unfinishedFrames(), qint64(100));
    render->markFinished(0, 249);
    QVERIFY(p.timeline->moveClips({ p.b }, { 1 }, 10, 2));
    QCOMPARE(render->unfinishedFrames(), qint64(110)); // 150 .. 259
}

void tst_MvMemoryTimeline::subclassSuppliesItsOwnRenderService()
{
    OwnRenderTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    MvMemoryClip* clip = timeline.addClip(0, ClipType_Video, 0, 99, QStringLiteral("clip"));
    QVERIFY(!timeline.renderServiceImpl());
    QList<MvRenderSegment> segments;
    timeline.renderService()->segments(segments);
    QCOMPARE(segments.size(), 1);
    QVERIFY(timeline.trimEndToFrame(clip, 50));
    QVERIFY(timeline.undoRedoService()->undo());
    QCOMPARE(clip->end(), qint64(99));
}

void tst_MvMemoryTimeline::invariantCheckerCatchesBrokenStates()
{
    {
        Project p;
        p.b->mutableState().start = 90; // overlaps a
        QVERIFY(p.timeline->checkInvariants().contains(QLatin1String("overlaps")));
    }
    {
        Project p;
        p.timeline->deleteClips({ p.a });
        p.timeline->selectionImpl()->setItemsUnchecked({ p.a });
        QVERIFY(p.timeline->checkInvariants().contains(QLatin1String("selection")));
    }
    {
        Project p;
        p.a->mutableState().track = p.timeline->memoryTrack(1);
        QVERIFY(p.timeline->checkInvariants().contains(QLatin1String("back reference")));
    }
    {
        Project p;
        p.timeline->undoRedoService()->beginStep(QStringLiteral("open"), QStringLiteral("test"));
        QVERIFY(p.timeline->checkInvariants().contains(QLatin1String("undo step")));
        p.timeline->undoRedoService()->endStep();
        QCOMPARE(p.timeline->checkInvariants(), QString());
    }
}

void tst_MvMemoryTimeline::sampleProjectIsConsistent()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    QCOMPARE(timeline.checkInvariants(), QString());
    QCOMPARE(timeline.trackCount(), 5);
    QCOMPARE(timeline.frameRate(), (MvFrameRate { 30, 1 }));
    QVERIFY(timeline.duration() >= 110 * 30 && timeline.duration() <= 130 * 30);
    QVERIFY(!timeline.undoRedoService()->canUndo());
    QSet<int> types;
    const QList<MvMemoryClip*> clips = timeline.liveClips();
    for (const MvMemoryClip* clip : clips)
        types.insert(clip->type());
    for (int type : { ClipType_Video, ClipType_VideoWithAudio, ClipType_Image, ClipType_Text, ClipType_Title,
             ClipType_Sticker, ClipType_Audio, ClipType_Music })
        QVERIFY2(types.contains(type), qPrintable(QString::number(type)));
    QCOMPARE(timeline.groups().size(), 1);
    QCOMPARE(timeline.timelineMarkers()->markers().size(), 2);
}

QTEST_GUILESS_MAIN(tst_MvMemoryTimeline)
#include "tst_MvMemoryTimeline.moc"
