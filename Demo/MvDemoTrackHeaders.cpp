#include "MvDemoTrackHeaders.h"

#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvDemoTrackArea.h"

#include <QMouseEvent>
#include <QPainter>

MvDemoTrackHeaders::MvDemoTrackHeaders(IMvTimeline* timeline, MvDemoTrackArea* area, QWidget* parent)
    : QWidget(parent), m_timeline(timeline), m_area(area)
{
    setFixedWidth(120);
}

void MvDemoTrackHeaders::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x1F, 0x20, 0x24));
    int picture = 0;
    int audio = 0;
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        IMvTrack* track = m_timeline->trackAt(i);
        const QRect row(0, m_area->y() - y() + m_area->rowTop(i), width() - 2, track->height());
        painter.fillRect(row, QColor(0x2A, 0x2B, 0x31));
        painter.setPen(QColor(0xE6, 0xE6, 0xE6));
        const bool isAudio = track->type() == MVVBLMODEL::TrackType_Audio;
        const QString name = isAudio ? tr("Audio %1").arg(++audio) : tr("Video %1").arg(++picture);
        painter.drawText(row.adjusted(8, 0, -24, 0), Qt::AlignVCenter | Qt::AlignLeft, name);
        painter.drawText(row.adjusted(0, 0, -6, 0), Qt::AlignVCenter | Qt::AlignRight,
            track->isLocked() ? QStringLiteral("\U0001F512") : QStringLiteral("\u25CB"));
    }
}

void MvDemoTrackHeaders::mousePressEvent(QMouseEvent* event)
{
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        IMvTrack* track = m_timeline->trackAt(i);
        const int top = m_area->y() - y() + m_area->rowTop(i);
        if (event->pos().y() >= top && event->pos().y() < top + track->height() && event->pos().x() > width() - 30) {
            track->setLocked(!track->isLocked());
            update();
            m_area->update();
            Q_EMIT lockToggled();
            return;
        }
    }
}
