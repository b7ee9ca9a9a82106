#include "MvDemoScenario.h"
#include "MvDemoWindow.h"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("mvtimeline-demo"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("MvTimeline demo editor"));
    parser.addHelpOption();
    QCommandLineOption scenario(QStringLiteral("scenario"),
        QStringLiteral("Play the built-in scenario, save screenshots and the journal, then quit."));
    QCommandLineOption output(QStringLiteral("output"), QStringLiteral("Folder for the scenario's files."),
        QStringLiteral("dir"), QStringLiteral("demo-output"));
    QCommandLineOption verbose(QStringLiteral("verbose"),
        QStringLiteral("Print the library's detail and note records too, not only its warnings and refusals."));
    parser.addOption(scenario);
    parser.addOption(output);
    parser.addOption(verbose);
    parser.process(app);

    const bool runScenario = parser.isSet(scenario);
    MvDemoWindow window(!runScenario, parser.isSet(verbose));
    window.show();
    window.activateWindow();
    if (runScenario) {
        MvDemoScenario player(&window, parser.value(output));
        return player.run() ? 0 : 1;
    }
    return app.exec();
}
