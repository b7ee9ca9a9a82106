#pragma once

#include "MvFramelessDialog.h"
#include "MvMarkerParam.h"
#include "MvTimelineGlobal.h"

class MvMarkerEditPanel;
class QPushButton;

// The modal editor of one marker: name, comment and colour, with its time shown. exec() tells
// how it ended: 0 closed without a button, 1 OK (apply markerParam()), 2 DELETE.
class MVTIMELINE_EXPORT MvMarkerEditDialog : public MvFramelessDialog
{
    Q_OBJECT

public:
    enum Result
    {
        Closed = 0,
        Applied = 1,
        Deleted = 2
    };

    MvMarkerEditDialog(const MvMarkerParam& param, QWidget* parent);
    ~MvMarkerEditDialog() override;

    int exec() override;
    // The edited values; colors stays empty (the caller keeps its list).
    MvMarkerParam markerParam();

    MvMarkerEditPanel* panel() const { return m_panel; }
    QPushButton* okButton() const { return m_okButton; }
    QPushButton* deleteButton() const { return m_deleteButton; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslateUi();
    void finish(int result);

    Q_DISABLE_COPY(MvMarkerEditDialog)
    MvMarkerEditPanel* m_panel;
    QPushButton* m_okButton;
    QPushButton* m_deleteButton;
    int m_result = Closed;
};
