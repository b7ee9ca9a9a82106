#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryClipIndex.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemorySelection.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"

#include <QtTest>

#include <QRandomGenerator>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>

using namespace MVVBLMODEL;

namespace {
// Rows 0 to 2 picture (row 2 locked), row 3 audio. a [0..99] and b [150..249] on row 0,
// c [50..149] on row 1, l [0..99] on row 2, s [0..99] on row 3.
struct Project
{
    std::unique_ptr<MvMemoryTimeline> timeline { new MvMemoryTimeline };
    MvMemoryClip* a = nullptr;
    MvMemoryClip* b = nullptr;
    MvMemoryClip* c = nullptr;
    MvMemoryClip* s = nullptr;
    QHash<QString, IMvClip*> byName;

    Project()
    {
        // Picture rows are kept above the audio rows whatever the order they are added in.
        for (int type : { TrackType_Picture, TrackType_Audio, TrackType_Picture, TrackType_Picture })
            timeline->addTrack(type);
        a = timeline->addClip(0, ClipType_Video, 0, 99, QStringLiteral("a"));
        b = timeline->addClip(0, ClipType_Image, 150, 249, QStringLiteral("b"));
        c = timeline->addClip(1, ClipType_Text, 50, 149, QStringLiteral("c"));
        timeline->addClip(2, ClipType_Video, 0, 99, QStringLiteral("l"));
        s = timeline->addClip(3, ClipType_Audio, 0, 99, QStringLiteral("s"));
        timeline->trackAt(2)->setLocked(true);
        timeline->undoService()->clear();
        for (MvMemoryClip* clip : timeline->allClips())
            byName.insert(clip->name(), clip);
    }
    // The clips with these space-separated names, null for an unknown name.
    QList<IMvClip*> named(const QString& names) const
    {
        QList<IMvClip*> found;
        const QStringList wanted = names.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString& name : wanted)
            found.append(byName.value(name));
        return found;
    }
    QString undoName() const { return timeline->undoService()->undoName(); }
};

QString spans(const QList<IMvClip*>& clips)
{
    QStringList out;
    for (const IMvClip* clip : clips)
        out.append(QStringLiteral("%1:%2..%3").arg(clip->trackIndex()).arg(clip->start()).arg(clip->end()));
    return out.join(QLatin1Char(' '));
}

// Empty when each row's lookup gives exactly the clips whose value puts them on that row, by start,
// and finds the clips meeting a window as a walk over them would.
QString rowsDisagree(const MvMemoryTimeline& timeline, qint64 window)
{
    for (int row = 0; row < timeline.trackCount(); ++row) {
        MvMemoryTrack* track = timeline.memoryTrack(row);
        QList<MvMemoryClip*> expected;
        for (MvMemoryClip* clip : timeline.allClips()) {
            if (clip->trackImpl() == track)
                expected.append(clip);
        }
        std::sort(expected.begin(), expected.end(), [](auto* a, auto* b) { return a->start() < b->start(); });
        if (track->memoryClips() != expected)
            return QStringLiteral("row %1 lists other clips").arg(row);
        QList<MvMemoryClip*> meeting;
        for (MvMemoryClip* clip : qAsConst(expected)) {
            if (clip->start() <= window + 50 && clip->end() >= window)
                meeting.append(clip);
        }
        if (track->clipsMeeting(window, window + 50) != meeting)
            return QStringLiteral("row %1 finds other clips at %2").arg(row).arg(window);
    }
    return QString();
}

// One edit of a random kind on a random clip; most moves are refused, which is part of the test.
void randomEdit(MvMemoryTimeline& timeline, QRandomGenerator& random)
{
    const QList<MvMemoryClip*> live = timeline.liveClips();
    MvMemoryClip* clip = live.at(random.bounded(live.size()));
    MvMemoryClip* other = live.at(random.bounded(live.size()));
    const qint64 inside = clip->start() + random.bounded(int(clip->frameCount()));
    QList<IMvClip*> pieces;
    switch (random.bounded(10)) {
    case 0:
    case 1:
        timeline.moveClips({ clip, other }, { 0, random.bounded(3) - 1 }, random.bounded(121) - 60, 2);
        break;
    case 2:
        timeline.rippleDeleteClips({ clip });
        break;
    case 3:
        timeline.deleteClips({ clip, other });
        break;
    case 4:
        timeline.splitClips(pieces, { clip, other }, inside);
        break;
    case 5:
        timeline.trimStartToFrame(clip, inside);
        timeline.trimEndToFrame(other, other->start() + 3);
        break;
    case 6:
        timeline.editService()->cut({ clip, other });
        timeline.editService()->paste(inside, -1, pieces, 0, 3);
        break;
    case 7:
        timeline.editService()->copy({ clip });
        timeline.editService()->paste(inside, clip->trackIndex(), pieces, 0, 3);
        break;
    case 8:
        timeline.undoRedoService()->undo();
        break;
    default:
        timeline.undoRedoService()->redo();
    }
}

struct RecordingObserver : IMvPlayheadEventObserver
{
    QList<int> kinds;
    std::function<void()> onEvent = [] {};
    void onPlayheadEvent(IMvTimelinePlayhead*, int kind) override
    {
        kinds.append(kind);
        onEvent();
    }
};
}

class tst_MvMemoryTimeline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editIsAllOrNothing_data();
    void editIsAllOrNothing();
    void splitCarriesMarkersKeysTransitionsAndGroup();
    void rippleDeleteClosesTheGaps();
    void movedClipsMayNotShareAFrame_data();
    void movedClipsMayNotShareAFrame();
    void groupRules();
    void playheadNotifiesOnlyOnChange();
    void invariantCheckerCatchesBrokenStates();
    void rowLookupsFollowEveryEdit();
    void rowIndexKeepsItsOrderThroughSplitsAndMerges();
};

void tst_MvMemoryTimeline::editIsAllOrNothing_data()
{
    QTest::addColumn<QString>("command"); // the undo step's name
    QTest::addColumn<QString>("clips");
    QTest::addColumn<QList<int>>("rows"); // track offsets of a move, the row to add to
    QTest::addColumn<qint64>("frame"); // where to cut, trim or add, how far to move
    QTest::addColumn<QString>("expected"); // the clips, then new pieces, afterwards; empty when refused
    const QString split = QStringLiteral("split");
    const QString start = QStringLiteral("trim start");
    const QString end = QStringLiteral("trim end");
    const QString move = QStringLiteral("move clips");
    const QString del = QStringLiteral("delete clips");
    const QString add = QStringLiteral("add clip");
    const QString a = QStringLiteral("a");
    const QString ac = QStringLiteral("a c");
    const QList<int> same { 0 };
    QTest::newRow("split inside") << split << a << same << qint64(50) << QStringLiteral("0:0..49 0:50..99");
    QTest::newRow("split on the last frame") << split << a << same << qint64(99) << QStringLiteral("0:0..98 0:99..99");
    QTest::newRow("split on the first frame") << split << a << same << qint64(0) << QString();
    QTest::newRow("split after the end") << split << a << same << qint64(100) << QString();
    QTest::newRow("split skips a locked row")
        << split << QStringLiteral("a l") << same << qint64(60) << QStringLiteral("0:0..59 2:0..99 0:60..99");
    QTest::newRow("trim start inside") << start << a << same << qint64(40) << QStringLiteral("0:40..99");
    QTest::newRow("trim start onto the last frame") << start << a << same << qint64(99) << QStringLiteral("0:99..99");
    QTest::newRow("trim start onto the first frame") << start << a << same << qint64(0) << QString();
    QTest::newRow("trim start on a locked row") << start << QStringLiteral("l") << same << qint64(40) << QString();
    QTest::newRow("trim end inside") << end << a << same << qint64(40) << QStringLiteral("0:0..40");
    QTest::newRow("trim end onto the first frame") << end << a << same << qint64(0) << QStringLiteral("0:0..0");
    QTest::newRow("trim end onto the last frame") << end << a << same << qint64(99) << QString();
    QTest::newRow("trim end before the start") << end << a << same << qint64(-1) << QString();
    QTest::newRow("trim a missing clip") << end << QStringLiteral("x") << same << qint64(40) << QString();
    QTest::newRow("move into the gap") << move << a << same << qint64(50) << QStringLiteral("0:50..149");
    QTest::newRow("move onto b") << move << a << same << qint64(51) << QString();
    QTest::newRow("move onto the audio row") << move << a << QList<int> { 3 } << qint64(200) << QString();
    QTest::newRow("move onto a missing row") << move << a << QList<int> { -1 } << qint64(0) << QString();
    QTest::newRow("move onto a locked row") << move << a << QList<int> { 2 } << qint64(200) << QString();
    QTest::newRow("move nowhere") << move << a << same << qint64(0) << QString();
    QTest::newRow("move one frame before zero") << move << a << same << qint64(-1) << QString();
    QTest::newRow("move onto frame zero")
        << move << QStringLiteral("c") << same << qint64(-50) << QStringLiteral("1:0..99");
    QTest::newRow("move, offsets do not match") << move << a << QList<int> { 0, 0 } << qint64(5) << QString();
    QTest::newRow("move exchanging rows")
        << move << ac << QList<int> { 1, -1 } << qint64(0) << QStringLiteral("1:0..99 0:50..149");
    QTest::newRow("move clips into each other") << move << ac << QList<int> { 1, 0 } << qint64(0) << QString();
    QTest::newRow("add into the gap") << add << QString() << same << qint64(100) << QStringLiteral("0:100..109");
    QTest::newRow("add touching b") << add << QString() << same << qint64(141) << QString();
    QTest::newRow("add before zero") << add << QString() << QList<int> { 1 } << qint64(-1) << QString();
    QTest::newRow("add a picture on the audio row") << add << QString() << QList<int> { 3 } << qint64(200) << QString();
    QTest::newRow("delete nothing") << del << QString() << same << qint64(0) << QString();
    QTest::newRow("delete a null clip") << del << QStringLiteral("a x") << same << qint64(0) << QString();
    QTest::newRow("delete on a locked row") << del << QStringLiteral("a l") << same << qint64(0) << QString();
    QTest::newRow("delete leaves a gap") << del << a << same << qint64(0) << QStringLiteral("-1:0..99");
}

void tst_MvMemoryTimeline::editIsAllOrNothing()
{
    QFETCH(QString, command);
    QFETCH(QString, clips);
    QFETCH(QList<int>, rows);
    QFETCH(qint64, frame);
    QFETCH(QString, expected);
    Project p;
    p.timeline->renderServiceImpl()->markFinished(0, 309);
    const QString before = p.timeline->stateText();
    const QList<IMvClip*> targets = p.named(clips);
    QList<IMvClip*> pieces;
    bool done = false;
    if (command == QLatin1String("split")) {
        p.timeline->splitClips(pieces, targets, frame);
        done = !pieces.isEmpty();
    } else if (command == QLatin1String("trim start")) {
        done = p.timeline->trimStartToFrame(targets.first(), frame);
    } else if (command == QLatin1String("trim end")) {
        done = p.timeline->trimEndToFrame(targets.first(), frame);
    } else if (command == QLatin1String("move clips")) {
        QVERIFY(!p.timeline->moveClips(targets, rows, frame, 1)); // only mode 2 is known
        done = p.timeline->moveClips(targets, rows, frame, 2);
    } else if (command == QLatin1String("delete clips")) {
        done = p.timeline->deleteClips(targets);
    } else {
        MvUndoRedoCommander step(p.timeline->undoRedoService(), command, QStringLiteral("test"));
        pieces = { p.timeline->addClip(rows.first(), ClipType_Video, frame, frame + 9, QStringLiteral("new")) };
        done = pieces.first() != nullptr;
    }
    QCOMPARE(done, !expected.isEmpty());
    QCOMPARE(p.timeline->undoService()->undoCount(), done ? 1 : 0);
    QCOMPARE(p.timeline->renderServiceImpl()->unfinishedFrames() > 0, done); // to be rendered again
    if (!done) {
        QCOMPARE(p.timeline->stateText(), before);
        return;
    }
    QCOMPARE(spans(targets + pieces), expected);
    QCOMPARE(p.undoName(), command);
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::movedClipsMayNotShareAFrame_data()
{
    QTest::addColumn<qint64>("secondStart"); // on the row below; the first clip covers 0..99
    QTest::addColumn<bool>("moved");
    QTest::newRow("one frame shared") << qint64(99) << false;
    QTest::newRow("end to end") << qint64(100) << true;
}

// Clips moved together onto one row must not land on a common frame (a clip's last frame is its own).
void tst_MvMemoryTimeline::movedClipsMayNotShareAFrame()
{
    QFETCH(qint64, secondStart);
    QFETCH(bool, moved);
    MvMemoryTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    timeline.addTrack(TrackType_Picture);
    MvMemoryClip* first = timeline.addClip(0, ClipType_Video, 0, 99, QStringLiteral("first"));
    MvMemoryClip* second = timeline.addClip(1, ClipType_Video, secondStart, secondStart + 99, QStringLiteral("second"));
    timeline.undoService()->clear();

    QCOMPARE(timeline.moveClips({ first, second }, { 1, 0 }, 10, 2), moved);

    QCOMPARE(first->trackIndex(), moved ? 1 : 0);
    QCOMPARE(first->start(), moved ? qint64(10) : qint64(0));
    QCOMPARE(timeline.undoService()->undoCount(), moved ? 1 : 0);
    QCOMPARE(timeline.checkInvariants(), QString());
}

void tst_MvMemoryTimeline::splitCarriesMarkersKeysTransitionsAndGroup()
{
    Project p;
    MvMemoryTransition* out = p.timeline->addTransition(p.a, IMvTransition::AtEnd, 30, QStringLiteral("out"));
    p.timeline->editService()->group({ p.a, p.s }, 1);
    p.a->clipMarkers()->addMarker(70, Qt::blue);
    QVERIFY(p.a->addKeyFrame(false, 5, { { PropertyGroup_Transform, QString(), false, -1, 3 } }));
    QVERIFY(p.a->addKeyFrame(false, 80, { { PropertyGroup_Transform, QString(), false, -1, 3 } }));
    QList<IMvClip*> pieces;
    p.timeline->splitClips(pieces, { p.a }, 60);
    QCOMPARE(pieces.size(), 1);
    auto* piece = static_cast<MvMemoryClip*>(pieces.first());
    QCOMPARE(p.a->keyFrames(false), QList<qint64> { 5 });
    QCOMPARE(piece->keyFrames(false), QList<qint64> { 20 });
    QVERIFY(piece->clipMarkers()->markerAt(10));
    QCOMPARE(out->ownerClip(), piece);
    QList<IMvClip*> members;
    p.timeline->editService()->groupMembersOf(p.s, members, false);
    QCOMPARE(members, (QList<IMvClip*> { p.a, p.s, piece }));
}

void tst_MvMemoryTimeline::rippleDeleteClosesTheGaps()
{
    Project p;
    MvMemoryClip* late = p.timeline->addClip(0, ClipType_Video, 300, 309, QStringLiteral("late"));
    p.timeline->selection()->select({ p.c, p.a, nullptr, p.c });
    QCOMPARE(p.timeline->selection()->selectedClips(), (QList<IMvClip*> { p.c, p.a }));
    p.timeline->playhead()->setCurrentFrame(1000);
    QCOMPARE(p.timeline->playhead()->currentFrame(), qint64(310));
    QVERIFY(p.timeline->rippleDeleteClips({ p.b, p.a }));
    QCOMPARE(spans({ late, p.c }), QStringLiteral("0:100..109 1:50..149"));
    QCOMPARE(p.timeline->selection()->selectedClips(), QList<IMvClip*> { p.c });
    QCOMPARE(p.undoName(), QStringLiteral("ripple delete clips"));
    QCOMPARE(p.timeline->playhead()->currentFrame(), qint64(150));
    QCOMPARE(p.timeline->ruler()->totalFrames(), qint64(150));
    QVERIFY(!p.timeline->rippleDeleteClips({ p.a }));
    QVERIFY(!p.timeline->deleteClips({ p.a }));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

void tst_MvMemoryTimeline::groupRules()
{
    Project p;
    IMvClipEditService* edit = p.timeline->editService();
    QList<IMvClip*> members { p.s };
    edit->groupMembersOf(p.a, members, false);
    QVERIFY(members.isEmpty());
    edit->group({ p.a }, 2);
    QVERIFY(p.timeline->groups().isEmpty());
    edit->group({ p.a, p.b, p.a }, 2);
    edit->group({ p.b, p.c }, 1);
    // b left its first group, which then had a single member and is gone.
    QCOMPARE(p.timeline->groups().size(), 1);
    QCOMPARE(p.a->groupKind(), 0);
    edit->collectGroupMembers({ p.c, p.a, p.b }, members, false);
    QCOMPARE(members, (QList<IMvClip*> { p.b, p.c }));
    edit->collectGroupMembers({ p.c, p.a, p.b }, members, true); // with the clips in no group
    QCOMPARE(members, (QList<IMvClip*> { p.b, p.c, p.a }));
    edit->ungroup({ p.c });
    QCOMPARE(p.undoName(), QStringLiteral("ungroup"));
    edit->group({ p.a, p.s }, 1);
    QVERIFY(p.timeline->deleteClips({ p.s })); // leaves a group of one
    QVERIFY(p.timeline->groups().isEmpty());
}

void tst_MvMemoryTimeline::playheadNotifiesOnlyOnChange()
{
    Project p;
    MvMemoryPlayhead* playhead = p.timeline->playheadImpl();
    RecordingObserver observer;
    playhead->addObserver(&observer);
    playhead->addObserver(&observer);
    QCOMPARE(playhead->observerCount(), 1);
    // The first round sets what is already there and tells nobody.
    for (bool on : { true, false }) {
        playhead->setCurrentFrame(on ? 0 : 40);
        playhead->setVisible(on);
        playhead->setEnabled(on);
        playhead->setSplitButtonVisible(on);
        playhead->setSplitButtonEnabled(on);
    }
    playhead->virtualOpened();
    playhead->setCurrentFrame(90);
    playhead->virtualClosed(); // back on the real frame
    QCOMPARE(playhead->currentFrame(), qint64(40));
    QCOMPARE(observer.kinds, (QList<int> { 2, 0, 1, 100, 101, 3, 2, 3, 2 }));
    // An observer may send others away while it is being told.
    RecordingObserver later;
    playhead->addObserver(&later);
    observer.onEvent = [&] { playhead->removeObserver(&later); };
    playhead->setCurrentFrame(10);
    QVERIFY(later.kinds.isEmpty());
    playhead->removeObserver(&observer);
    QCOMPARE(playhead->observerCount(), 0);
}

void tst_MvMemoryTimeline::invariantCheckerCatchesBrokenStates()
{
    Project overlap;
    MvMemoryClip::State overlapping = overlap.b->state();
    overlapping.start = 90;
    overlap.b->setStateUnchecked(overlapping);
    QVERIFY(overlap.timeline->checkInvariants().contains(QLatin1String("overlaps")));
    Project deadSelection;
    deadSelection.timeline->deleteClips({ deadSelection.a });
    deadSelection.timeline->selectionImpl()->setItemsUnchecked({ deadSelection.a });
    QVERIFY(deadSelection.timeline->checkInvariants().contains(QLatin1String("selection")));
    Project wrongTrack;
    MvMemoryClip::State moved = wrongTrack.a->state();
    moved.track = wrongTrack.timeline->memoryTrack(1);
    wrongTrack.a->setStateUnchecked(moved);
    QVERIFY(wrongTrack.timeline->checkInvariants().contains(QLatin1String("back reference")));
    Project openStep;
    openStep.timeline->undoRedoService()->beginStep(QStringLiteral("open"), QStringLiteral("test"));
    QVERIFY(openStep.timeline->checkInvariants().contains(QLatin1String("undo step")));
    openStep.timeline->undoRedoService()->endStep();
}

// Rows of several hundred clips (more than one chunk of a row's lookup) under a fixed series of
// random edits, undos and redos: the lookups always agree with the clips' own values.
void tst_MvMemoryTimeline::rowLookupsFollowEveryEdit()
{
    MvMemoryTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    timeline.addTrack(TrackType_Picture);
    QRandomGenerator random(20240611);
    for (int row = 0; row < 2; ++row) {
        qint64 start = 0;
        for (int i = 0; i < 700; ++i) {
            timeline.addClip(row, ClipType_Video, start, start + 9, QStringLiteral("clip"));
            start += 10 + random.bounded(30);
        }
    }
    for (int i = 0; i < 400; ++i) {
        randomEdit(timeline, random);
        const QString wrong = timeline.checkInvariants() + rowsDisagree(timeline, random.bounded(20000));
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("after edit %1: %2").arg(i).arg(wrong)));
    }
}

// The index under many inserts, erases and new keys (in place and not), against an ordered map:
// its chunks split as a row grows past a few hundred clips and merge as it empties again.
void tst_MvMemoryTimeline::rowIndexKeepsItsOrderThroughSplitsAndMerges()
{
    std::vector<char> identities(4000); // the index never looks behind a clip pointer
    auto clip = [&identities](int number) { return reinterpret_cast<MvMemoryClip*>(&identities[size_t(number)]); };
    MvMemoryClipIndex index;
    std::map<MvMemoryClipIndex::Key, MvMemoryClip*> reference;
    QRandomGenerator random(7);
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 6000; ++i) {
            const int number = random.bounded(4000);
            const auto known = std::find_if(
                reference.begin(), reference.end(), [&](const auto& entry) { return entry.first.second == number; });
            const bool growing = round != 1;
            if (known == reference.end() && (growing || random.bounded(4) == 0)) {
                const MvMemoryClipIndex::Key key(random.bounded(100000), number);
                index.insert(key, clip(number));
                reference.emplace(key, clip(number));
            } else if (known != reference.end() && (!growing || random.bounded(3) == 0)) {
                index.erase(known->first);
                reference.erase(known);
            } else if (known != reference.end()) {
                const MvMemoryClipIndex::Key to(known->first.first + random.bounded(201) - 100, number);
                index.rekey(known->first, to);
                reference.erase(known);
                reference.emplace(to, clip(number));
            }
        }
        QCOMPARE(index.size(), int(reference.size()));
        auto expected = reference.begin();
        for (const MvMemoryClipIndex::Entry& entry : index) {
            QVERIFY(entry.key == expected->first && entry.clip == expected->second);
            ++expected;
        }
        for (int probe = 0; probe < 200; ++probe) {
            const MvMemoryClipIndex::Key key(random.bounded(100000), 0);
            const auto found = index.lowerBound(key);
            const auto wanted = reference.lower_bound(key);
            QCOMPARE(found == index.end(), wanted == reference.end());
            QVERIFY(wanted == reference.end() || found->key == wanted->first);
        }
    }
    QVERIFY(index.size() > 1000);
}

QTEST_GUILESS_MAIN(tst_MvMemoryTimeline)
#include "tst_MvMemoryTimeline.moc"
