#include "MvCustomEvent.h"

MvCustomEventImp::MvCustomEventImp(const QString& name, const QVariantList& values) : m_name(name), m_values(values)
{
}

MvCustomEventDispatcher& MvCustomEventDispatcher::instance()
{
    static MvCustomEventDispatcher dispatcher;
    return dispatcher;
}

bool MvCustomEventDispatcher::sendEvent(const MvCustomEventImp& event)
{
    // A handler may add or remove listeners; walk a copy and skip those removed meanwhile.
    const QList<MvCustomEventListener*> listeners = m_listeners;
    for (MvCustomEventListener* listener : listeners) {
        if (!m_listeners.contains(listener) || listener->eventName() != event.name())
            continue;
        if (listener->handle(event))
            return true;
    }
    return false;
}

bool MvCustomEventDispatcher::sendEvent(const QString& name, const QVariantList& values)
{
    return sendEvent(MvCustomEventImp(name, values));
}

int MvCustomEventDispatcher::listenerCount(const QString& name) const
{
    int count = 0;
    for (const MvCustomEventListener* listener : m_listeners) {
        if (listener->eventName() == name)
            ++count;
    }
    return count;
}

void MvCustomEventDispatcher::addListener(MvCustomEventListener* listener)
{
    m_listeners.append(listener);
}

void MvCustomEventDispatcher::removeListener(MvCustomEventListener* listener)
{
    m_listeners.removeAll(listener);
}

MvCustomEventListener::MvCustomEventListener(QObject* parent, const QString& eventName, Handler handler)
    : QObject(parent), m_eventName(eventName), m_handler(std::move(handler))
{
    MvCustomEventDispatcher::instance().addListener(this);
}

MvCustomEventListener::~MvCustomEventListener()
{
    MvCustomEventDispatcher::instance().removeListener(this);
}

bool MvCustomEventListener::handle(const MvCustomEventImp& event)
{
    return m_handler ? m_handler(event) : false;
}
