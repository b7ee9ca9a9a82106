#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvAbstractClip;
class IMvClip;

class MVVBLMODEL_EXPORT IMvSelection
{
public:
    virtual ~IMvSelection();

    // Makes exactly these clips the selection (the first becomes the current item).
    virtual void select(const QList<IMvClip*>& clips) = 0;
    // The same for any placed items, transitions included.
    virtual void selectItems(const QList<IMvAbstractClip*>& items) = 0;
    // One item, clip or transition, becomes the selection; null leaves nothing selected.
    virtual void selectItem(IMvAbstractClip* item) = 0;
    virtual void clear() = 0;
    virtual int count() const = 0;
    virtual bool isEmpty() const = 0;
    virtual QList<IMvAbstractClip*> selectedItems() const = 0;
    virtual QList<IMvClip*> selectedClips() const = 0;
    virtual IMvAbstractClip* currentItem() const = 0;
    // True when the timeline itself (its ruler area) is the target of item commands.
    virtual bool isTimelineSelected() const = 0;
    virtual void setTimelineSelected(bool selected) = 0;

    // Track commands: the selected item at a place in selection order, null out of range.
    virtual IMvAbstractClip* itemAt(int index) const = 0;
};

// Selection of one sub-item (a freeze frame, ...) inside a clip, by id.
class MVVBLMODEL_EXPORT IMvSubItemSelection
{
public:
    virtual ~IMvSubItemSelection();

    // False, and id untouched, when nothing is selected.
    virtual bool selectedId(int& id) const = 0;
    virtual void select(int id) = 0;
    virtual void clear() = 0;
};
