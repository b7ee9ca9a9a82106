#include "MvDemoTrackHeaders.h"

#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvDemoHeaderMarks.h"
#include "MvDemoTrackArea.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

MvDemoTrackHeaders::MvDemoTrackHeaders(IMvTimeline* timeline, MvDemoTrackArea* area, QWidget* parent)
    : QWidget(parent)
    , m_timeline(timeline)
    , m_area(area)
{
    setFixedWidth(120);
    connect(m_area, &MvDemoTrackArea::scrolled, this, qOverload<>(&QWidget::update));
}

int MvDemoTrackHeaders::areaTop() const
{
    // The rows line up with the track area, wherever the two sit in the window.
    return m_area->mapTo(window(), QPoint()).y() - mapTo(window(), QPoint()).y();
}

QRect MvDemoTrackHeaders::rowRect(int trackIndex) const
{
    const IMvTrack* track = m_timeline->trackAt(trackIndex);
    if (!track)
        return QRect();
    return QRect(0, areaTop() + m_area->rowTop(trackIndex), width() - 2, track->height());
}

int MvDemoTrackHeaders::trackAt(const QPoint& pos) const
{
    // Rows are cut off where the track area ends, as they are in the area itself.
    if (pos.y() < areaTop() || pos.y() >= areaTop() + m_area->height())
        return -1;
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        if (rowRect(i).contains(pos))
            return i;
    }
    return -1;
}

QString MvDemoTrackHeaders::trackName(int trackIndex) const
{
    int sameKind = 0;
    const IMvTrack* track = m_timeline->trackAt(trackIndex);
    if (!track)
        return QString();
    for (int i = 0; i <= trackIndex; ++i)
        sameKind += m_timeline->trackAt(i)->type() == track->type() ? 1 : 0;
    return track->type() == MVVBLMODEL::TrackType_Audio ? tr("Audio %1").arg(sameKind) : tr("Video %1").arg(sameKind);
}

void MvDemoTrackHeaders::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x1F, 0x20, 0x24));
    painter.setClipRect(QRect(0, areaTop(), width(), m_area->height()));
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        const IMvTrack* track = m_timeline->trackAt(i);
        const QRect row = rowRect(i);
        painter.fillRect(row, QColor(0x2A, 0x2B, 0x31));
        painter.setPen(QColor(0xE6, 0xE6, 0xE6));
        painter.drawText(row.adjusted(8, 0, -26, 0), Qt::AlignVCenter | Qt::AlignLeft, trackName(i));
        const QColor ink = track->isLocked() ? QColor(0xF2, 0xC9, 0x4C) : QColor(0x8A, 0x8D, 0x96);
        painter.fillPath(MvDemoHeaderMarks::padlock(MvDemoHeaderMarks::lockRect(row), track->isLocked()), ink);
    }
}

void MvDemoTrackHeaders::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int index = trackAt(event->pos());
    IMvTrack* track = m_timeline->trackAt(index);
    // The whole right end of the row toggles, not only the mark itself.
    if (!track || !MvDemoHeaderMarks::lockRect(rowRect(index)).adjusted(-8, -8, 8, 8).contains(event->pos()))
        return;
    track->setLocked(!track->isLocked());
    update();
    m_area->update();
    Q_EMIT lockToggled();
}

void MvDemoTrackHeaders::contextMenuEvent(QContextMenuEvent* event)
{
    const int index = trackAt(event->pos());
    if (index >= 0)
        Q_EMIT contextMenuRequested(index, event->globalPos());
}
