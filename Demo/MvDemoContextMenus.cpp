#include "MvDemoContextMenus.h"

#include <QMenu>

using Place = MvDemoContextMenus::Place;

const QVector<MvDemoContextMenus::Entry>& MvDemoContextMenus::entries()
{
    // One line per entry, in menu order within each place.
    static const QVector<Entry> table {
        { Place::Clip, "copy" },
        { Place::Clip, "cut" },
        { Place::Clip, "paste" },
        { Place::Clip, "duplicate" },
        { Place::Clip, nullptr },
        { Place::Clip, "split" },
        { Place::Clip, "trim-start" },
        { Place::Clip, "trim-end" },
        { Place::Clip, nullptr },
        { Place::Clip, "delete" },
        { Place::Clip, "ripple-delete" },
        { Place::Clip, nullptr },
        { Place::Clip, "add-marker" },
        { Place::Clip, "edit-marker" },
        { Place::Clip, "remove-marker" },
        { Place::Clip, nullptr },
        { Place::Clip, "add-keyframe" },
        { Place::Clip, "prev-keyframe" },
        { Place::Clip, "next-keyframe" },
        { Place::Clip, "clear-video-keyframes" },
        { Place::Clip, "clear-audio-keyframes" },
        { Place::Clip, nullptr },
        { Place::Clip, "rotate-cw" },
        { Place::Clip, "rotate-ccw" },
        { Place::Clip, nullptr },
        { Place::Clip, "mute-clips" },
        { Place::Clip, "detach-audio" },
        { Place::Clip, "clear-remix" },
        { Place::Clip, "open-compound" },
        { Place::Clip, nullptr },
        { Place::Clip, "find-similar" },
        { Place::Clip, "select-all-texts" },
        { Place::Clip, nullptr },
        { Place::Clip, "show-properties" },
        { Place::Clip, "advanced-edit" },
        { Place::Clip, "advanced-color" },
        { Place::Clip, "add-animation" },

        { Place::Track, "track-visible" },
        { Place::Track, "track-mute" },
        { Place::Track, "track-lock" },
        { Place::Track, nullptr },
        { Place::Track, "track-rows-small" },
        { Place::Track, "track-rows-normal" },
        { Place::Track, "track-rows-large" },

        { Place::Ruler, "add-marker" },
        { Place::Ruler, "edit-marker" },
        { Place::Ruler, "remove-marker" },
        { Place::Ruler, nullptr },
        { Place::Ruler, "zoom-fit" },
        { Place::Ruler, "zoom-in" },
        { Place::Ruler, "zoom-out" },

        { Place::EmptySpace, "paste" },
        { Place::EmptySpace, "split" },
        { Place::EmptySpace, "add-marker" },
        { Place::EmptySpace, nullptr },
        { Place::EmptySpace, "zoom-fit" },
        { Place::EmptySpace, "clear-empty-tracks" },
    };
    return table;
}

QStringList MvDemoContextMenus::actionsFor(Place place)
{
    QStringList names;
    for (const Entry& entry : entries()) {
        if (entry.place == place)
            names.append(entry.action ? QString::fromLatin1(entry.action) : QString());
    }
    return names;
}

QMenu* MvDemoContextMenus::build(Place place, const std::function<QAction*(const QString&)>& lookup, QWidget* parent)
{
    auto* menu = new QMenu(parent);
    bool separatorOwed = false;
    const QStringList names = actionsFor(place);
    for (const QString& name : names) {
        if (name.isEmpty()) {
            separatorOwed = !menu->actions().isEmpty();
            continue;
        }
        QAction* action = lookup ? lookup(name) : nullptr;
        if (!action)
            continue;
        if (separatorOwed)
            menu->addSeparator();
        separatorOwed = false;
        menu->addAction(action);
    }
    return menu;
}
