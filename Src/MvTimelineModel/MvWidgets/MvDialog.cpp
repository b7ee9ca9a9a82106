#include "MvDialog.h"

#include "MvSkinStyle.h"

#include <QGuiApplication>
#include <QScreen>
#include <QShowEvent>

MvDialog::MvDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    QPalette pal = palette();
    pal.setColor(QPalette::Window, MvSkinStyle::GetColor(MvSkinColor::Background_Primary()));
    pal.setColor(QPalette::WindowText, MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Primary()));
    setPalette(pal);
    setAutoFillBackground(true);
}

MvDialog::~MvDialog() = default;

void MvDialog::centerOnParent()
{
    QRect area;
    if (QWidget* owner = parentWidget())
        area = owner->window()->frameGeometry();
    else if (QScreen* screen = QGuiApplication::primaryScreen())
        area = screen->availableGeometry();
    if (area.isEmpty())
        return;
    QRect frame = frameGeometry();
    frame.moveCenter(area.center());
    move(frame.topLeft());
}

void MvDialog::showEvent(QShowEvent* event)
{
    // Only the first show places the dialog; afterwards the user's placement wins.
    if (!m_centered && !event->spontaneous()) {
        m_centered = true;
        centerOnParent();
    }
    QDialog::showEvent(event);
}
