#include "MvTimeCode_p.h"

namespace {

// Writes value in base 10, at least two digits, and returns the position after it.
QChar* writePadded(QChar* out, quint64 value)
{
    char digits[20];
    int count = 0;
    do {
        digits[count++] = char('0' + value % 10);
        value /= 10;
    } while (value != 0);
    if (count < 2)
        digits[count++] = '0';
    while (count > 0)
        *out++ = QLatin1Char(digits[--count]);
    return out;
}

}

QString MvTimeCode::format(qint64 frame, int numerator, int denominator)
{
    if (numerator <= 0 || denominator <= 0)
        return QString();
    return format(frame, float(double(numerator) / double(denominator)));
}

QString MvTimeCode::format(qint64 frame, float fps)
{
    if (!(fps >= 0.0001f && fps <= 1.0e9f))
        return QString();
    return formatScaled(frame, quint64(fps * 10000.0f));
}

QString MvTimeCode::formatScaled(qint64 frame, quint64 scaledRate)
{
    const quint64 t = quint64(frame) * 10000u;
    const quint64 hours = t / (scaledRate * 3600u);
    const quint64 r1 = t % (scaledRate * 3600u);
    const quint64 minutes = r1 / (scaledRate * 60u);
    const quint64 r2 = r1 % (scaledRate * 60u);
    const quint64 seconds = r2 / scaledRate;
    const quint64 frames = (r2 % scaledRate) / 10000u;

    QChar buffer[4 * 20 + 3];
    QChar* out = writePadded(buffer, hours);
    *out++ = QLatin1Char(':');
    out = writePadded(out, minutes);
    *out++ = QLatin1Char(':');
    out = writePadded(out, seconds);
    *out++ = QLatin1Char(':');
    out = writePadded(out, frames);
    return QString(buffer, int(out - buffer));
}
