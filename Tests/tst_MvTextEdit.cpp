#include "MvTextEdit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QtTest>

class tst_MvTextEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inputIsCutToTheRoomLeft_data();
    void inputIsCutToTheRoomLeft();
    void singleLineKeepsOneLine();
    void clearButtonShowsWithTextAndClears();
};

void tst_MvTextEdit::inputIsCutToTheRoomLeft_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("from"); // the selection, an insertion point when from == to
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("paste"); // else typed
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("after"); // with room for six characters
    QTest::newRow("initial text past the limit")
        << QStringLiteral("abcdefgh") << 0 << 0 << false << QString() << QStringLiteral("abcdef");
    QTest::newRow("typed past the limit")
        << QString() << 0 << 0 << false << QStringLiteral("abcdefgh") << QStringLiteral("abcdef");
    QTest::newRow("typed into a full text")
        << QStringLiteral("abcdef") << 2 << 2 << false << QStringLiteral("X") << QStringLiteral("abcdef");
    QTest::newRow("pasted in the middle")
        << QStringLiteral("ab") << 1 << 1 << true << QStringLiteral("123456") << QStringLiteral("a1234b");
    QTest::newRow("pasted into a full text")
        << QStringLiteral("abcdef") << 3 << 3 << true << QStringLiteral("xyz") << QStringLiteral("abcdef");
    QTest::newRow("pasted over a selection")
        << QStringLiteral("abcdef") << 1 << 3 << true << QStringLiteral("12345") << QStringLiteral("a12def");
}

void tst_MvTextEdit::inputIsCutToTheRoomLeft()
{
    QFETCH(QString, before);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, paste);
    QFETCH(QString, input);
    QFETCH(QString, after);
    QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr, before, 6));
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    QApplication::clipboard()->setText(input);
    if (paste)
        edit->paste();
    else
        QTest::keyClicks(edit.data(), input);
    QCOMPARE(edit->toPlainText(), after);
}

// Pasted lines are joined and Return goes on to the dialog; a multi-line edit takes both.
void tst_MvTextEdit::singleLineKeepsOneLine()
{
    for (bool singleLine : { true, false }) {
        QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr, QString(), -1, true, singleLine));
        QApplication::clipboard()->setText(QStringLiteral("one\ntwo\r\nthree"));
        edit->paste();
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QApplication::sendEvent(edit.data(), &enter);
        QCOMPARE(enter.isAccepted(), !singleLine);
        QCOMPARE(edit->document()->blockCount(), singleLine ? 1 : 4);
        if (singleLine)
            QCOMPARE(edit->toPlainText(), QStringLiteral("one two three"));
    }
}

void tst_MvTextEdit::clearButtonShowsWithTextAndClears()
{
    QWidget window;
    MvTextEdit* edit = MvTextEdit::creatTextEdit(&window, QString(), 10, true, true);
    edit->setGeometry(0, 0, 250, 30);
    edit->setTextRightMargin(22);
    window.show();
    QVERIFY(!edit->closeButton()->isVisible());
    QTest::keyClicks(edit, QStringLiteral("abc"));
    QVERIFY(edit->closeButton()->isVisible());
    // It sits at the right edge, and the text area ends where the kept room begins.
    QCOMPARE(edit->closeButton()->pos(), QPoint(250 - 26, (30 - 16) / 2));
    QCOMPARE(edit->viewport()->geometry().right(), 250 - 1 - edit->frameWidth() - 22);
    QSignalSpy cleared(edit, &MvTextEdit::sigCleared);
    QTest::mouseClick(edit->closeButton(), Qt::LeftButton);
    QCOMPARE(edit->toPlainText(), QString());
    QCOMPARE(cleared.count(), 1);
    QVERIFY(!edit->closeButton()->isVisible());
}

QTEST_MAIN(tst_MvTextEdit)
#include "tst_MvTextEdit.moc"
