#pragma once

#include "MvVBLModelGlobal.h"

#include <QString>

// What the media library knows of the resource an item was made from (stock footage, music, sound
// effects, stickers, transitions, ...). Items made from the user's own media have none.
class MVVBLMODEL_EXPORT IMvResourceInfo
{
public:
    virtual ~IMvResourceInfo();

    // Whether the library can look for resources like this one.
    virtual bool canFindSimilar() const = 0;
    virtual qint64 resourceId() const = 0;
    // The library that supplied the resource (0: the resources shipped with the editor).
    virtual int providerId() const = 0;
    virtual QString resourceGuid() const = 0;
    // The name the library lists the resource under.
    virtual QString title() const = 0;
};

// The values by which the media library finds one of its resources again.
struct ResourceInfoData
{
    qint64 resourceId = 0;
    int providerId = 0;
    QString resourceGuid;

    bool operator==(const ResourceInfoData& other) const
    {
        return resourceId == other.resourceId && providerId == other.providerId && resourceGuid == other.resourceGuid;
    }
};
