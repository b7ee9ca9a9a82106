#pragma once

#include "MvMemoryGlobal.h"

#include "MvMemoryUndoable.h"

#include <QHash>
#include <QList>

class MvMemoryClip;
class MvMemoryGroups;

// A group of clips that edit together, as a value; kind 1 is a linked pair (picture and its sound).
struct MvMemoryGroup
{
    QList<MvMemoryClip*> members;
    int kind = 0;

    bool operator==(const MvMemoryGroup& other) const { return members == other.members && kind == other.kind; }
};

struct MvMemoryClipGroupState
{
    QList<MvMemoryClip*> members; // in the order they joined
    int kind = 0;
    bool live = true; // false once dissolved

    bool operator==(const MvMemoryClipGroupState& other) const
    {
        return members == other.members && kind == other.kind && live == other.live;
    }
};

// One group as an undoable object. A dissolved group stays (not live), so undo can bring it back.
class MVMEMORY_EXPORT MvMemoryClipGroup : public MvMemoryValued<MvMemoryClipGroupState>
{
public:
    using State = MvMemoryClipGroupState;

    MvMemoryClipGroup(MvMemoryGroups* groups, MvMemoryUndoRecorder* recorder, const State& state);

    QString undoLabel() const override;

protected:
    State detached(State value) const override;
    void valueChanged() override;

private:
    Q_DISABLE_COPY(MvMemoryClipGroup)
    MvMemoryGroups* m_groups;
    QList<MvMemoryClip*> m_indexed; // the members the lookup gives this group for
};

// The groups of a timeline: every group ever formed, in the order they were formed, and which
// live group each clip belongs to. A clip is in one group at most; a group has two members at
// least.
class MVMEMORY_EXPORT MvMemoryGroups
{
public:
    explicit MvMemoryGroups(MvMemoryUndoRecorder* recorder);
    ~MvMemoryGroups();

    MvMemoryClipGroup* groupOf(const MvMemoryClip* clip) const { return m_byClip.value(clip); }
    // The live groups, in the order they were formed.
    QList<MvMemoryGroup> liveGroups() const;

    // Edits, inside an undo step. The members leave the groups they were in first.
    void form(const QList<MvMemoryClip*>& members, int kind);
    // Clips that leave the timeline leave their groups; a group left with fewer than two members
    // is dissolved.
    void removeMembers(const QList<MvMemoryClip*>& clips);
    // Dissolves every group that holds one of the clips.
    void dissolveGroupsOf(const QList<MvMemoryClip*>& clips);
    // A piece cut off a grouped clip joins the clip's group.
    void join(const MvMemoryClip* clip, MvMemoryClip* piece);

    // Kept by the groups themselves.
    void follow(MvMemoryClipGroup* group, const QList<MvMemoryClip*>& before, const QList<MvMemoryClip*>& now);

private:
    Q_DISABLE_COPY(MvMemoryGroups)
    MvMemoryUndoRecorder* m_recorder;
    QList<MvMemoryClipGroup*> m_all;
    QHash<const MvMemoryClip*, MvMemoryClipGroup*> m_byClip;
};
