#include "MvLabel.h"

#include <QPainter>
#include <QStyle>

MvLabel::MvLabel(QWidget* parent)
    : QLabel(parent)
{
}

MvLabel::MvLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
}

MvLabel::~MvLabel() = default;

Qt::TextElideMode MvLabel::elideMode() const
{
    return m_elideMode;
}

void MvLabel::setElideMode(Qt::TextElideMode mode)
{
    if (m_elideMode == mode)
        return;
    m_elideMode = mode;
    update();
}

QString MvLabel::displayText() const
{
    if (m_elideMode == Qt::ElideNone || wordWrap())
        return text();
    return fontMetrics().elidedText(text(), m_elideMode, contentsRect().width());
}

void MvLabel::paintEvent(QPaintEvent* event)
{
    // Rich text, pixmaps and wrapped text keep QLabel's own painting.
    if (m_elideMode == Qt::ElideNone || wordWrap() || textFormat() == Qt::RichText || text().isEmpty()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(
        &painter, contentsRect(), int(alignment()), palette(), isEnabled(), displayText(), foregroundRole());
}
