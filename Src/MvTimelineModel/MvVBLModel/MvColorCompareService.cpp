#include "IMvColorCompareService.h"

namespace {
// The colour-compare view of the application: at most one clip shown at a time.
class MvColorCompareService : public IMvColorCompareService
{
public:
    IMvClip* currentClip() const override { return m_clip; }
    void setCurrentClip(IMvClip* clip) override { m_clip = clip; }

private:
    IMvClip* m_clip = nullptr;
};
}

IMvColorCompareService* getColorCompareService()
{
    static MvColorCompareService service;
    return &service;
}
