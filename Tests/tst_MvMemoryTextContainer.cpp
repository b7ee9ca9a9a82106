#include "IMvSelection.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTextContainer.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvSampleProject.h"
#include "MvTimelineClipHelper.h"

#include <QtTest>

#include <algorithm>

using namespace MVVBLMODEL;

namespace {
// Picture rows 0 and 1; a text item 100..199 on row 0 and a video 0..99 on row 1.
struct Project
{
    MvMemoryTimeline timeline;
    MvMemoryTimeline other;
    MvMemoryClip* text = nullptr;
    MvMemoryClip* video = nullptr;

    Project()
    {
        timeline.addTrack(TrackType_Picture);
        timeline.addTrack(TrackType_Picture);
        text = timeline.addClip(0, ClipType_Text, 100, 199, QStringLiteral("lower third"));
        video = timeline.addClip(1, ClipType_Video, 0, 99, QStringLiteral("video"));
        other.addTrack(TrackType_Picture);
    }

    // "name/secondary name/..." of a list of clips.
    static QString names(const QList<IMvClip*>& clips)
    {
        QStringList parts;
        for (const IMvClip* clip : clips)
            parts.append((clip->isSecondary() ? QStringLiteral("secondary ") : QString()) + clip->name());
        return parts.join(QLatin1Char('/'));
    }
};
}

class tst_MvMemoryTextContainer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatComposesLayers_data();
    void whatComposesLayers();
    void layersShowWithTheirItem();
    void layersStayOffTheTracks();
    void splitPiecesGetLayersOfTheirOwn();
    void childClipsOfAType();
    void checkerFindsAStrayLayer();
    void sampleLowerThirdIsComposed();
};

void tst_MvMemoryTextContainer::whatComposesLayers_data()
{
    QTest::addColumn<QString>("container");
    QTest::addColumn<int>("layerType");
    QTest::addColumn<bool>("added");

    QTest::newRow("a text layer in a text item") << "text" << ClipType_Text << true;
    QTest::newRow("a sticker layer in a text item") << "text" << ClipType_Sticker << true;
    QTest::newRow("a video layer: refused") << "text" << ClipType_Video << false;
    QTest::newRow("in a video: refused") << "video" << ClipType_Text << false;
    QTest::newRow("in a layer: refused") << "layer" << ClipType_Text << false;
    QTest::newRow("in a deleted item: refused") << "deleted" << ClipType_Text << false;
    QTest::newRow("in another timeline's item: refused") << "foreign" << ClipType_Text << false;
    QTest::newRow("in nothing: refused") << "" << ClipType_Text << false;
}

void tst_MvMemoryTextContainer::whatComposesLayers()
{
    QFETCH(QString, container);
    QFETCH(int, layerType);
    QFETCH(bool, added);
    Project p;
    MvMemoryClip* layer = p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("first"), false);
    MvMemoryClip* target = nullptr;
    if (container == QLatin1String("text"))
        target = p.text;
    else if (container == QLatin1String("video"))
        target = p.video;
    else if (container == QLatin1String("layer"))
        target = layer;
    else if (container == QLatin1String("deleted"))
        target = p.timeline.addClip(0, ClipType_Text, 300, 399, QStringLiteral("gone"));
    else if (container == QLatin1String("foreign"))
        target = p.other.addClip(0, ClipType_Text, 0, 99, QStringLiteral("foreign"));
    if (container == QLatin1String("deleted"))
        QVERIFY(p.timeline.deleteClips({ target }));
    const QString before = p.timeline.stateText();

    MvMemoryClip* child = p.timeline.addChildClip(target, layerType, QStringLiteral("new"), true);

    QCOMPARE(child != nullptr, added);
    if (added)
        QCOMPARE(Project::names(target->childClips()).section(QLatin1Char('/'), -1), QStringLiteral("secondary new"));
    else
        QCOMPARE(p.timeline.stateText(), before);
    QCOMPARE(p.timeline.checkInvariants(), QString());
}

void tst_MvMemoryTextContainer::layersShowWithTheirItem()
{
    Project p;
    MvMemoryClip* layer = p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("name"), false);

    QVERIFY(p.timeline.moveClips({ p.text }, { 0 }, 50, 2));
    QVERIFY(p.timeline.trimEndToFrame(p.text, 200));

    QCOMPARE(layer->start(), qint64(150));
    QCOMPARE(layer->end(), qint64(200));
    QCOMPARE(layer->frameCount(), qint64(51));
    QVERIFY(p.timeline.undoRedoService()->undo());
    QVERIFY(p.timeline.undoRedoService()->undo());
    QCOMPARE(layer->start(), qint64(100));
    QCOMPARE(layer->end(), qint64(199));
}

void tst_MvMemoryTextContainer::layersStayOffTheTracks()
{
    Project p;
    MvMemoryClip* layer = p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("name"), false);
    const QString before = p.timeline.stateText();

    p.timeline.selection()->selectItems({ layer, p.video });
    QCOMPARE(p.timeline.selection()->selectedItems(), QList<IMvAbstractClip*>({ p.video }));
    QVERIFY(!p.timeline.deleteClips({ layer }));

    QCOMPARE(layer->track(), nullptr);
    QCOMPARE(layer->trackIndex(), -1);
    QVERIFY(!p.text->isSecondary());
    QVERIFY(p.text->container() == nullptr);
    QVERIFY(layer->container() == p.text);
    QVERIFY(!p.timeline.liveClips().contains(layer));
    QCOMPARE(p.timeline.trackAt(0)->clips().size(), 1);
    QCOMPARE(p.timeline.stateText().section(QLatin1String("\nselection"), 0, 0),
        before.section(QLatin1String("\nselection"), 0, 0));
}

void tst_MvMemoryTextContainer::splitPiecesGetLayersOfTheirOwn()
{
    Project p;
    MvMemoryClip* name = p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("name"), false);
    p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("role"), true);
    const QString before = p.timeline.stateText();
    QVERIFY(before.contains(QLatin1String("layers: c2 type=5 \"name\" secondary=0; c3 type=5 \"role\" secondary=1")));

    QList<IMvClip*> pieces;
    p.timeline.splitClips(pieces, { p.text }, 150);

    QCOMPARE(pieces.size(), 1);
    auto* piece = dynamic_cast<MvMemoryClip*>(pieces.first());
    QCOMPARE(Project::names(piece->childClips()), QStringLiteral("name/secondary role"));
    QCOMPARE(Project::names(p.text->childClips()), QStringLiteral("name/secondary role"));
    const QList<MvMemoryClip*> copies = piece->children();
    QVERIFY(!copies.contains(name));
    QVERIFY(copies.first()->container() == piece);
    QCOMPARE(copies.first()->start(), qint64(150));
    QCOMPARE(name->end(), qint64(149));
    QCOMPARE(p.timeline.checkInvariants(), QString());

    QVERIFY(p.timeline.undoRedoService()->undo());
    QCOMPARE(p.timeline.stateText(), before);
    QVERIFY(p.timeline.undoRedoService()->redo());
    QCOMPARE(piece->children(), copies);
    QCOMPARE(p.timeline.checkInvariants(), QString());
}

void tst_MvMemoryTextContainer::childClipsOfAType()
{
    Project p;
    p.timeline.addChildClip(p.text, ClipType_Sticker, QStringLiteral("bar"), false);
    p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("a"), true);
    p.timeline.addChildClip(p.text, ClipType_Sticker, QStringLiteral("frame"), true);
    p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("b"), false);

    QCOMPARE(
        Project::names(MvTimelineClipHelper::getAllChildClips(p.text, ClipType_Text)), QStringLiteral("secondary a/b"));
    QCOMPARE(Project::names(MvTimelineClipHelper::getAllChildClips(p.text, ClipType_Sticker)),
        QStringLiteral("bar/secondary frame"));
    QVERIFY(MvTimelineClipHelper::getAllChildClips(p.video, ClipType_Text).isEmpty());
    QVERIFY(MvTimelineClipHelper::getAllChildClips(nullptr, ClipType_Text).isEmpty());
}

void tst_MvMemoryTextContainer::checkerFindsAStrayLayer()
{
    Project p;
    MvMemoryClip* layer = p.timeline.addChildClip(p.text, ClipType_Text, QStringLiteral("name"), false);
    MvMemoryClip::State moved = p.video->state();
    moved.children = { layer };
    p.video->setStateUnchecked(moved);

    const QString problems = p.timeline.checkInvariants();

    QVERIFY2(problems.contains(QLatin1String("c1: layers on a clip that composes none")), qPrintable(problems));
    QVERIFY2(problems.contains(QLatin1String("c1 layer c2: belongs to another item")), qPrintable(problems));
}

void tst_MvMemoryTextContainer::sampleLowerThirdIsComposed()
{
    MvMemoryTimeline timeline;
    MvSampleProject::build(timeline);
    const QList<MvMemoryClip*> clips = timeline.liveClips();
    const auto composed = std::find_if(
        clips.cbegin(), clips.cend(), [](const MvMemoryClip* clip) { return !clip->children().isEmpty(); });
    QVERIFY(composed != clips.cend());

    const QList<IMvClip*> texts = MvTimelineClipHelper::getAllChildClips(*composed, ClipType_Text);
    const auto secondary
        = std::count_if(texts.cbegin(), texts.cend(), [](const IMvClip* c) { return c->isSecondary(); });
    QVERIFY(secondary >= 1);
    QVERIFY(texts.size() - secondary >= 2);
    QCOMPARE(timeline.undoRedoService()->undoCount(), 0);
}

QTEST_MAIN(tst_MvMemoryTextContainer)
#include "tst_MvMemoryTextContainer.moc"
