#include "IMvEffect.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryEffects.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvEditFixture.h"
#include "MvModelMessages.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// The timeline's undo service as the presenter sees it, noting in the journal when events pause
// and resume and when steps open and close.
class NotingUndoService : public IMvUndoRedoService
{
public:
    NotingUndoService(IMvUndoRedoService* inner, MvCallJournal* journal)
        : m_inner(inner)
        , m_journal(journal)
    {
    }
    void beginStep(const QString& name, const QString& source) override
    {
        m_journal->record(QStringLiteral("undo:begin ") + name);
        m_inner->beginStep(name, source);
    }
    void endStep() override
    {
        m_journal->record(QStringLiteral("undo:end"));
        m_inner->endStep();
    }
    bool isStepOpen() const override { return m_inner->isStepOpen(); }
    bool canUndo() const override { return m_inner->canUndo(); }
    bool canRedo() const override { return m_inner->canRedo(); }
    bool undo() override { return m_inner->undo(); }
    bool redo() override { return m_inner->redo(); }
    int undoCount() const override { return m_inner->undoCount(); }
    int redoCount() const override { return m_inner->redoCount(); }
    QString undoName() const override { return m_inner->undoName(); }
    QString redoName() const override { return m_inner->redoName(); }
    QString undoSource() const override { return m_inner->undoSource(); }
    void pauseEvents() override
    {
        m_journal->record(QStringLiteral("undo:pause"));
        m_inner->pauseEvents();
    }
    void resumeEvents() override
    {
        m_journal->record(QStringLiteral("undo:resume"));
        m_inner->resumeEvents();
    }

private:
    IMvUndoRedoService* m_inner;
    MvCallJournal* m_journal;
};

class NotingTimeline : public MvMemoryTimeline
{
public:
    using MvMemoryTimeline::MvMemoryTimeline;
    IMvUndoRedoService* undoRedoService() const override
    {
        if (!m_noting)
            m_noting.reset(new NotingUndoService(MvMemoryTimeline::undoRedoService(), journal()));
        return m_noting.data();
    }

private:
    mutable QScopedPointer<NotingUndoService> m_noting;
};

// Rows 0, 1 pictures; 2, 3 sound. source (row 0) carries Blur and Echo and the effect data
// "blur=4"; the other clips carry nothing.
using Fixture = MvEditFixture<NotingTimeline>;

struct Project
{
    Fixture f;
    MvMemoryEffectMediaItem blur { QStringLiteral("Blur"), false, 5000 };
    MvMemoryEffectMediaItem echo { QStringLiteral("Echo"), true, 5000 };
    MvMemoryEffectMediaItem hum { QStringLiteral("Hum"), true, 5000 };
    MvMemoryClip* source;
    MvMemoryClip* video;
    MvMemoryClip* s1;
    MvMemoryClip* s2;
    MvMemoryClip* s3;
    // Each add-media response: "value | items | context is the last clip's last effect".
    QStringList responses;
    // The clips each override question was about, and the answer the scene gives.
    QStringList questions;
    bool replace = false;

    Project()
    {
        source = f.timeline.addClip(0, ClipType_VideoWithAudio, 0, 99, QStringLiteral("source"));
        video = f.timeline.addClip(0, ClipType_Video, 100, 199, QStringLiteral("video"));
        s1 = f.timeline.addClip(2, ClipType_Audio, 0, 99, QStringLiteral("s1"));
        s2 = f.timeline.addClip(2, ClipType_Audio, 100, 199, QStringLiteral("s2"));
        s3 = f.timeline.addClip(2, ClipType_Audio, 200, 299, QStringLiteral("s3"));
        apply(source, blur);
        apply(source, echo);
        source->setUserData(UserDataKey_EffectData, QStringLiteral("blur=4"));
        f.timeline.undoService()->clear();
        f.scene.answer(MessageId::AudioEffectOverride, [this](MvMessage* message) {
            auto* question = static_cast<MvAudioEffectOverrideMessage*>(message);
            QStringList names;
            for (IMvClip* clip : question->clips())
                names.append(clip->name());
            questions.append(names.join(QLatin1Char(' ')));
            question->setAnswer(replace);
        });
        f.scene.answer(MessageId::AddMediaResponse, [this](MvMessage* message) {
            auto* response = static_cast<MvTimelineAddMediaResponseMessage*>(message);
            QStringList items;
            for (IMvAbstractMediaItem* item : response->mediaItems())
                items.append(item->name());
            QStringList owners;
            for (MvMemoryClip* clip : f.timeline.liveClips()) {
                const MvMemoryClipEffects& effects = clip->state().effects;
                if ((effects.audio && effects.audio.get() == response->context())
                    || (!effects.video.isEmpty() && effects.video.last().get() == response->context()))
                    owners.append(clip->name());
            }
            responses.append(QStringLiteral("%1 | %2 | %3")
                                 .arg(response->value())
                                 .arg(items.join(QLatin1Char(',')), owners.join(QLatin1Char(' '))));
        });
    }
    static void apply(MvMemoryClip* clip, MvMemoryEffectMediaItem& item)
    {
        IMvEffect* effect = item.createEffect();
        QVERIFY(clip->effects()->addEffect(effect));
        effect->release();
    }
    MvTimelinePresenter* presenter() { return f.presenter.get(); }
    static QString effectsOf(const MvMemoryClip* clip)
    {
        QStringList names;
        for (const MvMemoryEffectRef& effect : clip->state().effects.video)
            names.append(effect->name());
        return names.join(QLatin1Char(' ')) + QLatin1String(" | ")
            + (clip->state().effects.audio ? clip->state().effects.audio->name() : QString());
    }
    QString effectData(const MvMemoryClip* clip) const { return clip->userData(UserDataKey_EffectData); }
};
}

class tst_MvTimelinePresenterEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void audioEffectAskedPerClipInOneStep_data();
    void audioEffectAskedPerClipInOneStep();
    void videoEffectsGoAmongTheClipsVideoEffects();
    void applyRefusals_data();
    void applyRefusals();
    void copyAndPasteCarryTheEffectData();
    void pasteWithoutACopyWritesEmptyData();
    void declinedOverrideStopsThePaste();
    void failedPasteIsStillAnnounced();
    void deleteClearsEffectsAndData();
    void deleteThatChangesNothing();
    void menuQuestions_data();
    void menuQuestions();
};

void tst_MvTimelinePresenterEffects::audioEffectAskedPerClipInOneStep_data()
{
    QTest::addColumn<bool>("replace");
    QTest::addColumn<QString>("s2Effects");
    QTest::addColumn<QString>("context"); // the clip whose effect the response names
    QTest::newRow("declined: two clips take it") << false << QStringLiteral(" | Hum") << QStringLiteral("s3");
    QTest::newRow("accepted: all three") << true << QStringLiteral(" | Echo") << QStringLiteral("s3");
}

void tst_MvTimelinePresenterEffects::audioEffectAskedPerClipInOneStep()
{
    QFETCH(bool, replace);
    QFETCH(QString, s2Effects);
    QFETCH(QString, context);
    Project p;
    Project::apply(p.s2, p.hum);
    p.f.timeline.undoService()->clear();
    p.replace = replace;
    p.f.keepState();

    p.presenter()->addEffectMedias({ p.s1, p.s2, p.s3 }, &p.echo);

    QCOMPARE(Project::effectsOf(p.s1), QStringLiteral(" | Echo"));
    QCOMPARE(Project::effectsOf(p.s2), s2Effects);
    QCOMPARE(Project::effectsOf(p.s3), QStringLiteral(" | Echo"));
    QCOMPARE(p.questions, QStringList { QStringLiteral("s2") });
    QCOMPARE(p.responses, QStringList { QStringLiteral("1 | Echo | ") + context });
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7036, 3030, 3019, 7005 }));
    QCOMPARE(p.f.timeline.undoService()->undoSource(), QStringLiteral("MvTimelinePresenter::addEffectMedias"));
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("add effect medias"));
}

void tst_MvTimelinePresenterEffects::videoEffectsGoAmongTheClipsVideoEffects()
{
    Project p;
    p.f.keepState();
    p.presenter()->addEffectMedia(p.video, &p.blur);
    p.f.keepState();
    p.presenter()->addEffectMedia(p.source, &p.blur);
    QCOMPARE(Project::effectsOf(p.video), QStringLiteral("Blur | "));
    QCOMPARE(Project::effectsOf(p.source), QStringLiteral("Blur Blur | Echo"));
    QCOMPARE(p.source->effects()->videoEffects()->count(), 2);
    QCOMPARE(p.responses, QStringList({ QStringLiteral("1 | Blur | video"), QStringLiteral("1 | Blur | source") }));
    QVERIFY(p.questions.isEmpty());
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("add effect medias, add effect medias"));
}

void tst_MvTimelinePresenterEffects::applyRefusals_data()
{
    QTest::addColumn<QString>("situation");
    QTest::newRow("no clip") << QStringLiteral("no clip");
    QTest::newRow("every clip refuses the kind") << QStringLiteral("refused");
    QTest::newRow("a locked row") << QStringLiteral("locked");
    QTest::newRow("not an effect") << QStringLiteral("not an effect");
    QTest::newRow("not downloaded") << QStringLiteral("remote");
    QTest::newRow("the only clip declines") << QStringLiteral("declined");
}

void tst_MvTimelinePresenterEffects::applyRefusals()
{
    QFETCH(QString, situation);
    Project p;
    MvMemoryMediaItem picture(QStringLiteral("Sunset"), MediaType_Video, 4000);
    MvMemoryEffectMediaItem remote(QStringLiteral("Remote blur"), false, 5000);
    remote.setRemote(true);
    QList<IMvClip*> clips { p.video };
    IMvAbstractMediaItem* item = &p.blur;
    if (situation == QLatin1String("no clip"))
        clips.clear();
    else if (situation == QLatin1String("refused"))
        clips = { p.s1, p.s2 };
    else if (situation == QLatin1String("locked"))
        p.f.timeline.trackAt(0)->setLocked(true);
    else if (situation == QLatin1String("not an effect"))
        item = &picture;
    else if (situation == QLatin1String("remote"))
        item = &remote;
    else if (situation == QLatin1String("declined"))
        clips = { p.source }, item = &p.hum;
    p.f.timeline.undoService()->clear();
    const QString before = p.f.snapshot();

    p.presenter()->addEffectMedias(clips, item);

    QCOMPARE(p.f.snapshot(), before);
    QVERIFY(p.responses.isEmpty());
    QCOMPARE(p.f.scene.count(MessageId::SwitchPlayerToTimeline), 0);
    QCOMPARE(
        p.questions, situation == QLatin1String("declined") ? QStringList { QStringLiteral("source") } : QStringList());
    // Silent but for what the preparation chain itself says of an item it cannot have.
    for (const MvLogRecord& record : p.f.log.records())
        QCOMPARE(record.function, QStringLiteral("MvTimelinePresenter::prepareAddMedias"));
}

void tst_MvTimelinePresenterEffects::copyAndPasteCarryTheEffectData()
{
    Project p;
    p.f.select({ p.source });
    p.presenter()->copyEffect();
    QCOMPARE(p.f.scene.ids(), QList<int> { 7012 });
    QVERIFY(p.presenter()->canPasteEffect());
    p.f.scene.clear();
    p.f.journal.clear();
    p.f.select({ p.video, p.s1 });
    p.f.keepState();

    p.presenter()->pasteEffect();

    QCOMPARE(Project::effectsOf(p.video), QStringLiteral("Blur | "));
    QCOMPARE(Project::effectsOf(p.s1), QStringLiteral(" | Echo"));
    QCOMPARE(p.effectData(p.video), QStringLiteral("blur=4"));
    QCOMPARE(p.effectData(p.s1), QStringLiteral("blur=4"));
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7012, 7009, 9031 }));
    // Paused before the step; the model's events wait for the whole paste, data included.
    QCOMPARE(p.f.journalText(),
        QStringLiteral("scene:7012 undo:begin pasteEffect undo:pause model:pasteEffect scene:7009 "
                       "model:setUserData model:setUserData scene:9031 undo:resume undo:end"));
    QCOMPARE(p.f.timeline.undoService()->undoSource(), QStringLiteral("MvTimelinePresenter::pasteEffect"));
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("pasteEffect"));
}

void tst_MvTimelinePresenterEffects::pasteWithoutACopyWritesEmptyData()
{
    Project p;
    p.video->setUserData(UserDataKey_EffectData, QStringLiteral("old"));
    p.f.timeline.undoService()->clear();
    p.f.timeline.editService()->copyEffect(p.source); // the model's clipboard, not the presenter's copy
    p.f.select({ p.video });
    p.presenter()->pasteEffect();
    QCOMPARE(Project::effectsOf(p.video), QStringLiteral("Blur | "));
    QCOMPARE(p.effectData(p.video), QString());
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7012, 7009, 9031 }));
}

void tst_MvTimelinePresenterEffects::declinedOverrideStopsThePaste()
{
    Project p;
    Project::apply(p.s2, p.hum);
    p.f.timeline.undoService()->clear();
    p.f.select({ p.source });
    p.presenter()->copyEffect();
    p.f.select({ p.s1, p.s2 });
    p.f.scene.clear();
    const QString before = p.f.snapshot();

    p.presenter()->pasteEffect();

    QCOMPARE(p.questions, QStringList { QStringLiteral("s1 s2") });
    QCOMPARE(p.f.snapshot(), before);
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7012, 3030 }));

    p.replace = true;
    p.presenter()->pasteEffect();
    QCOMPARE(Project::effectsOf(p.s2), QStringLiteral(" | Echo"));
    QCOMPARE(p.effectData(p.s2), QStringLiteral("blur=4"));
}

void tst_MvTimelinePresenterEffects::failedPasteIsStillAnnounced()
{
    Project p;
    p.video->setUserData(UserDataKey_EffectData, QStringLiteral("old"));
    p.f.timeline.undoService()->clear();
    p.f.select({ p.source });
    p.presenter()->copyEffect();
    p.f.timeline.trackAt(0)->setLocked(true);
    p.f.timeline.undoService()->clear();
    p.f.select({ p.video });
    p.f.scene.clear();
    const QString before = p.f.snapshot();
    p.presenter()->pasteEffect();
    QCOMPARE(p.f.snapshot(), before);
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7012, 7009 }));

    // Nothing selected: paused, then nothing.
    p.f.select({});
    p.f.scene.clear();
    p.presenter()->pasteEffect();
    QCOMPARE(p.f.scene.ids(), QList<int> { 7012 });
    QCOMPARE(Fixture::withoutView(p.f.snapshot()), Fixture::withoutView(before));
}

void tst_MvTimelinePresenterEffects::deleteClearsEffectsAndData()
{
    Project p;
    Project::apply(p.s1, p.hum);
    p.s1->setUserData(UserDataKey_EffectData, QStringLiteral("hum"));
    p.f.timeline.undoService()->clear();
    p.f.select({ p.source, p.s1, p.video });
    p.f.keepState();

    p.presenter()->deleteEffect();

    QCOMPARE(Project::effectsOf(p.source), QStringLiteral(" | "));
    QCOMPARE(Project::effectsOf(p.s1), QStringLiteral(" | "));
    QCOMPARE(p.effectData(p.source), QString());
    QCOMPARE(p.effectData(p.s1), QString());
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7012, 9030 }));
    QCOMPARE(p.f.scene.entries().last().type, QStringLiteral("MvMessage"));
    QCOMPARE(p.f.timeline.undoService()->undoSource(), QStringLiteral("MvTimelinePresenter::deleteEffect"));
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("MvTimelinePresenter::deleteEffect"));
}

void tst_MvTimelinePresenterEffects::deleteThatChangesNothing()
{
    Project p;
    p.video->setUserData(UserDataKey_EffectData, QStringLiteral("kept"));
    p.f.timeline.undoService()->clear();
    const QString before = p.f.snapshot();
    // Nothing selected: the model is asked with no clip, and refuses.
    p.presenter()->deleteEffect();
    QVERIFY(p.f.journal.indexOf(QStringLiteral("model:removeEffects")) >= 0);
    // A clip without effects: the same.
    p.f.select({ p.video });
    p.presenter()->deleteEffect();
    QCOMPARE(Fixture::withoutView(p.f.snapshot()), Fixture::withoutView(before));
    QCOMPARE(p.effectData(p.video), QStringLiteral("kept"));
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7012, 7012 }));
}

void tst_MvTimelinePresenterEffects::menuQuestions_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<bool>("hasEffect");
    QTest::newRow("nothing selected") << QStringList() << false;
    QTest::newRow("one clip with effects") << QStringList { QStringLiteral("source") } << true;
    QTest::newRow("one clip without") << QStringList { QStringLiteral("video") } << false;
    QTest::newRow("two clips with effects") << QStringList { QStringLiteral("source"), QStringLiteral("s1") } << false;
}

void tst_MvTimelinePresenterEffects::menuQuestions()
{
    QFETCH(QStringList, selected);
    QFETCH(bool, hasEffect);
    Project p;
    Project::apply(p.s1, p.hum);
    QList<IMvClip*> clips;
    for (MvMemoryClip* clip : p.f.timeline.liveClips()) {
        if (selected.contains(clip->name()))
            clips.append(clip);
    }
    p.f.select(clips);
    QCOMPARE(p.presenter()->hasEffect(), hasEffect);
    QVERIFY(!p.presenter()->canPasteEffect());
    p.f.timeline.editService()->copyEffect(p.s1);
    QVERIFY(p.presenter()->canPasteEffect());
}

QTEST_MAIN(tst_MvTimelinePresenterEffects)
#include "tst_MvTimelinePresenterEffects.moc"
