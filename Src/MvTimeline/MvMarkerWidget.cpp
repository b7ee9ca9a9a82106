#include "MvMarkerWidget.h"

#include "MvMarkerStripPainter_p.h"
#include "MvTimelineAccessible_p.h"
#include "MvToolTipHelper.h"

#include <QHelpEvent>
#include <QPainter>

#include <limits>

namespace {
constexpr int kMarkerWidth = 11;
constexpr int kMarkerHeight = 14;
constexpr int kToolTipSeconds = 3;
}

namespace {

// Tool tips naming the marker under the pointer. A filter rather than an event() override, so that
// the strip's own event handling stays that of the widget it derives from.
class MvMarkerToolTips : public QObject
{
public:
    explicit MvMarkerToolTips(MvMarkerWidget* strip)
        : QObject(strip)
        , m_strip(strip)
    {
        strip->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != m_strip || event->type() != QEvent::ToolTip)
            return false;
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString text = m_strip->markerDescription(m_strip->markerAt(help->pos()));
        if (text.isEmpty()) {
            MvToolTipHelper::hideToolTip();
            event->ignore();
            return true;
        }
        MvToolTipHelper::showToolTip(help->globalPos(), text, true, kToolTipSeconds);
        return true;
    }

private:
    MvMarkerWidget* m_strip;
};

}

MvMarkerWidget::MvMarkerWidget(MvMarkerPresenter* presenter, QWidget* parent)
    : MvWidget(parent)
    , m_stripPainter(new MvMarkerStripPainter)
{
    new MvMarkerToolTips(this);
    setPresenter(presenter);
}

MvMarkerWidget::~MvMarkerWidget() = default;

void MvMarkerWidget::setPresenter(MvMarkerPresenter* presenter)
{
    m_presenter = presenter;
    if (!presenter)
        return;
    connect(presenter, &MvMarkerPresenter::signalMarkerCountChanged, this, &MvMarkerWidget::slotMarkerCountChanged);
    connect(presenter, &MvMarkerPresenter::signalClearTimelineSelectedMarker, this,
        &MvMarkerWidget::slotClearTimelineSelectedMarker);
    // A host may delete the presenter first; the strip then shows no markers.
    connect(presenter, &QObject::destroyed, this, [this, presenter]() {
        if (m_presenter != presenter)
            return;
        m_presenter = nullptr;
        m_markers.clear();
        update();
    });
    slotMarkerCountChanged();
}

MvMarkerPresenter* MvMarkerWidget::presenter() const
{
    return m_presenter;
}

QList<MvMarkerPresenter::MarkerItem> MvMarkerWidget::markers() const
{
    return m_markers;
}

QRect MvMarkerWidget::markerRect(int x)
{
    // A marker far off the strip, at an end of the int range, keeps its size instead of overflowing.
    const int left = int(qBound<qint64>(
        std::numeric_limits<int>::min(), qint64(x) - kMarkerWidth / 2, std::numeric_limits<int>::max() - kMarkerWidth));
    return QRect(left, -1, kMarkerWidth, kMarkerHeight);
}

int MvMarkerWidget::markerAt(const QPoint& pos) const
{
    for (int i = m_markers.size() - 1; i >= 0; --i) {
        if (markerRect(m_markers.at(i).first).contains(pos))
            return i;
    }
    return -1;
}

QString MvMarkerWidget::markerDescription(int index) const
{
    if (!m_presenter || index < 0 || index >= m_markers.size())
        return QString();
    const QString name = m_presenter->markerName(index);
    const QString time = m_presenter->markerTimecode(index);
    const QString title = name.isEmpty() ? tr("Unnamed marker") : name;
    return time.isEmpty() ? title : title + QLatin1Char('\n') + time;
}

void MvMarkerWidget::slotMarkerCountChanged()
{
    if (!m_presenter)
        return;
    m_markers = m_presenter->markerList();
    update();
    MvAccessibleAnnouncer::valueChanged(this);
}

void MvMarkerWidget::slotClearTimelineSelectedMarker()
{
    if (!m_pressVisible)
        return;
    m_pressVisible = false;
    update();
}

void MvMarkerWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    if (!m_presenter)
        return;
    QPainter painter(this);
    MvMarkerStripScene scene;
    scene.markers = m_markers;
    scene.floating = m_floating1 || m_floating2;
    scene.floatingX = m_floatingX;
    scene.hoverIndex = m_hoverIndex;
    scene.pressVisible = m_pressVisible;
    scene.pressIndex = m_pressIndex;
    m_stripPainter->paint(painter, *this, *m_presenter, scene);
}
