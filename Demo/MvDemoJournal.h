#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QString>

#include <functional>

struct MvLogRecord;

// The words of the demo's command journal: what the library told the scene and logged, said the
// way a person reads it ("pause player"), never as raw message numbers.
class MvDemoJournalWords
{
    Q_DECLARE_TR_FUNCTIONS(MvDemoJournalWords)

public:
    // A scene message by its identifier; an unknown one keeps its number.
    static QString message(int id);
    static QString level(int level);
    // "library warning: clip is null (MvTimelinePresenterPrivate::rippleDeleteSelectedClips)"
    static QString record(const MvLogRecord& record);
    // Warnings and refusals reach the terminal; detail and notes only when asked for.
    static bool printsToTerminal(int level, bool verbose);
};

// Takes over the library's log while it lives: every record goes to the journal, and only
// what printsToTerminal() lets through goes to the terminal.
class MvDemoLogRouter : public QObject
{
    Q_OBJECT

public:
    using Terminal = std::function<void(const QString& line)>;

    // Without a terminal function the lines go to the standard error stream.
    explicit MvDemoLogRouter(bool verbose, QObject* parent = nullptr, Terminal terminal = Terminal());
    ~MvDemoLogRouter() override;

Q_SIGNALS:
    void journal(const QString& line);

private:
    void route(const MvLogRecord& record);

    bool m_verbose;
    Terminal m_terminal;
    int m_sinkId = 0;
};
