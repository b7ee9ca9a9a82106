#include "MvTimelineClipHelper.h"

#include "IMvTimelineClip.h"

using namespace MVVBLMODEL;

// The library files each kind of item on one shelf: what is watched, what is heard, what is read.
MvMediaCategoryType MvTimelineClipHelper::getResourceCategoryType(IMvAbstractClip* item)
{
    if (!item)
        return MediaCategory_None;
    switch (item->type()) {
    case ClipType_Video:
    case ClipType_VideoWithAudio:
    case ClipType_ScreenRecording:
        return MediaCategory_Video;
    case ClipType_Image:
        return MediaCategory_Image;
    case ClipType_Audio:
    case ClipType_Music:
        return MediaCategory_Music;
    case ClipType_SoundEffect:
        return MediaCategory_SoundEffect;
    case ClipType_Text:
    case ClipType_Subtitle:
    case ClipType_Title:
        return MediaCategory_Text;
    case ClipType_Sticker:
    case ClipType_Shape:
        return MediaCategory_Sticker;
    case ClipType_Effect:
        return MediaCategory_Effect;
    case ClipType_Filter:
    case ClipType_Adjustment:
        return MediaCategory_Filter;
    case ClipType_Transition:
        return MediaCategory_Transition;
    default:
        return MediaCategory_None;
    }
}

QList<IMvClip*> MvTimelineClipHelper::getAllChildClips(IMvTimelineClip* container, MvClipType type)
{
    QList<IMvClip*> found;
    if (!container)
        return found;
    const QList<IMvClip*> children = container->childClips();
    for (IMvClip* child : children) {
        if (child && child->type() == type)
            found.append(child);
    }
    return found;
}
