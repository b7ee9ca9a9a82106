#pragma once

#include "MvCoreGlobal.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QVariantList>

#include <functional>

// Names of the application-wide events the timeline raises or listens for.
namespace MvEventName {
constexpr const char* ShowCustomToast = "ShowCustomToast";
constexpr const char* NotifyAddSharedClipsAssetsToProjectMedia = "NotifyAddSharedClipsAssetsToProjectMedia";
constexpr const char* NotifySwtichPropertView = "NotifySwtichPropertView";
constexpr const char* NotifyAdjustPropertyTimeLine = "NotifyAdjustPropertyTimeLine";
}

// One application-wide notification: a name and its values, in the order the sender gives them.
class MVCORE_EXPORT MvCustomEventImp
{
public:
    MvCustomEventImp(const QString& name, const QVariantList& values = QVariantList());

    QString name() const { return m_name; }
    QVariantList values() const { return m_values; }
    QVariant value(int index) const { return m_values.value(index); }
    // The first value as an int, the common case of "NotifyAdjustPropertyTimeLine" and friends.
    int intValue() const { return m_values.value(0).toInt(); }

private:
    QString m_name;
    QVariantList m_values;
};

class MvCustomEventListener;

// Delivers custom events to the listeners registered for their name, in registration order,
// until one consumes the event. Listeners are registered and removed on the GUI thread; an event
// is delivered on the thread that sends it, which is a worker for the one event the timeline sends
// while the GUI thread waits in a wait dialog (NotifyAddSharedClipsAssetsToProjectMedia).
class MVCORE_EXPORT MvCustomEventDispatcher
{
public:
    // Asked once per listener of the event's name; true lets that listener receive the event.
    using Filter = std::function<bool(const MvCustomEventListener*)>;

    static MvCustomEventDispatcher& instance();

    // All three return true when a listener consumed the event.
    bool sendEvent(const MvCustomEventImp& event);
    bool sendEvent(const QString& name, const QVariantList& values = QVariantList());
    // The sender hands the event over: the dispatcher keeps it alive while listeners run, and it
    // goes away with the last owner. An empty filter lets every listener receive it; a null
    // event is refused (false, logged).
    bool sendEvent(QSharedPointer<MvCustomEventImp> event, const Filter& filter);

    int listenerCount(const QString& name) const;

private:
    friend class MvCustomEventListener;
    MvCustomEventDispatcher() = default;
    void addListener(MvCustomEventListener* listener);
    void removeListener(MvCustomEventListener* listener);
    bool deliver(const MvCustomEventImp& event, const Filter& filter);

    QList<MvCustomEventListener*> m_listeners;
};

// Listens for one event name on behalf of its parent object; goes away with it.
class MVCORE_EXPORT MvCustomEventListener : public QObject
{
    Q_OBJECT

public:
    // The handler returns true when it consumed the event.
    using Handler = std::function<bool(const MvCustomEventImp&)>;

    MvCustomEventListener(QObject* parent, const QString& eventName, Handler handler);
    ~MvCustomEventListener() override;

    QString eventName() const { return m_eventName; }
    bool handle(const MvCustomEventImp& event);

private:
    QString m_eventName;
    Handler m_handler;
};
