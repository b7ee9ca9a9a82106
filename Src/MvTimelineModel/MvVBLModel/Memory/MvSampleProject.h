#pragma once

#include "MvMemoryGlobal.h"

#include "MvVBLModelGlobal.h"

#include <QScopedPointer>

class MvMemoryMediaLibrary;
class MvMemoryTimeline;

// The demo's built-in project: three picture rows and two audio rows, about two minutes at 30
// frames per second, with clips of every common kind, a transition, a linked group, markers,
// keyframes and a freeze frame, clips made from library resources (some of them known to the
// library's similarity search), a composed text with primary and secondary layers, media handles
// (some clips have none) and an effect. It leaves the undo history empty and the playhead at frame 0.
//
// As an object it owns the project's timelines: the main one (built as above, with a compound
// clip added), the sequence that compound clip shows, and a small timeline of another project
// with a compound clip of its own, to copy from one project into the other.
class MVMEMORY_EXPORT MvSampleProject
{
public:
    MvSampleProject();
    ~MvSampleProject();

    MvMemoryTimeline* timeline() const;
    MvMemoryTimeline* sequence() const;
    MvMemoryTimeline* otherProjectTimeline() const;

    static void build(MvMemoryTimeline& timeline);
    // The project's media, for adding to the timeline: local files of every kind (one of them
    // empty, one at 60 frames per second, a screen recording still being written), stock items
    // that need a download with one or three resolutions, a VCG item, and compound items (one of
    // this project whose timeline takes readTimeMs to read, one of another project, and the
    // project's own timeline, which cannot go into itself).
    static void buildMediaLibrary(MvMemoryMediaLibrary& library, MvMemoryTimeline& project, int readTimeMs = 1500);

private:
    Q_DISABLE_COPY(MvSampleProject)
    // Declared first, destroyed last: the sequences outlive the timelines that show them.
    QScopedPointer<MvMemoryTimeline> m_sequence;
    QScopedPointer<MvMemoryTimeline> m_otherSequence;
    QScopedPointer<MvMemoryTimeline> m_otherProject;
    QScopedPointer<MvMemoryTimeline> m_timeline;
    // Media handles on the main story's clips (some have none: a transition over their cut repeats
    // frames) and a video effect on one clip.
    static void addHandlesAndEffects(MvMemoryTimeline& timeline);
    // Transition items (dissolve, wipe, a slide that needs a download, an audio crossfade) and
    // effect items (video and audio).
    static void addTransitionAndEffectItems(MvMemoryMediaLibrary& library);
};
