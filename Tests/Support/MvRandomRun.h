#pragma once

#include "MvRandomWorld.h"

#include <QList>
#include <QString>
#include <QStringList>

struct MvRandomCommand;

// One step of a random run: a command of the table with the seed its arguments are drawn from,
// or a walk of the whole undo stack.
struct MvRandomStep
{
    static constexpr int Walk = -1;

    int command = Walk; // index into mvRandomCommands()
    quint32 seed = 0;

    bool operator==(const MvRandomStep& other) const { return command == other.command && seed == other.seed; }
};

// A world with the checks a random run makes after every step: the model is consistent, a
// command made at most the undo steps it may, a command that made none left the model alone,
// and every undo and redo gives back the state recorded at that depth of the stack. States are
// compared without the view state (playhead, selections), which undo does not restore.
class MvRandomSession
{
public:
    explicit MvRandomSession(const MvRandomWorld::TimelineFactory& factory = MvRandomWorld::TimelineFactory());

    // Runs one step; gives the first problem found ("category: detail"), empty when all held.
    // The step's description (what it did, what the scene answered) goes to *description.
    QString run(const MvRandomStep& step, QString* description);
    MvRandomWorld& world() { return m_world; }

private:
    QString checkCommand(const MvRandomCommand& command, int undoBefore, int redoBefore);
    QString walk(QString* description);
    QString checkRestored(const char* pass);
    QString modelState() const;

    MvRandomWorld m_world;
    QVector<QString> m_kept; // the model state at each depth of the undo stack; empty when unknown
};

// Runs rounds of seeded random steps over the sample project, and when a check fails shrinks the
// failing round to a short sequence that still fails the same way.
class MvRandomRun
{
public:
    struct Options
    {
        quint32 seed = 1;
        qint64 commands = 1000; // over all rounds, walks not counted
        int roundLength = 200; // commands per round; each round starts from a fresh sample project
        int walkEvery = 50; // commands between two walks of the undo stack
        int maxReplays = 4000; // budget of the shrinking
        // Called with each step's description before the next step runs (for a crash: the last
        // line says what was done last).
        std::function<void(const QString&)> trace;
        MvRandomWorld::TimelineFactory factory;
    };

    struct Outcome
    {
        bool failed = false;
        qint64 commandsRun = 0;
        int round = 0;
        quint32 roundSeed = 0;
        int commandsInRound = 0; // up to and with the failing step
        QString problem;
        QList<MvRandomStep> reproduction; // the shortest failing sequence found
        QStringList reproductionText; // what each of its steps did
        QString reproductionProblem;
        int replays = 0;
    };

    static Outcome run(const Options& options);
    // A report for a failed outcome: seeds to rerun, the short sequence as a list and the text that
    // replays it.
    static QString report(const Options& options, const Outcome& outcome);

    // The seed of a round: round 0 has the run's seed, so a failing round reruns as round 0.
    static quint32 roundSeed(quint32 runSeed, int round);
    // The steps of a round of that many commands: picked by weight, a walk after every walkEvery
    // commands and one at the end. A shorter round is a prefix of a longer one.
    static QList<MvRandomStep> roundSteps(quint32 seed, int commands, int walkEvery);

    // Replays steps on a fresh world; the first problem, empty when none. With texts, each step's
    // description; with failedAt, the index of the failing step.
    static QString replay(const QList<MvRandomStep>& steps, const MvRandomWorld::TimelineFactory& factory,
        QStringList* texts = nullptr, int* failedAt = nullptr);
    // Delta debugging: drops steps while the replay still fails with the same category.
    static QList<MvRandomStep> shrink(QList<MvRandomStep> steps, const QString& category,
        const MvRandomWorld::TimelineFactory& factory, int maxReplays, int* replays);

    // "name@seed;walk;...": a sequence a developer can hand back through MV_RANDOM_REPLAY.
    static QString toText(const QList<MvRandomStep>& steps);
    static bool fromText(const QString& text, QList<MvRandomStep>* steps);
    static QString category(const QString& problem);
};
