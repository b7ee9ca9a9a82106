#pragma once

#include "MvWidgetsGlobal.h"

#include <QColor>
#include <QHash>
#include <QString>

// A named colour of the application skin. The names are the theme's keys.
class MVWIDGETS_EXPORT MvSkinColor
{
public:
    explicit MvSkinColor(const QString& name)
        : m_name(name)
    {
    }

    QString name() const { return m_name; }

    static MvSkinColor Text_Icon_Primary();
    static MvSkinColor Text_Icon_Secondary();
    static MvSkinColor Background_Primary();

private:
    QString m_name;
};

// Resolves skin colours for the current theme; a host changes them with setColor.
class MVWIDGETS_EXPORT MvSkinStyle
{
public:
    static MvSkinStyle* instance();
    static QColor GetColor(const MvSkinColor& color);

    QColor color(const MvSkinColor& color) const;
    void setColor(const MvSkinColor& color, const QColor& value);
    // Back to the built-in dark theme.
    void resetColors();

private:
    MvSkinStyle();
    QHash<QString, QColor> m_colors;
};
