#include "MvWidget.h"

#include <QPainter>
#include <QStyleOption>

MvWidget::MvWidget(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
}

MvWidget::~MvWidget() = default;

void MvWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
