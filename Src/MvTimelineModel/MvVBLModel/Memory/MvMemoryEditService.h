#pragma once

#include "MvMemoryGlobal.h"

#include "IMvClipEditService.h"

class MvMemoryTimeline;

// Groups of the in-memory timeline. The groups themselves are timeline state (undoable); this
// service reads and edits them.
class MVMEMORY_EXPORT MvMemoryEditService : public IMvClipEditService
{
public:
    explicit MvMemoryEditService(MvMemoryTimeline* timeline);

    void groupMembersOf(IMvClip* clip, QList<IMvClip*>& members, bool includeUngrouped) const override;
    void collectGroupMembers(
        const QList<IMvClip*>& clips, QList<IMvClip*>& members, bool includeUngrouped) const override;
    void ungroup(const QList<IMvClip*>& members) override;
    void group(const QList<IMvClip*>& members, int groupKind) override;

private:
    MvMemoryTimeline* m_timeline;
};
