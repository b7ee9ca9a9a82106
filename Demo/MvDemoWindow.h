#pragma once

#include "MvDemoContextMenus.h"
#include "MvDemoTrackHeaders.h"

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QScopedPointer>

#include <functional>

class QAction;
class QDockWidget;
class QLabel;
class QMenu;
class QPlainTextEdit;
class IMvAbstractMediaItem;
class IMvClip;
class IMvTrack;
class MvMemoryMediaItem;
class MvMemoryMediaLibrary;
class MvMemoryTimeline;
class MvSampleProject;
class MvDemoEffectDrops;
class MvDemoEffectsDock;
class MvDemoMediaDrop;
class MvDemoMediaPanel;
class MvDemoMediaScene;
class MvDemoLibraryDock;
class MvDemoTransitionsDock;
class MvMemoryProjectManager;
class MvMessage;
class MvDemoLogRouter;
class MvDemoMarkerPresenter;
class MvDemoPlayer;
class MvDemoPlayheadPresenter;
class MvDemoPresenter;
class MvDemoPropertiesDock;
class MvDemoRenderSimulator;
class MvDemoScene;
class MvDemoTimelineColumn;
class MvDemoTimelineWindow;
class MvDemoToastHost;
class MvDemoTrackArea;
class MvDemoTrackHeaders;
class MvTimelinePlayheadWidget;
class MvTimelineRulerPresenter;
class MvTimelineRulerWidget;

// The demo editor: the library's presenters and widgets over an in-memory sample project.
class MvDemoWindow : public QMainWindow
{
    Q_OBJECT

public:
    // A command reports whether it did something; when it did not, the window says why if it can.
    using Command = std::function<bool()>;

    // Not interactive: questions get the most common answer (the offscreen scenario). Verbose:
    // the library's detail and note records reach the terminal too, not only the journal.
    explicit MvDemoWindow(bool interactive, bool verbose = false, QWidget* parent = nullptr);
    ~MvDemoWindow() override;

    static QString projectName();

    MvMemoryTimeline* timeline() const { return m_timeline; }
    // The project's timelines: the one this window edits, the sequence of its compound clip and
    // the timeline of another project.
    MvSampleProject* project() const { return m_project.data(); }
    // The window open over another timeline of the projects, or null.
    MvDemoTimelineWindow* timelineWindow(const MvMemoryTimeline* timeline) const;
    MvDemoPresenter* presenter() const { return m_presenter; }
    MvDemoTimelineColumn* column() const { return m_column; }
    MvDemoTrackArea* trackArea() const;
    MvDemoTrackHeaders* trackHeaders() const { return m_headers; }
    MvTimelineRulerWidget* ruler() const;
    MvDemoRenderSimulator* renderSimulator() const { return m_renderSimulator; }
    MvTimelinePlayheadWidget* playheadWidget() const;
    QAction* action(const QString& name) const { return m_actions.value(name); }
    QString statusText() const;
    void appendJournal(const QString& line);
    QStringList journalLines() const { return m_journal; }
    // The host's panels the presenter asks for (MvDemoPanelActions.cpp).
    MvDemoPropertiesDock* propertiesDock() const { return m_propertiesDock; }
    MvDemoLibraryDock* libraryDock() const { return m_libraryDock; }
    // The project's media and what adding it asks of the host (MvDemoMediaActions.cpp).
    MvMemoryMediaLibrary* mediaLibrary() const { return m_mediaLibrary.data(); }
    MvDemoMediaPanel* mediaPanel() const { return m_mediaPanel; }
    MvDemoMediaScene* mediaScene() const { return m_mediaScene; }
    MvDemoMediaDrop* mediaDrop() const { return m_mediaDrop; }
    // Adds the item at a frame, on a row when one is given (-1: the timeline chooses); false
    // when nothing was added, and the user is told why.
    bool addMedia(MvMemoryMediaItem* item, qint64 frame, int trackIndex = -1);
    // Transitions and effects (MvDemoEffectActions.cpp): two more panels over the project's media
    // library, and the drops of their items onto the tracks.
    MvDemoTransitionsDock* transitionsDock() const { return m_transitionsDock; }
    MvDemoEffectsDock* effectsDock() const { return m_effectsDock; }
    MvDemoEffectDrops* effectDrops() const { return m_effectDrops; }

    // Tells the user why a command did nothing. One place, so that the notice can change its look.
    void tellRefusal(const QString& text);
    // The context menu of a place, as a right click opens it; the caller owns the menu.
    QMenu* contextMenu(MvDemoContextMenus::Place place);
    // Moves the selection as a drag of it asks: by frames, and by rows of the first clip's kind.
    bool moveSelection(qint64 frameOffset, int trackOffset);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void buildJournal();
    void connectViews();
    void modelChanged();
    void buildMenus();
    void buildClipMenu();
    void buildMarkerAndKeyFrameMenus();
    void buildViewMenu();
    void buildTrackActions();
    // The property panels and the media library (MvDemoPanelActions.cpp).
    void buildPanels();
    void buildPanelMenu();
    void refreshPanelActions();
    // The clipboard, the track marks, audio, empty tracks and the windows over other timelines
    // (MvDemoClipboardActions.cpp).
    void buildClipboardActions(QMenu* edit);
    void buildAudioActions(QMenu* clip);
    void buildTimelineMenu();
    void refreshClipboardActions();
    void headerButton(int trackIndex, MvDemoTrackHeaders::Button button);
    void trackPicked();
    bool openCompound();
    MvDemoTimelineWindow* openTimelineWindow(MvMemoryTimeline* timeline, const QString& title);
    // The media panel, its drop target on the tracks and the media questions of the scene
    // (MvDemoMediaActions.cpp).
    void buildMediaPanel(bool interactive);
    void buildMediaMenu();
    void scrollToClips(const QList<IMvClip*>& clips);
    void fitNewRows();
    QString mediaRefusal(MvMemoryMediaItem* item) const;
    // Transitions and effects (MvDemoEffectActions.cpp).
    void buildEffectPanels();
    void buildEffectMenu();
    void refreshEffectActions();
    void dropTransition(IMvClip* clip, int transitionType, MvMemoryMediaItem* item);
    // Applies the effect to the clips; false, and the user told why, when no clip took it.
    bool applyEffect(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item);
    bool describeEffectMessage(MvMessage* message, QString* detail);
    void refreshEditActions();
    QAction* addCommand(
        QMenu* menu, const QString& name, const QString& text, const QKeySequence& shortcut, Command command);
    void runCommand(const QString& name, const Command& command);
    bool explainDisabledShortcut(const QKeySequence& keys);
    void refreshActions();
    void refreshStatus();
    void setTrackSize(int policy);
    void setTrackSize(int trackIndex, int policy);
    void showContextMenu(MvDemoContextMenus::Place place, const QPoint& globalPos);
    void showTrackMenu(int trackIndex, const QPoint& globalPos);
    void showRulerMenu(const QPoint& pos);
    void viewsChanged();
    void keepTracksInSight();

    QScopedPointer<MvSampleProject> m_project;
    MvMemoryTimeline* m_timeline = nullptr;
    QHash<const MvMemoryTimeline*, QPointer<MvDemoTimelineWindow>> m_timelineWindows;
    // The projects the once-per-project notices are remembered with.
    QScopedPointer<MvMemoryProjectManager> m_projects;
    MvDemoLogRouter* m_logRouter = nullptr;
    MvDemoPlayer* m_player = nullptr;
    MvDemoScene* m_scene = nullptr;
    MvDemoToastHost* m_toastHost = nullptr;
    MvDemoPresenter* m_presenter = nullptr;
    MvTimelineRulerPresenter* m_rulerPresenter = nullptr;
    MvDemoMarkerPresenter* m_markerPresenter = nullptr;
    MvDemoPlayheadPresenter* m_playheadPresenter = nullptr;
    MvDemoRenderSimulator* m_renderSimulator = nullptr;
    MvDemoTimelineColumn* m_column = nullptr;
    MvDemoTrackHeaders* m_headers = nullptr;
    QPlainTextEdit* m_journalView = nullptr;
    QDockWidget* m_journalDock = nullptr;
    MvDemoPropertiesDock* m_propertiesDock = nullptr;
    MvDemoLibraryDock* m_libraryDock = nullptr;
    QScopedPointer<MvMemoryMediaLibrary> m_mediaLibrary;
    MvDemoMediaPanel* m_mediaPanel = nullptr;
    MvDemoMediaScene* m_mediaScene = nullptr;
    MvDemoMediaDrop* m_mediaDrop = nullptr;
    QList<IMvTrack*> m_rowsBeforeInsert; // while media is added: the rows it may add to
    MvDemoTransitionsDock* m_transitionsDock = nullptr;
    MvDemoEffectsDock* m_effectsDock = nullptr;
    MvDemoEffectDrops* m_effectDrops = nullptr;
    QLabel* m_status = nullptr;
    QHash<QString, QAction*> m_actions;
    QStringList m_journal;
    int m_menuTrack = 0; // the row a track header's menu acts on
};
