#include "MvMemoryGroups.h"

#include <QSet>

#include <algorithm>

MvMemoryClipGroup::MvMemoryClipGroup(MvMemoryGroups* groups, MvMemoryUndoRecorder* recorder, const State& state)
    : MvMemoryValued<State>(recorder, state)
    , m_groups(groups)
{
    valueChanged();
}

QString MvMemoryClipGroup::undoLabel() const
{
    return QStringLiteral("group %1").arg(undoSerial());
}

// A group formed later than a capture did not exist then.
MvMemoryClipGroup::State MvMemoryClipGroup::detached(State value) const
{
    value.live = false;
    return value;
}

void MvMemoryClipGroup::valueChanged()
{
    const QList<MvMemoryClip*> now = state().live ? state().members : QList<MvMemoryClip*>();
    if (now == m_indexed)
        return;
    m_groups->follow(this, m_indexed, now);
    m_indexed = now;
}

MvMemoryGroups::MvMemoryGroups(MvMemoryUndoRecorder* recorder)
    : m_recorder(recorder)
{
}

MvMemoryGroups::~MvMemoryGroups()
{
    qDeleteAll(m_all);
}

QList<MvMemoryGroup> MvMemoryGroups::liveGroups() const
{
    QList<MvMemoryGroup> groups;
    for (const MvMemoryClipGroup* group : m_all) {
        if (group->state().live)
            groups.append(MvMemoryGroup { group->state().members, group->state().kind });
    }
    return groups;
}

void MvMemoryGroups::form(const QList<MvMemoryClip*>& members, int kind)
{
    removeMembers(members);
    m_all.append(new MvMemoryClipGroup(this, m_recorder, MvMemoryClipGroup::State { members, kind, true }));
}

void MvMemoryGroups::removeMembers(const QList<MvMemoryClip*>& clips)
{
    QHash<MvMemoryClipGroup*, QSet<const MvMemoryClip*>> leaving;
    for (const MvMemoryClip* clip : clips) {
        if (MvMemoryClipGroup* group = groupOf(clip))
            leaving[group].insert(clip);
    }
    for (auto it = leaving.cbegin(); it != leaving.cend(); ++it) {
        auto value = it.key()->change();
        const QSet<const MvMemoryClip*>& gone = it.value();
        value->members.erase(std::remove_if(value->members.begin(), value->members.end(),
                                 [&gone](const MvMemoryClip* member) { return gone.contains(member); }),
            value->members.end());
        if (value->members.size() < 2)
            value->live = false;
    }
}

void MvMemoryGroups::dissolveGroupsOf(const QList<MvMemoryClip*>& clips)
{
    for (const MvMemoryClip* clip : clips) {
        if (MvMemoryClipGroup* group = groupOf(clip))
            group->change()->live = false;
    }
}

void MvMemoryGroups::join(const MvMemoryClip* clip, MvMemoryClip* piece)
{
    if (MvMemoryClipGroup* group = groupOf(clip))
        group->change()->members.append(piece);
}

void MvMemoryGroups::follow(
    MvMemoryClipGroup* group, const QList<MvMemoryClip*>& before, const QList<MvMemoryClip*>& now)
{
    for (const MvMemoryClip* member : before) {
        const auto it = m_byClip.find(member);
        if (it != m_byClip.end() && it.value() == group)
            m_byClip.erase(it);
    }
    for (const MvMemoryClip* member : now)
        m_byClip.insert(member, group);
}
