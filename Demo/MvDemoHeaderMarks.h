#pragma once

#include <QPainterPath>
#include <QRect>

// The marks of a track header drawn as shapes, so that they look the same whatever fonts the
// system has (a padlock glyph is missing from many of them and shows as an empty box).
namespace MvDemoHeaderMarks {

// A padlock filling a square: closed when locked, with the shackle swung up and open otherwise.
QPainterPath padlock(const QRectF& square, bool locked);

// The square of a header row's lock mark: at the row's right, vertically centred, and the area
// that toggles the lock on a click.
QRect lockRect(const QRect& row);

}
