#pragma once

#include "IMvScene.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

#include <functional>

class MvMessage;

// A scene for tests: keeps every message in order and answers by id as the test scripts it.
class MvRecordingScene : public IMvScene
{
public:
    struct Entry
    {
        int id = 0;
        QString type; // "bare" for a bare id, else the message's class name
        // Data, answer or frame as the message carries it; for the media messages the names of the
        // items or clips as they were sent, before the answer.
        QVariant payload;
    };

    using Answer = std::function<void(MvMessage*)>;

    void receiveMessage(int id) override;
    void receiveMessage(MvMessage* message) override;

    // Runs for every message with this id (bare ids get a null message).
    void answer(int id, Answer answer);
    // Answers MvQueryMessage / MvDataMessage with a fixed value.
    void answerWith(int id, const QVariant& value);
    // Answers MvQueryMessage / MvDataMessage with a value made for each message (a seeded
    // generator's pick, say).
    void answerEach(int id, std::function<QVariant()> value);
    // Called for every message, after recording and answering: for a shared call journal.
    void setObserver(std::function<void(const Entry&)> observer) { m_observer = std::move(observer); }

    QList<Entry> entries() const { return m_entries; }
    QList<int> ids() const;
    int count(int id) const;
    void clear() { m_entries.clear(); }

private:
    void record(const Entry& entry);

    QList<Entry> m_entries;
    QHash<int, Answer> m_answers;
    std::function<void(const Entry&)> m_observer;
};
