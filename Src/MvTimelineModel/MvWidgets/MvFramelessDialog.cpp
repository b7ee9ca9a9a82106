#include "MvFramelessDialog.h"
#include "MvFramelessDialog_p.h"

#include "MvLabel.h"
#include "MvPushButtonBar.h"
#include "MvSkinStyle.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace {
constexpr int kTitleBarHeight = 40;
constexpr int kTitleMargin = 16;
constexpr int kCloseButtonSide = 24;
}

MvFramelessDialogPrivate::MvFramelessDialogPrivate(MvFramelessDialog* q)
    : q_ptr(q)
{
}

void MvFramelessDialogPrivate::layoutChildren()
{
    Q_Q(MvFramelessDialog);
    const QRect bar = q->titleBarRect();
    closeButton->setGeometry(bar.right() - kTitleMargin / 2 - kCloseButtonSide + 1,
        bar.top() + (bar.height() - kCloseButtonSide) / 2, kCloseButtonSide, kCloseButtonSide);
    titleLabel->setGeometry(kTitleMargin, bar.top(), std::max(0, closeButton->x() - 2 * kTitleMargin), bar.height());
    buttonBar->setGeometry(q->buttonBarRect());
    if (content)
        content->setGeometry(q->contentRect());
}

MvFramelessDialog::MvFramelessDialog(QWidget* parent)
    : MvDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , d_ptr(new MvFramelessDialogPrivate(this))
{
    Q_D(MvFramelessDialog);
    d->titleLabel = new MvLabel(this);
    d->titleLabel->setObjectName(QStringLiteral("titleLabel"));
    d->titleLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    d->titleLabel->setElideMode(Qt::ElideRight);
    // The caption lets presses through, so that the whole bar drags the dialog.
    d->titleLabel->setAttribute(Qt::WA_TransparentForMouseEvents);

    d->closeButton = new QPushButton(QStringLiteral("\u2715"), this);
    d->closeButton->setObjectName(QStringLiteral("closeButton"));
    d->closeButton->setFlat(true);
    d->closeButton->setFocusPolicy(Qt::NoFocus);
    d->closeButton->setAutoDefault(false);
    connect(d->closeButton, &QPushButton::clicked, this, &MvFramelessDialog::reject);

    d->buttonBar = new MvPushButtonBar(this);
    d->buttonBar->setObjectName(QStringLiteral("buttonBar"));
    d->layoutChildren();
}

MvFramelessDialog::~MvFramelessDialog() = default;

QString MvFramelessDialog::title() const
{
    Q_D(const MvFramelessDialog);
    return d->titleLabel->text();
}

void MvFramelessDialog::setTitle(const QString& title)
{
    Q_D(MvFramelessDialog);
    d->titleLabel->setText(title);
    setWindowTitle(title);
}

void MvFramelessDialog::setContentWidget(QWidget* widget)
{
    Q_D(MvFramelessDialog);
    if (d->content == widget)
        return;
    delete d->content.data();
    d->content = widget;
    if (widget) {
        widget->setParent(this);
        widget->setGeometry(contentRect());
        widget->show();
    }
}

QWidget* MvFramelessDialog::contentWidget() const
{
    Q_D(const MvFramelessDialog);
    return d->content;
}

MvPushButtonBar* MvFramelessDialog::buttonBar() const
{
    Q_D(const MvFramelessDialog);
    return d->buttonBar;
}

MvLabel* MvFramelessDialog::titleLabel() const
{
    Q_D(const MvFramelessDialog);
    return d->titleLabel;
}

QPushButton* MvFramelessDialog::closeButton() const
{
    Q_D(const MvFramelessDialog);
    return d->closeButton;
}

QRect MvFramelessDialog::titleBarRect() const
{
    return QRect(0, 0, width(), kTitleBarHeight);
}

QRect MvFramelessDialog::contentRect() const
{
    const int top = kTitleBarHeight;
    const int bottom = height() - MvPushButtonBar::preferredHeight();
    return QRect(0, top, width(), std::max(0, bottom - top));
}

QRect MvFramelessDialog::buttonBarRect() const
{
    const int barHeight = MvPushButtonBar::preferredHeight();
    return QRect(0, std::max(kTitleBarHeight, height() - barHeight), width(), barHeight);
}

int MvFramelessDialog::titleBarHeight()
{
    return kTitleBarHeight;
}

void MvFramelessDialog::resizeEvent(QResizeEvent* event)
{
    Q_D(MvFramelessDialog);
    d->layoutChildren();
    MvDialog::resizeEvent(event);
}

void MvFramelessDialog::paintEvent(QPaintEvent* event)
{
    MvDialog::paintEvent(event);
    // Without a system frame the dialog needs an edge of its own against a dark main window.
    QPainter painter(this);
    painter.setPen(MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary()));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void MvFramelessDialog::mousePressEvent(QMouseEvent* event)
{
    Q_D(MvFramelessDialog);
    if (event->button() == Qt::LeftButton && titleBarRect().contains(event->pos())) {
        d->dragging = true;
        d->dragOffset = event->globalPos() - frameGeometry().topLeft();
        event->accept();
        return;
    }
    MvDialog::mousePressEvent(event);
}

void MvFramelessDialog::mouseMoveEvent(QMouseEvent* event)
{
    Q_D(MvFramelessDialog);
    if (d->dragging && (event->buttons() & Qt::LeftButton)) {
        move(event->globalPos() - d->dragOffset);
        event->accept();
        return;
    }
    MvDialog::mouseMoveEvent(event);
}

void MvFramelessDialog::mouseReleaseEvent(QMouseEvent* event)
{
    Q_D(MvFramelessDialog);
    if (d->dragging && event->button() == Qt::LeftButton) {
        d->dragging = false;
        event->accept();
        return;
    }
    MvDialog::mouseReleaseEvent(event);
}
