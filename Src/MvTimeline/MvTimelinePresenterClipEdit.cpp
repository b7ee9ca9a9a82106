// Clip editing on the selection: split, trim, delete, ripple delete, and the questions that
// enable them.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvClipEditService.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "MvClipHelpers.h"
#include "MvCommandScope_p.h"
#include "MvKeyFramePresenter.h"
#include "MvMessage.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

#include <QMap>
#include <QVariantList>

#include <algorithm>
#include <limits>

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

namespace {
// Trims act on exactly one selected item, and only when that item is a clip.
IMvClip* trimTarget(const IMvTimeline* timeline)
{
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    if (!selection || selection->count() != 1)
        return nullptr;
    const QList<IMvClip*> clips = selection->selectedClips();
    return clips.isEmpty() ? nullptr : clips.first();
}

// A lone selected transition, or null.
IMvTransition* loneSelectedTransition(const IMvSelection* selection)
{
    const QList<IMvAbstractClip*> items = selection->selectedItems();
    if (selection->count() != 1 || items.size() != 1 || items.first()->type() != ClipType_Transition)
        return nullptr;
    return dynamic_cast<IMvTransition*>(items.first());
}
}

bool MvTimelinePresenter::hasEmptyCap()
{
    Q_D(const MvTimelinePresenter);
    return d->hasEmptyCap();
}

bool MvTimelinePresenter::canSplitClip()
{
    Q_D(const MvTimelinePresenter);
    return d->canSplitClip();
}

bool MvTimelinePresenter::canTrimToPlayhead()
{
    Q_D(const MvTimelinePresenter);
    return d->canTrimToPlayhead();
}

bool MvTimelinePresenter::splitClips(qint64 frame, bool select, bool prepareFlag)
{
    Q_D(MvTimelinePresenter);
    return d->splitClips(frame, select, prepareFlag);
}

bool MvTimelinePresenter::deleteItems(bool arg)
{
    Q_D(MvTimelinePresenter);
    return d->deleteItems(arg);
}

bool MvTimelinePresenter::canDeleteItems()
{
    Q_D(MvTimelinePresenter);
    return d->canDeleteItems();
}

bool MvTimelinePresenter::canDeleteClip()
{
    Q_D(const MvTimelinePresenter);
    return d->canDeleteClip();
}

bool MvTimelinePresenter::splitClips(qint64 frame, QList<IMvClip*> clips, bool select, bool prepareFlag)
{
    Q_D(MvTimelinePresenter);
    return d->splitClips(frame, clips, select, prepareFlag);
}

bool MvTimelinePresenter::ungroupBeforeSplit(QList<IMvClip*> clips, bool& needGroupAfter)
{
    Q_D(MvTimelinePresenter);
    return d->ungroupBeforeSplit(clips, needGroupAfter);
}

bool MvTimelinePresenter::groupAfterSplit(QList<IMvClip*> sourceClips, QList<IMvClip*> newClips)
{
    Q_D(MvTimelinePresenter);
    return d->groupAfterSplit(sourceClips, newClips);
}

bool MvTimelinePresenter::trimStartToPlayhead()
{
    Q_D(MvTimelinePresenter);
    return d->trimStartToPlayhead();
}

bool MvTimelinePresenter::trimEndToPlayhead()
{
    Q_D(MvTimelinePresenter);
    return d->trimEndToPlayhead();
}

bool MvTimelinePresenter::deleteSelectedClips()
{
    Q_D(MvTimelinePresenter);
    const bool deleted = d->deleteSelectedClips();
    if (deleted)
        checkHidePropertyPanel();
    return deleted;
}

bool MvTimelinePresenter::rippleDeleteSelectedClips()
{
    Q_D(MvTimelinePresenter);
    const bool deleted = d->rippleDeleteSelectedClips();
    if (deleted)
        checkHidePropertyPanel();
    return deleted;
}

IMvClip* MvTimelinePresenter::getFirstSelectedClip()
{
    Q_D(const MvTimelinePresenter);
    return d->getFirstSelectedClip();
}

void MvTimelinePresenter::checkAndMoveToSelectedClipStartPos()
{
    Q_D(MvTimelinePresenter);
    d->checkAndMoveToSelectedClipStartPos();
}

void MvTimelinePresenter::fitTimeline()
{
    Q_D(MvTimelinePresenter);
    d->fitTimeline();
}

bool MvTimelinePresenterPrivate::hasEmptyCap() const
{
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    if (clips.size() < 2)
        return false;
    QMap<int, QList<IMvClip*>> byTrack;
    for (IMvClip* clip : clips)
        byTrack[clip->trackIndex()].append(clip);
    for (QList<IMvClip*>& trackClips : byTrack) {
        std::sort(trackClips.begin(), trackClips.end(),
            [](const IMvClip* a, const IMvClip* b) { return a->start() < b->start(); });
        for (int i = 1; i < trackClips.size(); ++i) {
            if (trackClips.at(i)->start() - trackClips.at(i - 1)->end() > 1)
                return true;
        }
    }
    return false;
}

bool MvTimelinePresenterPrivate::splitClips(qint64 frame, bool select, bool prepareFlag)
{
    MV_FUNCTION("MvTimelinePresenterPrivate::splitClips");
    MV_LOG(MvBaseLog::Note, QStringLiteral("split Clips start"));
    if (!timeline)
        return false;
    // Frame 0 stands for "where the playhead is": a cut at the very first frame divides nothing.
    if (frame < 1)
        frame = MvModelAccess::playheadFrame(timeline);
    const QList<IMvClip*> clips = IMvClipHelper::findClips(timeline, frame);
    if (clips.isEmpty())
        return false;
    const QList<IMvClip*> toCut = IMvClipHelper::findPrepareSplitClip(clips, prepareFlag);
    if (toCut.isEmpty())
        return false;
    QList<IMvClip*> newClips;
    timeline->splitClips(newClips, toCut, frame);
    if (select)
        MvModelAccess::selectClips(timeline, newClips);
    return !newClips.isEmpty();
}

bool MvTimelinePresenterPrivate::splitClips(qint64 frame, QList<IMvClip*> clips, bool select, bool prepareFlag)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenterPrivate::splitClips");
    if (!timeline || clips.isEmpty())
        return false;
    const QList<IMvClip*> toCut = IMvClipHelper::findPrepareSplitClip(clips, prepareFlag);
    if (toCut.isEmpty())
        return false;
    // Ungrouping, the cut and the regrouping are one step for the user; a declined question
    // leaves the step empty and the commander drops it.
    const MvCommandScope command(
        q, MvCommandScope::NoPause, timeline->undoRedoService(), QStringLiteral("split"), MV_SOURCE);
    bool needGroupAfter = false;
    if (!ungroupBeforeSplit(toCut, needGroupAfter))
        return false;
    QList<IMvClip*> newClips;
    timeline->splitClips(newClips, toCut, frame);
    if (needGroupAfter) {
        groupAfterSplit(toCut, newClips);
        MV_LOG(MvBaseLog::Detail, QStringLiteral("groupAfterSplit"));
    }
    if (select) {
        MV_LOG(MvBaseLog::Detail,
            QString::asprintf("bug:p7_5312 selected split clips,clip count = %d", int(newClips.size())));
        MvModelAccess::selectClips(timeline, newClips);
        MV_LOG(MvBaseLog::Detail, QStringLiteral("bug:p7_5312 selected end"));
    }
    return !newClips.isEmpty();
}

bool MvTimelinePresenterPrivate::canSplitClip() const
{
    // The virtual playhead shows a second position; a cut would be ambiguous while it is open.
    if (isVirtualPlayheadOpen() || !timeline)
        return false;
    const QList<IMvClip*> clips = MvClipFinder(timeline).findClips(MvModelAccess::playheadFrame(timeline));
    return std::any_of(clips.cbegin(), clips.cend(), [](const IMvClip* clip) {
        const IMvTrack* track = clip ? clip->track() : nullptr;
        return track && !track->isLocked();
    });
}

bool MvTimelinePresenterPrivate::ungroupBeforeSplit(QList<IMvClip*> clips, bool& needGroupAfter)
{
    Q_Q(MvTimelinePresenter);
    needGroupAfter = false;
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
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
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
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

bool MvTimelinePresenterPrivate::trimStartToPlayhead()
{
    Q_Q(MvTimelinePresenter);
    // The model's trim records its own undo step.
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    IMvClip* clip = trimTarget(timeline);
    return clip && timeline->trimStartToFrame(clip, MvModelAccess::playheadFrame(timeline));
}

bool MvTimelinePresenterPrivate::trimEndToPlayhead()
{
    Q_Q(MvTimelinePresenter);
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    IMvClip* clip = trimTarget(timeline);
    return clip && timeline->trimEndToFrame(clip, MvModelAccess::playheadFrame(timeline));
}

bool MvTimelinePresenterPrivate::canTrimToPlayhead() const
{
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    if (clips.size() != 1)
        return false;
    // A trim on the clip's first or last frame would leave it as it is.
    const qint64 frame = MvModelAccess::playheadFrame(timeline);
    return clips.first()->start() < frame && frame < clips.first()->end();
}

bool MvTimelinePresenterPrivate::deleteSelectedClips()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenterPrivate::deleteSelectedClips");
    if (!actionEnabled) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("cannt do action"));
        return false;
    }
    IMvSelection* selection = MvModelAccess::selection(timeline);
    if (!selection)
        return false;
    if (IMvTransition* transition = loneSelectedTransition(selection)) {
        // A lone transition goes by itself; its clips and the playhead stay where they are.
        IMvClip* owner = transition->ownerClip();
        IMvTransitionList* list = owner ? owner->transitionList() : nullptr;
        if (!list)
            return false;
        const MvCommandScope command(q, MvCommandScope::PausePlayer);
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
    const MvCommandScope command(q, MvCommandScope::PausePlayerWithSync);
    const bool result = timeline->deleteClips(clips);
    // The timeline may now end before the earliest deleted clip began.
    earliest = std::min(earliest, timeline->duration());
    if (timeline->isSeekAfterDelete())
        MvModelAccess::setPlayheadFrame(timeline, earliest);
    return result;
}

bool MvTimelinePresenterPrivate::rippleDeleteSelectedClips()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenterPrivate::rippleDeleteSelectedClips");
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    if (clips.isEmpty()) {
        MV_LOG(MvBaseLog::Warning, QStringLiteral("clip is null"));
        return false;
    }
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    // The user looks at the first clip picked: the playhead lands where it began.
    const qint64 first = clips.first()->start();
    const bool result = timeline->rippleDeleteClips(clips);
    MvModelAccess::setPlayheadFrame(timeline, first);
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
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    return actionEnabled && selection && !selection->isEmpty();
}

IMvClip* MvTimelinePresenterPrivate::getFirstSelectedClip() const
{
    const QList<IMvAbstractClip*> items = MvModelAccess::selectedItems(timeline);
    return items.isEmpty() ? nullptr : dynamic_cast<IMvClip*>(items.first());
}

void MvTimelinePresenterPrivate::checkAndMoveToSelectedClipStartPos()
{
    IMvClip* clip = getFirstSelectedClip();
    if (!clip || !MvModelAccess::playhead(timeline))
        return;
    // Half-open on purpose: a playhead on the clip's last frame is sent back to its start too.
    const qint64 frame = MvModelAccess::playheadFrame(timeline);
    if (clip->start() <= frame && frame < clip->end())
        return;
    MvModelAccess::setPlayheadFrame(timeline, clip->start());
}

void MvTimelinePresenterPrivate::fitTimeline()
{
    IMvTimelineRuler* ruler = timeline ? timeline->ruler() : nullptr;
    if (ruler)
        ruler->setVisualRange(0, timeline->duration());
}
