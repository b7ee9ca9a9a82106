#include "MvRecordingTimeline.h"

#include "IMvAbstractClip.h"
#include "IMvSelection.h"
#include "IMvTimelinePlayhead.h"
#include "Memory/MvCallJournal.h"

#include <QStringList>

class MvRecordingTimeline::Selection : public IMvSelection
{
public:
    Selection(const MvRecordingTimeline* owner, IMvSelection* inner)
        : m_owner(owner)
        , m_inner(inner)
    {
    }

    void select(const QList<IMvClip*>& clips) override
    {
        m_owner->note(QStringLiteral("selection:select %1").arg(m_owner->clipNames(clips)));
        m_inner->select(clips);
    }
    void selectItems(const QList<IMvAbstractClip*>& items) override
    {
        QList<IMvClip*> clips;
        for (IMvAbstractClip* item : items)
            clips.append(dynamic_cast<IMvClip*>(item));
        m_owner->note(QStringLiteral("selection:selectItems %1").arg(m_owner->clipNames(clips)));
        m_inner->selectItems(items);
    }
    void selectItem(IMvAbstractClip* item) override
    {
        m_owner->note(
            QStringLiteral("selection:selectItem %1").arg(m_owner->clipNames({ dynamic_cast<IMvClip*>(item) })));
        m_inner->selectItem(item);
    }
    void clear() override
    {
        m_owner->note(QStringLiteral("selection:clear"));
        m_inner->clear();
    }
    void setTimelineSelected(bool selected) override
    {
        m_owner->note(QStringLiteral("selection:setTimelineSelected %1").arg(int(selected)));
        m_inner->setTimelineSelected(selected);
    }
    int count() const override { return m_inner->count(); }
    bool isEmpty() const override { return m_inner->isEmpty(); }
    QList<IMvAbstractClip*> selectedItems() const override { return m_inner->selectedItems(); }
    QList<IMvClip*> selectedClips() const override { return m_inner->selectedClips(); }
    IMvAbstractClip* currentItem() const override { return m_inner->currentItem(); }
    bool isTimelineSelected() const override { return m_inner->isTimelineSelected(); }
    IMvAbstractClip* itemAt(int index) const override { return m_inner->itemAt(index); }

private:
    const MvRecordingTimeline* m_owner;
    IMvSelection* m_inner;
};

class MvRecordingTimeline::SubItemSelection : public IMvSubItemSelection
{
public:
    SubItemSelection(const MvRecordingTimeline* owner, IMvSubItemSelection* inner)
        : m_owner(owner)
        , m_inner(inner)
    {
    }

    bool selectedId(int& id) const override { return m_inner->selectedId(id); }
    void select(int id) override
    {
        m_owner->note(QStringLiteral("subItems:select %1").arg(id));
        m_inner->select(id);
    }
    void clear() override
    {
        m_owner->note(QStringLiteral("subItems:clear"));
        m_inner->clear();
    }

private:
    const MvRecordingTimeline* m_owner;
    IMvSubItemSelection* m_inner;
};

// Keeps its own list of observers besides handing them on, so that it can send them any kind.
class MvRecordingTimeline::Playhead : public IMvTimelinePlayhead
{
public:
    Playhead(const MvRecordingTimeline* owner, IMvTimelinePlayhead* inner)
        : m_owner(owner)
        , m_inner(inner)
    {
    }

    void addObserver(IMvPlayheadEventObserver* observer) override
    {
        m_inner->addObserver(observer);
        if (!m_observers.contains(observer))
            m_observers.append(observer);
    }
    void removeObserver(IMvPlayheadEventObserver* observer) override
    {
        m_inner->removeObserver(observer);
        m_observers.removeAll(observer);
    }
    void send(int kind)
    {
        const QList<IMvPlayheadEventObserver*> round = m_observers;
        for (IMvPlayheadEventObserver* observer : round) {
            if (m_observers.contains(observer))
                observer->onPlayheadEvent(this, kind);
        }
    }

    void setCurrentFrame(qint64 frame) override
    {
        m_owner->note(QStringLiteral("playhead:setCurrentFrame %1").arg(frame));
        m_inner->setCurrentFrame(frame);
    }
    void setPosition(int x) override
    {
        m_owner->note(QStringLiteral("playhead:setPosition %1").arg(x));
        m_inner->setPosition(x);
    }
    qint64 currentFrame() const override { return m_inner->currentFrame(); }
    int position() const override { return m_inner->position(); }
    bool isVisible() const override { return m_inner->isVisible(); }
    void setVisible(bool visible) override { m_inner->setVisible(visible); }
    bool isEnabled() const override { return m_inner->isEnabled(); }
    void setEnabled(bool enabled) override { m_inner->setEnabled(enabled); }
    bool isSplitButtonVisible() const override { return m_inner->isSplitButtonVisible(); }
    void setSplitButtonVisible(bool visible) override { m_inner->setSplitButtonVisible(visible); }
    bool isSplitButtonEnabled() const override { return m_inner->isSplitButtonEnabled(); }
    void setSplitButtonEnabled(bool enabled) override { m_inner->setSplitButtonEnabled(enabled); }
    void virtualOpened() override { m_inner->virtualOpened(); }
    void virtualClosed() override { m_inner->virtualClosed(); }
    bool isVirtualOpen() const override { return m_inner->isVirtualOpen(); }
    bool needsVirtualReopen() const override { return m_inner->needsVirtualReopen(); }
    bool isFrameSettled(qint64 frame) const override { return m_inner->isFrameSettled(frame); }
    void setSeekHold(bool hold) override { m_inner->setSeekHold(hold); }
    bool isSeekHold() const override { return m_inner->isSeekHold(); }

private:
    const MvRecordingTimeline* m_owner;
    IMvTimelinePlayhead* m_inner;
    QList<IMvPlayheadEventObserver*> m_observers;
};

MvRecordingTimeline::MvRecordingTimeline(int kind)
    : MvMemoryTimeline(kind)
    , m_selection(new Selection(this, MvMemoryTimeline::selection()))
    , m_subItems(new SubItemSelection(this, MvMemoryTimeline::subItemSelection()))
    , m_playhead(new Playhead(this, MvMemoryTimeline::playhead()))
{
}

MvRecordingTimeline::~MvRecordingTimeline() = default;

IMvSelection* MvRecordingTimeline::selection() const
{
    return m_selection.data();
}

IMvSubItemSelection* MvRecordingTimeline::subItemSelection() const
{
    return m_subItems.data();
}

IMvTimelinePlayhead* MvRecordingTimeline::playhead() const
{
    return m_playhead.data();
}

bool MvRecordingTimeline::moveClips(QList<IMvClip*> clips, QList<int> trackOffsets, qint64 frameOffset, int mode)
{
    QStringList rows;
    for (int offset : qAsConst(trackOffsets))
        rows.append(QString::number(offset));
    note(QStringLiteral("moveClips %1 rows %2 by %3")
             .arg(clipNames(clips), rows.join(QLatin1Char(' ')))
             .arg(frameOffset));
    return MvMemoryTimeline::moveClips(clips, trackOffsets, frameOffset, mode);
}

void MvRecordingTimeline::sendPlayheadEvent(int kind)
{
    m_playhead->send(kind);
}

QString MvRecordingTimeline::clipNames(const QList<IMvClip*>& clips) const
{
    const QList<MvMemoryClip*> all = allClips();
    QStringList names;
    for (IMvClip* clip : clips) {
        const int index = all.indexOf(memoryClip(clip));
        names.append(index < 0 ? QStringLiteral("-") : QStringLiteral("c%1").arg(index));
    }
    return names.join(QLatin1Char(' '));
}

void MvRecordingTimeline::note(const QString& entry) const
{
    if (MvCallJournal* calls = journal())
        calls->record(entry);
}
