#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryClip.h"
#include "Memory/MvMemoryCompound.h"
#include "Memory/MvMemoryTimeline.h"

#include <QtTest>

using namespace MVVBLMODEL;

namespace {
// Three timelines: the project's main one, a sequence nested in it as a compound clip, and a
// timeline of another project.
struct Projects
{
    MvMemoryTimeline main;
    MvMemoryTimeline nested;
    MvMemoryTimeline foreign;
    MvMemoryTimeline unrelated;

    Projects()
    {
        for (MvMemoryTimeline* timeline : { &main, &nested, &foreign, &unrelated })
            timeline->addTrack(TrackType_Picture);
        foreign.setProjectId(2);
        nested.addClip(0, ClipType_Video, 0, 99, QStringLiteral("inside"));
        main.addClip(0, ClipType_Compound, 0, 99, QStringLiteral("sequence"))->setCompoundContent(&nested);
    }

    MvMemoryTimeline* byName(const QString& name)
    {
        if (name == QLatin1String("main"))
            return &main;
        if (name == QLatin1String("nested"))
            return &nested;
        if (name == QLatin1String("foreign"))
            return &foreign;
        if (name == QLatin1String("unrelated"))
            return &unrelated;
        return nullptr;
    }
};
}

class tst_MvMemoryCompound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nestingFlags_data();
    void nestingFlags();
    void contentIsUndoneWithTheClip();
};

void tst_MvMemoryCompound::nestingFlags_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("target");
    QTest::addColumn<uint>("flags");

    QTest::newRow("into the timeline it shows") << "nested"
                                                << "nested" << 8u;
    QTest::newRow("into a timeline nested in it") << "main"
                                                  << "nested" << 8u;
    QTest::newRow("the nested one into its parent") << "nested"
                                                    << "main" << 0u;
    QTest::newRow("same project, unrelated") << "unrelated"
                                             << "main" << 0u;
    QTest::newRow("another project's") << "foreign"
                                       << "main" << 4u;
    QTest::newRow("another project's into itself") << "foreign"
                                                   << "foreign" << 8u;
    QTest::newRow("no content") << ""
                                << "main" << 0u;
}

void tst_MvMemoryCompound::nestingFlags()
{
    QFETCH(QString, content);
    QFETCH(QString, target);
    QFETCH(uint, flags);
    Projects projects;

    QCOMPARE(MvMemoryCompound::nestingFlags(projects.byName(content), projects.byName(target)), flags);
}

void tst_MvMemoryCompound::contentIsUndoneWithTheClip()
{
    Projects projects;
    MvMemoryClip* clip = projects.unrelated.addClip(0, ClipType_Compound, 0, 9, QStringLiteral("c"));
    const QString before = projects.unrelated.stateText();

    clip->setCompoundContent(&projects.main);
    QVERIFY(projects.unrelated.stateText().contains(QLatin1String("compound of project 0")));
    QCOMPARE(MvMemoryCompound::nestingFlags(&projects.unrelated, &projects.nested), 8u);

    QVERIFY(projects.unrelated.undoRedoService()->undo());
    QCOMPARE(clip->compoundContent(), nullptr);
    QCOMPARE(projects.unrelated.stateText(), before);
}

QTEST_MAIN(tst_MvMemoryCompound)
#include "tst_MvMemoryCompound.moc"
