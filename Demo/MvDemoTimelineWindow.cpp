#include "MvDemoTimelineWindow.h"

#include "IMvSelection.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoMarkers.h"
#include "MvDemoPlayheadTheme.h"
#include "MvDemoPresenter.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTrackArea.h"
#include "MvTimelineRulerPresenter.h"
#include "MvToast.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

MvDemoTimelineWindow::MvDemoTimelineWindow(
    MvMemoryTimeline* timeline, IMvScene* scene, const QString& title, QWidget* parent)
    : QMainWindow(parent, Qt::Window)
    , m_timeline(timeline)
{
    setWindowTitle(title);
    m_presenter = new MvDemoPresenter(this, timeline);
    m_presenter->setScene(scene);
    m_presenter->setView(this);
    m_rulerPresenter = new MvTimelineRulerPresenter(m_presenter, this);
    m_markerPresenter = new MvDemoMarkerPresenter(m_presenter, this);
    m_playheadPresenter = new MvDemoPlayheadPresenter(m_presenter, this);

    auto* central = new QWidget(this);
    auto* rows = new QHBoxLayout(central);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    m_column = new MvDemoTimelineColumn(m_presenter, m_rulerPresenter, m_markerPresenter, m_playheadPresenter, central);
    m_headers = new MvDemoTrackHeaders(m_presenter, trackArea(), central);
    rows->addWidget(m_headers);
    rows->addWidget(m_column, 1);
    setCentralWidget(central);
    for (int i = 0; i < timeline->trackCount(); ++i)
        m_presenter->adjustTrackHeight(i, 1);

    buildMenus();
    connect(m_headers, &MvDemoTrackHeaders::buttonClicked, this, &MvDemoTimelineWindow::headerButton);
    connect(m_headers, &MvDemoTrackHeaders::trackPicked, this, &MvDemoTimelineWindow::refreshActions);
    connect(trackArea(), &MvDemoTrackArea::selectionChanged, this, &MvDemoTimelineWindow::refreshActions);
    connect(trackArea(), &MvDemoTrackArea::moveRequested, this, [this](qint64 frames, int rows) {
        MvUndoRedoCommander step(m_timeline->undoRedoService(), QStringLiteral("move clips"),
            QStringLiteral("MvDemoTimelineWindow::moveRequested"));
        if (frames != 0)
            m_presenter->moveClipsHorizontal(frames);
        if (rows != 0)
            m_presenter->moveClipsVertical(rows);
    });
    connect(trackArea(), &MvDemoTrackArea::contextMenuRequested, this,
        [this](MvDemoTrackArea::MenuPlace, const QPoint& globalPos) {
            QMenu menu;
            for (const char* name : { "copy", "cut", "paste", "duplicate" })
                menu.addAction(m_actions.value(QLatin1String(name)));
            menu.exec(globalPos);
        });
    // The model tells every view of the timeline; this window may be gone by then.
    const QPointer<MvDemoTimelineWindow> self(this);
    timeline->addChangeListener([self] {
        if (self)
            self->modelChanged();
    });
    refreshActions();
    // Explicit, and above what the layouts need, as for the main window: the layouts never push a
    // minimum of their own onto the shown window.
    setMinimumSize(640, 320);
    resize(960, 360);
}

MvDemoTimelineWindow::~MvDemoTimelineWindow()
{
    // The views observe the model and the presenters: they go first.
    delete centralWidget();
    delete m_markerPresenter;
    delete m_playheadPresenter;
    delete m_rulerPresenter;
    delete m_presenter;
}

MvDemoTrackArea* MvDemoTimelineWindow::trackArea() const
{
    return m_column->trackArea();
}

QAction* MvDemoTimelineWindow::addCommand(
    QMenu* menu, const QString& name, const QString& text, const QKeySequence& shortcut, std::function<void()> command)
{
    QAction* action = menu->addAction(text);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, [this, action, command] {
        Q_EMIT journal(tr("command in %1: %2").arg(windowTitle(), action->text().remove(QLatin1Char('&'))));
        command();
        modelChanged();
    });
    m_actions.insert(name, action);
    return action;
}

void MvDemoTimelineWindow::buildMenus()
{
    MvDemoPresenter* p = m_presenter;
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    addCommand(edit, QStringLiteral("undo"), tr("&Undo"), QKeySequence::Undo, [undo] { undo->undo(); });
    addCommand(edit, QStringLiteral("redo"), tr("&Redo"), QKeySequence::Redo, [undo] { undo->redo(); });
    edit->addSeparator();
    addCommand(edit, QStringLiteral("copy"), tr("&Copy"), QKeySequence::Copy, [p] { p->copySelectedClips(); });
    addCommand(edit, QStringLiteral("cut"), tr("Cu&t"), QKeySequence::Cut, [p] { p->cutSelectedClips(); });
    addCommand(edit, QStringLiteral("paste"), tr("&Paste"), QKeySequence::Paste, [p] { p->pasteClips(); });
    addCommand(edit, QStringLiteral("duplicate"), tr("&Duplicate"), QKeySequence(Qt::CTRL + Qt::Key_D),
        [p] { p->duplicateClip(); });
    addCommand(edit, QStringLiteral("delete"), tr("De&lete"), QKeySequence::Delete, [p] { p->deleteItems(false); });
    edit->addSeparator();
    addCommand(edit, QStringLiteral("close"), tr("Close &Window"), QKeySequence::Close, [this] { close(); });
}

void MvDemoTimelineWindow::headerButton(int trackIndex, MvDemoTrackHeaders::Button button)
{
    IMvTrack* track = m_timeline->trackAt(trackIndex);
    if (!MvDemoTrackHeaders::applyButton(m_presenter, track, button))
        MvToast::creatToast(MvDemoTrackHeaders::refusal(button), this, QPixmap(), 24)->showToast();
    modelChanged();
}

void MvDemoTimelineWindow::modelChanged()
{
    trackArea()->update();
    m_headers->update();
    m_column->refreshScrollBars();
    refreshActions();
}

void MvDemoTimelineWindow::refreshActions()
{
    IMvUndoRedoService* undo = m_timeline->undoRedoService();
    const bool selected = !m_timeline->selection()->isEmpty();
    m_actions.value(QStringLiteral("undo"))->setEnabled(undo->canUndo());
    m_actions.value(QStringLiteral("redo"))->setEnabled(undo->canRedo());
    for (const char* name : { "copy", "cut", "duplicate", "delete" })
        m_actions.value(QLatin1String(name))->setEnabled(selected);
    m_actions.value(QStringLiteral("paste"))->setEnabled(m_presenter->canPasteClip());
}
