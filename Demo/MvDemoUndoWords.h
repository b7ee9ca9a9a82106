#pragma once

#include <QCoreApplication>
#include <QString>

// The Edit menu's words for an undo step. The model names its steps in its own terms ("move
// clips", "trim end"); the menu says them in the user's language. A name the demo does not know
// is shown as the model gave it.
class MvDemoUndoWords
{
    Q_DECLARE_TR_FUNCTIONS(MvDemoUndoWords)

public:
    static QString step(const QString& name);
};
