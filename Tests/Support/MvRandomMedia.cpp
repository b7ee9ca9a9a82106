#include "MvRandomMedia.h"

#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "MvModelMessages.h"
#include "MvRandomWorld.h"
#include "MvTimelineAddMediaParam.h"
#include "MvTimelinePresenter.h"

#include <limits>

using namespace MVVBLMODEL;

namespace {
QString itemName(const IMvAbstractMediaItem* item)
{
    return item ? QLatin1Char('"') + item->name() + QLatin1Char('"') : QStringLiteral("null");
}

QString itemNames(const QList<IMvAbstractMediaItem*>& items)
{
    QStringList names;
    for (const IMvAbstractMediaItem* item : items)
        names.append(itemName(item));
    return QLatin1Char('{') + names.join(QLatin1String(", ")) + QLatin1Char('}');
}

// The host fetches most of what it is asked to; the rest fails or is cancelled.
void download(MvRandomWorld& world, MvMessage* message)
{
    auto* request = static_cast<MvMediaItemsMessage*>(message);
    QStringList fetched;
    for (IMvAbstractMediaItem* item : request->mediaItems()) {
        auto* own = dynamic_cast<MvMemoryMediaItem*>(item);
        if (own && world.chance(75)) {
            own->setDownloaded(true);
            fetched.append(itemName(own));
        }
    }
    world.note(QStringLiteral("download of %1: %2 fetched")
                   .arg(itemNames(request->mediaItems()),
                       QLatin1Char('{') + fetched.join(QLatin1String(", ")) + QLatin1Char('}')));
}

// The user picks a resolution for each stock item, or leaves it out.
void chooseResolutions(MvRandomWorld& world, MvMessage* message)
{
    auto* request = static_cast<MvMediaItemsMessage*>(message);
    QList<IMvAbstractMediaItem*> kept;
    QStringList picks;
    for (IMvAbstractMediaItem* item : request->mediaItems()) {
        auto* stock = dynamic_cast<MvMemoryStockMediaItem*>(item);
        if (!stock || world.chance(15)) {
            picks.append(itemName(item) + QStringLiteral(" left out"));
            continue;
        }
        const int index = world.below(stock->resolutions().size());
        stock->selectResolution(index);
        kept.append(item);
        picks.append(itemName(item) + QStringLiteral(" in ") + stock->resolutions().value(index));
    }
    request->setMediaItems(kept);
    world.note(QStringLiteral("resolutions: ") + picks.join(QLatin1String(", ")));
}

// The user mostly keeps the project as it is; else it takes the media's rate (or a common one
// for media without streams of their own, such as a compound item).
void matchProject(MvRandomWorld& world, MvMessage* message)
{
    const IMvAbstractMediaItem* item = static_cast<MvMatchProjMediaItemMessage*>(message)->mediaItem();
    if (world.chance(60)) {
        world.note(QStringLiteral("project settings of %1: kept").arg(itemName(item)));
        return;
    }
    const auto* own = dynamic_cast<const MvMemoryMediaItem*>(item);
    MvRational rate = own && own->memoryMediaInfo() ? own->memoryMediaInfo()->frameRate() : MvRational { 25, 1 };
    if (world.chance(20))
        rate = world.chance(50) ? MvRational { 24000, 1001 } : MvRational { 30, 1 };
    world.timeline().setFrameRate(int(rate.numerator), int(rate.denominator));
    world.note(QStringLiteral("project settings of %1: rate %2/%3")
                   .arg(itemName(item))
                   .arg(rate.numerator)
                   .arg(rate.denominator));
}

// One request as a host makes it from a drop or a double-click: one item mostly, a few at times,
// now and then a null; at a frame that leans towards the edges, on any row or none, with a
// length asked for at times (the last 64-bit frame among them).
MvTimelineAddMediaParam mediaRequest(MvRandomWorld& world)
{
    const QList<MvMemoryMediaItem*> library = world.media().items();
    MvTimelineAddMediaParam param;
    const int count = world.chance(75) ? 1 : 2 + world.below(2);
    for (int i = 0; i < count; ++i)
        param.mediaItems.append(world.chance(3) ? nullptr : library.at(world.below(library.size())));
    param.startFrame = world.chance(10) ? -1 - world.below(100) : world.frame();
    param.trackIndex = world.below(world.timeline().trackCount() + 2) - 1;
    if (world.chance(20)) {
        for (int i = 0; i < count; ++i) {
            const int kind = world.below(10);
            param.lengths.append(
                kind == 0 ? std::numeric_limits<qint64>::max() : (kind == 1 ? 0 : 1 + world.below(120)));
        }
    }
    param.groupKind = world.chance(15) ? 1 : 0;
    param.enabled = world.chance(90);
    if (world.chance(20))
        param.textColor = Qt::yellow;
    return param;
}

QString addMedias(MvRandomWorld& world)
{
    const MvTimelineAddMediaParam param = mediaRequest(world);
    const int policy = world.below(3) - 1;
    QStringList lengths;
    for (qint64 length : param.lengths)
        lengths.append(QString::number(length));
    const QString what = QStringLiteral("addMedias(%1 at %2, row %3, lengths {%4}, group %5, %6, policy %7) on %8")
                             .arg(itemNames(param.mediaItems))
                             .arg(param.startFrame)
                             .arg(param.trackIndex)
                             .arg(lengths.join(QLatin1Char(' ')))
                             .arg(param.groupKind)
                             .arg(param.enabled ? QStringLiteral("enabled") : QStringLiteral("disabled"))
                             .arg(policy)
                             .arg(world.selectionText());
    const QList<IMvClip*> clips = world.presenter().addMedias(param, policy);
    return what + QStringLiteral(" -> ") + MvRandomWorld::namesOf(clips);
}
}

QVector<MvRandomCommand> mvMediaCommands()
{
    // The scene may change the project's rate in the middle: a step of its own before the insertion.
    return { { QStringLiteral("addMedias"), 4, addMedias, MvRandomCommand::SeveralSteps } };
}

void mvAnswerMediaQuestions(MvRandomWorld& world)
{
    MvRecordingScene& scene = world.scene();
    scene.answer(MessageId::DownloadMediaItems, [&world](MvMessage* message) { download(world, message); });
    scene.answer(MessageId::SelectStockResolution, [&world](MvMessage* message) { chooseResolutions(world, message); });
    scene.answer(MessageId::MatchProjectSettings, [&world](MvMessage* message) { matchProject(world, message); });
}
