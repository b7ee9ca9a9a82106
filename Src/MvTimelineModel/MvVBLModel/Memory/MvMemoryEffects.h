#pragma once

#include "MvMemoryGlobal.h"

#include "IMvEffect.h"
#include "MvMemoryMediaItem.h"

#include <QAtomicInt>
#include <QList>

class MvMemoryClip;

// An effect of the in-memory model. Once made it does not change, so clips, their copies and the
// undo record share one effect through counted references (MvMemoryEffectRef); it goes with the
// last reference.
class MVMEMORY_EXPORT MvMemoryEffect : public IMvEffect
{
public:
    MvMemoryEffect(const QString& name, bool audio);

    QString name() const override;
    bool isAudioEffect() const override;
    void release() override;
    void retain();
    // Tells effects of one name apart in the model dump: the order in which effects were made.
    quint64 serial() const { return m_serial; }

protected:
    ~MvMemoryEffect() override;

private:
    Q_DISABLE_COPY(MvMemoryEffect)
    QString m_name;
    bool m_audio;
    quint64 m_serial;
    QAtomicInt m_references;
};

// A counted reference to an effect, as a value keeps it.
class MVMEMORY_EXPORT MvMemoryEffectRef
{
public:
    MvMemoryEffectRef() = default;
    // Takes a reference of its own.
    explicit MvMemoryEffectRef(MvMemoryEffect* effect);
    MvMemoryEffectRef(const MvMemoryEffectRef& other);
    MvMemoryEffectRef& operator=(const MvMemoryEffectRef& other);
    ~MvMemoryEffectRef();

    MvMemoryEffect* get() const { return m_effect; }
    MvMemoryEffect* operator->() const { return m_effect; }
    explicit operator bool() const { return m_effect != nullptr; }
    bool operator==(const MvMemoryEffectRef& other) const { return m_effect == other.m_effect; }
    bool operator!=(const MvMemoryEffectRef& other) const { return m_effect != other.m_effect; }

private:
    MvMemoryEffect* m_effect = nullptr;
};

// The effects a clip carries, part of its value: copied with the clip, restored by undo.
struct MVMEMORY_EXPORT MvMemoryClipEffects
{
    QList<MvMemoryEffectRef> video; // shown one over the other, the first applied first
    MvMemoryEffectRef audio; // a clip plays through one audio effect at most

    bool isEmpty() const { return video.isEmpty() && !audio; }
    int count() const { return video.size() + (audio ? 1 : 0); }
    bool operator==(const MvMemoryClipEffects& other) const { return video == other.video && audio == other.audio; }
    bool operator!=(const MvMemoryClipEffects& other) const { return !(*this == other); }
    // "video "Blur"#2, "Sepia"#5; audio "Echo"#3" as the model dump shows it.
    QString text() const;
};

// The effects of one clip as the contract shows them; each change is an undoable edit of the clip.
// A clip with a picture has its video effects apart as well (videoEffects()), which take video
// effects only.
class MVMEMORY_EXPORT MvMemoryEffectContainer : public IMvEffectContainer
{
public:
    MvMemoryEffectContainer(MvMemoryClip* clip, bool videoOnly);
    ~MvMemoryEffectContainer() override;

    IMvEffectContainer* videoEffects() const override;
    bool hasAudioEffect() const override;
    bool addEffect(IMvEffect* effect) override;
    int count() const override;

private:
    Q_DISABLE_COPY(MvMemoryEffectContainer)
    MvMemoryClip* m_clip;
    bool m_videoOnly;
    MvMemoryEffectContainer* m_video = nullptr;
};

// A library item that makes effects (media type 10 for video effects, 11 for audio effects). Its
// length is what an effect lasts when it is laid on a row of its own.
class MVMEMORY_EXPORT MvMemoryEffectMediaItem : public MvMemoryMediaItem, public IMvEffectMediaItem
{
public:
    MvMemoryEffectMediaItem(const QString& name, bool audio, qint64 durationMs);

    IMvEffect* createEffect() override;
    bool isAudioEffect() const;
    int createdCount() const { return m_created; }

private:
    int m_created = 0;
};
