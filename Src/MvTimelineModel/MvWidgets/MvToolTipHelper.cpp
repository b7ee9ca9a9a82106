#include "MvToolTipHelper.h"

#include <QGuiApplication>
#include <QToolTip>

#include <algorithm>

namespace {
struct ToolTipHistory
{
    QString text;
    QPoint globalPos;
    int displayTime = -1;
    int count = 0;
};

ToolTipHistory& history()
{
    static ToolTipHistory h;
    return h;
}

// Headless platforms have no screen a tip could appear on (and cannot stack windows); there a
// tip is only recorded.
bool canShowWindows()
{
    const QString platform = QGuiApplication::platformName();
    return !platform.isEmpty() && platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}
}

void MvToolTipHelper::showToolTip(const QPoint& globalPos, const QString& text, bool autoHide, int seconds)
{
    if (text.isEmpty()) {
        hideToolTip();
        return;
    }
    const int displayTime = autoHide ? std::max(1, seconds) * 1000 : -1;
    ToolTipHistory& h = history();
    h.text = text;
    h.globalPos = globalPos;
    h.displayTime = displayTime;
    ++h.count;
    if (canShowWindows())
        QToolTip::showText(globalPos, text, nullptr, QRect(), displayTime);
}

void MvToolTipHelper::hideToolTip()
{
    if (canShowWindows())
        QToolTip::hideText();
}

QString MvToolTipHelper::lastText()
{
    return history().text;
}

QPoint MvToolTipHelper::lastGlobalPos()
{
    return history().globalPos;
}

int MvToolTipHelper::lastDisplayTime()
{
    return history().displayTime;
}

int MvToolTipHelper::shownCount()
{
    return history().count;
}

void MvToolTipHelper::resetHistory()
{
    history() = ToolTipHistory();
}
