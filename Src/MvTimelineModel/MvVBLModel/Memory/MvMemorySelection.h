#pragma once

#include "MvMemoryGlobal.h"

#include "IMvSelection.h"
#include "MvMemoryMarks.h"

class MvMemoryTimeline;

// The selection is a view of the user's focus; it is not part of undo. It only ever holds items
// that are on the timeline: edits and undo drop the items they take off it.
class MVMEMORY_EXPORT MvMemorySelection : public IMvSelection
{
public:
    explicit MvMemorySelection(MvMemoryTimeline* timeline);

    void select(const QList<IMvClip*>& clips) override;
    void selectItems(const QList<IMvAbstractClip*>& items) override;
    void selectItem(IMvAbstractClip* item) override;
    void clear() override;
    int count() const override;
    bool isEmpty() const override;
    QList<IMvAbstractClip*> selectedItems() const override;
    QList<IMvClip*> selectedClips() const override;
    IMvAbstractClip* currentItem() const override;
    bool isTimelineSelected() const override;
    void setTimelineSelected(bool selected) override;
    IMvAbstractClip* itemAt(int index) const override;

    // Drops those of the candidates (what an edit or undo changed) that are selected and no longer
    // on the timeline; true when something was dropped.
    bool prune(const QList<const IMvAbstractClip*>& candidates);
    // For invariant tests: stores items without any check.
    void setItemsUnchecked(const QList<IMvAbstractClip*>& items);

private:
    MvMemoryTimeline* m_timeline;
    QList<IMvAbstractClip*> m_items;
    MvMemoryMarks m_marks; // the same items by their undo serial, for lookups
    bool m_timelineSelected = false;
};

class MVMEMORY_EXPORT MvMemorySubItemSelection : public IMvSubItemSelection
{
public:
    bool selectedId(int& id) const override;
    void select(int id) override;
    void clear() override;

private:
    bool m_hasSelection = false;
    int m_id = 0;
};
