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

// What a host style sheet can select the panel's parts by, beside their object names:
// QLabel[mvMarkerEditRole="caption"], [mvMarkerEditRole="field"] and [mvMarkerEditRole="value"].
const char* const kRoleProperty = "mvMarkerEditRole";

MvLabel* makeLabel(QWidget* parent, const QString& objectName, Qt::Alignment alignment, const char* role)
{
    auto* label = new MvLabel(parent);
    label->setObjectName(objectName);
    label->setAlignment(alignment);
    label->setProperty(kRoleProperty, QLatin1String(role));
    return label;
}

void markField(QWidget* field, const QString& objectName)
{
    field->setObjectName(objectName);
    field->setProperty(kRoleProperty, QStringLiteral("field"));
}
}

MvMarkerEditPanel::MvMarkerEditPanel(const MvMarkerParam& param, QWidget* parent)
    : MvWidget(parent)
{
    const Qt::Alignment captionAlignment = Qt::AlignRight | Qt::AlignVCenter;
    m_nameLabel = makeLabel(this, QStringLiteral("nameLabel"), captionAlignment, "caption");
    m_nameEdit = MvTextEdit::creatTextEdit(this, param.name, kMaxTextLength, true, true);
    markField(m_nameEdit, QStringLiteral("nameEdit"));
    m_nameLabel->setBuddy(m_nameEdit);

    m_timeLabel = makeLabel(this, QStringLiteral("timeLabel"), captionAlignment, "caption");
    m_timeValue = makeLabel(this, QStringLiteral("timeValue"), Qt::AlignLeft | Qt::AlignVCenter, "value");
    m_timeValue->setText(param.time);

    m_commentLabel = makeLabel(this, QStringLiteral("commentLabel"), captionAlignment, "caption");
    m_commentEdit = MvTextEdit::creatTextEdit(this, param.comment, kMaxTextLength, true, false);
    markField(m_commentEdit, QStringLiteral("commentEdit"));
    m_commentLabel->setBuddy(m_commentEdit);

    m_colorLabel = makeLabel(this, QStringLiteral("colorLabel"), captionAlignment, "caption");
    m_colorRow = new MvMarkerEditColor(param.colors, this);
    markField(m_colorRow, QStringLiteral("colorRow"));
    m_colorRow->setSelectedIndex(param.colorIndex);
    m_colorLabel->setBuddy(m_colorRow);

    // The captions are measured in the comment caption's font: when it changes (a host style
    // sheet, setFont), the rows move as they do for a longer caption.
    m_commentLabel->installEventFilter(this);

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
    // Assistive tools name the fields without the captions' colons.
    m_nameEdit->setAccessibleName(tr("Name"));
    m_timeValue->setAccessibleName(tr("Time"));
    m_commentEdit->setAccessibleName(tr("Comment"));
    m_colorRow->setAccessibleName(tr("Marker Color"));
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

bool MvMarkerEditPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FontChange && watched == m_commentLabel)
        layoutPanel();
    return MvWidget::eventFilter(watched, event);
}

void MvMarkerEditPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        RetranslateUi();
        layoutPanel();
    }
    MvWidget::changeEvent(event);
}
