#pragma once

#include "IMvResourceInfo.h"
#include "MvMessage.h"
#include "MvVBLModelGlobal.h"

#include <QList>

class IMvClip;

// Asks the player to show a frame. The flag asks for an exact (slow) seek.
class MVVBLMODEL_EXPORT MvSeekMessage : public MvMessage
{
public:
    MvSeekMessage(qint64 frame, bool accurate);

    qint64 frame() const { return m_frame; }
    bool isAccurate() const { return m_accurate; }
    const char* typeName() const override;

private:
    qint64 m_frame;
    bool m_accurate;
};

// Asks the player to seek to the playhead once it has come to rest.
class MVVBLMODEL_EXPORT MvSeekAfterPauseMessage : public MvMessage
{
public:
    MvSeekAfterPauseMessage();
    const char* typeName() const override;
};

// Asks the host to show a property panel page for a kind of clip.
class MVVBLMODEL_EXPORT MvPropertyPanelShowMessage2 : public MvMessage
{
public:
    MvPropertyPanelShowMessage2(MVVBLMODEL::MvClipType clipType, MVVBLMODEL::MvPropertyType panelType);

    MVVBLMODEL::MvClipType clipType() const { return m_clipType; }
    MVVBLMODEL::MvPropertyType panelType() const { return m_panelType; }
    const char* typeName() const override;

private:
    MVVBLMODEL::MvClipType m_clipType;
    MVVBLMODEL::MvPropertyType m_panelType;
};

// ---- Media insertion. The scene answers each before the send returns, in the message itself.

class IMvAbstractMediaItem;

// A list of media items that the scene may change: what it leaves is the answer.
class MVVBLMODEL_EXPORT MvMediaItemsMessage : public MvMessage
{
public:
    QList<IMvAbstractMediaItem*> mediaItems() const { return m_items; }
    void setMediaItems(const QList<IMvAbstractMediaItem*>& items) { m_items = items; }
    void appendMediaItem(IMvAbstractMediaItem* item) { m_items.append(item); }

protected:
    explicit MvMediaItemsMessage(int id);

private:
    QList<IMvAbstractMediaItem*> m_items;
};

// Download these items; the scene returns when it is done (or the user gave up).
class MVVBLMODEL_EXPORT MvDownloadMediaItemMessage : public MvMediaItemsMessage
{
public:
    MvDownloadMediaItemMessage();
    const char* typeName() const override;
};

// Let the user choose the resolution of these stock items; those declined are to be removed.
class MVVBLMODEL_EXPORT MvSelectResolutionMediaItemMessage : public MvMediaItemsMessage
{
public:
    MvSelectResolutionMediaItemMessage();
    const char* typeName() const override;
};

// The same for VCG items.
class MVVBLMODEL_EXPORT MvVCGSelectResolutionMediaItemMessage : public MvMediaItemsMessage
{
public:
    MvVCGSelectResolutionMediaItemMessage();
    const char* typeName() const override;
};

// The project may adopt this item's settings (frame rate, size); the scene asks the user.
class MVVBLMODEL_EXPORT MvMatchProjMediaItemMessage : public MvMessage
{
public:
    explicit MvMatchProjMediaItemMessage(IMvAbstractMediaItem* item = nullptr);

    IMvAbstractMediaItem* mediaItem() const { return m_item; }
    void setMediaItem(IMvAbstractMediaItem* item) { m_item = item; }
    const char* typeName() const override;

private:
    IMvAbstractMediaItem* m_item;
};

// Media items were added: the items, the sender's context (the address of its list of created
// clips, valid during the send) and a value of the sender's.
class MVVBLMODEL_EXPORT MvTimelineAddMediaResponseMessage : public MvMediaItemsMessage
{
public:
    MvTimelineAddMediaResponseMessage(const QList<IMvAbstractMediaItem*>& items = QList<IMvAbstractMediaItem*>(),
        void* context = nullptr, int value = 0);

    void* context() const { return m_context; }
    int value() const { return m_value; }
    const char* typeName() const override;

private:
    void* m_context;
    int m_value;
};

// Scroll the track area so that these clips are in view.
class MVVBLMODEL_EXPORT MvTimelineScrollToTrackMessage : public MvMessage
{
public:
    explicit MvTimelineScrollToTrackMessage(const QList<IMvClip*>& clips = QList<IMvClip*>());

    QList<IMvClip*> clips() const { return m_clips; }
    const char* typeName() const override;

private:
    QList<IMvClip*> m_clips;
};

// Library resources and composed texts.

// Asks the media library to show resources like the one an item was made from.
class MVVBLMODEL_EXPORT MvMediaLibraryFindSimilarMessage : public MvMessage
{
public:
    MvMediaLibraryFindSimilarMessage(
        const ResourceInfoData& resource, const QString& title, MVVBLMODEL::MvMediaCategoryType category);

    ResourceInfoData resourceInfoData() const { return m_resource; }
    QString title() const { return m_title; }
    MVVBLMODEL::MvMediaCategoryType categoryType() const { return m_category; }
    const char* typeName() const override;

private:
    ResourceInfoData m_resource;
    QString m_title;
    MVVBLMODEL::MvMediaCategoryType m_category;
};

// Asks the media editor to select clips (the layers of a composed text, ...).
class MVVBLMODEL_EXPORT MvMediaEditorSelectClipMessage : public MvMessage
{
public:
    MvMediaEditorSelectClipMessage();

    QList<IMvClip*> clips() const { return m_clips; }
    void setClips(const QList<IMvClip*>& clips) { m_clips = clips; }
    // True: the clips replace the editor's selection; false: they are added to it.
    bool replacesSelection() const { return m_replace; }
    void setReplacesSelection(bool replace) { m_replace = replace; }
    const char* typeName() const override;

private:
    QList<IMvClip*> m_clips;
    bool m_replace = false;
};

// ---- Transitions and effects.

// Asks the user whether the audio effect of these clips is to be replaced; answer true to replace.
// An unanswered question reads as no.
class MVVBLMODEL_EXPORT MvAudioEffectOverrideMessage : public MvQueryMessage
{
public:
    explicit MvAudioEffectOverrideMessage(const QList<IMvClip*>& clips = QList<IMvClip*>());

    QList<IMvClip*> clips() const { return m_clips; }
    const char* typeName() const override;

private:
    QList<IMvClip*> m_clips;
};
