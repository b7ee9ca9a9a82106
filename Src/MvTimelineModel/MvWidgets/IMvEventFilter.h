#pragma once

#include "MvWidgetsGlobal.h"

class QEvent;

// Something that wants the events of another widget before that widget sees them.
// m_pressed and m_movedSincePress are the press bookkeeping every filter of this kind needs.
class MVWIDGETS_EXPORT IMvEventFilter
{
public:
    IMvEventFilter();
    virtual ~IMvEventFilter();

    // True when the event was consumed; the manager then stops offering it.
    virtual bool onFilterEvent(QEvent* event) = 0;

protected:
    bool m_pressed;
    bool m_movedSincePress;
};
