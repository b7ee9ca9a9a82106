// Adding the project's media to the timeline: the Media panel, the drop target on the tracks, the
// media questions of the scene, and the command that puts an item at the playhead.
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryCompoundMediaItem.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvSampleProject.h"
#include "MvCustomEvent.h"
#include "MvDemoMediaDrop.h"
#include "MvDemoMediaPanel.h"
#include "MvDemoMediaScene.h"
#include "MvDemoPresenter.h"
#include "MvDemoScenario.h"
#include "MvDemoScene.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTrackArea.h"
#include "MvTimelineAddMediaParam.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>

using namespace MVVBLMODEL;

namespace {
// How long the sample compound takes to read: long enough to see the wait, short offscreen.
constexpr int kInteractiveReadMs = 1500;
constexpr int kOffscreenReadMs = 300;

QString quoted(const IMvAbstractMediaItem* item)
{
    return QStringLiteral("\u201c%1\u201d").arg(item->name());
}
}

void MvDemoWindow::buildMediaPanel(bool interactive)
{
    m_mediaLibrary.reset(new MvMemoryMediaLibrary);
    MvSampleProject::buildMediaLibrary(
        *m_mediaLibrary, *m_timeline, interactive ? kInteractiveReadMs : kOffscreenReadMs);
    // The presenter's view is the timeline column: its wait dialog and its notices centre there.
    m_presenter->setView(m_column);
    m_mediaPanel = new MvDemoMediaPanel(m_mediaLibrary.data(), this);
    addDockWidget(Qt::LeftDockWidgetArea, m_mediaPanel);
    resizeDocks({ m_mediaPanel }, { 300 }, Qt::Horizontal);
    connect(m_mediaPanel, &MvDemoMediaPanel::addRequested, this,
        [this](MvMemoryMediaItem* item) { addMedia(item, m_timeline->playhead()->currentFrame()); });

    m_mediaDrop = new MvDemoMediaDrop(trackArea());
    // Queued: the drag has ended before the insertion asks its questions.
    connect(
        m_mediaDrop, &MvDemoMediaDrop::dropped, this,
        [this](int itemRow, qint64 frame, int trackIndex) {
            if (MvMemoryMediaItem* item = m_mediaPanel->itemAt(itemRow))
                addMedia(item, frame, trackIndex);
        },
        Qt::QueuedConnection);

    m_mediaScene = new MvDemoMediaScene(m_timeline, this);
    m_mediaScene->setDialogParent(this);
    m_mediaScene->setInteractive(interactive);
    m_scene->addMessageHandler(
        [this](MvMessage* message, QString* detail) { return m_mediaScene->handleMessage(message, detail); });
    connect(m_mediaScene, &MvDemoMediaScene::scrollRequested, this, &MvDemoWindow::scrollToClips);
    connect(m_mediaScene, &MvDemoMediaScene::mediaChanged, m_mediaPanel, &MvDemoMediaPanel::refresh);

    // Raised on the worker that inserts compound media: the journal hears of it on this thread.
    new MvCustomEventListener(this, QLatin1String(MvEventName::NotifyAddSharedClipsAssetsToProjectMedia),
        [this](const MvCustomEventImp& event) {
            const int count = event.value(1).value<QList<IMvClip*>>().size();
            QMetaObject::invokeMethod(
                this,
                [this, count] {
                    appendJournal(count == 1
                            ? tr("project media: the shared assets of the new clip are in the project")
                            : tr("project media: the shared assets of %1 new clips are in the project").arg(count));
                },
                Qt::QueuedConnection);
            return false;
        });
}

void MvDemoWindow::buildMediaMenu()
{
    QMenu* media = menuBar()->addMenu(tr("&Media"));
    QAction* add = addCommand(media, QStringLiteral("add-media"), tr("&Add to Timeline"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_A), [this] {
            MvMemoryMediaItem* item = m_mediaPanel->currentItem();
            if (!item) {
                tellRefusal(tr("Choose an item in the Media panel first."));
                return true;
            }
            addMedia(item, m_timeline->playhead()->currentFrame());
            return true;
        });
    add->setEnabled(false);
    connect(m_mediaPanel->list(), &QListWidget::currentRowChanged, add, [add](int row) { add->setEnabled(row >= 0); });
    media->addAction(m_mediaPanel->toggleViewAction());
}

bool MvDemoWindow::addMedia(MvMemoryMediaItem* item, qint64 frame, int trackIndex)
{
    appendJournal(trackIndex < 0
            ? tr("add media: %1 at frame %2").arg(quoted(item)).arg(frame)
            : tr("add media: %1 at frame %2 on row %3").arg(quoted(item)).arg(frame).arg(trackIndex));
    QList<IMvAbstractMediaItem*> items { item };
    if (item->isVCGItem())
        items = m_presenter->readyVCGItem(item);
    m_rowsBeforeInsert.clear();
    for (int i = 0; i < m_timeline->trackCount(); ++i)
        m_rowsBeforeInsert.append(m_timeline->trackAt(i));
    QList<IMvClip*> clips;
    if (!items.isEmpty()) {
        MvTimelineAddMediaParam request;
        request.trackIndex = trackIndex;
        request.startFrame = frame;
        request.mediaItems = items;
        clips = m_presenter->addMedias(request, 0);
    }
    fitNewRows();
    m_mediaPanel->refresh();
    if (clips.isEmpty()) {
        const QString reason = mediaRefusal(item);
        if (!reason.isEmpty())
            tellRefusal(reason);
    }
    viewsChanged();
    return !clips.isEmpty();
}

// Rows the insertion made take the height of the rows of their kind.
void MvDemoWindow::fitNewRows()
{
    for (int i = 0; i < m_timeline->trackCount(); ++i) {
        IMvTrack* row = m_timeline->trackAt(i);
        if (m_rowsBeforeInsert.contains(row))
            continue;
        for (const IMvTrack* model : qAsConst(m_rowsBeforeInsert)) {
            if (model->type() == row->type()) {
                row->setHeight(model->height());
                break;
            }
        }
    }
    m_column->refreshScrollBars();
}

// Why an item did not reach the timeline, read from what it still lacks; empty when the library
// has told the user itself (a compound clip refused by the timeline).
QString MvDemoWindow::mediaRefusal(MvMemoryMediaItem* item) const
{
    if (item->needDownload())
        return tr("%1 was not downloaded.").arg(quoted(item));
    const auto* stock = dynamic_cast<const MvMemoryStockMediaItem*>(item);
    const auto* vcg = dynamic_cast<const MvMemoryVCGMediaItem*>(item);
    if ((stock && stock->selectedResolution() < 0)
        || (vcg && vcg->resolutionCount() > 1 && vcg->selectedResolution() < 0))
        return tr("No resolution was chosen for %1.").arg(quoted(item));
    if (const auto* compound = dynamic_cast<const MvMemoryCompoundMediaItem*>(item))
        return compound->isTimelineLoaded() ? QString() : tr("%1 could not be read in time.").arg(quoted(item));
    if (item->lengthInFrames(m_timeline->frameRate()) < 1 && item->mediaType() != MediaType_ScreenRecording)
        return tr("%1 is empty: there is nothing to add.").arg(quoted(item));
    return tr("%1 could not be added.").arg(quoted(item));
}

// The new clips come into view: their first row, and their start when it is off screen.
void MvDemoWindow::scrollToClips(const QList<IMvClip*>& clips)
{
    if (clips.isEmpty() || !clips.first())
        return;
    fitNewRows();
    MvDemoTrackArea* area = trackArea();
    int top = -1;
    int bottom = -1;
    for (const IMvClip* clip : clips) {
        const int rowTop = area->rowTop(clip->trackIndex()) + area->scrollY();
        const int rowBottom = rowTop + m_timeline->trackAt(clip->trackIndex())->height();
        top = top < 0 ? rowTop : qMin(top, rowTop);
        bottom = qMax(bottom, rowBottom);
    }
    if (top < area->scrollY())
        area->setScrollY(top);
    else if (bottom > area->scrollY() + area->height())
        area->setScrollY(qMin(top, bottom - area->height()));
    IMvTimelineRuler* ruler = m_timeline->ruler();
    const qint64 start = clips.first()->start();
    if (start < ruler->visibleStartFrame() || start > ruler->visibleEndFrame()) {
        const qint64 visible = ruler->visibleFrames();
        const qint64 from = qMax<qint64>(0, start - visible / 10);
        ruler->setVisualRange(from, from + visible - 1);
    }
    m_column->refreshScrollBars();
}

QList<MvDemoScenario::Step> MvDemoScenario::mediaSteps()
{
    return {
        { QStringLiteral("media-double-click"),
            [this] {
                seek(0);
                doubleClickMedia(QStringLiteral("Sunset timelapse.mp4"));
            } },
        { QStringLiteral("media-drop-on-row"), [this] { dropMedia(QStringLiteral("Island map.png"), 40 * 30, 1); } },
        { QStringLiteral("media-stock-download"),
            [this] {
                seek(20 * 30);
                MvDemoMediaPanel* panel = m_window->mediaPanel();
                panel->list()->setCurrentRow(panel->rowOf(QStringLiteral("Stock: city lights")));
                panel->addButton()->click();
            } },
        { QStringLiteral("media-compound"),
            [this] {
                seek(0);
                doubleClickMedia(QStringLiteral("Beach sequence"));
            } },
        { QStringLiteral("media-compound-into-itself"), [this] { doubleClickMedia(QStringLiteral("This timeline")); } },
    };
}

void MvDemoScenario::doubleClickMedia(const QString& name)
{
    MvDemoMediaList* list = m_window->mediaPanel()->list();
    QListWidgetItem* row = list->item(m_window->mediaPanel()->rowOf(name));
    list->scrollToItem(row);
    QApplication::processEvents();
    const QPoint global = list->viewport()->mapToGlobal(list->visualItemRect(row).center());
    mouse(list->viewport(), QEvent::MouseButtonPress, global, Qt::LeftButton);
    mouse(list->viewport(), QEvent::MouseButtonRelease, global, Qt::NoButton);
    mouse(list->viewport(), QEvent::MouseButtonDblClick, global, Qt::LeftButton);
    mouse(list->viewport(), QEvent::MouseButtonRelease, global, Qt::NoButton);
}

// What a drag from the panel ends in: the drop events the track area receives.
void MvDemoScenario::dropMedia(const QString& name, qint64 frame, int trackIndex)
{
    MvDemoMediaList* list = m_window->mediaPanel()->list();
    const int row = m_window->mediaPanel()->rowOf(name);
    QScopedPointer<QMimeData> data(list->model()->mimeData({ list->model()->index(row, 0) }));
    MvDemoTrackArea* area = m_window->trackArea();
    const QPoint at(area->mapping().xOf(frame), area->rowTop(trackIndex) + 8);
    QDragEnterEvent enter(at, Qt::CopyAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &enter);
    QDropEvent drop(at, Qt::CopyAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &drop);
    QApplication::processEvents();
}
