#pragma once

#include "MvMemoryClip.h"
#include "MvMemoryTrack.h"

// A group of clips that edit together; kind 1 is a linked pair (picture and its sound).
struct MvMemoryGroup
{
    QList<MvMemoryClip*> members;
    int kind = 0;

    bool operator==(const MvMemoryGroup& other) const { return members == other.members && kind == other.kind; }
};

// Every undoable value of a timeline, captured by value. Object lists hold one entry per object
// created so far, in creation order; objects created later than a capture count as detached in it.
struct MvMemoryModelState
{
    QList<MvMemoryTrack*> trackOrder;
    QList<MvMemoryTrack::State> tracks;
    QList<MvMemoryClip::State> clips;
    QList<MvMemoryTransition::State> transitions;
    QList<MvMemoryGroup> groups;
    MvMemoryMarkerList::State timelineMarkers;

    bool operator==(const MvMemoryModelState& other) const
    {
        return trackOrder == other.trackOrder && tracks == other.tracks && clips == other.clips
            && transitions == other.transitions && groups == other.groups && timelineMarkers == other.timelineMarkers;
    }
    bool operator!=(const MvMemoryModelState& other) const { return !(*this == other); }
};
