#pragma once

#include "MvWidgetsGlobal.h"

#include <QPixmap>
#include <QScopedPointer>
#include <QWidget>

class MvToastPrivate;

// A short notice over a widget: the text (and an icon) centred near the bottom of its anchor. It
// never takes focus or mouse input, fades out by itself a few seconds after it is shown and then
// deletes itself. A newer toast over the same window replaces an older one still showing.
class MVWIDGETS_EXPORT MvToast : public QWidget
{
    Q_OBJECT

public:
    // bottomMargin: the gap in pixels between the toast's bottom edge and the anchor's bottom edge.
    // The text is shown as given (callers translate it). The caller owns the toast until
    // showToast(); a toast with a parent also goes with that parent's window.
    static MvToast* creatToast(const QString& text, QWidget* parent, const QPixmap& pixmap, int bottomMargin);
    ~MvToast() override;

    QString text() const;
    QPixmap pixmap() const;
    int bottomMargin() const;

    // How long the toast stays fully visible before it starts to fade, in milliseconds.
    int duration() const;
    void setDuration(int msecs);
    static int fadeDuration();

    // 1 while the toast is fully visible, falling to 0 as it fades.
    qreal opacity() const;

    // Shows the toast over its anchor (the parent given at creation; without one, or when that
    // window is hidden, the application's main window; without a visible one, the primary
    // screen) and starts the countdown. Once shown, the toast deletes itself.
    void showToast();

Q_SIGNALS:
    void opacityChanged(qreal opacity);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MvToast(const QString& text, QWidget* parent, const QPixmap& pixmap, int bottomMargin);

    Q_DECLARE_PRIVATE(MvToast)
    Q_DISABLE_COPY(MvToast)
    QScopedPointer<MvToastPrivate> d_ptr;
};
