// Clip editing on the selection: split, trim, delete, ripple delete and moves.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvClipEditService.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "MvClipHelpers.h"
#include "MvKeyFramePresenter.h"
#include "MvMessage.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QVariantList>

#include <algorithm>
#include <limits>

using namespace MVVBLMODEL;

#define MV_PRESENTER_LOG(level, function, message)                                                                     \
    MV_TIMELINE_LOG(level, "Src/MvTimeline/MvTimelinePresenter", function, message)

namespace {
const char* const SplitFunction = "MvTimelinePresenterPrivate::splitClips";

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
}

qint64 MvTimelinePresenterPrivate::playheadFrame() const
{
    IMvTimelinePlayhead* playhead = timeline ? timeline->playhead() : nullptr;
    return playhead ? playhead->currentFrame() : 0;
}

QList<IMvClip*> MvTimelinePresenterPrivate::selectedClips() const
{
    IMvSelection* selection = timeline ? timeline->selection() : nullptr;
    return selection ? selection->selectedClips() : QList<IMvClip*>();
}

bool MvTimelinePresenterPrivate::splitClips(qint64 frame, bool select, bool prepareFlag)
{
    MV_PRESENTER_LOG(MvBaseLog::Note, "MvTimelinePresenterPrivate::splitClips", QStringLiteral("split Clips start"));
    if (!timeline)
        return false;
    // Frame 0 stands for "where the playhead is": a cut at the very first frame divides nothing.
    if (frame < 1)
        frame = playheadFrame();
    const QList<IMvClip*> clips = IMvClipHelper::findClips(timeline, frame);
    if (clips.isEmpty())
        return false;
    const QList<IMvClip*> toCut = IMvClipHelper::findPrepareSplitClip(clips, prepareFlag);
    if (toCut.isEmpty())
        return false;
    QList<IMvClip*> newClips;
    timeline->splitClips(newClips, toCut, frame);
    if (select && timeline->selection())
        timeline->selection()->select(newClips);
    return !newClips.isEmpty();
}

bool MvTimelinePresenterPrivate::splitClips(qint64 frame, QList<IMvClip*> clips, bool select, bool prepareFlag)
{
    if (!timeline || clips.isEmpty())
        return false;
    const QList<IMvClip*> toCut = IMvClipHelper::findPrepareSplitClip(clips, prepareFlag);
    if (toCut.isEmpty())
        return false;
    // Ungrouping, the cut and the regrouping are one step for the user; a declined question
    // leaves the step empty and the commander drops it.
    MvUndoRedoCommander commander(timeline->undoRedoService(), QStringLiteral("split"), QLatin1String(SplitFunction));
    bool needGroupAfter = false;
    if (!ungroupBeforeSplit(toCut, needGroupAfter))
        return false;
    QList<IMvClip*> newClips;
    timeline->splitClips(newClips, toCut, frame);
    if (needGroupAfter) {
        groupAfterSplit(toCut, newClips);
        MV_PRESENTER_LOG(
            MvBaseLog::Detail, "MvTimelinePresenterPrivate::splitClips", QStringLiteral("groupAfterSplit"));
    }
    if (select) {
        MV_PRESENTER_LOG(MvBaseLog::Detail, "MvTimelinePresenterPrivate::splitClips",
            QString::asprintf("bug:p7_5312 selected split clips,clip count = %d", int(newClips.size())));
        if (timeline->selection())
            timeline->selection()->select(newClips);
        MV_PRESENTER_LOG(
            MvBaseLog::Detail, "MvTimelinePresenterPrivate::splitClips", QStringLiteral("bug:p7_5312 selected end"));
    }
    return !newClips.isEmpty();
}

bool MvTimelinePresenterPrivate::canSplitClip() const
{
    // The virtual playhead shows a second position; a cut would be ambiguous while it is open.
    if ((virtualPlayheadPresenter && virtualPlayheadPresenter->isOpen()) || !timeline)
        return false;
    const QList<IMvClip*> clips = MvClipFinder(timeline).findClips(playheadFrame());
    return std::any_of(clips.cbegin(), clips.cend(), [](const IMvClip* clip) {
        const IMvTrack* track = clip ? clip->track() : nullptr;
        return track && !track->isLocked();
    });
}

bool MvTimelinePresenterPrivate::ungroupBeforeSplit(QList<IMvClip*> clips, bool& needGroupAfter)
{
    Q_Q(MvTimelinePresenter);
    needGroupAfter = false;
    IMvClipEditService* editService = timeline ? timeline->editService() : nullptr;
    if (!editService)
        return true;
    for (IMvClip* clip : qAsConst(clips)) {
        QList<IMvClip*> members;
        editService->groupMembersOf(clip, members, false);
        if (members.isEmpty())
            continue;
        // The host asks the user once per split and writes {proceed, ungroup} into the message.
        MvDataMessage question(MessageId::GroupQuestionBeforeSplit);
        q->sendMessageToScene(&question);
        const QVariant answer = question.data();
        const QVariantList values = answer.toList();
        if (!answer.isValid() || !values.value(0).toBool())
            return false;
        if (values.value(1).toBool()) {
            QList<IMvClip*> allMembers;
            editService->collectGroupMembers(clips, allMembers, false);
            editService->ungroup(allMembers);
        } else {
            needGroupAfter = true;
        }
        break;
    }
    return true;
}

bool MvTimelinePresenterPrivate::groupAfterSplit(QList<IMvClip*> sourceClips, QList<IMvClip*> newClips)
{
    if (newClips.isEmpty())
        return true;
    IMvClipEditService* editService = timeline ? timeline->editService() : nullptr;
    if (!editService)
        return false;
    for (int i = 0; i < newClips.size(); ++i) {
        if (i >= sourceClips.size())
            return false;
        QList<IMvClip*> members;
        editService->collectGroupMembers(newClips, members, true);
        if (members.isEmpty())
            continue;
        editService->ungroup(members);
        if (!members.contains(sourceClips.at(i)))
            members.append(sourceClips.at(i));
        editService->group(members, members.first()->groupKind());
    }
    return true;
}

IMvClip* MvTimelinePresenterPrivate::trimTarget() const
{
    // Trims act on exactly one selected item, and only when that item is a clip.
    IMvSelection* selection = timeline ? timeline->selection() : nullptr;
    if (!selection || selection->count() != 1)
        return nullptr;
    const QList<IMvClip*> clips = selection->selectedClips();
    return clips.isEmpty() ? nullptr : clips.first();
}

bool MvTimelinePresenterPrivate::trimStartToPlayhead()
{
    IMvClip* clip = trimTarget();
    return clip && timeline->trimStartToFrame(clip, playheadFrame());
}

bool MvTimelinePresenterPrivate::trimEndToPlayhead()
{
    IMvClip* clip = trimTarget();
    return clip && timeline->trimEndToFrame(clip, playheadFrame());
}

bool MvTimelinePresenterPrivate::canTrimToPlayhead() const
{
    const QList<IMvClip*> clips = selectedClips();
    if (clips.size() != 1)
        return false;
    // A trim on the clip's first or last frame would leave it as it is.
    const qint64 frame = playheadFrame();
    return clips.first()->start() < frame && frame < clips.first()->end();
}

bool MvTimelinePresenterPrivate::deleteSelectedClips()
{
    Q_Q(MvTimelinePresenter);
    if (!actionEnabled) {
        MV_PRESENTER_LOG(
            MvBaseLog::Refusal, "MvTimelinePresenterPrivate::deleteSelectedClips", QStringLiteral("cannt do action"));
        return false;
    }
    IMvSelection* selection = timeline ? timeline->selection() : nullptr;
    if (!selection)
        return false;
    const QList<IMvAbstractClip*> items = selection->selectedItems();
    if (selection->count() == 1 && items.size() == 1 && items.first()->type() == ClipType_Transition) {
        // A lone transition goes by itself; its clips and the playhead stay where they are.
        auto* transition = dynamic_cast<IMvTransition*>(items.first());
        IMvClip* owner = transition ? transition->ownerClip() : nullptr;
        IMvTransitionList* list = owner ? owner->transitionList() : nullptr;
        if (!list)
            return false;
        q->pauseMediaPlayer();
        list->remove(transition->identifier(), transition->placement());
        return true;
    }
    const QList<IMvClip*> clips = selection->selectedClips();
    if (clips.isEmpty())
        return false;
    qint64 earliest = std::numeric_limits<qint32>::max();
    for (const IMvClip* clip : clips)
        earliest = std::min(earliest, clip->start());
    timeline->beginDelete();
    q->pauseMediaPlayerWithSync();
    const bool result = timeline->deleteClips(clips);
    earliest = std::min(earliest, timeline->duration());
    if (timeline->isSeekAfterDelete() && timeline->playhead())
        timeline->playhead()->setCurrentFrame(earliest);
    return result;
}

bool MvTimelinePresenterPrivate::rippleDeleteSelectedClips()
{
    Q_Q(MvTimelinePresenter);
    const QList<IMvClip*> clips = selectedClips();
    if (clips.isEmpty()) {
        MV_PRESENTER_LOG(MvBaseLog::Warning, "MvTimelinePresenterPrivate::rippleDeleteSelectedClips",
            QStringLiteral("clip is null"));
        return false;
    }
    q->pauseMediaPlayer();
    // The user looks at the first clip picked: the playhead lands where it began.
    const qint64 first = clips.first()->start();
    const bool result = timeline->rippleDeleteClips(clips);
    if (timeline->playhead())
        timeline->playhead()->setCurrentFrame(first);
    return result;
}

bool MvTimelinePresenterPrivate::deleteItems(bool arg)
{
    Q_Q(MvTimelinePresenter);
    // The Delete key acts on the most specific thing selected, and on one thing only.
    if (q->emptyClipItemVisible() && q->deleteEmptyClipItem(arg))
        return true;
    if (MvKeyFramePresenter* keyFrames = q->keyFramePresenter()) {
        if (keyFrames->removeSelectedKeyFrame())
            return true;
    }
    if (removeSelectedMarker())
        return true;
    if (removeSelectedFreezeFrame())
        return true;
    return q->deleteSelectedClips();
}

bool MvTimelinePresenterPrivate::canDeleteItems()
{
    Q_Q(MvTimelinePresenter);
    if (q->canDeleteClip())
        return true;
    MvKeyFramePresenter* keyFrames = q->keyFramePresenter();
    if (keyFrames && keyFrames->canRemoveKeyFrame())
        return true;
    if (canRemoveMarker())
        return true;
    return q->emptyClipItemVisible();
}

bool MvTimelinePresenterPrivate::canDeleteClip() const
{
    if (!actionEnabled || !timeline)
        return false;
    IMvSelection* selection = timeline->selection();
    return selection && !selection->isEmpty();
}

QList<IMvClip*> MvTimelinePresenterPrivate::withMotionFollowers(const QList<IMvClip*>& selected) const
{
    MvMotionTrackHelper helper;
    helper.setTimeline(timeline);
    QList<IMvClip*> moving = selected;
    for (IMvClip* clip : selected) {
        IMvClip* follower = helper.getFollower(clip);
        if (follower && !moving.contains(follower))
            moving.append(follower);
    }
    return moving;
}

bool MvTimelinePresenterPrivate::moveWithActionsHeld(
    const QList<IMvClip*>& clips, const QList<int>& trackOffsets, qint64 frameOffset, const QList<IMvClip*>& selected)
{
    Q_Q(MvTimelinePresenter);
    // Menus are refreshed once, after the model has settled, not for every notification of the move.
    updateActionEnabled = false;
    q->pauseMediaPlayer();
    const bool result = timeline->moveClips(clips, trackOffsets, frameOffset, 2);
    // Followers move along but the user's selection stays what it was.
    if (timeline->selection())
        timeline->selection()->select(selected);
    updateActionEnabled = true;
    q->updateAction();
    Q_EMIT q->sigActionStatusChanged();
    return result;
}

bool MvTimelinePresenterPrivate::moveClipsHorizontal(qint64 frameOffset)
{
    MV_PRESENTER_LOG(MvBaseLog::Note, "MvTimelinePresenterPrivate::moveClipsHorizontal",
        QString::asprintf("horizontal move clips, frameOffset %d", int(frameOffset)));
    if (frameOffset == 0 || !timeline)
        return false;
    const QList<IMvClip*> selected = selectedClips();
    if (selected.isEmpty())
        return false;
    const QList<IMvClip*> moving = withMotionFollowers(selected);
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
    MV_PRESENTER_LOG(MvBaseLog::Note, "MvTimelinePresenterPrivate::moveClipsVertical",
        QString::asprintf("vertical move clips, trackIndexOffset %d", trackIndexOffset));
    if (trackIndexOffset == 0 || !timeline)
        return false;
    const QList<IMvClip*> selected = selectedClips();
    if (selected.isEmpty())
        return false;
    const QList<IMvClip*> moving = withMotionFollowers(selected);

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

    QList<IMvClip*> clips;
    QList<int> offsets;
    bool anyOffset = false;
    for (IMvClip* clip : moving) {
        const IMvTrack* track = clip->track();
        if (!track)
            continue;
        const int offset = isAudioClipType(clip->type()) ? audio.offset : picture.offset;
        const IMvTrack* target = timeline->trackAt(track->index() + offset);
        if (target && target->isLocked())
            continue;
        const int at = clips.indexOf(clip);
        if (at >= 0) {
            offsets[at] = offset;
        } else {
            clips.append(clip);
            offsets.append(offset);
        }
        anyOffset = anyOffset || offset != 0;
    }
    if (!anyOffset)
        return false;
    return moveWithActionsHeld(clips, offsets, 0, selected);
}

IMvClip* MvTimelinePresenterPrivate::getFirstSelectedClip() const
{
    IMvSelection* selection = timeline ? timeline->selection() : nullptr;
    if (!selection)
        return nullptr;
    const QList<IMvAbstractClip*> items = selection->selectedItems();
    return items.isEmpty() ? nullptr : dynamic_cast<IMvClip*>(items.first());
}

void MvTimelinePresenterPrivate::checkAndMoveToSelectedClipStartPos()
{
    IMvClip* clip = getFirstSelectedClip();
    IMvTimelinePlayhead* playhead = timeline ? timeline->playhead() : nullptr;
    if (!clip || !playhead)
        return;
    // Half-open on purpose: a playhead on the clip's last frame is sent back to its start too.
    const qint64 frame = playhead->currentFrame();
    if (clip->start() <= frame && frame < clip->end())
        return;
    playhead->setCurrentFrame(clip->start());
}

void MvTimelinePresenterPrivate::fitTimeline()
{
    IMvTimelineRuler* ruler = timeline ? timeline->ruler() : nullptr;
    if (ruler)
        ruler->setVisualRange(0, timeline->duration());
}
