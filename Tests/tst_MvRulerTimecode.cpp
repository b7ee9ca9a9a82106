#include "IMvTimelineRuler.h"
#include "Memory/MvMemoryMarker.h"
#include "MvEditFixture.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerPresenter.h"
#include "MvTimelineRulerPresenter.h"

#include <QApplication>
#include <QTimer>
#include <QtTest>

namespace {
// The time the marker editor shows for a timeline marker at `frame` on a timeline at the rate.
QString timeInMarkerEditor(qint64 frame, int numerator, int denominator)
{
    MvEditFixture<> project;
    project.clip(0, 0, frame + 10);
    project.timeline.ruler()->setFrameRate(numerator, denominator);
    project.timeline.timelineMarkerList()->addNamedMarker(
        frame, MvMarkerPresenter::markerPalette().at(0), QStringLiteral("m"));
    project.setPlayhead(frame);
    QString shown;
    QTimer::singleShot(0, [&shown]() {
        if (auto* dialog = qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget())) {
            shown = dialog->markerParam().time;
            dialog->reject();
        }
    });
    project.presenter->editMarker();
    return shown;
}
}

class tst_MvRulerTimecode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rationalRates_data();
    void rationalRates();
    void floatRates_data();
    void floatRates();
    void rateThatCannotCountGivesNoText_data();
    void rateThatCannotCountGivesNoText();
    void rulerAndMarkerEditorAgree_data();
    void rulerAndMarkerEditorAgree();
};

void tst_MvRulerTimecode::rationalRates_data()
{
    QTest::addColumn<int>("frame");
    QTest::addColumn<int>("numerator");
    QTest::addColumn<int>("denominator");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << 0 << 30 << 1 << QStringLiteral("00:00:00:00");
    QTest::newRow("30: last frame of the first minute") << 1799 << 30 << 1 << QStringLiteral("00:00:59:29");
    QTest::newRow("30: one minute") << 1800 << 30 << 1 << QStringLiteral("00:01:00:00");
    QTest::newRow("25: last frame of a second") << 24 << 25 << 1 << QStringLiteral("00:00:00:24");
    QTest::newRow("25: one hour") << 90000 << 25 << 1 << QStringLiteral("01:00:00:00");
    QTest::newRow("23.976: no drop frames") << 1440 << 24000 << 1001 << QStringLiteral("00:01:00:01");
    QTest::newRow("23.976: just under an hour") << 86313 << 24000 << 1001 << QStringLiteral("00:59:59:23");
    QTest::newRow("29.97: a minute is 1800 frames plus one") << 1800 << 30000 << 1001 << QStringLiteral("00:01:00:01");
    QTest::newRow("29.97: one hour") << 107892 << 30000 << 1001 << QStringLiteral("01:00:00:00");
    QTest::newRow("60: last frame of a minute") << 3599 << 60 << 1 << QStringLiteral("00:00:59:59");
    QTest::newRow("60: one hour") << 216000 << 60 << 1 << QStringLiteral("01:00:00:00");
    QTest::newRow("100 hours take three digits") << 10800000 << 30 << 1 << QStringLiteral("100:00:00:00");
    QTest::newRow("largest frame") << 2147483647 << 30 << 1 << QStringLiteral("19884:06:28:07");
}

void tst_MvRulerTimecode::rationalRates()
{
    QFETCH(int, frame);
    QFETCH(int, numerator);
    QFETCH(int, denominator);
    QFETCH(QString, text);
    QCOMPARE(MvTimelineRulerPresenter::formatTimecode(frame, numerator, denominator), text);
}

void tst_MvRulerTimecode::floatRates_data()
{
    QTest::addColumn<int>("frame");
    QTest::addColumn<float>("fps");
    QTest::addColumn<QString>("text");
    QTest::newRow("30") << 1799 << 30.0f << QStringLiteral("00:00:59:29");
    QTest::newRow("29.97") << 1800 << 29.97f << QStringLiteral("00:01:00:01");
    QTest::newRow("25") << 90001 << 25.0f << QStringLiteral("01:00:00:01");
    QTest::newRow("a frame a second") << 3661 << 1.0f << QStringLiteral("01:01:01:00");
}

void tst_MvRulerTimecode::floatRates()
{
    QFETCH(int, frame);
    QFETCH(float, fps);
    QFETCH(QString, text);
    QCOMPARE(MvTimelineRulerPresenter::formatTimecode(frame, fps), text);
}

void tst_MvRulerTimecode::rateThatCannotCountGivesNoText_data()
{
    QTest::addColumn<int>("numerator");
    QTest::addColumn<int>("denominator");
    QTest::newRow("zero rate") << 0 << 1;
    QTest::newRow("zero denominator") << 30 << 0;
    QTest::newRow("negative rate") << -30 << 1;
}

void tst_MvRulerTimecode::rateThatCannotCountGivesNoText()
{
    QFETCH(int, numerator);
    QFETCH(int, denominator);
    QVERIFY(MvTimelineRulerPresenter::formatTimecode(100, numerator, denominator).isEmpty());
    if (numerator <= 0)
        QVERIFY(MvTimelineRulerPresenter::formatTimecode(100, float(numerator)).isEmpty());
}

void tst_MvRulerTimecode::rulerAndMarkerEditorAgree_data()
{
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<int>("numerator");
    QTest::addColumn<int>("denominator");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << qint64(0) << 30000 << 1001 << QStringLiteral("00:00:00:00");
    // Counting 29.97 as 30 would show 00:09:59:12 here.
    QTest::newRow("29.97: ten minutes") << qint64(17982) << 30000 << 1001 << QStringLiteral("00:10:00:00");
    QTest::newRow("29.97: last frame before ten minutes")
        << qint64(17981) << 30000 << 1001 << QStringLiteral("00:09:59:28");
    QTest::newRow("23.976: one minute and a frame") << qint64(1440) << 24000 << 1001 << QStringLiteral("00:01:00:01");
    QTest::newRow("23.976: one hour") << qint64(86314) << 24000 << 1001 << QStringLiteral("01:00:00:00");
    QTest::newRow("25: last frame of a second") << qint64(24) << 25 << 1 << QStringLiteral("00:00:00:24");
    QTest::newRow("25: one hour and a frame") << qint64(90001) << 25 << 1 << QStringLiteral("01:00:00:01");
    QTest::newRow("60: last frame of a minute") << qint64(3599) << 60 << 1 << QStringLiteral("00:00:59:59");
    QTest::newRow("30: a hundred hours") << qint64(10800000) << 30 << 1 << QStringLiteral("100:00:00:00");
    QTest::newRow("30: largest frame the ruler labels")
        << qint64(2147483647) << 30 << 1 << QStringLiteral("19884:06:28:07");
}

// The ruler labels a frame and the marker editor shows a marker's time with the same text.
void tst_MvRulerTimecode::rulerAndMarkerEditorAgree()
{
    QFETCH(qint64, frame);
    QFETCH(int, numerator);
    QFETCH(int, denominator);
    QFETCH(QString, text);
    QCOMPARE(MvTimelineRulerPresenter::formatTimecode(int(frame), numerator, denominator), text);
    QCOMPARE(timeInMarkerEditor(frame, numerator, denominator), text);
}

QTEST_MAIN(tst_MvRulerTimecode)
#include "tst_MvRulerTimecode.moc"
