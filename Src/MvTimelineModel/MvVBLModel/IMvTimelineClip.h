#pragma once

#include "IMvAbstractClip.h"

#include <QList>

// A clip that owns child clips: a composed text item holds its text and decoration layers. The
// children are not placed on a track; they show for as long as their clip does.
class MVVBLMODEL_EXPORT IMvTimelineClip : public IMvClip
{
public:
    ~IMvTimelineClip() override;

    // The child clips, bottom layer first.
    virtual QList<IMvClip*> childClips() const = 0;
};
