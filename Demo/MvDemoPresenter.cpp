#include "MvDemoPresenter.h"

#include "IMvAbstractMediaItem.h"

void MvDemoPresenter::updateAction()
{
    Q_EMIT actionsNeedRefresh();
}

QList<IMvAbstractMediaItem*> MvDemoPresenter::readyVCGItem(IMvAbstractMediaItem* item)
{
    bool downloadAsked = false;
    QList<IMvAbstractMediaItem*> items = downloadAndSelectVCGItems({ item }, &downloadAsked);
    // The resolutions come with the description: once it is here, they can be chosen.
    if (downloadAsked && items.contains(item) && !item->needDownload())
        items = downloadAndSelectVCGItems(items, nullptr);
    return items.contains(item) && !item->needDownload() ? items : QList<IMvAbstractMediaItem*>();
}
