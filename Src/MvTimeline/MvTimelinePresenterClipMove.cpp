// Moves of the selected clips by frames and by rows, with the clips that follow them by motion
// tracking.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvClipHelpers.h"
#include "MvCommandScope_p.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <limits>

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

namespace {
// Row span of one kind of clips (picture or audio) in a vertical move.
struct MvRowSpan
{
    int minimum = 10000000;
    int maximum = 0;
    int offset = 0;

    void add(int index)
    {
        minimum = std::min(minimum, index);
        maximum = std::max(maximum, index);
    }
};

// The selected clips together with the clips that follow them by motion tracking, each once.
QList<IMvClip*> withMotionFollowers(IMvTimeline* timeline, const QList<IMvClip*>& selected)
{
    MvMotionTrackHelper helper;
    helper.setTimeline(timeline);
    QList<IMvClip*> moving = selected;
    QSet<IMvClip*> present(selected.cbegin(), selected.cend());
    for (IMvClip* clip : selected) {
        IMvClip* follower = helper.getFollower(clip);
        if (follower && !present.contains(follower)) {
            present.insert(follower);
            moving.append(follower);
        }
    }
    return moving;
}

// Clips with the row offset each one moves by, in first-entered order; a clip entered again keeps
// its last offset.
class MvRowMoves
{
public:
    void enter(IMvClip* clip, int offset)
    {
        const auto at = m_index.constFind(clip);
        if (at != m_index.constEnd()) {
            m_offsets[*at] = offset;
        } else {
            m_index.insert(clip, m_clips.size());
            m_clips.append(clip);
            m_offsets.append(offset);
        }
        m_anyOffset = m_anyOffset || offset != 0;
    }
    const QList<IMvClip*>& clips() const { return m_clips; }
    const QList<int>& offsets() const { return m_offsets; }
    bool anyOffset() const { return m_anyOffset; }

private:
    QHash<IMvClip*, int> m_index;
    QList<IMvClip*> m_clips;
    QList<int> m_offsets;
    bool m_anyOffset = false;
};
}

bool MvTimelinePresenter::moveClipsHorizontal(qint64 frameOffset)
{
    Q_D(MvTimelinePresenter);
    return d->moveClipsHorizontal(frameOffset);
}

bool MvTimelinePresenter::moveClipsVertical(int trackIndexOffset)
{
    Q_D(MvTimelinePresenter);
    return d->moveClipsVertical(trackIndexOffset);
}

bool MvTimelinePresenterPrivate::moveWithActionsHeld(
    const QList<IMvClip*>& clips, const QList<int>& trackOffsets, qint64 frameOffset, const QList<IMvClip*>& selected)
{
    Q_Q(MvTimelinePresenter);
    // Menus are refreshed once, after the model has settled, not for every notification of the move.
    updateActionEnabled = false;
    bool result = false;
    {
        const MvCommandScope command(q, MvCommandScope::PausePlayer);
        result = timeline->moveClips(clips, trackOffsets, frameOffset, 2);
        // Followers move along but the user's selection stays what it was.
        MvModelAccess::selectClips(timeline, selected);
    }
    updateActionEnabled = true;
    q->updateAction();
    Q_EMIT q->sigActionStatusChanged();
    return result;
}

bool MvTimelinePresenterPrivate::moveClipsHorizontal(qint64 frameOffset)
{
    MV_FUNCTION("MvTimelinePresenterPrivate::moveClipsHorizontal");
    MV_LOG(MvBaseLog::Note, QString::asprintf("horizontal move clips, frameOffset %d", int(frameOffset)));
    if (frameOffset == 0 || !timeline)
        return false;
    const QList<IMvClip*> selected = MvModelAccess::selectedClips(timeline);
    if (selected.isEmpty())
        return false;
    const QList<IMvClip*> moving = withMotionFollowers(timeline, selected);
    QList<int> trackOffsets;
    trackOffsets.reserve(moving.size());
    for (int i = 0; i < moving.size(); ++i)
        trackOffsets.append(0);
    if (frameOffset < 0) {
        qint64 minStart = std::numeric_limits<qint64>::max();
        for (const IMvClip* clip : moving)
            minStart = std::min(minStart, clip->start());
        if (minStart == 0)
            return false;
        // Clamped so that the earliest clip lands on frame 0 instead of refusing the whole move.
        if (frameOffset + minStart < 0)
            frameOffset = -minStart;
    }
    return moveWithActionsHeld(moving, trackOffsets, frameOffset, selected);
}

bool MvTimelinePresenterPrivate::moveClipsVertical(int trackIndexOffset)
{
    MV_FUNCTION("MvTimelinePresenterPrivate::moveClipsVertical");
    MV_LOG(MvBaseLog::Note, QString::asprintf("vertical move clips, trackIndexOffset %d", trackIndexOffset));
    // An offset past every row can land nowhere (and its row arithmetic would overflow).
    if (trackIndexOffset == 0 || !timeline || qAbs(qint64(trackIndexOffset)) >= timeline->trackCount())
        return false;
    const QList<IMvClip*> selected = MvModelAccess::selectedClips(timeline);
    if (selected.isEmpty())
        return false;
    const QList<IMvClip*> moving = withMotionFollowers(timeline, selected);

    MvRowSpan picture;
    MvRowSpan audio;
    for (const IMvClip* clip : moving)
        (isAudioClipType(clip->type()) ? audio : picture).add(clip->trackIndex());
    // Audio rows are numbered the other way round: "one row up" is +1 for the kind of the first
    // clip and -1 for the other kind.
    const bool audioFirst = isAudioClipType(moving.first()->type());
    audio.offset = audioFirst ? trackIndexOffset : -trackIndexOffset;
    picture.offset = audioFirst ? -trackIndexOffset : trackIndexOffset;
    const IMvTrack* firstPicture = timeline->firstTrackOfType(TrackType_Picture);
    const IMvTrack* lastAudio = timeline->lastTrackOfType(TrackType_Audio);
    const int pictureLimit = firstPicture ? firstPicture->index() : 0;
    const int audioLimit = lastAudio ? lastAudio->index() : timeline->trackCount() - 1;
    // Each kind moves whole or not at all, so clips that belong together keep their rows apart.
    if (audio.maximum + audio.offset > audioLimit)
        audio.offset = 0;
    if (picture.minimum + picture.offset < pictureLimit)
        picture.offset = 0;

    MvRowMoves moves;
    for (IMvClip* clip : moving) {
        const IMvTrack* track = clip->track();
        if (!track)
            continue;
        const int offset = isAudioClipType(clip->type()) ? audio.offset : picture.offset;
        const IMvTrack* target = timeline->trackAt(track->index() + offset);
        if (target && target->isLocked())
            continue;
        moves.enter(clip, offset);
    }
    if (!moves.anyOffset())
        return false;
    return moveWithActionsHeld(moves.clips(), moves.offsets(), 0, selected);
}
