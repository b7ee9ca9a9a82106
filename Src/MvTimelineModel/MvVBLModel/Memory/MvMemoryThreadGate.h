#pragma once

#include "MvMemoryGlobal.h"

#include <QList>
#include <QScopedPointer>

#include <functional>
#include <mutex>

class QObject;
class QThread;

// A timeline lives on the thread that made it (the GUI thread), yet one kind of call may reach it
// from a worker: a long insertion runs on a worker while the GUI thread only spins a wait
// dialog's event loop, and a compound item's timeline is read in the background. The gate lets
// that happen safely: one lock (recursive) covers every change of the timeline, and observers are
// told on the home thread only. What an edit on a worker would tell them is kept until the
// worker's outermost edit ends and then handed to the home thread's event loop, in order; the
// home thread runs it under the same lock, so observers that read the model never meet a worker's
// edit half done.
class MVMEMORY_EXPORT MvMemoryThreadGate
{
public:
    MvMemoryThreadGate();
    ~MvMemoryThreadGate();

    void lock();
    void unlock();

    class MVMEMORY_EXPORT Locker
    {
    public:
        explicit Locker(MvMemoryThreadGate* gate);
        ~Locker();

    private:
        Q_DISABLE_COPY(Locker)
        MvMemoryThreadGate* m_gate;
    };

    bool isHomeThread() const;
    QThread* homeThread() const { return m_home; }

    // Runs the notification at once on the home thread; from any other thread, after the outermost
    // edit of that thread has ended, through the home thread's event loop.
    void notify(std::function<void()> notification);
    // Notifications handed to the home thread and not run yet.
    int pendingCount() const;
    // Runs them now, on the home thread (its event loop does this by itself).
    void deliverPending();

private:
    Q_DISABLE_COPY(MvMemoryThreadGate)
    void handOver(QList<std::function<void()>> notifications);

    std::recursive_mutex m_edit;
    int m_depth = 0; // under m_edit
    QList<std::function<void()>> m_collected; // under m_edit: of a worker's edit in progress
    mutable std::mutex m_mailbox;
    QList<std::function<void()>> m_handedOver; // under m_mailbox
    QThread* m_home;
    QScopedPointer<QObject> m_receiver; // lives on the home thread
};
