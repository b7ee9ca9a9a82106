#include "MvCallJournal.h"

void MvCallJournal::record(const QString& entry)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.append(entry);
}

QStringList MvCallJournal::entries() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries;
}

void MvCallJournal::clear()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.clear();
}

int MvCallJournal::indexOf(const QString& text) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries.indexOf(text);
}
