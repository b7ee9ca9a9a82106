#pragma once

#include <QtGlobal>

#if defined(MVTIMELINE_LIBRARY)
#define MVTIMELINE_EXPORT Q_DECL_EXPORT
#else
#define MVTIMELINE_EXPORT Q_DECL_IMPORT
#endif

// Internal classes that the tests reach are exported only from a build made for testing, as Qt
// does with its autotest export; a host's build keeps them out of the binary interface.
#if defined(MVTIMELINE_BUILD_TESTS)
#define MVTIMELINE_TEST_EXPORT MVTIMELINE_EXPORT
#else
#define MVTIMELINE_TEST_EXPORT
#endif
