#pragma once

#include "IMvEventFilter.h"
#include "MvTimelineGlobal.h"
#include "MvWidget.h"
#include "MvWidgetsGlobal.h"

#include <QPoint>
#include <QRegion>

class MvTimelinePlayheadPresenter;
class QContextMenuEvent;
class QHelpEvent;
class QMouseEvent;

// The playhead overlay: paints the head, the line and the split button, and turns the events of
// the widget underneath (handed over by the host's MvEventFilterManager) into playhead drags,
// split-button drags and split clicks. It never takes mouse events from Qt itself.
//
// A right press and release on an item switches to follow mode: from then on plain moves (no
// button held) keep moving the playhead, as long as the media player is not playing, until the
// next press.
class MVTIMELINE_EXPORT MvTimelinePlayheadWidget : public MvWidget, public IMvEventFilter
{
    Q_OBJECT

public:
    enum FItemType
    {
        None = 0,
        Playhead = 1,
        SplitButton = 2
    };

    MvTimelinePlayheadWidget(MvTimelinePlayheadPresenter* presenter, QWidget* parent);
    ~MvTimelinePlayheadWidget() override;

    bool onFilterEvent(QEvent* event) override;

    // What lies under pos (widget coordinates): the head wins over the button; the line is no target.
    FItemType captureItem(const QPoint& pos);
    FItemType capturedItem() const;
    MVWIDGETS::MvWidgetStyleStatus itemStatus() const;
    bool isFollowing() const;
    MvTimelinePlayheadPresenter* presenter() const;
    // Where the playhead is drawn now: the head, the line down to the bottom edge and, while
    // shown, the split button, each with a pixel to spare for smoothed edges; empty while the
    // playhead is hidden. Repaints cover only this area as it was and as it is, so that nothing
    // else under the overlay repaints while the playhead moves. drawPlayhead and drawSplitButton
    // overrides must stay inside it.
    QRegion playheadArea();
    // What the split button's tool tip says: click to split (with the split command's shortcut
    // when the host has one), drag to move the playhead.
    QString splitButtonToolTip() const;

public Q_SLOTS:
    void slotUpdateUI();

protected:
    virtual void drawPlayhead(QPainter* painter);
    virtual void drawSplitButton(QPainter* painter);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEvent* event) override;

    bool dispatchMousePressEvent(QMouseEvent* event);
    bool dispatchMouseMoveEvent(QMouseEvent* event);
    bool dispatchMouseReleaseEvent(QMouseEvent* event);
    bool dispatchContextMenuEvent(QContextMenuEvent* event);
    bool toolTipEvent(const QHelpEvent* event);

    QPoint transformMousePos(QMouseEvent* event) const;
    void adjustPlayheadPosition();
    void updateItemStatus(FItemType item, MVWIDGETS::MvWidgetStyleStatus status);
    // False while the media player plays in follow mode (query 7033), so that playback wins.
    bool canUpdatePosInAutoFollowMode();

private:
    void applySplitButtonStatus(MVWIDGETS::MvWidgetStyleStatus status);
    bool dragTo(const QPoint& pos);
    // Repaints the playhead where it was and where it is now.
    void repaintPlayheadArea();

    Q_DISABLE_COPY(MvTimelinePlayheadWidget)
    MvTimelinePlayheadPresenter* m_presenter;
    bool m_rightReleased = false;
    FItemType m_captureItem = None;
    MVWIDGETS::MvWidgetStyleStatus m_itemStatus = MVWIDGETS::Normal;
    QPoint m_lastPos;
    bool m_playheadDragStarted = false;
    QRegion m_shownArea; // where the playhead may be on screen once pending repaints are done
};
