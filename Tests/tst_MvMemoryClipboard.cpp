#include "IMvAbstractClip.h"
#include "IMvClipEditService.h"
#include "IMvSelection.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryClipboard.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryResource.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
// Picture rows 0 to 2, audio rows 3 and 4, of one project.
std::unique_ptr<MvMemoryTimeline> makeTimeline(int project = 0)
{
    std::unique_ptr<MvMemoryTimeline> timeline(new MvMemoryTimeline);
    timeline->setProjectId(project);
    for (MvTrackType type :
        { TrackType_Picture, TrackType_Picture, TrackType_Picture, TrackType_Audio, TrackType_Audio })
        timeline->addTrack(type);
    return timeline;
}

// Clips from "row@start+length" items; picture rows get video clips, audio rows sound.
QList<IMvAbstractClip*> addClips(MvMemoryTimeline& timeline, const QString& items)
{
    QList<IMvAbstractClip*> clips;
    for (const QString& item : items.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int row = item.section(QLatin1Char('@'), 0, 0).toInt();
        const qint64 start = item.section(QLatin1Char('@'), 1).section(QLatin1Char('+'), 0, 0).toLongLong();
        const qint64 length = item.section(QLatin1Char('+'), 1).toLongLong();
        const MvClipType type = timeline.trackAt(row)->type() == TrackType_Audio ? ClipType_Audio : ClipType_Video;
        clips.append(timeline.addClip(row, type, start, start + length - 1, item));
    }
    return clips;
}

// "row@start..end" of each clip, in list order.
QString placesOf(const QList<IMvClip*>& clips)
{
    QStringList places;
    for (const IMvClip* clip : clips)
        places.append(QStringLiteral("%1@%2..%3").arg(clip->trackIndex()).arg(clip->start()).arg(clip->end()));
    return places.join(QLatin1Char(' '));
}

QString rowTypes(const MvMemoryTimeline& timeline)
{
    QString types;
    for (int row = 0; row < timeline.trackCount(); ++row)
        types += timeline.trackAt(row)->type() == TrackType_Audio ? QLatin1Char('A') : QLatin1Char('P');
    return types;
}

IMvClipEditService* service(const MvMemoryTimeline& timeline)
{
    return timeline.editService();
}
}

class tst_MvMemoryClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pastePlacement_data();
    void pastePlacement();
    void pasteIsOneStepAndSelectsNothing();
    void pasteCarriesEverythingTheClipsCarry();
    void pasteCarriesLayersAndResources();
    void pasteAcrossTimelines();
    void compoundClips_data();
    void compoundClips();
    void cutIsOneStepAndLeavesLockedItems();
    void copyKeepsValuesThroughEditsAndUndo();
    void onlyModeThreePastes();
    void pasteTransitions_data();
    void pasteTransitions();
    void aDestroyedContentLeavesTheClipboard();
};

void tst_MvMemoryClipboard::init()
{
    MvMemoryClipboard::application().clear();
}

void tst_MvMemoryClipboard::pastePlacement_data()
{
    QTest::addColumn<QString>("copied"); // row@start+length, copied in that order
    QTest::addColumn<QString>("present"); // clips already on the rows, not copied
    QTest::addColumn<int>("lockedRow"); // -1: none
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<int>("trackIndex");
    QTest::addColumn<int>("trackType");
    QTest::addColumn<QString>("pasted"); // row@start..end of the new clips, rows top down
    QTest::addColumn<QString>("rows"); // the timeline's rows after the paste

    const QString pair = QStringLiteral("0@100+50,1@130+20");
    QTest::newRow("own rows, times apart as they were")
        << pair << "" << -1 << qint64(500) << -1 << 0 << "0@500..549 1@530..549"
        << "PPPAA";
    QTest::newRow("selection order does not matter") << "1@130+20,0@100+50"
                                                     << "" << -1 << qint64(500) << -1 << 0 << "0@500..549 1@530..549"
                                                     << "PPPAA";
    QTest::newRow("an asked picture row takes the top copied row")
        << pair << "" << -1 << qint64(500) << 1 << 0 << "1@500..549 2@530..549"
        << "PPPAA";
    QTest::newRow("rows missing below the asked row are added")
        << pair << "" << -1 << qint64(500) << 2 << 0 << "2@500..549 3@530..549"
        << "PPPPAA";
    QTest::newRow("the first row of the asked type") << "1@100+50,2@100+10"
                                                     << "" << -1 << qint64(40) << -1 << 3 << "0@40..89 1@40..49"
                                                     << "PPPAA";
    QTest::newRow("an audio row asked for picture clips: their own rows")
        << "1@100+50"
        << "" << -1 << qint64(0) << 3 << 0 << "1@0..49"
        << "PPPAA";
    QTest::newRow("the audio type asked for picture clips: their own rows")
        << "1@100+50"
        << "" << -1 << qint64(0) << -1 << 1 << "1@0..49"
        << "PPPAA";
    QTest::newRow("an asked audio row") << "3@100+50"
                                        << "" << -1 << qint64(0) << 4 << 0 << "4@0..49"
                                        << "PPPAA";
    QTest::newRow("the first audio row by type") << "4@100+50"
                                                 << "" << -1 << qint64(0) << -1 << 1 << "3@0..49"
                                                 << "PPPAA";
    QTest::newRow("both kinds: each on its own rows") << "1@100+50,4@120+10"
                                                      << "" << -1 << qint64(500) << -1 << 0 << "1@500..549 4@520..529"
                                                      << "PPPAA";
    QTest::newRow("both kinds with an asked picture row: sound keeps its rows")
        << "1@100+50,4@120+10"
        << "" << -1 << qint64(500) << 0 << 0 << "0@500..549 4@520..529"
        << "PPPAA";
    QTest::newRow("something in the way: all go down one row")
        << pair << "0@520+10" << -1 << qint64(500) << -1 << 0 << "1@500..549 2@530..549"
        << "PPPAA";
    QTest::newRow("touching what is there is no overlap")
        << pair << "0@450+50,0@550+10" << -1 << qint64(500) << -1 << 0 << "0@500..549 1@530..549"
        << "PPPAA";
    QTest::newRow("in the way down to the last row: new rows")
        << "1@100+50,2@130+20"
        << "2@540+10" << -1 << qint64(500) << -1 << 0 << "3@500..549 4@530..549"
        << "PPPPPAA";
    QTest::newRow("a locked row is passed over") << "0@100+50"
                                                 << "" << 0 << qint64(500) << -1 << 0 << "1@500..549"
                                                 << "PPPAA";
    QTest::newRow("sound in the way goes to a new audio row")
        << "3@100+50"
        << "3@0+1000,4@0+1000" << -1 << qint64(0) << -1 << 0 << "5@0..49"
        << "PPPAAA";
}

void tst_MvMemoryClipboard::pastePlacement()
{
    QFETCH(QString, copied);
    QFETCH(QString, present);
    QFETCH(int, lockedRow);
    QFETCH(qint64, frame);
    QFETCH(int, trackIndex);
    QFETCH(int, trackType);
    QFETCH(QString, pasted);
    QFETCH(QString, rows);

    std::unique_ptr<MvMemoryTimeline> source = makeTimeline();
    std::unique_ptr<MvMemoryTimeline> target = makeTimeline();
    service(*source)->copy(addClips(*source, copied));
    addClips(*target, present);
    if (lockedRow >= 0)
        target->trackAt(lockedRow)->setLocked(true);

    QList<IMvClip*> made;
    QCOMPARE(service(*target)->paste(frame, trackIndex, made, trackType, 3), 0);

    QCOMPARE(placesOf(made), pasted);
    QCOMPARE(rowTypes(*target), rows);
    QCOMPARE(target->checkInvariants(), QString());
}

void tst_MvMemoryClipboard::pasteIsOneStepAndSelectsNothing()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    const QList<IMvAbstractClip*> copied = addClips(*timeline, QStringLiteral("2@0+100,4@0+100"));
    timeline->selection()->selectItems(copied);
    service(*timeline)->copy(copied);
    timeline->undoService()->clear();
    const QString before = timeline->stateText();

    QList<IMvClip*> made;
    // Both rows are taken at frame 50: the copy needs a new row of each kind.
    service(*timeline)->paste(50, -1, made, 0, 3);

    QCOMPARE(placesOf(made), QStringLiteral("3@50..149 6@50..149"));
    QCOMPARE(timeline->selection()->selectedItems(), copied);
    QCOMPARE(timeline->undoService()->undoNames(), QStringList { QStringLiteral("paste") });
    QVERIFY(timeline->undoService()->undo());
    QCOMPARE(timeline->stateText(), before);
    QCOMPARE(timeline->checkInvariants(), QString());
}

void tst_MvMemoryClipboard::pasteCarriesEverythingTheClipsCarry()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    MvMemoryClip* clip = timeline->addClip(0, ClipType_VideoWithAudio, 100, 199, QStringLiteral("shot"));
    MvMemoryClip* sound = timeline->addClip(3, ClipType_Audio, 100, 199, QStringLiteral("sound"));
    MvMemoryClip* follower = timeline->addClip(1, ClipType_Sticker, 120, 139, QStringLiteral("tag"));
    const MvEffectPropertyBaseInfo scale { PropertyGroup_Transform, QStringLiteral("scale"), false, -1, 3 };
    clip->addKeyFrame(false, 10, { scale });
    clip->addKeyFrame(true, 20, { MvEffectPropertyBaseInfo { PropertyGroup_AudioVolume, QString(), false, -1, 22 } });
    clip->markerList()->addNamedMarker(30, Qt::red, QStringLiteral("cue"))->setComment(QStringLiteral("note"));
    clip->addFreezeFrame(7, 40);
    clip->setMuted(1);
    timeline->rotateClip90CW(clip);
    timeline->addTransition(clip, IMvTransition::AtStart, 15, QStringLiteral("fade in"));
    timeline->addTransition(clip, IMvTransition::AtEnd, 25, QStringLiteral("wipe"));
    timeline->editServiceImpl()->group({ clip, sound }, 1);
    clip->setMotionTrackFollower(follower);
    service(*timeline)->copy({ clip, sound, follower });

    QList<IMvClip*> made;
    service(*timeline)->paste(1000, -1, made, 0, 3);

    QCOMPARE(made.size(), 3);
    auto* copy = static_cast<MvMemoryClip*>(made.at(0));
    QCOMPARE(copy->type(), ClipType_VideoWithAudio);
    QCOMPARE(copy->keyFrameProperties(false, 10), MvKeyFrameProperties { scale });
    QCOMPARE(copy->keyFrames(true), QList<qint64> { 20 });
    const QList<MvMemoryMarker*> markers = copy->markerList()->attachedMarkers();
    QCOMPARE(markers.size(), 1);
    QCOMPARE(markers.first()->state(),
        (MvMemoryMarker::State { 30, QColor(Qt::red), QStringLiteral("cue"), QStringLiteral("note") }));
    QCOMPARE(copy->freezeFrameAt(7), qint64(40));
    QVERIFY(copy->isMuted());
    QCOMPARE(copy->rotation(), 90);
    QCOMPARE(placesOf({ copy }), QStringLiteral("0@1000..1099"));
    const QList<MvMemoryTransition*> transitions = copy->liveTransitions();
    QCOMPARE(transitions.size(), 2);
    QCOMPARE(transitions.at(0)->name() + QString::number(transitions.at(0)->length()), QStringLiteral("fade in15"));
    QCOMPARE(transitions.at(1)->name() + QString::number(transitions.at(1)->length()), QStringLiteral("wipe25"));
    // The pasted picture and sound are linked to each other, and the copy follows the copied follower.
    QCOMPARE(timeline->groupMembers(copy), (QList<MvMemoryClip*> { copy, static_cast<MvMemoryClip*>(made.at(2)) }));
    QCOMPARE(timeline->groupKindOf(copy), 1);
    QCOMPARE(copy->motionTrackFollower(), made.at(1));
    QCOMPARE(clip->motionTrackFollower(), follower);
    QCOMPARE(timeline->checkInvariants(), QString());
}

void tst_MvMemoryClipboard::pasteCarriesLayersAndResources()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    MvMemoryClip* text = timeline->addClip(0, ClipType_Text, 0, 99, QStringLiteral("lower third"));
    MvMemoryClip* name = timeline->addChildClip(text, ClipType_Text, QStringLiteral("name"), false);
    timeline->addChildClip(text, ClipType_Text, QStringLiteral("role"), true);
    const MvMemoryResource stock { 42, 1, QStringLiteral("stock-42"), QStringLiteral("Stock") };
    text->setResource(stock);
    MvMemoryTransition* fade = timeline->addTransition(text, IMvTransition::AtStart, 10, QStringLiteral("fade"));
    fade->setResource({ 5, MvMemoryResource::BuiltIn, QStringLiteral("transition-5"), QStringLiteral("Fade") });
    service(*timeline)->copy({ text });
    // What the original's layers become later is no part of the copy.
    name->setName(QStringLiteral("renamed"));

    QList<IMvClip*> made;
    service(*timeline)->paste(200, -1, made, 0, 3);

    auto* copy = static_cast<MvMemoryClip*>(made.value(0));
    QVERIFY(copy);
    QStringList layers;
    for (const MvMemoryClip* layer : copy->children()) {
        QCOMPARE(layer->container(), copy);
        QVERIFY(!text->children().contains(const_cast<MvMemoryClip*>(layer)));
        layers.append(layer->name() + (layer->isSecondary() ? QStringLiteral("*") : QString()));
    }
    QCOMPARE(layers, (QStringList { QStringLiteral("name"), QStringLiteral("role*") }));
    QCOMPARE(copy->state().resource, stock);
    QCOMPARE(copy->liveTransitions().value(0)->state().resource.guid, QStringLiteral("transition-5"));
    QCOMPARE(timeline->checkInvariants(), QString());
}

void tst_MvMemoryClipboard::pasteAcrossTimelines()
{
    // The clipboard is the application's: a copy in one timeline pastes into another.
    std::unique_ptr<MvMemoryTimeline> first = makeTimeline(1);
    std::unique_ptr<MvMemoryTimeline> second = makeTimeline(2);
    service(*first)->copy(addClips(*first, QStringLiteral("1@10+20")));
    QVERIFY(service(*second)->canPaste());

    QList<IMvClip*> made;
    QCOMPARE(service(*second)->paste(5, -1, made, 0, 3), 0);

    QCOMPARE(placesOf(made), QStringLiteral("1@5..24"));
    QCOMPARE(made.first()->ownerTimeline(), second.get());
    QCOMPARE(first->liveClips().size(), 1);
}

void tst_MvMemoryClipboard::compoundClips_data()
{
    QTest::addColumn<QString>("content"); // what the copied compound clip shows
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("pasted"); // names of the new clips

    QTest::newRow("another timeline of the project") << "sibling" << 0 << "compound plain";
    QTest::newRow("the timeline it is pasted into: 8") << "target" << 8 << "plain";
    QTest::newRow("a timeline that holds the target: 8") << "parent" << 8 << "plain";
    QTest::newRow("a timeline of another project: 4") << "foreign" << 4 << "plain";
}

void tst_MvMemoryClipboard::compoundClips()
{
    QFETCH(QString, content);
    QFETCH(int, flags);
    QFETCH(QString, pasted);

    std::unique_ptr<MvMemoryTimeline> target = makeTimeline(1);
    std::unique_ptr<MvMemoryTimeline> sibling = makeTimeline(1);
    std::unique_ptr<MvMemoryTimeline> foreign = makeTimeline(2);
    std::unique_ptr<MvMemoryTimeline> parent = makeTimeline(1);
    parent->addClip(0, ClipType_Compound, 0, 99, QStringLiteral("holds target"))->setCompoundContent(target.get());
    const QHash<QString, MvMemoryTimeline*> timelines { { QStringLiteral("sibling"), sibling.get() },
        { QStringLiteral("target"), target.get() }, { QStringLiteral("parent"), parent.get() },
        { QStringLiteral("foreign"), foreign.get() } };
    std::unique_ptr<MvMemoryTimeline> source = makeTimeline(1);
    MvMemoryClip* compound = source->addClip(0, ClipType_Compound, 0, 49, QStringLiteral("compound"));
    compound->setCompoundContent(timelines.value(content));
    MvMemoryClip* plain = source->addClip(1, ClipType_Video, 0, 49, QStringLiteral("plain"));
    service(*source)->copy({ plain, compound });

    QList<IMvClip*> made;
    QCOMPARE(service(*target)->paste(0, -1, made, 0, 3), flags);

    QStringList names;
    for (const IMvClip* clip : qAsConst(made))
        names.append(clip->name());
    QCOMPARE(names.join(QLatin1Char(' ')), pasted);
    QCOMPARE(target->liveClips().size(), made.size());
}

void tst_MvMemoryClipboard::cutIsOneStepAndLeavesLockedItems()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    const QList<IMvAbstractClip*> clips = addClips(*timeline, QStringLiteral("0@0+100,1@0+100,2@0+100"));
    auto* owner = static_cast<MvMemoryClip*>(clips.at(1));
    MvMemoryTransition* fade = timeline->addTransition(owner, IMvTransition::AtEnd, 10, QStringLiteral("fade"));
    timeline->trackAt(2)->setLocked(true);
    timeline->undoService()->clear();
    const QString before = timeline->stateText();

    service(*timeline)->cut({ clips.at(0), fade, clips.at(2) });

    QCOMPARE(timeline->undoService()->undoNames(), QStringList { QStringLiteral("cut") });
    QVERIFY(!timeline->isLive(clips.at(0)));
    QVERIFY(!timeline->isLive(fade));
    QVERIFY(timeline->isLive(owner));
    QVERIFY(timeline->isLive(clips.at(2))); // on a locked row: copied, not taken
    QCOMPARE(MvMemoryClipboard::application().content().clips.size(), 2);
    QCOMPARE(MvMemoryClipboard::application().content().transitions.size(), 1);
    QVERIFY(timeline->undoService()->undo());
    QCOMPARE(timeline->stateText(), before);
    QCOMPARE(timeline->checkInvariants(), QString());
}

void tst_MvMemoryClipboard::copyKeepsValuesThroughEditsAndUndo()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    const QList<IMvAbstractClip*> clips = addClips(*timeline, QStringLiteral("0@0+100"));
    service(*timeline)->cut(clips);
    QVERIFY(timeline->undoService()->undo());
    timeline->trimEndToFrame(static_cast<IMvClip*>(clips.first()), 9);

    QList<IMvClip*> made;
    service(*timeline)->paste(200, -1, made, 0, 3);

    // The copy was taken before the trim.
    QCOMPARE(placesOf(made), QStringLiteral("0@200..299"));
}

void tst_MvMemoryClipboard::onlyModeThreePastes()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    service(*timeline)->copy(addClips(*timeline, QStringLiteral("0@0+10")));
    timeline->undoService()->clear();
    QList<IMvClip*> made { nullptr };

    QCOMPARE(service(*timeline)->paste(100, -1, made, 0, 2), 0);

    QVERIFY(made.isEmpty());
    QCOMPARE(timeline->undoService()->undoCount(), 0);
    // Nothing copied: nothing to paste.
    service(*timeline)->copy({});
    QVERIFY(!service(*timeline)->canPaste());
    QCOMPARE(service(*timeline)->paste(100, -1, made, 0, 3), 0);
    QCOMPARE(timeline->undoService()->undoCount(), 0);
}

void tst_MvMemoryClipboard::pasteTransitions_data()
{
    QTest::addColumn<QString>("copied"); // placement:length of each copied transition; "clip" copies a clip
    QTest::addColumn<QString>("after"); // the targets' transitions: name placement:length, per target

    QTest::newRow("onto every target, in place of one at the same place") << "start:10"
                                                                          << "copied 1:10 | copied 1:10 | ";
    QTest::newRow("one at another place stays") << "end:10"
                                                << "copied 2:10 | old 1:5 copied 2:10 | ";
    QTest::newRow("no longer than the clip") << "start:80"
                                             << "copied 1:50 | copied 1:80 | ";
    QTest::newRow("the first copied at each place") << "start:10,start:20,end:30"
                                                    << "copied 1:10 copied 2:30 | copied 1:10 copied 2:30 | ";
    QTest::newRow("a copy of clips has no transition") << "clip"
                                                       << " | old 1:5 | ";
}

void tst_MvMemoryClipboard::pasteTransitions()
{
    QFETCH(QString, copied);
    QFETCH(QString, after);

    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    const QList<IMvAbstractClip*> targets = addClips(*timeline, QStringLiteral("0@0+50,1@0+100,2@0+100"));
    auto* second = static_cast<MvMemoryClip*>(targets.at(1));
    timeline->addTransition(second, IMvTransition::AtStart, 5, QStringLiteral("old"));
    timeline->trackAt(2)->setLocked(true);
    // Each copied transition rides on a long clip of its own.
    QList<IMvAbstractClip*> items;
    for (const QString& item : copied.split(QLatin1Char(','))) {
        const qint64 start = 500 + 1000 * items.size();
        MvMemoryClip* carrier = timeline->addClip(0, ClipType_Video, start, start + 499, QStringLiteral("carrier"));
        if (item == QLatin1String("clip")) {
            items.append(carrier);
            continue;
        }
        const quint16 at = item.startsWith(QLatin1String("start")) ? IMvTransition::AtStart : IMvTransition::AtEnd;
        items.append(timeline->addTransition(
            carrier, at, item.section(QLatin1Char(':'), 1).toLongLong(), QStringLiteral("copied")));
    }
    service(*timeline)->copy(items);
    timeline->undoService()->clear();
    const QString before = timeline->stateText();

    QList<IMvTransition*> pasted;
    const QList<IMvClip*> clips { static_cast<IMvClip*>(targets.at(0)), second, static_cast<IMvClip*>(targets.at(2)) };
    service(*timeline)->pasteTransitions(pasted, clips);

    QStringList perTarget;
    for (const IMvClip* target : clips) {
        QStringList names;
        const QList<IMvTransition*> present = target->transitionList()->transitions();
        for (const IMvTransition* transition : present)
            names.append(QStringLiteral("%1 %2:%3")
                             .arg(transition->name())
                             .arg(transition->placement())
                             .arg(transition->end() - transition->start() + 1));
        perTarget.append(names.join(QLatin1Char(' ')));
    }
    QCOMPARE(perTarget.join(QLatin1String(" | ")), after);
    QCOMPARE(pasted.isEmpty(), copied == QLatin1String("clip"));
    QCOMPARE(timeline->undoService()->undoCount(), pasted.isEmpty() ? 0 : 1);
    if (!pasted.isEmpty()) {
        QCOMPARE(timeline->undoService()->undoName(), QStringLiteral("paste transitions"));
        QVERIFY(timeline->undoService()->undo());
        QCOMPARE(timeline->stateText(), before);
    }
    QCOMPARE(timeline->checkInvariants(), QString());
}

void tst_MvMemoryClipboard::aDestroyedContentLeavesTheClipboard()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline();
    std::unique_ptr<MvMemoryTimeline> content = makeTimeline();
    MvMemoryClip* compound = timeline->addClip(0, ClipType_Compound, 0, 9, QStringLiteral("compound"));
    compound->setCompoundContent(content.get());
    const QList<IMvAbstractClip*> plain = addClips(*timeline, QStringLiteral("1@0+10"));
    service(*timeline)->copy({ compound, plain.first() });
    compound->setCompoundContent(nullptr);

    content.reset();

    QList<IMvClip*> made;
    QCOMPARE(service(*timeline)->paste(100, -1, made, 0, 3), 0);
    QCOMPARE(placesOf(made), QStringLiteral("1@100..109"));
}

QTEST_MAIN(tst_MvMemoryClipboard)
#include "tst_MvMemoryClipboard.moc"
