#include "MvColorProbe.h"
#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvTextEdit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>

using Action = std::function<void(MvMarkerEditDialog*)>;

Q_DECLARE_METATYPE(Action)

namespace {
MvMarkerParam sampleParam()
{
    return { { Qt::red, Qt::green, Qt::blue }, 1, QStringLiteral("Intro"), QStringLiteral("cut here"),
        QStringLiteral("00:00:04:10") };
}

void click(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

// Runs the dialog; the action works it once its modal loop is up.
int exec(MvMarkerEditDialog& dialog, const Action& action)
{
    QTimer::singleShot(0, [action]() { action(qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget())); });
    return dialog.exec();
}

// Lengthens the panel's captions as a wordier language would.
class WordyTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (qstrcmp(context, "MvMarkerEditPanel") != 0)
            return QString();
        return QString::fromLatin1(source) + QStringLiteral(" in a much longer translated wording");
    }
    bool isEmpty() const override { return false; }
};
}

class tst_MvMarkerEditDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultAndParamTellHowTheDialogEnded_data();
    void resultAndParamTellHowTheDialogEnded();
    void dialogShowsTheValuesAndTexts();
    void layoutMovesOnlyTheRowsOfLongCaptions();
    void namesAndCommentsStopAt400Characters();
    void swatchRowLaysOutSelectsAndFramesTheSelection();
    void keysMoveAndPickTheColour_data();
    void keysMoveAndPickTheColour();
    void colourIsPickedAndAppliedWithoutAMouse();
    void focusMarkShowsOnlyWhileTheRowHasTheKeyboard();
    void hostStyleSheetLinesUpTheFieldsAndDressesTheButtons();
    void languageChangeRetranslatesTheDialog();
};

void tst_MvMarkerEditDialog::resultAndParamTellHowTheDialogEnded_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("param"); // name, comment, colour index, time, number of colours
    const QString unchanged = QStringLiteral("Intro/cut here/1/00:00:04:10/0");
    QTest::newRow("OK after edits") << Action([](MvMarkerEditDialog* dialog) {
        dialog->panel()->nameEdit()->selectAll();
        QTest::keyClicks(dialog->panel()->nameEdit(), QStringLiteral("Outro"));
        click(dialog->panel()->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell0")));
        click(dialog->okButton());
    }) << 1 << QStringLiteral("Outro/cut here/0/00:00:04:10/0");
    QTest::newRow("DELETE") << Action([](MvMarkerEditDialog* dialog) { click(dialog->deleteButton()); }) << 2
                            << unchanged;
    QTest::newRow("frame closed after a swatch click") << Action([](MvMarkerEditDialog* dialog) {
        click(dialog->panel()->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell2")));
        click(dialog->closeButton());
    }) << 0 << QStringLiteral("Intro/cut here/2/00:00:04:10/0");
}

void tst_MvMarkerEditDialog::resultAndParamTellHowTheDialogEnded()
{
    QFETCH(Action, action);
    QFETCH(int, result);
    QFETCH(QString, param);
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    QCOMPARE(exec(dialog, action), result);
    const MvMarkerParam p = dialog.markerParam();
    QCOMPARE(QStringLiteral("%1/%2/%3/%4/%5").arg(p.name, p.comment).arg(p.colorIndex).arg(p.time).arg(p.colors.size()),
        param);
}

void tst_MvMarkerEditDialog::dialogShowsTheValuesAndTexts()
{
    MvMarkerParam param = sampleParam();
    param.colorIndex = -1;
    MvMarkerEditDialog dialog(param, nullptr);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(480, 330));
    MvMarkerEditPanel* panel = dialog.panel();
    const QStringList texts { dialog.title(), dialog.okButton()->text(), dialog.deleteButton()->text(),
        panel->nameLabel()->text(), panel->timeLabel()->text(), panel->commentLabel()->text(),
        panel->colorLabel()->text(), panel->commentEdit()->placeholderText() };
    QCOMPARE(texts.join(QLatin1Char('/')),
        QStringLiteral("Marker Editor/OK/DELETE/Name:/Time:/Comment:/Marker Color:/Add your comments here"));
    QCOMPARE(dialog.markerParam().colorIndex, -1);
}

// The name and time rows keep their column; the comment and colour rows make room for their captions.
void tst_MvMarkerEditDialog::layoutMovesOnlyTheRowsOfLongCaptions()
{
    MvMarkerEditPanel panel(sampleParam(), nullptr);
    panel.resize(480, 226);
    panel.show();
    WordyTranslator translator;
    for (bool translated : { false, true }) {
        if (translated)
            QCoreApplication::installTranslator(&translator);
        QTRY_COMPARE(panel.commentLabel()->text().contains(QLatin1String("longer")), translated);
        const QFontMetrics metrics(panel.commentLabel()->font());
        const int commentWidth = std::max(90, metrics.horizontalAdvance(panel.commentLabel()->text()) + 6);
        const int colorWidth = std::max(90, metrics.horizontalAdvance(panel.colorLabel()->text()) + 6);
        QVERIFY(!translated || commentWidth > 150); // the long caption really moves its row
        QCOMPARE(panel.nameLabel()->geometry(), QRect(53, 24, 90, 22));
        QCOMPARE(panel.nameEdit()->geometry(), QRect(151, 20, 250, 30));
        QCOMPARE(panel.timeLabel()->geometry(), QRect(53, 64, 90, 22));
        QCOMPARE(panel.timeValueLabel()->geometry(), QRect(151, 64, 250, 22));
        QCOMPARE(panel.commentLabel()->geometry(), QRect(53, 101, commentWidth, 22));
        QCOMPARE(panel.commentEdit()->geometry(), QRect(commentWidth + 61, 101, 250, 75));
        QCOMPARE(panel.colorLabel()->geometry(), QRect(53, 186, colorWidth, 22));
        QCOMPARE(panel.colorRow()->geometry(), QRect(colorWidth + 61, 189, 250, 16));
    }
    QCoreApplication::removeTranslator(&translator);
}

void tst_MvMarkerEditDialog::namesAndCommentsStopAt400Characters()
{
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    for (MvTextEdit* edit : { dialog.panel()->nameEdit(), dialog.panel()->commentEdit() }) {
        edit->clear();
        QTest::keyClicks(edit, QString(398, QLatin1Char('a')) + QStringLiteral("bcd"));
        QCOMPARE(edit->toPlainText().size(), 400);
        QVERIFY(edit->toPlainText().endsWith(QStringLiteral("abc")));
    }
}

void tst_MvMarkerEditDialog::swatchRowLaysOutSelectsAndFramesTheSelection()
{
    QWidget window;
    MvMarkerEditColor row({ QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue) }, &window);
    MvMarkerEditColor empty({}, &window);
    row.setGeometry(0, 0, 250, 16);
    empty.setGeometry(0, 20, 250, 16);
    window.show();
    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, QPoint(30, 8));
    QCOMPARE(row.selectedIndex(), 1);
    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, QPoint(20, 8)); // between two cells
    QCOMPARE(row.selectedIndex(), 1);
    QTest::mouseClick(&empty, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QCOMPARE(empty.selectedIndex(), -1);

    // Unselected cells are filled to the edge; the selected one gets a frame 1 px in, in the skin's text
    // colour ('?': none of the cell colours).
    QCOMPARE(mvColorsAt(&row, { { 0, 8 }, { 32, 8 }, { 48, 0 }, { 25, 8 } }), QStringLiteral("RGB?"));
}

void tst_MvMarkerEditDialog::keysMoveAndPickTheColour_data()
{
    QTest::addColumn<int>("initial"); // the marker's colour index
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("selected");
    using Keys = QList<int>;
    QTest::newRow("space picks the first when none is chosen") << -1 << Keys { Qt::Key_Space } << 0;
    QTest::newRow("enter picks the marked swatch") << -1 << Keys { Qt::Key_Enter } << 0;
    QTest::newRow("right moves the choice") << -1 << Keys { Qt::Key_Right } << 1;
    QTest::newRow("arrows start at the chosen swatch") << 1 << Keys { Qt::Key_Down } << 2;
    QTest::newRow("right stops at the last") << 0 << Keys { Qt::Key_Right, Qt::Key_Right, Qt::Key_Right } << 2;
    QTest::newRow("left stops at the first") << 1 << Keys { Qt::Key_Left, Qt::Key_Up } << 0;
    QTest::newRow("end then home") << -1 << Keys { Qt::Key_End, Qt::Key_Home } << 0;
    QTest::newRow("end") << 0 << Keys { Qt::Key_End } << 2;
    QTest::newRow("other keys leave the choice") << 1 << Keys { Qt::Key_A, Qt::Key_Tab } << 1;
}

void tst_MvMarkerEditDialog::keysMoveAndPickTheColour()
{
    QFETCH(int, initial);
    QFETCH(QList<int>, keys);
    QFETCH(int, selected);
    MvMarkerParam param = sampleParam();
    param.colorIndex = initial;
    MvMarkerEditDialog dialog(param, nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    MvMarkerEditColor* row = dialog.panel()->colorRow();
    row->setFocus(Qt::TabFocusReason);
    QVERIFY(row->hasFocus());
    for (int key : keys)
        QTest::keyClick(row, Qt::Key(key));
    QCOMPARE(row->selectedIndex(), selected);
    QCOMPARE(row->currentIndex(), selected);
    QVERIFY(dialog.isVisible()); // Enter picked the colour; it did not press a button
}

// Tab into the swatches, choose with an arrow, Tab on to OK and press it: the marker gets the colour.
void tst_MvMarkerEditDialog::colourIsPickedAndAppliedWithoutAMouse()
{
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    QStringList focusPath; // the widgets the keyboard went through, by object name
    const int result = exec(dialog, [&focusPath](MvMarkerEditDialog* shown) {
        if (!QTest::qWaitForWindowActive(shown))
            return shown->reject();
        const auto press = [&focusPath](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QWidget* focus = QApplication::focusWidget();
            focusPath.append(focus ? focus->objectName() : QStringLiteral("(closed)"));
        };
        shown->panel()->nameEdit()->setFocus(Qt::OtherFocusReason);
        for (int tab = 0; tab < 6 && QApplication::focusWidget() != shown->panel()->colorRow(); ++tab)
            press(Qt::Key_Tab);
        press(Qt::Key_Right);
        press(Qt::Key_Tab);
        press(Qt::Key_Space);
        if (shown->isVisible())
            shown->reject();
    });
    QCOMPARE(focusPath.filter(QStringLiteral("Row")).size(), 2); // reached, then the arrow kept it there
    QCOMPARE(focusPath.mid(focusPath.indexOf(QStringLiteral("colorRow"))),
        QStringList({ QStringLiteral("colorRow"), QStringLiteral("colorRow"), QStringLiteral("okButton"),
            QStringLiteral("(closed)") }));
    QCOMPARE(result, int(MvMarkerEditDialog::Applied));
    QCOMPARE(dialog.markerParam().colorIndex, 2);
}

void tst_MvMarkerEditDialog::focusMarkShowsOnlyWhileTheRowHasTheKeyboard()
{
    QWidget window;
    auto* edit = new QLineEdit(&window);
    edit->setGeometry(0, 30, 100, 20);
    auto* row = new MvMarkerEditColor({ QColor(Qt::red), QColor(Qt::yellow), QColor(Qt::blue) }, &window);
    row->setGeometry(0, 0, 250, 16);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus();
    // Centres of the three cells and a corner of the second (the selection frame's place).
    const QList<QPoint> probes { { 8, 8 }, { 32, 8 }, { 56, 8 }, { 24, 0 } };
    QCOMPARE(mvColorsAt(row, probes), QStringLiteral("RYBY"));
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(row->hasFocus());
    QCOMPARE(mvColorsAt(row, probes), QStringLiteral("?YBY")); // the mark on the first, nothing chosen yet
    // The choice moves with the mark: the second cell is framed and marked, the first plain again.
    QTest::keyClick(row, Qt::Key_Right);
    QCOMPARE(mvColorsAt(row, probes), QStringLiteral("R?B?"));
    edit->setFocus();
    QCOMPARE(mvColorsAt(row, probes), QStringLiteral("RYB?"));
}

// The captions are selected by their role: large ones push the comment and colour fields right,
// small ones let them line up under the name field again; the buttons are dressed by role and name.
void tst_MvMarkerEditDialog::hostStyleSheetLinesUpTheFieldsAndDressesTheButtons()
{
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    const MvMarkerEditPanel* panel = dialog.panel();
    dialog.setStyleSheet(QStringLiteral("QLabel[mvMarkerEditRole=\"caption\"] { font-size: 40px; }"));
    dialog.show();
    QVERIFY(panel->commentEdit()->x() > panel->nameEdit()->x());
    QVERIFY(panel->colorRow()->x() > panel->nameEdit()->x());

    dialog.setStyleSheet(QStringLiteral("MvMarkerEditPanel QLabel[mvMarkerEditRole=\"caption\"] { font-size: 9px; }"
                                        "QPushButton[mvMarkerEditRole=\"delete\"] { background: red; border: none; }"
                                        "QPushButton#okButton { background: blue; border: none; }"));
    QCOMPARE(panel->commentEdit()->x(), panel->nameEdit()->x());
    QCOMPARE(panel->colorRow()->x(), panel->nameEdit()->x());
    QCOMPARE(panel->nameLabel()->property("mvMarkerEditRole").toString(), QStringLiteral("caption"));
    QCOMPARE(panel->timeValueLabel()->property("mvMarkerEditRole").toString(), QStringLiteral("value"));
    QCOMPARE(panel->commentEdit()->property("mvMarkerEditRole").toString(), QStringLiteral("field"));
    QCOMPARE(mvColorsAt(dialog.deleteButton(), { { 2, 2 } }) + mvColorsAt(dialog.okButton(), { { 2, 2 } }),
        QStringLiteral("RB"));
}

void tst_MvMarkerEditDialog::languageChangeRetranslatesTheDialog()
{
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    // Marks every text of the editor's classes as translated.
    class MarkingTranslator : public QTranslator
    {
    public:
        QString translate(const char* context, const char* source, const char*, int) const override
        {
            return QByteArray(context).startsWith("MvMarkerEdit") ? QStringLiteral("T:") + QLatin1String(source)
                                                                  : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(dialog.title(), QStringLiteral("T:Marker Editor")); // the language change is posted
    const MvMarkerEditPanel* panel = dialog.panel();
    const QStringList texts { dialog.title(), dialog.okButton()->text(), dialog.deleteButton()->text(),
        panel->nameLabel()->text(), panel->nameEdit()->accessibleName(), panel->timeValueLabel()->accessibleName(),
        panel->commentEdit()->accessibleName(), panel->colorRow()->accessibleName(), panel->colorRow()->colorName(0) };
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(texts.join(QLatin1Char('/')),
        QStringLiteral("T:Marker Editor/T:OK/T:DELETE/T:Name:/T:Name/T:Time/T:Comment/T:Marker Color/T:Color #ff0000"));
}

QTEST_MAIN(tst_MvMarkerEditDialog)
#include "tst_MvMarkerEditDialog.moc"
