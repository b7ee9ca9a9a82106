#include "IMvClipItems.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryMarker.h"
#include "MvBadInputTable.h"
#include "MvEditFixture.h"
#include "MvHostFixtures.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerPresenter.h"
#include "MvMarkerWidget.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerWidget.h"

#include <QMouseEvent>
#include <QtTest>

#include <functional>
#include <limits>

// Every public command and widget entry point, called with what a careless host or a broken model
// may hand it: no timeline, null or foreign or deleted clips, empty lists, rows and frames out of
// range, the extremes of 64-bit frames. Each call gives its refusal (false, null, nothing done, the
// log record where there is one) and leaves the model, the undo stack and the selection as they
// were; none may crash or reach past what it was given (the sanitizer build checks that).

using namespace MVVBLMODEL;
using namespace MvBadInput;

namespace {
QString checkRecord(const MvLogCapture& log, const QString& record)
{
    if (record.isEmpty())
        return QString();
    const QStringList parts = record.split(QLatin1Char('|'));
    return mvCheckRecord(log, parts.at(0), parts.at(1).toInt(), parts.at(2));
}

// Splits and the regrouping around them.
void addSplitRows()
{
    using P = MvSampleHost;
    row(
        "split at the last 64-bit frame", nothing,
        [](P& p) { return done(p.presenter.splitClips(kMaxFrame, true, true)); }, false);
    row(
        "split at the first 64-bit frame (the playhead, at 0)", nothing,
        [](P& p) { return done(p.presenter.splitClips(kMinFrame, true, true)); }, false);
    row(
        "split of no clips", nothing, [](P& p) { return done(p.presenter.splitClips(300, {}, true, true)); }, false);
    row(
        "split of a null clip", nothing,
        [](P& p) { return done(p.presenter.splitClips(300, { nullptr }, true, true)); }, false);
    row(
        "split of another timeline's clip", nothing,
        [](P& p) { return done(p.presenter.splitClips(50, { p.foreign }, true, true)); }, false);
    row(
        "split of a deleted clip", nothing,
        [](P& p) { return done(p.presenter.splitClips(2200, { p.removed }, true, true)); }, false);
    row(
        "split of a clip past its end", nothing,
        [](P& p) { return done(p.presenter.splitClips(kMaxFrame, { p.clip(2) }, true, true)); }, false);
    row(
        "ungroup before a split of null clips", nothing,
        [](P& p) {
            bool regroup = true;
            return done(p.presenter.ungroupBeforeSplit({ nullptr, p.foreign }, regroup) && !regroup);
        },
        true);
    row(
        "regroup with more pieces than sources", nothing,
        [](P& p) { return done(p.presenter.groupAfterSplit({}, { nullptr })); }, false);
    row(
        "regroup with no pieces", nothing, [](P& p) { return done(p.presenter.groupAfterSplit({ nullptr }, {})); },
        true);
}

// Trims, deletes and moves.
void addTrimDeleteAndMoveRows()
{
    using P = MvSampleHost;
    row(
        "trim start with nothing selected", nothing, [](P& p) { return done(p.presenter.trimStartToPlayhead()); },
        false);
    row(
        "trim end with two clips selected",
        [](P& p) {
            p.select({ p.clip(0), p.clip(2) });
        },
        [](P& p) { return done(p.presenter.trimEndToPlayhead()); }, false);
    row(
        "trim end with a transition selected",
        [](P& p) { p.timeline.selection()->selectItems({ p.clip(2)->liveTransitions().first() }); },
        [](P& p) { return done(p.presenter.trimEndToPlayhead()); }, false);
    row(
        "delete with actions switched off",
        [](P& p) {
            p.select({ p.clip(3) });
            p.presenter.setActionEnabled(false);
        },
        [](P& p) { return done(p.presenter.deleteSelectedClips()); }, false,
        QStringLiteral("cannt do action|16|MvTimelinePresenterPrivate::deleteSelectedClips"));
    row(
        "delete with nothing selected", nothing, [](P& p) { return done(p.presenter.deleteSelectedClips()); }, false);
    row(
        "ripple delete with nothing selected", nothing,
        [](P& p) { return done(p.presenter.rippleDeleteSelectedClips()); }, false,
        QStringLiteral("clip is null|8|MvTimelinePresenterPrivate::rippleDeleteSelectedClips"));
    row(
        "delete key with nothing selected", nothing, [](P& p) { return done(p.presenter.deleteItems(true)); }, false);
    row(
        "move by no frames", selectOpening, [](P& p) { return done(p.presenter.moveClipsHorizontal(0)); }, false);
    row(
        "move past the last 64-bit frame", selectOpening,
        [](P& p) { return done(p.presenter.moveClipsHorizontal(kMaxFrame)); }, false);
    row(
        "move a clip at frame 0 back by the most frames", selectOpening,
        [](P& p) { return done(p.presenter.moveClipsHorizontal(kMinFrame)); }, false);
    row(
        "move with nothing selected", nothing, [](P& p) { return done(p.presenter.moveClipsHorizontal(-30)); }, false);
    row(
        "move down by the most rows", selectOpening, [](P& p) { return done(p.presenter.moveClipsVertical(kMaxInt)); },
        false);
    row(
        "move up by the most rows", selectOpening, [](P& p) { return done(p.presenter.moveClipsVertical(kMinInt)); },
        false);
    row(
        "move by as many rows as there are", selectOpening,
        [](P& p) { return done(p.presenter.moveClipsVertical(p.timeline.trackCount())); }, false);
    row(
        "row height of rows that do not exist", nothing,
        [](P& p) {
            p.presenter.adjustTrackHeight(-1, 0);
            p.presenter.adjustTrackHeight(kMaxInt, 2);
            p.presenter.adjustTrackHeight(kMinInt, kMinInt);
            return QVariant(p.timeline.trackAt(0)->height());
        },
        60);
}

// Markers, rotation, freeze frames, smart-keying nodes.
void addItemRows()
{
    using P = MvSampleHost;
    row(
        "marker where the timeline has one", [](P& p) { p.timeline.playhead()->setCurrentFrame(300); },
        [](P& p) {
            p.presenter.addMarker(QColor(Qt::red));
            return kNoResult;
        },
        kNoResult);
    row(
        "remove the selected marker with none selected", nothing,
        [](P& p) { return done(p.presenter.removeSelectedMarker()); }, false);
    row(
        "edit a marker where there is none", nothing,
        [](P& p) {
            p.presenter.editMarker();
            return kNoResult;
        },
        kNoResult, QStringLiteral("no marker at playhead|16|MvTimelinePresenterPrivate::editMarker"));
    row(
        "rotate with nothing selected", nothing,
        [](P& p) {
            p.presenter.rotate90CW();
            p.presenter.rotate90CCW();
            return kNoResult;
        },
        kNoResult);
    row(
        "rotate a transition",
        [](P& p) { p.timeline.selection()->selectItems({ p.clip(2)->liveTransitions().first() }); },
        [](P& p) {
            p.presenter.rotate90CW();
            return kNoResult;
        },
        kNoResult);
    row(
        "remove a freeze frame of a clip without picture",
        [](P& p) {
            p.select({ p.clip(12) });
            p.timeline.subItemSelection()->select(1);
        },
        [](P& p) { return done(p.presenter.removeSelectedFreezeFrame()); }, false);
    row(
        "remove a freeze frame that does not exist",
        [](P& p) {
            p.select({ p.clip(3) });
            p.timeline.subItemSelection()->select(kMaxInt);
        },
        [](P& p) { return done(p.presenter.removeSelectedFreezeFrame()); }, false);
    row(
        "remove a smart-keying node with none selected", [](P& p) { p.select({ p.clip(5) }); },
        [](P& p) { return done(p.presenter.removeSelectedSmartKeyingNode()); }, false);
    row(
        "jump to the selection's start with nothing selected", nothing,
        [](P& p) {
            p.presenter.checkAndMoveToSelectedClipStartPos();
            return done(p.presenter.getFirstSelectedClip() == nullptr);
        },
        true);
}

// Player, panel and view requests.
void addRequestRows()
{
    using P = MvSampleHost;
    row(
        "seek to the extremes", nothing,
        [](P& p) {
            p.presenter.seek(kMaxFrame);
            p.presenter.seek(kMinFrame);
            return QVariant(p.scene.count(MessageId::Seek));
        },
        2);
    row(
        "placeholder at the extremes", nothing,
        [](P& p) {
            p.presenter.showEmptyClip(kMaxFrame, kMinFrame, kMinInt, kMaxInt);
            p.presenter.deleteEmptyClipItem(true);
            p.presenter.hideEmptyClip();
            return done(p.presenter.emptyClipItemVisible());
        },
        false);
    row(
        "player, panel and view requests at the extremes", nothing,
        [](P& p) {
            MvTimelinePresenter& t = p.presenter;
            t.pauseMediaPlayer();
            t.pauseMediaPlayerWithSync();
            t.hidePropertyPanel();
            t.showPropertyPanel(kMinInt);
            t.showToast(QString());
            t.setModeType(MvTimelinePresenter::MvTimelineModeType(kMaxInt));
            t.setZoomSlider(nullptr);
            t.updateAction();
            t.removeAllMarker();
            t.fitTimeline();
            t.config()->clearFixedTrack();
            return done(t.isMediaPlayerPlaying() || t.deleteEmptyClipItem(false));
        },
        false);
    row(
        "detached sound for no clip", nothing,
        [](P& p) {
            struct Host : MvTimelinePresenter
            {
                using MvTimelinePresenter::calcDetachAudioTrackIndex;
                using MvTimelinePresenter::MvTimelinePresenter;
            } host(nullptr, &p.timeline);
            return QVariant(host.calcDetachAudioTrackIndex(nullptr));
        },
        -1);
}

// Library resources, composed texts and panel requests.
void addPanelRows()
{
    using P = MvSampleHost;
    row(
        "similar resources and text layers with nothing selected", nothing,
        [](P& p) {
            p.presenter.searchSimilarResource();
            p.presenter.selectAllSubTextClips();
            return done(p.presenter.canSearchSimilarResource() || p.presenter.canSelectAllSubTextClips());
        },
        false, QStringLiteral("select text clips: 0, is not 1|16|MvTimelinePresenter::selectAllSubTextClips"));
    row(
        "panels for no clip", nothing,
        [](P& p) {
            p.presenter.showKeyFrameCustomizePanel(nullptr);
            p.presenter.addAnimation();
            p.presenter.showAdvancedEdit(true);
            p.presenter.openAudioPropertyPanel();
            return QVariant(p.presenter.getPropertyType(nullptr));
        },
        PropertyType_None);
    row(
        "a picked keyframe at the 64-bit extremes",
        [](P& p) {
            p.select({ p.clip(2) });
            p.timeline.playhead()->setCurrentFrame(p.timeline.duration());
        },
        [](P& p) {
            // Far past the end: the playhead stays at the end, where it was.
            p.presenter.selectedKeyFrameChanged(p.clip(2), kMaxFrame);
            return QVariant(p.timeline.playhead()->currentFrame() == p.timeline.duration());
        },
        true);
}

// Keyframes.
void addKeyFrameRows()
{
    using P = MvSampleHost;
    row(
        "keyframe on no clip", nothing,
        [](P& p) {
            return done(
                p.keyFrames().addAudioDefaultKeyFrame(nullptr, 0) || p.keyFrames().addVideoDefaultKeyFrame(nullptr, 0));
        },
        false);
    row(
        "keyframe at the 64-bit extremes", nothing,
        [](P& p) {
            // Clips that do not start at 0: the frame is taken into the clip's own frames.
            return done(p.keyFrames().addVideoDefaultKeyFrame(p.clip(2), kMaxFrame)
                || p.keyFrames().addVideoDefaultKeyFrame(p.clip(2), kMinFrame)
                || p.keyFrames().addAudioDefaultKeyFrame(p.clip(12), kMaxFrame)
                || p.keyFrames().addAudioDefaultKeyFrame(p.clip(12), kMinFrame));
        },
        false);
    // (A clip of another timeline may take one: a compound clip's inner timeline is edited from outside.)
    row(
        "keyframe on a deleted clip", nothing,
        [](P& p) {
            return done(p.keyFrames().addVideoDefaultKeyFrame(p.removed, 2200)
                || p.keyFrames().addAudioDefaultKeyFrame(p.removed, 2200));
        },
        false);
    row(
        "keyframe shortcut with nothing selected", nothing,
        [](P& p) { return done(p.keyFrames().addKeyFrame_ShortcutKey()); }, false);
    row(
        "keyframe copy, paste and removal with nothing picked", selectOpening,
        [](P& p) {
            return done(p.keyFrames().copySelectedKeyFrames() || p.keyFrames().pasteKeyFrames()
                || p.keyFrames().removeSelectedKeyFrame() || p.keyFrames().canCopyKeyFrames());
        },
        false);
    row(
        "keyframes cleared and picked with nothing selected", nothing,
        [](P& p) {
            p.keyFrames().moveToNextKeyFrame();
            p.keyFrames().moveToPrevKeyFrame();
            return done(p.keyFrames().clearAllAudioKeyFrames() || p.keyFrames().clearAllVideoKeyFrames()
                || p.keyFrames().selectedAllAudioKeyFrames() || p.keyFrames().selectedAllVideoKeyFrames());
        },
        false);
    row(
        "keyframe kinds out of range", nothing,
        [](P& p) {
            return done(p.keyFrames().isSupportAudioKeyFrame(kMinInt) || p.keyFrames().isSupportVideoKeyFrame(kMaxInt)
                || p.keyFrames().isKeyFrameItemEnabled(nullptr));
        },
        false);
}

// The virtual playhead, playhead and ruler presenters.
void addPresenterRows()
{
    using P = MvSampleHost;
    row(
        "virtual playhead at the extremes", nothing,
        [](P& p) {
            p.virtualPlayhead().seek(kMaxFrame);
            p.virtualPlayhead().seek(kMinFrame);
            p.virtualPlayhead().playStateChanged(kMinInt);
            p.virtualPlayhead().playStateChanged(kMaxInt);
            p.virtualPlayhead().setVisible(true);
            return done(p.virtualPlayhead().visible());
        },
        false);
    row(
        "playhead presenter at the extremes", nothing,
        [](P& p) {
            p.playhead.updateViewRect(QRect(0, 0, 800, 200));
            p.playhead.setSplitButtonSize(QSize(-5, kMaxInt));
            p.playhead.setSplitButtonMinY(kMaxInt);
            p.playhead.setSplitButtonY(kMinInt);
            p.playhead.updatePosition(kMinInt, kMaxInt);
            p.playhead.updatePosition(kMinInt, kMinInt);
            return QVariant(p.playhead.splitButtonY());
        },
        kMaxInt);
    row(
        "playhead presenter over a view of no size", nothing,
        [](P& p) {
            p.playhead.updateViewRect(QRect(0, 0, -100, -100));
            p.playhead.setPlayheadColor(MVWIDGETS::MvWidgetStyleStatus(kMinInt), QColor());
            p.playhead.addSplitButtonImage(MVWIDGETS::MvWidgetStyleStatus(kMaxInt), QImage());
            p.playhead.setSplitButtonStatus(MVWIDGETS::MvWidgetStyleStatus(kMaxInt));
            p.playhead.setSplitButtonY(p.playhead.splitButtonY());
            const MvRange<int> range = p.playhead.maxRange();
            return done(range.first == 0 && p.playhead.currentPlayheadPixmap().isNull()
                && p.playhead.currentSplitButtonImage().isNull() && !p.playhead.currentPlayheadColor().isValid()
                && !p.playhead.currentShape().isEmpty() && p.playhead.playheadRect().isValid());
        },
        true);
    row(
        "ruler presenter at the extremes", nothing,
        [](P& p) {
            p.ruler.setViewWith(kMinInt);
            p.ruler.zoom(kMaxInt);
            p.ruler.zoom(kMinInt);
            p.ruler.changeZoomRatio(std::numeric_limits<float>::quiet_NaN());
            p.ruler.changeZoomRatio(-std::numeric_limits<float>::infinity());
            p.ruler.changePlayheadPosition(kMinInt);
            p.ruler.moveRulerRange(true);
            p.ruler.paint(nullptr);
            return done(p.timeline.ruler()->zoomRatio() > 0 && std::isfinite(p.timeline.ruler()->zoomRatio()));
        },
        true);
}

// The timeline presenter's commands and questions.
void addOrphanCommandRows()
{
    using O = MvOrphanHost;
    row(
        "clip editing",
        [](O& o) {
            MvTimelinePresenter& t = o.presenter;
            bool regroup = false;
            return done(t.splitClips(0, true, true) || t.splitClips(5, { nullptr }, true, true)
                || !t.ungroupBeforeSplit({ nullptr }, regroup) || t.groupAfterSplit({}, { nullptr })
                || t.trimStartToPlayhead() || t.trimEndToPlayhead() || t.deleteSelectedClips() || t.deleteItems(false)
                || t.moveClipsHorizontal(kMinFrame) || t.moveClipsVertical(1) || t.getFirstSelectedClip());
        },
        false);
    row(
        "ripple delete", [](O& o) { return done(o.presenter.rippleDeleteSelectedClips()); }, false,
        QStringLiteral("clip is null|8|MvTimelinePresenterPrivate::rippleDeleteSelectedClips"));
    row(
        "questions",
        [](O& o) {
            MvTimelinePresenter& t = o.presenter;
            return done(t.hasEmptyCap() || t.canSplitClip() || t.canTrimToPlayhead() || t.canDeleteClip()
                || t.canDeleteItems() || t.canRemoveMarker() || t.isOpenVirtualPlayhead() || t.emptyClipItemVisible());
        },
        false);
    row(
        "items and the view",
        [](O& o) {
            MvTimelinePresenter& t = o.presenter;
            t.checkAndMoveToSelectedClipStartPos();
            t.fitTimeline();
            t.addMarker(QColor(Qt::red));
            t.rotate90CW();
            t.rotate90CCW();
            t.adjustTrackHeight(0, 1);
            t.checkHidePropertyPanel();
            return done(t.removeSelectedMarker() || t.removeSelectedFreezeFrame() || t.removeSelectedSmartKeyingNode());
        },
        false);
    row(
        "marker editing",
        [](O& o) {
            o.presenter.editMarker();
            return kNoResult;
        },
        kNoResult, QStringLiteral("playhead is null|16|MvTimelinePresenterPrivate::editMarker"));
}

// Keyframes, the virtual playhead and the playhead presenters.
void addOrphanKeyFrameAndPlayheadRows()
{
    using O = MvOrphanHost;
    row(
        "keyframes",
        [](O& o) {
            MvKeyFramePresenter& k = *o.presenter.keyFramePresenter();
            k.moveToNextKeyFrame();
            k.moveToPrevKeyFrame();
            return done(k.addAudioDefaultKeyFrame(nullptr, kMaxFrame) || k.addVideoDefaultKeyFrame(nullptr, kMinFrame)
                || k.addKeyFrame_ShortcutKey() || k.canCopyKeyFrames() || k.copySelectedKeyFrames()
                || k.canPasteKeyFrames() || k.pasteKeyFrames() || k.canRemoveKeyFrame() || k.removeSelectedKeyFrame()
                || k.clearAllAudioKeyFrames() || k.clearAllVideoKeyFrames() || k.selectedAllAudioKeyFrames()
                || k.selectedAllVideoKeyFrames() || k.isKeyFrameItemEnabled(nullptr));
        },
        false);
    row(
        "virtual playhead",
        [](O& o) {
            MvTimelineVirtualPlayheadPresenter& v = *o.presenter.virtualPlayheadPresenter();
            v.open();
            v.seek(kMaxFrame);
            v.playStateChanged(PlayState_Stopped);
            v.updateEnable();
            v.close();
            MvTimelineVirtualPlayheadPresenter lone(nullptr, nullptr);
            lone.open();
            lone.seek(kMinFrame);
            lone.setVisible(true);
            lone.playStateChanged(PlayState_Finished);
            return done(!lone.isOpen() || v.isOpen());
        },
        false);
    row(
        "playhead presenters",
        [](O& o) {
            for (MvTimelinePlayheadPresenter* p : { &o.playhead, &o.lonePlayhead }) {
                p->updatePosition(kMaxInt, kMinInt);
                p->setSplitButtonVisible(true);
                p->splitClips();
                if (p->playheadVisible() || p->playheadEnabled() || p->splitButtonVisible() || p->splitButtonEnabled()
                    || !p->splitButtonCaptureRect().isNull() || p->position() != 0
                    || p->currentPlayheadColor().isValid() || p->splitButtonStatus() != MVWIDGETS::Disabled)
                    return done(false);
            }
            return done(true);
        },
        true);
}

// Ruler presenters and time codes.
void addOrphanRulerRows()
{
    using O = MvOrphanHost;
    row(
        "ruler presenters",
        [](O& o) {
            for (MvTimelineRulerPresenter* r : { &o.ruler, &o.loneRuler }) {
                r->beginZoom();
                r->zoom(kMaxInt);
                r->endZoom();
                r->changeZoomRatio(2.0f);
                r->setViewWith(800);
                r->changePlayheadPosition(kMinInt);
                r->moveCurrentFrameToCenter();
                r->moveRulerRange(false);
                r->updateTimelineMenu();
                r->paint(nullptr);
                if (r->zoomRatio() != 0.0f || r->minZoomRatio() != 0.0f || r->totalFrames() != 0
                    || r->visualFrames() != 0 || r->handlePosition() != 0)
                    return done(false);
            }
            return done(true);
        },
        true);
    row(
        "time codes of no rate",
        [](O&) {
            return QVariant(MvTimelineRulerPresenter::formatTimecode(kMinInt, 0, 0)
                + MvTimelineRulerPresenter::formatTimecode(kMaxInt, -30, 1)
                + MvTimelineRulerPresenter::formatTimecode(1, std::numeric_limits<float>::quiet_NaN())
                + MvTimelineRulerPresenter::formatTimecode(1, std::numeric_limits<float>::infinity()));
        },
        QString());
}

void mouse(QWidget* widget, QEvent::Type type, const QPoint& pos, Qt::MouseButton button)
{
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), button,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button), Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void wheel(QWidget* widget, int delta)
{
    QWheelEvent event(QPointF(10, 10), QPointF(widget->mapToGlobal(QPoint(10, 10))), QPoint(), QPoint(0, delta),
        Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

// Presses, drags, releases and a wheel turn of the most eighths of a degree, far outside the
// widget too (a million pixels away: further is no screen's).
void handle(QWidget* widget)
{
    widget->resize(400, 40);
    widget->grab();
    for (const QPoint& pos : { QPoint(10, 10), QPoint(-1000000, 1000000), QPoint(1000000, -1000000) }) {
        mouse(widget, QEvent::MouseButtonPress, pos, Qt::LeftButton);
        mouse(widget, QEvent::MouseMove, pos + QPoint(1, 0), Qt::LeftButton);
        mouse(widget, QEvent::MouseButtonRelease, pos, Qt::LeftButton);
    }
    wheel(widget, kMaxInt);
    wheel(widget, kMinInt);
    widget->grab();
}

// Widgets without their presenter or timeline.
void addLoneWidgetRows()
{
    row(
        "ruler widget without a presenter",
        []() {
            MvTimelineRulerWidget widget(nullptr, nullptr);
            handle(&widget);
            widget.setPresenter(nullptr);
            return QVariant(widget.eventFilterMgr() != nullptr);
        },
        true);
    row(
        "playhead widget without a presenter",
        []() {
            MvTimelinePlayheadWidget widget(nullptr, nullptr);
            handle(&widget);
            QMouseEvent press(QEvent::MouseButtonPress, QPoint(-1000000, -1000000), QPoint(1000000, 1000000),
                Qt::RightButton, Qt::RightButton, Qt::NoModifier);
            return QVariant(widget.onFilterEvent(nullptr) || widget.onFilterEvent(&press)
                || widget.captureItem(QPoint(kMaxInt, kMinInt)) != MvTimelinePlayheadWidget::None);
        },
        false);
    row(
        "marker widget without a presenter",
        []() {
            MvMarkerWidget widget(nullptr, nullptr);
            handle(&widget);
            widget.slotMarkerCountChanged();
            widget.slotClearTimelineSelectedMarker();
            widget.setPresenter(nullptr);
            return QVariant(widget.markers().size());
        },
        0);
    row(
        "render strip without a timeline",
        []() {
            MvTimelinePresenter presenter(nullptr, nullptr);
            MvTimelineRenderWidget strip(&presenter, nullptr);
            MvTimelineRenderWidget lone(nullptr, nullptr);
            strip.setFinishedColor(QColor());
            handle(&strip);
            handle(&lone);
            return QVariant(strip.finishedColor().isValid());
        },
        false);
}

// Marker strip and marker dialog.
void addMarkerWidgetRows()
{
    row(
        "marker images out of range",
        []() {
            struct Markers : MvMarkerPresenter
            {
                using MvMarkerPresenter::MvMarkerPresenter;
                QList<MarkerItem> markerList() override { return { { kMinInt, kMaxInt }, { kMaxInt, kMinInt } }; }
            } markers(nullptr, nullptr);
            const bool none = markers.normalMarkerImage(kMinInt).isNull() && markers.horverMarkerImage(kMaxInt).isNull()
                && markers.pressMarkerImage(-1).isNull() && MvMarkerPresenter::markerPaletteIndex(QColor()) == -1;
            QImage image(11, 14, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::red);
            markers.addMarkerImage(0, image, image, image);
            MvMarkerWidget widget(&markers, nullptr);
            widget.resize(400, 14);
            widget.grab(); // markers at both ends of the int range, each drawn with the image of colour 0
            const QRect farLeft = MvMarkerWidget::markerRect(kMinInt);
            const QRect farRight = MvMarkerWidget::markerRect(kMaxInt);
            return QVariant(none && farLeft.width() == 11 && farRight.width() == 11 && farRight.left() > kMaxInt - 20
                && farLeft.left() == kMinInt);
        },
        true);
    row(
        "marker dialog with a colour out of range",
        []() {
            MvMarkerParam param;
            param.colors = MvMarkerPresenter::markerPalette();
            param.colorIndex = kMaxInt;
            MvMarkerEditDialog dialog(param, nullptr);
            param.colors.clear();
            param.colorIndex = 3;
            MvMarkerEditDialog empty(param, nullptr);
            return QVariant(dialog.markerParam().colorIndex + empty.markerParam().colorIndex);
        },
        -2);
}

// The pure ruler.
void addPureRulerRows()
{
    row(
        "pure ruler at the extremes",
        []() {
            MvPureTimelineRulerWidget ruler;
            ruler.setFramerate({ 0, 0 });
            ruler.setFramerate({ kMaxInt, -1 });
            ruler.setTotalFrames(kMinFrame);
            ruler.setTotalFrames(kMaxFrame);
            handle(&ruler);
            ruler.setCurrentFrame(kMaxFrame);
            ruler.setCurrentFrame(kMinFrame);
            for (double x : { std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                     -std::numeric_limits<double>::infinity(), 1e300, -1e300 }) {
                ruler.setCurrentFramePixel(x);
                ruler.pixelToFrame(x);
            }
            ruler.frameToPixel(kMaxFrame);
            ruler.frameToPixel(kMinFrame);
            ruler.setTotalFrames(900);
            ruler.setFramerate({ 30, 1 });
            const bool inside = ruler.currentFrame() >= 0 && ruler.currentFrame() <= ruler.totalFrames();
            const bool visible = ruler.visibleStartFrame() >= 0 && ruler.visibleEndFrame() >= ruler.visibleStartFrame();
            return QVariant(inside && visible);
        },
        true);
}

}

class tst_MvBadInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsRefuseAndChangeNothing_data();
    void commandsRefuseAndChangeNothing();
    void withoutATimelineNothingHappens_data();
    void withoutATimelineNothingHappens();
    void widgetsTakeExtremes_data();
    void widgetsTakeExtremes();
};

void tst_MvBadInput::commandsRefuseAndChangeNothing_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<Call>("call");
    QTest::addColumn<QVariant>("result");
    QTest::addColumn<QString>("record");
    addSplitRows();
    addTrimDeleteAndMoveRows();
    addItemRows();
    addRequestRows();
    addPanelRows();
    addMediaRows();
    addTransitionAndEffectRows();
    addClipboardAndTrackRows();
    addKeyFrameRows();
    addPresenterRows();
}

void tst_MvBadInput::commandsRefuseAndChangeNothing()
{
    QFETCH(Prepare, prepare);
    QFETCH(Call, call);
    QFETCH(QVariant, result);
    QFETCH(QString, record);

    MvSampleHost host;
    prepare(host);
    host.log.clear();
    const QString before = host.snapshot();
    QCOMPARE(call(host), result);
    QCOMPARE(mvStateDiff(host.snapshot(), before), QString());
    QCOMPARE(host.timeline.checkInvariants(), QString());
    QCOMPARE(checkRecord(host.log, record), QString());
}

void tst_MvBadInput::withoutATimelineNothingHappens_data()
{
    QTest::addColumn<OrphanCall>("call");
    QTest::addColumn<QVariant>("result");
    QTest::addColumn<QString>("record");
    addOrphanCommandRows();
    addOrphanKeyFrameAndPlayheadRows();
    addOrphanRulerRows();
    addOrphanMediaRows();
    addOrphanClipboardAndTrackRows();
}

void tst_MvBadInput::withoutATimelineNothingHappens()
{
    QFETCH(OrphanCall, call);
    QFETCH(QVariant, result);
    QFETCH(QString, record);

    MvOrphanHost orphans;
    QCOMPARE(call(orphans), result);
    QCOMPARE(checkRecord(orphans.log, record), QString());
}

void tst_MvBadInput::widgetsTakeExtremes_data()
{
    QTest::addColumn<WidgetCall>("call");
    QTest::addColumn<QVariant>("result");
    addLoneWidgetRows();
    addMarkerWidgetRows();
    addPureRulerRows();
}

void tst_MvBadInput::widgetsTakeExtremes()
{
    QFETCH(WidgetCall, call);
    QFETCH(QVariant, result);

    MvLogCapture log; // quiet
    QCOMPARE(call(), result);
}

QTEST_MAIN(tst_MvBadInput)
#include "tst_MvBadInput.moc"
