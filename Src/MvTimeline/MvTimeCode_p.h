#pragma once

// Internal to the library: the one time-code formatter. The ruler's labels, the ruler presenter's
// formatTimecode and the time the marker edit dialog shows all come from here, so that a frame
// reads the same wherever the user sees it.

#include <QString>

class MvTimeCode
{
public:
    // "hh:mm:ss:ff" of a frame, each field at least two digits (hours are not capped), counted
    // without drop frames at the rate rounded once to float: at 30000/1001 a second is 29.97
    // frames, so frame 1800 reads 00:01:00:01 and frame 17982 reads 00:10:00:00. Empty for a rate
    // that cannot count (a zero or negative numerator or denominator).
    static QString format(qint64 frame, int numerator, int denominator);

    // The same at a rate in frames per second; empty outside 0.0001 .. 1e9 fps.
    static QString format(qint64 frame, float fps);

private:
    // The fields are worked out in units of 1/10000 frame, so that fractional rates need no
    // floating point per frame. Exact for frames up to 1.8e15 (the product wraps beyond, and a
    // negative frame wraps like a huge one, as the ruler always showed it).
    static QString formatScaled(qint64 frame, quint64 scaledRate);
};
