#pragma once

// Internal to the library: what the marker strip and the marker editor's swatch row tell
// assistive tools (see MvTimelineAccessible_p.h for the whole picture).

#include "MvTimelineAccessible_p.h"

#include <QVector>

class MvMarkerEditColor;
class MvMarkerEditColorCell;
class MvMarkerWidget;

// The marker strip: a list whose value names every marker with its time, one child per marker.
class MvMarkerStripAccessible : public MvAccessibleWidget
{
    Q_DECLARE_TR_FUNCTIONS(MvMarkerWidget)

public:
    explicit MvMarkerStripAccessible(MvMarkerWidget* strip);
    ~MvMarkerStripAccessible() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

protected:
    QString ownText(QAccessible::Text kind) const override;

private:
    MvMarkerWidget* strip() const;

    // The children made so far, by marker index; the strip's list may shrink under them.
    mutable QVector<QAccessible::Id> m_markerIds;
};

// One marker of the strip: its name, and its time as its value.
class MvMarkerItemAccessible : public QAccessibleInterface
{
    Q_DECLARE_TR_FUNCTIONS(MvMarkerWidget)

public:
    MvMarkerItemAccessible(MvMarkerWidget* strip, int index);

    // False once the strip holds fewer markers than this one's index.
    bool isValid() const override;
    // Not an object of its own: the strip draws it.
    QObject* object() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;
    // The name belongs to the host's model; it is edited in the marker editor.
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    QPointer<MvMarkerWidget> m_strip;
    int m_index;
};

// The swatch row: a list of colours whose value is the chosen one; its cells are its children.
class MvColorRowAccessible : public MvAccessibleWidget
{
    Q_DECLARE_TR_FUNCTIONS(MvMarkerEditColor)

public:
    explicit MvColorRowAccessible(MvMarkerEditColor* row);

    QAccessibleInterface* focusChild() const override;

protected:
    QString ownText(QAccessible::Text kind) const override;

private:
    MvMarkerEditColor* row() const;
};

// One swatch: named by its colour, selected when chosen; pressing it chooses it.
class MvColorCellAccessible : public MvAccessibleWidget
{
public:
    explicit MvColorCellAccessible(MvMarkerEditColorCell* cell);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

protected:
    QString ownText(QAccessible::Text kind) const override;

private:
    MvMarkerEditColor* row() const;
    int index() const;
};
