#pragma once

#include "IMvTimelineRenderService.h"

#include <QObject>
#include <QTimer>

class IMvTimeline;
class MvMemoryRenderService;

// Stands in for the background preview renderer: the model marks what an edit changed as
// unrendered, and the simulator then finishes a stretch of frames on every tick.
class MvDemoRenderSimulator : public QObject, public IMvTimelineRenderEventObserver
{
    Q_OBJECT

public:
    MvDemoRenderSimulator(IMvTimeline* timeline, QObject* parent = nullptr);
    ~MvDemoRenderSimulator() override;

    void onSegmentsChanged() override;
    // One tick of rendering, for the scenario which cannot wait for the timer.
    void step();

private:
    IMvTimeline* m_timeline;
    MvMemoryRenderService* m_service;
    QTimer m_timer;
};
