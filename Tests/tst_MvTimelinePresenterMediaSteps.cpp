#include "MvMediaTestSupport.h"
#include "MvWaitDialog.h"

#include <QWidget>
#include <QtTest>

using namespace MvMediaTest;

// The steps of adding media that hosts and other commands call one by one: the zero-length
// filter, the VCG download and choice, the project-settings offer, the wait dialog and the
// announcement.
class tst_MvTimelinePresenterMediaSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zeroLengthFilter_data();
    void zeroLengthFilter();
    void vcgDownloadOrChoice_data();
    void vcgDownloadOrChoice();
    void vcgChoiceKeepsWhatTheSceneLeaves();
    void projectSettingsOffer_data();
    void projectSettingsOffer();
    void waitDialogIsCentredOverTheView();
    void succeededInsertionIsAnnouncedWhenAsked();
    void prepareAddMediaTellsWhetherTheItemIsLeft();
};

void tst_MvTimelinePresenterMediaSteps::zeroLengthFilter_data()
{
    QTest::addColumn<int>("mediaType");
    QTest::addColumn<qint64>("durationMs");
    QTest::addColumn<bool>("kept");

    QTest::newRow("video of length 0") << MediaType_Video << qint64(0) << false;
    QTest::newRow("shorter than a frame") << MediaType_Audio << qint64(20) << false;
    QTest::newRow("one frame") << MediaType_Audio << qint64(34) << true;
    QTest::newRow("screen recording of length 0") << MediaType_ScreenRecording << qint64(0) << true;
    QTest::newRow("compound of length 0") << MediaType_Compound << qint64(0) << true;
}

void tst_MvTimelinePresenterMediaSteps::zeroLengthFilter()
{
    QFETCH(int, mediaType);
    QFETCH(qint64, durationMs);
    QFETCH(bool, kept);
    Fixture f;
    Library library;
    IMvAbstractMediaItem* item = library.local(QStringLiteral("sample clip"), mediaType, durationMs);
    IMvAbstractMediaItem* other = library.local(QStringLiteral("other"));

    const Items prepared = f.presenter->prepareAddMedias({ item, other, item }, nullptr);

    QCOMPARE(prepared, kept ? Items({ item, other, item }) : Items({ other }));
    const QString logged = QStringLiteral("remove media with 0 length: sample clip");
    if (kept)
        QVERIFY(f.log.find(logged).isEmpty());
    else
        QCOMPARE(f.log.find(logged).size(), 2); // listed twice, removed twice
    if (!kept) {
        const MvLogRecord record = f.log.find(logged).first();
        QCOMPARE(record.level, int(MvBaseLog::Refusal));
        QCOMPARE(record.function, PrepareFunction);
    }
}

void tst_MvTimelinePresenterMediaSteps::vcgDownloadOrChoice_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("message");
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("flag");

    QTest::newRow("not a vcg item") << "local" << 0 << "" << false;
    QTest::newRow("description not downloaded")
        << "undownloaded" << MessageId::DownloadMediaItems << "undownloaded" << true;
    QTest::newRow("two resolutions") << "two" << MessageId::SelectVCGResolution << "two" << false;
    QTest::newRow("one resolution") << "one" << 0 << "one local" << false;
}

void tst_MvTimelinePresenterMediaSteps::vcgDownloadOrChoice()
{
    QFETCH(QString, first);
    QFETCH(int, message);
    QFETCH(QString, result);
    QFETCH(bool, flag);
    Fixture f;
    Library library;
    const QHash<QString, IMvAbstractMediaItem*> byName { { QStringLiteral("local"),
                                                             library.local(QStringLiteral("local")) },
        { QStringLiteral("undownloaded"), library.vcg(QStringLiteral("undownloaded"), false, 2) },
        { QStringLiteral("two"), library.vcg(QStringLiteral("two"), true, 2) },
        { QStringLiteral("one"), library.vcg(QStringLiteral("one"), true, 1) } };
    bool downloadAsked = !flag;

    const Items items = f.presenter->downloadAndSelectVCGItems(
        { byName.value(first), byName.value(QStringLiteral("local")) }, &downloadAsked);

    QCOMPARE(namesOf(items).join(QLatin1Char(' ')), result);
    QCOMPARE(downloadAsked, flag);
    QCOMPARE(f.scene.ids(), message ? QList<int>({ message }) : QList<int>());
    if (message)
        QCOMPARE(f.scene.entries().first().payload.toStringList(), QStringList({ first }));
    QCOMPARE(f.log.find(QStringLiteral("not vcg item")).size(), first == QLatin1String("local") ? 1 : 0);
    if (first == QLatin1String("local"))
        QCOMPARE(mvCheckRecord(f.log, QStringLiteral("not vcg item"), MvBaseLog::Note,
                     QStringLiteral("MvTimelinePresenter::downloadAndSelectVCGItems")),
            QString());
    QVERIFY(f.presenter->downloadAndSelectVCGItems({}, nullptr).isEmpty());
}

void tst_MvTimelinePresenterMediaSteps::vcgChoiceKeepsWhatTheSceneLeaves()
{
    Fixture f;
    Library library;
    IMvAbstractMediaItem* local = library.local(QStringLiteral("local"));
    IMvAbstractMediaItem* vcg = library.vcg(QStringLiteral("vcg"), true, 2);
    IMvAbstractMediaItem* declined = library.vcg(QStringLiteral("declined"), true, 2);
    f.scene.answer(MessageId::SelectVCGResolution, [declined](MvMessage* message) {
        auto* items = static_cast<MvMediaItemsMessage*>(message);
        Items left = items->mediaItems();
        left.removeAll(declined);
        items->setMediaItems(left);
    });

    QCOMPARE(f.presenter->selectVCGMediaItems({ local }), Items({ local }));
    QCOMPARE(f.presenter->selectVCGMediaItems({ local, vcg, declined }), Items({ vcg }));

    QCOMPARE(f.scene.ids(), QList<int>({ MessageId::SelectVCGResolution }));
    QCOMPARE(f.scene.entries().first().payload.toStringList(),
        QStringList({ QStringLiteral("vcg"), QStringLiteral("declined") }));
}

void tst_MvTimelinePresenterMediaSteps::projectSettingsOffer_data()
{
    QTest::addColumn<QString>("items");
    QTest::addColumn<QString>("offered");

    QTest::newRow("none carries settings") << "plain plain2"
                                           << "-";
    QTest::newRow("the first that does") << "plain flagged recording"
                                         << "flagged";
    QTest::newRow("screen recording without info") << "null recording flagged"
                                                   << "recording";
    QTest::newRow("compound type") << "compound flagged"
                                   << "compound";
    QTest::newRow("made from the project: never") << "ownProject flagged"
                                                  << "flagged";
    QTest::newRow("info without the bit") << "unflagged"
                                          << "-";
}

void tst_MvTimelinePresenterMediaSteps::projectSettingsOffer()
{
    QFETCH(QString, items);
    QFETCH(QString, offered);
    Fixture f;
    Library library;
    MvMemoryMediaItem* flagged = library.local(QStringLiteral("flagged"));
    flagged->setMediaInfo(MediaInfoFlag_OwnVideoSettings, MvRational { 25, 1 }, QSize(1, 1));
    MvMemoryMediaItem* unflagged = library.local(QStringLiteral("unflagged"));
    unflagged->setMediaInfo(0x2, MvRational { 25, 1 }, QSize(1, 1));
    MvMemoryMediaItem* ownProject = library.local(QStringLiteral("ownProject"), MediaType_Compound);
    ownProject->setOrigin(MediaOrigin_Project);
    const QHash<QString, IMvAbstractMediaItem*> byName { { QStringLiteral("plain"),
                                                             library.local(QStringLiteral("plain")) },
        { QStringLiteral("plain2"), library.local(QStringLiteral("plain2")) }, { QStringLiteral("flagged"), flagged },
        { QStringLiteral("unflagged"), unflagged }, { QStringLiteral("ownProject"), ownProject },
        { QStringLiteral("recording"), library.local(QStringLiteral("recording"), MediaType_ScreenRecording) },
        { QStringLiteral("compound"), library.local(QStringLiteral("compound"), MediaType_Compound) } };
    Items request;
    for (const QString& name : items.split(QLatin1Char(' ')))
        request.append(byName.value(name));

    f.presenter->checkMatchProjectSettings(request);

    QCOMPARE(f.scene.count(MessageId::MatchProjectSettings), offered == QLatin1String("-") ? 0 : 1);
    if (offered != QLatin1String("-"))
        QCOMPARE(f.scene.entries().first().payload.toString(), offered);
}

void tst_MvTimelinePresenterMediaSteps::waitDialogIsCentredOverTheView()
{
    Fixture f;
    QScopedPointer<QDialog> orphan(f.presenter->getAddLoadingWgt());
    QVERIFY(qobject_cast<MvWaitDialog*>(orphan.data()));
    QCOMPARE(orphan->parentWidget(), nullptr);

    QWidget window;
    window.setGeometry(100, 80, 640, 480);
    auto* view = new QWidget(&window);
    view->setGeometry(40, 30, 301, 201);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    f.presenter->setView(view);
    QScopedPointer<QDialog> dialog(f.presenter->getAddLoadingWgt());

    QCOMPARE(dialog->parentWidget(), view);
    QVERIFY(dialog->isModal());
    QCOMPARE(dialog->size(), QSize(70, 70));
    // 301 / 2 - 70 / 2 = 115 and 201 / 2 - 70 / 2 = 65, in the view, on the screen.
    QCOMPARE(dialog->pos(), view->mapToGlobal(QPoint(115, 65)));
}

void tst_MvTimelinePresenterMediaSteps::succeededInsertionIsAnnouncedWhenAsked()
{
    Fixture f;
    Library library;
    IMvAbstractMediaItem* video = library.local(QStringLiteral("video"));
    int context = 0;
    void* received = nullptr;
    f.scene.answer(MessageId::AddMediaResponse, [&received](MvMessage* message) {
        received = static_cast<MvTimelineAddMediaResponseMessage*>(message)->context();
    });

    f.presenter->notifyAddMediaSucceed({ video }, &context, 5, false);
    f.presenter->notifyAddMediaSucceed({ video }, &context, 5, true);

    QCOMPARE(f.scene.ids(),
        QList<int>(
            { MessageId::SwitchPlayerToTimeline, MessageId::AddMediaResponse, MessageId::SwitchPlayerToTimeline }));
    QCOMPARE(received, static_cast<void*>(&context));
}

void tst_MvTimelinePresenterMediaSteps::prepareAddMediaTellsWhetherTheItemIsLeft()
{
    Fixture f;
    Library library;
    downloadIn(f, { QStringLiteral("fetched") });

    QVERIFY(f.presenter->prepareAddMedia(library.local(QStringLiteral("local"))));
    QVERIFY(f.presenter->prepareAddMedia(library.remote(QStringLiteral("fetched"))));
    QVERIFY(!f.presenter->prepareAddMedia(library.remote(QStringLiteral("unreachable"))));
    QVERIFY(!f.presenter->prepareAddMedia(nullptr));

    QCOMPARE(f.scene.count(MessageId::PausePlayerWithSync), 4);
    QCOMPARE(
        mvCheckRecord(f.log, QStringLiteral("media item is null"), MvBaseLog::Warning, PrepareFunction), QString());
}

QTEST_MAIN(tst_MvTimelinePresenterMediaSteps)
#include "tst_MvTimelinePresenterMediaSteps.moc"
