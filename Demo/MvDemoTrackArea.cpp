#include "MvDemoTrackArea.h"

#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvDemoNavigation.h"
#include "MvDemoTrackPainter.h"
#include "MvEventFilterManager.h"
#include "MvTimelineRulerPresenter.h"
#include "MvToolTipHelper.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

MvDemoTrackArea::MvDemoTrackArea(IMvTimeline* timeline, QWidget* parent)
    : QWidget(parent)
    , m_timeline(timeline)
    , m_filters(new MvEventFilterManager(this))
    , m_mapping(timeline->ruler())
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(0x26, 0x27, 0x2C));
    setPalette(pal);
    m_timeline->ruler()->addObserver(this);
    m_timeline->playhead()->addObserver(this);
}

MvDemoTrackArea::~MvDemoTrackArea()
{
    m_timeline->ruler()->removeObserver(this);
    m_timeline->playhead()->removeObserver(this);
}

void MvDemoTrackArea::setRulerSpan(int originX, int width)
{
    if (originX == m_mapping.originX() && width == m_rulerWidth)
        return;
    m_mapping.setOriginX(originX);
    m_rulerWidth = width;
    update();
}

QRect MvDemoTrackArea::rulerSpan() const
{
    return QRect(m_mapping.originX(), 0, m_rulerWidth > 0 ? m_rulerWidth : width() - m_mapping.originX(), height());
}

void MvDemoTrackArea::setScrollY(int scrollY)
{
    scrollY = qBound(0, scrollY, qMax(0, contentHeight() - height()));
    if (scrollY == m_scrollY)
        return;
    m_scrollY = scrollY;
    update();
    Q_EMIT scrolled(m_scrollY);
}

int MvDemoTrackArea::contentHeight() const
{
    return rowTop(m_timeline->trackCount()) + m_scrollY + 8;
}

QSize MvDemoTrackArea::sizeHint() const
{
    return QSize(900, contentHeight());
}

QSize MvDemoTrackArea::minimumSizeHint() const
{
    // Two rows stay in sight however small the window: the journal gives way first.
    return QSize(200, 120);
}

int MvDemoTrackArea::rowTop(int trackIndex) const
{
    int y = -m_scrollY;
    for (int i = 0; i < trackIndex && i < m_timeline->trackCount(); ++i)
        y += m_timeline->trackAt(i)->height() + kRowGap;
    return y;
}

int MvDemoTrackArea::trackAt(int y) const
{
    int top = -m_scrollY;
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        const int height = m_timeline->trackAt(i)->height();
        if (y >= top && y < top + height)
            return i;
        top += height + kRowGap;
    }
    return -1;
}

int MvDemoTrackArea::nearestTrack(int y) const
{
    int top = -m_scrollY;
    const int count = m_timeline->trackCount();
    for (int i = 0; i < count; ++i) {
        top += m_timeline->trackAt(i)->height() + kRowGap;
        if (y < top)
            return i;
    }
    return count - 1;
}

QRect MvDemoTrackArea::clipRect(const IMvAbstractClip* clip, int trackIndex) const
{
    const IMvTrack* track = m_timeline->trackAt(trackIndex);
    const int top = rowTop(trackIndex);
    const int x0 = m_mapping.xOf(clip->start());
    const int x1 = m_mapping.xOf(clip->end() + 1);
    return QRect(x0, top + 2, qMax(1, x1 - x0 - 1), (track ? track->height() : 0) - 4);
}

IMvAbstractClip* MvDemoTrackArea::itemAt(const QPoint& pos) const
{
    const int index = trackAt(pos.y());
    if (index < 0)
        return nullptr;
    const QList<IMvClip*> clips = m_timeline->trackAt(index)->clips();
    for (IMvClip* clip : clips) {
        // Transitions lie over their clip's edge and win the hit there.
        const QList<IMvTransition*> transitions = clip->transitionList()->transitions();
        for (IMvTransition* transition : transitions) {
            if (clipRect(transition, index).contains(pos))
                return transition;
        }
    }
    for (IMvClip* clip : clips) {
        if (clipRect(clip, index).contains(pos))
            return clip;
    }
    return nullptr;
}

QRect MvDemoTrackArea::markerFlagRect(int x, int clipTop)
{
    return QRect(x - 1, clipTop, 11, 12);
}

IMvMarker* MvDemoTrackArea::clipMarkerAt(const QPoint& pos) const
{
    const int index = trackAt(pos.y());
    if (index < 0)
        return nullptr;
    const QList<IMvClip*> clips = m_timeline->trackAt(index)->clips();
    for (IMvClip* clip : clips) {
        IMvMarkerList* list = clip->clipMarkers();
        if (!list)
            continue;
        const int top = clipRect(clip, index).top();
        const QList<IMvMarker*> markers = list->markers();
        for (IMvMarker* marker : markers) {
            if (markerFlagRect(m_mapping.xOf(list->mapToTimeline(marker->frame())), top).contains(pos))
                return marker;
        }
    }
    return nullptr;
}

bool MvDemoTrackArea::event(QEvent* event)
{
    if (isEnabled() && isVisible() && m_filters->dispatchEvent(event)) {
        setCursor(m_filters->getCursor());
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (!showMarkerToolTip(help->pos(), help->globalPos()))
            MvToolTipHelper::hideToolTip();
        return true;
    }
    return QWidget::event(event);
}

bool MvDemoTrackArea::showMarkerToolTip(const QPoint& pos, const QPoint& globalPos)
{
    const IMvMarker* marker = clipMarkerAt(pos);
    if (!marker)
        return false;
    int numerator = 30;
    int denominator = 1;
    m_timeline->ruler()->frameRate(&numerator, &denominator);
    const qint64 frame = marker->ownerList()->mapToTimeline(marker->frame());
    QString text = marker->name().isEmpty() ? tr("Unnamed marker") : marker->name();
    text += QLatin1Char('\n') + MvTimelineRulerPresenter::formatTimecode(int(frame), numerator, denominator);
    if (!marker->comment().isEmpty())
        text += QLatin1Char('\n') + marker->comment();
    MvToolTipHelper::showToolTip(globalPos, text, false, 0);
    return true;
}

void MvDemoTrackArea::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    MvDemoTrackPainter paint(painter, *this);
    paint.rows();
    paint.virtualPlayhead();
    paint.dragPreview();
    paint.rubberBand(m_band);
    if (hasFocus())
        paint.focusFrame();
}

void MvDemoTrackArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    cancelGestures();
    m_pressPos = event->pos();
    IMvAbstractClip* item = itemAt(event->pos());
    if (item) {
        pressOnItem(item, event->modifiers());
        return;
    }
    // Empty space: a band selection begins; without Ctrl it starts from nothing selected.
    m_bandArmed = true;
    m_bandAdditive = event->modifiers() & Qt::ControlModifier;
    if (!m_bandAdditive)
        selectItems({});
}

void MvDemoTrackArea::pressOnItem(IMvAbstractClip* item, Qt::KeyboardModifiers modifiers)
{
    QList<IMvAbstractClip*> items = m_timeline->selection()->selectedItems();
    if (modifiers & Qt::ControlModifier) {
        if (!items.removeOne(item))
            items.append(item);
        selectItems(items);
        return;
    }
    if (!items.contains(item))
        selectItems({ item });
    else
        m_pressItem = item; // a click without a drag narrows the selection to it on release
    // Clips drag the selection along; a transition moves with its clip only.
    m_dragArmed = dynamic_cast<IMvClip*>(item) != nullptr;
}

void MvDemoTrackArea::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const bool travelled = (event->pos() - m_pressPos).manhattanLength() >= QApplication::startDragDistance();
    if (m_dragArmed && !m_drag.isActive() && travelled) {
        const int pressTrack = nearestTrack(m_pressPos.y());
        m_drag.start(
            m_timeline, m_timeline->selection()->selectedClips(), m_mapping.frameAt(m_pressPos.x()), pressTrack);
        m_pressItem = nullptr;
    }
    if (m_drag.isActive()) {
        const qint64 threshold = m_snapping ? m_mapping.framesIn(kSnapPixels) : 0;
        m_drag.moveTo(m_mapping.frameAt(event->pos().x()), nearestTrack(event->pos().y()), threshold);
        update();
        return;
    }
    if (m_bandArmed && travelled) {
        m_band = QRect(m_pressPos, event->pos()).normalized();
        update();
    }
}

void MvDemoTrackArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_drag.isActive()) {
        const qint64 frames = m_drag.frameOffset();
        const int tracks = m_drag.trackOffset();
        cancelGestures();
        update();
        if (frames != 0 || tracks != 0)
            Q_EMIT moveRequested(frames, tracks);
        return;
    }
    if (!m_band.isNull())
        selectInBand(m_bandAdditive);
    else if (m_pressItem)
        selectItems({ m_pressItem });
    cancelGestures();
    update();
}

void MvDemoTrackArea::cancelGestures()
{
    m_drag.clear();
    m_dragArmed = false;
    m_bandArmed = false;
    m_band = QRect();
    m_pressItem = nullptr;
}

void MvDemoTrackArea::selectInBand(bool additive)
{
    QList<IMvAbstractClip*> items = additive ? m_timeline->selection()->selectedItems() : QList<IMvAbstractClip*>();
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        const QList<IMvClip*> clips = m_timeline->trackAt(i)->clips();
        for (IMvClip* clip : clips) {
            if (clipRect(clip, i).intersects(m_band) && !items.contains(clip))
                items.append(clip);
        }
    }
    selectItems(items);
}

void MvDemoTrackArea::selectItems(const QList<IMvAbstractClip*>& items)
{
    IMvSelection* selection = m_timeline->selection();
    selection->setTimelineSelected(false);
    selection->selectItems(items);
    update();
    Q_EMIT selectionChanged();
}

void MvDemoTrackArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (IMvAbstractClip* item = itemAt(event->pos()))
        Q_EMIT itemDoubleClicked(item);
}

void MvDemoTrackArea::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && (m_drag.isActive() || !m_band.isNull())) {
        cancelGestures();
        update();
        return;
    }
    IMvTimelinePlayhead* playhead = m_timeline->playhead();
    const qint64 target = MvDemoNavigation::playheadTarget(event->key(), event->modifiers(), playhead->currentFrame(),
        m_timeline->duration(), MvDemoNavigation::framesPerSecond(m_timeline->ruler()));
    if (target < 0) {
        // Left to the window: a shortcut of a command that cannot run now ends up there.
        event->ignore();
        return;
    }
    playhead->setCurrentFrame(target);
}

void MvDemoTrackArea::contextMenuEvent(QContextMenuEvent* event)
{
    IMvAbstractClip* item = itemAt(event->pos());
    if (item && !m_timeline->selection()->selectedItems().contains(item))
        selectItems({ item });
    Q_EMIT contextMenuRequested(item ? MenuPlace::Clip : MenuPlace::EmptySpace, event->globalPos());
}

void MvDemoTrackArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    setScrollY(m_scrollY);
    update();
}

void MvDemoTrackArea::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void MvDemoTrackArea::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void MvDemoTrackArea::onRulerEvent(int kind)
{
    Q_UNUSED(kind)
    update();
}

void MvDemoTrackArea::onPlayheadEvent(IMvTimelinePlayhead* source, int kind)
{
    Q_UNUSED(source)
    update();
    if (kind == IMvTimelinePlayhead::Moved || kind == IMvTimelinePlayhead::VirtualStateChanged)
        Q_EMIT playheadMoved();
}
