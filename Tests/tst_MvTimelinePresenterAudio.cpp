#include "IMvTrack.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvEditFixture.h"
#include "MvRecordingTimeline.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Notes the rows the presenter asks for and the detaches it asks of the model.
class DetachTimeline : public MvRecordingTimeline
{
public:
    using MvRecordingTimeline::addTrack;
    using MvRecordingTimeline::MvRecordingTimeline;

    void addTrack(int type, int index) override
    {
        note(QStringLiteral("addTrack %1 %2").arg(type).arg(index));
        MvRecordingTimeline::addTrack(type, index);
    }
    void detachAudio(IMvClip* clip, int trackIndex) override
    {
        note(QStringLiteral("detachAudio %1 %2").arg(clipNames({ clip })).arg(trackIndex));
        MvRecordingTimeline::detachAudio(clip, trackIndex);
    }
};

// A host whose own row choice can be forced.
class RowChoosingPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    int forcedRow = 0; // 0: the library's search

protected:
    int calcDetachAudioTrackIndex(IMvClip* clip) override
    {
        return forcedRow != 0 ? forcedRow : MvTimelinePresenter::calcDetachAudioTrackIndex(clip);
    }
};

using Fixture = MvEditFixture<DetachTimeline, RowChoosingPresenter>;

QString calls(const Fixture& f)
{
    QStringList lines;
    for (const QString& entry : f.journal.entries()) {
        if (entry.startsWith(QLatin1String("scene:")) || entry.startsWith(QLatin1String("addTrack"))
            || entry.startsWith(QLatin1String("detachAudio")) || entry.startsWith(QLatin1String("model:removeRemix")))
            lines.append(entry);
    }
    return lines.join(QLatin1String(", "));
}

// "row@start" of the audio clips, top row first.
QString soundPlaces(const MvMemoryTimeline& timeline)
{
    QStringList places;
    for (const MvMemoryClip* clip : timeline.liveClips()) {
        if (isAudioClipType(clip->type()))
            places.append(QStringLiteral("%1@%2").arg(clip->trackIndex()).arg(clip->start()));
    }
    return places.join(QLatin1Char(' '));
}
}

class tst_MvTimelinePresenterAudio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void detachNeedsAPictureClipWithSound_data();
    void detachNeedsAPictureClipWithSound();
    void detachGoesRowByRowAndSearchesAgain();
    void noFreeRowAsksForOne();
    void theHostsRowChoiceIsPassedOn();
    void detachWalksBackAndForth();
    void clearRemix_data();
    void clearRemix();
};

void tst_MvTimelinePresenterAudio::detachNeedsAPictureClipWithSound_data()
{
    QTest::addColumn<QString>("selected"); // v video, w video with sound, a audio, x text, t transition
    QTest::addColumn<bool>("enabled");

    QTest::newRow("a picture clip with sound") << "w" << true;
    QTest::newRow("among others") << "v t w" << true;
    QTest::newRow("transitions, sound and texts") << "t a x" << false;
    QTest::newRow("a picture clip without sound") << "v" << false;
    QTest::newRow("nothing") << "" << false;
}

void tst_MvTimelinePresenterAudio::detachNeedsAPictureClipWithSound()
{
    QFETCH(QString, selected);
    QFETCH(bool, enabled);

    Fixture f;
    QHash<QString, IMvAbstractClip*> items;
    MvMemoryClip* video = f.clip(0, 0, 99);
    items.insert(QStringLiteral("v"), video);
    items.insert(QStringLiteral("w"), f.clip(1, 0, 99, ClipType_VideoWithAudio));
    items.insert(QStringLiteral("a"), f.clip(2, 0, 99, ClipType_Audio));
    items.insert(QStringLiteral("x"), f.clip(0, 200, 299, ClipType_Text));
    items.insert(QStringLiteral("t"), f.timeline.addTransition(video, IMvTransition::AtEnd, 10, QString()));
    QList<IMvAbstractClip*> selection;
    for (const QString& name : selected.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        selection.append(items.value(name));
    f.timeline.selection()->selectItems(selection);
    const QString before = f.snapshot();
    f.journal.clear();

    QCOMPARE(f.presenter->detachSelectedAudioEnabled(), enabled);
    f.presenter->detachSelectedAudio();

    QCOMPARE(calls(f).isEmpty(), !enabled);
    QCOMPARE(f.undoOneStep(before), enabled ? QStringLiteral("batch detach audio") : QString());
}

void tst_MvTimelinePresenterAudio::detachGoesRowByRowAndSearchesAgain()
{
    Fixture f;
    MvMemoryClip* below = f.clip(1, 100, 199, ClipType_VideoWithAudio);
    MvMemoryClip* above = f.clip(0, 150, 249, ClipType_VideoWithAudio);
    f.select({ below, above });
    f.journal.clear();

    f.presenter->detachSelectedAudio();

    // Row 0 first, whatever the selection order; the second clip overlaps the first's sound.
    QCOMPARE(calls(f), QStringLiteral("scene:7012, detachAudio c1 3, detachAudio c0 2"));
    QCOMPARE(soundPlaces(f.timeline), QStringLiteral("2@100 3@150"));
    QCOMPARE(f.timeline.undoRedoService()->undoSource(), QStringLiteral("MvTimelinePresenter::detachSelectedAudio"));
    QCOMPARE(f.timeline.undoRedoService()->undoCount(), 1);
}

void tst_MvTimelinePresenterAudio::noFreeRowAsksForOne()
{
    Fixture f;
    f.clip(2, 0, 999, ClipType_Audio);
    f.clip(3, 0, 999, ClipType_Music);
    MvMemoryClip* first = f.clip(0, 100, 199, ClipType_VideoWithAudio);
    MvMemoryClip* second = f.clip(1, 100, 199, ClipType_VideoWithAudio);
    f.select({ first, second });
    f.journal.clear();

    f.presenter->detachSelectedAudio();

    QCOMPARE(calls(f), QStringLiteral("scene:7012, addTrack 1 -1, detachAudio c2 0, addTrack 1 -1, detachAudio c3 0"));
    // The model puts each sound on the new row at the bottom.
    QCOMPARE(soundPlaces(f.timeline), QStringLiteral("2@0 3@0 4@100 5@100"));
    QCOMPARE(f.timeline.undoRedoService()->undoCount(), 1);
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvTimelinePresenterAudio::theHostsRowChoiceIsPassedOn()
{
    Fixture f;
    f.select({ f.clip(0, 0, 99, ClipType_VideoWithAudio) });
    f.presenter->forcedRow = -3;
    f.journal.clear();

    f.presenter->detachSelectedAudio();

    QCOMPARE(calls(f), QStringLiteral("scene:7012, addTrack 1 -3, detachAudio c0 0"));
    // The new row stands three back from the end of the audio rows, above the two there were; the
    // sound takes the lowest free audio row.
    QCOMPARE(f.timeline.trackCount(TrackType_Audio), 3);
    QCOMPARE(f.timeline.trackAt(2)->clips().size(), 0);
    QCOMPARE(soundPlaces(f.timeline), QStringLiteral("4@0"));
}

void tst_MvTimelinePresenterAudio::detachWalksBackAndForth()
{
    Fixture f;
    MvMemoryClip* first = f.clip(0, 0, 99, ClipType_VideoWithAudio);
    MvMemoryClip* second = f.clip(1, 50, 149, ClipType_VideoWithAudio);
    f.keepState();
    f.select({ first });
    f.presenter->detachSelectedAudio();
    f.keepState();
    f.select({ second, first });
    f.presenter->detachSelectedAudio(); // only the second still has its sound
    f.keepState();

    QVERIFY(!f.presenter->detachSelectedAudioEnabled());
    QCOMPARE(soundPlaces(f.timeline), QStringLiteral("2@50 3@0"));
    QCOMPARE(f.walkUndo(), QStringLiteral("batch detach audio, batch detach audio"));
}

void tst_MvTimelinePresenterAudio::clearRemix_data()
{
    QTest::addColumn<QString>(
        "current"); // the selection's current item: "" none, r remixed music, m music, t transition
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QString>("step");

    QTest::newRow("nothing selected") << ""
                                      << "" << QString();
    QTest::newRow("remixed music") << "r"
                                   << "model:removeRemix" << QStringLiteral("clear remix");
    QTest::newRow("music without remix: asked all the same") << "m"
                                                             << "model:removeRemix" << QString();
    QTest::newRow("a transition: nothing to ask") << "t"
                                                  << "" << QString();
}

void tst_MvTimelinePresenterAudio::clearRemix()
{
    QFETCH(QString, current);
    QFETCH(QString, calls);
    QFETCH(QString, step);

    Fixture f;
    MvMemoryClip* remixed = f.clip(2, 0, 99, ClipType_Music);
    remixed->setRemixed(true);
    MvMemoryClip* music = f.clip(3, 0, 99, ClipType_Music);
    IMvAbstractClip* transition = f.timeline.addTransition(f.clip(0, 0, 99), IMvTransition::AtStart, 5, QString());
    const QHash<QString, IMvAbstractClip*> items { { QStringLiteral("r"), remixed }, { QStringLiteral("m"), music },
        { QStringLiteral("t"), transition } };
    if (!current.isEmpty())
        f.timeline.selection()->selectItems({ items.value(current), remixed });
    const QString before = f.snapshot();
    f.journal.clear();

    f.presenter->clearRemix();

    // No pause and no step of the presenter's own.
    QCOMPARE(::calls(f), calls);
    QCOMPARE(f.undoOneStep(before), step);
}

QTEST_MAIN(tst_MvTimelinePresenterAudio)
#include "tst_MvTimelinePresenterAudio.moc"
