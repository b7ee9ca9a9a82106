#include "MvDemoScene.h"

#include "MvDemoPlayer.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvVBLModelGlobal.h"

#include <QMessageBox>
#include <QPushButton>

using namespace MVVBLMODEL;

MvDemoScene::MvDemoScene(MvDemoPlayer* player, QObject* parent) : QObject(parent), m_player(player) { }

void MvDemoScene::receiveMessage(int id)
{
    Q_EMIT journal(QStringLiteral("scene: message %1").arg(id));
    if (id == MessageId::PausePlayer || id == MessageId::PausePlayerWithSync)
        m_player->pause();
}

void MvDemoScene::receiveMessage(MvMessage* message)
{
    const int id = message->id();
    switch (id) {
    case MessageId::GroupQuestionBeforeSplit:
        answerGroupQuestion(message);
        break;
    case MessageId::IsPlayerPlaying:
        static_cast<MvQueryMessage*>(message)->setAnswer(m_player->isPlaying());
        break;
    case MessageId::StopPlayer:
        m_player->pause();
        break;
    case MessageId::Seek:
        m_player->seek(static_cast<MvSeekMessage*>(message)->frame());
        break;
    default:
        break;
    }
    Q_EMIT journal(QStringLiteral("scene: %1 %2").arg(QString::fromLatin1(message->typeName())).arg(id));
}

void MvDemoScene::answerGroupQuestion(MvMessage* message)
{
    auto* question = static_cast<MvDataMessage*>(message);
    if (!m_interactive) {
        // Offscreen there is nobody to ask: split and keep the groups, the most common answer.
        question->setData(QVariantList { true, false });
        return;
    }
    QMessageBox box(QMessageBox::Question, tr("Split grouped clips"),
        tr("Some of the clips to split belong to a group. Ungroup them before splitting?"), QMessageBox::NoButton,
        m_dialogParent);
    QPushButton* ungroup = box.addButton(tr("Ungroup and Split"), QMessageBox::AcceptRole);
    QPushButton* keep = box.addButton(tr("Split and Keep Groups"), QMessageBox::AcceptRole);
    box.addButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == ungroup)
        question->setData(QVariantList { true, true });
    else if (box.clickedButton() == keep)
        question->setData(QVariantList { true, false });
}
