// Composed text items of the in-memory model: building, copying, checking and dumping their layers.
#include "MvMemoryTextContainer.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"

#include <QStringList>

using namespace MVVBLMODEL;

namespace MvMemoryTextContainer {

bool composesLayers(MvClipType itemType)
{
    return itemType == ClipType_Text;
}

bool acceptsLayer(MvClipType layerType)
{
    return layerType == ClipType_Text || layerType == ClipType_Sticker;
}

QString text(const MvMemoryClip* item)
{
    QStringList layers;
    const QList<MvMemoryClip*> children = item->children();
    for (const MvMemoryClip* child : children) {
        layers.append(QStringLiteral("c%1 type=%2 \"%3\" secondary=%4")
                          .arg(child->number())
                          .arg(child->type())
                          .arg(child->name())
                          .arg(int(child->isSecondary())));
    }
    return layers.join(QLatin1String("; "));
}

} // namespace MvMemoryTextContainer

bool MvMemoryClip::isSecondary() const
{
    return state().secondary;
}

QList<IMvClip*> MvMemoryClip::childClips() const
{
    QList<IMvClip*> clips;
    clips.reserve(state().children.size());
    for (MvMemoryClip* child : state().children)
        clips.append(child);
    return clips;
}

MvMemoryClip* MvMemoryTimeline::addChildClip(
    MvMemoryClip* container, MvClipType type, const QString& name, bool secondary)
{
    Q_D(MvMemoryTimeline);
    if (!container || container->timeline() != this || !container->isOnTimeline()
        || !MvMemoryTextContainer::composesLayers(container->type()) || !MvMemoryTextContainer::acceptsLayer(type))
        return nullptr;
    MvMemoryClip::State state;
    state.type = type;
    state.name = name;
    state.container = container;
    state.secondary = secondary;
    MvMemoryClip* child = d->makeClip(state);
    d->build("addChildClip", QStringLiteral("add text layer"),
        [container, child] { container->change()->children.append(child); });
    return child;
}

void MvMemoryTimelinePrivate::copyChildren(MvMemoryClip* copy, const QList<MvMemoryClip*>& children)
{
    QList<MvMemoryClip*> copies;
    copies.reserve(children.size());
    for (const MvMemoryClip* child : children) {
        MvMemoryClip::State layer = child->state();
        layer.container = copy;
        copies.append(makeClip(layer));
    }
    copy->change()->children = copies;
}

void MvMemoryTimelinePrivate::checkChildren(QStringList& problems) const
{
    for (const MvMemoryClip* clip : allClips) {
        if (!clip->isOnTimeline() || clip->children().isEmpty())
            continue;
        const QString item = clipId(clip);
        if (!MvMemoryTextContainer::composesLayers(clip->type()))
            problems.append(item % QLatin1String(": layers on a clip that composes none"));
        const QList<MvMemoryClip*> children = clip->children();
        for (const MvMemoryClip* child : children) {
            const QString what = item % QLatin1String(" layer ") % clipId(child);
            if (child->container() != clip)
                problems.append(what % QLatin1String(": belongs to another item"));
            if (child->isOnTimeline())
                problems.append(what % QLatin1String(": placed on a track"));
            if (!MvMemoryTextContainer::acceptsLayer(child->type()) || !child->children().isEmpty())
                problems.append(what % QLatin1String(": not a layer kind"));
        }
    }
}
