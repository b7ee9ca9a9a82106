#include "MvRandomRun.h"

#include "IMvUndoRedoService.h"
#include "MvEditFixture.h"
#include "MvRandomCommands.h"

namespace {
const QString kWalkName = QStringLiteral("walk");

IMvUndoRedoService* undoOf(MvRandomWorld& world)
{
    return world.timeline().undoRedoService();
}

// A round's seed from the run's seed and the round's number (splitmix64 finaliser).
quint32 mix(quint64 value)
{
    value += 0x9e3779b97f4a7c15ULL;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
    return quint32((value ^ (value >> 31)) & 0xffffffffu);
}
}

MvRandomSession::MvRandomSession(const MvRandomWorld::TimelineFactory& factory)
    : m_world(factory)
{
    m_kept.append(modelState());
}

// The dump without the view state: the playhead on the first line, the selection and the selected
// marker on the last two.
QString MvRandomSession::modelState() const
{
    QStringList lines = m_world.timeline().stateText().split(QLatin1Char('\n'));
    lines[0] = lines.at(0).section(QLatin1String(" playhead "), 0, 0);
    return lines.mid(0, lines.size() - 2).join(QLatin1Char('\n'));
}

QString MvRandomSession::run(const MvRandomStep& step, QString* description)
{
    if (step.command == MvRandomStep::Walk)
        return walk(description);
    const MvRandomCommand& command = mvRandomCommands().at(step.command);
    IMvUndoRedoService* undo = undoOf(m_world);
    const int undoBefore = undo->undoCount();
    const int redoBefore = undo->redoCount();
    m_world.beginStep(step.seed);
    QString text = command.run(m_world);
    const QStringList notes = m_world.takeNotes();
    if (!notes.isEmpty())
        text += QStringLiteral(" [") + notes.join(QLatin1String("; ")) + QLatin1Char(']');
    if (description)
        *description = text;
    const QString problems = m_world.timeline().checkInvariants();
    if (!problems.isEmpty())
        return QStringLiteral("inconsistent model: ") + problems;
    return checkCommand(command, undoBefore, redoBefore);
}

QString MvRandomSession::checkCommand(const MvRandomCommand& command, int undoBefore, int redoBefore)
{
    IMvUndoRedoService* undo = undoOf(m_world);
    const int depth = undo->undoCount();
    const int redo = undo->redoCount();
    const QString now = modelState();
    const auto stack = [&]() {
        return QStringLiteral("undo stack: %1 undo and %2 redo steps became %3 and %4")
            .arg(undoBefore)
            .arg(redoBefore)
            .arg(depth)
            .arg(redo);
    };
    switch (command.undo) {
    case MvRandomCommand::UndoesOne:
    case MvRandomCommand::RedoesOne: {
        const bool undoing = command.undo == MvRandomCommand::UndoesOne;
        const bool possible = undoing ? undoBefore > 0 : redoBefore > 0;
        const int step = possible ? (undoing ? -1 : 1) : 0;
        if (depth != undoBefore + step || redo != redoBefore - step)
            return stack();
        return checkRestored(undoing ? "undo" : "redo");
    }
    case MvRandomCommand::OneStepAtMost:
    case MvRandomCommand::SeveralSteps:
        break;
    }
    if (depth == undoBefore && redo == redoBefore) {
        const QString& kept = m_kept.at(depth);
        if (!kept.isEmpty() && kept != now)
            return QStringLiteral("changed without an undo step: ") + mvStateDiff(now, kept);
        return QString();
    }
    const bool oneStep = depth == undoBefore + 1;
    const bool allowed = command.undo == MvRandomCommand::SeveralSteps ? depth > undoBefore : oneStep;
    if (!allowed || redo != 0)
        return stack();
    // The steps in between (several steps) are not known; the redo steps are gone.
    m_kept.resize(undoBefore + 1);
    m_kept.resize(depth);
    m_kept.append(now);
    return QString();
}

// The state now must be the one kept at this depth, and consistent.
QString MvRandomSession::checkRestored(const char* pass)
{
    const int depth = undoOf(m_world)->undoCount();
    const QString problems = m_world.timeline().checkInvariants();
    if (!problems.isEmpty())
        return QStringLiteral("inconsistent model: after %1 to step %2: %3")
            .arg(QLatin1String(pass))
            .arg(depth)
            .arg(problems);
    if (depth >= m_kept.size())
        return QStringLiteral("undo stack: %1 to step %2, which was never recorded")
            .arg(QLatin1String(pass))
            .arg(depth);
    const QString& kept = m_kept.at(depth);
    const QString now = modelState();
    if (!kept.isEmpty() && kept != now)
        return QStringLiteral("%1 differs: at step %2, %3")
            .arg(QLatin1String(pass))
            .arg(depth)
            .arg(mvStateDiff(now, kept));
    return QString();
}

// Every step undone back to the start of the round, all redone, then undone back to where the
// walk began (so that the redo steps the user had stay as they were).
QString MvRandomSession::walk(QString* description)
{
    IMvUndoRedoService* undo = undoOf(m_world);
    const int home = undo->undoCount();
    const int top = home + undo->redoCount();
    if (description)
        *description = QStringLiteral("walk: undo %1 steps, redo %2, undo %3").arg(home).arg(top).arg(top - home);
    while (undo->undoCount() > 0) {
        const int before = undo->undoCount();
        if (!undo->undo() || undo->undoCount() != before - 1)
            return QStringLiteral("undo stack: undo refused at step %1").arg(before);
        const QString wrong = checkRestored("undo");
        if (!wrong.isEmpty())
            return wrong;
    }
    while (undo->redoCount() > 0) {
        const int before = undo->undoCount();
        if (!undo->redo() || undo->undoCount() != before + 1)
            return QStringLiteral("undo stack: redo refused at step %1").arg(before);
        const QString wrong = checkRestored("redo");
        if (!wrong.isEmpty())
            return wrong;
    }
    if (undo->undoCount() != top)
        return QStringLiteral("undo stack: the walk ended at step %1 instead of %2").arg(undo->undoCount()).arg(top);
    while (undo->undoCount() > home) {
        undo->undo();
        const QString wrong = checkRestored("undo");
        if (!wrong.isEmpty())
            return wrong;
    }
    return QString();
}

quint32 MvRandomRun::roundSeed(quint32 runSeed, int round)
{
    return round == 0 ? runSeed : mix((quint64(runSeed) << 32) | quint32(round));
}

QList<MvRandomStep> MvRandomRun::roundSteps(quint32 seed, int commands, int walkEvery)
{
    const QVector<MvRandomCommand>& table = mvRandomCommands();
    int total = 0;
    for (const MvRandomCommand& command : table)
        total += command.weight;
    QRandomGenerator random(seed);
    QList<MvRandomStep> steps;
    for (int i = 0; i < commands; ++i) {
        if (i > 0 && walkEvery > 0 && i % walkEvery == 0)
            steps.append(MvRandomStep());
        int pick = int(random.bounded(total));
        int index = 0;
        while (pick >= table.at(index).weight)
            pick -= table.at(index++).weight;
        steps.append(MvRandomStep { index, random.generate() });
    }
    steps.append(MvRandomStep());
    return steps;
}

QString MvRandomRun::replay(
    const QList<MvRandomStep>& steps, const MvRandomWorld::TimelineFactory& factory, QStringList* texts, int* failedAt)
{
    MvRandomSession session(factory);
    for (int i = 0; i < steps.size(); ++i) {
        QString text;
        const QString problem = session.run(steps.at(i), &text);
        if (texts)
            texts->append(text);
        if (!problem.isEmpty()) {
            if (failedAt)
                *failedAt = i;
            return problem;
        }
    }
    return QString();
}

QString MvRandomRun::category(const QString& problem)
{
    return problem.section(QLatin1Char(':'), 0, 0);
}

// Delta debugging (ddmin): try each chunk alone, then the list without each chunk; keep the first
// that still fails the same way, and split finer when none does.
QList<MvRandomStep> MvRandomRun::shrink(QList<MvRandomStep> steps, const QString& wanted,
    const MvRandomWorld::TimelineFactory& factory, int maxReplays, int* replays)
{
    const auto fails = [&](const QList<MvRandomStep>& candidate) {
        ++*replays;
        return category(replay(candidate, factory)) == wanted;
    };
    int chunks = 2;
    while (steps.size() >= 2 && *replays < maxReplays) {
        const int size = steps.size();
        QList<QList<MvRandomStep>> parts;
        for (int i = 0; i < chunks; ++i)
            parts.append(steps.mid(size * i / chunks, size * (i + 1) / chunks - size * i / chunks));
        bool reduced = false;
        for (int i = 0; i < chunks && !reduced && *replays < maxReplays; ++i) {
            if (chunks > 2 && fails(parts.at(i))) {
                steps = parts.at(i);
                chunks = 2;
                reduced = true;
            }
        }
        for (int i = 0; i < chunks && !reduced && *replays < maxReplays; ++i) {
            QList<MvRandomStep> rest;
            for (int j = 0; j < chunks; ++j) {
                if (j != i)
                    rest += parts.at(j);
            }
            if (fails(rest)) {
                steps = rest;
                chunks = qMax(chunks - 1, 2);
                reduced = true;
            }
        }
        if (!reduced) {
            if (chunks >= size)
                break;
            chunks = qMin(size, chunks * 2);
        }
    }
    return steps;
}

MvRandomRun::Outcome MvRandomRun::run(const Options& options)
{
    Outcome outcome;
    for (int round = 0; outcome.commandsRun < options.commands; ++round) {
        const int commands = int(qMin<qint64>(options.roundLength, options.commands - outcome.commandsRun));
        const quint32 seed = roundSeed(options.seed, round);
        const QList<MvRandomStep> steps = roundSteps(seed, commands, options.walkEvery);
        MvRandomSession session(options.factory);
        int commandsInRound = 0;
        for (int i = 0; i < steps.size(); ++i) {
            if (steps.at(i).command != MvRandomStep::Walk)
                ++commandsInRound;
            QString text;
            const QString problem = session.run(steps.at(i), options.trace ? &text : nullptr);
            if (options.trace)
                options.trace(text);
            if (problem.isEmpty())
                continue;
            outcome.failed = true;
            outcome.round = round;
            outcome.roundSeed = seed;
            outcome.commandsInRound = commandsInRound;
            outcome.commandsRun += commandsInRound;
            outcome.problem = problem;
            outcome.reproduction
                = shrink(steps.mid(0, i + 1), category(problem), options.factory, options.maxReplays, &outcome.replays);
            outcome.reproductionProblem
                = replay(outcome.reproduction, options.factory, &outcome.reproductionText, nullptr);
            return outcome;
        }
        outcome.commandsRun += commands;
    }
    return outcome;
}

QString MvRandomRun::report(const Options& options, const Outcome& outcome)
{
    QStringList lines;
    lines.append(QStringLiteral("random commands: seed %1, round %2 (seed %3), command %4 of the round: %5")
                     .arg(options.seed)
                     .arg(outcome.round)
                     .arg(outcome.roundSeed)
                     .arg(outcome.commandsInRound)
                     .arg(outcome.problem));
    lines.append(QStringLiteral("rerun that round: MV_RANDOM_SEED=%1 MV_RANDOM_STEPS=%2")
                     .arg(outcome.roundSeed)
                     .arg(outcome.commandsInRound));
    lines.append(QStringLiteral("shortest failing sequence found (%1 steps, %2 replays), from the sample project:")
                     .arg(outcome.reproduction.size())
                     .arg(outcome.replays));
    for (int i = 0; i < outcome.reproductionText.size(); ++i)
        lines.append(QStringLiteral("  %1. %2").arg(i + 1).arg(outcome.reproductionText.at(i)));
    lines.append(QStringLiteral("  => ") + outcome.reproductionProblem);
    lines.append(QStringLiteral("replay it: MV_RANDOM_REPLAY=\"%1\"").arg(toText(outcome.reproduction)));
    return lines.join(QLatin1Char('\n'));
}

QString MvRandomRun::toText(const QList<MvRandomStep>& steps)
{
    QStringList parts;
    for (const MvRandomStep& step : steps) {
        if (step.command == MvRandomStep::Walk)
            parts.append(kWalkName);
        else
            parts.append(mvRandomCommands().at(step.command).name + QLatin1Char('@') + QString::number(step.seed));
    }
    return parts.join(QLatin1Char(';'));
}

bool MvRandomRun::fromText(const QString& text, QList<MvRandomStep>* steps)
{
    steps->clear();
    const QStringList parts = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part.trimmed() == kWalkName) {
            steps->append(MvRandomStep());
            continue;
        }
        const int at = part.lastIndexOf(QLatin1Char('@'));
        const int index = mvRandomCommandIndex(part.left(at).trimmed());
        bool number = false;
        const quint32 seed = part.mid(at + 1).toUInt(&number);
        if (at < 0 || index < 0 || !number)
            return false;
        steps->append(MvRandomStep { index, seed });
    }
    return true;
}
