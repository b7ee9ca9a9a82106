#include "MvDemoPropertyWords.h"

#include "IMvAbstractClip.h"
#include "IMvResourceInfo.h"
#include "IMvTimeline.h"
#include "IMvTimelineClip.h"
#include "IMvTimelineRuler.h"
#include "MvTimelineClipHelper.h"
#include "MvTimelineRulerPresenter.h"

#include <QHash>

using namespace MVVBLMODEL;

namespace {
QString timecode(const IMvTimeline* timeline, qint64 frame)
{
    int numerator = 30;
    int denominator = 1;
    if (timeline && timeline->ruler())
        timeline->ruler()->frameRate(&numerator, &denominator);
    return MvTimelineRulerPresenter::formatTimecode(int(frame), numerator, denominator);
}
}

QString MvDemoPropertyWords::kindName(int clipType)
{
    static const QHash<int, const char*> names {
        { ClipType_Audio, QT_TR_NOOP("Audio") },
        { ClipType_Video, QT_TR_NOOP("Video") },
        { ClipType_VideoWithAudio, QT_TR_NOOP("Video with sound") },
        { ClipType_Image, QT_TR_NOOP("Image") },
        { ClipType_Text, QT_TR_NOOP("Text") },
        { ClipType_Sticker, QT_TR_NOOP("Sticker") },
        { ClipType_Effect, QT_TR_NOOP("Effect") },
        { ClipType_Filter, QT_TR_NOOP("Filter") },
        { ClipType_Adjustment, QT_TR_NOOP("Adjustment layer") },
        { ClipType_Placeholder, QT_TR_NOOP("Placeholder") },
        { ClipType_Shape, QT_TR_NOOP("Shape") },
        { ClipType_Transition, QT_TR_NOOP("Transition") },
        { ClipType_Subtitle, QT_TR_NOOP("Subtitle") },
        { ClipType_Title, QT_TR_NOOP("Title") },
        { ClipType_Compound, QT_TR_NOOP("Compound clip") },
        { ClipType_ScreenRecording, QT_TR_NOOP("Screen recording") },
        { ClipType_Music, QT_TR_NOOP("Music") },
        { ClipType_SoundEffect, QT_TR_NOOP("Sound effect") },
    };
    const char* name = names.value(clipType);
    return name ? tr(name) : tr("Kind %1").arg(clipType);
}

QString MvDemoPropertyWords::shelfName(int categoryType)
{
    static const QHash<int, const char*> names {
        { MediaCategory_Video, QT_TR_NOOP("Video") },
        { MediaCategory_Image, QT_TR_NOOP("Images") },
        { MediaCategory_Music, QT_TR_NOOP("Music") },
        { MediaCategory_SoundEffect, QT_TR_NOOP("Sound effects") },
        { MediaCategory_Text, QT_TR_NOOP("Text") },
        { MediaCategory_Sticker, QT_TR_NOOP("Stickers") },
        { MediaCategory_Effect, QT_TR_NOOP("Effects") },
        { MediaCategory_Filter, QT_TR_NOOP("Filters") },
        { MediaCategory_Transition, QT_TR_NOOP("Transitions") },
    };
    const char* name = names.value(categoryType);
    return name ? tr(name) : tr("no shelf");
}

QString MvDemoPropertyWords::pageTitle(Page page)
{
    switch (page) {
    case Page::Clip:
        return tr("Clip properties");
    case Page::Picture:
        return tr("Picture properties and video keyframes");
    case Page::Audio:
        return tr("Audio properties and audio keyframes");
    case Page::AdvancedText:
        return tr("Advanced text editor");
    case Page::AdvancedSubtitle:
        return tr("Advanced subtitle editor");
    case Page::AdvancedTitle:
        return tr("Advanced title editor");
    case Page::Colour:
        return tr("Advanced colour editor");
    case Page::Nothing:
        break;
    }
    return tr("No properties");
}

MvDemoPropertyWords::Page MvDemoPropertyWords::pageForPropertyType(int propertyType)
{
    if (propertyType == PropertyType_Audio)
        return Page::Audio;
    if (propertyType == PropertyType_Picture || propertyType == PropertyType_Text
        || propertyType == PropertyType_Sticker)
        return Page::Picture;
    return Page::Nothing;
}

MvDemoPropertyWords::Page MvDemoPropertyWords::pageForPanelPage(int page)
{
    return page == -1 ? Page::Clip : pageForPropertyType(page);
}

QString MvDemoPropertyWords::keyFrameText(const IMvTimeline* timeline, const IMvClip* clip, qint64 clipFrame)
{
    const qint64 at = clip ? clip->start() + clipFrame : clipFrame;
    return tr("%1 (clip frame %2)").arg(timecode(timeline, at)).arg(clipFrame);
}

QStringList MvDemoPropertyWords::clipFields(const IMvTimeline* timeline, const IMvClip* clip)
{
    if (!clip)
        return { tr("Select a clip to see its properties.") };
    QStringList fields;
    fields.append(tr("Name: %1").arg(clip->name()));
    fields.append(tr("Kind: %1").arg(kindName(clip->type())));
    fields.append(tr("From %1 to %2 (%3 frames)")
                      .arg(timecode(timeline, clip->start()), timecode(timeline, clip->end()))
                      .arg(clip->frameCount()));
    fields.append(tr("Track: %1").arg(clip->trackIndex() + 1));
    fields.append(tr("Rotation: %1\u00b0").arg(clip->rotation()));
    const IMvResourceInfo* resource = clip->resourceInfo();
    fields.append(resource ? tr("Library resource: \u201c%1\u201d from library %2%3")
                                 .arg(resource->title())
                                 .arg(resource->providerId())
                                 .arg(resource->canFindSimilar() ? tr(", similar resources can be found") : QString())
                           : tr("Your own media"));
    const auto* container = dynamic_cast<const IMvTimelineClip*>(clip);
    const QList<IMvClip*> layers = container ? container->childClips() : QList<IMvClip*>();
    if (!layers.isEmpty()) {
        QStringList names;
        for (const IMvClip* layer : layers)
            names.append(layer->isSecondary() ? tr("%1 (secondary)").arg(layer->name()) : layer->name());
        fields.append(tr("Layers: %1").arg(names.join(QLatin1String(", "))));
    }
    fields.append(
        tr("Keyframes: %1 video, %2 audio").arg(clip->keyFrames(false).size()).arg(clip->keyFrames(true).size()));
    return fields;
}
