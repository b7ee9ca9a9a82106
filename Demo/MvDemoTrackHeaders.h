#pragma once

#include <QWidget>

class IMvTimeline;
class IMvTrack;
class MvDemoPresenter;
class MvTimelinePresenter;
class MvDemoTrackArea;

// Track names beside the rows, scrolled with them, with an eye, a mute switch and a padlock per
// row. The marks show what the presenter answers (the eye is trackVisible: for an audio row, that
// it is heard; the mute switch is dimmed where muteEnable refuses); a click on one asks the
// window for its command. A click elsewhere on a row picks it as the host's selected track (a
// second click drops it), and a right click asks for the row's context menu.
class MvDemoTrackHeaders : public QWidget
{
    Q_OBJECT

public:
    enum class Button
    {
        None,
        Eye,
        Mute,
        Lock,
    };

    MvDemoTrackHeaders(MvDemoPresenter* presenter, MvDemoTrackArea* area, QWidget* parent = nullptr);
    QSize sizeHint() const override { return QSize(kWidth, 200); }

    // The row of a track in this widget's coordinates.
    QRect rowRect(int trackIndex) const;
    int trackAt(const QPoint& pos) const;
    Button buttonAt(int trackIndex, const QPoint& pos) const;
    QString trackName(int trackIndex) const;

    // What a click on a mark asks of the presenter: the lock and the eye toggle (for an audio row
    // the eye stands for its sound), and so does the mute switch. False when the presenter refused
    // (a hidden picture row keeps its sound as it is); refusal() then says why in the user's words.
    static bool applyButton(MvTimelinePresenter* presenter, IMvTrack* track, Button button);
    static QString refusal(Button button);

Q_SIGNALS:
    void buttonClicked(int trackIndex, MvDemoTrackHeaders::Button button);
    void trackPicked();
    void contextMenuRequested(int trackIndex, const QPoint& globalPos);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    static constexpr int kWidth = 150;
    int areaTop() const;
    void paintRow(QPainter& painter, int trackIndex);

    IMvTimeline* m_timeline;
    MvDemoPresenter* m_presenter;
    MvDemoTrackArea* m_area;
};
