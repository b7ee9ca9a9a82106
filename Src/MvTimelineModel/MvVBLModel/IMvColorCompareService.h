#pragma once

#include "MvVBLModelGlobal.h"

class IMvClip;

// The colour-compare view: which clip it shows, if any.
class MVVBLMODEL_EXPORT IMvColorCompareService
{
public:
    virtual ~IMvColorCompareService();

    virtual IMvClip* currentClip() const = 0;
    virtual void setCurrentClip(IMvClip* clip) = 0;
};

MVVBLMODEL_EXPORT IMvColorCompareService* getColorCompareService();
