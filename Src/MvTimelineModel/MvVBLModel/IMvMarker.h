#pragma once

#include "MvRange.h"
#include "MvVBLModelGlobal.h"

#include <QColor>
#include <QList>

class IMvMarkerList;

class MVVBLMODEL_EXPORT IMvMarker
{
public:
    virtual ~IMvMarker();

    virtual IMvMarkerList* ownerList() const = 0;
    virtual qint64 frame() const = 0; // in the owner's own frames
    virtual QColor color() const = 0;
    virtual QString name() const = 0;
    virtual QString comment() const = 0;
    virtual void setColor(const QColor& color) = 0;
    virtual void setName(const QString& name) = 0;
    virtual void setComment(const QString& comment) = 0;
};

// Markers of the timeline or of one clip, ordered by frame, at most one per frame.
class MVVBLMODEL_EXPORT IMvMarkerList
{
public:
    virtual ~IMvMarkerList();

    virtual QList<IMvMarker*> markers() const = 0;
    virtual IMvMarker* markerAt(qint64 frame) const = 0;
    virtual bool canAddMarker(qint64 frame) const = 0;
    virtual void addMarker(qint64 frame, const QColor& color) = 0;
    virtual void removeMarker(IMvMarker* marker) = 0;
    // Timeline frames covered by the list's owner (the whole timeline, or one clip).
    virtual void frameRange(MvRange<qint64>& range) const = 0;
    virtual qint64 mapFromTimeline(qint64 timelineFrame) const = 0;
    virtual qint64 mapToTimeline(qint64 ownFrame) const = 0;
};

class MVVBLMODEL_EXPORT IMvMarkerModel
{
public:
    virtual ~IMvMarkerModel();

    virtual IMvMarker* selectedMarker() const = 0;
    virtual void setSelectedMarker(IMvMarker* marker) = 0;
};
