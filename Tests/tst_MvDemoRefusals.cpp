#include "IMvMarker.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTrack.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryTimeline.h"
#include "Memory/MvMemoryUndoService.h"
#include "MvDemoRefusals.h"
#include "MvEditFixture.h"
#include "MvTimelineVirtualPlayheadPresenter.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Picture rows 0, 1 and audio rows 2, 3: a 0..99 and b 100..199 on row 0, s 0..99 on row 2.
struct Project : MvEditFixture<>
{
    Project()
    {
        a = clip(0, 0, 99);
        b = clip(0, 100, 199);
        s = clip(2, 0, 99, ClipType_Audio);
        timeline.undoService()->clear();
    }

    // A few words per line: "playhead 50", "select a b", "lock 0", "marker 50", "virtual open".
    void arrange(const QString& setup)
    {
        const QHash<QString, MvMemoryClip*> names { { QStringLiteral("a"), a }, { QStringLiteral("b"), b },
            { QStringLiteral("s"), s } };
        for (const QString& line : setup.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            const QString verb = words.value(0);
            if (verb == QLatin1String("playhead"))
                setPlayhead(words.value(1).toLongLong());
            if (verb == QLatin1String("select")) {
                QList<IMvClip*> clips;
                for (const QString& name : words.mid(1))
                    clips.append(names.value(name));
                select(clips);
            }
            if (verb == QLatin1String("lock"))
                timeline.trackAt(words.value(1).toInt())->setLocked(true);
            if (verb == QLatin1String("marker"))
                timeline.timelineMarkers()->addMarker(words.value(1).toLongLong(), Qt::red);
            if (verb == QLatin1String("virtual")) {
                presenter->initVirtualPlayheadPresenter();
                presenter->virtualPlayheadPresenter()->open();
            }
        }
    }

    // The library's own answer, for the commands that give one.
    bool run(const QString& command)
    {
        if (command == QLatin1String("split"))
            return presenter->splitClips(-1, true, false);
        if (command == QLatin1String("trim-start"))
            return presenter->trimStartToPlayhead();
        if (command == QLatin1String("delete"))
            return presenter->deleteItems(false);
        if (command == QLatin1String("ripple-delete"))
            return presenter->rippleDeleteSelectedClips();
        if (command == QLatin1String("move-left"))
            return presenter->moveClipsHorizontal(-1);
        if (command == QLatin1String("move-right"))
            return presenter->moveClipsHorizontal(1);
        if (command == QLatin1String("move-up"))
            return presenter->moveClipsVertical(-1);
        if (command == QLatin1String("move-down"))
            return presenter->moveClipsVertical(1);
        if (command == QLatin1String("remove-marker"))
            return presenter->removeSelectedMarker();
        if (command == QLatin1String("undo"))
            return timeline.undoRedoService()->undo();
        // Commands without a result: they did something when they left an undo step.
        const int steps = undoCount();
        if (command == QLatin1String("add-marker"))
            presenter->addMarker(Qt::green);
        if (command == QLatin1String("rotate-cw"))
            presenter->rotate90CW();
        return undoCount() != steps;
    }

    MvMemoryClip* a;
    MvMemoryClip* b;
    MvMemoryClip* s;
};
}

// Why a command cannot run, told to the user; each reason must agree with what the library does.
class tst_MvDemoRefusals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reasonAgreesWithTheLibrary_data();
    void reasonAgreesWithTheLibrary();
    void reasonOfACommandTheWindowDisables_data();
    void reasonOfACommandTheWindowDisables();
};

void tst_MvDemoRefusals::reasonAgreesWithTheLibrary_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("reason");
    QTest::newRow("split: nothing under the playhead") << QStringLiteral(
        "playhead 250") << QStringLiteral("split") << QStringLiteral("There is no clip under the playhead to split.");
    QTest::newRow("split: on a clip's first frame")
        << QStringLiteral("playhead 100; select b") << QStringLiteral("split")
        << QStringLiteral("There is no clip under the playhead to split.");
    QTest::newRow("split: the selection is elsewhere")
        << QStringLiteral("playhead 50; select b") << QStringLiteral("split")
        << QStringLiteral("None of the selected clips is under the playhead.");
    QTest::newRow("split: locked rows") << QStringLiteral("playhead 50; lock 0; lock 2") << QStringLiteral("split")
                                        << QStringLiteral("The clips under the playhead are on locked tracks.");
    QTest::newRow("split: one row locked")
        << QStringLiteral("playhead 50; lock 0") << QStringLiteral("split") << QString();
    QTest::newRow("trim: nothing selected")
        << QStringLiteral("playhead 50") << QStringLiteral("trim-start") << QStringLiteral("Select one clip to trim.");
    QTest::newRow("trim: two selected") << QStringLiteral("playhead 50; select a s") << QStringLiteral("trim-start")
                                        << QStringLiteral("Select one clip to trim.");
    QTest::newRow("trim: on the first frame")
        << QStringLiteral("playhead 100; select b") << QStringLiteral("trim-start")
        << QStringLiteral("Put the playhead inside the selected clip to trim it.");
    QTest::newRow("trim: locked") << QStringLiteral("playhead 150; select b; lock 0") << QStringLiteral("trim-start")
                                  << QStringLiteral("The selected clip is on a locked track.");
    QTest::newRow("trim: inside") << QStringLiteral("playhead 150; select b") << QStringLiteral("trim-start")
                                  << QString();
    QTest::newRow("delete: nothing selected")
        << QString() << QStringLiteral("delete") << QStringLiteral("Nothing is selected to delete.");
    QTest::newRow("delete: locked") << QStringLiteral("select a; lock 0") << QStringLiteral("delete")
                                    << QStringLiteral("A selected clip is on a locked track.");
    QTest::newRow("ripple delete: nothing selected")
        << QString() << QStringLiteral("ripple-delete") << QStringLiteral("Select the clips to ripple delete.");
    QTest::newRow("move: nothing selected")
        << QString() << QStringLiteral("move-right") << QStringLiteral("Select the clips to move.");
    QTest::newRow("move: already at the start")
        << QStringLiteral("select b a") << QStringLiteral("move-left")
        << QStringLiteral("The clips already start at the beginning of the timeline.");
    QTest::newRow("move: into the next clip")
        << QStringLiteral("select a") << QStringLiteral("move-right") << QStringLiteral("Another clip is in the way.");
    QTest::newRow("move: both along") << QStringLiteral("select a b") << QStringLiteral("move-right") << QString();
    QTest::newRow("move: above the top row") << QStringLiteral("select a") << QStringLiteral("move-up")
                                             << QStringLiteral("There is no track of the clips' kind there.");
    QTest::newRow("move: onto a locked row") << QStringLiteral("select a; lock 1") << QStringLiteral("move-down")
                                             << QStringLiteral("The track the clips would move to is locked.");
    QTest::newRow("move: from a locked row") << QStringLiteral("select b; lock 0") << QStringLiteral("move-right")
                                             << QStringLiteral("A selected clip is on a locked track.");
    QTest::newRow("move: sound a row down") << QStringLiteral("select s") << QStringLiteral("move-down") << QString();
    QTest::newRow("add marker: one there already")
        << QStringLiteral("playhead 150; marker 150") << QStringLiteral("add-marker")
        << QStringLiteral("There is already a marker at the playhead.");
    QTest::newRow("add marker: on the selected clip")
        << QStringLiteral("playhead 150; marker 150; select b") << QStringLiteral("add-marker") << QString();
    QTest::newRow("remove marker: none selected")
        << QStringLiteral("marker 150") << QStringLiteral("remove-marker")
        << QStringLiteral("Select a marker first: click its flag above the ruler.");
    QTest::newRow("rotate: nothing selected")
        << QString() << QStringLiteral("rotate-cw") << QStringLiteral("Select a clip to rotate.");
    QTest::newRow("undo: nothing done") << QString() << QStringLiteral("undo")
                                        << QStringLiteral("There is nothing to undo.");
}

void tst_MvDemoRefusals::reasonAgreesWithTheLibrary()
{
    QFETCH(QString, setup);
    QFETCH(QString, command);
    QFETCH(QString, reason);
    Project project;
    project.arrange(setup);
    QCOMPARE(MvDemoRefusals(&project.timeline, project.presenter.get()).reason(command), reason);
    QCOMPARE(project.run(command), reason.isEmpty());
}

void tst_MvDemoRefusals::reasonOfACommandTheWindowDisables_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("reason");
    // The split itself does not look at the virtual playhead; only canSplitClip does, which
    // disables the command.
    QTest::newRow("split: virtual playhead open")
        << QStringLiteral("playhead 50; virtual open") << QStringLiteral("split")
        << QStringLiteral("Close the virtual playhead before splitting.");
    QTest::newRow("edit marker: none at the playhead")
        << QStringLiteral("playhead 151; marker 150") << QStringLiteral("edit-marker")
        << QStringLiteral("There is no marker at the playhead to edit.");
    QTest::newRow("edit marker: on the timeline")
        << QStringLiteral("playhead 150; marker 150") << QStringLiteral("edit-marker") << QString();
    QTest::newRow("edit marker: the selected clip's list is empty")
        << QStringLiteral("playhead 150; marker 150; select b") << QStringLiteral("edit-marker")
        << QStringLiteral("There is no marker at the playhead to edit.");
    QTest::newRow("keyframe: only sound selected") << QStringLiteral("select s") << QStringLiteral("add-keyframe")
                                                   << QStringLiteral("Select a picture clip to add a keyframe.");
    QTest::newRow("keyframe: a picture clip")
        << QStringLiteral("select a") << QStringLiteral("add-keyframe") << QString();
    QTest::newRow("clear sound keys: none there")
        << QStringLiteral("select a") << QStringLiteral("clear-audio-keyframes")
        << QStringLiteral("The selected clips have no sound keyframes.");
    QTest::newRow("virtual close: not open")
        << QString() << QStringLiteral("virtual-close") << QStringLiteral("The virtual playhead is not open.");
    QTest::newRow("virtual open: open already") << QStringLiteral("virtual open") << QStringLiteral("virtual-open")
                                                << QStringLiteral("The virtual playhead is already open.");
    QTest::newRow("a command without known refusals") << QString() << QStringLiteral("zoom-fit") << QString();
}

void tst_MvDemoRefusals::reasonOfACommandTheWindowDisables()
{
    QFETCH(QString, setup);
    QFETCH(QString, command);
    QFETCH(QString, reason);
    Project project;
    project.arrange(setup);
    QCOMPARE(MvDemoRefusals(&project.timeline, project.presenter.get()).reason(command), reason);
}

QTEST_MAIN(tst_MvDemoRefusals)
#include "tst_MvDemoRefusals.moc"
