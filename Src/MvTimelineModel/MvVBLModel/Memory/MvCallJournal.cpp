#include "MvCallJournal.h"

void MvCallJournal::record(const QString& entry)
{
    m_entries.append(entry);
}

QStringList MvCallJournal::entries() const
{
    return m_entries;
}

void MvCallJournal::clear()
{
    m_entries.clear();
}

int MvCallJournal::indexOf(const QString& text) const
{
    return m_entries.indexOf(text);
}
