#include "MvElapsedTimer.h"

#include "MvBaseLog.h"

MvElapsedTimer::MvElapsedTimer(const QString& what, qint64 thresholdMs)
    : m_what(what)
    , m_thresholdMs(thresholdMs)
{
    m_timer.start();
}

MvElapsedTimer::~MvElapsedTimer()
{
    const qint64 ms = m_timer.elapsed();
    if (ms >= m_thresholdMs) {
        MvBaseLog::defaultLogger()->log(MvBaseLog::Detail, QStringLiteral("Src/MvCore/MvElapsedTimer"), __LINE__,
            QStringLiteral("MvElapsedTimer::~MvElapsedTimer"), QStringLiteral("%1 took %2 ms").arg(m_what).arg(ms));
    }
}
