#include "MvScreen.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

double MvScreen::s_override = 0.0;

double MvScreen::devicePixelRatio()
{
    if (s_override > 0.0)
        return s_override;
    if (auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        if (QScreen* screen = app->primaryScreen())
            return screen->devicePixelRatio();
    }
    return 1.0;
}

bool MvScreen::isPixelRatio25_75()
{
    const double ratio = devicePixelRatio();
    return std::abs(ratio - 1.25) < 0.001 || std::abs(ratio - 1.75) < 0.001;
}

void MvScreen::setDevicePixelRatio(double ratio)
{
    s_override = ratio;
}
