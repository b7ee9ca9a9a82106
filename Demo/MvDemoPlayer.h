#pragma once

#include <QObject>
#include <QTimer>

class IMvTimeline;

// Stands in for the editor's media player: while playing it advances the playhead in real time.
class MvDemoPlayer : public QObject
{
    Q_OBJECT

public:
    explicit MvDemoPlayer(IMvTimeline* timeline, QObject* parent = nullptr);

    bool isPlaying() const { return m_timer.isActive(); }
    void play();
    void pause();
    void toggle();
    qint64 lastSeekFrame() const { return m_lastSeek; }
    void seek(qint64 frame);

Q_SIGNALS:
    void stateChanged(bool playing);

private:
    void advance();

    IMvTimeline* m_timeline;
    QTimer m_timer;
    qint64 m_lastSeek = 0;
};
