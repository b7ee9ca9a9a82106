#pragma once

#include "MvVBLModelGlobal.h"
#include "MvMessage.h"
#include "IMvResourceInfo.h"

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
