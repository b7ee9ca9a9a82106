#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvAbstractClip;
class IMvClip;
class IMvTimelineClip;

// Questions about timeline items that the media library and the media editor ask.
class MVVBLMODEL_EXPORT MvTimelineClipHelper
{
public:
    // The library shelf that files the item's kind (MediaCategory_None for null and for kinds the
    // library does not offer, such as placeholders and compound clips).
    static MVVBLMODEL::MvMediaCategoryType getResourceCategoryType(IMvAbstractClip* item);
    // The container's child clips of that type, in the container's order (empty for null).
    static QList<IMvClip*> getAllChildClips(IMvTimelineClip* container, MVVBLMODEL::MvClipType type);
};
