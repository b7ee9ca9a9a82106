#include "IMvEffect.h"
#include "IMvProjectManager.h"
#include "IMvSelection.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoContextMenus.h"
#include "MvDemoEffectDocks.h"
#include "MvDemoEffectDrops.h"
#include "MvDemoMediaPanel.h"
#include "MvDemoTrackArea.h"
#include "MvDemoWindow.h"
#include "MvToast.h"

#include <QAction>
#include <QMenu>
#include <QMimeData>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString RepeatText
    = QStringLiteral("There is no extra media where the clips connect, This transition will contain duplicate frames");

struct Demo
{
    Demo()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.action(QStringLiteral("zoom-fit"))->trigger();
    }

    MvMemoryClip* clip(const QString& name) const
    {
        for (MvMemoryClip* clip : window.timeline()->liveClips()) {
            if (clip->name() == name)
                return clip;
        }
        return nullptr;
    }
    MvDemoTrackArea* area() const { return window.trackArea(); }
    // A point on the clip, at a fraction of its width.
    QPoint on(const QString& name, double fraction) const
    {
        const IMvClip* c = clip(name);
        const QRect rect = area()->clipRect(c, c->trackIndex());
        return QPoint(rect.left() + int(rect.width() * fraction), rect.center().y());
    }
    // A panel's drag brought onto the tracks and let go; whether the area took the drop.
    bool drop(const QString& mimeType, const QString& item, const QPoint& at)
    {
        QMimeData data;
        data.setData(mimeType, item.toUtf8());
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(area(), &enter);
        QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(area(), &move);
        outlineWhileOver = window.effectDrops()->outline();
        QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(area(), &dropped);
        return dropped.isAccepted() && move.isAccepted();
    }
    QString transitionsOf(const QString& name) const
    {
        QStringList lines;
        for (const MvMemoryTransition* transition : clip(name)->liveTransitions())
            lines.append(QStringLiteral("%1 at %2").arg(transition->name()).arg(transition->placement()));
        return lines.join(QLatin1String(", "));
    }
    QString effectsOf(const QString& name) const
    {
        return clip(name)->state().effects.text().remove(QRegExp(QStringLiteral("#\\d+")));
    }
    int undoCount() const { return window.timeline()->undoRedoService()->undoCount(); }
    static int repeatToasts()
    {
        int count = 0;
        // Made without a parent, the notice goes over the application's main window.
        for (QWidget* widget : QApplication::allWidgets()) {
            auto* toast = qobject_cast<MvToast*>(widget);
            count += toast && toast->text() == RepeatText ? 1 : 0;
        }
        return count;
    }
    QString notice() const
    {
        const QList<MvToast*> toasts = window.findChildren<MvToast*>();
        return toasts.isEmpty() ? QString() : toasts.last()->text();
    }
    bool enabled(const char* name) const { return window.action(QLatin1String(name))->isEnabled(); }

    MvDemoWindow window { false };
    QRect outlineWhileOver;
};
}

// The Transitions and Effects panels of the demo, their drops onto the tracks, and the effect
// commands of its menus.
class tst_MvDemoEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void panelsPictureTheirItems();
    void dropTargetFollowsThePointer_data();
    void dropTargetFollowsThePointer();
    void transitionDroppedOnACutWarnsOncePerProject();
    void transitionDroppedOverAnotherReplacesIt();
    void effectDroppedOnAClip();
    void clipsWithEffectsWearABadge();
    void foreignDropsAreLeftAlone();
    void effectCommandsFollowThePresenter();
    void audioEffectQuestionIsAnswered();
    void applyToSelectionTellsRefusals();
    void effectsRefusedByTheClipsAreExplained_data();
    void effectsRefusedByTheClipsAreExplained();
};

void tst_MvDemoEffects::cleanup()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<MvToast*>(widget))
            delete widget;
    }
}

void tst_MvDemoEffects::panelsPictureTheirItems()
{
    Demo demo;
    MvDemoItemShelf* transitions = demo.window.transitionsDock()->shelf();
    QStringList names;
    QList<QImage> pictures;
    for (int i = 0; i < transitions->count(); ++i) {
        names.append(transitions->item(i)->text());
        pictures.append(transitions->item(i)->icon().pixmap(96, 54).toImage());
        QVERIFY(!pictures.last().isNull());
    }
    QCOMPARE(names,
        QStringList({ QStringLiteral("Dissolve"), QStringLiteral("Wipe"), QStringLiteral("Slide"),
            QStringLiteral("Audio crossfade (sound)") }));
    // Each drawn as it goes: a wipe half done is not a dissolve half done.
    QVERIFY(pictures.at(0) != pictures.at(1));
    QVERIFY(pictures.at(1) != pictures.at(2));
    MvDemoItemShelf* effects = demo.window.effectsDock()->shelf();
    QCOMPARE(effects->count(), 5);
    QCOMPARE(effects->item(3)->text(), QStringLiteral("Echo (sound)"));
    QVERIFY(effects->item(0)->icon().pixmap(96, 54).toImage() != effects->item(1)->icon().pixmap(96, 54).toImage());
    // They are on these shelves only: the Media panel keeps to what becomes clips.
    for (const QString& name : { QStringLiteral("Dissolve"), QStringLiteral("Sepia"), QStringLiteral("Echo") })
        QCOMPARE(demo.window.mediaPanel()->rowOf(name), -1);
}

void tst_MvDemoEffects::dropTargetFollowsThePointer_data()
{
    QTest::addColumn<QString>("clip");
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("type");
    QTest::newRow("the first half: its start") << QStringLiteral("Fishing boats") << 0.3 << int(TransitionType_Start);
    QTest::newRow("the second half: its end") << QStringLiteral("Fishing boats") << 0.7 << int(TransitionType_End);
    QTest::newRow("over a transition: its place")
        << QStringLiteral("Market street") << 0.01 << int(TransitionType_Start);
}

void tst_MvDemoEffects::dropTargetFollowsThePointer()
{
    QFETCH(QString, clip);
    QFETCH(double, fraction);
    QFETCH(int, type);
    Demo demo;
    const QPoint at = demo.on(clip, fraction);
    const MvDemoEffectDrops::Target target = MvDemoEffectDrops::transitionTarget(*demo.area(), at, 60);
    QCOMPARE(target.clip, demo.clip(clip));
    QCOMPARE(target.transitionType, type);
    // The outline lies over the end the transition goes to.
    const QRect clipRect = demo.area()->clipRect(target.clip, target.clip->trackIndex());
    QVERIFY(clipRect.contains(target.outline.center()));
    QCOMPARE(target.outline.center().x() < clipRect.center().x(), type == TransitionType_Start);
    QVERIFY(!MvDemoEffectDrops::transitionTarget(*demo.area(), QPoint(-5, -5), 60).isValid());
}

void tst_MvDemoEffects::transitionDroppedOnACutWarnsOncePerProject()
{
    Demo demo;
    // Market street has no media after its end: a wipe over its cut with the map repeats frames.
    QVERIFY(
        demo.drop(MvDemoTransitionsDock::MimeType, QStringLiteral("Wipe"), demo.on(QStringLiteral("Old map"), 0.2)));
    QVERIFY(!demo.outlineWhileOver.isNull());
    QVERIFY(demo.window.effectDrops()->outline().isNull()); // gone with the drop
    QCOMPARE(demo.transitionsOf(QStringLiteral("Old map")), QStringLiteral("Wipe at 1"));
    QCOMPARE(demo.window.timeline()->selection()->selectedItems().size(), 1);
    QCOMPARE(demo.window.timeline()->undoRedoService()->undoName(), QStringLiteral("add transition"));
    QCOMPARE(Demo::repeatToasts(), 1);
    QVERIFY(IMvProjectManager::getInstance()->currentProjectSettings()->isRepeatFrameTipShown());
    QVERIFY(demo.window.journalLines().contains(
        QStringLiteral("drop: transition \u201cWipe\u201d on the start of \u201cOld map\u201d")));
    // The same again at the map's other cut... the notice is not repeated in this project.
    QVERIFY(demo.drop(
        MvDemoTransitionsDock::MimeType, QStringLiteral("Dissolve"), demo.on(QStringLiteral("Old map"), 0.9)));
    QCOMPARE(demo.transitionsOf(QStringLiteral("Old map")), QStringLiteral("Wipe at 1, Dissolve at 2"));
    QCOMPARE(Demo::repeatToasts(), 1);
}

void tst_MvDemoEffects::transitionDroppedOverAnotherReplacesIt()
{
    Demo demo;
    QCOMPARE(demo.transitionsOf(QStringLiteral("Market street")), QStringLiteral("Cross dissolve at 1"));
    QVERIFY(demo.drop(
        MvDemoTransitionsDock::MimeType, QStringLiteral("Slide"), demo.on(QStringLiteral("Market street"), 0.01)));
    // The slide had to be downloaded first; the scene did that for the panel.
    QCOMPARE(demo.transitionsOf(QStringLiteral("Market street")), QStringLiteral("Slide at 1"));
    QVERIFY(!demo.window.mediaLibrary()->find(QStringLiteral("Slide"))->needDownload());
    QCOMPARE(demo.undoCount(), 1);
    QVERIFY(demo.window.journalLines().contains(QStringLiteral("scene: media added: 1 transition(s) placed")));
}

void tst_MvDemoEffects::effectDroppedOnAClip()
{
    Demo demo;
    QVERIFY(demo.drop(MvDemoEffectsDock::MimeType, QStringLiteral("Vignette"), demo.on(QStringLiteral("Logo"), 0.5)));
    QCOMPARE(demo.effectsOf(QStringLiteral("Logo")), QStringLiteral("video \"Vignette\"; audio -"));
    QCOMPARE(demo.window.timeline()->undoRedoService()->undoName(), QStringLiteral("add effect medias"));
    QVERIFY(
        demo.window.journalLines().contains(QStringLiteral("scene: media added: effect \u201cVignette\u201d applied")));
    // On empty space the drop is refused and nothing happens.
    const int steps = demo.undoCount();
    QVERIFY(!demo.drop(MvDemoEffectsDock::MimeType, QStringLiteral("Blur"), QPoint(2, demo.area()->height() - 2)));
    QCOMPARE(demo.undoCount(), steps);
}

void tst_MvDemoEffects::clipsWithEffectsWearABadge()
{
    Demo demo;
    // Inside the badge's top right corner, clear of its rounding and of its text.
    const auto badgePixel = [&demo](const QString& name) {
        const IMvClip* c = demo.clip(name);
        const QRect rect = demo.area()->clipRect(c, c->trackIndex());
        return demo.area()->grab().toImage().pixelColor(rect.right() - 6, rect.top() + 5);
    };
    const QColor videoBadge(0x6A, 0x3F, 0xB5);
    const QColor soundBadge(0xC7, 0x6B, 0x12);
    QVERIFY(badgePixel(QStringLiteral("Logo")) != videoBadge);
    QVERIFY(demo.drop(MvDemoEffectsDock::MimeType, QStringLiteral("Vignette"), demo.on(QStringLiteral("Logo"), 0.5)));
    QCOMPARE(badgePixel(QStringLiteral("Logo")), videoBadge);
    QVERIFY(badgePixel(QStringLiteral("Theme")) != soundBadge);
    QVERIFY(demo.drop(MvDemoEffectsDock::MimeType, QStringLiteral("Echo"), demo.on(QStringLiteral("Theme"), 0.3)));
    QCOMPARE(badgePixel(QStringLiteral("Theme")), soundBadge);
    // Undone, the badge goes with the effect.
    QVERIFY(demo.window.timeline()->undoRedoService()->undo());
    demo.area()->update();
    QVERIFY(badgePixel(QStringLiteral("Theme")) != soundBadge);
}

void tst_MvDemoEffects::foreignDropsAreLeftAlone()
{
    Demo demo;
    QVERIFY(!demo.drop(QStringLiteral("text/plain"), QStringLiteral("Blur"), demo.on(QStringLiteral("Logo"), 0.5)));
    QVERIFY(!demo.drop(
        MvDemoEffectsDock::MimeType, QStringLiteral("No such effect"), demo.on(QStringLiteral("Logo"), 0.5)));
    QCOMPARE(demo.undoCount(), 0);
}

void tst_MvDemoEffects::effectCommandsFollowThePresenter()
{
    Demo demo;
    IMvSelection* selection = demo.window.timeline()->selection();
    QMenu* menu = demo.window.contextMenu(MvDemoContextMenus::Place::Clip);
    QStringList texts;
    for (QAction* action : menu->actions())
        texts.append(action->text());
    delete menu;
    QVERIFY(texts.contains(QStringLiteral("&Copy Effects")));
    QVERIFY(texts.contains(QStringLiteral("&Paste Effects")));
    QVERIFY(texts.contains(QStringLiteral("&Delete Effects")));

    selection->select({ demo.clip(QStringLiteral("Fishing boats")) }); // carries Warm tint
    demo.window.action(QStringLiteral("zoom-fit"))->trigger(); // the menus catch up
    QVERIFY(demo.enabled("copy-effects"));
    QVERIFY(!demo.enabled("paste-effects"));
    QTest::keyClick(demo.area(), Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
    selection->select({ demo.clip(QStringLiteral("Old map")) });
    demo.window.action(QStringLiteral("zoom-fit"))->trigger();
    QVERIFY(!demo.enabled("copy-effects"));
    QVERIFY(demo.enabled("paste-effects"));
    QVERIFY(!demo.enabled("delete-effects"));
    // A disabled shortcut says why.
    QTest::keyClick(demo.area(), Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(demo.notice(), QStringLiteral("The selected clips have no effects."));
    QTest::keyClick(demo.area(), Qt::Key_V, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(demo.effectsOf(QStringLiteral("Old map")), QStringLiteral("video \"Warm tint\"; audio -"));
    QVERIFY(demo.enabled("delete-effects"));
    QTest::keyClick(demo.area(), Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(demo.effectsOf(QStringLiteral("Old map")), QStringLiteral("video ; audio -"));
    QCOMPARE(
        demo.window.timeline()->undoRedoService()->undoName(), QStringLiteral("MvTimelinePresenter::deleteEffect"));
}

void tst_MvDemoEffects::audioEffectQuestionIsAnswered()
{
    Demo demo;
    demo.window.timeline()->selection()->select({ demo.clip(QStringLiteral("Theme")) });
    MvDemoItemShelf* effects = demo.window.effectsDock()->shelf();
    effects->setCurrentRow(3); // Echo
    demo.window.action(QStringLiteral("apply-effect"))->trigger();
    effects->setCurrentRow(4); // Noise reduction: Theme plays through Echo already
    demo.window.action(QStringLiteral("apply-effect"))->trigger();
    QCOMPARE(demo.effectsOf(QStringLiteral("Theme")), QStringLiteral("video ; audio \"Noise reduction\""));
    QVERIFY(demo.window.journalLines().contains(
        QStringLiteral("scene: ask whether to replace an audio effect: replace the audio effect of Theme")));
}

void tst_MvDemoEffects::applyToSelectionTellsRefusals()
{
    Demo demo;
    IMvSelection* selection = demo.window.timeline()->selection();
    // Pictures over sound, sound over pictures: the presenter's own notices.
    selection->select({ demo.clip(QStringLiteral("Theme")) });
    demo.window.action(QStringLiteral("apply-transition"))->trigger();
    QCOMPARE(demo.notice(), QStringLiteral("Please select the video clip in the timeline."));
    demo.window.transitionsDock()->shelf()->setCurrentRow(3);
    selection->select({ demo.clip(QStringLiteral("Old map")) });
    demo.window.action(QStringLiteral("apply-transition"))->trigger();
    QCOMPARE(demo.notice(), QStringLiteral("Please select the clip with audio in the timeline."));
    QCOMPARE(demo.undoCount(), 0);
    // Nothing selected: the clips that start over others (the title over the harbour) take it.
    demo.window.transitionsDock()->shelf()->setCurrentRow(0);
    selection->clear();
    demo.window.action(QStringLiteral("apply-transition"))->trigger();
    QCOMPARE(demo.transitionsOf(QStringLiteral("A day by the sea")), QStringLiteral("Dissolve at 1"));
    QCOMPARE(demo.undoCount(), 1);
}

void tst_MvDemoEffects::effectsRefusedByTheClipsAreExplained_data()
{
    QTest::addColumn<bool>("byDrop");
    QTest::addColumn<QString>("clip");
    QTest::addColumn<int>("shelfRow");
    QTest::addColumn<QString>("notice");
    const QString picture = QStringLiteral(
        "\u201cBlur\u201d changes the picture: it needs a clip with a picture of its own on an unlocked track.");
    const QString sound
        = QStringLiteral("\u201cEcho\u201d is a sound effect: it needs a clip with sound on an unlocked track.");
    QTest::newRow("a picture effect applied to music") << false << QStringLiteral("Theme") << 0 << picture;
    QTest::newRow("a sound effect applied to a still") << false << QStringLiteral("Old map") << 3 << sound;
    QTest::newRow("a picture effect dropped on music") << true << QStringLiteral("Theme") << 0 << picture;
    QTest::newRow("a sound effect dropped on a still") << true << QStringLiteral("Old map") << 3 << sound;
}

void tst_MvDemoEffects::effectsRefusedByTheClipsAreExplained()
{
    QFETCH(bool, byDrop);
    QFETCH(QString, clip);
    QFETCH(int, shelfRow);
    QFETCH(QString, notice);
    Demo demo;
    MvDemoItemShelf* shelf = demo.window.effectsDock()->shelf();
    shelf->setCurrentRow(shelfRow);
    const QString before = demo.effectsOf(clip);
    if (byDrop) {
        QVERIFY(demo.drop(
            MvDemoEffectsDock::MimeType, shelf->currentItem()->data(Qt::UserRole).toString(), demo.on(clip, 0.5)));
    } else {
        demo.window.timeline()->selection()->select({ demo.clip(clip) });
        demo.window.action(QStringLiteral("apply-effect"))->trigger();
    }
    QCOMPARE(demo.notice(), notice);
    QCOMPARE(demo.effectsOf(clip), before);
    QCOMPARE(demo.undoCount(), 0);
}

QTEST_MAIN(tst_MvDemoEffects)
#include "tst_MvDemoEffects.moc"
