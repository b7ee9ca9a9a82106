#include "IMvSelection.h"
#include "Memory/MvMemoryProjectManager.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryTransitionItems.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvClipTransitionHelper.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>

using namespace MVVBLMODEL;

namespace {
// Rows 0 and 1 show pictures, 2 and 3 play sound.
struct Layout
{
    MvMemoryTimeline timeline;
    MvMemoryTransitionMediaItem dissolve { QStringLiteral("Dissolve"), MvMemoryTransitionMediaItem::Dissolve, 1000 };
    MvMemoryTransitionMediaItem wipe { QStringLiteral("Wipe"), MvMemoryTransitionMediaItem::Wipe, 800 };
    MvMemoryTransitionMediaItem crossfade { QStringLiteral("Crossfade"), MvMemoryTransitionMediaItem::Crossfade, 1000 };

    Layout()
    {
        for (MvTrackType type : { TrackType_Picture, TrackType_Picture, TrackType_Audio, TrackType_Audio })
            timeline.addTrack(type);
    }
    MvMemoryClip* add(int row, MvClipType type, qint64 start, qint64 end, const QString& name)
    {
        return timeline.addClip(row, type, start, end, name);
    }
    MvTransitionPlacement place(const QList<IMvClip*>& clips, IMvTransitionMediaItem* item, qint64 duration)
    {
        MvClipTransitionHelper helper;
        helper.setFrameRate(timeline.frameRate());
        helper.setClipList(clips);
        helper.setIsAudioTransition(item->isAudioTransition());
        return helper.addTransition(item, duration);
    }
};

// The clips that took the transitions, by name, and each transition as "at placement, length".
QStringList described(const MvTransitionPlacement& placed)
{
    QStringList lines;
    for (auto it = placed.cbegin(); it != placed.cend(); ++it) {
        const IMvTransition* transition = it.key();
        lines.append(QStringLiteral("%1 at %2, %3 frames, %4")
                         .arg(transition->ownerClip()->name())
                         .arg(transition->placement())
                         .arg(transition->end() - transition->start() + 1)
                         .arg(dynamic_cast<MvMemoryMediaItem*>(it.value())->name()));
    }
    lines.sort();
    return lines;
}
}

class tst_MvMemoryTransitions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutsTakeTransitions_data();
    void cutsTakeTransitions();
    void clipsTakeTransitions_data();
    void clipsTakeTransitions();
    void defaultDuration_data();
    void defaultDuration();
    void repeatFrames_data();
    void repeatFrames();
    void repeatFramesOfAPlacement();
    void overlapsTakeTransitions_data();
    void overlapsTakeTransitions();
    void randomPlacementChoosesAmongItsKind();
    void transitionsFromItemsBeforeAClipTakesThem();
    void clipEndsTakeTransitionsAsUndoSteps();
    void clipEndsRefuse_data();
    void clipEndsRefuse();
    void loadRendersPictures_data();
    void loadRendersPictures();
    void loadWritesItsCache();
    void picturesShowTheLook();
    void handlesFollowSplitsAndTrims();
    void pausedEventsAreToldOnce();
    void repeatFrameFlagIsPerProject();
};

void tst_MvMemoryTransitions::cutsTakeTransitions_data()
{
    QTest::addColumn<QList<int>>("types"); // one clip of each, one after another on one row
    QTest::addColumn<qint64>("gap");
    QTest::addColumn<qint64>("lastLength"); // the others last 40 frames
    QTest::addColumn<QList<int>>("given");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QStringList>("placed");

    const QList<int> twoVideos { ClipType_Video, ClipType_Video };
    const QStringList onB { QStringLiteral("b at 1, 10 frames, Dissolve") };
    QTest::newRow("the later clip given")
        << twoVideos << qint64(0) << qint64(40) << QList<int> { 1 } << false << false << true << onB;
    QTest::newRow("the earlier clip given")
        << twoVideos << qint64(0) << qint64(40) << QList<int> { 0 } << false << false << true << onB;
    QTest::newRow("both given: one cut") << twoVideos << qint64(0) << qint64(40) << QList<int> { 0, 1 } << false
                                         << false << true << onB;
    QTest::newRow("the middle of three: both its cuts")
        << QList<int> { ClipType_Video, ClipType_Video, ClipType_Video } << qint64(0) << qint64(40) << QList<int> { 1 }
        << false << false << true
        << QStringList { QStringLiteral("b at 1, 10 frames, Dissolve"), QStringLiteral("c at 1, 10 frames, Dissolve") };
    QTest::newRow("a frame between them is no cut")
        << twoVideos << qint64(1) << qint64(40) << QList<int> { 0, 1 } << false << false << false << QStringList();
    QTest::newRow("a still and a video") << QList<int> { ClipType_Image, ClipType_Video } << qint64(0) << qint64(40)
                                         << QList<int> { 0 } << false << false << true << onB;
    QTest::newRow("pictures are not blended over sound")
        << QList<int> { ClipType_Audio, ClipType_Music } << qint64(0) << qint64(40) << QList<int> { 0 } << false
        << false << false << QStringList();
    QTest::newRow("sound between audio clips")
        << QList<int> { ClipType_Audio, ClipType_Music } << qint64(0) << qint64(40) << QList<int> { 0 } << true << false
        << true << QStringList { QStringLiteral("b at 1, 10 frames, Crossfade") };
    QTest::newRow("sound needs sound on both sides")
        << QList<int> { ClipType_VideoWithAudio, ClipType_Video } << qint64(0) << qint64(40) << QList<int> { 0 } << true
        << false << false << QStringList();
    QTest::newRow("sound between videos with sound")
        << QList<int> { ClipType_VideoWithAudio, ClipType_VideoWithAudio } << qint64(0) << qint64(40)
        << QList<int> { 1 } << true << false << true << QStringList { QStringLiteral("b at 1, 10 frames, Crossfade") };
    QTest::newRow("a locked row") << twoVideos << qint64(0) << qint64(40) << QList<int> { 0, 1 } << false << true
                                  << false << QStringList();
    QTest::newRow("the later clip too short: counted, not placed")
        << twoVideos << qint64(0) << qint64(3) << QList<int> { 0 } << false << false << true << QStringList();
    QTest::newRow("the later clip just long enough")
        << twoVideos << qint64(0) << qint64(4) << QList<int> { 0 } << false << false << true
        << QStringList { QStringLiteral("b at 1, 2 frames, Dissolve") };
    QTest::newRow("nothing given") << twoVideos << qint64(0) << qint64(40) << QList<int>() << false << false << false
                                   << QStringList();
}

void tst_MvMemoryTransitions::cutsTakeTransitions()
{
    QFETCH(QList<int>, types);
    QFETCH(qint64, gap);
    QFETCH(qint64, lastLength);
    QFETCH(QList<int>, given);
    QFETCH(bool, audio);
    QFETCH(bool, locked);
    QFETCH(bool, enabled);
    QFETCH(QStringList, placed);
    Layout l;
    const int row = isAudioClipType(types.first()) ? 2 : 0;
    QList<IMvClip*> clips;
    qint64 at = 0;
    for (int i = 0; i < types.size(); ++i) {
        const qint64 length = i == types.size() - 1 ? lastLength : 40;
        clips.append(l.add(row, types.at(i), at, at + length - 1, QString(QLatin1Char(char('a' + i)))));
        at += length + gap;
    }
    if (locked)
        l.timeline.trackAt(row)->setLocked(true);
    QList<IMvClip*> chosen;
    for (int index : given)
        chosen.append(clips.at(index));
    const int stepsBefore = l.timeline.undoRedoService()->undoCount();
    const QString before = l.timeline.stateText();

    MvClipTransitionHelper helper;
    helper.setClipList(chosen);
    helper.setIsAudioTransition(audio);
    QCOMPARE(helper.addTransitionEnabled(), enabled);
    const MvTransitionPlacement result = helper.addTransition(audio ? &l.crossfade : &l.dissolve, 10);

    QCOMPARE(described(result), placed);
    QCOMPARE(l.timeline.checkInvariants(), QString());
    QCOMPARE(l.timeline.undoRedoService()->undoCount(), stepsBefore + (placed.isEmpty() ? 0 : 1));
    if (!placed.isEmpty()) {
        QCOMPARE(l.timeline.undoRedoService()->undoName(), QStringLiteral("add transition"));
        QVERIFY(l.timeline.undoRedoService()->undo());
    }
    QCOMPARE(l.timeline.stateText(), before);
}

void tst_MvMemoryTransitions::clipsTakeTransitions_data()
{
    QTest::addColumn<int>("clipType");
    QTest::addColumn<qint64>("length");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("state"); // "locked", "deleted" or empty
    QTest::addColumn<bool>("allowed");
    QTest::newRow("a video, a picture transition")
        << int(ClipType_Video) << qint64(40) << false << int(TransitionType_Start) << QString() << true;
    QTest::newRow("at its end") << int(ClipType_Video) << qint64(40) << false << int(TransitionType_End) << QString()
                                << true;
    QTest::newRow("no such end") << int(ClipType_Video) << qint64(40) << false << 3 << QString() << false;
    QTest::newRow("a still") << int(ClipType_Image) << qint64(40) << false << int(TransitionType_Start) << QString()
                             << true;
    QTest::newRow("sound has no picture")
        << int(ClipType_Music) << qint64(40) << false << int(TransitionType_Start) << QString() << false;
    QTest::newRow("sound, a sound transition")
        << int(ClipType_Music) << qint64(40) << true << int(TransitionType_Start) << QString() << true;
    QTest::newRow("a silent video, a sound transition")
        << int(ClipType_Video) << qint64(40) << true << int(TransitionType_Start) << QString() << false;
    QTest::newRow("a video with sound, a sound transition")
        << int(ClipType_VideoWithAudio) << qint64(40) << true << int(TransitionType_End) << QString() << true;
    QTest::newRow("three frames are too short")
        << int(ClipType_Video) << qint64(3) << false << int(TransitionType_Start) << QString() << false;
    QTest::newRow("four frames hold the shortest")
        << int(ClipType_Video) << qint64(4) << false << int(TransitionType_Start) << QString() << true;
    QTest::newRow("a locked row") << int(ClipType_Video) << qint64(40) << false << int(TransitionType_Start)
                                  << QStringLiteral("locked") << false;
    QTest::newRow("off the timeline") << int(ClipType_Video) << qint64(40) << false << int(TransitionType_Start)
                                      << QStringLiteral("deleted") << false;
}

void tst_MvMemoryTransitions::clipsTakeTransitions()
{
    QFETCH(int, clipType);
    QFETCH(qint64, length);
    QFETCH(bool, audio);
    QFETCH(int, type);
    QFETCH(QString, state);
    QFETCH(bool, allowed);
    Layout l;
    MvMemoryClip* clip = l.add(isAudioClipType(clipType) ? 2 : 0, clipType, 100, 100 + length - 1, QStringLiteral("c"));
    if (state == QLatin1String("locked"))
        clip->track()->setLocked(true);
    if (state == QLatin1String("deleted"))
        QVERIFY(l.timeline.deleteClips({ clip }));
    QCOMPARE(MvClipTransitionHelper::canAddTransition(clip, type, audio), allowed);
    QVERIFY(!MvClipTransitionHelper::canAddTransition(nullptr, type, audio));
}

void tst_MvMemoryTransitions::defaultDuration_data()
{
    QTest::addColumn<qint64>("length");
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<int>("type");
    QTest::addColumn<qint64>("expected");
    QTest::newRow("as asked") << qint64(40) << qint64(10) << int(TransitionType_Start) << qint64(10);
    QTest::newRow("half the clip at most") << qint64(40) << qint64(30) << int(TransitionType_End) << qint64(20);
    QTest::newRow("an odd clip rounds down") << qint64(41) << qint64(30) << int(TransitionType_Start) << qint64(20);
    QTest::newRow("none asked") << qint64(40) << qint64(0) << int(TransitionType_Start) << qint64(0);
    QTest::newRow("below none") << qint64(40) << qint64(-5) << int(TransitionType_Start) << qint64(0);
    QTest::newRow("no such end") << qint64(40) << qint64(10) << 0 << qint64(0);
}

void tst_MvMemoryTransitions::defaultDuration()
{
    QFETCH(qint64, length);
    QFETCH(qint64, duration);
    QFETCH(int, type);
    QFETCH(qint64, expected);
    Layout l;
    MvMemoryClip* clip = l.add(0, ClipType_Video, 0, length - 1, QStringLiteral("c"));
    QCOMPARE(MvClipTransitionHelper::getDefaultDuration(clip, duration, type), expected);
    QCOMPARE(MvClipTransitionHelper::getDefaultDuration(nullptr, duration, type), qint64(0));
}

void tst_MvMemoryTransitions::repeatFrames_data()
{
    QTest::addColumn<int>("firstType");
    QTest::addColumn<qint64>("firstAfter"); // unused media after the first clip
    QTest::addColumn<qint64>("secondBefore"); // before the second
    QTest::addColumn<bool>("onSecond"); // asked of the second clip's start, else of the first clip's end
    QTest::addColumn<int>("type");
    QTest::addColumn<qint64>("placedLength"); // a transition put there first; 0: none
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<bool>("repeats");
    const int video = ClipType_Video;
    const int start = TransitionType_Start;
    const int end = TransitionType_End;
    QTest::newRow("start: more media than needed")
        << video << qint64(30) << qint64(0) << true << start << qint64(0) << qint64(20) << false;
    QTest::newRow("start: exactly enough")
        << video << qint64(20) << qint64(0) << true << start << qint64(0) << qint64(20) << false;
    QTest::newRow("start: too little") << video << qint64(19) << qint64(0) << true << start << qint64(0) << qint64(20)
                                       << true;
    QTest::newRow("start: none at all") << video << qint64(0) << qint64(100) << true << start << qint64(0) << qint64(2)
                                        << true;
    QTest::newRow("end: too little of the clip after")
        << video << qint64(100) << qint64(5) << false << end << qint64(0) << qint64(20) << true;
    QTest::newRow("end: enough of the clip after")
        << video << qint64(0) << qint64(25) << false << end << qint64(0) << qint64(20) << false;
    QTest::newRow("the clip before is a still")
        << int(ClipType_Image) << qint64(0) << qint64(0) << true << start << qint64(0) << qint64(20) << false;
    QTest::newRow("no clip before the first")
        << video << qint64(0) << qint64(0) << false << start << qint64(0) << qint64(20) << false;
    QTest::newRow("no clip after the second")
        << video << qint64(0) << qint64(0) << true << end << qint64(0) << qint64(20) << false;
    QTest::newRow("the placed transition counts, not the asked length")
        << video << qint64(15) << qint64(0) << true << start << qint64(10) << qint64(50) << false;
    QTest::newRow("a placed transition longer than the media")
        << video << qint64(15) << qint64(0) << true << start << qint64(20) << qint64(0) << true;
    QTest::newRow("nothing asked, nothing placed")
        << video << qint64(0) << qint64(0) << true << start << qint64(0) << qint64(0) << false;
}

void tst_MvMemoryTransitions::repeatFrames()
{
    QFETCH(int, firstType);
    QFETCH(qint64, firstAfter);
    QFETCH(qint64, secondBefore);
    QFETCH(bool, onSecond);
    QFETCH(int, type);
    QFETCH(qint64, placedLength);
    QFETCH(qint64, duration);
    QFETCH(bool, repeats);
    Layout l;
    MvMemoryClip* first = l.add(0, firstType, 0, 59, QStringLiteral("a"));
    MvMemoryClip* second = l.add(0, ClipType_Video, 60, 119, QStringLiteral("b"));
    first->setHandles(0, firstAfter);
    second->setHandles(secondBefore, 0);
    MvMemoryClip* asked = onSecond ? second : first;
    if (placedLength > 0) {
        IMvTransition* transition = l.dissolve.createTransition();
        transition->setEnd(placedLength, true);
        QVERIFY(asked->transitions()->setTransition(transition, type));
        transition->release();
    }
    QCOMPARE(MvClipTransitionHelper::isRepeatFrame(asked, type, duration), repeats);
}

void tst_MvMemoryTransitions::repeatFramesOfAPlacement()
{
    Layout l;
    MvMemoryClip* a = l.add(0, ClipType_Video, 0, 59, QStringLiteral("a"));
    MvMemoryClip* b = l.add(0, ClipType_Video, 60, 119, QStringLiteral("b"));
    l.add(0, ClipType_Image, 120, 179, QStringLiteral("c"));
    a->setHandles(0, 30);
    b->setHandles(30, 5);

    // b after a is covered; c after b needs 12 frames of b that are not there.
    const MvTransitionPlacement both = l.place({ b }, &l.dissolve, 12);
    QCOMPARE(described(both).size(), 2);
    QVERIFY(MvClipTransitionHelper::isRepeatFrame(both, 12));
    MvTransitionPlacement first;
    for (auto it = both.cbegin(); it != both.cend(); ++it) {
        if (it.key()->ownerClip() == b)
            first.insert(it.key(), it.value());
    }
    QVERIFY(!MvClipTransitionHelper::isRepeatFrame(first, 12));
    QVERIFY(!MvClipTransitionHelper::isRepeatFrame(MvTransitionPlacement(), 12));
    QVERIFY(!MvClipTransitionHelper::isRepeatFrame(nullptr, TransitionType_Start, 12));
}

void tst_MvMemoryTransitions::overlapsTakeTransitions_data()
{
    QTest::addColumn<int>("upperRow");
    QTest::addColumn<int>("lowerRow");
    QTest::addColumn<qint64>("upperStart");
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<QStringList>("placed");
    // The lower clip covers 0 .. 99, the upper one lasts 100 frames.
    QTest::newRow("a clip starts over another") << 0 << 1 << qint64(40) << qint64(30) << false
                                                << QStringList { QStringLiteral("up at 1, 30 frames, Dissolve") };
    QTest::newRow("no longer than the overlap") << 0 << 1 << qint64(90) << qint64(30) << false
                                                << QStringList { QStringLiteral("up at 1, 10 frames, Dissolve") };
    QTest::newRow("the lower row may be above") << 1 << 0 << qint64(40) << qint64(30) << false
                                                << QStringList { QStringLiteral("up at 1, 30 frames, Dissolve") };
    QTest::newRow("none asked: the item's own length")
        << 0 << 1 << qint64(40) << qint64(0) << false << QStringList { QStringLiteral("up at 1, 30 frames, Dissolve") };
    QTest::newRow("starting together is no overlap") << 0 << 1 << qint64(0) << qint64(30) << false << QStringList();
    QTest::newRow("one frame is too little") << 0 << 1 << qint64(99) << qint64(30) << false << QStringList();
    QTest::newRow("after the other ends") << 0 << 1 << qint64(100) << qint64(30) << false << QStringList();
    QTest::newRow("sound over sound") << 2 << 3 << qint64(40) << qint64(30) << true
                                      << QStringList { QStringLiteral("up at 1, 30 frames, Crossfade") };
    QTest::newRow("pictures over sound are no overlap") << 0 << 3 << qint64(40) << qint64(30) << false << QStringList();
}

void tst_MvMemoryTransitions::overlapsTakeTransitions()
{
    QFETCH(int, upperRow);
    QFETCH(int, lowerRow);
    QFETCH(qint64, upperStart);
    QFETCH(qint64, duration);
    QFETCH(bool, audio);
    QFETCH(QStringList, placed);
    Layout l;
    const auto typeOn = [](int row) { return row >= 2 ? ClipType_Music : ClipType_Video; };
    l.add(lowerRow, typeOn(lowerRow), 0, 99, QStringLiteral("low"));
    l.add(upperRow, typeOn(upperRow), upperStart, upperStart + 99, QStringLiteral("up"));
    MvClipTransitionHelper helper;
    helper.setFrameRate(l.timeline.frameRate());
    helper.setIsAudioTransition(audio);
    QCOMPARE(helper.addTransitionEnabled(), false); // no clip list, no cut
    QCOMPARE(helper.addTransitionEnabled(&l.timeline), !placed.isEmpty());
    const MvTransitionPlacement result
        = helper.addOverlapTransition(&l.timeline, audio ? &l.crossfade : &l.dissolve, duration);
    QCOMPARE(described(result), placed);
    QCOMPARE(l.timeline.checkInvariants(), QString());
    QVERIFY(helper.addOverlapTransition(nullptr, &l.dissolve, duration).isEmpty());
}

void tst_MvMemoryTransitions::randomPlacementChoosesAmongItsKind()
{
    // Two identical timelines and the same seed give the same choice.
    QStringList runs[2];
    for (QStringList& run : runs) {
        Layout l;
        QList<IMvClip*> clips;
        for (qint64 at : { 0, 40, 80, 120 })
            clips.append(l.add(0, ClipType_Video, at, at + 39, QStringLiteral("v%1").arg(at)));
        for (qint64 at : { 0, 40 })
            clips.append(l.add(2, ClipType_Audio, at, at + 39, QStringLiteral("s%1").arg(at)));
        MvMemoryMediaItem notATransition(QStringLiteral("Sunset"), MediaType_Video, 4000);
        const int steps = l.timeline.undoRedoService()->undoCount();
        MvClipTransitionHelper helper;
        helper.setFrameRate(l.timeline.frameRate());
        helper.setClipList(clips);
        helper.setRandomSeed(7);
        const MvTransitionPlacement placed
            = helper.randomAddTransition({ &notATransition, &l.dissolve, &l.wipe, &l.crossfade }, 10);
        run = described(placed);
        QCOMPARE(run.size(), 4);
        for (const QString& line : qAsConst(run)) {
            if (line.startsWith(QLatin1Char('s')))
                QCOMPARE(line, QStringLiteral("s40 at 1, 10 frames, Crossfade"));
            else
                QVERIFY2(
                    line.endsWith(QLatin1String("Dissolve")) || line.endsWith(QLatin1String("Wipe")), qPrintable(line));
        }
        QCOMPARE(l.timeline.undoRedoService()->undoCount(), steps + 1);
        QCOMPARE(l.timeline.undoRedoService()->undoName(), QStringLiteral("random transitions"));
        QVERIFY(helper.randomAddTransition({ &notATransition }, 10).isEmpty());
        QCOMPARE(l.timeline.checkInvariants(), QString());
    }
    QCOMPARE(runs[0], runs[1]);
}

void tst_MvMemoryTransitions::transitionsFromItemsBeforeAClipTakesThem()
{
    Layout l;
    IMvTransition* transition = l.dissolve.createTransition();
    QCOMPARE(transition->ownerClip(), nullptr);
    QVERIFY(transition->thumbnail().isNull());
    // A second at the default 30 frames per second, then at the project's rate.
    QCOMPARE(transition->start(), qint64(0));
    QCOMPARE(transition->end(), qint64(29));
    transition->setFrameRate(MvRational { 25, 1 });
    QCOMPARE(transition->end(), qint64(24));
    transition->setFrameRate(MvRational { 0, 1 }); // no rate: kept
    QCOMPARE(transition->end(), qint64(24));
    transition->setEnd(10, true);
    QCOMPARE(transition->end(), qint64(9));
    transition->setEnd(10, false);
    QCOMPARE(transition->end(), qint64(10));
    transition->setFrameRate(MvRational { 60, 1 }); // its length is set: frames now
    QCOMPARE(transition->end(), qint64(10));
    transition->setEnd(0, true); // nothing left: refused
    QCOMPARE(transition->end(), qint64(10));
    QCOMPARE(l.timeline.undoRedoService()->undoCount(), 0); // on no timeline: no undo
    transition->release();
}

void tst_MvMemoryTransitions::clipEndsTakeTransitionsAsUndoSteps()
{
    Layout l;
    MvMemoryClip* a = l.add(0, ClipType_Video, 0, 59, QStringLiteral("a"));
    MvMemoryClip* b = l.add(0, ClipType_Video, 60, 119, QStringLiteral("b"));
    MvMemoryUndoService* undo = l.timeline.undoService();
    const QString empty = l.timeline.stateText();

    IMvTransition* dissolve = l.dissolve.createTransition();
    dissolve->setEnd(20, true);
    QVERIFY(b->transitions()->setTransition(dissolve, TransitionType_Start));
    QCOMPARE(dissolve->ownerClip(), b);
    QCOMPARE(dissolve->start(), qint64(60));
    QCOMPARE(dissolve->end(), qint64(79));
    QVERIFY(dissolve->identifier() > 0);
    QCOMPARE(undo->undoName(), QStringLiteral("add transition"));
    QVERIFY(!a->transitions()->setTransition(dissolve, TransitionType_End)); // on a clip already
    dissolve->release(); // the timeline keeps it
    const QString withDissolve = l.timeline.stateText();
    QVERIFY(withDissolve.contains(QLatin1String("transition 1 at 1 60..79 \"Dissolve\"")));

    // The wipe takes the same end: the dissolve makes room.
    IMvTransition* wipe = l.wipe.createTransition();
    QVERIFY(b->transitions()->setTransition(wipe, TransitionType_Start));
    wipe->release();
    QCOMPARE(b->transitionList()->transitions(), QList<IMvTransition*> { wipe });
    QCOMPARE(wipe->end(), qint64(83)); // 800 ms at 30 frames per second

    // Lengthened as a step of its own, within its clip.
    wipe->setEnd(90, true);
    QCOMPARE(wipe->end(), qint64(89));
    QCOMPARE(undo->undoName(), QStringLiteral("transition length"));
    wipe->setEnd(200, true);
    QCOMPARE(wipe->end(), qint64(89));

    l.timeline.selection()->selectItem(wipe);
    QCOMPARE(l.timeline.selection()->selectedItems(), QList<IMvAbstractClip*> { wipe });
    l.timeline.selection()->selectItem(nullptr);
    QVERIFY(l.timeline.selection()->isEmpty());

    QCOMPARE(undo->undoNames(),
        QStringList({ QStringLiteral("add transition"), QStringLiteral("add transition"),
            QStringLiteral("transition length") }));
    QVERIFY(undo->undo());
    QVERIFY(undo->undo());
    QCOMPARE(b->transitionList()->transitions(), QList<IMvTransition*> { dissolve });
    QCOMPARE(l.timeline.stateText(), withDissolve);
    QVERIFY(undo->undo());
    QCOMPARE(l.timeline.stateText(), empty);
    QCOMPARE(l.timeline.checkInvariants(), QString());
    for (int i = 0; i < 3; ++i)
        QVERIFY(undo->redo());
    QCOMPARE(b->transitionList()->transitions(), QList<IMvTransition*> { wipe });
    QCOMPARE(wipe->end(), qint64(89));
    QCOMPARE(l.timeline.checkInvariants(), QString());
}

void tst_MvMemoryTransitions::clipEndsRefuse_data()
{
    QTest::addColumn<QString>("situation");
    QTest::newRow("a transition longer than the clip") << QStringLiteral("long");
    QTest::newRow("a locked row") << QStringLiteral("locked");
    QTest::newRow("a clip off the timeline") << QStringLiteral("deleted");
    QTest::newRow("a sound transition on a silent clip") << QStringLiteral("silent");
    QTest::newRow("no such end") << QStringLiteral("end");
    QTest::newRow("another timeline's transition") << QStringLiteral("elsewhere");
    QTest::newRow("no transition") << QStringLiteral("null");
}

void tst_MvMemoryTransitions::clipEndsRefuse()
{
    QFETCH(QString, situation);
    Layout l;
    Layout other;
    MvMemoryClip* clip = l.add(0, ClipType_Video, 0, 19, QStringLiteral("c"));
    IMvTransition* transition = (situation == QLatin1String("silent") ? l.crossfade : l.dissolve).createTransition();
    transition->setEnd(situation == QLatin1String("long") ? 21 : 10, true);
    int type = TransitionType_Start;
    if (situation == QLatin1String("locked"))
        clip->track()->setLocked(true);
    if (situation == QLatin1String("deleted"))
        QVERIFY(l.timeline.deleteClips({ clip }));
    if (situation == QLatin1String("end"))
        type = 0;
    if (situation == QLatin1String("elsewhere")) {
        MvMemoryClip* there = other.add(0, ClipType_Video, 0, 99, QStringLiteral("there"));
        QVERIFY(there->transitions()->setTransition(transition, TransitionType_Start));
    }
    const QString before = l.timeline.stateText();
    const int steps = l.timeline.undoRedoService()->undoCount();
    IMvTransition* given = situation == QLatin1String("null") ? nullptr : transition;
    QVERIFY(!clip->transitions()->setTransition(given, type));
    QCOMPARE(l.timeline.stateText(), before);
    QCOMPARE(l.timeline.undoRedoService()->undoCount(), steps);
    transition->release();
}

void tst_MvMemoryTransitions::loadRendersPictures_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("scaleDown");
    QTest::addColumn<QSize>("size");
    QTest::newRow("one picture at half size") << 1 << 2 << QSize(48, 27);
    QTest::newRow("three side by side") << 3 << 2 << QSize(144, 27);
    QTest::newRow("full size") << 1 << 1 << QSize(96, 54);
    QTest::newRow("scaled down below one is full size") << 1 << 0 << QSize(96, 54);
    QTest::newRow("no picture") << 0 << 2 << QSize();
}

void tst_MvMemoryTransitions::loadRendersPictures()
{
    QFETCH(int, count);
    QFETCH(int, scaleDown);
    QFETCH(QSize, size);
    MvMemoryTransitionMediaItem item(QStringLiteral("Wipe"), MvMemoryTransitionMediaItem::Wipe, 800);
    MvTransitionLoadParam param { 0, count, QString(), -1, scaleDown };
    QCOMPARE(item.load(param), size.isValid());
    QCOMPARE(item.isLoaded(), size.isValid());
    IMvTransition* transition = item.createTransition();
    QCOMPARE(transition->thumbnail().isNull(), !size.isValid());
    if (size.isValid())
        QCOMPARE(transition->thumbnail().size(), size);
    transition->release();
}

void tst_MvMemoryTransitions::loadWritesItsCache()
{
    QTemporaryDir cache;
    QVERIFY(cache.isValid());
    MvMemoryTransitionMediaItem item(QStringLiteral("Slide"), MvMemoryTransitionMediaItem::Slide, 700);
    QVERIFY(item.load(MvTransitionLoadParam { 0, 1, cache.path(), -1, 2 }));
    QImage written(cache.filePath(QStringLiteral("Slide.png")));
    QCOMPARE(written.size(), QSize(48, 27));
    // A cache that cannot be written leaves the pictures in memory all the same.
    QVERIFY(!item.load(MvTransitionLoadParam { 0, 1, cache.filePath(QStringLiteral("missing/folder")), -1, 1 }));
    QVERIFY(item.isLoaded());
    QCOMPARE(item.pictures().size(), QSize(96, 54));
}

void tst_MvMemoryTransitions::picturesShowTheLook()
{
    const QColor before(0x2f, 0x5d, 0xa8);
    const QColor after(0xe0, 0x9a, 0x2c);
    const QSize size = MvMemoryTransitionMediaItem::thumbnailSize();
    // Half way through a wipe the clip after covers the left half; played backwards, the right.
    const QImage wipe = MvMemoryTransitionMediaItem::picture(MvMemoryTransitionMediaItem::Wipe, 50, false, size);
    QCOMPARE(wipe.pixelColor(10, 27), after);
    QCOMPARE(wipe.pixelColor(85, 27), before);
    const QImage back = MvMemoryTransitionMediaItem::picture(MvMemoryTransitionMediaItem::Wipe, 50, true, size);
    QCOMPARE(back.pixelColor(10, 27), before);
    QCOMPARE(back.pixelColor(85, 27), after);
    // A dissolve ends on the clip after, everywhere.
    const QImage done = MvMemoryTransitionMediaItem::picture(MvMemoryTransitionMediaItem::Dissolve, 100, false, size);
    QCOMPARE(done.pixelColor(0, 0), after);
    QCOMPARE(done.pixelColor(95, 53), after);
}

void tst_MvMemoryTransitions::handlesFollowSplitsAndTrims()
{
    Layout l;
    MvMemoryClip* clip = l.add(0, ClipType_Video, 100, 199, QStringLiteral("c"));
    MvMemoryClip* still = l.add(1, ClipType_Image, 0, 9, QStringLiteral("still"));
    clip->setHandles(10, 20);
    const QString before = l.timeline.stateText();
    QVERIFY(before.contains(QLatin1String("handles: 10 before, 20 after")));
    QCOMPARE(still->handleBefore(), std::numeric_limits<qint64>::max());
    QCOMPARE(still->handleAfter(), std::numeric_limits<qint64>::max());

    QList<IMvClip*> pieces;
    l.timeline.splitClips(pieces, { clip }, 150);
    QCOMPARE(pieces.size(), 1);
    QCOMPARE(clip->handleBefore(), qint64(10));
    QCOMPARE(clip->handleAfter(), qint64(70));
    QCOMPARE(pieces.first()->handleBefore(), qint64(60));
    QCOMPARE(pieces.first()->handleAfter(), qint64(20));
    QVERIFY(l.timeline.trimStartToFrame(pieces.first(), 160));
    QCOMPARE(pieces.first()->handleBefore(), qint64(70));
    QVERIFY(l.timeline.trimEndToFrame(clip, 139));
    QCOMPARE(clip->handleAfter(), qint64(80));
    for (int i = 0; i < 3; ++i)
        QVERIFY(l.timeline.undoRedoService()->undo());
    QCOMPARE(l.timeline.stateText(), before);
    QCOMPARE(l.timeline.checkInvariants(), QString());
}

void tst_MvMemoryTransitions::pausedEventsAreToldOnce()
{
    Layout l;
    int told = 0;
    l.timeline.addChangeListener([&told] { ++told; });
    MvMemoryClip* clip = l.add(0, ClipType_Video, 0, 99, QStringLiteral("c"));
    clip->setName(QStringLiteral("one"));
    QCOMPARE(told, 1);
    {
        MvPauseEventCommander outer(l.timeline.undoRedoService());
        clip->setName(QStringLiteral("two"));
        {
            MvPauseEventCommander inner(l.timeline.undoRedoService());
            clip->setName(QStringLiteral("three"));
            QVERIFY(l.timeline.undoRedoService()->undo());
        }
        QCOMPARE(told, 1);
    }
    QCOMPARE(told, 2);
    QCOMPARE(l.timeline.undoService()->eventPauseDepth(), 0);
    l.timeline.undoRedoService()->resumeEvents(); // not paused: nothing to end
    clip->setName(QStringLiteral("four"));
    QCOMPARE(told, 3);
    MvPauseEventCommander nothing(nullptr);
}

void tst_MvMemoryTransitions::repeatFrameFlagIsPerProject()
{
    QCOMPARE(IMvProjectManager::getInstance(), nullptr);
    {
        MvMemoryProjectManager manager;
        QCOMPARE(IMvProjectManager::getInstance(), &manager);
        MvMemoryProjectManager second; // one is installed already
        QCOMPARE(IMvProjectManager::getInstance(), &manager);
        QCOMPARE(manager.currentProjectSettings(), nullptr);
        manager.openProject(1);
        QVERIFY(!manager.currentProjectSettings()->isRepeatFrameTipShown());
        manager.currentProjectSettings()->setRepeatFrameTipShown(true);
        manager.openProject(2);
        QVERIFY(!manager.currentProjectSettings()->isRepeatFrameTipShown());
        manager.openProject(1);
        QVERIFY(manager.currentProjectSettings()->isRepeatFrameTipShown());
        manager.closeProject(1);
        QCOMPARE(manager.currentProjectSettings(), nullptr);
        manager.openProject(1);
        QVERIFY(!manager.currentProjectSettings()->isRepeatFrameTipShown());
    }
    QCOMPARE(IMvProjectManager::getInstance(), nullptr);
}

QTEST_MAIN(tst_MvMemoryTransitions)
#include "tst_MvMemoryTransitions.moc"
