// Effects of the in-memory model: the effects themselves, what a clip carries, the items that make
// them, the effect clipboard of the timeline and the clip's user data.
#include "MvMemoryEffects.h"

#include "MvMemoryClip.h"
#include "MvMemoryEditService.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTrack.h"

#include <QAtomicInteger>
#include <QStringList>

using namespace MVVBLMODEL;

namespace {
QAtomicInteger<quint64> effectsMade;

bool editable(const MvMemoryClip* clip)
{
    return clip && clip->isOnTimeline() && !clip->trackImpl()->isLocked();
}
}

// ---- effects

MvMemoryEffect::MvMemoryEffect(const QString& name, bool audio)
    : m_name(name)
    , m_audio(audio)
    , m_serial(effectsMade.fetchAndAddOrdered(1) + 1)
    , m_references(1)
{
}

MvMemoryEffect::~MvMemoryEffect() = default;

QString MvMemoryEffect::name() const
{
    return m_name;
}

bool MvMemoryEffect::isAudioEffect() const
{
    return m_audio;
}

void MvMemoryEffect::release()
{
    if (!m_references.deref())
        delete this;
}

void MvMemoryEffect::retain()
{
    m_references.ref();
}

MvMemoryEffectRef::MvMemoryEffectRef(MvMemoryEffect* effect)
    : m_effect(effect)
{
    if (m_effect)
        m_effect->retain();
}

MvMemoryEffectRef::MvMemoryEffectRef(const MvMemoryEffectRef& other)
    : MvMemoryEffectRef(other.m_effect)
{
}

MvMemoryEffectRef& MvMemoryEffectRef::operator=(const MvMemoryEffectRef& other)
{
    if (other.m_effect)
        other.m_effect->retain();
    if (m_effect)
        m_effect->release();
    m_effect = other.m_effect;
    return *this;
}

MvMemoryEffectRef::~MvMemoryEffectRef()
{
    if (m_effect)
        m_effect->release();
}

QString MvMemoryClipEffects::text() const
{
    const auto name = [](const MvMemoryEffectRef& effect) -> QString {
        return QLatin1Char('"') + effect->name() + QLatin1String("\"#") + QString::number(effect->serial());
    };
    QStringList videoNames;
    for (const MvMemoryEffectRef& effect : video)
        videoNames.append(name(effect));
    return QLatin1String("video ") + videoNames.join(QLatin1String(", ")) + QLatin1String("; audio ")
        + (audio ? name(audio) : QStringLiteral("-"));
}

// ---- a clip's effects

MvMemoryEffectContainer::MvMemoryEffectContainer(MvMemoryClip* clip, bool videoOnly)
    : m_clip(clip)
    , m_videoOnly(videoOnly)
    , m_video(videoOnly ? nullptr : new MvMemoryEffectContainer(clip, true))
{
}

MvMemoryEffectContainer::~MvMemoryEffectContainer()
{
    delete m_video;
}

IMvEffectContainer* MvMemoryEffectContainer::videoEffects() const
{
    return MvMemoryClip::takesVideoEffects(m_clip->type()) ? m_video : nullptr;
}

bool MvMemoryEffectContainer::hasAudioEffect() const
{
    return !m_videoOnly && bool(m_clip->state().effects.audio);
}

bool MvMemoryEffectContainer::addEffect(IMvEffect* effect)
{
    MvMemoryTimeline::Edit edit(m_clip->timeline(), "addEffect", QStringLiteral("add effect"));
    auto* own = dynamic_cast<MvMemoryEffect*>(effect);
    if (!own || !editable(m_clip))
        return false;
    if (own->isAudioEffect()) {
        if (m_videoOnly || !MvMemoryClip::takesAudioEffects(m_clip->type()))
            return false;
        m_clip->change()->effects.audio = MvMemoryEffectRef(own);
        return true;
    }
    if (!MvMemoryClip::takesVideoEffects(m_clip->type()))
        return false;
    m_clip->change()->effects.video.append(MvMemoryEffectRef(own));
    return true;
}

int MvMemoryEffectContainer::count() const
{
    const MvMemoryClipEffects& effects = m_clip->state().effects;
    return m_videoOnly ? effects.video.size() : effects.count();
}

// ---- items

MvMemoryEffectMediaItem::MvMemoryEffectMediaItem(const QString& name, bool audio, qint64 durationMs)
    : MvMemoryMediaItem(name, audio ? MediaType_AudioEffect : MediaType_VideoEffect, durationMs)
{
}

IMvEffect* MvMemoryEffectMediaItem::createEffect()
{
    ++m_created;
    return new MvMemoryEffect(name(), isAudioEffect());
}

bool MvMemoryEffectMediaItem::isAudioEffect() const
{
    return mediaType() == MediaType_AudioEffect;
}

// ---- the clip's effects, user data and what kinds take effects

IMvEffectContainer* MvMemoryClip::effects() const
{
    return takesVideoEffects(state().type) || takesAudioEffects(state().type) ? m_effects : nullptr;
}

bool MvMemoryClip::takesVideoEffects(MvClipType type)
{
    return clipHasPicture(type) && type != ClipType_Effect && type != ClipType_Filter;
}

bool MvMemoryClip::takesAudioEffects(MvClipType type)
{
    return clipHasSound(type);
}

QString MvMemoryClip::userData(int key) const
{
    return state().userData.value(key);
}

// An empty string is no data: the key goes.
void MvMemoryClip::setUserData(int key, const QString& value)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setUserData", QStringLiteral("change user data"));
    if (userData(key) == value || (state().track && state().track->isLocked()))
        return;
    auto data = change();
    if (value.isEmpty())
        data->userData.remove(key);
    else
        data->userData.insert(key, value);
}

// ---- the effect clipboard of the timeline

void MvMemoryEditService::copyEffect(IMvClip* clip)
{
    const MvMemoryClip* own = m_timeline->memoryClip(clip);
    if (own && own->isOnTimeline())
        m_copiedEffects = own->state().effects;
}

bool MvMemoryEditService::canPasteEffect() const
{
    return !m_copiedEffects.isEmpty();
}

bool MvMemoryEditService::needAudioEffectOverride(const QList<IMvClip*>& clips) const
{
    if (!m_copiedEffects.audio)
        return false;
    for (IMvClip* clip : clips) {
        const MvMemoryClip* own = m_timeline->memoryClip(clip);
        if (editable(own) && MvMemoryClip::takesAudioEffects(own->type()) && own->state().effects.audio)
            return true;
    }
    return false;
}

// Pasted video effects go over the clip's own; the pasted audio effect replaces the clip's.
bool MvMemoryEditService::pasteEffect(const QList<IMvClip*>& clips)
{
    MvMemoryTimeline::Edit edit(m_timeline, "pasteEffect", QStringLiteral("paste effect"));
    bool pasted = false;
    for (IMvClip* clip : clips) {
        MvMemoryClip* own = m_timeline->memoryClip(clip);
        if (!editable(own))
            continue;
        MvMemoryClipEffects effects = own->state().effects;
        if (MvMemoryClip::takesVideoEffects(own->type()))
            effects.video += m_copiedEffects.video;
        if (MvMemoryClip::takesAudioEffects(own->type()) && m_copiedEffects.audio)
            effects.audio = m_copiedEffects.audio;
        if (effects != own->state().effects) {
            own->change()->effects = effects;
            pasted = true;
        }
    }
    return pasted;
}

bool MvMemoryEditService::removeEffects(const QList<IMvClip*>& clips)
{
    MvMemoryTimeline::Edit edit(m_timeline, "removeEffects", QStringLiteral("remove effects"));
    bool removed = false;
    for (IMvClip* clip : clips) {
        MvMemoryClip* own = m_timeline->memoryClip(clip);
        if (editable(own) && !own->state().effects.isEmpty()) {
            own->change()->effects = MvMemoryClipEffects();
            removed = true;
        }
    }
    return removed;
}

bool MvMemoryEditService::hasEffect(IMvClip* clip) const
{
    const MvMemoryClip* own = m_timeline->memoryClip(clip);
    return own && own->isOnTimeline() && !own->state().effects.isEmpty();
}

const MvMemoryClipEffects& MvMemoryEditService::copiedEffects() const
{
    return m_copiedEffects;
}
