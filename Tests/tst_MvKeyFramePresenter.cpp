#include "IMvKeyFrameSelector.h"
#include "Memory/MvMemoryKeyFrames.h"
#include "MvEditFixture.h"
#include "MvKeyFramePresenter.h"
#include "MvModelMessages.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
using Fixture = MvEditFixture<>;
using Properties = QList<MvEffectPropertyBaseInfo>;

const Properties VideoDefaults { { 4096, QString(), false, -1, 3 }, { 4096, QString(), false, -1, 5 } };
const Properties AudioDefaults { { 4110, QString(), false, -1, 22 } };

// The property panels the scene was asked to show, in order.
struct PanelWatch
{
    explicit PanelWatch(MvRecordingScene& scene)
    {
        scene.answer(MessageId::ShowPropertyPanel, [this](MvMessage* message) {
            auto* show = dynamic_cast<MvPropertyPanelShowMessage2*>(message);
            QVERIFY(show);
            clipTypes.append(show->clipType());
            groups.append(show->panelType());
        });
    }
    QList<int> clipTypes;
    QList<int> groups;
};

MvMemoryClip* keyedClip(Fixture& f, MvClipType type = ClipType_VideoWithAudio, int track = 0)
{
    MvMemoryClip* clip = f.clip(track, 100, 199, type);
    clip->addKeyFrame(false, 10, VideoDefaults);
    clip->addKeyFrame(false, 30, VideoDefaults);
    clip->addKeyFrame(true, 20, AudioDefaults);
    return clip;
}
}

class tst_MvKeyFramePresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createdOnceByTheTimelinePresenter();
    void viewIsTheOwningPresentersView();
    void supportTables();
    void videoDefaultKeyFrame_data();
    void videoDefaultKeyFrame();
    void audioDefaultKeyFrame();
    void defaultKeyFrameRefusals_data();
    void defaultKeyFrameRefusals();
    void shortcutOnOneClipOffThePlayhead();
    void shortcutSkipsPlainAudioAndDisabledClips();
    void shortcutOnSeveralClipsIsOneStep_data();
    void shortcutOnSeveralClipsIsOneStep();
    void canCopyKeyFrames_data();
    void canCopyKeyFrames();
    void copyAnnouncesItself();
    void pasteTargets_data();
    void pasteTargets();
    void removeSelectedKeyFrames();
    void clearAllCountsTheOtherWay();
    void selectAllMarksTheSide();
    void jumpBetweenKeyFrames_data();
    void jumpBetweenKeyFrames();
    void keyFrameItemEnabledForTheOnlySelectedClip();
};

void tst_MvKeyFramePresenter::createdOnceByTheTimelinePresenter()
{
    Fixture f;
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    QVERIFY(presenter);
    QCOMPARE(f.presenter->keyFramePresenter(), presenter);
    QCOMPARE(presenter->parent(), f.presenter.get());
    QCOMPARE(presenter->timeline(), static_cast<IMvTimeline*>(&f.timeline));
}

void tst_MvKeyFramePresenter::viewIsTheOwningPresentersView()
{
    Fixture f;
    QObject view;
    QObject ownView;
    f.presenter->setView(&view);
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    presenter->setView(&ownView);
    QCOMPARE(presenter->view(), &view);

    QObject plainParent;
    MvKeyFramePresenter orphan(&f.timeline, &plainParent);
    orphan.setView(&ownView);
    QCOMPARE(orphan.view(), &ownView);
}

void tst_MvKeyFramePresenter::supportTables()
{
    Fixture f;
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    const QList<int> audio { 1, 3, 15, 16, 17, 18 };
    const QList<int> video { 2, 3, 4, 5, 6, 7, 8, 9, 13, 14, 15, 16 };
    for (int type = -1; type <= 20; ++type) {
        QCOMPARE(presenter->isSupportAudioKeyFrame(type), audio.contains(type));
        QCOMPARE(presenter->isSupportVideoKeyFrame(type), video.contains(type));
    }
}

void tst_MvKeyFramePresenter::videoDefaultKeyFrame_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("group");

    QTest::newRow("video") << 2 << 0x10008;
    QTest::newRow("video with audio") << 3 << 0x10008;
    QTest::newRow("image") << 4 << 0x10008;
    QTest::newRow("text") << 5 << 0x10004;
    QTest::newRow("sticker") << 6 << 0x1000080;
    QTest::newRow("effect") << 7 << 0;
    QTest::newRow("filter") << 8 << 0;
    QTest::newRow("adjustment") << 9 << 0x10008;
    QTest::newRow("subtitle") << 13 << 0x10008;
    QTest::newRow("title") << 14 << 0x10008;
    QTest::newRow("compound") << 15 << 0x10008;
    QTest::newRow("screen recording") << 16 << 0x10008;
}

void tst_MvKeyFramePresenter::videoDefaultKeyFrame()
{
    QFETCH(int, type);
    QFETCH(int, group);

    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199, type);
    PanelWatch panels(f.scene);
    const auto before = f.snapshot();
    const int steps = f.undoCount();
    f.journal.clear();

    QVERIFY(f.presenter->keyFramePresenter()->addVideoDefaultKeyFrame(clip, 150));

    QCOMPARE(clip->keyFrames(false), QList<qint64>({ 50 }));
    QCOMPARE(clip->keyFrameProperties(false, 50), VideoDefaults);
    QCOMPARE(f.playhead(), qint64(150));
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("MvMessage"));
    QVERIFY(f.pausedBeforeTheModel());
    QCOMPARE(panels.clipTypes, QList<int>({ type }));
    QCOMPARE(panels.groups, QList<int>({ group }));
    QCOMPARE(f.undoCount(), steps + 1);
    QCOMPARE(f.undoName(), QStringLiteral("add default key frame"));
    QCOMPARE(f.timeline.undoService()->undoSource(), QStringLiteral("MvKeyFramePresenter::addVideoDefaultKeyFrame"));
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvKeyFramePresenter::audioDefaultKeyFrame()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(2, 100, 199, ClipType_Audio);
    PanelWatch panels(f.scene);
    const auto before = f.snapshot();
    f.journal.clear();

    QVERIFY(f.presenter->keyFramePresenter()->addAudioDefaultKeyFrame(clip, 120));

    QCOMPARE(clip->keyFrames(true), QList<qint64>({ 20 }));
    QCOMPARE(clip->keyFrameProperties(true, 20), AudioDefaults);
    QVERIFY(clip->keyFrames(false).isEmpty());
    QCOMPARE(f.playhead(), qint64(120));
    QVERIFY(f.pausedBeforeTheModel());
    QVERIFY(panels.groups.isEmpty());
    QCOMPARE(f.undoName(), QStringLiteral("add audio default key frame"));
    QCOMPARE(f.timeline.undoService()->undoSource(), QStringLiteral("MvKeyFramePresenter::addAudioDefaultKeyFrame"));
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvKeyFramePresenter::defaultKeyFrameRefusals_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<qint64>("frame");

    QTest::newRow("before the clip") << 2 << false << qint64(99);
    QTest::newRow("after the clip") << 2 << false << qint64(200);
    QTest::newRow("a key frame is there already") << 2 << false << qint64(110);
    QTest::newRow("video key frame on plain audio") << 1 << false << qint64(150);
    QTest::newRow("audio key frame on plain video") << 2 << true << qint64(150);
}

void tst_MvKeyFramePresenter::defaultKeyFrameRefusals()
{
    QFETCH(int, type);
    QFETCH(bool, audio);
    QFETCH(qint64, frame);

    Fixture f;
    MvMemoryClip* clip = f.clip(isAudioClipType(type) ? 2 : 0, 100, 199, type);
    clip->addKeyFrame(audio, 10, audio ? AudioDefaults : VideoDefaults);
    f.timeline.undoService()->clear();
    f.setPlayhead(5);
    const auto before = f.snapshot();
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();

    QVERIFY(
        audio ? !presenter->addAudioDefaultKeyFrame(clip, frame) : !presenter->addVideoDefaultKeyFrame(clip, frame));
    QVERIFY(!presenter->addVideoDefaultKeyFrame(nullptr, frame));

    QVERIFY(f.snapshot() == before);
    QCOMPARE(f.playhead(), qint64(5));
    QVERIFY(f.scene.entries().isEmpty());
}

void tst_MvKeyFramePresenter::shortcutOnOneClipOffThePlayhead()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 100, 199);
    f.select({ clip });
    f.setPlayhead(40);

    QVERIFY(f.presenter->keyFramePresenter()->addKeyFrame_ShortcutKey());

    // Off the clip: the key frame goes onto its first frame and the playhead follows.
    QCOMPARE(clip->keyFrames(false), QList<qint64>({ 0 }));
    QCOMPARE(f.playhead(), qint64(100));
    QCOMPARE(f.undoName(), QStringLiteral("add default key frame"));
}

void tst_MvKeyFramePresenter::shortcutSkipsPlainAudioAndDisabledClips()
{
    Fixture f;
    MvMemoryClip* audio = f.clip(2, 100, 199, ClipType_Audio);
    MvMemoryClip* disabled = f.clip(0, 100, 199);
    disabled->setEnabled(false);
    f.timeline.undoService()->clear();
    f.select({ audio, disabled });
    f.setPlayhead(150);
    const auto before = f.snapshot();

    QVERIFY(!f.presenter->keyFramePresenter()->addKeyFrame_ShortcutKey());

    QVERIFY(f.snapshot() == before);
    QVERIFY(f.scene.entries().isEmpty());
}

void tst_MvKeyFramePresenter::shortcutOnSeveralClipsIsOneStep_data()
{
    QTest::addColumn<qint64>("secondStart");
    QTest::addColumn<bool>("result");
    QTest::newRow("both take a key frame") << qint64(120) << true;
    QTest::newRow("one cannot, the other still gets its key frame") << qint64(300) << false;
}

void tst_MvKeyFramePresenter::shortcutOnSeveralClipsIsOneStep()
{
    QFETCH(qint64, secondStart);
    QFETCH(bool, result);

    Fixture f;
    MvMemoryClip* first = f.clip(0, 100, 199);
    MvMemoryClip* second = f.clip(1, secondStart, secondStart + 99, ClipType_Image);
    f.select({ first, second });
    f.setPlayhead(150);
    const auto before = f.snapshot();
    const int steps = f.undoCount();

    QCOMPARE(f.presenter->keyFramePresenter()->addKeyFrame_ShortcutKey(), result);

    QCOMPARE(first->keyFrames(false), QList<qint64>({ 50 }));
    QCOMPARE(second->keyFrames(false).size(), result ? 1 : 0);
    QCOMPARE(f.undoCount(), steps + 1);
    QCOMPARE(f.undoName(), QStringLiteral("mult add default key frame"));
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvKeyFramePresenter::canCopyKeyFrames_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("select");
    QTest::addColumn<bool>("expected");

    QTest::newRow("main timeline") << 0 << 3 << true << true;
    QTest::newRow("another timeline") << 1 << 3 << true << false;
    QTest::newRow("text clip") << 0 << 5 << true << false;
    QTest::newRow("title clip") << 0 << 14 << true << false;
    QTest::newRow("nothing selected") << 0 << 3 << false << false;
}

void tst_MvKeyFramePresenter::canCopyKeyFrames()
{
    QFETCH(int, kind);
    QFETCH(int, type);
    QFETCH(bool, select);
    QFETCH(bool, expected);

    Fixture f(kind);
    MvMemoryClip* clip = keyedClip(f, type);
    if (select)
        f.timeline.keyFrameSelector()->select({ clip, IMvKeyFrameSelector::VideoSide, { 10, 30 } });
    QCOMPARE(f.presenter->keyFramePresenter()->canCopyKeyFrames(), expected);
}

void tst_MvKeyFramePresenter::copyAnnouncesItself()
{
    Fixture f;
    MvMemoryClip* clip = keyedClip(f);
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    QSignalSpy spy(presenter, &MvKeyFramePresenter::sigCopyKeyFrame);

    QVERIFY(!presenter->copySelectedKeyFrames());
    QCOMPARE(spy.count(), 0);

    f.timeline.keyFrameSelector()->select({ clip, IMvKeyFrameSelector::VideoSide, { 10, 30 } });
    QVERIFY(presenter->copySelectedKeyFrames());
    QCOMPARE(spy.count(), 1);
    QVERIFY(!f.timeline.keyFrameClipboard()->isEmpty());
}

void tst_MvKeyFramePresenter::pasteTargets_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<qint64>("length");
    QTest::addColumn<bool>("tracking");
    QTest::addColumn<bool>("expected");

    // The copied key frames span 21 frames (10 to 30).
    QTest::newRow("long enough") << 2 << qint64(100) << false << true;
    QTest::newRow("exactly the span") << 2 << qint64(21) << false << true;
    QTest::newRow("shorter than the span") << 2 << qint64(20) << false << false;
    QTest::newRow("text clip") << 5 << qint64(100) << false << false;
    QTest::newRow("subtitle clip") << 13 << qint64(100) << false << false;
    QTest::newRow("motion tracked clip") << 2 << qint64(100) << true << false;
}

void tst_MvKeyFramePresenter::pasteTargets()
{
    QFETCH(int, type);
    QFETCH(qint64, length);
    QFETCH(bool, tracking);
    QFETCH(bool, expected);

    Fixture f;
    MvMemoryClip* source = keyedClip(f);
    MvMemoryClip* target = f.clip(1, 500, 500 + length - 1, type);
    target->setMotionTrackingEnabled(tracking);
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    f.timeline.keyFrameSelector()->select({ source, IMvKeyFrameSelector::VideoSide, { 10, 30 } });
    QVERIFY(presenter->copySelectedKeyFrames());
    f.select({ target });
    f.setPlayhead(500);
    f.timeline.undoService()->clear();
    const auto before = f.snapshot();

    QCOMPARE(presenter->canPasteKeyFrames(), expected);
    QCOMPARE(presenter->pasteKeyFrames(), expected);

    if (!expected) {
        QVERIFY(f.snapshot() == before);
        return;
    }
    QCOMPARE(target->keyFrames(false), QList<qint64>({ 0, 20 }));
    QCOMPARE(f.undoCount(), 1);
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvKeyFramePresenter::removeSelectedKeyFrames()
{
    Fixture f;
    MvMemoryClip* clip = keyedClip(f);
    f.select({ clip });
    f.timeline.undoService()->clear();
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    const auto before = f.snapshot();

    QVERIFY(!presenter->canRemoveKeyFrame());
    QVERIFY(!presenter->removeSelectedKeyFrame());
    QVERIFY(f.snapshot() == before);

    f.timeline.keyFrameSelector()->select({ clip, IMvKeyFrameSelector::VideoSide, { 30 } });
    QVERIFY(presenter->canRemoveKeyFrame());
    QVERIFY(presenter->removeSelectedKeyFrame());

    QCOMPARE(clip->keyFrames(false), QList<qint64>({ 10 }));
    QCOMPARE(clip->keyFrames(true), QList<qint64>({ 20 }));
    QCOMPARE(f.undoCount(), 1);
    QCOMPARE(f.undoName(), QStringLiteral("clear selected key frames"));
    QCOMPARE(f.timeline.undoService()->undoSource(), QStringLiteral("MvKeyFramePresenter::removeSelectedKeyFrame"));
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvKeyFramePresenter::clearAllCountsTheOtherWay()
{
    Fixture f;
    MvMemoryClip* clip = keyedClip(f);
    MvMemoryClip* bare = f.clip(1, 0, 99);
    f.timeline.undoService()->clear();
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    const auto before = f.snapshot();

    // No enabled clip selected: refused.
    QVERIFY(!presenter->clearAllVideoKeyFrames());
    QVERIFY(f.snapshot() == before);

    // Something was cleared: the answer is false.
    f.select({ clip, bare });
    QVERIFY(!presenter->clearAllVideoKeyFrames());
    QVERIFY(clip->keyFrames(false).isEmpty());
    QCOMPARE(clip->keyFrames(true), QList<qint64>({ 20 }));
    QCOMPARE(f.undoCount(), 1);
    QCOMPARE(f.undoName(), QStringLiteral("clear all key frames"));
    QCOMPARE(f.timeline.undoService()->undoSource(), QStringLiteral("MvKeyFramePresenter::clearAllKeyFrames"));

    // Nothing left to clear: true, and no step.
    QVERIFY(presenter->clearAllVideoKeyFrames());
    QCOMPARE(f.undoCount(), 1);

    QVERIFY(!presenter->clearAllAudioKeyFrames());
    QVERIFY(clip->keyFrames(true).isEmpty());
    QCOMPARE(f.undoCount(), 2);
    QCOMPARE(f.timeline.checkInvariants(), QString());
    QVERIFY(f.timeline.undoRedoService()->undo());
    QCOMPARE(f.undoDiff(before), QString());
}

void tst_MvKeyFramePresenter::selectAllMarksTheSide()
{
    Fixture f;
    MvMemoryClip* clip = keyedClip(f);
    MvMemoryClip* other = keyedClip(f, ClipType_VideoWithAudio, 1);
    other->setEnabled(false);
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    IMvKeyFrameSelector* selector = f.timeline.keyFrameSelector();

    QVERIFY(!presenter->selectedAllVideoKeyFrames());
    QVERIFY(!selector->currentSelection().isValid());

    // Only the first enabled selected clip counts.
    f.select({ other, clip });
    QVERIFY(presenter->selectedAllAudioKeyFrames());
    QVERIFY(selector->currentSelection() == IMvKeyFrameSelector::MvSelectData({ clip, 2, { 20 } }));
    QVERIFY(presenter->selectedAllVideoKeyFrames());
    QVERIFY(selector->currentSelection() == IMvKeyFrameSelector::MvSelectData({ clip, 1, { 10, 30 } }));
}

void tst_MvKeyFramePresenter::jumpBetweenKeyFrames_data()
{
    QTest::addColumn<qint64>("playhead");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<qint64>("expected");

    // Key frames at clip frames 10 and 30 (picture) and 20 (sound); the clip starts at 100.
    QTest::newRow("next from before the first") << qint64(100) << false << qint64(110);
    QTest::newRow("next from a key frame") << qint64(110) << false << qint64(120);
    QTest::newRow("next crosses sides") << qint64(125) << false << qint64(130);
    QTest::newRow("next from the last") << qint64(130) << false << qint64(130);
    QTest::newRow("previous from a key frame") << qint64(120) << true << qint64(110);
    QTest::newRow("previous from between") << qint64(150) << true << qint64(130);
    QTest::newRow("previous from the first") << qint64(110) << true << qint64(110);
}

void tst_MvKeyFramePresenter::jumpBetweenKeyFrames()
{
    QFETCH(qint64, playhead);
    QFETCH(bool, previous);
    QFETCH(qint64, expected);

    Fixture f;
    MvMemoryClip* clip = keyedClip(f);
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    f.setPlayhead(playhead);
    previous ? presenter->moveToPrevKeyFrame() : presenter->moveToNextKeyFrame();
    QCOMPARE(f.playhead(), playhead);

    f.select({ clip });
    previous ? presenter->moveToPrevKeyFrame() : presenter->moveToNextKeyFrame();
    QCOMPARE(f.playhead(), expected);
}

void tst_MvKeyFramePresenter::keyFrameItemEnabledForTheOnlySelectedClip()
{
    Fixture f;
    MvMemoryClip* clip = f.clip(0, 0, 99);
    MvMemoryClip* other = f.clip(1, 0, 99);
    MvKeyFramePresenter* presenter = f.presenter->keyFramePresenter();
    QVERIFY(!presenter->isKeyFrameItemEnabled(clip));
    f.select({ clip });
    QVERIFY(presenter->isKeyFrameItemEnabled(clip));
    QVERIFY(!presenter->isKeyFrameItemEnabled(other));
    f.select({ clip, other });
    QVERIFY(!presenter->isKeyFrameItemEnabled(clip));
}

QTEST_MAIN(tst_MvKeyFramePresenter)
#include "tst_MvKeyFramePresenter.moc"
