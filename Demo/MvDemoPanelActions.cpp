// The host's panels that the timeline presenter asks for: the Properties dock (property pages,
// keyframe lists, advanced editors, colour editor, the media editor's text list) and the Library
// dock, with the commands that ask for them, why a command cannot run, and the scenario's tour
// of them.
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvKeyFrameSelector.h"
#include "IMvResourceInfo.h"
#include "IMvSelection.h"
#include "IMvTimelineClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoLibraryDock.h"
#include "MvDemoPresenter.h"
#include "MvDemoPropertiesDock.h"
#include "MvDemoRefusals.h"
#include "MvDemoScenario.h"
#include "MvDemoScene.h"
#include "MvTimelineClipHelper.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>

using namespace MVVBLMODEL;

namespace {
// A request without an answer of its own: it goes out when the presenter says it may.
MvDemoWindow::Command when(std::function<bool()> allowed, std::function<void()> run)
{
    return [allowed, run] {
        if (!allowed())
            return false;
        run();
        return true;
    };
}
}

void MvDemoWindow::buildPanels()
{
    m_propertiesDock = new MvDemoPropertiesDock(m_timeline, m_presenter, this);
    m_libraryDock = new MvDemoLibraryDock(this);
    // Tabs beside the journal: the tracks keep their width, and a request raises its panel.
    tabifyDockWidget(m_journalDock, m_propertiesDock);
    tabifyDockWidget(m_propertiesDock, m_libraryDock);
    m_journalDock->raise();
    m_scene->addMessageHandler(
        [this](MvMessage* message, QString* detail) { return m_propertiesDock->handleMessage(message, detail); });
    m_scene->addMessageHandler(
        [this](MvMessage* message, QString* detail) { return m_libraryDock->handleMessage(message, detail); });
    connect(m_propertiesDock, &MvDemoPropertiesDock::journal, this, &MvDemoWindow::appendJournal);
    connect(m_propertiesDock, &MvDemoPropertiesDock::keyFramePicked, this, &MvDemoWindow::viewsChanged);
}

void MvDemoWindow::buildPanelMenu()
{
    MvDemoPresenter* p = m_presenter;
    IMvKeyFrameSelector* keys = m_timeline->keyFrameSelector();
    QMenu* panels = menuBar()->addMenu(tr("P&anels"));
    addCommand(panels, QStringLiteral("find-similar"), tr("Find &Similar"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F),
        when([p] { return p->canSearchSimilarResource(); }, [p] { p->searchSimilarResource(); }));
    addCommand(panels, QStringLiteral("select-all-texts"), tr("Select All &Texts"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_T),
        when([p] { return p->canSelectAllSubTextClips(); }, [p] { p->selectAllSubTextClips(); }));
    panels->addSeparator();
    addCommand(panels, QStringLiteral("show-properties"), tr("&Properties"), QKeySequence(Qt::CTRL + Qt::Key_I), [p] {
        p->showPropertyPanel(-1);
        return true;
    });
    addCommand(panels, QStringLiteral("advanced-edit"), tr("Advanced &Edit..."), QKeySequence(Qt::CTRL + Qt::Key_E),
        when([this] { return dynamic_cast<IMvClip*>(m_timeline->selection()->currentItem()) != nullptr; },
            [p] { p->showAdvancedEdit(true); }));
    addCommand(panels, QStringLiteral("advanced-color"), tr("Advanced &Colour..."),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C),
        when([p] { return p->getPropertyType(p->getFirstSelectedClip()) == PropertyType_Picture; },
            [p] { p->showAdvancedColor(); }));
    addCommand(panels, QStringLiteral("add-animation"), tr("&Animation"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_K),
        when([p] { return p->getFirstSelectedClip() != nullptr; }, [p] { p->addAnimation(); }));
    addCommand(panels, QStringLiteral("audio-keyframe-panel"), tr("Audio Panel of the Picked &Keyframe"),
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_U),
        when([keys] { return keys->currentSelection().isValid(); }, [p] { p->openAudioPropertyPanel(); }));
    addCommand(panels, QStringLiteral("hide-properties"), tr("&Hide Properties"), QKeySequence(), [this, p] {
        p->hidePropertyPanel();
        return !m_propertiesDock->isVisible();
    });
    panels->addSeparator();
    panels->addAction(m_propertiesDock->toggleViewAction());
    panels->addAction(m_libraryDock->toggleViewAction());
}

void MvDemoWindow::refreshPanelActions()
{
    const MvDemoRefusals refusals(m_timeline, m_presenter);
    for (const char* name : { "find-similar", "select-all-texts", "advanced-edit", "advanced-color", "add-animation",
             "audio-keyframe-panel" }) {
        if (QAction* action = m_actions.value(QLatin1String(name)))
            action->setEnabled(refusals.reason(QLatin1String(name)).isEmpty());
    }
    // The presenter's own answers decide its two questions; the reasons above say the same in words.
    m_actions.value(QStringLiteral("find-similar"))->setEnabled(m_presenter->canSearchSimilarResource());
    m_actions.value(QStringLiteral("select-all-texts"))->setEnabled(m_presenter->canSelectAllSubTextClips());
    m_actions.value(QStringLiteral("hide-properties"))->setEnabled(m_propertiesDock->isVisible());
    m_propertiesDock->refresh();
}

QString MvDemoRefusals::findSimilarReason() const
{
    const QList<IMvAbstractClip*> items = m_timeline->selection()->selectedItems();
    if (items.size() != 1)
        return tr("Select one clip made from a library resource to find similar ones.");
    const IMvResourceInfo* resource = items.first()->resourceInfo();
    if (!resource)
        return tr("\u201c%1\u201d is your own media: the library finds only resources like its own.")
            .arg(items.first()->name());
    if (!resource->canFindSimilar())
        return tr("The library's similarity search does not know \u201c%1\u201d.").arg(resource->title());
    return QString();
}

QString MvDemoRefusals::selectAllTextsReason() const
{
    const QList<IMvClip*> clips = m_timeline->selection()->selectedClips();
    if (m_timeline->selection()->count() != 1 || clips.size() != 1 || clips.first()->type() != ClipType_Text)
        return tr("Select one composed text to select its texts.");
    auto* container = dynamic_cast<IMvTimelineClip*>(clips.first());
    if (MvTimelineClipHelper::getAllChildClips(container, ClipType_Text).isEmpty())
        return tr("\u201c%1\u201d is not composed of texts.").arg(clips.first()->name());
    return QString();
}

QString MvDemoRefusals::panelClipReason() const
{
    if (!dynamic_cast<IMvClip*>(m_timeline->selection()->currentItem()))
        return tr("Select a clip first.");
    return QString();
}

QString MvDemoRefusals::colourReason() const
{
    const QString noClip = panelClipReason();
    if (!noClip.isEmpty())
        return noClip;
    if (!m_presenter || m_presenter->getPropertyType(m_presenter->getFirstSelectedClip()) != PropertyType_Picture)
        return tr("Colours are graded on picture clips.");
    return QString();
}

QString MvDemoRefusals::audioKeyFramePanelReason() const
{
    if (!m_timeline->keyFrameSelector()->currentSelection().isValid())
        return tr("Pick a keyframe in the Properties dock first.");
    return QString();
}

QList<MvDemoScenario::Step> MvDemoScenario::panelSteps()
{
    return {
        { QStringLiteral("select-all-texts"),
            [this] {
                select(QStringLiteral("Lower third"));
                trigger(QStringLiteral("select-all-texts"));
            } },
        { QStringLiteral("find-similar"),
            [this] {
                select(QStringLiteral("Theme"));
                trigger(QStringLiteral("find-similar"));
            } },
        { QStringLiteral("keyframe-panel"),
            [this] {
                // The piece of the music that kept its volume keyframes through the earlier cuts.
                for (MvMemoryClip* clip : m_window->timeline()->liveClips()) {
                    if (clip->name() == QLatin1String("Theme") && !clip->keyFrames(true).isEmpty())
                        m_window->timeline()->selection()->select({ clip });
                }
                trigger(QStringLiteral("add-animation"));
                pickFirstKeyFrame(true);
            } },
        { QStringLiteral("audio-panel"), [this] { trigger(QStringLiteral("audio-keyframe-panel")); } },
        { QStringLiteral("advanced-subtitle-editor"),
            [this] {
                select(QStringLiteral("Subtitles"));
                trigger(QStringLiteral("advanced-edit"));
            } },
        { QStringLiteral("advanced-colour"),
            [this] {
                select(QStringLiteral("Old map"));
                trigger(QStringLiteral("advanced-color"));
            } },
    };
}

void MvDemoScenario::pickFirstKeyFrame(bool audio)
{
    QListWidget* keys = m_window->propertiesDock()->keyFrameList(audio);
    if (keys->count() == 0)
        return;
    QApplication::processEvents();
    QWidget* viewport = keys->viewport();
    const QPoint global = viewport->mapToGlobal(keys->visualItemRect(keys->item(0)).center());
    mouse(viewport, QEvent::MouseButtonPress, global, Qt::LeftButton);
    mouse(viewport, QEvent::MouseButtonRelease, global, Qt::NoButton);
}
