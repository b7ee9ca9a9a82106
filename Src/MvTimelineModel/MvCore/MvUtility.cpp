#include "MvUtility.h"

#include <QApplication>
#include <QMainWindow>

QWidget* MvUtility::gGetMainWindow()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<QMainWindow*>(window) && window->isVisible())
            return window;
    }
    for (QWidget* window : windows) {
        if (qobject_cast<QMainWindow*>(window))
            return window;
    }
    return QApplication::activeWindow();
}
