#include "MvDemoMediaDrop.h"

#include "MvDemoMediaPanel.h"
#include "MvDemoTrackArea.h"

#include <QDropEvent>
#include <QMimeData>

MvDemoMediaDrop::MvDemoMediaDrop(MvDemoTrackArea* area)
    : QObject(area)
    , m_area(area)
{
    m_area->setAcceptDrops(true);
    m_area->installEventFilter(this);
}

qint64 MvDemoMediaDrop::frameAt(int x) const
{
    return qMax<qint64>(0, m_area->mapping().frameAt(x));
}

int MvDemoMediaDrop::rowAt(int y) const
{
    const int row = m_area->trackAt(y);
    return row >= 0 ? row : m_area->nearestTrack(y);
}

bool MvDemoMediaDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_area)
        return false;
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto* drag = static_cast<QDropEvent*>(event);
        if (!drag->mimeData()->hasFormat(QLatin1String(MvDemoMediaList::kMimeType)))
            return false;
        drag->acceptProposedAction();
        return true;
    }
    case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        const QMimeData* data = drop->mimeData();
        if (!data->hasFormat(QLatin1String(MvDemoMediaList::kMimeType)))
            return false;
        bool ok = false;
        const int itemRow = data->data(QLatin1String(MvDemoMediaList::kMimeType)).toInt(&ok);
        if (!ok)
            return false;
        drop->acceptProposedAction();
        Q_EMIT dropped(itemRow, frameAt(drop->pos().x()), rowAt(drop->pos().y()));
        return true;
    }
    default:
        return false;
    }
}
