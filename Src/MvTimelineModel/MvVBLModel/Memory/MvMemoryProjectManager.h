#pragma once

#include "MvMemoryGlobal.h"

#include "IMvProjectManager.h"

#include <QHash>

#include <memory>

// The settings of one project as the in-memory model keeps them.
class MVMEMORY_EXPORT MvMemoryProjectSettings : public IMvProjectSettings
{
public:
    bool isRepeatFrameTipShown() const override;
    void setRepeatFrameTipShown(bool shown) override;

private:
    bool m_repeatFrameTipShown = false;
};

// The projects open in the application, by project id (MvMemoryTimeline::projectId); one of them
// is the current one. It installs itself as the manager (IMvProjectManager::getInstance) while it
// lives, unless another is installed already.
class MVMEMORY_EXPORT MvMemoryProjectManager : public IMvProjectManager
{
public:
    MvMemoryProjectManager();
    ~MvMemoryProjectManager() override;

    IMvProjectSettings* currentProjectSettings() const override;

    // Makes the project current, opening it with new settings the first time.
    void openProject(int projectId);
    // Forgets the project's settings: opened again, it starts anew. The current project is none
    // when it was this one.
    void closeProject(int projectId);
    int currentProject() const { return m_current; }
    MvMemoryProjectSettings* settings(int projectId) const;

private:
    Q_DISABLE_COPY(MvMemoryProjectManager)
    QHash<int, std::shared_ptr<MvMemoryProjectSettings>> m_projects;
    int m_current = -1;
};
