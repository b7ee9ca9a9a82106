#include "MvDemoEffectDocks.h"

#include "IMvTransitionMediaItem.h"
#include "Memory/MvMemoryEffects.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryTransitionItems.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>

using namespace MVVBLMODEL;

const QString MvDemoTransitionsDock::MimeType = QStringLiteral("application/x-mvdemo-transition");
const QString MvDemoEffectsDock::MimeType = QStringLiteral("application/x-mvdemo-effect");

namespace {
const QSize kIconSize(96, 54);
constexpr qint64 kDefaultLength = 30; // frames: a second at the sample's rate

QWidget* shelfWithButtons(MvDemoItemShelf* shelf, const QList<QWidget*>& controls, QWidget* parent)
{
    auto* content = new QWidget(parent);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(shelf, 1);
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls)
        row->addWidget(control);
    row->addStretch(1);
    layout->addLayout(row);
    return content;
}

void configure(MvDemoItemShelf* shelf)
{
    shelf->setViewMode(QListView::IconMode);
    shelf->setIconSize(kIconSize);
    shelf->setMovement(QListView::Static);
    shelf->setResizeMode(QListView::Adjust);
    shelf->setWrapping(true);
    shelf->setSpacing(6);
    shelf->setDragEnabled(true);
    shelf->setDragDropMode(QAbstractItemView::DragOnly);
    shelf->setSelectionMode(QAbstractItemView::SingleSelection);
}

// A little landscape, the picture the video effects are shown on.
QImage landscape(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(0x5b, 0x9b, 0xd5));
    sky.setColorAt(1, QColor(0xf4, 0xc2, 0x7a));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xe0, 0x6b));
    painter.drawEllipse(QPointF(size.width() * 0.72, size.height() * 0.35), size.height() * 0.14, size.height() * 0.14);
    QPainterPath hill;
    hill.moveTo(0, size.height());
    hill.cubicTo(size.width() * 0.3, size.height() * 0.45, size.width() * 0.6, size.height() * 0.9, size.width(),
        size.height() * 0.6);
    hill.lineTo(size.width(), size.height());
    painter.setBrush(QColor(0x3f, 0x7d, 0x4a));
    painter.drawPath(hill);
    return image;
}

QImage treated(QImage image, const QString& name)
{
    if (name == QLatin1String("Blur")) {
        const QSize size = image.size();
        return image.scaled(size / 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    if (name == QLatin1String("Sepia")) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const int grey = qGray(image.pixel(x, y));
                image.setPixel(x, y, qRgb(qMin(255, grey + 40), qMin(255, grey + 20), grey));
            }
        }
        return image;
    }
    QPainter painter(&image);
    QRadialGradient edge(QRectF(image.rect()).center(), image.width() * 0.6);
    edge.setColorAt(0.5, QColor(0, 0, 0, 0));
    edge.setColorAt(1.0, QColor(0, 0, 0, name == QLatin1String("Vignette") ? 220 : 90));
    painter.fillRect(image.rect(), edge);
    return image;
}

// Sound waves; an echo repeats them fainter, a noise reduction cleans the right half.
QImage waves(const QSize& size, const QString& name)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(0x22, 0x2a, 0x33));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool echo = name == QLatin1String("Echo");
    for (int copy = 0; copy < (echo ? 3 : 1); ++copy) {
        QPainterPath wave;
        for (int x = 0; x < size.width(); ++x) {
            const bool noisy = !echo && x < size.width() / 2;
            const double noise = noisy ? std::sin(x * 2.7) * std::cos(x * 1.3) * 6 : 0;
            const double y = size.height() / 2.0 + std::sin((x - copy * 12) / 5.0) * (14 - copy * 4) + noise;
            if (x == 0)
                wave.moveTo(x, y);
            else
                wave.lineTo(x, y);
        }
        painter.setPen(QPen(QColor(0x9f, 0xe8, 0xb5, 255 - copy * 80), 2));
        painter.drawPath(wave);
    }
    return image;
}
}

// ---- shelves

MvDemoItemShelf::MvDemoItemShelf(const QString& mimeType, QWidget* parent)
    : QListWidget(parent)
    , m_mimeType(mimeType)
{
    configure(this);
}

QStringList MvDemoItemShelf::mimeTypes() const
{
    return { m_mimeType };
}

QMimeData* MvDemoItemShelf::mimeData(const QList<QListWidgetItem*> items) const
{
    auto* data = new QMimeData;
    if (!items.isEmpty())
        data->setData(m_mimeType, items.first()->data(Qt::UserRole).toString().toUtf8());
    return data;
}

MvMemoryMediaItem* MvDemoItemShelf::itemOf(
    const QMimeData* data, const QString& mimeType, const MvMemoryMediaLibrary* library)
{
    if (!data || !library || !data->hasFormat(mimeType))
        return nullptr;
    return library->find(QString::fromUtf8(data->data(mimeType)));
}

// ---- transitions

MvDemoTransitionsDock::MvDemoTransitionsDock(MvMemoryMediaLibrary* library, QWidget* parent)
    : QDockWidget(tr("Transitions"), parent)
    , m_library(library)
    , m_shelf(new MvDemoItemShelf(MimeType, this))
    , m_length(new QSpinBox(this))
{
    setObjectName(QStringLiteral("transitionsDock"));
    for (MvMemoryMediaItem* item : library->items()) {
        auto* transition = dynamic_cast<MvMemoryTransitionMediaItem*>(item);
        if (!transition)
            continue;
        // Half way through, full size: the picture the item renders of itself.
        transition->load(MvTransitionLoadParam { 0, 1, QString(), 50, 1 });
        const QString label = transition->isAudioTransition() ? tr("%1 (sound)").arg(item->name()) : item->name();
        auto* entry = new QListWidgetItem(QIcon(QPixmap::fromImage(transition->pictures())), label, m_shelf);
        entry->setData(Qt::UserRole, item->name());
        entry->setToolTip(item->needDownload() ? tr("%1 - downloaded when first used").arg(label) : label);
    }
    m_length->setRange(0, 600);
    m_length->setValue(int(kDefaultLength));
    m_length->setSuffix(tr(" frames"));
    m_length->setSpecialValueText(tr("the item's own"));
    auto* lengthLabel = new QLabel(tr("Length:"), this);
    auto* apply = new QPushButton(tr("Apply to Selection"), this);
    auto* random = new QPushButton(tr("Random Transitions"), this);
    apply->setObjectName(QStringLiteral("applyTransition"));
    random->setObjectName(QStringLiteral("randomTransitions"));
    connect(apply, &QPushButton::clicked, this, &MvDemoTransitionsDock::applyRequested);
    connect(random, &QPushButton::clicked, this, &MvDemoTransitionsDock::randomRequested);
    connect(m_shelf, &QListWidget::itemDoubleClicked, this, &MvDemoTransitionsDock::applyRequested);
    setWidget(shelfWithButtons(m_shelf, { lengthLabel, m_length, apply, random }, this));
}

IMvAbstractMediaItem* MvDemoTransitionsDock::currentItem() const
{
    const QListWidgetItem* entry = m_shelf->currentItem() ? m_shelf->currentItem() : m_shelf->item(0);
    return entry ? m_library->find(entry->data(Qt::UserRole).toString()) : nullptr;
}

QList<IMvAbstractMediaItem*> MvDemoTransitionsDock::items() const
{
    QList<IMvAbstractMediaItem*> all;
    for (int i = 0; i < m_shelf->count(); ++i)
        all.append(m_library->find(m_shelf->item(i)->data(Qt::UserRole).toString()));
    return all;
}

qint64 MvDemoTransitionsDock::length() const
{
    return m_length->value();
}

void MvDemoTransitionsDock::setLength(qint64 frames)
{
    m_length->setValue(int(frames));
}

// ---- effects

MvDemoEffectsDock::MvDemoEffectsDock(MvMemoryMediaLibrary* library, QWidget* parent)
    : QDockWidget(tr("Effects"), parent)
    , m_library(library)
    , m_shelf(new MvDemoItemShelf(MimeType, this))
{
    setObjectName(QStringLiteral("effectsDock"));
    for (MvMemoryMediaItem* item : library->items()) {
        const auto* effect = dynamic_cast<MvMemoryEffectMediaItem*>(item);
        if (!effect)
            continue;
        const QString label = effect->isAudioEffect() ? tr("%1 (sound)").arg(item->name()) : item->name();
        auto* entry = new QListWidgetItem(iconFor(item->name(), effect->isAudioEffect()), label, m_shelf);
        entry->setData(Qt::UserRole, item->name());
    }
    auto* apply = new QPushButton(tr("Apply to Selection"), this);
    apply->setObjectName(QStringLiteral("applyEffect"));
    connect(apply, &QPushButton::clicked, this, &MvDemoEffectsDock::applyRequested);
    connect(m_shelf, &QListWidget::itemDoubleClicked, this, &MvDemoEffectsDock::applyRequested);
    setWidget(shelfWithButtons(m_shelf, { apply }, this));
}

IMvAbstractMediaItem* MvDemoEffectsDock::currentItem() const
{
    const QListWidgetItem* entry = m_shelf->currentItem() ? m_shelf->currentItem() : m_shelf->item(0);
    return entry ? m_library->find(entry->data(Qt::UserRole).toString()) : nullptr;
}

QIcon MvDemoEffectsDock::iconFor(const QString& name, bool audio)
{
    return QIcon(QPixmap::fromImage(audio ? waves(kIconSize, name) : treated(landscape(kIconSize), name)));
}
