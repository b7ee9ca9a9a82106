#pragma once

#include <QString>

#include <functional>

// Times a piece of work against a floor measured in the same run and prints the ratio.
//
// Every figure is the median of several timed batches, printed with the fastest and slowest
// batch, so that a busy machine shows as a wide spread rather than as a regression. A figure
// may carry a goal on its ratio to the floor; a ratio above its goal is printed as OVER and
// makes runAll fail, so that `make bench` exits non-zero on a regression.
namespace MvBench {

// Milliseconds per call: the median of the timed batches. The batches' spread is kept for the
// report of this figure.
double measure(const std::function<void()>& work);

// A figure and its floor, timed in alternating batches so that both meet the same load on a
// shared machine; each median's spread is kept for the report.
struct Figure
{
    double milliseconds = 0.0;
    double floorMilliseconds = 0.0;
};
Figure measureAgainst(const std::function<void()>& work, const std::function<void()>& floor);

// Prints one figure with its floor and ratio, and a note instead of a goal (or nothing): such a
// figure is shown for comparison and never fails the run.
void report(const QString& name, double milliseconds, double floorMilliseconds, const QString& goal);

// The same with a goal: the ratio to the floor must stay at or below maxRatio.
void report(const QString& name, double milliseconds, double floorMilliseconds, double maxRatio);

// A registered group of benchmarks.
void registerGroup(const char* name, void (*run)());

// Runs the groups whose name contains the filter (all with an empty one). 0 when at least one
// group ran and every goal held; 1 otherwise.
int runAll(const QString& filter);
}
