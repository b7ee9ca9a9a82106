#pragma once

#include "MvCoreGlobal.h"

#include <QList>
#include <QMutex>
#include <QString>

#include <functional>

struct MvLogRecord
{
    QString file;
    int line = 0;
    QString function;
    int level = 0;
    QString message;
};

// The process-wide log. Levels grow with severity: 2 detail, 4 command notes, 8 warnings,
// 16 refusals. Records below the minimum level are dropped before any sink sees them.
class MVCORE_EXPORT MvBaseLog
{
public:
    using Sink = std::function<void(const MvLogRecord&)>;

    enum Level
    {
        Detail = 2,
        Note = 4,
        Warning = 8,
        Refusal = 16
    };

    static MvBaseLog* defaultLogger();

    void log(int level, const QString& file, int line, const QString& function, const QString& message);

    void setMinimumLevel(int level);
    int minimumLevel() const;
    // Whether a record of this level would be kept: callers skip building messages that would not.
    bool accepts(int level) const;

    // Sinks receive every record that passes the level filter; stderr is the one sink at start.
    int addSink(Sink sink);
    void removeSink(int id);
    void setStderrEnabled(bool enabled);

private:
    MvBaseLog();

    struct SinkEntry
    {
        int id;
        Sink sink;
    };

    mutable QMutex m_mutex;
    QList<SinkEntry> m_sinks;
    int m_nextSinkId = 1;
    int m_minimumLevel = 0;
    bool m_stderrEnabled = true;
};

// Keeps the records logged while it lives; for tests and for hosts that show a log panel.
class MVCORE_EXPORT MvLogCapture
{
public:
    explicit MvLogCapture(bool silenceStderr = true);
    ~MvLogCapture();

    QList<MvLogRecord> records() const;
    QStringList messages() const;
    // Records whose message equals text.
    QList<MvLogRecord> find(const QString& text) const;
    void clear();

private:
    Q_DISABLE_COPY(MvLogCapture)
    int m_sinkId = 0;
    bool m_silenced = false;
    mutable QMutex m_mutex;
    QList<MvLogRecord> m_records;
};
