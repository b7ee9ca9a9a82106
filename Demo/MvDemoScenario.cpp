#include "MvDemoScenario.h"

#include "MvDemoRenderSimulator.h"
#include "MvDemoWindow.h"

#include "IMvAbstractClip.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoTimelineColumn.h"
#include "MvDemoTrackArea.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelineRulerWidget.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextStream>
#include <QTimer>

MvDemoScenario::MvDemoScenario(MvDemoWindow* window, const QString& outputDir)
    : m_window(window)
    , m_outputDir(outputDir)
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

QPoint MvDemoScenario::clipCenter(const QString& name) const
{
    MvDemoTrackArea* area = m_window->trackArea();
    const IMvClip* clip = clipNamed(name);
    return clip ? area->mapToGlobal(area->clipRect(clip, clip->trackIndex()).center()) : QPoint();
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

void MvDemoScenario::mouse(
    QWidget* target, QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    // Real mouse events on the widget underneath, which offers them to the playhead overlay first.
    const QPoint local = target->mapFromGlobal(global);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, local, local, global, button, buttons, modifiers);
    QApplication::sendEvent(target, &event);
}

void MvDemoScenario::drag(QWidget* target, const QPoint& from, const QPoint& to)
{
    mouse(target, QEvent::MouseButtonPress, from, Qt::LeftButton);
    for (int step = 1; step <= 4; ++step)
        mouse(target, QEvent::MouseMove, from + (to - from) * step / 4, Qt::LeftButton);
    mouse(target, QEvent::MouseButtonRelease, to, Qt::NoButton);
}

void MvDemoScenario::wheel(QWidget* target, const QPoint& global, int notches, Qt::KeyboardModifiers modifiers)
{
    const QPointF local = target->mapFromGlobal(global);
    QWheelEvent event(
        local, global, QPoint(), QPoint(0, 120 * notches), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

void MvDemoScenario::key(int key, Qt::KeyboardModifiers modifiers)
{
    // To the timeline, as when it has the keyboard; keys it leaves go up to the window.
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(m_window->trackArea(), &press);
}

QPoint MvDemoScenario::splitButtonCenter() const
{
    // The overlay's presenter works in the ruler's pixels, from the ruler's top.
    return m_window->ruler()->mapToGlobal(m_window->playheadWidget()->presenter()->splitButtonRect().center());
}

QPoint MvDemoScenario::playheadHeadCenter() const
{
    MvTimelinePlayheadWidget* overlay = m_window->playheadWidget();
    return m_window->ruler()->mapToGlobal(overlay->presenter()->playheadRect().center());
}

void MvDemoScenario::clickSplitButton()
{
    const QPoint at = splitButtonCenter();
    mouse(m_window->trackArea(), QEvent::MouseButtonPress, at, Qt::LeftButton);
    mouse(m_window->trackArea(), QEvent::MouseButtonRelease, at, Qt::NoButton);
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
        dialog->grab().save(fileFor(index, QStringLiteral("marker-editor")));
        if (auto* ok = dialog->findChild<QPushButton*>(QStringLiteral("okButton")))
            ok->click();
    });
    trigger(QStringLiteral("edit-marker"));
}

void MvDemoScenario::saveContextMenu(int index, const QPoint& global)
{
    // The menu runs its own event loop: take its picture from inside it and close it.
    QTimer::singleShot(0, [this, index] {
        if (QWidget* menu = QApplication::activePopupWidget()) {
            menu->grab().save(fileFor(index, QStringLiteral("context-menu")));
            menu->close();
        }
    });
    MvDemoTrackArea* area = m_window->trackArea();
    QContextMenuEvent event(QContextMenuEvent::Mouse, area->mapFromGlobal(global), global);
    QApplication::sendEvent(area, &event);
}

void MvDemoScenario::trigger(const QString& actionName)
{
    if (QAction* action = m_window->action(actionName))
        action->trigger();
    else
        m_window->appendJournal(QStringLiteral("scenario: no action %1").arg(actionName));
}

QList<MvDemoScenario::Step> MvDemoScenario::editingSteps()
{
    return {
        { QStringLiteral("project"),
            [this] {
                for (int i = 0; i < 40; ++i)
                    m_window->renderSimulator()->step();
            } },
        { QStringLiteral("zoom-in"), [this] { trigger(QStringLiteral("zoom-in")); } },
        { QStringLiteral("zoom-fit"), [this] { trigger(QStringLiteral("zoom-fit")); } },
        { QStringLiteral("split-market-street"),
            [this] {
                select(QStringLiteral("Market street"));
                seekInto(QStringLiteral("Market street"), 0.5);
                trigger(QStringLiteral("split"));
            } },
        { QStringLiteral("trim-fishing-boats"),
            [this] {
                select(QStringLiteral("Fishing boats"));
                seekInto(QStringLiteral("Fishing boats"), 0.6);
                trigger(QStringLiteral("trim-end"));
            } },
        { QStringLiteral("move-logo-right-and-up"),
            [this] {
                select(QStringLiteral("Logo"));
                trigger(QStringLiteral("move-right-second"));
                trigger(QStringLiteral("move-up"));
            } },
        { QStringLiteral("marker-and-keyframe"),
            [this] {
                select(QStringLiteral("Old map"));
                seekInto(QStringLiteral("Old map"), 0.4);
                trigger(QStringLiteral("add-marker"));
                trigger(QStringLiteral("add-keyframe"));
                trigger(QStringLiteral("rotate-cw"));
            } },
        { QStringLiteral("ripple-delete"),
            [this] {
                select(QStringLiteral("Route planner"));
                trigger(QStringLiteral("ripple-delete"));
            } },
        { QStringLiteral("undo-ripple-delete"),
            [this] {
                trigger(QStringLiteral("undo"));
                for (int i = 0; i < 30; ++i)
                    m_window->renderSimulator()->step();
            } },
    };
}

QList<MvDemoScenario::Step> MvDemoScenario::mouseSteps()
{
    MvDemoTrackArea* area = m_window->trackArea();
    return {
        { QStringLiteral("playhead-dragged-by-split-button"),
            [this, area] {
                m_window->timeline()->selection()->clear();
                seek(0);
                drag(area, splitButtonCenter(), splitButtonCenter() + QPoint(420, 40));
            } },
        { QStringLiteral("split-button-clicked"), [this] { clickSplitButton(); } },
        { QStringLiteral("subtitles-dragged-left-snapped-to-logo-end"),
            [this, area] {
                // Let go a little after the end of the logo a row above, the drag snaps onto that end.
                const QPoint from = clipCenter(QStringLiteral("Subtitles"));
                const IMvClip* logo = clipNamed(QStringLiteral("Logo"));
                const IMvClip* subtitles = clipNamed(QStringLiteral("Subtitles"));
                const int gap = area->mapping().xOf(logo->end() + 1) - area->mapping().xOf(subtitles->start());
                drag(area, from, from + QPoint(gap + 3, 0));
            } },
        { QStringLiteral("seagull-dragged-down-a-row-and-later"),
            [this, area] {
                const QPoint from = clipCenter(QStringLiteral("Seagull"));
                drag(area, from,
                    from
                        + QPoint(
                            area->mapping().xOf(2 * 30) - area->mapping().xOf(0), area->rowTop(1) - area->rowTop(0)));
            } },
        { QStringLiteral("band-selection"),
            [this, area] {
                // From empty space on the second row down across the main story and its sound.
                const QPoint from = area->mapToGlobal(QPoint(area->mapping().xOf(5 * 30), area->rowTop(1) + 10));
                const QPoint to = area->mapToGlobal(QPoint(area->mapping().xOf(50 * 30), area->rowTop(3) + 10));
                drag(area, from, to);
            } },
        { QStringLiteral("refused-drag-onto-another-clip"),
            [this, area] {
                const QPoint from = clipCenter(QStringLiteral("Old map"));
                drag(area, from, from + QPoint(area->mapping().xOf(12 * 30) - area->mapping().xOf(0), 0));
            } },
        { QStringLiteral("context-menu-on-a-clip"),
            [this] { saveContextMenu(m_stepIndex, clipCenter(QStringLiteral("Fishing boats"))); } },
        { QStringLiteral("marker-edited"), [this] { editFirstTimelineMarker(m_stepIndex); } },
    };
}

QList<MvDemoScenario::Step> MvDemoScenario::navigationSteps()
{
    MvDemoTrackArea* area = m_window->trackArea();
    return {
        { QStringLiteral("ctrl-wheel-zoom-over-the-tracks"),
            [this, area] {
                seek(20 * 30);
                wheel(area, area->mapToGlobal(area->rect().center()), 4, Qt::ControlModifier);
            } },
        { QStringLiteral("shift-wheel-scroll-in-time"),
            [this, area] { wheel(area, area->mapToGlobal(area->rect().center()), -6, Qt::ShiftModifier); } },
        { QStringLiteral("keys-step-the-playhead"),
            [this] {
                key(Qt::Key_Home);
                key(Qt::Key_Right, Qt::ShiftModifier);
                key(Qt::Key_Right, Qt::ShiftModifier);
                key(Qt::Key_Right);
            } },
        { QStringLiteral("playhead-dragged-against-the-right-edge"),
            [this, area] {
                const QPoint head = playheadHeadCenter();
                const QPoint beyond(
                    m_window->ruler()->mapToGlobal(QPoint(m_window->ruler()->width() + 20, 0)).x(), head.y());
                mouse(area, QEvent::MouseButtonPress, head, Qt::LeftButton);
                mouse(area, QEvent::MouseMove, beyond, Qt::LeftButton);
                for (int i = 0; i < 12; ++i)
                    m_window->column()->followPlayheadStep();
                mouse(area, QEvent::MouseButtonRelease, beyond, Qt::NoButton);
            } },
        { QStringLiteral("refused-split-at-the-end"),
            [this] {
                key(Qt::Key_End);
                key(Qt::Key_B, Qt::ControlModifier);
            } },
        { QStringLiteral("virtual-playhead"),
            [this] {
                trigger(QStringLiteral("zoom-fit"));
                trigger(QStringLiteral("virtual-open"));
                seek(2000);
            } },
        { QStringLiteral("virtual-playhead-closed-split-button-back"),
            [this] { trigger(QStringLiteral("virtual-close")); } },
        { QStringLiteral("large-tracks-scrolled-to-the-last-row"),
            [this] {
                trigger(QStringLiteral("rows-large"));
                QScrollBar* bar = m_window->column()->verticalBar();
                bar->setValue(bar->maximum());
            } },
        { QStringLiteral("normal-tracks"), [this] { trigger(QStringLiteral("rows-normal")); } },
    };
}

QList<MvDemoScenario::Step> MvDemoScenario::steps()
{
    return editingSteps() + mouseSteps() + navigationSteps() + panelSteps() + mediaSteps() + effectSteps();
}

QString MvDemoScenario::fileFor(int index, const QString& name) const
{
    return QDir(m_outputDir).filePath(QStringLiteral("%1-%2.png").arg(index, 2, 10, QLatin1Char('0')).arg(name));
}

bool MvDemoScenario::screenshot(int index, const QString& name)
{
    QApplication::processEvents();
    return m_window->grab().save(fileFor(index, name));
}

bool MvDemoScenario::run()
{
    QDir().mkpath(m_outputDir);
    QApplication::processEvents();
    bool ok = true;
    const QList<Step> all = steps();
    for (int i = 0; i < all.size(); ++i) {
        m_stepIndex = i + 1;
        m_window->appendJournal(QStringLiteral("scenario: %1").arg(all.at(i).name));
        all.at(i).action();
        ok = screenshot(m_stepIndex, all.at(i).name) && ok;
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
