#include "MvMarkerEditPanel.h"

#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvTextEdit.h"

#include <QEvent>

#include <algorithm>

namespace {
constexpr int kLabelX = 53;
constexpr int kLabelWidth = 90;
constexpr int kRowHeight = 22;
constexpr int kFieldX = 151;
constexpr int kFieldWidth = 250;
constexpr int kNameEditHeight = 30;
constexpr int kCommentEditHeight = 75;
constexpr int kNameTextRightMargin = 22;
constexpr int kCommentTextRightMargin = 10;

int bottomOf(const QWidget* widget)
{
    return widget->y() + widget->height();
}

MvLabel* makeLabel(QWidget* parent, const QString& objectName, Qt::Alignment alignment)
{
    auto* label = new MvLabel(parent);
    label->setObjectName(objectName);
    label->setAlignment(alignment);
    return label;
}
}

MvMarkerEditPanel::MvMarkerEditPanel(const MvMarkerParam& param, QWidget* parent)
    : MvWidget(parent)
{
    m_nameLabel = makeLabel(this, QStringLiteral("nameLabel"), Qt::AlignRight | Qt::AlignVCenter);
    m_nameEdit = MvTextEdit::creatTextEdit(this, param.name, kMaxTextLength, true, true);
    m_nameEdit->setObjectName(QStringLiteral("nameEdit"));

    m_timeLabel = makeLabel(this, QStringLiteral("timeLabel"), Qt::AlignRight | Qt::AlignVCenter);
    m_timeValue = makeLabel(this, QStringLiteral("timeValue"), Qt::AlignLeft | Qt::AlignVCenter);
    m_timeValue->setText(param.time);

    m_commentLabel = makeLabel(this, QStringLiteral("commentLabel"), Qt::AlignRight | Qt::AlignVCenter);
    m_commentEdit = MvTextEdit::creatTextEdit(this, param.comment, kMaxTextLength, true, false);
    m_commentEdit->setObjectName(QStringLiteral("commentEdit"));

    m_colorLabel = makeLabel(this, QStringLiteral("colorLabel"), Qt::AlignRight | Qt::AlignVCenter);
    m_colorRow = new MvMarkerEditColor(param.colors, this);
    m_colorRow->setObjectName(QStringLiteral("colorRow"));
    m_colorRow->setSelectedIndex(param.colorIndex);

    RetranslateUi();
    layoutPanel();
}

MvMarkerEditPanel::~MvMarkerEditPanel() = default;

void MvMarkerEditPanel::RetranslateUi()
{
    const QString colon = QStringLiteral(":");
    m_nameLabel->setText(tr("Name") + colon);
    m_timeLabel->setText(tr("Time") + colon);
    m_commentLabel->setText(tr("Comment") + colon);
    m_colorLabel->setText(tr("Marker Color") + colon);
    m_commentEdit->setPlaceholderText(tr("Add your comments here"));
}

void MvMarkerEditPanel::layoutPanel()
{
    m_nameLabel->setGeometry(kLabelX, 24, kLabelWidth, kRowHeight);
    m_nameEdit->setGeometry(kFieldX, 20, kFieldWidth, kNameEditHeight);
    m_nameEdit->setTextRightMargin(kNameTextRightMargin);

    const int timeY = bottomOf(m_nameEdit) + 14;
    m_timeLabel->setGeometry(kLabelX, timeY, kLabelWidth, kRowHeight);
    m_timeValue->setGeometry(kFieldX, timeY, kFieldWidth, kRowHeight);

    // A long translated caption pushes its field to the right; the name and time rows keep
    // their column. Both captions are measured with the comment label's font.
    const QFontMetrics metrics(m_commentLabel->font());
    const int commentWidth = std::max(kLabelWidth, metrics.horizontalAdvance(m_commentLabel->text()) + 6);
    const int commentY = bottomOf(m_timeValue) + 15;
    m_commentLabel->setGeometry(kLabelX, commentY, commentWidth, kRowHeight);
    m_commentEdit->setGeometry(commentWidth + 61, commentY, kFieldWidth, kCommentEditHeight);
    m_commentEdit->setTextRightMargin(kCommentTextRightMargin);

    const int colorWidth = std::max(kLabelWidth, metrics.horizontalAdvance(m_colorLabel->text()) + 6);
    const int commentBottom = bottomOf(m_commentEdit);
    m_colorLabel->setGeometry(kLabelX, commentBottom + 10, colorWidth, kRowHeight);
    m_colorRow->setGeometry(colorWidth + 61, commentBottom + 13, kFieldWidth, 16);
}

void MvMarkerEditPanel::resizeEvent(QResizeEvent* event)
{
    layoutPanel();
    MvWidget::resizeEvent(event);
}

void MvMarkerEditPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        RetranslateUi();
        layoutPanel();
    }
    MvWidget::changeEvent(event);
}
