// Transitions made from media items: the items, the transitions they make before a clip takes
// them, the clip ends that take them, the media handles of clips, and the checks and dump lines of
// transitions and effects.
#include "MvMemoryTransitionItems.h"

#include "MvMemoryClip.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"
#include "MvMemoryTrack.h"

#include <QDir>
#include <QPainter>

#include <limits>

using namespace MVVBLMODEL;

namespace {
// The rate a transition counts its own length in until it is given the project's.
const MvRational kDefaultRate { 30, 1 };

qint64 framesOf(qint64 ms, const MvRational& rate)
{
    return qMax<qint64>(1, ms * rate.numerator / (rate.denominator * 1000));
}

bool fitsKind(const MvMemoryTransition* transition, MvClipType clipType)
{
    return transition->isAudio() ? clipHasSound(clipType) : clipHasPicture(clipType);
}
}

// ---- items

MvMemoryTransitionMediaItem::MvMemoryTransitionMediaItem(const QString& name, Look look, qint64 durationMs)
    : MvMemoryMediaItem(name, MediaType_Transition, durationMs)
    , m_look(look)
{
}

bool MvMemoryTransitionMediaItem::isAudioTransition() const
{
    return m_look == Crossfade;
}

IMvTransition* MvMemoryTransitionMediaItem::createTransition()
{
    MvMemoryTransition::State state;
    state.length = framesOf(durationMs(), kDefaultRate);
    state.name = name();
    state.attached = false;
    state.audio = isAudioTransition();
    return new MvMemoryTransition(state, durationMs(), m_pictures);
}

bool MvMemoryTransitionMediaItem::load(const MvTransitionLoadParam& param)
{
    ++m_loads;
    if (param.pictureCount < 1)
        return false;
    const int scaleDown = qMax(1, param.scaleDown);
    const QSize size(thumbnailSize().width() / scaleDown, thumbnailSize().height() / scaleDown);
    const int first = param.progress < 0 ? 50 : qMin(param.progress, 100);
    QImage strip(size.width() * param.pictureCount, size.height(), QImage::Format_ARGB32_Premultiplied);
    strip.fill(Qt::transparent);
    {
        QPainter painter(&strip);
        for (int i = 0; i < param.pictureCount; ++i) {
            const int progress = first + (100 - first) * i / param.pictureCount;
            painter.drawImage(size.width() * i, 0, picture(m_look, progress, param.variant == 1, size));
        }
    }
    m_pictures = strip;
    if (param.cacheFolder.isEmpty())
        return true;
    return strip.save(QDir(param.cacheFolder).filePath(name() + QLatin1String(".png")), "PNG");
}

QSize MvMemoryTransitionMediaItem::thumbnailSize()
{
    return QSize(96, 54);
}

// The clip before is blue, the clip after amber; a crossfade draws their volumes.
QImage MvMemoryTransitionMediaItem::picture(Look look, int progress, bool backwards, const QSize& size)
{
    const QColor before(0x2f, 0x5d, 0xa8);
    const QColor after(0xe0, 0x9a, 0x2c);
    const qreal p = qBound(0, progress, 100) / 100.0;
    const int w = size.width();
    const int h = size.height();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(before);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    switch (look) {
    case Dissolve:
        painter.setOpacity(p);
        painter.fillRect(image.rect(), after);
        break;
    case Wipe:
        painter.fillRect(QRectF(0, 0, w * p, h), after);
        painter.setPen(QPen(Qt::white, 1));
        painter.drawLine(QPointF(w * p, 0), QPointF(w * p, h));
        break;
    case Slide:
        painter.fillRect(QRectF(w * (1 - p), 0, w, h), after);
        break;
    case Crossfade:
        image.fill(QColor(0x22, 0x2a, 0x33));
        painter.setPen(QPen(before.lighter(140), 2));
        painter.drawLine(QPointF(0, h * 0.2), QPointF(w, h * 0.8));
        painter.setPen(QPen(after, 2));
        painter.drawLine(QPointF(0, h * 0.8), QPointF(w, h * 0.2));
        painter.setPen(QPen(Qt::white, 1));
        painter.drawLine(QPointF(w * p, 0), QPointF(w * p, h));
        break;
    }
    painter.end();
    return backwards ? image.mirrored(true, false) : image;
}

// ---- transitions made from items

MvMemoryTransition::MvMemoryTransition(const State& state, qint64 ownLengthMs, const QImage& thumbnail)
    : MvMemoryValued<State>(nullptr, state)
    , m_identifier(0)
    , m_thumbnail(thumbnail)
    , m_frameRate(kDefaultRate)
    , m_ownLengthMs(ownLengthMs)
    , m_resourceInfo(new MvMemoryResourceInfo(&this->state().resource))
{
}

QImage MvMemoryTransition::thumbnail() const
{
    return m_thumbnail;
}

// Once on a timeline, or once its end was set, the length is in frames and stays so.
void MvMemoryTransition::setFrameRate(const MvRational& rate)
{
    if (rate.numerator <= 0 || rate.denominator <= 0)
        return;
    m_frameRate = rate;
    if (m_timeline || m_ownLengthMs <= 0)
        return;
    change()->length = framesOf(m_ownLengthMs, rate);
}

void MvMemoryTransition::setEnd(qint64 frame, bool exclusive)
{
    const qint64 length = frame - start() + (exclusive ? 0 : 1);
    if (!m_timeline) {
        if (length < 1)
            return;
        m_ownLengthMs = 0;
        change()->length = length;
        return;
    }
    MvMemoryTimeline::Edit edit(m_timeline, "setTransitionEnd", QStringLiteral("transition length"));
    const MvMemoryClip* owner = state().owner;
    if (length < 1 || !isLive() || owner->trackImpl()->isLocked() || length > owner->frameCount())
        return;
    change()->length = length;
}

void MvMemoryTransition::release()
{
    if (!m_references.deref() && !m_timeline)
        delete this;
}

void MvMemoryTransition::retain()
{
    m_references.ref();
}

void MvMemoryTransition::joinTimeline(MvMemoryTimeline* timeline)
{
    if (m_timeline || !timeline)
        return;
    m_timeline = timeline;
    m_identifier = timeline->nextTransitionIdentifier();
    m_ownLengthMs = 0;
    joinRecorder(timeline->undoRecorder());
    timeline->adoptTransition(this);
}

void MvMemoryTimeline::adoptTransition(MvMemoryTransition* transition)
{
    Q_D(MvMemoryTimeline);
    if (transition && transition->timeline() == this && !d->allTransitions.contains(transition))
        d->allTransitions.append(transition);
}

// A transition goes on a clip once, whole: a clip end takes it only when the clip shows (or plays)
// what it blends and is at least as long as the transition; the one at that end makes room.
bool MvMemoryTransitionList::setTransition(IMvTransition* transition, MvTransitionType type)
{
    MvMemoryTimeline* timeline = m_clip->timeline();
    MvMemoryTimeline::Edit edit(timeline, "setTransition", QStringLiteral("add transition"));
    auto* own = dynamic_cast<MvMemoryTransition*>(transition);
    if (!own || own->timeline() || (type != TransitionType_Start && type != TransitionType_End))
        return false;
    if (!m_clip->isOnTimeline() || m_clip->trackImpl()->isLocked() || !fitsKind(own, m_clip->type())
        || own->length() > m_clip->frameCount())
        return false;
    const QList<MvMemoryTransition*> present = m_clip->liveTransitions();
    for (MvMemoryTransition* other : present) {
        if (other->placement() == type)
            other->change()->attached = false;
    }
    own->joinTimeline(timeline);
    auto value = own->change();
    value->owner = m_clip;
    value->placement = quint16(type);
    value->attached = true;
    return true;
}

// ---- clips

IMvClipTransitions* MvMemoryClip::transitions() const
{
    return m_transitions;
}

IMvUndoRedoService* MvMemoryClip::undoRedoService() const
{
    return m_timeline->undoRedoService();
}

bool MvMemoryClip::hasSourceLength(MvClipType type)
{
    switch (type) {
    case ClipType_Video:
    case ClipType_VideoWithAudio:
    case ClipType_Audio:
    case ClipType_Music:
    case ClipType_SoundEffect:
    case ClipType_ScreenRecording:
    case ClipType_Compound:
        return true;
    default:
        return false;
    }
}

qint64 MvMemoryClip::handleBefore() const
{
    return hasSourceLength(state().type) ? state().handleBefore : std::numeric_limits<qint64>::max();
}

qint64 MvMemoryClip::handleAfter() const
{
    return hasSourceLength(state().type) ? state().handleAfter : std::numeric_limits<qint64>::max();
}

void MvMemoryClip::setHandles(qint64 before, qint64 after)
{
    MvMemoryTimeline::Edit edit(m_timeline, "setHandles", QStringLiteral("set media handles"));
    auto value = change();
    value->handleBefore = qMax<qint64>(0, before);
    value->handleAfter = qMax<qint64>(0, after);
}

// ---- checks and dump

void MvMemoryTimelinePrivate::checkTransitionsAndEffects(QStringList& problems) const
{
    Q_Q(const MvMemoryTimeline);
    for (const MvMemoryTransition* transition : allTransitions) {
        const QString name = QLatin1String("transition ") + QString::number(transition->identifier());
        if (transition->timeline() != q)
            problems.append(name + QLatin1String(": kept by another timeline"));
        if (transition->isLive() && !fitsKind(transition, transition->owner()->type()))
            problems.append(name + QLatin1String(": blends what its clip does not have"));
    }
    for (const MvMemoryClip* clip : allClips) {
        if (!clip->isOnTimeline())
            continue;
        const MvMemoryClip::State& state = clip->state();
        const QString name = clipId(clip);
        if (!state.effects.video.isEmpty() && !MvMemoryClip::takesVideoEffects(state.type))
            problems.append(name + QLatin1String(": video effects on a clip that takes none"));
        if (state.effects.audio && !MvMemoryClip::takesAudioEffects(state.type))
            problems.append(name + QLatin1String(": an audio effect on a clip without sound"));
        for (const MvMemoryEffectRef& effect : state.effects.video) {
            if (effect->isAudioEffect())
                problems.append(name + QLatin1String(": an audio effect among the video effects"));
        }
        if (state.effects.audio && !state.effects.audio->isAudioEffect())
            problems.append(name + QLatin1String(": a video effect as the audio effect"));
        if (state.handleBefore < 0 || state.handleAfter < 0)
            problems.append(name + QLatin1String(": negative media handles"));
    }
}

QString MvMemoryTimelinePrivate::transitionsAndEffectsText(const MvMemoryClip* clip) const
{
    const MvMemoryClip::State& state = clip->state();
    QString text;
    if (!state.effects.isEmpty())
        text += QLatin1String("\n    effects: ") + state.effects.text();
    if (!state.userData.isEmpty()) {
        QStringList entries;
        for (auto it = state.userData.cbegin(); it != state.userData.cend(); ++it)
            entries.append(QString::number(it.key()) + QLatin1String("=\"") + it.value() + QLatin1Char('"'));
        text += QLatin1String("\n    user data: ") + entries.join(QLatin1Char(' '));
    }
    if (state.handleBefore != 0 || state.handleAfter != 0)
        text += QLatin1String("\n    handles: ") + QString::number(state.handleBefore) + QLatin1String(" before, ")
            + QString::number(state.handleAfter) + QLatin1String(" after");
    return text;
}
