#include "MvPresenter.h"

#include "IMvScene.h"
#include "MvMessage.h"

IMvScene::~IMvScene() = default;

MvPresenter::MvPresenter(QObject* parent)
    : QObject(parent)
{
}

MvPresenter::~MvPresenter() = default;

void MvPresenter::init() { }

void MvPresenter::reset() { }

QObject* MvPresenter::view() const
{
    return m_view;
}

void MvPresenter::clearView()
{
    m_view = nullptr;
}

bool MvPresenter::dispatchMessage(MvMessage* message)
{
    Q_UNUSED(message)
    return false;
}

void MvPresenter::setView(QObject* view)
{
    m_view = view;
}

void MvPresenter::setScene(IMvScene* scene)
{
    m_scene = scene;
}

IMvScene* MvPresenter::scene() const
{
    if (m_scene)
        return m_scene;
    for (QObject* p = parent(); p; p = p->parent()) {
        if (auto* presenter = qobject_cast<MvPresenter*>(p))
            return presenter->scene();
    }
    return nullptr;
}

bool MvPresenter::sendMessageToScene(int id) const
{
    IMvScene* target = scene();
    if (!target)
        return false;
    target->receiveMessage(id);
    return true;
}

bool MvPresenter::sendMessageToScene(MvMessage* message) const
{
    IMvScene* target = scene();
    if (!target || !message)
        return false;
    target->receiveMessage(message);
    return true;
}
