#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvClip;

// Grouping of clips that move and edit together. A clip is in at most one group.
class MVVBLMODEL_EXPORT IMvClipEditService
{
public:
    virtual ~IMvClipEditService();

    // The clip's group members, the clip included; empty when the clip is in no group.
    // includeUngrouped adds the clip itself even when it is in no group.
    virtual void groupMembersOf(IMvClip* clip, QList<IMvClip*>& members, bool includeUngrouped) const = 0;
    // The members of every group the clips belong to, each once, in first-seen order.
    virtual void collectGroupMembers(const QList<IMvClip*>& clips, QList<IMvClip*>& members, bool includeUngrouped) const = 0;
    // Dissolves every group any of these clips belongs to.
    virtual void ungroup(const QList<IMvClip*>& members) = 0;
    // One group of these clips (taken out of their earlier groups); fewer than two clips form none.
    virtual void group(const QList<IMvClip*>& members, int groupKind) = 0;

    // The effect clipboard of the timeline: the effects of one clip, to be put on others.
    // Copies the clip's effects, replacing what the clipboard held.
    virtual void copyEffect(IMvClip* clip) = 0;
    virtual bool canPasteEffect() const = 0;
    // A paste would replace the audio effect of one of these clips.
    virtual bool needAudioEffectOverride(const QList<IMvClip*>& clips) const = 0;
    // Puts the copied effects on the clips, as one undo step; false when no clip took any.
    virtual bool pasteEffect(const QList<IMvClip*>& clips) = 0;
    // Takes every effect off the clips, as one undo step; false when none of them had any.
    virtual bool removeEffects(const QList<IMvClip*>& clips) = 0;
    virtual bool hasEffect(IMvClip* clip) const = 0;
};
