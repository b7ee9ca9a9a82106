#include "MvModelMessages.h"

MvSeekMessage::MvSeekMessage(qint64 frame, bool accurate)
    : MvMessage(MVVBLMODEL::MessageId::Seek)
    , m_frame(frame)
    , m_accurate(accurate)
{
}

const char* MvSeekMessage::typeName() const
{
    return "MvSeekMessage";
}

MvSeekAfterPauseMessage::MvSeekAfterPauseMessage()
    : MvMessage(MVVBLMODEL::MessageId::SeekAfterPause)
{
}

const char* MvSeekAfterPauseMessage::typeName() const
{
    return "MvSeekAfterPauseMessage";
}

MvPropertyPanelShowMessage2::MvPropertyPanelShowMessage2(
    MVVBLMODEL::MvClipType clipType, MVVBLMODEL::MvPropertyType panelType)
    : MvMessage(MVVBLMODEL::MessageId::ShowPropertyPanel)
    , m_clipType(clipType)
    , m_panelType(panelType)
{
}

const char* MvPropertyPanelShowMessage2::typeName() const
{
    return "MvPropertyPanelShowMessage2";
}

// ---- Media insertion

MvMediaItemsMessage::MvMediaItemsMessage(int id)
    : MvMessage(id)
{
}

MvDownloadMediaItemMessage::MvDownloadMediaItemMessage()
    : MvMediaItemsMessage(MVVBLMODEL::MessageId::DownloadMediaItems)
{
}

const char* MvDownloadMediaItemMessage::typeName() const
{
    return "MvDownloadMediaItemMessage";
}

MvSelectResolutionMediaItemMessage::MvSelectResolutionMediaItemMessage()
    : MvMediaItemsMessage(MVVBLMODEL::MessageId::SelectStockResolution)
{
}

const char* MvSelectResolutionMediaItemMessage::typeName() const
{
    return "MvSelectResolutionMediaItemMessage";
}

MvVCGSelectResolutionMediaItemMessage::MvVCGSelectResolutionMediaItemMessage()
    : MvMediaItemsMessage(MVVBLMODEL::MessageId::SelectVCGResolution)
{
}

const char* MvVCGSelectResolutionMediaItemMessage::typeName() const
{
    return "MvVCGSelectResolutionMediaItemMessage";
}

MvMatchProjMediaItemMessage::MvMatchProjMediaItemMessage(IMvAbstractMediaItem* item)
    : MvMessage(MVVBLMODEL::MessageId::MatchProjectSettings)
    , m_item(item)
{
}

const char* MvMatchProjMediaItemMessage::typeName() const
{
    return "MvMatchProjMediaItemMessage";
}

MvTimelineAddMediaResponseMessage::MvTimelineAddMediaResponseMessage(
    const QList<IMvAbstractMediaItem*>& items, void* context, int value)
    : MvMediaItemsMessage(MVVBLMODEL::MessageId::AddMediaResponse)
    , m_context(context)
    , m_value(value)
{
    setMediaItems(items);
}

const char* MvTimelineAddMediaResponseMessage::typeName() const
{
    return "MvTimelineAddMediaResponseMessage";
}

MvTimelineScrollToTrackMessage::MvTimelineScrollToTrackMessage(const QList<IMvClip*>& clips)
    : MvMessage(MVVBLMODEL::MessageId::ScrollToTrack)
    , m_clips(clips)
{
}

const char* MvTimelineScrollToTrackMessage::typeName() const
{
    return "MvTimelineScrollToTrackMessage";
}

MvMediaLibraryFindSimilarMessage::MvMediaLibraryFindSimilarMessage(
    const ResourceInfoData& resource, const QString& title, MVVBLMODEL::MvMediaCategoryType category)
    : MvMessage(MVVBLMODEL::MessageId::MediaLibraryFindSimilar)
    , m_resource(resource)
    , m_title(title)
    , m_category(category)
{
}

const char* MvMediaLibraryFindSimilarMessage::typeName() const
{
    return "MvMediaLibraryFindSimilarMessage";
}

MvMediaEditorSelectClipMessage::MvMediaEditorSelectClipMessage()
    : MvMessage(MVVBLMODEL::MessageId::MediaEditorSelectClip)
{
}

const char* MvMediaEditorSelectClipMessage::typeName() const
{
    return "MvMediaEditorSelectClipMessage";
}

MvAudioEffectOverrideMessage::MvAudioEffectOverrideMessage(const QList<IMvClip*>& clips)
    : MvQueryMessage(MVVBLMODEL::MessageId::AudioEffectOverride)
    , m_clips(clips)
{
}

const char* MvAudioEffectOverrideMessage::typeName() const
{
    return "MvAudioEffectOverrideMessage";
}
