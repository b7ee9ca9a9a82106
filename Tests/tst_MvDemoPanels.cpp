#include "IMvKeyFrameSelector.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoLibraryDock.h"
#include "MvDemoPresenter.h"
#include "MvDemoPropertiesDock.h"
#include "MvDemoTrackArea.h"
#include "MvDemoWindow.h"
#include "MvToast.h"

#include <QAction>
#include <QListWidget>
#include <QMenu>
#include <QtTest>

namespace {
// The demo window over its sample project, shown offscreen.
struct Demo
{
    Demo()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    MvMemoryClip* clip(const QString& name) const
    {
        for (MvMemoryClip* clip : window.timeline()->liveClips()) {
            if (clip->name() == name)
                return clip;
        }
        return nullptr;
    }
    // Selects the clips by name, in order, as clicks on them would.
    void select(const QStringList& names)
    {
        QList<IMvClip*> clips;
        for (const QString& name : names)
            clips.append(clip(name));
        window.timeline()->selection()->select(clips);
        Q_EMIT window.trackArea()->selectionChanged();
    }
    // The clip's context menu entry as a right click on it shows it: "" when it is not there.
    QString menuEntry(const QString& action)
    {
        QScopedPointer<QMenu> menu(window.contextMenu(MvDemoContextMenus::Place::Clip));
        for (QAction* entry : menu->actions()) {
            if (entry == window.action(action))
                return entry->isEnabled() ? QStringLiteral("enabled") : QStringLiteral("disabled");
        }
        return QString();
    }
    void trigger(const QString& action) { window.action(action)->trigger(); }
    QString notice() const
    {
        const QList<MvToast*> toasts = window.findChildren<MvToast*>();
        return toasts.isEmpty() ? QString() : toasts.last()->text();
    }
    bool journalHas(const QString& line) const { return window.journalLines().contains(line); }
    MvDemoPropertiesDock* properties() const { return window.propertiesDock(); }

    MvDemoWindow window { false };
};

QStringList selectedTexts(const QListWidget* list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i) {
        if (list->item(i)->isSelected())
            texts.append(list->item(i)->text());
    }
    return texts;
}
}

class tst_MvDemoPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clipMenuFollowsThePresentersAnswers_data();
    void clipMenuFollowsThePresentersAnswers();
    void selectAllTextsSelectsThePrimaryTextsInTheEditor();
    void findSimilarTellsTheLibraryAndHidesTheProperties();
    void eachRequestOpensItsPage_data();
    void eachRequestOpensItsPage();
    void pickingAKeyFrameSelectsItsClipAndSeeks();
    void disabledShortcutSaysWhy();
};

void tst_MvDemoPanels::clipMenuFollowsThePresentersAnswers_data()
{
    QTest::addColumn<QString>("clip");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("entry");

    QTest::newRow("stock footage: find similar") << "Fishing boats"
                                                 << "find-similar"
                                                 << "enabled";
    QTest::newRow("a built-in sticker: no search") << "Seagull"
                                                   << "find-similar"
                                                   << "disabled";
    QTest::newRow("own media: no search") << "Harbour at dawn"
                                          << "find-similar"
                                          << "disabled";
    QTest::newRow("the composed lower third: its texts") << "Lower third"
                                                         << "select-all-texts"
                                                         << "enabled";
    QTest::newRow("a plain title: no texts to select") << "A day by the sea"
                                                       << "select-all-texts"
                                                       << "disabled";
    QTest::newRow("music: no colour grading") << "Theme"
                                              << "advanced-color"
                                              << "disabled";
    QTest::newRow("a video: colour grading") << "Market street"
                                             << "advanced-color"
                                             << "enabled";
}

void tst_MvDemoPanels::clipMenuFollowsThePresentersAnswers()
{
    QFETCH(QString, clip);
    QFETCH(QString, action);
    QFETCH(QString, entry);
    Demo demo;
    demo.select({ clip });

    QCOMPARE(demo.menuEntry(action), entry);
    MvDemoPresenter* presenter = demo.window.presenter();
    if (action == QLatin1String("find-similar"))
        QCOMPARE(entry == QLatin1String("enabled"), presenter->canSearchSimilarResource());
    if (action == QLatin1String("select-all-texts"))
        QCOMPARE(entry == QLatin1String("enabled"), presenter->canSelectAllSubTextClips());
}

void tst_MvDemoPanels::selectAllTextsSelectsThePrimaryTextsInTheEditor()
{
    Demo demo;
    demo.select({ QStringLiteral("Lower third") });

    demo.trigger(QStringLiteral("select-all-texts"));

    QCOMPARE(demo.properties()->currentPage(), MvDemoPropertyWords::Page::AdvancedText);
    QVERIFY(demo.properties()->isVisible());
    QCOMPARE(selectedTexts(demo.properties()->textList()),
        QStringList({ QStringLiteral("Anna Berg"), QStringLiteral("Jon Berg") }));
    QCOMPARE(demo.properties()->textList()->count(), 3);
    QVERIFY(demo.journalHas(
        QStringLiteral("scene: select clips in the media editor: selected in the text editor: Anna Berg, Jon Berg")));
    QCOMPARE(demo.window.timeline()->undoRedoService()->undoCount(), 0);
}

void tst_MvDemoPanels::findSimilarTellsTheLibraryAndHidesTheProperties()
{
    Demo demo;
    demo.trigger(QStringLiteral("show-properties"));
    QVERIFY(demo.properties()->isVisible());
    demo.select({ QStringLiteral("Fishing boats") });

    demo.trigger(QStringLiteral("find-similar"));

    QVERIFY(!demo.properties()->isVisible());
    QVERIFY(demo.window.libraryDock()->isVisible());
    QCOMPARE(demo.window.libraryDock()->requests(),
        QStringList({ QStringLiteral(
            "Similar to \u201cFishing boats at sea\u201d on the Video shelf (resource 20417, stock-video-20417, "
            "library 1)") }));
    const QStringList journal = demo.window.journalLines();
    const int hidden = journal.indexOf(QStringLiteral("scene: hide the property panel: the Properties dock is hidden"));
    QVERIFY(hidden >= 0);
    QVERIFY(journal.value(hidden + 1).startsWith(QStringLiteral("scene: find similar resources in the media library")));
}

void tst_MvDemoPanels::eachRequestOpensItsPage_data()
{
    QTest::addColumn<QString>("clip");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("heading");

    QTest::newRow("properties of a video") << "Market street"
                                           << "show-properties"
                                           << "Clip properties";
    QTest::newRow("advanced edit of a text") << "Lower third"
                                             << "advanced-edit"
                                             << "Advanced text editor";
    QTest::newRow("advanced edit of a subtitle") << "Subtitles"
                                                 << "advanced-edit"
                                                 << "Advanced subtitle editor";
    QTest::newRow("advanced edit of a title") << "A day by the sea"
                                              << "advanced-edit"
                                              << "Advanced title editor";
    QTest::newRow("advanced edit of a video: its properties") << "Market street"
                                                              << "advanced-edit"
                                                              << "Clip properties";
    QTest::newRow("colour of an image") << "Old map"
                                        << "advanced-color"
                                        << "Advanced colour editor";
    QTest::newRow("animation of music") << "Theme"
                                        << "add-animation"
                                        << "Audio properties and audio keyframes";
    QTest::newRow("animation of a video") << "Harbour at dawn"
                                          << "add-animation"
                                          << "Picture properties and video keyframes";
}

void tst_MvDemoPanels::eachRequestOpensItsPage()
{
    QFETCH(QString, clip);
    QFETCH(QString, action);
    QFETCH(QString, heading);
    Demo demo;
    demo.select({ clip });

    demo.trigger(action);

    QVERIFY(demo.properties()->isVisible());
    QCOMPARE(demo.properties()->heading(), heading);
    QVERIFY(demo.properties()->clipText().contains(QStringLiteral("Name: %1").arg(clip)));
    demo.trigger(QStringLiteral("hide-properties"));
    QVERIFY(!demo.properties()->isVisible());
}

void tst_MvDemoPanels::pickingAKeyFrameSelectsItsClipAndSeeks()
{
    Demo demo;
    MvMemoryClip* theme = demo.clip(QStringLiteral("Theme"));
    demo.select({ QStringLiteral("Theme"), QStringLiteral("Fishing boats") });
    QVERIFY(!demo.window.action(QStringLiteral("audio-keyframe-panel"))->isEnabled());
    demo.trigger(QStringLiteral("add-animation"));
    QListWidget* keys = demo.properties()->keyFrameList(true);
    QCOMPARE(keys->count(), 2);

    QTest::mouseClick(keys->viewport(), Qt::LeftButton, Qt::NoModifier, keys->visualItemRect(keys->item(1)).center());

    QCOMPARE(demo.window.timeline()->selection()->selectedClips(), QList<IMvClip*>({ theme }));
    QCOMPARE(demo.window.timeline()->playhead()->currentFrame(), theme->start() + theme->keyFrames(true).at(1));
    QVERIFY(demo.window.timeline()->keyFrameSelector()->currentSelection().isValid());
    QVERIFY(demo.window.action(QStringLiteral("audio-keyframe-panel"))->isEnabled());
    demo.trigger(QStringLiteral("show-properties"));
    demo.trigger(QStringLiteral("audio-keyframe-panel"));
    QCOMPARE(demo.properties()->currentPage(), MvDemoPropertyWords::Page::Audio);
    QCOMPARE(demo.window.timeline()->undoRedoService()->undoCount(), 0);
}

void tst_MvDemoPanels::disabledShortcutSaysWhy()
{
    Demo demo;
    demo.select({ QStringLiteral("Harbour at dawn") });
    QTest::keyClick(demo.window.trackArea(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(demo.notice(),
        QStringLiteral(
            "\u201cHarbour at dawn\u201d is your own media: the library finds only resources like its own."));

    demo.select({ QStringLiteral("Seagull") });
    QTest::keyClick(demo.window.trackArea(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(demo.notice(), QStringLiteral("The library's similarity search does not know \u201cSeagull\u201d."));
    QVERIFY(demo.window.libraryDock()->requests().isEmpty());
}

QTEST_MAIN(tst_MvDemoPanels)
#include "tst_MvDemoPanels.moc"
