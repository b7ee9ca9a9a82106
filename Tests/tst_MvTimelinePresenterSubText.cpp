#include "MvEditFixture.h"
#include "MvModelMessages.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
const QString kFunction = QStringLiteral("MvTimelinePresenter::selectAllSubTextClips");

// A text item 0..99 on row 0 composed of layers given as "p:name" (primary text), "s:name"
// (secondary text) or "k:name" (sticker), a plain text 100..199 beside it and a video 0..99 on
// row 1; what the media editor is asked to select is kept as "name name|replace".
struct Composed : MvEditFixture<>
{
    MvMemoryClip* item = clip(0, 0, 99, ClipType_Text);
    MvMemoryClip* plainText = clip(0, 100, 199, ClipType_Text);
    MvMemoryClip* video = clip(1, 0, 99);
    MvMemoryTransition* fade = timeline.addTransition(video, IMvTransition::AtEnd, 10, QStringLiteral("fade"));
    QStringList requests;

    explicit Composed(const QString& layers = QString())
    {
        for (const QString& layer : layers.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QChar kind = layer.at(0);
            timeline.addChildClip(item, kind == QLatin1Char('k') ? ClipType_Sticker : ClipType_Text, layer.mid(2),
                kind == QLatin1Char('s'));
        }
        scene.answer(MessageId::MediaEditorSelectClip, [this](MvMessage* message) {
            const auto* request = dynamic_cast<MvMediaEditorSelectClipMessage*>(message);
            QVERIFY(request);
            QStringList names;
            for (const IMvClip* clip : request->clips())
                names.append(clip->name());
            requests.append(names.join(QLatin1Char(' '))
                + (request->replacesSelection() ? QStringLiteral("|replace") : QStringLiteral("|add")));
        });
    }

    void selectNamed(const QString& names)
    {
        const QHash<QString, IMvAbstractClip*> byName { { QStringLiteral("item"), item },
            { QStringLiteral("plain"), plainText }, { QStringLiteral("video"), video },
            { QStringLiteral("transition"), fade } };
        QList<IMvAbstractClip*> items;
        for (const QString& name : names.split(QLatin1Char(','), Qt::SkipEmptyParts))
            items.append(byName.value(name));
        timeline.selection()->selectItems(items);
    }
};
}

class tst_MvTimelinePresenterSubText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void canSelectAllSubTextClips_data();
    void canSelectAllSubTextClips();
    void primaryLayersGoFirst_data();
    void primaryLayersGoFirst();
    void countRefusalIsLogged_data();
    void countRefusalIsLogged();
    void otherItemsAreRefusedSilently_data();
    void otherItemsAreRefusedSilently();
};

void tst_MvTimelinePresenterSubText::canSelectAllSubTextClips_data()
{
    QTest::addColumn<QString>("layers");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<bool>("can");

    QTest::newRow("composed text") << "p:name s:role"
                                   << "item" << true;
    QTest::newRow("only secondary texts") << "s:role"
                                          << "item" << true;
    QTest::newRow("stickers only") << "k:bar k:frame"
                                   << "item" << false;
    QTest::newRow("a plain text") << "p:name"
                                  << "plain" << false;
    QTest::newRow("a video") << "p:name"
                             << "video" << false;
    QTest::newRow("a transition") << "p:name"
                                  << "transition" << false;
    QTest::newRow("two items") << "p:name"
                               << "item,plain" << false;
    QTest::newRow("nothing") << "p:name"
                             << "" << false;
}

void tst_MvTimelinePresenterSubText::canSelectAllSubTextClips()
{
    QFETCH(QString, layers);
    QFETCH(QString, selection);
    QFETCH(bool, can);
    Composed f(layers);
    f.selectNamed(selection);

    QCOMPARE(f.presenter->canSelectAllSubTextClips(), can);
}

void tst_MvTimelinePresenterSubText::primaryLayersGoFirst_data()
{
    QTest::addColumn<QString>("layers");
    QTest::addColumn<QString>("request");

    QTest::newRow("three primary, two secondary: the primary ones, in layer order") << "s:x p:a s:y p:b p:c"
                                                                                    << "a b c|replace";
    QTest::newRow("all secondary: all of them") << "s:x s:y"
                                                << "x y|replace";
    QTest::newRow("stickers are no texts") << "k:bar p:a k:frame s:x"
                                           << "a|replace";
    QTest::newRow("no text layers: an empty request still") << "k:bar"
                                                            << "|replace";
    QTest::newRow("no layers at all") << ""
                                      << "|replace";
}

void tst_MvTimelinePresenterSubText::primaryLayersGoFirst()
{
    QFETCH(QString, layers);
    QFETCH(QString, request);
    Composed f(layers);
    f.selectNamed(QStringLiteral("item"));
    const QString before = f.snapshot();

    f.presenter->selectAllSubTextClips();

    QCOMPARE(f.requests, QStringList({ request }));
    QCOMPARE(f.scene.ids(), QList<int>({ 9062 }));
    QCOMPARE(f.scene.entries().first().type, QStringLiteral("MvMediaEditorSelectClipMessage"));
    QCOMPARE(f.snapshot(), before);
    QVERIFY(f.log.records().isEmpty());
}

void tst_MvTimelinePresenterSubText::countRefusalIsLogged_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("record");

    QTest::newRow("nothing") << ""
                             << "select text clips: 0, is not 1";
    QTest::newRow("two texts") << "item,plain"
                               << "select text clips: 2, is not 1";
    QTest::newRow("a text and a transition") << "item,transition"
                                             << "select text clips: 2, is not 1";
}

void tst_MvTimelinePresenterSubText::countRefusalIsLogged()
{
    QFETCH(QString, selection);
    QFETCH(QString, record);
    Composed f(QStringLiteral("p:a"));
    f.selectNamed(selection);
    const QString before = f.snapshot();

    f.presenter->selectAllSubTextClips();

    QVERIFY(f.scene.entries().isEmpty());
    QCOMPARE(f.snapshot(), before);
    QCOMPARE(mvCheckRecord(f.log, record, MvBaseLog::Refusal, kFunction), QString());
    QCOMPARE(f.log.records().size(), 1);
}

void tst_MvTimelinePresenterSubText::otherItemsAreRefusedSilently_data()
{
    QTest::addColumn<QString>("selection");

    QTest::newRow("a video") << "video";
    QTest::newRow("a transition") << "transition";
}

void tst_MvTimelinePresenterSubText::otherItemsAreRefusedSilently()
{
    QFETCH(QString, selection);
    Composed f(QStringLiteral("p:a"));
    f.selectNamed(selection);
    const QString before = f.snapshot();

    f.presenter->selectAllSubTextClips();

    QVERIFY(f.scene.entries().isEmpty());
    QVERIFY(f.log.records().isEmpty());
    QCOMPARE(f.snapshot(), before);
}

QTEST_MAIN(tst_MvTimelinePresenterSubText)
#include "tst_MvTimelinePresenterSubText.moc"
