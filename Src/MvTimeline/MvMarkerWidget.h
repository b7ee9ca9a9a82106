#pragma once

#include "MvMarkerPresenter.h"
#include "MvTimelineGlobal.h"
#include "MvWidget.h"

#include <QList>
#include <QPair>
#include <QRect>
#include <QScopedPointer>

class MvMarkerStripPainter;

// The marker strip: paints every marker of its presenter's list, one marker hovered and one
// pressed, and names the marker under the pointer in a tool tip. The hover, press and floating state is set by a host
// subclass from its mouse handling; the library only initialises it and clears the pressed look on request.
//
// The markers are drawn once into a layer that later paints copy (only the part being painted),
// so that a strip of thousands of markers repaints at about the cost of filling it. The layer is
// redrawn when the list, the images (looked up at each paint, once per colour), the size or the
// scale change, and around the markers concerned when the state members change.
class MVTIMELINE_EXPORT MvMarkerWidget : public MvWidget
{
    Q_OBJECT

public:
    MvMarkerWidget(MvMarkerPresenter* presenter, QWidget* parent);
    ~MvMarkerWidget() override;

    // Connects the new presenter's signals and loads its list; connections to an earlier
    // presenter stay.
    void setPresenter(MvMarkerPresenter* presenter);
    MvMarkerPresenter* presenter() const;
    QList<MvMarkerPresenter::MarkerItem> markers() const;

    // Where a marker at x is drawn: 11 x 14, centred on x, one pixel above the top edge.
    static QRect markerRect(int x);
    // The index of the marker drawn at pos, the topmost where flags overlap (later markers are
    // drawn over earlier ones); -1 over no marker.
    int markerAt(const QPoint& pos) const;
    // What the strip tells about a marker: its name (or that it has none) and, when the presenter
    // knows its frame, its time code on a second line.
    QString markerDescription(int index) const;

public Q_SLOTS:
    void slotMarkerCountChanged();
    void slotClearTimelineSelectedMarker();

protected:
    void paintEvent(QPaintEvent* event) override;

    MvMarkerPresenter* m_presenter = nullptr;
    QList<MvMarkerPresenter::MarkerItem> m_markers;
    bool m_pressVisible = false;
    bool m_floating1 = false;
    bool m_floating2 = false;
    int m_floatingX = 0; // where the floating hovered marker and the pressed marker are drawn
    int m_hoverIndex = -1;
    int m_pressIndex = -1;

private:
    Q_DISABLE_COPY(MvMarkerWidget)
    QScopedPointer<MvMarkerStripPainter> m_stripPainter;
};
