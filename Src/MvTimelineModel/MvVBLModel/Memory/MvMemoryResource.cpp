// Library resources of the in-memory model: what a clip or transition was made from.
#include "MvMemoryResource.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"

MvMemoryResourceInfo::MvMemoryResourceInfo(const MvMemoryResource* resource)
    : m_resource(resource)
{
}

bool MvMemoryResourceInfo::canFindSimilar() const
{
    return MvMemoryResources::canFindSimilar(*m_resource);
}

qint64 MvMemoryResourceInfo::resourceId() const
{
    return m_resource->id;
}

int MvMemoryResourceInfo::providerId() const
{
    return m_resource->provider;
}

QString MvMemoryResourceInfo::resourceGuid() const
{
    return m_resource->guid;
}

QString MvMemoryResourceInfo::title() const
{
    return m_resource->title;
}

namespace MvMemoryResources {

bool canFindSimilar(const MvMemoryResource& resource)
{
    return resource.isLibraryResource() && resource.provider != MvMemoryResource::BuiltIn;
}

QString text(const MvMemoryResource& resource)
{
    if (!resource.isLibraryResource())
        return QString();
    return QStringLiteral("resource %1 from %2 %3 \"%4\" similar=%5")
        .arg(resource.id)
        .arg(resource.provider)
        .arg(resource.guid, resource.title)
        .arg(int(canFindSimilar(resource)));
}

} // namespace MvMemoryResources

IMvResourceInfo* MvMemoryClip::resourceInfo() const
{
    return state().resource.isLibraryResource() ? m_resourceInfo.get() : nullptr;
}

void MvMemoryClip::setResource(const MvMemoryResource& resource)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setResource", QStringLiteral("set resource"));
    change()->resource = resource;
}

IMvResourceInfo* MvMemoryTransition::resourceInfo() const
{
    return state().resource.isLibraryResource() ? m_resourceInfo.get() : nullptr;
}

void MvMemoryTransition::setResource(const MvMemoryResource& resource)
{
    MvMemoryTimeline::Edit edit(owner()->timeline(), "setResource", QStringLiteral("set resource"));
    change()->resource = resource;
}
