#include "MvWaitDialog.h"
#include "MvWaitDialog_p.h"

#include "MvSkinStyle.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QtMath>

#include <algorithm>

namespace {
constexpr int kSpokeCount = 12;
constexpr int kTickInterval = 80;
constexpr int kSide = 70;
constexpr qreal kOuterRadius = 22.0;
constexpr qreal kInnerRadius = 11.0;
constexpr qreal kSpokeWidth = 3.0;
constexpr int kFaintestAlpha = 40;
}

MvWaitDialogPrivate::MvWaitDialogPrivate(MvWaitDialog* q)
    : q_ptr(q)
{
}

void MvWaitDialogPrivate::tick()
{
    Q_Q(MvWaitDialog);
    current = (current + 1) % kSpokeCount;
    q->update();
}

QList<MvWaitSpoke> MvWaitDialogPrivate::spokesFor(const QRectF& area, int current, const QColor& ink)
{
    const QPointF centre = area.center();
    const qreal scale = std::min(area.width(), area.height()) / kSide;
    QList<MvWaitSpoke> spokes;
    spokes.reserve(kSpokeCount);
    for (int i = 0; i < kSpokeCount; ++i) {
        // Clockwise from twelve o'clock; "behind" counts the steps since the spoke was current.
        const qreal angle = 2 * M_PI * i / kSpokeCount;
        const QPointF direction(qSin(angle), -qCos(angle));
        const int behind = (current - i + kSpokeCount) % kSpokeCount;
        QColor color = ink;
        color.setAlpha(std::max(kFaintestAlpha, 255 - behind * 255 / kSpokeCount));
        spokes.append(
            { QLineF(centre + direction * kInnerRadius * scale, centre + direction * kOuterRadius * scale), color });
    }
    return spokes;
}

MvWaitDialog::MvWaitDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , d_ptr(new MvWaitDialogPrivate(this))
{
    Q_D(MvWaitDialog);
    setModal(true);
    setFixedSize(kSide, kSide);
    d->timer = new QTimer(this);
    d->timer->setInterval(kTickInterval);
    connect(d->timer, &QTimer::timeout, this, [d]() { d->tick(); });
}

MvWaitDialog::~MvWaitDialog() = default;

int MvWaitDialog::currentSpoke() const
{
    Q_D(const MvWaitDialog);
    return d->current;
}

int MvWaitDialog::spokeCount()
{
    return kSpokeCount;
}

void MvWaitDialog::showEvent(QShowEvent* event)
{
    Q_D(MvWaitDialog);
    d->timer->start();
    QDialog::showEvent(event);
}

void MvWaitDialog::hideEvent(QHideEvent* event)
{
    Q_D(MvWaitDialog);
    d->timer->stop();
    QDialog::hideEvent(event);
}

void MvWaitDialog::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    Q_D(MvWaitDialog);
    QPainter painter(this);
    painter.fillRect(rect(), MvSkinStyle::GetColor(MvSkinColor::Background_Primary()));
    painter.setPen(MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setRenderHint(QPainter::Antialiasing);
    const QList<MvWaitSpoke> spokes
        = MvWaitDialogPrivate::spokesFor(rect(), d->current, MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Primary()));
    for (const MvWaitSpoke& spoke : spokes) {
        painter.setPen(QPen(spoke.color, kSpokeWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(spoke.line);
    }
}

void MvWaitDialog::keyPressEvent(QKeyEvent* event)
{
    // QDialog would reject on Escape; the wait is not the user's to cancel.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void MvWaitDialog::closeEvent(QCloseEvent* event)
{
    event->ignore();
}
