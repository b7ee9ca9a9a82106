#pragma once

// Internal to the library: what its widgets tell assistive tools (screen readers, magnifiers,
// switch access), and when.
//
// Every widget of the library gets an accessible interface of its own from the factory that the
// library installs when it is loaded. The time rulers and the playhead are sliders over the
// frames whose value reads as the time code of the current frame; the playhead's split button is
// a button child that splits when pressed; the render strip is a progress bar of the rendered
// share; the marker strip is a list of its markers with their times; the marker editor's swatch
// row is a list of colours (MvMarkerAccessible_p.h). A host's accessibleName and
// accessibleDescription win over the library's own words.
//
// Widgets announce their changes through MvAccessibleAnnouncer. Qt hands an event to the platform
// only while an assistive tool listens; listeners added here hear every announcement as well (a
// host that presents them itself, the tests). While nobody listens nothing is worked out.

#include "MvTimelineGlobal.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QPointer>
#include <QVariant>

#include <functional>

class MvPureTimelineRulerWidget;
class MvTimelinePlayheadWidget;
class MvTimelineRenderWidget;
class MvTimelineRulerWidget;

namespace MvAccessibleAnnouncer {
using Listener = std::function<void(QAccessibleEvent* event)>;

// Whether anyone hears announcements: an assistive tool through Qt, or a listener.
MVTIMELINE_TEST_EXPORT bool isHeard();
// Hands the event to Qt and to every listener, when anyone hears it.
MVTIMELINE_TEST_EXPORT void send(QAccessibleEvent* event);
// The accessible value of `object` may have changed: a value-change event goes out when the
// value differs from the one announced last for the object.
MVTIMELINE_TEST_EXPORT void valueChanged(QObject* object);
// Returns the id that removes the listener again.
MVTIMELINE_TEST_EXPORT int addListener(const Listener& listener);
MVTIMELINE_TEST_EXPORT void removeListener(int id);
} // namespace MvAccessibleAnnouncer

namespace MvTimelineAccessible {
// The interfaces of the library's widgets, by class name (Qt asks for each class of an object,
// the most derived first, so a host's subclasses get them too).
MVTIMELINE_TEST_EXPORT QAccessibleInterface* factory(const QString& className, QObject* object);
} // namespace MvTimelineAccessible

// Base of the library's widget interfaces: the host's words first, and the value last announced.
class MvAccessibleWidget : public QAccessibleWidget
{
public:
    MvAccessibleWidget(QWidget* widget, QAccessible::Role role);

    QString text(QAccessible::Text kind) const override;

    // What a value change announces: the number where there is one, else the value text.
    virtual QVariant announcedValue() const;
    // Keeps `value` as the last one announced; false when it was that already.
    bool takeAnnouncedValue(const QVariant& value);

protected:
    // The library's own name, description or value text; empty for Qt's default.
    virtual QString ownText(QAccessible::Text kind) const = 0;

private:
    QVariant m_lastAnnounced;
};

// A slider over the frames of a timeline: the value is the current frame, read as its time code.
class MvFrameSliderAccessible : public MvAccessibleWidget, public QAccessibleValueInterface
{
public:
    MvFrameSliderAccessible(QWidget* widget);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant announcedValue() const override;

    QVariant currentValue() const override;
    // Moves the playhead there.
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    virtual qint64 currentFrame() const = 0;
    virtual qint64 totalFrames() const = 0;
    virtual QString timeCode() const = 0;
    virtual void seek(qint64 frame) = 0;
};

class MvTimelineRulerAccessible : public MvFrameSliderAccessible
{
    Q_DECLARE_TR_FUNCTIONS(MvTimelineRulerWidget)

public:
    explicit MvTimelineRulerAccessible(MvTimelineRulerWidget* ruler);

protected:
    QString ownText(QAccessible::Text kind) const override;
    qint64 currentFrame() const override;
    qint64 totalFrames() const override;
    QString timeCode() const override;
    void seek(qint64 frame) override;

private:
    MvTimelineRulerWidget* ruler() const;
};

class MvPureRulerAccessible : public MvFrameSliderAccessible
{
    Q_DECLARE_TR_FUNCTIONS(MvPureTimelineRulerWidget)

public:
    explicit MvPureRulerAccessible(MvPureTimelineRulerWidget* ruler);

protected:
    QString ownText(QAccessible::Text kind) const override;
    qint64 currentFrame() const override;
    qint64 totalFrames() const override;
    QString timeCode() const override;
    void seek(qint64 frame) override;

private:
    MvPureTimelineRulerWidget* ruler() const;
};

// The playhead, with its split button as a child while the button shows.
class MvPlayheadAccessible : public MvFrameSliderAccessible
{
    Q_DECLARE_TR_FUNCTIONS(MvTimelinePlayheadWidget)

public:
    explicit MvPlayheadAccessible(MvTimelinePlayheadWidget* playhead);
    ~MvPlayheadAccessible() override;

    QAccessible::State state() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

protected:
    QString ownText(QAccessible::Text kind) const override;
    qint64 currentFrame() const override;
    qint64 totalFrames() const override;
    QString timeCode() const override;
    void seek(qint64 frame) override;

private:
    MvTimelinePlayheadWidget* playhead() const;
    QAccessibleInterface* splitButton() const;

    mutable QAccessible::Id m_splitButtonId = 0; // made on first use, gone with this interface
};

// The split button riding on the playhead line: pressing it splits the clips under the playhead.
class MvSplitButtonAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
    Q_DECLARE_TR_FUNCTIONS(MvTimelinePlayheadWidget)

public:
    explicit MvSplitButtonAccessible(MvTimelinePlayheadWidget* playhead);

    bool isValid() const override;
    // Not an object of its own: the playhead widget draws it.
    QObject* object() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;
    // Its words come from the playhead; assistive tools cannot rename it.
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    QPointer<MvTimelinePlayheadWidget> m_playhead;
};

// The render strip: a progress bar of the rendered share, in percent.
class MvRenderStripAccessible : public MvAccessibleWidget, public QAccessibleValueInterface
{
    Q_DECLARE_TR_FUNCTIONS(MvTimelineRenderWidget)

public:
    explicit MvRenderStripAccessible(MvTimelineRenderWidget* strip);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant announcedValue() const override;

    QVariant currentValue() const override;
    // Rendering moves the value; nobody sets it from outside.
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    QString ownText(QAccessible::Text kind) const override;

private:
    int percent() const;
};
