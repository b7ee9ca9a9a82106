#pragma once

#include <QWidget>

class IMvTimeline;
class MvDemoTrackArea;

// Track names beside the rows, with a lock toggle per row (click the padlock).
class MvDemoTrackHeaders : public QWidget
{
    Q_OBJECT

public:
    MvDemoTrackHeaders(IMvTimeline* timeline, MvDemoTrackArea* area, QWidget* parent = nullptr);
    QSize sizeHint() const override { return QSize(120, 200); }

Q_SIGNALS:
    void lockToggled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    IMvTimeline* m_timeline;
    MvDemoTrackArea* m_area;
};
