#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;
class MvCustomEventImp;

// The demo's toast host: turns the library's "ShowCustomToast" events (anchor widget, flag,
// translated text) into toasts over their anchor, and shows the demo's own notices, such as why
// a command was refused, the same way.
class MvDemoToastHost : public QObject
{
    Q_OBJECT

public:
    // window: where a toast goes when the event names no anchor; the host lives as long as it.
    explicit MvDemoToastHost(QWidget* window);

    // Shows an already translated text over the window.
    void showNotice(const QString& text);

private:
    bool showToastEvent(const MvCustomEventImp& event);
    void showOver(QWidget* anchor, const QString& text);

    QPointer<QWidget> m_window;
};
