#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvSkinStyle.h"
#include "MvTextEdit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>

namespace {
MvMarkerParam sampleParam()
{
    MvMarkerParam param;
    param.colors = { QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue) };
    param.colorIndex = 1;
    param.name = QStringLiteral("Intro");
    param.comment = QStringLiteral("cut here");
    param.time = QStringLiteral("00:00:04:10");
    return param;
}

// Runs once the dialog's modal loop is up, on the dialog that is then modal.
void whenModal(std::function<void(MvMarkerEditDialog*)> action)
{
    QTimer::singleShot(0, [action]() {
        auto* dialog = qobject_cast<MvMarkerEditDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        action(dialog);
    });
}

// Lengthens the captions of the panel as a translation into a wordier language would.
class WordyTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation, int n) const override
    {
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        if (qstrcmp(context, "MvMarkerEditPanel") != 0)
            return QString();
        const QString source = QString::fromLatin1(sourceText);
        if (source == QLatin1String("Comment") || source == QLatin1String("Marker Color")
            || source == QLatin1String("Name") || source == QLatin1String("Time"))
            return source + QStringLiteral(" in a much longer translated wording");
        return QString();
    }
    bool isEmpty() const override { return false; }
};
}

class tst_MvMarkerEditDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultTellsHowTheDialogEnded_data();
    void resultTellsHowTheDialogEnded();
    void closingByTheFrameIgnoresASwatchClick();
    void okReturnsTheEditedValues();
    void markerParamKeepsNoColourWhenNoneWasGiven();
    void dialogHasItsTitleSizeAndButtons();
    void panelShowsTheValuesAndTexts();
    void panelLayoutGeometry();
    void namesAndCommentsStopAt400Characters_data();
    void namesAndCommentsStopAt400Characters();
    void swatchRowLaysOutAndSelects();
    void emptyColourListHasNoCells();
    void selectedSwatchIsFramed();
    void longTranslatedCaptionsMoveOnlyTheirRows();
    void languageChangeRetranslatesAndRelayouts();
};

void tst_MvMarkerEditDialog::resultTellsHowTheDialogEnded_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << QStringLiteral("okButton") << 1;
    QTest::newRow("DELETE") << QStringLiteral("deleteButton") << 2;
    QTest::newRow("title bar close") << QStringLiteral("closeButton") << 0;
    QTest::newRow("escape") << QString() << 0;
}

void tst_MvMarkerEditDialog::resultTellsHowTheDialogEnded()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    whenModal([button](MvMarkerEditDialog* modal) {
        if (button.isEmpty()) {
            QTest::keyClick(modal, Qt::Key_Escape);
            return;
        }
        auto* target = modal->findChild<QPushButton*>(button);
        QVERIFY(target);
        QTest::mouseClick(target, Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), result);
    QVERIFY(!dialog.isVisible());
}

void tst_MvMarkerEditDialog::closingByTheFrameIgnoresASwatchClick()
{
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    whenModal([](MvMarkerEditDialog* modal) {
        MvMarkerEditColor* row = modal->panel()->colorRow();
        QTest::mouseClick(row->findChild<QWidget*>(QStringLiteral("colorCell2")), Qt::LeftButton);
        QCOMPARE(row->selectedIndex(), 2);
        QTest::mouseClick(modal->closeButton(), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), 0);
    // A second run starts from "closed" again.
    whenModal([](MvMarkerEditDialog* modal) { QTest::mouseClick(modal->okButton(), Qt::LeftButton); });
    QCOMPARE(dialog.exec(), 1);
    whenModal([](MvMarkerEditDialog* modal) { modal->reject(); });
    QCOMPARE(dialog.exec(), 0);
}

void tst_MvMarkerEditDialog::okReturnsTheEditedValues()
{
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    whenModal([](MvMarkerEditDialog* modal) {
        MvTextEdit* name = modal->panel()->nameEdit();
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("Outro"));
        MvTextEdit* comment = modal->panel()->commentEdit();
        QTest::mouseClick(comment->closeButton(), Qt::LeftButton);
        QTest::keyClicks(comment, QStringLiteral("fade"));
        QTest::mouseClick(
            modal->panel()->colorRow()->findChild<QWidget*>(QStringLiteral("colorCell0")), Qt::LeftButton);
        QTest::mouseClick(modal->okButton(), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), 1);
    const MvMarkerParam param = dialog.markerParam();
    QCOMPARE(param.name, QStringLiteral("Outro"));
    QCOMPARE(param.comment, QStringLiteral("fade"));
    QCOMPARE(param.colorIndex, 0);
    QCOMPARE(param.time, QStringLiteral("00:00:04:10"));
    QVERIFY(param.colors.isEmpty());
}

void tst_MvMarkerEditDialog::markerParamKeepsNoColourWhenNoneWasGiven()
{
    MvMarkerParam param = sampleParam();
    param.colorIndex = -1;
    MvMarkerEditDialog dialog(param, nullptr);
    QCOMPARE(dialog.markerParam().colorIndex, -1);
    QCOMPARE(dialog.markerParam().name, QStringLiteral("Intro"));
    QCOMPARE(dialog.markerParam().comment, QStringLiteral("cut here"));

    param.colorIndex = 3; // beyond the list: nothing selected
    MvMarkerEditDialog beyond(param, nullptr);
    QCOMPARE(beyond.markerParam().colorIndex, -1);
}

void tst_MvMarkerEditDialog::dialogHasItsTitleSizeAndButtons()
{
    MvMarkerEditDialog dialog(sampleParam(), nullptr);
    dialog.show();
    QCOMPARE(dialog.title(), QStringLiteral("Marker Editor"));
    QCOMPARE(dialog.size(), QSize(480, 330));
    QCOMPARE(dialog.minimumSize(), QSize(480, 330));
    QCOMPARE(dialog.maximumSize(), QSize(480, 330));
    QCOMPARE(dialog.okButton()->text(), QStringLiteral("OK"));
    QCOMPARE(dialog.deleteButton()->text(), QStringLiteral("DELETE"));
    QTRY_VERIFY(dialog.okButton()->x() > 0);
    QVERIFY(dialog.deleteButton()->geometry().right() < dialog.okButton()->x());
    QCOMPARE(dialog.contentWidget(), dialog.panel());
}

void tst_MvMarkerEditDialog::panelShowsTheValuesAndTexts()
{
    MvMarkerEditPanel panel(sampleParam(), nullptr);
    QCOMPARE(panel.nameLabel()->text(), QStringLiteral("Name:"));
    QCOMPARE(panel.timeLabel()->text(), QStringLiteral("Time:"));
    QCOMPARE(panel.commentLabel()->text(), QStringLiteral("Comment:"));
    QCOMPARE(panel.colorLabel()->text(), QStringLiteral("Marker Color:"));
    QCOMPARE(panel.commentEdit()->placeholderText(), QStringLiteral("Add your comments here"));
    QCOMPARE(panel.nameEdit()->toPlainText(), QStringLiteral("Intro"));
    QCOMPARE(panel.commentEdit()->toPlainText(), QStringLiteral("cut here"));
    QCOMPARE(panel.timeValueLabel()->text(), QStringLiteral("00:00:04:10"));
    QCOMPARE(panel.colorRow()->selectedIndex(), 1);
    QVERIFY(panel.nameLabel()->alignment() & Qt::AlignRight);
    QVERIFY(panel.timeValueLabel()->alignment() & Qt::AlignLeft);
    QVERIFY(panel.nameEdit()->isCloseButtonVisible());
    QVERIFY(panel.commentEdit()->isCloseButtonVisible());
}

void tst_MvMarkerEditDialog::panelLayoutGeometry()
{
    MvMarkerEditPanel panel(sampleParam(), nullptr);
    panel.resize(480, 226);
    panel.show();
    QCOMPARE(panel.nameLabel()->geometry(), QRect(53, 24, 90, 22));
    QCOMPARE(panel.nameEdit()->geometry(), QRect(151, 20, 250, 30));
    QCOMPARE(panel.nameEdit()->closeButton()->x(), 250 - 26);
    QCOMPARE(panel.nameEdit()->textRightMargin(), 22);
    QCOMPARE(panel.timeLabel()->geometry(), QRect(53, 64, 90, 22));
    QCOMPARE(panel.timeValueLabel()->geometry(), QRect(151, 64, 250, 22));
    // Captions wider than 84 px of text (possible in the test machine's font) move their row.
    const QFontMetrics metrics(panel.commentLabel()->font());
    const int commentWidth = std::max(90, metrics.horizontalAdvance(QStringLiteral("Comment:")) + 6);
    QCOMPARE(panel.commentLabel()->geometry(), QRect(53, 101, commentWidth, 22));
    QCOMPARE(panel.commentEdit()->geometry(), QRect(commentWidth + 61, 101, 250, 75));
    QCOMPARE(panel.commentEdit()->textRightMargin(), 10);
    const int colorWidth = std::max(90, metrics.horizontalAdvance(QStringLiteral("Marker Color:")) + 6);
    QCOMPARE(panel.colorLabel()->geometry(), QRect(53, 186, colorWidth, 22));
    QCOMPARE(panel.colorRow()->geometry(), QRect(colorWidth + 61, 189, 250, 16));
}

void tst_MvMarkerEditDialog::namesAndCommentsStopAt400Characters_data()
{
    QTest::addColumn<bool>("comment");
    QTest::newRow("name") << false;
    QTest::newRow("comment") << true;
}

void tst_MvMarkerEditDialog::namesAndCommentsStopAt400Characters()
{
    QFETCH(bool, comment);
    MvMarkerParam param = sampleParam();
    param.name.clear();
    param.comment.clear();
    MvMarkerEditDialog dialog(param, nullptr);
    MvTextEdit* edit = comment ? dialog.panel()->commentEdit() : dialog.panel()->nameEdit();
    QCOMPARE(edit->maxLength(), 400);
    QTest::keyClicks(edit, QString(398, QLatin1Char('a')));
    QTest::keyClicks(edit, QStringLiteral("bcd"));
    QCOMPARE(edit->toPlainText().length(), 400);
    QVERIFY(edit->toPlainText().endsWith(QStringLiteral("bc")));
    QApplication::clipboard()->setText(QStringLiteral("pasted"));
    edit->paste();
    QCOMPARE(edit->toPlainText().length(), 400);
    const MvMarkerParam result = dialog.markerParam();
    QCOMPARE((comment ? result.comment : result.name).length(), 400);
}

void tst_MvMarkerEditDialog::swatchRowLaysOutAndSelects()
{
    QWidget window;
    MvMarkerEditColor row({ QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue) }, &window);
    row.setGeometry(0, 0, 250, 16);
    window.show();
    QCOMPARE(row.cellCount(), 3);
    QCOMPARE(row.cellRect(0), QRect(0, 0, 16, 16));
    QCOMPARE(row.cellRect(2), QRect(48, 0, 16, 16));
    QCOMPARE(row.selectedIndex(), -1);

    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, QPoint(30, 8));
    QCOMPARE(row.selectedIndex(), 1);
    // Between two cells there is no child: nothing changes.
    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, QPoint(20, 8));
    QCOMPARE(row.selectedIndex(), 1);

    row.resize(250, 10); // a lower row shrinks the cells
    QCOMPARE(row.cellRect(1), QRect(18, 0, 10, 10));
}

void tst_MvMarkerEditDialog::emptyColourListHasNoCells()
{
    QWidget window;
    MvMarkerEditColor row({}, &window);
    row.setGeometry(0, 0, 250, 16);
    window.show();
    QCOMPARE(row.cellCount(), 0);
    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    QCOMPARE(row.selectedIndex(), -1);
    row.setSelectedIndex(0);
    QCOMPARE(row.selectedIndex(), -1);
}

void tst_MvMarkerEditDialog::selectedSwatchIsFramed()
{
    MvMarkerEditColor row({ QColor(Qt::red), QColor(Qt::blue) }, nullptr);
    row.resize(100, 16);
    row.setSelectedIndex(1);
    QImage image(row.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    row.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    const QColor frame = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Primary());
    // Unselected cell: its colour to the edge. Selected cell: a frame 1 px in, colour inside.
    QCOMPARE(image.pixelColor(0, 8), QColor(Qt::red));
    QCOMPARE(image.pixelColor(1, 8), QColor(Qt::red));
    const QRect cell = row.cellRect(1);
    QCOMPARE(image.pixelColor(cell.left() + 1, cell.center().y()), frame);
    QCOMPARE(image.pixelColor(cell.center()), QColor(Qt::blue));
}

void tst_MvMarkerEditDialog::longTranslatedCaptionsMoveOnlyTheirRows()
{
    WordyTranslator translator;
    QCoreApplication::installTranslator(&translator);
    MvMarkerEditPanel panel(sampleParam(), nullptr);
    QCoreApplication::removeTranslator(&translator);

    QVERIFY(panel.commentLabel()->text().startsWith(QStringLiteral("Comment in a much longer")));
    const QFontMetrics metrics(panel.commentLabel()->font());
    const int commentWidth = metrics.horizontalAdvance(panel.commentLabel()->text()) + 6;
    const int colorWidth = metrics.horizontalAdvance(panel.colorLabel()->text()) + 6;
    QVERIFY(commentWidth > 90);
    QCOMPARE(panel.commentLabel()->width(), commentWidth);
    QCOMPARE(panel.commentEdit()->x(), commentWidth + 61);
    QCOMPARE(panel.colorLabel()->width(), colorWidth);
    QCOMPARE(panel.colorRow()->x(), colorWidth + 61);
    QCOMPARE(panel.nameLabel()->geometry(), QRect(53, 24, 90, 22));
    QCOMPARE(panel.nameEdit()->x(), 151);
    QCOMPARE(panel.timeValueLabel()->x(), 151);
}

void tst_MvMarkerEditDialog::languageChangeRetranslatesAndRelayouts()
{
    MvMarkerEditPanel panel(sampleParam(), nullptr);
    const int plainX = panel.commentEdit()->x();
    WordyTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_VERIFY(panel.commentLabel()->text().startsWith(QStringLiteral("Comment in a much longer")));
    QVERIFY(panel.commentEdit()->x() > plainX + 100);
    QCOMPARE(panel.commentLabel()->width(), panel.commentEdit()->x() - 61);
    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(panel.commentLabel()->text(), QStringLiteral("Comment:"));
    QCOMPARE(panel.commentEdit()->x(), plainX);
}

QTEST_MAIN(tst_MvMarkerEditDialog)
#include "tst_MvMarkerEditDialog.moc"
