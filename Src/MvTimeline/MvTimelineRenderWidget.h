#pragma once

#include "MvTimelineGlobal.h"
#include "MvWidget.h"

#include <QColor>
#include <QScopedPointer>

class MvTimelinePresenter;
class MvTimelineRenderWidgetPrivate;

// A thin strip that shows, under the ruler, which stretches of the timeline are rendered for
// preview and which still need rendering. It follows the render service and the ruler's visible
// range, and lets clicks through to what lies below.
class MVTIMELINE_EXPORT MvTimelineRenderWidget : public MvWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor finishedColor READ finishedColor WRITE setFinishedColor)
    Q_PROPERTY(QColor unFinishedColor READ unFinishedColor WRITE setUnFinishedColor)

public:
    MvTimelineRenderWidget(MvTimelinePresenter* presenter, QWidget* parent);
    ~MvTimelineRenderWidget() override;

    QColor finishedColor() const;
    void setFinishedColor(const QColor& color);
    QColor unFinishedColor() const;
    void setUnFinishedColor(const QColor& color);

    // How much of what the render service lists is rendered, from 0 to 1: the frames of finished
    // stretches that no unfinished stretch covers, over the frames of all stretches (0 with none).
    double renderedShare() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DECLARE_PRIVATE(MvTimelineRenderWidget)
    Q_DISABLE_COPY(MvTimelineRenderWidget)
    QScopedPointer<MvTimelineRenderWidgetPrivate> d_ptr;
};
