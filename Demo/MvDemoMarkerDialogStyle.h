#pragma once

#include <QObject>

class MvMarkerEditDialog;

// The marker editor as the host dresses it. The library lays its rows out at fixed places and
// pushes the Comment field to the right when the caption measures wider than the caption
// column; the host gives the captions the largest font in which the fields line up. The editor
// has OK and DELETE only: the host adds Cancel, which closes it without a change, as Escape and
// its close button do.
class MvDemoMarkerDialogStyle : public QObject
{
    Q_OBJECT

public:
    explicit MvDemoMarkerDialogStyle(QObject* parent = nullptr);

    // Done once per dialog, when it is first shown.
    static void dress(MvMarkerEditDialog* dialog);
    // True when the name, comment and colour fields start at the same x.
    static bool fieldsLineUp(const MvMarkerEditDialog* dialog);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
