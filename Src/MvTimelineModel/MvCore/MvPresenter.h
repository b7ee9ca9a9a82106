#pragma once

#include "MvCoreGlobal.h"

#include <QObject>
#include <QPointer>

class IMvScene;
class MvMessage;

// Base of every presenter: a QObject that talks to the host only through its scene.
// A presenter without a scene of its own uses the scene of the nearest presenter among its parents.
class MVCORE_EXPORT MvPresenter : public QObject
{
    Q_OBJECT

public:
    explicit MvPresenter(QObject* parent = nullptr);
    ~MvPresenter() override;

    virtual void init();
    virtual void reset();
    virtual QObject* view() const;
    virtual void clearView();
    // Messages coming from the scene; true when this presenter handled it.
    virtual bool dispatchMessage(MvMessage* message);

    void setView(QObject* view);

    void setScene(IMvScene* scene);
    IMvScene* scene() const;

    // Both forms return false when no scene is installed (the message then goes nowhere).
    bool sendMessageToScene(int id) const;
    bool sendMessageToScene(MvMessage* message) const;

private:
    QPointer<QObject> m_view;
    IMvScene* m_scene = nullptr;
};
