#pragma once

#include <QFont>

// The ruler as the host sets it up: its height and the font of its time codes. The library
// draws each time code into a box 15 pixels high and as wide as "00:00:00:00" measures in the
// ruler's font, and clips the text to that box; some fonts at some sizes draw wider or taller
// than they measure, and the codes lose their last digit or their bottom.
namespace MvDemoRulerLook {

constexpr int kRulerHeight = 30;
constexpr int kLabelHeight = 15;

// True when every time code, whatever its digits, is drawn inside its box in this font.
bool labelsFit(const QFont& font);

// The base font at the largest pixel size, up to the base's own, at which the labels fit.
QFont labelFont(const QFont& base);

}
