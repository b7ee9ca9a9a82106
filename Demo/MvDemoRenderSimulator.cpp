#include "MvDemoRenderSimulator.h"

#include "IMvTimeline.h"
#include "Memory/MvMemoryRenderService.h"

namespace {
constexpr qint64 FramesPerTick = 45;
constexpr int TickMs = 100;
}

MvDemoRenderSimulator::MvDemoRenderSimulator(IMvTimeline* timeline, QObject* parent)
    : QObject(parent)
    , m_timeline(timeline)
    , m_service(dynamic_cast<MvMemoryRenderService*>(timeline->renderService()))
{
    connect(&m_timer, &QTimer::timeout, this, &MvDemoRenderSimulator::step);
    if (!m_service)
        return;
    m_service->addObserver(this);
    // A freshly opened project has no preview yet.
    m_service->markUnfinished(0, m_timeline->duration() - 1);
    m_service->notifyPrepareStart();
}

MvDemoRenderSimulator::~MvDemoRenderSimulator()
{
    if (m_service)
        m_service->removeObserver(this);
}

void MvDemoRenderSimulator::onSegmentsChanged()
{
    if (m_service->unfinishedFrames() > 0 && !m_timer.isActive())
        m_timer.start(TickMs);
}

void MvDemoRenderSimulator::step()
{
    if (!m_service || m_service->renderNext(FramesPerTick) == 0 || m_service->unfinishedFrames() == 0)
        m_timer.stop();
}
