#pragma once

#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvCallJournal.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvBaseLog.h"
#include "MvRecordingScene.h"
#include "MvTimelinePresenter.h"

#include <QStringList>

#include <memory>

// The first line where two model dumps differ, empty when they are the same.
inline QString mvStateDiff(const QString& actual, const QString& expected)
{
    const QStringList a = actual.split(QLatin1Char('\n'));
    const QStringList e = expected.split(QLatin1Char('\n'));
    for (int i = 0; i < qMax(a.size(), e.size()); ++i) {
        if (a.value(i) != e.value(i))
            return QStringLiteral("line %1: \"%2\" instead of \"%3\"").arg(i).arg(a.value(i), e.value(i));
    }
    return QString();
}

// A timeline presenter over an in-memory project with two picture rows (0, 1) and two audio rows
// (2, 3), a recording scene and one journal in which model edits and scene messages meet.
template <typename Timeline = MvMemoryTimeline, typename Presenter = MvTimelinePresenter> struct MvEditFixture
{
    explicit MvEditFixture(int kind = 0)
        : timeline(kind)
    {
        timeline.addTrack(MVVBLMODEL::TrackType_Picture);
        timeline.addTrack(MVVBLMODEL::TrackType_Picture);
        timeline.addTrack(MVVBLMODEL::TrackType_Audio);
        timeline.addTrack(MVVBLMODEL::TrackType_Audio);
        timeline.setJournal(&journal);
        scene.setObserver(
            [this](const MvRecordingScene::Entry& entry) { journal.record(QStringLiteral("scene:%1").arg(entry.id)); });
        presenter.reset(new Presenter(nullptr, &timeline));
        presenter->setScene(&scene);
    }

    ~MvEditFixture() { presenter.reset(); }

    MvMemoryClip* clip(int track, qint64 start, qint64 end, MVVBLMODEL::MvClipType type = MVVBLMODEL::ClipType_Video)
    {
        return timeline.addClip(track, type, start, end, QStringLiteral("c%1").arg(++clipCount));
    }

    void select(const QList<IMvClip*>& clips) { timeline.selection()->select(clips); }
    void setPlayhead(qint64 frame) { timeline.playhead()->setCurrentFrame(frame); }
    qint64 playhead() const { return timeline.playhead()->currentFrame(); }
    int undoCount() const { return timeline.undoRedoService()->undoCount(); }
    QString undoName() const { return timeline.undoRedoService()->undoName(); }

    // True when the player was paused (message 7012) before the first model edit of the journal.
    bool pausedBeforeTheModel() const
    {
        const QStringList entries = journal.entries();
        const int pause = entries.indexOf(QStringLiteral("scene:7012"));
        for (int i = 0; i < entries.size(); ++i) {
            if (entries.at(i).startsWith(QLatin1String("model:")))
                return pause >= 0 && pause < i;
        }
        return false;
    }

    // Index of the first journal entry equal to text, -1 when there is none.
    int at(const QString& text) const { return journal.entries().indexOf(text); }

    // What a refused command must leave untouched.
    struct Snapshot
    {
        QString state;
        int undoCount = 0;
        QList<IMvAbstractClip*> selection;
        qint64 playhead = 0;
        IMvMarker* selectedMarker = nullptr;
        bool operator==(const Snapshot& other) const
        {
            return state == other.state && undoCount == other.undoCount && selection == other.selection;
        }
    };

    Snapshot snapshot() const
    {
        return { timeline.stateText(), undoCount(), timeline.selection()->selectedItems(), playhead(),
            timeline.markerModel()->selectedMarker() };
    }

    // Undoes the last step, puts back the view state that undo leaves alone (playhead, selections)
    // and tells where the model dump still differs from the snapshot; empty when it is the same.
    QString undoDiff(const Snapshot& before)
    {
        if (!timeline.undoRedoService()->undo())
            return QStringLiteral("nothing to undo");
        timeline.playhead()->setCurrentFrame(before.playhead);
        timeline.selection()->selectItems(before.selection);
        timeline.markerModel()->setSelectedMarker(before.selectedMarker);
        return mvStateDiff(timeline.stateText(), before.state);
    }

    MvCallJournal journal;
    Timeline timeline;
    MvRecordingScene scene;
    MvLogCapture log;
    std::unique_ptr<Presenter> presenter;
    int clipCount = 0;
};

// The one record with this text, compared by level and function; empty when it matches.
inline QString mvCheckRecord(const MvLogCapture& log, const QString& text, int level, const QString& function,
    const QString& file = QStringLiteral("Src/MvTimeline/MvTimelinePresenter"))
{
    const QList<MvLogRecord> records = log.find(text);
    if (records.size() != 1)
        return QStringLiteral("%1 records of \"%2\"").arg(records.size()).arg(text);
    const MvLogRecord& record = records.first();
    if (record.level != level || record.function != function || record.file != file)
        return QStringLiteral("\"%1\": level %2, function %3, file %4")
            .arg(text)
            .arg(record.level)
            .arg(record.function, record.file);
    return QString();
}
