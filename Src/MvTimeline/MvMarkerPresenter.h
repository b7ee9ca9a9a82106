#pragma once

#include "MvPresenter.h"
#include "MvTimelineGlobal.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPair>

class MvTimelinePresenter;

// The source of the marker strip: where the markers are (x in the widget, colour index) and how
// each colour looks when normal, hovered and pressed. The host derives the concrete presenter:
// it lists the markers from the model, fills the image table and emits the two signals.
class MVTIMELINE_EXPORT MvMarkerPresenter : public MvPresenter
{
    Q_OBJECT

public:
    // x in the marker widget's coordinates, colour index.
    using MarkerItem = QPair<int, int>;

    MvMarkerPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent);
    ~MvMarkerPresenter() override;

    virtual QList<MarkerItem> markerList() = 0;
    // The image of the first table entry with this colour index; with none, the first entry's
    // image of the same kind; with an empty table, a null image.
    virtual QImage normalMarkerImage(int colorIndex);
    virtual QImage horverMarkerImage(int colorIndex);
    virtual QImage pressMarkerImage(int colorIndex);
    // What the strip tells about the marker at `index` of markerList(): its name and its frame on
    // the timeline (-1 when unknown). By default the list is taken to hold the timeline's own
    // markers in the model's order; a host whose list differs answers from its model.
    virtual QString markerName(int index);
    virtual qint64 markerFrame(int index);

    // The marker's time as the ruler labels it; empty when its frame is unknown.
    QString markerTimecode(int index);

    // Appends an entry to the image table (lookups take the first entry of a colour index).
    void addMarkerImage(int colorIndex, const QImage& normal, const QImage& hover, const QImage& pressed);
    void clearMarkerImages();
    int markerImageCount() const;

    MvTimelinePresenter* timelinePresenter() const;

    // The marker colours the library offers (the edit dialog's swatches, in this order); a
    // marker's colour index is the index of its colour here.
    static QList<QColor> markerPalette();
    // -1 when the colour is not in the palette.
    static int markerPaletteIndex(const QColor& color);

Q_SIGNALS:
    void signalMarkerCountChanged();
    void signalClearTimelineSelectedMarker();

private:
    struct MarkerImageEntry
    {
        int colorIndex;
        QImage normal;
        QImage hover;
        QImage pressed;
    };
    const MarkerImageEntry* findEntry(int colorIndex) const;

    Q_DISABLE_COPY(MvMarkerPresenter)
    MvTimelinePresenter* m_timelinePresenter;
    QList<MarkerImageEntry*> m_images; // owned, in insertion order
};
