#pragma once

#include <QtGlobal>

#if defined(MVTIMELINE_LIBRARY)
#define MVTIMELINE_EXPORT Q_DECL_EXPORT
#else
#define MVTIMELINE_EXPORT Q_DECL_IMPORT
#endif
