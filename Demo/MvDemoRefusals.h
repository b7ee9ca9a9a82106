#pragma once

#include "MvDemoClipDrag.h"

#include <QCoreApplication>
#include <QString>

class IMvTimeline;
class MvTimelinePresenter;

// Why a command of the demo's menus cannot do anything right now, in the user's words: the
// library refuses silently (or with a log record), and a person needs to know what to change.
// Each reason mirrors the rule the presenter or the model applies; an empty text means that
// nothing known stands in the command's way.
class MvDemoRefusals
{
    Q_DECLARE_TR_FUNCTIONS(MvDemoRefusals)

public:
    MvDemoRefusals(IMvTimeline* timeline, MvTimelinePresenter* presenter);

    // `command` is the name of the window's action ("split", "trim-start", ...).
    QString reason(const QString& command) const;
    // A move of the selected clips by frames and by rows of the first clip's kind.
    QString moveReason(qint64 frameOffset, int trackOffset) const;
    static QString problemText(MvDemoClipDrag::Problem problem);

private:
    int second() const;
    qint64 playheadFrame() const;
    QString splitReason() const;
    QString trimReason() const;
    QString deleteReason(bool ripple) const;
    QString lockedSelectionReason() const;
    QString rotateReason() const;
    QString selectedClipReason() const;
    QString addMarkerReason() const;
    QString removeMarkerReason() const;
    QString editMarkerReason() const;
    QString addKeyFrameReason() const;
    QString clearKeyFramesReason(bool audio) const;
    QString virtualPlayheadReason(bool opening) const;
    QString undoReason(bool undo) const;
    // The property panels and the media library (MvDemoPanelActions.cpp).
    QString findSimilarReason() const;
    QString selectAllTextsReason() const;
    QString panelClipReason() const;
    QString colourReason() const;
    QString audioKeyFramePanelReason() const;
    // The clipboard, audio and the timeline's rows (MvDemoClipboardActions.cpp).
    QString clipboardReason(const QString& command) const;
    QString audioReason(const QString& command) const;
    QString timelineReason(const QString& command) const;
    // Transitions and effects (MvDemoEffectActions.cpp).
    QString copyEffectsReason() const;
    QString pasteEffectsReason() const;
    QString deleteEffectsReason() const;
    QString selectionForEffectsReason() const;

    IMvTimeline* m_timeline;
    MvTimelinePresenter* m_presenter;
};
