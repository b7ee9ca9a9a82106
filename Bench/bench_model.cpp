// The in-memory model at 10,000 and 100,000 clips: each command against a floor from the same run,
// then the 100k time against the 10k time (the "floor" column of that line), which an n log n
// model keeps near 10 x log(100k) / log(10k), about 13.

#include "IMvSelection.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryEditService.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoRecorder.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvBenchHarness.h"

#include <QPair>
#include <QVector>

#include <cstdio>
#include <memory>
#include <vector>

using namespace MVVBLMODEL;

namespace {

// Six rows (four picture, two audio) of clips 30 frames long, 10 frames apart, lined up across the
// rows so that one cut divides six clips; each clip of row 0 is linked to its sound on row 4.
constexpr int kRows = 6;
constexpr qint64 kLength = 30;
constexpr qint64 kPitch = 40;

struct Project
{
    std::unique_ptr<MvMemoryTimeline> timeline { new MvMemoryTimeline };
    QList<IMvClip*> clips;

    explicit Project(int clipCount)
    {
        // Benchmarks measure the release model; a debug build would verify every step.
        timeline->undoRecorder()->setVerifying(false);
        for (int row = 0; row < kRows; ++row)
            timeline->addTrack(row < 4 ? TrackType_Picture : TrackType_Audio);
        const int columns = clipCount / kRows;
        clips.reserve(clipCount);
        QList<IMvClip*> links;
        for (int column = 0; column < columns; ++column) {
            const qint64 start = column * kPitch;
            for (int row = 0; row < kRows; ++row) {
                const MvClipType type = row < 4 ? ClipType_Video : ClipType_Audio;
                clips.append(timeline->addClip(row, type, start, start + kLength - 1, QStringLiteral("clip")));
            }
        }
        for (int column = 0; column < columns; column += 10) {
            IMvClip* picture = clips.at(column * kRows);
            IMvClip* sound = clips.at(column * kRows + 4);
            timeline->editService()->group({ picture, sound }, 1);
        }
        timeline->undoService()->clear();
    }
    IMvUndoRedoService* undo() const { return timeline->undoRedoService(); }
};

// One pass over the clips, reading what every command reads of each: where it lies.
double passFloor(const QList<IMvClip*>& clips)
{
    qint64 sum = 0;
    const double ms = MvBench::measure([&] {
        for (const IMvClip* clip : clips)
            sum += clip->start() + clip->end();
    });
    if (sum == 42)
        std::puts("");
    return ms;
}

QString size(int clipCount)
{
    return clipCount >= 1000 ? QStringLiteral("%1k").arg(clipCount / 1000) : QString::number(clipCount);
}

void reportScaling(
    const QString& what, const double (&times)[2], const double (&floors)[2], const QString& sizes, double maxQuotient)
{
    MvBench::reportGrowth(
        QStringLiteral("  %1: %2").arg(what, sizes), { times[0], times[1], floors[0], floors[1] }, maxQuotient);
}

// Runs one command at 10k and 100k clips and reports both and their ratio.
void scaled(const QString& what, const std::function<double(int clipCount, double& floor)>& run)
{
    double times[2] = { 0, 0 };
    double floors[2] = { 0, 0 };
    const int counts[2] = { 10000, 100000 };
    for (int i = 0; i < 2; ++i) {
        times[i] = run(counts[i], floors[i]);
        MvBench::report(QStringLiteral("%1, %2 clips").arg(what, size(counts[i])), times[i], floors[i], QString());
    }
    reportScaling(what, times, floors, QStringLiteral("100k against 10k"), MvBench::kNLogNGrowthQuotient);
}

void selection()
{
    scaled(QStringLiteral("select every clip"), [](int clipCount, double& floor) {
        Project project(clipCount);
        floor = passFloor(project.clips);
        return MvBench::measure([&] { project.timeline->selection()->select(project.clips); });
    });
}

void moves()
{
    scaled(QStringLiteral("move every clip one frame, and undo"), [](int clipCount, double& floor) {
        Project project(clipCount);
        const QList<int> offsets = QVector<int>(project.clips.size(), 0).toList();
        floor = passFloor(project.clips);
        return MvBench::measure([&] {
            project.timeline->moveClips(project.clips, offsets, 1, 2);
            project.undo()->undo();
        });
    });
}

void building()
{
    scaled(QStringLiteral("build with addClip"), [](int clipCount, double& floor) {
        // The floor fills the same number of clip values.
        std::vector<MvMemoryClip::State> values;
        floor = MvBench::measure([&] {
            values.clear();
            values.reserve(clipCount);
            for (int i = 0; i < clipCount; ++i) {
                MvMemoryClip::State value;
                value.start = i * kPitch;
                value.end = value.start + kLength - 1;
                value.name = QStringLiteral("clip");
                values.push_back(value);
            }
        });
        return MvBench::measure([&] { Project project(clipCount); });
    });
}

// Ripple delete of every tenth column (a tenth of the clips): every later clip of each row moves.
void rippleDelete()
{
    scaled(QStringLiteral("ripple delete a tenth of the clips, and undo"), [](int clipCount, double& floor) {
        Project project(clipCount);
        QList<IMvClip*> removed;
        for (int i = 0; i < project.clips.size(); i += 10 * kRows) {
            for (int row = 0; row < kRows; ++row)
                removed.append(project.clips.at(i + row));
        }
        floor = passFloor(project.clips);
        return MvBench::measure([&] {
            project.timeline->rippleDeleteClips(removed);
            project.undo()->undo();
        });
    });
}

// Six clips cut in the middle of the timeline (one linked to its sound), the step undone again.
double split(int clipCount, double& floor)
{
    Project project(clipCount);
    const int middle = project.clips.size() / kRows / 2 / 10 * 10;
    const QList<IMvClip*> six = project.clips.mid(middle * kRows, kRows);
    const qint64 frame = six.first()->start() + kLength / 2;
    // The floor saves the six clips' values before and after, as any undo step must.
    std::vector<MvMemoryClip::State> saved;
    floor = MvBench::measure([&] {
        saved.clear();
        for (int side = 0; side < 2; ++side) {
            for (IMvClip* clip : six)
                saved.push_back(static_cast<MvMemoryClip*>(clip)->state());
        }
    });
    QList<IMvClip*> pieces;
    return MvBench::measure([&] {
        project.timeline->splitClips(pieces, six, frame);
        project.undo()->undo();
    });
}

void splits()
{
    const QString what = QStringLiteral("split 6 clips, and undo");
    double times[3] = { 0, 0, 0 };
    double floors[3] = { 0, 0, 0 };
    const int counts[3] = { 1000, 10000, 100000 };
    for (int i = 0; i < 3; ++i) {
        times[i] = split(counts[i], floors[i]);
        MvBench::report(QStringLiteral("%1, %2 clips").arg(what, size(counts[i])), times[i], floors[i], QString());
    }
    reportScaling(what, { times[1], times[2] }, { floors[1], floors[2] }, QStringLiteral("100k against 10k"),
        MvBench::kNLogNGrowthQuotient);
    // A small edit costs the edit: a hundred times the clips may cost at most three times as much.
    reportScaling(what, { times[0], times[2] }, { floors[0], floors[2] }, QStringLiteral("100k against 1k"), 3.0);
}
}

void registerModelBenchmarks()
{
    MvBench::registerGroup("model select", &selection);
    MvBench::registerGroup("model move", &moves);
    MvBench::registerGroup("model build", &building);
    MvBench::registerGroup("model ripple delete", &rippleDelete);
    MvBench::registerGroup("model split", &splits);
}
