// Effects: applying an effect item to clips, and the effect clipboard of the selection (copy,
// paste, delete and the two questions that enable them). The effects themselves are the model's;
// beside them the presenter keeps the copied clip's effect data (user data 13003), which travels
// with a paste and goes with a delete. Every refusal here is silent.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "IMvAbstractClip.h"
#include "IMvAbstractMediaItem.h"
#include "IMvClipEditService.h"
#include "IMvEffect.h"
#include "IMvTimeline.h"
#include "IMvUndoRedoService.h"
#include "MvClipEffectHelper.h"
#include "MvCommandScope_p.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvTimelineLog_p.h"
#include "MvTimelineModelAccess_p.h"

using namespace MVVBLMODEL;

MV_LOG_FILE("Src/MvTimeline/MvTimelinePresenter");

namespace {
// The add-media response's value for effects (media 0, transitions 2).
constexpr int kEffectResponse = 1;

// Where an effect of that kind goes on the clip: video effects among the clip's video effects
// when it keeps them apart.
IMvEffectContainer* targetFor(IMvClip* clip, bool audio)
{
    IMvEffectContainer* container = clip->effects();
    if (!audio && container && container->videoEffects())
        return container->videoEffects();
    return container;
}
}

void MvTimelinePresenter::addEffectMedia(IMvClip* clip, IMvAbstractMediaItem* item)
{
    Q_D(MvTimelinePresenter);
    d->addEffectMedia(clip, item);
}

void MvTimelinePresenter::addEffectMedias(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item)
{
    Q_D(MvTimelinePresenter);
    d->addEffectMedias(clips, item);
}

void MvTimelinePresenter::copyEffect()
{
    Q_D(MvTimelinePresenter);
    d->copyEffect();
}

void MvTimelinePresenter::pasteEffect()
{
    Q_D(MvTimelinePresenter);
    d->pasteEffect();
}

void MvTimelinePresenter::deleteEffect()
{
    Q_D(MvTimelinePresenter);
    d->deleteEffect();
}

bool MvTimelinePresenter::hasEffect() const
{
    Q_D(const MvTimelinePresenter);
    return d->hasEffect();
}

bool MvTimelinePresenter::canPasteEffect() const
{
    Q_D(const MvTimelinePresenter);
    return d->canPasteEffect();
}

void MvTimelinePresenterPrivate::addEffectMedia(IMvClip* clip, IMvAbstractMediaItem* item)
{
    addEffectMedias({ clip }, item);
}

void MvTimelinePresenterPrivate::addEffectMedias(const QList<IMvClip*>& clips, IMvAbstractMediaItem* item)
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::addEffectMedias");
    if (clips.isEmpty() || !prepareAddMedia(item))
        return;
    auto* effectItem = dynamic_cast<IMvEffectMediaItem*>(item);
    if (!effectItem)
        return;
    const bool audio = item->mediaType() == MediaType_AudioEffect;
    IMvClip* first = clips.first();
    const MvCommandScope command(q, MvCommandScope::NoPause, first ? first->undoRedoService() : nullptr,
        QStringLiteral("add effect medias"), MV_SOURCE);
    IMvEffect* last = nullptr;
    for (IMvClip* clip : clips) {
        // A clip that refuses the effect does not stop the others.
        if (!(audio ? MvClipEffectHelper::canAddAudioEffect(clip) : MvClipEffectHelper::canAddVideoEffect(clip)))
            continue;
        IMvEffect* effect = effectItem->createEffect();
        if (!effect)
            continue;
        if (audio && clip->effects() && clip->effects()->hasAudioEffect()) {
            // A clip plays through one audio effect: the user decides whether the new one replaces it.
            MvAudioEffectOverrideMessage question({ clip });
            q->sendMessageToScene(&question);
            if (!question.asBool()) {
                effect->release();
                continue;
            }
        }
        IMvEffectContainer* target = targetFor(clip, audio);
        const bool added = target && target->addEffect(effect);
        // The clip holds the effect now; one that was not added goes with this release.
        effect->release();
        if (added)
            last = effect;
    }
    if (last)
        notifyAddMediaSucceed({ item }, last, kEffectResponse, true);
}

void MvTimelinePresenterPrivate::copyEffect()
{
    Q_Q(MvTimelinePresenter);
    MvCommandScope::pause(q, MvCommandScope::PausePlayer);
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
    if (clips.isEmpty() || !clips.first() || !editService)
        return;
    editService->copyEffect(clips.first());
    copiedEffectData = clips.first()->userData(UserDataKey_EffectData);
}

void MvTimelinePresenterPrivate::pasteEffect()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::pasteEffect");
    MvCommandScope::pause(q, MvCommandScope::PausePlayer);
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
    if (clips.isEmpty() || !editService)
        return;
    if (editService->needAudioEffectOverride(clips)) {
        MvAudioEffectOverrideMessage question(clips);
        q->sendMessageToScene(&question);
        if (!question.asBool())
            return;
    }
    IMvUndoRedoService* undo = MvModelAccess::undoService(timeline);
    const MvCommandScope command(q, MvCommandScope::NoPause, undo, QStringLiteral("pasteEffect"), MV_SOURCE);
    // The clips change more than once (effects, then their data): the views hear of it once.
    const MvPauseEventCommander events(undo);
    const bool pasted = editService->pasteEffect(clips);
    q->sendMessageToScene(MessageId::AfterEffectPaste);
    if (!pasted)
        return;
    for (IMvClip* clip : clips)
        IMvClip::changeUserData(clip, UserDataKey_EffectData, copiedEffectData);
    q->sendMessageToScene(MessageId::EffectsPasted);
}

void MvTimelinePresenterPrivate::deleteEffect()
{
    Q_Q(MvTimelinePresenter);
    MV_FUNCTION("MvTimelinePresenter::deleteEffect");
    // The step is named after the function, unlike the other effect commands; hosts match on it.
    const MvCommandScope command(
        q, MvCommandScope::PausePlayer, MvModelAccess::undoService(timeline), QLatin1String(mvFunction), MV_SOURCE);
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    IMvClipEditService* editService = MvModelAccess::editService(timeline);
    if (!editService || !editService->removeEffects(clips))
        return;
    for (IMvClip* clip : clips)
        IMvClip::changeUserData(clip, UserDataKey_EffectData, QString());
    MvMessage deleted(MessageId::EffectsDeleted);
    q->sendMessageToScene(&deleted);
}

bool MvTimelinePresenterPrivate::hasEffect() const
{
    const QList<IMvClip*> clips = MvModelAccess::selectedClips(timeline);
    const IMvClipEditService* editService = MvModelAccess::editService(timeline);
    return clips.size() == 1 && editService && editService->hasEffect(clips.first());
}

bool MvTimelinePresenterPrivate::canPasteEffect() const
{
    const IMvClipEditService* editService = MvModelAccess::editService(timeline);
    return editService && editService->canPasteEffect();
}
