#pragma once

#include "MvTimelineGlobal.h"
#include "MvWidget.h"

#include <QColor>
#include <QList>

// A row of colour swatches; a click selects one, a click between them selects none.
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

    int selectedIndex() const;
    // An index outside the list selects nothing (-1).
    void setSelectedIndex(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void layoutCells();

    Q_DISABLE_COPY(MvMarkerEditColor)
    QList<QWidget*> m_cells; // children, one per colour
    QList<QColor> m_colors;
    int m_selectedIndex = -1;
};
