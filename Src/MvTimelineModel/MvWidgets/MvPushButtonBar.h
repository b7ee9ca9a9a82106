#pragma once

#include "MvWidget.h"
#include "MvWidgetsGlobal.h"

#include <QList>
#include <QScopedPointer>

class QPushButton;
class MvPushButtonBarPrivate;

// The row of buttons at the foot of a dialog. Buttons fill the row from the right: the first one
// added is the rightmost (the affirmative action), each later one lands to the left of the others.
class MVWIDGETS_EXPORT MvPushButtonBar : public MvWidget
{
    Q_OBJECT

public:
    explicit MvPushButtonBar(QWidget* parent = nullptr);
    ~MvPushButtonBar() override;

    // The new button, owned by the bar.
    QPushButton* addButton(const QString& text);
    // In the order they were added, so from the right to the left.
    QList<QPushButton*> buttons() const;
    int buttonCount() const;

    // The bar's preferred height, which a dialog reserves at its bottom.
    static int preferredHeight();

private:
    Q_DECLARE_PRIVATE(MvPushButtonBar)
    Q_DISABLE_COPY(MvPushButtonBar)
    QScopedPointer<MvPushButtonBarPrivate> d_ptr;
};
