#pragma once

#include <QObject>
#include <QRect>

#include <functional>

class IMvClip;
class MvDemoTrackArea;
class MvMemoryMediaItem;
class MvMemoryMediaLibrary;
class QMimeData;
class QWidget;

// Drops of the Transitions and Effects panels' items onto the track area. A transition lands on
// the end of the clip the pointer is over that is nearer (its start: the cut with the clip before;
// its end: the cut with the clip after), or in place of a transition it is over; an effect lands on
// the clip. While a drag is over the area, the place it would land is outlined.
class MvDemoEffectDrops : public QObject
{
    Q_OBJECT

public:
    struct Target
    {
        IMvClip* clip = nullptr;
        int transitionType = 0; // MVVBLMODEL::TransitionType_*; 0 for an effect
        QRect outline; // in the area's pixels
        bool isValid() const { return clip != nullptr; }
    };

    MvDemoEffectDrops(MvDemoTrackArea* area, MvMemoryMediaLibrary* library);

    // Where an item dropped at pos would land; invalid where nothing would take it.
    static Target transitionTarget(const MvDemoTrackArea& area, const QPoint& pos, qint64 length);
    static Target effectTarget(const MvDemoTrackArea& area, const QPoint& pos);
    // The length the outline of a transition shows (the Transitions panel's, 0 for the item's own).
    void setLengthSource(std::function<qint64()> length) { m_length = std::move(length); }
    QRect outline() const;

Q_SIGNALS:
    void transitionDropped(IMvClip* clip, int transitionType, MvMemoryMediaItem* item);
    void effectDropped(IMvClip* clip, MvMemoryMediaItem* item);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The target of the data at pos and the item it names; an invalid target when it is not ours.
    Target targetOf(const QMimeData* data, const QPoint& pos, MvMemoryMediaItem** item) const;
    void showOutline(const QRect& rect);

    MvDemoTrackArea* m_area;
    MvMemoryMediaLibrary* m_library;
    QWidget* m_outline;
    std::function<qint64()> m_length;
};
