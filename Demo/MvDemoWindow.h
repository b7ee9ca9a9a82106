#pragma once

#include <QHash>
#include <QMainWindow>
#include <QScopedPointer>

#include <functional>

class QAction;
class QLabel;
class QPlainTextEdit;
class MvMemoryTimeline;
class MvDemoPlayer;
class MvDemoPresenter;
class MvDemoScene;
class MvDemoTrackArea;
class MvDemoTrackHeaders;
class MvDemoRenderSimulator;
class MvDemoMarkerPresenter;
class MvDemoMarkerStrip;
class MvDemoPlayheadPresenter;
class MvTimelinePlayheadWidget;
class MvTimelineRenderWidget;
class MvTimelineRulerPresenter;
class MvTimelineRulerWidget;

// The demo editor: the library's presenters and widgets over an in-memory sample project.
class MvDemoWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MvDemoWindow(bool interactive, QWidget* parent = nullptr);
    ~MvDemoWindow() override;

    MvMemoryTimeline* timeline() const { return m_timeline.data(); }
    MvDemoPresenter* presenter() const { return m_presenter; }
    MvDemoTrackArea* trackArea() const { return m_trackArea; }
    MvTimelineRulerWidget* ruler() const { return m_ruler; }
    MvDemoRenderSimulator* renderSimulator() const { return m_renderSimulator; }
    MvTimelinePlayheadWidget* playheadWidget() const { return m_playhead; }
    QAction* action(const QString& name) const { return m_actions.value(name); }
    void appendJournal(const QString& line);
    QStringList journalLines() const { return m_journal; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void buildPlayhead(QWidget* column);
    void modelChanged();
    void buildMenus();
    void buildClipMenu();
    void buildMarkerAndKeyFrameMenus();
    void refreshEditActions();
    QAction* addCommand(QMenu* menu, const QString& name, const QString& text, const QKeySequence& shortcut,
        std::function<void()> command);
    void refreshActions();
    void refreshStatus();
    void setTrackSize(int policy);

    QScopedPointer<MvMemoryTimeline> m_timeline;
    MvDemoPlayer* m_player = nullptr;
    MvDemoScene* m_scene = nullptr;
    MvDemoPresenter* m_presenter = nullptr;
    MvDemoTrackArea* m_trackArea = nullptr;
    MvTimelineRulerPresenter* m_rulerPresenter = nullptr;
    MvTimelineRulerWidget* m_ruler = nullptr;
    MvTimelineRenderWidget* m_renderStrip = nullptr;
    MvDemoRenderSimulator* m_renderSimulator = nullptr;
    MvDemoMarkerPresenter* m_markerPresenter = nullptr;
    MvDemoMarkerStrip* m_markerStrip = nullptr;
    MvDemoPlayheadPresenter* m_playheadPresenter = nullptr;
    MvTimelinePlayheadWidget* m_playhead = nullptr;
    QWidget* m_timelineColumn = nullptr;
    MvDemoTrackHeaders* m_headers = nullptr;
    QPlainTextEdit* m_journalView = nullptr;
    QLabel* m_status = nullptr;
    QHash<QString, QAction*> m_actions;
    QStringList m_journal;
};
