#include "MvPushButtonBar.h"
#include "MvPushButtonBar_p.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {
constexpr int kButtonMinWidth = 88;
constexpr int kButtonHeight = 32;
constexpr int kBarHeight = 64;
}

MvPushButtonBar::MvPushButtonBar(QWidget* parent)
    : MvWidget(parent)
    , d_ptr(new MvPushButtonBarPrivate)
{
    Q_D(MvPushButtonBar);
    d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(20, 12, 20, 20);
    d->layout->setSpacing(12);
    // Everything to the left of the buttons is free space.
    d->layout->addStretch(1);
}

MvPushButtonBar::~MvPushButtonBar() = default;

QPushButton* MvPushButtonBar::addButton(const QString& text)
{
    Q_D(MvPushButtonBar);
    auto* button = new QPushButton(text, this);
    button->setMinimumWidth(kButtonMinWidth);
    button->setFixedHeight(kButtonHeight);
    // Right after the stretch: the new button goes to the left of those added before.
    d->layout->insertWidget(1, button);
    d->buttons.append(button);
    return button;
}

QList<QPushButton*> MvPushButtonBar::buttons() const
{
    Q_D(const MvPushButtonBar);
    return d->buttons;
}

int MvPushButtonBar::buttonCount() const
{
    Q_D(const MvPushButtonBar);
    return d->buttons.size();
}

int MvPushButtonBar::preferredHeight()
{
    return kBarHeight;
}
