#include "Memory/MvMemorySelection.h"
#include "MvBaseLog.h"
#include "MvRandomCommands.h"
#include "MvRandomRun.h"

#include <QtTest>

// Random sequences of every presenter command over the sample project, with the model checked
// after every step and the undo stack walked at intervals. MV_RANDOM_SEED and MV_RANDOM_STEPS
// choose the run (make stress runs a million commands); MV_RANDOM_REPLAY replays a sequence a
// failure printed. A crash rather than a failed check is found again with the seed printed at the
// start and MV_RANDOM_TRACE=1, which prints every step.

using Factory = MvRandomWorld::TimelineFactory;
Q_DECLARE_METATYPE(Factory)

namespace {
constexpr quint32 kDefaultSeed = 20240611;
constexpr qint64 kDefaultCommands = 12000;

quint32 seedFromEnvironment()
{
    bool ok = false;
    const quint32 seed = qEnvironmentVariable("MV_RANDOM_SEED").toUInt(&ok);
    return ok ? seed : kDefaultSeed;
}

qint64 commandsFromEnvironment()
{
    bool ok = false;
    const qint64 commands = qEnvironmentVariable("MV_RANDOM_STEPS").toLongLong(&ok);
    return ok && commands > 0 ? commands : kDefaultCommands;
}

// Faulty models: each breaks one rule the run checks, the way a real fault in the model would.
// Turns clips without recording an undo step.
class RotationOutsideUndo : public MvMemoryTimeline
{
public:
    void rotateClip90CW(IMvClip* clip) override
    {
        if (MvMemoryClip* own = memoryClip(clip)) {
            MvMemoryClip::State state = own->state();
            state.rotation = (state.rotation + 90) % 360;
            own->setStateUnchecked(state);
        }
    }
};

// Records a trim and a rotation of the same clip as two steps.
class TrimInTwoSteps : public MvMemoryTimeline
{
public:
    bool trimEndToFrame(IMvClip* clip, qint64 frame) override
    {
        const bool trimmed = MvMemoryTimeline::trimEndToFrame(clip, frame);
        if (trimmed)
            rotateClip90CCW(clip);
        return trimmed;
    }
};

// Keeps a deleted clip selected.
class DeleteKeepsSelection : public MvMemoryTimeline
{
public:
    bool deleteClips(QList<IMvClip*> clips) override
    {
        const QList<IMvAbstractClip*> selected = selectionImpl()->selectedItems();
        const bool deleted = MvMemoryTimeline::deleteClips(clips);
        selectionImpl()->setItemsUnchecked(selected);
        return deleted;
    }
};

template <typename Timeline> Factory factoryOf()
{
    return []() -> std::unique_ptr<MvMemoryTimeline> { return std::make_unique<Timeline>(); };
}
}

class tst_MvRandomCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyCheckHoldsOverARandomRun();
    void faultsAreFoundAndShrunk_data();
    void faultsAreFoundAndShrunk();
    void aSeedReplaysTheSameSteps();
    void sequencesRoundTripAsText();
};

void tst_MvRandomCommands::initTestCase()
{
    // A million commands log millions of notes that nobody reads here.
    MvBaseLog::defaultLogger()->setStderrEnabled(false);
    MvBaseLog::defaultLogger()->setMinimumLevel(MvBaseLog::Refusal + 1);
}

void tst_MvRandomCommands::everyCheckHoldsOverARandomRun()
{
    const QString replay = qEnvironmentVariable("MV_RANDOM_REPLAY");
    if (!replay.isEmpty()) {
        QList<MvRandomStep> steps;
        QVERIFY2(MvRandomRun::fromText(replay, &steps), "MV_RANDOM_REPLAY names a command that does not exist");
        QStringList texts;
        const QString problem = MvRandomRun::replay(steps, Factory(), &texts);
        QVERIFY2(problem.isEmpty(), qPrintable(texts.join(QLatin1Char('\n')) + QStringLiteral("\n=> ") + problem));
        return;
    }
    MvRandomRun::Options options;
    options.seed = seedFromEnvironment();
    options.commands = commandsFromEnvironment();
    if (qEnvironmentVariableIsSet("MV_RANDOM_TRACE"))
        options.trace = [](const QString& step) { qInfo("%s", qPrintable(step)); };
    qInfo("random commands: MV_RANDOM_SEED=%u MV_RANDOM_STEPS=%lld", options.seed, options.commands);
    const MvRandomRun::Outcome outcome = MvRandomRun::run(options);
    QVERIFY2(!outcome.failed, qPrintable(MvRandomRun::report(options, outcome)));
    QCOMPARE(outcome.commandsRun, options.commands);
}

void tst_MvRandomCommands::faultsAreFoundAndShrunk_data()
{
    QTest::addColumn<Factory>("factory");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QStringList>("commands"); // the short sequence holds one of these

    QTest::newRow("a rotation outside undo")
        << factoryOf<RotationOutsideUndo>() << QStringLiteral("changed without an undo step")
        << QStringList { QStringLiteral("rotate90CW") };
    QTest::newRow("a trim in two undo steps") << factoryOf<TrimInTwoSteps>() << QStringLiteral("undo stack")
                                              << QStringList { QStringLiteral("trimEndToPlayhead") };
    QTest::newRow("a deleted clip left selected")
        << factoryOf<DeleteKeepsSelection>() << QStringLiteral("inconsistent model")
        << QStringList { QStringLiteral("deleteSelectedClips"), QStringLiteral("deleteItems") };
}

void tst_MvRandomCommands::faultsAreFoundAndShrunk()
{
    QFETCH(Factory, factory);
    QFETCH(QString, category);
    QFETCH(QStringList, commands);

    MvRandomRun::Options options;
    options.seed = 7;
    options.commands = 2000;
    options.factory = factory;
    const MvRandomRun::Outcome outcome = MvRandomRun::run(options);

    QVERIFY(outcome.failed);
    QCOMPARE(MvRandomRun::category(outcome.problem), category);
    QCOMPARE(MvRandomRun::category(outcome.reproductionProblem), category);
    // A selection, the command, maybe the move of the playhead that makes it act: a handful of steps.
    QVERIFY2(outcome.reproduction.size() <= 6, qPrintable(MvRandomRun::report(options, outcome)));
    QVERIFY(
        std::any_of(outcome.reproduction.cbegin(), outcome.reproduction.cend(), [&commands](const MvRandomStep& step) {
            return step.command >= 0 && commands.contains(mvRandomCommands().at(step.command).name);
        }));
    // The printed sequence replays the same fault, and the fault goes with the faulty model.
    const QString report = MvRandomRun::report(options, outcome);
    const QString printed = report.section(QStringLiteral("MV_RANDOM_REPLAY=\""), 1).section(QLatin1Char('"'), 0, 0);
    QList<MvRandomStep> steps;
    QVERIFY(MvRandomRun::fromText(printed, &steps));
    QCOMPARE(steps, outcome.reproduction);
    QCOMPARE(MvRandomRun::replay(steps, factory), outcome.reproductionProblem);
    QCOMPARE(MvRandomRun::replay(steps, Factory()), QString());
}

void tst_MvRandomCommands::aSeedReplaysTheSameSteps()
{
    const QList<MvRandomStep> steps = MvRandomRun::roundSteps(99, 150, 50);
    QCOMPARE(MvRandomRun::roundSteps(99, 150, 50), steps);
    // A shorter round is the start of the longer one (the walk aside), so a failure reruns with fewer steps.
    QCOMPARE(MvRandomRun::roundSteps(99, 60, 50).mid(0, 61), steps.mid(0, 61));
    QVERIFY(MvRandomRun::roundSteps(100, 150, 50) != steps);
    const int walks = int(std::count(steps.cbegin(), steps.cend(), MvRandomStep()));
    QCOMPARE(walks, 3); // after 50 and 100 commands, and at the end
    QCOMPARE(MvRandomRun::roundSeed(99, 0), 99u);
    QVERIFY(MvRandomRun::roundSeed(99, 1) != MvRandomRun::roundSeed(99, 2));

    // Arguments and the scene's answers follow the seeds: the same steps do the same things.
    QStringList first;
    QStringList second;
    QCOMPARE(MvRandomRun::replay(steps, Factory(), &first), QString());
    QCOMPARE(MvRandomRun::replay(steps, Factory(), &second), QString());
    QCOMPARE(second, first);
    QCOMPARE(first.size(), steps.size());
}

void tst_MvRandomCommands::sequencesRoundTripAsText()
{
    const QList<MvRandomStep> steps { MvRandomStep { mvRandomCommandIndex(QStringLiteral("splitClips(clips)")), 12 },
        MvRandomStep(), MvRandomStep { mvRandomCommandIndex(QStringLiteral("virtual playhead: open")), 4000000000u } };
    QCOMPARE(MvRandomRun::toText(steps), QStringLiteral("splitClips(clips)@12;walk;virtual playhead: open@4000000000"));
    QList<MvRandomStep> parsed;
    QVERIFY(MvRandomRun::fromText(MvRandomRun::toText(steps), &parsed));
    QCOMPARE(parsed, steps);
    QVERIFY(!MvRandomRun::fromText(QStringLiteral("no such command@1"), &parsed));
    QVERIFY(!MvRandomRun::fromText(QStringLiteral("undo@x"), &parsed));

    // Names are unique: a replayed sequence means one thing.
    QSet<QString> names;
    for (const MvRandomCommand& command : mvRandomCommands())
        names.insert(command.name);
    QCOMPARE(names.size(), mvRandomCommands().size());
}

QTEST_MAIN(tst_MvRandomCommands)
#include "tst_MvRandomCommands.moc"
