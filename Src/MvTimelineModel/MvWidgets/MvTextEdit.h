#pragma once

#include "MvWidgetsGlobal.h"

#include <QPlainTextEdit>
#include <QScopedPointer>

class QAbstractButton;
class MvTextEditPrivate;

// The product's text field: plain text only, an optional length limit that holds for typing,
// pasting and programmatic changes alike, a placeholder, and a clear button inside the field.
// A single-line edit keeps its text on one line (Return passes on to the dialog, pasted line
// breaks become spaces).
class MVWIDGETS_EXPORT MvTextEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit MvTextEdit(QWidget* parent = nullptr);
    ~MvTextEdit() override;

    // The factory every dialog uses, so that fields look and behave alike. maxLength < 0: no limit.
    static MvTextEdit* creatTextEdit(QWidget* parent, const QString& text = QString(), int maxLength = -1,
        bool closeButtonVisible = true, bool singleLine = false, const QString& placeholder = QString());

    int maxLength() const;
    // A limit shorter than the current text cuts the text.
    void setMaxLength(int maxLength);

    bool isSingleLine() const;
    void setSingleLine(bool singleLine);

    // Whether the clear button is offered; it shows while the field holds text.
    bool isCloseButtonVisible() const;
    void setCloseButtonVisible(bool visible);
    QAbstractButton* closeButton() const;

    // Room kept free of text at the right edge (for the clear button).
    int textRightMargin() const;
    void setTextRightMargin(int margin);

    // Distance from the clear button's left edge to the field's right edge.
    static int closeButtonRightOffset();

Q_SIGNALS:
    void sigCleared();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    Q_DECLARE_PRIVATE(MvTextEdit)
    Q_DISABLE_COPY(MvTextEdit)
    QScopedPointer<MvTextEditPrivate> d_ptr;
};
