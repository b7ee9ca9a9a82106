#pragma once

#include <QWidget>

class IMvTimeline;
class MvDemoTrackArea;

// Track names beside the rows, scrolled with them, with a padlock per row that a click toggles.
// A right click asks for the row's context menu.
class MvDemoTrackHeaders : public QWidget
{
    Q_OBJECT

public:
    MvDemoTrackHeaders(IMvTimeline* timeline, MvDemoTrackArea* area, QWidget* parent = nullptr);
    QSize sizeHint() const override { return QSize(120, 200); }

    // The row of a track in this widget's coordinates.
    QRect rowRect(int trackIndex) const;
    int trackAt(const QPoint& pos) const;
    QString trackName(int trackIndex) const;

Q_SIGNALS:
    void lockToggled();
    void contextMenuRequested(int trackIndex, const QPoint& globalPos);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    int areaTop() const;

    IMvTimeline* m_timeline;
    MvDemoTrackArea* m_area;
};
