#include "IMvTrack.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvEventBus.h"

#include <QtTest>

#include <memory>

using namespace MVVBLMODEL;

namespace {
// Two services to hold by, as two open timelines have.
struct Services
{
    MvMemoryTimeline first;
    MvMemoryTimeline second;
    IMvUndoRedoService* a = first.undoRedoService();
    IMvUndoRedoService* b = second.undoRedoService();
};

int keyA = 0;
int keyB = 0;
}

class tst_MvEventBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void deliveries_data();
    void deliveries();
    void aDeliveryMayPostAgain();
    void cancelledDeliveriesNeverCome();
    void aModelRepaintsOncePerBatch();
    void aClosedTimelineLeavesNothingBehind();
};

void tst_MvEventBus::cleanup()
{
    // A failed case must not leave its batches open for the next.
    while (globalEventBus()->batchDepth() > 0)
        globalEventBus()->endBatch();
}

void tst_MvEventBus::deliveries_data()
{
    // Commands: "[a" / "[b" / "[*" begin a batch over service a, b or none; "]" ends the last;
    // "a1" posts under service a with key 1 (key 2 likewise), delivering its own name.
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("delivered"); // in order, "|" where a command delivered nothing

    QTest::newRow("no batch: at once") << "a1 a1"
                                       << "a1 a1";
    QTest::newRow("a batch holds and merges one key") << "[a a1 a1 ]"
                                                      << "| | | a1";
    QTest::newRow("one delivery per key, in first-posted order") << "[a a1 a2 a1 ]"
                                                                 << "| | | | a1 a2";
    QTest::newRow("nested batches: the outermost end delivers") << "[a a1 [a a1 ] a1 ]"
                                                                << "| | | | | | a1";
    QTest::newRow("another service is not held") << "[a b1 ]"
                                                 << "| b1 |";
    QTest::newRow("each service delivers at the end of its own batch") << "[a [b a1 b2 ] ]"
                                                                       << "| | | | b2 a1";
    QTest::newRow("a batch over no service holds every service") << "[* a1 b2 ]"
                                                                 << "| | | a1 b2";
    QTest::newRow("an end without a batch does nothing") << "] a1"
                                                         << "| a1";
}

void tst_MvEventBus::deliveries()
{
    QFETCH(QString, script);
    QFETCH(QString, delivered);
    Services services;
    MvEventBus* bus = globalEventBus();
    QStringList log;
    QStringList got;

    for (const QString& command : script.split(QLatin1Char(' '))) {
        if (command == QLatin1String("]")) {
            bus->endBatch();
        } else if (command.startsWith(QLatin1Char('['))) {
            const QChar which = command.at(1);
            bus->beginBatch(which == QLatin1Char('a') ? services.a : which == QLatin1Char('b') ? services.b : nullptr);
        } else {
            const IMvUndoRedoService* service = command.at(0) == QLatin1Char('a') ? services.a : services.b;
            const void* key = command.at(1) == QLatin1Char('1') ? &keyA : &keyB;
            bus->post(service, key, [&got, command] { got.append(command); });
        }
        log.append(got.isEmpty() ? QStringLiteral("|") : got.join(QLatin1Char(' ')));
        got.clear();
    }

    QCOMPARE(log.join(QLatin1Char(' ')), delivered);
    QCOMPARE(bus->batchDepth(), 0);
}

void tst_MvEventBus::aDeliveryMayPostAgain()
{
    Services services;
    MvEventBus* bus = globalEventBus();
    QStringList got;
    bus->beginBatch(services.a);
    bus->post(services.a, &keyA, [&] {
        got.append(QStringLiteral("first"));
        bus->post(services.a, &keyA, [&got] { got.append(QStringLiteral("again")); });
    });

    bus->endBatch();

    QCOMPARE(got, (QStringList { QStringLiteral("first"), QStringLiteral("again") }));
}

void tst_MvEventBus::cancelledDeliveriesNeverCome()
{
    Services services;
    MvEventBus* bus = globalEventBus();
    QStringList got;
    bus->beginBatch(services.a);
    bus->post(services.a, &keyA, [&got] { got.append(QStringLiteral("a")); });
    bus->post(services.a, &keyB, [&got] { got.append(QStringLiteral("b")); });

    bus->cancel(&keyA);
    bus->endBatch();

    QCOMPARE(got, QStringList { QStringLiteral("b") });
}

void tst_MvEventBus::aModelRepaintsOncePerBatch()
{
    MvMemoryTimeline timeline;
    timeline.addTrack(TrackType_Picture);
    timeline.addTrack(TrackType_Audio);
    int repaints = 0;
    timeline.addChangeListener([&repaints] { ++repaints; });

    // Three edits, three steps, one repaint at the end of the batch.
    globalEventBus()->beginBatch(timeline.undoRedoService());
    timeline.trackAt(0)->setLocked(true);
    timeline.trackAt(1)->setMuted(true);
    timeline.trackAt(1)->setVisible(false, true);
    QCOMPARE(repaints, 0);
    globalEventBus()->endBatch();

    QCOMPARE(repaints, 1);
    QCOMPARE(timeline.undoRedoService()->undoCount(), 3);
    // Outside a batch, each step repaints.
    timeline.undoRedoService()->undo();
    timeline.undoRedoService()->undo();
    QCOMPARE(repaints, 3);
}

void tst_MvEventBus::aClosedTimelineLeavesNothingBehind()
{
    int repaints = 0;
    globalEventBus()->beginBatch(nullptr);
    {
        MvMemoryTimeline timeline;
        timeline.addTrack(TrackType_Picture);
        timeline.addChangeListener([&repaints] { ++repaints; });
        timeline.trackAt(0)->setLocked(true);
    }
    globalEventBus()->endBatch();

    QCOMPARE(repaints, 0);
}

QTEST_MAIN(tst_MvEventBus)
#include "tst_MvEventBus.moc"
