#pragma once

#include <QCoreApplication>
#include <QString>

class IMvClip;
class IMvTimeline;

// The words of the demo's property and library panels: kinds of clips, library shelves, which
// page a request of the library names, and a clip described field by field.
class MvDemoPropertyWords
{
    Q_DECLARE_TR_FUNCTIONS(MvDemoPropertyWords)

public:
    // The pages of the Properties dock.
    enum class Page
    {
        Clip, // the selected clip's properties
        Picture, // picture properties and video keyframes
        Audio, // sound properties and audio keyframes
        AdvancedText, // the advanced text editor (also the media editor's text list)
        AdvancedSubtitle, // the advanced subtitle editor
        AdvancedTitle, // the advanced title editor
        Colour, // the advanced colour editor
        Nothing, // a panel type with no page
    };

    static QString kindName(int clipType);
    static QString shelfName(int categoryType);
    static QString pageTitle(Page page);
    // A property-panel group (MvPropertyType) as a page: audio, picture (also text and sticker
    // groups) or none.
    static Page pageForPropertyType(int propertyType);
    // A page of the property panel as message 9007 names it: -1 for the selection's page, else a
    // property-panel group.
    static Page pageForPanelPage(int page);
    // "00:00:04:00 (clip frame 120)"
    static QString keyFrameText(const IMvTimeline* timeline, const IMvClip* clip, qint64 clipFrame);
    // The clip field by field as "Label: value" lines, for the Clip page.
    static QStringList clipFields(const IMvTimeline* timeline, const IMvClip* clip);
};
