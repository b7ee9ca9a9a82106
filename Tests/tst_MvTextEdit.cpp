#include "MvTextEdit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QtTest>

class tst_MvTextEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factoryAppliesEveryOption();
    void typingStopsAtTheLimit();
    void pasteIsCutToTheRoomLeft_data();
    void pasteIsCutToTheRoomLeft();
    void pasteReplacingASelectionCountsTheFreedRoom();
    void pastedRichTextArrivesAsPlainText();
    void singleLinePasteJoinsTheLines();
    void singleLineLeavesReturnToTheDialog();
    void programmaticTextIsCutToo();
    void loweringTheLimitCutsTheText();
    void clearButtonShowsWithTextAndClears();
    void clearButtonSitsAtTheRightEdge();
};

void tst_MvTextEdit::factoryAppliesEveryOption()
{
    QWidget parent;
    MvTextEdit* edit
        = MvTextEdit::creatTextEdit(&parent, QStringLiteral("abc"), 10, true, true, QStringLiteral("Type here"));
    QCOMPARE(edit->parentWidget(), &parent);
    QCOMPARE(edit->toPlainText(), QStringLiteral("abc"));
    QCOMPARE(edit->maxLength(), 10);
    QVERIFY(edit->isCloseButtonVisible());
    QVERIFY(edit->isSingleLine());
    QCOMPARE(edit->placeholderText(), QStringLiteral("Type here"));
    QCOMPARE(edit->lineWrapMode(), QPlainTextEdit::NoWrap);
}

void tst_MvTextEdit::typingStopsAtTheLimit()
{
    QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr, QString(), 5));
    QTest::keyClicks(edit.data(), QStringLiteral("abcdefgh"));
    QCOMPARE(edit->toPlainText(), QStringLiteral("abcde"));
    // In the middle, the new character is refused and the text around it stays whole.
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(2);
    edit->setTextCursor(cursor);
    QTest::keyClicks(edit.data(), QStringLiteral("X"));
    QCOMPARE(edit->toPlainText(), QStringLiteral("abcde"));
    // After a deletion there is room again.
    QTest::keyClick(edit.data(), Qt::Key_Backspace);
    QTest::keyClicks(edit.data(), QStringLiteral("XY"));
    QCOMPARE(edit->toPlainText(), QStringLiteral("aXcde"));
}

void tst_MvTextEdit::pasteIsCutToTheRoomLeft_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursorAt");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("after");

    QTest::newRow("fits") << QStringLiteral("ab") << 2 << QStringLiteral("cd") << QStringLiteral("abcd");
    QTest::newRow("too long at end") << QStringLiteral("ab") << 2 << QStringLiteral("cdefgh")
                                     << QStringLiteral("abcdef");
    QTest::newRow("too long in middle") << QStringLiteral("ab") << 1 << QStringLiteral("123456")
                                        << QStringLiteral("a1234b");
    QTest::newRow("full") << QStringLiteral("abcdef") << 3 << QStringLiteral("xyz") << QStringLiteral("abcdef");
}

void tst_MvTextEdit::pasteIsCutToTheRoomLeft()
{
    QFETCH(QString, before);
    QFETCH(int, cursorAt);
    QFETCH(QString, pasted);
    QFETCH(QString, after);

    QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr, before, 6));
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(cursorAt);
    edit->setTextCursor(cursor);
    QApplication::clipboard()->setText(pasted);
    edit->paste();
    QCOMPARE(edit->toPlainText(), after);
}

void tst_MvTextEdit::pasteReplacingASelectionCountsTheFreedRoom()
{
    QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr, QStringLiteral("abcdef"), 6));
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(1);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    QApplication::clipboard()->setText(QStringLiteral("12345"));
    edit->paste();
    QCOMPARE(edit->toPlainText(), QStringLiteral("a12def"));
}

void tst_MvTextEdit::pastedRichTextArrivesAsPlainText()
{
    QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr));
    auto* mime = new QMimeData;
    mime->setHtml(QStringLiteral("<b>bold</b>"));
    mime->setText(QStringLiteral("bold"));
    QApplication::clipboard()->setMimeData(mime);
    edit->paste();
    QCOMPARE(edit->toPlainText(), QStringLiteral("bold"));
    QTextCursor cursor(edit->document());
    cursor.setPosition(2);
    QCOMPARE(cursor.charFormat().fontWeight(), int(QFont::Normal));
}

void tst_MvTextEdit::singleLinePasteJoinsTheLines()
{
    QScopedPointer<MvTextEdit> single(MvTextEdit::creatTextEdit(nullptr, QString(), -1, true, true));
    QApplication::clipboard()->setText(QStringLiteral("one\ntwo\r\nthree"));
    single->paste();
    QCOMPARE(single->toPlainText(), QStringLiteral("one two three"));
    QCOMPARE(single->document()->blockCount(), 1);

    QScopedPointer<MvTextEdit> multi(MvTextEdit::creatTextEdit(nullptr));
    multi->paste();
    QCOMPARE(multi->document()->blockCount(), 3);
}

void tst_MvTextEdit::singleLineLeavesReturnToTheDialog()
{
    QScopedPointer<MvTextEdit> single(MvTextEdit::creatTextEdit(nullptr, QStringLiteral("ab"), -1, true, true));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(single.data(), &press);
    QVERIFY(!press.isAccepted());
    QCOMPARE(single->document()->blockCount(), 1);

    QScopedPointer<MvTextEdit> multi(MvTextEdit::creatTextEdit(nullptr, QStringLiteral("ab")));
    QTest::keyClick(multi.data(), Qt::Key_Return);
    QCOMPARE(multi->document()->blockCount(), 2);
}

void tst_MvTextEdit::programmaticTextIsCutToo()
{
    QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr, QString(410, QLatin1Char('n')), 400));
    QCOMPARE(edit->toPlainText().length(), 400);
    edit->setPlainText(QString(500, QLatin1Char('m')));
    QCOMPARE(edit->toPlainText(), QString(400, QLatin1Char('m')));
}

void tst_MvTextEdit::loweringTheLimitCutsTheText()
{
    QScopedPointer<MvTextEdit> edit(MvTextEdit::creatTextEdit(nullptr, QStringLiteral("abcdef")));
    QCOMPARE(edit->maxLength(), -1);
    edit->setMaxLength(3);
    QCOMPARE(edit->toPlainText(), QStringLiteral("abc"));
    edit->setMaxLength(-7);
    QCOMPARE(edit->maxLength(), -1);
    QTest::keyClicks(edit.data(), QStringLiteral("defg"));
    QCOMPARE(edit->toPlainText(), QStringLiteral("abcdefg"));
}

void tst_MvTextEdit::clearButtonShowsWithTextAndClears()
{
    QWidget window;
    MvTextEdit* edit = MvTextEdit::creatTextEdit(&window, QString(), 10, true, true);
    window.show();
    QVERIFY(!edit->closeButton()->isVisible());
    QTest::keyClicks(edit, QStringLiteral("abc"));
    QVERIFY(edit->closeButton()->isVisible());

    QSignalSpy cleared(edit, &MvTextEdit::sigCleared);
    QTest::mouseClick(edit->closeButton(), Qt::LeftButton);
    QCOMPARE(edit->toPlainText(), QString());
    QCOMPARE(cleared.count(), 1);
    QVERIFY(!edit->closeButton()->isVisible());

    edit->setCloseButtonVisible(false);
    QTest::keyClicks(edit, QStringLiteral("abc"));
    QVERIFY(!edit->closeButton()->isVisible());
}

void tst_MvTextEdit::clearButtonSitsAtTheRightEdge()
{
    QWidget window;
    MvTextEdit* edit = MvTextEdit::creatTextEdit(&window, QStringLiteral("abc"), 10, true, true);
    edit->setGeometry(0, 0, 250, 30);
    edit->setTextRightMargin(22);
    window.show();
    QCOMPARE(edit->closeButton()->x(), 250 - 26);
    QCOMPARE(edit->closeButton()->y(), (30 - 16) / 2);
    QCOMPARE(edit->textRightMargin(), 22);
    // The text area ends where the kept room begins.
    QCOMPARE(edit->viewport()->geometry().right(), 250 - 1 - edit->frameWidth() - 22);
}

QTEST_MAIN(tst_MvTextEdit)
#include "tst_MvTextEdit.moc"
