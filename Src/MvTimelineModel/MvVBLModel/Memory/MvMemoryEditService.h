#pragma once

#include "MvMemoryGlobal.h"

#include "IMvClipEditService.h"
#include "MvMemoryEffects.h"

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

    // The effect clipboard (MvMemoryEffects.cpp): the effects of the clip copied last, as values.
    void copyEffect(IMvClip* clip) override;
    bool canPasteEffect() const override;
    bool needAudioEffectOverride(const QList<IMvClip*>& clips) const override;
    bool pasteEffect(const QList<IMvClip*>& clips) override;
    bool removeEffects(const QList<IMvClip*>& clips) override;
    bool hasEffect(IMvClip* clip) const override;
    const MvMemoryClipEffects& copiedEffects() const;

private:
    MvMemoryTimeline* m_timeline;
    MvMemoryClipEffects m_copiedEffects;
};
