#include "IMvTransitionMediaItem.h"
#include "Memory/MvMemoryProjectManager.h"
#include "Memory/MvMemoryTransitionItems.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvClipTransitionHelper.h"
#include "MvCustomEvent.h"
#include "MvEditFixture.h"
#include "MvModelMessages.h"
#include "MvToast.h"

#include <QApplication>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString Function = QStringLiteral("MvTimelinePresenter::addTransitionMedia");
const QString TooShort = QStringLiteral("Clip is too short to add transition.");
const QString RepeatText
    = QStringLiteral("There is no extra media where the clips connect, This transition will contain duplicate frames");

class TransitionPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    using MvTimelinePresenter::showRepeatFrame;
};

// Rows 0, 1 pictures; 2, 3 sound (MvEditFixture). On row 0: a 0..59 and b 60..119, touching; a
// has 30 frames of media after its end, b 10 before its start.
struct Project
{
    MvEditFixture<MvMemoryTimeline, TransitionPresenter> f;
    MvMemoryProjectManager projects;
    MvMemoryTransitionMediaItem dissolve { QStringLiteral("Dissolve"), MvMemoryTransitionMediaItem::Dissolve, 1000 };
    MvMemoryTransitionMediaItem wipe { QStringLiteral("Wipe"), MvMemoryTransitionMediaItem::Wipe, 800 };
    MvMemoryTransitionMediaItem crossfade { QStringLiteral("Crossfade"), MvMemoryTransitionMediaItem::Crossfade, 1000 };
    MvMemoryMediaItem video { QStringLiteral("Sunset"), MediaType_Video, 4000 };
    MvMemoryClip* a;
    MvMemoryClip* b;

    // What each add-media response carried: "value | items | clip:item ...", the placement read
    // while the send lasts.
    QStringList responses;
    QStringList toasts;
    QObject toastOwner;

    Project()
    {
        a = f.timeline.addClip(0, ClipType_Video, 0, 59, QStringLiteral("a"));
        b = f.timeline.addClip(0, ClipType_Video, 60, 119, QStringLiteral("b"));
        a->setHandles(0, 30);
        b->setHandles(10, 0);
        f.timeline.undoService()->clear();
        projects.openProject(f.timeline.projectId());
        f.scene.answer(MessageId::AddMediaResponse, [this](MvMessage* message) {
            auto* response = static_cast<MvTimelineAddMediaResponseMessage*>(message);
            QStringList items;
            for (IMvAbstractMediaItem* item : response->mediaItems())
                items.append(item->name());
            QStringList placed;
            const auto* map = static_cast<const MvTransitionPlacement*>(response->context());
            for (auto it = map->cbegin(); it != map->cend(); ++it)
                placed.append(it.key()->ownerClip()->name() + QLatin1Char(':')
                    + dynamic_cast<IMvAbstractMediaItem*>(it.value())->name());
            placed.sort();
            responses.append(QStringLiteral("%1 | %2 | %3")
                                 .arg(response->value())
                                 .arg(items.join(QLatin1Char(',')), placed.join(QLatin1Char(' '))));
        });
        new MvCustomEventListener(
            &toastOwner, QLatin1String(MvEventName::ShowCustomToast), [this](const MvCustomEventImp& e) {
                toasts.append(e.value(2).toString());
                return false;
            });
    }
    TransitionPresenter* presenter() { return f.presenter.get(); }
    QString transitionsOf(const MvMemoryClip* clip) const
    {
        QStringList lines;
        for (const MvMemoryTransition* transition : clip->liveTransitions())
            lines.append(
                QStringLiteral("%1 %2..%3").arg(transition->name()).arg(transition->start()).arg(transition->end()));
        return lines.join(QLatin1String(", "));
    }
};

// Duplicate-frames notices on screen now.
int repeatToasts()
{
    int count = 0;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        auto* toast = qobject_cast<MvToast*>(widget);
        if (toast && toast->text() == RepeatText)
            ++count;
    }
    return count;
}

void closeToasts()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (qobject_cast<MvToast*>(widget))
            delete widget;
    }
}
}

class tst_MvTimelinePresenterTransitions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void droppedOnClipsGoesOverTheirCuts();
    void setFormRefusals_data();
    void setFormRefusals();
    void noClipGivenUsesTheOverlaps();
    void nothingPlacedIsStillAnswered();
    void oneClipEndTakesALoadedTransition();
    void oneClipEndUsesALoadedItemAsItIs();
    void noLengthAskedKeepsTheItemsOwn();
    void oneClipEndRefusals_data();
    void oneClipEndRefusals();
    void randomTransitionsForEveryCut();
    void randomWithNothingPlacedOrPrepared();
    void repeatFramesAreToldOncePerProject();
    void repeatFramesWithoutAProjectAreAlwaysTold();
    void enoughMediaNeedsNoNotice();
};

void tst_MvTimelinePresenterTransitions::cleanup()
{
    closeToasts();
}

void tst_MvTimelinePresenterTransitions::droppedOnClipsGoesOverTheirCuts()
{
    Project p;
    p.f.keepState();
    p.presenter()->addTransitionMedia({ p.a }, &p.dissolve, 20);

    QCOMPARE(p.transitionsOf(p.b), QStringLiteral("Dissolve 60..79"));
    QCOMPARE(p.responses, QStringList { QStringLiteral("2 | Dissolve | b:Dissolve") });
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7036, 3019, 7005 }));
    // The player is paused with sync before the model changes.
    QVERIFY(
        p.f.journal.indexOf(QStringLiteral("scene:7036")) < p.f.journal.indexOf(QStringLiteral("model:setTransition")));
    QVERIFY(p.toasts.isEmpty());
    QCOMPARE(repeatToasts(), 0); // a has 30 frames after its end
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("add transition"));
}

void tst_MvTimelinePresenterTransitions::setFormRefusals_data()
{
    QTest::addColumn<QString>("clips"); // names of the clips given
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("toast");
    QTest::addColumn<QString>("log");
    QTest::addColumn<int>("level");
    QTest::newRow("sound over clips without sound")
        << QStringLiteral("a") << QStringLiteral("Crossfade")
        << QStringLiteral("Please select the clip with audio in the timeline.")
        << QStringLiteral("cannot add audio transition") << 16;
    QTest::newRow("pictures over sound") << QStringLiteral("s") << QStringLiteral("Dissolve")
                                         << QStringLiteral("Please select the video clip in the timeline.")
                                         << QStringLiteral("cannot add transition") << 16;
    QTest::newRow("no clip and no overlap")
        << QString() << QStringLiteral("Dissolve") << QStringLiteral("Please select the video clip in the timeline.")
        << QStringLiteral("cannot add transition") << 16;
    QTest::newRow("no clip and no sound to blend")
        << QString() << QStringLiteral("Crossfade")
        << QStringLiteral("Please select the clip with audio in the timeline.")
        << QStringLiteral("cannot add audio transition") << 16;
    QTest::newRow("not a transition") << QStringLiteral("a") << QStringLiteral("Sunset") << QString()
                                      << QStringLiteral("not a transition item") << 16;
    QTest::newRow("not downloaded") << QStringLiteral("a") << QStringLiteral("Remote dissolve") << QString()
                                    << QStringLiteral("download media item fail") << 4;
}

void tst_MvTimelinePresenterTransitions::setFormRefusals()
{
    QFETCH(QString, clips);
    QFETCH(QString, item);
    QFETCH(QString, toast);
    QFETCH(QString, log);
    QFETCH(int, level);
    Project p;
    MvMemoryClip* s = p.f.timeline.addClip(2, ClipType_Audio, 0, 59, QStringLiteral("s"));
    p.f.timeline.addClip(2, ClipType_Audio, 60, 119, QStringLiteral("s2"));
    p.f.timeline.undoService()->clear();
    MvMemoryTransitionMediaItem remote(QStringLiteral("Remote dissolve"), MvMemoryTransitionMediaItem::Dissolve, 1000);
    remote.setRemote(true);
    QList<IMvClip*> given;
    if (clips == QLatin1String("a"))
        given = { p.a };
    else if (clips == QLatin1String("s"))
        given = { s };
    IMvAbstractMediaItem* chosen = item == QLatin1String("Crossfade") ? static_cast<IMvAbstractMediaItem*>(&p.crossfade)
        : item == QLatin1String("Sunset")                             ? static_cast<IMvAbstractMediaItem*>(&p.video)
        : item == QLatin1String("Remote dissolve")                    ? static_cast<IMvAbstractMediaItem*>(&remote)
                                                                      : static_cast<IMvAbstractMediaItem*>(&p.dissolve);
    const QString before = p.f.snapshot();

    p.presenter()->addTransitionMedia(given, chosen, 20);

    QCOMPARE(p.f.snapshot(), before);
    QCOMPARE(p.toasts, toast.isEmpty() ? QStringList() : QStringList { toast });
    const QString function = level == 4 ? QStringLiteral("MvTimelinePresenter::prepareAddMedias") : Function;
    QCOMPARE(mvCheckRecord(p.f.log, log, level, function), QString());
    QVERIFY(p.responses.isEmpty());
    QCOMPARE(p.f.scene.count(MessageId::SwitchPlayerToTimeline), 0);
}

void tst_MvTimelinePresenterTransitions::noClipGivenUsesTheOverlaps()
{
    Project p;
    // c starts on row 1 over a, 40 frames before a ends.
    p.f.timeline.addClip(1, ClipType_Video, 20, 99, QStringLiteral("c"));
    p.f.timeline.undoService()->clear();
    p.f.keepState();
    p.presenter()->addTransitionMedia({}, &p.wipe, 30);
    QCOMPARE(p.responses, QStringList({ QStringLiteral("2 | Wipe | b:Wipe c:Wipe") }));
    QCOMPARE(p.transitionsOf(p.b), QStringLiteral("Wipe 60..89"));
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("add transition"));
}

void tst_MvTimelinePresenterTransitions::nothingPlacedIsStillAnswered()
{
    Project p;
    MvMemoryClip* tiny = p.f.timeline.addClip(0, ClipType_Video, 120, 122, QStringLiteral("tiny"));
    p.f.timeline.undoService()->clear();
    const QString before = p.f.snapshot();
    p.presenter()->addTransitionMedia({ tiny }, &p.dissolve, 20);
    QCOMPARE(p.f.snapshot(), before);
    QCOMPARE(p.toasts, QStringList { TooShort });
    QCOMPARE(mvCheckRecord(p.f.log, TooShort, 8, Function), QString());
    QCOMPARE(p.responses, QStringList { QStringLiteral("2 | Dissolve | ") });
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7036, 3019, 7005 }));
}

void tst_MvTimelinePresenterTransitions::oneClipEndTakesALoadedTransition()
{
    Project p;
    p.f.keepState();
    QVERIFY(!p.dissolve.isLoaded());
    p.presenter()->addTransitionMedia(p.b, &p.dissolve, 20, TransitionType_Start);

    QCOMPARE(p.dissolve.loadCount(), 1);
    const QList<IMvTransition*> placed = p.b->transitionList()->transitions();
    QCOMPARE(placed.size(), 1);
    QVERIFY(!placed.first()->thumbnail().isNull());
    QCOMPARE(p.transitionsOf(p.b), QStringLiteral("Dissolve 60..79"));
    QCOMPARE(p.f.timeline.selection()->selectedItems(), QList<IMvAbstractClip*> { placed.first() });
    QCOMPARE(p.responses, QStringList { QStringLiteral("2 | Dissolve | b:Dissolve") });
    QCOMPARE(p.f.scene.ids(), QList<int>({ 7036, 3019, 7005 }));
    QVERIFY(p.toasts.isEmpty());
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("add transition"));
}

void tst_MvTimelinePresenterTransitions::oneClipEndUsesALoadedItemAsItIs()
{
    Project p;
    QVERIFY(p.wipe.load(MvTransitionLoadParam { 0, 2, QString(), 10, 1 }));
    p.presenter()->addTransitionMedia(p.a, &p.wipe, 10, TransitionType_End);
    QCOMPARE(p.wipe.loadCount(), 1);
    QCOMPARE(p.a->transitionList()->transitions().first()->thumbnail().size(), QSize(192, 54));
    QCOMPARE(p.transitionsOf(p.a), QStringLiteral("Wipe 50..59"));
}

void tst_MvTimelinePresenterTransitions::noLengthAskedKeepsTheItemsOwn()
{
    Project p;
    // At 25 frames per second the item's second would be 25 frames; nothing asked, the
    // transition keeps the length it was made with.
    p.f.timeline.setFrameRate(25, 1);
    p.presenter()->addTransitionMedia(p.b, &p.dissolve, 0, TransitionType_Start);
    QCOMPARE(p.transitionsOf(p.b), QStringLiteral("Dissolve 60..89"));
    p.presenter()->addTransitionMedia(p.b, &p.dissolve, 100, TransitionType_Start);
    QCOMPARE(p.transitionsOf(p.b), QStringLiteral("Dissolve 60..89")); // half the clip at most
    p.presenter()->addTransitionMedia(p.b, &p.dissolve, 12, TransitionType_Start);
    QCOMPARE(p.transitionsOf(p.b), QStringLiteral("Dissolve 60..71"));
}

void tst_MvTimelinePresenterTransitions::oneClipEndRefusals_data()
{
    QTest::addColumn<QString>("situation");
    QTest::addColumn<QString>("toast");
    QTest::addColumn<QString>("log");
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("function");
    const QString prepare = QStringLiteral("MvTimelinePresenter::prepareAddMedias");
    const QString refusedStart = QStringLiteral("Clip is too short to add transition. transitionType = 1");
    QTest::newRow("a clip too short") << QStringLiteral("short") << TooShort << refusedStart << 8 << Function;
    QTest::newRow("no such end") << QStringLiteral("end") << TooShort
                                 << QStringLiteral("Clip is too short to add transition. transitionType = 3") << 8
                                 << Function;
    QTest::newRow("sound on a silent clip") << QStringLiteral("silent") << TooShort << refusedStart << 8 << Function;
    QTest::newRow("no clip") << QStringLiteral("null clip") << TooShort << refusedStart << 8 << Function;
    QTest::newRow("the clip refuses it: longer than the clip")
        << QStringLiteral("refused") << QString() << QString() << 0 << QString();
    QTest::newRow("the item is not downloaded")
        << QStringLiteral("remote") << QString() << QStringLiteral("download media item fail") << 4 << prepare;
    QTest::newRow("no item") << QStringLiteral("null item") << QString() << QStringLiteral("media item is null") << 8
                             << prepare;
}

void tst_MvTimelinePresenterTransitions::oneClipEndRefusals()
{
    QFETCH(QString, situation);
    QFETCH(QString, toast);
    QFETCH(QString, log);
    QFETCH(int, level);
    QFETCH(QString, function);
    Project p;
    MvMemoryClip* shortClip = p.f.timeline.addClip(1, ClipType_Video, 0, 2, QStringLiteral("short"));
    MvMemoryClip* twenty = p.f.timeline.addClip(1, ClipType_Video, 10, 29, QStringLiteral("twenty"));
    p.f.timeline.undoService()->clear();
    MvMemoryTransitionMediaItem remote(QStringLiteral("Remote"), MvMemoryTransitionMediaItem::Wipe, 500);
    remote.setRemote(true);
    IMvClip* clip = p.b;
    IMvTransitionMediaItem* item = &p.dissolve;
    int type = TransitionType_Start;
    qint64 duration = 20;
    if (situation == QLatin1String("short"))
        clip = shortClip;
    else if (situation == QLatin1String("end"))
        type = 3;
    else if (situation == QLatin1String("silent"))
        item = &p.crossfade;
    else if (situation == QLatin1String("null clip"))
        clip = nullptr;
    else if (situation == QLatin1String("refused"))
        clip = twenty, duration = 0; // the item's own 30 frames
    else if (situation == QLatin1String("remote"))
        item = &remote;
    else if (situation == QLatin1String("null item"))
        item = nullptr;
    const QString before = p.f.snapshot();

    p.presenter()->addTransitionMedia(clip, item, duration, type);

    QCOMPARE(p.f.snapshot(), before);
    QCOMPARE(p.toasts, toast.isEmpty() ? QStringList() : QStringList { toast });
    if (!log.isEmpty())
        QCOMPARE(mvCheckRecord(p.f.log, log, level, function), QString());
    // Nothing else is said: the refusal of the clip itself is silent.
    for (const MvLogRecord& record : p.f.log.records())
        QVERIFY2(record.message == log, qPrintable(record.message));
    QVERIFY(p.responses.isEmpty());
    QCOMPARE(p.f.scene.count(MessageId::SwitchPlayerToTimeline), 0);
}

void tst_MvTimelinePresenterTransitions::randomTransitionsForEveryCut()
{
    Project p;
    MvMemoryClip* c = p.f.timeline.addClip(0, ClipType_Video, 120, 179, QStringLiteral("c"));
    c->setHandles(60, 0);
    p.b->setHandles(10, 60); // enough on both sides of every cut
    p.f.timeline.undoService()->clear();
    p.f.keepState();
    p.presenter()->randomAddTransitionMedia({ p.a, p.b, c }, { &p.dissolve, &p.video, &p.wipe }, 10);

    QCOMPARE(p.responses.size(), 1);
    const QString response = p.responses.first();
    QVERIFY2(response.startsWith(QLatin1String("2 | Dissolve,Sunset,Wipe | b:")), qPrintable(response));
    QCOMPARE(response.count(QLatin1Char(':')), 2);
    QVERIFY2(!response.contains(QLatin1String(":Sunset")), qPrintable(response));
    QVERIFY(p.toasts.isEmpty());
    QCOMPARE(repeatToasts(), 0);
    p.f.keepState();
    QCOMPARE(p.f.walkUndo(), QStringLiteral("random transitions"));
}

void tst_MvTimelinePresenterTransitions::randomWithNothingPlacedOrPrepared()
{
    Project p;
    MvMemoryClip* alone = p.f.timeline.addClip(1, ClipType_Video, 0, 59, QStringLiteral("alone"));
    p.f.timeline.undoService()->clear();
    const QString before = p.f.snapshot();
    p.presenter()->randomAddTransitionMedia({ alone }, { &p.dissolve }, 10);
    QCOMPARE(p.f.snapshot(), before);
    QCOMPARE(p.toasts, QStringList { TooShort });
    QVERIFY(p.f.log.find(TooShort).isEmpty()); // this path logs nothing
    QCOMPARE(p.responses, QStringList { QStringLiteral("2 | Dissolve | ") });
    QCOMPARE(p.f.scene.count(MessageId::SwitchPlayerToTimeline), 1);

    p.responses.clear();
    p.toasts.clear();
    MvMemoryTransitionMediaItem remote(QStringLiteral("Remote"), MvMemoryTransitionMediaItem::Wipe, 500);
    remote.setRemote(true);
    p.presenter()->randomAddTransitionMedia({ p.a, p.b }, { &remote }, 10);
    QCOMPARE(p.f.snapshot(), before);
    QVERIFY(p.toasts.isEmpty());
    QVERIFY(p.responses.isEmpty());
}

void tst_MvTimelinePresenterTransitions::repeatFramesAreToldOncePerProject()
{
    Project p;
    p.a->setHandles(0, 5); // too little of a for a 20-frame transition over a|b
    MvMemoryClip* c = p.f.timeline.addClip(0, ClipType_Video, 120, 179, QStringLiteral("c"));
    p.f.timeline.undoService()->clear();
    IMvProjectSettings* settings = p.projects.currentProjectSettings();
    QVERIFY(!settings->isRepeatFrameTipShown());

    p.presenter()->addTransitionMedia({ p.a }, &p.dissolve, 20);
    QCOMPARE(repeatToasts(), 1);
    QVERIFY(settings->isRepeatFrameTipShown());
    p.presenter()->addTransitionMedia(c, &p.wipe, 20, TransitionType_Start); // b has no media after it
    QCOMPARE(repeatToasts(), 1);
    QCOMPARE(p.responses.size(), 2);

    // Another project starts without the notice shown.
    p.projects.openProject(p.f.timeline.projectId() + 1);
    p.presenter()->showRepeatFrame();
    QCOMPARE(repeatToasts(), 2);
}

void tst_MvTimelinePresenterTransitions::repeatFramesWithoutAProjectAreAlwaysTold()
{
    Project p;
    p.projects.closeProject(p.f.timeline.projectId());
    p.presenter()->showRepeatFrame();
    p.presenter()->showRepeatFrame();
    QCOMPARE(repeatToasts(), 2);
}

void tst_MvTimelinePresenterTransitions::enoughMediaNeedsNoNotice()
{
    Project p;
    p.presenter()->addTransitionMedia(p.b, &p.dissolve, 30, TransitionType_Start); // a has 30 after
    QCOMPARE(p.transitionsOf(p.b), QStringLiteral("Dissolve 60..89"));
    QCOMPARE(repeatToasts(), 0);
    QVERIFY(!p.projects.currentProjectSettings()->isRepeatFrameTipShown());
    p.presenter()->addTransitionMedia(p.a, &p.dissolve, 11, TransitionType_End); // b has 10 before
    QCOMPARE(repeatToasts(), 1);
}

QTEST_MAIN(tst_MvTimelinePresenterTransitions)
#include "tst_MvTimelinePresenterTransitions.moc"
