#pragma once

#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"

#include <QWidget>

class IMvAbstractClip;
class IMvClip;
class IMvTimeline;
class MvEventFilterManager;

// The host's own track area: rows with their clips, drawn through the ruler's frame mapping so
// that it zooms and scrolls with the ruler above it. Clicks select clips (Ctrl adds).
class MvDemoTrackArea : public QWidget, public IMvTimelineRulerEventObserover, public IMvPlayheadEventObserver
{
    Q_OBJECT

public:
    explicit MvDemoTrackArea(IMvTimeline* timeline, QWidget* parent = nullptr);
    ~MvDemoTrackArea() override;

    // Overlays (the playhead) see the area's mouse events first through this manager.
    MvEventFilterManager* eventFilterMgr() const { return m_filters; }
    int rowTop(int trackIndex) const;
    IMvAbstractClip* itemAt(const QPoint& pos) const;
    QSize sizeHint() const override;

    void onRulerEvent(int kind) override;
    void onPlayheadEvent(IMvTimelinePlayhead* source, int kind) override;

Q_SIGNALS:
    void selectionChanged();
    void playheadMoved();
    void itemDoubleClicked(IMvAbstractClip* item);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect clipRect(const IMvAbstractClip* clip, int rowTop, int rowHeight) const;
    void paintVirtualPlayhead(QPainter& painter) const;
    void paintClip(QPainter& painter, IMvClip* clip, const QRect& rect, bool selected) const;
    void paintClipDetails(QPainter& painter, IMvClip* clip, const QRect& rect) const;

    IMvTimeline* m_timeline;
    MvEventFilterManager* m_filters;
};
