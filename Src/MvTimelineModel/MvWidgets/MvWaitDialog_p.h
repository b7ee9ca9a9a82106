#pragma once

#include "MvWaitDialog.h"

#include <QColor>
#include <QLineF>
#include <QList>

class QTimer;

struct MvWaitSpoke
{
    QLineF line;
    QColor color;
};

class MvWaitDialogPrivate
{
    Q_DECLARE_PUBLIC(MvWaitDialog)

public:
    explicit MvWaitDialogPrivate(MvWaitDialog* q);

    void tick();
    // The spokes around the centre of area, the current one in full ink and the ones behind it
    // fading, so that the wheel seems to turn.
    static QList<MvWaitSpoke> spokesFor(const QRectF& area, int current, const QColor& ink);

    MvWaitDialog* q_ptr;
    QTimer* timer = nullptr;
    int current = 0;
};
