#include "MvMemoryEditService.h"

#include "MvMemoryTimeline.h"

MvMemoryEditService::MvMemoryEditService(MvMemoryTimeline* timeline)
    : m_timeline(timeline)
{
}

void MvMemoryEditService::groupMembersOf(IMvClip* clip, QList<IMvClip*>& members, bool includeUngrouped) const
{
    members.clear();
    MvMemoryClip* own = m_timeline->memoryClip(clip);
    if (!own)
        return;
    const QList<MvMemoryClip*> group = m_timeline->groupMembers(own);
    for (MvMemoryClip* member : group)
        members.append(member);
    if (members.isEmpty() && includeUngrouped)
        members.append(own);
}

void MvMemoryEditService::collectGroupMembers(
    const QList<IMvClip*>& clips, QList<IMvClip*>& members, bool includeUngrouped) const
{
    members.clear();
    for (IMvClip* clip : clips) {
        QList<IMvClip*> group;
        groupMembersOf(clip, group, includeUngrouped);
        for (IMvClip* member : qAsConst(group)) {
            if (!members.contains(member))
                members.append(member);
        }
    }
}

void MvMemoryEditService::ungroup(const QList<IMvClip*>& members)
{
    MvMemoryTimeline::Edit edit(m_timeline, "ungroup", QStringLiteral("ungroup"));
    QList<MvMemoryGroup> kept;
    const QList<MvMemoryGroup> groups = m_timeline->groups();
    for (const MvMemoryGroup& group : groups) {
        bool hit = false;
        for (IMvClip* member : members)
            hit = hit || group.members.contains(m_timeline->memoryClip(member));
        if (!hit)
            kept.append(group);
    }
    m_timeline->setGroups(kept);
}

// Only clips on the timeline take part; a group needs two of them.
void MvMemoryEditService::group(const QList<IMvClip*>& members, int groupKind)
{
    MvMemoryTimeline::Edit edit(m_timeline, "group", QStringLiteral("group"));
    MvMemoryGroup created;
    created.kind = groupKind;
    for (IMvClip* member : members) {
        MvMemoryClip* own = m_timeline->memoryClip(member);
        if (own && own->isOnTimeline() && !created.members.contains(own))
            created.members.append(own);
    }
    if (created.members.size() < 2)
        return;
    QList<MvMemoryGroup> kept;
    const QList<MvMemoryGroup> groups = m_timeline->groups();
    for (MvMemoryGroup group : groups) {
        for (MvMemoryClip* member : qAsConst(created.members))
            group.members.removeAll(member);
        if (group.members.size() >= 2)
            kept.append(group);
    }
    kept.append(created);
    m_timeline->setGroups(kept);
}
