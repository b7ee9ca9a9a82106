#include "MvRulerTickLayout_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace MvRulerTickLayout {

int labelEvery(int labelWidth, double spacing)
{
    if (!(spacing > 0.0))
        return 5;
    // 5 x (1 + floor(labelWidth / (5 x spacing))), capped so that a vanishing spacing cannot
    // overflow an int: no view is wide enough for that many ticks anyway.
    const double ticksBetweenLabels = std::floor(labelWidth / (5.0 * spacing));
    return int((1.0 + std::min(ticksBetweenLabels, 1.0e8)) * 5.0);
}

void layout(const MvRulerLayoutInput& input, MvRulerLayout* out)
{
    out->ticks.resize(0);
    out->labels.resize(0);
    out->labelEvery = labelEvery(input.labelWidth, input.spacing);
    if (input.step <= 0 || !(input.spacing > 0.0) || input.width / input.spacing > kMaxTicks)
        return;

    const qint64 step = input.step;
    qint64 frame = input.start;
    double x = 0.0;
    if (input.start % step != 0) {
        const int q = int(input.start / step);
        frame = (qint64(q) + 1) * step;
        x = double(frame - input.start) * input.spacing / double(step);
    }

    const int half = input.labelWidth / 2;
    const int majorTop = input.height - 10 + input.dy;
    const int minorTop = input.height - 5 + input.dy;
    const double labelTop = input.height + input.dy - 25;
    double lastLabelRight = -1.0;
    while (x <= input.width) {
        const int tick = int(frame / step);
        MvRulerTick entry;
        entry.x = x;
        entry.left = int(x);
        entry.frame = int(frame);
        entry.major = tick % 5 == 0;
        entry.top = entry.major ? majorTop : minorTop;
        if (entry.major && tick % out->labelEvery == 0) {
            const QRectF rect(x - half, labelTop, input.labelWidth, 15.0);
            if (!(lastLabelRight >= 0.0 && rect.left() - lastLabelRight < 5.0)) {
                out->labels.append({ rect, entry.frame });
                lastLabelRight = rect.right();
            }
        }
        out->ticks.append(entry);
        // A ruler that reaches the last 64-bit frame ends there.
        if (frame > std::numeric_limits<qint64>::max() - step)
            break;
        frame += step;
        x += input.spacing;
    }
}

}
