#include "IMvTrack.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvEditFixture.h"
#include "MvEventBus.h"
#include "MvRecordingTimeline.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Notes the rows a presenter looks at, and can report fewer audio rows than it has.
class RowWatchingTimeline : public MvRecordingTimeline
{
public:
    using MvRecordingTimeline::MvRecordingTimeline;

    bool forceAudioRows = false;
    MvRange<int> forcedAudioRows;
    bool watchRows = false;

    IMvTrack* trackAt(int index) const override
    {
        if (watchRows)
            note(QStringLiteral("row %1").arg(index));
        return MvRecordingTimeline::trackAt(index);
    }
    void trackIndexRange(MvRange<int>& range, MvTrackType type) const override
    {
        MvRecordingTimeline::trackIndexRange(range, type);
        if (type == TrackType_Audio && forceAudioRows)
            range = forcedAudioRows;
    }
};

class DetachRowPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::calcDetachAudioTrackIndex;
    using MvTimelinePresenter::MvTimelinePresenter;
};

using Fixture = MvEditFixture<RowWatchingTimeline, DetachRowPresenter>;

// A model without an undo service as hosts see it: each clip edit is a step of its own.
class NoUndoTimeline : public MvMemoryTimeline
{
public:
    IMvUndoRedoService* undoRedoService() const override { return nullptr; }
};

// The visible part of the journal for these commands: scene messages and model edits.
QString edits(const Fixture& f)
{
    QStringList lines;
    for (const QString& entry : f.journal.entries()) {
        if (entry.startsWith(QLatin1String("scene:")) || entry.startsWith(QLatin1String("model:")))
            lines.append(entry);
    }
    return lines.join(QLatin1Char(' '));
}
}

class tst_MvTimelinePresenterTracks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullTracksAreRefused_data();
    void nullTracksAreRefused();
    void trackCommands_data();
    void trackCommands();
    void eyeAndMuteButtons_data();
    void eyeAndMuteButtons();
    void batchMute_data();
    void batchMute();
    void batchMuteRepaintsOnce();
    void muteOfTheSelection_data();
    void muteOfTheSelection();
    void canClearEmptyTracks_data();
    void canClearEmptyTracks();
    void clearEmptyTracks();
    void detachRow_data();
    void detachRow();
    void detachRowSearchFollowsTheModelsAudioRows();
    void trackCommandsWalkBackAndForth();
};

void tst_MvTimelinePresenterTracks::nullTracksAreRefused_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command : { "setLock", "setMute", "setVisible", "muteEnable", "trackVisible" })
        QTest::newRow(command) << QString::fromLatin1(command);
}

void tst_MvTimelinePresenterTracks::nullTracksAreRefused()
{
    QFETCH(QString, command);
    Fixture f;
    const QString before = f.snapshot();
    f.journal.clear();

    bool answer = true;
    if (command == QLatin1String("setLock"))
        f.presenter->setLock(nullptr, true);
    else if (command == QLatin1String("setMute"))
        f.presenter->setMute(nullptr, true);
    else if (command == QLatin1String("setVisible"))
        f.presenter->setVisible(nullptr, false);
    else if (command == QLatin1String("muteEnable"))
        answer = f.presenter->muteEnable(nullptr);
    else
        answer = f.presenter->trackVisible(nullptr);

    QVERIFY(!answer || command.startsWith(QLatin1String("set")));
    QCOMPARE(
        mvCheckRecord(f.log, QStringLiteral("track is null"), 16, QStringLiteral("MvTimelinePresenter::") + command),
        QString());
    QCOMPARE(f.log.records().size(), 1);
    QCOMPARE(f.journalText(), QString());
    QCOMPARE(f.snapshot(), before);
}

void tst_MvTimelinePresenterTracks::trackCommands_data()
{
    QTest::addColumn<int>("row"); // 0 and 1 picture, 2 and 3 audio
    QTest::addColumn<bool>("hidden"); // hidden with its sound before the command
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("edits"); // empty: refused
    QTest::addColumn<QString>("state"); // locked, shown, muted after it

    QTest::newRow("lock") << 0 << false << "lock"
                          << "scene:7012 model:setLocked"
                          << "locked shown heard";
    QTest::newRow("mute a picture row") << 1 << false << "mute"
                                        << "scene:7012 model:setTrackMuted"
                                        << "open shown muted";
    QTest::newRow("mute a hidden picture row: refused") << 1 << true << "mute"
                                                        << ""
                                                        << "open hidden muted";
    QTest::newRow("unmute a hidden picture row: refused") << 1 << true << "unmute"
                                                          << ""
                                                          << "open hidden muted";
    QTest::newRow("mute a hidden audio row") << 2 << true << "mute"
                                             << "scene:7012 model:setTrackMuted"
                                             << "open hidden muted";
    QTest::newRow("hide a picture row: its sound with it") << 0 << false << "hide"
                                                           << "scene:7012 model:setVisible"
                                                           << "open hidden muted";
    QTest::newRow("show it again") << 0 << true << "show"
                                   << "scene:7012 model:setVisible"
                                   << "open shown heard";
    QTest::newRow("hide an audio row") << 3 << false << "hide"
                                       << "scene:7012 model:setVisible"
                                       << "open hidden muted";
}

void tst_MvTimelinePresenterTracks::trackCommands()
{
    QFETCH(int, row);
    QFETCH(bool, hidden);
    QFETCH(QString, command);
    QFETCH(QString, edits);
    QFETCH(QString, state);

    Fixture f;
    IMvTrack* track = f.timeline.trackAt(row);
    if (hidden)
        track->setVisible(false, true);
    const QString before = f.snapshot();
    f.journal.clear();

    if (command == QLatin1String("lock"))
        f.presenter->setLock(track, true);
    else if (command.endsWith(QLatin1String("mute")))
        f.presenter->setMute(track, command == QLatin1String("mute"));
    else
        f.presenter->setVisible(track, command == QLatin1String("show"));

    QCOMPARE(::edits(f), edits);
    QCOMPARE(QStringLiteral("%1 %2 %3")
                 .arg(track->isLocked() ? QLatin1String("locked") : QLatin1String("open"),
                     track->isVisible() ? QLatin1String("shown") : QLatin1String("hidden"),
                     track->isMuted() ? QLatin1String("muted") : QLatin1String("heard")),
        state);
    const QString refusal = QStringLiteral("track is unVisible can't change mute state");
    QCOMPARE(
        mvCheckRecord(f.log, refusal, 4, QStringLiteral("MvTimelinePresenter::setMute")).isEmpty(), edits.isEmpty());
    QCOMPARE(f.undoOneStep(before).isEmpty(), edits.isEmpty());
}

void tst_MvTimelinePresenterTracks::eyeAndMuteButtons_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("muted");
    QTest::addColumn<bool>("muteEnable");
    QTest::addColumn<bool>("trackVisible");

    QTest::newRow("picture row") << 0 << true << false << true << true;
    QTest::newRow("muted picture row: its eye is open") << 0 << true << true << true << true;
    QTest::newRow("hidden picture row") << 0 << false << false << false << false;
    QTest::newRow("audio row") << 2 << true << false << true << true;
    QTest::newRow("muted audio row: the eye shows the sound") << 2 << true << true << true << false;
    QTest::newRow("hidden audio row: still heard") << 2 << false << false << true << true;
}

void tst_MvTimelinePresenterTracks::eyeAndMuteButtons()
{
    QFETCH(int, row);
    QFETCH(bool, visible);
    QFETCH(bool, muted);
    QFETCH(bool, muteEnable);
    QFETCH(bool, trackVisible);

    Fixture f;
    IMvTrack* track = f.timeline.trackAt(row);
    track->setMuted(muted);
    track->setVisible(visible, false);

    QCOMPARE(f.presenter->muteEnable(track), muteEnable);
    QCOMPARE(f.presenter->trackVisible(track), trackVisible);
    QVERIFY(f.log.records().isEmpty());
}

void tst_MvTimelinePresenterTracks::batchMute_data()
{
    QTest::addColumn<QString>("selected"); // v video, w video with sound, a audio, m muted music, t transition
    QTest::addColumn<bool>("mute");
    QTest::addColumn<QString>("muted"); // the selected clips that are muted afterwards
    QTest::addColumn<bool>("step");

    QTest::newRow("the clips with sound") << "v w a t" << true << "w a" << true;
    QTest::newRow("unmute") << "m a" << false << "" << true;
    QTest::newRow("nothing with sound") << "v t" << true << "" << false;
    QTest::newRow("nothing selected") << "" << true << "" << false;
}

void tst_MvTimelinePresenterTracks::batchMute()
{
    QFETCH(QString, selected);
    QFETCH(bool, mute);
    QFETCH(QString, muted);
    QFETCH(bool, step);

    Fixture f;
    QHash<QString, IMvAbstractClip*> items;
    MvMemoryClip* video = f.clip(0, 0, 99);
    items.insert(QStringLiteral("v"), video);
    items.insert(QStringLiteral("w"), f.clip(1, 0, 99, ClipType_VideoWithAudio));
    items.insert(QStringLiteral("a"), f.clip(2, 0, 99, ClipType_Audio));
    MvMemoryClip* music = f.clip(3, 0, 99, ClipType_Music);
    music->setMuted(1);
    items.insert(QStringLiteral("m"), music);
    items.insert(QStringLiteral("t"), f.timeline.addTransition(video, IMvTransition::AtStart, 5, QString()));
    QList<IMvAbstractClip*> selection;
    for (const QString& name : selected.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        selection.append(items.value(name));
    f.timeline.selection()->selectItems(selection);
    const QString before = f.snapshot();
    f.journal.clear();

    f.presenter->setMute(mute);

    QStringList nowMuted;
    for (const QString& name : selected.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const auto* clip = dynamic_cast<IMvClip*>(items.value(name));
        if (clip && clip->isMuted())
            nowMuted.append(name);
    }
    QCOMPARE(nowMuted.join(QLatin1Char(' ')), muted);
    // No pause: the player goes on while sound is switched.
    QVERIFY(!f.journalText().contains(QLatin1String("scene:")));
    if (step)
        QCOMPARE(f.timeline.undoRedoService()->undoSource(), QStringLiteral("MvTimelinePresenter::setMute"));
    QCOMPARE(f.undoOneStep(before), step ? QStringLiteral("batch set mute") : QString());
    QCOMPARE(globalEventBus()->batchDepth(), 0);
}

void tst_MvTimelinePresenterTracks::batchMuteRepaintsOnce()
{
    // Without an undo service every clip edit is a step of its own, and the views would repaint
    // for each; the presenter's batch makes it one repaint.
    NoUndoTimeline timeline;
    timeline.addTrack(TrackType_Audio);
    QList<IMvClip*> clips;
    for (int i = 0; i < 3; ++i)
        clips.append(timeline.addClip(0, ClipType_Audio, i * 100, i * 100 + 49, QStringLiteral("sound")));
    timeline.selection()->select(clips);
    MvTimelinePresenter presenter(nullptr, &timeline);
    int repaints = 0;
    timeline.addChangeListener([&repaints] { ++repaints; });

    presenter.setMute(true);

    QCOMPARE(repaints, 1);
    QCOMPARE(timeline.undoService()->undoCount(), 3);
    // Inside a batch of the host's own, the presenter's batch delivers nothing itself.
    globalEventBus()->beginBatch(nullptr);
    presenter.setMute(false);
    QCOMPARE(repaints, 1);
    globalEventBus()->endBatch();
    QCOMPARE(repaints, 2);
}

void tst_MvTimelinePresenterTracks::muteOfTheSelection_data()
{
    QTest::addColumn<QString>("selected"); // v video, a audio, A muted audio, W muted video with sound
    QTest::addColumn<bool>("mute");

    QTest::newRow("only clips without sound") << "v" << true;
    QTest::newRow("nothing selected") << "" << true;
    QTest::newRow("every clip with sound muted") << "A W v" << true;
    QTest::newRow("one not muted") << "A a W" << false;
}

void tst_MvTimelinePresenterTracks::muteOfTheSelection()
{
    QFETCH(QString, selected);
    QFETCH(bool, mute);

    Fixture f;
    QHash<QChar, IMvClip*> clips;
    clips.insert(QLatin1Char('v'), f.clip(0, 0, 9));
    clips.insert(QLatin1Char('W'), f.clip(1, 0, 9, ClipType_VideoWithAudio));
    clips.insert(QLatin1Char('a'), f.clip(2, 0, 9, ClipType_Audio));
    clips.insert(QLatin1Char('A'), f.clip(3, 0, 9, ClipType_Audio));
    clips.value(QLatin1Char('W'))->setMuted(1);
    clips.value(QLatin1Char('A'))->setMuted(1);
    QList<IMvClip*> selection;
    for (const QString& name : selected.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        selection.append(clips.value(name.at(0)));
    f.select(selection);

    QCOMPARE(f.presenter->mute(), mute);
}

void tst_MvTimelinePresenterTracks::canClearEmptyTracks_data()
{
    QTest::addColumn<QString>("rows"); // per row: type, then c (a clip) or e (empty)
    QTest::addColumn<bool>("clearFixed");
    QTest::addColumn<bool>("can");

    QTest::newRow("one empty picture row, one fixed") << "Pe Ac" << false << false;
    QTest::newRow("one empty picture row, none fixed") << "Pe Ac" << true << true;
    QTest::newRow("an empty picture row beyond the fixed one") << "Pc Pe Ac" << false << true;
    QTest::newRow("an empty audio row beyond the fixed one") << "Pc Ac Ae" << false << true;
    QTest::newRow("one empty audio row, one fixed") << "Pc Ae" << false << false;
    QTest::newRow("no empty row") << "Pc Pc Ac Ac" << false << false;
}

void tst_MvTimelinePresenterTracks::canClearEmptyTracks()
{
    QFETCH(QString, rows);
    QFETCH(bool, clearFixed);
    QFETCH(bool, can);

    RowWatchingTimeline timeline;
    mvBuildRows(timeline, rows);
    MvTimelinePresenter presenter(nullptr, &timeline);
    if (clearFixed)
        presenter.config()->clearFixedTrack();

    QCOMPARE(presenter.canClearEmptyTracks(), can);
}

void tst_MvTimelinePresenterTracks::clearEmptyTracks()
{
    Fixture f;
    f.clip(0, 0, 9);
    f.clip(2, 0, 9, ClipType_Audio);
    QVERIFY(f.presenter->canClearEmptyTracks());
    const QString before = f.snapshot();
    f.journal.clear();

    f.presenter->clearEmptyTracks();

    QCOMPARE(edits(f), QStringLiteral("scene:7012 model:clearEmptyTracks"));
    QCOMPARE(f.timeline.trackCount(), 2);
    QVERIFY(!f.presenter->canClearEmptyTracks());
    QCOMPARE(f.undoOneStep(before), QStringLiteral("clear empty tracks"));
}

void tst_MvTimelinePresenterTracks::detachRow_data()
{
    QTest::addColumn<QString>("sound"); // row@start..end of sound already on the audio rows 2 and 3
    QTest::addColumn<int>("lockedRow");
    QTest::addColumn<int>("row");

    // The clip stands at 100..199.
    QTest::newRow("two free rows: the lower") << "" << -1 << 3;
    QTest::newRow("the lower one taken") << "3@150..160" << -1 << 2;
    QTest::newRow("the lower one locked") << "" << 3 << 2;
    QTest::newRow("touching its start and end is free") << "3@0..99,3@200..300" << -1 << 3;
    QTest::newRow("on its last frame is taken") << "3@199..300" << -1 << 2;
    QTest::newRow("every row taken or locked") << "3@0..1000" << 2 << -1;
}

void tst_MvTimelinePresenterTracks::detachRow()
{
    QFETCH(QString, sound);
    QFETCH(int, lockedRow);
    QFETCH(int, row);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199, ClipType_VideoWithAudio);
    for (const QString& item : sound.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString span = item.section(QLatin1Char('@'), 1);
        f.clip(item.section(QLatin1Char('@'), 0, 0).toInt(), span.section(QLatin1String(".."), 0, 0).toLongLong(),
            span.section(QLatin1String(".."), 1).toLongLong(), ClipType_Audio);
    }
    if (lockedRow >= 0)
        f.timeline.trackAt(lockedRow)->setLocked(true);

    QCOMPARE(f.presenter->calcDetachAudioTrackIndex(clip), row);
    QCOMPARE(f.presenter->calcDetachAudioTrackIndex(nullptr), -1);
}

// The rows asked are the audio rows the model reports, from the last one upward; picture rows are
// never looked at.
void tst_MvTimelinePresenterTracks::detachRowSearchFollowsTheModelsAudioRows()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199, ClipType_VideoWithAudio);
    MvMemoryClip* lower = f.clip(3, 0, 999, ClipType_Audio);
    f.clip(2, 0, 999, ClipType_Audio);
    f.timeline.watchRows = true;
    f.journal.clear();
    const auto rowsLookedAt = [&f] {
        const QString rows = f.journal.entries().filter(QStringLiteral("row ")).join(QLatin1Char(' '));
        f.journal.clear();
        return rows;
    };

    QCOMPARE(f.presenter->calcDetachAudioTrackIndex(clip), -1);
    QCOMPARE(rowsLookedAt(), QStringLiteral("row 3 row 3 row 2 row 2"));

    f.timeline.deleteClips({ lower });
    f.journal.clear();
    QCOMPARE(f.presenter->calcDetachAudioTrackIndex(clip), 3);
    // A model that reports row 2 as its only audio row: row 3 is not asked, free as it is.
    f.timeline.forceAudioRows = true;
    f.timeline.forcedAudioRows = MvRange<int>(2, 2);
    rowsLookedAt();
    QCOMPARE(f.presenter->calcDetachAudioTrackIndex(clip), -1);
    QCOMPARE(rowsLookedAt(), QStringLiteral("row 2 row 2"));
    // No audio rows at all.
    f.timeline.forcedAudioRows = MvRange<int>(0, -1);
    QCOMPARE(f.presenter->calcDetachAudioTrackIndex(clip), -1);
    QCOMPARE(rowsLookedAt(), QString());
}

void tst_MvTimelinePresenterTracks::trackCommandsWalkBackAndForth()
{
    Fixture f;
    f.select({ f.clip(2, 0, 99, ClipType_Audio), f.clip(0, 0, 99, ClipType_VideoWithAudio) });
    f.keepState();
    f.presenter->setLock(f.timeline.trackAt(3), true);
    f.keepState();
    f.presenter->setVisible(f.timeline.trackAt(0), false);
    f.keepState();
    f.presenter->setMute(f.timeline.trackAt(0), true); // refused: hidden
    f.keepState();
    f.presenter->setMute(true);
    f.keepState();
    f.presenter->setLock(f.timeline.trackAt(3), false);
    f.keepState();
    f.presenter->clearEmptyTracks();
    f.keepState();

    QCOMPARE(f.timeline.trackCount(), 2);
    QCOMPARE(f.walkUndo(), QStringLiteral("lock track, hide track, batch set mute, unlock track, clear empty tracks"));
}

QTEST_MAIN(tst_MvTimelinePresenterTracks)
#include "tst_MvTimelinePresenterTracks.moc"
