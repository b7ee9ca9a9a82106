#include "MvFramelessDialog.h"
#include "MvLabel.h"
#include "MvPushButtonBar.h"
#include "MvToolTipHelper.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

class tst_MvFramelessDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areasStackTitleContentAndButtons();
    void closeButtonRejects();
    void onlyTheTitleBarDragsTheDialog_data();
    void onlyTheTitleBarDragsTheDialog();
    void contentWidgetIsReplacedAndOwned();
    void labelElidesOnlyWhenAsked();
    void toolTipHelperRemembersWhatItShowed();
};

// The first button added is the rightmost, each later one lands to the left of the others.
void tst_MvFramelessDialog::areasStackTitleContentAndButtons()
{
    MvFramelessDialog dialog;
    dialog.setTitle(QStringLiteral("Caption"));
    auto* content = new QWidget;
    dialog.setContentWidget(content);
    const QList<QPushButton*> buttons { dialog.buttonBar()->addButton(QStringLiteral("OK")),
        dialog.buttonBar()->addButton(QStringLiteral("Cancel")) };
    dialog.setFixedSize(480, 330);
    dialog.show();
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.titleLabel()->text(), QStringLiteral("Caption"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Caption"));
    const int barHeight = MvPushButtonBar::preferredHeight();
    QCOMPARE(dialog.titleBarRect(), QRect(0, 0, 480, MvFramelessDialog::titleBarHeight()));
    QCOMPARE(content->geometry(), QRect(0, 40, 480, 330 - 40 - barHeight));
    QCOMPARE(dialog.buttonBar()->geometry(), QRect(0, 330 - barHeight, 480, barHeight));
    QVERIFY(dialog.titleBarRect().contains(dialog.closeButton()->geometry()));
    QCOMPARE(dialog.buttonBar()->buttons(), buttons);
    QTRY_VERIFY(buttons.at(0)->geometry().right() < 480 && buttons.at(0)->x() > 240);
    QVERIFY(buttons.at(1)->geometry().right() < buttons.at(0)->x());
}

void tst_MvFramelessDialog::closeButtonRejects()
{
    MvFramelessDialog dialog;
    QTimer::singleShot(0, &dialog, [&dialog]() { QTest::mouseClick(dialog.closeButton(), Qt::LeftButton); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_MvFramelessDialog::onlyTheTitleBarDragsTheDialog_data()
{
    QTest::addColumn<int>("pressY");
    QTest::addColumn<QPoint>("moved");
    QTest::newRow("title bar") << 10 << QPoint(30, 20);
    QTest::newRow("below the title bar") << 60 << QPoint(0, 0);
}

void tst_MvFramelessDialog::onlyTheTitleBarDragsTheDialog()
{
    QFETCH(int, pressY);
    QFETCH(QPoint, moved);
    MvFramelessDialog dialog;
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    const QPoint start = dialog.pos();
    const QPointF global(dialog.mapToGlobal(QPoint(50, pressY)));
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(50, pressY), global, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent move(
        QEvent::MouseMove, QPointF(80, pressY + 20), global + QPointF(30, 20), Qt::NoButton, Qt::LeftButton, {});
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(80, pressY + 20), global + QPointF(30, 20), Qt::LeftButton,
        Qt::NoButton, {});
    for (QMouseEvent* event : { &press, &move, &release })
        QApplication::sendEvent(&dialog, event);
    QCOMPARE(dialog.pos(), start + moved);
}

void tst_MvFramelessDialog::contentWidgetIsReplacedAndOwned()
{
    MvFramelessDialog dialog;
    QPointer<QWidget> first = new QWidget;
    dialog.setContentWidget(first);
    QCOMPARE(first->parentWidget(), &dialog);
    dialog.setContentWidget(new QWidget);
    QVERIFY(first.isNull());
}

void tst_MvFramelessDialog::labelElidesOnlyWhenAsked()
{
    MvLabel label(QStringLiteral("A caption far too long for its label"));
    label.resize(60, 20);
    QCOMPARE(label.displayText(), label.text());
    label.setElideMode(Qt::ElideRight);
    QVERIFY(label.displayText().endsWith(QChar(0x2026)));
    label.resize(1000, 20);
    QCOMPARE(label.displayText(), label.text());
}

void tst_MvFramelessDialog::toolTipHelperRemembersWhatItShowed()
{
    MvToolTipHelper::resetHistory();
    MvToolTipHelper::showToolTip(QPoint(40, 50), QStringLiteral("timed"), true, 3);
    QCOMPARE(MvToolTipHelper::lastGlobalPos(), QPoint(40, 50));
    QCOMPARE(MvToolTipHelper::lastDisplayTime(), 3000);
    MvToolTipHelper::showToolTip(QPoint(1, 2), QStringLiteral("kept"), false, 3);
    QCOMPARE(MvToolTipHelper::lastDisplayTime(), -1);
    MvToolTipHelper::showToolTip(QPoint(1, 2), QString(), true, 3); // hides; not a tip shown
    QCOMPARE(MvToolTipHelper::shownCount(), 2);
    QCOMPARE(MvToolTipHelper::lastText(), QStringLiteral("kept"));
    MvToolTipHelper::hideToolTip();
}

QTEST_MAIN(tst_MvFramelessDialog)
#include "tst_MvFramelessDialog.moc"
