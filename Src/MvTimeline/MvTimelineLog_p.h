#pragma once

#include "MvBaseLog.h"

#include <QLatin1String>

// Log records of the library name their source unit, line and function in the product's format.
//
// A source file names its unit once, at namespace scope:
//     MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");
// a function names itself once, and every record and undo step of it uses that name:
//     MV_FUNCTION("MvTimelinePresenter::pasteNormalClip");
//     MV_LOG(MvBaseLog::Note, QStringLiteral("paste normal clip"));
//     MvCommandScope command(q, MvCommandScope::PausePlayer, undoService, QStringLiteral("paste"), MV_SOURCE);
// The message is built only when the logger keeps records of that level.
#define MV_LOG_FILE(path)                                                                                              \
    namespace {                                                                                                        \
    constexpr const char* mvLogFile = path;                                                                            \
    }                                                                                                                  \
    static_assert(true, "")

#define MV_FUNCTION(name) constexpr const char* mvFunction = name

#define MV_SOURCE QLatin1String(mvFunction)

#define MV_LOG(level, message)                                                                                         \
    do {                                                                                                               \
        MvBaseLog* mvLogger = MvBaseLog::defaultLogger();                                                              \
        if (mvLogger->accepts(level))                                                                                  \
            mvLogger->log((level), QLatin1String(mvLogFile), __LINE__, QLatin1String(mvFunction), (message));          \
    } while (false)
