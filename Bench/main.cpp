#include "MvBaseLog.h"
#include "MvBenchHarness.h"

#include <QApplication>

void registerRulerBenchmarks();
void registerLibraryLoopBenchmarks();
void registerModelBenchmarks();
void registerStripBenchmarks();
void registerMarkerBenchmarks();
void registerPlayheadBenchmarks();

// mvtimeline-bench [group]: runs every benchmark group, or those whose name contains the argument.
// Exits non-zero when a figure's ratio to its floor is over its goal.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // Command notes printed to the terminal would time the terminal; a host writes them elsewhere.
    MvBaseLog::defaultLogger()->setMinimumLevel(MvBaseLog::Warning);
    registerRulerBenchmarks();
    registerLibraryLoopBenchmarks();
    registerModelBenchmarks();
    registerStripBenchmarks();
    registerMarkerBenchmarks();
    registerPlayheadBenchmarks();
    const QStringList arguments = app.arguments();
    return MvBench::runAll(arguments.size() > 1 ? arguments.at(1) : QString());
}
