#include "MvFramelessDialog.h"
#include "MvLabel.h"
#include "MvPushButtonBar.h"

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
    void onlyTheTitleBarDragsTheDialog();
    void labelElidesOnlyWhenAsked();
};

// A new content widget replaces (and deletes) the old one. The first button added is the
// rightmost, each later one lands to the left of the others.
void tst_MvFramelessDialog::areasStackTitleContentAndButtons()
{
    MvFramelessDialog dialog;
    dialog.setTitle(QStringLiteral("Caption"));
    QPointer<QWidget> replaced = new QWidget;
    dialog.setContentWidget(replaced);
    auto* content = new QWidget;
    dialog.setContentWidget(content);
    QVERIFY(replaced.isNull());
    const QList<QPushButton*> buttons { dialog.buttonBar()->addButton(QStringLiteral("OK")),
        dialog.buttonBar()->addButton(QStringLiteral("Cancel")) };
    dialog.setFixedSize(480, 330);
    dialog.show();
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.titleLabel()->text(), QStringLiteral("Caption"));
    const int barHeight = MvPushButtonBar::preferredHeight();
    QCOMPARE(dialog.titleBarRect(), QRect(0, 0, 480, MvFramelessDialog::titleBarHeight()));
    QCOMPARE(content->geometry(), QRect(0, 40, 480, 330 - 40 - barHeight));
    QCOMPARE(dialog.buttonBar()->geometry(), QRect(0, 330 - barHeight, 480, barHeight));
    QVERIFY(dialog.titleBarRect().contains(dialog.closeButton()->geometry()));
    QTRY_VERIFY(buttons.at(0)->geometry().right() < 480 && buttons.at(0)->x() > 240);
    QVERIFY(buttons.at(1)->geometry().right() < buttons.at(0)->x());
}

void tst_MvFramelessDialog::closeButtonRejects()
{
    MvFramelessDialog dialog;
    QTimer::singleShot(0, &dialog, [&dialog]() { QTest::mouseClick(dialog.closeButton(), Qt::LeftButton); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

// A press in the title bar drags the dialog; one below it does not.
void tst_MvFramelessDialog::onlyTheTitleBarDragsTheDialog()
{
    MvFramelessDialog dialog;
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    const QPoint start = dialog.pos();
    for (int y : { 60, 10 }) {
        const QPointF global(dialog.mapToGlobal(QPoint(50, y)));
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(50, y), global, Qt::LeftButton, Qt::LeftButton, {});
        QMouseEvent move(
            QEvent::MouseMove, QPointF(80, y + 20), global + QPointF(30, 20), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&dialog, &press);
        QApplication::sendEvent(&dialog, &move);
    }
    QCOMPARE(dialog.pos(), start + QPoint(30, 20));
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

QTEST_MAIN(tst_MvFramelessDialog)
#include "tst_MvFramelessDialog.moc"
