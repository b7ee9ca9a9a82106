#pragma once

#include "MvWidgetsGlobal.h"

#include <QPoint>
#include <QString>

// Shows the product's tool tips. Every widget goes through here so that tips look and time out
// alike; the last tip shown is remembered, which lets a host (or a test) tell what the user saw.
class MVWIDGETS_EXPORT MvToolTipHelper
{
public:
    // With autoHide the tip disappears after `seconds` (at least one); otherwise it stays until
    // the mouse leaves or another tip replaces it. An empty text hides the current tip.
    static void showToolTip(const QPoint& globalPos, const QString& text, bool autoHide, int seconds);
    static void hideToolTip();

    static QString lastText();
    static QPoint lastGlobalPos();
    // Display time of the last tip in milliseconds; -1 when it was not timed.
    static int lastDisplayTime();
    // Number of tips shown since start (or since resetHistory).
    static int shownCount();
    static void resetHistory();
};
