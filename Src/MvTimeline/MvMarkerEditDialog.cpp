#include "MvMarkerEditDialog.h"

#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditPanel.h"
#include "MvPushButtonBar.h"
#include "MvTextEdit.h"

#include <QPushButton>

namespace {
constexpr int kDialogWidth = 480;
constexpr int kDialogHeight = 330;
}

MvMarkerEditDialog::MvMarkerEditDialog(const MvMarkerParam& param, QWidget* parent)
    : MvFramelessDialog(parent)
{
    setObjectName(QStringLiteral("markerEditDialog"));
    m_panel = new MvMarkerEditPanel(param, this);
    m_panel->setObjectName(QStringLiteral("markerEditPanel"));
    setContentWidget(m_panel);
    // The bar fills from the right: OK is the right one, DELETE the left one. A host style sheet
    // tells them apart by name or by QPushButton[mvMarkerEditRole="accept"] / ="delete".
    m_okButton = buttonBar()->addButton(QString());
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_okButton->setProperty("mvMarkerEditRole", QStringLiteral("accept"));
    m_deleteButton = buttonBar()->addButton(QString());
    m_deleteButton->setObjectName(QStringLiteral("deleteButton"));
    m_deleteButton->setProperty("mvMarkerEditRole", QStringLiteral("delete"));
    retranslateUi();
    connect(m_okButton, &QPushButton::clicked, this, [this]() { finish(Applied); });
    connect(m_deleteButton, &QPushButton::clicked, this, [this]() { finish(Deleted); });
    setFixedSize(kDialogWidth, kDialogHeight);
}

MvMarkerEditDialog::~MvMarkerEditDialog() = default;

int MvMarkerEditDialog::exec()
{
    m_result = Closed;
    MvFramelessDialog::exec();
    return m_result;
}

MvMarkerParam MvMarkerEditDialog::markerParam()
{
    MvMarkerParam param;
    param.colorIndex = m_panel->colorRow()->selectedIndex();
    param.name = m_panel->nameEdit()->toPlainText();
    param.time = m_panel->timeValueLabel()->text();
    param.comment = m_panel->commentEdit()->toPlainText();
    return param;
}

void MvMarkerEditDialog::retranslateUi()
{
    setTitle(tr("Marker Editor"));
    m_okButton->setText(tr("OK"));
    m_deleteButton->setText(tr("DELETE"));
}

void MvMarkerEditDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    MvFramelessDialog::changeEvent(event);
}

void MvMarkerEditDialog::finish(int result)
{
    // Both buttons close with acceptance; only the result code tells them apart.
    m_result = result;
    accept();
}
