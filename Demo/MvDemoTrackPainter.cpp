#include "MvDemoTrackPainter.h"

#include "IMvAbstractClip.h"
#include "IMvEffect.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "MvClipHelpers.h"
#include "MvDemoHeaderMarks.h"
#include "MvDemoTrackArea.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

using namespace MVVBLMODEL;

namespace {
const QColor kGuideColor(0xF2, 0xC9, 0x4C);
const QColor kFocusColor(0x4C, 0x8B, 0xF5);
const QColor kRefusedColor(0xFF, 0x5A, 0x4E);
}

MvDemoTrackPainter::MvDemoTrackPainter(QPainter& painter, const MvDemoTrackArea& area)
    : m_painter(painter)
    , m_area(area)
{
}

QColor MvDemoTrackPainter::colorOfType(int type)
{
    if (isAudioClipType(type))
        return QColor(0x2E, 0x8B, 0x57);
    switch (type) {
    case ClipType_Image:
        return QColor(0x8E, 0x6C, 0xC9);
    case ClipType_Text:
    case ClipType_Title:
    case ClipType_Subtitle:
        return QColor(0xC9, 0x8A, 0x2E);
    case ClipType_Sticker:
    case ClipType_Shape:
        return QColor(0xC9, 0x4F, 0x7C);
    case ClipType_Effect:
    case ClipType_Filter:
    case ClipType_Adjustment:
        return QColor(0x5A, 0x7E, 0x8F);
    default:
        return QColor(0x3A, 0x6E, 0xC4);
    }
}

void MvDemoTrackPainter::rows()
{
    const IMvTimeline* timeline = m_area.timeline();
    const QList<IMvAbstractClip*> selected = timeline->selection()->selectedItems();
    for (int i = 0; i < timeline->trackCount(); ++i) {
        const IMvTrack* track = timeline->trackAt(i);
        const int top = m_area.rowTop(i);
        if (top > m_area.height() || top + track->height() < 0)
            continue;
        const QColor rowColor = track->type() == TrackType_Audio ? QColor(0x2B, 0x30, 0x2D) : QColor(0x2C, 0x2E, 0x35);
        const QRect row(0, top, m_area.width(), track->height());
        m_painter.fillRect(row, track->isLocked() ? rowColor.darker(130) : rowColor);
        m_painter.save();
        // A hidden row shows its clips faded over a hatched row.
        if (!track->isVisible()) {
            m_painter.fillRect(row, QBrush(QColor(0, 0, 0, 90), Qt::FDiagPattern));
            m_painter.setOpacity(0.35);
        }
        m_painter.setClipRect(m_area.rulerSpan());
        const QList<IMvClip*> clips = track->clips();
        for (IMvClip* item : clips)
            clip(item, m_area.clipRect(item, i), selected.contains(item), track->isMuted());
        for (IMvClip* item : clips)
            transitions(item, i, !selected.isEmpty());
        m_painter.restore();
    }
}

void MvDemoTrackPainter::transitions(IMvClip* owner, int trackIndex, bool anySelected)
{
    const QList<IMvAbstractClip*> selected
        = anySelected ? m_area.timeline()->selection()->selectedItems() : QList<IMvAbstractClip*>();
    const QList<IMvTransition*> list = owner->transitionList()->transitions();
    for (IMvTransition* transition : list) {
        const QRect r = m_area.clipRect(transition, trackIndex);
        const bool isSelected = selected.contains(transition);
        // A transition made from a library item shows the item's picture of it.
        const QImage picture = transition->thumbnail();
        if (!picture.isNull()) {
            m_painter.setOpacity(0.85);
            m_painter.drawImage(r, picture);
            m_painter.setOpacity(1.0);
        }
        m_painter.fillRect(r, QBrush(QColor(255, 255, 255, isSelected ? 200 : 110), Qt::BDiagPattern));
        if (r.width() > 40) {
            m_painter.setPen(Qt::white);
            m_painter.drawText(r.adjusted(3, 0, -2, -3), Qt::AlignLeft | Qt::AlignBottom, transition->name());
        }
        if (isSelected) {
            m_painter.setPen(QPen(Qt::white, 2));
            m_painter.drawRect(r.adjusted(1, 1, -1, -1));
        }
    }
}

void MvDemoTrackPainter::clip(IMvClip* item, const QRect& rect, bool selected, bool rowMuted)
{
    if (rect.right() < 0 || rect.left() > m_area.width())
        return;
    // A clip whose sound is off (its own switch, or its row's) is drawn dull, with a crossed speaker.
    const bool silent = IMvClipHelper::hasAudio(item) && (item->isMuted() || rowMuted);
    const QColor color = silent ? colorOfType(item->type()).darker(170) : colorOfType(item->type());
    m_painter.fillRect(rect, color);
    if (silent && rect.width() > 24) {
        const QRect mark(rect.right() - 18, rect.top() + 4, 14, 14);
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing, true);
        m_painter.fillPath(MvDemoHeaderMarks::speaker(mark, true), QColor(0xE0, 0x6C, 0x5C));
        m_painter.restore();
    }
    if (item->groupKind() != 0)
        m_painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 3), kGuideColor);
    m_painter.setPen(selected ? QPen(Qt::white, 2) : QPen(color.lighter(140), 1));
    m_painter.drawRect(rect.adjusted(0, 0, -1, -1));
    m_painter.setPen(Qt::white);
    QString label = item->name();
    // In words: an arrow glyph is missing from many fonts.
    if (item->rotation() != 0)
        label
            = QCoreApplication::translate("MvDemoTrackArea", "%1 (rotated %2\u00b0)").arg(label).arg(item->rotation());
    if (item->isRemixed())
        label = QCoreApplication::translate("MvDemoTrackArea", "%1 (remixed)").arg(label);
    m_painter.drawText(rect.adjusted(6, 2, -4, -2), Qt::AlignLeft | Qt::AlignTop, label);
    keyFrames(item, rect);
    clipMarkers(item->clipMarkers(), rect);
    effectBadge(item, rect);
}

void MvDemoTrackPainter::effectBadge(IMvClip* item, const QRect& rect)
{
    const IMvEffectContainer* effects = item->effects();
    const int count = effects ? effects->count() : 0;
    if (count == 0)
        return;
    // "fx" and how many, on an amber badge when one of them is an audio effect (sound clips are green).
    const QString text = count > 1 ? QStringLiteral("fx %1").arg(count) : QStringLiteral("fx");
    const int width = m_painter.fontMetrics().horizontalAdvance(text) + 8;
    const QRect badge(rect.right() - width - 3, rect.top() + 3, width, 14);
    if (badge.left() < rect.left())
        return;
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing, true);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(effects->hasAudioEffect() ? QColor(0xC7, 0x6B, 0x12) : QColor(0x6A, 0x3F, 0xB5));
    m_painter.drawRoundedRect(badge, 4, 4);
    m_painter.setPen(Qt::white);
    m_painter.drawText(badge, Qt::AlignCenter, text);
    m_painter.restore();
}

void MvDemoTrackPainter::keyFrames(IMvClip* item, const QRect& rect)
{
    // Keyframes as small diamonds along the bottom; sound ones a row higher.
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing, true);
    m_painter.setPen(Qt::NoPen);
    for (bool audio : { false, true }) {
        m_painter.setBrush(audio ? QColor(0x9F, 0xE8, 0xB5) : QColor(0xFF, 0xE0, 0x80));
        const QList<qint64> frames = item->keyFrames(audio);
        for (qint64 frame : frames) {
            const int x = m_area.mapping().xOf(item->start() + frame);
            const int y = rect.bottom() - 6 - (audio ? 8 : 0);
            m_painter.drawPolygon(QPolygon({ QPoint(x, y - 4), QPoint(x + 4, y), QPoint(x, y + 4), QPoint(x - 4, y) }));
        }
    }
    m_painter.restore();
}

void MvDemoTrackPainter::clipMarkers(IMvMarkerList* markers, const QRect& rect)
{
    if (!markers)
        return;
    // A clip marker is a flag on a pole through the clip, drawn beside the playhead's line
    // rather than under it, with a dark rim so that it reads on a clip of its own colour.
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing, true);
    const QList<IMvMarker*> list = markers->markers();
    for (const IMvMarker* marker : list) {
        const int x = m_area.mapping().xOf(markers->mapToTimeline(marker->frame()));
        const QRect flag = MvDemoTrackArea::markerFlagRect(x, rect.top());
        m_painter.fillRect(QRect(x, rect.top(), 2, rect.height()),
            QColor(marker->color().red(), marker->color().green(), marker->color().blue(), 170));
        QPainterPath pennant;
        pennant.moveTo(flag.left() + 1, flag.top() + 0.5);
        pennant.lineTo(flag.right() + 0.5, flag.top() + 0.5);
        pennant.lineTo(flag.right() - 3, flag.center().y() + 0.5);
        pennant.lineTo(flag.right() + 0.5, flag.bottom() + 0.5);
        pennant.lineTo(flag.left() + 1, flag.bottom() + 0.5);
        pennant.closeSubpath();
        m_painter.setPen(QPen(QColor(0, 0, 0, 150), 1));
        m_painter.setBrush(marker->color());
        m_painter.drawPath(pennant);
    }
    m_painter.restore();
}

void MvDemoTrackPainter::virtualPlayhead()
{
    const IMvTimeline* timeline = m_area.timeline();
    const IMvTimelinePlayhead* playhead = timeline->playhead();
    if (!playhead->isVirtualOpen())
        return;
    // While the virtual playhead is open the host draws it: a dashed line over a tinted area.
    m_painter.fillRect(m_area.rect(), QColor(0x8E, 0x6C, 0xC9, 28));
    const int x = m_area.mapping().xOf(playhead->currentFrame());
    m_painter.setPen(QPen(QColor(0xC9, 0xA8, 0xFF), 2, Qt::DashLine));
    m_painter.drawLine(x, 0, x, m_area.height());
    m_painter.drawText(QRect(x + 6, m_area.height() - 22, 200, 20), Qt::AlignLeft | Qt::AlignVCenter,
        QCoreApplication::translate("MvDemoTrackArea", "virtual playhead"));
}

void MvDemoTrackPainter::dragPreview()
{
    const MvDemoClipDrag& drag = m_area.clipDrag();
    if (!drag.isActive())
        return;
    const bool fits = drag.problem() == MvDemoClipDrag::Problem::None;
    const QList<MvDemoClipDrag::Landing> landings = drag.landings();
    for (const MvDemoClipDrag::Landing& landing : landings) {
        const int top = m_area.rowTop(landing.trackIndex);
        const int height = m_area.timeline()->trackAt(landing.trackIndex)
            ? m_area.timeline()->trackAt(landing.trackIndex)->height()
            : 0;
        const int x0 = m_area.mapping().xOf(landing.start);
        const int x1 = m_area.mapping().xOf(landing.end + 1);
        const QRect ghost(x0, top + 2, qMax(1, x1 - x0 - 1), height - 4);
        QColor fill = colorOfType(landing.clip->type());
        fill.setAlpha(120);
        m_painter.fillRect(ghost, fill);
        m_painter.setPen(fits ? QPen(Qt::white, 1, Qt::DashLine) : QPen(kRefusedColor, 2));
        m_painter.drawRect(ghost.adjusted(0, 0, -1, -1));
    }
    if (drag.guideFrame() >= 0) {
        const int x = m_area.mapping().xOf(drag.guideFrame());
        m_painter.setPen(QPen(kGuideColor, 1));
        m_painter.drawLine(x, 0, x, m_area.height());
    }
}

void MvDemoTrackPainter::rubberBand(const QRect& band)
{
    if (band.isNull())
        return;
    m_painter.fillRect(band, QColor(0x4C, 0x8B, 0xF5, 40));
    m_painter.setPen(QPen(kFocusColor, 1));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(band.adjusted(0, 0, -1, -1));
}

void MvDemoTrackPainter::focusFrame()
{
    m_painter.setPen(QPen(kFocusColor, 1));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(m_area.rect().adjusted(0, 0, -1, -1));
}
