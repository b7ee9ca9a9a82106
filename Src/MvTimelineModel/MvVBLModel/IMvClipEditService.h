#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvClip;

// Grouping of clips that move and edit together. A clip is in at most one group.
class MVVBLMODEL_EXPORT IMvClipEditService
{
public:
    virtual ~IMvClipEditService();

    // The clip's group members, the clip included; empty when the clip is in no group.
    // includeUngrouped adds the clip itself even when it is in no group.
    virtual void groupMembersOf(IMvClip* clip, QList<IMvClip*>& members, bool includeUngrouped) const = 0;
    // The members of every group the clips belong to, each once, in first-seen order.
    virtual void collectGroupMembers(const QList<IMvClip*>& clips, QList<IMvClip*>& members, bool includeUngrouped) const = 0;
    // Dissolves every group any of these clips belongs to.
    virtual void ungroup(const QList<IMvClip*>& members) = 0;
    // One group of these clips (taken out of their earlier groups); fewer than two clips form none.
    virtual void group(const QList<IMvClip*>& members, int groupKind) = 0;
};
