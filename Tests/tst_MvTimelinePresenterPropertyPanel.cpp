#include "IMvKeyFrameSelector.h"
#include "MvCustomEvent.h"
#include "MvEditFixture.h"
#include "MvModelMessages.h"
#include "MvRecordingTimeline.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Every NotifySwtichPropertView raised while it lives, by its property type.
struct PropertViewRecorder
{
    QObject owner;
    QList<QVariantList> events;

    PropertViewRecorder()
    {
        new MvCustomEventListener(
            &owner, QLatin1String(MvEventName::NotifySwtichPropertView), [this](const MvCustomEventImp& event) {
                events.append(event.values());
                return false;
            });
    }
};

// Keeps every MvPropertyPanelShowMessage2 the scene gets, as "clip type/panel type".
void recordPanelRequests(MvRecordingScene& scene, QStringList& requests)
{
    scene.answer(MessageId::ShowPropertyPanel, [&requests](MvMessage* message) {
        const auto* request = dynamic_cast<MvPropertyPanelShowMessage2*>(message);
        QVERIFY(request);
        requests.append(QStringLiteral("%1/%2").arg(request->clipType()).arg(request->panelType()));
    });
}
}

class tst_MvTimelinePresenterPropertyPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showPropertyPanelSendsThePage_data();
    void showPropertyPanelSendsThePage();
    void propertyTypeOfEachClipType_data();
    void propertyTypeOfEachClipType();
    void showAdvancedColorAsksForTheColourEditor();
    void showAdvancedEditOpensThePageThenTheEditor_data();
    void showAdvancedEditOpensThePageThenTheEditor();
    void openAudioPropertyPanelFollowsTheKeyFrameSelection_data();
    void openAudioPropertyPanelFollowsTheKeyFrameSelection();
    void addAnimationShowsTheFirstSelectedClipsPanel_data();
    void addAnimationShowsTheFirstSelectedClipsPanel();
    void selectedKeyFrameChangedSelectsTheClipAndSeeks_data();
    void selectedKeyFrameChangedSelectsTheClipAndSeeks();
    void withoutATimelineNothingIsAsked();
};

void tst_MvTimelinePresenterPropertyPanel::showPropertyPanelSendsThePage_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("the selection's page") << -1;
    QTest::newRow("a given page") << 16;
}

void tst_MvTimelinePresenterPropertyPanel::showPropertyPanelSendsThePage()
{
    QFETCH(int, page);
    MvEditFixture<> f;
    const QString before = f.snapshot();

    f.presenter->showPropertyPanel(page);

    QCOMPARE(f.scene.ids(), QList<int>({ 9007 }));
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("MvDataMessage"));
    QCOMPARE(f.scene.entries().first().payload, QVariant(page));
    QCOMPARE(f.snapshot(), before);
}

void tst_MvTimelinePresenterPropertyPanel::propertyTypeOfEachClipType_data()
{
    QTest::addColumn<bool>("hasClip");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("propertyType");

    const int none = 0;
    const int audio = 16;
    const int picture = 0x10008;
    QTest::newRow("no clip") << false << 0 << none;
    QTest::newRow("type -1") << true << -1 << none;
    QTest::newRow("type 0") << true << 0 << none;
    QTest::newRow("1 audio") << true << 1 << audio;
    QTest::newRow("2 video") << true << 2 << picture;
    QTest::newRow("3 video with sound") << true << 3 << picture;
    QTest::newRow("4 image") << true << 4 << picture;
    QTest::newRow("5 text") << true << 5 << picture;
    QTest::newRow("6 sticker") << true << 6 << picture;
    QTest::newRow("7 effect") << true << 7 << none;
    QTest::newRow("8 filter") << true << 8 << none;
    QTest::newRow("9 adjustment") << true << 9 << picture;
    QTest::newRow("10 placeholder") << true << 10 << none;
    QTest::newRow("11 shape") << true << 11 << none;
    QTest::newRow("12 transition") << true << 12 << none;
    QTest::newRow("13 subtitle") << true << 13 << picture;
    QTest::newRow("14 title") << true << 14 << picture;
    QTest::newRow("15 compound") << true << 15 << picture;
    QTest::newRow("16 screen recording") << true << 16 << picture;
    QTest::newRow("17 music") << true << 17 << audio;
    QTest::newRow("18 sound effect") << true << 18 << audio;
    QTest::newRow("type 19") << true << 19 << none;
}

// The classification and the keyframe panel's switch read only the clip's type, so any clip forced
// to that type will do.
void tst_MvTimelinePresenterPropertyPanel::propertyTypeOfEachClipType()
{
    QFETCH(bool, hasClip);
    QFETCH(int, type);
    QFETCH(int, propertyType);
    MvEditFixture<> f;
    MvMemoryClip* clip = nullptr;
    if (hasClip) {
        clip = f.clip(0, 0, 99);
        MvMemoryClip::State forced = clip->state();
        forced.type = type;
        clip->setStateUnchecked(forced);
    }
    PropertViewRecorder recorder;

    QCOMPARE(f.presenter->getPropertyType(clip), propertyType);
    f.presenter->showKeyFrameCustomizePanel(clip);

    QCOMPARE(recorder.events, QList<QVariantList>({ { QVariant(propertyType) } }));
    QVERIFY(f.scene.entries().isEmpty());
}

void tst_MvTimelinePresenterPropertyPanel::showAdvancedColorAsksForTheColourEditor()
{
    MvEditFixture<> f;
    const QString before = f.snapshot();

    f.presenter->showAdvancedColor();

    QCOMPARE(f.scene.ids(), QList<int>({ 9019 }));
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("MvDataMessage"));
    QCOMPARE(f.scene.entries().first().payload, QVariant(true));
    QCOMPARE(f.snapshot(), before);
}

void tst_MvTimelinePresenterPropertyPanel::showAdvancedEditOpensThePageThenTheEditor_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<bool>("arg");
    QTest::addColumn<QList<int>>("ids");

    QTest::newRow("text") << "text" << true << QList<int>({ 9007, 9018 });
    QTest::newRow("text, arg false") << "text" << false << QList<int>({ 9007, 9018 });
    QTest::newRow("subtitle") << "subtitle" << true << QList<int>({ 9007, 9017 });
    QTest::newRow("title") << "title" << false << QList<int>({ 9007, 9020 });
    QTest::newRow("video with sound: the page only") << "video" << true << QList<int>({ 9007 });
    QTest::newRow("the current item is the first selected") << "video,text" << true << QList<int>({ 9007 });
    QTest::newRow("a transition: nothing") << "transition" << true << QList<int>();
    QTest::newRow("nothing selected: nothing") << "" << true << QList<int>();
}

void tst_MvTimelinePresenterPropertyPanel::showAdvancedEditOpensThePageThenTheEditor()
{
    QFETCH(QString, selection);
    QFETCH(bool, arg);
    QFETCH(QList<int>, ids);
    MvEditFixture<> f;
    const QHash<QString, IMvAbstractClip*> items { { QStringLiteral("text"), f.clip(0, 0, 99, ClipType_Text) },
        { QStringLiteral("subtitle"), f.clip(0, 100, 199, ClipType_Subtitle) },
        { QStringLiteral("title"), f.clip(0, 200, 299, ClipType_Title) },
        { QStringLiteral("video"), f.clip(1, 0, 99, ClipType_VideoWithAudio) } };
    IMvAbstractClip* transition
        = f.timeline.addTransition(dynamic_cast<MvMemoryClip*>(items.value(QStringLiteral("video"))),
            IMvTransition::AtEnd, 5, QStringLiteral("t"));
    QList<IMvAbstractClip*> selected;
    for (const QString& name : selection.split(QLatin1Char(','), Qt::SkipEmptyParts))
        selected.append(name == QLatin1String("transition") ? transition : items.value(name));
    f.timeline.selection()->selectItems(selected);
    const QString before = f.snapshot();

    f.presenter->showAdvancedEdit(arg);

    QCOMPARE(f.scene.ids(), ids);
    if (!ids.isEmpty())
        QCOMPARE(f.scene.entries().first().payload, QVariant(-1));
    if (ids.size() == 2) {
        QCOMPARE(f.scene.entries().last().type, QStringLiteral("MvDataMessage"));
        QCOMPARE(f.scene.entries().last().payload, QVariant(QVariantList({ true, arg })));
    }
    QCOMPARE(f.snapshot(), before);
}

void tst_MvTimelinePresenterPropertyPanel::openAudioPropertyPanelFollowsTheKeyFrameSelection_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QStringList>("requests");

    QTest::newRow("audio keyframes of music")
        << int(IMvKeyFrameSelector::AudioSide) << QStringList({ QStringLiteral("17/16") });
    QTest::newRow("video keyframes of a video")
        << int(IMvKeyFrameSelector::VideoSide) << QStringList({ QStringLiteral("3/16") });
    QTest::newRow("no keyframe selected") << int(IMvKeyFrameSelector::NoSide) << QStringList();
}

void tst_MvTimelinePresenterPropertyPanel::openAudioPropertyPanelFollowsTheKeyFrameSelection()
{
    QFETCH(int, side);
    QFETCH(QStringList, requests);
    MvEditFixture<> f;
    MvMemoryClip* video = f.clip(0, 0, 99, ClipType_VideoWithAudio);
    MvMemoryClip* music = f.clip(2, 0, 99, ClipType_Music);
    QVERIFY(video->addKeyFrame(false, 10, {}));
    QVERIFY(music->addKeyFrame(true, 20, {}));
    if (side == IMvKeyFrameSelector::AudioSide)
        f.timeline.keyFrameSelector()->select({ music, side, { 20 } });
    else if (side == IMvKeyFrameSelector::VideoSide)
        f.timeline.keyFrameSelector()->select({ video, side, { 10 } });
    QStringList sent;
    recordPanelRequests(f.scene, sent);
    const QString before = f.snapshot();

    f.presenter->openAudioPropertyPanel();

    QCOMPARE(sent, requests);
    QCOMPARE(f.scene.count(9040), requests.size());
    QCOMPARE(f.scene.entries().size(), requests.size());
    QCOMPARE(f.snapshot(), before);
}

void tst_MvTimelinePresenterPropertyPanel::addAnimationShowsTheFirstSelectedClipsPanel_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<int>("propertyType");

    QTest::newRow("music first") << "music,video" << 16;
    QTest::newRow("video first") << "video,music" << 0x10008;
    QTest::newRow("a transition first: no clip") << "transition,video" << 0;
    QTest::newRow("nothing selected") << "" << 0;
}

void tst_MvTimelinePresenterPropertyPanel::addAnimationShowsTheFirstSelectedClipsPanel()
{
    QFETCH(QString, selection);
    QFETCH(int, propertyType);
    MvEditFixture<> f;
    MvMemoryClip* video = f.clip(0, 0, 99);
    const QHash<QString, IMvAbstractClip*> items { { QStringLiteral("video"), video },
        { QStringLiteral("music"), f.clip(2, 0, 99, ClipType_Music) },
        { QStringLiteral("transition"),
            f.timeline.addTransition(video, IMvTransition::AtStart, 5, QStringLiteral("t")) } };
    QList<IMvAbstractClip*> selected;
    for (const QString& name : selection.split(QLatin1Char(','), Qt::SkipEmptyParts))
        selected.append(items.value(name));
    f.timeline.selection()->selectItems(selected);
    PropertViewRecorder recorder;

    f.presenter->addAnimation();

    QCOMPARE(recorder.events, QList<QVariantList>({ { QVariant(propertyType) } }));
}

void tst_MvTimelinePresenterPropertyPanel::selectedKeyFrameChangedSelectsTheClipAndSeeks_data()
{
    QTest::addColumn<QString>("clip");
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<qint64>("playhead");

    QTest::newRow("a clip's keyframe: a frame of the clip")
        << "c1" << qint64(30) << "selection:selectItem c1 playhead:setCurrentFrame 130"
        << "c1" << qint64(130);
    QTest::newRow("its first frame") << "c0" << qint64(0) << "selection:selectItem c0 playhead:setCurrentFrame 0"
                                     << "c0" << qint64(0);
    QTest::newRow("no clip: nothing selected, the frame as it is")
        << "" << qint64(40) << "selection:selectItem - playhead:setCurrentFrame 40"
        << "" << qint64(40);
}

void tst_MvTimelinePresenterPropertyPanel::selectedKeyFrameChangedSelectsTheClipAndSeeks()
{
    QFETCH(QString, clip);
    QFETCH(qint64, frame);
    QFETCH(QString, asked);
    QFETCH(QString, selection);
    QFETCH(qint64, playhead);
    MvEditFixture<MvRecordingTimeline> f;
    MvMemoryClip* first = f.clip(0, 0, 99);
    MvMemoryClip* second = f.clip(1, 100, 199);
    f.select({ first, second });
    f.setPlayhead(60);
    const int undoCount = f.undoCount();
    f.journal.clear();

    f.presenter->selectedKeyFrameChanged(clip == QLatin1String("c0") ? first
            : clip == QLatin1String("c1")                            ? second
                                                                     : nullptr,
        frame);

    QCOMPARE(f.journalText(), asked);
    QCOMPARE(f.timeline.clipNames(f.timeline.selection()->selectedClips()), selection);
    QCOMPARE(f.playhead(), playhead);
    QCOMPARE(f.undoCount(), undoCount);
    QVERIFY(f.scene.entries().isEmpty());
}

void tst_MvTimelinePresenterPropertyPanel::withoutATimelineNothingIsAsked()
{
    MvRecordingScene scene;
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.setScene(&scene);
    PropertViewRecorder recorder;

    presenter.showAdvancedEdit(true);
    presenter.openAudioPropertyPanel();
    presenter.selectedKeyFrameChanged(nullptr, 10);
    presenter.addAnimation();

    QVERIFY(scene.entries().isEmpty());
    QCOMPARE(recorder.events, QList<QVariantList>({ { QVariant(0) } }));
}

QTEST_MAIN(tst_MvTimelinePresenterPropertyPanel)
#include "tst_MvTimelinePresenterPropertyPanel.moc"
