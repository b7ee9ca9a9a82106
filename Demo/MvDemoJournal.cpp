#include "MvDemoJournal.h"

#include "MvBaseLog.h"
#include "MvVBLModelGlobal.h"

#include <QHash>
#include <QMetaObject>
#include <QThread>

#include <cstdio>

using namespace MVVBLMODEL;

QString MvDemoJournalWords::message(int id)
{
    // One line per message the library sends to its scene.
    static const QHash<int, const char*> words {
        { MessageId::GroupQuestionBeforeSplit, QT_TR_NOOP("ask whether to ungroup before splitting") },
        { MessageId::SwitchPlayerToTimeline, QT_TR_NOOP("switch the player to this timeline") },
        { MessageId::AfterEffectPaste, QT_TR_NOOP("effects pasted, update the player") },
        { MessageId::PausePlayer, QT_TR_NOOP("pause player") },
        { MessageId::StopPlayer, QT_TR_NOOP("stop player") },
        { MessageId::IsPlayerPlaying, QT_TR_NOOP("ask whether the player is playing") },
        { MessageId::PausePlayerWithSync, QT_TR_NOOP("pause player and wait for it") },
        { MessageId::Seek, QT_TR_NOOP("seek") },
        { MessageId::SeekAfterPause, QT_TR_NOOP("seek once paused") },
        { MessageId::HidePropertyPanel, QT_TR_NOOP("hide the property panel") },
        { MessageId::ShowPropertyPanelPage, QT_TR_NOOP("show a page of the property panel") },
        { MessageId::ShowAdvancedSubtitleEditor, QT_TR_NOOP("open the advanced subtitle editor") },
        { MessageId::ShowAdvancedTextEditor, QT_TR_NOOP("open the advanced text editor") },
        { MessageId::ShowAdvancedColor, QT_TR_NOOP("open the advanced colour panel") },
        { MessageId::ShowAdvancedTitleEditor, QT_TR_NOOP("open the advanced title editor") },
        { MessageId::EffectsDeleted, QT_TR_NOOP("effects deleted") },
        { MessageId::EffectsPasted, QT_TR_NOOP("effects pasted") },
        { MessageId::ShowPropertyPanel, QT_TR_NOOP("show the property panel") },
        { MessageId::MediaLibraryFindSimilar, QT_TR_NOOP("find similar resources in the media library") },
        { MessageId::MediaEditorSelectClip, QT_TR_NOOP("select clips in the media editor") },
        { MessageId::DownloadMediaItems, QT_TR_NOOP("download media items") },
        { MessageId::SelectStockResolution, QT_TR_NOOP("choose the resolution of stock items") },
        { MessageId::SelectVCGResolution, QT_TR_NOOP("choose the resolution of a VCG item") },
        { MessageId::MatchProjectSettings, QT_TR_NOOP("offer the media's settings to the project") },
        { MessageId::AddMediaResponse, QT_TR_NOOP("media added") },
        { MessageId::ScrollToTrack, QT_TR_NOOP("bring the new clips into view") },
        { MessageId::AudioEffectOverride, QT_TR_NOOP("ask whether to replace an audio effect") },
    };
    const char* text = words.value(id);
    return text ? tr(text) : tr("message %1").arg(id);
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
    : QObject(parent)
    , m_verbose(verbose)
    , m_terminal(std::move(terminal))
{
    if (!m_terminal) {
        m_terminal = [](const QString& line) { std::fputs(qPrintable(line + QLatin1Char('\n')), stderr); };
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
    QMetaObject::invokeMethod(
        this, [this, line] { Q_EMIT journal(line); }, Qt::QueuedConnection);
}
