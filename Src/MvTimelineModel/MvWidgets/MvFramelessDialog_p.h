#pragma once

#include "MvFramelessDialog.h"

#include <QPoint>
#include <QPointer>

class MvFramelessDialogPrivate
{
    Q_DECLARE_PUBLIC(MvFramelessDialog)

public:
    explicit MvFramelessDialogPrivate(MvFramelessDialog* q);

    void layoutChildren();

    MvFramelessDialog* q_ptr;
    MvLabel* titleLabel = nullptr;
    QPushButton* closeButton = nullptr;
    MvPushButtonBar* buttonBar = nullptr;
    QPointer<QWidget> content;
    bool dragging = false;
    QPoint dragOffset; // from the pointer to the dialog's top-left, in global coordinates
};
