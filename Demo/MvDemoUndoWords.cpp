#include "MvDemoUndoWords.h"

#include <QHash>

QString MvDemoUndoWords::step(const QString& name)
{
    static const QHash<QString, const char*> words {
        { QStringLiteral("add audio default key frame"), QT_TR_NOOP("Add Audio Keyframe") },
        { QStringLiteral("add clip"), QT_TR_NOOP("Add Clip") },
        { QStringLiteral("add default key frame"), QT_TR_NOOP("Add Keyframe") },
        { QStringLiteral("add freeze frame"), QT_TR_NOOP("Add Freeze Frame") },
        { QStringLiteral("add key frame"), QT_TR_NOOP("Add Keyframe") },
        { QStringLiteral("add marker"), QT_TR_NOOP("Add Marker") },
        { QStringLiteral("add media"), QT_TR_NOOP("Add Media") },
        { QStringLiteral("add text layer"), QT_TR_NOOP("Add Text Layer") },
        { QStringLiteral("add track"), QT_TR_NOOP("Add Track") },
        { QStringLiteral("add transition"), QT_TR_NOOP("Add Transition") },
        { QStringLiteral("change frame rate"), QT_TR_NOOP("Change Frame Rate") },
        { QStringLiteral("clear all key frames"), QT_TR_NOOP("Clear All Keyframes") },
        { QStringLiteral("clear selected key frames"), QT_TR_NOOP("Clear Selected Keyframes") },
        { QStringLiteral("delete clips"), QT_TR_NOOP("Delete Clips") },
        { QStringLiteral("disable clip"), QT_TR_NOOP("Disable Clip") },
        { QStringLiteral("edit marker"), QT_TR_NOOP("Edit Marker") },
        { QStringLiteral("enable clip"), QT_TR_NOOP("Enable Clip") },
        { QStringLiteral("group"), QT_TR_NOOP("Group") },
        { QStringLiteral("lock track"), QT_TR_NOOP("Lock Track") },
        { QStringLiteral("move clips"), QT_TR_NOOP("Move Clips") },
        { QStringLiteral("mult add default key frame"), QT_TR_NOOP("Add Keyframes") },
        { QStringLiteral("paste"), QT_TR_NOOP("Paste") },
        { QStringLiteral("paste key frames"), QT_TR_NOOP("Paste Keyframes") },
        { QStringLiteral("remove freeze frame"), QT_TR_NOOP("Remove Freeze Frame") },
        { QStringLiteral("remove key frames"), QT_TR_NOOP("Remove Keyframes") },
        { QStringLiteral("remove marker"), QT_TR_NOOP("Remove Marker") },
        { QStringLiteral("remove smart keying node"), QT_TR_NOOP("Remove Smart Keying Node") },
        { QStringLiteral("remove transition"), QT_TR_NOOP("Remove Transition") },
        { QStringLiteral("rename clip"), QT_TR_NOOP("Rename Clip") },
        { QStringLiteral("ripple delete clips"), QT_TR_NOOP("Ripple Delete Clips") },
        { QStringLiteral("rotate clip"), QT_TR_NOOP("Rotate Clip") },
        { QStringLiteral("set compound content"), QT_TR_NOOP("Change Compound Content") },
        { QStringLiteral("set motion tracking"), QT_TR_NOOP("Change Motion Tracking") },
        { QStringLiteral("set resource"), QT_TR_NOOP("Replace Resource") },
        { QStringLiteral("smart keying"), QT_TR_NOOP("Smart Keying") },
        { QStringLiteral("split"), QT_TR_NOOP("Split") },
        { QStringLiteral("trim end"), QT_TR_NOOP("Trim End") },
        { QStringLiteral("trim start"), QT_TR_NOOP("Trim Start") },
        { QStringLiteral("ungroup"), QT_TR_NOOP("Ungroup") },
        { QStringLiteral("unlock track"), QT_TR_NOOP("Unlock Track") },
    };
    const char* text = words.value(name);
    return text ? tr(text) : name;
}
