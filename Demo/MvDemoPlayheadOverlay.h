#pragma once

#include "MvTimelinePlayheadWidget.h"

// The library's playhead overlay, laid over the whole timeline column with its margins, so that
// the split button at the first or the last frame is drawn whole. The library draws and
// hit-tests in the ruler's pixels; this overlay shifts both by the ruler's distance from its own
// left edge, and keeps the playhead's drag range to the ruler's width.
class MvDemoPlayheadOverlay : public MvTimelinePlayheadWidget
{
    Q_OBJECT

public:
    MvDemoPlayheadOverlay(MvTimelinePlayheadPresenter* presenter, QWidget* parent);

    // Where the ruler's x = 0 lies in this widget, and the ruler's width.
    void setRulerSpan(int originX, int rulerWidth);
    int originX() const { return m_originX; }

    // Events of the widgets underneath, moved into the ruler's pixels before the library sees them.
    bool onFilterEvent(QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updatePresenterView();

    int m_originX = 0;
    int m_rulerWidth = 0;
};
