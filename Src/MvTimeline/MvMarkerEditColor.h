#pragma once

#include "MvTimelineGlobal.h"
#include "MvWidget.h"

#include <QColor>
#include <QList>

class MvMarkerEditColorCell;

// A row of colour swatches; a click selects one, a click between them selects none. From the
// keyboard the row is one stop of the tab chain: the arrows, Home and End move the choice, Space
// and Enter pick the swatch under the focus mark (the first one when nothing is chosen yet).
class MVTIMELINE_TEST_EXPORT MvMarkerEditColor : public MvWidget
{
    Q_OBJECT

public:
    MvMarkerEditColor(const QList<QColor>& colors, QWidget* parent);
    ~MvMarkerEditColor() override;

    QList<QColor> colors() const;
    int cellCount() const;
    // The cell of a colour, in row coordinates (empty for an index out of range).
    QRect cellRect(int index) const;
    QWidget* cell(int index) const;
    int cellIndex(const QWidget* cell) const;
    // What a colour is called to the user: its name for the library's marker colours, else its
    // hexadecimal value.
    QString colorName(int index) const;

    int selectedIndex() const;
    // An index outside the list selects nothing (-1).
    void setSelectedIndex(int index);
    // The swatch under the focus mark, -1 when the row has no cells.
    int currentIndex() const;

Q_SIGNALS:
    void selectedIndexChanged(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void layoutCells();
    void setCurrentIndex(int index);
    void paintFocusMark(QPainter& painter) const;

    Q_DISABLE_COPY(MvMarkerEditColor)
    QList<MvMarkerEditColorCell*> m_cells; // children, one per colour
    QList<QColor> m_colors;
    int m_selectedIndex = -1;
    int m_currentIndex = -1;
};

// One swatch of the row: a child widget of its own class, so that it can be hit, laid out and
// named to assistive tools; the row paints it.
class MVTIMELINE_TEST_EXPORT MvMarkerEditColorCell : public QWidget
{
    Q_OBJECT

public:
    explicit MvMarkerEditColorCell(MvMarkerEditColor* row);
    MvMarkerEditColor* row() const;
};
