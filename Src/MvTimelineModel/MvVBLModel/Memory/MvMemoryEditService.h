#pragma once

#include "MvMemoryGlobal.h"

#include "IMvClipEditService.h"

class MvMemoryTimeline;

// The clipboard and the groups of the in-memory timeline. The groups themselves are timeline state
// (undoable); this service reads and edits them. The clipboard is the application's
// (MvMemoryClipboard.h).
class MVMEMORY_EXPORT MvMemoryEditService : public IMvClipEditService
{
public:
    explicit MvMemoryEditService(MvMemoryTimeline* timeline);

    // Clipboard (MvMemoryClipboard.cpp).
    void copy(QList<IMvAbstractClip*> items) override;
    void cut(QList<IMvAbstractClip*> items) override;
    bool canPaste() const override;
    int paste(qint64 frame, int trackIndex, QList<IMvClip*>& pastedClips, MVVBLMODEL::MvTrackType trackType,
        int mode) override;
    void pasteTransitions(QList<IMvTransition*>& pasted, QList<IMvClip*> targetClips) override;

    void groupMembersOf(IMvClip* clip, QList<IMvClip*>& members, bool includeUngrouped) const override;
    void collectGroupMembers(
        const QList<IMvClip*>& clips, QList<IMvClip*>& members, bool includeUngrouped) const override;
    void ungroup(const QList<IMvClip*>& members) override;
    void group(const QList<IMvClip*>& members, int groupKind) override;

private:
    MvMemoryTimeline* m_timeline;
};
