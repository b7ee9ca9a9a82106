#include "MvSkinStyle.h"

MvSkinColor MvSkinColor::Text_Icon_Primary()
{
    return MvSkinColor(QStringLiteral("Text_Icon_Primary"));
}

MvSkinColor MvSkinColor::Text_Icon_Secondary()
{
    return MvSkinColor(QStringLiteral("Text_Icon_Secondary"));
}

MvSkinColor MvSkinColor::Background_Primary()
{
    return MvSkinColor(QStringLiteral("Background_Primary"));
}

MvSkinStyle::MvSkinStyle()
{
    resetColors();
}

MvSkinStyle* MvSkinStyle::instance()
{
    static MvSkinStyle style;
    return &style;
}

QColor MvSkinStyle::GetColor(const MvSkinColor& color)
{
    return instance()->color(color);
}

QColor MvSkinStyle::color(const MvSkinColor& color) const
{
    return m_colors.value(color.name());
}

void MvSkinStyle::setColor(const MvSkinColor& color, const QColor& value)
{
    m_colors.insert(color.name(), value);
}

void MvSkinStyle::resetColors()
{
    m_colors.clear();
    m_colors.insert(MvSkinColor::Text_Icon_Primary().name(), QColor(0xE6, 0xE6, 0xE6));
    m_colors.insert(MvSkinColor::Text_Icon_Secondary().name(), QColor(0x9A, 0x9C, 0xA3));
    m_colors.insert(MvSkinColor::Background_Primary().name(), QColor(0x1F, 0x20, 0x24));
}
