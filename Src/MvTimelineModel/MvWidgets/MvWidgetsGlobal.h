#pragma once

#include <QtGlobal>

#if defined(MVWIDGETS_LIBRARY)
#define MVWIDGETS_EXPORT Q_DECL_EXPORT
#else
#define MVWIDGETS_EXPORT Q_DECL_IMPORT
#endif

namespace MVWIDGETS {
// The look of an interactive item; colour and image tables are keyed by it.
enum MvWidgetStyleStatus : int
{
    Normal = 1,
    Hover = 2,
    Pressed = 3,
    Disabled = 4
};
}
