#pragma once

#include <QStringList>
#include <QVector>

#include <functional>

class QAction;
class QMenu;
class QWidget;

// The timeline's context menus: on a clip, on a track header, on the ruler and on empty space
// between the clips. Each menu lists actions of the window by name, so that a new command
// reaches a menu through one more line in the table of entries (MvDemoContextMenus.cpp).
class MvDemoContextMenus
{
public:
    enum class Place
    {
        Clip,
        Track,
        Ruler,
        EmptySpace,
    };

    // A group of entries of one place: action names separated by spaces.
    struct Entry
    {
        Place place;
        const char* actions;
    };

    static const QVector<Entry>& entries();
    // The action names of a place in menu order, an empty name for each separator.
    static QStringList actionsFor(Place place);
    // The menu of a place from the actions `lookup` finds by name. Names it does not know are
    // left out, and so are separators that would lead, trail or double up.
    static QMenu* build(Place place, const std::function<QAction*(const QString&)>& lookup, QWidget* parent);
};
