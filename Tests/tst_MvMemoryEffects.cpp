#include "IMvEffect.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryEffects.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvClipEffectHelper.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
// Rows 0 and 1 show pictures, 2 and 3 play sound.
struct Project
{
    MvMemoryTimeline timeline;
    MvMemoryEffectMediaItem blur { QStringLiteral("Blur"), false, 5000 };
    MvMemoryEffectMediaItem sepia { QStringLiteral("Sepia"), false, 5000 };
    MvMemoryEffectMediaItem echo { QStringLiteral("Echo"), true, 5000 };
    MvMemoryEffectMediaItem hum { QStringLiteral("Hum"), true, 5000 };

    Project()
    {
        for (MvTrackType type : { TrackType_Picture, TrackType_Picture, TrackType_Audio, TrackType_Audio })
            timeline.addTrack(type);
    }
    MvMemoryClip* add(MvClipType type, qint64 start, const QString& name)
    {
        return timeline.addClip(isAudioClipType(type) ? 2 : 0, type, start, start + 49, name);
    }
    // Puts an effect of the item on the clip as a user would: made, added, released.
    bool apply(MvMemoryClip* clip, MvMemoryEffectMediaItem& item, bool throughVideoEffects = false)
    {
        IMvEffect* effect = item.createEffect();
        IMvEffectContainer* container = clip->effects();
        if (container && throughVideoEffects)
            container = container->videoEffects();
        const bool added = container && container->addEffect(effect);
        effect->release();
        return added;
    }
    MvMemoryEditService* edit() const { return timeline.editServiceImpl(); }
    QString effectsOf(const MvMemoryClip* clip) const
    {
        QStringList names;
        for (const MvMemoryEffectRef& effect : clip->state().effects.video)
            names.append(effect->name());
        return names.join(QLatin1Char(' ')) + QLatin1String(" | ")
            + (clip->state().effects.audio ? clip->state().effects.audio->name() : QString());
    }
};
}

class tst_MvMemoryEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void effectsGoWhereTheyFit_data();
    void effectsGoWhereTheyFit();
    void anAudioEffectReplacesTheClipsOwn();
    void helperAnswers_data();
    void helperAnswers();
    void overrideQuestion_data();
    void overrideQuestion();
    void pasteAddsVideoAndReplacesSound();
    void pasteAndRemoveWithoutEffects();
    void effectsAndUserDataTravelWithTheClip();
    void userDataIsAnUndoableValue();
    void effectsOutliveTheirMaker();
};

void tst_MvMemoryEffects::effectsGoWhereTheyFit_data()
{
    QTest::addColumn<int>("clipType");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<bool>("throughVideoEffects");
    QTest::addColumn<bool>("added");
    QTest::newRow("video on a video") << int(ClipType_Video) << false << false << true;
    QTest::newRow("video on a video, through its video effects") << int(ClipType_Video) << false << true << true;
    QTest::newRow("video on a still") << int(ClipType_Image) << false << false << true;
    QTest::newRow("video on an adjustment clip") << int(ClipType_Adjustment) << false << false << true;
    QTest::newRow("video on a filter: it is an effect itself") << int(ClipType_Filter) << false << false << false;
    QTest::newRow("video on sound") << int(ClipType_Music) << false << false << false;
    QTest::newRow("sound on sound") << int(ClipType_Audio) << true << false << true;
    QTest::newRow("sound on a silent video") << int(ClipType_Video) << true << false << false;
    QTest::newRow("sound on a video with sound") << int(ClipType_VideoWithAudio) << true << false << true;
    QTest::newRow("sound through the video effects") << int(ClipType_VideoWithAudio) << true << true << false;
}

void tst_MvMemoryEffects::effectsGoWhereTheyFit()
{
    QFETCH(int, clipType);
    QFETCH(bool, audio);
    QFETCH(bool, throughVideoEffects);
    QFETCH(bool, added);
    Project p;
    MvMemoryClip* clip = p.add(clipType, 0, QStringLiteral("c"));
    const QString before = p.timeline.stateText();
    QCOMPARE(p.apply(clip, audio ? p.echo : p.blur, throughVideoEffects), added);
    QCOMPARE(p.effectsOf(clip),
        !added      ? QStringLiteral(" | ")
            : audio ? QStringLiteral(" | Echo")
                    : QStringLiteral("Blur | "));
    QCOMPARE(p.timeline.checkInvariants(), QString());
    if (added) {
        QCOMPARE(p.timeline.undoRedoService()->undoName(), QStringLiteral("add effect"));
        QVERIFY(p.timeline.stateText().contains(QLatin1String("effects: ")));
        QVERIFY(p.timeline.undoRedoService()->undo());
    }
    QCOMPARE(p.timeline.stateText(), before);
}

void tst_MvMemoryEffects::anAudioEffectReplacesTheClipsOwn()
{
    Project p;
    MvMemoryClip* clip = p.add(ClipType_VideoWithAudio, 0, QStringLiteral("c"));
    QVERIFY(!clip->effects()->hasAudioEffect());
    QVERIFY(p.apply(clip, p.hum));
    QVERIFY(p.apply(clip, p.blur));
    QVERIFY(p.apply(clip, p.sepia, true));
    QVERIFY(p.apply(clip, p.echo));
    QCOMPARE(p.effectsOf(clip), QStringLiteral("Blur Sepia | Echo"));
    QVERIFY(clip->effects()->hasAudioEffect());
    QVERIFY(!clip->effects()->videoEffects()->hasAudioEffect());
    QCOMPARE(clip->effects()->count(), 3);
    QCOMPARE(clip->effects()->videoEffects()->count(), 2);
    QVERIFY(!clip->effects()->addEffect(nullptr));
    clip->track()->setLocked(true);
    QVERIFY(!p.apply(clip, p.blur));
    // Sound has no video effects of its own; a filter takes no effect at all.
    QCOMPARE(p.add(ClipType_Music, 0, QStringLiteral("m"))->effects()->videoEffects(), nullptr);
    QCOMPARE(p.add(ClipType_Filter, 100, QStringLiteral("f"))->effects(), nullptr);
}

void tst_MvMemoryEffects::helperAnswers_data()
{
    QTest::addColumn<int>("clipType");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<bool>("video");
    QTest::newRow("a silent video") << int(ClipType_Video) << false << false << true;
    QTest::newRow("a video with sound") << int(ClipType_VideoWithAudio) << false << true << true;
    QTest::newRow("a screen recording") << int(ClipType_ScreenRecording) << false << true << true;
    QTest::newRow("music") << int(ClipType_Music) << false << true << false;
    QTest::newRow("a text") << int(ClipType_Text) << false << false << true;
    QTest::newRow("an effect clip") << int(ClipType_Effect) << false << false << false;
    QTest::newRow("a locked row") << int(ClipType_VideoWithAudio) << true << false << false;
}

void tst_MvMemoryEffects::helperAnswers()
{
    QFETCH(int, clipType);
    QFETCH(bool, locked);
    QFETCH(bool, audio);
    QFETCH(bool, video);
    Project p;
    MvMemoryClip* clip = p.add(clipType, 0, QStringLiteral("c"));
    clip->track()->setLocked(locked);
    QCOMPARE(MvClipEffectHelper::canAddAudioEffect(clip), audio);
    QCOMPARE(MvClipEffectHelper::canAddVideoEffect(clip), video);
    QVERIFY(!MvClipEffectHelper::canAddAudioEffect(nullptr));
    QVERIFY(!MvClipEffectHelper::canAddVideoEffect(nullptr));
}

void tst_MvMemoryEffects::overrideQuestion_data()
{
    QTest::addColumn<QStringList>("copied"); // effects of the clip copied
    QTest::addColumn<QString>("target"); // "hum": a clip with an audio effect, "plain", "locked hum", "silent"
    QTest::addColumn<bool>("asked");
    QTest::newRow("sound over a clip's sound effect")
        << QStringList { QStringLiteral("echo") } << QStringLiteral("hum") << true;
    QTest::newRow("sound over a clip without one")
        << QStringList { QStringLiteral("echo") } << QStringLiteral("plain") << false;
    QTest::newRow("pictures only") << QStringList { QStringLiteral("blur") } << QStringLiteral("hum") << false;
    QTest::newRow("a locked clip keeps its own")
        << QStringList { QStringLiteral("echo") } << QStringLiteral("locked hum") << false;
    QTest::newRow("nothing copied") << QStringList() << QStringLiteral("hum") << false;
}

void tst_MvMemoryEffects::overrideQuestion()
{
    QFETCH(QStringList, copied);
    QFETCH(QString, target);
    QFETCH(bool, asked);
    Project p;
    MvMemoryClip* source = p.add(ClipType_VideoWithAudio, 0, QStringLiteral("source"));
    if (copied.contains(QLatin1String("echo")))
        QVERIFY(p.apply(source, p.echo));
    if (copied.contains(QLatin1String("blur")))
        QVERIFY(p.apply(source, p.blur));
    p.edit()->copyEffect(source);
    MvMemoryClip* clip = p.add(ClipType_Audio, 100, QStringLiteral("t"));
    if (target.contains(QLatin1String("hum")))
        QVERIFY(p.apply(clip, p.hum));
    if (target.startsWith(QLatin1String("locked")))
        clip->track()->setLocked(true);
    QCOMPARE(p.edit()->canPasteEffect(), !copied.isEmpty());
    QCOMPARE(p.edit()->needAudioEffectOverride({ clip }), asked);
    QVERIFY(!p.edit()->needAudioEffectOverride({}));
}

void tst_MvMemoryEffects::pasteAddsVideoAndReplacesSound()
{
    Project p;
    MvMemoryClip* source = p.add(ClipType_VideoWithAudio, 0, QStringLiteral("source"));
    MvMemoryClip* video = p.add(ClipType_Video, 100, QStringLiteral("video"));
    MvMemoryClip* sound = p.add(ClipType_Audio, 100, QStringLiteral("sound"));
    MvMemoryClip* locked = p.timeline.addClip(1, ClipType_Video, 0, 49, QStringLiteral("locked"));
    QVERIFY(p.apply(source, p.blur));
    QVERIFY(p.apply(source, p.echo));
    QVERIFY(p.apply(video, p.sepia));
    QVERIFY(p.apply(sound, p.hum));
    p.timeline.trackAt(1)->setLocked(true);
    p.edit()->copyEffect(source);
    p.edit()->copyEffect(nullptr); // nothing to copy: the clipboard keeps what it has
    const QString before = p.timeline.stateText();
    const int steps = p.timeline.undoRedoService()->undoCount();

    QVERIFY(p.edit()->pasteEffect({ video, sound, locked, nullptr }));
    QCOMPARE(p.effectsOf(video), QStringLiteral("Sepia Blur | "));
    QCOMPARE(p.effectsOf(sound), QStringLiteral(" | Echo"));
    QCOMPARE(p.effectsOf(locked), QStringLiteral(" | "));
    QCOMPARE(p.timeline.undoRedoService()->undoCount(), steps + 1);
    QCOMPARE(p.timeline.undoRedoService()->undoName(), QStringLiteral("paste effect"));
    QVERIFY(p.edit()->hasEffect(sound));
    QVERIFY(!p.edit()->hasEffect(locked));

    QVERIFY(p.edit()->removeEffects({ video, sound, locked }));
    QCOMPARE(p.effectsOf(video), QStringLiteral(" | "));
    QVERIFY(!p.edit()->hasEffect(sound));
    QCOMPARE(p.timeline.undoRedoService()->undoName(), QStringLiteral("remove effects"));
    QVERIFY(p.timeline.undoRedoService()->undo());
    QVERIFY(p.timeline.undoRedoService()->undo());
    QCOMPARE(p.timeline.stateText(), before);
    QCOMPARE(p.timeline.checkInvariants(), QString());
}

void tst_MvMemoryEffects::pasteAndRemoveWithoutEffects()
{
    Project p;
    MvMemoryClip* plain = p.add(ClipType_Video, 0, QStringLiteral("plain"));
    MvMemoryClip* other = p.add(ClipType_Video, 100, QStringLiteral("other"));
    const QString before = p.timeline.stateText();
    const int steps = p.timeline.undoRedoService()->undoCount();
    QVERIFY(!p.edit()->canPasteEffect());
    QVERIFY(!p.edit()->pasteEffect({ plain })); // nothing copied
    p.edit()->copyEffect(other); // a clip without effects empties the clipboard
    QVERIFY(!p.edit()->canPasteEffect());
    QVERIFY(!p.edit()->removeEffects({ plain, other }));
    QVERIFY(!p.edit()->removeEffects({}));
    QVERIFY(!p.edit()->hasEffect(nullptr));
    QCOMPARE(p.timeline.stateText(), before);
    QCOMPARE(p.timeline.undoRedoService()->undoCount(), steps);
}

void tst_MvMemoryEffects::effectsAndUserDataTravelWithTheClip()
{
    Project p;
    MvMemoryClip* clip = p.add(ClipType_VideoWithAudio, 0, QStringLiteral("c"));
    QVERIFY(p.apply(clip, p.blur));
    QVERIFY(p.apply(clip, p.echo));
    IMvClip::changeUserData(clip, UserDataKey_EffectData, QStringLiteral("blur=4"));
    const QString before = p.timeline.stateText();
    QVERIFY(before.contains(QLatin1String("user data: 13003=\"blur=4\"")));

    QList<IMvClip*> pieces;
    p.timeline.splitClips(pieces, { clip }, 20);
    QCOMPARE(pieces.size(), 1);
    auto* piece = static_cast<MvMemoryClip*>(pieces.first());
    QCOMPARE(p.effectsOf(piece), QStringLiteral("Blur | Echo"));
    QCOMPARE(piece->userData(UserDataKey_EffectData), QStringLiteral("blur=4"));
    QCOMPARE(piece->state().effects, clip->state().effects);
    QVERIFY(p.timeline.undoRedoService()->undo());
    QCOMPARE(p.timeline.stateText(), before);
    QVERIFY(p.timeline.undoRedoService()->redo());
    QCOMPARE(p.timeline.checkInvariants(), QString());

    // Through the clipboard, a copy keeps them too; undoing the paste takes them away with it.
    const QString beforePaste = p.timeline.stateText();
    IMvClipEditService* edit = p.timeline.editService();
    edit->copy({ piece });
    QList<IMvClip*> pasted;
    edit->paste(500, -1, pasted, 0, 3);
    QCOMPARE(pasted.size(), 1);
    auto* copy = static_cast<MvMemoryClip*>(pasted.first());
    QCOMPARE(p.effectsOf(copy), QStringLiteral("Blur | Echo"));
    QCOMPARE(copy->userData(UserDataKey_EffectData), QStringLiteral("blur=4"));
    QCOMPARE(p.timeline.checkInvariants(), QString());
    QVERIFY(p.timeline.undoRedoService()->undo());
    QCOMPARE(p.timeline.stateText(), beforePaste);
}

void tst_MvMemoryEffects::userDataIsAnUndoableValue()
{
    Project p;
    MvMemoryClip* clip = p.add(ClipType_Video, 0, QStringLiteral("c"));
    QCOMPARE(clip->userData(UserDataKey_EffectData), QString());
    clip->setUserData(UserDataKey_EffectData, QStringLiteral("a"));
    clip->setUserData(UserDataKey_EffectData, QStringLiteral("a")); // the same: no step
    clip->setUserData(7, QStringLiteral("b"));
    clip->setUserData(UserDataKey_EffectData, QString()); // empty is none
    QVERIFY(!p.timeline.stateText().contains(QLatin1String("13003")));
    QCOMPARE(p.timeline.undoService()->undoNames(),
        QStringList({ QStringLiteral("change user data"), QStringLiteral("change user data"),
            QStringLiteral("change user data") }));
    QVERIFY(p.timeline.undoRedoService()->undo());
    QCOMPARE(clip->userData(UserDataKey_EffectData), QStringLiteral("a"));
    clip->track()->setLocked(true);
    clip->setUserData(7, QStringLiteral("c"));
    QCOMPARE(clip->userData(7), QStringLiteral("b"));
    IMvClip::changeUserData(nullptr, 7, QStringLiteral("d"));
}

void tst_MvMemoryEffects::effectsOutliveTheirMaker()
{
    Project p;
    MvMemoryClip* clip = p.add(ClipType_Video, 0, QStringLiteral("c"));
    IMvEffect* effect = p.blur.createEffect();
    QVERIFY(clip->effects()->addEffect(effect));
    effect->release(); // the clip holds it now
    QCOMPARE(p.blur.createdCount(), 1);
    QVERIFY(p.timeline.undoRedoService()->undo());
    QVERIFY(p.timeline.undoRedoService()->redo()); // the undo record held it meanwhile
    QCOMPARE(clip->state().effects.video.first()->name(), QStringLiteral("Blur"));
    QCOMPARE(clip->state().effects.video.first().get(), effect);
}

QTEST_GUILESS_MAIN(tst_MvMemoryEffects)
#include "tst_MvMemoryEffects.moc"
