#pragma once

#include "MvTimelineGlobal.h"

#include <QFuture>
#include <QObject>

#include <functional>

class QDialog;

// Runs a task away from the GUI thread while the GUI thread waits in a modal dialog's event loop:
// the dialog stays responsive (it spins, it repaints) and closes when the task has finished. The
// executor decides where the task runs: Qt's global thread pool for a host, or right away on the
// calling thread for a test that wants the steps in order; both report the end through a future.
//
// The presenter owns one (its private part does) and makes it a Qt child of itself, so that a
// test finds it with findChild<MvTaskRunner*>() and puts its own executor in.
class MVTIMELINE_TEST_EXPORT MvTaskRunner : public QObject
{
    Q_OBJECT

public:
    using Task = std::function<void()>;
    // Starts the task and returns the future that reports its end.
    using Executor = std::function<QFuture<void>(const Task& task)>;

    // QtConcurrent::run on the global thread pool.
    static Executor globalPoolExecutor();
    // Runs the task before returning and gives back a future that is already finished.
    static Executor callingThreadExecutor();

    explicit MvTaskRunner(QObject* parent = nullptr);
    ~MvTaskRunner() override;

    void setExecutor(Executor executor);
    // Tasks run so far.
    int runCount() const { return m_runCount; }

    // Starts a copy of the task with the executor and runs the dialog's event loop (exec) until the
    // task has finished; returns only then, so that the task may use what lives on the caller's
    // stack. A task that ends before exec begins still closes the dialog: the end reaches it
    // through the event loop.
    void runWhileWaiting(const Task& task, QDialog* dialog);

private:
    Q_DISABLE_COPY(MvTaskRunner)
    Executor m_executor;
    int m_runCount = 0;
};
