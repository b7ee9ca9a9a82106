#pragma once

#include <QObject>
#include <QTimer>

class IMvTimeline;
class MvMemoryRenderService;

// Stands in for the background preview renderer: an edit makes the timeline unrendered again and
// the simulator then finishes a stretch of frames on every tick.
class MvDemoRenderSimulator : public QObject
{
    Q_OBJECT

public:
    MvDemoRenderSimulator(IMvTimeline* timeline, QObject* parent = nullptr);

    void invalidate();
    // One tick of rendering, for the scenario which cannot wait for the timer.
    void step();

private:
    IMvTimeline* m_timeline;
    MvMemoryRenderService* m_service;
    QTimer m_timer;
};
