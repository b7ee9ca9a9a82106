#pragma once

#include <QString>
#include <QtGlobal>

#if defined(MVVBLMODEL_LIBRARY)
#define MVVBLMODEL_EXPORT Q_DECL_EXPORT
#else
#define MVVBLMODEL_EXPORT Q_DECL_IMPORT
#endif

namespace MVVBLMODEL {

// Kind of an item placed on a track.
using MvClipType = int;
constexpr MvClipType ClipType_Audio = 1;
constexpr MvClipType ClipType_Video = 2;
constexpr MvClipType ClipType_VideoWithAudio = 3;
constexpr MvClipType ClipType_Image = 4;
constexpr MvClipType ClipType_Text = 5;
constexpr MvClipType ClipType_Sticker = 6;
constexpr MvClipType ClipType_Effect = 7;
constexpr MvClipType ClipType_Filter = 8;
constexpr MvClipType ClipType_Adjustment = 9;
constexpr MvClipType ClipType_Placeholder = 10;
constexpr MvClipType ClipType_Shape = 11;
constexpr MvClipType ClipType_Transition = 12;
constexpr MvClipType ClipType_Subtitle = 13;
constexpr MvClipType ClipType_Title = 14;
constexpr MvClipType ClipType_Compound = 15;
constexpr MvClipType ClipType_ScreenRecording = 16;
constexpr MvClipType ClipType_Music = 17;
constexpr MvClipType ClipType_SoundEffect = 18;

inline bool isAudioClipType(MvClipType type)
{
    return type == ClipType_Audio || type == ClipType_Music || type == ClipType_SoundEffect;
}

// Kind of a track row. Picture tracks hold everything that is seen, audio tracks what is heard.
using MvTrackType = int;
constexpr MvTrackType TrackType_Audio = 1;
constexpr MvTrackType TrackType_Picture = 3;

// Audio rows carry what is heard only; their eye button stands for their sound.
inline bool isAudioTrack(MvTrackType type)
{
    return type == TrackType_Audio;
}

// Row height class of a track: 0 small, 1 normal, 2 large.
using MvTrackSizePolicy = int;

// Player state reported to the virtual playhead.
using MvPlayState = int;
constexpr MvPlayState PlayState_Stopped = 0;
constexpr MvPlayState PlayState_Playing = 1;
constexpr MvPlayState PlayState_Paused = 2;
constexpr MvPlayState PlayState_Finished = 3;

// Property panel group.
using MvPropertyType = int;
constexpr MvPropertyType PropertyType_None = 0;
constexpr MvPropertyType PropertyType_Audio = 0x10;
constexpr MvPropertyType PropertyType_Text = 0x10004;
constexpr MvPropertyType PropertyType_Picture = 0x10008;
constexpr MvPropertyType PropertyType_Sticker = 0x1000080;

// Shelf of the media library a resource is filed on (library resources: Find similar).
using MvMediaCategoryType = int;
constexpr MvMediaCategoryType MediaCategory_None = 0;
constexpr MvMediaCategoryType MediaCategory_Video = 1;
constexpr MvMediaCategoryType MediaCategory_Image = 2;
constexpr MvMediaCategoryType MediaCategory_Music = 3;
constexpr MvMediaCategoryType MediaCategory_SoundEffect = 4;
constexpr MvMediaCategoryType MediaCategory_Text = 5;
constexpr MvMediaCategoryType MediaCategory_Sticker = 6;
constexpr MvMediaCategoryType MediaCategory_Effect = 7;
constexpr MvMediaCategoryType MediaCategory_Filter = 8;
constexpr MvMediaCategoryType MediaCategory_Transition = 9;

// Groups of keyframed properties.
constexpr int PropertyGroup_Transform = 4096;
constexpr int PropertyGroup_AudioVolume = 4110;

struct MvFrameRate
{
    int numerator = 30;
    int denominator = 1;

    double fps() const { return denominator > 0 ? double(numerator) / denominator : 0.0; }
    bool operator==(const MvFrameRate& other) const
    {
        return numerator == other.numerator && denominator == other.denominator;
    }
};

// A ratio as the model keeps it (a project's frame rate: frames per second is numerator over
// denominator). The ruler's MvFrameRate keeps its own int fields.
struct MvRational
{
    qint64 numerator = 30;
    qint64 denominator = 1;

    bool operator==(const MvRational& other) const
    {
        return numerator == other.numerator && denominator == other.denominator;
    }
    bool operator!=(const MvRational& other) const { return !(*this == other); }
};

// Media insertion: what a media item of the project's library is, where it comes from, and what
// the model's insertion reports.
using MvMediaType = int;
constexpr MvMediaType MediaType_Video = 1;
constexpr MvMediaType MediaType_Audio = 2;
constexpr MvMediaType MediaType_Image = 3;
constexpr MvMediaType MediaType_Text = 4;
constexpr MvMediaType MediaType_Subtitle = 5;
constexpr MvMediaType MediaType_ScreenRecording = 16; // its length is known once the recording is closed
constexpr MvMediaType MediaType_Compound = 30; // a timeline of its own, read on first use

using MvMediaOrigin = int;
constexpr MvMediaOrigin MediaOrigin_Local = 0;
constexpr MvMediaOrigin MediaOrigin_Stock = 1;
constexpr MvMediaOrigin MediaOrigin_VCG = 2;
constexpr MvMediaOrigin MediaOrigin_Project = 5; // made from this project's own timelines: already at its settings

// Bits of IMvMediaInfo::flags.
constexpr quint32 MediaInfoFlag_OwnVideoSettings = 0x1; // a frame rate and size a project may adopt

// Bits of the result of IMvTimeline::addMedias (and of a paste of compound clips).
constexpr unsigned AddMediaFlag_ExternalCompound = 4; // a compound clip of another project was refused
constexpr unsigned AddMediaFlag_NestsItself = 8; // a compound clip would have contained itself

// Transitions and effects: media items that are laid over a cut or applied to clips, what a clip
// can carry, and the user data a host keeps on a clip.
constexpr MvMediaType MediaType_VideoEffect = 10;
constexpr MvMediaType MediaType_AudioEffect = 11;
constexpr MvMediaType MediaType_Transition = 12; // video or audio: IMvTransitionMediaItem::isAudioTransition

// Which end of its clip a transition sits on (the same codes as IMvTransition::placement).
using MvTransitionType = int;
constexpr MvTransitionType TransitionType_Start = 1; // over the clip's first frames, from the clip before
constexpr MvTransitionType TransitionType_End = 2; // over the clip's last frames, into the clip after

// Keys of IMvClip::userData.
constexpr int UserDataKey_EffectData = 13003; // the effect data string of a clip (copied and pasted with its effects)

// What a clip of a type shows and plays.
inline bool clipHasPicture(MvClipType type)
{
    return !isAudioClipType(type) && type != ClipType_Transition && type >= ClipType_Audio
        && type <= ClipType_SoundEffect;
}
inline bool clipHasSound(MvClipType type)
{
    return isAudioClipType(type) || type == ClipType_VideoWithAudio || type == ClipType_ScreenRecording
        || type == ClipType_Compound;
}

// One keyframed property of an effect.
struct MvEffectPropertyBaseInfo
{
    int group = 0;
    QString name;
    bool flag = false;
    int index = -1;
    int propertyId = 0;

    bool operator==(const MvEffectPropertyBaseInfo& other) const
    {
        return group == other.group && name == other.name && flag == other.flag && index == other.index
            && propertyId == other.propertyId;
    }
};

// Identifiers of the messages the timeline sends to its scene.
namespace MessageId {
constexpr int GroupQuestionBeforeSplit = 1010; // MvDataMessage; answer: QVariantList{bool proceed, bool ungroup}
constexpr int SwitchPlayerToTimeline = 7005; // MvDataMessage carrying the IMvTimeline*
constexpr int AfterEffectPaste = 7009; // bare id, sent after every effect paste
constexpr int PausePlayer = 7012; // bare id
constexpr int StopPlayer = 7014; // MvMessage
constexpr int IsPlayerPlaying = 7033; // MvQueryMessage
constexpr int PausePlayerWithSync = 7036; // bare id
constexpr int Seek = 7040; // MvSeekMessage
constexpr int SeekAfterPause = 7041; // MvSeekAfterPauseMessage
constexpr int HidePropertyPanel = 9006; // MvMessage
constexpr int ShowPropertyPanelPage = 9007; // MvDataMessage carrying the page (int); -1: the selection's page
constexpr int ShowAdvancedSubtitleEditor = 9017; // MvDataMessage {true, arg}
constexpr int ShowAdvancedTextEditor = 9018; // MvDataMessage {true, arg}
constexpr int ShowAdvancedColor = 9019; // MvDataMessage carrying true
constexpr int ShowAdvancedTitleEditor = 9020; // MvDataMessage {true, arg}
constexpr int EffectsDeleted = 9030; // MvMessage
constexpr int EffectsPasted = 9031; // bare id
constexpr int ShowPropertyPanel = 9040; // MvPropertyPanelShowMessage2
// Media insertion (MvModelMessages.h): each carries its media items or clips both ways.
constexpr int DownloadMediaItems = 3003; // MvDownloadMediaItemMessage
constexpr int SelectStockResolution = 3016; // MvSelectResolutionMediaItemMessage
constexpr int SelectVCGResolution = 3017; // MvVCGSelectResolutionMediaItemMessage
constexpr int MatchProjectSettings = 3018; // MvMatchProjMediaItemMessage
constexpr int AddMediaResponse = 3019; // MvTimelineAddMediaResponseMessage
constexpr int ScrollToTrack = 3020; // MvTimelineScrollToTrackMessage
// Transitions and effects.
constexpr int AudioEffectOverride
    = 3030; // MvAudioEffectOverrideMessage: answer true to replace the clip's audio effect
// Library resources and composed texts.
constexpr int MediaLibraryFindSimilar = 9061; // MvMediaLibraryFindSimilarMessage
constexpr int MediaEditorSelectClip = 9062; // MvMediaEditorSelectClipMessage
}

} // namespace MVVBLMODEL
