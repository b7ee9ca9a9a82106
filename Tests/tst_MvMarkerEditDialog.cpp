#include "MvColorProbe.h"
#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvTextEdit.h"

#include <QAbstractButton>
#include <QApplication>
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

QTEST_MAIN(tst_MvMarkerEditDialog)
#include "tst_MvMarkerEditDialog.moc"
