#include "MvRandomWorld.h"

#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryClipboard.h"
#include "Memory/MvMemoryMarker.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvSampleProject.h"
#include "MvKeyFramePresenter.h"
#include "MvMessage.h"
#include "MvRandomMedia.h"
#include "MvTaskRunner_p.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QVariantList>

#include <limits>

using namespace MVVBLMODEL;

namespace {
// The questions commands ask the host, each answered from the running step's generator. A
// command family whose commands ask the host something new adds one entry here: the id and how
// a host may answer (all the ways a user could, "no answer" included).
struct MvRandomAnswer
{
    int id;
    std::function<QVariant(MvRandomWorld&)> answer;
    std::function<QString(const QVariant&)> text;
};

QList<MvRandomAnswer> randomAnswers()
{
    return {
        { MessageId::GroupQuestionBeforeSplit,
            [](MvRandomWorld& world) -> QVariant {
                if (world.chance(10))
                    return QVariant(); // the host closed its question without an answer
                return QVariantList { world.chance(80), world.chance(50) };
            },
            [](const QVariant& answer) {
                const QVariantList values = answer.toList();
                if (values.isEmpty())
                    return QStringLiteral("group question: no answer");
                return QStringLiteral("group question: %1, %2")
                    .arg(values.value(0).toBool() ? QStringLiteral("proceed") : QStringLiteral("cancel"),
                        values.value(1).toBool() ? QStringLiteral("ungroup") : QStringLiteral("keep groups"));
            } },
        { MessageId::IsPlayerPlaying, [](MvRandomWorld& world) -> QVariant { return world.chance(20); },
            [](const QVariant& answer) {
                return answer.toBool() ? QStringLiteral("player: playing") : QStringLiteral("player: paused");
            } },
    };
}
}

MvRandomWorld::MvRandomWorld(const TimelineFactory& factory)
    : m_media(std::make_unique<MvMemoryMediaLibrary>())
    , m_timeline(factory ? factory() : std::make_unique<MvMemoryTimeline>())
{
    // The clipboard is the application's: a world starts with an empty one, so that a replay sees
    // only its own copies.
    MvMemoryClipboard::application().clear();
    MvSampleProject::build(*m_timeline);
    MvSampleProject::buildMediaLibrary(*m_media, *m_timeline, 0);
    m_presenter = std::make_unique<MvTimelinePresenter>(nullptr, m_timeline.get());
    m_presenter->setScene(&m_scene);
    // The long tasks of adding media run in order on this thread: a step replays the same way.
    m_presenter->findChild<MvTaskRunner*>()->setExecutor(MvTaskRunner::callingThreadExecutor());
    m_presenter->initVirtualPlayheadPresenter();
    m_playheadPresenter = std::make_unique<MvTimelinePlayheadPresenter>(m_presenter.get(), nullptr);
    m_playheadPresenter->setScene(&m_scene);
    m_rulerPresenter = std::make_unique<MvTimelineRulerPresenter>(m_presenter.get(), nullptr);
    m_rulerPresenter->setViewWith(1200);
    answerQuestions();
}

MvRandomWorld::~MvRandomWorld()
{
    MvMemoryClipboard::application().clear();
}

void MvRandomWorld::answerQuestions()
{
    for (const MvRandomAnswer& entry : randomAnswers()) {
        m_scene.answerEach(entry.id, [this, entry]() {
            const QVariant answer = entry.answer(*this);
            note(entry.text(answer));
            return answer;
        });
    }
    mvAnswerMediaQuestions(*this);
}

void MvRandomWorld::beginStep(quint32 seed)
{
    m_random.seed(seed);
    m_notes.clear();
}

QStringList MvRandomWorld::takeNotes()
{
    QStringList notes;
    notes.swap(m_notes);
    return notes;
}

MvKeyFramePresenter& MvRandomWorld::keyFrames() const
{
    return *m_presenter->keyFramePresenter();
}

MvTimelineVirtualPlayheadPresenter& MvRandomWorld::virtualPlayhead() const
{
    return *m_presenter->virtualPlayheadPresenter();
}

qint64 MvRandomWorld::frame()
{
    const qint64 duration = m_timeline->duration();
    const int kind = below(20);
    if (kind < 8) {
        // Mostly a selected clip's, since the commands at the playhead act on the selection.
        if (const IMvClip* picked = focusedClip()) {
            const qint64 inside = picked->start() + qint64(m_random.generate64() % quint64(picked->frameCount()));
            const qint64 edges[] = { picked->start(), picked->start() + 1, picked->end(), picked->end() + 1,
                picked->start() - 1, inside, inside };
            return qMax<qint64>(0, edges[below(7)]);
        }
    }
    if (kind < 10)
        return chance(50) ? 0 : duration;
    if (kind < 12)
        return m_timeline->playhead()->currentFrame();
    if (kind < 14) {
        // Where a marker stands: the commands that edit the marker under the playhead need one.
        if (const IMvMarker* picked = marker())
            return picked->ownerList()->mapToTimeline(picked->frame());
    }
    return duration > 0 ? qint64(m_random.generate64() % (quint64(duration) + 1)) : 0;
}

qint64 MvRandomWorld::frameOffset()
{
    const qint64 sign = chance(50) ? 1 : -1;
    switch (below(10)) {
    case 0:
        return sign;
    case 1:
        // Far beyond any clip: the command must refuse or clamp, never wrap around.
        return chance(50) ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
    case 2:
        // Just past the end (the duration itself when it is the most a duration can be).
        return sign * qMin(m_timeline->duration(), std::numeric_limits<qint64>::max() - 1) + sign;
    default:
        return sign * qint64(1 + m_random.bounded(90));
    }
}

int MvRandomWorld::rowOffset()
{
    if (chance(5))
        return chance(50) ? std::numeric_limits<int>::max() : std::numeric_limits<int>::min() + 1;
    return (chance(50) ? 1 : -1) * (chance(75) ? 1 : 1 + below(4));
}

MvMemoryClip* MvRandomWorld::clip()
{
    const QList<MvMemoryClip*> live = m_timeline->liveClips();
    return live.isEmpty() ? nullptr : live.at(below(live.size()));
}

IMvClip* MvRandomWorld::focusedClip()
{
    const QList<IMvClip*> selected = m_timeline->selection()->selectedClips();
    if (!selected.isEmpty() && chance(75))
        return selected.at(below(selected.size()));
    return clip();
}

QList<IMvClip*> MvRandomWorld::clips()
{
    const QList<MvMemoryClip*> live = m_timeline->liveClips();
    QList<IMvClip*> picked;
    if (live.isEmpty())
        return picked;
    // Neighbours in the dump's order (same row, by start) meet the rules about adjacent clips.
    const int count = chance(50) ? 1 : 2 + below(2);
    const bool neighbours = chance(50);
    const int first = below(live.size());
    for (int i = 0; i < count; ++i) {
        IMvClip* next = live.at(neighbours ? (first + i) % live.size() : below(live.size()));
        if (!picked.contains(next))
            picked.append(next);
    }
    return picked;
}

MvMemoryTransition* MvRandomWorld::transition()
{
    QList<MvMemoryTransition*> live;
    for (const MvMemoryClip* owner : m_timeline->liveClips())
        live += owner->liveTransitions();
    return live.isEmpty() ? nullptr : live.at(below(live.size()));
}

IMvMarker* MvRandomWorld::marker()
{
    QList<IMvMarker*> markers = m_timeline->timelineMarkers()->markers();
    for (const MvMemoryClip* owner : m_timeline->liveClips())
        markers += owner->clipMarkers()->markers();
    return markers.isEmpty() ? nullptr : markers.at(below(markers.size()));
}

QString MvRandomWorld::nameOf(const IMvAbstractClip* item)
{
    if (const auto* clip = dynamic_cast<const MvMemoryClip*>(item))
        return QStringLiteral("c%1").arg(clip->number());
    if (const auto* transition = dynamic_cast<const MvMemoryTransition*>(item))
        return QStringLiteral("t%1").arg(transition->identifier());
    return item ? QStringLiteral("?") : QStringLiteral("-");
}

QString MvRandomWorld::namesOf(const QList<IMvClip*>& clips)
{
    QStringList names;
    for (const IMvClip* clip : clips)
        names.append(nameOf(clip));
    return QLatin1Char('{') + names.join(QLatin1Char(' ')) + QLatin1Char('}');
}

QString MvRandomWorld::selectionText() const
{
    return namesOf(m_timeline->selection()->selectedClips());
}
