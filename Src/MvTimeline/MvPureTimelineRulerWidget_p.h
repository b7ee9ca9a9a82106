#pragma once

#include "IMvTimelineRuler.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvRulerGesture_p.h"
#include "MvRulerPainter_p.h"

class MvPureTimelineRulerWidgetPrivate : public IMvTimelineRulerEventObserover
{
    Q_DECLARE_PUBLIC(MvPureTimelineRulerWidget)

public:
    MvPureTimelineRulerWidgetPrivate(MvPureTimelineRulerWidget* q, IMvTimelineRuler* ruler);
    ~MvPureTimelineRulerWidgetPrivate() override;

    void onRulerEvent(int kind) override;

    // The gestures move this widget's own ruler.
    class GestureTarget : public MvRulerGesture::Target
    {
    public:
        explicit GestureTarget(MvPureTimelineRulerWidgetPrivate* d)
            : d(d)
        {
        }
        int handleX() const override;
        void beginZoom() override;
        void endZoom() override;
        void zoom(int delta) override;
        void dragHandleTo(int x) override;
        void click(int x) override;
        void edgeScroll(bool backward) override;
        void moveCurrentFrameToCenter() override;

    private:
        MvPureTimelineRulerWidgetPrivate* d;
    };

    MVVBLMODEL::MvFrameRate framerate { -1, -1 };
    qint64 totalFrames = 0;
    IMvTimelineRuler* ruler;
    MvPureTimelineRulerWidget* q_ptr;
    GestureTarget target;
    MvRulerGesture* gesture;
    MvEventFilterManager* eventFilterMgr;
    bool firstShow = true;
    MvRulerPaintCache paintCache; // kept from paint to paint
};
