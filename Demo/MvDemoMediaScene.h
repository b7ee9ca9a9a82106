#pragma once

#include <QList>
#include <QObject>

class IMvAbstractMediaItem;
class IMvClip;
class MvMemoryTimeline;
class MvMessage;
class MvMediaItemsMessage;
class MvMatchProjMediaItemMessage;
class MvDownloadMediaItemMessage;
class QWidget;

// The host's side of adding media: what the timeline asks of the scene while it adds media, each
// answered before the send returns. Downloads run with a progress dialog that can be cancelled
// (what was not fetched stays online), a resolution is chosen in a small dialog (Cancel leaves the
// item out), the project-settings question changes the project's frame rate when the user agrees,
// the response goes to the journal and the scroll request to the window. Offscreen nobody is
// asked: downloads finish, the usual resolution is taken and the project keeps its settings.
class MvDemoMediaScene : public QObject
{
    Q_OBJECT

public:
    static constexpr int kTickMs = 40;

    explicit MvDemoMediaScene(MvMemoryTimeline* timeline, QObject* parent = nullptr);

    void setDialogParent(QWidget* parent) { m_dialogParent = parent; }
    void setInteractive(bool interactive) { m_interactive = interactive; }
    // How long the simulated download of one item takes.
    void setDownloadTime(int ms) { m_downloadMs = qMax(kTickMs, ms); }

    // A scene message about media: true when it was one, with what was done in words.
    bool handleMessage(MvMessage* message, QString* detail);

    // "29.97", "30": a rate as people write it.
    static QString rateText(qint64 numerator, qint64 denominator);

Q_SIGNALS:
    void scrollRequested(const QList<IMvClip*>& clips);
    // Items were downloaded or got a resolution: the media panel draws them again.
    void mediaChanged();

private:
    static QString downloadedWords(int count);
    QString download(MvDownloadMediaItemMessage* message);
    QString downloadWithProgress(const QList<IMvAbstractMediaItem*>& items);
    QString chooseResolutions(MvMediaItemsMessage* message);
    // The index chosen, or -1 when the user cancelled.
    int askResolution(const QString& name, const QStringList& resolutions);
    QString matchProject(MvMatchProjMediaItemMessage* message);
    // True when the user chose to change the project's rate.
    bool askToChangeRate(const QString& question, const QString& change, const QString& keep);

    MvMemoryTimeline* m_timeline;
    QWidget* m_dialogParent = nullptr;
    bool m_interactive = true;
    int m_downloadMs = 1200;
};
