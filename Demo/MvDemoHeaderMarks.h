#pragma once

#include <QPainterPath>
#include <QRect>

// The marks of a track header drawn as shapes, so that they look the same whatever fonts the
// system has (a padlock glyph is missing from many of them and shows as an empty box).
namespace MvDemoHeaderMarks {

// A padlock filling a square: closed when locked, with the shackle swung up and open otherwise.
QPainterPath padlock(const QRectF& square, bool locked);
// A loudspeaker: with sound waves when heard, crossed out when muted.
QPainterPath speaker(const QRectF& square, bool muted);
// An eye: open, or shut and struck through.
QPainterPath eye(const QRectF& square, bool open);

// The squares of a header row's marks, right to left: the lock at the row's right, the mute
// switch and the eye before it, each vertically centred; each is the area a click toggles.
QRect lockRect(const QRect& row);
QRect muteRect(const QRect& row);
QRect eyeRect(const QRect& row);

}
