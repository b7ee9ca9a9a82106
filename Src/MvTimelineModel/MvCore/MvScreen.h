#pragma once

#include "MvCoreGlobal.h"

// Screen scale queries. The ratio comes from the primary screen unless a host or a test sets it.
class MVCORE_EXPORT MvScreen
{
public:
    static double devicePixelRatio();
    // True at the fractional scales 1.25 and 1.75, where one-pixel seams need extra care.
    static bool isPixelRatio25_75();

    // A value <= 0 returns to the primary screen's ratio.
    static void setDevicePixelRatio(double ratio);

private:
    static double s_override;
};
