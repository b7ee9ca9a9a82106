#include "MvDemoScenario.h"

#include "MvDemoRenderSimulator.h"
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "IMvMarker.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoTrackArea.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"

#include <QAction>
#include <QMouseEvent>
#include <QPushButton>
#include <QPlainTextEdit>
#include <QTimer>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTextStream>

MvDemoScenario::MvDemoScenario(MvDemoWindow* window, const QString& outputDir)
    : m_window(window), m_outputDir(outputDir)
{
}

IMvClip* MvDemoScenario::clipNamed(const QString& name) const
{
    IMvTimeline* timeline = m_window->timeline();
    for (int i = 0; i < timeline->trackCount(); ++i) {
        const QList<IMvClip*> clips = timeline->trackAt(i)->clips();
        for (IMvClip* clip : clips) {
            if (clip->name() == name)
                return clip;
        }
    }
    return nullptr;
}

void MvDemoScenario::select(const QString& name)
{
    IMvClip* clip = clipNamed(name);
    m_window->appendJournal(QStringLiteral("scenario: select %1").arg(name));
    m_window->timeline()->selection()->select(clip ? QList<IMvClip*> { clip } : QList<IMvClip*>());
}

void MvDemoScenario::seekInto(const QString& name, double fraction)
{
    if (IMvClip* clip = clipNamed(name))
        seek(clip->start() + qint64((clip->end() - clip->start()) * fraction));
}

void MvDemoScenario::seek(qint64 frame)
{
    m_window->timeline()->playhead()->setCurrentFrame(frame);
}

void MvDemoScenario::mouse(QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons)
{
    // Real mouse events on the track area, which offers them to the playhead overlay first.
    QWidget* area = m_window->trackArea();
    const QPoint local = area->mapFromGlobal(global);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, local, local, global, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(area, &event);
}

QPoint MvDemoScenario::splitButtonCenter() const
{
    MvTimelinePlayheadWidget* overlay = m_window->playheadWidget();
    return overlay->mapToGlobal(overlay->presenter()->splitButtonRect().center());
}

void MvDemoScenario::dragSplitButton(int dx, int dy)
{
    const QPoint from = splitButtonCenter();
    mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
    mouse(QEvent::MouseMove, from + QPoint(dx / 2, dy / 2), Qt::LeftButton);
    mouse(QEvent::MouseMove, from + QPoint(dx, dy), Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, from + QPoint(dx, dy), Qt::NoButton);
}

void MvDemoScenario::clickSplitButton()
{
    const QPoint at = splitButtonCenter();
    mouse(QEvent::MouseButtonPress, at, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void MvDemoScenario::editFirstTimelineMarker(int index)
{
    IMvMarker* marker = m_window->timeline()->timelineMarkers()->markers().value(0);
    if (!marker)
        return;
    m_window->timeline()->selection()->clear();
    seek(marker->frame());
    // The editor is modal: fill it in and press OK from inside its own event loop.
    QTimer::singleShot(0, [this, index] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        if (auto* name = dialog->findChild<QPlainTextEdit*>())
            name->setPlainText(QStringLiteral("Opening shot"));
        QApplication::processEvents();
        dialog->grab().save(QDir(m_outputDir).filePath(QStringLiteral("%1-marker-editor.png").arg(index, 2, 10, QLatin1Char('0'))));
        const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text() == QObject::tr("OK"))
                button->click();
        }
    });
    trigger(QStringLiteral("edit-marker"));
}

void MvDemoScenario::trigger(const QString& actionName)
{
    if (QAction* action = m_window->action(actionName))
        action->trigger();
    else
        m_window->appendJournal(QStringLiteral("scenario: no action %1").arg(actionName));
}

QList<MvDemoScenario::Step> MvDemoScenario::steps()
{
    return {
        { QStringLiteral("project"), [this] {
             for (int i = 0; i < 40; ++i)
                 m_window->renderSimulator()->step();
         } },
        { QStringLiteral("zoom-in"), [this] { trigger(QStringLiteral("zoom-in")); } },
        { QStringLiteral("zoom-fit"), [this] { trigger(QStringLiteral("zoom-fit")); } },
        { QStringLiteral("split-market-street"), [this] {
             select(QStringLiteral("Market street"));
             seekInto(QStringLiteral("Market street"), 0.5);
             trigger(QStringLiteral("split"));
         } },
        { QStringLiteral("trim-fishing-boats"), [this] {
             select(QStringLiteral("Fishing boats"));
             seekInto(QStringLiteral("Fishing boats"), 0.6);
             trigger(QStringLiteral("trim-end"));
         } },
        { QStringLiteral("move-logo-right-and-up"), [this] {
             select(QStringLiteral("Logo"));
             trigger(QStringLiteral("move-right-second"));
             trigger(QStringLiteral("move-up"));
         } },
        { QStringLiteral("marker-and-keyframe"), [this] {
             select(QStringLiteral("Old map"));
             seekInto(QStringLiteral("Old map"), 0.4);
             trigger(QStringLiteral("add-marker"));
             trigger(QStringLiteral("add-keyframe"));
             trigger(QStringLiteral("rotate-cw"));
         } },
        { QStringLiteral("ripple-delete"), [this] {
             select(QStringLiteral("Route planner"));
             trigger(QStringLiteral("ripple-delete"));
         } },
        { QStringLiteral("undo-ripple-delete"), [this] {
             trigger(QStringLiteral("undo"));
             for (int i = 0; i < 30; ++i)
                 m_window->renderSimulator()->step();
         } },
        { QStringLiteral("playhead-dragged-by-split-button"), [this] {
             m_window->timeline()->selection()->clear();
             seek(0);
             dragSplitButton(420, 40);
         } },
        { QStringLiteral("split-button-clicked"), [this] { clickSplitButton(); } },
        { QStringLiteral("marker-edited"), [this] { editFirstTimelineMarker(90); } },
        { QStringLiteral("virtual-playhead"), [this] {
             trigger(QStringLiteral("virtual-open"));
             seek(2000);
         } },
        { QStringLiteral("virtual-playhead-closed"), [this] { trigger(QStringLiteral("virtual-close")); } },
        { QStringLiteral("large-tracks"), [this] { trigger(QStringLiteral("rows-large")); } },
        { QStringLiteral("normal-tracks"), [this] { trigger(QStringLiteral("rows-normal")); } },
    };
}

bool MvDemoScenario::screenshot(int index, const QString& name)
{
    QApplication::processEvents();
    const QString file = QDir(m_outputDir).filePath(QStringLiteral("%1-%2.png").arg(index, 2, 10, QLatin1Char('0')).arg(name));
    return m_window->grab().save(file);
}

bool MvDemoScenario::run()
{
    QDir().mkpath(m_outputDir);
    QApplication::processEvents();
    bool ok = true;
    const QList<Step> all = steps();
    for (int i = 0; i < all.size(); ++i) {
        m_window->appendJournal(QStringLiteral("scenario: %1").arg(all.at(i).name));
        all.at(i).action();
        ok = screenshot(i + 1, all.at(i).name) && ok;
    }
    QFile journal(QDir(m_outputDir).filePath(QStringLiteral("journal.txt")));
    if (!journal.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream out(&journal);
    const QStringList lines = m_window->journalLines();
    for (const QString& line : lines)
        out << line << '\n';
    return ok;
}
