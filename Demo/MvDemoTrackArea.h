#pragma once

#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "MvDemoClipDrag.h"
#include "MvDemoFrameMapping.h"

#include <QWidget>

class IMvAbstractClip;
class IMvClip;
class IMvMarker;
class IMvTimeline;
class MvEventFilterManager;

// The host's track area: rows with their clips, drawn through the ruler's frame mapping so that
// it zooms and scrolls with the ruler above it, and scrolled vertically by the host.
//
// Mouse: a click selects a clip (Ctrl adds or removes), dragging a clip moves the selection in
// time and across rows (snapped to the playhead, clip edges and markers), dragging on empty
// space selects the clips the band touches. Keys: Left / Right step the playhead a frame, with
// Shift a second; Home and End go to the start and the end.
class MvDemoTrackArea : public QWidget, public IMvTimelineRulerEventObserover, public IMvPlayheadEventObserver
{
    Q_OBJECT

public:
    enum class MenuPlace
    {
        Clip,
        EmptySpace,
    };

    // Gap between rows, and how near (in pixels) a dragged edge snaps.
    static constexpr int kRowGap = 2;
    static constexpr int kSnapPixels = 8;

    explicit MvDemoTrackArea(IMvTimeline* timeline, QWidget* parent = nullptr);
    ~MvDemoTrackArea() override;

    IMvTimeline* timeline() const { return m_timeline; }
    // Overlays (the playhead) see the area's mouse events first through this manager.
    MvEventFilterManager* eventFilterMgr() const { return m_filters; }
    const MvDemoFrameMapping& mapping() const { return m_mapping; }
    // Where the ruler's pixels lie in this area: clips are drawn over that span only, so that
    // they line up with the ruler's ends.
    void setRulerSpan(int originX, int width);
    QRect rulerSpan() const;

    bool snapping() const { return m_snapping; }
    void setSnapping(bool snapping) { m_snapping = snapping; }

    int scrollY() const { return m_scrollY; }
    void setScrollY(int scrollY);
    int contentHeight() const;

    // Row geometry on screen, scrolling included.
    int rowTop(int trackIndex) const;
    int trackAt(int y) const; // -1 between or outside the rows
    int nearestTrack(int y) const;
    QRect clipRect(const IMvAbstractClip* clip, int trackIndex) const;
    IMvAbstractClip* itemAt(const QPoint& pos) const;
    IMvMarker* clipMarkerAt(const QPoint& pos) const;
    static QRect markerFlagRect(int x, int clipTop);

    const MvDemoClipDrag& clipDrag() const { return m_drag; }
    QRect rubberBand() const { return m_band; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    void onRulerEvent(int kind) override;
    void onPlayheadEvent(IMvTimelinePlayhead* source, int kind) override;

Q_SIGNALS:
    void selectionChanged();
    void playheadMoved();
    void itemDoubleClicked(IMvAbstractClip* item);
    // A drag of the selection ended away from where it began.
    void moveRequested(qint64 frameOffset, int trackOffset);
    void contextMenuRequested(MvDemoTrackArea::MenuPlace place, const QPoint& globalPos);
    void scrolled(int scrollY);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void pressOnItem(IMvAbstractClip* item, Qt::KeyboardModifiers modifiers);
    void selectItems(const QList<IMvAbstractClip*>& items);
    void selectInBand(bool additive);
    bool showMarkerToolTip(const QPoint& pos, const QPoint& globalPos);
    void cancelGestures();

    IMvTimeline* m_timeline;
    MvEventFilterManager* m_filters;
    MvDemoFrameMapping m_mapping;
    int m_rulerWidth = 0;
    MvDemoClipDrag m_drag;
    bool m_snapping = true;
    int m_scrollY = 0;
    // Press bookkeeping: a press on a clip may become a drag, one on empty space a band.
    QPoint m_pressPos;
    IMvAbstractClip* m_pressItem = nullptr;
    bool m_dragArmed = false;
    bool m_bandArmed = false;
    bool m_bandAdditive = false;
    QRect m_band;
};
