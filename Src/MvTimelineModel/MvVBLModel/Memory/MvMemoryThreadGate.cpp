#include "MvMemoryThreadGate.h"

#include <QObject>
#include <QThread>

MvMemoryThreadGate::MvMemoryThreadGate()
    : m_home(QThread::currentThread())
    , m_receiver(new QObject)
{
}

// Handed-over notifications still queued die with the receiver: they would tell observers of a
// timeline that is gone.
MvMemoryThreadGate::~MvMemoryThreadGate() = default;

void MvMemoryThreadGate::lock()
{
    m_edit.lock();
    ++m_depth;
}

void MvMemoryThreadGate::unlock()
{
    QList<std::function<void()>> finished;
    if (--m_depth == 0 && !m_collected.isEmpty() && !isHomeThread())
        finished.swap(m_collected);
    m_edit.unlock();
    if (!finished.isEmpty())
        handOver(finished);
}

MvMemoryThreadGate::Locker::Locker(MvMemoryThreadGate* gate)
    : m_gate(gate)
{
    if (m_gate)
        m_gate->lock();
}

MvMemoryThreadGate::Locker::~Locker()
{
    if (m_gate)
        m_gate->unlock();
}

bool MvMemoryThreadGate::isHomeThread() const
{
    return QThread::currentThread() == m_home;
}

void MvMemoryThreadGate::notify(std::function<void()> notification)
{
    if (isHomeThread()) {
        notification();
        return;
    }
    // Kept with the edit of this thread that is under way, or handed over at once when none is.
    Locker locker(this);
    m_collected.append(std::move(notification));
}

void MvMemoryThreadGate::handOver(QList<std::function<void()>> notifications)
{
    bool first = false;
    {
        std::lock_guard<std::mutex> mailbox(m_mailbox);
        first = m_handedOver.isEmpty();
        m_handedOver += notifications;
    }
    // One queued call empties the mailbox; later hand-overs before it runs ride along.
    if (first)
        QMetaObject::invokeMethod(
            m_receiver.data(), [this]() { deliverPending(); }, Qt::QueuedConnection);
}

int MvMemoryThreadGate::pendingCount() const
{
    std::lock_guard<std::mutex> mailbox(m_mailbox);
    return m_handedOver.size();
}

void MvMemoryThreadGate::deliverPending()
{
    if (!isHomeThread())
        return;
    Locker locker(this);
    QList<std::function<void()>> due;
    {
        std::lock_guard<std::mutex> mailbox(m_mailbox);
        due.swap(m_handedOver);
    }
    for (const std::function<void()>& notification : qAsConst(due))
        notification();
}
