#pragma once

#include "MvWidgetsGlobal.h"

#include <QCursor>
#include <QList>
#include <QObject>

class IMvEventFilter;
class QEvent;

// Offers a widget's events to registered filters, most recently added first, until one consumes
// the event. A filter may ask for a cursor while it handles events; the widget applies it.
class MVWIDGETS_EXPORT MvEventFilterManager : public QObject
{
    Q_OBJECT

public:
    explicit MvEventFilterManager(QObject* parent = nullptr);
    ~MvEventFilterManager() override;

    void addFilter(IMvEventFilter* filter);
    void removeFilter(IMvEventFilter* filter);
    bool hasFilter(IMvEventFilter* filter) const;
    int filterCount() const;

    bool dispatchEvent(QEvent* event);

    QCursor getCursor() const;
    void setCursor(const QCursor& cursor);

private:
    QList<IMvEventFilter*> m_filters;
    QCursor m_cursor;
};
