#pragma once

#include "MvMemoryGlobal.h"

#include "IMvResourceInfo.h"

// The library resource an item was made from. It is part of the item's value: copied with the
// item, restored by undo, shown in the model's dump.
struct MvMemoryResource
{
    static constexpr int BuiltIn = 0; // the provider of the resources shipped with the editor

    qint64 id = 0; // 0: not from the library (the user's own media)
    int provider = BuiltIn;
    QString guid;
    QString title;

    bool isLibraryResource() const { return id != 0; }
    bool operator==(const MvMemoryResource& other) const
    {
        return id == other.id && provider == other.provider && guid == other.guid && title == other.title;
    }
    bool operator!=(const MvMemoryResource& other) const { return !(*this == other); }
};

// An item's resource information, read from the resource value inside the item's state (which
// lives as long as the item, whatever undo writes into it).
class MVMEMORY_EXPORT MvMemoryResourceInfo : public IMvResourceInfo
{
public:
    explicit MvMemoryResourceInfo(const MvMemoryResource* resource);

    bool canFindSimilar() const override;
    qint64 resourceId() const override;
    int providerId() const override;
    QString resourceGuid() const override;
    QString title() const override;

private:
    Q_DISABLE_COPY(MvMemoryResourceInfo)
    const MvMemoryResource* m_resource;
};

namespace MvMemoryResources {

// The online libraries index their resources for the similarity search; what ships with the
// editor is not indexed.
MVMEMORY_EXPORT bool canFindSimilar(const MvMemoryResource& resource);
// The resource as the model's dump shows it; empty for the user's own media.
MVMEMORY_EXPORT QString text(const MvMemoryResource& resource);

} // namespace MvMemoryResources
