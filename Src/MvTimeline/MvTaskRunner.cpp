#include "MvTaskRunner_p.h"

#include <QDialog>
#include <QFutureInterface>
#include <QFutureWatcher>
#include <QThreadPool>
#include <QtConcurrent>

#include <memory>
#include <mutex>

namespace {
// The task reads what the caller set up before it started, and the caller reads what the task
// left once it has ended. This lock orders both hand-overs in the C++ memory model itself, so
// that they do not depend on how a thread pool and a future happen to synchronise inside.
struct HandOver
{
    std::mutex mutex;
    void pass() { std::lock_guard<std::mutex> lock(mutex); }
};
}

MvTaskRunner::Executor MvTaskRunner::globalPoolExecutor()
{
    return [](const Task& task) { return QtConcurrent::run(QThreadPool::globalInstance(), task); };
}

MvTaskRunner::Executor MvTaskRunner::callingThreadExecutor()
{
    return [](const Task& task) {
        QFutureInterface<void> promise;
        promise.reportStarted();
        task();
        promise.reportFinished();
        return promise.future();
    };
}

MvTaskRunner::MvTaskRunner(QObject* parent)
    : QObject(parent)
    , m_executor(globalPoolExecutor())
{
}

MvTaskRunner::~MvTaskRunner() = default;

void MvTaskRunner::setExecutor(Executor executor)
{
    m_executor = executor ? std::move(executor) : globalPoolExecutor();
}

void MvTaskRunner::runWhileWaiting(const Task& task, QDialog* dialog)
{
    ++m_runCount;
    auto handOver = std::make_shared<HandOver>();
    QFutureWatcher<void> watcher;
    if (dialog)
        connect(&watcher, &QFutureWatcher<void>::finished, dialog, [dialog]() { dialog->done(0); });
    handOver->pass();
    watcher.setFuture(m_executor([task, handOver]() {
        handOver->pass();
        if (task) // an empty task has nothing to run: it ends at once
            task();
        handOver->pass();
    }));
    if (dialog)
        dialog->exec();
    // The dialog ends only through the watcher; should anything else end it, the task still must
    // be over before the caller's stack goes.
    watcher.waitForFinished();
    handOver->pass();
}
