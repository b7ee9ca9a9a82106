#include "MvBenchHarness.h"

#include <QElapsedTimer>
#include <QList>
#include <QPair>

#include <algorithm>
#include <cstdio>

namespace MvBench {

namespace {

// Batches are grown until one lasts this long, then this many are timed.
constexpr qint64 kBatchNanoseconds = 8000000;
constexpr int kBatches = 9;

struct Spread
{
    double median = 0.0;
    double fastest = 0.0;
    double slowest = 0.0;
};

struct State
{
    QList<QPair<const char*, void (*)()>> groups;
    QList<Spread> recent; // the spreads of the last measurements, newest last
    int figures = 0;
    int overGoal = 0;
};

State& state()
{
    static State s;
    return s;
}

// The spread of the measurement whose median is `milliseconds`, if it is one of the recent ones.
const Spread* spreadOf(double milliseconds)
{
    const QList<Spread>& recent = state().recent;
    for (auto it = recent.crbegin(); it != recent.crend(); ++it) {
        if (it->median == milliseconds)
            return &*it;
    }
    return nullptr;
}

QString spreadText(double milliseconds)
{
    const Spread* spread = spreadOf(milliseconds);
    if (!spread)
        return QString();
    return QStringLiteral("[%1 .. %2]").arg(spread->fastest, 0, 'f', 5).arg(spread->slowest, 0, 'f', 5);
}

void print(const QString& name, double milliseconds, double floorMilliseconds, const QString& verdict)
{
    ++state().figures;
    const double ratio = floorMilliseconds > 0.0 ? milliseconds / floorMilliseconds : 0.0;
    std::printf("%-66s %9.5f ms %-21s floor %8.5f ms %-21s ratio %7.2f  %s\n", qPrintable(name), milliseconds,
        qPrintable(spreadText(milliseconds)), floorMilliseconds, qPrintable(spreadText(floorMilliseconds)), ratio,
        qPrintable(verdict));
    std::fflush(stdout);
}

}

namespace {

// Calls per batch so that a batch lasts long enough to time well; warms caches and lazily built
// state on the way.
qint64 batchSize(const std::function<void()>& work)
{
    QElapsedTimer timer;
    qint64 calls = 1;
    while (true) {
        timer.start();
        for (qint64 i = 0; i < calls; ++i)
            work();
        if (timer.nsecsElapsed() >= kBatchNanoseconds)
            return calls;
        calls *= 2;
    }
}

double timeBatch(const std::function<void()>& work, qint64 calls)
{
    QElapsedTimer timer;
    timer.start();
    for (qint64 i = 0; i < calls; ++i)
        work();
    return double(timer.nsecsElapsed()) / 1.0e6 / double(calls);
}

// Keeps the spread of one measurement and gives its median.
double keep(QList<double> perCall)
{
    std::sort(perCall.begin(), perCall.end());
    const Spread spread { perCall.at(perCall.size() / 2), perCall.constFirst(), perCall.constLast() };
    QList<Spread>& recent = state().recent;
    recent.append(spread);
    if (recent.size() > 16)
        recent.removeFirst();
    return spread.median;
}

}

double measure(const std::function<void()>& work)
{
    const qint64 calls = batchSize(work);
    QList<double> perCall;
    for (int batch = 0; batch < kBatches; ++batch)
        perCall.append(timeBatch(work, calls));
    return keep(perCall);
}

Figure measureAgainst(const std::function<void()>& work, const std::function<void()>& floor)
{
    const qint64 floorCalls = batchSize(floor);
    const qint64 workCalls = batchSize(work);
    QList<double> floorPerCall;
    QList<double> workPerCall;
    for (int batch = 0; batch < kBatches; ++batch) {
        floorPerCall.append(timeBatch(floor, floorCalls));
        workPerCall.append(timeBatch(work, workCalls));
    }
    Figure figure;
    figure.floorMilliseconds = keep(floorPerCall);
    figure.milliseconds = keep(workPerCall);
    return figure;
}

void report(const QString& name, double milliseconds, double floorMilliseconds, const QString& goal)
{
    print(name, milliseconds, floorMilliseconds, goal);
}

void report(const QString& name, double milliseconds, double floorMilliseconds, double maxRatio)
{
    const bool held = floorMilliseconds > 0.0 && milliseconds / floorMilliseconds <= maxRatio;
    if (!held)
        ++state().overGoal;
    const QString goal = QStringLiteral("goal <= %1x").arg(maxRatio);
    print(name, milliseconds, floorMilliseconds, goal + (held ? QStringLiteral("  ok") : QStringLiteral("  OVER")));
}

void reportGrowth(const QString& name, const Growth& growth, double maxQuotient)
{
    const double floorGrowth = growth.floorSmall > 0.0 ? growth.floorLarge / growth.floorSmall : 0.0;
    const double walkGrowth = growth.small > 0.0 ? growth.large / growth.small : 0.0;
    const bool held = floorGrowth > 0.0 && walkGrowth > 0.0 && walkGrowth / floorGrowth <= maxQuotient;
    if (!held)
        ++state().overGoal;
    const QString verdict = QStringLiteral("floor grew %1x; goal growth <= %2 x %1  %3")
                                .arg(floorGrowth, 0, 'f', 1)
                                .arg(maxQuotient)
                                .arg(held ? QStringLiteral("ok") : QStringLiteral("OVER"));
    print(name, growth.large, growth.small, verdict);
}

void registerGroup(const char* name, void (*run)())
{
    state().groups.append({ name, run });
}

int runAll(const QString& filter)
{
    int ran = 0;
    for (const auto& group : qAsConst(state().groups)) {
        if (!filter.isEmpty() && !QString::fromLatin1(group.first).contains(filter))
            continue;
        std::printf("== %s\n", group.first);
        group.second();
        ++ran;
    }
    if (ran == 0) {
        std::printf("no benchmark group matches \"%s\"\n", qPrintable(filter));
        return 1;
    }
    std::printf("%d figures, %d over their goal\n", state().figures, state().overGoal);
    return state().overGoal > 0 ? 1 : 0;
}

}
