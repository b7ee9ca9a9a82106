#pragma once

#include "Memory/MvMemoryTimeline.h"

#include <QScopedPointer>

// A timeline that writes into its journal what a presenter asks of it, with the arguments, before
// the in-memory model acts: the frames asked of the playhead ("playhead:setCurrentFrame 30"), the
// selections made ("selection:select c0 c2"), the sub-item selection cleared ("subItems:clear")
// and the clips handed to a move ("moveClips c0 c1 rows 0 0 by 10"). Where the model would hide a
// presenter's own guard (it clamps the playhead, keeps the selection through a move, skips a clip
// given twice), the journal still shows what the presenter asked for.
class MvRecordingTimeline : public MvMemoryTimeline
{
public:
    explicit MvRecordingTimeline(int kind = 0);
    ~MvRecordingTimeline() override;

    IMvSelection* selection() const override;
    IMvSubItemSelection* subItemSelection() const override;
    IMvTimelinePlayhead* playhead() const override;
    bool moveClips(QList<IMvClip*> clips, QList<int> trackOffsets, qint64 frameOffset, int mode) override;

    // Tells the playhead's observers of an event of any kind, as another model may send them.
    void sendPlayheadEvent(int kind);
    // Clips as the model dump names them: "c0 c2".
    QString clipNames(const QList<IMvClip*>& clips) const;
    void note(const QString& entry) const;

private:
    class Selection;
    class SubItemSelection;
    class Playhead;
    QScopedPointer<Selection> m_selection;
    QScopedPointer<SubItemSelection> m_subItems;
    QScopedPointer<Playhead> m_playhead;
};
