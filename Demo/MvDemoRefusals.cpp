#include "MvDemoRefusals.h"

#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "MvClipHelpers.h"
#include "MvDemoNavigation.h"
#include "MvRange.h"
#include "MvTimelinePresenter.h"

#include <QHash>

#include <limits>

using namespace MVVBLMODEL;

namespace {
bool onLockedTrack(const IMvClip* clip)
{
    return clip->track() && clip->track()->isLocked();
}

bool allLocked(const QList<IMvClip*>& clips)
{
    for (const IMvClip* clip : clips) {
        if (!onLockedTrack(clip))
            return false;
    }
    return !clips.isEmpty();
}
}

MvDemoRefusals::MvDemoRefusals(IMvTimeline* timeline, MvTimelinePresenter* presenter)
    : m_timeline(timeline)
    , m_presenter(presenter)
{
}

QString MvDemoRefusals::reason(const QString& command) const
{
    using Check = QString (*)(const MvDemoRefusals&);
    // One line per command: adding a command with a known refusal is one entry here.
    static const QHash<QString, Check> checks {
        { QStringLiteral("split"), [](const MvDemoRefusals& r) { return r.splitReason(); } },
        { QStringLiteral("trim-start"), [](const MvDemoRefusals& r) { return r.trimReason(); } },
        { QStringLiteral("trim-end"), [](const MvDemoRefusals& r) { return r.trimReason(); } },
        { QStringLiteral("delete"), [](const MvDemoRefusals& r) { return r.deleteReason(false); } },
        { QStringLiteral("ripple-delete"), [](const MvDemoRefusals& r) { return r.deleteReason(true); } },
        { QStringLiteral("move-left"), [](const MvDemoRefusals& r) { return r.moveReason(-1, 0); } },
        { QStringLiteral("move-right"), [](const MvDemoRefusals& r) { return r.moveReason(1, 0); } },
        { QStringLiteral("move-left-second"), [](const MvDemoRefusals& r) { return r.moveReason(-r.second(), 0); } },
        { QStringLiteral("move-right-second"), [](const MvDemoRefusals& r) { return r.moveReason(r.second(), 0); } },
        { QStringLiteral("move-up"), [](const MvDemoRefusals& r) { return r.moveReason(0, -1); } },
        { QStringLiteral("move-down"), [](const MvDemoRefusals& r) { return r.moveReason(0, 1); } },
        { QStringLiteral("rotate-cw"), [](const MvDemoRefusals& r) { return r.rotateReason(); } },
        { QStringLiteral("rotate-ccw"), [](const MvDemoRefusals& r) { return r.rotateReason(); } },
        { QStringLiteral("goto-clip"), [](const MvDemoRefusals& r) { return r.selectedClipReason(); } },
        { QStringLiteral("add-marker"), [](const MvDemoRefusals& r) { return r.addMarkerReason(); } },
        { QStringLiteral("remove-marker"), [](const MvDemoRefusals& r) { return r.removeMarkerReason(); } },
        { QStringLiteral("edit-marker"), [](const MvDemoRefusals& r) { return r.editMarkerReason(); } },
        { QStringLiteral("add-keyframe"), [](const MvDemoRefusals& r) { return r.addKeyFrameReason(); } },
        { QStringLiteral("clear-video-keyframes"),
            [](const MvDemoRefusals& r) { return r.clearKeyFramesReason(false); } },
        { QStringLiteral("clear-audio-keyframes"),
            [](const MvDemoRefusals& r) { return r.clearKeyFramesReason(true); } },
        { QStringLiteral("virtual-open"), [](const MvDemoRefusals& r) { return r.virtualPlayheadReason(true); } },
        { QStringLiteral("virtual-close"), [](const MvDemoRefusals& r) { return r.virtualPlayheadReason(false); } },
        { QStringLiteral("undo"), [](const MvDemoRefusals& r) { return r.undoReason(true); } },
        { QStringLiteral("redo"), [](const MvDemoRefusals& r) { return r.undoReason(false); } },
        { QStringLiteral("find-similar"), [](const MvDemoRefusals& r) { return r.findSimilarReason(); } },
        { QStringLiteral("select-all-texts"), [](const MvDemoRefusals& r) { return r.selectAllTextsReason(); } },
        { QStringLiteral("advanced-edit"), [](const MvDemoRefusals& r) { return r.panelClipReason(); } },
        { QStringLiteral("advanced-color"), [](const MvDemoRefusals& r) { return r.colourReason(); } },
        { QStringLiteral("add-animation"), [](const MvDemoRefusals& r) { return r.panelClipReason(); } },
        { QStringLiteral("audio-keyframe-panel"),
            [](const MvDemoRefusals& r) { return r.audioKeyFramePanelReason(); } },
        { QStringLiteral("copy"), [](const MvDemoRefusals& r) { return r.clipboardReason(QStringLiteral("copy")); } },
        { QStringLiteral("cut"), [](const MvDemoRefusals& r) { return r.clipboardReason(QStringLiteral("cut")); } },
        { QStringLiteral("duplicate"),
            [](const MvDemoRefusals& r) { return r.clipboardReason(QStringLiteral("duplicate")); } },
        { QStringLiteral("paste"), [](const MvDemoRefusals& r) { return r.clipboardReason(QStringLiteral("paste")); } },
        { QStringLiteral("mute-clips"),
            [](const MvDemoRefusals& r) { return r.audioReason(QStringLiteral("mute-clips")); } },
        { QStringLiteral("detach-audio"),
            [](const MvDemoRefusals& r) { return r.audioReason(QStringLiteral("detach-audio")); } },
        { QStringLiteral("clear-remix"),
            [](const MvDemoRefusals& r) { return r.audioReason(QStringLiteral("clear-remix")); } },
        { QStringLiteral("clear-empty-tracks"),
            [](const MvDemoRefusals& r) { return r.timelineReason(QStringLiteral("clear-empty-tracks")); } },
        { QStringLiteral("open-compound"),
            [](const MvDemoRefusals& r) { return r.timelineReason(QStringLiteral("open-compound")); } },
        { QStringLiteral("copy-effects"), [](const MvDemoRefusals& r) { return r.copyEffectsReason(); } },
        { QStringLiteral("paste-effects"), [](const MvDemoRefusals& r) { return r.pasteEffectsReason(); } },
        { QStringLiteral("delete-effects"), [](const MvDemoRefusals& r) { return r.deleteEffectsReason(); } },
        { QStringLiteral("apply-effect"), [](const MvDemoRefusals& r) { return r.selectionForEffectsReason(); } },
        { QStringLiteral("random-transitions"), [](const MvDemoRefusals& r) { return r.selectionForEffectsReason(); } },
    };
    const Check check = checks.value(command);
    return m_timeline && check ? check(*this) : QString();
}

int MvDemoRefusals::second() const
{
    return MvDemoNavigation::framesPerSecond(m_timeline->ruler());
}

qint64 MvDemoRefusals::playheadFrame() const
{
    return m_timeline->playhead() ? m_timeline->playhead()->currentFrame() : 0;
}

QString MvDemoRefusals::splitReason() const
{
    if (m_presenter && m_presenter->isOpenVirtualPlayhead())
        return tr("Close the virtual playhead before splitting.");
    const qint64 frame = playheadFrame();
    const QList<IMvClip*> under = MvClipFinder(m_timeline).findClips(frame);
    if (under.isEmpty())
        return tr("There is no clip under the playhead to split.");
    const QList<IMvClip*> candidates = IMvClipHelper::findClips(m_timeline, frame);
    if (candidates.isEmpty())
        return tr("None of the selected clips is under the playhead.");
    if (allLocked(candidates))
        return tr("The clips under the playhead are on locked tracks.");
    return QString();
}

QString MvDemoRefusals::trimReason() const
{
    const QList<IMvClip*> clips = m_timeline->selection()->selectedClips();
    if (m_timeline->selection()->count() != 1 || clips.size() != 1)
        return tr("Select one clip to trim.");
    const IMvClip* clip = clips.first();
    if (onLockedTrack(clip))
        return tr("The selected clip is on a locked track.");
    const qint64 frame = playheadFrame();
    if (!(clip->start() < frame && frame < clip->end()))
        return tr("Put the playhead inside the selected clip to trim it.");
    return QString();
}

QString MvDemoRefusals::deleteReason(bool ripple) const
{
    IMvSelection* selection = m_timeline->selection();
    const QList<IMvClip*> clips = selection->selectedClips();
    if (ripple && clips.isEmpty())
        return tr("Select the clips to ripple delete.");
    if (!ripple && selection->isEmpty() && !m_timeline->markerModel()->selectedMarker())
        return tr("Nothing is selected to delete.");
    return lockedSelectionReason();
}

QString MvDemoRefusals::lockedSelectionReason() const
{
    for (const IMvClip* clip : m_timeline->selection()->selectedClips()) {
        if (onLockedTrack(clip))
            return tr("A selected clip is on a locked track.");
    }
    return QString();
}

QString MvDemoRefusals::moveReason(qint64 frameOffset, int trackOffset) const
{
    if (!m_timeline)
        return tr("There is no timeline.");
    const QList<IMvClip*> clips = MvDemoClipDrag::withFollowers(m_timeline->selection()->selectedClips());
    if (clips.isEmpty())
        return tr("Select the clips to move.");
    qint64 earliest = std::numeric_limits<qint64>::max();
    for (const IMvClip* clip : clips)
        earliest = qMin(earliest, clip->start());
    // The presenter stops the earliest clip at frame 0 and refuses when it is there already.
    if (frameOffset < 0 && earliest == 0)
        return tr("The clips already start at the beginning of the timeline.");
    frameOffset = qMax(frameOffset, -earliest);
    const QList<MvDemoClipDrag::Landing> landings
        = MvDemoClipDrag::landingsFor(m_timeline, clips, frameOffset, trackOffset);
    bool rowChanges = false;
    for (const MvDemoClipDrag::Landing& landing : landings)
        rowChanges = rowChanges || landing.trackIndex != landing.clip->trackIndex();
    const MvDemoClipDrag::Problem problem = MvDemoClipDrag::problemOf(m_timeline, clips, landings);
    if (problem == MvDemoClipDrag::Problem::None && trackOffset != 0 && !rowChanges)
        return problemText(MvDemoClipDrag::Problem::NoTrack);
    return problemText(problem);
}

QString MvDemoRefusals::problemText(MvDemoClipDrag::Problem problem)
{
    switch (problem) {
    case MvDemoClipDrag::Problem::None:
        return QString();
    case MvDemoClipDrag::Problem::NothingToMove:
        return tr("Select the clips to move.");
    case MvDemoClipDrag::Problem::LockedSource:
        return tr("A selected clip is on a locked track.");
    case MvDemoClipDrag::Problem::NoTrack:
        return tr("There is no track of the clips' kind there.");
    case MvDemoClipDrag::Problem::LockedTarget:
        return tr("The track the clips would move to is locked.");
    case MvDemoClipDrag::Problem::BeforeStart:
        return tr("The clips cannot move before the start of the timeline.");
    case MvDemoClipDrag::Problem::Overlap:
        return tr("Another clip is in the way.");
    }
    return QString();
}

QString MvDemoRefusals::rotateReason() const
{
    const IMvAbstractClip* current = m_timeline->selection()->currentItem();
    if (m_timeline->selection()->isEmpty() || !dynamic_cast<const IMvClip*>(current))
        return tr("Select a clip to rotate.");
    return onLockedTrack(static_cast<const IMvClip*>(current)) ? tr("The selected clip is on a locked track.")
                                                               : QString();
}

QString MvDemoRefusals::selectedClipReason() const
{
    return m_timeline->selection()->selectedClips().isEmpty() ? tr("Select a clip first.") : QString();
}

QString MvDemoRefusals::addMarkerReason() const
{
    // The marker goes where the presenter puts it: onto the one selected clip when the playhead
    // lies on it, else onto the timeline.
    IMvSelection* selection = m_timeline->selection();
    const qint64 frame = playheadFrame();
    IMvMarkerList* list = m_timeline->timelineMarkers();
    qint64 listFrame = frame;
    if (selection->count() == 1 && !selection->isTimelineSelected()) {
        const QList<IMvClip*> clips = selection->selectedClips();
        if (clips.isEmpty())
            return tr("A marker cannot go on a transition: select a clip or nothing.");
        IMvMarkerList* clipList = clips.first()->clipMarkers();
        MvRange<qint64> range;
        if (clipList)
            clipList->frameRange(range);
        if (clipList && range.contains(frame)) {
            list = clipList;
            listFrame = clipList->mapFromTimeline(frame);
        }
    }
    return list && list->canAddMarker(listFrame) ? QString() : tr("There is already a marker at the playhead.");
}

QString MvDemoRefusals::removeMarkerReason() const
{
    return m_timeline->markerModel()->selectedMarker() ? QString()
                                                       : tr("Select a marker first: click its flag above the ruler.");
}

QString MvDemoRefusals::editMarkerReason() const
{
    // The editor opens the marker standing exactly on the playhead, in the list a new marker
    // would go to.
    IMvSelection* selection = m_timeline->selection();
    const qint64 frame = playheadFrame();
    IMvMarkerList* list = m_timeline->timelineMarkers();
    if (selection->count() == 1 && !selection->isTimelineSelected()) {
        const QList<IMvClip*> clips = selection->selectedClips();
        IMvMarkerList* clipList = clips.isEmpty() ? nullptr : clips.first()->clipMarkers();
        MvRange<qint64> range;
        if (clipList)
            clipList->frameRange(range);
        list = !clipList ? nullptr : (range.contains(frame) ? clipList : list);
    }
    if (!list || !list->markerAt(list->mapFromTimeline(frame)))
        return tr("There is no marker at the playhead to edit.");
    return QString();
}

QString MvDemoRefusals::addKeyFrameReason() const
{
    for (const IMvClip* clip : m_timeline->selection()->selectedClips()) {
        if (clip->isEnabled() && clip->type() != ClipType_Audio)
            return onLockedTrack(clip) ? tr("The selected clip is on a locked track.") : QString();
    }
    return tr("Select a picture clip to add a keyframe.");
}

QString MvDemoRefusals::clearKeyFramesReason(bool audio) const
{
    const QList<IMvClip*> clips = m_timeline->selection()->selectedClips();
    if (clips.isEmpty())
        return tr("Select a clip first.");
    for (const IMvClip* clip : clips) {
        if (!clip->keyFrames(audio).isEmpty())
            return QString();
    }
    return audio ? tr("The selected clips have no sound keyframes.")
                 : tr("The selected clips have no picture keyframes.");
}

QString MvDemoRefusals::virtualPlayheadReason(bool opening) const
{
    const bool open = m_presenter && m_presenter->isOpenVirtualPlayhead();
    if (opening && open)
        return tr("The virtual playhead is already open.");
    if (opening && !m_timeline->virtualPlayheadAllowed())
        return tr("This timeline has no virtual playhead.");
    if (!opening && !open)
        return tr("The virtual playhead is not open.");
    return QString();
}

QString MvDemoRefusals::undoReason(bool undo) const
{
    IMvUndoRedoService* service = m_timeline->undoRedoService();
    if (undo)
        return service->canUndo() ? QString() : tr("There is nothing to undo.");
    return service->canRedo() ? QString() : tr("There is nothing to redo.");
}
