#pragma once

#include <QObject>

class MvDemoTrackArea;

// Makes the track area a drop target for items dragged from the media panel: the drop point
// becomes a frame (through the area's frame mapping) and a row (the row under it, or the nearest).
class MvDemoMediaDrop : public QObject
{
    Q_OBJECT

public:
    explicit MvDemoMediaDrop(MvDemoTrackArea* area);

    // Where a drop at this point of the area puts an item.
    qint64 frameAt(int x) const;
    int rowAt(int y) const;

Q_SIGNALS:
    // The media panel's row of the item dropped, and where.
    void dropped(int itemRow, qint64 frame, int trackIndex);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    MvDemoTrackArea* m_area;
};
