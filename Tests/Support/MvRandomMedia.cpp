#include "MvRandomMedia.h"

#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryEffects.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryTransitionItems.h"
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

// A library item of the kind asked for mostly, any item (or null) now and then.
template <typename Kind> IMvAbstractMediaItem* itemOf(MvRandomWorld& world)
{
    QList<MvMemoryMediaItem*> matching;
    const QList<MvMemoryMediaItem*> library = world.media().items();
    for (MvMemoryMediaItem* item : library) {
        if (dynamic_cast<Kind*>(item))
            matching.append(item);
    }
    if (world.chance(3))
        return nullptr;
    if (matching.isEmpty() || world.chance(10))
        return library.at(world.below(library.size()));
    return matching.at(world.below(matching.size()));
}

// The clips a transition or an effect goes on: the selection mostly.
QList<IMvClip*> targetClips(MvRandomWorld& world)
{
    return world.chance(70) ? world.timeline().selection()->selectedClips() : world.clips();
}

qint64 transitionLength(MvRandomWorld& world)
{
    return world.chance(5) ? (world.chance(50) ? std::numeric_limits<qint64>::max() : -1) : qint64(world.below(90));
}

QString addTransitions(MvRandomWorld& world)
{
    const QList<IMvClip*> clips = targetClips(world);
    const qint64 length = transitionLength(world);
    if (world.chance(30)) {
        QList<IMvAbstractMediaItem*> items;
        for (int i = 1 + world.below(3); i > 0; --i)
            items.append(itemOf<MvMemoryTransitionMediaItem>(world));
        world.presenter().randomAddTransitionMedia(clips, items, length);
        return QStringLiteral("randomAddTransitionMedia(%1, %2, %3)")
            .arg(MvRandomWorld::namesOf(clips), itemNames(items))
            .arg(length);
    }
    IMvAbstractMediaItem* item = itemOf<MvMemoryTransitionMediaItem>(world);
    if (world.chance(30)) {
        IMvClip* clip = clips.value(0);
        const MvTransitionType type = world.chance(50) ? TransitionType_Start : TransitionType_End;
        world.presenter().addTransitionMedia(clip, dynamic_cast<IMvTransitionMediaItem*>(item), length, type);
        return QStringLiteral("addTransitionMedia(%1, %2, %3, type %4)")
            .arg(MvRandomWorld::nameOf(clip), itemName(item))
            .arg(length)
            .arg(type);
    }
    world.presenter().addTransitionMedia(clips, item, length);
    return QStringLiteral("addTransitionMedia(%1, %2, %3)")
        .arg(MvRandomWorld::namesOf(clips), itemName(item))
        .arg(length);
}

QString addEffects(MvRandomWorld& world)
{
    IMvAbstractMediaItem* item = itemOf<MvMemoryEffectMediaItem>(world);
    if (world.chance(50)) {
        IMvClip* clip = world.focusedClip();
        world.presenter().addEffectMedia(clip, item);
        return QStringLiteral("addEffectMedia(%1, %2)").arg(MvRandomWorld::nameOf(clip), itemName(item));
    }
    const QList<IMvClip*> clips = targetClips(world);
    world.presenter().addEffectMedias(clips, item);
    return QStringLiteral("addEffectMedias(%1, %2)").arg(MvRandomWorld::namesOf(clips), itemName(item));
}

QString onSelection(MvRandomWorld& world, const char* name, void (MvTimelinePresenter::*command)())
{
    const QString what = QLatin1String(name) + QStringLiteral("() on ") + world.selectionText();
    (world.presenter().*command)();
    return what;
}
}

QVector<MvRandomCommand> mvTransitionAndEffectCommands()
{
    return {
        { QStringLiteral("addTransitionMedia"), 3, addTransitions },
        { QStringLiteral("addEffectMedia"), 3, addEffects },
        { QStringLiteral("copyEffect"), 1,
            [](MvRandomWorld& w) { return onSelection(w, "copyEffect", &MvTimelinePresenter::copyEffect); } },
        { QStringLiteral("pasteEffect"), 2,
            [](MvRandomWorld& w) { return onSelection(w, "pasteEffect", &MvTimelinePresenter::pasteEffect); } },
        { QStringLiteral("deleteEffect"), 1,
            [](MvRandomWorld& w) { return onSelection(w, "deleteEffect", &MvTimelinePresenter::deleteEffect); } },
    };
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
