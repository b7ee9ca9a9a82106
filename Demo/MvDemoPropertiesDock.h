#pragma once

#include "MvDemoPropertyWords.h"

#include <QDockWidget>
#include <QList>

class IMvClip;
class IMvTimeline;
class MvCustomEventImp;
class MvMessage;
class MvTimelinePresenter;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QStackedWidget;

// The host's property panel: shows the selected clip's properties and switches its page when the
// presenter asks (a page of the panel, a panel for a kind of clip, the keyframe panel's switch,
// the advanced editors and the colour editor); it hides when asked to. Its keyframe lists jump to
// a keyframe when one is picked, and its text list is the media editor's: a request to select
// texts selects them there.
class MvDemoPropertiesDock : public QDockWidget
{
    Q_OBJECT

public:
    using Page = MvDemoPropertyWords::Page;

    MvDemoPropertiesDock(IMvTimeline* timeline, MvTimelinePresenter* presenter, QWidget* parent = nullptr);

    // A scene message for the property panels: true when it was one, with what was done in words.
    bool handleMessage(MvMessage* message, QString* detail);
    // Follows the selection and the model.
    void refresh();

    Page currentPage() const { return m_page; }
    QString heading() const;
    QString clipText() const;
    QListWidget* keyFrameList(bool audio) const { return audio ? m_audioKeys : m_videoKeys; }
    QListWidget* textList() const { return m_texts; }

Q_SIGNALS:
    void journal(const QString& line);
    // A keyframe was picked: the selection and the playhead have moved.
    void keyFramePicked();

private:
    QWidget* buildClipPage();
    QWidget* buildKeyFramePage(QLabel** line, QListWidget** list, const QString& hint);
    QWidget* buildEditorPage();
    QWidget* labelPage(QLabel** label);
    void showPage(Page page);
    bool switchPropertView(const MvCustomEventImp& event);
    void selectTexts(const QList<IMvClip*>& clips, bool replace);
    void fillKeyFrames(QListWidget* list, bool audio);
    void fillTexts();
    void pickKeyFrame(const QListWidgetItem* item, bool audio);

    IMvTimeline* m_timeline;
    MvTimelinePresenter* m_presenter;
    QLabel* m_heading = nullptr;
    QStackedWidget* m_stack = nullptr;
    QLabel* m_clipFields = nullptr;
    QLabel* m_pictureLine = nullptr;
    QLabel* m_audioLine = nullptr;
    QListWidget* m_videoKeys = nullptr;
    QListWidget* m_audioKeys = nullptr;
    QLabel* m_editorLine = nullptr;
    QListWidget* m_texts = nullptr;
    QLabel* m_colourLine = nullptr;
    QLabel* m_nothingLine = nullptr;
    Page m_page = Page::Clip;
    IMvClip* m_clip = nullptr; // the clip the lists show
};
