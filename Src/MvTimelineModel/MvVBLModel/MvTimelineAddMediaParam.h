#pragma once

#include "MvVBLModelGlobal.h"

#include <QColor>
#include <QList>

class IMvAbstractMediaItem;

// One request to put media items on a timeline (IMvTimeline::addMedias). The timeline presenter
// rewrites only the start frame and the item list; the other fields are the model's.
struct MvTimelineAddMediaParam
{
    int trackIndex = -1; // the row asked for (a drop target); -1 lets the model choose
    qint64 startFrame = 0; // in project frames
    QList<IMvAbstractMediaItem*> mediaItems;
    QList<qint64> lengths; // per item, in frames; a missing or non-positive entry: the item's own length
    int groupKind = 0; // when not 0, the created clips form one group of this kind
    bool enabled = true; // false puts the clips on the timeline switched off
    QColor textColor; // of the text and subtitle clips created; invalid: the model's default
    QColor backgroundColor; // of the text and subtitle clips created; invalid: none
};
