#include "MvDemoPresenter.h"

void MvDemoPresenter::updateAction()
{
    Q_EMIT actionsNeedRefresh();
}
