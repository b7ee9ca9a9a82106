#pragma once

#include "MvTimelineGlobal.h"
#include "MvWidget.h"

#include <QScopedPointer>

class MvEventFilterManager;
class MvTimelineRulerPresenter;
class MvTimelineRulerWidgetPrivate;

// The ruler strip above the timeline tracks: drag its handle or click to move the playhead, drag
// sideways or use the wheel to zoom. Every effect goes through its presenter.
class MVTIMELINE_EXPORT MvTimelineRulerWidget : public MvWidget
{
    Q_OBJECT

public:
    MvTimelineRulerWidget(MvTimelineRulerPresenter* presenter, QWidget* parent);
    ~MvTimelineRulerWidget() override;

    void setPresenter(MvTimelineRulerPresenter* presenter);
    MvTimelineRulerPresenter* presenter() const;
    MvEventFilterManager* eventFilterMgr();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // Capitalised so in the product family.
    bool IsHintRulerHandle(const QPoint& pos);

    Q_DECLARE_PRIVATE(MvTimelineRulerWidget)
    Q_DISABLE_COPY(MvTimelineRulerWidget)
    QScopedPointer<MvTimelineRulerWidgetPrivate> d_ptr;
};
