#pragma once

#include "IMvTimelineRenderService.h"
#include "IMvTimelineRuler.h"
#include "MvStripPainter_p.h"
#include "MvTimelineRenderWidget.h"

#include <QVector>

class IMvTimelineRenderService;

class MvTimelineRenderWidgetPrivate : public IMvTimelineRenderEventObserver, public IMvTimelineRulerEventObserover
{
    Q_DECLARE_PUBLIC(MvTimelineRenderWidget)

public:
    MvTimelineRenderWidgetPrivate(MvTimelineRenderWidget* q, MvTimelinePresenter* presenter);
    ~MvTimelineRenderWidgetPrivate() override;

    void onSegmentsChanged() override;
    void onRulerEvent(int kind) override;

    void rebuild();
    void paint();
    double renderedShare() const;

    MvTimelineRenderWidget* q_ptr;
    MvTimelinePresenter* timelinePresenter;
    QColor finishedColor;
    QColor unFinishedColor;
    // The rectangles (x0, 0, x1 - x0, height) of each state, merged in order of x, and their runs
    // of device columns.
    MvStripRuns strip;
    int spanHeight = 0; // the height at the last rebuild

    IMvTimelineRenderService* renderService = nullptr;
    IMvTimelineRuler* ruler = nullptr;
    QList<MvRenderSegment> segments; // reused by every rebuild
};
