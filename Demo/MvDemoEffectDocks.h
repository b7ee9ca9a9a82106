#pragma once

#include <QDockWidget>
#include <QListWidget>

class IMvAbstractMediaItem;
class MvMemoryMediaItem;
class MvMemoryMediaLibrary;
class QPushButton;
class QSpinBox;

// A shelf of library items that a person drags onto the timeline or applies to the selection.
// A drag carries the item's name under the shelf's mime type.
class MvDemoItemShelf : public QListWidget
{
    Q_OBJECT

public:
    MvDemoItemShelf(const QString& mimeType, QWidget* parent = nullptr);

    QString mimeType() const { return m_mimeType; }
    // The item a drop of this data names, found in the library; null for other data.
    static MvMemoryMediaItem* itemOf(
        const QMimeData* data, const QString& mimeType, const MvMemoryMediaLibrary* library);

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QListWidgetItem*> items) const override;

private:
    QString m_mimeType;
};

// The Transitions panel: the library's transitions, pictured by the items themselves (each is
// loaded when the panel is built), a length for the transitions it places (0: each item's own),
// and the commands that place them on the selection.
class MvDemoTransitionsDock : public QDockWidget
{
    Q_OBJECT

public:
    static const QString MimeType;

    MvDemoTransitionsDock(MvMemoryMediaLibrary* library, QWidget* parent = nullptr);

    MvDemoItemShelf* shelf() const { return m_shelf; }
    // The transition picked on the shelf (the first one when none is).
    IMvAbstractMediaItem* currentItem() const;
    QList<IMvAbstractMediaItem*> items() const;
    qint64 length() const;
    void setLength(qint64 frames);

Q_SIGNALS:
    void applyRequested();
    void randomRequested();

private:
    MvMemoryMediaLibrary* m_library;
    MvDemoItemShelf* m_shelf;
    QSpinBox* m_length;
};

// The Effects panel: the library's video and audio effects, with icons drawn for them here, and
// the command that applies the picked one to the selection.
class MvDemoEffectsDock : public QDockWidget
{
    Q_OBJECT

public:
    static const QString MimeType;

    MvDemoEffectsDock(MvMemoryMediaLibrary* library, QWidget* parent = nullptr);

    MvDemoItemShelf* shelf() const { return m_shelf; }
    IMvAbstractMediaItem* currentItem() const;
    // An effect's icon: a picture for a video effect, sound waves for an audio one.
    static QIcon iconFor(const QString& name, bool audio);

Q_SIGNALS:
    void applyRequested();

private:
    MvMemoryMediaLibrary* m_library;
    MvDemoItemShelf* m_shelf;
};
