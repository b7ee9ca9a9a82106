// The library in another language: the shipped catalogues hold every text, translated and usable,
// and the built German catalogue turns the library's texts German where a user meets them.

#include "Memory/MvMemoryTimeline.h"
#include "MvCatalogueCheck.h"
#include "MvCustomEvent.h"
#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvMarkerPresenter.h"
#include "MvRecordingScene.h"
#include "MvTextEdit.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QAccessible>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A catalogue of the build, installed on the application while it lives.
class InstalledCatalogue
{
public:
    explicit InstalledCatalogue(const QString& name)
    {
        loaded = translator.load(name, QStringLiteral(MV_TRANSLATIONS_DIR));
        if (loaded)
            QCoreApplication::installTranslator(&translator);
    }
    ~InstalledCatalogue() { QCoreApplication::removeTranslator(&translator); }

    QTranslator translator;
    bool loaded = false;
};

// A presenter that lets the test raise the protected nesting notice.
class NestToastPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    using MvTimelinePresenter::showTimelineNestToast;
};

// The texts of every toast raised while it lives.
struct ToastTexts
{
    QObject owner;
    QStringList texts;

    ToastTexts()
    {
        new MvCustomEventListener(
            &owner, QLatin1String(MvEventName::ShowCustomToast), [this](const MvCustomEventImp& e) {
                texts.append(e.values().value(2).toString());
                return false;
            });
    }
};

MvMarkerParam markerParam()
{
    MvMarkerParam param;
    param.colors = MvMarkerPresenter::markerPalette();
    param.colorIndex = 0;
    param.name = QStringLiteral("Intro");
    param.time = QStringLiteral("00:00:01:00");
    return param;
}

// What the marker editor shows, one line per text.
QStringList editorTexts(MvMarkerEditDialog& dialog)
{
    MvMarkerEditPanel* panel = dialog.panel();
    return { dialog.title(), panel->nameLabel()->text(), panel->timeLabel()->text(), panel->commentLabel()->text(),
        panel->colorLabel()->text(), panel->commentEdit()->placeholderText(), panel->colorRow()->colorName(0),
        panel->colorRow()->colorName(7), dialog.okButton()->text(), dialog.deleteButton()->text() };
}

const QStringList kEnglishEditor { QStringLiteral("Marker Editor"), QStringLiteral("Name:"), QStringLiteral("Time:"),
    QStringLiteral("Comment:"), QStringLiteral("Marker Color:"), QStringLiteral("Add your comments here"),
    QStringLiteral("Red"), QStringLiteral("Pink"), QStringLiteral("OK"), QStringLiteral("DELETE") };
const QStringList kGermanEditor { QStringLiteral("Markierung bearbeiten"), QStringLiteral("Name:"),
    QStringLiteral("Zeit:"), QStringLiteral("Kommentar:"), QStringLiteral("Markierungsfarbe:"),
    QStringLiteral("Kommentar hier eingeben"), QStringLiteral("Rot"), QStringLiteral("Rosa"), QStringLiteral("OK"),
    QStringLiteral("LÖSCHEN") };

} // namespace

class tst_MvTimelineTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedCataloguesAreComplete_data();
    void shippedCataloguesAreComplete();
    void theCheckFindsWhatIsLeftUndone_data();
    void theCheckFindsWhatIsLeftUndone();
    void splitButtonToastsAndWidgetsSpeakGerman();
    void markerEditorSpeaksGerman();
    void markerEditorFollowsALanguageChange();
};

void tst_MvTimelineTranslations::shippedCataloguesAreComplete_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("language");
    const QString root = QStringLiteral(MV_SOURCE_DIR);
    QTest::newRow("library, German") << root + QStringLiteral("/Src/MvTimeline/translations/mvtimeline_de.ts")
                                     << QStringLiteral("de_DE");
    QTest::newRow("library, French") << root + QStringLiteral("/Src/MvTimeline/translations/mvtimeline_fr.ts")
                                     << QStringLiteral("fr_FR");
    QTest::newRow("demo, German") << root + QStringLiteral("/Demo/translations/mvtimeline-demo_de.ts")
                                  << QStringLiteral("de_DE");
    QTest::newRow("demo, French") << root + QStringLiteral("/Demo/translations/mvtimeline-demo_fr.ts")
                                  << QStringLiteral("fr_FR");
}

void tst_MvTimelineTranslations::shippedCataloguesAreComplete()
{
    QFETCH(QString, path);
    QFETCH(QString, language);
    const QByteArray xml = readFile(path);
    QVERIFY2(!xml.isEmpty(), qPrintable(path));
    int count = 0;
    QCOMPARE(MvCatalogueCheck::language(xml, &count), language);
    QVERIFY(count > 30);
    QCOMPARE(MvCatalogueCheck::problems(xml), QStringList());
}

void tst_MvTimelineTranslations::theCheckFindsWhatIsLeftUndone_data()
{
    QTest::addColumn<QString>("messages");
    QTest::addColumn<QStringList>("problems");
    const auto message = [](const QString& source, const QString& translation) {
        return QStringLiteral("<message><source>%1</source>%2</message>").arg(source, translation);
    };
    QTest::newRow("translated") << message(
        QStringLiteral("Color %1"), QStringLiteral("<translation>Farbe %1</translation>"))
                                << QStringList();
    QTest::newRow("unfinished") << message(
        QStringLiteral("Red"), QStringLiteral("<translation type=\"unfinished\">Rot</translation>"))
                                << QStringList { QStringLiteral("Ctx \"Red\": unfinished") };
    QTest::newRow("gone from the sources")
        << message(QStringLiteral("Old"), QStringLiteral("<translation type=\"vanished\">Alt</translation>"))
        << QStringList { QStringLiteral("Ctx \"Old\": vanished") };
    QTest::newRow("empty") << message(QStringLiteral("Blue"), QStringLiteral("<translation> </translation>"))
                           << QStringList { QStringLiteral("Ctx \"Blue\": empty translation") };
    QTest::newRow("no translation element")
        << message(QStringLiteral("Blue"), QString()) << QStringList { QStringLiteral("Ctx \"Blue\": no translation") };
    QTest::newRow("a placeholder lost") << message(
        QStringLiteral("%1 in %2"), QStringLiteral("<translation>%1 in</translation>"))
                                        << QStringList { QStringLiteral(
                                               "Ctx \"%1 in %2\": other placeholders in \"%1 in\"") };
    QTest::newRow("a placeholder added") << message(
        QStringLiteral("Split"), QStringLiteral("<translation>%1 teilen</translation>"))
                                         << QStringList { QStringLiteral(
                                                "Ctx \"Split\": other placeholders in \"%1 teilen\"") };
    QTest::newRow("placeholders in another order")
        << message(QStringLiteral("%1 of %2"), QStringLiteral("<translation>%2 : %1</translation>")) << QStringList();
    QTest::newRow("accelerator lost") << message(
        QStringLiteral("&amp;File"), QStringLiteral("<translation>Datei</translation>"))
                                      << QStringList { QStringLiteral(
                                             "Ctx \"&File\": accelerator lost or added in \"Datei\"") };
    QTest::newRow("a literal ampersand is no accelerator")
        << message(QStringLiteral("Cut &amp;&amp; Paste"), QStringLiteral("<translation>Schnitt</translation>"))
        << QStringList();
    QTest::newRow("a plural form left empty")
        << QStringLiteral("<message numerus=\"yes\"><source>%n clips</source><translation>"
                          "<numerusform>%n Clip</numerusform><numerusform></numerusform></translation></message>")
        << QStringList { QStringLiteral("Ctx \"%n clips\": empty translation") };
}

void tst_MvTimelineTranslations::theCheckFindsWhatIsLeftUndone()
{
    QFETCH(QString, messages);
    QFETCH(QStringList, problems);
    const QString xml = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\" "
                                       "language=\"de_DE\"><context><name>Ctx</name>%1</context></TS>")
                            .arg(messages);
    QCOMPARE(MvCatalogueCheck::problems(xml.toUtf8()), problems);
}

void tst_MvTimelineTranslations::splitButtonToastsAndWidgetsSpeakGerman()
{
    MvMemoryTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    timeline.addClip(0, ClipType_Video, 0, 299, QStringLiteral("a"));
    MvRecordingScene scene;
    NestToastPresenter presenter(nullptr, &timeline);
    presenter.setScene(&scene);
    MvTimelinePlayheadPresenter playheadPresenter(&presenter, nullptr);
    MvTimelineRulerPresenter rulerPresenter(&presenter, nullptr);
    QWidget window;
    auto* playhead = new MvTimelinePlayheadWidget(&playheadPresenter, &window);
    auto* ruler = new MvTimelineRulerWidget(&rulerPresenter, &window);
    auto* strip = new MvTimelineRenderWidget(&presenter, &window);
    ToastTexts toasts;

    const auto texts = [&] {
        toasts.texts.clear();
        presenter.showTimelineNestToast(true);
        presenter.showTimelineNestToast(false);
        return QStringList { playhead->splitButtonToolTip(), toasts.texts.value(0), toasts.texts.value(1),
            QAccessible::queryAccessibleInterface(playhead)->text(QAccessible::Name),
            QAccessible::queryAccessibleInterface(ruler)->text(QAccessible::Name),
            QAccessible::queryAccessibleInterface(strip)->text(QAccessible::Value) };
    };
    QCOMPARE(texts(),
        QStringList({ QStringLiteral("Click to split\nDrag to Move playhead"),
            QStringLiteral("Unable to add compound clip itself, please try again"),
            QStringLiteral("Unable to add external compound clip. Please try again."), QStringLiteral("Playhead"),
            QStringLiteral("Time ruler"), QStringLiteral("0% rendered") }));

    InstalledCatalogue german(QStringLiteral("mvtimeline_de"));
    QVERIFY(german.loaded);
    QCOMPARE(texts(),
        QStringList({ QStringLiteral("Klicken zum Teilen\nZiehen verschiebt den Abspielkopf"),
            QStringLiteral("Ein zusammengesetzter Clip kann nicht in sich selbst eingefügt werden, bitte erneut "
                           "versuchen"),
            QStringLiteral(
                "Der externe zusammengesetzte Clip konnte nicht hinzugefügt werden. Bitte erneut versuchen."),
            QStringLiteral("Abspielkopf"), QStringLiteral("Zeitlineal"), QStringLiteral("0 % gerendert") }));
}

void tst_MvTimelineTranslations::markerEditorSpeaksGerman()
{
    InstalledCatalogue german(QStringLiteral("mvtimeline_de"));
    QVERIFY(german.loaded);
    MvMarkerEditDialog dialog(markerParam(), nullptr);
    QCOMPARE(editorTexts(dialog), kGermanEditor);
    // Assistive tools hear the same words.
    QCOMPARE(dialog.panel()->commentEdit()->accessibleName(), QStringLiteral("Kommentar"));
    QAccessibleInterface* swatch = QAccessible::queryAccessibleInterface(dialog.panel()->colorRow()->cell(3));
    QVERIFY(swatch);
    QCOMPARE(swatch->text(QAccessible::Name), QStringLiteral("Grün"));
    // The fields keep what the user typed: only the library's own words change.
    QCOMPARE(dialog.panel()->nameEdit()->toPlainText(), QStringLiteral("Intro"));
    QCOMPARE(dialog.panel()->timeValueLabel()->text(), QStringLiteral("00:00:01:00"));
}

void tst_MvTimelineTranslations::markerEditorFollowsALanguageChange()
{
    MvMarkerEditDialog dialog(markerParam(), nullptr);
    QCOMPARE(editorTexts(dialog), kEnglishEditor);
    {
        InstalledCatalogue german(QStringLiteral("mvtimeline_de"));
        QVERIFY(german.loaded);
        // The application posts the change to its windows.
        QTRY_COMPARE(editorTexts(dialog), kGermanEditor);
    }
    QTRY_COMPARE(editorTexts(dialog), kEnglishEditor);
}

QTEST_MAIN(tst_MvTimelineTranslations)
#include "tst_MvTimelineTranslations.moc"
