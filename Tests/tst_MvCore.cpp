#include "MvBaseLog.h"
#include "MvCustomEvent.h"
#include "MvMessage.h"
#include "MvPresenter.h"
#include "MvRecordingScene.h"
#include "MvScreen.h"
#include "MvUtility.h"

#include <QMainWindow>
#include <QtTest>

class tst_MvCore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void childPresenterUsesTheNearestPresenterScene();
    void ownSceneWinsOverTheParentScene();
    void sendingWithoutSceneReportsFalse();
    void sceneAnswersAQueryInPlace();
    void dataMessageCarriesDataBothWays();
    void logRecordsCarryEveryField();
    void logDropsRecordsBelowTheMinimumLevel();
    void removedSinkReceivesNothing();
    void customEventGoesToTheFirstConsumingListener();
    void destroyedListenerIsForgotten();
    void sharedEventReachesTheListenersTheFilterAdmits_data();
    void sharedEventReachesTheListenersTheFilterAdmits();
    void sharedEventsArriveInSendOrderAndAreNotKept();
    void nullSharedEventIsRefused();
    void fractionalScalesAreRecognised_data();
    void fractionalScalesAreRecognised();
    void mainWindowIsFoundAmongTopLevels();
    void everyRunIsOffscreenWithAFixedHashSeed();
};

void tst_MvCore::childPresenterUsesTheNearestPresenterScene()
{
    MvRecordingScene scene;
    MvPresenter root;
    root.setScene(&scene);
    QObject plain(&root);
    auto* child = new MvPresenter(&plain);

    QVERIFY(child->sendMessageToScene(7012));
    QCOMPARE(scene.ids(), QList<int>({ 7012 }));
    QCOMPARE(scene.entries().first().type, QStringLiteral("bare"));
}

void tst_MvCore::ownSceneWinsOverTheParentScene()
{
    MvRecordingScene parentScene;
    MvRecordingScene ownScene;
    MvPresenter root;
    root.setScene(&parentScene);
    auto* child = new MvPresenter(&root);
    child->setScene(&ownScene);

    MvMessage message(9006);
    child->sendMessageToScene(&message);
    QCOMPARE(ownScene.ids(), QList<int>({ 9006 }));
    QVERIFY(parentScene.entries().isEmpty());
}

void tst_MvCore::sendingWithoutSceneReportsFalse()
{
    MvPresenter presenter;
    MvMessage message(1);
    QVERIFY(!presenter.sendMessageToScene(1));
    QVERIFY(!presenter.sendMessageToScene(&message));
    QVERIFY(!presenter.sendMessageToScene(nullptr));
}

void tst_MvCore::sceneAnswersAQueryInPlace()
{
    MvRecordingScene scene;
    MvPresenter presenter;
    presenter.setScene(&scene);
    MvQueryMessage unanswered(7033);
    presenter.sendMessageToScene(&unanswered);
    QVERIFY(!unanswered.isAnswered());
    QVERIFY(!unanswered.asBool());

    scene.answerWith(7033, true);
    MvQueryMessage query(7033);
    presenter.sendMessageToScene(&query);
    QVERIFY(query.asBool());
    QCOMPARE(scene.entries().first().type, QStringLiteral("MvQueryMessage"));
}

void tst_MvCore::dataMessageCarriesDataBothWays()
{
    MvRecordingScene scene;
    scene.answer(1010, [](MvMessage* message) {
        auto* data = static_cast<MvDataMessage*>(message);
        QCOMPARE(data->data().toInt(), 5);
        data->setData(QVariantList { true, false });
    });
    MvPresenter presenter;
    presenter.setScene(&scene);
    MvDataMessage message(1010, 5);
    presenter.sendMessageToScene(&message);
    QCOMPARE(message.data().toList(), QVariantList({ true, false }));
}

void tst_MvCore::logRecordsCarryEveryField()
{
    MvLogCapture capture;
    MvBaseLog::defaultLogger()->log(16, QStringLiteral("Src/A"), 42, QStringLiteral("A::b"), QStringLiteral("text"));
    QCOMPARE(capture.records().size(), 1);
    const MvLogRecord record = capture.records().first();
    QCOMPARE(record.file, QStringLiteral("Src/A"));
    QCOMPARE(record.line, 42);
    QCOMPARE(record.function, QStringLiteral("A::b"));
    QCOMPARE(record.level, 16);
    QCOMPARE(record.message, QStringLiteral("text"));
}

void tst_MvCore::logDropsRecordsBelowTheMinimumLevel()
{
    MvLogCapture capture;
    MvBaseLog* logger = MvBaseLog::defaultLogger();
    logger->setMinimumLevel(8);
    logger->log(4, QString(), 1, QString(), QStringLiteral("note"));
    logger->log(8, QString(), 1, QString(), QStringLiteral("warning"));
    logger->log(16, QString(), 1, QString(), QStringLiteral("refusal"));
    logger->setMinimumLevel(0);
    QCOMPARE(capture.messages(), QStringList({ QStringLiteral("warning"), QStringLiteral("refusal") }));
}

void tst_MvCore::removedSinkReceivesNothing()
{
    MvLogCapture silence;
    int calls = 0;
    MvBaseLog* logger = MvBaseLog::defaultLogger();
    const int id = logger->addSink([&calls](const MvLogRecord&) { ++calls; });
    logger->log(2, QString(), 1, QString(), QStringLiteral("one"));
    logger->removeSink(id);
    logger->log(2, QString(), 1, QString(), QStringLiteral("two"));
    QCOMPARE(calls, 1);
    QCOMPARE(silence.messages().size(), 2);
}

void tst_MvCore::customEventGoesToTheFirstConsumingListener()
{
    QObject owner;
    QStringList calls;
    new MvCustomEventListener(&owner, QStringLiteral("Other"), [&calls](const MvCustomEventImp&) {
        calls << QStringLiteral("other");
        return true;
    });
    new MvCustomEventListener(&owner, QStringLiteral("Zoom"), [&calls](const MvCustomEventImp& e) {
        calls << QStringLiteral("first %1").arg(e.intValue());
        return false;
    });
    new MvCustomEventListener(&owner, QStringLiteral("Zoom"), [&calls](const MvCustomEventImp&) {
        calls << QStringLiteral("second");
        return true;
    });
    new MvCustomEventListener(&owner, QStringLiteral("Zoom"), [&calls](const MvCustomEventImp&) {
        calls << QStringLiteral("third");
        return true;
    });

    QVERIFY(MvCustomEventDispatcher::instance().sendEvent(QStringLiteral("Zoom"), { 7 }));
    QCOMPARE(calls, QStringList({ QStringLiteral("first 7"), QStringLiteral("second") }));
}

void tst_MvCore::destroyedListenerIsForgotten()
{
    const QString name = QStringLiteral("Gone");
    {
        QObject owner;
        new MvCustomEventListener(&owner, name, [](const MvCustomEventImp&) { return true; });
        QCOMPARE(MvCustomEventDispatcher::instance().listenerCount(name), 1);
    }
    QCOMPARE(MvCustomEventDispatcher::instance().listenerCount(name), 0);
    QVERIFY(!MvCustomEventDispatcher::instance().sendEvent(name));
}

void tst_MvCore::sharedEventReachesTheListenersTheFilterAdmits_data()
{
    QTest::addColumn<bool>("filtered");
    QTest::addColumn<QStringList>("admitted");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<bool>("consumed");

    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QString c = QStringLiteral("c");
    QTest::newRow("empty filter: all until the consumer") << false << QStringList() << QStringList { a, b } << true;
    QTest::newRow("filter admits all") << true << QStringList { a, b, c } << QStringList { a, b } << true;
    QTest::newRow("filter excludes the first") << true << QStringList { b, c } << QStringList { b } << true;
    QTest::newRow("filter excludes the consumer") << true << QStringList { a, c } << QStringList { a, c } << false;
    QTest::newRow("filter excludes everyone") << true << QStringList() << QStringList() << false;
}

// Listeners a, b and c listen for "Notice" in that order; b consumes what it receives.
void tst_MvCore::sharedEventReachesTheListenersTheFilterAdmits()
{
    QFETCH(bool, filtered);
    QFETCH(QStringList, admitted);
    QFETCH(QStringList, calls);
    QFETCH(bool, consumed);

    const QString name = QStringLiteral("Notice");
    QStringList received;
    QObject owners[3];
    QObject otherOwner;
    new MvCustomEventListener(&otherOwner, QStringLiteral("Other"), [&received](const MvCustomEventImp&) {
        received << QStringLiteral("other");
        return true;
    });
    for (int i = 0; i < 3; ++i) {
        const QString owner = QString(QLatin1Char('a' + i));
        owners[i].setObjectName(owner);
        new MvCustomEventListener(&owners[i], name, [&received, owner](const MvCustomEventImp& event) {
            const bool intact = event.values() == QVariantList({ 7, QStringLiteral("text") });
            received << (intact ? owner : owner + QStringLiteral(" (payload lost)"));
            return owner == QLatin1String("b");
        });
    }
    MvCustomEventDispatcher::Filter filter;
    if (filtered) {
        filter = [admitted](const MvCustomEventListener* listener) {
            return admitted.contains(listener->parent()->objectName());
        };
    }

    auto event = QSharedPointer<MvCustomEventImp>::create(name, QVariantList { 7, QStringLiteral("text") });
    QCOMPARE(MvCustomEventDispatcher::instance().sendEvent(event, filter), consumed);
    QCOMPARE(received, calls);
}

void tst_MvCore::sharedEventsArriveInSendOrderAndAreNotKept()
{
    const QString name = QStringLiteral("ShowCustomToast");
    QObject owner;
    QStringList texts;
    new MvCustomEventListener(&owner, name, [&texts](const MvCustomEventImp& event) {
        texts << event.value(2).toString();
        return false;
    });

    QList<QWeakPointer<MvCustomEventImp>> sent;
    for (const QString& text : { QStringLiteral("first"), QStringLiteral("second") }) {
        auto event = QSharedPointer<MvCustomEventImp>::create(name, QVariantList { QVariant(), false, text });
        sent << event;
        MvCustomEventDispatcher::instance().sendEvent(std::move(event), {});
    }
    QCOMPARE(texts, QStringList({ QStringLiteral("first"), QStringLiteral("second") }));
    QVERIFY(sent.at(0).isNull());
    QVERIFY(sent.at(1).isNull());
}

void tst_MvCore::nullSharedEventIsRefused()
{
    MvLogCapture capture;
    QObject owner;
    int calls = 0;
    new MvCustomEventListener(&owner, QString(), [&calls](const MvCustomEventImp&) { return ++calls > 0; });
    QVERIFY(!MvCustomEventDispatcher::instance().sendEvent(QSharedPointer<MvCustomEventImp>(), {}));
    QCOMPARE(calls, 0);
    const QList<MvLogRecord> records = capture.find(QStringLiteral("event is null"));
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().level, 16);
    QCOMPARE(records.first().function, QStringLiteral("MvCustomEventDispatcher::sendEvent"));
}

void tst_MvCore::fractionalScalesAreRecognised_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("fractional");
    QTest::newRow("1.0") << 1.0 << false;
    QTest::newRow("1.25") << 1.25 << true;
    QTest::newRow("1.5") << 1.5 << false;
    QTest::newRow("1.75") << 1.75 << true;
    QTest::newRow("2.0") << 2.0 << false;
}

void tst_MvCore::fractionalScalesAreRecognised()
{
    QFETCH(double, ratio);
    QFETCH(bool, fractional);
    MvScreen::setDevicePixelRatio(ratio);
    QCOMPARE(MvScreen::isPixelRatio25_75(), fractional);
    MvScreen::setDevicePixelRatio(0.0);
}

void tst_MvCore::mainWindowIsFoundAmongTopLevels()
{
    QWidget stray;
    QMainWindow window;
    QCOMPARE(MvUtility::gGetMainWindow(), &window);
}

// Set up by the test support before main, however the suite was started.
void tst_MvCore::everyRunIsOffscreenWithAFixedHashSeed()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("offscreen"));
    QCOMPARE(qGlobalQHashSeed(), 0);
    QCOMPARE(qgetenv("QT_FATAL_WARNINGS"), QByteArray("1"));
}

QTEST_MAIN(tst_MvCore)
#include "tst_MvCore.moc"
