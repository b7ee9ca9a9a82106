// Track commands of the in-memory model: the rows' eye and mute switches, the clips' mute switch,
// row counts by type, and the removal of empty rows.
#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"
#include "MvMemoryTrack.h"

#include <QVector>

using namespace MVVBLMODEL;

// ---- items

void MvMemoryTransition::range(MvRange<qint64>& range) const
{
    range = MvRange<qint64>(start(), end());
}

void MvMemoryClip::range(MvRange<qint64>& range) const
{
    range = MvRange<qint64>(start(), end());
}

bool MvMemoryClip::isMuted() const
{
    return state().muted;
}

// Only clips that carry sound have a mute switch; a locked row refuses it like any clip edit.
void MvMemoryClip::setMuted(quint16 muted)
{
    const bool mute = muted != 0;
    MvMemoryTimeline::Edit edit(
        m_timeline, "setMuted", mute ? QStringLiteral("mute clip") : QStringLiteral("unmute clip"));
    if (!supportsAudioKeyFrames(state().type) || state().muted == mute || (state().track && state().track->isLocked()))
        return;
    change()->muted = mute;
}

// ---- rows

bool MvMemoryTrack::isVisible() const
{
    return state().visible;
}

void MvMemoryTrack::setVisible(bool visible, bool withSound)
{
    const bool silent = !visible && withSound;
    if (state().visible == visible && state().silentWhileHidden == silent)
        return;
    MvMemoryTimeline::Edit edit(
        m_timeline, "setVisible", visible ? QStringLiteral("show track") : QStringLiteral("hide track"));
    auto value = change();
    value->visible = visible;
    value->silentWhileHidden = silent;
}

bool MvMemoryTrack::isMuted() const
{
    return state().muted || (!state().visible && state().silentWhileHidden);
}

// The row's own switch: a row hidden with its sound keeps it and is heard again as it was once shown.
void MvMemoryTrack::setMuted(bool muted)
{
    if (state().muted == muted)
        return;
    MvMemoryTimeline::Edit edit(
        m_timeline, "setTrackMuted", muted ? QStringLiteral("mute track") : QStringLiteral("unmute track"));
    change()->muted = muted;
}

// ---- the timeline's rows by type

int MvMemoryTimeline::trackCount(MvTrackType type) const
{
    Q_D(const MvMemoryTimeline);
    int count = 0;
    for (const MvMemoryTrack* track : d->rows())
        count += track->type() == type ? 1 : 0;
    return count;
}

int MvMemoryTimeline::emptyTrackCount(MvTrackType type) const
{
    Q_D(const MvMemoryTimeline);
    int count = 0;
    for (const MvMemoryTrack* track : d->rows())
        count += track->type() == type && track->clipCount() == 0 ? 1 : 0;
    return count;
}

// Rows of one type lie together (picture rows above audio rows).
void MvMemoryTimeline::trackIndexRange(MvRange<int>& range, MvTrackType type) const
{
    Q_D(const MvMemoryTimeline);
    range = MvRange<int>(0, -1);
    const QList<MvMemoryTrack*>& rows = d->rows();
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row)->type() != type)
            continue;
        if (range.last < range.first)
            range.first = row;
        range.last = row;
    }
}

// Rows without clips go, locked ones excepted; each type keeps at least one row, its first.
void MvMemoryTimeline::clearEmptyTracks()
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "clearEmptyTracks", QStringLiteral("clear empty tracks"));
    const QList<MvMemoryTrack*>& rows = d->rows();
    QVector<bool> keep(rows.size());
    for (int row = 0; row < rows.size(); ++row)
        keep[row] = rows.at(row)->clipCount() > 0 || rows.at(row)->isLocked();
    for (MvTrackType type : { TrackType_Picture, TrackType_Audio }) {
        int first = -1;
        bool kept = false;
        for (int row = 0; row < rows.size(); ++row) {
            if (rows.at(row)->type() != type)
                continue;
            first = first < 0 ? row : first;
            kept = kept || keep.at(row);
        }
        if (first >= 0 && !kept)
            keep[first] = true;
    }
    if (!keep.contains(false))
        return;
    QList<MvMemoryTrack*> remaining;
    for (int row = 0; row < rows.size(); ++row) {
        if (keep.at(row))
            remaining.append(rows.at(row));
    }
    d->values->change()->rows = remaining;
}

void MvMemoryTimeline::addTrack(int type, int index)
{
    Q_D(MvMemoryTimeline);
    Edit edit(this, "addTrackAt", QStringLiteral("add track"));
    d->insertTrack(type, index);
}

// A row index at 0 or above is clamped into the rows of the type; a negative one counts back from
// their end (-1: below the last of them).
MvMemoryTrack* MvMemoryTimelinePrivate::insertTrack(MvTrackType type, int index)
{
    Q_Q(MvMemoryTimeline);
    if (type != TrackType_Audio && type != TrackType_Picture)
        return nullptr;
    auto* track = new MvMemoryTrack(q, type);
    allTracks.append(track);
    auto value = values->change();
    int pictureRows = 0;
    while (pictureRows < value->rows.size() && value->rows.at(pictureRows)->type() == TrackType_Picture)
        ++pictureRows;
    const int first = type == TrackType_Picture ? 0 : pictureRows;
    const int end = type == TrackType_Picture ? pictureRows : value->rows.size();
    const int at = index >= 0 ? qBound(first, index, end) : qMax(first, end + 1 + index);
    value->rows.insert(at, track);
    return track;
}
