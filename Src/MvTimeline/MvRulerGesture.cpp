#include "MvRulerGesture_p.h"

#include "IMvShortcutEditManager.h"
#include "IMvTimelineRuler.h"
#include "MvEventFilterManager.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace {

qint64 monotonicMilliseconds()
{
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return timer.elapsed();
}

// The scheme in which Alt, not Ctrl, turns the wheel into zoom.
constexpr int kAltWheelScheme = 2;

}

MvRulerGesture::Target::~Target() = default;

MvRulerGesture::MvRulerGesture(QWidget* widget, Target* target)
    : QObject(widget)
    , m_widget(widget)
    , m_target(target)
    , m_clock(&monotonicMilliseconds)
{
    m_edgeScrollTimer.setInterval(kEdgeScrollInterval);
    connect(&m_edgeScrollTimer, &QTimer::timeout, this, &MvRulerGesture::edgeScrollStep);
}

MvRulerGesture::~MvRulerGesture() = default;

void MvRulerGesture::setClock(Clock clock)
{
    m_clock = clock ? std::move(clock) : Clock(&monotonicMilliseconds);
}

QTimer* MvRulerGesture::edgeScrollTimer()
{
    return &m_edgeScrollTimer;
}

const QPolygonF& MvRulerGesture::handlePolygon()
{
    static const QPolygonF polygon(QVector<QPointF> { { -7, 0 }, { 7, 0 }, { 7, 8 }, { 0, 16 }, { -7, 8 } });
    return polygon;
}

bool MvRulerGesture::isOverHandle(const QPoint& pos) const
{
    QRectF area = handlePolygon().translated(m_target->handleX(), 0).boundingRect();
    area.setHeight(m_widget->height());
    return area.contains(QPointF(pos));
}

void MvRulerGesture::press(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = true;
    if (isOverHandle(event->pos())) {
        m_draggingHandle = true;
        m_handlePos = event->pos();
        m_edgeScrollTimer.start(kEdgeScrollInterval);
        return;
    }
    // A press away from the handle may become a drag-to-zoom.
    m_lastPos = event->pos();
    m_pressTimer = m_clock();
    m_target->beginZoom();
}

void MvRulerGesture::move(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    if (m_pressed && event->buttons() == Qt::LeftButton) {
        if (m_draggingHandle) {
            m_handleMoved = true;
            m_handlePos = QPoint(qBound(0, pos.x(), m_widget->width()), pos.y());
            m_target->dragHandleTo(m_handlePos.x());
        } else {
            // A short dead time keeps a click from zooming; then a deliberate move is needed
            // before every move zooms.
            const qint64 elapsed = m_pressTimer < 0 ? 0 : m_clock() - m_pressTimer;
            const int dx = m_lastPos.x() - pos.x();
            const bool step
                = elapsed > kZoomThresholdTime || (elapsed > kZoomDeadTime && std::abs(dx) >= kZoomThresholdPixels);
            if (step) {
                m_zoomDragged = true;
                m_target->zoom(dx);
                m_lastPos = pos;
            }
        }
    }
    const bool overHandle = m_draggingHandle || isOverHandle(pos);
    m_widget->setCursor(overHandle ? Qt::ArrowCursor : Qt::SizeHorCursor);
}

void MvRulerGesture::release(QMouseEvent* event)
{
    m_target->endZoom();
    m_pressTimer = -1;
    m_pressed = false;
    m_handleMoved = false;
    if (m_edgeScrollTimer.isActive())
        m_edgeScrollTimer.stop();
    if (!m_zoomDragged && !m_draggingHandle) {
        m_target->click(event->pos().x());
        return;
    }
    m_zoomDragged = false;
    m_draggingHandle = false;
}

void MvRulerGesture::wheel(QWheelEvent* event)
{
    const IMvShortcutEditManager* shortcuts = IMvShortcutEditManager::GetInstance();
    const int scheme = shortcuts ? shortcuts->currentSchemeType() : 0;
    const Qt::KeyboardModifiers required = scheme == kAltWheelScheme ? Qt::AltModifier : Qt::ControlModifier;
    if (event->modifiers() != required) {
        event->ignore();
        return;
    }
    // Eighths of a degree to degrees.
    const QPoint angle = event->angleDelta();
    const int degreesX = qRound(angle.x() * 0.125);
    const int degreesY = qRound(angle.y() * 0.125);
    const QPoint pixels = event->pixelDelta();
    if (pixels.isNull()) {
        // Alt turns the wheel horizontal.
        const int degrees = event->modifiers() == Qt::AltModifier ? degreesX : degreesY;
        if (degreesX != 0 || degreesY != 0)
            m_target->zoom(-degrees);
    } else {
        m_target->zoom(-pixels.y());
    }
    m_target->moveCurrentFrameToCenter();
    event->accept();
}

void MvRulerGesture::edgeScrollStep()
{
    if (!m_handleMoved)
        return;
    const int x = m_handlePos.x();
    if (x >= kEdgeMargin && x <= m_widget->width() - kEdgeMargin)
        return;
    m_target->edgeScroll(x < kEdgeMargin);
}

bool MvRulerGesture::routeEvent(MvEventFilterManager* manager, QEvent* event)
{
    if (!manager || !m_widget->isEnabled() || !m_widget->isVisible())
        return false;
    if (m_pressed && !m_draggingHandle)
        return false;
    if (!manager->dispatchEvent(event))
        return false;
    m_widget->setCursor(manager->getCursor());
    return true;
}

void MvRulerGesture::stepCurrentFrame(IMvTimelineRuler* ruler, bool backward)
{
    if (!ruler)
        return;
    const qint64 step = std::max(1, ruler->framesInPixels(30));
    qint64 target = ruler->currentFrame() + (backward ? -step : step);
    if (target < 0)
        target = 0;
    else if (target > ruler->totalFrames())
        target = ruler->totalFrames();
    ruler->setCurrentFrame(target);
}
