// Editing of one timeline marker through the marker edit dialog.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvUndoRedoService.h"
#include "MvCommandScope_p.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerPresenter.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"
#include "MvUtility.h"

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

void MvTimelinePresenter::editMarker()
{
    Q_D(MvTimelinePresenter);
    d->editMarker();
}

// The marker edited is the one standing exactly on the playhead's frame in that list (no search
// for the nearest one): it is the marker the user sees under the playhead line.
void MvTimelinePresenterPrivate::editMarker()
{
    MV_FUNCTION("MvTimelinePresenterPrivate::editMarker");
    if (!MvModelAccess::playhead(timeline)) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("playhead is null"));
        return;
    }
    const qint64 frame = MvModelAccess::playheadFrame(timeline);
    IMvMarkerList* list = MvModelAccess::markerListAtPlayhead(timeline, frame);
    IMvMarker* marker = list ? list->markerAt(list->mapFromTimeline(frame)) : nullptr;
    if (!marker) {
        MV_LOG(MvBaseLog::Refusal, QStringLiteral("no marker at playhead"));
        return;
    }

    MvCommandScope::pause(q_func(), MvCommandScope::PausePlayer);
    const QList<QColor> palette = MvMarkerPresenter::markerPalette();
    MvMarkerParam param;
    param.colors = palette;
    param.colorIndex = MvMarkerPresenter::markerPaletteIndex(marker->color());
    param.name = marker->name();
    param.comment = marker->comment();
    param.time = MvModelAccess::timeCode(timeline->ruler(), list->mapToTimeline(marker->frame()));

    MvMarkerEditDialog dialog(param, MvUtility::gGetMainWindow());
    const int result = dialog.exec();
    if (result == MvMarkerEditDialog::Closed)
        return;

    const MvCommandScope command(
        q_func(), MvCommandScope::NoPause, timeline->undoRedoService(), QStringLiteral("edit marker"), MV_SOURCE);
    if (result == MvMarkerEditDialog::Deleted) {
        list->removeMarker(marker);
        return;
    }
    // Only what changed is written, so that an OK without edits leaves no undo step.
    const MvMarkerParam edited = dialog.markerParam();
    if (edited.name != marker->name())
        marker->setName(edited.name);
    if (edited.colorIndex >= 0 && edited.colorIndex < palette.size()
        && palette.at(edited.colorIndex) != marker->color())
        marker->setColor(palette.at(edited.colorIndex));
    if (edited.comment != marker->comment())
        marker->setComment(edited.comment);
}
