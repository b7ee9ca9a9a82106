#include "MvBenchHarness.h"

#include <QApplication>

void registerRulerBenchmarks();
void registerLibraryLoopBenchmarks();

// mvtimeline-bench [group]: runs every benchmark group, or those whose name contains the argument.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    registerRulerBenchmarks();
    registerLibraryLoopBenchmarks();
    const QStringList arguments = app.arguments();
    return MvBench::runAll(arguments.size() > 1 ? arguments.at(1) : QString());
}
