#include "IMvShortcutEditManager.h"

namespace {
IMvShortcutEditManager* g_hostManager = nullptr;
}

IMvShortcutEditManager::~IMvShortcutEditManager() = default;

IMvShortcutEditManager* IMvShortcutEditManager::GetInstance()
{
    static MvShortcutEditManager builtIn;
    return g_hostManager ? g_hostManager : &builtIn;
}

void IMvShortcutEditManager::SetInstance(IMvShortcutEditManager* manager)
{
    g_hostManager = manager;
}

int MvShortcutEditManager::currentSchemeType() const
{
    return m_scheme;
}

QString MvShortcutEditManager::shortcutText(int commandId) const
{
    return m_texts.value(commandId);
}

void MvShortcutEditManager::setCurrentSchemeType(int scheme)
{
    m_scheme = scheme;
}

void MvShortcutEditManager::setShortcutText(int commandId, const QString& text)
{
    if (text.isEmpty())
        m_texts.remove(commandId);
    else
        m_texts.insert(commandId, text);
}

void MvShortcutEditManager::clear()
{
    m_scheme = 0;
    m_texts.clear();
}
