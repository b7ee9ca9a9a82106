#include "MvDemoContextMenus.h"

#include <QMenu>

using Place = MvDemoContextMenus::Place;

const QVector<MvDemoContextMenus::Entry>& MvDemoContextMenus::entries()
{
    // A line per group of entries, in menu order within each place; separators come between groups.
    static const QVector<Entry> table {
        { Place::Clip, "copy cut paste duplicate" },
        { Place::Clip, "split trim-start trim-end" },
        { Place::Clip, "delete ripple-delete" },
        { Place::Clip, "add-marker edit-marker remove-marker" },
        { Place::Clip, "add-keyframe prev-keyframe next-keyframe clear-video-keyframes clear-audio-keyframes" },
        { Place::Clip, "rotate-cw rotate-ccw" },
        { Place::Clip, "mute-clips detach-audio clear-remix open-compound" },
        { Place::Clip, "find-similar select-all-texts" },
        { Place::Clip, "show-properties advanced-edit advanced-color add-animation" },
        { Place::Clip, "copy-effects paste-effects delete-effects" },
        { Place::Clip, "apply-transition random-transitions apply-effect" },

        { Place::Track, "track-visible track-mute track-lock" },
        { Place::Track, "track-rows-small track-rows-normal track-rows-large" },

        { Place::Ruler, "add-marker edit-marker remove-marker" },
        { Place::Ruler, "zoom-fit zoom-in zoom-out" },

        { Place::EmptySpace, "paste split add-marker" },
        { Place::EmptySpace, "zoom-fit clear-empty-tracks" },
    };
    return table;
}

QStringList MvDemoContextMenus::actionsFor(Place place)
{
    QStringList names;
    for (const Entry& entry : entries()) {
        if (entry.place != place)
            continue;
        if (!names.isEmpty())
            names.append(QString());
        names.append(QString::fromLatin1(entry.actions).split(QLatin1Char(' ')));
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
