#include "MvDemoToastHost.h"

#include "MvCustomEvent.h"
#include "MvToast.h"

#include <QWidget>

namespace {
// Gap between a toast and the bottom edge of what it is shown over, in pixels.
constexpr int kToastBottomMargin = 24;
}

MvDemoToastHost::MvDemoToastHost(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    new MvCustomEventListener(this, QLatin1String(MvEventName::ShowCustomToast),
        [this](const MvCustomEventImp& event) { return showToastEvent(event); });
}

void MvDemoToastHost::showNotice(const QString& text)
{
    showOver(m_window, text);
}

bool MvDemoToastHost::showToastEvent(const MvCustomEventImp& event)
{
    // The flag (value 1) is always false from the library; every toast looks the same here.
    const QVariantList values = event.values();
    if (values.size() < 3)
        return false;
    QWidget* anchor = values.at(0).value<QWidget*>();
    showOver(anchor ? anchor : m_window.data(), values.at(2).toString());
    return true;
}

void MvDemoToastHost::showOver(QWidget* anchor, const QString& text)
{
    if (text.isEmpty())
        return;
    MvToast::creatToast(text, anchor, QPixmap(), kToastBottomMargin)->showToast();
}
