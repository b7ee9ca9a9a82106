#include "MvDemoMediaScene.h"

#include "IMvAbstractClip.h"
#include "Memory/MvMemoryCompoundMediaItem.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvModelMessages.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace MVVBLMODEL;

namespace {
QString quoted(const IMvAbstractMediaItem* item)
{
    return QStringLiteral("\u201c%1\u201d").arg(item->name());
}

// The settings a project may take from the item: its own frame rate.
bool rateOf(const IMvAbstractMediaItem* item, MvRational* rate)
{
    if (const auto* compound = dynamic_cast<const MvMemoryCompoundMediaItem*>(item)) {
        if (!compound->content())
            return false;
        *rate = compound->content()->frameRate();
        return true;
    }
    const auto* own = dynamic_cast<const MvMemoryMediaItem*>(item);
    if (!own || !own->memoryMediaInfo())
        return false;
    *rate = own->memoryMediaInfo()->frameRate();
    return rate->numerator > 0 && rate->denominator > 0;
}

QStringList resolutionsOf(IMvAbstractMediaItem* item)
{
    if (auto* stock = dynamic_cast<MvMemoryStockMediaItem*>(item))
        return stock->resolutions();
    if (auto* vcg = dynamic_cast<MvMemoryVCGMediaItem*>(item))
        return vcg->resolutions();
    return QStringList();
}

void selectResolution(IMvAbstractMediaItem* item, int index)
{
    if (auto* stock = dynamic_cast<MvMemoryStockMediaItem*>(item))
        stock->selectResolution(index);
    else if (auto* vcg = dynamic_cast<MvMemoryVCGMediaItem*>(item))
        vcg->selectResolution(index);
}
}

QString MvDemoMediaScene::downloadedWords(int count)
{
    return count == 1 ? tr("downloaded one item") : tr("downloaded %1 items").arg(count);
}

MvDemoMediaScene::MvDemoMediaScene(MvMemoryTimeline* timeline, QObject* parent)
    : QObject(parent)
    , m_timeline(timeline)
{
}

QString MvDemoMediaScene::rateText(qint64 numerator, qint64 denominator)
{
    if (denominator == 1)
        return QString::number(numerator);
    return QString::number(double(numerator) / double(qMax<qint64>(1, denominator)), 'f', 2);
}

bool MvDemoMediaScene::handleMessage(MvMessage* message, QString* detail)
{
    switch (message->id()) {
    case MessageId::DownloadMediaItems:
        *detail = download(static_cast<MvDownloadMediaItemMessage*>(message));
        return true;
    case MessageId::SelectStockResolution:
    case MessageId::SelectVCGResolution:
        *detail = chooseResolutions(static_cast<MvMediaItemsMessage*>(message));
        return true;
    case MessageId::MatchProjectSettings:
        *detail = matchProject(static_cast<MvMatchProjMediaItemMessage*>(message));
        return true;
    case MessageId::AddMediaResponse: {
        auto* response = static_cast<MvTimelineAddMediaResponseMessage*>(message);
        // Only an insertion's response holds clips; transitions and effects are told elsewhere.
        if (response->value() != 0)
            return false;
        const auto* clips = static_cast<const QList<IMvClip*>*>(response->context());
        QStringList names;
        const QList<IMvAbstractMediaItem*> items = response->mediaItems();
        for (const IMvAbstractMediaItem* item : items)
            names.append(quoted(item));
        const int count = clips ? clips->size() : 0;
        *detail = count == 1 ? tr("added %1 as one clip").arg(names.join(QLatin1String(", ")))
                             : tr("added %1 as %2 clips").arg(names.join(QLatin1String(", "))).arg(count);
        return true;
    }
    case MessageId::ScrollToTrack: {
        const QList<IMvClip*> clips = static_cast<MvTimelineScrollToTrackMessage*>(message)->clips();
        Q_EMIT scrollRequested(clips);
        *detail = clips.size() == 1 ? tr("the new clip brought into view")
                                    : tr("%1 new clips brought into view").arg(clips.size());
        return true;
    }
    default:
        return false;
    }
}

QString MvDemoMediaScene::download(MvDownloadMediaItemMessage* message)
{
    const QList<IMvAbstractMediaItem*> items = message->mediaItems();
    QString words;
    if (m_interactive) {
        words = downloadWithProgress(items);
    } else {
        for (IMvAbstractMediaItem* item : items) {
            if (auto* own = dynamic_cast<MvMemoryMediaItem*>(item))
                own->setDownloaded(true);
        }
        words = downloadedWords(items.size());
    }
    Q_EMIT mediaChanged();
    return words;
}

// One item after the other; Cancel stops the one under way, which stays online with those after it.
QString MvDemoMediaScene::downloadWithProgress(const QList<IMvAbstractMediaItem*>& items)
{
    const int stepsPerItem = m_downloadMs / kTickMs;
    QProgressDialog progress(QString(), tr("Cancel"), 0, stepsPerItem * items.size(), m_dialogParent);
    progress.setWindowTitle(tr("Download"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    progress.setLabelText(tr("Downloading %1...").arg(quoted(items.first())));
    int step = 0;
    int fetched = 0;
    QTimer tick;
    tick.setInterval(kTickMs);
    connect(&tick, &QTimer::timeout, &progress, [&]() {
        ++step;
        if (step % stepsPerItem == 0 && fetched < items.size()) {
            if (auto* own = dynamic_cast<MvMemoryMediaItem*>(items.at(fetched)))
                own->setDownloaded(true);
            ++fetched;
            if (fetched < items.size())
                progress.setLabelText(tr("Downloading %1...").arg(quoted(items.at(fetched))));
        }
        // The last step closes the dialog.
        progress.setValue(step);
    });
    connect(&progress, &QProgressDialog::canceled, &tick, &QTimer::stop);
    tick.start();
    progress.exec();
    tick.stop();
    if (fetched == items.size())
        return downloadedWords(fetched);
    return tr("download cancelled: %1 of %2 fetched, %3 stays online")
        .arg(fetched)
        .arg(items.size())
        .arg(quoted(items.at(fetched)));
}

QString MvDemoMediaScene::chooseResolutions(MvMediaItemsMessage* message)
{
    QList<IMvAbstractMediaItem*> kept;
    QStringList words;
    const QList<IMvAbstractMediaItem*> items = message->mediaItems();
    for (IMvAbstractMediaItem* item : items) {
        const QStringList resolutions = resolutionsOf(item);
        int chosen = resolutions.indexOf(QStringLiteral("1080p"));
        if (m_interactive)
            chosen = askResolution(item->name(), resolutions);
        else if (chosen < 0)
            chosen = 0;
        if (chosen < 0 || chosen >= resolutions.size()) {
            words.append(tr("%1 left out").arg(quoted(item)));
            continue;
        }
        selectResolution(item, chosen);
        kept.append(item);
        words.append(tr("%1 in %2").arg(quoted(item), resolutions.at(chosen)));
    }
    message->setMediaItems(kept);
    Q_EMIT mediaChanged();
    return words.join(QLatin1String(", "));
}

int MvDemoMediaScene::askResolution(const QString& name, const QStringList& resolutions)
{
    QDialog dialog(m_dialogParent);
    dialog.setObjectName(QStringLiteral("resolutionChooser"));
    dialog.setWindowTitle(tr("Choose a Resolution"));
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(tr("\u201c%1\u201d comes in these resolutions:").arg(name), &dialog));
    auto* choice = new QComboBox(&dialog);
    choice->addItems(resolutions);
    choice->setCurrentIndex(qMax(0, resolutions.indexOf(QStringLiteral("1080p"))));
    layout->addWidget(choice);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Use This Resolution"));
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    // Laid out before it is shown, so that its size limits are set before it has a window.
    dialog.adjustSize();
    return dialog.exec() == QDialog::Accepted ? choice->currentIndex() : -1;
}

bool MvDemoMediaScene::askToChangeRate(const QString& question, const QString& change, const QString& keep)
{
    QDialog dialog(m_dialogParent);
    dialog.setObjectName(QStringLiteral("projectSettingsQuestion"));
    dialog.setWindowTitle(tr("Project Settings"));
    auto* layout = new QVBoxLayout(&dialog);
    auto* text = new QLabel(question, &dialog);
    text->setWordWrap(true);
    layout->addWidget(text);
    auto* buttons = new QDialogButtonBox(&dialog);
    QPushButton* adopt = buttons->addButton(change, QDialogButtonBox::AcceptRole);
    buttons->addButton(keep, QDialogButtonBox::RejectRole);
    adopt->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog.resize(420, 0);
    dialog.adjustSize();
    return dialog.exec() == QDialog::Accepted;
}

QString MvDemoMediaScene::matchProject(MvMatchProjMediaItemMessage* message)
{
    IMvAbstractMediaItem* item = message->mediaItem();
    MvRational media;
    if (!item || !rateOf(item, &media))
        return tr("nothing to match");
    const MvRational project = m_timeline->frameRate();
    if (media == project)
        return tr("the project already runs at %1 fps").arg(rateText(project.numerator, project.denominator));
    const QString mediaRate = rateText(media.numerator, media.denominator);
    const QString projectRate = rateText(project.numerator, project.denominator);
    const bool change = m_interactive
        && askToChangeRate(tr("%1 runs at %2 fps; the project runs at %3 fps. Change the project to %2 fps?")
                               .arg(quoted(item), mediaRate, projectRate),
            tr("Change to %1 fps").arg(mediaRate), tr("Keep %1 fps").arg(projectRate));
    if (!change)
        return tr("the project keeps %1 fps").arg(projectRate);
    m_timeline->setFrameRate(int(media.numerator), int(media.denominator));
    return tr("the project now runs at %1 fps").arg(mediaRate);
}
