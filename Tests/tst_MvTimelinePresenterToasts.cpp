#include "MvCustomEvent.h"
#include "MvEditFixture.h"

#include <QTranslator>
#include <QWidget>
#include <QtTest>

namespace {
// Translates the two compound-clip notices of the presenter, as a German catalogue would.
class NoticeTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (qstrcmp(context, "MvTimelinePresenter") != 0)
            return QString();
        if (qstrcmp(source, "Unable to add compound clip itself, please try again") == 0)
            return QStringLiteral("Zusammengesetzter Clip kann nicht in sich selbst eingefügt werden");
        if (qstrcmp(source, "Unable to add external compound clip. Please try again.") == 0)
            return QStringLiteral("Externer zusammengesetzter Clip kann nicht eingefügt werden");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

// A presenter that lets the test raise the protected nesting notice.
class NestToastPresenter : public MvTimelinePresenter
{
public:
    using MvTimelinePresenter::MvTimelinePresenter;
    using MvTimelinePresenter::showTimelineNestToast;
};

// Every ShowCustomToast raised while it lives, as "anchor|flag|text".
struct ToastRecorder
{
    QObject owner;
    QStringList toasts;
    const QWidget* expectedAnchor = nullptr;

    ToastRecorder()
    {
        new MvCustomEventListener(
            &owner, QLatin1String(MvEventName::ShowCustomToast), [this](const MvCustomEventImp& e) {
                const QVariantList values = e.values();
                const QString anchor = values.value(0).value<QWidget*>() == expectedAnchor ? QStringLiteral("view")
                                                                                           : QStringLiteral("other");
                toasts.append(
                    QStringLiteral("%1|%2|%3")
                        .arg(anchor, values.value(1).toBool() ? QStringLiteral("true") : QStringLiteral("false"),
                            values.value(2).toString()));
                return false;
            });
    }
};
}

class tst_MvTimelinePresenterToasts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toastsReachTheHostInCallOrder();
    void nestToastChoosesItsText_data();
    void nestToastChoosesItsText();
};

void tst_MvTimelinePresenterToasts::toastsReachTheHostInCallOrder()
{
    MvEditFixture<> f;
    QWidget view;
    f.presenter->setView(&view);
    ToastRecorder recorder;
    recorder.expectedAnchor = &view;

    f.presenter->showToast(QStringLiteral("first"));
    f.presenter->showToast(QStringLiteral("second"));

    QCOMPARE(recorder.toasts, QStringList({ QStringLiteral("view|false|first"), QStringLiteral("view|false|second") }));
}

void tst_MvTimelinePresenterToasts::nestToastChoosesItsText_data()
{
    QTest::addColumn<bool>("compoundItself");
    QTest::addColumn<bool>("translated");
    QTest::addColumn<QString>("toast");

    QTest::newRow("itself") << true << false << "view|false|Unable to add compound clip itself, please try again";
    QTest::newRow("external") << false << false << "view|false|Unable to add external compound clip. Please try again.";
    QTest::newRow("itself, translated")
        << true << true << "view|false|Zusammengesetzter Clip kann nicht in sich selbst eingefügt werden";
    QTest::newRow("external, translated")
        << false << true << "view|false|Externer zusammengesetzter Clip kann nicht eingefügt werden";
}

void tst_MvTimelinePresenterToasts::nestToastChoosesItsText()
{
    QFETCH(bool, compoundItself);
    QFETCH(bool, translated);
    QFETCH(QString, toast);

    MvEditFixture<MvMemoryTimeline, NestToastPresenter> f;
    QWidget view;
    f.presenter->setView(&view);
    NoticeTranslator translator;
    if (translated)
        QCoreApplication::installTranslator(&translator);
    ToastRecorder recorder;
    recorder.expectedAnchor = &view;

    f.presenter->showTimelineNestToast(compoundItself);
    QCoreApplication::removeTranslator(&translator);

    // The text arrives translated once, by the presenter: the host shows it as it is.
    QCOMPARE(recorder.toasts, QStringList({ toast }));
}

QTEST_MAIN(tst_MvTimelinePresenterToasts)
#include "tst_MvTimelinePresenterToasts.moc"
