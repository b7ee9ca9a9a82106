#pragma once

#include "MvWidgetsGlobal.h"

#include <QHash>
#include <QString>

// Command ids of the shortcut table that the library shows in its tooltips.
namespace MvCommandId {
constexpr int SplitClips = 2001;
}

// The application's keyboard shortcut table: which scheme is active, and the text of the
// shortcut bound to a command id ("Ctrl+B"), empty when none is bound.
class MVWIDGETS_EXPORT IMvShortcutEditManager
{
public:
    virtual ~IMvShortcutEditManager();

    static IMvShortcutEditManager* GetInstance();
    // Lets a host put its own manager in place; null restores the built-in one.
    static void SetInstance(IMvShortcutEditManager* manager);

    virtual int currentSchemeType() const = 0;
    virtual QString shortcutText(int commandId) const = 0;
};

// The built-in manager: an editable table, which is all a host without its own needs.
class MVWIDGETS_EXPORT MvShortcutEditManager : public IMvShortcutEditManager
{
public:
    int currentSchemeType() const override;
    QString shortcutText(int commandId) const override;

    void setCurrentSchemeType(int scheme);
    void setShortcutText(int commandId, const QString& text);
    void clear();

private:
    int m_scheme = 0;
    QHash<int, QString> m_texts;
};
