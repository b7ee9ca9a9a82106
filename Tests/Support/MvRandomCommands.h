#pragma once

#include <QString>
#include <QVector>

#include <functional>

class MvRandomWorld;

// One command a random run may pick: what a user or host can do to the timeline.
struct MvRandomCommand
{
    // What the command may do to the undo stack; the run checks that it did no more.
    enum Undo
    {
        OneStepAtMost, // a command: one undo step, or none and the model unchanged
        SeveralSteps, // a building block that makes one step per model call
        UndoesOne, // the host's undo
        RedoesOne, // the host's redo
    };

    QString name; // unique; a replayed sequence names its commands by it
    int weight; // how often it is picked, relative to the others
    // Runs the command with arguments drawn from the world, and says what it did: the arguments,
    // the selection it acted on and the result.
    std::function<QString(MvRandomWorld&)> run;
    Undo undo = OneStepAtMost;
};

// Every command of the table, in a fixed order (a seed picks the same commands every time).
const QVector<MvRandomCommand>& mvRandomCommands();
// The index of a command by name, -1 when there is none.
int mvRandomCommandIndex(const QString& name);
