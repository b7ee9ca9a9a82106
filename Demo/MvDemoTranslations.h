#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

class QTranslator;

// The demo in the user's language: Qt's own catalogue (standard buttons, line edit menus), the
// library's and the demo's, for the system's locale or the one asked for with --lang.
class MvDemoTranslations
{
public:
    // The language of "--lang de" or "--lang=de" among the arguments, else the system's locale.
    // An unknown name falls back to the system's locale as well.
    static QLocale localeFromArguments(const QStringList& arguments);

    // Where catalogues are looked for, in order: beside the build tree's programs
    // (<build>/translations), then where the library's installation puts them.
    static QStringList searchPaths();

    // Loads and installs on the application the catalogues of `locale` that are found; returns the
    // names of those loaded ("mvtimeline_de", ...). The translators live as long as the application.
    static QStringList install(const QLocale& locale);

    // The command-line option that picks the language ("lang"), for the demo's parser.
    static QString optionName();

private:
    static QTranslator* load(const QLocale& locale, const QString& catalogue, const QStringList& paths);
};
