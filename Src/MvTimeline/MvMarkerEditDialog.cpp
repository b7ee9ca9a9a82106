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
    setTitle(tr("Marker Editor"));
    m_panel = new MvMarkerEditPanel(param, this);
    setContentWidget(m_panel);
    // The bar fills from the right: OK is the right one, DELETE the left one.
    m_okButton = buttonBar()->addButton(tr("OK"));
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_deleteButton = buttonBar()->addButton(tr("DELETE"));
    m_deleteButton->setObjectName(QStringLiteral("deleteButton"));
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

void MvMarkerEditDialog::finish(int result)
{
    // Both buttons close with acceptance; only the result code tells them apart.
    m_result = result;
    accept();
}
