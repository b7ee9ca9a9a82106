#pragma once

#include "MvMarkerParam.h"
#include "MvTimelineGlobal.h"
#include "MvWidget.h"

class MvLabel;
class MvTextEdit;
class MvMarkerEditColor;

// The body of the marker edit dialog: name, time (read only), comment and colour rows. Its parts
// carry object names (nameLabel, nameEdit, timeLabel, timeValue, commentLabel, commentEdit,
// colorLabel, colorRow) and the property mvMarkerEditRole ("caption", "field" or "value") for a
// host's style sheet; the rows are laid out again when the captions' font changes.
class MVTIMELINE_TEST_EXPORT MvMarkerEditPanel : public MvWidget
{
    Q_OBJECT

public:
    static constexpr int kMaxTextLength = 400;

    MvMarkerEditPanel(const MvMarkerParam& param, QWidget* parent);
    ~MvMarkerEditPanel() override;

    void RetranslateUi();

    MvLabel* nameLabel() const { return m_nameLabel; }
    MvTextEdit* nameEdit() const { return m_nameEdit; }
    MvLabel* timeLabel() const { return m_timeLabel; }
    MvLabel* timeValueLabel() const { return m_timeValue; }
    MvLabel* commentLabel() const { return m_commentLabel; }
    MvTextEdit* commentEdit() const { return m_commentEdit; }
    MvLabel* colorLabel() const { return m_colorLabel; }
    MvMarkerEditColor* colorRow() const { return m_colorRow; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layoutPanel();

    Q_DISABLE_COPY(MvMarkerEditPanel)
    MvLabel* m_nameLabel;
    MvTextEdit* m_nameEdit;
    MvLabel* m_timeLabel;
    MvLabel* m_timeValue;
    MvLabel* m_commentLabel;
    MvTextEdit* m_commentEdit;
    MvLabel* m_colorLabel;
    MvMarkerEditColor* m_colorRow;
};
