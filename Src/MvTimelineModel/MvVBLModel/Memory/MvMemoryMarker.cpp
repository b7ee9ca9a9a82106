#include "MvMemoryMarker.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTrack.h"

#include <algorithm>

MvMemoryMarker::MvMemoryMarker(MvMemoryMarkerList* owner, const State& state)
    : MvMemoryValued<State>(owner->timeline()->undoRecorder(), state)
    , m_owner(owner)
{
}

IMvMarkerList* MvMemoryMarker::ownerList() const
{
    return m_owner;
}

qint64 MvMemoryMarker::frame() const
{
    return state().frame;
}

QColor MvMemoryMarker::color() const
{
    return state().color;
}

QString MvMemoryMarker::name() const
{
    return state().name;
}

QString MvMemoryMarker::comment() const
{
    return state().comment;
}

void MvMemoryMarker::setColor(const QColor& color)
{
    State value = state();
    value.color = color;
    m_owner->markerEdit(this, "setMarkerColor", value);
}

void MvMemoryMarker::setName(const QString& name)
{
    State value = state();
    value.name = name;
    m_owner->markerEdit(this, "setMarkerName", value);
}

void MvMemoryMarker::setComment(const QString& comment)
{
    State value = state();
    value.comment = comment;
    m_owner->markerEdit(this, "setMarkerComment", value);
}

bool MvMemoryMarker::isAttached() const
{
    return m_owner->contains(this);
}

QString MvMemoryMarker::undoLabel() const
{
    return m_owner->undoLabel() + QStringLiteral(", marker at %1").arg(state().frame);
}

// ---- list

MvMemoryMarkerList::MvMemoryMarkerList(MvMemoryTimeline* timeline, MvMemoryClip* clip)
    : MvMemoryValued<State>(timeline->undoRecorder(), State())
    , m_timeline(timeline)
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
    list.reserve(state().attached.size());
    for (MvMemoryMarker* marker : state().attached)
        list.append(marker);
    return list;
}

QList<MvMemoryMarker*>::const_iterator MvMemoryMarkerList::firstFrom(qint64 frame) const
{
    const QList<MvMemoryMarker*>& attached = state().attached;
    return std::lower_bound(attached.cbegin(), attached.cend(), frame,
        [](const MvMemoryMarker* marker, qint64 value) { return marker->frame() < value; });
}

IMvMarker* MvMemoryMarkerList::markerAt(qint64 frame) const
{
    const auto it = firstFrom(frame);
    return it != state().attached.cend() && (*it)->frame() == frame ? *it : nullptr;
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
    auto value = change();
    auto at = std::upper_bound(value->attached.begin(), value->attached.end(), frame,
        [](qint64 own, const MvMemoryMarker* other) { return own < other->frame(); });
    value->attached.insert(at, marker);
    return marker;
}

void MvMemoryMarkerList::removeMarker(IMvMarker* marker)
{
    MvMemoryTimeline::Edit edit(m_timeline, "removeMarker", QStringLiteral("remove marker"));
    if (!contains(marker) || (m_clip && m_clip->trackImpl() && m_clip->trackImpl()->isLocked()))
        return;
    change()->attached.removeOne(static_cast<MvMemoryMarker*>(marker));
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

// Attached markers stand in frame order, one per frame: a marker is attached when it is the one
// found at its own frame.
bool MvMemoryMarkerList::contains(const IMvMarker* marker) const
{
    const auto* own = dynamic_cast<const MvMemoryMarker*>(marker);
    if (!own || own->ownerList() != this)
        return false;
    for (auto it = firstFrom(own->frame()); it != state().attached.cend() && (*it)->frame() == own->frame(); ++it) {
        if (*it == own)
            return true;
    }
    return false;
}

QString MvMemoryMarkerList::undoLabel() const
{
    return m_clip ? m_clip->undoLabel() + QLatin1String(" markers") : QStringLiteral("timeline markers");
}

void MvMemoryMarkerList::moveTailTo(MvMemoryMarkerList* target, qint64 offset)
{
    const auto tail = firstFrom(offset);
    if (tail == state().attached.cend())
        return;
    const QList<MvMemoryMarker*> moving(tail, state().attached.cend());
    for (const MvMemoryMarker* marker : moving) {
        MvMemoryMarker* copy = target->insert(marker->frame() - offset, marker->color(), marker->name());
        copy->change()->comment = marker->comment();
    }
    auto value = change();
    value->attached.erase(value->attached.end() - moving.size(), value->attached.end());
}

void MvMemoryMarkerList::dropOutside(qint64 firstFrame, qint64 lastFrame)
{
    const QList<MvMemoryMarker*>& attached = state().attached;
    const auto outside
        = [&](const MvMemoryMarker* marker) { return marker->frame() < firstFrame || marker->frame() > lastFrame; };
    if (std::none_of(attached.cbegin(), attached.cend(), outside))
        return;
    auto value = change();
    value->attached.erase(
        std::remove_if(value->attached.begin(), value->attached.end(), outside), value->attached.end());
}

void MvMemoryMarkerList::shiftFrames(qint64 delta)
{
    if (delta == 0)
        return;
    for (MvMemoryMarker* marker : state().attached)
        marker->change()->frame += delta;
}

void MvMemoryMarkerList::markerEdit(MvMemoryMarker* marker, const char* operation, const MvMemoryMarker::State& state)
{
    MvMemoryTimeline::Edit edit(m_timeline, operation, QStringLiteral("edit marker"));
    if (!contains(marker) || (m_clip && m_clip->trackImpl() && m_clip->trackImpl()->isLocked()))
        return;
    if (marker->state() == state)
        return;
    *marker->change() = state;
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
