#pragma once

#include "MvToast.h"

#include <QPointer>
#include <QRect>

class QFontMetrics;
class QPauseAnimation;
class QSequentialAnimationGroup;

// Where the parts of a toast go, in toast coordinates.
struct MvToastLayout
{
    QSize size;
    QRect iconRect; // empty without an icon
    QRect textRect;
};

class MvToastPrivate
{
    Q_DECLARE_PUBLIC(MvToast)

public:
    explicit MvToastPrivate(MvToast* q);

    void init();
    // The visible window the toast shows over, or null for the screen.
    QWidget* visibleHost() const;
    void becomeOverlayOf(QWidget* host);
    void becomeScreenNotice();
    void dismissOtherToasts() const;
    // The anchor's area in the coordinates of the toast's parent (or of the screen).
    QRect anchorArea(QWidget* host) const;
    void place(const QRect& area);
    void setOpacity(qreal value);

    static MvToastLayout layoutFor(const QFontMetrics& metrics, const QString& text, QSize iconSize, int maxWidth);
    // Centred on the area, bottomMargin above its bottom edge, and kept inside the bounds.
    static QRect placementFor(QSize size, const QRect& area, int bottomMargin, const QRect& bounds);

    MvToast* q_ptr;
    QString text;
    QPixmap pixmap;
    int bottomMargin = 0;
    QPointer<QWidget> anchor;
    MvToastLayout layout;
    qreal opacity = 1.0;
    bool shown = false;
    QSequentialAnimationGroup* lifetime = nullptr;
    QPauseAnimation* hold = nullptr;
};
