#include "MvMemoryCompound.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"

#include <QSet>

namespace MvMemoryCompound {

unsigned nestingFlags(const MvMemoryTimeline* content, const MvMemoryTimeline* target)
{
    if (!content || !target)
        return 0;
    // Walk the content and every timeline nested in it, each once (a broken project may loop).
    QSet<const MvMemoryTimeline*> seen;
    QList<const MvMemoryTimeline*> pending { content };
    while (!pending.isEmpty()) {
        const MvMemoryTimeline* timeline = pending.takeLast();
        if (timeline == target)
            return NestsItself;
        if (seen.contains(timeline))
            continue;
        seen.insert(timeline);
        const QList<MvMemoryClip*> clips = timeline->liveClips();
        for (const MvMemoryClip* clip : clips) {
            if (const MvMemoryTimeline* inner = clip->compoundContent())
                pending.append(inner);
        }
    }
    return content->projectId() != target->projectId() ? ExternalCompound : 0;
}

} // namespace MvMemoryCompound
