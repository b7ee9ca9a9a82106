#include "IMvAbstractClip.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvClipHelpers.h"
#include "MvEditFixture.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
// Rows from a string of types: "PPA" is two picture rows and an audio row (added in any order,
// picture rows stay on top). The undo history starts empty.
std::unique_ptr<MvMemoryTimeline> makeTimeline(const QString& rows)
{
    std::unique_ptr<MvMemoryTimeline> timeline(new MvMemoryTimeline);
    for (const QChar row : rows)
        timeline->addTrack(row == QLatin1Char('A') ? TrackType_Audio : TrackType_Picture);
    return timeline;
}

QString rowTypes(const MvMemoryTimeline& timeline)
{
    QString types;
    for (int row = 0; row < timeline.trackCount(); ++row)
        types += timeline.trackAt(row)->type() == TrackType_Audio ? QLatin1Char('A') : QLatin1Char('P');
    return types;
}

// One undo step was made with that name, and undoing it gives the state back.
QString undoesTo(MvMemoryTimeline& timeline, const QString& before)
{
    const QString name = timeline.undoService()->undoName();
    if (timeline.undoService()->undoCount() != 1)
        return QStringLiteral("%1 steps").arg(timeline.undoService()->undoCount());
    timeline.undoService()->undo();
    return timeline.stateText() == before ? name : QStringLiteral("not undone");
}
}

class tst_MvMemoryTracks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowSwitches_data();
    void rowSwitches();
    void clipMute_data();
    void clipMute();
    void rowsByType();
    void clearEmptyTracks_data();
    void clearEmptyTracks();
    void addTrackAtARow_data();
    void addTrackAtARow();
    void detachAudio_data();
    void detachAudio();
    void detachedSoundTakesTheClipsSound();
    void remix();
    void hasClip_data();
    void hasClip();
    void soundOfClips_data();
    void soundOfClips();
};

void tst_MvMemoryTracks::rowSwitches_data()
{
    QTest::addColumn<QString>("row"); // P or A
    QTest::addColumn<QString>("commands"); // m mute, u unmute, h hide, H hide with sound, s show
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("muted");
    QTest::addColumn<QString>("lastStep");

    QTest::newRow("hidden with its sound: silent") << "P"
                                                   << "H" << false << true << "hide track";
    QTest::newRow("hidden, sound kept") << "P"
                                        << "h" << false << false << "hide track";
    QTest::newRow("shown again: heard again") << "P"
                                              << "Hs" << true << false << "show track";
    QTest::newRow("own switch kept through hiding") << "P"
                                                    << "mHsu" << true << false << "unmute track";
    QTest::newRow("muted, hidden and shown: still muted") << "P"
                                                          << "mHs" << true << true << "show track";
    QTest::newRow("unmuted while hidden with sound: silent until shown") << "P"
                                                                         << "mHu" << false << true << "unmute track";
    QTest::newRow("audio row muted") << "A"
                                     << "m" << true << true << "mute track";
    QTest::newRow("the same value twice is one step") << "A"
                                                      << "mm" << true << true << "mute track";
}

void tst_MvMemoryTracks::rowSwitches()
{
    QFETCH(QString, row);
    QFETCH(QString, commands);
    QFETCH(bool, visible);
    QFETCH(bool, muted);
    QFETCH(QString, lastStep);

    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(row);
    IMvTrack* track = timeline->trackAt(0);
    QStringList states { timeline->stateText() };
    for (const QChar command : commands) {
        if (command == QLatin1Char('m') || command == QLatin1Char('u'))
            track->setMuted(command == QLatin1Char('m'));
        else
            track->setVisible(command == QLatin1Char('s'), command == QLatin1Char('H'));
        if (states.last() != timeline->stateText())
            states.append(timeline->stateText());
    }

    QCOMPARE(track->isVisible(), visible);
    QCOMPARE(track->isMuted(), muted);
    QCOMPARE(timeline->undoService()->undoName(), lastStep);
    // Every switch is a step of its own, and undo goes back through them all.
    QCOMPARE(timeline->undoService()->undoCount(), states.size() - 1);
    while (timeline->undoService()->undo())
        QCOMPARE(timeline->stateText(), states.at(timeline->undoService()->undoCount()));
}

void tst_MvMemoryTracks::clipMute_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("wasMuted");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<QString>("step"); // empty: nothing changed

    QTest::newRow("sound clip") << ClipType_Audio << false << 1 << false << "mute clip";
    QTest::newRow("picture with sound") << ClipType_VideoWithAudio << false << 1 << false << "mute clip";
    QTest::newRow("any value but 0 mutes") << ClipType_Music << false << 2 << false << "mute clip";
    QTest::newRow("0 unmutes") << ClipType_Music << true << 0 << false << "unmute clip";
    QTest::newRow("muted already") << ClipType_Music << true << 1 << false << "";
    QTest::newRow("no sound to mute") << ClipType_Video << false << 1 << false << "";
    QTest::newRow("locked row") << ClipType_Audio << false << 1 << true << "";
}

void tst_MvMemoryTracks::clipMute()
{
    QFETCH(int, type);
    QFETCH(bool, wasMuted);
    QFETCH(int, value);
    QFETCH(bool, locked);
    QFETCH(QString, step);

    std::unique_ptr<MvMemoryTimeline> timeline
        = makeTimeline(isAudioClipType(type) ? QStringLiteral("A") : QStringLiteral("P"));
    MvMemoryClip* clip = timeline->addClip(0, type, 0, 9, QStringLiteral("clip"));
    clip->setMuted(wasMuted ? 1 : 0);
    timeline->trackAt(0)->setLocked(locked);
    timeline->undoService()->clear();
    const QString before = timeline->stateText();

    clip->setMuted(quint16(value));

    QCOMPARE(clip->isMuted(), step.isEmpty() ? wasMuted : value != 0);
    QCOMPARE(undoesTo(*timeline, before), step.isEmpty() ? QStringLiteral("0 steps") : step);
}

void tst_MvMemoryTracks::rowsByType()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QStringLiteral("PPPAA"));
    timeline->addClip(1, ClipType_Video, 0, 9, QStringLiteral("v"));
    timeline->addClip(4, ClipType_Audio, 0, 9, QStringLiteral("a"));
    MvRange<int> range;

    QCOMPARE(timeline->trackCount(TrackType_Picture), 3);
    QCOMPARE(timeline->emptyTrackCount(TrackType_Picture), 2);
    QCOMPARE(timeline->emptyTrackCount(TrackType_Audio), 1);
    timeline->trackIndexRange(range, TrackType_Audio);
    QCOMPARE(range, MvRange<int>(3, 4));
    timeline->trackIndexRange(range, TrackType_Picture);
    QCOMPARE(range, MvRange<int>(0, 2));

    std::unique_ptr<MvMemoryTimeline> pictureOnly = makeTimeline(QStringLiteral("P"));
    pictureOnly->trackIndexRange(range, TrackType_Audio);
    QVERIFY(range.last < range.first);
    QCOMPARE(pictureOnly->trackCount(TrackType_Audio), 0);
}

void tst_MvMemoryTracks::clearEmptyTracks_data()
{
    QTest::addColumn<QString>("rows"); // per row: type, then c (a clip), e (empty) or l (empty, locked)
    QTest::addColumn<QString>("after");

    QTest::newRow("empty rows go") << "Pc Pe Pc Ae Ac"
                                   << "Pc Pc Ac";
    QTest::newRow("a locked empty row stays") << "Pc Pl Ae Ac"
                                              << "Pc Pl Ac";
    QTest::newRow("each type keeps its first row") << "Pe Pe Ae Ae"
                                                   << "Pe Ae";
    QTest::newRow("a locked row is the row kept") << "Pe Pl Ac"
                                                  << "Pl Ac";
    QTest::newRow("nothing to clear: no step") << "Pc Ae"
                                               << "Pc Ae";
}

void tst_MvMemoryTracks::clearEmptyTracks()
{
    QFETCH(QString, rows);
    QFETCH(QString, after);

    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QString());
    const QStringList words = mvBuildRows(*timeline, rows);
    QHash<IMvTrack*, QString> names;
    for (int row = 0; row < words.size(); ++row)
        names.insert(timeline->trackAt(row), words.at(row));
    timeline->undoService()->clear();
    const QString before = timeline->stateText();

    timeline->clearEmptyTracks();

    QStringList left;
    for (int row = 0; row < timeline->trackCount(); ++row)
        left.append(names.value(timeline->trackAt(row)));
    QCOMPARE(left.join(QLatin1Char(' ')), after);
    QCOMPARE(timeline->checkInvariants(), QString());
    QCOMPARE(
        undoesTo(*timeline, before), after == rows ? QStringLiteral("0 steps") : QStringLiteral("clear empty tracks"));
}

void tst_MvMemoryTracks::addTrackAtARow_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("row"); // where the new row stands

    QTest::newRow("audio, -1: below the last audio row") << TrackType_Audio << -1 << 4;
    QTest::newRow("audio, -2: above the last audio row") << TrackType_Audio << -2 << 3;
    QTest::newRow("audio, far negative: the first audio row") << TrackType_Audio << -50 << 2;
    QTest::newRow("audio, row 0: clamped to the first audio row") << TrackType_Audio << 0 << 2;
    QTest::newRow("audio, at a row") << TrackType_Audio << 3 << 3;
    QTest::newRow("audio, past the end") << TrackType_Audio << 99 << 4;
    QTest::newRow("picture, -1: below the last picture row") << TrackType_Picture << -1 << 2;
    QTest::newRow("picture, row 0") << TrackType_Picture << 0 << 0;
    QTest::newRow("picture, an audio row: clamped") << TrackType_Picture << 3 << 2;
    QTest::newRow("no such type") << 7 << 0 << -1;
}

void tst_MvMemoryTracks::addTrackAtARow()
{
    QFETCH(int, type);
    QFETCH(int, index);
    QFETCH(int, row);

    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QStringLiteral("PPAA"));
    QList<IMvTrack*> old;
    for (int i = 0; i < timeline->trackCount(); ++i)
        old.append(timeline->trackAt(i));
    const QString before = timeline->stateText();

    static_cast<IMvTimeline*>(timeline.get())->addTrack(type, index);

    QCOMPARE(timeline->checkInvariants(), QString());
    if (row < 0) {
        QCOMPARE(timeline->trackCount(), 4);
        return;
    }
    QVERIFY(!old.contains(timeline->trackAt(row)));
    QCOMPARE(timeline->trackAt(row)->type(), type);
    // A host's added row is an edit like any other: one step, undone.
    QCOMPARE(undoesTo(*timeline, before), QStringLiteral("add track"));
}

void tst_MvMemoryTracks::detachAudio_data()
{
    QTest::addColumn<QString>("sound"); // row@start+length of the sound clips already there
    QTest::addColumn<int>("lockedRow");
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("soundRow"); // where the sound lands, -1: not detached
    QTest::addColumn<QString>("rows");

    // The picture clip with sound stands on row 0 at 100..199; rows 2 and 3 are audio rows.
    QTest::newRow("the asked row") << "" << -1 << 2 << 2 << "PPAA";
    QTest::newRow("a picture row asked: the lowest free audio row") << "" << -1 << 0 << 3 << "PPAA";
    QTest::newRow("the asked row is taken") << "2@150+10" << -1 << 2 << 3 << "PPAA";
    QTest::newRow("the lowest row is taken: the one above") << "3@199+10" << -1 << 0 << 2 << "PPAA";
    QTest::newRow("touching is not taken") << "3@200+10,3@0+100" << -1 << 0 << 3 << "PPAA";
    QTest::newRow("the asked row is locked") << "" << 2 << 2 << 3 << "PPAA";
    QTest::newRow("every audio row taken: a new one below") << "2@0+1000,3@0+1000" << -1 << 0 << 4 << "PPAAA";
    QTest::newRow("a row that does not exist") << "" << -1 << 9 << 3 << "PPAA";
    QTest::newRow("the clip's own row locked: refused") << "" << 0 << 2 << -1 << "PPAA";
}

void tst_MvMemoryTracks::detachAudio()
{
    QFETCH(QString, sound);
    QFETCH(int, lockedRow);
    QFETCH(int, asked);
    QFETCH(int, soundRow);
    QFETCH(QString, rows);

    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QStringLiteral("PPAA"));
    MvMemoryClip* clip = timeline->addClip(0, ClipType_VideoWithAudio, 100, 199, QStringLiteral("shot"));
    for (const QString& item : sound.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const qint64 start = item.section(QLatin1Char('@'), 1).section(QLatin1Char('+'), 0, 0).toLongLong();
        timeline->addClip(item.section(QLatin1Char('@'), 0, 0).toInt(), ClipType_Audio, start,
            start + item.section(QLatin1Char('+'), 1).toLongLong() - 1, QStringLiteral("there"));
    }
    if (lockedRow >= 0)
        timeline->trackAt(lockedRow)->setLocked(true);
    timeline->undoService()->clear();
    const QString before = timeline->stateText();
    const int clipsBefore = timeline->liveClips().size();

    timeline->detachAudio(clip, asked);

    QCOMPARE(rowTypes(*timeline), rows);
    QCOMPARE(timeline->checkInvariants(), QString());
    if (soundRow < 0) {
        QCOMPARE(clip->type(), ClipType_VideoWithAudio);
        QCOMPARE(undoesTo(*timeline, before), QStringLiteral("0 steps"));
        return;
    }
    QCOMPARE(timeline->liveClips().size(), clipsBefore + 1);
    const QList<MvMemoryClip*> group = timeline->groupMembers(clip);
    QCOMPARE(group.size(), 2);
    MvMemoryClip* detached = group.at(1);
    QCOMPARE(detached->trackIndex(), soundRow);
    QCOMPARE(QStringLiteral("%1 %2..%3").arg(detached->type()).arg(detached->start()).arg(detached->end()),
        QStringLiteral("1 100..199"));
    QCOMPARE(clip->type(), ClipType_Video);
    QCOMPARE(undoesTo(*timeline, before), QStringLiteral("detach audio"));
}

void tst_MvMemoryTracks::detachedSoundTakesTheClipsSound()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QStringLiteral("PPA"));
    MvMemoryClip* clip = timeline->addClip(0, ClipType_VideoWithAudio, 0, 99, QStringLiteral("shot"));
    MvMemoryClip* partner = timeline->addClip(1, ClipType_Image, 0, 99, QStringLiteral("logo"));
    timeline->editServiceImpl()->group({ clip, partner }, 0);
    const MvEffectPropertyBaseInfo volume { PropertyGroup_AudioVolume, QString(), false, -1, 22 };
    clip->addKeyFrame(true, 5, { volume });
    clip->addKeyFrame(false, 6, { MvEffectPropertyBaseInfo { PropertyGroup_Transform, QString(), false, -1, 3 } });
    clip->setMuted(1);

    timeline->detachAudio(clip, 2);

    MvMemoryClip* detached = timeline->memoryTrack(2)->memoryClips().value(0);
    QVERIFY(detached);
    QCOMPARE(detached->name(), clip->name());
    QCOMPARE(detached->keyFrameProperties(true, 5), MvKeyFrameProperties { volume });
    QVERIFY(detached->isMuted());
    QVERIFY(clip->keyFrames(true).isEmpty());
    QCOMPARE(clip->keyFrames(false), QList<qint64> { 6 });
    QVERIFY(!clip->isMuted());
    // The sound joins the group the picture was in.
    QCOMPARE(timeline->groupMembers(clip), (QList<MvMemoryClip*> { clip, partner, detached }));
    QCOMPARE(timeline->groupKindOf(clip), 0);
}

void tst_MvMemoryTracks::remix()
{
    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QStringLiteral("PA"));
    MvMemoryClip* picture = timeline->addClip(0, ClipType_VideoWithAudio, 0, 99, QStringLiteral("shot"));
    MvMemoryClip* music = timeline->addClip(1, ClipType_Music, 0, 99, QStringLiteral("theme"));
    QVERIFY(!picture->setRemixed(true));
    QVERIFY(music->setRemixed(true));
    timeline->undoService()->clear();
    const QString before = timeline->stateText();

    QVERIFY(!MvAudioRemixHelper::clearRemix(nullptr));
    QVERIFY(!MvAudioRemixHelper::clearRemix(picture));
    timeline->trackAt(1)->setLocked(true);
    QVERIFY(!MvAudioRemixHelper::clearRemix(music));
    timeline->trackAt(1)->setLocked(false);
    timeline->undoService()->clear();
    QVERIFY(MvAudioRemixHelper::clearRemix(music));

    QVERIFY(!music->isRemixed());
    QCOMPARE(timeline->undoService()->undoSource(), QStringLiteral("MvAudioRemixHelper::clearRemix"));
    QCOMPARE(undoesTo(*timeline, before), QStringLiteral("clear remix"));
    QVERIFY(music->isRemixed());
}

void tst_MvMemoryTracks::hasClip_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("last");
    QTest::addColumn<bool>("found");

    // Row 0 holds 100..199 and 300..399.
    QTest::newRow("over the first clip's end") << 0 << qint64(150) << qint64(250) << true;
    QTest::newRow("on the first clip's last frame") << 0 << qint64(199) << qint64(199) << true;
    QTest::newRow("in the gap") << 0 << qint64(200) << qint64(299) << false;
    QTest::newRow("across the gap") << 0 << qint64(199) << qint64(300) << true;
    QTest::newRow("around a clip") << 0 << qint64(0) << qint64(1000) << true;
    QTest::newRow("before every clip") << 0 << qint64(0) << qint64(99) << false;
    QTest::newRow("after every clip") << 0 << qint64(400) << qint64(500) << false;
    QTest::newRow("an empty range") << 0 << qint64(150) << qint64(149) << false;
    QTest::newRow("an empty row") << 1 << qint64(0) << qint64(1000) << false;
    QTest::newRow("no such row") << 5 << qint64(0) << qint64(1000) << false;
}

void tst_MvMemoryTracks::hasClip()
{
    QFETCH(int, row);
    QFETCH(qint64, first);
    QFETCH(qint64, last);
    QFETCH(bool, found);

    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QStringLiteral("PP"));
    timeline->addClip(0, ClipType_Video, 300, 399, QStringLiteral("b"));
    timeline->addClip(0, ClipType_Video, 100, 199, QStringLiteral("a"));

    QCOMPARE(MvClipFinder(timeline.get()).hasClip(row, MvRange<qint64>(first, last)), found);
}

void tst_MvMemoryTracks::soundOfClips_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("sound");

    QTest::newRow("audio") << ClipType_Audio << true;
    QTest::newRow("music") << ClipType_Music << true;
    QTest::newRow("sound effect") << ClipType_SoundEffect << true;
    QTest::newRow("picture with sound") << ClipType_VideoWithAudio << true;
    QTest::newRow("screen recording") << ClipType_ScreenRecording << true;
    QTest::newRow("compound") << ClipType_Compound << true;
    QTest::newRow("video without sound") << ClipType_Video << false;
    QTest::newRow("text") << ClipType_Text << false;
    QTest::newRow("transition") << ClipType_Transition << false;
}

void tst_MvMemoryTracks::soundOfClips()
{
    QFETCH(int, type);
    QFETCH(bool, sound);

    std::unique_ptr<MvMemoryTimeline> timeline = makeTimeline(QStringLiteral("PA"));
    MvMemoryClip* owner = timeline->addClip(0, ClipType_Video, 0, 99, QStringLiteral("owner"));
    IMvAbstractClip* item = type == ClipType_Transition
        ? static_cast<IMvAbstractClip*>(timeline->addTransition(owner, IMvTransition::AtStart, 5, QString()))
        : timeline->addClip(isAudioClipType(type) ? 1 : 0, type, 200, 299, QStringLiteral("item"));
    auto* clip = dynamic_cast<IMvClip*>(item);

    QCOMPARE(IMvClipHelper::hasAudio(item), sound);
    QCOMPARE(IMvClipHelper::isAudioFeatureClip(clip), sound);
    if (clip && sound) {
        // Off the timeline its sound is not heard.
        timeline->deleteClips({ clip });
        QVERIFY(!IMvClipHelper::isAudioFeatureClip(clip));
        QVERIFY(IMvClipHelper::hasAudio(item));
    }
    QVERIFY(!IMvClipHelper::hasAudio(nullptr));
}

QTEST_MAIN(tst_MvMemoryTracks)
#include "tst_MvMemoryTracks.moc"
