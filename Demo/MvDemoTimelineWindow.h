#pragma once

#include "MvDemoTrackHeaders.h"

#include <QHash>
#include <QMainWindow>

class IMvScene;
class QAction;
class MvMemoryTimeline;
class MvDemoMarkerPresenter;
class MvDemoPlayheadPresenter;
class MvDemoPresenter;
class MvDemoTimelineColumn;
class MvDemoTrackArea;
class MvTimelineRulerPresenter;

// A second, smaller editor over another timeline of the projects: the sequence a compound clip
// shows, or the timeline of another project. It has the clipboard commands, the track marks and
// undo, so that a person can copy between timelines and projects and see the library refuse a
// compound clip pasted into itself or taken from another project. Its presenter's view is this
// window: the library's notices for it appear over it.
class MvDemoTimelineWindow : public QMainWindow
{
    Q_OBJECT

public:
    // The timeline and the scene outlive the window.
    MvDemoTimelineWindow(MvMemoryTimeline* timeline, IMvScene* scene, const QString& title, QWidget* parent);
    ~MvDemoTimelineWindow() override;

    MvMemoryTimeline* timeline() const { return m_timeline; }
    MvDemoPresenter* presenter() const { return m_presenter; }
    MvDemoTrackArea* trackArea() const;
    MvDemoTrackHeaders* trackHeaders() const { return m_headers; }
    QAction* action(const QString& name) const { return m_actions.value(name); }

Q_SIGNALS:
    void journal(const QString& line);

private:
    void buildMenus();
    QAction* addCommand(QMenu* menu, const QString& name, const QString& text, const QKeySequence& shortcut,
        std::function<void()> command);
    void headerButton(int trackIndex, MvDemoTrackHeaders::Button button);
    void modelChanged();
    void refreshActions();

    MvMemoryTimeline* m_timeline;
    MvDemoPresenter* m_presenter = nullptr;
    MvTimelineRulerPresenter* m_rulerPresenter = nullptr;
    MvDemoMarkerPresenter* m_markerPresenter = nullptr;
    MvDemoPlayheadPresenter* m_playheadPresenter = nullptr;
    MvDemoTimelineColumn* m_column = nullptr;
    MvDemoTrackHeaders* m_headers = nullptr;
    QHash<QString, QAction*> m_actions;
};
