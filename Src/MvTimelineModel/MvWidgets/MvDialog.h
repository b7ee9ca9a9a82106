#pragma once

#include "MvWidgetsGlobal.h"

#include <QDialog>

// Base of the product's dialogs: painted in the skin's background colour and centred over its
// parent window (or the screen) when first shown.
class MVWIDGETS_EXPORT MvDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MvDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~MvDialog() override;

    // Moves the dialog so that its centre lies on the centre of its parent's window, or of the
    // available screen area when it has no parent.
    void centerOnParent();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool m_centered = false;
};
