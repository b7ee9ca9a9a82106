// The demo in the user's language: which language the command line picks, which catalogues are
// loaded for it, and the German window that results.

#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoMarkers.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTranslations.h"
#include "MvDemoUndoWords.h"
#include "MvDemoWindow.h"
#include "MvToolTipHelper.h"

#include <QAction>
#include <QLibraryInfo>
#include <QMenuBar>
#include <QTranslator>
#include <QtTest>

class tst_MvDemoTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void languageFromTheCommandLine_data();
    void languageFromTheCommandLine();
    void installLoadsQtsTheLibrarysAndTheDemosCatalogues_data();
    void installLoadsQtsTheLibrarysAndTheDemosCatalogues();
    void undoStepsAreNamedInTheUsersWords();
    void theGermanWindowSpeaksGerman();
};

void tst_MvDemoTranslations::cleanup()
{
    // Each case starts in English: the translators installed by a case go with it.
    const QList<QTranslator*> installed = QCoreApplication::instance()->findChildren<QTranslator*>();
    for (QTranslator* translator : installed) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
}

void tst_MvDemoTranslations::languageFromTheCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("locale");
    const QString system = QLocale::system().name();
    const QString demo = QStringLiteral("mvtimeline-demo");
    QTest::newRow("no option: the system's") << QStringList { demo, QStringLiteral("--verbose") } << system;
    QTest::newRow("--lang de") << QStringList { demo, QStringLiteral("--lang"), QStringLiteral("de") }
                               << QStringLiteral("de_DE");
    QTest::newRow("--lang=fr among others")
        << QStringList { demo, QStringLiteral("--verbose"), QStringLiteral("--lang=fr"), QStringLiteral("--scenario") }
        << QStringLiteral("fr_FR");
    QTest::newRow("a region") << QStringList { demo, QStringLiteral("--lang"), QStringLiteral("de_AT") }
                              << QStringLiteral("de_AT");
    QTest::newRow("the last one wins") << QStringList { demo, QStringLiteral("--lang=fr"), QStringLiteral("--lang"),
        QStringLiteral("de") } << QStringLiteral("de_DE");
    QTest::newRow("an unknown name: the system's")
        << QStringList { demo, QStringLiteral("--lang"), QStringLiteral("klingon") } << system;
    QTest::newRow("no value: the system's") << QStringList { demo, QStringLiteral("--lang") } << system;
    QTest::newRow("the program's own name is no option") << QStringList { QStringLiteral("--lang=fr") } << system;
}

void tst_MvDemoTranslations::languageFromTheCommandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, locale);
    QCOMPARE(MvDemoTranslations::localeFromArguments(arguments).name(), locale);
}

void tst_MvDemoTranslations::installLoadsQtsTheLibrarysAndTheDemosCatalogues_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("catalogues");
    const QString qtCatalogues = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    const auto withQt = [&](const QString& language, QStringList ours) {
        if (QFile::exists(QStringLiteral("%1/qtbase_%2.qm").arg(qtCatalogues, language)))
            ours.prepend(QStringLiteral("qtbase_") + language);
        return ours;
    };
    QTest::newRow("German") << QStringLiteral("de")
                            << withQt(QStringLiteral("de"),
                                   { QStringLiteral("mvtimeline_de"), QStringLiteral("mvtimeline-demo_de") });
    QTest::newRow("French of Switzerland: the French ones")
        << QStringLiteral("fr_CH")
        << withQt(QStringLiteral("fr"), { QStringLiteral("mvtimeline_fr"), QStringLiteral("mvtimeline-demo_fr") });
    QTest::newRow("English: the texts as written, none of ours")
        << QStringLiteral("en_US") << withQt(QStringLiteral("en"), {});
    QTest::newRow("a language without catalogues") << QStringLiteral("fi") << withQt(QStringLiteral("fi"), {});
}

void tst_MvDemoTranslations::installLoadsQtsTheLibrarysAndTheDemosCatalogues()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, catalogues);
    QCOMPARE(MvDemoTranslations::install(QLocale(locale)), catalogues);
    QCOMPARE(QCoreApplication::instance()->findChildren<QTranslator*>().size(), catalogues.size());
}

void tst_MvDemoTranslations::undoStepsAreNamedInTheUsersWords()
{
    QCOMPARE(MvDemoUndoWords::step(QStringLiteral("move clips")), QStringLiteral("Move Clips"));
    QVERIFY(MvDemoTranslations::install(QLocale(QStringLiteral("de"))).contains(QStringLiteral("mvtimeline-demo_de")));
    QCOMPARE(MvDemoUndoWords::step(QStringLiteral("move clips")), QStringLiteral("Clips verschieben"));
    QCOMPARE(MvDemoUndoWords::step(QStringLiteral("ripple delete clips")),
        QStringLiteral("Clips mit Lückenschluss löschen"));
    QCOMPARE(MvDemoUndoWords::step(QStringLiteral("trim end")), QStringLiteral("Ende trimmen"));
    // A step the demo has no words for reads as the model named it.
    QCOMPARE(MvDemoUndoWords::step(QStringLiteral("reticulate splines")), QStringLiteral("reticulate splines"));
    QCOMPARE(MvDemoUndoWords::step(QString()), QString());
}

void tst_MvDemoTranslations::theGermanWindowSpeaksGerman()
{
    MvDemoTranslations::install(QLocale(QStringLiteral("de")));
    MvDemoWindow window(false);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QCOMPARE(window.windowTitle(), QStringLiteral("Ein Tag am Meer[*] – MvTimeline-Demo"));
    QStringList menus;
    for (QAction* menu : window.menuBar()->actions())
        menus.append(menu->text());
    QCOMPARE(menus.mid(0, 4).join(QLatin1Char('|')), QStringLiteral("&Datei|&Bearbeiten|&Clip|&Markierungen"));
    QCOMPARE(window.action(QStringLiteral("split"))->text(), QStringLiteral("Am Abspielkopf &teilen"));
    QVERIFY2(window.statusText().startsWith(QStringLiteral("Abspielkopf 00:00:00:00 (Frame 0)")),
        qPrintable(window.statusText()));

    // The Edit menu names the step to undo in German words.
    MvMemoryClip* logo = nullptr;
    for (MvMemoryClip* clip : window.timeline()->liveClips()) {
        if (clip->name() == QLatin1String("Logo"))
            logo = clip;
    }
    QVERIFY(logo);
    window.timeline()->selection()->select({ logo });
    QVERIFY(window.moveSelection(30, 0));
    QCOMPARE(window.action(QStringLiteral("undo"))->text(), QStringLiteral("&Rückgängig: Clips verschieben"));

    // The marker strip names the sample's unnamed markers in the library's German words.
    MvDemoMarkerStrip* strip = window.column()->markerStrip();
    QCOMPARE(strip->markers().size(), 2);
    QCOMPARE(strip->markerDescription(1), QStringLiteral("Unbenannte Markierung\n00:01:00:00"));
}

QTEST_MAIN(tst_MvDemoTranslations)
#include "tst_MvDemoTranslations.moc"
