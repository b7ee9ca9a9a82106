#pragma once

#include <QPoint>
#include <QTimer>
#include <QWidget>

class IMvTimeline;
class QScrollBar;
class MvDemoMarkerPresenter;
class MvDemoMarkerStrip;
class MvDemoPlayheadOverlay;
class MvDemoTrackArea;
class MvTimelinePlayheadPresenter;
class MvTimelinePresenter;
class MvTimelineRenderWidget;
class MvTimelineRulerPresenter;
class MvTimelineRulerWidget;

// The timeline column of the demo: marker strip, ruler, render strip and track area stacked on
// one frame mapping, with scroll bars over the ruler's visible range and over the rows, and the
// playhead overlay on top. The ruler and the render strip stand inset by a margin on both sides
// so that the split button has room at the first and the last frame; the marker strip and the
// track area span the margins and shift their drawing by it.
//
// Over the tracks the wheel scrolls the rows (Shift: in time) and zooms as the ruler does with
// the ruler's zoom modifier; a playhead dragged against an edge pulls the view along.
class MvDemoTimelineColumn : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kMargin = 24;
    static constexpr int kEdgeMargin = 10;
    static constexpr int kEdgeStepPixels = 30;

    MvDemoTimelineColumn(MvTimelinePresenter* presenter, MvTimelineRulerPresenter* rulerPresenter,
        MvDemoMarkerPresenter* markerPresenter, MvTimelinePlayheadPresenter* playheadPresenter, QWidget* parent);
    ~MvDemoTimelineColumn() override;

    MvTimelineRulerWidget* ruler() const { return m_ruler; }
    MvTimelineRenderWidget* renderStrip() const { return m_renderStrip; }
    MvDemoMarkerStrip* markerStrip() const { return m_markerStrip; }
    MvDemoTrackArea* trackArea() const { return m_trackArea; }
    MvDemoPlayheadOverlay* playheadOverlay() const { return m_overlay; }
    QScrollBar* horizontalBar() const { return m_horizontalBar; }
    QScrollBar* verticalBar() const { return m_verticalBar; }

    void refreshScrollBars();
    // Scrolls by pixels: dx in time, dy over the rows.
    void scrollBy(int dx, int dy);
    // One step of pulling the view after a playhead dragged against an edge; true when it moved.
    bool followPlayheadStep();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void buildLayout();
    void placeOverlay();
    bool wheelOverTracks(QWheelEvent* event);
    void trackPointer(QEvent* event);
    void showVisibleStart(int value);

    IMvTimeline* m_timeline;
    MvTimelineRulerPresenter* m_rulerPresenter;
    MvDemoMarkerPresenter* m_markerPresenter;
    MvTimelineRulerWidget* m_ruler;
    MvTimelineRenderWidget* m_renderStrip;
    MvDemoMarkerStrip* m_markerStrip;
    MvDemoTrackArea* m_trackArea;
    MvDemoPlayheadOverlay* m_overlay;
    QScrollBar* m_horizontalBar;
    QScrollBar* m_verticalBar;
    QTimer m_followTimer;
    QPoint m_pointer; // global position of the last mouse event over the timeline
    bool m_syncingBars = false;
};
