#include "MvDemoWindow.h"

#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvSampleProject.h"
#include "MvDemoPlayer.h"
#include "MvDemoPresenter.h"
#include "MvDemoScene.h"
#include "MvDemoToastHost.h"
#include "MvDemoTrackArea.h"
#include "MvDemoTrackHeaders.h"
#include "MvDemoRenderSimulator.h"
#include "MvDemoMarkers.h"
#include "MvDemoPlayheadTheme.h"
#include "IMvMarker.h"
#include "IMvShortcutEditManager.h"
#include "MvEventFilterManager.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QAction>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

MvDemoWindow::MvDemoWindow(bool interactive, QWidget* parent)
    : QMainWindow(parent), m_timeline(new MvMemoryTimeline(0))
{
    setWindowTitle(tr("MvTimeline Demo"));
    MvSampleProject::build(*m_timeline);
    m_player = new MvDemoPlayer(m_timeline.data(), this);
    m_scene = new MvDemoScene(m_player, this);
    m_scene->setDialogParent(this);
    m_scene->setInteractive(interactive);
    connect(m_scene, &MvDemoScene::journal, this, &MvDemoWindow::appendJournal);
    new MvDemoToastHost(this);

    m_presenter = new MvDemoPresenter(this, m_timeline.data());
    m_presenter->setScene(m_scene);
    connect(m_presenter, &MvDemoPresenter::actionsNeedRefresh, this, &MvDemoWindow::refreshActions);
    connect(m_presenter, &MvTimelinePresenter::sigActionStatusChanged, this, &MvDemoWindow::refreshActions);

    buildLayout();
    buildMenus();
    m_timeline->addChangeListener([this] { modelChanged(); });
    setTrackSize(1);
    refreshActions();
    resize(1280, 720);
}

MvDemoWindow::~MvDemoWindow()
{
    // Widgets and presenters observe the model; they go before the model does.
    m_ruler->eventFilterMgr()->removeFilter(m_playhead);
    m_trackArea->eventFilterMgr()->removeFilter(m_playhead);
    delete centralWidget();
    delete m_markerPresenter;
    delete m_playheadPresenter;
    delete m_renderSimulator;
    delete m_rulerPresenter;
    delete m_presenter;
}

void MvDemoWindow::buildLayout()
{
    auto* central = new QWidget(this);
    auto* rows = new QHBoxLayout(central);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto* right = new QWidget(central);
    m_timelineColumn = right;
    right->installEventFilter(this);
    auto* column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_rulerPresenter = new MvTimelineRulerPresenter(m_presenter, this);
    m_ruler = new MvTimelineRulerWidget(m_rulerPresenter, right);
    m_ruler->setFixedHeight(28);
    m_renderStrip = new MvTimelineRenderWidget(m_presenter, right);
    m_renderStrip->setFixedHeight(4);
    m_renderStrip->setFinishedColor(QColor(0x3C, 0xB3, 0x71));
    m_renderStrip->setUnFinishedColor(QColor(0xD9, 0x53, 0x4F));
    m_trackArea = new MvDemoTrackArea(m_timeline.data(), right);
    m_markerPresenter = new MvDemoMarkerPresenter(m_presenter, this);
    m_markerStrip = new MvDemoMarkerStrip(m_markerPresenter, right);
    column->addWidget(m_markerStrip);
    column->addWidget(m_ruler);
    column->addWidget(m_renderStrip);
    column->addWidget(m_trackArea, 1);
    m_renderSimulator = new MvDemoRenderSimulator(m_timeline.data(), this);
    buildPlayhead(right);
    connect(m_rulerPresenter, &MvTimelineRulerPresenter::visualRangeChanged, m_markerPresenter,
        &MvMarkerPresenter::signalMarkerCountChanged);
    connect(m_rulerPresenter, &MvTimelineRulerPresenter::zoomChanged, m_markerPresenter,
        &MvMarkerPresenter::signalMarkerCountChanged);
    connect(m_markerStrip, &MvDemoMarkerStrip::markerPicked, this, [this](IMvMarker* marker) {
        m_timeline->markerModel()->setSelectedMarker(marker);
        m_timeline->selection()->setTimelineSelected(true);
        m_timeline->playhead()->setCurrentFrame(marker->ownerList()->mapToTimeline(marker->frame()));
        refreshActions();
    });
    connect(m_markerStrip, &MvDemoMarkerStrip::editRequested, this,
        [this] { m_actions.value(QStringLiteral("edit-marker"))->trigger(); });
    m_headers = new MvDemoTrackHeaders(m_timeline.data(), m_trackArea, central);
    rows->addWidget(m_headers);
    rows->addWidget(right, 1);
    setCentralWidget(central);
    connect(m_trackArea, &MvDemoTrackArea::selectionChanged, this, &MvDemoWindow::refreshActions);
    connect(m_trackArea, &MvDemoTrackArea::playheadMoved, this, &MvDemoWindow::refreshActions);
    connect(m_headers, &MvDemoTrackHeaders::lockToggled, this, &MvDemoWindow::refreshActions);

    m_journalView = new QPlainTextEdit(this);
    m_journalView->setReadOnly(true);
    auto* dock = new QDockWidget(tr("Command journal"), this);
    dock->setWidget(m_journalView);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    m_status = new QLabel(this);
    statusBar()->addWidget(m_status, 1);
}

void MvDemoWindow::buildPlayhead(QWidget* column)
{
    m_playheadPresenter = new MvDemoPlayheadPresenter(m_presenter, this);
    m_playhead = new MvTimelinePlayheadWidget(m_playheadPresenter, column);
    // The overlay sees the ruler's and the track area's mouse events before they do.
    m_ruler->eventFilterMgr()->addFilter(m_playhead);
    m_trackArea->eventFilterMgr()->addFilter(m_playhead);
    // A click on the split button selects the new pieces after the model's step has closed:
    // the menus catch up once the click has been handled.
    m_ruler->installEventFilter(this);
    m_trackArea->installEventFilter(this);
    connect(m_playheadPresenter, &MvTimelinePlayheadPresenter::sigStartDragPlayHead, m_player, &MvDemoPlayer::pause);
    if (auto* shortcuts = dynamic_cast<MvShortcutEditManager*>(IMvShortcutEditManager::GetInstance()))
        shortcuts->setShortcutText(MvCommandId::SplitClips, QKeySequence(Qt::CTRL + Qt::Key_B).toString(QKeySequence::NativeText));
}

bool MvDemoWindow::eventFilter(QObject* watched, QEvent* event)
{
    // The playhead overlay spans the ruler and the tracks, with its x = 0 on the ruler's.
    if ((watched == m_ruler || watched == m_trackArea) && event->type() == QEvent::MouseButtonRelease) {
        QTimer::singleShot(0, this, [this] {
            m_trackArea->update();
            refreshActions();
        });
    }
    if (watched == m_timelineColumn && event->type() == QEvent::Resize && m_playhead) {
        m_playhead->setGeometry(0, m_ruler->y(), m_timelineColumn->width(), m_timelineColumn->height() - m_ruler->y());
        m_playhead->raise();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MvDemoWindow::modelChanged()
{
    m_trackArea->update();
    m_headers->update();
    Q_EMIT m_markerPresenter->signalMarkerCountChanged();
    refreshActions();
}

QAction* MvDemoWindow::addCommand(
    QMenu* menu, const QString& name, const QString& text, const QKeySequence& shortcut, std::function<void()> command)
{
    auto* action = menu->addAction(text);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, [this, name, command] {
        appendJournal(QStringLiteral("command: %1").arg(name));
        command();
        m_trackArea->update();
        m_headers->update();
        refreshActions();
    });
    m_actions.insert(name, action);
    return action;
}

void MvDemoWindow::buildMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    addCommand(file, QStringLiteral("quit"), tr("&Quit"), QKeySequence::Quit, [this] { close(); });

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    addCommand(edit, QStringLiteral("undo"), tr("&Undo"), QKeySequence::Undo, [undo] { undo->undo(); });
    addCommand(edit, QStringLiteral("redo"), tr("&Redo"), QKeySequence::Redo, [undo] { undo->redo(); });

    buildClipMenu();
    buildMarkerAndKeyFrameMenus();

    QMenu* view = menuBar()->addMenu(tr("&View"));
    addCommand(view, QStringLiteral("zoom-fit"), tr("Zoom to &Fit"), QKeySequence(Qt::SHIFT + Qt::Key_Z),
        [this] { m_presenter->fitTimeline(); });
    addCommand(view, QStringLiteral("zoom-in"), tr("Zoom &In"), QKeySequence::ZoomIn, [this] {
        m_rulerPresenter->zoom(-120);
        m_rulerPresenter->moveCurrentFrameToCenter();
    });
    addCommand(view, QStringLiteral("zoom-out"), tr("Zoom &Out"), QKeySequence::ZoomOut, [this] {
        m_rulerPresenter->zoom(120);
        m_rulerPresenter->moveCurrentFrameToCenter();
    });
    view->addSeparator();
    addCommand(view, QStringLiteral("rows-small"), tr("Small Tracks"), QKeySequence(), [this] { setTrackSize(0); });
    addCommand(view, QStringLiteral("rows-normal"), tr("Normal Tracks"), QKeySequence(), [this] { setTrackSize(1); });
    addCommand(view, QStringLiteral("rows-large"), tr("Large Tracks"), QKeySequence(), [this] { setTrackSize(2); });

    QMenu* playback = menuBar()->addMenu(tr("&Playback"));
    addCommand(playback, QStringLiteral("play"), tr("Play / Pause"), QKeySequence(Qt::Key_Space),
        [this] { m_player->toggle(); });
}

void MvDemoWindow::setTrackSize(int policy)
{
    // Audio rows stay one size smaller than picture rows, as editors usually draw them.
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        const bool audio = m_timeline->trackAt(i)->type() == MVVBLMODEL::TrackType_Audio;
        m_presenter->adjustTrackHeight(i, audio ? qMax(0, policy - 1) : policy);
    }
    m_trackArea->updateGeometry();
    m_trackArea->update();
    m_headers->update();
}

void MvDemoWindow::refreshActions()
{
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    m_actions.value(QStringLiteral("undo"))->setEnabled(undo->canUndo());
    m_actions.value(QStringLiteral("undo"))->setText(
        undo->canUndo() ? tr("&Undo %1").arg(undo->undoName()) : tr("&Undo"));
    m_actions.value(QStringLiteral("redo"))->setEnabled(undo->canRedo());
    m_actions.value(QStringLiteral("redo"))->setText(
        undo->canRedo() ? tr("&Redo %1").arg(undo->redoName()) : tr("&Redo"));
    refreshEditActions();
    refreshStatus();
}

void MvDemoWindow::refreshStatus()
{
    const int selected = m_timeline->selection()->count();
    m_status->setText(tr("Playhead %1   Selected items: %2   Undo steps: %3")
                          .arg(m_timeline->playhead()->currentFrame())
                          .arg(selected)
                          .arg(m_timeline->undoRedoService()->undoCount()));
}

void MvDemoWindow::appendJournal(const QString& line)
{
    m_journal.append(line);
    if (m_journalView)
        m_journalView->appendPlainText(line);
}
