#pragma once

#include "IMvAbstractMediaItem.h"
#include "Memory/MvMemoryMediaItem.h"
#include "MvEditFixture.h"
#include "MvModelMessages.h"
#include "MvRecordingTimeline.h"
#include "MvTaskRunner_p.h"
#include "MvTimelineAddMediaParam.h"

#include <QCoreApplication>
#include <QThread>

// What the suites of adding media share: a presenter that opens its protected steps, a timeline
// that notes its insertions, and media items made to order.
namespace MvMediaTest {

using namespace MVVBLMODEL;

using Items = QList<IMvAbstractMediaItem*>;
inline const QString PrepareFunction = QStringLiteral("MvTimelinePresenter::prepareAddMedias");

// A presenter whose protected steps the test calls one by one.
class MediaPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::checkMatchProjectSettings;
    using MvTimelinePresenter::downloadAndSelectVCGItems;
    using MvTimelinePresenter::executeTaskWithLoadingIndicator;
    using MvTimelinePresenter::getAddLoadingWgt;
    using MvTimelinePresenter::MvTimelinePresenter;
    using MvTimelinePresenter::notifyAddMediaSucceed;
    using MvTimelinePresenter::prepareAddMedia;
    using MvTimelinePresenter::prepareAddMedias;
    using MvTimelinePresenter::selectVCGMediaItems;
};

// A timeline that notes what each insertion was asked for, on which thread, and can add flags
// to the model's answer.
class MediaTimeline : public MvRecordingTimeline
{
public:
    using MvRecordingTimeline::MvRecordingTimeline;

    struct Call
    {
        int policy = 0;
        qint64 start = 0;
        bool onGuiThread = false;
        Items items;
    };

    unsigned addMedias(const MvTimelineAddMediaParam& param, QList<IMvClip*>& clips, int policy) override
    {
        calls.append({ policy, param.startFrame, QThread::currentThread() == QCoreApplication::instance()->thread(),
            param.mediaItems });
        return MvRecordingTimeline::addMedias(param, clips, policy) | extraFlags;
    }

    QList<Call> calls;
    unsigned extraFlags = 0;
};

using Fixture = MvEditFixture<MediaTimeline, MediaPresenter>;

// Steps in order: every task runs at once, on this thread.
inline void runTasksInOrder(Fixture& f)
{
    f.presenter->findChild<MvTaskRunner*>()->setExecutor(MvTaskRunner::callingThreadExecutor());
}

inline MvTimelineAddMediaParam request(const Items& items, qint64 start = 0)
{
    MvTimelineAddMediaParam param;
    param.mediaItems = items;
    param.startFrame = start;
    return param;
}

inline QStringList namesOf(const Items& items)
{
    QStringList names;
    for (const IMvAbstractMediaItem* item : items)
        names.append(item ? item->name() : QStringLiteral("null"));
    return names;
}

inline QStringList namesOf(const QList<IMvClip*>& clips)
{
    QStringList names;
    for (const IMvClip* clip : clips)
        names.append(clip->name());
    return names;
}

// The scene downloads the items named (all when none are named).
inline void downloadIn(Fixture& f, const QStringList& names = QStringList())
{
    f.scene.answer(MessageId::DownloadMediaItems, [names](MvMessage* message) {
        const Items items = static_cast<MvMediaItemsMessage*>(message)->mediaItems();
        for (IMvAbstractMediaItem* item : items) {
            if (names.isEmpty() || names.contains(item->name()))
                dynamic_cast<MvMemoryMediaItem*>(item)->setDownloaded(true);
        }
    });
}

// The owner of the test's media items.
struct Library
{
    QList<MvMemoryMediaItem*> items;
    ~Library() { qDeleteAll(items); }

    MvMemoryMediaItem* add(MvMemoryMediaItem* item)
    {
        items.append(item);
        return item;
    }
    MvMemoryMediaItem* local(const QString& name, MvMediaType type = MediaType_Video, qint64 ms = 2000)
    {
        return add(new MvMemoryMediaItem(name, type, ms));
    }
    MvMemoryMediaItem* remote(const QString& name)
    {
        MvMemoryMediaItem* item = local(name);
        item->setRemote(true);
        return item;
    }
    MvMemoryStockMediaItem* stock(const QString& name, int resolutions)
    {
        QStringList names;
        for (int i = 0; i < resolutions; ++i)
            names.append(QStringLiteral("r%1").arg(i));
        auto* item = new MvMemoryStockMediaItem(name, MediaType_Video, 2000, names);
        item->setDownloaded(true);
        add(item);
        return item;
    }
    MvMemoryVCGMediaItem* vcg(const QString& name, bool downloaded, int resolutions)
    {
        QStringList names;
        for (int i = 0; i < resolutions; ++i)
            names.append(QStringLiteral("r%1").arg(i));
        auto* item = new MvMemoryVCGMediaItem(name, MediaType_Video, 2000, names);
        item->setDownloaded(downloaded);
        add(item);
        return item;
    }
};

} // namespace MvMediaTest
