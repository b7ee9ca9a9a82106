#include "MvDemoScene.h"

#include "IMvAbstractClip.h"
#include "MvDemoJournal.h"
#include "MvDemoPlayer.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvVBLModelGlobal.h"

#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

using namespace MVVBLMODEL;

MvDemoScene::MvDemoScene(MvDemoPlayer* player, QObject* parent)
    : QObject(parent)
    , m_player(player)
{
}

void MvDemoScene::receiveMessage(int id)
{
    Q_EMIT journal(tr("scene: %1").arg(MvDemoJournalWords::message(id)));
    if (id == MessageId::PausePlayer || id == MessageId::PausePlayerWithSync)
        m_player->pause();
}

void MvDemoScene::receiveMessage(MvMessage* message)
{
    const int id = message->id();
    QString detail;
    switch (id) {
    case MessageId::GroupQuestionBeforeSplit:
        detail = answerGroupQuestion(message);
        break;
    case MessageId::AudioEffectOverride:
        detail = answerAudioEffectOverride(message);
        break;
    case MessageId::IsPlayerPlaying:
        static_cast<MvQueryMessage*>(message)->setAnswer(m_player->isPlaying());
        detail = m_player->isPlaying() ? tr("yes") : tr("no");
        break;
    case MessageId::StopPlayer:
        m_player->pause();
        break;
    case MessageId::Seek: {
        const qint64 frame = static_cast<MvSeekMessage*>(message)->frame();
        m_player->seek(frame);
        detail = tr("to frame %1").arg(frame);
        break;
    }
    default:
        for (const Handler& handler : qAsConst(m_handlers)) {
            if (handler(message, &detail))
                break;
        }
        break;
    }
    const QString words = MvDemoJournalWords::message(id);
    Q_EMIT journal(detail.isEmpty() ? tr("scene: %1").arg(words) : tr("scene: %1: %2").arg(words, detail));
}

QString MvDemoScene::answerGroupQuestion(MvMessage* message)
{
    auto* question = static_cast<MvDataMessage*>(message);
    if (!m_interactive) {
        // Offscreen there is nobody to ask: split and keep the groups, the most common answer.
        question->setData(QVariantList { true, false });
        return tr("split and keep the groups");
    }
    QMessageBox box(QMessageBox::Question, tr("Split grouped clips"),
        tr("Some of the clips to split belong to a group. Ungroup them before splitting?"), QMessageBox::NoButton,
        m_dialogParent);
    QPushButton* ungroup = box.addButton(tr("Ungroup and Split"), QMessageBox::AcceptRole);
    QPushButton* keep = box.addButton(tr("Split and Keep Groups"), QMessageBox::AcceptRole);
    box.addButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == ungroup) {
        question->setData(QVariantList { true, true });
        return tr("ungroup and split");
    }
    if (box.clickedButton() == keep) {
        question->setData(QVariantList { true, false });
        return tr("split and keep the groups");
    }
    return tr("cancelled");
}

QString MvDemoScene::answerAudioEffectOverride(MvMessage* message)
{
    auto* question = static_cast<MvAudioEffectOverrideMessage*>(message);
    QStringList names;
    for (const IMvClip* clip : question->clips())
        names.append(clip->name());
    if (!m_interactive) {
        // Offscreen there is nobody to ask: the effect just chosen is the one wanted.
        question->setAnswer(true);
        return tr("replace the audio effect of %1").arg(names.join(QLatin1String(", ")));
    }
    QMessageBox box(QMessageBox::Question, tr("Replace audio effect"),
        tr("%1 already plays through an audio effect, and a clip has room for one only. Replace it?")
            .arg(names.join(QLatin1String(", "))),
        QMessageBox::NoButton, m_dialogParent);
    QPushButton* replace = box.addButton(tr("Replace"), QMessageBox::AcceptRole);
    box.addButton(tr("Keep"), QMessageBox::RejectRole);
    box.setDefaultButton(replace);
    box.exec();
    const bool replaced = box.clickedButton() == replace;
    question->setAnswer(replaced);
    return replaced ? tr("replace the audio effect of %1").arg(names.join(QLatin1String(", ")))
                    : tr("keep the audio effect of %1").arg(names.join(QLatin1String(", ")));
}
