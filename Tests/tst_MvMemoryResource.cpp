#include "IMvResourceInfo.h"
#include "IMvSelection.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvSampleProject.h"
#include "MvTimelineClipHelper.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
MvMemoryResource stock(qint64 id, int provider)
{
    return { id, provider, QStringLiteral("guid-%1").arg(id), QStringLiteral("title %1").arg(id) };
}

// One picture row with a clip 0..99.
struct OneClip
{
    MvMemoryTimeline timeline;
    MvMemoryClip* clip = nullptr;

    OneClip()
    {
        timeline.addTrack(TrackType_Picture);
        clip = timeline.addClip(0, ClipType_Video, 0, 99, QStringLiteral("clip"));
    }
};
}

class tst_MvMemoryResource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void similarSearchKnowsOnlineResources_data();
    void similarSearchKnowsOnlineResources();
    void resourceIsPartOfTheClipsValue();
    void splitPiecesKeepTheResource();
    void transitionsCarryResourcesToo();
    void sampleOffersBothKinds();
    void categoryByKind_data();
    void categoryByKind();
};

void tst_MvMemoryResource::similarSearchKnowsOnlineResources_data()
{
    QTest::addColumn<qint64>("id");
    QTest::addColumn<int>("provider");
    QTest::addColumn<bool>("hasInfo");
    QTest::addColumn<bool>("canFindSimilar");

    QTest::newRow("the user's own media") << qint64(0) << 1 << false << false;
    QTest::newRow("shipped with the editor") << qint64(7) << MvMemoryResource::BuiltIn << true << false;
    QTest::newRow("an online library") << qint64(7) << 1 << true << true;
    QTest::newRow("another online library") << qint64(7) << 3 << true << true;
}

void tst_MvMemoryResource::similarSearchKnowsOnlineResources()
{
    QFETCH(qint64, id);
    QFETCH(int, provider);
    QFETCH(bool, hasInfo);
    QFETCH(bool, canFindSimilar);
    OneClip project;

    project.clip->setResource(stock(id, provider));

    const IMvResourceInfo* info = project.clip->resourceInfo();
    QCOMPARE(info != nullptr, hasInfo);
    if (info)
        QCOMPARE(info->canFindSimilar(), canFindSimilar);
}

void tst_MvMemoryResource::resourceIsPartOfTheClipsValue()
{
    OneClip project;
    const QString before = project.timeline.stateText();
    QCOMPARE(project.clip->resourceInfo(), nullptr);

    project.clip->setResource(stock(20417, 1));

    const IMvResourceInfo* info = project.clip->resourceInfo();
    QVERIFY(info);
    QCOMPARE(info->resourceId(), qint64(20417));
    QCOMPARE(info->providerId(), 1);
    QCOMPARE(info->resourceGuid(), QStringLiteral("guid-20417"));
    QCOMPARE(info->title(), QStringLiteral("title 20417"));
    QVERIFY(project.timeline.stateText().contains(
        QLatin1String("resource 20417 from 1 guid-20417 \"title 20417\" similar=1")));
    QCOMPARE(project.timeline.undoRedoService()->undoName(), QStringLiteral("set resource"));

    QVERIFY(project.timeline.undoRedoService()->undo());
    QCOMPARE(project.clip->resourceInfo(), nullptr);
    QCOMPARE(project.timeline.stateText(), before);
    QVERIFY(project.timeline.undoRedoService()->redo());
    QCOMPARE(project.clip->resourceInfo()->resourceId(), qint64(20417));
    QCOMPARE(project.timeline.checkInvariants(), QString());
}

void tst_MvMemoryResource::splitPiecesKeepTheResource()
{
    OneClip project;
    project.clip->setResource(stock(3310, 2));
    const QString before = project.timeline.stateText();

    QList<IMvClip*> pieces;
    project.timeline.splitClips(pieces, { project.clip }, 40);

    QCOMPARE(pieces.size(), 1);
    QVERIFY(pieces.first()->resourceInfo());
    QCOMPARE(pieces.first()->resourceInfo()->resourceGuid(), QStringLiteral("guid-3310"));
    QVERIFY(pieces.first()->resourceInfo() != project.clip->resourceInfo());
    QCOMPARE(project.timeline.stateText().count(QLatin1String("resource 3310 from 2")), 2);
    QVERIFY(project.timeline.undoRedoService()->undo());
    QCOMPARE(project.timeline.stateText(), before);
}

void tst_MvMemoryResource::transitionsCarryResourcesToo()
{
    OneClip project;
    MvMemoryTransition* transition
        = project.timeline.addTransition(project.clip, IMvTransition::AtStart, 10, QStringLiteral("wipe"));
    QCOMPARE(transition->resourceInfo(), nullptr);

    transition->setResource(stock(5, 1));

    QVERIFY(transition->resourceInfo()->canFindSimilar());
    QVERIFY(project.timeline.stateText().contains(QLatin1String("\"wipe\" resource 5 from 1")));
    QVERIFY(project.timeline.undoRedoService()->undo());
    QCOMPARE(transition->resourceInfo(), nullptr);
}

void tst_MvMemoryResource::sampleOffersBothKinds()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    int searchable = 0;
    int notSearchable = 0;
    int ownMedia = 0;
    for (const MvMemoryClip* clip : timeline.liveClips()) {
        const IMvResourceInfo* info = clip->resourceInfo();
        ++(!info ? ownMedia : info->canFindSimilar() ? searchable : notSearchable);
    }
    QVERIFY(searchable >= 2);
    QVERIFY(notSearchable >= 2);
    QVERIFY(ownMedia >= 2);
    QCOMPARE(timeline.checkInvariants(), QString());
}

void tst_MvMemoryResource::categoryByKind_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("category");

    QTest::newRow("video") << ClipType_Video << MediaCategory_Video;
    QTest::newRow("video with sound") << ClipType_VideoWithAudio << MediaCategory_Video;
    QTest::newRow("screen recording") << ClipType_ScreenRecording << MediaCategory_Video;
    QTest::newRow("image") << ClipType_Image << MediaCategory_Image;
    QTest::newRow("audio") << ClipType_Audio << MediaCategory_Music;
    QTest::newRow("music") << ClipType_Music << MediaCategory_Music;
    QTest::newRow("sound effect") << ClipType_SoundEffect << MediaCategory_SoundEffect;
    QTest::newRow("text") << ClipType_Text << MediaCategory_Text;
    QTest::newRow("subtitle") << ClipType_Subtitle << MediaCategory_Text;
    QTest::newRow("title") << ClipType_Title << MediaCategory_Text;
    QTest::newRow("sticker") << ClipType_Sticker << MediaCategory_Sticker;
    QTest::newRow("effect") << ClipType_Effect << MediaCategory_Effect;
    QTest::newRow("filter") << ClipType_Filter << MediaCategory_Filter;
    QTest::newRow("adjustment") << ClipType_Adjustment << MediaCategory_Filter;
    QTest::newRow("compound clip: none") << ClipType_Compound << MediaCategory_None;
    QTest::newRow("transition") << ClipType_Transition << MediaCategory_Transition;
}

void tst_MvMemoryResource::categoryByKind()
{
    QFETCH(int, type);
    QFETCH(int, category);
    MvMemoryTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    timeline.addTrack(TrackType_Audio);
    if (type == ClipType_Transition) {
        MvMemoryClip* owner = timeline.addClip(0, ClipType_Video, 0, 99, QStringLiteral("owner"));
        QCOMPARE(MvTimelineClipHelper::getResourceCategoryType(
                     timeline.addTransition(owner, IMvTransition::AtEnd, 5, QStringLiteral("t"))),
            category);
        return;
    }
    MvMemoryClip* clip = timeline.addClip(isAudioClipType(type) ? 1 : 0, type, 0, 99, QStringLiteral("clip"));
    QVERIFY(clip);

    QCOMPARE(MvTimelineClipHelper::getResourceCategoryType(clip), category);
    QCOMPARE(MvTimelineClipHelper::getResourceCategoryType(nullptr), MediaCategory_None);
}

QTEST_MAIN(tst_MvMemoryResource)
#include "tst_MvMemoryResource.moc"
