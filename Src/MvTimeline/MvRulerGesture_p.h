#pragma once

// Internal to the library: the mouse and wheel handling that both ruler widgets share. The
// widgets differ only in what a gesture does (move the ruler or the playhead), which they supply
// as a Target.

#include "MvTimelineGlobal.h"

#include <QObject>
#include <QPoint>
#include <QPolygonF>
#include <QTimer>

#include <functional>

class IMvTimelineRuler;
class MvEventFilterManager;
class QEvent;
class QMouseEvent;
class QWheelEvent;
class QWidget;

class MVTIMELINE_TEST_EXPORT MvRulerGesture : public QObject
{
    Q_OBJECT

public:
    // What the gestures act on.
    class MVTIMELINE_TEST_EXPORT Target
    {
    public:
        virtual ~Target();
        virtual int handleX() const = 0;
        virtual void beginZoom() = 0;
        virtual void endZoom() = 0;
        virtual void zoom(int delta) = 0;
        // x is already clamped to the widget.
        virtual void dragHandleTo(int x) = 0;
        virtual void click(int x) = 0;
        virtual void edgeScroll(bool backward) = 0;
        virtual void moveCurrentFrameToCenter() = 0;
    };

    // Milliseconds on a monotonic clock; tests put in a clock of their own.
    using Clock = std::function<qint64()>;

    static constexpr int kEdgeScrollInterval = 40;
    static constexpr int kEdgeMargin = 10;
    static constexpr qint64 kZoomDeadTime = 200;
    static constexpr qint64 kZoomThresholdTime = 400;
    static constexpr int kZoomThresholdPixels = 29;

    MvRulerGesture(QWidget* widget, Target* target);
    ~MvRulerGesture() override;

    void setClock(Clock clock);
    QTimer* edgeScrollTimer();

    // The pentagon of the handle, pointing down, centred on the handle's x.
    static const QPolygonF& handlePolygon();
    // The column 14 pixels wide over the whole height of the widget around the handle.
    bool isOverHandle(const QPoint& pos) const;

    void press(QMouseEvent* event);
    void move(QMouseEvent* event);
    void release(QMouseEvent* event);
    void wheel(QWheelEvent* event);
    // One tick of the edge-scroll timer.
    void edgeScrollStep();
    // Offers an event to the filter manager unless a zoom drag is under way; true when consumed.
    bool routeEvent(MvEventFilterManager* manager, QEvent* event);

    bool isPressed() const { return m_pressed; }
    bool isZoomDragged() const { return m_zoomDragged; }
    bool isDraggingHandle() const { return m_draggingHandle; }
    bool isHandleMoved() const { return m_handleMoved; }
    bool isDragging() const { return m_zoomDragged || m_draggingHandle; }

    // Moves the ruler's current frame by 30 pixels' worth of frames (at least one), kept
    // inside 0 .. totalFrames(). The ruler scrolls its visible range to follow.
    static void stepCurrentFrame(IMvTimelineRuler* ruler, bool backward);

private:
    QWidget* m_widget;
    Target* m_target;
    bool m_pressed = false;
    bool m_zoomDragged = false;
    bool m_draggingHandle = false;
    bool m_handleMoved = false;
    QPoint m_lastPos;
    qint64 m_pressTimer = -1; // -1 while no zoom press is timed
    QTimer m_edgeScrollTimer;
    QPoint m_handlePos;
    Clock m_clock;
};
