#include "MvTextEdit.h"
#include "MvTextEdit_p.h"

#include "MvSkinStyle.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {
constexpr int kCloseButtonSide = 16;
constexpr int kCloseButtonRightOffset = 26;
constexpr int kCloseButtonBottomGap = 6;

QString toSingleLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QChar::ParagraphSeparator, QLatin1Char(' '));
    text.replace(QChar::LineSeparator, QLatin1Char(' '));
    return text;
}
}

MvTextEditCloseButton::MvTextEditCloseButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
}

QSize MvTextEditCloseButton::sizeHint() const
{
    return QSize(kCloseButtonSide, kCloseButtonSide);
}

void MvTextEditCloseButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Secondary());
    if (underMouse() || isDown())
        ink = MvSkinStyle::GetColor(MvSkinColor::Text_Icon_Primary());
    painter.setPen(QPen(ink, 1.5));
    const QRectF cross = QRectF(rect()).adjusted(4.5, 4.5, -4.5, -4.5);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

MvTextEditPrivate::MvTextEditPrivate(MvTextEdit* q)
    : q_ptr(q)
{
}

void MvTextEditPrivate::onContentsChange(int position, int removed, int added)
{
    Q_UNUSED(removed)
    lastChangeEnd = position + added;
}

void MvTextEditPrivate::enforceLimits()
{
    Q_Q(MvTextEdit);
    if (enforcing)
        return;
    enforcing = true;
    QTextDocument* document = q->document();
    if (singleLine && document->blockCount() > 1) {
        // Only code can get here (typing and pasting never insert a break); keep one line.
        QTextCursor cursor(document);
        cursor.select(QTextCursor::Document);
        cursor.insertText(toSingleLine(cursor.selectedText()));
        lastChangeEnd = cursor.position();
    }
    const int excess = maxLength < 0 ? 0 : q->toPlainText().length() - maxLength;
    if (excess > 0) {
        // Drop the tail of what was just inserted: the text that was there before stays whole.
        const int characters = document->characterCount() - 1;
        const int end = std::min(std::max(lastChangeEnd, excess), characters);
        QTextCursor cursor(document);
        cursor.setPosition(end - excess);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        q->setTextCursor(cursor);
    }
    enforcing = false;
    updateCloseButton();
}

void MvTextEditPrivate::updateCloseButton()
{
    Q_Q(MvTextEdit);
    const int x = q->width() - kCloseButtonRightOffset;
    // One line: centred on it; several lines: in the bottom corner, clear of the first line.
    const int y
        = singleLine ? (q->height() - kCloseButtonSide) / 2 : q->height() - kCloseButtonSide - kCloseButtonBottomGap;
    closeButton->setGeometry(x, std::max(0, y), kCloseButtonSide, kCloseButtonSide);
    closeButton->setVisible(closeButtonWanted && !q->isReadOnly() && !q->document()->isEmpty());
}

void MvTextEditPrivate::updateMargins()
{
    Q_Q(MvTextEdit);
    int top = 0;
    if (singleLine) {
        // Centre the one line vertically in the field.
        const int frame = 2 * q->frameWidth();
        const int line = q->fontMetrics().lineSpacing() + 2 * int(q->document()->documentMargin());
        top = std::max(0, (q->height() - frame - line) / 2);
    }
    q->setViewportMargins(0, top, rightMargin, 0);
}

MvTextEdit::MvTextEdit(QWidget* parent)
    : QPlainTextEdit(parent)
    , d_ptr(new MvTextEditPrivate(this))
{
    Q_D(MvTextEdit);
    d->closeButton = new MvTextEditCloseButton(this);
    d->closeButton->setObjectName(QStringLiteral("closeButton"));
    d->closeButton->hide();
    connect(d->closeButton, &QAbstractButton::clicked, this, [this]() {
        clear();
        setFocus(Qt::OtherFocusReason);
        Q_EMIT sigCleared();
    });
    connect(document(), &QTextDocument::contentsChange, this,
        [this](int position, int removed, int added) { d_func()->onContentsChange(position, removed, added); });
    connect(this, &QPlainTextEdit::textChanged, this, [this]() { d_func()->enforceLimits(); });
    setTabChangesFocus(true);
}

MvTextEdit::~MvTextEdit() = default;

MvTextEdit* MvTextEdit::creatTextEdit(QWidget* parent, const QString& text, int maxLength, bool closeButtonVisible,
    bool singleLine, const QString& placeholder)
{
    auto* edit = new MvTextEdit(parent);
    edit->setSingleLine(singleLine);
    edit->setMaxLength(maxLength);
    edit->setCloseButtonVisible(closeButtonVisible);
    edit->setPlaceholderText(placeholder);
    edit->setPlainText(text);
    edit->moveCursor(QTextCursor::End);
    return edit;
}

int MvTextEdit::maxLength() const
{
    Q_D(const MvTextEdit);
    return d->maxLength;
}

void MvTextEdit::setMaxLength(int maxLength)
{
    Q_D(MvTextEdit);
    d->maxLength = maxLength < 0 ? -1 : maxLength;
    d->lastChangeEnd = document()->characterCount() - 1;
    d->enforceLimits();
}

bool MvTextEdit::isSingleLine() const
{
    Q_D(const MvTextEdit);
    return d->singleLine;
}

void MvTextEdit::setSingleLine(bool singleLine)
{
    Q_D(MvTextEdit);
    d->singleLine = singleLine;
    setLineWrapMode(singleLine ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    setVerticalScrollBarPolicy(singleLine ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->lastChangeEnd = document()->characterCount() - 1;
    d->enforceLimits();
    d->updateMargins();
}

bool MvTextEdit::isCloseButtonVisible() const
{
    Q_D(const MvTextEdit);
    return d->closeButtonWanted;
}

void MvTextEdit::setCloseButtonVisible(bool visible)
{
    Q_D(MvTextEdit);
    d->closeButtonWanted = visible;
    d->updateCloseButton();
}

QAbstractButton* MvTextEdit::closeButton() const
{
    Q_D(const MvTextEdit);
    return d->closeButton;
}

int MvTextEdit::textRightMargin() const
{
    Q_D(const MvTextEdit);
    return d->rightMargin;
}

void MvTextEdit::setTextRightMargin(int margin)
{
    Q_D(MvTextEdit);
    d->rightMargin = std::max(0, margin);
    d->updateMargins();
}

int MvTextEdit::closeButtonRightOffset()
{
    return kCloseButtonRightOffset;
}

void MvTextEdit::resizeEvent(QResizeEvent* event)
{
    Q_D(MvTextEdit);
    QPlainTextEdit::resizeEvent(event);
    d->updateMargins();
    d->updateCloseButton();
}

void MvTextEdit::keyPressEvent(QKeyEvent* event)
{
    Q_D(MvTextEdit);
    if (d->singleLine && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        // Leave Return to the dialog (its default button).
        event->ignore();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

bool MvTextEdit::canInsertFromMimeData(const QMimeData* source) const
{
    return source && source->hasText();
}

void MvTextEdit::insertFromMimeData(const QMimeData* source)
{
    Q_D(MvTextEdit);
    if (!source || !source->hasText() || isReadOnly())
        return;
    // Plain text only, cut to the room left so that a paste never overflows the limit.
    QString text = source->text();
    if (d->singleLine)
        text = toSingleLine(text);
    if (d->maxLength >= 0) {
        const QTextCursor cursor = textCursor();
        const int kept = toPlainText().length() - (cursor.selectionEnd() - cursor.selectionStart());
        text.truncate(std::max(0, d->maxLength - kept));
    }
    if (text.isEmpty() && !textCursor().hasSelection())
        return;
    insertPlainText(text);
    ensureCursorVisible();
}
