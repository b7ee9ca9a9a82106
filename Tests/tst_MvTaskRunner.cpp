#include "MvTaskRunner_p.h"
#include "MvWaitDialog.h"

#include <QApplication>
#include <QSemaphore>
#include <QThread>
#include <QTimer>
#include <QtTest>

#include <thread>

class tst_MvTaskRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void taskDoneBeforeExecStillClosesTheDialog();
    void poolTaskRunsWhileTheDialogSpins();
    void withoutADialogItStillWaitsForTheTask();
    void noExecutorMeansTheGlobalPool();
};

// The calling-thread executor: the task is over before exec begins; the dialog still closes.
void tst_MvTaskRunner::taskDoneBeforeExecStillClosesTheDialog()
{
    MvTaskRunner runner;
    runner.setExecutor(MvTaskRunner::callingThreadExecutor());
    MvWaitDialog dialog;
    QThread* ranOn = nullptr;
    bool dialogShownDuringTask = true;

    runner.runWhileWaiting(
        [&]() {
            ranOn = QThread::currentThread();
            dialogShownDuringTask = dialog.isVisible();
        },
        &dialog);

    QCOMPARE(ranOn, QThread::currentThread());
    QVERIFY(!dialogShownDuringTask);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), 0);
    QCOMPARE(runner.runCount(), 1);
}

// On the global pool the task runs on a worker while this thread spins the modal dialog: the task
// here cannot end before this thread's event loop, inside exec, lets it.
void tst_MvTaskRunner::poolTaskRunsWhileTheDialogSpins()
{
    MvTaskRunner runner;
    MvWaitDialog dialog;
    QSemaphore release;
    bool modalWhileRunning = false;
    QTimer::singleShot(0, &dialog, [&]() {
        modalWhileRunning = QApplication::activeModalWidget() == &dialog && dialog.isVisible();
        release.release();
    });
    QThread* ranOn = nullptr;
    int result = 0;

    runner.runWhileWaiting(
        [&]() {
            ranOn = QThread::currentThread();
            release.acquire();
            result = 42; // the caller's stack, read after the return
        },
        &dialog);

    QVERIFY(modalWhileRunning);
    QVERIFY(ranOn != QThread::currentThread());
    QVERIFY(ranOn != nullptr);
    QCOMPARE(result, 42);
    QVERIFY(!dialog.isVisible());
}

void tst_MvTaskRunner::withoutADialogItStillWaitsForTheTask()
{
    MvTaskRunner runner;
    QSemaphore started;
    QSemaphore release;
    int result = 0;
    // Released from another thread once the task is under way: only then can it end.
    std::thread releaser([&]() {
        started.acquire();
        release.release();
    });

    runner.runWhileWaiting(
        [&]() {
            started.release();
            release.acquire();
            result = 7;
        },
        nullptr);
    releaser.join();

    QCOMPARE(result, 7);
}

void tst_MvTaskRunner::noExecutorMeansTheGlobalPool()
{
    MvTaskRunner runner;
    runner.setExecutor(MvTaskRunner::callingThreadExecutor());
    runner.setExecutor(nullptr);
    MvWaitDialog dialog;
    QThread* ranOn = nullptr;

    runner.runWhileWaiting([&]() { ranOn = QThread::currentThread(); }, &dialog);

    QVERIFY(ranOn != QThread::currentThread());
    QCOMPARE(runner.runCount(), 1);
}

QTEST_MAIN(tst_MvTaskRunner)
#include "tst_MvTaskRunner.moc"
