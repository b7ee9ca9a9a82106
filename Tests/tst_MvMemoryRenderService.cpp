#include "Memory/MvMemoryRenderService.h"

#include <QtTest>

#include <functional>

namespace {
class RenderRecorder : public IMvTimelineRenderEventObserver
{
public:
    QStringList calls;
    std::function<void()> onChange;

    void onFinished() override { calls.append(QStringLiteral("finished")); }
    void onSegmentsChanged() override
    {
        calls.append(QStringLiteral("segments"));
        if (onChange)
            onChange();
    }
};

// Each segment is { start, end, unfinished }.
using Segments = QList<MvRenderSegment>;
}

class tst_MvMemoryRenderService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void markingRewritesTheListAndTellsOnlyRealChanges();
    void renderNextWorksThroughThePendingStretches();
    void observersAreToldOnceAndMayLeaveDuringANotification();
};

void tst_MvMemoryRenderService::markingRewritesTheListAndTellsOnlyRealChanges()
{
    MvMemoryRenderService service;
    RenderRecorder recorder;
    service.addObserver(&recorder);
    // Given unsorted, with a reversed stretch that goes at the first rewrite.
    service.setSegments({ { 100, 120, 0 }, { 30, 20, 1 }, { 0, 9, 0 }, { 10, 19, 1 }, { 20, 29, 0 } });
    QVERIFY(!service.markFinished(10, 9));
    QVERIFY(service.markFinished(10, 19));
    QCOMPARE(service.segmentList(), (Segments { { 0, 29, 0 }, { 100, 120, 0 } }));
    QVERIFY(service.markUnfinished(5, 109));
    QVERIFY(service.markUnfinished(10, 20)); // already pending
    QVERIFY(service.markFinished(40, 59));
    QCOMPARE(service.segmentList(),
        (Segments { { 0, 4, 0 }, { 5, 39, 1 }, { 40, 59, 0 }, { 60, 109, 1 }, { 110, 120, 0 } }));
    service.clearSegments();
    service.clearSegments();
    QCOMPARE(recorder.calls.count(QStringLiteral("segments")), 5);
    service.removeObserver(&recorder);
}

void tst_MvMemoryRenderService::renderNextWorksThroughThePendingStretches()
{
    MvMemoryRenderService service;
    service.setSegments({ { 100, 149, 1 }, { 0, 99, 0 }, { 200, 209, 1 } });
    RenderRecorder recorder;
    service.addObserver(&recorder);
    QCOMPARE(service.renderNext(30), qint64(30));
    QCOMPARE(service.segmentList(), (Segments { { 0, 129, 0 }, { 130, 149, 1 }, { 200, 209, 1 } }));
    QCOMPARE(service.renderNext(100), qint64(20));
    QCOMPARE(service.renderNext(100), qint64(10));
    QCOMPARE(service.renderNext(100), qint64(0));
    QCOMPARE(recorder.calls.count(QStringLiteral("finished")), 1);
    service.removeObserver(&recorder);
}

void tst_MvMemoryRenderService::observersAreToldOnceAndMayLeaveDuringANotification()
{
    MvMemoryRenderService service;
    RenderRecorder first;
    RenderRecorder second;
    service.addObserver(&first);
    service.addObserver(&second);
    service.addObserver(&second);
    first.onChange = [&] { service.removeObserver(&second); };
    service.notifyFinished();
    service.markFinished(0, 10); // the first observer sends the second away before it hears this
    QCOMPARE(first.calls, QStringList({ QStringLiteral("finished"), QStringLiteral("segments") }));
    QCOMPARE(second.calls, QStringList { QStringLiteral("finished") });
    service.removeObserver(&first);
}

QTEST_GUILESS_MAIN(tst_MvMemoryRenderService)
#include "tst_MvMemoryRenderService.moc"
