#pragma once

#include "MvVBLModelGlobal.h"
#include "MvMessage.h"

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
