// Short notices to the user. The presenter never shows a message box: it raises an event that the
// application's toast host turns into a toast over the timeline.
#include "MvTimelinePresenter.h"
#include "MvTimelinePresenter_p.h"

#include "MvCustomEvent.h"

#include <QSharedPointer>
#include <QWidget>

void MvTimelinePresenter::showToast(QString text)
{
    Q_D(MvTimelinePresenter);
    d->showToast(text);
}

void MvTimelinePresenter::showTimelineNestToast(bool compoundItself)
{
    showToast(compoundItself ? tr("Unable to add compound clip itself, please try again")
                             : tr("Unable to add external compound clip. Please try again."));
}

void MvTimelinePresenterPrivate::showToast(const QString& text)
{
    Q_Q(MvTimelinePresenter);
    // The view's widget anchors the toast; without a view the host places it over its main window.
    QWidget* anchor = qobject_cast<QWidget*>(q->view());
    QSharedPointer<MvCustomEventImp> event(new MvCustomEventImp(QLatin1String(MvEventName::ShowCustomToast),
        { QVariant::fromValue<QWidget*>(anchor), QVariant(false), QVariant(text) }));
    MvCustomEventDispatcher::instance().sendEvent(event, MvCustomEventDispatcher::Filter());
}
