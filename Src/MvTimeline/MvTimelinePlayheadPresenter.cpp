#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadPresenter_p.h"

#include "IMvTimeline.h"
#include "MvTimelineModelAccess_p.h"
#include "MvTimelinePresenter.h"

#include <algorithm>
#include <limits>

using MVWIDGETS::MvWidgetStyleStatus;

namespace {
constexpr int kPlayheadImageSide = 12;

int boundedToInt(qint64 value)
{
    return int(qBound<qint64>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

// The playhead kinds that change what the widget shows: visibility, enabled state, position and
// the split button's visibility and enabled state.
bool repaintsPlayhead(int kind)
{
    switch (kind) {
    case IMvTimelinePlayhead::VisibleChanged:
    case IMvTimelinePlayhead::EnabledChanged:
    case IMvTimelinePlayhead::Moved:
    case IMvTimelinePlayhead::SplitButtonVisibleChanged:
    case IMvTimelinePlayhead::SplitButtonEnabledChanged:
        return true;
    default:
        return false;
    }
}
}

MvTimelinePlayheadPresenterPrivate::MvTimelinePlayheadPresenterPrivate(
    MvTimelinePlayheadPresenter* q, MvTimelinePresenter* timelinePresenter)
    : q_ptr(q)
    , timelinePresenter(timelinePresenter)
{
}

void MvTimelinePlayheadPresenterPrivate::onPlayheadEvent(IMvTimelinePlayhead* source, int kind)
{
    Q_UNUSED(source)
    Q_Q(MvTimelinePlayheadPresenter);
    if (repaintsPlayhead(kind))
        Q_EMIT q->sigUpdateUI();
}

void MvTimelinePlayheadPresenterPrivate::onRulerEvent(int kind)
{
    Q_UNUSED(kind)
    Q_Q(MvTimelinePlayheadPresenter);
    // Zoom, scrolling and length all move the playhead's pixel position.
    Q_EMIT q->sigUpdateUI();
}

void MvTimelinePlayheadPresenterPrivate::registerObservers()
{
    IMvTimeline* timeline = timelinePresenter ? timelinePresenter->timeline() : nullptr;
    if (!timeline)
        return;
    observedPlayhead = timeline->playhead();
    if (observedPlayhead)
        observedPlayhead->addObserver(this);
    observedRuler = timeline->ruler();
    if (observedRuler)
        observedRuler->addObserver(this);
}

void MvTimelinePlayheadPresenterPrivate::unregisterObservers()
{
    if (observedRuler)
        observedRuler->removeObserver(this);
    if (observedPlayhead)
        observedPlayhead->removeObserver(this);
    observedRuler = nullptr;
    observedPlayhead = nullptr;
}

IMvTimelinePlayhead* MvTimelinePlayheadPresenterPrivate::playhead() const
{
    IMvTimeline* timeline = timelinePresenter ? timelinePresenter->timeline() : nullptr;
    return timeline ? timeline->playhead() : nullptr;
}

bool MvTimelinePlayheadPresenterPrivate::modelEnabled() const
{
    IMvTimelinePlayhead* head = playhead();
    return head && head->isEnabled();
}

int MvTimelinePlayheadPresenterPrivate::lowestSplitButtonY() const
{
    return boundedToInt(qint64(data.viewRect.height()) - data.splitButton.size.height());
}

int MvTimelinePlayheadPresenterPrivate::clampedSplitButtonY(qint64 requested) const
{
    // The lower bound is applied last: in a view too low for the button, minY wins.
    return std::max(data.splitButton.minY, boundedToInt(std::min<qint64>(lowestSplitButtonY(), requested)));
}

MvTimelinePlayheadPresenter::MvTimelinePlayheadPresenter(MvTimelinePresenter* timelinePresenter, QObject* parent)
    : MvPresenter(parent)
    , d_ptr(new MvTimelinePlayheadPresenterPrivate(this, timelinePresenter))
{
    Q_D(MvTimelinePlayheadPresenter);
    d->registerObservers();
}

MvTimelinePlayheadPresenter::~MvTimelinePlayheadPresenter()
{
    Q_D(MvTimelinePlayheadPresenter);
    d->unregisterObservers();
}

bool MvTimelinePlayheadPresenter::playheadVisible()
{
    Q_D(MvTimelinePlayheadPresenter);
    IMvTimelinePlayhead* head = d->playhead();
    return head && head->isVisible();
}

bool MvTimelinePlayheadPresenter::playheadEnabled()
{
    Q_D(MvTimelinePlayheadPresenter);
    return d->modelEnabled();
}

QRect MvTimelinePlayheadPresenter::splitButtonCaptureRect()
{
    return splitButtonVisible() ? splitButtonRect() : QRect();
}

bool MvTimelinePlayheadPresenter::splitButtonVisible()
{
    Q_D(MvTimelinePlayheadPresenter);
    IMvTimelinePlayhead* head = d->playhead();
    return head && head->isSplitButtonVisible();
}

bool MvTimelinePlayheadPresenter::splitButtonEnabled()
{
    Q_D(MvTimelinePlayheadPresenter);
    IMvTimelinePlayhead* head = d->playhead();
    return head && head->isSplitButtonEnabled();
}

int MvTimelinePlayheadPresenter::position()
{
    Q_D(MvTimelinePlayheadPresenter);
    IMvTimelinePlayhead* head = d->playhead();
    return head ? head->position() : 0;
}

void MvTimelinePlayheadPresenter::updatePosition(int x, int dy)
{
    Q_D(MvTimelinePlayheadPresenter);
    if (IMvTimelinePlayhead* head = d->playhead())
        head->setPosition(x);
    // In 64 bits: a drag far outside the view must not wrap the button around.
    d->data.splitButton.y = d->clampedSplitButtonY(qint64(d->data.splitButton.y) + dy);
}

void MvTimelinePlayheadPresenter::updateViewRect(const QRect& rect)
{
    Q_D(MvTimelinePlayheadPresenter);
    d->data.viewRect = rect;
}

MvRange<int> MvTimelinePlayheadPresenter::maxRange()
{
    Q_D(MvTimelinePlayheadPresenter);
    return MvRange<int>(0, d->data.viewRect.width());
}

QRect MvTimelinePlayheadPresenter::playheadRect()
{
    return QRect(position() - kPlayheadImageSide / 2, 0, kPlayheadImageSide, kPlayheadImageSide);
}

QPolygon MvTimelinePlayheadPresenter::currentShape()
{
    Q_D(MvTimelinePlayheadPresenter);
    return d->data.shape.translated(position(), 0);
}

QColor MvTimelinePlayheadPresenter::currentPlayheadColor()
{
    Q_D(MvTimelinePlayheadPresenter);
    return getPlayheadColor(playheadEnabled() ? d->data.status : MVWIDGETS::Disabled);
}

QImage MvTimelinePlayheadPresenter::currentPlayheadPixmap()
{
    Q_D(MvTimelinePlayheadPresenter);
    return getPlayheadPixmap(d->modelEnabled() ? d->data.status : MVWIDGETS::Disabled);
}

QImage MvTimelinePlayheadPresenter::currentSplitButtonImage()
{
    Q_D(MvTimelinePlayheadPresenter);
    return getSplitButtonImage(d->modelEnabled() ? d->data.status : MVWIDGETS::Disabled);
}

void MvTimelinePlayheadPresenter::setPlayheadColor(MvWidgetStyleStatus status, const QColor& color)
{
    Q_D(MvTimelinePlayheadPresenter);
    d->data.colors.insert(status, color);
}

void MvTimelinePlayheadPresenter::addSplitButtonImage(const MvWidgetStyleStatus& status, const QImage& image)
{
    Q_D(MvTimelinePlayheadPresenter);
    d->data.splitButtonImages.insert(status, image);
}

QRect MvTimelinePlayheadPresenter::splitButtonRect()
{
    Q_D(MvTimelinePlayheadPresenter);
    const QSize size = d->data.splitButton.size;
    return QRect(QPoint(position() - size.width() / 2, d->data.splitButton.y), size);
}

QSize MvTimelinePlayheadPresenter::splitButtonSize()
{
    Q_D(MvTimelinePlayheadPresenter);
    return d->data.splitButton.size;
}

void MvTimelinePlayheadPresenter::setSplitButtonSize(const QSize& size)
{
    Q_D(MvTimelinePlayheadPresenter);
    d->data.splitButton.size = size;
}

MvWidgetStyleStatus MvTimelinePlayheadPresenter::splitButtonStatus()
{
    Q_D(MvTimelinePlayheadPresenter);
    return d->modelEnabled() ? d->data.status : MVWIDGETS::Disabled;
}

void MvTimelinePlayheadPresenter::setSplitButtonStatus(MvWidgetStyleStatus status)
{
    Q_D(MvTimelinePlayheadPresenter);
    d->data.status = status;
}

void MvTimelinePlayheadPresenter::setSplitButtonVisible(bool visible)
{
    Q_D(MvTimelinePlayheadPresenter);
    if (IMvTimelinePlayhead* head = d->playhead())
        head->setSplitButtonVisible(visible);
}

int MvTimelinePlayheadPresenter::splitButtonY()
{
    Q_D(MvTimelinePlayheadPresenter);
    return d->data.splitButton.y;
}

void MvTimelinePlayheadPresenter::setSplitButtonY(int y)
{
    Q_D(MvTimelinePlayheadPresenter);
    d->data.splitButton.y = d->clampedSplitButtonY(y);
}

void MvTimelinePlayheadPresenter::setSplitButtonMinY(int minY)
{
    Q_D(MvTimelinePlayheadPresenter);
    d->data.splitButton.minY = minY;
}

MvRange<int> MvTimelinePlayheadPresenter::splitButtonYRange()
{
    Q_D(MvTimelinePlayheadPresenter);
    return MvRange<int>(d->data.splitButton.minY, d->lowestSplitButtonY());
}

void MvTimelinePlayheadPresenter::splitClips()
{
    Q_D(MvTimelinePlayheadPresenter);
    if (d->timelinePresenter)
        d->timelinePresenter->splitClips(-1, true, false);
}

qint64 MvTimelinePlayheadPresenter::currentFrame()
{
    Q_D(MvTimelinePlayheadPresenter);
    return MvModelAccess::playheadFrame(d->timelinePresenter ? d->timelinePresenter->timeline() : nullptr);
}

QString MvTimelinePlayheadPresenter::currentTimecode()
{
    Q_D(MvTimelinePlayheadPresenter);
    return MvModelAccess::timeCode(d->timelinePresenter ? d->timelinePresenter->timeline() : nullptr, currentFrame());
}

void MvTimelinePlayheadPresenter::setCurrentFrame(qint64 frame)
{
    Q_D(MvTimelinePlayheadPresenter);
    MvModelAccess::setPlayheadFrame(d->timelinePresenter ? d->timelinePresenter->timeline() : nullptr, frame);
}

MvPlayheadData* MvTimelinePlayheadPresenter::playheadData() const
{
    // The data is the presenter's writable state, handed out on purpose (the widget and hosts tune it).
    return &d_ptr->data;
}

MvTimelinePresenter* MvTimelinePlayheadPresenter::timelinePresenter() const
{
    Q_D(const MvTimelinePlayheadPresenter);
    return d->timelinePresenter;
}

QImage MvTimelinePlayheadPresenter::getSplitButtonImage(MvWidgetStyleStatus status)
{
    Q_D(MvTimelinePlayheadPresenter);
    return d->data.splitButtonImages.value(status);
}

QColor MvTimelinePlayheadPresenter::getPlayheadColor(MvWidgetStyleStatus status)
{
    Q_D(MvTimelinePlayheadPresenter);
    return d->data.colors.value(status);
}

QImage MvTimelinePlayheadPresenter::getPlayheadPixmap(MvWidgetStyleStatus status)
{
    // The library has no head image of its own; a host subclass supplies one.
    Q_UNUSED(status)
    return QImage();
}
