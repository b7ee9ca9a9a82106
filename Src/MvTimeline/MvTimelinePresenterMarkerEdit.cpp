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
#include "MvMarkerEditDialog.h"
#include "MvMarkerPresenter.h"
#include "MvTimelineLog_p.h"
#include "MvUtility.h"

#include <algorithm>

namespace {
constexpr int kNominalRateWithoutRuler = 30;

#define MV_MARKER_EDIT_LOG(level, message)                                                                             \
    MV_TIMELINE_LOG(level, "Src/MvTimeline/MvTimelinePresenter", "MvTimelinePresenterPrivate::editMarker", message)

// "HH:MM:SS:FF", non-drop: frames are counted at the nominal rate (29.97 counts as 30), which is
// how the ruler labels its ticks too.
QString formatTimeCode(qint64 frame, const IMvTimelineRuler* ruler)
{
    int numerator = 0;
    int denominator = 0;
    if (ruler)
        ruler->frameRate(&numerator, &denominator);
    const qint64 base = numerator > 0 && denominator > 0
        ? std::max<qint64>(1, qRound64(double(numerator) / double(denominator)))
        : kNominalRateWithoutRuler;
    const qint64 total = std::max<qint64>(0, frame);
    const qint64 seconds = total / base;
    const QLatin1Char zero('0');
    return QStringLiteral("%1:%2:%3:%4")
        .arg(seconds / 3600, 2, 10, zero)
        .arg((seconds / 60) % 60, 2, 10, zero)
        .arg(seconds % 60, 2, 10, zero)
        .arg(total % base, 2, 10, zero);
}

// The list a marker at the playhead belongs to, chosen as adding a marker chooses it: the single
// selected clip's list when the playhead lies on that clip (both ends included), nothing when the
// single selected item is not a clip or has no list, the timeline's list otherwise.
IMvMarkerList* markerListAtPlayhead(IMvTimeline* timeline, qint64 frame)
{
    IMvSelection* selection = timeline->selection();
    if (selection && selection->count() == 1 && !selection->isTimelineSelected()) {
        const QList<IMvClip*> clips = selection->selectedClips();
        IMvMarkerList* clipList = clips.isEmpty() || !clips.first() ? nullptr : clips.first()->clipMarkers();
        if (!clipList)
            return nullptr;
        MvRange<qint64> range;
        clipList->frameRange(range);
        if (range.contains(frame))
            return clipList;
    }
    return timeline->timelineMarkers();
}
}

void MvTimelinePresenter::editMarker()
{
    Q_D(MvTimelinePresenter);
    d->editMarker();
}

// The marker edited is the one standing exactly on the playhead's frame in that list (no search
// for the nearest one): it is the marker the user sees under the playhead line.
void MvTimelinePresenterPrivate::editMarker()
{
    Q_Q(MvTimelinePresenter);
    IMvTimelinePlayhead* playhead = timeline ? timeline->playhead() : nullptr;
    if (!playhead) {
        MV_MARKER_EDIT_LOG(16, QStringLiteral("playhead is null"));
        return;
    }
    const qint64 frame = playhead->currentFrame();
    IMvMarkerList* list = markerListAtPlayhead(timeline, frame);
    IMvMarker* marker = list ? list->markerAt(list->mapFromTimeline(frame)) : nullptr;
    if (!marker) {
        MV_MARKER_EDIT_LOG(16, QStringLiteral("no marker at playhead"));
        return;
    }

    q->pauseMediaPlayer();
    const QList<QColor> palette = MvMarkerPresenter::markerPalette();
    MvMarkerParam param;
    param.colors = palette;
    param.colorIndex = MvMarkerPresenter::markerPaletteIndex(marker->color());
    param.name = marker->name();
    param.comment = marker->comment();
    param.time = formatTimeCode(list->mapToTimeline(marker->frame()), timeline->ruler());

    MvMarkerEditDialog dialog(param, MvUtility::gGetMainWindow());
    const int result = dialog.exec();
    if (result == MvMarkerEditDialog::Closed)
        return;

    MvUndoRedoCommander step(timeline->undoRedoService(), QStringLiteral("edit marker"),
        QStringLiteral("MvTimelinePresenterPrivate::editMarker"));
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
