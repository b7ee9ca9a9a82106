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
    void buttonBarFillsFromTheRight();
    void dialogHasNoSystemFrameAndItsOwnTitle();
    void areasStackTitleContentAndButtons();
    void closeButtonRejects();
    void titleBarDragsTheDialog();
    void pressBelowTheTitleBarDoesNotDrag();
    void contentWidgetIsReplacedAndOwned();
    void labelElidesOnlyWhenAsked();
    void toolTipHelperRemembersWhatItShowed();
};

void tst_MvFramelessDialog::buttonBarFillsFromTheRight()
{
    QWidget window;
    MvPushButtonBar bar(&window);
    QPushButton* first = bar.addButton(QStringLiteral("OK"));
    QPushButton* second = bar.addButton(QStringLiteral("Cancel"));
    QPushButton* third = bar.addButton(QStringLiteral("Help"));
    bar.resize(480, MvPushButtonBar::preferredHeight());
    window.show();
    QCOMPARE(bar.buttonCount(), 3);
    QCOMPARE(bar.buttons(), QList<QPushButton*>({ first, second, third }));
    QCOMPARE(first->text(), QStringLiteral("OK"));
    QTRY_VERIFY(first->geometry().right() < bar.width() && first->x() > 240);
    QVERIFY(second->geometry().right() < first->x());
    QVERIFY(third->geometry().right() < second->x());
}

void tst_MvFramelessDialog::dialogHasNoSystemFrameAndItsOwnTitle()
{
    MvFramelessDialog dialog;
    dialog.setTitle(QStringLiteral("Caption"));
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.title(), QStringLiteral("Caption"));
    QCOMPARE(dialog.titleLabel()->text(), QStringLiteral("Caption"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Caption"));
}

void tst_MvFramelessDialog::areasStackTitleContentAndButtons()
{
    MvFramelessDialog dialog;
    auto* content = new QWidget;
    dialog.setContentWidget(content);
    dialog.setFixedSize(480, 330);
    dialog.show();
    const int barHeight = MvPushButtonBar::preferredHeight();
    QCOMPARE(dialog.titleBarRect(), QRect(0, 0, 480, MvFramelessDialog::titleBarHeight()));
    QCOMPARE(content->geometry(), QRect(0, 40, 480, 330 - 40 - barHeight));
    QCOMPARE(dialog.buttonBar()->geometry(), QRect(0, 330 - barHeight, 480, barHeight));
    QVERIFY(dialog.titleBarRect().contains(dialog.closeButton()->geometry()));
    QVERIFY(dialog.closeButton()->x() > dialog.titleLabel()->geometry().right());
}

void tst_MvFramelessDialog::closeButtonRejects()
{
    MvFramelessDialog dialog;
    QTimer::singleShot(0, this, []() {
        auto* modal = qobject_cast<MvFramelessDialog*>(QApplication::activeModalWidget());
        QVERIFY(modal);
        QTest::mouseClick(modal->closeButton(), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_MvFramelessDialog::titleBarDragsTheDialog()
{
    MvFramelessDialog dialog;
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    const QPoint start = dialog.pos();
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(50, 10), QPointF(dialog.mapToGlobal(QPoint(50, 10))),
        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog, &press);
    QMouseEvent move(QEvent::MouseMove, QPointF(80, 30), QPointF(dialog.mapToGlobal(QPoint(50, 10)) + QPoint(30, 20)),
        Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog, &move);
    QMouseEvent release(
        QEvent::MouseButtonRelease, QPointF(80, 30), move.globalPos(), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog, &release);
    QCOMPARE(dialog.pos(), start + QPoint(30, 20));
}

void tst_MvFramelessDialog::pressBelowTheTitleBarDoesNotDrag()
{
    MvFramelessDialog dialog;
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    const QPoint start = dialog.pos();
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(50, 60), QPointF(dialog.mapToGlobal(QPoint(50, 60))),
        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog, &press);
    QMouseEvent move(QEvent::MouseMove, QPointF(80, 90), QPointF(dialog.mapToGlobal(QPoint(80, 90))), Qt::NoButton,
        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dialog, &move);
    QCOMPARE(dialog.pos(), start);
}

void tst_MvFramelessDialog::contentWidgetIsReplacedAndOwned()
{
    MvFramelessDialog dialog;
    QPointer<QWidget> first = new QWidget;
    dialog.setContentWidget(first);
    QCOMPARE(first->parentWidget(), &dialog);
    QCOMPARE(dialog.contentWidget(), first.data());
    dialog.setContentWidget(new QWidget);
    QVERIFY(first.isNull());
}

void tst_MvFramelessDialog::labelElidesOnlyWhenAsked()
{
    MvLabel label(QStringLiteral("A caption far too long for its label"));
    label.resize(60, 20);
    QCOMPARE(label.displayText(), label.text());
    label.setElideMode(Qt::ElideRight);
    QVERIFY(label.displayText() != label.text());
    QVERIFY(label.displayText().endsWith(QChar(0x2026)));
    label.resize(1000, 20);
    QCOMPARE(label.displayText(), label.text());
}

void tst_MvFramelessDialog::toolTipHelperRemembersWhatItShowed()
{
    MvToolTipHelper::resetHistory();
    MvToolTipHelper::showToolTip(QPoint(40, 50), QStringLiteral("first"), true, 3);
    QCOMPARE(MvToolTipHelper::lastText(), QStringLiteral("first"));
    QCOMPARE(MvToolTipHelper::lastGlobalPos(), QPoint(40, 50));
    QCOMPARE(MvToolTipHelper::lastDisplayTime(), 3000);
    MvToolTipHelper::showToolTip(QPoint(1, 2), QStringLiteral("second"), false, 3);
    QCOMPARE(MvToolTipHelper::lastDisplayTime(), -1);
    QCOMPARE(MvToolTipHelper::shownCount(), 2);
    // An empty text hides; it is not a tip shown.
    MvToolTipHelper::showToolTip(QPoint(1, 2), QString(), true, 3);
    QCOMPARE(MvToolTipHelper::shownCount(), 2);
    QCOMPARE(MvToolTipHelper::lastText(), QStringLiteral("second"));
    MvToolTipHelper::hideToolTip();
}

QTEST_MAIN(tst_MvFramelessDialog)
#include "tst_MvFramelessDialog.moc"
