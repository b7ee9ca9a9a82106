#include "IMvKeyFrameSelector.h"
#include "Memory/MvMemoryKeyFrames.h"
#include "MvEditFixture.h"
#include "MvKeyFramePresenter.h"
#include "MvModelMessages.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
using Properties = QList<MvEffectPropertyBaseInfo>;
const Properties VideoDefaults { { 4096, QString(), false, -1, 3 }, { 4096, QString(), false, -1, 5 } };
const Properties AudioDefaults { { 4110, QString(), false, -1, 22 } };

struct Fixture : MvEditFixture<>
{
    using MvEditFixture::MvEditFixture;

    // A clip 100..199 with picture key frames at clip frames 10 and 30 and a sound one at 20.
    MvMemoryClip* keyedClip(MvClipType type = ClipType_VideoWithAudio, int track = 0)
    {
        MvMemoryClip* keyed = clip(track, 100, 199, type);
        keyed->addKeyFrame(false, 10, VideoDefaults);
        keyed->addKeyFrame(false, 30, VideoDefaults);
        keyed->addKeyFrame(true, 20, AudioDefaults);
        return keyed;
    }

    MvKeyFramePresenter* kf = presenter->keyFramePresenter();
    IMvKeyFrameSelector* selector = timeline.keyFrameSelector();
};
}

class tst_MvKeyFramePresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultKeyFrame_data();
    void defaultKeyFrame();
    void shortcut();
    void canCopyKeyFrames();
    void copyAndPaste_data();
    void copyAndPaste();
    void editSelectedClipsKeyFrames();
    void jumpBetweenKeyFrames();
};

void tst_MvKeyFramePresenter::defaultKeyFrame_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("group"); // of the property panel shown, -1 for none
    QTest::newRow("sticker") << 6 << 0x1000080;
    QTest::newRow("effect") << 7 << 0;
    QTest::newRow("audio") << 1 << -1;
}

void tst_MvKeyFramePresenter::defaultKeyFrame()
{
    QFETCH(int, type);
    QFETCH(int, group);
    const bool audio = group < 0;

    Fixture f;
    MvMemoryClip* clip = f.clip(audio ? 2 : 0, 100, 199, type);
    const auto add = [&](IMvClip* target) {
        return audio ? f.kf->addAudioDefaultKeyFrame(target, 150) : f.kf->addVideoDefaultKeyFrame(target, 150);
    };
    int panel = -1;
    f.scene.answer(MessageId::ShowPropertyPanel, [&](MvMessage* message) {
        auto* show = dynamic_cast<MvPropertyPanelShowMessage2*>(message);
        panel = show && show->clipType() == type ? show->panelType() : -2;
    });
    const QString before = f.snapshot();
    f.journal.clear();

    QVERIFY(add(clip));

    QCOMPARE(clip->keyFrames(audio), QList<qint64>({ 50 }));
    QCOMPARE(clip->keyFrameProperties(audio, 50), audio ? AudioDefaults : VideoDefaults);
    QCOMPARE(f.playhead(), qint64(150));
    // Paused first; the panel for a picture key frame.
    const QString shown = audio ? QString() : QStringLiteral(" scene:9040");
    QCOMPARE(f.journalText(), QString(QStringLiteral("scene:7012 model:addKeyFrame") + shown));
    QCOMPARE(panel, group);

    // Refused on a key frame or without a clip: no pause, no playhead move, no change.
    f.setPlayhead(5);
    const QString added = f.snapshot();
    f.journal.clear();
    QVERIFY(!add(clip));
    QVERIFY(!add(nullptr));
    QCOMPARE(f.snapshot(), added);
    QVERIFY(f.journal.entries().isEmpty());
    QCOMPARE(f.undoOneStep(before),
        audio ? QStringLiteral("add audio default key frame") : QStringLiteral("add default key frame"));
}

void tst_MvKeyFramePresenter::shortcut()
{
    Fixture f;
    MvMemoryClip* audio = f.clip(2, 100, 199, ClipType_Audio);
    MvMemoryClip* clip = f.clip(0, 100, 199);
    MvMemoryClip* near = f.clip(1, 120, 219, ClipType_Image);
    MvMemoryClip* far = f.clip(1, 300, 399, ClipType_Image);
    clip->setEnabled(false);
    f.select({ audio, clip });
    f.setPlayhead(40);
    const QString before = f.snapshot();
    f.journal.clear();

    // Plain audio takes no picture key frame, a disabled clip none at all.
    QVERIFY(!f.kf->addKeyFrame_ShortcutKey());
    QCOMPARE(f.snapshot(), before);
    QVERIFY(f.journal.entries().isEmpty());

    // One clip, off the playhead: the key frame goes onto its first frame and the playhead follows.
    clip->setEnabled(true);
    f.keepState();
    QVERIFY(f.kf->addKeyFrame_ShortcutKey());
    f.keepState();
    QCOMPARE(clip->keyFrames(false), QList<qint64>({ 0 }));
    QCOMPARE(f.playhead(), qint64(100));

    // Several clips: one step; one that cannot take a key frame fails the command, not the others.
    f.select({ clip, near, far });
    f.setPlayhead(150);
    QVERIFY(!f.kf->addKeyFrame_ShortcutKey());
    f.keepState();
    QCOMPARE(clip->keyFrames(false) + near->keyFrames(false) + far->keyFrames(false), QList<qint64>({ 0, 50, 30 }));
    QCOMPARE(f.walkUndo(), QStringLiteral("add default key frame, mult add default key frame"));
}

// Never from a text clip, and only in the main timeline.
void tst_MvKeyFramePresenter::canCopyKeyFrames()
{
    Fixture f;
    f.selector->select({ f.keyedClip(ClipType_Text), IMvKeyFrameSelector::VideoSide, { 10, 30 } });
    QVERIFY(!f.kf->canCopyKeyFrames());
    Fixture other(1);
    other.selector->select({ other.keyedClip(), IMvKeyFrameSelector::VideoSide, { 10, 30 } });
    QVERIFY(!other.kf->canCopyKeyFrames());
}

void tst_MvKeyFramePresenter::copyAndPaste_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<qint64>("length");
    QTest::addColumn<bool>("tracking");
    QTest::addColumn<bool>("expected");
    // The copied key frames span 21 frames (10 to 30).
    QTest::newRow("exactly the span") << 2 << qint64(21) << false << true;
    QTest::newRow("shorter than the span") << 2 << qint64(20) << false << false;
    QTest::newRow("text clip") << 5 << qint64(100) << false << false;
    QTest::newRow("motion tracked clip") << 2 << qint64(100) << true << false;
}

void tst_MvKeyFramePresenter::copyAndPaste()
{
    QFETCH(int, type);
    QFETCH(qint64, length);
    QFETCH(bool, tracking);
    QFETCH(bool, expected);

    Fixture f;
    MvMemoryClip* source = f.keyedClip();
    MvMemoryClip* target = f.clip(1, 500, 500 + length - 1, type);
    target->setMotionTrackingEnabled(tracking);
    QSignalSpy copied(f.kf, &MvKeyFramePresenter::sigCopyKeyFrame);
    QVERIFY(!f.kf->copySelectedKeyFrames());
    f.selector->select({ source, IMvKeyFrameSelector::VideoSide, { 10, 30 } });
    QVERIFY(f.kf->canCopyKeyFrames());
    QVERIFY(f.kf->copySelectedKeyFrames());
    QCOMPARE(copied.count(), 1);
    f.select({ target });
    f.setPlayhead(500);
    const QString before = f.snapshot();

    QCOMPARE(f.kf->pasteKeyFrames(), expected);

    QCOMPARE(target->keyFrames(false), expected ? QList<qint64>({ 0, 20 }) : QList<qint64>());
    QCOMPARE(f.undoOneStep(before), expected ? QStringLiteral("paste key frames") : QString());
}

void tst_MvKeyFramePresenter::editSelectedClipsKeyFrames()
{
    Fixture f;
    MvMemoryClip* clip = f.keyedClip();
    MvMemoryClip* other = f.keyedClip(ClipType_VideoWithAudio, 1);
    other->setEnabled(false);
    const QString before = f.snapshot();

    // Nothing selected: each command refuses.
    QVERIFY(!f.kf->removeSelectedKeyFrame());
    QVERIFY(!f.kf->selectedAllVideoKeyFrames());
    QVERIFY(!f.kf->clearAllVideoKeyFrames());
    QCOMPARE(f.snapshot(), before);

    // Only the first enabled selected clip counts for select-all.
    f.select({ other, clip });
    QVERIFY(f.kf->selectedAllAudioKeyFrames());
    QVERIFY(f.selector->currentSelection() == IMvKeyFrameSelector::MvSelectData({ clip, 2, { 20 } }));
    QVERIFY(f.kf->selectedAllVideoKeyFrames());
    QVERIFY(f.selector->currentSelection() == IMvKeyFrameSelector::MvSelectData({ clip, 1, { 10, 30 } }));

    f.selector->select({ clip, IMvKeyFrameSelector::VideoSide, { 30 } });
    f.keepState();
    QVERIFY(f.kf->removeSelectedKeyFrame());
    f.keepState();
    QCOMPARE(clip->keyFrames(false), QList<qint64>({ 10 }));

    // Clearing answers false when it cleared something, true when nothing was left.
    QVERIFY(!f.kf->clearAllVideoKeyFrames());
    f.keepState();
    QVERIFY(clip->keyFrames(false).isEmpty());
    QCOMPARE(clip->keyFrames(true), QList<qint64>({ 20 }));
    QVERIFY(f.kf->clearAllVideoKeyFrames());
    f.keepState();
    QCOMPARE(f.walkUndo(), QStringLiteral("clear selected key frames, clear all key frames"));
}

void tst_MvKeyFramePresenter::jumpBetweenKeyFrames()
{
    Fixture f;
    MvMemoryClip* clip = f.keyedClip(); // key frames at 110 and 130 (picture), 120 (sound)
    const auto jump = [&](bool previous) {
        previous ? f.kf->moveToPrevKeyFrame() : f.kf->moveToNextKeyFrame();
        return f.playhead();
    };
    f.setPlayhead(100);
    QCOMPARE(jump(false), qint64(100)); // no clip selected
    f.select({ clip });
    // From a key frame to the next one, and no wrap-around at either end.
    QList<qint64> visited;
    for (bool previous : { false, false, false, false, true, true, true })
        visited.append(jump(previous));
    QCOMPARE(visited, QList<qint64>({ 110, 120, 130, 130, 120, 110, 110 }));
}

QTEST_MAIN(tst_MvKeyFramePresenter)
#include "tst_MvKeyFramePresenter.moc"
