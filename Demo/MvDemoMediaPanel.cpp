#include "MvDemoMediaPanel.h"

#include "Memory/MvMemoryCompoundMediaItem.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryTimeline.h"

#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

using namespace MVVBLMODEL;

namespace {
QColor colourOfKind(MvMediaType type)
{
    switch (type) {
    case MediaType_Audio:
        return QColor(0x2E, 0x8B, 0x57);
    case MediaType_Image:
        return QColor(0x8E, 0x6C, 0xC9);
    case MediaType_Text:
    case MediaType_Subtitle:
        return QColor(0xC9, 0x8A, 0x2E);
    case MediaType_ScreenRecording:
        return QColor(0x5A, 0x7E, 0x8F);
    case MediaType_Compound:
        return QColor(0x1F, 0x8F, 0x9C);
    default:
        return QColor(0x3A, 0x6E, 0xC4);
    }
}

// The picture of the kind: a film strip, a waveform, hills under a sun, a letter, captions, a
// screen, or a stack of timelines.
void drawKind(QPainter& painter, MvMediaType type, const QRectF& area)
{
    painter.setPen(QPen(QColor(255, 255, 255, 220), 2));
    painter.setBrush(Qt::NoBrush);
    const QPointF c = area.center();
    switch (type) {
    case MediaType_Audio:
        for (int i = 0; i < 9; ++i) {
            const qreal x = area.left() + 14 + i * 8;
            const qreal h = 6 + ((i * 7) % 5) * 5;
            painter.drawLine(QPointF(x, c.y() - h / 2), QPointF(x, c.y() + h / 2));
        }
        break;
    case MediaType_Image: {
        QPainterPath hills;
        hills.moveTo(area.left() + 8, area.bottom() - 8);
        hills.lineTo(area.left() + 34, area.top() + 20);
        hills.lineTo(area.left() + 52, area.bottom() - 20);
        hills.lineTo(area.left() + 66, area.top() + 28);
        hills.lineTo(area.right() - 8, area.bottom() - 8);
        painter.drawPath(hills);
        painter.drawEllipse(QPointF(area.right() - 20, area.top() + 14), 6, 6);
        break;
    }
    case MediaType_Text:
    case MediaType_Subtitle: {
        QFont font = painter.font();
        font.setBold(true);
        font.setPixelSize(type == MediaType_Text ? 26 : 14);
        painter.setFont(font);
        painter.drawText(area, Qt::AlignCenter, type == MediaType_Text ? QStringLiteral("T") : QStringLiteral("CC"));
        break;
    }
    case MediaType_ScreenRecording:
        painter.drawRoundedRect(QRectF(c.x() - 22, c.y() - 14, 44, 26), 3, 3);
        painter.drawLine(QPointF(c.x() - 8, c.y() + 17), QPointF(c.x() + 8, c.y() + 17));
        painter.setBrush(QColor(0xFF, 0x5A, 0x4E));
        painter.drawEllipse(QPointF(c.x(), c.y() - 1), 4, 4);
        break;
    case MediaType_Compound:
        for (int i = 2; i >= 0; --i)
            painter.drawRect(QRectF(c.x() - 20 + i * 5, c.y() - 12 + i * 4 - 4, 34, 16));
        break;
    default:
        painter.drawRect(QRectF(c.x() - 24, c.y() - 14, 48, 28));
        for (int i = 0; i < 5; ++i) {
            painter.drawLine(QPointF(c.x() - 20 + i * 10, c.y() - 14), QPointF(c.x() - 20 + i * 10, c.y() - 10));
            painter.drawLine(QPointF(c.x() - 20 + i * 10, c.y() + 10), QPointF(c.x() - 20 + i * 10, c.y() + 14));
        }
        break;
    }
}

// A small label in a corner; the download badge is an arrow into a tray.
void drawBadge(QPainter& painter, const QString& badge, QRectF& slot)
{
    if (badge == QLatin1String("download")) {
        const QRectF box(slot.right() - 16, 2, 14, 14);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xF2, 0xC9, 0x4C));
        painter.drawEllipse(box);
        painter.setPen(QPen(QColor(0x20, 0x20, 0x20), 1.6));
        painter.drawLine(QPointF(box.center().x(), box.top() + 3), QPointF(box.center().x(), box.bottom() - 4));
        painter.drawLine(QPointF(box.center().x() - 3, box.bottom() - 7), QPointF(box.center().x(), box.bottom() - 4));
        painter.drawLine(QPointF(box.center().x() + 3, box.bottom() - 7), QPointF(box.center().x(), box.bottom() - 4));
        slot.setRight(box.left() - 2);
        return;
    }
    const QString text = badge == QLatin1String("compound") ? QStringLiteral("SEQ") : badge.toUpper();
    QFont font = painter.font();
    font.setPixelSize(9);
    font.setBold(true);
    painter.setFont(font);
    const qreal width = QFontMetricsF(font).horizontalAdvance(text) + 6;
    const QRectF box(slot.left(), 2, width, 12);
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        badge == QLatin1String("compound") ? QColor(0x10, 0x10, 0x10, 200) : QColor(0xFF, 0xFF, 0xFF, 225));
    painter.drawRoundedRect(box, 2, 2);
    painter.setPen(badge == QLatin1String("compound") ? Qt::white : QColor(0x20, 0x20, 0x20));
    painter.drawText(box, Qt::AlignCenter, text);
    slot.setLeft(box.right() + 2);
}
}

QStringList MvDemoMediaThumbnail::badges(const MvMemoryMediaItem* item)
{
    QStringList badges;
    if (item->isStockItem())
        badges.append(QStringLiteral("stock"));
    if (item->isVCGItem())
        badges.append(QStringLiteral("vcg"));
    if (item->needDownload())
        badges.append(QStringLiteral("download"));
    if (item->mediaType() == MediaType_Compound)
        badges.append(QStringLiteral("compound"));
    return badges;
}

QPixmap MvDemoMediaThumbnail::draw(const MvMemoryMediaItem* item)
{
    QPixmap pixmap(kWidth, kHeight);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor base = colourOfKind(item->mediaType());
    QLinearGradient fill(0, 0, 0, kHeight);
    fill.setColorAt(0, base.lighter(125));
    fill.setColorAt(1, base.darker(140));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(0, 0, kWidth, kHeight), 4, 4);
    drawKind(painter, item->mediaType(), QRectF(0, 6, kWidth, kHeight - 6));
    // Something still to fetch looks faded until it is here.
    if (item->needDownload())
        painter.fillRect(QRectF(0, 0, kWidth, kHeight), QColor(0, 0, 0, 90));
    QRectF slot(3, 0, kWidth - 5, 16);
    const QStringList all = badges(item);
    for (const QString& badge : all)
        drawBadge(painter, badge, slot);
    return pixmap;
}

QString MvDemoMediaThumbnail::description(const MvMemoryMediaItem* item)
{
    QString kind;
    switch (item->mediaType()) {
    case MediaType_Audio:
        kind = tr("Audio");
        break;
    case MediaType_Image:
        kind = tr("Image");
        break;
    case MediaType_Text:
        kind = tr("Title");
        break;
    case MediaType_Subtitle:
        kind = tr("Subtitles");
        break;
    case MediaType_ScreenRecording:
        kind = tr("Screen recording");
        break;
    case MediaType_Compound:
        kind = tr("Compound");
        break;
    default:
        kind = tr("Video");
        break;
    }
    if (item->mediaType() == MediaType_Compound) {
        const auto* compound = dynamic_cast<const MvMemoryCompoundMediaItem*>(item);
        if (!compound || !compound->isTimelineLoaded() || !compound->content())
            return tr("%1, read on first use").arg(kind);
        const MvRational rate = compound->content()->frameRate();
        return tr("%1, %2 s").arg(kind).arg(compound->content()->duration() * rate.denominator / rate.numerator);
    }
    if (item->durationMs() == 0)
        return item->mediaType() == MediaType_ScreenRecording ? tr("%1, still recording").arg(kind)
                                                              : tr("%1, empty").arg(kind);
    QString text = tr("%1, %2 s").arg(kind).arg(item->durationMs() / 1000);
    if (const MvMemoryMediaInfo* info = item->memoryMediaInfo())
        text += tr(", %1 fps").arg(info->frameRate().numerator / qMax<qint64>(1, info->frameRate().denominator));
    return text;
}

const char* const MvDemoMediaList::kMimeType = "application/x-mvtimeline-media-item";

MvDemoMediaList::MvDemoMediaList(QWidget* parent)
    : QListWidget(parent)
{
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setIconSize(QSize(MvDemoMediaThumbnail::kWidth, MvDemoMediaThumbnail::kHeight));
    setSpacing(2);
    setWordWrap(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QStringList MvDemoMediaList::mimeTypes() const
{
    return { QLatin1String(kMimeType) };
}

QMimeData* MvDemoMediaList::mimeData(const QList<QListWidgetItem*> items) const
{
    if (items.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setData(QLatin1String(kMimeType), QByteArray::number(row(items.first())));
    data->setText(items.first()->data(Qt::UserRole).toString());
    return data;
}

MvDemoMediaPanel::MvDemoMediaPanel(MvMemoryMediaLibrary* library, QWidget* parent)
    : QDockWidget(tr("Media"), parent)
    , m_library(library)
{
    setObjectName(QStringLiteral("mediaDock"));
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    auto* hint = new QLabel(tr("Double-click or drag onto a track to add."), content);
    hint->setWordWrap(true);
    m_list = new MvDemoMediaList(content);
    m_addButton = new QPushButton(tr("Add to Timeline"), content);
    m_addButton->setEnabled(false);
    layout->addWidget(hint);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_addButton);
    setWidget(content);
    refresh();
    connect(m_list, &QListWidget::itemDoubleClicked, this,
        [this](QListWidgetItem* item) { Q_EMIT addRequested(itemAt(m_list->row(item))); });
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) { m_addButton->setEnabled(row >= 0); });
    connect(m_addButton, &QPushButton::clicked, this, [this] {
        if (MvMemoryMediaItem* item = currentItem())
            Q_EMIT addRequested(item);
    });
}

QList<MvMemoryMediaItem*> MvDemoMediaPanel::shownItems() const
{
    QList<MvMemoryMediaItem*> shown;
    const QList<MvMemoryMediaItem*> items = m_library->items();
    for (MvMemoryMediaItem* item : items) {
        const int type = item->mediaType();
        if (type != MediaType_Transition && type != MediaType_VideoEffect && type != MediaType_AudioEffect)
            shown.append(item);
    }
    return shown;
}

MvMemoryMediaItem* MvDemoMediaPanel::currentItem() const
{
    return itemAt(m_list->currentRow());
}

MvMemoryMediaItem* MvDemoMediaPanel::itemAt(int row) const
{
    const QList<MvMemoryMediaItem*> items = shownItems();
    return row >= 0 && row < items.size() ? items.at(row) : nullptr;
}

int MvDemoMediaPanel::rowOf(const QString& name) const
{
    const QList<MvMemoryMediaItem*> items = shownItems();
    for (int row = 0; row < items.size(); ++row) {
        if (items.at(row)->name() == name)
            return row;
    }
    return -1;
}

void MvDemoMediaPanel::refresh()
{
    const QList<MvMemoryMediaItem*> items = shownItems();
    const int current = m_list->currentRow();
    m_list->clear();
    for (const MvMemoryMediaItem* item : items) {
        auto* row = new QListWidgetItem(QIcon(MvDemoMediaThumbnail::draw(item)),
            item->name() + QLatin1Char('\n') + MvDemoMediaThumbnail::description(item), m_list);
        row->setData(Qt::UserRole, item->name());
        row->setToolTip(MvDemoMediaThumbnail::badges(item).join(QLatin1String(", ")));
    }
    m_list->setCurrentRow(current);
}
