#pragma once

#include "MvWidgetsGlobal.h"

#include <QWidget>

// Base of the product's widgets. Lets style sheets paint the background of plain subclasses.
class MVWIDGETS_EXPORT MvWidget : public QWidget
{
    Q_OBJECT

public:
    explicit MvWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~MvWidget() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
