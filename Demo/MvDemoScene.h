#pragma once

#include "IMvScene.h"

#include <QObject>
#include <QStringList>

class QWidget;
class MvDemoPlayer;

// The demo's scene: answers the presenters' questions with real dialogs (or, in the offscreen
// scenario, with the answer a user would most often give) and drives the demo player.
class MvDemoScene : public QObject, public IMvScene
{
    Q_OBJECT

public:
    MvDemoScene(MvDemoPlayer* player, QObject* parent = nullptr);

    void setDialogParent(QWidget* parent) { m_dialogParent = parent; }
    void setInteractive(bool interactive) { m_interactive = interactive; }

    void receiveMessage(int id) override;
    void receiveMessage(MvMessage* message) override;

Q_SIGNALS:
    void journal(const QString& line);

private:
    // The answer given, in words.
    QString answerGroupQuestion(MvMessage* message);

    MvDemoPlayer* m_player;
    QWidget* m_dialogParent = nullptr;
    bool m_interactive = true;
};
