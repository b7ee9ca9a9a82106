#include "MvDemoEffectDrops.h"

#include "IMvAbstractClip.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "MvDemoEffectDocks.h"
#include "MvDemoTrackArea.h"
#include "MvVBLModelGlobal.h"

#include <QDragMoveEvent>
#include <QDropEvent>
#include <QPainter>

using namespace MVVBLMODEL;

namespace {
// The outline shows a second at the sample's rate when the item keeps its own length.
constexpr qint64 kOwnLengthShown = 30;

// Outlines where a drop would land; the mouse goes through it to the area.
class DropOutline : public QWidget
{
public:
    explicit DropOutline(QWidget* parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0xF2, 0xC9, 0x4C, 70));
        painter.setPen(QPen(QColor(0xF2, 0xC9, 0x4C), 2, Qt::DashLine));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};
}

MvDemoEffectDrops::MvDemoEffectDrops(MvDemoTrackArea* area, MvMemoryMediaLibrary* library)
    : QObject(area)
    , m_area(area)
    , m_library(library)
    , m_outline(new DropOutline(area))
{
    area->setAcceptDrops(true);
    area->installEventFilter(this);
}

MvDemoEffectDrops::Target MvDemoEffectDrops::transitionTarget(
    const MvDemoTrackArea& area, const QPoint& pos, qint64 length)
{
    Target target;
    IMvAbstractClip* item = area.itemAt(pos);
    if (auto* transition = dynamic_cast<IMvTransition*>(item)) {
        // Over a transition: the new one takes its place.
        target.clip = transition->ownerClip();
        target.transitionType = transition->placement();
        target.outline = area.clipRect(transition, target.clip ? target.clip->trackIndex() : -1);
        return target;
    }
    auto* clip = dynamic_cast<IMvClip*>(item);
    if (!clip)
        return target;
    const QRect rect = area.clipRect(clip, clip->trackIndex());
    const qint64 shown = qMax<qint64>(1, qMin(length > 0 ? length : kOwnLengthShown, clip->frameCount() / 2));
    target.clip = clip;
    target.transitionType = pos.x() < rect.center().x() ? TransitionType_Start : TransitionType_End;
    const qint64 first = target.transitionType == TransitionType_Start ? clip->start() : clip->end() + 1 - shown;
    const int x0 = area.mapping().xOf(first);
    const int x1 = area.mapping().xOf(first + shown);
    target.outline = QRect(x0, rect.top(), qMax(2, x1 - x0), rect.height());
    return target;
}

MvDemoEffectDrops::Target MvDemoEffectDrops::effectTarget(const MvDemoTrackArea& area, const QPoint& pos)
{
    Target target;
    auto* clip = dynamic_cast<IMvClip*>(area.itemAt(pos));
    if (clip) {
        target.clip = clip;
        target.outline = area.clipRect(clip, clip->trackIndex());
    }
    return target;
}

QRect MvDemoEffectDrops::outline() const
{
    return m_outline->isVisible() ? m_outline->geometry() : QRect();
}

MvDemoEffectDrops::Target MvDemoEffectDrops::targetOf(
    const QMimeData* data, const QPoint& pos, MvMemoryMediaItem** item) const
{
    if ((*item = MvDemoItemShelf::itemOf(data, MvDemoTransitionsDock::MimeType, m_library)))
        return transitionTarget(*m_area, pos, m_length ? m_length() : 0);
    if ((*item = MvDemoItemShelf::itemOf(data, MvDemoEffectsDock::MimeType, m_library)))
        return effectTarget(*m_area, pos);
    return Target();
}

void MvDemoEffectDrops::showOutline(const QRect& rect)
{
    m_outline->setVisible(!rect.isNull());
    if (!rect.isNull()) {
        m_outline->setGeometry(rect);
        m_outline->raise();
    }
}

bool MvDemoEffectDrops::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_area)
        return false;
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto* drag = static_cast<QDragMoveEvent*>(event);
        MvMemoryMediaItem* item = nullptr;
        const Target target = targetOf(drag->mimeData(), drag->pos(), &item);
        if (!item)
            return false;
        // Entering is always accepted, so that the moves over the clips are seen.
        if (target.isValid() || event->type() == QEvent::DragEnter)
            drag->acceptProposedAction();
        else
            drag->ignore();
        showOutline(target.outline);
        return true;
    }
    case QEvent::DragLeave:
        showOutline(QRect());
        return false;
    case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        showOutline(QRect());
        MvMemoryMediaItem* item = nullptr;
        const Target target = targetOf(drop->mimeData(), drop->pos(), &item);
        if (!item)
            return false;
        drop->acceptProposedAction();
        if (!target.isValid())
            return true;
        if (target.transitionType != 0)
            Q_EMIT transitionDropped(target.clip, target.transitionType, item);
        else
            Q_EMIT effectDropped(target.clip, item);
        return true;
    }
    default:
        return false;
    }
}
