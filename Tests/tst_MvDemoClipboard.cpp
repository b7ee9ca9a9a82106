#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryClipboard.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "Memory/MvSampleProject.h"
#include "MvDemoHeaderMarks.h"
#include "MvDemoPresenter.h"
#include "MvDemoTimelineWindow.h"
#include "MvDemoTrackArea.h"
#include "MvDemoTrackHeaders.h"
#include "MvDemoWindow.h"
#include "MvToast.h"

#include <QAction>
#include <QMenu>
#include <QtTest>

namespace {
const QString NotItself = QStringLiteral("Unable to add compound clip itself, please try again");
const QString NotExternal = QStringLiteral("Unable to add external compound clip. Please try again.");

// The demo window over its sample project, shown offscreen, driven with the mouse and the keys.
struct Demo
{
    Demo()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    static MvMemoryClip* clipIn(const MvMemoryTimeline* timeline, const QString& name)
    {
        for (MvMemoryClip* clip : timeline->liveClips()) {
            if (clip->name() == name)
                return clip;
        }
        return nullptr;
    }
    MvMemoryClip* clip(const QString& name) const { return clipIn(timeline(), name); }
    MvMemoryTimeline* timeline() const { return window.timeline(); }
    MvDemoTrackArea* area() const { return window.trackArea(); }
    MvDemoTrackHeaders* headers() const { return window.trackHeaders(); }
    void click(MvDemoTrackArea* area, const IMvClip* clip)
    {
        QTest::mouseClick(area, Qt::LeftButton, Qt::NoModifier, area->clipRect(clip, clip->trackIndex()).center());
    }
    void clickMark(int row, QRect (*mark)(const QRect&))
    {
        QTest::mouseClick(headers(), Qt::LeftButton, Qt::NoModifier, mark(headers()->rowRect(row)).center());
    }
    void keys(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(target, key, modifiers);
    }
    QString undoName() const { return timeline()->undoRedoService()->undoName(); }
    // The texts of the notices shown over the window and the windows it opened, oldest first.
    QStringList notices() const
    {
        QStringList texts;
        for (const MvToast* toast : window.findChildren<MvToast*>())
            texts.append(toast->text());
        return texts;
    }
    // How much of a header mark is drawn in a colour.
    int inkOf(QRect (*mark)(const QRect&), int row, const QColor& color) const
    {
        const QImage image = headers()->grab(mark(headers()->rowRect(row))).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == color.rgb() ? 1 : 0;
        }
        return count;
    }

    MvDemoWindow window { false };
};
}

// The clipboard, the track marks and the audio commands as a person uses them in the demo.
class tst_MvDemoClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void copyPasteAndDuplicateWithTheKeys();
    void aPickedRowTakesThePaste();
    void headerMarksSwitchTheirRow();
    void theEyeOfAnAudioRowShowsItsSound();
    void clearEmptyTracksOnceARowIsEmpty();
    void audioCommandsFromTheClipMenu();
    void compoundRefusalsReachThePerson();
    void disabledClipboardKeysSayWhy();
};

void tst_MvDemoClipboard::init()
{
    MvMemoryClipboard::application().clear();
}

void tst_MvDemoClipboard::copyPasteAndDuplicateWithTheKeys()
{
    Demo demo;
    MvMemoryClip* logo = demo.clip(QStringLiteral("Logo"));
    demo.click(demo.area(), logo);
    demo.keys(demo.area(), Qt::Key_C);
    QVERIFY(demo.window.action(QStringLiteral("paste"))->isEnabled());
    // After the subtitles, where the logo's row is free.
    demo.timeline()->playhead()->setCurrentFrame(101 * 30);

    demo.keys(demo.area(), Qt::Key_V);

    const QList<IMvClip*> pasted = demo.timeline()->selection()->selectedClips();
    QCOMPARE(pasted.size(), 1);
    QCOMPARE(pasted.first()->name(), QStringLiteral("Logo"));
    QCOMPARE(pasted.first()->trackIndex(), logo->trackIndex());
    QCOMPARE(pasted.first()->start(), qint64(101 * 30));
    QCOMPARE(demo.undoName(), QStringLiteral("paste"));
    QVERIFY(demo.window.journalLines().contains(QStringLiteral("command: Paste")));

    // A duplicate at the same place finds the rows below taken there (the route planner): it goes
    // to a new picture row.
    demo.keys(demo.area(), Qt::Key_D);
    const QList<IMvClip*> duplicate = demo.timeline()->selection()->selectedClips();
    QCOMPARE(duplicate.size(), 1);
    QCOMPARE(duplicate.first()->start(), qint64(101 * 30));
    QCOMPARE(duplicate.first()->trackIndex(), 3);
    QCOMPARE(demo.timeline()->trackCount(MVVBLMODEL::TrackType_Picture), 4);
    QCOMPARE(demo.timeline()->undoRedoService()->undoCount(), 2);
}

void tst_MvDemoClipboard::aPickedRowTakesThePaste()
{
    Demo demo;
    const QRect firstRow = demo.headers()->rowRect(0);
    QTest::mouseClick(demo.headers(), Qt::LeftButton, Qt::NoModifier, firstRow.topLeft() + QPoint(20, 10));
    QCOMPARE(demo.window.presenter()->selectedTrack(), demo.timeline()->trackAt(0));
    QVERIFY(demo.window.journalLines().contains(QStringLiteral("track picked: Video 1")));
    demo.click(demo.area(), demo.clip(QStringLiteral("Logo")));
    demo.keys(demo.area(), Qt::Key_C);
    demo.timeline()->playhead()->setCurrentFrame(40 * 30);

    demo.keys(demo.area(), Qt::Key_V);

    QCOMPARE(demo.timeline()->selection()->selectedClips().value(0)->trackIndex(), 0);
    // A second click on the row lets it go.
    QTest::mouseClick(demo.headers(), Qt::LeftButton, Qt::NoModifier, firstRow.topLeft() + QPoint(20, 10));
    QCOMPARE(demo.window.presenter()->selectedTrack(), nullptr);
}

void tst_MvDemoClipboard::headerMarksSwitchTheirRow()
{
    Demo demo;
    IMvTrack* video2 = demo.timeline()->trackAt(1);
    IMvTrack* audio2 = demo.timeline()->trackAt(4);
    const QColor dimmed = QColor(0x8A, 0x8D, 0x96).darker(160);
    QCOMPARE(demo.inkOf(MvDemoHeaderMarks::muteRect, 1, dimmed), 0);

    demo.clickMark(1, MvDemoHeaderMarks::eyeRect);
    QVERIFY(!video2->isVisible());
    QCOMPARE(demo.undoName(), QStringLiteral("hide track"));
    // Hidden, its mute mark is dimmed and a click on it says why nothing happens.
    QVERIFY(demo.inkOf(MvDemoHeaderMarks::muteRect, 1, dimmed) > 10);
    demo.clickMark(1, MvDemoHeaderMarks::muteRect);
    QCOMPARE(demo.notices().value(0), QStringLiteral("Show the track again before switching its sound."));
    QCOMPARE(demo.timeline()->undoRedoService()->undoCount(), 1);

    demo.clickMark(4, MvDemoHeaderMarks::muteRect);
    QVERIFY(audio2->isMuted());
    QCOMPARE(demo.undoName(), QStringLiteral("mute track"));
    demo.clickMark(4, MvDemoHeaderMarks::lockRect);
    QVERIFY(audio2->isLocked());
    demo.clickMark(1, MvDemoHeaderMarks::eyeRect);
    QVERIFY(video2->isVisible());
    QCOMPARE(demo.timeline()->undoService()->undoNames(),
        (QStringList { QStringLiteral("hide track"), QStringLiteral("mute track"), QStringLiteral("lock track"),
            QStringLiteral("show track") }));
}

void tst_MvDemoClipboard::theEyeOfAnAudioRowShowsItsSound()
{
    Demo demo;
    const QColor mutedInk(0xE0, 0x6C, 0x5C);
    QCOMPARE(demo.inkOf(MvDemoHeaderMarks::eyeRect, 3, mutedInk), 0);

    demo.clickMark(3, MvDemoHeaderMarks::eyeRect);

    QVERIFY(demo.timeline()->trackAt(3)->isMuted());
    QVERIFY(demo.timeline()->trackAt(3)->isVisible());
    QVERIFY(demo.inkOf(MvDemoHeaderMarks::eyeRect, 3, mutedInk) > 10);
}

void tst_MvDemoClipboard::clearEmptyTracksOnceARowIsEmpty()
{
    Demo demo;
    QAction* clear = demo.window.action(QStringLiteral("clear-empty-tracks"));
    QVERIFY(!clear->isEnabled());
    const QList<IMvClip*> secondRow = demo.timeline()->trackAt(1)->clips();
    for (const IMvClip* clip : secondRow) {
        QTest::mouseClick(
            demo.area(), Qt::LeftButton, Qt::ControlModifier, demo.area()->clipRect(clip, clip->trackIndex()).center());
    }
    demo.keys(demo.area(), Qt::Key_X);
    QVERIFY(demo.timeline()->trackAt(1)->clips().isEmpty());
    QVERIFY(clear->isEnabled());

    clear->trigger();

    QCOMPARE(demo.timeline()->trackCount(), 4);
    QCOMPARE(demo.undoName(), QStringLiteral("clear empty tracks"));
    QVERIFY(!clear->isEnabled());
}

void tst_MvDemoClipboard::audioCommandsFromTheClipMenu()
{
    Demo demo;
    MvMemoryClip* harbour = demo.clip(QStringLiteral("Harbour at dawn"));
    demo.click(demo.area(), harbour);
    QVERIFY(demo.window.action(QStringLiteral("detach-audio"))->isEnabled());
    const int clips = demo.timeline()->liveClips().size();

    demo.keys(demo.area(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);

    QCOMPARE(demo.timeline()->liveClips().size(), clips + 1);
    QCOMPARE(harbour->type(), MVVBLMODEL::ClipType_Video);
    QCOMPARE(demo.undoName(), QStringLiteral("batch detach audio"));
    QVERIFY(!demo.window.action(QStringLiteral("detach-audio"))->isEnabled());

    MvMemoryClip* theme = demo.clip(QStringLiteral("Theme"));
    demo.click(demo.area(), theme);
    QAction* mute = demo.window.action(QStringLiteral("mute-clips"));
    QCOMPARE(mute->text().remove(QLatin1Char('&')), QStringLiteral("Mute Clips"));
    demo.keys(demo.area(), Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(theme->isMuted());
    QCOMPARE(mute->text().remove(QLatin1Char('&')), QStringLiteral("Unmute Clips"));
    QCOMPARE(demo.undoName(), QStringLiteral("batch set mute"));

    QScopedPointer<QMenu> menu(demo.window.contextMenu(MvDemoContextMenus::Place::Clip));
    QAction* clearRemix = demo.window.action(QStringLiteral("clear-remix"));
    QVERIFY(menu->actions().contains(clearRemix));
    QVERIFY(clearRemix->isEnabled());
    clearRemix->trigger();
    QVERIFY(!theme->isRemixed());
    QCOMPARE(demo.undoName(), QStringLiteral("clear remix"));
    QVERIFY(!clearRemix->isEnabled());
}

void tst_MvDemoClipboard::compoundRefusalsReachThePerson()
{
    Demo demo;
    MvMemoryTimeline* sequence = demo.window.project()->sequence();
    demo.click(demo.area(), demo.clip(QStringLiteral("Sequence 1")));
    demo.keys(demo.area(), Qt::Key_C);
    demo.keys(demo.area(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    MvDemoTimelineWindow* inside = demo.window.timelineWindow(sequence);
    QVERIFY(inside && inside->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(inside));
    const int clipsInside = sequence->liveClips().size();

    demo.keys(inside->trackArea(), Qt::Key_V);

    QCOMPARE(demo.notices(), QStringList { NotItself });
    QCOMPARE(sequence->liveClips().size(), clipsInside);

    demo.window.action(QStringLiteral("open-other-project"))->trigger();
    MvMemoryTimeline* other = demo.window.project()->otherProjectTimeline();
    MvDemoTimelineWindow* elsewhere = demo.window.timelineWindow(other);
    QVERIFY(elsewhere && QTest::qWaitForWindowExposed(elsewhere));
    demo.click(elsewhere->trackArea(), Demo::clipIn(other, QStringLiteral("Reel intro")));
    demo.keys(elsewhere->trackArea(), Qt::Key_C);
    const int clips = demo.timeline()->liveClips().size();
    // The main window's own Paste: which window a shortcut reaches depends on the platform's
    // notion of the active window, which the offscreen one does not keep.
    demo.window.action(QStringLiteral("paste"))->trigger();

    QCOMPARE(demo.notices(), (QStringList { NotItself, NotExternal }));
    QCOMPARE(demo.timeline()->liveClips().size(), clips);
    // A plain clip of the other project pastes.
    elsewhere->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(elsewhere));
    demo.click(elsewhere->trackArea(), Demo::clipIn(other, QStringLiteral("Sunset")));
    demo.keys(elsewhere->trackArea(), Qt::Key_C);
    demo.window.action(QStringLiteral("paste"))->trigger();
    QCOMPARE(demo.timeline()->liveClips().size(), clips + 1);
}

void tst_MvDemoClipboard::disabledClipboardKeysSayWhy()
{
    Demo demo;
    QVERIFY(demo.timeline()->selection()->isEmpty());

    demo.keys(demo.area(), Qt::Key_C);
    demo.keys(demo.area(), Qt::Key_V);

    QCOMPARE(demo.notices(),
        (QStringList { QStringLiteral("Select the clips or the transition to copy."),
            QStringLiteral("Copy or cut something first.") }));
}

QTEST_MAIN(tst_MvDemoClipboard)
#include "tst_MvDemoClipboard.moc"
