#include "MvDemoScenario.h"

#include "MvDemoRenderSimulator.h"
#include "MvDemoWindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTextStream>

MvDemoScenario::MvDemoScenario(MvDemoWindow* window, const QString& outputDir)
    : m_window(window), m_outputDir(outputDir)
{
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
