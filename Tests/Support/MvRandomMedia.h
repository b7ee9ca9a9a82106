#pragma once

#include "MvRandomCommands.h"

#include <QVector>

class MvRandomWorld;

// Adding media in a random run: the commands, and the host's answers to the questions they ask
// (downloads, resolutions, the project-settings match), each drawn from the running step.
QVector<MvRandomCommand> mvMediaCommands();
// Transitions and effects from the library onto clips, and the effect clipboard.
QVector<MvRandomCommand> mvTransitionAndEffectCommands();
void mvAnswerMediaQuestions(MvRandomWorld& world);
