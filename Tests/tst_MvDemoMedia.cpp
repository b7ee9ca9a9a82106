#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryCompoundMediaItem.h"
#include "Memory/MvMemoryMediaItem.h"
#include "Memory/MvMemoryMediaLibrary.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoMediaDrop.h"
#include "MvDemoMediaPanel.h"
#include "MvDemoMediaScene.h"
#include "MvDemoTrackArea.h"
#include "MvDemoWindow.h"
#include "MvToast.h"
#include "MvWaitDialog.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Answers the dialogs adding media opens, as a person would, and notes what it saw.
class DialogScript : public QObject
{
public:
    bool cancelDownload = false;
    int resolution = -1; // the index chosen; -1 presses Cancel
    QString questionButton; // the text of the button to press on a question

    QStringList seen;

    DialogScript()
    {
        m_timer.setInterval(5);
        connect(&m_timer, &QTimer::timeout, this, &DialogScript::look);
        m_timer.start();
    }

private:
    void look()
    {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal->property("scripted").toBool())
            return;
        modal->setProperty("scripted", true);
        if (auto* progress = qobject_cast<QProgressDialog*>(modal)) {
            seen.append(QStringLiteral("progress: ") + progress->labelText());
            if (cancelDownload)
                progress->cancel();
        } else if (modal->objectName() == QLatin1String("projectSettingsQuestion")) {
            seen.append(QStringLiteral("question: ") + modal->findChild<QLabel*>()->text());
            const QList<QAbstractButton*> buttons = modal->findChild<QDialogButtonBox*>()->buttons();
            for (QAbstractButton* button : buttons) {
                if (button->text() == questionButton)
                    button->click();
            }
        } else if (modal->objectName() == QLatin1String("resolutionChooser")) {
            auto* choice = modal->findChild<QComboBox*>();
            QStringList offered;
            for (int i = 0; i < choice->count(); ++i)
                offered.append(choice->itemText(i));
            seen.append(QStringLiteral("resolutions: ") + offered.join(QLatin1Char(' ')));
            auto* buttons = modal->findChild<QDialogButtonBox*>();
            if (resolution < 0) {
                buttons->button(QDialogButtonBox::Cancel)->click();
            } else {
                choice->setCurrentIndex(resolution);
                buttons->button(QDialogButtonBox::Ok)->click();
            }
        } else if (qobject_cast<MvWaitDialog*>(modal)) {
            seen.append(QStringLiteral("wait"));
        }
    }

    QTimer m_timer;
};

// The demo window offscreen; the media questions are asked as in a real session when a test
// makes the scene interactive.
struct Demo
{
    Demo()
    {
        window.mediaScene()->setDownloadTime(80);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    void interactive() { window.mediaScene()->setInteractive(true); }
    MvMemoryMediaItem* item(const QString& name) const { return window.mediaLibrary()->find(name); }
    MvMemoryClip* clip(const QString& name) const
    {
        const QList<MvMemoryClip*> clips = window.timeline()->liveClips();
        for (MvMemoryClip* clip : clips) {
            if (clip->name() == name)
                return clip;
        }
        return nullptr;
    }
    QString notice() const
    {
        const QList<MvToast*> toasts = window.findChildren<MvToast*>();
        return toasts.isEmpty() ? QString() : toasts.last()->text();
    }
    bool journalHas(const QString& start) const
    {
        const QStringList lines = window.journalLines();
        for (const QString& line : lines) {
            if (line.startsWith(start))
                return true;
        }
        return false;
    }
    void doubleClick(const QString& name)
    {
        MvDemoMediaList* list = window.mediaPanel()->list();
        QListWidgetItem* row = list->item(window.mediaPanel()->rowOf(name));
        list->scrollToItem(row);
        const QPoint at = list->visualItemRect(row).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    }

    MvDemoWindow window { false };
};

}

class tst_MvDemoMedia : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doubleClickAddsAtThePlayhead();
    void dropOnATrackRowAddsThere();
    void downloadShowsItsProgressAndCanBeCancelled_data();
    void downloadShowsItsProgressAndCanBeCancelled();
    void resolutionIsChosenOrTheItemLeftOut_data();
    void resolutionIsChosenOrTheItemLeftOut();
    void vcgItemIsFetchedThenItsResolutionChosen();
    void frameRateQuestionChangesTheProject_data();
    void frameRateQuestionChangesTheProject();
    void compoundItemWaitsInTheWaitDialog();
    void whatCannotBeAddedIsExplained_data();
    void whatCannotBeAddedIsExplained();
    void thumbnailsShowWhatAnItemNeeds();
};

void tst_MvDemoMedia::doubleClickAddsAtThePlayhead()
{
    Demo demo;
    demo.window.timeline()->playhead()->setCurrentFrame(90);

    demo.doubleClick(QStringLiteral("Cafe ambience.wav"));

    MvMemoryClip* clip = demo.clip(QStringLiteral("Cafe ambience.wav"));
    QVERIFY(clip);
    QCOMPARE(clip->start(), qint64(90));
    QCOMPARE(clip->type(), ClipType_Audio);
    QCOMPARE(demo.window.timeline()->undoRedoService()->undoName(), QStringLiteral("add media"));
    QVERIFY(demo.journalHas(QStringLiteral("scene: media added: added \u201cCafe ambience.wav\u201d as one clip")));
    QVERIFY(demo.window.action(QStringLiteral("add-media"))->isEnabled());
}

// A drop carries the panel's row of the item; the host turns the point into a frame and a row.
void tst_MvDemoMedia::dropOnATrackRowAddsThere()
{
    Demo demo;
    MvDemoTrackArea* area = demo.window.trackArea();
    MvDemoMediaList* list = demo.window.mediaPanel()->list();
    const int row = demo.window.mediaPanel()->rowOf(QStringLiteral("Island map.png"));
    QScopedPointer<QMimeData> data(list->model()->mimeData({ list->model()->index(row, 0) }));
    const QPoint at(area->mapping().xOf(1200), area->rowTop(1) + 10); // a free stretch of the row

    QDragEnterEvent enter(at, Qt::CopyAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &enter);
    QDropEvent drop(at, Qt::CopyAction, data.data(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &drop);

    QVERIFY(enter.isAccepted());
    QVERIFY(drop.isAccepted());
    QTRY_VERIFY(demo.clip(QStringLiteral("Island map.png")));
    MvMemoryClip* clip = demo.clip(QStringLiteral("Island map.png"));
    QCOMPARE(clip->trackIndex(), 1);
    QCOMPARE(clip->start(), demo.window.mediaDrop()->frameAt(at.x()));
    QVERIFY(qAbs(clip->start() - 1200) <= area->mapping().framesIn(1));
}

void tst_MvDemoMedia::downloadShowsItsProgressAndCanBeCancelled_data()
{
    QTest::addColumn<bool>("cancel");
    QTest::newRow("downloaded") << false;
    QTest::newRow("cancelled") << true;
}

void tst_MvDemoMedia::downloadShowsItsProgressAndCanBeCancelled()
{
    QFETCH(bool, cancel);
    Demo demo;
    demo.interactive();
    // Long enough that Cancel comes before the end.
    demo.window.mediaScene()->setDownloadTime(cancel ? 5000 : 80);
    DialogScript script;
    script.cancelDownload = cancel;
    MvMemoryMediaItem* applause = demo.item(QStringLiteral("Stock: applause"));

    QCOMPARE(demo.window.addMedia(applause, 30), !cancel);

    QCOMPARE(script.seen, QStringList({ QStringLiteral("progress: Downloading \u201cStock: applause\u201d...") }));
    QCOMPARE(applause->needDownload(), cancel);
    QCOMPARE(demo.clip(QStringLiteral("Stock: applause")) != nullptr, !cancel);
    if (cancel) {
        QCOMPARE(demo.notice(), QStringLiteral("\u201cStock: applause\u201d was not downloaded."));
        QVERIFY(demo.journalHas(QStringLiteral("scene: download media items: download cancelled")));
        QVERIFY(MvDemoMediaThumbnail::badges(applause).contains(QStringLiteral("download")));
    }
}

void tst_MvDemoMedia::resolutionIsChosenOrTheItemLeftOut_data()
{
    QTest::addColumn<int>("resolution");
    QTest::newRow("4K chosen") << 2;
    QTest::newRow("cancelled") << -1;
}

void tst_MvDemoMedia::resolutionIsChosenOrTheItemLeftOut()
{
    QFETCH(int, resolution);
    Demo demo;
    demo.interactive();
    DialogScript script;
    script.resolution = resolution;
    auto* city = static_cast<MvMemoryStockMediaItem*>(demo.item(QStringLiteral("Stock: city lights")));

    QCOMPARE(demo.window.addMedia(city, 0), resolution >= 0);

    QCOMPARE(script.seen,
        QStringList({ QStringLiteral("progress: Downloading \u201cStock: city lights\u201d..."),
            QStringLiteral("resolutions: 720p 1080p 4K") }));
    QCOMPARE(city->selectedResolution(), resolution);
    if (resolution < 0)
        QCOMPARE(demo.notice(), QStringLiteral("No resolution was chosen for \u201cStock: city lights\u201d."));
    else
        QVERIFY(demo.clip(QStringLiteral("Stock: city lights")));
}

void tst_MvDemoMedia::vcgItemIsFetchedThenItsResolutionChosen()
{
    Demo demo;
    demo.interactive();
    DialogScript script;
    script.resolution = 1;
    auto* lake = static_cast<MvMemoryVCGMediaItem*>(demo.item(QStringLiteral("VCG: mountain lake")));

    QVERIFY(demo.window.addMedia(lake, 0));

    QCOMPARE(script.seen,
        QStringList({ QStringLiteral("progress: Downloading \u201cVCG: mountain lake\u201d..."),
            QStringLiteral("resolutions: 1080p 4K") }));
    QCOMPARE(lake->selectedResolution(), 1);
    QVERIFY(demo.clip(QStringLiteral("VCG: mountain lake")));
}

void tst_MvDemoMedia::frameRateQuestionChangesTheProject_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("rate");
    QTest::addColumn<qint64>("start");
    QTest::newRow("change") << "Change to 60 fps" << 60 << qint64(180);
    QTest::newRow("keep") << "Keep 30 fps" << 30 << qint64(90);
}

// The question is asked at the project's old rate; the ruler, its time codes and the start frame
// follow the answer.
void tst_MvDemoMedia::frameRateQuestionChangesTheProject()
{
    QFETCH(QString, answer);
    QFETCH(int, rate);
    QFETCH(qint64, start);
    Demo demo;
    demo.interactive();
    DialogScript script;
    script.questionButton = answer;
    demo.window.timeline()->playhead()->setCurrentFrame(90);

    QVERIFY(demo.window.addMedia(demo.item(QStringLiteral("Drone over the bay (60 fps).mp4")), 90));

    QCOMPARE(script.seen,
        QStringList({ QStringLiteral("question: \u201cDrone over the bay (60 fps).mp4\u201d runs at 60 fps; the "
                                     "project runs at 30 fps. Change the project to 60 fps?") }));
    QCOMPARE(demo.window.timeline()->frameRate(), (MvRational { rate, 1 }));
    int numerator = 0;
    int denominator = 0;
    demo.window.timeline()->ruler()->frameRate(&numerator, &denominator);
    QCOMPARE(numerator, rate);
    QCOMPARE(demo.clip(QStringLiteral("Drone over the bay (60 fps).mp4"))->start(), start);
    // Frame 90 is 1.5 s at 60 fps and 3 s at 30.
    QVERIFY(demo.window.statusText().startsWith(
        rate == 60 ? QStringLiteral("Playhead 00:00:01:30") : QStringLiteral("Playhead 00:00:03:00")));
}

void tst_MvDemoMedia::compoundItemWaitsInTheWaitDialog()
{
    Demo demo;
    DialogScript script;
    MvMemoryMediaItem* beach = demo.item(QStringLiteral("Beach sequence"));

    QVERIFY(demo.window.addMedia(beach, 0));

    QVERIFY(script.seen.contains(QStringLiteral("wait")));
    MvMemoryClip* clip = demo.clip(QStringLiteral("Beach sequence"));
    QVERIFY(clip);
    QCOMPARE(clip->type(), ClipType_Compound);
    QCOMPARE(clip->compoundContent(), static_cast<MvMemoryCompoundMediaItem*>(beach)->content());
    QCOMPARE(clip->frameCount(), qint64(360));
    QTRY_VERIFY(demo.journalHas(QStringLiteral("project media: the shared assets of the new clip")));
}

void tst_MvDemoMedia::whatCannotBeAddedIsExplained_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("notice");
    QTest::newRow("an empty file") << "Empty recording.mp4"
                                   << "\u201cEmpty recording.mp4\u201d is empty: there is nothing to add.";
    QTest::newRow("the timeline into itself") << "This timeline"
                                              << "Unable to add compound clip itself, please try again";
    QTest::newRow("another project's sequence") << "Imported trailer"
                                                << "Unable to add external compound clip. Please try again.";
}

void tst_MvDemoMedia::whatCannotBeAddedIsExplained()
{
    QFETCH(QString, item);
    QFETCH(QString, notice);
    Demo demo;
    const int undoSteps = demo.window.timeline()->undoRedoService()->undoCount();

    QVERIFY(!demo.window.addMedia(demo.item(item), 0));

    QCOMPARE(demo.notice(), notice);
    QCOMPARE(demo.window.timeline()->undoRedoService()->undoCount(), undoSteps);
}

void tst_MvDemoMedia::thumbnailsShowWhatAnItemNeeds()
{
    Demo demo;
    MvMemoryMediaItem* city = demo.item(QStringLiteral("Stock: city lights"));
    const QImage online = MvDemoMediaThumbnail::draw(city).toImage();
    QCOMPARE(MvDemoMediaThumbnail::badges(city), QStringList({ QStringLiteral("stock"), QStringLiteral("download") }));
    QCOMPARE(MvDemoMediaThumbnail::badges(demo.item(QStringLiteral("VCG: mountain lake"))),
        QStringList({ QStringLiteral("vcg"), QStringLiteral("download") }));
    QCOMPARE(MvDemoMediaThumbnail::badges(demo.item(QStringLiteral("Beach sequence"))),
        QStringList({ QStringLiteral("compound") }));
    QVERIFY(MvDemoMediaThumbnail::badges(demo.item(QStringLiteral("Sunset timelapse.mp4"))).isEmpty());

    city->setDownloaded(true);

    QCOMPARE(MvDemoMediaThumbnail::badges(city), QStringList({ QStringLiteral("stock") }));
    const QImage here = MvDemoMediaThumbnail::draw(city).toImage();
    // Fetched, the picture is no longer faded: its middle is lighter.
    const QPoint middle(MvDemoMediaThumbnail::kWidth / 2, MvDemoMediaThumbnail::kHeight - 6);
    QVERIFY(qGray(here.pixel(middle)) > qGray(online.pixel(middle)));
}

QTEST_MAIN(tst_MvDemoMedia)
#include "tst_MvDemoMedia.moc"
