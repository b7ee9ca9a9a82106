#include "MvDemoTrackArea.h"

#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvEventFilterManager.h"

#include <QMouseEvent>
#include <QPainter>

using namespace MVVBLMODEL;

namespace {
QColor colorOfType(MvClipType type)
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
}

MvDemoTrackArea::MvDemoTrackArea(IMvTimeline* timeline, QWidget* parent)
    : QWidget(parent), m_timeline(timeline), m_filters(new MvEventFilterManager(this))
{
    setMouseTracking(true);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(0x26, 0x27, 0x2C));
    setPalette(pal);
    m_timeline->ruler()->addObserver(this);
    m_timeline->playhead()->addObserver(this);
}

MvDemoTrackArea::~MvDemoTrackArea()
{
    m_timeline->ruler()->removeObserver(this);
    m_timeline->playhead()->removeObserver(this);
}

QSize MvDemoTrackArea::sizeHint() const
{
    return QSize(900, rowTop(m_timeline->trackCount()) + 8);
}

int MvDemoTrackArea::rowTop(int trackIndex) const
{
    int y = 0;
    for (int i = 0; i < trackIndex && i < m_timeline->trackCount(); ++i)
        y += m_timeline->trackAt(i)->height() + 2;
    return y;
}

QRect MvDemoTrackArea::clipRect(const IMvAbstractClip* clip, int rowTop, int rowHeight) const
{
    IMvTimelineRuler* ruler = m_timeline->ruler();
    const int x0 = ruler->frameToPixel(clip->start());
    const int x1 = ruler->frameToPixel(clip->end() + 1);
    return QRect(x0, rowTop + 2, qMax(1, x1 - x0 - 1), rowHeight - 4);
}

IMvAbstractClip* MvDemoTrackArea::itemAt(const QPoint& pos) const
{
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        IMvTrack* track = m_timeline->trackAt(i);
        const int top = rowTop(i);
        if (pos.y() < top || pos.y() >= top + track->height())
            continue;
        const QList<IMvClip*> clips = track->clips();
        for (IMvClip* clip : clips) {
            // Transitions lie over their clip's edge and win the hit there.
            const QList<IMvTransition*> transitions = clip->transitionList()->transitions();
            for (IMvTransition* transition : transitions) {
                if (clipRect(transition, top, track->height()).contains(pos))
                    return transition;
            }
        }
        for (IMvClip* clip : clips) {
            if (clipRect(clip, top, track->height()).contains(pos))
                return clip;
        }
    }
    return nullptr;
}

bool MvDemoTrackArea::event(QEvent* event)
{
    if (isEnabled() && isVisible() && m_filters->dispatchEvent(event)) {
        setCursor(m_filters->getCursor());
        return true;
    }
    return QWidget::event(event);
}

void MvDemoTrackArea::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QList<IMvAbstractClip*> selected = m_timeline->selection()->selectedItems();
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        IMvTrack* track = m_timeline->trackAt(i);
        const int top = rowTop(i);
        const QColor rowColor = track->type() == TrackType_Audio ? QColor(0x2B, 0x30, 0x2D) : QColor(0x2C, 0x2E, 0x35);
        painter.fillRect(QRect(0, top, width(), track->height()), track->isLocked() ? rowColor.darker(130) : rowColor);
        const QList<IMvClip*> clips = track->clips();
        for (IMvClip* clip : clips)
            paintClip(painter, clip, clipRect(clip, top, track->height()), selected.contains(clip));
        for (IMvClip* clip : clips) {
            const QList<IMvTransition*> transitions = clip->transitionList()->transitions();
            for (IMvTransition* transition : transitions) {
                const QRect r = clipRect(transition, top, track->height());
                painter.fillRect(r, QBrush(QColor(255, 255, 255, selected.contains(transition) ? 200 : 110),
                                        Qt::BDiagPattern));
                if (selected.contains(transition)) {
                    painter.setPen(QPen(Qt::white, 2));
                    painter.drawRect(r.adjusted(1, 1, -1, -1));
                }
            }
        }
    }
    paintVirtualPlayhead(painter);
}

void MvDemoTrackArea::paintVirtualPlayhead(QPainter& painter) const
{
    IMvTimelinePlayhead* playhead = m_timeline->playhead();
    if (!playhead->isVirtualOpen())
        return;
    // While the virtual playhead is open the host draws it: a dashed line over a tinted area.
    painter.fillRect(rect(), QColor(0x8E, 0x6C, 0xC9, 28));
    const int x = m_timeline->ruler()->frameToPixel(playhead->currentFrame());
    painter.setPen(QPen(QColor(0xC9, 0xA8, 0xFF), 2, Qt::DashLine));
    painter.drawLine(x, 0, x, height());
    painter.drawText(QRect(x + 6, height() - 22, 200, 20), Qt::AlignLeft | Qt::AlignVCenter, tr("virtual playhead"));
}

void MvDemoTrackArea::paintClip(QPainter& painter, IMvClip* clip, const QRect& rect, bool selected) const
{
    if (rect.right() < 0 || rect.left() > width())
        return;
    painter.fillRect(rect, colorOfType(clip->type()));
    if (clip->groupKind() != 0)
        painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 3), QColor(0xF2, 0xC9, 0x4C));
    painter.setPen(selected ? QPen(Qt::white, 2) : QPen(colorOfType(clip->type()).lighter(140), 1));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.setPen(Qt::white);
    QString label = clip->name();
    if (clip->rotation() != 0)
        label += QStringLiteral("  \u21bb%1\u00b0").arg(clip->rotation());
    painter.drawText(rect.adjusted(6, 2, -4, -2), Qt::AlignLeft | Qt::AlignTop, label);
    paintClipDetails(painter, clip, rect);
}

void MvDemoTrackArea::paintClipDetails(QPainter& painter, IMvClip* clip, const QRect& rect) const
{
    IMvTimelineRuler* ruler = m_timeline->ruler();
    // Keyframes as small diamonds along the bottom, clip markers as ticks along the top.
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (bool audio : { false, true }) {
        const QList<qint64> frames = clip->keyFrames(audio);
        for (qint64 frame : frames) {
            const int x = ruler->frameToPixel(clip->start() + frame);
            const int y = rect.bottom() - 6 - (audio ? 8 : 0);
            QPolygon diamond({ QPoint(x, y - 4), QPoint(x + 4, y), QPoint(x, y + 4), QPoint(x - 4, y) });
            painter.setPen(Qt::NoPen);
            painter.setBrush(audio ? QColor(0x9F, 0xE8, 0xB5) : QColor(0xFF, 0xE0, 0x80));
            painter.drawPolygon(diamond);
        }
    }
    if (IMvMarkerList* markers = clip->clipMarkers()) {
        const QList<IMvMarker*> list = markers->markers();
        for (IMvMarker* marker : list) {
            const int x = ruler->frameToPixel(markers->mapToTimeline(marker->frame()));
            painter.fillRect(QRect(x - 1, rect.top(), 3, 8), marker->color());
        }
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
}

void MvDemoTrackArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    IMvSelection* selection = m_timeline->selection();
    IMvAbstractClip* item = itemAt(event->pos());
    QList<IMvAbstractClip*> items = selection->selectedItems();
    if (event->modifiers() & Qt::ControlModifier) {
        if (item && !items.removeOne(item))
            items.append(item);
    } else {
        items.clear();
        if (item)
            items.append(item);
    }
    selection->setTimelineSelected(false);
    selection->selectItems(items);
    update();
    Q_EMIT selectionChanged();
}

void MvDemoTrackArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (IMvAbstractClip* item = itemAt(event->pos()))
        Q_EMIT itemDoubleClicked(item);
}

void MvDemoTrackArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    update();
}

void MvDemoTrackArea::onRulerEvent(int kind)
{
    Q_UNUSED(kind)
    update();
}

void MvDemoTrackArea::onPlayheadEvent(IMvTimelinePlayhead* source, int kind)
{
    Q_UNUSED(source)
    update();
    if (kind == IMvTimelinePlayhead::Moved || kind == IMvTimelinePlayhead::VirtualStateChanged)
        Q_EMIT playheadMoved();
}
