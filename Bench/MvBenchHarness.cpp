#include "MvBenchHarness.h"

#include <QElapsedTimer>
#include <QList>
#include <QPair>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace MvBench {

namespace {
QList<QPair<const char*, void (*)()>>& groups()
{
    static QList<QPair<const char*, void (*)()>> list;
    return list;
}
}

double measure(const std::function<void()>& work)
{
    for (int i = 0; i < 10; ++i)
        work();
    qint64 calls = 1;
    double best = std::numeric_limits<double>::max();
    QElapsedTimer timer;
    int kept = 0;
    while (kept < 5) {
        timer.start();
        for (qint64 i = 0; i < calls; ++i)
            work();
        const qint64 nanoseconds = timer.nsecsElapsed();
        if (nanoseconds < 20000000) {
            // Too short to trust; grow the batch.
            calls *= 2;
            continue;
        }
        best = std::min(best, double(nanoseconds) / 1.0e6 / double(calls));
        ++kept;
    }
    return best;
}

void report(const QString& name, double milliseconds, double floorMilliseconds, const QString& goal)
{
    const double ratio = floorMilliseconds > 0.0 ? milliseconds / floorMilliseconds : 0.0;
    std::printf("%-58s %11.6f ms  floor %9.6f ms  ratio %6.2f  %s\n", qPrintable(name), milliseconds, floorMilliseconds,
        ratio, qPrintable(goal));
    std::fflush(stdout);
}

void registerGroup(const char* name, void (*run)())
{
    groups().append({ name, run });
}

int runAll(const QString& filter)
{
    int ran = 0;
    for (const auto& group : qAsConst(groups())) {
        if (!filter.isEmpty() && !QString::fromLatin1(group.first).contains(filter))
            continue;
        std::printf("== %s\n", group.first);
        group.second();
        ++ran;
    }
    return ran > 0 ? 0 : 1;
}

}
