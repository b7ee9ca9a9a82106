#include "MvDemoMarkerDialogStyle.h"

#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvPushButtonBar.h"
#include "MvTextEdit.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QFontInfo>
#include <QPushButton>

namespace {
constexpr int kSmallestCaptionPixels = 8;
const char* const kDressedProperty = "mvDemoDressed";

void setCaptionFont(MvMarkerEditPanel* panel, const QFont& font)
{
    for (MvLabel* label : { panel->nameLabel(), panel->timeLabel(), panel->commentLabel(), panel->colorLabel() })
        label->setFont(font);
    // The panel lays its rows out again when its texts are set again.
    QEvent relayout(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel, &relayout);
}

void lineUpFields(MvMarkerEditDialog* dialog)
{
    QFont font = dialog->panel()->commentLabel()->font();
    for (int size = QFontInfo(font).pixelSize(); size >= kSmallestCaptionPixels; --size) {
        if (MvDemoMarkerDialogStyle::fieldsLineUp(dialog))
            return;
        font.setPixelSize(size);
        setCaptionFont(dialog->panel(), font);
    }
}

void addCancel(MvMarkerEditDialog* dialog)
{
    MvPushButtonBar* bar = dialog->buttonBar();
    QPushButton* cancel = bar->addButton(MvDemoMarkerDialogStyle::tr("Cancel"));
    cancel->setObjectName(QStringLiteral("cancelButton"));
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    // Cancel goes beside OK; the destructive DELETE stays apart from both.
    if (auto* row = qobject_cast<QBoxLayout*>(bar->layout())) {
        row->removeWidget(cancel);
        row->insertWidget(row->indexOf(dialog->okButton()), cancel);
    }
}
}

MvDemoMarkerDialogStyle::MvDemoMarkerDialogStyle(QObject* parent)
    : QObject(parent)
{
}

void MvDemoMarkerDialogStyle::dress(MvMarkerEditDialog* dialog)
{
    if (!dialog || dialog->property(kDressedProperty).toBool())
        return;
    dialog->setProperty(kDressedProperty, true);
    lineUpFields(dialog);
    addCancel(dialog);
}

bool MvDemoMarkerDialogStyle::fieldsLineUp(const MvMarkerEditDialog* dialog)
{
    const MvMarkerEditPanel* panel = dialog->panel();
    const int x = panel->nameEdit()->x();
    return panel->commentEdit()->x() == x && panel->colorRow()->x() == x;
}

bool MvDemoMarkerDialogStyle::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (auto* dialog = qobject_cast<MvMarkerEditDialog*>(watched))
            dress(dialog);
    }
    return QObject::eventFilter(watched, event);
}
