#include "MvMemoryProjectManager.h"

bool MvMemoryProjectSettings::isRepeatFrameTipShown() const
{
    return m_repeatFrameTipShown;
}

void MvMemoryProjectSettings::setRepeatFrameTipShown(bool shown)
{
    m_repeatFrameTipShown = shown;
}

MvMemoryProjectManager::MvMemoryProjectManager()
{
    if (!IMvProjectManager::getInstance())
        IMvProjectManager::setInstance(this);
}

MvMemoryProjectManager::~MvMemoryProjectManager()
{
    if (IMvProjectManager::getInstance() == this)
        IMvProjectManager::setInstance(nullptr);
}

IMvProjectSettings* MvMemoryProjectManager::currentProjectSettings() const
{
    return settings(m_current);
}

void MvMemoryProjectManager::openProject(int projectId)
{
    if (!m_projects.contains(projectId))
        m_projects.insert(projectId, std::make_shared<MvMemoryProjectSettings>());
    m_current = projectId;
}

void MvMemoryProjectManager::closeProject(int projectId)
{
    m_projects.remove(projectId);
    if (m_current == projectId)
        m_current = -1;
}

MvMemoryProjectSettings* MvMemoryProjectManager::settings(int projectId) const
{
    const auto found = m_projects.constFind(projectId);
    return found == m_projects.cend() ? nullptr : found.value().get();
}
