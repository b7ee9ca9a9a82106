// What assistive tools read from the library's widgets, through Qt's own entry point
// (QAccessible::queryAccessibleInterface), and what they are told when things change.
//
// The offscreen platform has no assistive bridge, so Qt never reports itself active and drops
// every event before its update handler. The library hands each announcement to Qt and to the
// listeners of MvAccessibleAnnouncer; the tests listen there and see the very event Qt got.

#include "IMvMarker.h"
#include "IMvTimeline.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvUndoRedoService.h"
#include "Memory/MvMemoryRenderService.h"
#include "Memory/MvMemoryTimeline.h"
#include "MvLabel.h"
#include "MvMarkerEditColor.h"
#include "MvMarkerEditDialog.h"
#include "MvMarkerEditPanel.h"
#include "MvMarkerPresenter.h"
#include "MvMarkerWidget.h"
#include "MvPureTimelineRulerWidget.h"
#include "MvRecordingScene.h"
#include "MvTextEdit.h"
#include "MvTimelineAccessible_p.h"
#include "MvTimelinePlayheadPresenter.h"
#include "MvTimelinePlayheadWidget.h"
#include "MvTimelinePresenter.h"
#include "MvTimelineRenderWidget.h"
#include "MvTimelineRulerPresenter.h"
#include "MvTimelineRulerWidget.h"
#include "MvToolTipHelper.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMetaEnum>
#include <QtTest>

#include <functional>

using namespace MVVBLMODEL;

Q_DECLARE_METATYPE(QList<MvRenderSegment>)

namespace {

struct Marker
{
    int frame;
    int colorIndex;
    QString name;
};

// The host's marker presenter: markers at one pixel a frame, named or not.
class NamedMarkers : public MvMarkerPresenter
{
public:
    explicit NamedMarkers(MvTimelinePresenter* timelinePresenter)
        : MvMarkerPresenter(timelinePresenter, nullptr)
    {
        QImage flag(11, 14, QImage::Format_ARGB32_Premultiplied);
        flag.fill(Qt::red);
        addMarkerImage(0, flag, flag, flag);
    }
    QList<MarkerItem> markerList() override
    {
        QList<MarkerItem> items;
        for (const Marker& marker : qAsConst(markers))
            items.append({ int(marker.frame), marker.colorIndex });
        return items;
    }
    QString markerName(int index) override { return markers.value(index).name; }
    qint64 markerFrame(int index) override { return index < markers.size() ? markers.at(index).frame : -1; }
    void setMarkers(const QList<Marker>& list)
    {
        markers = list;
        Q_EMIT signalMarkerCountChanged();
    }
    QList<Marker> markers;
};

// A 1000-frame clip at 30 fps, one pixel a frame, under the library's widgets. Playhead at 100.
struct Fixture
{
    MvMemoryTimeline timeline;
    MvRecordingScene scene;
    MvTimelinePresenter timelinePresenter { nullptr, &timeline };
    MvTimelineRulerPresenter rulerPresenter { &timelinePresenter, nullptr };
    MvTimelinePlayheadPresenter playheadPresenter { &timelinePresenter, nullptr };
    NamedMarkers markerPresenter { &timelinePresenter };
    QWidget window;
    MvTimelineRulerWidget* ruler = new MvTimelineRulerWidget(&rulerPresenter, &window);
    MvTimelinePlayheadWidget* playhead = new MvTimelinePlayheadWidget(&playheadPresenter, &window);
    MvTimelineRenderWidget* strip = new MvTimelineRenderWidget(&timelinePresenter, &window);
    MvMarkerWidget* markers = new MvMarkerWidget(&markerPresenter, &window);

    Fixture()
    {
        timeline.setFrameRate(30, 1);
        timeline.addTrack(TrackType_Picture);
        timeline.addClip(0, ClipType_Video, 0, 999, QStringLiteral("a"));
        timelinePresenter.setScene(&scene);
        ruler->setObjectName(QStringLiteral("ruler"));
        playhead->setObjectName(QStringLiteral("playhead"));
        strip->setObjectName(QStringLiteral("strip"));
        markers->setObjectName(QStringLiteral("markers"));
        window.setGeometry(100, 100, 1000, 300);
        markers->setGeometry(0, 0, 1000, 16);
        ruler->setGeometry(0, 16, 1000, 30);
        strip->setGeometry(0, 46, 1000, 6);
        playhead->setGeometry(0, 52, 1000, 200);
        window.show();
        timeline.ruler()->setViewWidth(1000);
        timeline.playhead()->setCurrentFrame(100);
    }
    MvMemoryRenderService* renderService() { return timeline.renderServiceImpl(); }
};

QAccessibleInterface* accessible(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString roleName(QAccessible::Role role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

// The tree under an interface as an assistive tool walks it: role, name and value, children
// indented. Every child must name its parent as its parent.
QString treeText(QAccessibleInterface* node, int depth = 0)
{
    if (!node)
        return QStringLiteral("(none)");
    QString text = QString(depth * 2, QLatin1Char(' ')) + roleName(node->role()) + QStringLiteral(" \"")
        + node->text(QAccessible::Name) + QLatin1Char('"');
    const QString value = node->text(QAccessible::Value);
    if (!value.isEmpty())
        text += QStringLiteral(" = \"") + value + QLatin1Char('"');
    for (int i = 0; i < node->childCount(); ++i) {
        QAccessibleInterface* child = node->child(i);
        if (!child || child->parent() != node || node->indexOfChild(child) != i)
            return text + QStringLiteral("\n(child %1 does not lead back to its parent)").arg(i);
        text += QLatin1Char('\n') + treeText(child, depth + 1);
    }
    return text;
}

// Every announcement while it lives, as "kind object value".
struct Announcements
{
    Announcements()
        : id(MvAccessibleAnnouncer::addListener([this](QAccessibleEvent* event) { record(event); }))
    {
    }
    ~Announcements() { MvAccessibleAnnouncer::removeListener(id); }
    void record(QAccessibleEvent* event)
    {
        QString kind = QString::number(event->type());
        QString value;
        if (event->type() == QAccessible::ValueChanged) {
            kind = QStringLiteral("value");
            value = QLatin1Char(' ') + static_cast<QAccessibleValueChangeEvent*>(event)->value().toString();
        } else if (event->type() == QAccessible::Focus) {
            kind = QStringLiteral("focus");
        } else if (event->type() == QAccessible::Selection) {
            kind = QStringLiteral("selection");
        }
        // The event must reach the same interface a tool would query.
        const bool same = event->accessibleInterface() == accessible(event->object());
        events.append(kind + QLatin1Char(' ') + event->object()->objectName() + value
            + (same ? QString() : QStringLiteral(" (another interface)")));
    }
    int id;
    QStringList events;
};

MvMarkerParam colourParam(int colorIndex)
{
    return { MvMarkerPresenter::markerPalette().mid(0, 3), colorIndex, QStringLiteral("Intro"),
        QStringLiteral("cut here"), QStringLiteral("00:00:04:10") };
}

} // namespace

class tst_MvTimelineAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulersReadTheCurrentTimeCodeAndSeek();
    void playheadReadsItsTimeAndOffersTheSplitButton();
    void renderStripReadsTheRenderedShare_data();
    void renderStripReadsTheRenderedShare();
    void markerStripListsTheMarkersWithTheirTimes();
    void markerStripShowsTheMarkerUnderThePointerInATip();
    void markerStripNamesTheTimelinesOwnMarkersByDefault();
    void markerEditorNamesItsFieldsAndSwatches();
    void hostWordsWinOverTheLibrarys();
    void changesAreAnnounced_data();
    void changesAreAnnounced();
};

void tst_MvTimelineAccessibility::rulersReadTheCurrentTimeCodeAndSeek()
{
    Fixture f;
    f.timeline.playhead()->setCurrentFrame(125);
    QAccessibleInterface* ruler = accessible(f.ruler);
    QVERIFY(ruler);
    QCOMPARE(treeText(ruler), QStringLiteral("Slider \"Time ruler\" = \"00:00:04:05\""));
    QAccessibleValueInterface* value = ruler->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue().toLongLong(), 125);
    QCOMPARE(value->minimumValue().toLongLong(), 0);
    QCOMPARE(value->maximumValue().toLongLong(), f.timeline.ruler()->totalFrames());
    QCOMPARE(value->minimumStepSize().toLongLong(), 1);
    // A tool sets the value: the playhead goes there, kept inside the timeline.
    value->setCurrentValue(qlonglong(640));
    QCOMPARE(f.timeline.playhead()->currentFrame(), 640);
    value->setCurrentValue(qlonglong(-20));
    QCOMPARE(f.timeline.playhead()->currentFrame(), 0);

    MvPureTimelineRulerWidget pure;
    pure.setFramerate({ 25, 1 });
    pure.setTotalFrames(5000);
    pure.setCurrentFrame(2510);
    QAccessibleInterface* own = accessible(&pure);
    QCOMPARE(treeText(own), QStringLiteral("Slider \"Time ruler\" = \"00:01:40:10\""));
    QCOMPARE(own->valueInterface()->maximumValue().toLongLong(), 5000);
    own->valueInterface()->setCurrentValue(qlonglong(7000));
    QCOMPARE(pure.currentFrame(), 5000);
}

void tst_MvTimelineAccessibility::playheadReadsItsTimeAndOffersTheSplitButton()
{
    Fixture f;
    f.timeline.playhead()->setCurrentFrame(130);
    QAccessibleInterface* playhead = accessible(f.playhead);
    QCOMPARE(
        treeText(playhead), QStringLiteral("Slider \"Playhead\" = \"00:00:04:10\"\n  Button \"Split at playhead\""));
    QCOMPARE(playhead->valueInterface()->currentValue().toLongLong(), 130);

    QAccessibleInterface* button = playhead->child(0);
    QCOMPARE(button->text(QAccessible::Description), QStringLiteral("Click to split\nDrag to Move playhead"));
    // Where the button is drawn, in screen coordinates, and found there again.
    const QRect onScreen = button->rect();
    QCOMPARE(onScreen,
        QRect(f.playhead->mapToGlobal(f.playheadPresenter.splitButtonRect().topLeft()),
            f.playheadPresenter.splitButtonRect().size()));
    QCOMPARE(playhead->childAt(onScreen.center().x(), onScreen.center().y()), button);
    QVERIFY(!button->state().disabled);

    // Pressing it splits the clip under the playhead, in one undo step.
    QCOMPARE(button->actionInterface()->actionNames(), QStringList { QAccessibleActionInterface::pressAction() });
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(f.timeline.trackAt(0)->clips().size(), 2);
    QCOMPARE(f.timeline.undoRedoService()->undoName(), QStringLiteral("split"));

    // A hidden button is no child; a tool holding it on sees it invisible.
    f.playheadPresenter.setSplitButtonVisible(false);
    QCOMPARE(playhead->childCount(), 0);
    QVERIFY(button->state().invisible);
}

void tst_MvTimelineAccessibility::renderStripReadsTheRenderedShare_data()
{
    QTest::addColumn<QList<MvRenderSegment>>("segments");
    QTest::addColumn<int>("percent");
    using Segments = QList<MvRenderSegment>;
    QTest::newRow("nothing listed") << Segments {} << 0;
    QTest::newRow("all rendered") << Segments { { 0, 99, 0 } } << 100;
    QTest::newRow("a quarter") << Segments { { 0, 99, 0 }, { 100, 399, 1 } } << 25;
    // Frames waiting to render again count as not rendered, wherever they overlap.
    QTest::newRow("unfinished over finished") << Segments { { 0, 199, 0 }, { 50, 149, 1 } } << 50;
    QTest::newRow("a single frame holds one") << Segments { { 10, 10, 0 }, { 11, 11, 1 } } << 50;
    QTest::newRow("reversed stretches hold nothing") << Segments { { 0, 9, 0 }, { 99, 20, 1 } } << 100;
    QTest::newRow("one frame short of all") << Segments { { 0, 998, 0 }, { 999, 999, 1 } } << 99;
    QTest::newRow("only the high bits of the flag") << Segments { { 0, 9, quint64(1) << 32 } } << 100;
}

void tst_MvTimelineAccessibility::renderStripReadsTheRenderedShare()
{
    QFETCH(QList<MvRenderSegment>, segments);
    QFETCH(int, percent);
    Fixture f;
    f.renderService()->setSegments(segments);
    QAccessibleInterface* strip = accessible(f.strip);
    QCOMPARE(treeText(strip), QStringLiteral("ProgressBar \"Render progress\" = \"%1% rendered\"").arg(percent));
    QCOMPARE(strip->valueInterface()->currentValue().toInt(), percent);
    QCOMPARE(strip->valueInterface()->maximumValue().toInt(), 100);
    // Rendering moves the value, not a tool.
    strip->valueInterface()->setCurrentValue(7);
    QCOMPARE(strip->valueInterface()->currentValue().toInt(), percent);
}

void tst_MvTimelineAccessibility::markerStripListsTheMarkersWithTheirTimes()
{
    Fixture f;
    QCOMPARE(treeText(accessible(f.markers)), QStringLiteral("List \"Markers\" = \"No markers\""));
    f.markerPresenter.setMarkers({ { 30, 0, QStringLiteral("Intro") }, { 75, 0, QString() } });
    QAccessibleInterface* strip = accessible(f.markers);
    QCOMPARE(treeText(strip),
        QStringLiteral("List \"Markers\" = \"Intro, 00:00:01:00; Unnamed marker, 00:00:02:15\"\n"
                       "  ListItem \"Intro\" = \"00:00:01:00\"\n"
                       "  ListItem \"Unnamed marker\" = \"00:00:02:15\""));
    // Each flag is where it is drawn, and found there.
    QAccessibleInterface* second = strip->child(1);
    QCOMPARE(second->rect(), QRect(f.markers->mapToGlobal(QPoint(70, -1)), QSize(11, 14)));
    QCOMPARE(strip->childAt(second->rect().center().x(), second->rect().center().y()), second);

    // A shorter list leaves the interfaces of the markers gone invalid, and no longer children.
    f.markerPresenter.setMarkers({ { 30, 0, QStringLiteral("Intro") } });
    QCOMPARE(strip->childCount(), 1);
    QVERIFY(!second->isValid());
    QCOMPARE(strip->indexOfChild(second), -1);
}

// A host presenter that lists the model's timeline markers and leaves names and times to the library.
class ModelMarkers : public MvMarkerPresenter
{
public:
    explicit ModelMarkers(MvTimelinePresenter* timelinePresenter)
        : MvMarkerPresenter(timelinePresenter, nullptr)
    {
    }
    QList<MarkerItem> markerList() override
    {
        QList<MarkerItem> items;
        const QList<IMvMarker*> all = timelinePresenter()->timeline()->timelineMarkers()->markers();
        for (IMvMarker* marker : all)
            items.append({ int(marker->frame()), 0 });
        return items;
    }
};

void tst_MvTimelineAccessibility::markerStripNamesTheTimelinesOwnMarkersByDefault()
{
    Fixture f;
    IMvMarkerList* list = f.timeline.timelineMarkers();
    list->addMarker(45, Qt::red);
    list->addMarker(300, Qt::blue);
    list->markerAt(300)->setName(QStringLiteral("Sunset"));
    ModelMarkers presenter(&f.timelinePresenter);
    MvMarkerWidget strip(&presenter, &f.window);
    QCOMPARE(presenter.markerName(1), QStringLiteral("Sunset"));
    QCOMPARE(presenter.markerFrame(0), 45);
    QCOMPARE(presenter.markerFrame(2), -1);
    QCOMPARE(presenter.markerTimecode(2), QString());
    QCOMPARE(treeText(accessible(&strip)),
        QStringLiteral("List \"Markers\" = \"Unnamed marker, 00:00:01:15; Sunset, 00:00:10:00\"\n"
                       "  ListItem \"Unnamed marker\" = \"00:00:01:15\"\n"
                       "  ListItem \"Sunset\" = \"00:00:10:00\""));
    // Without a timeline presenter nothing is known, and nothing breaks.
    ModelMarkers orphan(nullptr);
    QCOMPARE(orphan.markerName(0), QString());
    QCOMPARE(orphan.markerFrame(0), -1);
}

void tst_MvTimelineAccessibility::markerStripShowsTheMarkerUnderThePointerInATip()
{
    Fixture f;
    f.markerPresenter.setMarkers(
        { { 30, 0, QStringLiteral("Intro") }, { 34, 0, QStringLiteral("Wave") }, { 200, 0, QString() } });
    const auto tipAt = [&](const QPoint& pos) {
        MvToolTipHelper::resetHistory();
        QHelpEvent event(QEvent::ToolTip, pos, f.markers->mapToGlobal(pos));
        QCoreApplication::sendEvent(f.markers, &event);
        return MvToolTipHelper::shownCount() > 0 ? MvToolTipHelper::lastText() : QStringLiteral("(no tip)");
    };
    QCOMPARE(tipAt(QPoint(27, 5)), QStringLiteral("Intro\n00:00:01:00"));
    // Where two flags overlap, the one drawn on top.
    QCOMPARE(tipAt(QPoint(32, 5)), QStringLiteral("Wave\n00:00:01:04"));
    QCOMPARE(tipAt(QPoint(200, 12)), QStringLiteral("Unnamed marker\n00:00:06:20"));
    QCOMPARE(tipAt(QPoint(120, 5)), QStringLiteral("(no tip)"));
}

void tst_MvTimelineAccessibility::markerEditorNamesItsFieldsAndSwatches()
{
    MvMarkerEditDialog dialog(colourParam(1), nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const MvMarkerEditPanel* panel = dialog.panel();
    QAccessibleInterface* name = accessible(panel->nameEdit());
    QCOMPARE(roleName(name->role()) + QLatin1Char('/') + name->text(QAccessible::Name) + QLatin1Char('/')
            + name->text(QAccessible::Value),
        QStringLiteral("EditableText/Name/Intro"));
    QCOMPARE(accessible(panel->commentEdit())->text(QAccessible::Name), QStringLiteral("Comment"));
    QCOMPARE(accessible(panel->timeValueLabel())->text(QAccessible::Name), QStringLiteral("Time"));

    QAccessibleInterface* row = accessible(panel->colorRow());
    QCOMPARE(treeText(row),
        QStringLiteral("List \"Marker Color\" = \"Orange\"\n"
                       "  ListItem \"Red\"\n"
                       "  ListItem \"Orange\"\n"
                       "  ListItem \"Yellow\""));
    QVERIFY(row->child(1)->state().selected);
    QVERIFY(!row->child(0)->state().selected);
    // The keyboard is on the row; the swatch under the focus mark is the focused child.
    QVERIFY(!row->focusChild());
    panel->colorRow()->setFocus(Qt::TabFocusReason);
    QCOMPARE(row->focusChild(), row->child(1));
    QVERIFY(row->child(1)->state().focused);
    // A tool presses a swatch: it is the colour chosen.
    QVERIFY(row->child(2)->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    row->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(dialog.markerParam().colorIndex, 2);
    QCOMPARE(row->text(QAccessible::Value), QStringLiteral("Yellow"));
    // A colour outside the library's palette reads as its value.
    MvMarkerEditColor other({ QColor(0x12, 0x34, 0x56) }, nullptr);
    QCOMPARE(accessible(other.cell(0))->text(QAccessible::Name), QStringLiteral("Color #123456"));
    QCOMPARE(accessible(&other)->text(QAccessible::Value), QStringLiteral("No color"));
}

void tst_MvTimelineAccessibility::hostWordsWinOverTheLibrarys()
{
    Fixture f;
    f.ruler->setAccessibleName(QStringLiteral("Main timeline time"));
    f.ruler->setAccessibleDescription(QStringLiteral("Seek here"));
    QAccessibleInterface* ruler = accessible(f.ruler);
    QCOMPARE(ruler->text(QAccessible::Name), QStringLiteral("Main timeline time"));
    QCOMPARE(ruler->text(QAccessible::Description), QStringLiteral("Seek here"));
    QCOMPARE(ruler->text(QAccessible::Value), QStringLiteral("00:00:03:10")); // the value stays the library's
    QCOMPARE(accessible(f.strip)->text(QAccessible::Description),
        QStringLiteral("How much of the timeline is rendered for preview."));
}

using Change = std::function<void(Fixture&, MvMarkerEditColor&)>;
Q_DECLARE_METATYPE(Change)

void tst_MvTimelineAccessibility::changesAreAnnounced_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("expected"); // in the order told, sorted where marked
    QTest::addColumn<bool>("sorted"); // several observers of one model change: their order is the model's
    QTest::newRow("the playhead moves") << Change([](Fixture& f, MvMarkerEditColor&) {
        f.timeline.playhead()->setCurrentFrame(250);
    }) << QStringList { QStringLiteral("value playhead 250"), QStringLiteral("value ruler 250") }
                                        << true;
    QTest::newRow("a zoom moves no time") << Change([](Fixture& f, MvMarkerEditColor&) {
        f.timeline.playhead()->setCurrentFrame(250);
        f.timeline.ruler()->zoom(-40);
    }) << QStringList { QStringLiteral("value playhead 250"), QStringLiteral("value ruler 250") }
                                          << true;
    QTest::newRow("the same frame twice is told once") << Change([](Fixture& f, MvMarkerEditColor&) {
        f.timeline.playhead()->setCurrentFrame(250);
        f.playhead->slotUpdateUI();
    }) << QStringList { QStringLiteral("value playhead 250"), QStringLiteral("value ruler 250") }
                                                       << true;
    QTest::newRow("rendering goes on") << Change([](Fixture& f, MvMarkerEditColor&) {
        f.renderService()->markUnfinished(0, 999);
        f.renderService()->markFinished(0, 249);
        f.renderService()->renderNext(50);
    })
                                       << QStringList { QStringLiteral("value strip 0"),
                                              QStringLiteral("value strip 25"), QStringLiteral("value strip 30") }
                                       << false;
    QTest::newRow("markers come and go") << Change([](Fixture& f, MvMarkerEditColor&) {
        f.markerPresenter.setMarkers({ { 30, 0, QStringLiteral("Intro") } });
        f.markerPresenter.setMarkers({});
    }) << QStringList { QStringLiteral("value markers Intro, 00:00:01:00"), QStringLiteral("value markers No markers") }
                                         << false;
    QTest::newRow("a swatch is picked from the keyboard")
        << Change([](Fixture&, MvMarkerEditColor& row) {
               row.setFocus(Qt::TabFocusReason);
               QTest::keyClick(&row, Qt::Key_Right);
               QTest::keyClick(&row, Qt::Key_Right); // already the last: nothing new to tell
           })
        << QStringList { QStringLiteral("focus colorCell0"), QStringLiteral("focus colorCell1"),
               QStringLiteral("selection colorCell1"), QStringLiteral("value colorRow Orange") }
        << false;
}

void tst_MvTimelineAccessibility::changesAreAnnounced()
{
    QFETCH(Change, change);
    QFETCH(QStringList, expected);
    QFETCH(bool, sorted);
    Fixture f;
    MvMarkerEditColor row(MvMarkerPresenter::markerPalette().mid(0, 2), &f.window);
    row.setObjectName(QStringLiteral("colorRow"));
    row.setGeometry(0, 260, 250, 16);
    row.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    row.clearFocus(); // the window gave it the keyboard on activation
    Announcements heard;
    change(f, row);
    if (sorted) {
        heard.events.sort();
        expected.sort();
    }
    QCOMPARE(heard.events.join(QStringLiteral(" | ")), expected.join(QStringLiteral(" | ")));
}

QTEST_MAIN(tst_MvTimelineAccessibility)
#include "tst_MvTimelineAccessibility.moc"
