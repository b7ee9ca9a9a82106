#include "MvSampleProject.h"

#include "IMvTimelinePlayhead.h"
#include "MvMemoryClip.h"
#include "MvMemoryCompoundMediaItem.h"
#include "MvMemoryEditService.h"
#include "MvMemoryEffects.h"
#include "MvMemoryMediaLibrary.h"
#include "MvMemoryResource.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTransitionItems.h"
#include "MvMemoryUndoService.h"

#include <QColor>
#include <QPair>

using namespace MVVBLMODEL;

namespace {
const qint64 kSecond = 30;

QList<MvEffectPropertyBaseInfo> transformKeys()
{
    return { MvEffectPropertyBaseInfo { PropertyGroup_Transform, QString(), false, -1, 3 },
        MvEffectPropertyBaseInfo { PropertyGroup_Transform, QString(), false, -1, 5 } };
}

QList<MvEffectPropertyBaseInfo> volumeKeys()
{
    return { MvEffectPropertyBaseInfo { PropertyGroup_AudioVolume, QString(), false, -1, 22 } };
}

// The theme music is remixed to the length of the cut (audio commands can take that off).
void addAudioContent(MvMemoryTimeline& timeline)
{
    const QList<MvMemoryClip*> music = timeline.memoryTrack(4)->memoryClips();
    if (!music.isEmpty())
        music.first()->setRemixed(true);
}

// A short timeline of one picture row and one audio row, for a compound clip to show.
void buildSequence(MvMemoryTimeline& sequence, int project, const QString& name, const QString& picture)
{
    sequence.setProjectId(project);
    sequence.setName(name);
    sequence.setFrameRate(30, 1);
    sequence.addTrack(TrackType_Picture);
    sequence.addTrack(TrackType_Audio);
    sequence.addClip(0, ClipType_VideoWithAudio, 0, 8 * kSecond - 1, picture);
    sequence.addClip(1, ClipType_SoundEffect, 2 * kSecond, 5 * kSecond - 1, QStringLiteral("Gulls"));
    sequence.undoService()->clear();
}

// The main timeline's compound clip over its sequence, on the overlay row before the logo.
void addCompound(MvMemoryTimeline& timeline, MvMemoryTimeline& sequence)
{
    MvMemoryClip* compound
        = timeline.addClip(1, ClipType_Compound, 10 * kSecond, 18 * kSecond - 1, QStringLiteral("Sequence 1"));
    compound->setCompoundContent(&sequence);
    timeline.undoService()->clear();
}

// Another project: a timeline with a plain clip and a compound clip over a sequence of its own.
void buildOtherProject(MvMemoryTimeline& timeline, MvMemoryTimeline& sequence)
{
    buildSequence(sequence, 2, QStringLiteral("Reel intro"), QStringLiteral("Beach"));
    timeline.setProjectId(2);
    timeline.setName(QStringLiteral("Holiday reel"));
    timeline.setFrameRate(30, 1);
    timeline.addTrack(TrackType_Picture);
    timeline.addTrack(TrackType_Audio);
    timeline.addClip(0, ClipType_Compound, 0, 8 * kSecond - 1, QStringLiteral("Reel intro"))
        ->setCompoundContent(&sequence);
    timeline.addClip(0, ClipType_Video, 8 * kSecond, 14 * kSecond - 1, QStringLiteral("Sunset"));
    timeline.undoService()->clear();
}

MvMemoryClip* clipNamed(const MvMemoryTimeline& timeline, const QString& name)
{
    const QList<MvMemoryClip*> clips = timeline.liveClips();
    for (MvMemoryClip* clip : clips) {
        if (clip->name() == name)
            return clip;
    }
    return nullptr;
}

// Stock footage and music from the online libraries (their similarity search knows them), a
// sticker, a sound and a transition shipped with the editor (it does not).
void addLibraryResources(MvMemoryTimeline& timeline)
{
    const int stockLibrary = 1;
    const int musicLibrary = 2;
    const struct
    {
        const char* clip;
        MvMemoryResource resource;
    } resources[] = {
        { "Fishing boats",
            { 20417, stockLibrary, QStringLiteral("stock-video-20417"), QStringLiteral("Fishing boats at sea") } },
        { "Theme", { 3310, musicLibrary, QStringLiteral("music-3310"), QStringLiteral("Sea breeze") } },
        { "Seagull", { 118, MvMemoryResource::BuiltIn, QStringLiteral("sticker-118"), QStringLiteral("Seagull") } },
        { "Waves",
            { 57, MvMemoryResource::BuiltIn, QStringLiteral("sound-57"), QStringLiteral("Waves on the shore") } },
    };
    for (const auto& entry : resources) {
        if (MvMemoryClip* clip = clipNamed(timeline, QLatin1String(entry.clip)))
            clip->setResource(entry.resource);
    }
    if (MvMemoryClip* street = clipNamed(timeline, QStringLiteral("Market street"))) {
        for (MvMemoryTransition* transition : street->liveTransitions())
            transition->setResource(
                { 5, MvMemoryResource::BuiltIn, QStringLiteral("transition-5"), QStringLiteral("Cross dissolve") });
    }
}

// The lower third is a composed text: two names, the line under them and a decoration.
void composeLowerThird(MvMemoryTimeline& timeline)
{
    MvMemoryClip* caption = clipNamed(timeline, QStringLiteral("Lower third"));
    timeline.addChildClip(caption, ClipType_Sticker, QStringLiteral("Underline"), false);
    timeline.addChildClip(caption, ClipType_Text, QStringLiteral("Anna Berg"), false);
    timeline.addChildClip(caption, ClipType_Text, QStringLiteral("Jon Berg"), false);
    timeline.addChildClip(caption, ClipType_Text, QStringLiteral("Harbour masters since 1998"), true);
}
}

void MvSampleProject::build(MvMemoryTimeline& timeline)
{
    timeline.setFrameRate(30, 1);
    for (int i = 0; i < 3; ++i)
        timeline.addTrack(TrackType_Picture);
    for (int i = 0; i < 2; ++i)
        timeline.addTrack(TrackType_Audio);

    // Rows: 0 titles and stickers, 1 overlays, 2 the main story, 3 its sound, 4 music.
    MvMemoryClip* opening
        = timeline.addClip(2, ClipType_VideoWithAudio, 0, 20 * kSecond - 1, QStringLiteral("Harbour at dawn"));
    MvMemoryClip* openingSound
        = timeline.addClip(3, ClipType_Audio, 0, 20 * kSecond - 1, QStringLiteral("Harbour at dawn (sound)"));
    MvMemoryClip* street
        = timeline.addClip(2, ClipType_Video, 20 * kSecond, 45 * kSecond - 1, QStringLiteral("Market street"));
    MvMemoryClip* still
        = timeline.addClip(2, ClipType_Image, 45 * kSecond, 55 * kSecond - 1, QStringLiteral("Old map"));
    timeline.addClip(2, ClipType_Video, 55 * kSecond, 90 * kSecond - 1, QStringLiteral("Fishing boats"));
    MvMemoryClip* screen = timeline.addClip(
        2, ClipType_ScreenRecording, 90 * kSecond, 118 * kSecond - 1, QStringLiteral("Route planner"));
    timeline.addClip(0, ClipType_Title, 2 * kSecond, 8 * kSecond - 1, QStringLiteral("A day by the sea"));
    MvMemoryClip* caption
        = timeline.addClip(0, ClipType_Text, 25 * kSecond, 32 * kSecond - 1, QStringLiteral("Lower third"));
    timeline.addClip(0, ClipType_Sticker, 60 * kSecond, 64 * kSecond - 1, QStringLiteral("Seagull"));
    timeline.addClip(1, ClipType_Image, 70 * kSecond, 80 * kSecond - 1, QStringLiteral("Logo"));
    timeline.addClip(1, ClipType_Subtitle, 92 * kSecond, 100 * kSecond - 1, QStringLiteral("Subtitles"));
    MvMemoryClip* music = timeline.addClip(4, ClipType_Music, 0, 118 * kSecond - 1, QStringLiteral("Theme"));
    timeline.addClip(3, ClipType_SoundEffect, 50 * kSecond, 52 * kSecond - 1, QStringLiteral("Waves"));

    timeline.addTransition(street, IMvTransition::AtStart, kSecond, QStringLiteral("Cross dissolve"));
    timeline.editServiceImpl()->group({ opening, openingSound }, 1);

    timeline.timelineMarkers()->addMarker(10 * kSecond, QColor(QStringLiteral("#f04a4a")));
    timeline.timelineMarkers()->addMarker(60 * kSecond, QColor(QStringLiteral("#3cc86a")));
    street->clipMarkers()->addMarker(5 * kSecond, QColor(QStringLiteral("#3b7ff2")));

    opening->addKeyFrame(false, 0, transformKeys());
    opening->addKeyFrame(false, 4 * kSecond, transformKeys());
    caption->addKeyFrame(false, kSecond, transformKeys());
    music->addKeyFrame(true, 110 * kSecond, volumeKeys());
    music->addKeyFrame(true, 117 * kSecond, volumeKeys());
    still->addFreezeFrame(1, 3 * kSecond);
    screen->setSmartKeyingNodeCount(3);
    caption->setMotionTrackingEnabled(true);
    addAudioContent(timeline);
    addHandlesAndEffects(timeline);
    addLibraryResources(timeline);
    composeLowerThird(timeline);

    timeline.undoService()->clear();
    timeline.playhead()->setCurrentFrame(0);
}

MvSampleProject::MvSampleProject()
    : m_sequence(new MvMemoryTimeline(1))
    , m_otherSequence(new MvMemoryTimeline(1))
    , m_otherProject(new MvMemoryTimeline(0))
    , m_timeline(new MvMemoryTimeline(0))
{
    build(*m_timeline);
    m_timeline->setName(QStringLiteral("A day by the sea"));
    buildSequence(*m_sequence, m_timeline->projectId(), QStringLiteral("Sequence 1"), QStringLiteral("Close-up"));
    addCompound(*m_timeline, *m_sequence);
    buildOtherProject(*m_otherProject, *m_otherSequence);
}

MvSampleProject::~MvSampleProject() = default;

MvMemoryTimeline* MvSampleProject::timeline() const
{
    return m_timeline.data();
}

MvMemoryTimeline* MvSampleProject::sequence() const
{
    return m_sequence.data();
}

MvMemoryTimeline* MvSampleProject::otherProjectTimeline() const
{
    return m_otherProject.data();
}

namespace {
const qint64 kMs = 1000; // milliseconds in a second

MvMemoryMediaItem* localFile(MvMemoryMediaLibrary& library, const QString& name, MvMediaType type, qint64 seconds)
{
    return library.add(new MvMemoryMediaItem(name, type, seconds * kMs));
}

void withVideo(MvMemoryMediaItem* item, qint64 fps)
{
    item->setMediaInfo(MediaInfoFlag_OwnVideoSettings, MvRational { fps, 1 }, QSize(1920, 1080));
}

// The beach sequence as its project file describes it: a picture row and a sound row.
void readBeachSequence(MvMemoryTimeline& content, const std::atomic<bool>& cancelled)
{
    content.addTrack(TrackType_Picture);
    content.addTrack(TrackType_Audio);
    const qint64 second = 30;
    const QList<QPair<QString, qint64>> shots { { QStringLiteral("Waves rolling in"), 5 },
        { QStringLiteral("Sandcastle"), 4 }, { QStringLiteral("Footprints"), 3 } };
    qint64 at = 0;
    for (const QPair<QString, qint64>& shot : shots) {
        if (cancelled)
            return;
        content.addClip(0, ClipType_Video, at, at + shot.second * second - 1, shot.first);
        at += shot.second * second;
    }
    content.addClip(1, ClipType_Audio, 0, at - 1, QStringLiteral("Surf"));
}

void readTrailer(MvMemoryTimeline& content, const std::atomic<bool>& cancelled)
{
    if (cancelled)
        return;
    content.addTrack(TrackType_Picture);
    content.addClip(0, ClipType_Video, 0, 8 * 25 - 1, QStringLiteral("Trailer cut"));
}
}

void MvSampleProject::buildMediaLibrary(MvMemoryMediaLibrary& library, MvMemoryTimeline& project, int readTimeMs)
{
    withVideo(localFile(library, QStringLiteral("Sunset timelapse.mp4"), MediaType_Video, 12), 30);
    withVideo(localFile(library, QStringLiteral("Drone over the bay (60 fps).mp4"), MediaType_Video, 8), 60);
    localFile(library, QStringLiteral("Cafe ambience.wav"), MediaType_Audio, 20);
    localFile(library, QStringLiteral("Island map.png"), MediaType_Image, 5);
    localFile(library, QStringLiteral("Chapter title"), MediaType_Text, 4);
    localFile(library, QStringLiteral("Interview subtitles.srt"), MediaType_Subtitle, 10);
    withVideo(localFile(library, QStringLiteral("Empty recording.mp4"), MediaType_Video, 0), 30);
    MvMemoryMediaItem* capture
        = localFile(library, QStringLiteral("Screen capture (recording)"), MediaType_ScreenRecording, 0);
    capture->setMediaInfo(MediaInfoFlag_OwnVideoSettings, MvRational { 25, 1 }, QSize(2560, 1440));

    library.add(new MvMemoryStockMediaItem(QStringLiteral("Stock: city lights"), MediaType_Video, 6 * kMs,
        { QStringLiteral("720p"), QStringLiteral("1080p"), QStringLiteral("4K") }));
    library.add(new MvMemoryStockMediaItem(
        QStringLiteral("Stock: applause"), MediaType_Audio, 4 * kMs, { QStringLiteral("48 kHz") }));
    library.add(new MvMemoryVCGMediaItem(QStringLiteral("VCG: mountain lake"), MediaType_Video, 10 * kMs,
        { QStringLiteral("1080p"), QStringLiteral("4K") }));

    MvMemoryTimeline* beach = library.addTimeline(QStringLiteral("Beach sequence"), project.projectId());
    auto* sequence
        = library.add(new MvMemoryCompoundMediaItem(QStringLiteral("Beach sequence"), beach, readBeachSequence));
    sequence->setOrigin(MediaOrigin_Project);
    sequence->setReadTime(readTimeMs);

    MvMemoryTimeline* trailer = library.addTimeline(QStringLiteral("Imported trailer"), project.projectId() + 1);
    trailer->setFrameRate(25, 1);
    library.add(new MvMemoryCompoundMediaItem(QStringLiteral("Imported trailer"), trailer, readTrailer));

    auto* itself = library.add(new MvMemoryCompoundMediaItem(QStringLiteral("This timeline"), &project, nullptr));
    itself->setOrigin(MediaOrigin_Project);
    addTransitionAndEffectItems(library);
}

void MvSampleProject::addHandlesAndEffects(MvMemoryTimeline& timeline)
{
    // The main story, row 2: the harbour and the street were shot long, the boats a little, the
    // route planner not at all; the map is a still and never runs out.
    const QList<QPair<QString, QPair<qint64, qint64>>> handles {
        { QStringLiteral("Harbour at dawn"), { 0, 45 } },
        { QStringLiteral("Harbour at dawn (sound)"), { 0, 45 } },
        { QStringLiteral("Market street"), { 60, 0 } },
        { QStringLiteral("Fishing boats"), { kSecond, kSecond } },
    };
    const QList<MvMemoryClip*> clips = timeline.liveClips();
    for (MvMemoryClip* clip : clips) {
        for (const auto& entry : handles) {
            if (clip->name() == entry.first)
                clip->setHandles(entry.second.first, entry.second.second);
        }
        if (clip->name() == QLatin1String("Fishing boats")) {
            auto* effect = new MvMemoryEffect(QStringLiteral("Warm tint"), false);
            clip->effects()->addEffect(effect);
            effect->release();
        }
    }
}

void MvSampleProject::addTransitionAndEffectItems(MvMemoryMediaLibrary& library)
{
    library.add(
        new MvMemoryTransitionMediaItem(QStringLiteral("Dissolve"), MvMemoryTransitionMediaItem::Dissolve, kMs));
    library.add(new MvMemoryTransitionMediaItem(QStringLiteral("Wipe"), MvMemoryTransitionMediaItem::Wipe, 800));
    auto* slide = library.add(
        new MvMemoryTransitionMediaItem(QStringLiteral("Slide"), MvMemoryTransitionMediaItem::Slide, 700));
    slide->setRemote(true);
    library.add(new MvMemoryTransitionMediaItem(
        QStringLiteral("Audio crossfade"), MvMemoryTransitionMediaItem::Crossfade, kMs));

    for (const QString& name : { QStringLiteral("Blur"), QStringLiteral("Sepia"), QStringLiteral("Vignette") })
        library.add(new MvMemoryEffectMediaItem(name, false, 5 * kMs));
    for (const QString& name : { QStringLiteral("Echo"), QStringLiteral("Noise reduction") })
        library.add(new MvMemoryEffectMediaItem(name, true, 5 * kMs));
}
