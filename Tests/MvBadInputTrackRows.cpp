#include "IMvTrack.h"
#include "Memory/MvMemoryClipboard.h"
#include "MvBadInputTable.h"

using namespace MVVBLMODEL;

namespace {
const QString kTrackIsNull = QStringLiteral("track is null|16|MvTimelinePresenter::");

// The clipboard is the application's: each row starts from an empty one.
void clearClipboard()
{
    MvMemoryClipboard::application().clear();
}
}

namespace MvBadInput {
void addClipboardAndTrackRows()
{
    using P = MvSampleHost;
    row(
        "clipboard with nothing selected", [](P&) { clearClipboard(); },
        [](P& p) {
            p.presenter.copySelectedClips();
            p.presenter.cutSelectedClips();
            p.presenter.duplicateClip();
            p.presenter.pasteClips();
            return done(p.presenter.canPasteClip());
        },
        false);
    row(
        "a copied transition pasted with no clip selected",
        [](P& p) {
            clearClipboard();
            p.timeline.selection()->selectItems({ p.clip(2)->liveTransitions().first() });
            p.presenter.copySelectedClips();
            p.timeline.selection()->clear();
        },
        [](P& p) {
            p.presenter.pasteClips();
            return done(p.presenter.canPasteClip());
        },
        true, QStringLiteral("selected clip is empty|16|MvTimelinePresenter::pasteTransition"));
    row(
        "lock of no track", nothing,
        [](P& p) {
            p.presenter.setLock(nullptr, true);
            return kNoResult;
        },
        kNoResult, kTrackIsNull + QStringLiteral("setLock"));
    row(
        "mute of no track", nothing,
        [](P& p) {
            p.presenter.setMute(nullptr, true);
            return kNoResult;
        },
        kNoResult, kTrackIsNull + QStringLiteral("setMute"));
    row(
        "eye of no track", nothing,
        [](P& p) {
            p.presenter.setVisible(nullptr, false);
            return kNoResult;
        },
        kNoResult, kTrackIsNull + QStringLiteral("setVisible"));
    row(
        "buttons of no track", nothing, [](P& p) { return done(p.presenter.trackVisible(nullptr)); }, false,
        kTrackIsNull + QStringLiteral("trackVisible"));
    row(
        "mute button of no track", nothing, [](P& p) { return done(p.presenter.muteEnable(nullptr)); }, false,
        kTrackIsNull + QStringLiteral("muteEnable"));
    row(
        "mute of a hidden picture row",
        [](P& p) {
            p.timeline.trackAt(0)->setVisible(false, true);
            p.timeline.undoService()->clear();
        },
        [](P& p) {
            p.presenter.setMute(p.timeline.trackAt(0), false);
            return kNoResult;
        },
        kNoResult, QStringLiteral("track is unVisible can't change mute state|4|MvTimelinePresenter::setMute"));
    row(
        "sound, detach and remix with nothing selected", nothing,
        [](P& p) {
            p.presenter.setMute(true);
            p.presenter.detachSelectedAudio();
            p.presenter.clearRemix();
            return done(p.presenter.detachSelectedAudioEnabled());
        },
        false);
    row(
        "detach of a clip without sound", [](P& p) { p.select({ p.clip(3) }); },
        [](P& p) {
            p.presenter.detachSelectedAudio();
            p.presenter.clearRemix();
            return done(p.presenter.detachSelectedAudioEnabled());
        },
        false);
}

void addOrphanClipboardAndTrackRows()
{
    row(
        "clipboard, tracks and sound without a timeline",
        [](MvOrphanHost& o) {
            clearClipboard();
            MvTimelinePresenter& t = o.presenter;
            t.copySelectedClips();
            t.cutSelectedClips();
            t.pasteClips();
            t.duplicateClip();
            t.setMute(true);
            t.clearEmptyTracks();
            t.detachSelectedAudio();
            t.clearRemix();
            return done(t.canPasteClip() || t.canClearEmptyTracks() || t.detachSelectedAudioEnabled() || !t.mute());
        },
        false);
}
}
