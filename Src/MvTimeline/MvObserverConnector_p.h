#pragma once

// Ties an observer to one observed model object for the connector's lifetime, so that an
// observer can never outlive its registration.
class IMvObserverConnector
{
public:
    virtual ~IMvObserverConnector() = default;
};

template <typename Subject, typename Observer> class MvObserverConnector : public IMvObserverConnector
{
public:
    MvObserverConnector(Subject* subject, Observer* observer)
        : m_subject(subject)
        , m_observer(observer)
    {
        if (m_subject)
            m_subject->addObserver(m_observer);
    }

    ~MvObserverConnector() override
    {
        if (m_subject)
            m_subject->removeObserver(m_observer);
    }

    MvObserverConnector(const MvObserverConnector&) = delete;
    MvObserverConnector& operator=(const MvObserverConnector&) = delete;

private:
    Subject* m_subject;
    Observer* m_observer;
};
