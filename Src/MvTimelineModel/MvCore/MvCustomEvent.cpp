#include "MvCustomEvent.h"

#include "MvBaseLog.h"

MvCustomEventImp::MvCustomEventImp(const QString& name, const QVariantList& values)
    : m_name(name)
    , m_values(values)
{
}

MvCustomEventDispatcher& MvCustomEventDispatcher::instance()
{
    static MvCustomEventDispatcher dispatcher;
    return dispatcher;
}

bool MvCustomEventDispatcher::sendEvent(const MvCustomEventImp& event)
{
    return deliver(event, Filter());
}

bool MvCustomEventDispatcher::sendEvent(QSharedPointer<MvCustomEventImp> event, const Filter& filter)
{
    if (!event) {
        MvBaseLog::defaultLogger()->log(MvBaseLog::Refusal, QStringLiteral("Src/MvCore/MvCustomEvent"), __LINE__,
            QStringLiteral("MvCustomEventDispatcher::sendEvent"), QStringLiteral("event is null"));
        return false;
    }
    // `event` is our own reference: a handler that drops the sender's copy cannot free it mid-walk.
    return deliver(*event, filter);
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

bool MvCustomEventDispatcher::deliver(const MvCustomEventImp& event, const Filter& filter)
{
    // A handler may add or remove listeners; walk a copy and skip those removed meanwhile.
    const QList<MvCustomEventListener*> listeners = m_listeners;
    for (MvCustomEventListener* listener : listeners) {
        if (!m_listeners.contains(listener) || listener->eventName() != event.name())
            continue;
        if (filter && !filter(listener))
            continue;
        if (listener->handle(event))
            return true;
    }
    return false;
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
    : QObject(parent)
    , m_eventName(eventName)
    , m_handler(std::move(handler))
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
