// The demo window as an assistive tool walks it from the top: the library's widgets are found in
// the tree under the window, with their names, roles and values, and follow the project.

#include "IMvTimelinePlayhead.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvDemoWindow.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QStringList kLibraryNames { QStringLiteral("Markers"), QStringLiteral("Time ruler"),
    QStringLiteral("Render progress"), QStringLiteral("Playhead"), QStringLiteral("Split at playhead") };

QString roleName(QAccessible::Role role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

// "Role "name" = "value"" of every node under `node` that the library names, in tree order,
// as long as every child on the way leads back to its parent.
void collect(QAccessibleInterface* node, QStringList* found)
{
    // The menu bar has a "Markers" menu of the host's.
    if (node->role() != QAccessible::MenuItem && kLibraryNames.contains(node->text(QAccessible::Name))) {
        QString line
            = roleName(node->role()) + QStringLiteral(" \"") + node->text(QAccessible::Name) + QLatin1Char('"');
        const QString value = node->text(QAccessible::Value);
        if (!value.isEmpty())
            line += QStringLiteral(" = \"") + value + QLatin1Char('"');
        found->append(line);
    }
    for (int i = 0; i < node->childCount(); ++i) {
        QAccessibleInterface* child = node->child(i);
        if (!child || child->parent() != node) {
            found->append(QStringLiteral("(a child of \"%1\" does not lead back)").arg(node->text(QAccessible::Name)));
            continue;
        }
        collect(child, found);
    }
}

} // namespace

class tst_MvDemoAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLibrarysWidgetsAreInTheWindowsTree();
};

void tst_MvDemoAccessibility::theLibrarysWidgetsAreInTheWindowsTree()
{
    MvDemoWindow window(false);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto tree = [&] {
        QStringList found;
        collect(QAccessible::queryAccessibleInterface(&window), &found);
        // The render simulator works on its own clock: only the form of its share is fixed.
        found.replaceInStrings(
            QRegularExpression(QStringLiteral("= \"\\d{1,3}% rendered\"")), QStringLiteral("= \"n% rendered\""));
        return found;
    };

    QCOMPARE(tree().join(QLatin1Char('\n')),
        QStringList({ QStringLiteral("List \"Markers\" = \"Unnamed marker, 00:00:10:00; Unnamed marker, 00:01:00:00\""),
                        QStringLiteral("Slider \"Time ruler\" = \"00:00:00:00\""),
                        QStringLiteral("ProgressBar \"Render progress\" = \"n% rendered\""),
                        QStringLiteral("Slider \"Playhead\" = \"00:00:00:00\""),
                        QStringLiteral("Button \"Split at playhead\"") })
            .join(QLatin1Char('\n')));

    // The values follow the project: the playhead moves, both time readers read the new time.
    window.timeline()->playhead()->setCurrentFrame(45);
    const QStringList moved = tree();
    QVERIFY2(moved.contains(QStringLiteral("Slider \"Time ruler\" = \"00:00:01:15\"")),
        qPrintable(moved.join(QLatin1Char('\n'))));
    QVERIFY2(moved.contains(QStringLiteral("Slider \"Playhead\" = \"00:00:01:15\"")),
        qPrintable(moved.join(QLatin1Char('\n'))));
}

QTEST_MAIN(tst_MvDemoAccessibility)
#include "tst_MvDemoAccessibility.moc"
