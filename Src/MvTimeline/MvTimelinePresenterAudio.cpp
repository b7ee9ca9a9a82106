// Audio of the selection: the sound of picture clips detached onto audio rows, and a clip's remix
// taken off.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "MvClipHelpers.h"
#include "MvCommandScope_p.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

#include <QMap>

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

void MvTimelinePresenter::detachSelectedAudio()
{
    Q_D(MvTimelinePresenter);
    d->detachSelectedAudio();
}

bool MvTimelinePresenter::detachSelectedAudioEnabled()
{
    Q_D(const MvTimelinePresenter);
    return d->detachSelectedAudioEnabled();
}

void MvTimelinePresenter::clearRemix()
{
    Q_D(MvTimelinePresenter);
    d->clearRemix();
}

void MvTimelinePresenterPrivate::detachSelectedAudio()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::detachSelectedAudio");
    // The picture clips with sound by row, top row first, each row in selection order.
    QMap<int, QList<IMvClip*>> byRow;
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    for (int i = 0; selection && i < selection->count(); ++i) {
        IMvAbstractClip* item = selection->itemAt(i);
        auto* clip = item && item->type() == ClipType_VideoWithAudio ? dynamic_cast<IMvClip*>(item) : nullptr;
        if (clip)
            byRow[clip->trackIndex()].append(clip);
    }
    if (byRow.isEmpty())
        return;
    const MvCommandScope command(q, MvCommandScope::PausePlayer, MvModelAccess::undoService(timeline),
        QStringLiteral("batch detach audio"), MV_SOURCE);
    for (const QList<IMvClip*>& clips : qAsConst(byRow)) {
        for (IMvClip* clip : clips) {
            // Asked again for every clip: the sound detached before it now takes its row.
            int index = q->calcDetachAudioTrackIndex(clip);
            if (index < 0) {
                timeline->addTrack(TrackType_Audio, index);
                index = 0;
            }
            timeline->detachAudio(clip, index);
        }
    }
}

bool MvTimelinePresenterPrivate::detachSelectedAudioEnabled() const
{
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    for (int i = 0; selection && i < selection->count(); ++i) {
        const IMvAbstractClip* item = selection->itemAt(i);
        if (item && item->type() == ClipType_VideoWithAudio)
            return true;
    }
    return false;
}

void MvTimelinePresenterPrivate::clearRemix()
{
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    if (!selection || selection->isEmpty())
        return;
    MvAudioRemixHelper::clearRemix(dynamic_cast<IMvClip*>(selection->currentItem()));
}
