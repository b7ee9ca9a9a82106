#include "MvTimelineAccessible_p.h"

#include "IMvShortcutEditManager.h"
#include "MvMarkerAccessible_p.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerWidget.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvTimelineModelAccess_p.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"

#include <QMap>

#include <cmath>

namespace {

QMap<int, MvAccessibleAnnouncer::Listener>& listeners()
{
    static QMap<int, MvAccessibleAnnouncer::Listener> all;
    return all;
}

QRect toGlobal(const QWidget* widget, const QRect& rect)
{
    return QRect(widget->mapToGlobal(rect.topLeft()), rect.size());
}

void installFactory()
{
    QAccessible::installFactory(&MvTimelineAccessible::factory);
}

} // namespace

// Every host of the library gets the interfaces without a call of its own.
Q_COREAPP_STARTUP_FUNCTION(installFactory)

namespace MvAccessibleAnnouncer {

bool isHeard()
{
    return QAccessible::isActive() || !listeners().isEmpty();
}

void send(QAccessibleEvent* event)
{
    if (!event || !isHeard())
        return;
    QAccessible::updateAccessibility(event);
    // A listener may remove itself (or others) while it hears the event.
    const QMap<int, Listener> current = listeners();
    for (const Listener& listener : current)
        listener(event);
}

void valueChanged(QObject* object)
{
    if (!object || !isHeard())
        return;
    auto* accessible = dynamic_cast<MvAccessibleWidget*>(QAccessible::queryAccessibleInterface(object));
    if (!accessible)
        return;
    const QVariant value = accessible->announcedValue();
    if (!accessible->takeAnnouncedValue(value))
        return;
    QAccessibleValueChangeEvent event(object, value);
    send(&event);
}

int addListener(const Listener& listener)
{
    static int lastId = 0;
    listeners().insert(++lastId, listener);
    return lastId;
}

void removeListener(int id)
{
    listeners().remove(id);
}

} // namespace MvAccessibleAnnouncer

namespace MvTimelineAccessible {

QAccessibleInterface* factory(const QString& className, QObject* object)
{
    if (className == QLatin1String("MvTimelineRulerWidget"))
        return new MvTimelineRulerAccessible(qobject_cast<MvTimelineRulerWidget*>(object));
    if (className == QLatin1String("MvPureTimelineRulerWidget"))
        return new MvPureRulerAccessible(qobject_cast<MvPureTimelineRulerWidget*>(object));
    if (className == QLatin1String("MvTimelinePlayheadWidget"))
        return new MvPlayheadAccessible(qobject_cast<MvTimelinePlayheadWidget*>(object));
    if (className == QLatin1String("MvTimelineRenderWidget"))
        return new MvRenderStripAccessible(qobject_cast<MvTimelineRenderWidget*>(object));
    if (className == QLatin1String("MvMarkerWidget"))
        return new MvMarkerStripAccessible(qobject_cast<MvMarkerWidget*>(object));
    if (className == QLatin1String("MvMarkerEditColor"))
        return new MvColorRowAccessible(qobject_cast<MvMarkerEditColor*>(object));
    if (className == QLatin1String("MvMarkerEditColorCell"))
        return new MvColorCellAccessible(qobject_cast<MvMarkerEditColorCell*>(object));
    return nullptr;
}

} // namespace MvTimelineAccessible

MvAccessibleWidget::MvAccessibleWidget(QWidget* widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{
}

QString MvAccessibleWidget::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name && !widget()->accessibleName().isEmpty())
        return widget()->accessibleName();
    if (kind == QAccessible::Description && !widget()->accessibleDescription().isEmpty())
        return widget()->accessibleDescription();
    const QString own = ownText(kind);
    return own.isEmpty() ? QAccessibleWidget::text(kind) : own;
}

QVariant MvAccessibleWidget::announcedValue() const
{
    return text(QAccessible::Value);
}

bool MvAccessibleWidget::takeAnnouncedValue(const QVariant& value)
{
    if (m_lastAnnounced.isValid() && m_lastAnnounced == value)
        return false;
    m_lastAnnounced = value;
    return true;
}

MvFrameSliderAccessible::MvFrameSliderAccessible(QWidget* widget)
    : MvAccessibleWidget(widget, QAccessible::Slider)
{
}

void* MvFrameSliderAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return MvAccessibleWidget::interface_cast(type);
}

QVariant MvFrameSliderAccessible::announcedValue() const
{
    return currentValue();
}

QVariant MvFrameSliderAccessible::currentValue() const
{
    return QVariant(qlonglong(currentFrame()));
}

void MvFrameSliderAccessible::setCurrentValue(const QVariant& value)
{
    bool ok = false;
    const qint64 frame = value.toLongLong(&ok);
    if (ok)
        seek(qBound<qint64>(0, frame, totalFrames()));
}

QVariant MvFrameSliderAccessible::maximumValue() const
{
    return QVariant(qlonglong(totalFrames()));
}

QVariant MvFrameSliderAccessible::minimumValue() const
{
    return QVariant(qlonglong(0));
}

QVariant MvFrameSliderAccessible::minimumStepSize() const
{
    return QVariant(qlonglong(1));
}

MvTimelineRulerAccessible::MvTimelineRulerAccessible(MvTimelineRulerWidget* ruler)
    : MvFrameSliderAccessible(ruler)
{
}

MvTimelineRulerWidget* MvTimelineRulerAccessible::ruler() const
{
    return static_cast<MvTimelineRulerWidget*>(widget());
}

QString MvTimelineRulerAccessible::ownText(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return tr("Time ruler");
    case QAccessible::Description:
        return tr("Click to move the playhead, drag sideways to zoom.");
    case QAccessible::Value:
        return timeCode();
    default:
        return QString();
    }
}

qint64 MvTimelineRulerAccessible::currentFrame() const
{
    MvTimelineRulerPresenter* presenter = ruler()->presenter();
    return presenter ? presenter->currentFrame() : 0;
}

qint64 MvTimelineRulerAccessible::totalFrames() const
{
    MvTimelineRulerPresenter* presenter = ruler()->presenter();
    return presenter ? presenter->totalFrames() : 0;
}

QString MvTimelineRulerAccessible::timeCode() const
{
    MvTimelineRulerPresenter* presenter = ruler()->presenter();
    return presenter ? presenter->currentTimecode() : QString();
}

void MvTimelineRulerAccessible::seek(qint64 frame)
{
    if (MvTimelineRulerPresenter* presenter = ruler()->presenter())
        presenter->setCurrentFrame(frame);
}

MvPureRulerAccessible::MvPureRulerAccessible(MvPureTimelineRulerWidget* ruler)
    : MvFrameSliderAccessible(ruler)
{
}

MvPureTimelineRulerWidget* MvPureRulerAccessible::ruler() const
{
    return static_cast<MvPureTimelineRulerWidget*>(widget());
}

QString MvPureRulerAccessible::ownText(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return tr("Time ruler");
    case QAccessible::Description:
        return tr("Click to set the time, drag sideways to zoom.");
    case QAccessible::Value:
        return timeCode();
    default:
        return QString();
    }
}

qint64 MvPureRulerAccessible::currentFrame() const
{
    return ruler()->currentFrame();
}

qint64 MvPureRulerAccessible::totalFrames() const
{
    return ruler()->totalFrames();
}

QString MvPureRulerAccessible::timeCode() const
{
    return MvModelAccess::timeCode(ruler()->ruler(), ruler()->currentFrame());
}

void MvPureRulerAccessible::seek(qint64 frame)
{
    ruler()->setCurrentFrame(frame);
}

MvPlayheadAccessible::MvPlayheadAccessible(MvTimelinePlayheadWidget* playhead)
    : MvFrameSliderAccessible(playhead)
{
}

MvPlayheadAccessible::~MvPlayheadAccessible()
{
    if (m_splitButtonId)
        QAccessible::deleteAccessibleInterface(m_splitButtonId);
}

MvTimelinePlayheadWidget* MvPlayheadAccessible::playhead() const
{
    return static_cast<MvTimelinePlayheadWidget*>(widget());
}

QAccessible::State MvPlayheadAccessible::state() const
{
    QAccessible::State state = MvFrameSliderAccessible::state();
    MvTimelinePlayheadPresenter* presenter = playhead()->presenter();
    if (!presenter || !presenter->playheadVisible())
        state.invisible = true;
    if (!presenter || !presenter->playheadEnabled())
        state.disabled = true;
    return state;
}

QAccessibleInterface* MvPlayheadAccessible::splitButton() const
{
    if (!m_splitButtonId)
        m_splitButtonId = QAccessible::registerAccessibleInterface(new MvSplitButtonAccessible(playhead()));
    return QAccessible::accessibleInterface(m_splitButtonId);
}

int MvPlayheadAccessible::childCount() const
{
    MvTimelinePlayheadPresenter* presenter = playhead()->presenter();
    return presenter && presenter->playheadVisible() && presenter->splitButtonVisible() ? 1 : 0;
}

QAccessibleInterface* MvPlayheadAccessible::child(int index) const
{
    return index == 0 && childCount() == 1 ? splitButton() : nullptr;
}

int MvPlayheadAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    return child && childCount() == 1 && child == splitButton() ? 0 : -1;
}

QAccessibleInterface* MvPlayheadAccessible::childAt(int x, int y) const
{
    QAccessibleInterface* button = child(0);
    return button && button->rect().contains(x, y) ? button : nullptr;
}

QString MvPlayheadAccessible::ownText(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return tr("Playhead");
    case QAccessible::Description:
        return tr("Drag to Move playhead");
    case QAccessible::Value:
        return timeCode();
    default:
        return QString();
    }
}

qint64 MvPlayheadAccessible::currentFrame() const
{
    MvTimelinePlayheadPresenter* presenter = playhead()->presenter();
    return presenter ? presenter->currentFrame() : 0;
}

qint64 MvPlayheadAccessible::totalFrames() const
{
    MvTimelinePlayheadPresenter* presenter = playhead()->presenter();
    MvTimelinePresenter* timelinePresenter = presenter ? presenter->timelinePresenter() : nullptr;
    return MvModelAccess::totalFrames(timelinePresenter ? timelinePresenter->timeline() : nullptr);
}

QString MvPlayheadAccessible::timeCode() const
{
    MvTimelinePlayheadPresenter* presenter = playhead()->presenter();
    return presenter ? presenter->currentTimecode() : QString();
}

void MvPlayheadAccessible::seek(qint64 frame)
{
    if (MvTimelinePlayheadPresenter* presenter = playhead()->presenter())
        presenter->setCurrentFrame(frame);
}

MvSplitButtonAccessible::MvSplitButtonAccessible(MvTimelinePlayheadWidget* playhead)
    : m_playhead(playhead)
{
}

bool MvSplitButtonAccessible::isValid() const
{
    return m_playhead && m_playhead->presenter();
}

QObject* MvSplitButtonAccessible::object() const
{
    return nullptr;
}

QAccessibleInterface* MvSplitButtonAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_playhead);
}

QAccessibleInterface* MvSplitButtonAccessible::child(int index) const
{
    Q_UNUSED(index)
    return nullptr;
}

int MvSplitButtonAccessible::childCount() const
{
    return 0;
}

int MvSplitButtonAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    Q_UNUSED(child)
    return -1;
}

QAccessibleInterface* MvSplitButtonAccessible::childAt(int x, int y) const
{
    Q_UNUSED(x)
    Q_UNUSED(y)
    return nullptr;
}

QString MvSplitButtonAccessible::text(QAccessible::Text kind) const
{
    if (!isValid())
        return QString();
    switch (kind) {
    case QAccessible::Name:
        return tr("Split at playhead");
    case QAccessible::Description:
        return m_playhead->splitButtonToolTip();
    case QAccessible::Accelerator:
        return IMvShortcutEditManager::GetInstance()->shortcutText(MvCommandId::SplitClips);
    default:
        return QString();
    }
}

void MvSplitButtonAccessible::setText(QAccessible::Text kind, const QString& text)
{
    Q_UNUSED(kind)
    Q_UNUSED(text)
}

QRect MvSplitButtonAccessible::rect() const
{
    return isValid() ? toGlobal(m_playhead, m_playhead->presenter()->splitButtonRect()) : QRect();
}

QAccessible::Role MvSplitButtonAccessible::role() const
{
    return QAccessible::Button;
}

QAccessible::State MvSplitButtonAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    MvTimelinePlayheadPresenter* presenter = m_playhead->presenter();
    state.invisible = !presenter->splitButtonVisible() || !m_playhead->isVisible();
    state.disabled = !presenter->splitButtonEnabled() || !presenter->playheadEnabled();
    state.pressed = presenter->splitButtonStatus() == MVWIDGETS::Pressed;
    state.hotTracked = presenter->splitButtonStatus() == MVWIDGETS::Hover;
    return state;
}

void* MvSplitButtonAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList MvSplitButtonAccessible::actionNames() const
{
    return state().disabled ? QStringList() : QStringList { pressAction() };
}

void MvSplitButtonAccessible::doAction(const QString& actionName)
{
    if (actionName == pressAction() && !state().disabled)
        m_playhead->presenter()->splitClips();
}

QStringList MvSplitButtonAccessible::keyBindingsForAction(const QString& actionName) const
{
    const QString shortcut = text(QAccessible::Accelerator);
    return actionName == pressAction() && !shortcut.isEmpty() ? QStringList { shortcut } : QStringList();
}

MvRenderStripAccessible::MvRenderStripAccessible(MvTimelineRenderWidget* strip)
    : MvAccessibleWidget(strip, QAccessible::ProgressBar)
{
}

void* MvRenderStripAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return MvAccessibleWidget::interface_cast(type);
}

int MvRenderStripAccessible::percent() const
{
    // Down to the whole percent below: 100 only once nothing is left to render.
    const double share = static_cast<MvTimelineRenderWidget*>(widget())->renderedShare();
    return int(std::floor(share * 100.0 + 1e-9));
}

QVariant MvRenderStripAccessible::announcedValue() const
{
    return currentValue();
}

QVariant MvRenderStripAccessible::currentValue() const
{
    return percent();
}

void MvRenderStripAccessible::setCurrentValue(const QVariant& value)
{
    Q_UNUSED(value)
}

QVariant MvRenderStripAccessible::maximumValue() const
{
    return 100;
}

QVariant MvRenderStripAccessible::minimumValue() const
{
    return 0;
}

QVariant MvRenderStripAccessible::minimumStepSize() const
{
    return 1;
}

QString MvRenderStripAccessible::ownText(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return tr("Render progress");
    case QAccessible::Description:
        return tr("How much of the timeline is rendered for preview.");
    case QAccessible::Value:
        return tr("%1% rendered").arg(percent());
    default:
        return QString();
    }
}
