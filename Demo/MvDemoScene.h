#pragma once

#include "IMvScene.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>

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
    // A panel of the host (property panel, media library, ...) takes the messages it knows: true
    // when it took one, with what it did in words.
    using Handler = std::function<bool(MvMessage* message, QString* detail)>;
    void addMessageHandler(Handler handler) { m_handlers.append(std::move(handler)); }

    void receiveMessage(int id) override;
    void receiveMessage(MvMessage* message) override;

Q_SIGNALS:
    void journal(const QString& line);

private:
    // The answer given, in words.
    QString answerGroupQuestion(MvMessage* message);
    QString answerAudioEffectOverride(MvMessage* message);

    MvDemoPlayer* m_player;
    QWidget* m_dialogParent = nullptr;
    bool m_interactive = true;
    QList<Handler> m_handlers;
};
