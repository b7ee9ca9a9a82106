// The library's walks over many selected clips (the vertical and horizontal moves with their
// motion followers, the split finder), at 10k and 100k clips. Each command is timed twice: over
// the in-memory model, and over a model double whose selection and move answer at once, which
// leaves the library's own share. The growth from 10k to 100k, set beside the growth of a plain
// pass over the same clips, shows whether a walk is n log n or quadratic.

#include "IMvSelection.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvBenchHarness.h"
#include "MvClipHelpers.h"
#include "MvTimelinePresenter.h"

#include <memory>

using namespace MVVBLMODEL;

namespace {

// A selection that hands out a fixed list and ignores changes: costs nothing beyond the copy.
class FixedSelection : public IMvSelection
{
public:
    explicit FixedSelection(const QList<IMvClip*>& clips)
        : m_clips(clips)
    {
        for (IMvClip* clip : clips)
            m_items.append(clip);
    }
    void select(const QList<IMvClip*>&) override { }
    void selectItems(const QList<IMvAbstractClip*>&) override { }
    void selectItem(IMvAbstractClip*) override { }
    void clear() override { }
    int count() const override { return m_clips.size(); }
    bool isEmpty() const override { return m_clips.isEmpty(); }
    QList<IMvAbstractClip*> selectedItems() const override { return m_items; }
    QList<IMvClip*> selectedClips() const override { return m_clips; }
    IMvAbstractClip* currentItem() const override { return m_items.value(0); }
    bool isTimelineSelected() const override { return false; }
    void setTimelineSelected(bool) override { }
    IMvAbstractClip* itemAt(int index) const override { return m_items.value(index); }

private:
    QList<IMvClip*> m_clips;
    QList<IMvAbstractClip*> m_items;
};

// The model double: its selection and its move answer at once, everything else is the real model.
class InstantTimeline : public MvMemoryTimeline
{
public:
    bool instant = false;
    std::unique_ptr<FixedSelection> fixed;

    IMvSelection* selection() const override { return instant && fixed ? fixed.get() : MvMemoryTimeline::selection(); }
    bool moveClips(QList<IMvClip*> clips, QList<int> trackOffsets, qint64 frameOffset, int mode) override
    {
        return instant || MvMemoryTimeline::moveClips(clips, trackOffsets, frameOffset, mode);
    }
};

// Picture clips on row 1, each followed by the next one by motion tracking, all selected.
struct Project
{
    explicit Project(int count)
    {
        for (MvTrackType type : { TrackType_Picture, TrackType_Picture, TrackType_Audio, TrackType_Audio })
            timeline.addTrack(type);
        QList<MvMemoryClip*> built;
        built.reserve(count);
        for (int i = 0; i < count; ++i)
            built.append(timeline.addClip(1, ClipType_Video, qint64(i) * 10 + 5, qint64(i) * 10 + 9, QString()));
        for (int i = 0; i + 1 < count; i += 2)
            built.at(i)->setMotionTrackFollower(built.at(i + 1));
        for (MvMemoryClip* clip : qAsConst(built))
            clips.append(clip);
        timeline.selection()->select(clips);
        timeline.fixed.reset(new FixedSelection(clips));
    }

    InstantTimeline timeline;
    QList<IMvClip*> clips;
};

// One pass over the same clips: the least any walk over them costs.
double floorFor(const QList<IMvClip*>& clips)
{
    qint64 sink = 0;
    const double ms = MvBench::measure([&] {
        for (const IMvClip* clip : clips)
            sink += clip->start();
    });
    return sink == 42 ? ms + 1 : ms;
}

struct Figures
{
    double library = 0;
    double withModel = 0;
    double floor = 0;
};

template <typename Command> Figures measureAt(int count, Command command)
{
    Project project(count);
    MvTimelinePresenter presenter(nullptr, &project.timeline);
    Figures figures;
    figures.floor = floorFor(project.clips);
    project.timeline.instant = true;
    figures.library = MvBench::measure([&] { command(presenter, project); });
    project.timeline.instant = false;
    figures.withModel = MvBench::measure([&] {
        command(presenter, project);
        // The steps pile up otherwise; a host's stack is bounded too.
        project.timeline.undoService()->clear();
    });
    return figures;
}

template <typename Command> void growth(const QString& name, Command command)
{
    const Figures small = measureAt(10000, command);
    const Figures large = measureAt(100000, command);
    MvBench::report(name + QStringLiteral(", library share, 10k"), small.library, small.floor, QString());
    MvBench::report(name + QStringLiteral(", library share, 100k"), large.library, large.floor, QString());
    MvBench::reportGrowth(name + QStringLiteral(", library share, 100k against 10k"),
        { small.library, large.library, small.floor, large.floor }, MvBench::kNLogNGrowthQuotient);
    MvBench::report(name + QStringLiteral(", with the model, 10k"), small.withModel, small.floor, QString());
    MvBench::report(name + QStringLiteral(", with the model, 100k"), large.withModel, large.floor, QString());
    MvBench::reportGrowth(name + QStringLiteral(", with the model, 100k against 10k"),
        { small.withModel, large.withModel, small.floor, large.floor }, MvBench::kNLogNGrowthQuotient);
}

void libraryLoops()
{
    // Up a row and back, so that the model's state stays the same from call to call.
    bool down = false;
    growth(QStringLiteral("moveClipsVertical"), [&down](MvTimelinePresenter& presenter, Project&) {
        down = !down;
        presenter.moveClipsVertical(down ? -1 : 1);
    });
    bool right = false;
    growth(QStringLiteral("moveClipsHorizontal"), [&right](MvTimelinePresenter& presenter, Project&) {
        right = !right;
        presenter.moveClipsHorizontal(right ? 3 : -3);
    });
    growth(QStringLiteral("findPrepareSplitClip"),
        [](MvTimelinePresenter&, Project& project) { IMvClipHelper::findPrepareSplitClip(project.clips, true); });
}

}

void registerLibraryLoopBenchmarks()
{
    MvBench::registerGroup("library loops", &libraryLoops);
}
