#pragma once

#include "MvMemoryGlobal.h"

#include "MvVBLModelGlobal.h"

class MvMemoryTimeline;

// The demo's built-in project: three picture rows and two audio rows, about two minutes at 30
// frames per second, with clips of every common kind, a transition, a linked group, markers,
// keyframes and a freeze frame, clips made from library resources (some of them known to the
// library's similarity search) and a composed text with primary and secondary layers. It leaves
// the undo history empty and the playhead at frame 0.
class MVMEMORY_EXPORT MvSampleProject
{
public:
    static void build(MvMemoryTimeline& timeline);
};
