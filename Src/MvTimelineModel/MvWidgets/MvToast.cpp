#include "MvToast.h"
#include "MvToast_p.h"

#include "MvSkinStyle.h"
#include "MvUtility.h"

#include <QApplication>
#include <QPainter>
#include <QPauseAnimation>
#include <QScreen>
#include <QSequentialAnimationGroup>
#include <QVariantAnimation>

#include <algorithm>

namespace {
constexpr int kPaddingX = 16;
constexpr int kPaddingY = 10;
constexpr int kIconSpacing = 8;
constexpr int kMaxIconSide = 24;
constexpr int kMinTextWidth = 80;
constexpr int kMaxTextWidth = 420;
constexpr int kSideGap = 16; // kept free between the toast and its anchor's sides
constexpr int kCornerRadius = 8;
constexpr int kDefaultDuration = 2500;
constexpr int kFadeDuration = 500;

// The icon's size in layout pixels, shrunk (never grown) to fit the toast's line.
QSize iconSizeOf(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        return QSize();
    const QSize logical = (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
    if (logical.width() <= kMaxIconSide && logical.height() <= kMaxIconSide)
        return logical;
    return logical.scaled(kMaxIconSide, kMaxIconSide, Qt::KeepAspectRatio);
}
}

MvToastPrivate::MvToastPrivate(MvToast* q)
    : q_ptr(q)
{
}

void MvToastPrivate::init()
{
    Q_Q(MvToast);
    // A notice must never pull focus or clicks away from what the user is working in.
    q->setAttribute(Qt::WA_ShowWithoutActivating);
    q->setAttribute(Qt::WA_TransparentForMouseEvents);
    q->setFocusPolicy(Qt::NoFocus);

    lifetime = new QSequentialAnimationGroup(q);
    hold = lifetime->addPause(kDefaultDuration);
    auto* fade = new QVariantAnimation(lifetime);
    fade->setStartValue(1.0);
    fade->setEndValue(0.0);
    fade->setDuration(kFadeDuration);
    lifetime->addAnimation(fade);
    QObject::connect(
        fade, &QVariantAnimation::valueChanged, q, [this](const QVariant& value) { setOpacity(value.toReal()); });
    QObject::connect(lifetime, &QAbstractAnimation::finished, q, [q]() {
        q->hide();
        q->deleteLater();
    });
}

QWidget* MvToastPrivate::visibleHost() const
{
    Q_Q(const MvToast);
    if (anchor && anchor->window()->isVisible())
        return anchor->window();
    QWidget* main = MvUtility::gGetMainWindow();
    if (main && main != q && main->isVisible())
        return main->window();
    return nullptr;
}

void MvToastPrivate::becomeOverlayOf(QWidget* host)
{
    Q_Q(MvToast);
    if (q->parentWidget() != host || q->isWindow())
        q->setParent(host);
}

void MvToastPrivate::becomeScreenNotice()
{
    Q_Q(MvToast);
    // A plain window that refuses focus and input: tool and tool-tip windows would be raised
    // on show, which not every platform supports.
    q->setParent(nullptr,
        Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus
            | Qt::WindowTransparentForInput | Qt::X11BypassWindowManagerHint);
    q->setAttribute(Qt::WA_TranslucentBackground);
}

void MvToastPrivate::dismissOtherToasts() const
{
    Q_Q(const MvToast);
    QList<MvToast*> siblings;
    if (QWidget* host = q->parentWidget()) {
        siblings = host->findChildren<MvToast*>(QString(), Qt::FindDirectChildrenOnly);
    } else {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (auto* toast = qobject_cast<MvToast*>(window))
                siblings.append(toast);
        }
    }
    // Only toasts already shown own themselves; one still waiting belongs to its creator.
    for (MvToast* toast : qAsConst(siblings)) {
        if (toast != q && toast->d_func()->shown) {
            toast->d_func()->lifetime->stop();
            toast->hide();
            toast->deleteLater();
        }
    }
}

QRect MvToastPrivate::anchorArea(QWidget* host) const
{
    if (!host) {
        const QScreen* screen = QGuiApplication::primaryScreen();
        return screen ? screen->availableGeometry() : QRect();
    }
    if (anchor && anchor->window() == host && anchor->isVisible())
        return QRect(anchor->mapTo(host, QPoint(0, 0)), anchor->size());
    return host->rect();
}

void MvToastPrivate::place(const QRect& area)
{
    Q_Q(MvToast);
    layout = layoutFor(q->fontMetrics(), text, iconSizeOf(pixmap), area.width() - 2 * kSideGap);
    const QRect bounds = q->parentWidget() ? q->parentWidget()->rect() : area;
    q->setGeometry(placementFor(layout.size, area, bottomMargin, bounds));
}

void MvToastPrivate::setOpacity(qreal value)
{
    Q_Q(MvToast);
    if (qFuzzyCompare(opacity, value))
        return;
    opacity = value;
    q->update();
    Q_EMIT q->opacityChanged(value);
}

MvToastLayout MvToastPrivate::layoutFor(const QFontMetrics& metrics, const QString& text, QSize iconSize, int maxWidth)
{
    const int iconRoom = iconSize.isEmpty() ? 0 : iconSize.width() + (text.isEmpty() ? 0 : kIconSpacing);
    const int textMax = std::clamp(maxWidth - 2 * kPaddingX - iconRoom, kMinTextWidth, kMaxTextWidth);
    const QSize textSize = text.isEmpty()
        ? QSize()
        : metrics.boundingRect(QRect(0, 0, textMax, 1 << 16), Qt::AlignHCenter | Qt::TextWordWrap, text).size();
    const int lineHeight = std::max(textSize.height(), iconSize.isEmpty() ? 0 : iconSize.height());

    MvToastLayout layout;
    layout.size = QSize(2 * kPaddingX + iconRoom + textSize.width(), 2 * kPaddingY + lineHeight);
    if (!iconSize.isEmpty())
        layout.iconRect = QRect(QPoint(kPaddingX, kPaddingY + (lineHeight - iconSize.height()) / 2), iconSize);
    layout.textRect = QRect(QPoint(kPaddingX + iconRoom, kPaddingY + (lineHeight - textSize.height()) / 2), textSize);
    return layout;
}

QRect MvToastPrivate::placementFor(QSize size, const QRect& area, int bottomMargin, const QRect& bounds)
{
    const int x = area.left() + (area.width() - size.width()) / 2;
    const int y = area.top() + area.height() - std::max(0, bottomMargin) - size.height();
    // Too big for the bounds: the top-left corner stays visible.
    return QRect(std::max(bounds.left(), std::min(x, bounds.left() + bounds.width() - size.width())),
        std::max(bounds.top(), std::min(y, bounds.top() + bounds.height() - size.height())), size.width(),
        size.height());
}

MvToast::MvToast(const QString& text, QWidget* parent, const QPixmap& pixmap, int bottomMargin)
    : QWidget(parent ? parent->window() : nullptr)
    , d_ptr(new MvToastPrivate(this))
{
    Q_D(MvToast);
    d->text = text;
    d->pixmap = pixmap;
    d->bottomMargin = bottomMargin;
    d->anchor = parent;
    d->init();
}

MvToast* MvToast::creatToast(const QString& text, QWidget* parent, const QPixmap& pixmap, int bottomMargin)
{
    return new MvToast(text, parent, pixmap, bottomMargin);
}

MvToast::~MvToast() = default;

QString MvToast::text() const
{
    Q_D(const MvToast);
    return d->text;
}

QPixmap MvToast::pixmap() const
{
    Q_D(const MvToast);
    return d->pixmap;
}

int MvToast::bottomMargin() const
{
    Q_D(const MvToast);
    return d->bottomMargin;
}

int MvToast::duration() const
{
    Q_D(const MvToast);
    return d->hold->duration();
}

void MvToast::setDuration(int msecs)
{
    Q_D(MvToast);
    d->hold->setDuration(std::max(0, msecs));
}

int MvToast::fadeDuration()
{
    return kFadeDuration;
}

qreal MvToast::opacity() const
{
    Q_D(const MvToast);
    return d->opacity;
}

void MvToast::showToast()
{
    Q_D(MvToast);
    if (d->text.isEmpty() && d->pixmap.isNull()) {
        // Nothing to tell: the toast is done at once, as if it had faded.
        d->shown = true;
        deleteLater();
        return;
    }
    QWidget* host = d->visibleHost();
    if (host)
        d->becomeOverlayOf(host);
    else
        d->becomeScreenNotice();
    d->place(d->anchorArea(host));
    d->dismissOtherToasts();
    d->shown = true;
    d->lifetime->stop();
    d->setOpacity(1.0);
    show();
    // A window of its own already stays on top; an overlay must rise above its siblings.
    if (!isWindow())
        raise();
    d->lifetime->start();
}

void MvToast::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    Q_D(MvToast);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(d->opacity);
    painter.setPen(MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary()));
    painter.setBrush(MvSkinStyle::GetColor(MvSkinColor::Background_Primary()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius, kCornerRadius);
    if (!d->layout.iconRect.isEmpty())
        painter.drawPixmap(d->layout.iconRect, d->pixmap);
    painter.setPen(MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Primary()));
    painter.drawText(d->layout.textRect, Qt::AlignHCenter | Qt::TextWordWrap, d->text);
}
