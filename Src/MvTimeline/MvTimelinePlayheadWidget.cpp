#include "MvTimelinePlayheadWidget.h"

#include "IMvShortcutEditManager.h"
#include "MvMessage.h"
#include "MvTimelineAccessible_p.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvToolTipHelper.h"
#include "MvVBLModelGlobal.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

using MVWIDGETS::MvWidgetStyleStatus;

namespace {
constexpr int kToolTipSeconds = 3;
// Room around each part of the playhead for smoothed and scaled edges.
constexpr int kAreaMargin = 1;

bool isSingleDragButton(Qt::MouseButtons buttons)
{
    return buttons == Qt::LeftButton || buttons == Qt::RightButton;
}
}

MvTimelinePlayheadWidget::MvTimelinePlayheadWidget(MvTimelinePlayheadPresenter* presenter, QWidget* parent)
    : MvWidget(parent)
    , m_presenter(presenter)
{
    // The host hands us the events of the widget underneath; Qt must not deliver its own.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    if (!m_presenter)
        return;
    connect(m_presenter, &MvTimelinePlayheadPresenter::sigUpdateUI, this, &MvTimelinePlayheadWidget::slotUpdateUI);
    // A host may delete the presenter first; the overlay then shows nothing and takes no events.
    connect(m_presenter, &QObject::destroyed, this, [this]() {
        m_presenter = nullptr;
        update();
    });
}

MvTimelinePlayheadWidget::~MvTimelinePlayheadWidget() = default;

bool MvTimelinePlayheadWidget::onFilterEvent(QEvent* event)
{
    if (!event || !m_presenter)
        return false;
    bool consumed = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        consumed = dispatchMousePressEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseMove:
        consumed = dispatchMouseMoveEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        consumed = dispatchMouseReleaseEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::ContextMenu:
        consumed = dispatchContextMenuEvent(static_cast<QContextMenuEvent*>(event));
        break;
    case QEvent::ToolTip:
        consumed = toolTipEvent(static_cast<QHelpEvent*>(event));
        break;
    default:
        break;
    }
    if (consumed)
        event->accept();
    return consumed;
}

MvTimelinePlayheadWidget::FItemType MvTimelinePlayheadWidget::captureItem(const QPoint& pos)
{
    if (!m_presenter || !m_presenter->playheadEnabled())
        return None;
    if (m_presenter->currentShape().containsPoint(pos, Qt::WindingFill))
        return Playhead;
    if (m_presenter->splitButtonCaptureRect().contains(pos))
        return SplitButton;
    return None;
}

MvTimelinePlayheadWidget::FItemType MvTimelinePlayheadWidget::capturedItem() const
{
    return m_captureItem;
}

MvWidgetStyleStatus MvTimelinePlayheadWidget::itemStatus() const
{
    return m_itemStatus;
}

bool MvTimelinePlayheadWidget::isFollowing() const
{
    return m_rightReleased;
}

MvTimelinePlayheadPresenter* MvTimelinePlayheadWidget::presenter() const
{
    return m_presenter;
}

QRegion MvTimelinePlayheadWidget::playheadArea()
{
    if (!m_presenter || !m_presenter->playheadVisible())
        return QRegion();
    const MvPlayheadData* data = m_presenter->playheadData();
    const int x = m_presenter->position();
    const int pen = data->lineWidth;
    // The line's square caps reach half a pen beyond both ends; a whole pen is kept either way.
    const QRect line(x - pen, data->lineTop - pen, 2 * pen + 1, height() - data->lineTop + 2 * pen);
    const QRect head = m_presenter->playheadRect() | m_presenter->currentShape().boundingRect();
    QRegion area = QRegion(head.adjusted(-kAreaMargin, -kAreaMargin, kAreaMargin, kAreaMargin))
        | QRegion(line.adjusted(-kAreaMargin, -kAreaMargin, kAreaMargin, kAreaMargin));
    if (m_presenter->splitButtonVisible())
        area |= m_presenter->splitButtonRect().adjusted(-kAreaMargin, -kAreaMargin, kAreaMargin, kAreaMargin);
    return area;
}

void MvTimelinePlayheadWidget::slotUpdateUI()
{
    repaintPlayheadArea();
    // Told only when the frame moved: zooms and scrolls come this way too.
    MvAccessibleAnnouncer::valueChanged(this);
}

void MvTimelinePlayheadWidget::repaintPlayheadArea()
{
    const QRegion now = playheadArea();
    update(m_shownArea | now);
    m_shownArea = now;
}

void MvTimelinePlayheadWidget::drawPlayhead(QPainter* painter)
{
    const QColor color = m_presenter->currentPlayheadColor();

    painter->save();
    painter->setPen(Qt::NoPen);
    painter->setRenderHint(QPainter::Antialiasing, true);
    const QImage head = m_presenter->currentPlayheadPixmap();
    if (!head.isNull())
        painter->drawImage(m_presenter->playheadRect(), head);
    painter->restore();

    QPen pen = painter->pen();
    pen.setColor(color);
    pen.setWidth(m_presenter->playheadData()->lineWidth);
    painter->setPen(pen);
    const int x = m_presenter->position();
    painter->drawLine(x, m_presenter->playheadData()->lineTop, x, height());
}

void MvTimelinePlayheadWidget::drawSplitButton(QPainter* painter)
{
    const QImage image = m_presenter->currentSplitButtonImage();
    if (image.isNull())
        return;
    painter->setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter->drawImage(
        QRectF(m_presenter->splitButtonRect()), image, QRectF(QPointF(0, 0), QSizeF(image.size())), Qt::AutoColor);
}

void MvTimelinePlayheadWidget::paintEvent(QPaintEvent* event)
{
    // Pixels inside the painted region now show the playhead as it is; outside they are as before.
    // A change the presenter did not announce is thus still erased by the next repaint.
    m_shownArea = (m_shownArea - event->region()) | (playheadArea() & event->region());
    if (!m_presenter || !m_presenter->playheadVisible())
        return;
    QPainter painter(this);
    drawPlayhead(&painter);
    if (m_presenter->splitButtonVisible())
        drawSplitButton(&painter);
}

void MvTimelinePlayheadWidget::resizeEvent(QResizeEvent* event)
{
    if (m_presenter) {
        m_presenter->updateViewRect(geometry());
        adjustPlayheadPosition();
    }
    MvWidget::resizeEvent(event);
}

void MvTimelinePlayheadWidget::enterEvent(QEvent* event)
{
    setCursor(Qt::ArrowCursor);
    MvWidget::enterEvent(event);
}

bool MvTimelinePlayheadWidget::dispatchMousePressEvent(QMouseEvent* event)
{
    m_captureItem = None;
    m_rightReleased = false;
    if (isSingleDragButton(event->buttons())) {
        m_pressed = true;
        m_movedSincePress = false;
        const QPoint pos = transformMousePos(event);
        const FItemType item = captureItem(pos);
        if (item != None) {
            m_lastPos = pos;
            updateItemStatus(item, MVWIDGETS::Pressed);
            if (item == Playhead) {
                Q_EMIT m_presenter->sigStartDragPlayHead();
                m_playheadDragStarted = true;
            }
            return true;
        }
    }
    m_pressed = false;
    // A press elsewhere also ends follow mode's drag state, so that a drag which starts there
    // passes through instead of pulling the playhead along.
    if (m_itemStatus == MVWIDGETS::Pressed)
        m_itemStatus = MVWIDGETS::Normal;
    return false;
}

bool MvTimelinePlayheadWidget::dispatchMouseMoveEvent(QMouseEvent* event)
{
    const QPoint pos = transformMousePos(event);
    if (m_itemStatus == MVWIDGETS::Pressed && (m_rightReleased || isSingleDragButton(event->buttons()))) {
        if (m_pressed && !m_movedSincePress)
            m_movedSincePress = true;
        if (m_rightReleased && !canUpdatePosInAutoFollowMode())
            return false;
        return dragTo(pos);
    }
    if (event->buttons() == Qt::LeftButton)
        return false;
    const FItemType item = captureItem(pos);
    updateItemStatus(item, MVWIDGETS::Hover);
    return item != None;
}

bool MvTimelinePlayheadWidget::dragTo(const QPoint& pos)
{
    const int x = m_presenter->maxRange().bound(pos.x());
    m_lastPos.setX(x);
    int dy = 0;
    if (m_captureItem == SplitButton) {
        // The clamped difference: the button never drifts away from the pointer.
        const int y = m_presenter->splitButtonYRange().bound(pos.y());
        dy = y - m_lastPos.y();
        m_lastPos.setY(y);
    }
    m_presenter->updatePosition(x, dy);
    repaintPlayheadArea();
    return true;
}

bool MvTimelinePlayheadWidget::dispatchMouseReleaseEvent(QMouseEvent* event)
{
    m_rightReleased = false;
    if (m_captureItem == None)
        return false;
    const QPoint pos = transformMousePos(event);
    const FItemType item = captureItem(pos);
    if (item != None && m_itemStatus == MVWIDGETS::Pressed && event->button() == Qt::RightButton) {
        // Follow mode: the drag state stays on and later moves drag without a button.
        m_rightReleased = true;
        if (item == SplitButton)
            m_presenter->splitClips();
        return true;
    }
    if (m_playheadDragStarted) {
        Q_EMIT m_presenter->sigEndDragPlayHead();
        m_playheadDragStarted = false;
    }
    m_itemStatus = item == SplitButton ? MVWIDGETS::Hover : MVWIDGETS::Normal;
    const bool overButton = m_captureItem == SplitButton && item == SplitButton;
    applySplitButtonStatus(overButton ? MVWIDGETS::Hover : MVWIDGETS::Normal);
    if (m_pressed && event->button() == Qt::LeftButton) {
        if (m_movedSincePress) {
            // A drag never splits.
            m_movedSincePress = false;
        } else if (item == SplitButton) {
            m_presenter->splitClips();
            return true;
        }
    }
    return item != None;
}

bool MvTimelinePlayheadWidget::dispatchContextMenuEvent(QContextMenuEvent* event)
{
    // No menu opens over the head or the button: the right button drives follow mode there.
    return captureItem(mapFromGlobal(event->globalPos())) != None;
}

bool MvTimelinePlayheadWidget::toolTipEvent(const QHelpEvent* event)
{
    if (captureItem(mapFromGlobal(event->globalPos())) != SplitButton)
        return false;
    MvToolTipHelper::showToolTip(event->globalPos(), splitButtonToolTip(), true, kToolTipSeconds);
    return true;
}

QString MvTimelinePlayheadWidget::splitButtonToolTip() const
{
    const QString shortcut = IMvShortcutEditManager::GetInstance()->shortcutText(MvCommandId::SplitClips);
    const QString suffix = shortcut.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(shortcut);
    return QStringLiteral("%1%3\n%2").arg(tr("Click to split"), tr("Drag to Move playhead"), suffix);
}

QPoint MvTimelinePlayheadWidget::transformMousePos(QMouseEvent* event) const
{
    // The event belongs to the widget underneath; only its global position means something here.
    return mapFromGlobal(event->globalPos());
}

void MvTimelinePlayheadWidget::adjustPlayheadPosition()
{
    if (!m_presenter)
        return;
    m_presenter->setSplitButtonY(m_presenter->splitButtonYRange().bound(m_presenter->splitButtonY()));
}

void MvTimelinePlayheadWidget::updateItemStatus(FItemType item, MvWidgetStyleStatus status)
{
    m_captureItem = item;
    m_itemStatus = status;
    applySplitButtonStatus(item == SplitButton ? status : MVWIDGETS::Normal);
}

bool MvTimelinePlayheadWidget::canUpdatePosInAutoFollowMode()
{
    MvQueryMessage query(MVVBLMODEL::MessageId::IsPlayerPlaying);
    m_presenter->sendMessageToScene(&query);
    return !query.asBool();
}

void MvTimelinePlayheadWidget::applySplitButtonStatus(MvWidgetStyleStatus status)
{
    // The presenter reports Disabled while the playhead is disabled, so then this always repaints.
    if (m_presenter->splitButtonStatus() == status)
        return;
    m_presenter->setSplitButtonStatus(status);
    repaintPlayheadArea();
}
