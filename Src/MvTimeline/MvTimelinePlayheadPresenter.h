#pragma once

#include "MvPresenter.h"
#include "MvRange.h"
#include "MvTimelineGlobal.h"
#include "MvWidgetsGlobal.h"

#include <QColor>
#include <QImage>
#include <QMap>
#include <QPolygon>
#include <QRect>
#include <QScopedPointer>
#include <QSize>

class MvTimelinePresenter;
class MvTimelinePlayheadPresenterPrivate;

// Geometry, colours and images of the playhead. The position itself lives in the model.
struct MvPlayheadData
{
    // The head: a pentagon 14 px wide, relative to the playhead's x and the top of the view,
    // pointing down at (0, 16).
    QPolygon shape
        = QPolygon(QVector<QPoint> { QPoint(-7, 0), QPoint(7, 0), QPoint(7, 8), QPoint(0, 16), QPoint(-7, 8) });
    int lineTop = 12; // y where the line starts
    int lineWidth = 2; // pen width of the line
    QMap<MVWIDGETS::MvWidgetStyleStatus, QColor> colors;
    // One status for the split button, the line colour and the head image.
    MVWIDGETS::MvWidgetStyleStatus status = MVWIDGETS::Normal;
    QMap<MVWIDGETS::MvWidgetStyleStatus, QImage> splitButtonImages;

    struct SplitButton
    {
        QSize size = QSize(40, 35);
        int minY = 0; // the highest the button may go
        int y = 35 + 32; // the button's top
    } splitButton;

    QRect viewRect; // the playhead widget's rectangle
};

// Presenter of the playhead line, its head and the split button riding on the line. It turns
// the model's playhead and ruler notifications into sigUpdateUI; its widget drives it from
// mouse input. A host subclass supplies the colours and images through the protected getters,
// or fills the tables with setPlayheadColor / addSplitButtonImage.
class MVTIMELINE_EXPORT MvTimelinePlayheadPresenter : public MvPresenter
{
    Q_OBJECT

public:
    MvTimelinePlayheadPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent);
    ~MvTimelinePlayheadPresenter() override;

    virtual bool playheadVisible();
    virtual bool playheadEnabled();
    // What the widget hit-tests: the split button's rectangle while it is shown, else empty.
    virtual QRect splitButtonCaptureRect();
    virtual bool splitButtonVisible();
    virtual bool splitButtonEnabled();

    int position();
    // Moves the playhead to x and the split button by dy (clamped); the model's notification repaints.
    void updatePosition(int x, int dy);
    void updateViewRect(const QRect& rect);
    MvRange<int> maxRange();

    QRect playheadRect();
    QPolygon currentShape();
    QColor currentPlayheadColor();
    QImage currentPlayheadPixmap();
    QImage currentSplitButtonImage();
    void setPlayheadColor(MVWIDGETS::MvWidgetStyleStatus status, const QColor& color);
    void addSplitButtonImage(const MVWIDGETS::MvWidgetStyleStatus& status, const QImage& image);

    QRect splitButtonRect();
    QSize splitButtonSize();
    void setSplitButtonSize(const QSize& size);
    MVWIDGETS::MvWidgetStyleStatus splitButtonStatus();
    void setSplitButtonStatus(MVWIDGETS::MvWidgetStyleStatus status);
    void setSplitButtonVisible(bool visible);
    int splitButtonY();
    void setSplitButtonY(int y);
    void setSplitButtonMinY(int minY);
    MvRange<int> splitButtonYRange();

    // Splits the clips under the playhead, selecting the parts.
    void splitClips();

    // The frame under the playhead and its time code at the ruler's rate.
    qint64 currentFrame();
    QString currentTimecode();
    // Moves the playhead to a frame; the model keeps it within the timeline.
    void setCurrentFrame(qint64 frame);

    MvPlayheadData* playheadData() const;
    MvTimelinePresenter* timelinePresenter() const;

Q_SIGNALS:
    void sigUpdateUI();
    void sigStartDragPlayHead();
    void sigEndDragPlayHead();

protected:
    virtual QImage getSplitButtonImage(MVWIDGETS::MvWidgetStyleStatus status);
    virtual QColor getPlayheadColor(MVWIDGETS::MvWidgetStyleStatus status);
    virtual QImage getPlayheadPixmap(MVWIDGETS::MvWidgetStyleStatus status);

private:
    Q_DECLARE_PRIVATE(MvTimelinePlayheadPresenter)
    Q_DISABLE_COPY(MvTimelinePlayheadPresenter)
    QScopedPointer<MvTimelinePlayheadPresenterPrivate> d_ptr;
};
