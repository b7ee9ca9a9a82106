#pragma once

#include "MvMemoryGlobal.h"

#include "MvVBLModelGlobal.h"

#include <QString>

class MvMemoryClip;

// Composed text items: a text clip on a track that holds layers, clips of their own kept off the
// tracks (MvMemoryClipState::container and children). A layer shows for as long as its item, is
// copied with it and goes back with it on undo.
namespace MvMemoryTextContainer {

// Only a text item composes layers, and it takes text and sticker (decoration) layers; a layer
// composes none.
MVMEMORY_EXPORT bool composesLayers(MVVBLMODEL::MvClipType itemType);
MVMEMORY_EXPORT bool acceptsLayer(MVVBLMODEL::MvClipType layerType);

// The item's layers as the model's dump shows them; empty for a clip without layers.
MVMEMORY_EXPORT QString text(const MvMemoryClip* item);

} // namespace MvMemoryTextContainer
