#pragma once

#include "MvMemoryTimeline.h"

#include <QList>

#include <functional>

class IMvTimelineRuler;
class IMvTimelineRenderService;

class MvMemoryTimelinePrivate
{
public:
    explicit MvMemoryTimelinePrivate(MvMemoryTimeline* q, int kind);
    ~MvMemoryTimelinePrivate();

    MvMemoryModelState capture() const;
    void restore(const MvMemoryModelState& state);
    // After each edit and each undo or redo: drop dead selections, follow the duration.
    void afterChange();
    // After a step was recorded, undone or redone: the stretch whose picture or sound changed
    // needs rendering again.
    void modelChanged(const MvMemoryModelState& from, const MvMemoryModelState& to);
    void markChangedFramesUnrendered(const MvMemoryModelState& from, const MvMemoryModelState& to);
    void record(const char* operation) const;
    // A building call: joins an open step; outside a step it is applied directly and the history,
    // which no longer describes the model, is cleared.
    void build(const char* operation, const QString& stepName, const std::function<void()>& work);

    bool editable(const MvMemoryClip* clip) const;
    QList<MvMemoryClip*> liveClipsOf(const QList<IMvClip*>& clips, bool* allLive) const;
    void detach(MvMemoryClip* clip);
    void removeFromGroups(const QList<MvMemoryClip*>& clips);
    MvMemoryClip* cutClip(MvMemoryClip* clip, qint64 frame);
    bool trimStart(MvMemoryClip* clip, qint64 frame);
    bool trimEnd(MvMemoryClip* clip, qint64 frame);
    bool moveAllowed(const QList<MvMemoryClip*>& clips, const QList<MvMemoryTrack*>& targets, qint64 frameOffset) const;
    void rotate(IMvClip* clip, int degrees, const char* operation);
    void checkTracks(QStringList& problems) const;
    void checkClips(QStringList& problems) const;
    void checkItems(QStringList& problems) const;
    QString clipText(const MvMemoryClip* clip) const;
    QString clipId(const MvMemoryClip* clip) const;

    MvMemoryTimeline* q_ptr;
    Q_DECLARE_PUBLIC(MvMemoryTimeline)

    int kind;
    MVVBLMODEL::MvFrameRate frameRate;
    QList<MvMemoryTrack*> allTracks;
    QList<MvMemoryTrack*> tracks; // row order
    QList<MvMemoryClip*> allClips;
    QList<MvMemoryTransition*> allTransitions;
    QList<MvMemoryGroup> groups;
    int nextTransitionId = 1;

    MvMemoryUndoService* undo = nullptr;
    MvMemoryPlayhead* playhead = nullptr;
    MvMemorySelection* selection = nullptr;
    MvMemorySubItemSelection* subItemSelection = nullptr;
    MvMemoryEditService* editService = nullptr;
    MvMemoryMarkerModel* markerModel = nullptr;
    MvMemoryMarkerList* timelineMarkers = nullptr;
    MvMemoryKeyFrameSelector* keyFrameSelector = nullptr;
    MvMemoryKeyFrameClipboard* keyFrameClipboard = nullptr;
    IMvTimelineRuler* ruler = nullptr;
    IMvTimelineRenderService* renderService = nullptr;
    MvCallJournal* journal = nullptr;
    QList<std::function<void()>> changeListeners;

    qint64 knownDuration = 0;
    int beginDeleteCount = 0;
    bool seekAfterDelete = true;
    bool virtualAllowed = true;
};
