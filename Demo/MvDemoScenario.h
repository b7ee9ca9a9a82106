#pragma once

#include <QEvent>
#include <QList>
#include <QPoint>
#include <QString>

#include <functional>

class IMvClip;
class QWidget;
class MvDemoWindow;

// The offscreen tour of the demo: performs what a person would do, in order, with real mouse,
// wheel and key events where a person would use them, and leaves a screenshot after each step
// and the journal of commands, scene messages and library records.
class MvDemoScenario
{
public:
    MvDemoScenario(MvDemoWindow* window, const QString& outputDir);

    bool run();

private:
    struct Step
    {
        QString name;
        std::function<void()> action;
    };

    QList<Step> steps();
    QList<Step> editingSteps();
    QList<Step> mouseSteps();
    QList<Step> navigationSteps();
    // The property panels and the media library (MvDemoPanelActions.cpp).
    QList<Step> panelSteps();
    // Adding the sample media (MvDemoMediaActions.cpp).
    QList<Step> mediaSteps();
    void doubleClickMedia(const QString& name);
    void dropMedia(const QString& name, qint64 frame, int trackIndex);
    // Transitions and effects (MvDemoEffectActions.cpp): a drop of a panel's item onto a clip, at
    // a fraction of the clip's width.
    QList<Step> effectSteps();
    void dropOnClip(const QString& mimeType, const QString& itemName, const QString& clipName, double fraction);
    void pickFirstKeyFrame(bool audio);
    void trigger(const QString& actionName);
    IMvClip* clipNamed(const QString& name) const;
    QPoint clipCenter(const QString& name) const;
    void select(const QString& name);
    void seek(qint64 frame);
    void seekInto(const QString& name, double fraction);
    void mouse(QWidget* target, QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons,
        Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void drag(QWidget* target, const QPoint& from, const QPoint& to);
    void wheel(QWidget* target, const QPoint& global, int notches, Qt::KeyboardModifiers modifiers);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QPoint splitButtonCenter() const;
    QPoint playheadHeadCenter() const;
    void clickSplitButton();
    void editFirstTimelineMarker(int index);
    void saveContextMenu(int index, const QPoint& global);
    bool screenshot(int index, const QString& name);
    QString fileFor(int index, const QString& name) const;

    MvDemoWindow* m_window;
    QString m_outputDir;
    int m_stepIndex = 0;
};
