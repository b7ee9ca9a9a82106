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
QList<MvEffectPropertyBaseInfo> props(int group, int id)
{
    return { MvEffectPropertyBaseInfo { group, QString(), false, -1, id } };
}
}

class tst_MvClipHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void splitFindsWhatACutDividesAndAddsPartners();
    void canAddKeyFrame_data();
    void canAddKeyFrame();
    void helperSortsPropertiesBySide();
    void pasteLandsAtThePlayheadInOneStep();

private:
    // Rows 0 and 1 picture, 2 audio: v [0..99] and w [120..199] on 0, t [40..79] on 1, a [0..99] on 2 linked to v.
    std::unique_ptr<MvMemoryTimeline> timeline;
    MvMemoryClip* v = nullptr;
    MvMemoryClip* t = nullptr;
    MvMemoryClip* a = nullptr;
    MvMemoryClip* w = nullptr;
};

void tst_MvClipHelpers::init()
{
    timeline.reset(new MvMemoryTimeline);
    for (int type : { TrackType_Picture, TrackType_Picture, TrackType_Audio })
        timeline->addTrack(type);
    v = timeline->addClip(0, ClipType_Video, 0, 99, QStringLiteral("v"));
    t = timeline->addClip(1, ClipType_Text, 40, 79, QStringLiteral("t"));
    a = timeline->addClip(2, ClipType_Audio, 0, 99, QStringLiteral("a"));
    w = timeline->addClip(0, ClipType_Video, 120, 199, QStringLiteral("w"));
    timeline->editService()->group({ v, a }, 1);
    timeline->undoService()->clear();
}

void tst_MvClipHelpers::splitFindsWhatACutDividesAndAddsPartners()
{
    QCOMPARE(MvClipFinder(timeline.get()).findClips(40), (QList<IMvClip*> { v, a })); // t starts there: no cut
    QCOMPARE(MvClipFinder(timeline.get()).findClips(41), (QList<IMvClip*> { v, t, a }));
    // The split takes the selected clips under the frame when there is a selection.
    timeline->selection()->select({ w, t });
    QCOMPARE(IMvClipHelper::findClips(timeline.get(), 50), QList<IMvClip*> { t });
    timeline->selection()->select({ w });
    QVERIFY(IMvClipHelper::findClips(timeline.get(), 50).isEmpty());
    // Preparing drops repeats and nulls, adds linked partners and leaves out what lies on locked rows.
    const QList<IMvClip*> input { v, t, v, nullptr };
    QCOMPARE(IMvClipHelper::findPrepareSplitClip(input, false), (QList<IMvClip*> { v, t }));
    QCOMPARE(IMvClipHelper::findPrepareSplitClip(input, true), (QList<IMvClip*> { v, a, t }));
    timeline->trackAt(2)->setLocked(true);
    timeline->trackAt(1)->setLocked(true);
    QCOMPARE(IMvClipHelper::findPrepareSplitClip(input, true), QList<IMvClip*> { v });
    timeline->trackAt(2)->setLocked(false);
    timeline->editService()->group({ v, a }, 2); // a group of another kind is no link
    QCOMPARE(IMvClipHelper::findPrepareSplitClip({ v }, true), QList<IMvClip*> { v });
}

void tst_MvClipHelpers::canAddKeyFrame_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<qint64>("frame"); // timeline frame; the clip covers 100..199, keyed at its frame 10
    QTest::addColumn<bool>("expected");
    QTest::newRow("video side of a video") << ClipType_Video << false << qint64(150) << true;
    QTest::newRow("audio side of a video") << ClipType_Video << true << qint64(150) << false;
    QTest::newRow("audio side of video with audio") << ClipType_VideoWithAudio << true << qint64(150) << true;
    QTest::newRow("video side of music") << ClipType_Music << false << qint64(150) << false;
    QTest::newRow("existing keyframe") << ClipType_Video << false << qint64(110) << false;
    QTest::newRow("last frame") << ClipType_Video << false << qint64(199) << true;
    QTest::newRow("past the end") << ClipType_Video << false << qint64(200) << false;
}

void tst_MvClipHelpers::canAddKeyFrame()
{
    QFETCH(int, type);
    QFETCH(bool, audio);
    QFETCH(qint64, frame);
    QFETCH(bool, expected);
    MvMemoryClip* clip = timeline->addClip(isAudioClipType(type) ? 2 : 1, type, 100, 199, QStringLiteral("clip"));
    clip->addKeyFrame(false, 10, props(PropertyGroup_Transform, 3));
    QCOMPARE(MvKeyFrameHelper2::canAddKeyFrame(clip, frame, true, audio), expected);
}

void tst_MvClipHelpers::helperSortsPropertiesBySide()
{
    MvMemoryClip* clip = timeline->addClip(1, ClipType_VideoWithAudio, 100, 199, QStringLiteral("clip"));
    MvKeyFrameHelper2 helper(clip);
    QVERIFY(helper.addKeyFrame(7, props(PropertyGroup_Transform, 3) + props(PropertyGroup_AudioVolume, 22)));
    QCOMPARE(clip->keyFrameProperties(true, 7), props(PropertyGroup_AudioVolume, 22));
    QCOMPARE(clip->keyFrameProperties(false, 7), props(PropertyGroup_Transform, 3));
    QVERIFY(!helper.addKeyFrame(7, props(PropertyGroup_Transform, 5))); // taken
    QVERIFY(!helper.addKeyFrame(100, props(PropertyGroup_Transform, 5))); // past the clip
    QCOMPARE(timeline->undoService()->undoCount(), 1);
}

void tst_MvClipHelpers::pasteLandsAtThePlayheadInOneStep()
{
    v->addKeyFrame(false, 10, props(PropertyGroup_Transform, 3));
    v->addKeyFrame(false, 30, props(PropertyGroup_Transform, 5));
    IMvKeyFrameClipboard* clipboard = timeline->keyFrameClipboard();
    QVERIFY(clipboard->copy(v, false, v->allKeyFrames(false)));
    timeline->undoService()->clear();
    timeline->playhead()->setCurrentFrame(130);
    // w takes them at its frame 10; t would overflow, so they end on its last frame; a has no video side.
    QVERIFY(clipboard->paste({ w, t, a }));
    QCOMPARE(w->keyFrames(false), (QList<qint64> { 10, 30 }));
    QCOMPARE(t->keyFrames(false), (QList<qint64> { 19, 39 }));
    QVERIFY(a->keyFrames(false).isEmpty());
    QCOMPARE(timeline->undoService()->undoNames(), QStringList { QStringLiteral("paste key frames") });
    QVERIFY(timeline->undoService()->undo());
    QVERIFY(w->keyFrames(false).isEmpty());
}

QTEST_GUILESS_MAIN(tst_MvClipHelpers)
#include "tst_MvClipHelpers.moc"
