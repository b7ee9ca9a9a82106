#pragma once

#include <QtGlobal>

#if defined(MVCORE_LIBRARY)
#define MVCORE_EXPORT Q_DECL_EXPORT
#else
#define MVCORE_EXPORT Q_DECL_IMPORT
#endif
