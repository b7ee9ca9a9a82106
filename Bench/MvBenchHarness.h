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

// How a walk grows from a small to a large size. On its own the growth says little: a plain pass
// over ten times the clips already costs far more than ten times as much once they no longer fit in
// the caches. So the walk's growth is set beside the growth of a floor pass over the same clips, and
// the goal is on their quotient: an n log n walk stays near log(large) / log(small) of its floor's
// growth, a quadratic one near ten times it.
struct Growth
{
    double small = 0.0;
    double large = 0.0;
    double floorSmall = 0.0;
    double floorLarge = 0.0;
};
void reportGrowth(const QString& name, const Growth& growth, double maxQuotient);
// From 10k to 100k an n log n walk grows 1.25 times as much as its floor; twice that leaves room for
// the walk and its floor meeting the caches differently and still fails anything quadratic.
constexpr double kNLogNGrowthQuotient = 2.5;

// A registered group of benchmarks.
void registerGroup(const char* name, void (*run)());

// Runs the groups whose name contains the filter (all with an empty one). 0 when at least one
// group ran and every goal held; 1 otherwise.
int runAll(const QString& filter);
}
