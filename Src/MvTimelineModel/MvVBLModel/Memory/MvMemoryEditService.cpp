#include "MvMemoryEditService.h"

#include "MvMemoryTimeline.h"

#include <QSet>

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
    QSet<const IMvClip*> seen;
    for (IMvClip* clip : clips) {
        QList<IMvClip*> group;
        groupMembersOf(clip, group, includeUngrouped);
        for (IMvClip* member : qAsConst(group)) {
            if (!seen.contains(member)) {
                seen.insert(member);
                members.append(member);
            }
        }
    }
}

void MvMemoryEditService::ungroup(const QList<IMvClip*>& members)
{
    MvMemoryTimeline::Edit edit(m_timeline, "ungroup", QStringLiteral("ungroup"));
    QList<MvMemoryClip*> own;
    for (IMvClip* member : members) {
        if (MvMemoryClip* clip = m_timeline->memoryClip(member))
            own.append(clip);
    }
    m_timeline->groupsImpl()->dissolveGroupsOf(own);
}

// Only clips on the timeline take part; a group needs two of them.
void MvMemoryEditService::group(const QList<IMvClip*>& members, int groupKind)
{
    MvMemoryTimeline::Edit edit(m_timeline, "group", QStringLiteral("group"));
    QList<MvMemoryClip*> joining;
    QSet<const MvMemoryClip*> seen;
    for (IMvClip* member : members) {
        MvMemoryClip* own = m_timeline->memoryClip(member);
        if (own && own->isOnTimeline() && !seen.contains(own)) {
            seen.insert(own);
            joining.append(own);
        }
    }
    if (joining.size() < 2)
        return;
    m_timeline->groupsImpl()->form(joining, groupKind);
}
