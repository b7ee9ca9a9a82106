#include "MvDemoFrameMapping.h"

#include "IMvTimelineRuler.h"

MvDemoFrameMapping::MvDemoFrameMapping(const IMvTimelineRuler* ruler, int originX)
    : m_ruler(ruler)
    , m_originX(originX)
{
}

int MvDemoFrameMapping::xOf(qint64 frame) const
{
    return m_ruler ? m_originX + m_ruler->frameToPixel(frame) : m_originX;
}

qint64 MvDemoFrameMapping::frameAt(int x) const
{
    return m_ruler ? m_ruler->pixelToFrame(x - m_originX) : 0;
}

qint64 MvDemoFrameMapping::framesIn(int pixels) const
{
    return m_ruler ? qMax(1, m_ruler->framesInPixels(pixels)) : 1;
}
