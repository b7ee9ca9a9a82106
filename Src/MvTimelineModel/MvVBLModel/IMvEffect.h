#pragma once

#include "MvVBLModelGlobal.h"

#include <QString>

// An effect applied to a clip, made by an effect item. Counted references: the maker holds one and
// every clip that carries the effect holds one.
class MVVBLMODEL_EXPORT IMvEffect
{
public:
    virtual QString name() const = 0;
    virtual bool isAudioEffect() const = 0;
    // Gives up the caller's reference.
    virtual void release() = 0;

protected:
    virtual ~IMvEffect();
};

// The effects a clip carries: a clip plays through at most one audio effect and shows its video
// effects one over the other, in the order they were added.
class MVVBLMODEL_EXPORT IMvEffectContainer
{
public:
    virtual ~IMvEffectContainer();

    // The video effects on their own; null for a clip without a picture.
    virtual IMvEffectContainer* videoEffects() const = 0;
    virtual bool hasAudioEffect() const = 0;
    // Adds the effect (an audio effect replaces the clip's), as one undo step; false when the clip
    // cannot take it. The container takes a reference of its own.
    virtual bool addEffect(IMvEffect* effect) = 0;
    virtual int count() const = 0;
};

// A library item that is applied to clips (media type MVVBLMODEL::MediaType_VideoEffect or
// MediaType_AudioEffect). The item is also an IMvAbstractMediaItem (reached with dynamic_cast).
class MVVBLMODEL_EXPORT IMvEffectMediaItem
{
public:
    virtual ~IMvEffectMediaItem();

    // A new effect with one reference that the caller gives up with IMvEffect::release.
    virtual IMvEffect* createEffect() = 0;
};
