#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

class IMvAbstractClip;
class IMvClip;
class IMvTransition;

// The clip clipboard, and the grouping of clips that move and edit together (a clip is in at most
// one group).
class MVVBLMODEL_EXPORT IMvClipEditService
{
public:
    virtual ~IMvClipEditService();

    // The clipboard holds value copies of the items (clips with everything they carry,
    // transitions); a copy replaces what it held.
    virtual void copy(QList<IMvAbstractClip*> items) = 0;
    // Copies the items, then takes them off the timeline, as one undo step.
    virtual void cut(QList<IMvAbstractClip*> items) = 0;
    virtual bool canPaste() const = 0;
    // Puts the copied clips on the timeline from frame on, as one undo step, and lists the new
    // clips. Answers flags: 8 a compound clip was left out because the timeline is (or lies inside)
    // its content, 4 one was left out because its content belongs to another project.
    virtual int paste(
        qint64 frame, int trackIndex, QList<IMvClip*>& pastedClips, MVVBLMODEL::MvTrackType trackType, int mode)
        = 0;
    // Puts the copied transitions onto every target clip, as one undo step, and lists them.
    virtual void pasteTransitions(QList<IMvTransition*>& pasted, QList<IMvClip*> targetClips) = 0;

    // The clip's group members, the clip included; empty when the clip is in no group.
    // includeUngrouped adds the clip itself even when it is in no group.
    virtual void groupMembersOf(IMvClip* clip, QList<IMvClip*>& members, bool includeUngrouped) const = 0;
    // The members of every group the clips belong to, each once, in first-seen order.
    virtual void collectGroupMembers(
        const QList<IMvClip*>& clips, QList<IMvClip*>& members, bool includeUngrouped) const = 0;
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
