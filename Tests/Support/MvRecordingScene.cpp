#include "MvRecordingScene.h"

#include "MvMessage.h"
#include "MvModelMessages.h"

void MvRecordingScene::receiveMessage(int id)
{
    if (m_answers.contains(id))
        m_answers.value(id)(nullptr);
    record({ id, QStringLiteral("bare"), QVariant() });
}

void MvRecordingScene::receiveMessage(MvMessage* message)
{
    if (m_answers.contains(message->id()))
        m_answers.value(message->id())(message);
    QVariant payload;
    if (auto* data = dynamic_cast<MvDataMessage*>(message))
        payload = data->data();
    else if (auto* query = dynamic_cast<MvQueryMessage*>(message))
        payload = query->answer();
    else if (auto* seek = dynamic_cast<MvSeekMessage*>(message))
        payload = seek->frame();
    record({ message->id(), QString::fromLatin1(message->typeName()), payload });
}

void MvRecordingScene::answer(int id, Answer answer)
{
    m_answers.insert(id, std::move(answer));
}

void MvRecordingScene::answerWith(int id, const QVariant& value)
{
    answerEach(id, [value]() { return value; });
}

void MvRecordingScene::answerEach(int id, std::function<QVariant()> value)
{
    answer(id, [value](MvMessage* message) {
        if (auto* data = dynamic_cast<MvDataMessage*>(message))
            data->setData(value());
        else if (auto* query = dynamic_cast<MvQueryMessage*>(message))
            query->setAnswer(value());
    });
}

QList<int> MvRecordingScene::ids() const
{
    QList<int> result;
    for (const Entry& entry : m_entries)
        result.append(entry.id);
    return result;
}

int MvRecordingScene::count(int id) const
{
    int n = 0;
    for (const Entry& entry : m_entries)
        n += entry.id == id ? 1 : 0;
    return n;
}

void MvRecordingScene::record(const Entry& entry)
{
    m_entries.append(entry);
    if (m_observer)
        m_observer(entry);
}
