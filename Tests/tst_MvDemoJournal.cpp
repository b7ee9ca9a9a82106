#include "MvBaseLog.h"
#include "MvDemoJournal.h"
#include "MvVBLModelGlobal.h"

#include <QSignalSpy>
#include <QtTest>

using namespace MVVBLMODEL;

// The words of the demo's journal, and which library records reach the terminal.
class tst_MvDemoJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesAreSaidInWords_data();
    void messagesAreSaidInWords();
    void recordsNameTheirLevelAndFunction_data();
    void recordsNameTheirLevelAndFunction();
    void routerSendsEveryRecordToTheJournalAndSomeToTheTerminal_data();
    void routerSendsEveryRecordToTheJournalAndSomeToTheTerminal();
    void routerLetsGoOfTheLog();
};

void tst_MvDemoJournal::messagesAreSaidInWords_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("words");
    QTest::newRow("pause") << MessageId::PausePlayer << QStringLiteral("pause player");
    QTest::newRow("pause with sync") << MessageId::PausePlayerWithSync
                                     << QStringLiteral("pause player and wait for it");
    QTest::newRow("stop") << MessageId::StopPlayer << QStringLiteral("stop player");
    QTest::newRow("playing?") << MessageId::IsPlayerPlaying << QStringLiteral("ask whether the player is playing");
    QTest::newRow("group question") << MessageId::GroupQuestionBeforeSplit
                                    << QStringLiteral("ask whether to ungroup before splitting");
    QTest::newRow("seek") << MessageId::Seek << QStringLiteral("seek");
    QTest::newRow("hide panel") << MessageId::HidePropertyPanel << QStringLiteral("hide the property panel");
    QTest::newRow("unknown keeps its number") << 4242 << QStringLiteral("message 4242");
}

void tst_MvDemoJournal::messagesAreSaidInWords()
{
    QFETCH(int, id);
    QFETCH(QString, words);
    QCOMPARE(MvDemoJournalWords::message(id), words);
}

void tst_MvDemoJournal::recordsNameTheirLevelAndFunction_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("terminal");
    QTest::addColumn<bool>("terminalWhenVerbose");
    QTest::newRow("detail") << 2 << QStringLiteral("library detail: clip is null (F::g)") << false << true;
    QTest::newRow("note") << 4 << QStringLiteral("library note: clip is null (F::g)") << false << true;
    QTest::newRow("warning") << 8 << QStringLiteral("library warning: clip is null (F::g)") << true << true;
    QTest::newRow("refusal") << 16 << QStringLiteral("library refusal: clip is null (F::g)") << true << true;
    QTest::newRow("between warning and refusal")
        << 12 << QStringLiteral("library warning: clip is null (F::g)") << true << true;
}

void tst_MvDemoJournal::recordsNameTheirLevelAndFunction()
{
    QFETCH(int, level);
    QFETCH(QString, line);
    QFETCH(bool, terminal);
    QFETCH(bool, terminalWhenVerbose);
    const MvLogRecord record { QStringLiteral("Src/MvTimeline/MvTimelinePresenter"), 12, QStringLiteral("F::g"), level,
        QStringLiteral("clip is null") };
    QCOMPARE(MvDemoJournalWords::record(record), line);
    QCOMPARE(MvDemoJournalWords::printsToTerminal(level, false), terminal);
    QCOMPARE(MvDemoJournalWords::printsToTerminal(level, true), terminalWhenVerbose);
}

void tst_MvDemoJournal::routerSendsEveryRecordToTheJournalAndSomeToTheTerminal_data()
{
    QTest::addColumn<bool>("verbose");
    QTest::addColumn<QStringList>("terminal");
    const QString note = QStringLiteral("library note: split Clips start (MvTimelinePresenterPrivate::splitClips)");
    const QString refusal
        = QStringLiteral("library refusal: cannt do action (MvTimelinePresenterPrivate::deleteSelectedClips)");
    QTest::newRow("quiet") << false << QStringList { refusal };
    QTest::newRow("verbose") << true << QStringList { note, refusal };
}

void tst_MvDemoJournal::routerSendsEveryRecordToTheJournalAndSomeToTheTerminal()
{
    QFETCH(bool, verbose);
    QFETCH(QStringList, terminal);
    QStringList printed;
    MvDemoLogRouter router(verbose, nullptr, [&printed](const QString& line) { printed.append(line); });
    QSignalSpy journal(&router, &MvDemoLogRouter::journal);
    MvBaseLog* log = MvBaseLog::defaultLogger();
    const QString file = QStringLiteral("Src/MvTimeline/MvTimelinePresenter");
    log->log(4, file, 1, QStringLiteral("MvTimelinePresenterPrivate::splitClips"), QStringLiteral("split Clips start"));
    log->log(16, file, 2, QStringLiteral("MvTimelinePresenterPrivate::deleteSelectedClips"),
        QStringLiteral("cannt do action"));
    QCOMPARE(printed, terminal);
    QCOMPARE(journal.count(), 2);
    QCOMPARE(journal.at(0).at(0).toString(),
        QStringLiteral("library note: split Clips start (MvTimelinePresenterPrivate::splitClips)"));
    QCOMPARE(journal.at(1).at(0).toString(), terminal.last());
}

void tst_MvDemoJournal::routerLetsGoOfTheLog()
{
    int printed = 0;
    {
        MvDemoLogRouter router(false, nullptr, [&printed](const QString&) { ++printed; });
        MvBaseLog::defaultLogger()->log(16, QString(), 0, QStringLiteral("f"), QStringLiteral("while routed"));
    }
    // Gone with the router: a later record reaches neither its terminal nor its journal.
    MvLogCapture capture;
    MvBaseLog::defaultLogger()->log(16, QString(), 0, QStringLiteral("f"), QStringLiteral("after"));
    QCOMPARE(printed, 1);
    QCOMPARE(capture.messages(), QStringList { QStringLiteral("after") });
}

QTEST_MAIN(tst_MvDemoJournal)
#include "tst_MvDemoJournal.moc"
