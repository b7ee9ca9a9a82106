#pragma once

#include "MvVBLModelGlobal.h"

class IMvClip;

// Which clips take effects.
class MVVBLMODEL_EXPORT MvClipEffectHelper
{
public:
    // The clip plays sound, keeps effects and lies on an unlocked row.
    static bool canAddAudioEffect(IMvClip* clip);
    // The clip shows a picture of its own (effect and filter clips are effects themselves), keeps
    // effects and lies on an unlocked row.
    static bool canAddVideoEffect(IMvClip* clip);
};
