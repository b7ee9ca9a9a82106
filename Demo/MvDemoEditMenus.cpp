// The demo's menus: every command of the timeline presenter a person can reach by menu, shortcut
// or context menu, with its enabled state taken from the presenter's own can... questions.
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoNavigation.h"
#include "MvDemoPlayer.h"
#include "MvDemoPresenter.h"
#include "MvDemoRefusals.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTrackArea.h"
#include "MvKeyFramePresenter.h"
#include "MvMarkerPresenter.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>

namespace {
using Command = MvDemoWindow::Command;

// A command without a result of its own did something when it left an undo step behind.
Command leavesStep(IMvUndoRedoService* undo, std::function<void()> run)
{
    return [undo, run] {
        const int before = undo->undoCount();
        run();
        return undo->undoCount() != before;
    };
}

Command movesPlayhead(IMvTimelinePlayhead* playhead, std::function<void()> run)
{
    return [playhead, run] {
        const qint64 before = playhead->currentFrame();
        run();
        return playhead->currentFrame() != before;
    };
}

// View commands that cannot be refused.
Command always(std::function<void()> run)
{
    return [run] {
        run();
        return true;
    };
}
}

QAction* MvDemoWindow::addCommand(
    QMenu* menu, const QString& name, const QString& text, const QKeySequence& shortcut, Command command)
{
    // Commands outside the menu bar (the track header's) still belong to the window.
    QAction* action = menu ? menu->addAction(text) : new QAction(text, this);
    if (!menu)
        addAction(action);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, [this, name, command] { runCommand(name, command); });
    m_actions.insert(name, action);
    return action;
}

void MvDemoWindow::buildMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    addCommand(file, QStringLiteral("quit"), tr("&Quit"), QKeySequence::Quit, always([this] { close(); }));

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    addCommand(edit, QStringLiteral("undo"), tr("&Undo"), QKeySequence::Undo, [undo] { return undo->undo(); });
    addCommand(edit, QStringLiteral("redo"), tr("&Redo"), QKeySequence::Redo, [undo] { return undo->redo(); });
    buildClipboardActions(edit);

    buildClipMenu();
    buildMarkerAndKeyFrameMenus();
    buildViewMenu();
    buildTimelineMenu();
    buildTrackActions();
    buildPanelMenu();
    buildMediaMenu();
    buildEffectMenu();

    QMenu* playback = menuBar()->addMenu(tr("&Playback"));
    addCommand(playback, QStringLiteral("play"), tr("Play / Pause"), QKeySequence(Qt::Key_Space),
        always([this] { m_player->toggle(); }));
}

void MvDemoWindow::buildClipMenu()
{
    MvDemoPresenter* p = m_presenter;
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    const int second = MvDemoNavigation::framesPerSecond(m_timeline->ruler());
    QMenu* clip = menuBar()->addMenu(tr("&Clip"));
    addCommand(clip, QStringLiteral("split"), tr("&Split at Playhead"), QKeySequence(Qt::CTRL + Qt::Key_B),
        [p] { return p->splitClips(-1, true, false); });
    addCommand(clip, QStringLiteral("trim-start"), tr("Trim &Start to Playhead"), QKeySequence(Qt::Key_Q),
        [p] { return p->trimStartToPlayhead(); });
    addCommand(clip, QStringLiteral("trim-end"), tr("Trim &End to Playhead"), QKeySequence(Qt::Key_W),
        [p] { return p->trimEndToPlayhead(); });
    clip->addSeparator();
    addCommand(
        clip, QStringLiteral("delete"), tr("&Delete"), QKeySequence::Delete, [p] { return p->deleteItems(false); });
    addCommand(clip, QStringLiteral("ripple-delete"), tr("&Ripple Delete"), QKeySequence(Qt::SHIFT + Qt::Key_Delete),
        [p] { return p->rippleDeleteSelectedClips(); });
    clip->addSeparator();
    addCommand(clip, QStringLiteral("move-left"), tr("Move One Frame &Left"), QKeySequence(Qt::ALT + Qt::Key_Left),
        [p] { return p->moveClipsHorizontal(-1); });
    addCommand(clip, QStringLiteral("move-right"), tr("Move One Frame R&ight"), QKeySequence(Qt::ALT + Qt::Key_Right),
        [p] { return p->moveClipsHorizontal(1); });
    addCommand(clip, QStringLiteral("move-left-second"), tr("Move One Second Left"),
        QKeySequence(Qt::ALT + Qt::SHIFT + Qt::Key_Left), [p, second] { return p->moveClipsHorizontal(-second); });
    addCommand(clip, QStringLiteral("move-right-second"), tr("Move One Second Right"),
        QKeySequence(Qt::ALT + Qt::SHIFT + Qt::Key_Right), [p, second] { return p->moveClipsHorizontal(second); });
    // Picture rows are numbered from the top; moving "up" is a smaller index for picture clips.
    addCommand(clip, QStringLiteral("move-up"), tr("Move One Track &Up"), QKeySequence(Qt::ALT + Qt::Key_Up),
        [p] { return p->moveClipsVertical(-1); });
    addCommand(clip, QStringLiteral("move-down"), tr("Move One Track Do&wn"), QKeySequence(Qt::ALT + Qt::Key_Down),
        [p] { return p->moveClipsVertical(1); });
    clip->addSeparator();
    addCommand(clip, QStringLiteral("rotate-cw"), tr("Rotate 90\u00b0 Clockwise"), QKeySequence(Qt::CTRL + Qt::Key_R),
        leavesStep(undo, [p] { p->rotate90CW(); }));
    addCommand(clip, QStringLiteral("rotate-ccw"), tr("Rotate 90\u00b0 Counterclockwise"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_R), leavesStep(undo, [p] { p->rotate90CCW(); }));
    addCommand(clip, QStringLiteral("goto-clip"), tr("&Go to Selected Clip"), QKeySequence(Qt::Key_G),
        movesPlayhead(m_timeline->playhead(), [p] { p->checkAndMoveToSelectedClipStartPos(); }));
    buildAudioActions(clip);
}

void MvDemoWindow::buildMarkerAndKeyFrameMenus()
{
    MvDemoPresenter* p = m_presenter;
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    IMvTimelinePlayhead* playhead = m_timeline->playhead();
    QMenu* markers = menuBar()->addMenu(tr("&Markers"));
    addCommand(markers, QStringLiteral("add-marker"), tr("&Add Marker"), QKeySequence(Qt::Key_M),
        leavesStep(undo, [p] { p->addMarker(MvMarkerPresenter::markerPalette().at(4)); }));
    addCommand(markers, QStringLiteral("remove-marker"), tr("&Remove Selected Marker"),
        QKeySequence(Qt::SHIFT + Qt::Key_M), [p] { return p->removeSelectedMarker(); });
    addCommand(markers, QStringLiteral("edit-marker"), tr("&Edit Marker at Playhead..."),
        QKeySequence(Qt::CTRL + Qt::Key_M), leavesStep(undo, [p] { p->editMarker(); }));

    MvKeyFramePresenter* keyFrames = p->keyFramePresenter();
    QMenu* keys = menuBar()->addMenu(tr("&Keyframes"));
    addCommand(keys, QStringLiteral("add-keyframe"), tr("&Add Keyframe"), QKeySequence(Qt::Key_K),
        [keyFrames] { return keyFrames->addKeyFrame_ShortcutKey(); });
    addCommand(keys, QStringLiteral("prev-keyframe"), tr("&Previous Keyframe"), QKeySequence(Qt::Key_BracketLeft),
        movesPlayhead(playhead, [keyFrames] { keyFrames->moveToPrevKeyFrame(); }));
    addCommand(keys, QStringLiteral("next-keyframe"), tr("&Next Keyframe"), QKeySequence(Qt::Key_BracketRight),
        movesPlayhead(playhead, [keyFrames] { keyFrames->moveToNextKeyFrame(); }));
    addCommand(keys, QStringLiteral("clear-video-keyframes"), tr("Clear All &Video Keyframes"), QKeySequence(),
        [keyFrames] { return keyFrames->clearAllVideoKeyFrames(); });
    addCommand(keys, QStringLiteral("clear-audio-keyframes"), tr("Clear All A&udio Keyframes"), QKeySequence(),
        [keyFrames] { return keyFrames->clearAllAudioKeyFrames(); });

    QMenu* virtualMenu = menuBar()->addMenu(tr("&Virtual Playhead"));
    p->initVirtualPlayheadPresenter();
    MvTimelineVirtualPlayheadPresenter* virtualPlayhead = p->virtualPlayheadPresenter();
    addCommand(virtualMenu, QStringLiteral("virtual-open"), tr("&Open Virtual Playhead"), QKeySequence(Qt::Key_V),
        [virtualPlayhead] {
            virtualPlayhead->open();
            return virtualPlayhead->isOpen();
        });
    addCommand(virtualMenu, QStringLiteral("virtual-close"), tr("&Close Virtual Playhead"),
        QKeySequence(Qt::SHIFT + Qt::Key_V), [virtualPlayhead] {
            virtualPlayhead->close();
            return !virtualPlayhead->isOpen();
        });
    // The presenter hides the split button while the virtual playhead is open and leaves
    // showing it again to the host.
    connect(virtualPlayhead, &MvTimelineVirtualPlayheadPresenter::sigEnableChanged, this, [this, virtualPlayhead] {
        if (!virtualPlayhead->isOpen())
            m_timeline->playhead()->setSplitButtonVisible(true);
        refreshActions();
    });
    connect(
        virtualPlayhead, &MvTimelineVirtualPlayheadPresenter::sigVisibleChanged, this, &MvDemoWindow::refreshActions);
    connect(m_player, &MvDemoPlayer::stateChanged, virtualPlayhead, [virtualPlayhead](bool playing) {
        virtualPlayhead->playStateChanged(playing ? MVVBLMODEL::PlayState_Playing : MVVBLMODEL::PlayState_Paused);
    });
}

void MvDemoWindow::buildViewMenu()
{
    QMenu* view = menuBar()->addMenu(tr("&View"));
    addCommand(view, QStringLiteral("zoom-fit"), tr("Zoom to &Fit"), QKeySequence(Qt::SHIFT + Qt::Key_Z),
        always([this] { m_presenter->fitTimeline(); }));
    addCommand(view, QStringLiteral("zoom-in"), tr("Zoom &In"), QKeySequence::ZoomIn, always([this] {
        m_rulerPresenter->zoom(-120);
        m_rulerPresenter->moveCurrentFrameToCenter();
    }));
    addCommand(view, QStringLiteral("zoom-out"), tr("Zoom &Out"), QKeySequence::ZoomOut, always([this] {
        m_rulerPresenter->zoom(120);
        m_rulerPresenter->moveCurrentFrameToCenter();
    }));
    view->addSeparator();
    addCommand(
        view, QStringLiteral("rows-small"), tr("Small Tracks"), QKeySequence(), always([this] { setTrackSize(0); }));
    addCommand(
        view, QStringLiteral("rows-normal"), tr("Normal Tracks"), QKeySequence(), always([this] { setTrackSize(1); }));
    addCommand(
        view, QStringLiteral("rows-large"), tr("Large Tracks"), QKeySequence(), always([this] { setTrackSize(2); }));
    view->addSeparator();
    QAction* snap
        = addCommand(view, QStringLiteral("snap"), tr("S&nap to Playhead, Edges and Markers"), QKeySequence(Qt::Key_S),
            always([this] { trackArea()->setSnapping(m_actions.value(QStringLiteral("snap"))->isChecked()); }));
    snap->setCheckable(true);
    snap->setChecked(trackArea()->snapping());
    view->addAction(m_journalDock->toggleViewAction());
}

void MvDemoWindow::buildTrackActions()
{
    // The track header's menu acts on the row it was opened on.
    QAction* lock = addCommand(nullptr, QStringLiteral("track-lock"), tr("&Lock Track"), QKeySequence(), [this] {
        return MvDemoTrackHeaders::applyButton(
            m_presenter, m_timeline->trackAt(m_menuTrack), MvDemoTrackHeaders::Button::Lock);
    });
    lock->setCheckable(true);
    const QList<QPair<QString, QString>> sizes { { QStringLiteral("track-rows-small"), tr("Small Row") },
        { QStringLiteral("track-rows-normal"), tr("Normal Row") },
        { QStringLiteral("track-rows-large"), tr("Large Row") } };
    for (int policy = 0; policy < sizes.size(); ++policy) {
        addCommand(nullptr, sizes.at(policy).first, sizes.at(policy).second, QKeySequence(),
            always([this, policy] { setTrackSize(m_menuTrack, policy); }));
    }
}

void MvDemoWindow::refreshEditActions()
{
    MvDemoPresenter* p = m_presenter;
    const MvDemoRefusals refusals(m_timeline, p);
    const bool hasClips = !m_timeline->selection()->selectedClips().isEmpty();
    const auto enable = [this](const char* name, bool on) {
        if (QAction* a = m_actions.value(QString::fromLatin1(name)))
            a->setEnabled(on);
    };
    // The presenter's answer looks at every clip under the playhead, while the split itself cuts
    // only the selected ones when there are any: the host asks about those too.
    enable("split", p->canSplitClip() && refusals.reason(QStringLiteral("split")).isEmpty());
    enable("trim-start", p->canTrimToPlayhead());
    enable("trim-end", p->canTrimToPlayhead());
    enable("delete", p->canDeleteItems());
    enable("ripple-delete", hasClips);
    for (const char* name : { "move-left", "move-right", "move-left-second", "move-right-second", "move-up",
             "move-down", "rotate-cw", "rotate-ccw", "goto-clip", "clear-video-keyframes", "clear-audio-keyframes" })
        enable(name, hasClips);
    enable("remove-marker", p->canRemoveMarker());
    // No can... question for these: the host asks the same thing the command would.
    enable("edit-marker", refusals.reason(QStringLiteral("edit-marker")).isEmpty());
    enable("add-keyframe", hasClips);
    const bool open = p->isOpenVirtualPlayhead();
    enable("virtual-open", !open && m_timeline->virtualPlayheadAllowed());
    enable("virtual-close", open);
    if (QAction* lock = m_actions.value(QStringLiteral("track-lock"))) {
        const IMvTrack* track = m_timeline->trackAt(m_menuTrack);
        lock->setChecked(track && track->isLocked());
    }
}
