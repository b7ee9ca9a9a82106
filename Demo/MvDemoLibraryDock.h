#pragma once

#include <QDockWidget>

class MvMessage;
class QLabel;
class QListWidget;

// The demo's stand-in for the host's media library: it shows what the timeline asked of the
// library (resources similar to the one a clip was made from), newest first, and says that the
// search itself belongs to the library.
class MvDemoLibraryDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit MvDemoLibraryDock(QWidget* parent = nullptr);

    // A scene message for the media library: true when it was one, with what was asked in words.
    bool handleMessage(MvMessage* message, QString* detail);
    QStringList requests() const;

private:
    QLabel* m_intro;
    QListWidget* m_requests;
};
