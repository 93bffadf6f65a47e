// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/switches.h"

namespace plasmos {

class Presentation;
class Observer;
class GameFiles;
class SettingsStore;
class DiceTape;
struct DealtNames;
struct LostLine;
class Question;

/// Whom the games of a thread talk to. It stands beside the state, which points nowhere outside itself and
/// can be copied, kept and compared.
struct Services {
    Presentation* Window = nullptr;     ///< nobody: nothing is shown and nobody can be asked
    Observer* Listener = nullptr;       ///< hears rolls, steps, happenings, inputs and lines; may be nobody
    bool ReasonsWanted = false;         ///< whether the listener wanted reasons when the step began
    GameFiles* Files = nullptr;         ///< nobody: no file is read or written
    SettingsStore* Settings = nullptr;  ///< nobody: every setting has its default
    DiceTape* Tape = nullptr;           ///< recorded rolls instead of the generator's; may be none
    const DealtNames* Dealt = nullptr;  ///< the names of a game that is played again; nobody: they are dealt anew
    int MoveLines = 0;                  ///< lines of moves in this game so far, whether or not files keep them
    const LostLine* ToLose = nullptr;   ///< the next of them that a game played again has lost; none
    SwitchQueue Switches;               ///< what a person has switched and the rules have not taken over yet
    Question* Asked = nullptr;          ///< the question that is open on top; none: nobody is asked
};

/// The services of this thread.
extern constinit thread_local Services services;

}  // namespace plasmos
