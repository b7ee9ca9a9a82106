#pragma once

#include "MvCoreGlobal.h"

#include <QElapsedTimer>
#include <QString>

// Measures a scope and logs its duration at level 2 when it ends, if it took at least thresholdMs.
class MVCORE_EXPORT MvElapsedTimer
{
public:
    explicit MvElapsedTimer(const QString& what, qint64 thresholdMs = 0);
    ~MvElapsedTimer();

    qint64 elapsed() const { return m_timer.elapsed(); }

private:
    Q_DISABLE_COPY(MvElapsedTimer)
    QString m_what;
    qint64 m_thresholdMs;
    QElapsedTimer m_timer;
};
