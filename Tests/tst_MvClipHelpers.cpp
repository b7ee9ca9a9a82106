#include "IMvClipEditService.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryKeyFrames.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvClipHelpers.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
// Rows: 0 picture, 1 picture, 2 audio.
// v [0..99] video on 0, t [40..79] text on 1, a [0..99] audio on 2 (linked to v), w [120..199] video on 0.
struct Project
{
    std::unique_ptr<MvMemoryTimeline> timeline { new MvMemoryTimeline };
    MvMemoryClip* v = nullptr;
    MvMemoryClip* t = nullptr;
    MvMemoryClip* a = nullptr;
    MvMemoryClip* w = nullptr;

    Project()
    {
        timeline->addTrack(TrackType_Picture);
        timeline->addTrack(TrackType_Picture);
        timeline->addTrack(TrackType_Audio);
        v = timeline->addClip(0, ClipType_Video, 0, 99, QStringLiteral("v"));
        t = timeline->addClip(1, ClipType_Text, 40, 79, QStringLiteral("t"));
        a = timeline->addClip(2, ClipType_Audio, 0, 99, QStringLiteral("a"));
        w = timeline->addClip(0, ClipType_Video, 120, 199, QStringLiteral("w"));
        timeline->editService()->group({ v, a }, 1);
        timeline->undoService()->clear();
    }
};

QList<MvEffectPropertyBaseInfo> props(int group, int id)
{
    return { MvEffectPropertyBaseInfo { group, QString(), false, -1, id } };
}

IMvKeyFrameSelector::MvSelectData selection(IMvClip* clip, bool audio, const QList<qint64>& frames)
{
    IMvKeyFrameSelector::MvSelectData data;
    data.clip = clip;
    data.side = audio ? IMvKeyFrameSelector::AudioSide : IMvKeyFrameSelector::VideoSide;
    data.frames = frames;
    return data;
}
}

class tst_MvClipHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finderTakesWhatACutDivides();
    void findClipsPrefersTheSelection();
    void prepareDropsLockedAndRepeatsAndAddsPartners();
    void motionTrackHelper();
    void canAddKeyFrame_data();
    void canAddKeyFrame();
    void helperSortsPropertiesBySide();
    void gotoKeyFrameMovesThePlayhead();
    void selectorKeepsOnlyExistingKeys();
    void clipboardCopiesRelativeFrames();
    void pasteLandsAtThePlayheadInOneStep();
    void removeKeyFramesNeedsAHit();
};

void tst_MvClipHelpers::finderTakesWhatACutDivides()
{
    Project p;
    QCOMPARE(MvClipFinder(p.timeline.get()).findClips(40), (QList<IMvClip*> { p.v, p.a }));
    QCOMPARE(MvClipFinder(p.timeline.get()).findClips(41), (QList<IMvClip*> { p.v, p.t, p.a }));
    QCOMPARE(MvClipFinder(p.timeline.get()).findClips(0), QList<IMvClip*>());
    QCOMPARE(MvClipFinder(p.timeline.get()).findClips(99), (QList<IMvClip*> { p.v, p.a }));
    QCOMPARE(MvClipFinder(p.timeline.get()).findClips(100), QList<IMvClip*>());
    QCOMPARE(MvClipFinder(nullptr).findClips(50), QList<IMvClip*>());
}

void tst_MvClipHelpers::findClipsPrefersTheSelection()
{
    Project p;
    QCOMPARE(IMvClipHelper::findClips(p.timeline.get(), 50), (QList<IMvClip*> { p.v, p.t, p.a }));
    p.timeline->selection()->select({ p.w, p.t });
    QCOMPARE(IMvClipHelper::findClips(p.timeline.get(), 50), QList<IMvClip*> { p.t });
    p.timeline->selection()->select({ p.w });
    QVERIFY(IMvClipHelper::findClips(p.timeline.get(), 50).isEmpty());
    QVERIFY(IMvClipHelper::findClips(nullptr, 50).isEmpty());
}

void tst_MvClipHelpers::prepareDropsLockedAndRepeatsAndAddsPartners()
{
    Project p;
    const QList<IMvClip*> input { p.v, p.t, p.v, nullptr };
    QCOMPARE(IMvClipHelper::findPrepareSplitClip(input, false), (QList<IMvClip*> { p.v, p.t }));
    QCOMPARE(IMvClipHelper::findPrepareSplitClip(input, true), (QList<IMvClip*> { p.v, p.a, p.t }));
    p.timeline->trackAt(2)->setLocked(true);
    QCOMPARE(IMvClipHelper::findPrepareSplitClip(input, true), (QList<IMvClip*> { p.v, p.t }));
    p.timeline->trackAt(1)->setLocked(true);
    QCOMPARE(IMvClipHelper::findPrepareSplitClip(input, true), QList<IMvClip*> { p.v });
    // A group of another kind is not a link.
    p.timeline->trackAt(2)->setLocked(false);
    p.timeline->editService()->group({ p.v, p.a }, 2);
    QCOMPARE(IMvClipHelper::findPrepareSplitClip({ p.v }, true), QList<IMvClip*> { p.v });
    QVERIFY(p.timeline->deleteClips({ p.w }));
    QVERIFY(IMvClipHelper::findPrepareSplitClip({ p.w }, true).isEmpty());
}

void tst_MvClipHelpers::motionTrackHelper()
{
    Project p;
    MvMotionTrackHelper helper;
    helper.setTimeline(p.timeline.get());
    QVERIFY(!helper.getFollower(p.v));
    QVERIFY(!helper.getFollower(nullptr));
    p.v->setMotionTrackFollower(p.t);
    p.v->setMotionTrackingEnabled(true);
    QCOMPARE(helper.getFollower(p.v), p.t);
    QVERIFY(helper.isTracingEnable(p.v));
    QVERIFY(!helper.isTracingEnable(p.t));
    QVERIFY(p.timeline->deleteClips({ p.t }));
    QVERIFY(!helper.getFollower(p.v));

    MvMemoryTimeline other;
    helper.setTimeline(&other);
    QVERIFY(!helper.isTracingEnable(p.v));
}

void tst_MvClipHelpers::canAddKeyFrame_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<qint64>("frame"); // timeline frame; the clip covers 100..199
    QTest::addColumn<bool>("mustBeInside");
    QTest::addColumn<bool>("expected");
    QTest::newRow("video side of a video") << ClipType_Video << false << qint64(150) << true << true;
    QTest::newRow("audio side of a video") << ClipType_Video << true << qint64(150) << true << false;
    QTest::newRow("both sides of video with audio") << ClipType_VideoWithAudio << true << qint64(150) << true << true;
    QTest::newRow("audio side of music") << ClipType_Music << true << qint64(150) << true << true;
    QTest::newRow("video side of music") << ClipType_Music << false << qint64(150) << true << false;
    QTest::newRow("shape takes none") << ClipType_Shape << false << qint64(150) << true << false;
    QTest::newRow("title takes video") << ClipType_Title << false << qint64(150) << true << true;
    QTest::newRow("first frame, already keyed") << ClipType_Video << false << qint64(100) << true << false;
    QTest::newRow("second frame") << ClipType_Video << false << qint64(101) << true << true;
    QTest::newRow("last frame") << ClipType_Video << false << qint64(199) << true << true;
    QTest::newRow("past the end") << ClipType_Video << false << qint64(200) << true << false;
    QTest::newRow("past the end, clamped onto a free frame") << ClipType_Video << false << qint64(200) << false << true;
    QTest::newRow("existing keyframe") << ClipType_Video << false << qint64(110) << true << false;
    QTest::newRow("before, clamped onto an existing keyframe")
        << ClipType_Image << false << qint64(20) << false << false;
}

void tst_MvClipHelpers::canAddKeyFrame()
{
    QFETCH(int, type);
    QFETCH(bool, audio);
    QFETCH(qint64, frame);
    QFETCH(bool, mustBeInside);
    QFETCH(bool, expected);
    MvMemoryTimeline timeline;
    timeline.addTrack(isAudioClipType(type) ? TrackType_Audio : TrackType_Picture);
    MvMemoryClip* clip = timeline.addClip(0, type, 100, 199, QStringLiteral("clip"));
    QVERIFY(clip);
    // Keyframes at clip frames 0 and 10 on the sides the type has.
    clip->addKeyFrame(false, 0, props(PropertyGroup_Transform, 3));
    clip->addKeyFrame(false, 10, props(PropertyGroup_Transform, 3));
    QCOMPARE(MvKeyFrameHelper2::canAddKeyFrame(clip, frame, mustBeInside, audio), expected);
    QVERIFY(!MvKeyFrameHelper2::canAddKeyFrame(nullptr, frame, mustBeInside, audio));
}

void tst_MvClipHelpers::helperSortsPropertiesBySide()
{
    MvMemoryTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    MvMemoryClip* clip = timeline.addClip(0, ClipType_VideoWithAudio, 100, 199, QStringLiteral("clip"));
    timeline.undoService()->clear();
    MvKeyFrameHelper2 helper(clip);
    QVERIFY(helper.addKeyFrame(7, props(PropertyGroup_Transform, 3) + props(PropertyGroup_AudioVolume, 22)));
    QCOMPARE(clip->keyFrames(false), QList<qint64> { 7 });
    QCOMPARE(clip->keyFrames(true), QList<qint64> { 7 });
    QCOMPARE(clip->keyFrameProperties(true, 7), props(PropertyGroup_AudioVolume, 22));
    QCOMPARE(clip->keyFrameProperties(false, 7), props(PropertyGroup_Transform, 3));
    QCOMPARE(timeline.undoService()->undoCount(), 1);
    QVERIFY(!helper.addKeyFrame(7, props(PropertyGroup_Transform, 5)));
    QVERIFY(!helper.addKeyFrame(100, props(PropertyGroup_Transform, 5)));
    QVERIFY(!helper.addKeyFrame(8, {}));
    QVERIFY(!MvKeyFrameHelper2(nullptr).addKeyFrame(8, props(PropertyGroup_Transform, 5)));
    QCOMPARE(timeline.undoService()->undoCount(), 1);
    QCOMPARE(MvKeyFrameHelper2::mapFromTimeline(clip, 150), qint64(50));
    QCOMPARE(MvKeyFrameHelper2::mapToTimeline(clip, 50), qint64(150));
    QCOMPARE(MvKeyFrameHelper2::mapFormBelongTimeline(clip, 150), qint64(50));
}

void tst_MvClipHelpers::gotoKeyFrameMovesThePlayhead()
{
    Project p;
    MvKeyFrameHelper2(p.w).gotoKeyFrame(30);
    QCOMPARE(p.timeline->playhead()->currentFrame(), qint64(150));
    MvKeyFrameHelper2(nullptr).gotoKeyFrame(3);
    QCOMPARE(p.timeline->playhead()->currentFrame(), qint64(150));
}

void tst_MvClipHelpers::selectorKeepsOnlyExistingKeys()
{
    Project p;
    p.v->addKeyFrame(false, 10, props(PropertyGroup_Transform, 3));
    p.v->addKeyFrame(false, 30, props(PropertyGroup_Transform, 3));
    IMvKeyFrameSelector* selector = p.timeline->keyFrameSelector();
    selector->select(selection(p.v, false, { 30, 20, 10, 30 }));
    QCOMPARE(selector->currentSelection().frames, (QList<qint64> { 10, 30 }));
    QVERIFY(selector->currentSelection().isValid());
    // Trimming the start past a selected keyframe drops it from the selection.
    QVERIFY(p.timeline->trimStartToFrame(p.v, 20));
    QCOMPARE(selector->currentSelection().frames, QList<qint64> { 10 });
    QVERIFY(p.timeline->deleteClips({ p.v }));
    QVERIFY(!selector->currentSelection().isValid());
    QVERIFY(!selector->currentSelection().clip);
    selector->select(selection(p.v, false, { 10 }));
    QVERIFY(!selector->currentSelection().isValid());
}

void tst_MvClipHelpers::clipboardCopiesRelativeFrames()
{
    Project p;
    p.v->addKeyFrame(false, 10, props(PropertyGroup_Transform, 3));
    p.v->addKeyFrame(false, 25, props(PropertyGroup_Transform, 5));
    p.v->addKeyFrame(false, 40, props(PropertyGroup_Transform, 3));
    IMvKeyFrameClipboard* clipboard = p.timeline->keyFrameClipboard();
    QVERIFY(clipboard->isEmpty());
    QVERIFY(!clipboard->canPaste({ p.w }));
    QCOMPARE(clipboard->minimumLength({ p.w }), qint64(0));
    QVERIFY(!clipboard->copy(p.v, true, selection(p.v, false, { 10 })));
    QVERIFY(!clipboard->copy(p.v, false, selection(p.v, false, { 10, 11 })));
    QVERIFY(!clipboard->copy(p.w, false, selection(p.v, false, { 10 })));
    QVERIFY(clipboard->copy(p.v, false, selection(p.v, false, { 25, 40 })));
    QVERIFY(!clipboard->isEmpty());
    QVERIFY(clipboard->canPaste({ p.w }));
    QVERIFY(!clipboard->canPaste({}));
    QCOMPARE(clipboard->minimumLength({ p.w }), qint64(16));
    QCOMPARE(p.timeline->keyFrameClipboardImpl()->copied().keys(), (QList<qint64> { 0, 15 }));
}

void tst_MvClipHelpers::pasteLandsAtThePlayheadInOneStep()
{
    Project p;
    p.v->addKeyFrame(false, 10, props(PropertyGroup_Transform, 3));
    p.v->addKeyFrame(false, 30, props(PropertyGroup_Transform, 5));
    IMvKeyFrameClipboard* clipboard = p.timeline->keyFrameClipboard();
    QVERIFY(clipboard->copy(p.v, false, p.v->allKeyFrames(false)));
    p.timeline->undoService()->clear();
    p.timeline->playhead()->setCurrentFrame(130);
    // w (120..199) takes them at its frame 10; t (40..79) would overflow, so they are pulled in to
    // end on its last frame; a has no video side.
    QVERIFY(clipboard->paste({ p.w, p.t, p.a }));
    QCOMPARE(p.w->keyFrames(false), (QList<qint64> { 10, 30 }));
    QCOMPARE(p.w->keyFrameProperties(false, 30), props(PropertyGroup_Transform, 5));
    QCOMPARE(p.t->keyFrames(false), (QList<qint64> { 19, 39 }));
    QVERIFY(p.a->keyFrames(false).isEmpty());
    QCOMPARE(p.timeline->undoService()->undoCount(), 1);
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("paste key frames"));
    QVERIFY(p.timeline->undoService()->undo());
    QVERIFY(p.w->keyFrames(false).isEmpty());
    QVERIFY(p.t->keyFrames(false).isEmpty());
    QVERIFY(!clipboard->paste({ p.a }));
    QCOMPARE(p.timeline->undoService()->undoCount(), 0);
}

void tst_MvClipHelpers::removeKeyFramesNeedsAHit()
{
    Project p;
    p.v->addKeyFrame(false, 10, props(PropertyGroup_Transform, 3));
    p.v->addKeyFrame(true, 10, props(PropertyGroup_AudioVolume, 22)); // video has no audio side
    QVERIFY(p.v->keyFrames(true).isEmpty());
    QVERIFY(!p.v->removeKeyFrames(selection(p.v, false, { 11 }), false));
    QVERIFY(!p.v->removeKeyFrames(selection(p.w, false, { 10 }), false));
    QVERIFY(p.v->canCopyKeyFrames(selection(p.v, false, { 10 }), false));
    QVERIFY(!p.v->canCopyKeyFrames(selection(p.v, false, { 10 }), true));
    QVERIFY(p.v->removeKeyFrames(p.v->allKeyFrames(false), false));
    QVERIFY(p.v->keyFrames(false).isEmpty());
    QCOMPARE(p.timeline->undoService()->undoName(), QStringLiteral("remove key frames"));
    QCOMPARE(p.timeline->checkInvariants(), QString());
}

QTEST_GUILESS_MAIN(tst_MvClipHelpers)
#include "tst_MvClipHelpers.moc"
