#include "MvDemoTimelineColumn.h"

#include "IMvShortcutEditManager.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "MvDemoMarkers.h"
#include "MvDemoNavigation.h"
#include "MvDemoPlayheadOverlay.h"
#include "MvDemoRulerLook.h"
#include "MvDemoTrackArea.h"
#include "MvEventFilterManager.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"
#include "MvWidgetsGlobal.h"

#include <QApplication>
#include <QGridLayout>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <limits>

namespace {
// The scheme of the shortcut manager in which Alt, not Ctrl, makes the ruler's wheel zoom.
constexpr int kAltWheelScheme = 2;
constexpr int kFollowIntervalMs = 40;

QWidget* inset(QWidget* widget, QWidget* parent)
{
    auto* box = new QWidget(parent);
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(MvDemoTimelineColumn::kMargin, 0, MvDemoTimelineColumn::kMargin, 0);
    layout->setSpacing(0);
    widget->setParent(box);
    layout->addWidget(widget);
    return box;
}
}

MvDemoTimelineColumn::MvDemoTimelineColumn(MvTimelinePresenter* presenter, MvTimelineRulerPresenter* rulerPresenter,
    MvDemoMarkerPresenter* markerPresenter, MvTimelinePlayheadPresenter* playheadPresenter, QWidget* parent)
    : QWidget(parent)
    , m_timeline(presenter->timeline())
    , m_rulerPresenter(rulerPresenter)
    , m_markerPresenter(markerPresenter)
    , m_ruler(new MvTimelineRulerWidget(rulerPresenter, this))
    , m_renderStrip(new MvTimelineRenderWidget(presenter, this))
    , m_markerStrip(new MvDemoMarkerStrip(markerPresenter, this))
    , m_trackArea(new MvDemoTrackArea(presenter->timeline(), this))
    , m_overlay(new MvDemoPlayheadOverlay(playheadPresenter, this))
    , m_horizontalBar(new QScrollBar(Qt::Horizontal, this))
    , m_verticalBar(new QScrollBar(Qt::Vertical, this))
{
    setMouseTracking(true);
    m_ruler->setFixedHeight(MvDemoRulerLook::kRulerHeight);
    m_ruler->setFont(MvDemoRulerLook::labelFont(m_ruler->font()));
    // A click on the ruler gives the keys to the timeline, whose arrows move the playhead.
    m_ruler->setFocusPolicy(Qt::ClickFocus);
    m_ruler->setFocusProxy(m_trackArea);
    m_ruler->setContextMenuPolicy(Qt::CustomContextMenu);
    m_renderStrip->setFixedHeight(4);
    m_renderStrip->setFinishedColor(QColor(0x3C, 0xB3, 0x71));
    m_renderStrip->setUnFinishedColor(QColor(0xD9, 0x53, 0x4F));
    buildLayout();

    // The overlay sees the ruler's and the track area's mouse events before they do.
    m_ruler->eventFilterMgr()->addFilter(m_overlay);
    m_trackArea->eventFilterMgr()->addFilter(m_overlay);
    for (QWidget* watched : { static_cast<QWidget*>(m_ruler), static_cast<QWidget*>(m_trackArea) })
        watched->installEventFilter(this);
    m_overlay->raise();

    m_followTimer.setInterval(kFollowIntervalMs);
    connect(&m_followTimer, &QTimer::timeout, this, &MvDemoTimelineColumn::followPlayheadStep);
    for (auto signal : { &MvTimelineRulerPresenter::visualRangeChanged, &MvTimelineRulerPresenter::zoomChanged,
             &MvTimelineRulerPresenter::totalFrameChanged })
        connect(m_rulerPresenter, signal, this, &MvDemoTimelineColumn::refreshScrollBars);
    connect(m_horizontalBar, &QScrollBar::valueChanged, this, &MvDemoTimelineColumn::showVisibleStart);
    connect(m_verticalBar, &QScrollBar::valueChanged, m_trackArea, &MvDemoTrackArea::setScrollY);
    connect(m_trackArea, &MvDemoTrackArea::scrolled, this, &MvDemoTimelineColumn::refreshScrollBars);
}

MvDemoTimelineColumn::~MvDemoTimelineColumn()
{
    m_ruler->removeEventFilter(this);
    m_trackArea->removeEventFilter(this);
    m_ruler->eventFilterMgr()->removeFilter(m_overlay);
    m_trackArea->eventFilterMgr()->removeFilter(m_overlay);
}

void MvDemoTimelineColumn::buildLayout()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(m_markerStrip, 0, 0);
    grid->addWidget(inset(m_ruler, this), 1, 0);
    grid->addWidget(inset(m_renderStrip, this), 2, 0);
    grid->addWidget(m_trackArea, 3, 0);
    grid->addWidget(m_verticalBar, 3, 1);
    grid->addWidget(inset(m_horizontalBar, this), 4, 0);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
}

void MvDemoTimelineColumn::placeOverlay()
{
    const int top = m_ruler->mapTo(this, QPoint()).y();
    const QRect area = m_trackArea->geometry();
    m_overlay->setGeometry(area.left(), top, area.width(), area.bottom() + 1 - top);
    const int origin = m_ruler->mapTo(this, QPoint()).x() - area.left();
    m_overlay->setRulerSpan(origin, m_ruler->width());
    m_trackArea->setRulerSpan(origin, m_ruler->width());
    m_markerPresenter->setOriginX(m_ruler->mapTo(this, QPoint()).x() - m_markerStrip->x());
    m_overlay->raise();
}

void MvDemoTimelineColumn::refreshScrollBars()
{
    IMvTimelineRuler* ruler = m_timeline->ruler();
    const MvDemoNavigation::ScrollBarState across = MvDemoNavigation::horizontalBar(ruler->totalFrames(),
        ruler->visibleStartFrame(), ruler->visibleFrames(), m_trackArea->mapping().framesIn(kEdgeStepPixels));
    const MvDemoNavigation::ScrollBarState down
        = MvDemoNavigation::verticalBar(m_trackArea->contentHeight(), m_trackArea->height(), m_trackArea->scrollY());
    // Setting a bar must not scroll the view back: the view is where the bar's value comes from.
    m_syncingBars = true;
    for (auto pair : { qMakePair(m_horizontalBar, across), qMakePair(m_verticalBar, down) }) {
        QScrollBar* bar = pair.first;
        const MvDemoNavigation::ScrollBarState& state = pair.second;
        bar->setRange(state.minimum, state.maximum);
        bar->setPageStep(state.pageStep);
        bar->setSingleStep(state.singleStep);
        bar->setValue(state.value);
        bar->setEnabled(state.maximum > state.minimum);
    }
    m_syncingBars = false;
}

void MvDemoTimelineColumn::showVisibleStart(int value)
{
    if (m_syncingBars)
        return;
    IMvTimelineRuler* ruler = m_timeline->ruler();
    const qint64 visible = ruler->visibleFrames();
    const qint64 start = MvDemoNavigation::visibleStartFor(value, ruler->totalFrames(), visible);
    if (start != ruler->visibleStartFrame())
        ruler->setVisualRange(start, start + visible);
}

void MvDemoTimelineColumn::scrollBy(int dx, int dy)
{
    if (dx != 0) {
        const qint64 frames = m_trackArea->mapping().framesIn(qAbs(dx));
        IMvTimelineRuler* ruler = m_timeline->ruler();
        const qint64 target = ruler->visibleStartFrame() + (dx > 0 ? frames : -frames);
        const qint64 visible = ruler->visibleFrames();
        const qint64 start = MvDemoNavigation::visibleStartFor(
            int(qBound<qint64>(0, target, std::numeric_limits<int>::max())), ruler->totalFrames(), visible);
        if (start != ruler->visibleStartFrame())
            ruler->setVisualRange(start, start + visible);
    }
    if (dy != 0)
        m_trackArea->setScrollY(m_trackArea->scrollY() + dy);
}

bool MvDemoTimelineColumn::wheelOverTracks(QWheelEvent* event)
{
    const IMvShortcutEditManager* shortcuts = IMvShortcutEditManager::GetInstance();
    const Qt::KeyboardModifiers zoom
        = shortcuts && shortcuts->currentSchemeType() == kAltWheelScheme ? Qt::AltModifier : Qt::ControlModifier;
    const MvDemoNavigation::WheelStep step
        = MvDemoNavigation::wheelStep(event->modifiers(), event->angleDelta(), event->pixelDelta(), zoom);
    if (step.action == MvDemoNavigation::WheelAction::Zoom) {
        // The ruler zooms as under its own wheel.
        const QPointF at = m_ruler->mapFromGlobal(event->globalPosition().toPoint());
        QWheelEvent copy(at, event->globalPosition(), event->pixelDelta(), event->angleDelta(), event->buttons(),
            event->modifiers(), event->phase(), event->inverted());
        QApplication::sendEvent(m_ruler, &copy);
        return true;
    }
    if (step.action == MvDemoNavigation::WheelAction::Scroll) {
        scrollBy(step.dx, step.dy);
        return true;
    }
    return false;
}

bool MvDemoTimelineColumn::followPlayheadStep()
{
    // Only while the overlay drags the playhead (its head or its split button).
    if (m_overlay->itemStatus() != MVWIDGETS::Pressed) {
        m_followTimer.stop();
        return false;
    }
    const int x = m_ruler->mapFromGlobal(m_pointer).x();
    const int direction = MvDemoNavigation::edgeDirection(x, m_ruler->width(), kEdgeMargin);
    if (direction == 0)
        return false;
    IMvTimelinePlayhead* playhead = m_timeline->playhead();
    const qint64 step = m_trackArea->mapping().framesIn(kEdgeStepPixels);
    const qint64 before = playhead->currentFrame();
    // The model scrolls just enough to keep the playhead in view: a step past the edge pulls it.
    playhead->setCurrentFrame(qBound<qint64>(0, before + direction * step, m_timeline->duration()));
    return playhead->currentFrame() != before;
}

void MvDemoTimelineColumn::trackPointer(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_pointer = static_cast<QMouseEvent*>(event)->globalPos();
        m_followTimer.start();
        break;
    case QEvent::MouseMove:
        m_pointer = static_cast<QMouseEvent*>(event)->globalPos();
        break;
    case QEvent::MouseButtonRelease:
        m_followTimer.stop();
        break;
    default:
        break;
    }
}

bool MvDemoTimelineColumn::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_trackArea && event->type() == QEvent::Wheel && wheelOverTracks(static_cast<QWheelEvent*>(event)))
        return true;
    if (watched == m_ruler || watched == m_trackArea) {
        trackPointer(event);
        if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
            placeOverlay();
            refreshScrollBars();
        }
    }
    return QWidget::eventFilter(watched, event);
}

// The margins beside the ruler belong to this widget: the split button reaches into them.
void MvDemoTimelineColumn::mousePressEvent(QMouseEvent* event)
{
    trackPointer(event);
    if (!m_overlay->onFilterEvent(event))
        QWidget::mousePressEvent(event);
}

void MvDemoTimelineColumn::mouseMoveEvent(QMouseEvent* event)
{
    trackPointer(event);
    if (!m_overlay->onFilterEvent(event))
        QWidget::mouseMoveEvent(event);
}

void MvDemoTimelineColumn::mouseReleaseEvent(QMouseEvent* event)
{
    trackPointer(event);
    if (!m_overlay->onFilterEvent(event))
        QWidget::mouseReleaseEvent(event);
}
