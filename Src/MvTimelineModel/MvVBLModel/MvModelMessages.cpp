#include "MvModelMessages.h"

MvSeekMessage::MvSeekMessage(qint64 frame, bool accurate)
    : MvMessage(MVVBLMODEL::MessageId::Seek), m_frame(frame), m_accurate(accurate)
{
}

const char* MvSeekMessage::typeName() const
{
    return "MvSeekMessage";
}

MvSeekAfterPauseMessage::MvSeekAfterPauseMessage() : MvMessage(MVVBLMODEL::MessageId::SeekAfterPause) { }

const char* MvSeekAfterPauseMessage::typeName() const
{
    return "MvSeekAfterPauseMessage";
}

MvPropertyPanelShowMessage2::MvPropertyPanelShowMessage2(
    MVVBLMODEL::MvClipType clipType, MVVBLMODEL::MvPropertyType panelType)
    : MvMessage(MVVBLMODEL::MessageId::ShowPropertyPanel), m_clipType(clipType), m_panelType(panelType)
{
}

const char* MvPropertyPanelShowMessage2::typeName() const
{
    return "MvPropertyPanelShowMessage2";
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
