#include "MvRandomCommands.h"

#include "IMvClipItems.h"
#include "IMvKeyFrameSelector.h"
#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "MvKeyFramePresenter.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvMarkerPresenter.h"
#include "MvRandomMedia.h"
#include "MvRandomWorld.h"
#include "MvTextEdit.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <memory>

using namespace MVVBLMODEL;

namespace {
QString result(bool value)
{
    return value ? QStringLiteral(" -> true") : QStringLiteral(" -> false");
}

QString flag(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

// "name(arguments) on {selection}".
QString call(MvRandomWorld& world, const char* name, const QString& arguments = QString())
{
    return QLatin1String(name) + QLatin1Char('(') + arguments + QLatin1String(") on ") + world.selectionText();
}

QString frameText(qint64 frame)
{
    return QString::number(frame);
}

// The marker dialog is modal: the user's answer is given from inside its event loop.
QString editMarker(MvRandomWorld& world)
{
    // Closed, OK or DELETE; an OK mostly with a new name, colour or comment.
    const int choice = world.chance(20) ? 0 : (world.chance(70) ? 1 : 2);
    const int colorIndex = world.below(MvMarkerPresenter::markerPalette().size());
    const QString name = world.chance(70) ? QStringLiteral("name %1").arg(world.below(3)) : QString();
    const QString comment = world.chance(50) ? QStringLiteral("comment %1").arg(world.below(3)) : QString();
    auto answered = std::make_shared<QString>(QStringLiteral("no dialog"));
    QTimer::singleShot(0, [answered, choice, colorIndex, name, comment]() {
        auto* dialog = qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        if (choice == 0) {
            *answered = QStringLiteral("dialog closed");
            dialog->reject();
        } else if (choice == 1) {
            *answered = QStringLiteral("dialog OK with colour %1, name \"%2\", comment \"%3\"")
                            .arg(colorIndex)
                            .arg(name, comment);
            dialog->panel()->colorRow()->setSelectedIndex(colorIndex);
            dialog->panel()->nameEdit()->setPlainText(name);
            dialog->panel()->commentEdit()->setPlainText(comment);
            dialog->okButton()->click();
        } else {
            *answered = QStringLiteral("dialog DELETE");
            dialog->deleteButton()->click();
        }
    });
    const QString what
        = call(world, "editMarker") + QStringLiteral(" at ") + frameText(world.timeline().playhead()->currentFrame());
    world.presenter().editMarker();
    QCoreApplication::processEvents(); // the answer runs even when no dialog opened
    return what + QStringLiteral(", ") + *answered;
}

// A clip on the timeline that `has` holds for, preferably; any clip when none does.
template <typename Has> MvMemoryClip* clipWith(MvRandomWorld& world, Has has)
{
    QList<MvMemoryClip*> matching;
    for (MvMemoryClip* clip : world.timeline().liveClips()) {
        if (has(clip))
            matching.append(clip);
    }
    return matching.isEmpty() || world.chance(15) ? world.clip() : matching.at(world.below(matching.size()));
}

// A click on an item inside a clip selects the clip too, mostly.
void selectOwner(MvRandomWorld& world, MvMemoryClip* clip)
{
    if (world.chance(80))
        world.timeline().selection()->select({ clip });
}

QString selectKeyFrames(MvRandomWorld& world)
{
    const bool audio = world.chance(40);
    MvMemoryClip* clip = clipWith(world, [audio](const MvMemoryClip* c) { return !c->keyFrames(audio).isEmpty(); });
    if (!clip)
        return QStringLiteral("select keyframes: no clip");
    selectOwner(world, clip);
    IMvKeyFrameSelector::MvSelectData selection;
    selection.clip = clip;
    selection.side = audio ? IMvKeyFrameSelector::AudioSide : IMvKeyFrameSelector::VideoSide;
    for (qint64 frame : clip->keyFrames(audio)) {
        if (world.chance(60))
            selection.frames.append(frame);
    }
    if (world.chance(10))
        selection.frames.append(world.frame() - clip->start()); // a frame without a keyframe
    world.timeline().keyFrameSelector()->select(selection);
    QStringList frames;
    for (qint64 frame : qAsConst(selection.frames))
        frames.append(QString::number(frame));
    return QStringLiteral("select %1 keyframes of %2 at {%3}, selection %4")
        .arg(audio ? QStringLiteral("audio") : QStringLiteral("video"), MvRandomWorld::nameOf(clip),
            frames.join(QLatin1Char(' ')), world.selectionText());
}

QString selectFreezeFrame(MvRandomWorld& world)
{
    MvMemoryClip* clip = clipWith(
        world, [](const MvMemoryClip* c) { return c->freezeFrames() && !c->freezeFrames()->ids().isEmpty(); });
    if (!clip)
        return QStringLiteral("select freeze frame: no clip");
    selectOwner(world, clip);
    const QList<int> ids = clip->freezeFrames() ? clip->freezeFrames()->ids() : QList<int>();
    const int id = ids.isEmpty() || world.chance(20) ? world.below(4) : ids.at(world.below(ids.size()));
    world.timeline().subItemSelection()->select(id);
    return QStringLiteral("select freeze frame %1 of %2, selection %3")
        .arg(id)
        .arg(MvRandomWorld::nameOf(clip), world.selectionText());
}

QString selectSmartKeyingNode(MvRandomWorld& world)
{
    MvMemoryClip* clip = clipWith(world, [](const MvMemoryClip* c) { return c->smartKeyingNodes() != nullptr; });
    IMvSmartKeyingNodes* nodes = clip ? clip->smartKeyingNodes() : nullptr;
    if (!nodes)
        return QStringLiteral("select smart-keying node: no clip has nodes");
    selectOwner(world, clip);
    const quint64 index
        = world.chance(20) ? IMvSmartKeyingNodes::NoSelection : quint64(world.below(nodes->count() + 1));
    nodes->setSelectedIndex(index);
    return QStringLiteral("select smart-keying node %1 of %2, selection %3")
        .arg(index == IMvSmartKeyingNodes::NoSelection ? QStringLiteral("none") : QString::number(index),
            MvRandomWorld::nameOf(clip), world.selectionText());
}

QString splitGivenClips(MvRandomWorld& world)
{
    const QList<IMvClip*> clips = world.chance(70) ? world.timeline().selection()->selectedClips() : world.clips();
    const qint64 frame = world.frame();
    const bool select = world.chance(50);
    const bool prepare = world.chance(50);
    const bool done = world.presenter().splitClips(frame, clips, select, prepare);
    return QStringLiteral("splitClips(%1, %2, select %3, prepare %4)")
               .arg(frame)
               .arg(MvRandomWorld::namesOf(clips), flag(select), flag(prepare))
        + result(done);
}

QString groupAfterSplit(MvRandomWorld& world)
{
    const QList<IMvClip*> sources = world.clips();
    const QList<IMvClip*> pieces = world.clips();
    const bool done = world.presenter().groupAfterSplit(sources, pieces);
    return QStringLiteral("groupAfterSplit(%1, %2)")
               .arg(MvRandomWorld::namesOf(sources), MvRandomWorld::namesOf(pieces))
        + result(done);
}

QString ungroupBeforeSplit(MvRandomWorld& world)
{
    const QList<IMvClip*> clips = world.clips();
    bool needGroupAfter = false;
    const bool done = world.presenter().ungroupBeforeSplit(clips, needGroupAfter);
    return QStringLiteral("ungroupBeforeSplit(%1)").arg(MvRandomWorld::namesOf(clips)) + result(done)
        + QStringLiteral(", group after: ") + flag(needGroupAfter);
}

QString lockTrack(MvRandomWorld& world)
{
    const int row = world.below(world.timeline().trackCount());
    IMvTrack* track = world.timeline().trackAt(row);
    if (!track)
        return QStringLiteral("lock track: no track");
    // Mostly unlocking, so that the timeline does not end up locked for the rest of the round.
    const bool lock = world.chance(35);
    track->setLocked(lock);
    return QStringLiteral("%1 track %2").arg(lock ? QStringLiteral("lock") : QStringLiteral("unlock")).arg(row);
}

using W = MvRandomWorld;

// A command on the selection that answers true or false: "name() on {selection} -> result".
MvRandomCommand onSelection(const char* name, int weight, bool (*run)(W&))
{
    return { QLatin1String(name), weight, [name, run](W& w) -> QString {
                const QString what = call(w, name);
                return what + result(run(w));
            } };
}

// The same for a command without a result.
MvRandomCommand onSelectionVoid(const char* name, int weight, void (*run)(W&))
{
    return { QLatin1String(name), weight, [name, run](W& w) -> QString {
                const QString what = call(w, name);
                run(w);
                return what;
            } };
}

// The user's focus: selections and the playhead (view state, no undo).
QVector<MvRandomCommand> focusCommands()
{
    return {
        { QStringLiteral("select clips"), 14,
            [](W& w) -> QString {
                const QList<IMvClip*> clips = w.clips();
                w.timeline().selection()->select(clips);
                return QStringLiteral("select ") + W::namesOf(clips);
            } },
        { QStringLiteral("select nothing"), 2,
            [](W& w) -> QString {
                w.timeline().selection()->clear();
                return QStringLiteral("select nothing");
            } },
        { QStringLiteral("select transition"), 2,
            [](W& w) -> QString {
                MvMemoryTransition* transition = w.transition();
                w.timeline().selection()->selectItems({ transition });
                return QStringLiteral("select transition ") + W::nameOf(transition);
            } },
        { QStringLiteral("select timeline"), 2,
            [](W& w) -> QString {
                const bool selected = w.chance(50);
                w.timeline().selection()->setTimelineSelected(selected);
                return QStringLiteral("timeline selected: ") + flag(selected);
            } },
        { QStringLiteral("select marker"), 4,
            [](W& w) -> QString {
                IMvMarker* marker = w.chance(85) ? w.marker() : nullptr;
                w.timeline().markerModel()->setSelectedMarker(marker);
                return marker ? QStringLiteral("select the marker at %1").arg(marker->frame())
                              : QStringLiteral("select no marker");
            } },
        { QStringLiteral("select keyframes"), 4, selectKeyFrames },
        { QStringLiteral("select freeze frame"), 2, selectFreezeFrame },
        { QStringLiteral("select smart-keying node"), 2, selectSmartKeyingNode },
    };
}

// Where the user looks: the playhead, the ruler, the host's switches.
QVector<MvRandomCommand> viewCommands()
{
    return {
        { QStringLiteral("move playhead"), 16,
            [](W& w) -> QString {
                const qint64 frame = w.frame();
                w.timeline().playhead()->setCurrentFrame(frame);
                return QStringLiteral("playhead to ") + frameText(frame);
            } },
        { QStringLiteral("ruler: playhead to x"), 2,
            [](W& w) -> QString {
                const int x = w.below(1300) - 50;
                w.rulerPresenter().changePlayheadPosition(x);
                return QStringLiteral("ruler: playhead to x %1").arg(x);
            } },
        { QStringLiteral("ruler: zoom"), 2,
            [](W& w) -> QString {
                const int delta = (w.chance(50) ? 1 : -1) * (1 + w.below(240));
                w.rulerPresenter().zoom(delta);
                return QStringLiteral("ruler: zoom %1").arg(delta);
            } },
        onSelectionVoid(
            "checkAndMoveToSelectedClipStartPos", 1, [](W& w) { w.presenter().checkAndMoveToSelectedClipStartPos(); }),
        onSelectionVoid("fitTimeline", 1, [](W& w) { w.presenter().fitTimeline(); }),
        { QStringLiteral("setActionEnabled"), 1,
            [](W& w) -> QString {
                const bool enabled = w.chance(70);
                w.presenter().setActionEnabled(enabled);
                return QStringLiteral("setActionEnabled(%1)").arg(flag(enabled));
            } },
        { QStringLiteral("adjustTrackHeight"), 1,
            [](W& w) -> QString {
                const int row = w.below(w.timeline().trackCount() + 2) - 1;
                const int policy = w.below(4);
                w.presenter().adjustTrackHeight(row, policy);
                return QStringLiteral("adjustTrackHeight(%1, %2)").arg(row).arg(policy);
            } },
        { QStringLiteral("lock track"), 2, lockTrack },
    };
}

// Clip editing: split, trim, delete.
QVector<MvRandomCommand> clipEditCommands()
{
    return {
        { QStringLiteral("splitClips"), 6,
            [](W& w) -> QString {
                const qint64 frame = w.chance(40) ? 0 : w.frame();
                const bool select = w.chance(50);
                const bool prepare = w.chance(50);
                const bool done = w.presenter().splitClips(frame, select, prepare);
                return QStringLiteral("splitClips(%1, select %2, prepare %3)")
                           .arg(frame)
                           .arg(flag(select), flag(prepare))
                    + result(done);
            } },
        { QStringLiteral("splitClips(clips)"), 6, splitGivenClips },
        { QStringLiteral("ungroupBeforeSplit"), 1, ungroupBeforeSplit },
        { QStringLiteral("groupAfterSplit"), 1, groupAfterSplit, MvRandomCommand::SeveralSteps },
        onSelection("trimStartToPlayhead", 4, [](W& w) { return w.presenter().trimStartToPlayhead(); }),
        onSelection("trimEndToPlayhead", 4, [](W& w) { return w.presenter().trimEndToPlayhead(); }),
        onSelection("deleteSelectedClips", 3, [](W& w) { return w.presenter().deleteSelectedClips(); }),
        onSelection("rippleDeleteSelectedClips", 3, [](W& w) { return w.presenter().rippleDeleteSelectedClips(); }),
        { QStringLiteral("deleteItems"), 4,
            [](W& w) -> QString {
                const bool arg = w.chance(50);
                const QString what = call(w, "deleteItems", flag(arg));
                return what + result(w.presenter().deleteItems(arg));
            } },
        { QStringLiteral("empty-clip placeholder"), 1,
            [](W& w) -> QString {
                if (w.chance(50)) {
                    w.presenter().hideEmptyClip();
                    return QStringLiteral("hideEmptyClip()");
                }
                w.presenter().showEmptyClip(w.below(500), 0, 1 + w.below(80), 40);
                return QStringLiteral("showEmptyClip()");
            } },
    };
}

// Moves across time and rows.
QVector<MvRandomCommand> moveCommands()
{
    return {
        { QStringLiteral("moveClipsHorizontal"), 8,
            [](W& w) -> QString {
                const qint64 offset = w.frameOffset();
                const QString what = call(w, "moveClipsHorizontal", QString::number(offset));
                return what + result(w.presenter().moveClipsHorizontal(offset));
            } },
        { QStringLiteral("moveClipsVertical"), 6,
            [](W& w) -> QString {
                const int offset = w.rowOffset();
                const QString what = call(w, "moveClipsVertical", QString::number(offset));
                return what + result(w.presenter().moveClipsVertical(offset));
            } },
    };
}

// Items that are not whole clips: markers, rotation, freeze frames, smart-keying nodes.
QVector<MvRandomCommand> itemCommands()
{
    return {
        { QStringLiteral("addMarker"), 4,
            [](W& w) -> QString {
                const QList<QColor> palette = MvMarkerPresenter::markerPalette();
                const QColor color = palette.at(w.below(palette.size()));
                const QString what = call(w, "addMarker", color.name()) + QStringLiteral(" at ")
                    + frameText(w.timeline().playhead()->currentFrame());
                w.presenter().addMarker(color);
                return what;
            } },
        onSelection("removeSelectedMarker", 2, [](W& w) { return w.presenter().removeSelectedMarker(); }),
        { QStringLiteral("editMarker"), 2, editMarker },
        onSelectionVoid("rotate90CW", 3, [](W& w) { w.presenter().rotate90CW(); }),
        onSelectionVoid("rotate90CCW", 3, [](W& w) { w.presenter().rotate90CCW(); }),
        onSelection("removeSelectedFreezeFrame", 2, [](W& w) { return w.presenter().removeSelectedFreezeFrame(); }),
        onSelection(
            "removeSelectedSmartKeyingNode", 2, [](W& w) { return w.presenter().removeSelectedSmartKeyingNode(); }),
    };
}

// Keyframes (the timeline presenter's keyframe presenter).
QVector<MvRandomCommand> keyFrameCommands()
{
    return {
        { QStringLiteral("addAudioDefaultKeyFrame"), 3,
            [](W& w) -> QString {
                IMvClip* clip = w.focusedClip();
                const qint64 frame = w.frame();
                return QStringLiteral("addAudioDefaultKeyFrame(%1, %2)").arg(W::nameOf(clip)).arg(frame)
                    + result(w.keyFrames().addAudioDefaultKeyFrame(clip, frame));
            } },
        { QStringLiteral("addVideoDefaultKeyFrame"), 3,
            [](W& w) -> QString {
                IMvClip* clip = w.focusedClip();
                const qint64 frame = w.frame();
                return QStringLiteral("addVideoDefaultKeyFrame(%1, %2)").arg(W::nameOf(clip)).arg(frame)
                    + result(w.keyFrames().addVideoDefaultKeyFrame(clip, frame));
            } },
        onSelection("addKeyFrame_ShortcutKey", 3, [](W& w) { return w.keyFrames().addKeyFrame_ShortcutKey(); }),
        onSelection("copySelectedKeyFrames", 2, [](W& w) { return w.keyFrames().copySelectedKeyFrames(); }),
        onSelection("pasteKeyFrames", 3, [](W& w) { return w.keyFrames().pasteKeyFrames(); }),
        onSelection("removeSelectedKeyFrame", 3, [](W& w) { return w.keyFrames().removeSelectedKeyFrame(); }),
        onSelection("clearAllAudioKeyFrames", 1, [](W& w) { return w.keyFrames().clearAllAudioKeyFrames(); }),
        onSelection("clearAllVideoKeyFrames", 1, [](W& w) { return w.keyFrames().clearAllVideoKeyFrames(); }),
        onSelection("selectedAllAudioKeyFrames", 2, [](W& w) { return w.keyFrames().selectedAllAudioKeyFrames(); }),
        onSelection("selectedAllVideoKeyFrames", 2, [](W& w) { return w.keyFrames().selectedAllVideoKeyFrames(); }),
        onSelectionVoid("moveToPrevKeyFrame", 1, [](W& w) { w.keyFrames().moveToPrevKeyFrame(); }),
        onSelectionVoid("moveToNextKeyFrame", 1, [](W& w) { w.keyFrames().moveToNextKeyFrame(); }),
    };
}

// The playhead's split button and the virtual playhead.
QVector<MvRandomCommand> playheadCommands()
{
    return {
        onSelectionVoid("split button", 2, [](W& w) { w.playheadPresenter().splitClips(); }),
        onSelectionVoid("virtual playhead: open", 2, [](W& w) { w.virtualPlayhead().open(); }),
        onSelectionVoid("virtual playhead: close", 2, [](W& w) { w.virtualPlayhead().close(); }),
        { QStringLiteral("virtual playhead: setVisible"), 1,
            [](W& w) -> QString {
                const bool visible = w.chance(50);
                w.virtualPlayhead().setVisible(visible);
                return QStringLiteral("virtual playhead: setVisible(%1)").arg(flag(visible));
            } },
        { QStringLiteral("virtual playhead: playStateChanged"), 1,
            [](W& w) -> QString {
                const MvPlayState state = MvPlayState(w.below(4));
                w.virtualPlayhead().playStateChanged(state);
                return QStringLiteral("virtual playhead: playStateChanged(%1)").arg(int(state));
            } },
        { QStringLiteral("virtual playhead: seek"), 1,
            [](W& w) -> QString {
                const qint64 frame = w.frame();
                w.virtualPlayhead().seek(frame);
                return QStringLiteral("virtual playhead: seek(%1)").arg(frame);
            } },
        { QStringLiteral("virtual playhead: allowed"), 1,
            [](W& w) -> QString {
                const bool allowed = w.chance(70);
                w.timeline().setVirtualPlayheadAllowed(allowed);
                w.virtualPlayhead().updateEnable();
                return QStringLiteral("virtual playhead allowed: %1, updateEnable()").arg(flag(allowed));
            } },
    };
}

// Library resources, composed texts and the requests to the host's panels.
QVector<MvRandomCommand> panelCommands()
{
    return {
        onSelectionVoid("searchSimilarResource", 1, [](W& w) { w.presenter().searchSimilarResource(); }),
        onSelectionVoid("selectAllSubTextClips", 1, [](W& w) { w.presenter().selectAllSubTextClips(); }),
        onSelectionVoid("showAdvancedColor", 1, [](W& w) { w.presenter().showAdvancedColor(); }),
        onSelectionVoid("showAdvancedEdit", 1, [](W& w) { w.presenter().showAdvancedEdit(w.chance(50)); }),
        onSelectionVoid("openAudioPropertyPanel", 1, [](W& w) { w.presenter().openAudioPropertyPanel(); }),
        onSelectionVoid("addAnimation", 1, [](W& w) { w.presenter().addAnimation(); }),
        { QStringLiteral("showKeyFrameCustomizePanel"), 1,
            [](W& w) -> QString {
                IMvClip* clip = w.focusedClip();
                w.presenter().showKeyFrameCustomizePanel(clip);
                return QStringLiteral("showKeyFrameCustomizePanel(%1)").arg(W::nameOf(clip));
            } },
        { QStringLiteral("selectedKeyFrameChanged"), 2,
            [](W& w) -> QString {
                // A keyframe picked in the keyframe panel, mostly one the clip has.
                IMvClip* clip = w.focusedClip();
                QList<qint64> keys = clip ? clip->keyFrames(false) + clip->keyFrames(true) : QList<qint64>();
                const qint64 frame = keys.isEmpty() || w.chance(20) ? w.frame() : keys.at(w.below(keys.size()));
                w.presenter().selectedKeyFrameChanged(clip, frame);
                return QStringLiteral("selectedKeyFrameChanged(%1, %2)").arg(W::nameOf(clip)).arg(frame);
            } },
    };
}

// Copy, cut and paste (of clips, or of a transition onto the selected clips) and duplicate.
QVector<MvRandomCommand> clipboardCommands()
{
    return {
        onSelectionVoid("copySelectedClips", 3, [](W& w) { w.presenter().copySelectedClips(); }),
        onSelectionVoid("cutSelectedClips", 2, [](W& w) { w.presenter().cutSelectedClips(); }),
        { QStringLiteral("pasteClips"), 4,
            [](W& w) -> QString {
                const QString what = call(w, "pasteClips") + QStringLiteral(" at ")
                    + frameText(w.timeline().playhead()->currentFrame());
                w.presenter().pasteClips();
                return what + QStringLiteral(", selection ") + w.selectionText();
            } },
        onSelectionVoid("duplicateClip", 2, [](W& w) { w.presenter().duplicateClip(); }),
    };
}

// A row of the timeline, now and then none at all.
IMvTrack* pickTrack(W& w, QString* name)
{
    IMvTrack* track = w.chance(5) ? nullptr : w.timeline().trackAt(w.below(w.timeline().trackCount()));
    *name = track ? QStringLiteral("row %1").arg(track->index()) : QStringLiteral("no row");
    return track;
}

// The track headers' buttons and the track menu; the sound of the selection.
QVector<MvRandomCommand> trackCommands()
{
    return {
        { QStringLiteral("track: setLock"), 2,
            [](W& w) -> QString {
                QString name;
                IMvTrack* track = pickTrack(w, &name);
                const bool lock = w.chance(35); // mostly unlocking, as with the model's own lock
                w.presenter().setLock(track, lock);
                return QStringLiteral("setLock(%1, %2)").arg(name, flag(lock));
            } },
        { QStringLiteral("track: setMute"), 2,
            [](W& w) -> QString {
                QString name;
                IMvTrack* track = pickTrack(w, &name);
                const bool mute = w.chance(50);
                const bool enabled = w.presenter().muteEnable(track);
                w.presenter().setMute(track, mute);
                return QStringLiteral("setMute(%1, %2), mute enabled: %3").arg(name, flag(mute), flag(enabled));
            } },
        { QStringLiteral("track: setVisible"), 2,
            [](W& w) -> QString {
                QString name;
                IMvTrack* track = pickTrack(w, &name);
                const bool visible = w.chance(60);
                w.presenter().setVisible(track, visible);
                return QStringLiteral("setVisible(%1, %2), shown: %3")
                    .arg(name, flag(visible), flag(w.presenter().trackVisible(track)));
            } },
        { QStringLiteral("setMute(selection)"), 2,
            [](W& w) -> QString {
                const bool mute = w.chance(50);
                const QString what = call(w, "setMute", flag(mute));
                w.presenter().setMute(mute);
                return what + QStringLiteral(", all muted: ") + flag(w.presenter().mute());
            } },
        onSelectionVoid("clearEmptyTracks", 1, [](W& w) { w.presenter().clearEmptyTracks(); }),
        onSelectionVoid("detachSelectedAudio", 2, [](W& w) { w.presenter().detachSelectedAudio(); }),
        onSelectionVoid("clearRemix", 1, [](W& w) { w.presenter().clearRemix(); }),
    };
}

// What a host asks of the timeline presenter besides editing: the player, the property panel, the
// mode, the placeholder gap, and clearing the markers (an edit).
QVector<MvRandomCommand> hostRequestCommands()
{
    return {
        onSelectionVoid("removeAllMarker", 1, [](W& w) { w.presenter().removeAllMarker(); }),
        onSelection("deleteEmptyClipItem", 1, [](W& w) { return w.presenter().deleteEmptyClipItem(w.chance(50)); }),
        onSelectionVoid("updateAction", 1, [](W& w) { w.presenter().updateAction(); }),
        onSelectionVoid("hidePropertyPanel", 1,
            [](W& w) {
                if (w.chance(50))
                    w.presenter().hidePropertyPanel();
                else
                    w.presenter().checkHidePropertyPanel();
            }),
        { QStringLiteral("player requests"), 1,
            [](W& w) -> QString {
                const qint64 frame = w.frame();
                w.presenter().pauseMediaPlayer();
                w.presenter().pauseMediaPlayerWithSync();
                w.presenter().seek(frame);
                return QStringLiteral("pause, pause with sync, seek(%1)").arg(frame);
            } },
        { QStringLiteral("showPropertyPanel"), 1,
            [](W& w) -> QString {
                const int page = w.below(6) - 1;
                w.presenter().showPropertyPanel(page);
                return call(w, "showPropertyPanel", QString::number(page));
            } },
        { QStringLiteral("setModeType"), 1,
            [](W& w) -> QString {
                const auto mode = MvTimelinePresenter::MvTimelineModeType(w.below(4));
                w.presenter().setModeType(mode);
                w.presenter().showToast(QStringLiteral("mode %1").arg(int(mode)));
                return QStringLiteral("setModeType(%1), showToast").arg(int(mode));
            } },
    };
}

// The host's undo and redo.
QVector<MvRandomCommand> undoCommands()
{
    return {
        { QStringLiteral("undo"), 8,
            [](W& w) -> QString { return QStringLiteral("undo()") + result(w.timeline().undoRedoService()->undo()); },
            MvRandomCommand::UndoesOne },
        { QStringLiteral("redo"), 5,
            [](W& w) -> QString { return QStringLiteral("redo()") + result(w.timeline().undoRedoService()->redo()); },
            MvRandomCommand::RedoesOne },
    };
}
}

// Every command of the random run, family by family. To add a command: one entry in its family's
// function above (its name, how often it is picked, and how it runs with arguments drawn from the
// world, saying what it did; onSelection() makes the usual kind in one line). A new family is one
// such function and one line here. The run, its checks, the shrinking and the replay need nothing
// else; a command that asks the host a new question also gets its answer in MvRandomWorld.cpp.
const QVector<MvRandomCommand>& mvRandomCommands()
{
    static const QVector<MvRandomCommand> table = focusCommands() + viewCommands() + clipEditCommands() + moveCommands()
        + itemCommands() + keyFrameCommands() + playheadCommands() + panelCommands() + mvMediaCommands()
        + mvTransitionAndEffectCommands() + clipboardCommands() + trackCommands() + hostRequestCommands()
        + undoCommands();
    return table;
}

int mvRandomCommandIndex(const QString& name)
{
    const QVector<MvRandomCommand>& table = mvRandomCommands();
    for (int i = 0; i < table.size(); ++i) {
        if (table.at(i).name == name)
            return i;
    }
    return -1;
}
