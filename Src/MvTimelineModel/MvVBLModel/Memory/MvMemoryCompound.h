#pragma once

#include "MvMemoryGlobal.h"

class MvMemoryTimeline;

// Compound clips show a timeline of their own. Putting one into a timeline can be refused in two
// ways, reported as the insertion flags of the model's paste and add-media calls.
namespace MvMemoryCompound {

constexpr unsigned ExternalCompound = 4; // the content belongs to another project
constexpr unsigned NestsItself = 8; // the target would end up inside its own content

// 8 when the target is the content or lies inside it through nested compound clips (a compound
// clip may not contain itself); else 4 when the content is another project's; else 0.
MVMEMORY_EXPORT unsigned nestingFlags(const MvMemoryTimeline* content, const MvMemoryTimeline* target);

} // namespace MvMemoryCompound
