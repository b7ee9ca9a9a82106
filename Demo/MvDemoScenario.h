#pragma once

#include <QEvent>
#include <QList>
#include <QPoint>
#include <QString>

#include <functional>

class IMvClip;
class MvDemoWindow;

// The offscreen tour of the demo: performs what a person would do, in order, and leaves a
// screenshot after each step and the journal of commands and scene messages.
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
    void trigger(const QString& actionName);
    IMvClip* clipNamed(const QString& name) const;
    void select(const QString& name);
    void seek(qint64 frame);
    void seekInto(const QString& name, double fraction);
    void mouse(QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons);
    QPoint splitButtonCenter() const;
    void dragSplitButton(int dx, int dy);
    void clickSplitButton();
    void editFirstTimelineMarker(int index);
    bool screenshot(int index, const QString& name);

    MvDemoWindow* m_window;
    QString m_outputDir;
};
