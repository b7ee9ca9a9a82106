// The demo's editing menus: every command of the timeline presenter a person can reach by menu
// and shortcut, with its enabled state taken from the presenter's own can... questions.
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoPlayer.h"
#include "MvDemoPresenter.h"
#include "MvKeyFramePresenter.h"
#include "MvMarkerPresenter.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>


void MvDemoWindow::buildClipMenu()
{
    MvDemoPresenter* p = m_presenter;
    QMenu* clip = menuBar()->addMenu(tr("&Clip"));
    addCommand(clip, QStringLiteral("split"), tr("&Split at Playhead"), QKeySequence(Qt::CTRL + Qt::Key_B),
        [p] { p->splitClips(-1, true, false); });
    addCommand(clip, QStringLiteral("trim-start"), tr("Trim &Start to Playhead"), QKeySequence(Qt::Key_Q),
        [p] { p->trimStartToPlayhead(); });
    addCommand(clip, QStringLiteral("trim-end"), tr("Trim &End to Playhead"), QKeySequence(Qt::Key_W),
        [p] { p->trimEndToPlayhead(); });
    clip->addSeparator();
    addCommand(clip, QStringLiteral("delete"), tr("&Delete"), QKeySequence::Delete, [p] { p->deleteItems(false); });
    addCommand(clip, QStringLiteral("ripple-delete"), tr("&Ripple Delete"), QKeySequence(Qt::SHIFT + Qt::Key_Delete),
        [p] { p->rippleDeleteSelectedClips(); });
    clip->addSeparator();
    addCommand(clip, QStringLiteral("move-left"), tr("Move One Frame &Left"), QKeySequence(Qt::ALT + Qt::Key_Left),
        [p] { p->moveClipsHorizontal(-1); });
    addCommand(clip, QStringLiteral("move-right"), tr("Move One Frame R&ight"), QKeySequence(Qt::ALT + Qt::Key_Right),
        [p] { p->moveClipsHorizontal(1); });
    addCommand(clip, QStringLiteral("move-left-second"), tr("Move One Second Left"),
        QKeySequence(Qt::ALT + Qt::SHIFT + Qt::Key_Left), [p] { p->moveClipsHorizontal(-30); });
    addCommand(clip, QStringLiteral("move-right-second"), tr("Move One Second Right"),
        QKeySequence(Qt::ALT + Qt::SHIFT + Qt::Key_Right), [p] { p->moveClipsHorizontal(30); });
    // Picture rows are numbered from the top; moving "up" is a smaller index for picture clips.
    addCommand(clip, QStringLiteral("move-up"), tr("Move One Track &Up"), QKeySequence(Qt::ALT + Qt::Key_Up),
        [p] { p->moveClipsVertical(-1); });
    addCommand(clip, QStringLiteral("move-down"), tr("Move One Track Do&wn"), QKeySequence(Qt::ALT + Qt::Key_Down),
        [p] { p->moveClipsVertical(1); });
    clip->addSeparator();
    addCommand(clip, QStringLiteral("rotate-cw"), tr("Rotate 90\u00b0 Clockwise"), QKeySequence(Qt::CTRL + Qt::Key_R),
        [p] { p->rotate90CW(); });
    addCommand(clip, QStringLiteral("rotate-ccw"), tr("Rotate 90\u00b0 Counterclockwise"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_R), [p] { p->rotate90CCW(); });
    addCommand(clip, QStringLiteral("goto-clip"), tr("&Go to Selected Clip"), QKeySequence(Qt::Key_G),
        [p] { p->checkAndMoveToSelectedClipStartPos(); });
}

void MvDemoWindow::buildMarkerAndKeyFrameMenus()
{
    MvDemoPresenter* p = m_presenter;
    QMenu* markers = menuBar()->addMenu(tr("&Markers"));
    addCommand(markers, QStringLiteral("add-marker"), tr("&Add Marker"), QKeySequence(Qt::Key_M),
        [p] { p->addMarker(MvMarkerPresenter::markerPalette().at(4)); });
    addCommand(markers, QStringLiteral("remove-marker"), tr("&Remove Selected Marker"),
        QKeySequence(Qt::SHIFT + Qt::Key_M), [p] { p->removeSelectedMarker(); });
    addCommand(markers, QStringLiteral("edit-marker"), tr("&Edit Marker at Playhead..."),
        QKeySequence(Qt::CTRL + Qt::Key_M), [p] { p->editMarker(); });

    QMenu* keys = menuBar()->addMenu(tr("&Keyframes"));
    addCommand(keys, QStringLiteral("add-keyframe"), tr("&Add Keyframe"), QKeySequence(Qt::Key_K),
        [p] { p->keyFramePresenter()->addKeyFrame_ShortcutKey(); });
    addCommand(keys, QStringLiteral("prev-keyframe"), tr("&Previous Keyframe"), QKeySequence(Qt::Key_BracketLeft),
        [p] { p->keyFramePresenter()->moveToPrevKeyFrame(); });
    addCommand(keys, QStringLiteral("next-keyframe"), tr("&Next Keyframe"), QKeySequence(Qt::Key_BracketRight),
        [p] { p->keyFramePresenter()->moveToNextKeyFrame(); });
    addCommand(keys, QStringLiteral("clear-video-keyframes"), tr("Clear All &Video Keyframes"), QKeySequence(),
        [p] { p->keyFramePresenter()->clearAllVideoKeyFrames(); });
    addCommand(keys, QStringLiteral("clear-audio-keyframes"), tr("Clear All A&udio Keyframes"), QKeySequence(),
        [p] { p->keyFramePresenter()->clearAllAudioKeyFrames(); });

    QMenu* playback = menuBar()->addMenu(tr("&Virtual Playhead"));
    p->initVirtualPlayheadPresenter();
    MvTimelineVirtualPlayheadPresenter* virtualPlayhead = p->virtualPlayheadPresenter();
    addCommand(playback, QStringLiteral("virtual-open"), tr("&Open Virtual Playhead"), QKeySequence(Qt::Key_V),
        [virtualPlayhead] { virtualPlayhead->open(); });
    addCommand(playback, QStringLiteral("virtual-close"), tr("&Close Virtual Playhead"),
        QKeySequence(Qt::SHIFT + Qt::Key_V), [virtualPlayhead] { virtualPlayhead->close(); });
    connect(virtualPlayhead, &MvTimelineVirtualPlayheadPresenter::sigEnableChanged, this, &MvDemoWindow::refreshActions);
    connect(virtualPlayhead, &MvTimelineVirtualPlayheadPresenter::sigVisibleChanged, this,
        &MvDemoWindow::refreshActions);
    connect(m_player, &MvDemoPlayer::stateChanged, virtualPlayhead, [virtualPlayhead](bool playing) {
        virtualPlayhead->playStateChanged(playing ? MVVBLMODEL::PlayState_Playing : MVVBLMODEL::PlayState_Paused);
    });
}

void MvDemoWindow::refreshEditActions()
{
    MvDemoPresenter* p = m_presenter;
    const bool hasClips = !m_timeline->selection()->selectedClips().isEmpty();
    const auto enable = [this](const char* name, bool on) {
        if (QAction* a = m_actions.value(QString::fromLatin1(name)))
            a->setEnabled(on);
    };
    enable("split", p->canSplitClip());
    enable("trim-start", p->canTrimToPlayhead());
    enable("trim-end", p->canTrimToPlayhead());
    enable("delete", p->canDeleteItems());
    enable("ripple-delete", hasClips);
    for (const char* name : { "move-left", "move-right", "move-left-second", "move-right-second", "move-up",
             "move-down", "rotate-cw", "rotate-ccw", "goto-clip", "clear-video-keyframes", "clear-audio-keyframes" })
        enable(name, hasClips);
    enable("remove-marker", p->canRemoveMarker());
    enable("add-keyframe", hasClips);
    const bool open = p->isOpenVirtualPlayhead();
    enable("virtual-open", !open && m_timeline->virtualPlayheadAllowed());
    enable("virtual-close", open);
}
