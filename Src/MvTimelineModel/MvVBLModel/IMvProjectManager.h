#pragma once

#include "MvVBLModelGlobal.h"

// Settings of one open project, kept with the project rather than with a timeline (no undo).
class MVVBLMODEL_EXPORT IMvProjectSettings
{
public:
    virtual ~IMvProjectSettings();

    // The notice that a transition repeats frames was shown in this project; false in a new project.
    virtual bool isRepeatFrameTipShown() const = 0;
    virtual void setRepeatFrameTipShown(bool shown) = 0;
};

// The projects the application has open. The host installs one manager; the library reaches it
// through getInstance.
class MVVBLMODEL_EXPORT IMvProjectManager
{
public:
    virtual ~IMvProjectManager();

    // The installed manager, or null.
    static IMvProjectManager* getInstance();
    // Installs a manager (null uninstalls); the caller keeps ownership.
    static void setInstance(IMvProjectManager* manager);

    // The settings of the project being edited; null when none is open.
    virtual IMvProjectSettings* currentProjectSettings() const = 0;
};
