#include "MvRecordingScene.h"

#include "IMvAbstractClip.h"
#include "IMvAbstractMediaItem.h"
#include "MvMessage.h"
#include "MvModelMessages.h"

void MvRecordingScene::receiveMessage(int id)
{
    if (m_answers.contains(id))
        m_answers.value(id)(nullptr);
    record({ id, QStringLiteral("bare"), QVariant() });
}

namespace {
QStringList namesOf(const QList<IMvAbstractMediaItem*>& items)
{
    QStringList names;
    for (const IMvAbstractMediaItem* item : items)
        names.append(item ? item->name() : QStringLiteral("null"));
    return names;
}

QStringList namesOf(const QList<IMvClip*>& clips)
{
    QStringList names;
    for (const IMvClip* clip : clips)
        names.append(clip ? clip->name() : QStringLiteral("null"));
    return names;
}

// What a media message carries as it was sent, before the scene answers.
QVariant mediaPayload(const MvMessage* message)
{
    if (const auto* items = dynamic_cast<const MvMediaItemsMessage*>(message))
        return namesOf(items->mediaItems());
    if (const auto* match = dynamic_cast<const MvMatchProjMediaItemMessage*>(message))
        return match->mediaItem() ? match->mediaItem()->name() : QStringLiteral("null");
    if (const auto* scroll = dynamic_cast<const MvTimelineScrollToTrackMessage*>(message))
        return namesOf(scroll->clips());
    return QVariant();
}
}

void MvRecordingScene::receiveMessage(MvMessage* message)
{
    const QVariant sent = mediaPayload(message);
    if (m_answers.contains(message->id()))
        m_answers.value(message->id())(message);
    QVariant payload = sent;
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
