#pragma once

#include "IMvKeyFrameSelector.h"
#include "IMvSelection.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "Memory/MvSampleProject.h"
#include "MvBaseLog.h"
#include "MvKeyFramePresenter.h"
#include "MvRecordingScene.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

// The sample project with the presenters a host makes over it, and clips it must not be handed:
// one of another timeline and one taken off this timeline. Clip numbers are those of the model
// dump: c0 "Harbour at dawn" (0..599, grouped with its sound c1), c2 "Market street" with a
// transition, c3 the still with a freeze frame, c5 the screen recording with smart-keying nodes,
// c12 "Waves" (1500..1559, sound only).
struct MvSampleHost
{
    MvSampleHost()
    {
        MvSampleProject::build(timeline);
        presenter.setScene(&scene);
        presenter.initVirtualPlayheadPresenter();
        playhead.setScene(&scene);
        foreignTimeline.addTrack(MVVBLMODEL::TrackType_Picture);
        foreign = foreignTimeline.addClip(0, MVVBLMODEL::ClipType_Video, 0, 99, QStringLiteral("elsewhere"));
        removed = timeline.liveClips().at(9);
        timeline.deleteClips({ removed });
        timeline.undoService()->clear();
    }

    MvMemoryClip* clip(int number) const { return timeline.allClips().at(number); }
    void select(const QList<IMvClip*>& clips) { timeline.selection()->select(clips); }
    MvKeyFramePresenter& keyFrames() { return *presenter.keyFramePresenter(); }
    MvTimelineVirtualPlayheadPresenter& virtualPlayhead() { return *presenter.virtualPlayheadPresenter(); }

    // Everything a refused command must leave alone: the undo stack, the selections (keyframes and
    // sub-items too) and the model dump with its view state.
    QString snapshot() const
    {
        const IMvKeyFrameSelector::MvSelectData keys = timeline.keyFrameSelector()->currentSelection();
        const auto* keyed = dynamic_cast<const MvMemoryClip*>(keys.clip);
        int subItem = -1;
        timeline.subItemSelection()->selectedId(subItem);
        return QStringLiteral("undo %1 redo %2 keys %3:%4 sub-item %5\n")
                   .arg(timeline.undoService()->undoCount())
                   .arg(timeline.undoService()->redoCount())
                   .arg(keyed ? keyed->number() : -1)
                   .arg(keys.frames.size())
                   .arg(subItem)
            + timeline.stateText();
    }

    MvMemoryTimeline timeline;
    MvMemoryTimeline foreignTimeline;
    MvMemoryClip* foreign = nullptr;
    MvMemoryClip* removed = nullptr;
    MvRecordingScene scene;
    MvLogCapture log;
    MvTimelinePresenter presenter { nullptr, &timeline };
    MvTimelinePlayheadPresenter playhead { &presenter, nullptr };
    MvTimelineRulerPresenter ruler { &presenter, nullptr };
};

// Presenters over no timeline at all, and presenters over no timeline presenter.
struct MvOrphanHost
{
    MvOrphanHost()
    {
        presenter.setScene(&scene);
        presenter.initVirtualPlayheadPresenter();
    }

    MvRecordingScene scene;
    MvLogCapture log;
    MvTimelinePresenter presenter { nullptr, nullptr };
    MvTimelinePlayheadPresenter playhead { &presenter, nullptr };
    MvTimelinePlayheadPresenter lonePlayhead { nullptr, nullptr };
    MvTimelineRulerPresenter ruler { &presenter, nullptr };
    MvTimelineRulerPresenter loneRuler { nullptr, nullptr };
};
