#include "IMvClipEditService.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryClipboard.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvCustomEvent.h"
#include "MvEditFixture.h"
#include "MvRecordingTimeline.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
const QString NotItself = QStringLiteral("Unable to add compound clip itself, please try again");
const QString NotExternal = QStringLiteral("Unable to add external compound clip. Please try again.");

// The model's clipboard, noting in the journal what the presenter asks of it; its paste can be
// made to answer other flags than the model's.
class RecordingEditService : public IMvClipEditService
{
public:
    RecordingEditService(const MvRecordingTimeline* owner, IMvClipEditService* inner)
        : m_owner(owner)
        , m_inner(inner)
    {
    }

    int forcedFlags = -1;

    void copy(QList<IMvAbstractClip*> items) override
    {
        m_owner->note(QStringLiteral("copy %1").arg(items.size()));
        m_inner->copy(items);
    }
    void cut(QList<IMvAbstractClip*> items) override
    {
        m_owner->note(QStringLiteral("cut %1").arg(items.size()));
        m_inner->cut(items);
    }
    bool canPaste() const override { return m_inner->canPaste(); }
    int paste(qint64 frame, int trackIndex, QList<IMvClip*>& pasted, MvTrackType trackType, int mode) override
    {
        m_owner->note(
            QStringLiteral("paste at %1 row %2 type %3 mode %4").arg(frame).arg(trackIndex).arg(trackType).arg(mode));
        const int flags = m_inner->paste(frame, trackIndex, pasted, trackType, mode);
        return forcedFlags >= 0 ? forcedFlags : flags;
    }
    void pasteTransitions(QList<IMvTransition*>& pasted, QList<IMvClip*> targets) override
    {
        m_owner->note(QStringLiteral("pasteTransitions %1").arg(m_owner->clipNames(targets)));
        m_inner->pasteTransitions(pasted, targets);
    }
    void groupMembersOf(IMvClip* clip, QList<IMvClip*>& members, bool flag) const override
    {
        m_inner->groupMembersOf(clip, members, flag);
    }
    void collectGroupMembers(const QList<IMvClip*>& clips, QList<IMvClip*>& members, bool flag) const override
    {
        m_inner->collectGroupMembers(clips, members, flag);
    }
    void ungroup(const QList<IMvClip*>& members) override { m_inner->ungroup(members); }
    void group(const QList<IMvClip*>& members, int kind) override { m_inner->group(members, kind); }
    // The effect clipboard, untouched by these tests.
    void copyEffect(IMvClip* clip) override { m_inner->copyEffect(clip); }
    bool canPasteEffect() const override { return m_inner->canPasteEffect(); }
    bool needAudioEffectOverride(const QList<IMvClip*>& clips) const override
    {
        return m_inner->needAudioEffectOverride(clips);
    }
    bool pasteEffect(const QList<IMvClip*>& clips) override { return m_inner->pasteEffect(clips); }
    bool removeEffects(const QList<IMvClip*>& clips) override { return m_inner->removeEffects(clips); }
    bool hasEffect(IMvClip* clip) const override { return m_inner->hasEffect(clip); }

private:
    const MvRecordingTimeline* m_owner;
    IMvClipEditService* m_inner;
};

class ClipboardTimeline : public MvRecordingTimeline
{
public:
    explicit ClipboardTimeline(int kind = 0)
        : MvRecordingTimeline(kind)
        , service(this, MvRecordingTimeline::editService())
    {
    }
    IMvClipEditService* editService() const override { return const_cast<RecordingEditService*>(&service); }

    RecordingEditService service;
};

// A host that says which row or which kind of row the user has selected.
class TrackChoosingPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;

    int selectedRow = -1;
    MvTrackType selectedType = 0;

protected:
    IMvTrack* getSelectedTracked() override { return timeline()->trackAt(selectedRow); }
    MvTrackType getSelectedTrackType() override { return selectedType; }
};

using Fixture = MvEditFixture<ClipboardTimeline, TrackChoosingPresenter>;

// The text of every ShowCustomToast raised while it lives.
struct ToastRecorder
{
    QObject owner;
    QStringList texts;

    ToastRecorder()
    {
        new MvCustomEventListener(
            &owner, QLatin1String(MvEventName::ShowCustomToast), [this](const MvCustomEventImp& e) {
                texts.append(e.values().value(2).toString());
                return false;
            });
    }
};

QString placesOf(const QList<IMvClip*>& clips)
{
    QStringList places;
    for (const IMvClip* clip : clips)
        places.append(QStringLiteral("%1@%2..%3").arg(clip->trackIndex()).arg(clip->start()).arg(clip->end()));
    return places.join(QLatin1Char(' '));
}

// The journal's lines that name what the presenter asked of the clipboard and the scene.
QString asked(const Fixture& f)
{
    QStringList lines;
    for (const QString& entry : f.journal.entries()) {
        if (entry.startsWith(QLatin1String("scene:")) || entry.startsWith(QLatin1String("paste"))
            || entry.startsWith(QLatin1String("copy")) || entry.startsWith(QLatin1String("cut"))
            || entry.startsWith(QLatin1String("playhead:")) || entry.startsWith(QLatin1String("selection:")))
            lines.append(entry);
    }
    return lines.join(QLatin1String(", "));
}
}

class tst_MvTimelinePresenterClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pasteRouting_data();
    void pasteRouting();
    void pasteLandsAtThePlayheadAndIsSelected();
    void nestingFlagsRaiseTheNotice_data();
    void nestingFlagsRaiseTheNotice();
    void compoundRefusalsFromTheModel();
    void cut_data();
    void cut();
    void transitionPaste();
    void transitionPasteWithoutTargets();
    void copiedKindsDecideEveryLaterPaste();
    void duplicateWithNothingSelected();
    void canPasteFollowsTheApplicationClipboard();
    void clipboardCommandsWalkBackAndForth();
    void commandsWithoutATimelineDoNothing();
};

void tst_MvTimelinePresenterClipboard::init()
{
    MvMemoryClipboard::application().clear();
}

void tst_MvTimelinePresenterClipboard::pasteRouting_data()
{
    QTest::addColumn<QString>("copied"); // v picture, a sound, t transition
    QTest::addColumn<int>("selectedRow"); // the host's selected row, -1: none
    QTest::addColumn<int>("selectedType");
    QTest::addColumn<QString>("paste"); // what the clipboard is asked

    QTest::newRow("no row, no type") << "v" << -1 << 0 << "paste at 30 row -1 type 0 mode 3";
    QTest::newRow("a selected row") << "v" << 1 << 0 << "paste at 30 row 1 type 0 mode 3";
    QTest::newRow("the row wins over the type") << "v" << 1 << 1 << "paste at 30 row 1 type 0 mode 3";
    QTest::newRow("picture type for picture clips") << "v" << -1 << 3 << "paste at 30 row -1 type 3 mode 3";
    QTest::newRow("audio type for picture clips: dropped") << "v" << -1 << 1 << "paste at 30 row -1 type 0 mode 3";
    QTest::newRow("audio type for sound") << "a" << -1 << 1 << "paste at 30 row -1 type 1 mode 3";
    QTest::newRow("picture type for sound: dropped") << "a" << -1 << 3 << "paste at 30 row -1 type 0 mode 3";
    QTest::newRow("both kinds: no row") << "va" << 1 << 0 << "paste at 30 row -1 type 0 mode 3";
    QTest::newRow("both kinds: no type") << "va" << -1 << 3 << "paste at 30 row -1 type 0 mode 3";
    QTest::newRow("a transition goes onto the selected clips") << "t" << 1 << 3 << "pasteTransitions c0";
}

void tst_MvTimelinePresenterClipboard::pasteRouting()
{
    QFETCH(QString, copied);
    QFETCH(int, selectedRow);
    QFETCH(int, selectedType);
    QFETCH(QString, paste);

    Fixture f;
    MvMemoryClip* picture = f.clip(0, 0, 49);
    MvMemoryClip* sound = f.clip(2, 0, 49, ClipType_Audio);
    IMvTransition* fade = f.timeline.addTransition(picture, IMvTransition::AtEnd, 10, QStringLiteral("fade"));
    QList<IMvAbstractClip*> items;
    if (copied.contains(QLatin1Char('v')))
        items.append(picture);
    if (copied.contains(QLatin1Char('a')))
        items.append(sound);
    if (copied.contains(QLatin1Char('t')))
        items.append(fade);
    f.timeline.selection()->selectItems(items);
    f.presenter->copySelectedClips();
    f.presenter->selectedRow = selectedRow;
    f.presenter->selectedType = selectedType;
    f.select({ picture });
    f.setPlayhead(30);
    f.journal.clear();

    f.presenter->pasteClips();

    QCOMPARE(asked(f).section(QLatin1String(", "), 0, 1), QStringLiteral("scene:7012, ") + paste);
    const bool transition = copied == QLatin1String("t");
    const QString function = QStringLiteral("MvTimelinePresenter::%1")
                                 .arg(transition ? QLatin1String("pasteTransition") : QLatin1String("pasteNormalClip"));
    const QString record = transition ? QStringLiteral("paste transition") : QStringLiteral("paste normal clip");
    QCOMPARE(mvCheckRecord(f.log, record, 4, function), QString());
    QCOMPARE(f.timeline.checkInvariants(), QString());
}

void tst_MvTimelinePresenterClipboard::pasteLandsAtThePlayheadAndIsSelected()
{
    Fixture f;
    MvMemoryClip* first = f.clip(0, 0, 49);
    MvMemoryClip* second = f.clip(1, 20, 29);
    f.clip(2, 0, 999, ClipType_Music);
    f.select({ second, first });
    f.presenter->copySelectedClips();
    f.presenter->selectedRow = 1;
    f.setPlayhead(400);
    f.keepState();
    f.journal.clear();

    f.presenter->pasteClips();

    // The top copied row on the selected row, the times and rows apart as they were; a row is added.
    const QList<IMvClip*> pasted = f.timeline.selection()->selectedClips();
    QCOMPARE(placesOf(pasted), QStringLiteral("1@400..449 2@420..429"));
    QCOMPARE(f.timeline.trackCount(TrackType_Picture), 3);
    // Paused before the model changes, selected once it has.
    QVERIFY(f.journal.indexOf(QStringLiteral("scene:7012")) < f.journal.indexOf(QStringLiteral("model:paste")));
    QVERIFY(asked(f).endsWith(QStringLiteral("selection:select c3 c4")));
    f.keepState();
    QCOMPARE(f.walkUndo(), QStringLiteral("paste"));
}

void tst_MvTimelinePresenterClipboard::nestingFlagsRaiseTheNotice_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QStringList>("toasts");

    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("8: the compound clip itself") << 8 << QStringList { NotItself };
    QTest::newRow("4: a compound clip of another project") << 4 << QStringList { NotExternal };
    QTest::newRow("both: itself") << 12 << QStringList { NotItself };
    QTest::newRow("other bits: none") << 3 << QStringList();
}

void tst_MvTimelinePresenterClipboard::nestingFlagsRaiseTheNotice()
{
    QFETCH(int, flags);
    QFETCH(QStringList, toasts);

    Fixture f;
    f.select({ f.clip(0, 0, 49) });
    f.presenter->copySelectedClips();
    f.setPlayhead(50);
    f.timeline.service.forcedFlags = flags;
    ToastRecorder recorder;

    f.presenter->pasteClips();

    QCOMPARE(recorder.texts, toasts);
    // What was pasted besides is selected all the same.
    QCOMPARE(placesOf(f.timeline.selection()->selectedClips()), QStringLiteral("0@50..99"));
}

// A person copies the compound clip and pastes it into the timeline it shows, then copies one from
// another project and pastes it into this one.
void tst_MvTimelinePresenterClipboard::compoundRefusalsFromTheModel()
{
    Fixture f;
    MvMemoryTimeline content;
    content.addTrack(TrackType_Picture);
    MvTimelinePresenter inside(nullptr, &content);
    MvMemoryTimeline foreign;
    foreign.setProjectId(2);
    foreign.addTrack(TrackType_Picture);
    MvMemoryTimeline foreignContent;
    foreignContent.setProjectId(2);
    MvTimelinePresenter other(nullptr, &foreign);
    MvMemoryClip* compound = f.clip(0, 0, 99, ClipType_Compound);
    compound->setCompoundContent(&content);
    MvMemoryClip* reel = foreign.addClip(0, ClipType_Compound, 0, 99, QStringLiteral("reel"));
    reel->setCompoundContent(&foreignContent);
    ToastRecorder recorder;

    f.select({ compound });
    f.presenter->copySelectedClips();
    inside.pasteClips();
    foreign.selection()->select({ reel });
    other.copySelectedClips();
    f.presenter->pasteClips();

    QCOMPARE(recorder.texts, (QStringList { NotItself, NotExternal }));
    QCOMPARE(content.liveClips().size(), 0);
    QCOMPARE(f.timeline.liveClips().size(), 1);
    QCOMPARE(content.undoService()->undoCount(), 0);
}

void tst_MvTimelinePresenterClipboard::cut_data()
{
    QTest::addColumn<QString>("selected"); // clips by start, "t" the transition
    QTest::addColumn<bool>("seekAfterDelete");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<qint64>("playhead");

    QTest::newRow("clips: to the earliest start")
        << "50 20" << true << "scene:7012, cut 2, playhead:setCurrentFrame 20" << qint64(20);
    QTest::newRow("the model does not seek after a delete") << "50 20" << false << "scene:7012, cut 2" << qint64(250);
    QTest::newRow("a transition never moves the playhead") << "t 50" << true << "scene:7012, cut 2" << qint64(250);
    QTest::newRow("nothing selected: nothing") << "" << true << "" << qint64(250);
}

void tst_MvTimelinePresenterClipboard::cut()
{
    QFETCH(QString, selected);
    QFETCH(bool, seekAfterDelete);
    QFETCH(QString, asked);
    QFETCH(qint64, playhead);

    Fixture f;
    QHash<QString, IMvAbstractClip*> items;
    items.insert(QStringLiteral("50"), f.clip(0, 50, 99));
    items.insert(QStringLiteral("20"), f.clip(1, 20, 99));
    items.insert(QStringLiteral("t"),
        f.timeline.addTransition(f.clip(1, 200, 299), IMvTransition::AtStart, 10, QStringLiteral("fade")));
    QList<IMvAbstractClip*> selection;
    for (const QString& name : selected.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        selection.append(items.value(name));
    f.timeline.selection()->selectItems(selection);
    f.timeline.setSeekAfterDelete(seekAfterDelete);
    f.setPlayhead(250);
    f.keepState();
    f.journal.clear();

    f.presenter->cutSelectedClips();

    QCOMPARE(::asked(f), asked);
    QCOMPARE(f.playhead(), playhead);
    for (IMvAbstractClip* item : qAsConst(selection))
        QVERIFY(!f.timeline.isLive(item));
    QCOMPARE(f.presenter->canPasteClip(), !selection.isEmpty());
    f.keepState();
    QCOMPARE(f.walkUndo(), selection.isEmpty() ? QString() : QStringLiteral("cut"));
}

void tst_MvTimelinePresenterClipboard::transitionPaste()
{
    Fixture f;
    MvMemoryClip* owner = f.clip(0, 0, 99);
    f.timeline.selection()->selectItems(
        { f.timeline.addTransition(owner, IMvTransition::AtStart, 20, QStringLiteral("dissolve")) });
    f.presenter->copySelectedClips();
    MvMemoryClip* first = f.clip(1, 0, 99);
    MvMemoryClip* second = f.clip(1, 200, 299);
    f.select({ first, second });
    f.keepState();

    f.presenter->pasteClips();

    for (MvMemoryClip* target : { first, second }) {
        QCOMPARE(target->liveTransitions().size(), 1);
        QCOMPARE(target->liveTransitions().first()->name(), QStringLiteral("dissolve"));
    }
    QCOMPARE(mvCheckRecord(
                 f.log, QStringLiteral("paste transition"), 4, QStringLiteral("MvTimelinePresenter::pasteTransition")),
        QString());
    f.keepState();
    QCOMPARE(f.walkUndo(), QStringLiteral("paste transitions"));
}

void tst_MvTimelinePresenterClipboard::transitionPasteWithoutTargets()
{
    Fixture f;
    f.timeline.selection()->selectItems(
        { f.timeline.addTransition(f.clip(0, 0, 99), IMvTransition::AtStart, 20, QStringLiteral("dissolve")) });
    f.presenter->copySelectedClips();
    f.timeline.selection()->clear();
    const QString before = f.snapshot();
    f.journal.clear();

    f.presenter->pasteClips();

    QCOMPARE(mvCheckRecord(f.log, QStringLiteral("selected clip is empty"), 16,
                 QStringLiteral("MvTimelinePresenter::pasteTransition")),
        QString());
    QCOMPARE(f.snapshot(), before);
    QCOMPARE(f.journalText(), QString());
}

void tst_MvTimelinePresenterClipboard::copiedKindsDecideEveryLaterPaste()
{
    Fixture f;
    MvMemoryClip* owner = f.clip(0, 0, 99);
    f.timeline.selection()->selectItems(
        { f.timeline.addTransition(owner, IMvTransition::AtEnd, 20, QStringLiteral("wipe")) });
    f.presenter->copySelectedClips();
    MvMemoryClip* target = f.clip(1, 0, 99);
    f.select({ target });

    f.presenter->pasteClips();
    target->transitionList()->remove(target->liveTransitions().value(0)->identifier(), IMvTransition::AtEnd);
    f.presenter->pasteClips();

    QCOMPARE(f.log.find(QStringLiteral("paste transition")).size(), 2);
    QVERIFY(f.log.find(QStringLiteral("paste normal clip")).isEmpty());
    QCOMPARE(target->liveTransitions().size(), 1);
}

void tst_MvTimelinePresenterClipboard::duplicateWithNothingSelected()
{
    Fixture f;
    f.select({ f.clip(0, 0, 49) });
    f.presenter->copySelectedClips();
    f.timeline.selection()->clear();
    const QString before = f.snapshot();
    f.journal.clear();

    f.presenter->duplicateClip();

    // An empty copy, then the paste as usual: nothing to paste.
    QCOMPARE(::asked(f), QStringLiteral("copy 0, scene:7012, paste at 0 row -1 type 0 mode 3"));
    QCOMPARE(mvCheckRecord(
                 f.log, QStringLiteral("paste normal clip"), 4, QStringLiteral("MvTimelinePresenter::pasteNormalClip")),
        QString());
    QCOMPARE(f.snapshot(), before);
    QVERIFY(!f.presenter->canPasteClip());
}

void tst_MvTimelinePresenterClipboard::canPasteFollowsTheApplicationClipboard()
{
    Fixture f;
    Fixture other;
    QVERIFY(!f.presenter->canPasteClip());
    other.select({ other.clip(0, 0, 9) });

    other.presenter->copySelectedClips();

    QVERIFY(f.presenter->canPasteClip());
    f.presenter->pasteClips();
    QCOMPARE(placesOf(f.timeline.selection()->selectedClips()), QStringLiteral("0@0..9"));
}

void tst_MvTimelinePresenterClipboard::clipboardCommandsWalkBackAndForth()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 199);
    f.keepState();
    f.select({ clip });
    f.presenter->duplicateClip(); // at the playhead, 0: the row below
    f.keepState();
    f.setPlayhead(150);
    f.presenter->cutSelectedClips(); // the duplicate, back to its start
    f.keepState();
    QCOMPARE(f.playhead(), qint64(0));
    f.setPlayhead(150);
    f.presenter->pasteClips();
    f.keepState();
    f.presenter->selectedRow = 0;
    f.presenter->pasteClips(); // rows 0 and 1 are taken there: a new row
    f.keepState();

    QCOMPARE(placesOf(f.timeline.selection()->selectedClips()), QStringLiteral("2@150..349"));
    QCOMPARE(f.walkUndo(), QStringLiteral("paste, cut, paste, paste"));
}

void tst_MvTimelinePresenterClipboard::commandsWithoutATimelineDoNothing()
{
    MvRecordingScene scene;
    MvLogCapture log;
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.setScene(&scene);

    presenter.copySelectedClips();
    presenter.cutSelectedClips();
    presenter.pasteClips();
    presenter.duplicateClip();

    QVERIFY(!presenter.canPasteClip());
    QVERIFY(scene.ids().isEmpty());
}

QTEST_MAIN(tst_MvTimelinePresenterClipboard)
#include "tst_MvTimelinePresenterClipboard.moc"
