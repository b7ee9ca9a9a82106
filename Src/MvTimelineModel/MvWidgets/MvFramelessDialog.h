#pragma once

#include "MvDialog.h"
#include "MvWidgetsGlobal.h"

#include <QScopedPointer>

class MvLabel;
class MvPushButtonBar;
class QPushButton;
class MvFramelessDialogPrivate;

// A dialog without the system frame: it draws its own title bar (caption and close button), can
// be dragged by that bar, holds one content widget in the middle and a button bar at the bottom.
// Closing through the title bar's button rejects the dialog.
class MVWIDGETS_EXPORT MvFramelessDialog : public MvDialog
{
    Q_OBJECT

public:
    explicit MvFramelessDialog(QWidget* parent = nullptr);
    ~MvFramelessDialog() override;

    QString title() const;
    void setTitle(const QString& title);

    // Takes ownership; an earlier content widget is deleted.
    void setContentWidget(QWidget* widget);
    QWidget* contentWidget() const;

    MvPushButtonBar* buttonBar() const;
    MvLabel* titleLabel() const;
    QPushButton* closeButton() const;

    // The areas the dialog lays out, in dialog coordinates.
    QRect titleBarRect() const;
    QRect contentRect() const;
    QRect buttonBarRect() const;

    static int titleBarHeight();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Q_DECLARE_PRIVATE(MvFramelessDialog)
    Q_DISABLE_COPY(MvFramelessDialog)
    QScopedPointer<MvFramelessDialogPrivate> d_ptr;
};
