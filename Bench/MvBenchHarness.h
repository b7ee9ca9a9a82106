#pragma once

#include <QString>

#include <functional>

// Times a piece of work against a floor measured in the same run and prints the ratio.
namespace MvBench {

// Mean milliseconds per call: batches of calls are timed until each batch lasts long enough to be
// measured well, and the fastest batch is kept (the others met a busy machine).
double measure(const std::function<void()>& work);

// Prints one line: name, time per call, floor, ratio and the goal.
void report(const QString& name, double milliseconds, double floorMilliseconds, const QString& goal);

// A registered group of benchmarks.
void registerGroup(const char* name, void (*run)());
int runAll(const QString& filter);
}
