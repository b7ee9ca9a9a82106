#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>
#include <QMap>

class IMvAbstractMediaItem;
class IMvClip;
class IMvTimeline;
class IMvTransition;
class IMvTransitionMediaItem;

// Each transition placed, with the item it was made from.
using MvTransitionPlacement = QMap<IMvTransition*, IMvTransitionMediaItem*>;

// Where transitions go. A cut is where two clips touch on one row (the later one starts on the
// frame after the earlier one's last); a transition over a cut sits on the start of the later
// clip, and blends in the earlier clip's media beyond its end. Every placement of one call is one
// undo step; each transition placed is given the frame rate set here.
class MVVBLMODEL_EXPORT MvClipTransitionHelper
{
public:
    MvClipTransitionHelper();

    void setFrameRate(const MVVBLMODEL::MvRational& rate);
    void setClipList(const QList<IMvClip*>& clips);
    // Which cuts addTransitionEnabled counts: between clips with sound, else between pictures.
    void setIsAudioTransition(bool audio);
    // The same seed makes randomAddTransition choose the same items again.
    void setRandomSeed(quint32 seed);

    // A cut of the clip list takes a transition of the kind set.
    bool addTransitionEnabled() const;
    // Somewhere on the timeline a clip starts over a clip of another row (an overlap) that takes a
    // transition of the kind set.
    bool addTransitionEnabled(IMvTimeline* timeline) const;
    // Puts a transition made from the item over every cut of the clip list that takes it.
    MvTransitionPlacement addTransition(IMvTransitionMediaItem* item, qint64 duration);
    // Puts a transition made from the item at the start of every clip that begins over an overlap,
    // at most as long as the overlap.
    MvTransitionPlacement addOverlapTransition(IMvTimeline* timeline, IMvTransitionMediaItem* item, qint64 duration);
    // Puts a transition over every cut of the clip list, made from an item chosen at random among
    // those of the cut's kind; items that are not transitions are left out.
    MvTransitionPlacement randomAddTransition(const QList<IMvAbstractMediaItem*>& items, qint64 duration);

    // The clip takes a transition of that kind at that end: it is on an unlocked row, shows (or,
    // for an audio transition, plays) something, and is long enough for the shortest transition.
    static bool canAddTransition(IMvClip* clip, MVVBLMODEL::MvTransitionType type, bool isAudio);
    // The length a transition at that end gets: the asked duration up to half the clip, so that the
    // other end keeps room for one; 0 when none is asked (duration <= 0: the transition keeps the
    // length of its item) or the clip cannot take one.
    static qint64 getDefaultDuration(IMvClip* clip, qint64 duration, MVVBLMODEL::MvTransitionType type);
    // Some placed transition needs frames its neighbour clip does not have (see below).
    static bool isRepeatFrame(const MvTransitionPlacement& transitions, qint64 duration);
    // A transition at that end of the clip, over a cut, shows the touching clip beyond its end; when
    // that clip's handle on the side of the cut is shorter than the transition, frames repeat. The
    // transition placed there is judged by its own length, else duration is. No cut, no repeat.
    static bool isRepeatFrame(IMvClip* clip, MVVBLMODEL::MvTransitionType type, qint64 duration);

    // The shortest transition, in frames.
    static constexpr qint64 MinimumLength = 2;

private:
    struct Cut
    {
        IMvClip* before;
        IMvClip* after;
    };
    struct Overlap
    {
        IMvClip* clip; // starts over the other
        qint64 length; // frames of the clip over the other
    };
    QList<Cut> cuts(bool audio) const;
    static QList<Overlap> overlaps(IMvTimeline* timeline, bool audio);
    IMvTransition* place(IMvClip* clip, IMvTransitionMediaItem* item, qint64 duration, qint64 limit) const;

    MVVBLMODEL::MvRational m_frameRate;
    QList<IMvClip*> m_clips;
    bool m_audio = false;
    quint32 m_seed;
};
