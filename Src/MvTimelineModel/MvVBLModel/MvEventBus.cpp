#include "MvEventBus.h"

void MvEventBus::beginBatch(IMvUndoRedoService* service)
{
    m_batches.append(service);
}

void MvEventBus::endBatch()
{
    if (m_batches.isEmpty())
        return;
    m_batches.removeLast();
    QList<Delivery> due;
    for (auto it = m_held.begin(); it != m_held.end();) {
        if (isHeld(it->service)) {
            ++it;
            continue;
        }
        due.append(std::move(it->delivery));
        it = m_held.erase(it);
    }
    // Taken out first: a delivery may post again, or open a batch of its own.
    for (const Delivery& delivery : qAsConst(due))
        delivery();
}

bool MvEventBus::isHeld(const IMvUndoRedoService* service) const
{
    for (const IMvUndoRedoService* batch : m_batches) {
        if (!batch || batch == service)
            return true;
    }
    return false;
}

void MvEventBus::post(const IMvUndoRedoService* service, const void* key, Delivery delivery)
{
    if (!delivery)
        return;
    if (!isHeld(service)) {
        delivery();
        return;
    }
    for (Held& held : m_held) {
        if (held.key == key) {
            held.service = service;
            held.delivery = std::move(delivery);
            return;
        }
    }
    m_held.append(Held { service, key, std::move(delivery) });
}

void MvEventBus::cancel(const void* key)
{
    for (auto it = m_held.begin(); it != m_held.end();)
        it = it->key == key ? m_held.erase(it) : it + 1;
}

MvEventBus* globalEventBus()
{
    static MvEventBus bus;
    return &bus;
}
