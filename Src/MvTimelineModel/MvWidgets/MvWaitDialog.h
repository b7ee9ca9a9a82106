#pragma once

#include "MvWidgetsGlobal.h"

#include <QDialog>
#include <QScopedPointer>

class MvWaitDialogPrivate;

// A small modal busy indicator without a frame: a spinner that turns while the GUI thread waits
// in exec() for work done elsewhere. Only done() (or accept()/reject() called by the program)
// closes it: Escape and window-close requests are ignored, because the caller must not go on
// before that work has finished.
class MVWIDGETS_EXPORT MvWaitDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MvWaitDialog(QWidget* parent = nullptr);
    ~MvWaitDialog() override;

    // The spoke drawn brightest; it moves on by one every tick while the dialog is shown.
    int currentSpoke() const;
    static int spokeCount();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DECLARE_PRIVATE(MvWaitDialog)
    Q_DISABLE_COPY(MvWaitDialog)
    QScopedPointer<MvWaitDialogPrivate> d_ptr;
};
