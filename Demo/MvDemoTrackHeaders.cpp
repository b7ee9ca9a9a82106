#include "MvDemoTrackHeaders.h"

#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvDemoHeaderMarks.h"
#include "MvDemoPresenter.h"
#include "MvDemoTrackArea.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {
const QColor kIdleInk(0x8A, 0x8D, 0x96);
const QColor kLockInk(0xF2, 0xC9, 0x4C);
const QColor kMutedInk(0xE0, 0x6C, 0x5C);
const QColor kOnInk(0xD8, 0xDA, 0xE0);
const QColor kPickedRow(0x37, 0x3C, 0x4A);
const QColor kPickedEdge(0x5B, 0x9B, 0xF0);
// The whole neighbourhood of a mark toggles, not only the mark itself.
constexpr int kHitSlack = 3;
}

MvDemoTrackHeaders::MvDemoTrackHeaders(MvDemoPresenter* presenter, MvDemoTrackArea* area, QWidget* parent)
    : QWidget(parent)
    , m_timeline(presenter->timeline())
    , m_presenter(presenter)
    , m_area(area)
{
    setFixedWidth(kWidth);
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

MvDemoTrackHeaders::Button MvDemoTrackHeaders::buttonAt(int trackIndex, const QPoint& pos) const
{
    const QRect row = rowRect(trackIndex);
    if (row.isEmpty() || !row.contains(pos))
        return Button::None;
    // Each mark answers over the row's whole height in its column; the lock takes the rest of the
    // row's right end.
    const auto inColumn = [&pos](const QRect& mark) {
        return pos.x() >= mark.left() - kHitSlack && pos.x() <= mark.right() + kHitSlack;
    };
    if (pos.x() >= MvDemoHeaderMarks::lockRect(row).left() - kHitSlack)
        return Button::Lock;
    if (inColumn(MvDemoHeaderMarks::muteRect(row)))
        return Button::Mute;
    if (inColumn(MvDemoHeaderMarks::eyeRect(row)))
        return Button::Eye;
    return Button::None;
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

bool MvDemoTrackHeaders::applyButton(MvTimelinePresenter* presenter, IMvTrack* track, Button button)
{
    if (!presenter || !track)
        return false;
    switch (button) {
    case Button::Lock:
        presenter->setLock(track, !track->isLocked());
        return true;
    case Button::Eye:
        if (MVVBLMODEL::isAudioTrack(track->type()))
            presenter->setMute(track, presenter->trackVisible(track));
        else
            presenter->setVisible(track, !track->isVisible());
        return true;
    case Button::Mute: {
        // Asked all the same: the library keeps its own record of the refusal.
        const bool allowed = presenter->muteEnable(track);
        presenter->setMute(track, !track->isMuted());
        return allowed;
    }
    case Button::None:
        break;
    }
    return false;
}

QString MvDemoTrackHeaders::refusal(Button button)
{
    return button == Button::Mute ? tr("Show the track again before switching its sound.") : QString();
}

void MvDemoTrackHeaders::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x1F, 0x20, 0x24));
    painter.setClipRect(QRect(0, areaTop(), width(), m_area->height()));
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (int i = 0; i < m_timeline->trackCount(); ++i)
        paintRow(painter, i);
}

void MvDemoTrackHeaders::paintRow(QPainter& painter, int trackIndex)
{
    IMvTrack* track = m_timeline->trackAt(trackIndex);
    const QRect row = rowRect(trackIndex);
    const bool picked = m_presenter->selectedTrack() == track;
    painter.fillRect(row, picked ? kPickedRow : QColor(0x2A, 0x2B, 0x31));
    if (picked)
        painter.fillRect(QRect(row.left(), row.top(), 3, row.height()), kPickedEdge);
    painter.setPen(track->isVisible() ? QColor(0xE6, 0xE6, 0xE6) : kIdleInk);
    painter.drawText(row.adjusted(8, 0, -(row.right() - MvDemoHeaderMarks::eyeRect(row).left() + 4), 0),
        Qt::AlignVCenter | Qt::AlignLeft, trackName(trackIndex));
    const bool shown = m_presenter->trackVisible(track);
    painter.fillPath(MvDemoHeaderMarks::eye(MvDemoHeaderMarks::eyeRect(row), shown), shown ? kOnInk : kMutedInk);
    // A row whose sound cannot be switched now keeps a faint mark.
    const QColor muteInk = !m_presenter->muteEnable(track) ? kIdleInk.darker(160)
        : track->isMuted()                                 ? kMutedInk
                                                           : kOnInk;
    painter.fillPath(MvDemoHeaderMarks::speaker(MvDemoHeaderMarks::muteRect(row), track->isMuted()), muteInk);
    painter.fillPath(MvDemoHeaderMarks::padlock(MvDemoHeaderMarks::lockRect(row), track->isLocked()),
        track->isLocked() ? kLockInk : kIdleInk);
}

void MvDemoTrackHeaders::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int index = trackAt(event->pos());
    IMvTrack* track = m_timeline->trackAt(index);
    if (!track)
        return;
    const Button button = buttonAt(index, event->pos());
    if (button != Button::None) {
        Q_EMIT buttonClicked(index, button);
    } else {
        m_presenter->setSelectedTrack(m_presenter->selectedTrack() == track ? nullptr : track);
        Q_EMIT trackPicked();
    }
    update();
    m_area->update();
}

void MvDemoTrackHeaders::contextMenuEvent(QContextMenuEvent* event)
{
    const int index = trackAt(event->pos());
    if (index >= 0)
        Q_EMIT contextMenuRequested(index, event->globalPos());
}
