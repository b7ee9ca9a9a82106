#pragma once

#include <QtGlobal>

// The in-memory model is a host's and a test's: the timeline library is built against the model
// contract only, and the build refuses any of its sources that reaches in here.
#if defined(MVTIMELINE_LIBRARY)
#error "MvTimeline uses the model contract (IMv*.h) only, never the in-memory model"
#endif

#if defined(MVVBLMODELMEMORY_LIBRARY)
#define MVMEMORY_EXPORT Q_DECL_EXPORT
#else
#define MVMEMORY_EXPORT Q_DECL_IMPORT
#endif
