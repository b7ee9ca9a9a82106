#pragma once

#include <QCoreApplication>
#include <QDockWidget>
#include <QListWidget>
#include <QPixmap>
#include <QStringList>

class QPushButton;
class MvMemoryMediaItem;
class MvMemoryMediaLibrary;

// What the demo's media panel draws for an item: a thumbnail painted at run time after its kind,
// with badges for what the item still needs (a download) or is (stock, VCG, compound).
class MvDemoMediaThumbnail
{
    Q_DECLARE_TR_FUNCTIONS(MvDemoMediaThumbnail)

public:
    static constexpr int kWidth = 96;
    static constexpr int kHeight = 54;

    // The badges in the order they are drawn: "stock", "vcg", "download", "compound".
    static QStringList badges(const MvMemoryMediaItem* item);
    static QPixmap draw(const MvMemoryMediaItem* item);
    // "Video, 12 s", "Compound, read on first use", ...
    static QString description(const MvMemoryMediaItem* item);
};

// The list of the panel: each row drags as the media item it shows.
class MvDemoMediaList : public QListWidget
{
    Q_OBJECT

public:
    static const char* const kMimeType; // carries the item's index in the library

    explicit MvDemoMediaList(QWidget* parent = nullptr);

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QListWidgetItem*> items) const override;
};

// The project's media, as a host's media bin shows it: double-click an item, or choose it and
// press Add to Timeline, to put it at the playhead; drag it onto a row of the tracks to put it
// there.
class MvDemoMediaPanel : public QDockWidget
{
    Q_OBJECT

public:
    MvDemoMediaPanel(MvMemoryMediaLibrary* library, QWidget* parent = nullptr);

    MvDemoMediaList* list() const { return m_list; }
    QPushButton* addButton() const { return m_addButton; }
    MvMemoryMediaItem* currentItem() const;
    // The library's item at a row of the list (the index a drag carries), or null.
    MvMemoryMediaItem* itemAt(int row) const;
    int rowOf(const QString& name) const;
    // Draws the items again (a download changes the badges).
    void refresh();

Q_SIGNALS:
    void addRequested(MvMemoryMediaItem* item);

private:
    // The items this panel lists: transitions and effects have panels of their own.
    QList<MvMemoryMediaItem*> shownItems() const;

    MvMemoryMediaLibrary* m_library;
    MvDemoMediaList* m_list;
    QPushButton* m_addButton;
};
