#pragma once

#include "MvMemoryGlobal.h"

#include "IMvMarker.h"
#include "MvMemoryUndoable.h"

#include <QColor>
#include <QList>

class MvMemoryTimeline;
class MvMemoryClip;
class MvMemoryMarkerList;

struct MvMemoryMarkerState
{
    qint64 frame = 0;
    QColor color;
    QString name;
    QString comment;

    bool operator==(const MvMemoryMarkerState& other) const
    {
        return frame == other.frame && color == other.color && name == other.name && comment == other.comment;
    }
};

// A marker of the in-memory model. It lives as long as its list; removing it detaches it (the
// list's value says which of its markers are attached).
class MVMEMORY_EXPORT MvMemoryMarker : public IMvMarker, public MvMemoryValued<MvMemoryMarkerState>
{
public:
    using State = MvMemoryMarkerState;

    MvMemoryMarker(MvMemoryMarkerList* owner, const State& state);

    IMvMarkerList* ownerList() const override;
    qint64 frame() const override;
    QColor color() const override;
    QString name() const override;
    QString comment() const override;
    void setColor(const QColor& color) override;
    void setName(const QString& name) override;
    void setComment(const QString& comment) override;

    bool isAttached() const;
    QString undoLabel() const override;

private:
    Q_DISABLE_COPY(MvMemoryMarker)
    MvMemoryMarkerList* m_owner;
};

struct MvMemoryMarkerListState
{
    QList<MvMemoryMarker*> attached; // ordered by frame

    bool operator==(const MvMemoryMarkerListState& other) const { return attached == other.attached; }
};

// Markers of the whole timeline (own frames are timeline frames, range 0 .. duration) or of one
// clip (own frames count from the clip's start, range start .. end). One marker per frame.
class MVMEMORY_EXPORT MvMemoryMarkerList : public IMvMarkerList, public MvMemoryValued<MvMemoryMarkerListState>
{
public:
    using State = MvMemoryMarkerListState;

    MvMemoryMarkerList(MvMemoryTimeline* timeline, MvMemoryClip* clip);
    ~MvMemoryMarkerList() override;

    QList<IMvMarker*> markers() const override;
    IMvMarker* markerAt(qint64 frame) const override;
    bool canAddMarker(qint64 frame) const override;
    void addMarker(qint64 frame, const QColor& color) override;
    void removeMarker(IMvMarker* marker) override;
    void frameRange(MvRange<qint64>& range) const override;
    qint64 mapFromTimeline(qint64 timelineFrame) const override;
    qint64 mapToTimeline(qint64 ownFrame) const override;

    MvMemoryTimeline* timeline() const { return m_timeline; }
    MvMemoryClip* clip() const { return m_clip; }
    // Adds a marker with a name, as one edit; null when refused.
    MvMemoryMarker* addNamedMarker(qint64 frame, const QColor& color, const QString& name);
    QList<MvMemoryMarker*> attachedMarkers() const { return state().attached; }
    bool contains(const IMvMarker* marker) const;
    QString undoLabel() const override;

    // Piece work for split and trim, called inside an edit of the owner clip: markers at own
    // frames >= offset move into target (rebased), markers outside 0 .. lastFrame are dropped.
    void moveTailTo(MvMemoryMarkerList* target, qint64 offset);
    void dropOutside(qint64 firstFrame, qint64 lastFrame);
    void shiftFrames(qint64 delta);

    // An edit made through a marker of this list.
    void markerEdit(MvMemoryMarker* marker, const char* operation, const MvMemoryMarker::State& state);

private:
    Q_DISABLE_COPY(MvMemoryMarkerList)
    MvMemoryMarker* insert(qint64 frame, const QColor& color, const QString& name);

    // The first attached marker at or after an own frame.
    QList<MvMemoryMarker*>::const_iterator firstFrom(qint64 frame) const;

    MvMemoryTimeline* m_timeline;
    MvMemoryClip* m_clip;
    QList<MvMemoryMarker*> m_all; // every marker made in this list, attached or not
};

// Which marker is selected, on the timeline or on any clip. Selection, not an undoable edit.
class MVMEMORY_EXPORT MvMemoryMarkerModel : public IMvMarkerModel
{
public:
    explicit MvMemoryMarkerModel(MvMemoryTimeline* timeline);

    IMvMarker* selectedMarker() const override;
    void setSelectedMarker(IMvMarker* marker) override;

private:
    MvMemoryTimeline* m_timeline;
    IMvMarker* m_selected = nullptr;
};
