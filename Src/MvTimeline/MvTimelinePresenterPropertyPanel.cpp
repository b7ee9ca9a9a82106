// Requests to the host's property panel, keyframe panel, advanced editors and colour editor. The
// panels belong to the host: the presenter only classifies clips and asks.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvKeyFrameSelector.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "MvClipHelpers.h"
#include "MvCustomEvent.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvTimelineModelAccess_p.h"

#include <QSharedPointer>
#include <QVariantList>

using namespace MVVBLMODEL;

namespace {
// The advanced editor of a clip type, 0 for types that have none.
int advancedEditorOf(MvClipType type)
{
    switch (type) {
    case ClipType_Text:
        return MessageId::ShowAdvancedTextEditor;
    case ClipType_Subtitle:
        return MessageId::ShowAdvancedSubtitleEditor;
    case ClipType_Title:
        return MessageId::ShowAdvancedTitleEditor;
    default:
        return 0;
    }
}
}

void MvTimelinePresenter::hidePropertyPanel()
{
    MvMessage message(MessageId::HidePropertyPanel);
    sendMessageToScene(&message);
}

void MvTimelinePresenter::showPropertyPanel(int page)
{
    MvDataMessage message(MessageId::ShowPropertyPanelPage, page);
    sendMessageToScene(&message);
}

void MvTimelinePresenter::checkHidePropertyPanel()
{
    Q_D(MvTimelinePresenter);
    // Where the virtual playhead is allowed the panel follows it, not the deleted clips.
    if (!d->timeline || d->timeline->virtualPlayheadAllowed())
        return;
    hidePropertyPanel();
}

MvPropertyType MvTimelinePresenter::getPropertyType(IMvClip* clip)
{
    return MvTimelinePresenterPrivate::getPropertyType(clip);
}

void MvTimelinePresenter::showAdvancedColor()
{
    Q_D(MvTimelinePresenter);
    d->showAdvancedColor();
}

void MvTimelinePresenter::showAdvancedEdit(bool arg)
{
    Q_D(MvTimelinePresenter);
    d->showAdvancedEdit(arg);
}

void MvTimelinePresenter::openAudioPropertyPanel()
{
    Q_D(MvTimelinePresenter);
    d->openAudioPropertyPanel();
}

void MvTimelinePresenter::showKeyFrameCustomizePanel(IMvClip* clip)
{
    Q_D(MvTimelinePresenter);
    d->showKeyFrameCustomizePanel(clip);
}

void MvTimelinePresenter::addAnimation()
{
    Q_D(MvTimelinePresenter);
    d->addAnimation();
}

void MvTimelinePresenter::selectedKeyFrameChanged(IMvClip* clip, qint64 frame)
{
    Q_D(MvTimelinePresenter);
    d->selectedKeyFrameChanged(clip, frame);
}

// What is heard goes to the audio panel, what is seen to the picture panel; transitions, effects,
// filters, placeholders and shapes have their own editors and no panel here.
MvPropertyType MvTimelinePresenterPrivate::getPropertyType(const IMvClip* clip)
{
    if (!clip)
        return PropertyType_None;
    switch (clip->type()) {
    case ClipType_Audio:
    case ClipType_Music:
    case ClipType_SoundEffect:
        return PropertyType_Audio;
    case ClipType_Video:
    case ClipType_VideoWithAudio:
    case ClipType_Image:
    case ClipType_Text:
    case ClipType_Sticker:
    case ClipType_Adjustment:
    case ClipType_Subtitle:
    case ClipType_Title:
    case ClipType_Compound:
    case ClipType_ScreenRecording:
        return PropertyType_Picture;
    default:
        return PropertyType_None;
    }
}

void MvTimelinePresenterPrivate::showAdvancedColor()
{
    Q_Q(MvTimelinePresenter);
    MvDataMessage message(MessageId::ShowAdvancedColor, true);
    q->sendMessageToScene(&message);
}

void MvTimelinePresenterPrivate::showAdvancedEdit(bool arg)
{
    Q_Q(MvTimelinePresenter);
    const IMvSelection* selection = MvModelAccess::selection(timeline);
    const IMvClip* clip = dynamic_cast<const IMvClip*>(selection ? selection->currentItem() : nullptr);
    if (!clip)
        return;
    const MvClipType type = clip->type();
    // The page of the selection first, so the editor opens over the clip's own properties.
    q->showPropertyPanel(-1);
    const int editor = advancedEditorOf(type);
    if (editor == 0)
        return;
    MvDataMessage message(editor, QVariantList { true, arg });
    q->sendMessageToScene(&message);
}

void MvTimelinePresenterPrivate::openAudioPropertyPanel()
{
    Q_Q(MvTimelinePresenter);
    const IMvKeyFrameSelector* selector = MvModelAccess::keyFrameSelector(timeline);
    if (!selector)
        return;
    const IMvKeyFrameSelector::MvSelectData selected = selector->currentSelection();
    if (!selected.isValid())
        return;
    MvPropertyPanelShowMessage2 message(selected.clip->type(), PropertyType_Audio);
    q->sendMessageToScene(&message);
}

void MvTimelinePresenterPrivate::showKeyFrameCustomizePanel(IMvClip* clip)
{
    QSharedPointer<MvCustomEventImp> event(new MvCustomEventImp(
        QLatin1String(MvEventName::NotifySwtichPropertView), { QVariant(int(getPropertyType(clip))) }));
    MvCustomEventDispatcher::instance().sendEvent(event, MvCustomEventDispatcher::Filter());
}

void MvTimelinePresenterPrivate::addAnimation()
{
    showKeyFrameCustomizePanel(getFirstSelectedClip());
}

// Selection and playhead are what the user looks at, not model state: no pause, no undo step.
void MvTimelinePresenterPrivate::selectedKeyFrameChanged(IMvClip* clip, qint64 frame)
{
    if (!timeline)
        return;
    if (IMvSelection* selection = MvModelAccess::selection(timeline))
        selection->selectItem(clip);
    MvModelAccess::setPlayheadFrame(timeline, MvKeyFrameHelper2::mapToTimeline(clip, frame));
}
