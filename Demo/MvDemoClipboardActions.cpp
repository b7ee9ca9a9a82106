// The clipboard, the track marks, the audio commands and the windows over the project's other
// timelines: the commands a person reaches by menu, shortcut, context menu and header click, with
// their enabled state taken from the presenter's answers and the reasons they cannot run.
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvSelection.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryClipboard.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvSampleProject.h"
#include "MvClipHelpers.h"
#include "MvDemoPresenter.h"
#include "MvDemoRefusals.h"
#include "MvDemoScene.h"
#include "MvDemoTimelineWindow.h"
#include "MvDemoTrackArea.h"
#include "MvDemoTrackHeaders.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace MVVBLMODEL;

namespace {
using Command = MvDemoWindow::Command;

// A command without a result of its own did something when it left an undo step behind.
Command stepOf(IMvUndoRedoService* undo, std::function<void()> run)
{
    return [undo, run] {
        const int before = undo->undoCount();
        run();
        return undo->undoCount() != before;
    };
}

MvMemoryClip* selectedCompound(const IMvTimeline* timeline)
{
    auto* clip = dynamic_cast<MvMemoryClip*>(timeline->selection()->currentItem());
    return clip && clip->compoundContent() ? clip : nullptr;
}

bool anySelectedWithSound(const IMvTimeline* timeline)
{
    const QList<IMvClip*> clips = timeline->selection()->selectedClips();
    return std::any_of(clips.cbegin(), clips.cend(), [](IMvClip* clip) { return IMvClipHelper::hasAudio(clip); });
}
}

void MvDemoWindow::buildClipboardActions(QMenu* edit)
{
    MvDemoPresenter* p = m_presenter;
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    const auto selected = [this] { return !m_timeline->selection()->isEmpty(); };
    edit->addSeparator();
    addCommand(edit, QStringLiteral("copy"), tr("&Copy"), QKeySequence::Copy, [p, selected] {
        const bool any = selected();
        p->copySelectedClips();
        return any;
    });
    addCommand(
        edit, QStringLiteral("cut"), tr("Cu&t"), QKeySequence::Cut, stepOf(undo, [p] { p->cutSelectedClips(); }));
    addCommand(
        edit, QStringLiteral("paste"), tr("&Paste"), QKeySequence::Paste, stepOf(undo, [p] { p->pasteClips(); }));
    addCommand(edit, QStringLiteral("duplicate"), tr("&Duplicate"), QKeySequence(Qt::CTRL + Qt::Key_D),
        stepOf(undo, [p] { p->duplicateClip(); }));

    // The track header's marks and menu act on the row they were used on.
    // Their texts say what a click does to the row now (refreshClipboardActions).
    addCommand(nullptr, QStringLiteral("track-visible"), tr("&Hide Track"), QKeySequence(), [this] {
        return MvDemoTrackHeaders::applyButton(
            m_presenter, m_timeline->trackAt(m_menuTrack), MvDemoTrackHeaders::Button::Eye);
    });
    addCommand(nullptr, QStringLiteral("track-mute"), tr("&Mute Track"), QKeySequence(), [this] {
        return MvDemoTrackHeaders::applyButton(
            m_presenter, m_timeline->trackAt(m_menuTrack), MvDemoTrackHeaders::Button::Mute);
    });
}

void MvDemoWindow::buildAudioActions(QMenu* clip)
{
    MvDemoPresenter* p = m_presenter;
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    clip->addSeparator();
    addCommand(clip, QStringLiteral("mute-clips"), tr("&Mute Clips"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_M),
        stepOf(undo, [p] { p->setMute(!p->mute()); }));
    addCommand(clip, QStringLiteral("detach-audio"), tr("Detach &Audio"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_D), stepOf(undo, [p] { p->detachSelectedAudio(); }));
    addCommand(clip, QStringLiteral("clear-remix"), tr("Clear Re&mix"), QKeySequence(),
        stepOf(undo, [p] { p->clearRemix(); }));
}

void MvDemoWindow::buildTimelineMenu()
{
    MvDemoPresenter* p = m_presenter;
    QMenu* menu = menuBar()->addMenu(tr("&Timeline"));
    addCommand(menu, QStringLiteral("clear-empty-tracks"), tr("Clear &Empty Tracks"), QKeySequence(),
        stepOf(m_timeline->undoRedoService(), [p] { p->clearEmptyTracks(); }));
    menu->addSeparator();
    addCommand(menu, QStringLiteral("open-compound"), tr("&Open Compound Clip"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_O), [this] { return openCompound(); });
    addCommand(
        menu, QStringLiteral("open-other-project"), tr("Open Another &Project's Timeline"), QKeySequence(), [this] {
            MvMemoryTimeline* other = m_project->otherProjectTimeline();
            return openTimelineWindow(other, tr("%1 (another project)").arg(other->name())) != nullptr;
        });
    // A double click on a compound clip opens it too.
    connect(trackArea(), &MvDemoTrackArea::itemDoubleClicked, this, [this](IMvAbstractClip* item) {
        const auto* clip = dynamic_cast<MvMemoryClip*>(item);
        if (clip && clip->compoundContent())
            m_actions.value(QStringLiteral("open-compound"))->trigger();
    });
}

void MvDemoWindow::refreshClipboardActions()
{
    MvDemoPresenter* p = m_presenter;
    const bool selected = !m_timeline->selection()->isEmpty();
    const auto enable = [this](const char* name, bool on) {
        if (QAction* a = m_actions.value(QString::fromLatin1(name)))
            a->setEnabled(on);
    };
    for (const char* name : { "copy", "cut", "duplicate" })
        enable(name, selected);
    enable("paste", p->canPasteClip());
    enable("mute-clips", anySelectedWithSound(m_timeline));
    if (QAction* mute = m_actions.value(QStringLiteral("mute-clips")))
        mute->setText(anySelectedWithSound(m_timeline) && p->mute() ? tr("Un&mute Clips") : tr("&Mute Clips"));
    enable("detach-audio", p->detachSelectedAudioEnabled());
    const auto* current = dynamic_cast<IMvClip*>(m_timeline->selection()->currentItem());
    enable("clear-remix", current && current->isRemixed());
    enable("clear-empty-tracks", p->canClearEmptyTracks());
    enable("open-compound", selectedCompound(m_timeline) != nullptr);
    IMvTrack* track = m_timeline->trackAt(m_menuTrack);
    if (QAction* eye = m_actions.value(QStringLiteral("track-visible"))) {
        // For an audio row the eye stands for its sound.
        const bool audio = track && isAudioTrack(track->type());
        const bool shown = track && p->trackVisible(track);
        eye->setText(audio ? (shown ? tr("&Silence Track") : tr("&Hear Track"))
                           : (shown ? tr("&Hide Track") : tr("&Show Track")));
    }
    if (QAction* mute = m_actions.value(QStringLiteral("track-mute"))) {
        mute->setText(track && track->isMuted() ? tr("Un&mute Track") : tr("&Mute Track"));
        mute->setEnabled(track && p->muteEnable(track));
    }
}

void MvDemoWindow::headerButton(int trackIndex, MvDemoTrackHeaders::Button button)
{
    QString name;
    switch (button) {
    case MvDemoTrackHeaders::Button::Eye:
        name = QStringLiteral("track-visible");
        break;
    case MvDemoTrackHeaders::Button::Mute:
        name = QStringLiteral("track-mute");
        break;
    case MvDemoTrackHeaders::Button::Lock:
        name = QStringLiteral("track-lock");
        break;
    case MvDemoTrackHeaders::Button::None:
        return;
    }
    QAction* action = m_actions.value(name);
    if (!action)
        return;
    // Through the row's menu entry, so that the journal reads as for the menu; the mark stays
    // clickable where the entry is disabled, and the user hears why nothing happens.
    m_menuTrack = trackIndex;
    refreshClipboardActions();
    if (action->isEnabled())
        action->trigger();
    else
        tellRefusal(MvDemoTrackHeaders::refusal(button));
}

void MvDemoWindow::trackPicked()
{
    const IMvTrack* track = m_presenter->selectedTrack();
    appendJournal(track ? tr("track picked: %1").arg(m_headers->trackName(track->index())) : tr("no track picked"));
    viewsChanged();
}

bool MvDemoWindow::openCompound()
{
    MvMemoryClip* compound = selectedCompound(m_timeline);
    if (!compound)
        return false;
    MvMemoryTimeline* content = compound->compoundContent();
    const QString name = content->name().isEmpty() ? compound->name() : content->name();
    return openTimelineWindow(content, tr("%1 (compound clip)").arg(name)) != nullptr;
}

MvDemoTimelineWindow* MvDemoWindow::timelineWindow(const MvMemoryTimeline* timeline) const
{
    return m_timelineWindows.value(timeline);
}

MvDemoTimelineWindow* MvDemoWindow::openTimelineWindow(MvMemoryTimeline* timeline, const QString& title)
{
    // One window per timeline, kept while this window lives: the model tells its views until then.
    MvDemoTimelineWindow* window = m_timelineWindows.value(timeline);
    if (!window) {
        window = new MvDemoTimelineWindow(timeline, m_scene, title, this);
        connect(window, &MvDemoTimelineWindow::journal, this, &MvDemoWindow::appendJournal);
        // Below this window's tracks, a little to the side for each one open, so both can be seen.
        window->move(geometry().topLeft() + QPoint(60 + 40 * m_timelineWindows.size(), 260));
        m_timelineWindows.insert(timeline, window);
    }
    // A window already open comes to the front; a new one opens there.
    if (window->isVisible())
        window->raise();
    window->show();
    window->activateWindow();
    return window;
}

// ---- why these commands cannot run

QString MvDemoRefusals::clipboardReason(const QString& command) const
{
    const IMvSelection* selection = m_timeline->selection();
    if (command == QLatin1String("paste")) {
        if (!m_presenter->canPasteClip())
            return tr("Copy or cut something first.");
        const MvMemoryCopy& copy = MvMemoryClipboard::application().content();
        if (copy.clips.isEmpty() && selection->selectedClips().isEmpty())
            return tr("Select the clips to put the copied transition on.");
        return QString();
    }
    if (selection->isEmpty())
        return command == QLatin1String("cut") ? tr("Select the clips or the transition to cut.")
                                               : tr("Select the clips or the transition to copy.");
    if (command == QLatin1String("cut") && !lockedSelectionReason().isEmpty())
        return lockedSelectionReason();
    return QString();
}

QString MvDemoRefusals::audioReason(const QString& command) const
{
    const IMvSelection* selection = m_timeline->selection();
    if (command == QLatin1String("mute-clips"))
        return anySelectedWithSound(m_timeline) ? QString() : tr("Select a clip with sound to mute it.");
    if (command == QLatin1String("detach-audio"))
        return m_presenter->detachSelectedAudioEnabled()
            ? QString()
            : tr("Select a video clip with its sound to detach the audio.");
    const auto* current = dynamic_cast<IMvClip*>(selection->currentItem());
    if (!current)
        return tr("Select a remixed music clip first.");
    return current->isRemixed() ? QString() : tr("\"%1\" has no remix.").arg(current->name());
}

QString MvDemoRefusals::timelineReason(const QString& command) const
{
    if (command == QLatin1String("open-compound"))
        return selectedCompound(m_timeline) ? QString() : tr("Select a compound clip to open it.");
    return m_presenter->canClearEmptyTracks() ? QString()
                                              : tr("There is no empty track besides the ones that always stay.");
}
