#include "MvMemoryMarker.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTrack.h"

#include <algorithm>

MvMemoryMarker::MvMemoryMarker(MvMemoryMarkerList* owner, const State& state)
    : m_owner(owner)
    , m_state(state)
{
}

IMvMarkerList* MvMemoryMarker::ownerList() const
{
    return m_owner;
}

qint64 MvMemoryMarker::frame() const
{
    return m_state.frame;
}

QColor MvMemoryMarker::color() const
{
    return m_state.color;
}

QString MvMemoryMarker::name() const
{
    return m_state.name;
}

QString MvMemoryMarker::comment() const
{
    return m_state.comment;
}

void MvMemoryMarker::setColor(const QColor& color)
{
    State state = m_state;
    state.color = color;
    m_owner->markerEdit(this, "setMarkerColor", state);
}

void MvMemoryMarker::setName(const QString& name)
{
    State state = m_state;
    state.name = name;
    m_owner->markerEdit(this, "setMarkerName", state);
}

void MvMemoryMarker::setComment(const QString& comment)
{
    State state = m_state;
    state.comment = comment;
    m_owner->markerEdit(this, "setMarkerComment", state);
}

bool MvMemoryMarker::isAttached() const
{
    return m_owner->contains(this);
}

// ---- list

MvMemoryMarkerList::MvMemoryMarkerList(MvMemoryTimeline* timeline, MvMemoryClip* clip)
    : m_timeline(timeline)
    , m_clip(clip)
{
}

MvMemoryMarkerList::~MvMemoryMarkerList()
{
    qDeleteAll(m_all);
}

QList<IMvMarker*> MvMemoryMarkerList::markers() const
{
    QList<IMvMarker*> list;
    list.reserve(m_attached.size());
    for (MvMemoryMarker* marker : m_attached)
        list.append(marker);
    return list;
}

IMvMarker* MvMemoryMarkerList::markerAt(qint64 frame) const
{
    for (MvMemoryMarker* marker : m_attached) {
        if (marker->frame() == frame)
            return marker;
    }
    return nullptr;
}

bool MvMemoryMarkerList::canAddMarker(qint64 frame) const
{
    MvRange<qint64> range;
    frameRange(range);
    if (m_clip && !m_clip->isOnTimeline())
        return false;
    return range.contains(mapToTimeline(frame)) && !markerAt(frame);
}

void MvMemoryMarkerList::addMarker(qint64 frame, const QColor& color)
{
    addNamedMarker(frame, color, QString());
}

MvMemoryMarker* MvMemoryMarkerList::addNamedMarker(qint64 frame, const QColor& color, const QString& name)
{
    MvMemoryTimeline::Edit edit(m_timeline, "addMarker", QStringLiteral("add marker"));
    if (!canAddMarker(frame) || (m_clip && m_clip->trackImpl()->isLocked()))
        return nullptr;
    return insert(frame, color, name);
}

MvMemoryMarker* MvMemoryMarkerList::insert(qint64 frame, const QColor& color, const QString& name)
{
    auto* marker = new MvMemoryMarker(this, MvMemoryMarker::State { frame, color, name, QString() });
    m_all.append(marker);
    auto at = std::upper_bound(m_attached.begin(), m_attached.end(), frame,
        [](qint64 value, const MvMemoryMarker* other) { return value < other->frame(); });
    m_attached.insert(at, marker);
    return marker;
}

void MvMemoryMarkerList::removeMarker(IMvMarker* marker)
{
    MvMemoryTimeline::Edit edit(m_timeline, "removeMarker", QStringLiteral("remove marker"));
    if (!contains(marker) || (m_clip && m_clip->trackImpl() && m_clip->trackImpl()->isLocked()))
        return;
    m_attached.removeAll(static_cast<MvMemoryMarker*>(marker));
}

// The timeline's list covers 0 .. duration (a marker may stand at the end); a clip's list its
// own frames.
void MvMemoryMarkerList::frameRange(MvRange<qint64>& range) const
{
    if (m_clip)
        range = MvRange<qint64>(m_clip->start(), m_clip->end());
    else
        range = MvRange<qint64>(0, m_timeline->duration());
}

qint64 MvMemoryMarkerList::mapFromTimeline(qint64 timelineFrame) const
{
    return m_clip ? timelineFrame - m_clip->start() : timelineFrame;
}

qint64 MvMemoryMarkerList::mapToTimeline(qint64 ownFrame) const
{
    return m_clip ? ownFrame + m_clip->start() : ownFrame;
}

bool MvMemoryMarkerList::contains(const IMvMarker* marker) const
{
    for (const MvMemoryMarker* own : m_attached) {
        if (own == marker)
            return true;
    }
    return false;
}

MvMemoryMarkerList::State MvMemoryMarkerList::state() const
{
    State state;
    state.attached = m_attached;
    state.markers.reserve(m_all.size());
    for (const MvMemoryMarker* marker : m_all)
        state.markers.append(marker->state());
    return state;
}

void MvMemoryMarkerList::restore(const State& state)
{
    m_attached.clear();
    for (MvMemoryMarker* marker : state.attached) {
        if (m_all.contains(marker))
            m_attached.append(marker);
    }
    for (int i = 0; i < m_all.size() && i < state.markers.size(); ++i)
        m_all[i]->restore(state.markers.at(i));
}

void MvMemoryMarkerList::moveTailTo(MvMemoryMarkerList* target, qint64 offset)
{
    const QList<MvMemoryMarker*> attached = m_attached;
    for (MvMemoryMarker* marker : attached) {
        if (marker->frame() < offset)
            continue;
        MvMemoryMarker* copy = target->insert(marker->frame() - offset, marker->color(), marker->name());
        MvMemoryMarker::State state = copy->state();
        state.comment = marker->comment();
        copy->restore(state);
        m_attached.removeAll(marker);
    }
}

void MvMemoryMarkerList::dropOutside(qint64 firstFrame, qint64 lastFrame)
{
    const QList<MvMemoryMarker*> attached = m_attached;
    for (MvMemoryMarker* marker : attached) {
        if (marker->frame() < firstFrame || marker->frame() > lastFrame)
            m_attached.removeAll(marker);
    }
}

void MvMemoryMarkerList::shiftFrames(qint64 delta)
{
    for (MvMemoryMarker* marker : qAsConst(m_attached)) {
        MvMemoryMarker::State state = marker->state();
        state.frame += delta;
        marker->restore(state);
    }
}

void MvMemoryMarkerList::markerEdit(MvMemoryMarker* marker, const char* operation, const MvMemoryMarker::State& state)
{
    MvMemoryTimeline::Edit edit(m_timeline, operation, QStringLiteral("edit marker"));
    if (!contains(marker) || (m_clip && m_clip->trackImpl() && m_clip->trackImpl()->isLocked()))
        return;
    marker->restore(state);
}

// ---- marker model

MvMemoryMarkerModel::MvMemoryMarkerModel(MvMemoryTimeline* timeline)
    : m_timeline(timeline)
{
}

// A marker that an edit or undo took away is no longer selected.
IMvMarker* MvMemoryMarkerModel::selectedMarker() const
{
    return m_timeline->isLiveMarker(m_selected) ? m_selected : nullptr;
}

void MvMemoryMarkerModel::setSelectedMarker(IMvMarker* marker)
{
    m_selected = m_timeline->isLiveMarker(marker) ? marker : nullptr;
}
