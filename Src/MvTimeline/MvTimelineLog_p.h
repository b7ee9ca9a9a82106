#pragma once

#include "MvBaseLog.h"

// Every record names the source unit, the line and the function, in the product's log format.
#define MV_TIMELINE_LOG(level, file, function, message)                                                            \
    MvBaseLog::defaultLogger()->log((level), QStringLiteral(file), __LINE__, QStringLiteral(function), (message))
