#include "Memory/MvMemoryRenderService.h"

#include <QtTest>

#include <functional>

namespace {
class RenderRecorder : public IMvTimelineRenderEventObserver
{
public:
    QStringList calls;
    std::function<void()> onChange;

    void onPrepareStart() override { calls.append(QStringLiteral("prepare")); }
    void onFinished() override { calls.append(QStringLiteral("finished")); }
    void onStop() override { calls.append(QStringLiteral("stop")); }
    void onError(int code) override { calls.append(QStringLiteral("error %1").arg(code)); }
    void onSegmentsChanged() override
    {
        calls.append(QStringLiteral("segments"));
        if (onChange)
            onChange();
    }
};

using Segments = QList<MvRenderSegment>;

MvRenderSegment done(qint64 start, qint64 end)
{
    return { start, end, 0 };
}

MvRenderSegment pending(qint64 start, qint64 end)
{
    return { start, end, 1 };
}
}

Q_DECLARE_METATYPE(MvRenderSegment)

class tst_MvMemoryRenderService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setSegmentsKeepsTheListAsGiven();
    void markingRewritesTheList_data();
    void markingRewritesTheList();
    void reversedStretchIsRefused();
    void changesAreToldOnlyWhenTheListChanges();
    void renderNextWorksThroughThePendingStretches();
    void lifecycleNotificationsReachEveryObserver();
    void observerMayLeaveDuringACallback();
};

void tst_MvMemoryRenderService::setSegmentsKeepsTheListAsGiven()
{
    MvMemoryRenderService service;
    const Segments given { done(50, 80), pending(10, 5), pending(60, 70) };
    service.setSegments(given);
    Segments out;
    service.segments(out);
    QCOMPARE(out, given);
    service.clearSegments();
    QVERIFY(service.segmentList().isEmpty());
}

void tst_MvMemoryRenderService::markingRewritesTheList_data()
{
    QTest::addColumn<Segments>("initial");
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("end");
    QTest::addColumn<bool>("unfinished");
    QTest::addColumn<Segments>("expected");

    QTest::newRow("into an empty list") << Segments() << qint64(0) << qint64(99) << true << Segments { pending(0, 99) };
    QTest::newRow("splits a stretch") << Segments { pending(0, 99) } << qint64(40) << qint64(59) << false
                                      << Segments { pending(0, 39), done(40, 59), pending(60, 99) };
    QTest::newRow("merges with touching neighbours") << Segments { done(0, 9), pending(10, 19), done(20, 29) }
                                                     << qint64(10) << qint64(19) << false << Segments { done(0, 29) };
    QTest::newRow("covers several stretches")
        << Segments { done(0, 9), pending(20, 29), done(40, 49) } << qint64(5) << qint64(44) << true
        << Segments { done(0, 4), pending(5, 44), done(45, 49) };
    QTest::newRow("sorts what it was given") << Segments { done(100, 120), done(0, 10) } << qint64(50) << qint64(60)
                                             << true << Segments { done(0, 10), pending(50, 60), done(100, 120) };
    QTest::newRow("drops reversed stretches")
        << Segments { pending(30, 20) } << qint64(0) << qint64(0) << false << Segments { done(0, 0) };
}

void tst_MvMemoryRenderService::markingRewritesTheList()
{
    QFETCH(Segments, initial);
    QFETCH(qint64, start);
    QFETCH(qint64, end);
    QFETCH(bool, unfinished);
    QFETCH(Segments, expected);
    MvMemoryRenderService service;
    service.setSegments(initial);
    QVERIFY(unfinished ? service.markUnfinished(start, end) : service.markFinished(start, end));
    QCOMPARE(service.segmentList(), expected);
}

void tst_MvMemoryRenderService::reversedStretchIsRefused()
{
    MvMemoryRenderService service;
    RenderRecorder recorder;
    service.addObserver(&recorder);
    QVERIFY(!service.markFinished(10, 9));
    QVERIFY(!service.markUnfinished(10, 9));
    QVERIFY(recorder.calls.isEmpty());
    service.removeObserver(&recorder);
}

void tst_MvMemoryRenderService::changesAreToldOnlyWhenTheListChanges()
{
    MvMemoryRenderService service;
    RenderRecorder recorder;
    service.addObserver(&recorder);
    service.markUnfinished(0, 99);
    service.markUnfinished(10, 20); // already pending
    service.setSegments({ pending(0, 99) });
    QCOMPARE(recorder.calls, QStringList { QStringLiteral("segments") });
    service.clearSegments();
    service.clearSegments();
    QCOMPARE(recorder.calls.size(), 2);
    service.removeObserver(&recorder);
}

void tst_MvMemoryRenderService::renderNextWorksThroughThePendingStretches()
{
    MvMemoryRenderService service;
    service.setSegments({ pending(100, 149), done(0, 99), pending(200, 209) });
    QCOMPARE(service.unfinishedFrames(), qint64(60));
    RenderRecorder recorder;
    service.addObserver(&recorder);
    QCOMPARE(service.renderNext(30), qint64(30));
    QCOMPARE(service.segmentList(), (Segments { done(0, 129), pending(130, 149), pending(200, 209) }));
    QCOMPARE(service.renderNext(100), qint64(20));
    QCOMPARE(service.renderNext(0), qint64(0));
    QVERIFY(!recorder.calls.contains(QStringLiteral("finished")));
    QCOMPARE(service.renderNext(100), qint64(10));
    QCOMPARE(service.unfinishedFrames(), qint64(0));
    QCOMPARE(recorder.calls.last(), QStringLiteral("finished"));
    QCOMPARE(service.renderNext(100), qint64(0));
    QCOMPARE(recorder.calls.count(QStringLiteral("finished")), 1);
    service.removeObserver(&recorder);
}

void tst_MvMemoryRenderService::lifecycleNotificationsReachEveryObserver()
{
    MvMemoryRenderService service;
    RenderRecorder first;
    RenderRecorder second;
    service.addObserver(&first);
    service.addObserver(&second);
    service.addObserver(&second);
    QCOMPARE(service.observerCount(), 2);
    service.notifyPrepareStart();
    service.notifyError(7);
    service.notifyStop();
    service.notifyFinished();
    const QStringList expected { QStringLiteral("prepare"), QStringLiteral("error 7"), QStringLiteral("stop"),
        QStringLiteral("finished") };
    QCOMPARE(first.calls, expected);
    QCOMPARE(second.calls, expected);
    service.removeObserver(&first);
    service.removeObserver(&second);
    QCOMPARE(service.observerCount(), 0);
}

void tst_MvMemoryRenderService::observerMayLeaveDuringACallback()
{
    MvMemoryRenderService service;
    RenderRecorder first;
    RenderRecorder second;
    first.onChange = [&] { service.removeObserver(&second); };
    service.addObserver(&first);
    service.addObserver(&second);
    service.markFinished(0, 10);
    QCOMPARE(first.calls.size(), 1);
    QVERIFY(second.calls.isEmpty());
    QCOMPARE(service.observerCount(), 1);
    service.removeObserver(&first);
}

QTEST_GUILESS_MAIN(tst_MvMemoryRenderService)
#include "tst_MvMemoryRenderService.moc"
