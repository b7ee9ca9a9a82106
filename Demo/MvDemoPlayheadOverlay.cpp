#include "MvDemoPlayheadOverlay.h"

#include "MvTimelinePlayheadPresenter.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

MvDemoPlayheadOverlay::MvDemoPlayheadOverlay(MvTimelinePlayheadPresenter* presenter, QWidget* parent)
    : MvTimelinePlayheadWidget(presenter, parent)
{
}

void MvDemoPlayheadOverlay::setRulerSpan(int originX, int rulerWidth)
{
    if (originX == m_originX && rulerWidth == m_rulerWidth)
        return;
    m_originX = originX;
    m_rulerWidth = rulerWidth;
    updatePresenterView();
    update();
}

bool MvDemoPlayheadOverlay::onFilterEvent(QEvent* event)
{
    if (!event)
        return false;
    // The library maps an event's global position into this widget; shifting it left by the
    // origin makes that mapping land in the ruler's pixels.
    const QPoint shift(m_originX, 0);
    bool consumed = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        QMouseEvent shifted(mouse->type(), mouse->localPos(), mouse->windowPos(), mouse->screenPos() - shift,
            mouse->button(), mouse->buttons(), mouse->modifiers());
        consumed = MvTimelinePlayheadWidget::onFilterEvent(&shifted);
        break;
    }
    case QEvent::ContextMenu: {
        const auto* menu = static_cast<QContextMenuEvent*>(event);
        QContextMenuEvent shifted(menu->reason(), menu->pos(), menu->globalPos() - shift, menu->modifiers());
        consumed = MvTimelinePlayheadWidget::onFilterEvent(&shifted);
        break;
    }
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        QHelpEvent shifted(help->type(), help->pos(), help->globalPos() - shift);
        consumed = MvTimelinePlayheadWidget::onFilterEvent(&shifted);
        break;
    }
    default:
        consumed = MvTimelinePlayheadWidget::onFilterEvent(event);
        break;
    }
    if (consumed)
        event->accept();
    return consumed;
}

void MvDemoPlayheadOverlay::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    MvTimelinePlayheadPresenter* head = presenter();
    if (!head || !head->playheadVisible())
        return;
    QPainter painter(this);
    painter.translate(m_originX, 0);
    drawPlayhead(&painter);
    if (head->splitButtonVisible())
        drawSplitButton(&painter);
}

void MvDemoPlayheadOverlay::resizeEvent(QResizeEvent* event)
{
    MvTimelinePlayheadWidget::resizeEvent(event);
    updatePresenterView();
}

void MvDemoPlayheadOverlay::updatePresenterView()
{
    MvTimelinePlayheadPresenter* head = presenter();
    if (!head)
        return;
    // The playhead may be dragged over the ruler's width only: beyond it there are no frames.
    head->updateViewRect(QRect(x() + m_originX, y(), m_rulerWidth > 0 ? m_rulerWidth : width(), height()));
    adjustPlayheadPosition();
}
