#pragma once

#include "MvTextEdit.h"

#include <QAbstractButton>

// The clear button: a small cross drawn in the skin's icon colour.
class MvTextEditCloseButton : public QAbstractButton
{
public:
    explicit MvTextEditCloseButton(QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

class MvTextEditPrivate
{
    Q_DECLARE_PUBLIC(MvTextEdit)

public:
    explicit MvTextEditPrivate(MvTextEdit* q);

    void onContentsChange(int position, int removed, int added);
    void enforceLimits();
    void updateCloseButton();
    void updateMargins();

    MvTextEdit* q_ptr;
    MvTextEditCloseButton* closeButton = nullptr;
    int maxLength = -1;
    int rightMargin = 0;
    int lastChangeEnd = 0; // document position just after the most recent insertion
    bool singleLine = false;
    bool closeButtonWanted = false;
    bool enforcing = false;
};
