#pragma once

#include "Memory/MvMemoryTimeline.h"
#include "MvRecordingScene.h"

#include <QRandomGenerator>
#include <QStringList>

#include <functional>
#include <memory>

class IMvAbstractClip;
class IMvMarker;
class MvKeyFramePresenter;
class MvMemoryMediaLibrary;
class MvMemoryTransition;
class MvTimelinePlayheadPresenter;
class MvTimelinePresenter;
class MvTimelineRulerPresenter;
class MvTimelineVirtualPlayheadPresenter;

// What a random-command run acts on: the sample project in memory, a scene that answers every
// question from the generator of the step being run, and the presenters a host creates over it.
// Commands draw their arguments from random() and describe what they did with names of the model
// dump ("c3", "t1"), so that a failing sequence reads as a list of user actions.
class MvRandomWorld
{
public:
    using TimelineFactory = std::function<std::unique_ptr<MvMemoryTimeline>()>;

    // Without a factory the timeline is a plain in-memory one; either way it holds the sample
    // project, with no undo history and the playhead at 0.
    explicit MvRandomWorld(const TimelineFactory& factory = TimelineFactory());
    ~MvRandomWorld();

    // The step about to run draws from a generator of its own seed, so that a step replayed in a
    // shorter sequence draws the same numbers.
    void beginStep(quint32 seed);
    QRandomGenerator& random() { return m_random; }
    // What the scene answered and other side facts of the step, in order.
    QStringList takeNotes();
    void note(const QString& text) { m_notes.append(text); }

    MvMemoryTimeline& timeline() const { return *m_timeline; }
    MvTimelinePresenter& presenter() const { return *m_presenter; }
    MvKeyFramePresenter& keyFrames() const;
    MvTimelineVirtualPlayheadPresenter& virtualPlayhead() const;
    MvTimelinePlayheadPresenter& playheadPresenter() const { return *m_playheadPresenter; }
    MvTimelineRulerPresenter& rulerPresenter() const { return *m_rulerPresenter; }
    MvRecordingScene& scene() { return m_scene; }
    // The sample project's media, for the commands that add media.
    MvMemoryMediaLibrary& media() const { return *m_media; }

    // Argument picks. Frames and offsets lean towards the edges where the edit rules change (a
    // clip's first and last frame, the frame after it, frame 0, the end of the timeline).
    bool chance(int percent) { return int(m_random.bounded(100)) < percent; }
    int below(int bound) { return bound > 0 ? int(m_random.bounded(bound)) : 0; }
    qint64 frame();
    qint64 frameOffset();
    int rowOffset();
    MvMemoryClip* clip(); // a clip on the timeline, null when there is none
    IMvClip* focusedClip(); // mostly a selected clip, else any clip on the timeline, or null
    QList<IMvClip*> clips(); // one to three distinct clips on the timeline, often neighbours
    MvMemoryTransition* transition(); // a transition on the timeline, or null
    IMvMarker* marker(); // a marker of the timeline or of a clip on it, or null

    // Names as the model dump writes them.
    static QString nameOf(const IMvAbstractClip* item);
    static QString namesOf(const QList<IMvClip*>& clips);
    QString selectionText() const;

private:
    void answerQuestions();

    MvRecordingScene m_scene;
    // Before the timeline: the compound clips on it show timelines the library owns.
    std::unique_ptr<MvMemoryMediaLibrary> m_media;
    std::unique_ptr<MvMemoryTimeline> m_timeline;
    std::unique_ptr<MvTimelinePresenter> m_presenter;
    std::unique_ptr<MvTimelinePlayheadPresenter> m_playheadPresenter;
    std::unique_ptr<MvTimelineRulerPresenter> m_rulerPresenter;
    QRandomGenerator m_random;
    QStringList m_notes;
};
