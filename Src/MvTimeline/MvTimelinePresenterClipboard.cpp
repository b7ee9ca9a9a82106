// Copy, cut, paste and duplicate of timeline items. The clipboard itself is the model's; the
// presenter decides what is copied, remembers its kinds, sends a paste to the playhead or onto the
// selected clips, and picks the row a paste lands on.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvClipEditService.h"
#include "IMvTimeline.h"
#include "IMvTrack.h"
#include "MvCommandScope_p.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

#include <algorithm>
#include <limits>

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

namespace {
// The kinds of a copy: transitions, sound only (audio kinds), everything else.
bool holdsAudioKinds(const QHash<MvClipType, bool>& types)
{
    return types.contains(ClipType_Audio) || types.contains(ClipType_Music) || types.contains(ClipType_SoundEffect);
}

bool holdsOtherKinds(const QHash<MvClipType, bool>& types)
{
    return std::any_of(types.keyBegin(), types.keyEnd(),
        [](MvClipType type) { return !isAudioClipType(type) && type != ClipType_Transition; });
}
}

void MvTimelinePresenter::copySelectedClips()
{
    Q_D(MvTimelinePresenter);
    d->copySelectedClips();
}

void MvTimelinePresenter::cutSelectedClips()
{
    Q_D(MvTimelinePresenter);
    d->cutSelectedClips();
}

void MvTimelinePresenter::pasteClips()
{
    Q_D(MvTimelinePresenter);
    d->pasteClips();
}

void MvTimelinePresenter::duplicateClip()
{
    Q_D(MvTimelinePresenter);
    d->copySelectedClips();
    d->pasteClips();
}

bool MvTimelinePresenter::canPasteClip() const
{
    Q_D(const MvTimelinePresenter);
    return d->canPasteClip();
}

void MvTimelinePresenter::pasteNormalClip()
{
    Q_D(MvTimelinePresenter);
    d->pasteNormalClip();
}

void MvTimelinePresenter::pasteTransition()
{
    Q_D(MvTimelinePresenter);
    d->pasteTransition();
}

void MvTimelinePresenterPrivate::rebuildCopiedClipTypes(const QList<IMvAbstractClip*>& items)
{
    copiedClipTypes.clear();
    for (const IMvAbstractClip* item : items) {
        if (item)
            copiedClipTypes.insert(item->type(), true);
    }
}

void MvTimelinePresenterPrivate::copySelectedClips()
{
    const QList<IMvAbstractClip*> items = MvModelAccess::selectedItems(timeline);
    rebuildCopiedClipTypes(items);
    if (IMvClipEditService* editService = MvModelAccess::editService(timeline))
        editService->copy(items);
}

void MvTimelinePresenterPrivate::cutSelectedClips()
{
    Q_Q(MvTimelinePresenter);
    const QList<IMvAbstractClip*> items = MvModelAccess::selectedItems(timeline);
    rebuildCopiedClipTypes(items);
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
    if (!editService)
        return;
    // A transition rides on its clip: cutting it leaves the playhead where it is.
    if (copiedClipTypes.contains(ClipType_Transition)) {
        const MvCommandScope command(q, MvCommandScope::PausePlayer);
        editService->cut(items);
        return;
    }
    if (items.isEmpty())
        return;
    qint64 earliest = std::numeric_limits<qint64>::max();
    for (const IMvAbstractClip* item : items)
        earliest = item ? qMin(earliest, item->start()) : earliest;
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    editService->cut(items);
    if (timeline->isSeekAfterDelete() && earliest >= 0)
        MvModelAccess::setPlayheadFrame(timeline, earliest);
}

void MvTimelinePresenterPrivate::pasteClips()
{
    if (copiedClipTypes.contains(ClipType_Transition))
        pasteTransition();
    else
        pasteNormalClip();
}

bool MvTimelinePresenterPrivate::canPasteClip() const
{
    const IMvClipEditService* editService = MvModelAccess::editService(timeline);
    return editService && editService->canPaste();
}

void MvTimelinePresenterPrivate::pasteNormalClip()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::pasteNormalClip");
    MV_LOG(MvBaseLog::Note, QStringLiteral("paste normal clip"));
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
    if (!editService)
        return;
    const qint64 frame = MvModelAccess::playheadFrame(timeline);
    int trackIndex = -1;
    MvTrackType trackType = 0;
    const bool audioKinds = holdsAudioKinds(copiedClipTypes);
    const bool otherKinds = holdsOtherKinds(copiedClipTypes);
    // A copy of both kinds lands on rows of each kind, as the model places them.
    if (!(audioKinds && otherKinds)) {
        if (const IMvTrack* track = q->getSelectedTracked()) {
            trackIndex = track->index();
        } else {
            trackType = q->getSelectedTrackType();
            const bool fits = isAudioTrack(trackType) ? audioKinds : otherKinds;
            if (!fits)
                trackType = 0;
        }
    }
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    QList<IMvClip*> pasted;
    const int flags = editService->paste(frame, trackIndex, pasted, trackType, 3);
    if (flags & 12)
        q->showTimelineNestToast((flags & 8) != 0);
    if (!pasted.isEmpty())
        MvModelAccess::selectClips(timeline, pasted);
}

void MvTimelinePresenterPrivate::pasteTransition()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::pasteTransition");
    MV_LOG(MvBaseLog::Note, QStringLiteral("paste transition"));
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    if (clips.isEmpty()) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("selected clip is empty"));
        return;
    }
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
    if (!editService)
        return;
    const MvCommandScope command(q, MvCommandScope::PausePlayer);
    QList<IMvTransition*> pasted;
    editService->pasteTransitions(pasted, clips);
}
