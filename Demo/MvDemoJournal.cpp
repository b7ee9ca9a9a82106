#include "MvDemoJournal.h"

#include "MvBaseLog.h"
#include "MvVBLModelGlobal.h"

#include <QMetaObject>
#include <QThread>

#include <cstdio>

using namespace MVVBLMODEL;

QString MvDemoJournalWords::message(int id)
{
    switch (id) {
    case MessageId::GroupQuestionBeforeSplit:
        return tr("ask whether to ungroup before splitting");
    case MessageId::SwitchPlayerToTimeline:
        return tr("switch the player to this timeline");
    case MessageId::EffectPasted:
        return tr("effects pasted");
    case MessageId::PausePlayer:
        return tr("pause player");
    case MessageId::StopPlayer:
        return tr("stop player");
    case MessageId::IsPlayerPlaying:
        return tr("ask whether the player is playing");
    case MessageId::PausePlayerWithSync:
        return tr("pause player and wait for it");
    case MessageId::Seek:
        return tr("seek");
    case MessageId::SeekAfterPause:
        return tr("seek once paused");
    case MessageId::HidePropertyPanel:
        return tr("hide the property panel");
    case MessageId::ShowPropertyPanel:
        return tr("show the property panel");
    default:
        return tr("message %1").arg(id);
    }
}

QString MvDemoJournalWords::level(int level)
{
    if (level >= MvBaseLog::Refusal)
        return tr("refusal");
    if (level >= MvBaseLog::Warning)
        return tr("warning");
    if (level >= MvBaseLog::Note)
        return tr("note");
    return tr("detail");
}

QString MvDemoJournalWords::record(const MvLogRecord& record)
{
    return tr("library %1: %2 (%3)").arg(level(record.level), record.message, record.function);
}

bool MvDemoJournalWords::printsToTerminal(int level, bool verbose)
{
    return verbose || level >= MvBaseLog::Warning;
}

MvDemoLogRouter::MvDemoLogRouter(bool verbose, QObject* parent, Terminal terminal)
    : QObject(parent), m_verbose(verbose), m_terminal(std::move(terminal))
{
    if (!m_terminal) {
        m_terminal = [](const QString& line) {
            std::fputs(qPrintable(line + QLatin1Char('\n')), stderr);
        };
    }
    MvBaseLog* logger = MvBaseLog::defaultLogger();
    logger->setStderrEnabled(false);
    m_sinkId = logger->addSink([this](const MvLogRecord& record) { route(record); });
}

MvDemoLogRouter::~MvDemoLogRouter()
{
    MvBaseLog* logger = MvBaseLog::defaultLogger();
    logger->removeSink(m_sinkId);
    logger->setStderrEnabled(true);
}

void MvDemoLogRouter::route(const MvLogRecord& record)
{
    const QString line = MvDemoJournalWords::record(record);
    if (MvDemoJournalWords::printsToTerminal(record.level, m_verbose))
        m_terminal(line);
    // Records logged on a worker thread reach the journal on the GUI thread.
    if (QThread::currentThread() == thread()) {
        Q_EMIT journal(line);
        return;
    }
    QMetaObject::invokeMethod(this, [this, line] { Q_EMIT journal(line); }, Qt::QueuedConnection);
}
