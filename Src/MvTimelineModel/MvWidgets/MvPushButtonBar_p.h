#pragma once

#include "MvPushButtonBar.h"

class QHBoxLayout;

class MvPushButtonBarPrivate
{
public:
    QHBoxLayout* layout = nullptr;
    QList<QPushButton*> buttons;
};
