#pragma once

#include "MvMemoryGlobal.h"

#include "IMvTransitionMediaItem.h"
#include "MvMemoryMediaItem.h"

#include <QImage>

// A library item that makes transitions (media type MVVBLMODEL::MediaType_Transition). Its length
// (a time) is the length of the transitions it makes until one is given another. Its pictures are
// rendered when it is loaded; transitions made before have none.
class MVMEMORY_EXPORT MvMemoryTransitionMediaItem : public MvMemoryMediaItem, public IMvTransitionMediaItem
{
public:
    // How the transition goes from one clip to the next; a crossfade blends sound.
    enum Look
    {
        Dissolve,
        Wipe,
        Slide,
        Crossfade
    };

    MvMemoryTransitionMediaItem(const QString& name, Look look, qint64 durationMs);

    bool isAudioTransition() const override;
    IMvTransition* createTransition() override;
    // Renders the pictures: pictureCount points of the transition's course from `progress` on, side
    // by side, each the full thumbnail size divided by scaleDown; written as "<name>.png" into a
    // cache folder when one is given (false when that fails; the pictures are kept all the same).
    bool load(const MvTransitionLoadParam& param) override;

    Look look() const { return m_look; }
    bool isLoaded() const { return !m_pictures.isNull(); }
    QImage pictures() const { return m_pictures; }
    int loadCount() const { return m_loads; }
    // The size of one picture at scaleDown 1.
    static QSize thumbnailSize();
    // One picture of the look at a point of its course (0 to 100).
    static QImage picture(Look look, int progress, bool backwards, const QSize& size);

private:
    Look m_look;
    QImage m_pictures;
    int m_loads = 0;
};
