#pragma once

#include "MvMarkerPresenter.h"
#include "MvMarkerWidget.h"

class IMvMarker;
class IMvTimeline;

// The host's marker presenter: the timeline's markers at their ruler x, in palette colours whose
// flag images are drawn at run time (the library ships none).
class MvDemoMarkerPresenter : public MvMarkerPresenter
{
    Q_OBJECT

public:
    MvDemoMarkerPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent);

    QList<MarkerItem> markerList() override;
    // Where frame 0's pixel of the ruler lies in the strip, which is wider than the ruler.
    void setOriginX(int originX);
    // The model marker behind the list entry at index, or null.
    IMvMarker* markerAt(int index) const;

private:
    IMvTimeline* m_timeline;
    int m_originX = 0;
};

// The marker strip with the host's mouse handling: hover and press looks, a click selects the
// marker and moves the playhead onto it, a double click opens the marker editor.
class MvDemoMarkerStrip : public MvMarkerWidget
{
    Q_OBJECT

public:
    MvDemoMarkerStrip(MvDemoMarkerPresenter* presenter, QWidget* parent);

Q_SIGNALS:
    void markerPicked(IMvMarker* marker);
    void editRequested();

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int indexAt(const QPoint& pos) const;

    MvDemoMarkerPresenter* m_demoPresenter;
};
