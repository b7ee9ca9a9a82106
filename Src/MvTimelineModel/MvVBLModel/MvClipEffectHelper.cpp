#include "MvClipEffectHelper.h"

#include "IMvAbstractClip.h"
#include "IMvTrack.h"

using namespace MVVBLMODEL;

namespace {
bool keepsEffects(IMvClip* clip)
{
    const IMvTrack* track = clip ? clip->track() : nullptr;
    return track && !track->isLocked() && clip->effects();
}
}

bool MvClipEffectHelper::canAddAudioEffect(IMvClip* clip)
{
    return keepsEffects(clip) && clipHasSound(clip->type());
}

bool MvClipEffectHelper::canAddVideoEffect(IMvClip* clip)
{
    return keepsEffects(clip) && clipHasPicture(clip->type()) && clip->type() != ClipType_Effect
        && clip->type() != ClipType_Filter;
}
