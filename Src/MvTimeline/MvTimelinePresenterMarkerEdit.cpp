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
#include "MvCommandScope_p.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"
#include "MvUtility.h"

#include <algorithm>

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

namespace {
constexpr int kNominalRateWithoutRuler = 30;

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
    param.time = formatTimeCode(list->mapToTimeline(marker->frame()), timeline->ruler());

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
