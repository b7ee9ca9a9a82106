#include "MvDemoScenario.h"
#include "MvDemoTranslations.h"
#include "MvDemoWindow.h"

#include <QApplication>
#include <QCommandLineParser>

namespace {
// The demo's command line, in the user's language: the catalogues are installed before it is built.
class MvDemoCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(MvDemoCommandLine)

public:
    MvDemoCommandLine()
        : scenario(
            QStringLiteral("scenario"), tr("Play the built-in scenario, save screenshots and the journal, then quit."))
        , output(QStringLiteral("output"), tr("Folder for the scenario's files."), tr("dir"),
              QStringLiteral("demo-output"))
        , verbose(QStringLiteral("verbose"),
              tr("Print the library's detail and note records too, not only its warnings and refusals."))
        , language(MvDemoTranslations::optionName(),
              tr("Show the demo in this language (for instance de or fr) instead of the system's."), tr("language"))
    {
        parser.setApplicationDescription(tr("MvTimeline demo editor"));
        parser.addHelpOption();
        for (const QCommandLineOption& option : { scenario, output, verbose, language })
            parser.addOption(option);
    }

    QCommandLineOption scenario;
    QCommandLineOption output;
    QCommandLineOption verbose;
    QCommandLineOption language;
    QCommandLineParser parser;
};
}

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("mvtimeline-demo"));
    const QLocale locale = MvDemoTranslations::localeFromArguments(QApplication::arguments());
    QLocale::setDefault(locale);
    MvDemoTranslations::install(locale);

    MvDemoCommandLine commandLine;
    commandLine.parser.process(app);

    const bool runScenario = commandLine.parser.isSet(commandLine.scenario);
    MvDemoWindow window(!runScenario, commandLine.parser.isSet(commandLine.verbose));
    window.show();
    window.activateWindow();
    if (runScenario) {
        MvDemoScenario player(&window, commandLine.parser.value(commandLine.output));
        return player.run() ? 0 : 1;
    }
    return app.exec();
}
