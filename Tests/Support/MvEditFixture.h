#pragma once

#include "IMvSelection.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvCallJournal.h"
#include "Memory/MvMemoryPlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvBaseLog.h"
#include "MvRecordingScene.h"
#include "MvTimelinePresenter.h"

#include <QMap>

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

// Rows from a compact layout, one word per row: its kind (P picture, A audio) and what it holds
// (e empty, c a clip over frames 0 to 9, l empty and locked), "Pc Pe Al". Returns the words by row.
inline QStringList mvBuildRows(MvMemoryTimeline& timeline, const QString& layout)
{
    const QStringList rows = layout.split(QLatin1Char(' '));
    for (const QString& row : rows)
        timeline.addTrack(row.at(0) == QLatin1Char('A') ? MVVBLMODEL::TrackType_Audio : MVVBLMODEL::TrackType_Picture);
    for (int index = 0; index < rows.size(); ++index) {
        const bool audio = rows.at(index).at(0) == QLatin1Char('A');
        if (rows.at(index).at(1) == QLatin1Char('c'))
            timeline.addClip(
                index, audio ? MVVBLMODEL::ClipType_Audio : MVVBLMODEL::ClipType_Video, 0, 9, QStringLiteral("clip"));
        timeline.trackAt(index)->setLocked(rows.at(index).at(1) == QLatin1Char('l'));
    }
    return rows;
}

// A presenter over a project with picture rows 0, 1 and audio rows 2, 3; model edits and scene
// messages meet in one journal.
template <typename Timeline = MvMemoryTimeline, typename Presenter = MvTimelinePresenter> struct MvEditFixture
{
    explicit MvEditFixture(int kind = 0)
        : timeline(kind)
    {
        for (MVVBLMODEL::MvTrackType type : { MVVBLMODEL::TrackType_Picture, MVVBLMODEL::TrackType_Picture,
                 MVVBLMODEL::TrackType_Audio, MVVBLMODEL::TrackType_Audio })
            timeline.addTrack(type);
        timeline.setJournal(&journal);
        scene.setObserver(
            [this](const MvRecordingScene::Entry& entry) { journal.record(QStringLiteral("scene:%1").arg(entry.id)); });
        presenter->setScene(&scene);
    }

    MvMemoryClip* clip(int track, qint64 start, qint64 end, MVVBLMODEL::MvClipType type = MVVBLMODEL::ClipType_Video)
    {
        return timeline.addClip(track, type, start, end, QStringLiteral("clip"));
    }
    void select(const QList<IMvClip*>& clips) { timeline.selection()->select(clips); }
    void setPlayhead(qint64 frame) { timeline.playhead()->setCurrentFrame(frame); }
    qint64 playhead() const { return timeline.playhead()->currentFrame(); }
    int undoCount() const { return timeline.undoRedoService()->undoCount(); }

    // The journal as one line: "scene:7012 model:moveClips".
    QString journalText() const { return journal.entries().join(QLatin1Char(' ')); }

    // What a refused command must leave alone: the undo count and the model dump, view state included.
    QString snapshot() const { return QStringLiteral("undo steps %1\n").arg(undoCount()) + timeline.stateText(); }

    // Empty when nothing changed since `before`; else the name of the one undo step made since, when the
    // model is consistent and undoing the step gives `before` back but for the view state.
    QString undoOneStep(const QString& before)
    {
        if (snapshot() == before)
            return QString();
        const QString name = timeline.undoRedoService()->undoName();
        const QString problems = timeline.checkInvariants();
        timeline.undoRedoService()->undo();
        const QString wrong = problems + mvStateDiff(withoutView(snapshot()), withoutView(before));
        return wrong.isEmpty() ? name : wrong;
    }

    // For a walk of the undo stack after a sequence of commands: call before the first command and
    // after each one.
    void keepState()
    {
        const QString state = withoutView(snapshot());
        // A command that made no step must have left the model alone.
        if (m_kept.contains(undoCount()) && m_kept.value(undoCount()) != state && m_walkProblem.isEmpty())
            m_walkProblem
                = QStringLiteral("changed without an undo step: ") + mvStateDiff(state, m_kept.value(undoCount()));
        m_kept.insert(undoCount(), state);
    }

    // Undoes every step back to the first kept state, then redoes them all, checking at each step that
    // the model is consistent and, view state aside, as it was kept there. Gives the names of the steps
    // walked, oldest first ("split, move clips"), or the first thing that went wrong.
    QString walkUndo()
    {
        if (m_kept.isEmpty() || m_kept.lastKey() != undoCount() || m_kept.last() != withoutView(snapshot()))
            return QStringLiteral("the state after the last command was not kept");
        if (!m_walkProblem.isEmpty())
            return m_walkProblem;
        IMvUndoRedoService* undo = timeline.undoRedoService();
        const auto check = [this](const char* pass, bool done) -> QString {
            const int step = undoCount();
            const QString where = QStringLiteral("%1 to step %2: ").arg(QLatin1String(pass)).arg(step);
            if (!done)
                return where + QStringLiteral("refused");
            // A step with no state kept: a command made more than one.
            if (!m_kept.contains(step))
                return where + QStringLiteral("no state kept");
            const QString wrong = timeline.checkInvariants() + mvStateDiff(withoutView(snapshot()), m_kept.value(step));
            return wrong.isEmpty() ? QString() : where + wrong;
        };
        QStringList names;
        while (undoCount() > m_kept.firstKey()) {
            names.prepend(undo->undoName());
            const QString wrong = check("undo", undo->undo());
            if (!wrong.isEmpty())
                return wrong;
        }
        while (undoCount() < m_kept.lastKey()) {
            const QString wrong = check("redo", undo->redo());
            if (!wrong.isEmpty())
                return wrong;
        }
        return names.join(QLatin1String(", "));
    }

    static QString withoutView(const QString& snapshot)
    {
        QStringList lines = snapshot.split(QLatin1Char('\n'));
        lines[1] = lines.at(1).section(QLatin1String(" playhead "), 0, 0);
        return lines.mid(0, lines.size() - 2).join(QLatin1Char('\n'));
    }

    MvCallJournal journal;
    Timeline timeline;
    MvRecordingScene scene;
    MvLogCapture log;
    std::unique_ptr<Presenter> presenter { new Presenter(nullptr, &timeline) }; // after the model, so it goes first

private:
    QMap<int, QString> m_kept; // model states by undo depth
    QString m_walkProblem;
};

// Empty when the log holds one record of this text, with this level, function and file.
inline QString mvCheckRecord(const MvLogCapture& log, const QString& text, int level, const QString& function,
    const QString& file = QStringLiteral("Src/MvTimeline/MvTimelinePresenter"))
{
    const QList<MvLogRecord> records = log.find(text);
    if (records.size() != 1)
        return QStringLiteral("%1 records of \"%2\"").arg(records.size()).arg(text);
    const MvLogRecord& r = records.first();
    const bool same = r.level == level && r.function == function && r.file == file;
    return same ? QString() : QStringLiteral("level %1, %2, %3").arg(r.level).arg(r.function, r.file);
}
