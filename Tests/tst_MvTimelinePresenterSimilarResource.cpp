#include "MvEditFixture.h"
#include "MvModelMessages.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString kFunction = QStringLiteral("MvTimelinePresenter::searchSimilarResource");

// A picture row and an audio row: stock footage from an online library (0..99), the user's own
// video (100..199), a sticker shipped with the editor (200..299), online music, and an online wipe
// at the start of the stock footage.
struct Library : MvEditFixture<>
{
    MvMemoryClip* stock = clip(0, 0, 99);
    MvMemoryClip* own = clip(0, 100, 199);
    MvMemoryClip* sticker = clip(0, 200, 299, ClipType_Sticker);
    MvMemoryClip* music = clip(2, 0, 299, ClipType_Music);
    MvMemoryTransition* wipe = timeline.addTransition(stock, IMvTransition::AtStart, 10, QStringLiteral("wipe"));
    QStringList requests; // each request as "id provider guid "title" category"

    Library()
    {
        stock->setResource({ 20417, 1, QStringLiteral("stock-20417"), QStringLiteral("Fishing boats") });
        sticker->setResource({ 118, MvMemoryResource::BuiltIn, QStringLiteral("sticker-118"), QStringLiteral("Gull") });
        music->setResource({ 3310, 2, QStringLiteral("music-3310"), QStringLiteral("Sea breeze") });
        wipe->setResource({ 5, 1, QStringLiteral("transition-5"), QStringLiteral("Wipe") });
        scene.answer(MessageId::MediaLibraryFindSimilar, [this](MvMessage* message) {
            const auto* request = dynamic_cast<MvMediaLibraryFindSimilarMessage*>(message);
            QVERIFY(request);
            const ResourceInfoData data = request->resourceInfoData();
            requests.append(QStringLiteral("%1 %2 %3 \"%4\" %5")
                                .arg(data.resourceId)
                                .arg(data.providerId)
                                .arg(data.resourceGuid, request->title())
                                .arg(request->categoryType()));
        });
    }

    IMvAbstractClip* item(const QString& name)
    {
        const QHash<QString, IMvAbstractClip*> items { { QStringLiteral("stock"), stock },
            { QStringLiteral("own"), own }, { QStringLiteral("sticker"), sticker }, { QStringLiteral("music"), music },
            { QStringLiteral("wipe"), wipe } };
        return items.value(name);
    }
    void selectNamed(const QString& names)
    {
        QList<IMvAbstractClip*> items;
        for (const QString& name : names.split(QLatin1Char(','), Qt::SkipEmptyParts))
            items.append(item(name));
        timeline.selection()->selectItems(items);
    }
};
}

class tst_MvTimelinePresenterSimilarResource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void canSearch_data();
    void canSearch();
    void searchAsksTheLibraryAfterHidingThePanel_data();
    void searchAsksTheLibraryAfterHidingThePanel();
    void searchRefuses_data();
    void searchRefuses();
    void withoutATimelineNothingIsAsked();
};

void tst_MvTimelinePresenterSimilarResource::canSearch_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<bool>("can");

    QTest::newRow("nothing selected") << "" << false;
    QTest::newRow("online stock footage") << "stock" << true;
    QTest::newRow("online music") << "music" << true;
    QTest::newRow("online transition") << "wipe" << true;
    QTest::newRow("the user's own video") << "own" << false;
    QTest::newRow("a sticker the library does not index") << "sticker" << false;
    QTest::newRow("two library clips") << "stock,music" << false;
}

void tst_MvTimelinePresenterSimilarResource::canSearch()
{
    QFETCH(QString, selection);
    QFETCH(bool, can);
    Library f;
    f.selectNamed(selection);

    QCOMPARE(f.presenter->canSearchSimilarResource(), can);
}

void tst_MvTimelinePresenterSimilarResource::searchAsksTheLibraryAfterHidingThePanel_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("request");

    QTest::newRow("stock footage, video shelf") << "stock"
                                                << "20417 1 stock-20417 \"Fishing boats\" 1";
    QTest::newRow("music, music shelf") << "music"
                                        << "3310 2 music-3310 \"Sea breeze\" 3";
    QTest::newRow("transition, transition shelf") << "wipe"
                                                  << "5 1 transition-5 \"Wipe\" 9";
    // The host offers the command only where the library indexes the resource; asked anyway, the
    // presenter still hands the request on.
    QTest::newRow("a resource the search does not know") << "sticker"
                                                         << "118 0 sticker-118 \"Gull\" 6";
}

void tst_MvTimelinePresenterSimilarResource::searchAsksTheLibraryAfterHidingThePanel()
{
    QFETCH(QString, selection);
    QFETCH(QString, request);
    Library f;
    f.selectNamed(selection);
    const QString before = f.snapshot();
    f.journal.clear();

    f.presenter->searchSimilarResource();

    QCOMPARE(f.requests, QStringList({ request }));
    QCOMPARE(f.journalText(), QStringLiteral("scene:9006 scene:9061"));
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("MvMessage"));
    QCOMPARE(f.scene.entries().last().type, QStringLiteral("MvMediaLibraryFindSimilarMessage"));
    QCOMPARE(f.snapshot(), before);
    QVERIFY(f.log.records().isEmpty());
}

void tst_MvTimelinePresenterSimilarResource::searchRefuses_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("record");

    QTest::newRow("nothing selected") << ""
                                      << "select clips: 0, is not 1";
    QTest::newRow("two items") << "stock,wipe"
                               << "select clips: 2, is not 1";
    QTest::newRow("the user's own video") << "own"
                                          << "selected clip type: 2, resource info is nullptr";
}

void tst_MvTimelinePresenterSimilarResource::searchRefuses()
{
    QFETCH(QString, selection);
    QFETCH(QString, record);
    Library f;
    f.selectNamed(selection);
    const QString before = f.snapshot();

    f.presenter->searchSimilarResource();

    QVERIFY(f.scene.entries().isEmpty());
    QCOMPARE(f.snapshot(), before);
    QCOMPARE(mvCheckRecord(f.log, record, MvBaseLog::Refusal, kFunction), QString());
    QCOMPARE(f.log.records().size(), 1);
}

void tst_MvTimelinePresenterSimilarResource::withoutATimelineNothingIsAsked()
{
    MvRecordingScene scene;
    MvLogCapture log;
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.setScene(&scene);

    QVERIFY(!presenter.canSearchSimilarResource());
    presenter.searchSimilarResource();

    QVERIFY(scene.entries().isEmpty());
    QCOMPARE(mvCheckRecord(log, QStringLiteral("select clips: 0, is not 1"), MvBaseLog::Refusal, kFunction), QString());
}

QTEST_MAIN(tst_MvTimelinePresenterSimilarResource)
#include "tst_MvTimelinePresenterSimilarResource.moc"
