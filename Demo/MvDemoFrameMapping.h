#pragma once

#include <QtGlobal>

class IMvTimelineRuler;

// Frames to x and back for the demo's timeline views. The ruler model puts its first visible
// frame at pixel 0; the views leave a margin before frame 0 so that the playhead's split button
// fits on screen there, so each view adds the same origin to the ruler's pixels. The ruler
// widget and the render strip sit at that origin themselves and need no shift.
class MvDemoFrameMapping
{
public:
    explicit MvDemoFrameMapping(const IMvTimelineRuler* ruler = nullptr, int originX = 0);

    const IMvTimelineRuler* ruler() const { return m_ruler; }
    int originX() const { return m_originX; }
    void setOriginX(int originX) { m_originX = originX; }

    int xOf(qint64 frame) const;
    qint64 frameAt(int x) const;
    // How many frames a stretch of pixels covers at the current zoom; at least one.
    qint64 framesIn(int pixels) const;

private:
    const IMvTimelineRuler* m_ruler;
    int m_originX;
};
