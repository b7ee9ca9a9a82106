#pragma once

#include "MvWidgetsGlobal.h"

#include <QLabel>

// The product's text label. It elides text that does not fit when asked to, so that a long
// translated caption degrades to "Comm..." instead of being clipped in the middle of a glyph.
class MVWIDGETS_EXPORT MvLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MvLabel(QWidget* parent = nullptr);
    explicit MvLabel(const QString& text, QWidget* parent = nullptr);
    ~MvLabel() override;

    Qt::TextElideMode elideMode() const;
    // Qt::ElideNone (the default) paints like a plain QLabel.
    void setElideMode(Qt::TextElideMode mode);
    // The text as painted at the current width.
    QString displayText() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::TextElideMode m_elideMode = Qt::ElideNone;
};
