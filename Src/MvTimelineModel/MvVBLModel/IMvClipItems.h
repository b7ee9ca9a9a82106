#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

// Freeze frames of a clip, by id.
class MVVBLMODEL_EXPORT IMvFreezeFrameList
{
public:
    virtual ~IMvFreezeFrameList();

    virtual QList<int> ids() const = 0;
    virtual bool contains(int id) const = 0;
    virtual bool remove(int id) = 0;
};

// Smart-keying nodes of a clip; one of them may be selected.
class MVVBLMODEL_EXPORT IMvSmartKeyingNodes
{
public:
    static constexpr quint64 NoSelection = ~quint64(0);

    virtual ~IMvSmartKeyingNodes();

    virtual int count() const = 0;
    virtual quint64 selectedIndex() const = 0; // NoSelection when no node is selected
    virtual void setSelectedIndex(quint64 index) = 0;
    virtual void removeAt(quint64 index) = 0;
};
