// Transitions and effects in the demo: the Transitions and Effects panels over the project's media
// library, their drops onto the tracks, the effect clipboard's commands (menu, clip menu,
// shortcuts), what the scene says of them, why a command cannot run, and the scenario's tour.
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvClipEditService.h"
#include "IMvSelection.h"
#include "IMvTransitionMediaItem.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryEffects.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryProjectManager.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryTransitionItems.h"
#include "Memory/MvSampleProject.h"
#include "MvClipEffectHelper.h"
#include "MvClipTransitionHelper.h"
#include "MvDemoEffectDocks.h"
#include "MvDemoEffectDrops.h"
#include "MvDemoLibraryDock.h"
#include "MvDemoPresenter.h"
#include "MvDemoRefusals.h"
#include "MvDemoScenario.h"
#include "MvDemoScene.h"
#include "MvDemoTrackArea.h"
#include "MvModelMessages.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>

using namespace MVVBLMODEL;

namespace {
// A command without a result of its own did something when it left an undo step behind.
MvDemoWindow::Command leavesStep(IMvUndoRedoService* undo, std::function<void()> run)
{
    return [undo, run] {
        const int before = undo->undoCount();
        run();
        return undo->undoCount() != before;
    };
}

// Why none of the clips can take the effect; empty when one of them can (what is left then is the
// user's own answer to the audio-effect question, which needs no notice).
QString effectRefusal(const QList<IMvClip*>& clips, const IMvAbstractMediaItem* item)
{
    if (clips.isEmpty())
        return MvDemoWindow::tr("Select the clips first.");
    if (!item)
        return MvDemoWindow::tr("Choose an effect in the Effects panel first.");
    const bool audio = item->mediaType() == MediaType_AudioEffect;
    const bool taken = std::any_of(clips.cbegin(), clips.cend(), [audio](IMvClip* clip) {
        return audio ? MvClipEffectHelper::canAddAudioEffect(clip) : MvClipEffectHelper::canAddVideoEffect(clip);
    });
    if (taken)
        return QString();
    return audio
        ? MvDemoWindow::tr("\u201c%1\u201d is a sound effect: it needs a clip with sound on an unlocked track.")
              .arg(item->name())
        : MvDemoWindow::tr("\u201c%1\u201d changes the picture: it needs a clip with a picture of its own on "
                           "an unlocked track.")
              .arg(item->name());
}

QStringList namesOf(const QList<IMvAbstractMediaItem*>& items)
{
    QStringList names;
    for (const IMvAbstractMediaItem* item : items)
        names.append(item->name());
    return names;
}
}

void MvDemoWindow::buildEffectPanels()
{
    // The once-per-project notices are remembered with the project.
    m_projects.reset(new MvMemoryProjectManager);
    m_projects->openProject(m_timeline->projectId());

    m_transitionsDock = new MvDemoTransitionsDock(m_mediaLibrary.data(), this);
    m_effectsDock = new MvDemoEffectsDock(m_mediaLibrary.data(), this);
    // Tabs beside the journal and the other panels: the tracks keep their width.
    tabifyDockWidget(m_libraryDock, m_transitionsDock);
    tabifyDockWidget(m_transitionsDock, m_effectsDock);
    m_journalDock->raise();
    connect(m_transitionsDock, &MvDemoTransitionsDock::applyRequested, this,
        [this] { m_actions.value(QStringLiteral("apply-transition"))->trigger(); });
    connect(m_transitionsDock, &MvDemoTransitionsDock::randomRequested, this,
        [this] { m_actions.value(QStringLiteral("random-transitions"))->trigger(); });
    connect(m_effectsDock, &MvDemoEffectsDock::applyRequested, this,
        [this] { m_actions.value(QStringLiteral("apply-effect"))->trigger(); });

    m_effectDrops = new MvDemoEffectDrops(trackArea(), m_mediaLibrary.data());
    m_effectDrops->setLengthSource([this] { return m_transitionsDock->length(); });
    connect(m_effectDrops, &MvDemoEffectDrops::transitionDropped, this, &MvDemoWindow::dropTransition);
    connect(m_effectDrops, &MvDemoEffectDrops::effectDropped, this, [this](IMvClip* clip, MvMemoryMediaItem* item) {
        appendJournal(tr("drop: effect \u201c%1\u201d on \u201c%2\u201d").arg(item->name(), clip->name()));
        applyEffect({ clip }, item);
        viewsChanged();
    });
    m_scene->addMessageHandler(
        [this](MvMessage* message, QString* detail) { return describeEffectMessage(message, detail); });
}

bool MvDemoWindow::applyEffect(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item)
{
    // Read before: the presenter says nothing of a refusal, and afterwards the clips have changed.
    const QString reason = effectRefusal(clips, item);
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    const int before = undo->undoCount();
    if (clips.size() == 1)
        m_presenter->addEffectMedia(clips.first(), item);
    else
        m_presenter->addEffectMedias(clips, item);
    const bool applied = undo->undoCount() != before;
    if (!applied && !reason.isEmpty())
        tellRefusal(reason);
    return applied;
}

void MvDemoWindow::dropTransition(IMvClip* clip, int transitionType, MvMemoryMediaItem* item)
{
    const QString end = transitionType == TransitionType_Start ? tr("start") : tr("end");
    appendJournal(
        tr("drop: transition \u201c%1\u201d on the %2 of \u201c%3\u201d").arg(item->name(), end, clip->name()));
    m_presenter->addTransitionMedia(
        clip, dynamic_cast<IMvTransitionMediaItem*>(item), m_transitionsDock->length(), transitionType);
    viewsChanged();
}

// What the presenter reports of transitions and effects (the Media panel's scene downloads their
// items as it does its own).
bool MvDemoWindow::describeEffectMessage(MvMessage* message, QString* detail)
{
    auto* response = dynamic_cast<MvTimelineAddMediaResponseMessage*>(message);
    if (!response || (response->value() != 1 && response->value() != 2))
        return false;
    if (response->value() == 1) {
        *detail = tr("effect \u201c%1\u201d applied").arg(namesOf(response->mediaItems()).join(QLatin1String(", ")));
    } else {
        const auto* placed = static_cast<const MvTransitionPlacement*>(response->context());
        *detail = tr("%n transition(s) placed", nullptr, placed ? placed->size() : 0);
    }
    return true;
}

void MvDemoWindow::buildEffectMenu()
{
    MvDemoPresenter* p = m_presenter;
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    IMvSelection* selection = m_timeline->selection();
    QMenu* menu = menuBar()->addMenu(tr("Effe&cts"));
    addCommand(menu, QStringLiteral("apply-transition"), tr("Apply &Transition to Selection"),
        QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_T), leavesStep(undo, [this, p, selection] {
            p->addTransitionMedia(
                selection->selectedClips(), m_transitionsDock->currentItem(), m_transitionsDock->length());
        }));
    addCommand(menu, QStringLiteral("random-transitions"), tr("&Random Transitions"),
        QKeySequence(Qt::CTRL + Qt::ALT + Qt::SHIFT + Qt::Key_T), leavesStep(undo, [this, p, selection] {
            p->randomAddTransitionMedia(
                selection->selectedClips(), m_transitionsDock->items(), m_transitionsDock->length());
        }));
    addCommand(menu, QStringLiteral("apply-effect"), tr("Apply &Effect to Selection"),
        QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_E), [this, selection] {
            // It tells its own refusals: they depend on the effect chosen, not only on the selection.
            applyEffect(selection->selectedClips(), m_effectsDock->currentItem());
            return true;
        });
    menu->addSeparator();
    addCommand(
        menu, QStringLiteral("copy-effects"), tr("&Copy Effects"), QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_C), [p] {
            p->copyEffect();
            return p->canPasteEffect();
        });
    addCommand(menu, QStringLiteral("paste-effects"), tr("&Paste Effects"),
        QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_V), leavesStep(undo, [p] { p->pasteEffect(); }));
    addCommand(menu, QStringLiteral("delete-effects"), tr("&Delete Effects"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Delete), leavesStep(undo, [p] { p->deleteEffect(); }));
    menu->addSeparator();
    menu->addAction(m_transitionsDock->toggleViewAction());
    menu->addAction(m_effectsDock->toggleViewAction());
}

void MvDemoWindow::refreshEffectActions()
{
    const bool hasClips = !m_timeline->selection()->selectedClips().isEmpty();
    const auto enable = [this](const char* name, bool on) {
        if (QAction* action = m_actions.value(QLatin1String(name)))
            action->setEnabled(on);
    };
    // Copy and delete follow the presenter's question; delete also takes several clips.
    enable("copy-effects", m_presenter->hasEffect());
    enable("paste-effects", hasClips && m_presenter->canPasteEffect());
    enable(
        "delete-effects", MvDemoRefusals(m_timeline, m_presenter).reason(QStringLiteral("delete-effects")).isEmpty());
    enable("apply-effect", hasClips);
    enable("random-transitions", hasClips);
}

// ---- why a command cannot run

QString MvDemoRefusals::copyEffectsReason() const
{
    const QList<IMvClip*> clips = m_timeline->selection()->selectedClips();
    if (clips.size() != 1)
        return tr("Select one clip to copy its effects.");
    if (!m_presenter || !m_presenter->hasEffect())
        return tr("\u201c%1\u201d has no effects to copy.").arg(clips.first()->name());
    return QString();
}

QString MvDemoRefusals::pasteEffectsReason() const
{
    if (!m_presenter || !m_presenter->canPasteEffect())
        return tr("Copy the effects of a clip first.");
    if (m_timeline->selection()->selectedClips().isEmpty())
        return tr("Select the clips to paste the effects onto.");
    return QString();
}

QString MvDemoRefusals::deleteEffectsReason() const
{
    const QList<IMvClip*> clips = m_timeline->selection()->selectedClips();
    if (clips.isEmpty())
        return tr("Select the clips whose effects are to go.");
    const IMvClipEditService* edit = m_timeline->editService();
    const bool any = std::any_of(clips.cbegin(), clips.cend(), [edit](IMvClip* clip) { return edit->hasEffect(clip); });
    return any ? QString() : tr("The selected clips have no effects.");
}

QString MvDemoRefusals::selectionForEffectsReason() const
{
    return m_timeline->selection()->selectedClips().isEmpty() ? tr("Select the clips first.") : QString();
}

// ---- the tour

QList<MvDemoScenario::Step> MvDemoScenario::effectSteps()
{
    return {
        { QStringLiteral("transition-dropped-on-a-cut-with-duplicate-frames"),
            [this] {
                m_window->transitionsDock()->raise();
                // The raised panel's height reaches the tracks once the layout has run.
                QApplication::processEvents();
                trigger(QStringLiteral("zoom-fit"));
                dropOnClip(MvDemoTransitionsDock::MimeType, QStringLiteral("Wipe"), QStringLiteral("Old map"), 0.1);
            } },
        { QStringLiteral("random-transitions"),
            [this] {
                m_window->timeline()->selection()->select({ clipNamed(QStringLiteral("Fishing boats")) });
                trigger(QStringLiteral("random-transitions"));
            } },
        { QStringLiteral("effect-dropped-on-a-clip"),
            [this] {
                m_window->effectsDock()->raise();
                dropOnClip(
                    MvDemoEffectsDock::MimeType, QStringLiteral("Sepia"), QStringLiteral("Harbour at dawn"), 0.5);
            } },
        { QStringLiteral("effects-copied-and-pasted"),
            [this] {
                select(QStringLiteral("Harbour at dawn"));
                trigger(QStringLiteral("copy-effects"));
                select(QStringLiteral("Logo"));
                trigger(QStringLiteral("paste-effects"));
            } },
        { QStringLiteral("audio-effect-replaced"),
            [this] {
                select(QStringLiteral("Theme"));
                m_window->effectsDock()->shelf()->setCurrentRow(3);
                trigger(QStringLiteral("apply-effect"));
                m_window->effectsDock()->shelf()->setCurrentRow(4);
                trigger(QStringLiteral("apply-effect"));
            } },
        { QStringLiteral("effects-deleted"),
            [this] {
                select(QStringLiteral("Logo"));
                trigger(QStringLiteral("delete-effects"));
            } },
    };
}

void MvDemoScenario::dropOnClip(
    const QString& mimeType, const QString& itemName, const QString& clipName, double fraction)
{
    const IMvClip* clip = clipNamed(clipName);
    if (!clip)
        return;
    MvDemoTrackArea* area = m_window->trackArea();
    const QRect rect = area->clipRect(clip, clip->trackIndex());
    const QPoint at(rect.left() + int(rect.width() * fraction), rect.center().y());
    QMimeData data;
    data.setData(mimeType, itemName.toUtf8());
    // The drag's events as the panel's drag would bring them: in, over the clip, dropped.
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &move);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &drop);
}
