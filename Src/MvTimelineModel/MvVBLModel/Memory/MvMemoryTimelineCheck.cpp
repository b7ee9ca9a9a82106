// Consistency check and full-state dump of the in-memory timeline, for tests and the demo log. The
// dump shows every value undo restores of what is on the timeline; a value it left out would let
// every undo test pass without checking it.
#include "IMvTimelineRuler.h"
#include "MvMemoryKeyFrames.h"
#include "MvMemoryPlayhead.h"
#include "MvMemoryResource.h"
#include "MvMemorySelection.h"
#include "MvMemoryTextContainer.h"
#include "MvMemoryTimeline.h"
#include "MvMemoryTimeline_p.h"
#include "MvMemoryUndoService.h"

#include <QSet>

#include <limits>

using MVVBLMODEL::MvRational;

namespace {
QString num(qint64 value)
{
    return QString::number(value);
}

QString colourName(const QColor& colour)
{
    return colour.isValid() ? colour.name(QColor::HexArgb) : QStringLiteral("-");
}

QString keysText(const MvKeyFrameMap& keys)
{
    QStringList parts;
    for (auto it = keys.cbegin(); it != keys.cend(); ++it) {
        QStringList properties;
        for (const MVVBLMODEL::MvEffectPropertyBaseInfo& info : it.value()) {
            properties.append(num(info.group) % QLatin1Char(':') % num(info.propertyId) % QLatin1String(" \"")
                % info.name % QLatin1String("\" flag=") % num(info.flag) % QLatin1String(" index=") % num(info.index));
        }
        parts.append(num(it.key()) % QLatin1Char('{') % properties.join(QLatin1Char(',')) % QLatin1Char('}'));
    }
    return parts.join(QLatin1Char(' '));
}

QString markersText(const MvMemoryMarkerList* list)
{
    QStringList parts;
    const QList<MvMemoryMarker*> markers = list->attachedMarkers();
    for (const MvMemoryMarker* marker : markers) {
        parts.append(num(marker->frame()) % QLatin1Char(' ') % marker->color().name(QColor::HexArgb)
            % QLatin1String(" \"") % marker->name() % QLatin1String("\" \"") % marker->comment() % QLatin1Char('"'));
    }
    return parts.join(QLatin1String("; "));
}

// Timeline markers may outlive the clips under them: a timeline that becomes shorter keeps the
// markers past its new end (only new markers must lie on it). Clip markers stay on their clip.
void checkMarkers(const MvMemoryMarkerList* list, const QString& owner, bool openEnded, QStringList& problems)
{
    MvRange<qint64> range;
    list->frameRange(range);
    if (openEnded)
        range.last = std::numeric_limits<qint64>::max();
    const QList<MvMemoryMarker*> markers = list->attachedMarkers();
    for (int i = 0; i < markers.size(); ++i) {
        const qint64 at = list->mapToTimeline(markers.at(i)->frame());
        if (!range.contains(at))
            problems.append(owner % QLatin1String(": marker at ") % num(at) % QLatin1String(" outside its range"));
        if (i > 0 && markers.at(i - 1)->frame() >= markers.at(i)->frame())
            problems.append(owner % QLatin1String(": markers not ordered or two on one frame"));
    }
}
}

QString MvMemoryTimelinePrivate::clipId(const MvMemoryClip* clip) const
{
    if (!clip)
        return QStringLiteral("-");
    return QLatin1Char('c') % num(clip->number());
}

void MvMemoryTimelinePrivate::checkTracks(QStringList& problems) const
{
    bool audioSeen = false;
    for (int row = 0; row < rows().size(); ++row) {
        const MvMemoryTrack* track = rows().at(row);
        const QString name = QLatin1String("track ") % num(row);
        if (track->index() != row)
            problems.append(name % QLatin1String(": index() disagrees"));
        if (track->type() == MVVBLMODEL::TrackType_Audio)
            audioSeen = true;
        else if (audioSeen)
            problems.append(name % QLatin1String(": picture row below an audio row"));
        const QList<MvMemoryClip*> clips = track->memoryClips();
        for (int i = 0; i < clips.size(); ++i) {
            const MvMemoryClip* clip = clips.at(i);
            const QString what = name % QLatin1Char(' ') % clipId(clip);
            if (clip->trackImpl() != track || clip->trackIndex() != row)
                problems.append(what % QLatin1String(": back reference disagrees"));
            if (clip->start() < 0 || clip->end() < clip->start())
                problems.append(what % QLatin1String(": invalid range"));
            if (!track->accepts(clip->type()))
                problems.append(what % QLatin1String(": type not allowed on this row"));
            if (i > 0 && clips.at(i - 1)->end() >= clip->start())
                problems.append(what % QLatin1String(": overlaps or out of order"));
        }
    }
}

void MvMemoryTimelinePrivate::checkClips(QStringList& problems) const
{
    for (const MvMemoryClip* clip : allClips) {
        if (clip->isOnTimeline() && !clip->trackImpl()->holds(clip))
            problems.append(clipId(clip) % QLatin1String(": not in its track's list"));
        if (clip->isOnTimeline() && clip->trackImpl()->index() < 0)
            problems.append(clipId(clip) % QLatin1String(": on a track that is not on the timeline"));
        if (!clip->isOnTimeline())
            continue;
        const qint64 last = clip->frameCount() - 1;
        for (const MvKeyFrameMap* keys : { &clip->state().videoKeys, &clip->state().audioKeys }) {
            if (!keys->isEmpty() && (keys->firstKey() < 0 || keys->lastKey() > last))
                problems.append(clipId(clip) % QLatin1String(": keyframe off the clip"));
        }
        const QMap<int, qint64>& freezeFrames = clip->state().freezeFrames;
        for (auto it = freezeFrames.cbegin(); it != freezeFrames.cend(); ++it) {
            if (it.value() < 0 || it.value() > last)
                problems.append(clipId(clip) % QLatin1String(": freeze frame off the clip"));
        }
        if (!MvMemoryClip::hasPicture(clip->type()) && !freezeFrames.isEmpty())
            problems.append(clipId(clip) % QLatin1String(": freeze frame on a clip without picture"));
        if (clip->state().remixed && !MVVBLMODEL::isAudioClipType(clip->type()))
            problems.append(clipId(clip) % QLatin1String(": remix on a clip of no audio kind"));
        checkMarkers(clip->markerList(), clipId(clip), false, problems);
    }
}

void MvMemoryTimelinePrivate::checkGroupsAndTransitions(QStringList& problems) const
{
    QSet<const MvMemoryClip*> grouped;
    const QList<MvMemoryGroup> live = groups->liveGroups();
    for (const MvMemoryGroup& group : live) {
        if (group.members.size() < 2)
            problems.append(QStringLiteral("a group with fewer than two members"));
        for (const MvMemoryClip* member : group.members) {
            if (!member->isOnTimeline())
                problems.append(clipId(member) % QLatin1String(": grouped but not on the timeline"));
            if (grouped.contains(member))
                problems.append(clipId(member) % QLatin1String(": in two groups"));
            else if (!groups->groupOf(member) || groups->groupOf(member)->state().members != group.members)
                problems.append(clipId(member) % QLatin1String(": its group lookup disagrees"));
            grouped.insert(member);
        }
    }
    for (const MvMemoryTransition* transition : allTransitions) {
        const QString name = QLatin1String("transition ") % num(transition->identifier());
        const bool listed = transition->owner()
            && transition->owner()->liveTransitions().contains(const_cast<MvMemoryTransition*>(transition));
        if (listed != (transition->state().attached && transition->owner()))
            problems.append(name % QLatin1String(": its owner's list disagrees"));
        if (!transition->isLive())
            continue;
        if (transition->length() < 1 || transition->length() > transition->owner()->frameCount())
            problems.append(name % QLatin1String(": longer than its clip"));
    }
}

void MvMemoryTimelinePrivate::checkItems(QStringList& problems) const
{
    Q_Q(const MvMemoryTimeline);
    const QList<IMvAbstractClip*> items = selection->selectedItems();
    QSet<const IMvAbstractClip*> seen;
    for (const IMvAbstractClip* item : items) {
        if (!q->isLive(item))
            problems.append(QStringLiteral("selection holds an item that is not on the timeline"));
        if (seen.contains(item))
            problems.append(QStringLiteral("selection holds an item twice"));
        seen.insert(item);
    }
    checkMarkers(timelineMarkers, QStringLiteral("timeline"), true, problems);
    const qint64 length = q->duration();
    if (playhead->currentFrame() < 0 || playhead->currentFrame() > length)
        problems.append(QStringLiteral("playhead outside the timeline"));
    if (ruler) {
        if (ruler->totalFrames() != length)
            problems.append(QStringLiteral("ruler length differs from the duration"));
        if (ruler->visibleStartFrame() < 0 || ruler->visibleStartFrame() > qMax<qint64>(length, 0))
            problems.append(QStringLiteral("visible range outside the timeline"));
        int numerator = 0;
        int denominator = 0;
        ruler->frameRate(&numerator, &denominator);
        if (MvRational { numerator, denominator } != q->frameRate())
            problems.append(QStringLiteral("ruler frame rate differs from the project's"));
    }
    if (activeClip && !activeClip->isOnTimeline())
        problems.append(QStringLiteral("the active clip is not on the timeline"));
    if (undo->isStepOpen())
        problems.append(QStringLiteral("an undo step is left open"));
    problems.append(recorder->problems());
}

QString MvMemoryTimeline::checkInvariants() const
{
    Q_D(const MvMemoryTimeline);
    Reading reading(this);
    QStringList problems;
    d->checkTracks(problems);
    d->checkClips(problems);
    d->checkGroupsAndTransitions(problems);
    d->checkTransitionsAndEffects(problems);
    d->checkItems(problems);
    d->checkChildren(problems);
    return problems.join(QLatin1Char('\n'));
}

QString MvMemoryTimelinePrivate::clipText(const MvMemoryClip* clip) const
{
    Q_Q(const MvMemoryTimeline);
    const MvMemoryClip::State& state = clip->state();
    QString text = QLatin1String("  ") % clipId(clip) % QLatin1String(" type=") % num(state.type) % QLatin1String(" \"")
        % state.name % QLatin1String("\" ") % num(state.start) % QLatin1String("..") % num(state.end)
        % QLatin1String(" track=") % num(clip->trackIndex()) % QLatin1String(" group=") % num(q->groupKindOf(clip))
        % QLatin1String(" rot=") % num(state.rotation) % QLatin1String(" enabled=") % num(state.enabled)
        % QLatin1String(" follower=") % clipId(state.follower) % QLatin1String(" tracking=") % num(state.tracking)
        % QLatin1String(" smart keying=") % num(state.smartKeying) % QLatin1String(" nodes=")
        % num(state.smartKeyingNodes) % QLatin1String(" muted=") % num(state.muted) % QLatin1String(" remix=")
        % num(state.remixed);
    text += QLatin1String("\n    markers: ") % markersText(clip->markerList());
    text += QLatin1String("\n    video keys: ") % keysText(state.videoKeys);
    text += QLatin1String("\n    audio keys: ") % keysText(state.audioKeys);
    QStringList freeze;
    for (auto it = state.freezeFrames.cbegin(); it != state.freezeFrames.cend(); ++it)
        freeze.append(num(it.key()) % QLatin1Char('@') % num(it.value()));
    text += QLatin1String("\n    freeze frames: ") % freeze.join(QLatin1Char(' '));
    if (state.content)
        text += QLatin1String("\n    compound of project ") % num(state.content->projectId()) % QLatin1String(" \"")
            % state.content->name() % QLatin1Char('"');
    if (state.textColor.isValid() || state.backgroundColor.isValid())
        text += QLatin1String("\n    colours: text ") % colourName(state.textColor) % QLatin1String(" background ")
            % colourName(state.backgroundColor);
    if (state.resource.isLibraryResource())
        text += QLatin1String("\n    ") % MvMemoryResources::text(state.resource);
    if (!state.children.isEmpty())
        text += QLatin1String("\n    layers: ") % MvMemoryTextContainer::text(clip);
    const QList<MvMemoryTransition*> transitions = clip->liveTransitions();
    for (const MvMemoryTransition* transition : transitions) {
        text += QLatin1String("\n    transition ") % num(transition->identifier()) % QLatin1String(" at ")
            % num(transition->placement()) % QLatin1Char(' ') % num(transition->start()) % QLatin1String("..")
            % num(transition->end()) % QLatin1String(" \"") % transition->name() % QLatin1Char('"')
            % (transition->isAudio() ? QLatin1String(" audio") : QLatin1String());
        if (transition->state().resource.isLibraryResource())
            text += QLatin1Char(' ') % MvMemoryResources::text(transition->state().resource);
    }
    text += transitionsAndEffectsText(clip);
    return text;
}

QString MvMemoryTimeline::stateText() const
{
    Q_D(const MvMemoryTimeline);
    Reading reading(this);
    QStringList lines;
    lines.append(
        QLatin1String("duration ") % num(duration()) % QLatin1String(" playhead ") % num(d->playhead->currentFrame()));
    const MvRational rate = frameRate();
    lines.append(QLatin1String("frame rate ") % num(rate.numerator) % QLatin1Char('/') % num(rate.denominator));
    for (int row = 0; row < d->rows().size(); ++row) {
        const MvMemoryTrack* track = d->rows().at(row);
        lines.append(QLatin1String("track ") % num(row) % QLatin1String(" type=") % num(track->type())
            % QLatin1String(" locked=") % num(track->isLocked()) % QLatin1String(" visible=")
            % num(track->state().visible) % QLatin1String(" muted=") % num(track->state().muted)
            % QLatin1String(" silent while hidden=") % num(track->state().silentWhileHidden));
        const QList<MvMemoryClip*> clips = track->memoryClips();
        for (const MvMemoryClip* clip : clips)
            lines.append(d->clipText(clip));
    }
    const QList<MvMemoryGroup> groups = d->groups->liveGroups();
    for (const MvMemoryGroup& group : groups) {
        QStringList members;
        for (const MvMemoryClip* member : group.members)
            members.append(d->clipId(member));
        lines.append(
            QLatin1String("group kind=") % num(group.kind) % QLatin1String(": ") % members.join(QLatin1Char(' ')));
    }
    lines.append(QLatin1String("timeline markers: ") % markersText(d->timelineMarkers));
    QStringList selected;
    const QList<IMvAbstractClip*> items = d->selection->selectedItems();
    for (const IMvAbstractClip* item : items) {
        if (const auto* clip = dynamic_cast<const MvMemoryClip*>(item))
            selected.append(d->clipId(clip));
        else if (const auto* transition = dynamic_cast<const MvMemoryTransition*>(item))
            selected.append(QLatin1Char('t') % num(transition->identifier()));
    }
    lines.append(QLatin1String("selection: ") % selected.join(QLatin1Char(' ')) % QLatin1String(" timeline=")
        % num(d->selection->isTimelineSelected()) % QLatin1String(" active=")
        % (d->activeClip ? d->clipId(d->activeClip) % QLatin1Char('@') % num(d->activeIndex) : QStringLiteral("-")));
    const IMvMarker* marker = d->markerModel->selectedMarker();
    lines.append(QLatin1String("selected marker: ") % (marker ? num(marker->frame()) : QStringLiteral("-")));
    return lines.join(QLatin1Char('\n'));
}
