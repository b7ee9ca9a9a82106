#include "MvBaseLog.h"

#include <QMutexLocker>
#include <QStringList>

#include <cstdio>

MvBaseLog::MvBaseLog() = default;

MvBaseLog* MvBaseLog::defaultLogger()
{
    static MvBaseLog logger;
    return &logger;
}

void MvBaseLog::log(int level, const QString& file, int line, const QString& function, const QString& message)
{
    QList<SinkEntry> sinks;
    bool toStderr = false;
    {
        QMutexLocker lock(&m_mutex);
        if (level < m_minimumLevel)
            return;
        sinks = m_sinks;
        toStderr = m_stderrEnabled;
    }
    const MvLogRecord record { file, line, function, level, message };
    if (toStderr) {
        const QByteArray text
            = QStringLiteral("[%1] %2:%3 %4: %5\n").arg(level).arg(file).arg(line).arg(function, message).toLocal8Bit();
        std::fputs(text.constData(), stderr);
    }
    for (const SinkEntry& entry : qAsConst(sinks))
        entry.sink(record);
}

void MvBaseLog::setMinimumLevel(int level)
{
    QMutexLocker lock(&m_mutex);
    m_minimumLevel = level;
}

int MvBaseLog::minimumLevel() const
{
    QMutexLocker lock(&m_mutex);
    return m_minimumLevel;
}

bool MvBaseLog::accepts(int level) const
{
    QMutexLocker lock(&m_mutex);
    return level >= m_minimumLevel;
}

int MvBaseLog::addSink(Sink sink)
{
    QMutexLocker lock(&m_mutex);
    const int id = m_nextSinkId++;
    m_sinks.append({ id, std::move(sink) });
    return id;
}

void MvBaseLog::removeSink(int id)
{
    QMutexLocker lock(&m_mutex);
    for (int i = 0; i < m_sinks.size(); ++i) {
        if (m_sinks.at(i).id == id) {
            m_sinks.removeAt(i);
            return;
        }
    }
}

void MvBaseLog::setStderrEnabled(bool enabled)
{
    QMutexLocker lock(&m_mutex);
    m_stderrEnabled = enabled;
}

MvLogCapture::MvLogCapture(bool silenceStderr)
    : m_silenced(silenceStderr)
{
    MvBaseLog* logger = MvBaseLog::defaultLogger();
    m_sinkId = logger->addSink([this](const MvLogRecord& record) {
        QMutexLocker lock(&m_mutex);
        m_records.append(record);
    });
    if (m_silenced)
        logger->setStderrEnabled(false);
}

MvLogCapture::~MvLogCapture()
{
    MvBaseLog* logger = MvBaseLog::defaultLogger();
    logger->removeSink(m_sinkId);
    if (m_silenced)
        logger->setStderrEnabled(true);
}

QList<MvLogRecord> MvLogCapture::records() const
{
    QMutexLocker lock(&m_mutex);
    return m_records;
}

QStringList MvLogCapture::messages() const
{
    QMutexLocker lock(&m_mutex);
    QStringList result;
    for (const MvLogRecord& record : m_records)
        result.append(record.message);
    return result;
}

QList<MvLogRecord> MvLogCapture::find(const QString& text) const
{
    QMutexLocker lock(&m_mutex);
    QList<MvLogRecord> result;
    for (const MvLogRecord& record : m_records) {
        if (record.message == text)
            result.append(record);
    }
    return result;
}

void MvLogCapture::clear()
{
    QMutexLocker lock(&m_mutex);
    m_records.clear();
}
