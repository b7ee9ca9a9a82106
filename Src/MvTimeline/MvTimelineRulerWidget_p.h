#pragma once

#include "MvRulerGesture_p.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QPointer>

class MvTimelineRulerWidgetPrivate : public MvRulerGesture::Target
{
    Q_DECLARE_PUBLIC(MvTimelineRulerWidget)

public:
    explicit MvTimelineRulerWidgetPrivate(MvTimelineRulerWidget* q);
    ~MvTimelineRulerWidgetPrivate() override;

    // The gestures move the playhead and the zoom through the presenter.
    int handleX() const override;
    void beginZoom() override;
    void endZoom() override;
    void zoom(int delta) override;
    void dragHandleTo(int x) override;
    void click(int x) override;
    void edgeScroll(bool backward) override;
    void moveCurrentFrameToCenter() override;

    MvTimelineRulerWidget* q_ptr;
    // Not owned; a presenter deleted first leaves the widget inert instead of dangling.
    QPointer<MvTimelineRulerPresenter> presenter;
    MvRulerGesture* gesture;
    MvEventFilterManager* eventFilterMgr;
    bool firstShow = true;
};
