#pragma once

#include <QRect>

class IMvClip;
class IMvMarkerList;
class MvDemoTrackArea;
class QColor;
class QPainter;

// Paints the demo's track area from its geometry: rows, clips with their keyframes and
// markers, the virtual playhead, the preview of a clip drag with its snap guide, the band of a
// band selection and the focus frame. Decisions (where things are) come from the area.
class MvDemoTrackPainter
{
public:
    MvDemoTrackPainter(QPainter& painter, const MvDemoTrackArea& area);

    void rows();
    void virtualPlayhead();
    void dragPreview();
    void rubberBand(const QRect& band);
    void focusFrame();

    static QColor colorOfType(int clipType);

private:
    void clip(IMvClip* clip, const QRect& rect, bool selected, bool rowMuted);
    void keyFrames(IMvClip* clip, const QRect& rect);
    void clipMarkers(IMvMarkerList* markers, const QRect& rect);
    void transitions(IMvClip* clip, int trackIndex, bool anySelected);
    void effectBadge(IMvClip* clip, const QRect& rect);

    QPainter& m_painter;
    const MvDemoTrackArea& m_area;
};
