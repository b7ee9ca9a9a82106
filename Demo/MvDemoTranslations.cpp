#include "MvDemoTranslations.h"

#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>

namespace {
const char* const kLibraryCatalogue = "mvtimeline";
const char* const kDemoCatalogue = "mvtimeline-demo";
const char* const kQtCatalogue = "qtbase";
}

QString MvDemoTranslations::optionName()
{
    return QStringLiteral("lang");
}

QLocale MvDemoTranslations::localeFromArguments(const QStringList& arguments)
{
    const QString option = QStringLiteral("--") + optionName();
    QString name;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == option && i + 1 < arguments.size())
            name = arguments.at(i + 1);
        else if (argument.startsWith(option + QLatin1Char('=')))
            name = argument.mid(option.size() + 1);
    }
    if (name.isEmpty())
        return QLocale::system();
    const QLocale asked(name);
    // QLocale turns a name it does not know into the C locale.
    return asked.language() == QLocale::C ? QLocale::system() : asked;
}

QStringList MvDemoTranslations::searchPaths()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    return { programs.absoluteFilePath(QStringLiteral("../translations")),
        programs.absoluteFilePath(QStringLiteral("../share/MvTimeline/translations")) };
}

QTranslator* MvDemoTranslations::load(const QLocale& locale, const QString& catalogue, const QStringList& paths)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    for (const QString& path : paths) {
        if (translator->load(locale, catalogue, QStringLiteral("_"), path))
            return translator;
    }
    delete translator;
    return nullptr;
}

QStringList MvDemoTranslations::install(const QLocale& locale)
{
    QStringList loaded;
    const QStringList qtPaths { QLibraryInfo::location(QLibraryInfo::TranslationsPath) };
    const QList<QPair<QString, QStringList>> catalogues {
        { QLatin1String(kQtCatalogue), qtPaths },
        { QLatin1String(kLibraryCatalogue), searchPaths() },
        { QLatin1String(kDemoCatalogue), searchPaths() },
    };
    for (const auto& catalogue : catalogues) {
        QTranslator* translator = load(locale, catalogue.first, catalogue.second);
        if (!translator)
            continue;
        QCoreApplication::installTranslator(translator);
        loaded.append(QFileInfo(translator->filePath()).completeBaseName());
    }
    return loaded;
}
