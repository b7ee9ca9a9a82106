#include "MvDemoPropertiesDock.h"

#include "IMvAbstractClip.h"
#include "IMvKeyFrameSelector.h"
#include "IMvTimeline.h"
#include "IMvTimelineClip.h"
#include "MvCustomEvent.h"
#include "MvMessage.h"
#include "MvModelMessages.h"
#include "MvTimelineClipHelper.h"
#include "MvTimelinePresenter.h"

#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace MVVBLMODEL;

namespace {
constexpr int kFrameRole = Qt::UserRole;
constexpr int kClipRole = Qt::UserRole + 1;

// Where each page sits in the stack: the three advanced editors share one.
int stackIndex(MvDemoPropertyWords::Page page)
{
    using Page = MvDemoPropertyWords::Page;
    switch (page) {
    case Page::Clip:
        return 0;
    case Page::Picture:
        return 1;
    case Page::Audio:
        return 2;
    case Page::AdvancedText:
    case Page::AdvancedSubtitle:
    case Page::AdvancedTitle:
        return 3;
    case Page::Colour:
        return 4;
    case Page::Nothing:
        break;
    }
    return 5;
}

IMvClip* clipOf(const QListWidgetItem* item)
{
    return static_cast<IMvClip*>(reinterpret_cast<void*>(item->data(kClipRole).value<quintptr>()));
}

QLabel* wrappingLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}
}

MvDemoPropertiesDock::MvDemoPropertiesDock(IMvTimeline* timeline, MvTimelinePresenter* presenter, QWidget* parent)
    : QDockWidget(tr("Properties"), parent)
    , m_timeline(timeline)
    , m_presenter(presenter)
{
    setObjectName(QStringLiteral("propertiesDock"));
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    m_heading = new QLabel(content);
    QFont bold = m_heading->font();
    bold.setBold(true);
    m_heading->setFont(bold);
    m_stack = new QStackedWidget(content);
    m_stack->addWidget(buildClipPage());
    m_stack->addWidget(buildKeyFramePage(&m_pictureLine, &m_videoKeys, tr("Video keyframes: pick one to go there")));
    m_stack->addWidget(buildKeyFramePage(&m_audioLine, &m_audioKeys, tr("Audio keyframes: pick one to go there")));
    m_stack->addWidget(buildEditorPage());
    m_stack->addWidget(labelPage(&m_colourLine));
    m_stack->addWidget(labelPage(&m_nothingLine));
    layout->addWidget(m_heading);
    layout->addWidget(m_stack, 1);
    setWidget(content);
    connect(m_videoKeys, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { pickKeyFrame(item, false); });
    connect(m_audioKeys, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { pickKeyFrame(item, true); });
    new MvCustomEventListener(this, QLatin1String(MvEventName::NotifySwtichPropertView),
        [this](const MvCustomEventImp& event) { return switchPropertView(event); });
    showPage(Page::Clip);
}

QWidget* MvDemoPropertiesDock::buildClipPage()
{
    return labelPage(&m_clipFields);
}

QWidget* MvDemoPropertiesDock::buildKeyFramePage(QLabel** line, QListWidget** list, const QString& hint)
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    *line = wrappingLabel(page);
    *list = new QListWidget(page);
    layout->addWidget(*line);
    layout->addWidget(new QLabel(hint, page));
    layout->addWidget(*list, 1);
    return page;
}

QWidget* MvDemoPropertiesDock::buildEditorPage()
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    m_editorLine = wrappingLabel(page);
    m_texts = new QListWidget(page);
    m_texts->setSelectionMode(QAbstractItemView::ExtendedSelection);
    layout->addWidget(m_editorLine);
    layout->addWidget(m_texts, 1);
    return page;
}

QWidget* MvDemoPropertiesDock::labelPage(QLabel** label)
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    *label = wrappingLabel(page);
    layout->addWidget(*label);
    layout->addStretch(1);
    return page;
}

QString MvDemoPropertiesDock::heading() const
{
    return m_heading->text();
}

QString MvDemoPropertiesDock::clipText() const
{
    return m_clipFields->text();
}

bool MvDemoPropertiesDock::handleMessage(MvMessage* message, QString* detail)
{
    switch (message->id()) {
    case MessageId::HidePropertyPanel:
        hide();
        *detail = tr("the Properties dock is hidden");
        return true;
    case MessageId::ShowPropertyPanelPage: {
        const auto* request = dynamic_cast<MvDataMessage*>(message);
        if (!request)
            return false;
        showPage(MvDemoPropertyWords::pageForPanelPage(request->data().toInt()));
        break;
    }
    case MessageId::ShowPropertyPanel: {
        const auto* request = dynamic_cast<MvPropertyPanelShowMessage2*>(message);
        if (!request)
            return false;
        showPage(MvDemoPropertyWords::pageForPropertyType(request->panelType()));
        break;
    }
    case MessageId::ShowAdvancedTextEditor:
        showPage(Page::AdvancedText);
        break;
    case MessageId::ShowAdvancedSubtitleEditor:
        showPage(Page::AdvancedSubtitle);
        break;
    case MessageId::ShowAdvancedTitleEditor:
        showPage(Page::AdvancedTitle);
        break;
    case MessageId::ShowAdvancedColor:
        showPage(Page::Colour);
        break;
    case MessageId::MediaEditorSelectClip: {
        const auto* request = dynamic_cast<MvMediaEditorSelectClipMessage*>(message);
        if (!request)
            return false;
        showPage(Page::AdvancedText);
        selectTexts(request->clips(), request->replacesSelection());
        QStringList names;
        for (const IMvClip* clip : request->clips())
            names.append(clip->name());
        *detail = tr("selected in the text editor: %1").arg(names.join(QLatin1String(", ")));
        return true;
    }
    default:
        return false;
    }
    *detail = tr("Properties dock shows: %1").arg(heading());
    return true;
}

bool MvDemoPropertiesDock::switchPropertView(const MvCustomEventImp& event)
{
    showPage(MvDemoPropertyWords::pageForPropertyType(event.intValue()));
    Q_EMIT journal(tr("keyframe panel: Properties dock shows: %1").arg(heading()));
    // Other listeners may follow the same switch.
    return false;
}

void MvDemoPropertiesDock::showPage(Page page)
{
    m_page = page;
    m_stack->setCurrentIndex(stackIndex(page));
    m_heading->setText(MvDemoPropertyWords::pageTitle(page));
    refresh();
    show();
    raise();
}

void MvDemoPropertiesDock::refresh()
{
    IMvClip* clip = m_presenter->getFirstSelectedClip();
    const QString name = clip ? clip->name() : QString();
    m_clipFields->setText(MvDemoPropertyWords::clipFields(m_timeline, clip).join(QLatin1Char('\n')));
    m_pictureLine->setText(
        clip ? tr("%1, rotated %2\u00b0").arg(name).arg(clip->rotation()) : tr("Select a picture clip."));
    m_audioLine->setText(clip ? name : tr("Select a clip with sound."));
    m_colourLine->setText(clip ? tr("Colour grading of \u201c%1\u201d: the editor's colour wheels and curves would "
                                    "open here.")
                                     .arg(name)
                               : tr("Select a picture clip to grade its colours."));
    m_nothingLine->setText(tr("This selection has no property panel."));
    m_editorLine->setText(clip ? tr("The texts of \u201c%1\u201d").arg(name) : tr("Select a text."));
    const bool sameClip = clip == m_clip;
    m_clip = clip;
    fillKeyFrames(m_videoKeys, false);
    fillKeyFrames(m_audioKeys, true);
    if (!sameClip)
        fillTexts();
}

void MvDemoPropertiesDock::fillKeyFrames(QListWidget* list, bool audio)
{
    const QList<qint64> frames = m_clip ? m_clip->keyFrames(audio) : QList<qint64>();
    QList<qint64> shown;
    for (int i = 0; i < list->count(); ++i)
        shown.append(list->item(i)->data(kFrameRole).toLongLong());
    // Rebuilt only when the keyframes changed, so that the picked one stays picked.
    if (shown == frames && (list->count() == 0 || clipOf(list->item(0)) == m_clip))
        return;
    list->clear();
    for (qint64 frame : frames) {
        auto* item = new QListWidgetItem(MvDemoPropertyWords::keyFrameText(m_timeline, m_clip, frame), list);
        item->setData(kFrameRole, frame);
        item->setData(kClipRole, QVariant::fromValue(reinterpret_cast<quintptr>(m_clip)));
    }
}

void MvDemoPropertiesDock::fillTexts()
{
    m_texts->clear();
    if (!m_clip)
        return;
    // A composed text lists its text layers; a plain text, subtitle or title is its own text.
    QList<IMvClip*> texts;
    if (auto* container = dynamic_cast<IMvTimelineClip*>(m_clip))
        texts = MvTimelineClipHelper::getAllChildClips(container, ClipType_Text);
    if (texts.isEmpty()
        && (m_clip->type() == ClipType_Text || m_clip->type() == ClipType_Subtitle || m_clip->type() == ClipType_Title))
        texts.append(m_clip);
    for (IMvClip* text : qAsConst(texts)) {
        auto* item
            = new QListWidgetItem(text->isSecondary() ? tr("%1 (secondary)").arg(text->name()) : text->name(), m_texts);
        item->setData(kClipRole, QVariant::fromValue(reinterpret_cast<quintptr>(text)));
    }
}

void MvDemoPropertiesDock::selectTexts(const QList<IMvClip*>& clips, bool replace)
{
    if (replace)
        m_texts->clearSelection();
    for (int i = 0; i < m_texts->count(); ++i) {
        QListWidgetItem* item = m_texts->item(i);
        if (clips.contains(clipOf(item)))
            item->setSelected(true);
    }
}

void MvDemoPropertiesDock::pickKeyFrame(const QListWidgetItem* item, bool audio)
{
    IMvClip* clip = clipOf(item);
    const qint64 frame = item->data(kFrameRole).toLongLong();
    const QString where = item->text();
    // The picked keyframe becomes the keyframe selection, as picking one on the timeline would.
    if (IMvKeyFrameSelector* selector = m_timeline->keyFrameSelector())
        selector->select({ clip, audio ? IMvKeyFrameSelector::AudioSide : IMvKeyFrameSelector::VideoSide, { frame } });
    m_presenter->selectedKeyFrameChanged(clip, frame);
    Q_EMIT journal(tr("keyframe picked: %1 at %2").arg(clip->name(), where));
    Q_EMIT keyFramePicked();
}
