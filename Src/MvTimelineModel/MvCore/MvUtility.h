#pragma once

#include "MvCoreGlobal.h"

class QWidget;

namespace MvUtility {
// The application's main window: the first visible top-level QMainWindow, else the active window,
// else null (no widgets, or a non-widget application).
MVCORE_EXPORT QWidget* gGetMainWindow();
}
