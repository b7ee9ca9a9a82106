#pragma once

#include "MvVBLModelGlobal.h"

#include <QString>

class IMvTransition;

// What loading a transition item renders: its pictures, made once and kept by the item.
struct MvTransitionLoadParam
{
    int variant = 0; // 0: the transition as made; 1: played backwards (the picture mirrors it)
    int pictureCount = 1; // pictures of the transition's course, side by side; below 1 makes none
    QString cacheFolder; // empty: kept in memory only; else the pictures are also written there
    int progress = -1; // the point of the transition pictured first, in percent; -1: the middle
    int scaleDown = 2; // the pictures are the full thumbnail size divided by this (at least 1)
};

// A library item that puts a transition over a cut (media type MVVBLMODEL::MediaType_Transition).
// The item is also an IMvAbstractMediaItem (reached with dynamic_cast), so that it goes through the
// same preparation (download, ...) as other media.
class MVVBLMODEL_EXPORT IMvTransitionMediaItem
{
public:
    virtual ~IMvTransitionMediaItem();

    // An audio transition blends the sound of two clips; the others blend their pictures.
    virtual bool isAudioTransition() const = 0;
    // A new transition of this kind, not on any clip yet, with one reference that the caller
    // gives up with IMvTransition::release. Its thumbnail is null until the item is loaded.
    virtual IMvTransition* createTransition() = 0;
    // Renders the item's pictures; false when nothing could be made.
    virtual bool load(const MvTransitionLoadParam& param) = 0;
};
