#include "MvDemoWindow.h"

#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvShortcutEditManager.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryProjectManager.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvSampleProject.h"
#include "MvDemoJournal.h"
#include "MvDemoMarkerDialogStyle.h"
#include "MvDemoMarkers.h"
#include "MvDemoNavigation.h"
#include "MvDemoPlayer.h"
#include "MvDemoPlayheadOverlay.h"
#include "MvDemoPlayheadTheme.h"
#include "MvDemoPresenter.h"
#include "MvDemoRefusals.h"
#include "MvDemoRenderSimulator.h"
#include "MvDemoScene.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTimelineWindow.h"
#include "MvDemoToastHost.h"
#include "MvDemoTrackArea.h"
#include "MvDemoTrackHeaders.h"
#include "MvDemoUndoWords.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTimer>

namespace {
const QSize kMinimumSize(720, 420);
constexpr int kJournalHeight = 150;
}

MvDemoWindow::MvDemoWindow(bool interactive, bool verbose, QWidget* parent)
    : QMainWindow(parent)
    , m_project(new MvSampleProject)
    , m_timeline(m_project->timeline())
{
    m_logRouter = new MvDemoLogRouter(verbose, this);
    connect(m_logRouter, &MvDemoLogRouter::journal, this, &MvDemoWindow::appendJournal);
    setWindowTitle(tr("%1[*] - MvTimeline Demo").arg(projectName()));
    m_player = new MvDemoPlayer(m_timeline, this);
    m_scene = new MvDemoScene(m_player, this);
    m_scene->setDialogParent(this);
    m_scene->setInteractive(interactive);
    connect(m_scene, &MvDemoScene::journal, this, &MvDemoWindow::appendJournal);
    m_toastHost = new MvDemoToastHost(this);

    m_presenter = new MvDemoPresenter(this, m_timeline);
    m_presenter->setScene(m_scene);
    connect(m_presenter, &MvDemoPresenter::actionsNeedRefresh, this, &MvDemoWindow::refreshActions);
    connect(m_presenter, &MvTimelinePresenter::sigActionStatusChanged, this, &MvDemoWindow::refreshActions);

    buildLayout();
    buildJournal();
    buildPanels();
    buildMediaPanel(interactive);
    buildEffectPanels();
    buildMenus();
    connectViews();
    qApp->installEventFilter(new MvDemoMarkerDialogStyle(this));
    m_timeline->addChangeListener([this] { modelChanged(); });
    setTrackSize(1);
    refreshActions();
    // Explicit, and above what the layouts need: the timeline stays workable, and the layouts never
    // have to push a minimum of their own onto the shown window.
    setMinimumSize(kMinimumSize);
    resize(1280, 720);
    trackArea()->setFocus();
}

MvDemoWindow::~MvDemoWindow()
{
    // Widgets and presenters observe the model; they go before the model does. The views stop
    // reporting to this window first: they are taken apart before it is.
    ruler()->removeEventFilter(this);
    trackArea()->removeEventFilter(this);
    // The windows over the project's other timelines go before the project does.
    qDeleteAll(m_timelineWindows);
    delete centralWidget();
    delete m_markerPresenter;
    delete m_playheadPresenter;
    delete m_renderSimulator;
    delete m_rulerPresenter;
    delete m_presenter;
}

QString MvDemoWindow::projectName()
{
    return tr("A day by the sea");
}

MvDemoTrackArea* MvDemoWindow::trackArea() const
{
    return m_column->trackArea();
}

MvTimelineRulerWidget* MvDemoWindow::ruler() const
{
    return m_column->ruler();
}

MvTimelinePlayheadWidget* MvDemoWindow::playheadWidget() const
{
    return m_column->playheadOverlay();
}

void MvDemoWindow::buildLayout()
{
    auto* central = new QWidget(this);
    auto* rows = new QHBoxLayout(central);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    m_rulerPresenter = new MvTimelineRulerPresenter(m_presenter, this);
    m_markerPresenter = new MvDemoMarkerPresenter(m_presenter, this);
    m_playheadPresenter = new MvDemoPlayheadPresenter(m_presenter, this);
    m_column = new MvDemoTimelineColumn(m_presenter, m_rulerPresenter, m_markerPresenter, m_playheadPresenter, central);
    m_renderSimulator = new MvDemoRenderSimulator(m_timeline, this);
    m_headers = new MvDemoTrackHeaders(m_presenter, trackArea(), central);
    rows->addWidget(m_headers);
    rows->addWidget(m_column, 1);
    setCentralWidget(central);
    if (auto* shortcuts = dynamic_cast<MvShortcutEditManager*>(IMvShortcutEditManager::GetInstance()))
        shortcuts->setShortcutText(
            MvCommandId::SplitClips, QKeySequence(Qt::CTRL + Qt::Key_B).toString(QKeySequence::NativeText));
}

void MvDemoWindow::buildJournal()
{
    m_journalView = new QPlainTextEdit(this);
    m_journalView->setReadOnly(true);
    m_journalView->setTabChangesFocus(true);
    // A small window gives the journal's height up before the tracks'.
    m_journalView->setMinimumHeight(40);
    m_journalDock = new QDockWidget(tr("Command journal"), this);
    m_journalDock->setObjectName(QStringLiteral("journalDock"));
    m_journalDock->setWidget(m_journalView);
    addDockWidget(Qt::BottomDockWidgetArea, m_journalDock);
    resizeDocks({ m_journalDock }, { kJournalHeight }, Qt::Vertical);
    m_status = new QLabel(this);
    statusBar()->addPermanentWidget(m_status);
}

void MvDemoWindow::connectViews()
{
    MvDemoTrackArea* area = trackArea();
    connect(m_column->markerStrip(), &MvDemoMarkerStrip::markerPicked, this, [this](IMvMarker* marker) {
        m_timeline->markerModel()->setSelectedMarker(marker);
        m_timeline->selection()->setTimelineSelected(true);
        m_timeline->playhead()->setCurrentFrame(marker->ownerList()->mapToTimeline(marker->frame()));
        refreshActions();
    });
    connect(m_column->markerStrip(), &MvDemoMarkerStrip::editRequested, this,
        [this] { m_actions.value(QStringLiteral("edit-marker"))->trigger(); });
    connect(m_rulerPresenter, &MvTimelineRulerPresenter::visualRangeChanged, m_markerPresenter,
        &MvMarkerPresenter::signalMarkerCountChanged);
    connect(m_rulerPresenter, &MvTimelineRulerPresenter::zoomChanged, m_markerPresenter,
        &MvMarkerPresenter::signalMarkerCountChanged);
    connect(area, &MvDemoTrackArea::selectionChanged, this, &MvDemoWindow::refreshActions);
    connect(area, &MvDemoTrackArea::playheadMoved, this, &MvDemoWindow::refreshActions);
    connect(area, &MvDemoTrackArea::moveRequested, this, &MvDemoWindow::moveSelection);
    connect(area, &MvDemoTrackArea::contextMenuRequested, this,
        [this](MvDemoTrackArea::MenuPlace place, const QPoint& globalPos) {
            showContextMenu(place == MvDemoTrackArea::MenuPlace::Clip ? MvDemoContextMenus::Place::Clip
                                                                      : MvDemoContextMenus::Place::EmptySpace,
                globalPos);
        });
    connect(m_headers, &MvDemoTrackHeaders::buttonClicked, this, &MvDemoWindow::headerButton);
    connect(m_headers, &MvDemoTrackHeaders::trackPicked, this, &MvDemoWindow::trackPicked);
    connect(m_headers, &MvDemoTrackHeaders::contextMenuRequested, this, &MvDemoWindow::showTrackMenu);
    connect(ruler(), &QWidget::customContextMenuRequested, this, &MvDemoWindow::showRulerMenu);
    connect(m_playheadPresenter, &MvTimelinePlayheadPresenter::sigStartDragPlayHead, m_player, &MvDemoPlayer::pause);
    // A click on the split button selects the new pieces after the model's step has closed:
    // the menus catch up once the click has been handled.
    ruler()->installEventFilter(this);
    area->installEventFilter(this);
}

bool MvDemoWindow::eventFilter(QObject* watched, QEvent* event)
{
    if ((watched == ruler() || watched == trackArea()) && event->type() == QEvent::MouseButtonRelease)
        QTimer::singleShot(0, this, &MvDemoWindow::viewsChanged);
    return QMainWindow::eventFilter(watched, event);
}

void MvDemoWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    keepTracksInSight();
}

void MvDemoWindow::keepTracksInSight()
{
    // The main window gives a smaller height to the central widget first; the tracks are what a
    // person works in, so the journal gives its height up first, down to its minimum, and takes
    // it back, up to its usual height, when the tracks have room to spare.
    if (!isVisible() || !m_journalDock->isVisible() || m_journalDock->isFloating())
        return;
    const int spare = m_column->height() - m_column->sizeHint().height();
    const int current = m_journalDock->height();
    int journal = current;
    if (spare < 0)
        journal = qMax(m_journalDock->minimumSizeHint().height(), current + spare);
    else if (current < kJournalHeight)
        journal = qMin(kJournalHeight, current + spare);
    if (journal != current)
        resizeDocks({ m_journalDock }, { journal }, Qt::Vertical);
}

void MvDemoWindow::viewsChanged()
{
    trackArea()->update();
    m_headers->update();
    refreshActions();
}

void MvDemoWindow::modelChanged()
{
    trackArea()->update();
    m_headers->update();
    Q_EMIT m_markerPresenter->signalMarkerCountChanged();
    m_column->refreshScrollBars();
    refreshActions();
}

void MvDemoWindow::runCommand(const QString& name, const Command& command)
{
    QAction* action = m_actions.value(name);
    appendJournal(tr("command: %1").arg(action ? action->text().remove(QLatin1Char('&')) : name));
    // The reason is read before the command runs: afterwards the state may have moved on.
    const QString reason = MvDemoRefusals(m_timeline, m_presenter).reason(name);
    if (!command() && !reason.isEmpty())
        tellRefusal(reason);
    viewsChanged();
}

bool MvDemoWindow::moveSelection(qint64 frameOffset, int trackOffset)
{
    const QString reason = MvDemoRefusals(m_timeline, m_presenter).moveReason(frameOffset, trackOffset);
    appendJournal(tr("drag: move the selection by %1 frames and %2 rows").arg(frameOffset).arg(trackOffset));
    // A diagonal drag takes two commands; when one of them would be refused the clips would end
    // up half moved, so such a drag is not started at all.
    const bool diagonal = frameOffset != 0 && trackOffset != 0;
    bool moved = false;
    bool halfMoved = false;
    if (!diagonal || reason.isEmpty()) {
        // One step to undo, not one per direction.
        MvUndoRedoCommander step(
            m_timeline->undoRedoService(), QStringLiteral("move clips"), QStringLiteral("MvDemoWindow::moveSelection"));
        if (frameOffset != 0)
            moved = m_presenter->moveClipsHorizontal(frameOffset);
        if (trackOffset != 0 && (moved || !diagonal)) {
            halfMoved = diagonal;
            moved = m_presenter->moveClipsVertical(trackOffset);
        }
    }
    // Should the model refuse what the host foresaw as possible, the half move goes back.
    if (halfMoved && !moved)
        m_timeline->undoRedoService()->undo();
    if (!moved)
        tellRefusal(reason.isEmpty() ? tr("The clips cannot move there.") : reason);
    viewsChanged();
    return moved;
}

void MvDemoWindow::tellRefusal(const QString& text)
{
    appendJournal(tr("refused: %1").arg(text));
    m_toastHost->showNotice(text);
}

void MvDemoWindow::keyPressEvent(QKeyEvent* event)
{
    // Keys nobody took: the shortcut of a command that cannot run now is disabled, and the
    // user still deserves to hear why nothing happened.
    const int modifiers = int(event->modifiers() & ~Qt::KeypadModifier);
    if (!explainDisabledShortcut(QKeySequence(event->key() | modifiers)))
        QMainWindow::keyPressEvent(event);
}

bool MvDemoWindow::explainDisabledShortcut(const QKeySequence& keys)
{
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it) {
        QAction* action = it.value();
        if (action->isEnabled() || action->shortcut().isEmpty() || action->shortcut() != keys)
            continue;
        const QString reason = MvDemoRefusals(m_timeline, m_presenter).reason(it.key());
        tellRefusal(
            reason.isEmpty() ? tr("%1 is not available now.").arg(action->text().remove(QLatin1Char('&'))) : reason);
        return true;
    }
    return false;
}

QMenu* MvDemoWindow::contextMenu(MvDemoContextMenus::Place place)
{
    refreshActions();
    return MvDemoContextMenus::build(
        place, [this](const QString& name) { return m_actions.value(name); }, this);
}

void MvDemoWindow::showContextMenu(MvDemoContextMenus::Place place, const QPoint& globalPos)
{
    QScopedPointer<QMenu> menu(contextMenu(place));
    menu->exec(globalPos);
}

void MvDemoWindow::showTrackMenu(int trackIndex, const QPoint& globalPos)
{
    m_menuTrack = trackIndex;
    showContextMenu(MvDemoContextMenus::Place::Track, globalPos);
}

void MvDemoWindow::showRulerMenu(const QPoint& pos)
{
    // As a click on the ruler does, the right click moves the playhead there; the commands of the
    // ruler's menu then act on the timeline itself, not on a selected clip.
    m_timeline->playhead()->setCurrentFrame(qMax<qint64>(0, m_timeline->ruler()->pixelToFrame(pos.x())));
    m_timeline->selection()->setTimelineSelected(true);
    showContextMenu(MvDemoContextMenus::Place::Ruler, ruler()->mapToGlobal(pos));
}

void MvDemoWindow::setTrackSize(int policy)
{
    // Audio rows stay one size smaller than picture rows, as editors usually draw them.
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        const bool audio = m_timeline->trackAt(i)->type() == MVVBLMODEL::TrackType_Audio;
        m_presenter->adjustTrackHeight(i, audio ? qMax(0, policy - 1) : policy);
    }
    trackArea()->setScrollY(trackArea()->scrollY());
    trackArea()->updateGeometry();
    m_column->refreshScrollBars();
    keepTracksInSight();
    viewsChanged();
}

void MvDemoWindow::setTrackSize(int trackIndex, int policy)
{
    m_presenter->adjustTrackHeight(trackIndex, policy);
    trackArea()->setScrollY(trackArea()->scrollY());
    m_column->refreshScrollBars();
    viewsChanged();
}

void MvDemoWindow::refreshActions()
{
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    m_actions.value(QStringLiteral("undo"))->setEnabled(undo->canUndo());
    m_actions.value(QStringLiteral("undo"))
        ->setText(undo->canUndo() ? tr("&Undo %1").arg(MvDemoUndoWords::step(undo->undoName())) : tr("&Undo"));
    m_actions.value(QStringLiteral("redo"))->setEnabled(undo->canRedo());
    m_actions.value(QStringLiteral("redo"))
        ->setText(undo->canRedo() ? tr("&Redo %1").arg(MvDemoUndoWords::step(undo->redoName())) : tr("&Redo"));
    setWindowModified(undo->canUndo());
    refreshEditActions();
    refreshPanelActions();
    refreshClipboardActions();
    refreshEffectActions();
    refreshStatus();
}

QString MvDemoWindow::statusText() const
{
    int numerator = 30;
    int denominator = 1;
    m_timeline->ruler()->frameRate(&numerator, &denominator);
    const qint64 frame = m_timeline->playhead()->currentFrame();
    return tr("Playhead %1 (frame %2)   Selected items: %3   Undo steps: %4")
        .arg(MvTimelineRulerPresenter::formatTimecode(int(frame), numerator, denominator))
        .arg(frame)
        .arg(m_timeline->selection()->count())
        .arg(m_timeline->undoRedoService()->undoCount());
}

void MvDemoWindow::refreshStatus()
{
    m_status->setText(statusText());
}

void MvDemoWindow::appendJournal(const QString& line)
{
    m_journal.append(line);
    if (m_journalView)
        m_journalView->appendPlainText(line);
}
